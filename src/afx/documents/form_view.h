// CFormView: a view made of a dialog template. Included by afxext.h.
#pragma once

#include "afx/documents/scroll_view.h"

/// The template is a child window's without border. Its items are exchanged with the object as a
/// dialog's are; where the window is smaller than the template, it scrolls.
class QVAFX_API CFormView : public CScrollView {
    DECLARE_DYNAMIC(CFormView)

public:
    /// As it is, an empty one.
    void OnInitialUpdate() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    explicit CFormView(LPCTSTR lpszTemplateName);
    explicit CFormView(UINT nIDTemplate);

    using CScrollView::Create;
    BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwRequestedStyle,
                const RECT& rect, CWnd* pParentWnd, UINT nID, CCreateContext* pContext) override;
    void OnDraw(CDC* pDC) override;
    void OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView) override;
    void OnActivateFrame(UINT nState, CFrameWnd* pFrameWnd) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpcs);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    DECLARE_MESSAGE_MAP()

    LPCTSTR m_lpszTemplateName;
    CCreateContext* m_pCreateContext = nullptr;  ///< while being created
    HWND m_hWndFocus = nullptr;                  ///< the item that had the focus last

private:
    BOOL SaveFocusControl();
};
