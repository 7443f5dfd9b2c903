// Frames of each kind with what can lie in them: made and destroyed a thousand times, told anything
// in any order, and without memory.
#include "support/failing_heap.h"
#include "support/monkey.h"
#include "support/pump.h"
#include "support/system_handles.h"
#include "support/test_app.h"
#include "window/afx/bars_program.h"
#include "window/refusals.h"

#include <afxadv.h>
#include <afxcontrolbars.h>
#include <afxcview.h>
#include <afxpriv.h>

#include <algorithm>
#include <gtest/gtest.h>

/// What each kind has: Make, which gives the frame or null, and Play, which does the nth of the
/// things that only this kind can do, if there are so many.
namespace {

template <class Frame>
Frame* Show(Frame* pFrame, CCreateContext* pContext = nullptr) {
    if (!pFrame->Create(nullptr, "kind", WS_OVERLAPPEDWINDOW, CRect(60, 60, 460, 360), nullptr,
                        nullptr, 0, pContext)) {
        return nullptr;
    }
    pFrame->InitialUpdateFrame(nullptr, TRUE);
    return pFrame;
}

/// Panes in a pane, each of another class.
struct Panes {
    class Frame : public Mortal<CFrameWnd> {
    public:
        CSplitterWnd m_outer;
        CSplitterWnd m_inner;

    protected:
        BOOL OnCreateClient(LPCREATESTRUCT, CCreateContext*) override {
            const auto nInner = [&] { return static_cast<UINT>(m_outer.IdFromRowCol(0, 1)); };
            return m_outer.CreateStatic(this, 1, 2) &&
                   m_outer.CreateView(0, 0, RUNTIME_CLASS(PageView), CSize(100, 50), nullptr) &&
                   m_inner.CreateStatic(&m_outer, 2, 1, WS_CHILD | WS_VISIBLE, nInner()) &&
                   m_inner.CreateView(0, 0, RUNTIME_CLASS(CTreeView), CSize(10, 60), nullptr) &&
                   m_inner.CreateView(1, 0, RUNTIME_CLASS(PageView), CSize(10, 20), nullptr);
        }
    };
    static Frame* Make() { return Show(new Frame); }
    static void Play(Frame& frame, int nDeed, int n) {
        switch (nDeed) {
            case 0:
                frame.m_inner.SetRowInfo(n % 3, n * 5, n);
                return frame.m_inner.RecalcLayout();
            case 1:
                return frame.m_outer.SetActivePane(0, n % 2);
            case 2:
                return frame.m_outer.ActivateNext(n % 2);
            case 3:
                return frame.m_inner.DeleteView(n % 2, 0);
            case 4:
                frame.m_inner.CreateView(n % 2, 0, RUNTIME_CLASS(CListView), CSize(n, n), nullptr);
                return;
            case 5:
                return frame.m_outer.SetScrollStyle(n % 2 ? WS_VSCROLL | WS_HSCROLL : 0);
        }
    }
};

/// Bars that are docked and float, in a frame whose view splits.
struct Bars {
    class Frame : public PageFrame {
    public:
        CDialogBar m_dialog;
    };
    static Frame* Make() {
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(PageView);
        auto* pFrame = new Frame;
        if (Show(pFrame, &context) == nullptr) {
            return nullptr;
        }
        if (pFrame->m_dialog.Create(pFrame, IDD_BARS_DIALOG, CBRS_TOP | CBRS_TOOLTIPS, 0xE810)) {
            pFrame->m_dialog.EnableDocking(CBRS_ALIGN_ANY);
            pFrame->DockControlBar(&pFrame->m_dialog);
        }
        return pFrame;
    }
    /// Panes are whole rows and columns, and a bar that floats is in a frame of its own.
    static void Check(Frame& frame) {
        const CSplitterWnd& panes = frame.m_wndSplitter;
        for (int nPane = 0; nPane < panes.GetRowCount() * panes.GetColumnCount(); ++nPane) {
            EXPECT_NE(panes.GetPane(nPane / panes.GetColumnCount(), nPane % panes.GetColumnCount()),
                      nullptr);
        }
        for (const CControlBar* pBar : {static_cast<CControlBar*>(&frame.m_wndToolBar),
                                        static_cast<CControlBar*>(&frame.m_dialog)}) {
            EXPECT_TRUE(pBar->m_hWnd == nullptr || pBar->m_pDockBar == nullptr ||
                        pBar->GetParent() == pBar->m_pDockBar);
        }
    }
    static void Play(Frame& frame, int nDeed, int n) {
        CControlBar& bar = n % 3 ? static_cast<CControlBar&>(frame.m_wndToolBar) : frame.m_dialog;
        if (bar.m_hWnd == nullptr) {
            return;
        }
        switch (nDeed) {
            case 0:
                return frame.FloatControlBar(&bar, CPoint(n * 9, 100));
            case 1:
                return frame.DockControlBar(&bar, UINT(AFX_IDW_DOCKBAR_TOP + n % 4));
            case 2:
                return frame.ShowControlBar(&bar, n % 2, n % 5 == 0);
            case 3: {
                CDockState state;
                frame.GetDockState(state);
                frame.FloatControlBar(&bar, CPoint(n, n));
                return frame.SetDockState(state);
            }
            case 4:
                return void(bar.DestroyWindow());
            case 5:
                frame.m_wndSplitter.SplitRow(n * 4);
                return void(frame.m_wndSplitter.SplitColumn(n * 6));
            case 6:
                frame.m_wndSplitter.DeleteRow(n % 2);
                return frame.m_wndSplitter.DeleteColumn(n % 3);
            case 7:
                frame.m_wndStatusBar.SetPaneInfo(n % 4, UINT(n), n % 2 ? SBPS_STRETCH : 0, n);
                return void(frame.m_wndStatusBar.SetPaneText(n % 4, "text"));
            case 8:
                return bar.SetBarStyle(bar.GetBarStyle() ^
                                       (n % 2 ? CBRS_GRIPPER : CBRS_SIZE_DYNAMIC));
        }
    }
};

/// Bands with a toolbar and a dialog bar.
struct Bands {
    class Frame : public Mortal<CFrameWnd> {
    public:
        CReBar m_rebar;
        CToolBar m_tools;
        CDialogBar m_dialog;

