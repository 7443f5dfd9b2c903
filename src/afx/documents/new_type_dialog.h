// The dialog that asks of which kind a new document is to be. Internal to the framework.
#pragma once

#include "afx/dialogs/dialog.h"

#include <afxcoll.h>

class CDocTemplate;

/// Lists the templates by their names for new documents.
class AfxNewTypeDialog : public CDialog {
public:
    explicit AfxNewTypeDialog(const CPtrList& templates);

    /// The one that was chosen, after DoModal gave IDOK.
    CDocTemplate* GetTemplate() const { return m_pTemplate; }

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    DECLARE_MESSAGE_MAP()

private:
    const CPtrList& m_templates;
    CDocTemplate* m_pTemplate = nullptr;
};
