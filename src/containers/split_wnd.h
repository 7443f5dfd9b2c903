// QVSplitWnd: a bar that the user drags between two panes, side by side or one above the other. The
// panes are no children of it but its siblings, laid over its area, so that any control of a dialog
// may be one. What shows of the split window is the bar, and the area of a pane that is not there;
// clicks beside the bar go to what lies behind. It keeps itself below its panes in the order of
// windows. A split window may be a pane of another one, never of itself.
//
// Create it, or Initialize it for an item of a dialog; then AddPane for both panes. It moves its
// panes whenever it is moved or sized; it does not follow the size of its parent. A drag ends, and
// the bar goes back, where the window is moved, sized or hidden meanwhile, a pane is added or
// swapped, or another window takes the capture or comes to the front.
//
// With EnableExpectedKeys the bar takes the focus from the Tab key, shows it, and moves by the
// arrows: 10 pixels, with Ctrl one; Home and End take it as far as a drag can.
//
// Ownership: the windows of both panes are destroyed with this window, and their objects deleted
// with this object unless SetAutoDeletePanes(FALSE) is called: for panes that are members, and for
// those that delete themselves. As long as this window is there, a pane whose window somebody else
// destroys, or whose object they delete, leaves its slot, and its object is not touched any more. A
// temporary object, as GetDlgItem gives, stands for its window and is never deleted.
// Coordinates are client pixels of this window where nothing else is said, positions along the way
// that the bar moves.

#pragma once

#include "frame/accessible.h"
#include "frame/alive.h"
#include "frame/expected_keys.h"
#include "frame/qv_api.h"

#include <afxwin.h>

namespace qv {
class SplitBar;
struct SplitLayout;
}  // namespace qv

class QV_CONTROLS_API QVSplitWnd : public CWnd, public QVExpectedKeys, public QVAccessible {
    DECLARE_DYNCREATE(QVSplitWnd)

public:
    QVSplitWnd();
    ~QVSplitWnd() override;

    // A visible child window and tab stop at rect, client pixels of pParent. 0 on failure, also
    // without memory or if Initialize, which WM_CREATE calls, gives 0.
    int Create(CRect& rect, CWnd* pParent, unsigned nID, int bVertical);
    // Attaches to the item nID of pParent if there is no window yet; 0 if there is no such item. A
    // vertical bar stands between panes side by side. 0 also if the framework's cursor for the bar
    // is not to be had; an item that was attached to is let go of then.
    virtual int Initialize(unsigned nID, CWnd* pParent, int bVertical);

    // Both fill the first free slot and give 0 if there is none. A pane gets a sunken edge unless
    // it is a split window. Makes an object and a visible window beside this one; 0, and nothing
    // made, on failure.
    int AddPane(CRuntimeClass* pClass, unsigned nID);
    // Moves the window there. 0 also for null, this window, and one that it is a pane of. A pane
    // that has no window yet gets its place with the next size of this one.
    int AddPane(CWnd* pWnd);
    // 0: left or top. 1: right or bottom. Null for any other, and for an empty slot.
    CWnd* GetPane(int nPane);
    // Puts pWnd, which may be null, in the place of a pane, and shows it. The old pane is hidden,
    // unless it is in the other slot or the same, and is the caller's again. Any nPane but 0 is 1.
    // Nothing happens where pWnd is this window, or has it as a pane.
    void SwapPane(int nPane, CWnd* pWnd);

    // The share of pane 0 in percent, for the next size or Initialize. -1 keeps the bar at its
    // pixel at the next size, which sets the ratio to what that comes to.
    void SetSplitRatio(int nPercent) { m_nSplitRatio = nPercent; }
    void SetAutoDeletePanes(int bAutoDelete) { m_bAutoDeletePanes = bAutoDelete; }

    // --- What a screen reader is told: the bar, with child windows as parts if it has any

    // The window text; the text before it is some pane's.
    CString GetAccessibleName(long nPart) override;
    CString GetAccessibleShortcut(long nPart) override;
    // The share of pane 0, in percent.
    CString GetAccessibleValue(long nPart) override;
    long GetAccessibleRole(long nPart) override;
    long GetAccessibleState(long nPart) override;
    BOOL GetAccessibleRect(long nPart, CRect& rect) override;
    long GetAccessibleCount() override;
    HWND GetAccessibleWindow(long nPart) override;
    long AccessibleHitTest(CPoint pt) override;
    long GetAccessibleFocus() override;
    // 0 to 100: moves the bar as far towards it as a drag can.
    BOOL SetAccessibleValue(long nPart, const CString& strValue) override;

protected:
    // The thickness of the bar, which is that of the system's sizing frames. An odd one makes a bar
    // that is thinner by a pixel.
    int SplitterWidth();
    // In client pixels of the parent, unless m_bClientPanes. A bar outside of the window gives a
    // negative size.
    void CalcPaneRect(int nPane, CRect& rect);
    // The bar at a position; -1 is m_nSplitPos.
    void CalcSplitRect(CRect& rect, int nPos);
    // Inverts every other pixel of the bar at a position, also over the panes: a second time
    // erases.
    void DrawSplitTracker(int nPos);
    // Moves both panes to their places.
    void RepositionPanes();

    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override;
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnWindowPosChanging(WINDOWPOS* lpwndpos);
    afx_msg void OnWindowPosChanged(WINDOWPOS* lpwndpos);
    afx_msg void OnPaint();
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT nMessage);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnCancelMode();
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    int m_bVertical = TRUE;
    CWnd* m_pPane0 = nullptr;
    CWnd* m_pPane1 = nullptr;
    int m_nSplitPos = 0;  // the bar's centre
    HCURSOR m_hSplitCursor = nullptr;
    HCURSOR m_hArrowCursor = nullptr;
    int m_bTracking = FALSE;     // the bar is being dragged
    int m_bOverBar = FALSE;      // the mouse was there when it was last seen
    int m_bClientPanes = FALSE;  // for a derived class whose panes are children
    int m_nTrackStart = 0;       // where the bar was before the drag
    int m_nSplitRatio = 50;      // percent
    int m_bAutoDeletePanes = TRUE;

private:
    using CWnd::Create;

    qv::SplitLayout Layout();
    qv::SplitBar Bar();
    CWnd*& Slot(int nPane) { return nPane == 0 ? m_pPane0 : m_pPane1; }
    CWnd* LivePane(int nPane);
    bool IsPane(HWND hWnd);
    int FreeSlot();
    bool Holds(const QVSplitWnd& wnd);
    bool MayHold(CWnd* pWnd);
    void Fill(int nPane, CWnd* pWnd, HWND hWnd);
    void MovePane(int nPane, UINT nFlags);
    void KeepBelowPanes();
    void EndDrag();
    bool InFront();
    void EndDragBehind();
    bool LoadHalftone();
    void DrawTrackerAt(int nPos);
    void InvertTracker(CDC& dc, const CRect& rect);
    void MoveBar(int nPos);
    void LeaveBar();
    void ShowFocus();

    // What is known of a slot's pane without touching it.
    struct Known {
        CWnd* pWnd = nullptr;
        HWND hWnd = nullptr;  // null: it had none yet, or has none any more
        bool bOurs = true;    // to be deleted, if any is
    };
    Known m_known[2];
    HBRUSH m_hHalftone = nullptr;
    int m_bOrdering = FALSE;
    int m_bPressedInFront = FALSE;
    qv::AliveToken m_alive;
};
