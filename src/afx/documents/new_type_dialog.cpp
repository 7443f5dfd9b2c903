#include "afx/documents/new_type_dialog.h"

#include "afx/documents/doc_template.h"

#include <afxwin.h>

BEGIN_MESSAGE_MAP(AfxNewTypeDialog, CDialog)
    ON_LBN_DBLCLK(AFX_IDC_LISTBOX, &AfxNewTypeDialog::OnOK)
END_MESSAGE_MAP()

AfxNewTypeDialog::AfxNewTypeDialog(const CPtrList& templates)
    : CDialog(AFX_IDD_NEWTYPEDLG), m_templates(templates) {}

BOOL AfxNewTypeDialog::OnInitDialog() {
    auto* pList = static_cast<CListBox*>(GetDlgItem(AFX_IDC_LISTBOX));
    for (POSITION pos = m_templates.GetHeadPosition(); pos != nullptr;) {
        auto* pTemplate = static_cast<CDocTemplate*>(m_templates.GetNext(pos));
        CString strName;
        pTemplate->GetDocString(strName, CDocTemplate::fileNewName);
        pList->SetItemDataPtr(pList->AddString(strName), pTemplate);
    }
    pList->SetCurSel(0);
    return CDialog::OnInitDialog();
}

void AfxNewTypeDialog::OnOK() {
    const auto* pList = static_cast<CListBox*>(GetDlgItem(AFX_IDC_LISTBOX));
    const int nItem = pList->GetCurSel();
    if (nItem >= 0) {
        m_pTemplate = static_cast<CDocTemplate*>(pList->GetItemDataPtr(nItem));
        CDialog::OnOK();
    }
}