    protected:
        BOOL OnCreateClient(LPCREATESTRUCT, CCreateContext*) override {
            return m_rebar.Create(this) && m_tools.CreateEx(this) &&
                   m_tools.LoadToolBar(IDR_BARS) &&
                   m_dialog.Create(this, IDD_BARS_DIALOG, CBRS_TOP, 0xE810) &&
                   m_rebar.AddBar(&m_tools, "Tools") && m_rebar.AddBar(&m_dialog);
        }
    };
    static Frame* Make() { return Show(new Frame); }
    static void Play(Frame& frame, int nDeed, int n) {
        CReBarCtrl& ctrl = frame.m_rebar.GetReBarCtrl();
        switch (nDeed) {
            case 0:
                return void(ctrl.DeleteBand(UINT(n % 3)));
            case 1:
                return void(frame.m_rebar.AddBar(&frame.m_dialog, "again"));
            case 2:
                return void(ctrl.ShowBand(UINT(n % 3), n % 2));
            case 3:
                return frame.ShowControlBar(&frame.m_rebar, n % 2, n % 3 == 0);
            case 4:
                return n % 4 ? void() : void(frame.m_tools.DestroyWindow());
        }
    }
};

/// Several children with a view each.
struct Children {
    using Child = Mortal<CMDIChildWnd>;
    using Frame = Mortal<CMDIFrameWnd>;
    static void Add(Frame& frame, int n) {
        CCreateContext context;
        context.m_pNewViewClass = n % 2 ? RUNTIME_CLASS(PageView) : RUNTIME_CLASS(CEditView);
        auto* pChild = new Child;
        if (pChild->Create(nullptr, "child",
                           WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                           CFrameWnd::rectDefault, &frame, &context)) {
            pChild->InitialUpdateFrame(nullptr, TRUE);
        }
    }
    static Frame* Make() {
        auto* pFrame = new Frame;
        if (Show(pFrame) == nullptr) {
            return nullptr;
        }
        Add(*pFrame, 0);
        Add(*pFrame, 1);
        return pFrame;
    }
    static void Play(Frame& frame, int nDeed, int n) {
        CMDIChildWnd* pActive = frame.MDIGetActive();
        switch (nDeed) {
            case 0:
                return Add(frame, n);
            case 1:
                return frame.MDINext();
            case 2:
                return frame.MDITile(n % 2 ? MDITILE_HORIZONTAL : MDITILE_VERTICAL);
            case 3:
                return frame.MDICascade();
        }
        if (pActive == nullptr) {
            return;
        }
        switch (nDeed) {
            case 4:
                return n % 2 ? pActive->MDIMaximize() : pActive->MDIRestore();
            case 5:
                return void(pActive->SendMessage(WM_CLOSE));
            case 6:
                return n % 2 ? pActive->MDIDestroy() : void(pActive->DestroyWindow());
            case 7:
                return void(pActive->ShowWindow(n % 2 ? SW_MINIMIZE : SW_HIDE));
        }
    }
};

/// A small frame with an edit, and the frame that owns it.
struct Palette {
    using Frame = Mortal<CFrameWnd>;
    static void Add(Frame& frame, int n) {
        auto* pMini = new Mortal<CMiniFrameWnd>;
        constexpr DWORD kStyle = WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_SYSMENU | MFS_SYNCACTIVE;
        if (pMini->CreateEx(0, nullptr, "mini", kStyle | (n % 2 ? MFS_THICKFRAME : 0),
                            CRect(100, 100, 250, 200), &frame)) {
            CCreateContext context;
            context.m_pNewViewClass = RUNTIME_CLASS(CEditView);
            pMini->CreateView(&context);
            pMini->RecalcLayout();
        }
    }
    static Frame* Make() {
        Frame* pFrame = Show(new Frame);
        if (pFrame != nullptr) {
            Add(*pFrame, 1);
        }
        return pFrame;
    }
    static void Play(Frame& frame, int nDeed, int n) {
        switch (nDeed) {
            case 0:
                return Add(frame, n);
            case 1:
                return frame.ShowOwnedWindows(n % 2);
            case 2:
                return n % 2 ? frame.BeginModalState() : frame.EndModalState();
            case 3:
                return frame.NotifyFloatingWindows(n % 2 ? FS_SHOW : FS_HIDE);
        }
    }
};

/// A frame with one view.
template <class View>
struct Only {
    using Frame = Mortal<CFrameWnd>;
    static Frame* Make() {
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(View);
        return Show(new Frame, &context);
    }
    static void Play(Frame& frame, int nDeed, int n) {
        CWnd* pPane = frame.GetDescendantWindow(AFX_IDW_PANE_FIRST, TRUE);
        if (auto* pView = DYNAMIC_DOWNCAST(View, pPane)) {
            pView->Play(nDeed, n);
        }
    }
};

class Scrolled : public PageView {
    DECLARE_DYNCREATE(Scrolled)
public:
    void Play(int nDeed, int n) {
        switch (nDeed) {
            case 0:
                return SetScrollSizes(n % 2 ? MM_TEXT : MM_LOENGLISH, CSize(n * 40, n * 90));
            case 1:
                return ScrollToPosition(CPoint(n * 10, n * 20));
            case 2:
                return SetScaleToFitSize(CSize(n, n * 3));
            case 3:
                return ResizeParentToFit(n % 2);
        }
    }
};
IMPLEMENT_DYNCREATE(Scrolled, PageView)

class Form : public Mortal<CFormView> {
    DECLARE_DYNCREATE(Form)
public:
    Form() : Mortal(IDD_BARS_FORM) {}
    void Play(int nDeed, int n) {
        switch (nDeed) {
            case 0:
                return void(UpdateData(n % 2));
            case 1:
                return void(EnableToolTips(n % 2));
        }
    }
};
IMPLEMENT_DYNCREATE(Form, CFormView)

class Text : public Mortal<CEditView> {
    DECLARE_DYNCREATE(Text)
public:
    void Play(int nDeed, int n) {
        CMemFile file;
        switch (nDeed) {
            case 0:
                return SetWindowText("one two one\r\ntwo");
            case 1:
                return void(FindText(n % 2 ? "one" : "two", n % 3, n % 5));
            case 2:
                return OnReplaceAll("one", "three", n % 2);
            case 3:
                return SetTabStops(n);
            case 4: {
                CArchive ar(&file, CArchive::store);
                return n % 2 ? SerializeRaw(ar) : Serialize(ar);
            }
            case 5:
                return OnReplaceSel("two", n % 2, n % 3, "four");
        }
    }
    void OnTextNotFound(LPCTSTR) override {}
};
IMPLEMENT_DYNCREATE(Text, CEditView)

class Rows : public Mortal<CListView> {
    DECLARE_DYNCREATE(Rows)
public:
    void Play(int nDeed, int n) {
        CListCtrl& ctrl = GetListCtrl();
        nDeed == 0   ? void(ctrl.InsertItem(n, "row"))
        : nDeed == 1 ? void(ctrl.DeleteItem(n % 5))
        : nDeed == 2 ? void(ctrl.InsertColumn(n % 3, "column", LVCFMT_LEFT, n))
                     : void();
    }
};
IMPLEMENT_DYNCREATE(Rows, CListView)

class Branches : public Mortal<CTreeView> {
    DECLARE_DYNCREATE(Branches)
public:
    void Play(int nDeed, int n) {
        CTreeCtrl& ctrl = GetTreeCtrl();
        nDeed == 0   ? void(ctrl.InsertItem("branch", ctrl.GetSelectedItem()))
        : nDeed == 1 ? void(ctrl.SelectItem(ctrl.GetRootItem()))
        : nDeed == 2 ? void(n % 4 ? 0 : ctrl.DeleteItem(ctrl.GetRootItem()))
                     : void();
    }
};
IMPLEMENT_DYNCREATE(Branches, CTreeView)

class Pages : public Mortal<CTabView> {
    DECLARE_DYNCREATE(Pages)
public:
    void OnInitialUpdate() override {
        Mortal::OnInitialUpdate();
        AddView(RUNTIME_CLASS(Text), "Text");
        AddView(RUNTIME_CLASS(Branches), "Tree");
    }
    void Play(int nDeed, int n) {
        nDeed == 0   ? void(AddView(n % 2 ? RUNTIME_CLASS(Rows) : RUNTIME_CLASS(Form), "page", n))
        : nDeed == 1 ? void(RemoveView(n % 4))
        : nDeed == 2 ? void(SetActiveView(n % 4))
        : nDeed == 3 ? void(GetActiveView() != nullptr && GetActiveView()->DestroyWindow())
                     : void();
    }
};
IMPLEMENT_DYNCREATE(Pages, CTabView)

// Windows of this thread that have objects

HWND s_windows[300];
size_t s_nWindows = 0;

BOOL CALLBACK Collect(HWND hWnd, LPARAM) {
    if (CWnd::FromHandlePermanent(hWnd) != nullptr && s_nWindows < std::size(s_windows)) {
        s_windows[s_nWindows++] = hWnd;
    }
    return TRUE;
}

BOOL CALLBACK CollectTree(HWND hWnd, LPARAM) {
    Collect(hWnd, 0);
    return ::EnumChildWindows(hWnd, Collect, 0), TRUE;
}

size_t CountWindows() {
    s_nWindows = 0;
    ::EnumThreadWindows(::GetCurrentThreadId(), CollectTree, 0);
    return s_nWindows;
}

void DestroyWindows() {
    while (CountWindows() > 0 && ::DestroyWindow(s_windows[0])) {
    }
}

/// One after the other.
HWND NextWindow() {
    static size_t s_nTurn = 0;
    return CountWindows() == 0 ? nullptr : s_windows[++s_nTurn % s_nWindows];
}

/// What each of them can be told. No press is without its release in the queue: controls wait for
/// that in loops of their own.
using Deed = void (*)(HWND hWnd, int n);
const Deed kDeeds[] = {
    [](HWND h, int n) {
        ::PostMessage(h, WM_LBUTTONUP, 0, 0);
        ::SendMessage(h, WM_LBUTTONDOWN, 0, MAKELPARAM(n * 7, n * 5));
    },
    [](HWND h, int n) { ::SendMessage(h, WM_MOUSEMOVE, 0, MAKELPARAM(n * 9, n * 6)); },
    [](HWND h, int n) { ::SendMessage(h, WM_LBUTTONUP, 0, MAKELPARAM(n * 9, n * 6)); },
    [](HWND h, int n) {
        ::PostMessage(h, WM_LBUTTONUP, 0, 0);
        ::SendMessage(h, WM_LBUTTONDBLCLK, 0, MAKELPARAM(n * 8, n * 6));
    },
    [](HWND h, int n) { ::SendMessage(h, n % 2 ? WM_VSCROLL : WM_HSCROLL, WPARAM(n % 9), 0); },
    [](HWND h, int n) {
        ::SendMessage(h, WM_MOUSEWHEEL, MAKEWPARAM(0, n % 2 ? WHEEL_DELTA : -30), 0);
    },
    [](HWND h, int n) {
        constexpr WPARAM kKeys[] = {VK_TAB, VK_RETURN, VK_ESCAPE, VK_LEFT, VK_DOWN, VK_END, 'A'};
        MSG msg = {};
        msg.hwnd = h;
        msg.message = n % 3 ? WM_KEYDOWN : WM_CHAR;
        msg.wParam = kKeys[static_cast<size_t>(n + 7) % std::size(kKeys)];
        if (!CWnd::WalkPreTranslateTree(nullptr, &msg)) {
            ::SendMessage(h, msg.message, msg.wParam, 0);
        }
    },
    [](HWND h, int n) {
        MSG msg = {};
        msg.hwnd = h;
        msg.message = WM_MOUSEMOVE;
        msg.pt = CPoint(70 + n * 5, 70 + n * 3);
        CWnd::WalkPreTranslateTree(nullptr, &msg);
    },
    [](HWND h, int n) { ::SetWindowPos(h, nullptr, n, n, n * 11, n * 8, SWP_NOZORDER); },
    [](HWND h, int n) { ::ShowWindow(h, n % 3 ? SW_SHOWNA : SW_HIDE); },
    [](HWND h, int) { ::SetFocus(h); },
    [](HWND h, int n) { n % 2 ? ::SendMessage(h, WM_CANCELMODE, 0, 0) : ::ReleaseCapture(); },
    [](HWND h, int n) { ::SendMessage(h, n % 2 ? WM_SYSCOLORCHANGE : WM_SETTINGCHANGE, 0, 0); },
    [](HWND h, int n) { ::SendMessage(h, n % 2 ? WM_IDLEUPDATECMDUI : WM_INITIALUPDATE, TRUE, 0); },
    [](HWND h, int n) {
        ::SendMessage(h, n % 2 ? WM_SETMESSAGESTRING : WM_POPMESSAGESTRING, ID_BARS_CHECK, 0);
    },
    [](HWND h, int n) {
        constexpr UINT kCommands[] = {ID_WINDOW_SPLIT,    ID_NEXT_PANE,        ID_VIEW_TOOLBAR,
                                      ID_VIEW_STATUS_BAR, ID_EDIT_CUT,         ID_EDIT_PASTE,
                                      ID_EDIT_UNDO,       ID_EDIT_SELECT_ALL,  ID_EDIT_REPEAT,
                                      ID_FILE_CLOSE,      ID_WINDOW_TILE_HORZ, ID_WINDOW_ARRANGE,
                                      ID_PREV_PANE,       ID_WINDOW_CASCADE};
        ::SendMessage(h, WM_COMMAND, kCommands[static_cast<size_t>(n + 7) % std::size(kCommands)],
                      0);
    },
    [](HWND h, int n) {
        ::RedrawWindow(h, nullptr, nullptr, n % 2 ? RDW_INVALIDATE : RDW_UPDATENOW);
    },
    [](HWND h, int n) { n == 1 ? ::DestroyWindow(h) : ::SendMessage(h, WM_NCPAINT, 1, 0); },
};
constexpr int kOwnDeeds = 9;

/// As at idle time: the next message makes its own.
void ForgetTemporaries() {
    CWnd::DeleteTempMap();
    CDC::DeleteTempMap();
    CGdiObject::DeleteTempMap();
    CMenu::DeleteTempMap();
}

/// The frame of a kind, if it is there.
template <class Kind>
class Living {
public:
    Living() : m_pFrame(Kind::Make()), m_hFrame(m_pFrame->GetSafeHwnd()) {}
    ~Living() {
        if (Frame() != nullptr) {
            m_pFrame->DestroyWindow();
        }
    }
    typename Kind::Frame* Frame() {
        return CWnd::FromHandlePermanent(m_hFrame) == m_pFrame ? m_pFrame : nullptr;
    }

private:
    typename Kind::Frame* m_pFrame;
    HWND m_hFrame;
};

template <class Kind>
class FrameKind : public testing::Test {
protected:
    void SetUp() override {
        TheTestApp().Forget();
        DestroyWindows();  // of other tests
    }
    void TearDown() override {
        PumpPending();
        EXPECT_EQ(CountWindows(), 0u);
        TheTestApp().Forget();
    }
};
using Kinds = testing::Types<Panes, Bars, Bands, Children, Palette, Only<Scrolled>, Only<Form>,
                             Only<Text>, Only<Rows>, Only<Branches>, Only<Pages>>;
TYPED_TEST_SUITE(FrameKind, Kinds);

TYPED_TEST(FrameKind, Monkey) {
    using Host = Living<TypeParam>;
    std::unique_ptr<Host> pHost;
    std::vector<std::function<void(int n)>> deeds;
    for (const Deed deed : kDeeds) {
        deeds.push_back([deed](int n) { deed(NextWindow(), n); });
    }
    for (int nDeed = 0; nDeed < kOwnDeeds; ++nDeed) {
        deeds.push_back([&pHost, nDeed](int n) {
            if (auto* pFrame = pHost->Frame()) {
                TypeParam::Play(*pFrame, nDeed, n);
            }
        });
    }
    const auto play = [&](int nMade) {
        PlayInAnyOrder(
            pHost, [&] { pHost.reset(), pHost.reset(new Host), PumpPending(); }, deeds, nMade);
        PumpPending();
    };
    const int nCycles = MonkeySteps() / 100;
    play(nCycles / 4);  // what the system keeps for later is there then
    const int nSlack = std::max(nCycles / 4, 10);
    const SystemHandles before = SystemHandles::Count();
    play(nCycles);
    const SystemHandles after = SystemHandles::Count();
    EXPECT_LT(after.nDrawing, before.nDrawing + nSlack);
    EXPECT_LT(after.nMenus, before.nMenus + nSlack);
    EXPECT_LT(after.nWindows, before.nWindows + nSlack);
}

TYPED_TEST(FrameKind, IsMadeWholeOrNotAtAll_Memory) {
    typename TypeParam::Frame* pFrame = nullptr;
    Outcome outcome = Outcome::kDone;
    const LONG nOwned = AfxGetOwnedHandleCount();
    RefuseEachAllocation(
        FailingHeap::kJustOne,
        [&] {
            pFrame = nullptr;
            outcome = Try([&] { pFrame = TypeParam::Make(); });
        },
        [&](int nSucceeding) {
            SCOPED_TRACE(nSucceeding);
            EXPECT_NE(outcome, Outcome::kOther);
            EXPECT_TRUE(pFrame != nullptr || outcome != Outcome::kDone || CountWindows() == 0);
            DestroyWindows();
            PumpPending();
        });
    EXPECT_EQ(AfxGetOwnedHandleCount(), nOwned);
}

TYPED_TEST(FrameKind, OutlivesTheWantOfMemory) {
    std::unique_ptr<Living<TypeParam>> pHost;
    const auto stands = [&] { return pHost != nullptr && pHost->Frame() != nullptr; };
    int nRefused = 0;
    const auto refuse = [&](size_t nDeed, const std::function<void()>& operation) {
        SCOPED_TRACE(nDeed);
        for (const FailingHeap::Mode mode : {FailingHeap::kAllLater, FailingHeap::kJustOne}) {
            Outcome outcome = Outcome::kDone;
            nRefused += RefuseEachAllocation(
                mode, [&] { outcome = Try([&] { operation(); }); },
                [&](int) {
                    EXPECT_NE(outcome, Outcome::kOther);
                    if (!stands()) {
                        pHost = std::make_unique<Living<TypeParam>>();
                    }
                    PumpPending();
                    ForgetTemporaries();
                    if constexpr (requires { TypeParam::Check(*pHost->Frame()); }) {
                        stands() ? TypeParam::Check(*pHost->Frame()) : void();
                    }
                });
        }
    };
    pHost = std::make_unique<Living<TypeParam>>();
    for (const int n : {4, 11}) {
        for (size_t nDeed = 0; nDeed < std::size(kDeeds); ++nDeed) {
            for (size_t nWindow = 0; nWindow < CountWindows(); ++nWindow) {
                refuse(nDeed, [&] { kDeeds[nDeed](s_windows[nWindow % CountWindows()], n); });
            }
        }
        for (int nDeed = 0; nDeed < kOwnDeeds; ++nDeed) {
            refuse(100u + static_cast<size_t>(nDeed),
                   [&] { stands() ? TypeParam::Play(*pHost->Frame(), nDeed, n) : void(); });
        }
    }
    EXPECT_GT(nRefused, 0);
}

}  // namespace
