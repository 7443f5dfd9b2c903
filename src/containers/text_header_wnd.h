// QVTextHeaderWnd: a text window under a caption. The text is reached by GetTextWnd once the window
// is made.

#pragma once

#include "containers/header_wnd.h"
#include "text/text_wnd.h"

class QV_CONTROLS_API QVTextHeaderWnd : public QVHeaderWnd {
    DECLARE_DYNCREATE(QVTextHeaderWnd)

public:
    QVTextHeaderWnd();
    ~QVTextHeaderWnd() override;

    int Initialize(UINT nID, CWnd* pParent) override;

    QVTextWnd& GetTextWnd() { return m_wndText; }
    void ClearTextData();
    // In style 0. FALSE if the file cannot be opened or read to its end.
    BOOL LoadFile(LPCSTR pszPath);
    BOOL LoadFile(CStdioFile& file);

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

    QVTextWnd m_wndText;

private:
    BOOL MakeText();
};
