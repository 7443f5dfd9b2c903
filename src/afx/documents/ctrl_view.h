// CCtrlView: a view that is one of the platform's controls. Included by afxwin.h.
#pragma once

#include "afx/documents/view.h"

/// The control draws itself; OnDraw is called for paper only, by classes that print.
class QVAFX_API CCtrlView : public CView {
    DECLARE_DYNCREATE(CCtrlView)

public:
    CCtrlView(LPCTSTR lpszClass, DWORD dwStyle);

protected:
    CCtrlView();

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void OnDraw(CDC* pDC) override;
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

    CString m_strClass;
    DWORD m_dwDefaultStyle = 0;
};
