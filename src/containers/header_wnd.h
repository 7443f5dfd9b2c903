// QVHeaderWnd: a child window with a raised bar across its top that carries one line of caption,
// and a body below it that another control fills. Derived classes put a list or a tree there; to
// an application, that is one control with one id. Caption and settings of the inner control come
// first, then Create, or Initialize for an item of a dialog.
//
// Ownership: the font is that of the nearest ancestor that has one, looked up in Initialize, and
// stays the ancestor's. Coordinates are client pixels.

#pragma once

#include "frame/accessible.h"
#include "frame/alive.h"
#include "frame/qv_api.h"

#include <afxwin.h>

class QV_CONTROLS_API QVHeaderWnd : public CWnd, public QVAccessible {
    DECLARE_DYNCREATE(QVHeaderWnd)

public:
    QVHeaderWnd();
    ~QVHeaderWnd() override;

    // WS_BORDER in dwStyle makes a sunken frame instead of a border. With WS_TABSTOP this window
    // hands the focus on to the control inside. 0 on failure, also without memory or if Initialize,
    // which WM_CREATE calls, gives 0.
    BOOL Create(DWORD dwStyle, CRect& rect, CWnd* pParent, UINT nID);
    // Attaches to the item nID of pParent if there is no window yet; 0 if there is no such item.
    // Finds the font and sets the bar's height. Derived classes make their inner control here as
    // well, unless it has a window: an application may call this once more after Create. Where that
    // fails, or memory runs out, an item of a dialog that it attached to is let go of.
    virtual int Initialize(UINT nID, CWnd* pParent);

    // Height in pixels of the bar with the frame line under it. A new height neither repaints nor
    // moves the inner control.
    int HeaderHeight() const { return m_nHeaderHeight; }
    void SetHeaderHeight(int nHeight) { m_nHeaderHeight = nHeight; }
    // Without memory, and with a string that is not in the resources, the caption stays.
    void SetHeaderText(LPCSTR pszText);
    void SetHeaderText(UINT nStringID);

    // --- What a screen reader is told: a group, with the windows inside as parts

    // The caption.
    CString GetAccessibleName(long nPart) override;
    CString GetAccessibleShortcut(long nPart) override;
    long GetAccessibleRole(long nPart) override;
    long GetAccessibleState(long nPart) override;
    long GetAccessibleCount() override;
    HWND GetAccessibleWindow(long nPart) override;
    long AccessibleHitTest(CPoint pt) override;

protected:
    // Fits the bar to the font, or to the device context's own where no ancestor has one.
    virtual void CalcHeaderHeight();
    // Draws the bar, rect without the frame line, and that line. May change rect.
    virtual void DrawHeader(CDC& dc, CRect& rect);

    void CalcHeaderRect(CRect& rect);
    // Around the caption's text.
    void CalcHeaderTextRect(CRect& rect);
    // The body.
    void CalcBackgroundRect(CRect& rect);

    // --- What derived classes share

    // For Initialize of a derived class: what this class's one does, and then pfnMake, a member of
    // the derived class, which gives FALSE if there is no inner control afterwards.
    using MakeInner = BOOL (QVHeaderWnd::*)();
    int InitializeWith(UINT nID, CWnd* pParent, MakeInner pfnMake);
    // For pfnMake: lets the Tab key of a dialog reach an inner control that has WS_TABSTOP.
    void ShareTabStop(CWnd& wndInner);

    // For WM_SIZE: a restored window moves its inner control to the body.
    void SizeInnerWnd(UINT nType, CWnd& wndInner);
    // Whether a notification is the inner control's and goes on to this window's parent. -1 is no
    // id.
    static bool IsInnerId(UINT nInnerID, WPARAM wID);
    // The parent's answer. The parent may have destroyed this window, and its object, by then.
    LRESULT SendToParent(UINT nMessage, WPARAM wParam, LPARAM lParam);

    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override;
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnPaint();
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    int m_nHeaderHeight = 0;
    CString m_strHeaderText;
    HFONT m_hHeaderFont = nullptr;  // found, not owned
    BOOL m_bFillBody = TRUE;        // erasing also fills the body

private:
    using CWnd::Create;

    bool Attach(UINT nID, CWnd* pParent);
    bool Erase(CDC& dc);

    qv::AliveToken m_alive;
};
