// A program for one document as a wizard would write it: toolbar, status bar, a splitter with
// scrolling views, everything that can be docked.
#pragma once

#include "support/mortal.h"
#include "support/test_app.h"
#include "window/afx/bars_test_ids.h"

#include <afxcmn.h>
#include <afxext.h>

class PageDoc : public CDocument {
    DECLARE_DYNCREATE(PageDoc)
};

class PageView : public Mortal<CScrollView> {
    DECLARE_DYNCREATE(PageView)
public:
    static constexpr COLORREF kInk = RGB(0, 128, 255);
    static inline CSize s_size{400, 900};
    using CScrollView::m_bCenter;

protected:
    void OnInitialUpdate() override {
        CScrollView::OnInitialUpdate();
        SetScrollSizes(MM_TEXT, s_size, CSize(0, 100), CSize(0, 10));
    }
    void OnDraw(CDC* pDC) override {
        // A mark every hundred pixels, as wide as its distance from the top.
        for (int y = 0; y < s_size.cy; y += 100) {
            pDC->FillSolidRect(0, y, 10 + y / 10, 10, kInk);
        }
    }
};

class PageFrame : public Mortal<CFrameWnd> {
    DECLARE_DYNCREATE(PageFrame)
public:
    CToolBar m_wndToolBar;
    CStatusBar m_wndStatusBar;
    CSplitterWnd m_wndSplitter;
    int m_nNew = 0;
    int m_nCheck = 0;
    bool m_bDies = false;
    UINT m_nSized = 0;  ///< the side that the user took hold of; nothing is sized

protected:
    BOOL OnCreateClient(LPCREATESTRUCT, CCreateContext* pContext) override {
        return m_wndSplitter.Create(this, 2, 2, CSize(10, 10), pContext);
    }
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct) {
        static const UINT indicators[] = {ID_SEPARATOR, ID_INDICATOR_CAPS, ID_INDICATOR_NUM};
        if (CFrameWnd::OnCreate(lpCreateStruct) == -1) {
            return -1;
        }
        if (!m_wndToolBar.CreateEx(this, TBSTYLE_FLAT,
                                   WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_GRIPPER | CBRS_TOOLTIPS |
                                       CBRS_FLYBY | CBRS_SIZE_DYNAMIC) ||
            !m_wndToolBar.LoadToolBar(IDR_BARS) || !m_wndStatusBar.Create(this) ||
            !m_wndStatusBar.SetIndicators(indicators, 3)) {
            return -1;
        }
        m_wndToolBar.EnableDocking(CBRS_ALIGN_ANY);
        EnableDocking(CBRS_ALIGN_ANY);
        DockControlBar(&m_wndToolBar);
        return 0;
    }
    afx_msg void OnFileNew() {
        ++m_nNew;
        if (m_bDies) {
            DestroyWindow();
        }
    }
    afx_msg void OnCheck() { m_nCheck = (m_nCheck + 1) % 3; }
    afx_msg void OnUpdateCheck(CCmdUI* pCmdUI) {
        pCmdUI->SetCheck(m_nCheck);
        if (m_bDies) {
            DestroyWindow();
        }
    }
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam) {
        if ((nID & 0xFFF0) == SC_SIZE) {
            m_nSized = nID & 0xF;
        } else {
            CFrameWnd::OnSysCommand(nID, lParam);
        }
    }
    DECLARE_MESSAGE_MAP()
};

/// Opens the program's frame, and closes it behind the test.
class BarsProgram {
public:
    BarsProgram();
    ~BarsProgram();
    PageFrame* Frame() { return static_cast<PageFrame*>(CWnd::FromHandlePermanent(m_hFrame)); }
    PageView* View() { return static_cast<PageView*>(Frame()->GetActiveView()); }
    void Idle();

private:
    HWND m_hFrame = nullptr;
    CDocManager m_manager;
};
