// A program for several documents, as programs are generated: main frame, children, their menus,
// titles and commands, and whoever takes something away on the way.
#include "support/mortal.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "support/temp_file.h"
#include "support/test_app.h"
#include "window/afx/mdi_test_ids.h"
#include "window/refusals.h"

#include <afxext.h>
#include <afxpriv.h>

#include <dde.h>
#include <gtest/gtest.h>

namespace {

std::string s_log;
int s_nLiving = 0;  // documents, views and children
std::function<void(const std::string& strStep)> s_told;

void Tell(const std::string& strStep) {
    s_log += (s_log.empty() ? "" : " ") + strStep;
    const auto told = s_told;
    told ? told(strStep) : void();
}

#define TELLS_COMMANDS(strWho)         \
    afx_msg BOOL OnTestCommand(UINT) { \
        return Tell(strWho), FALSE;    \
    }                                  \
    DECLARE_MESSAGE_MAP()
#define MAP_COMMANDS(Class, Base)                            \
    BEGIN_MESSAGE_MAP(Class, Base)                           \
        ON_COMMAND_EX(ID_MDI_COMMAND, &Class::OnTestCommand) \
    END_MESSAGE_MAP()

class Note : public Mortal<CDocument> {
    DECLARE_DYNCREATE(Note)
public:
    Note() { ++s_nLiving; }
    ~Note() override { --s_nLiving; }
    BOOL OnNewDocument() override { return CDocument::OnNewDocument() && (Tell("new"), TRUE); }

protected:
    TELLS_COMMANDS("doc")
};
IMPLEMENT_DYNCREATE(Note, CDocument)
MAP_COMMANDS(Note, CDocument)

class NoteView : public Mortal<CView> {
    DECLARE_DYNCREATE(NoteView)
public:
    NoteView() { ++s_nLiving; }
    ~NoteView() override { --s_nLiving; }

protected:
    void OnDraw(CDC*) override {}
    void OnActivateView(BOOL bActivate, CView* pNew, CView* pOld) override {
        CView::OnActivateView(bActivate, pNew, pOld);
        Tell(bActivate ? "+view" : "-view");
    }
    BOOL OnPreparePrinting(CPrintInfo* pInfo) override { return DoPreparePrinting(pInfo); }
    afx_msg BOOL OnTestCommand(UINT) { return Tell("view"), FALSE; }
    DECLARE_MESSAGE_MAP()
};
IMPLEMENT_DYNCREATE(NoteView, CView)
BEGIN_MESSAGE_MAP(NoteView, CView)
    ON_COMMAND_EX(ID_MDI_COMMAND, &NoteView::OnTestCommand)
    ON_COMMAND(ID_FILE_PRINT_PREVIEW, &CView::OnFilePrintPreview)
END_MESSAGE_MAP()

class ChildFrame : public Mortal<CMDIChildWnd> {
    DECLARE_DYNCREATE(ChildFrame)
public:
    ChildFrame() { ++s_nLiving; }
    ~ChildFrame() override { --s_nLiving; }

protected:
    TELLS_COMMANDS("child")
};
IMPLEMENT_DYNCREATE(ChildFrame, CMDIChildWnd)
MAP_COMMANDS(ChildFrame, CMDIChildWnd)

class MainFrame : public Mortal<CMDIFrameWnd> {
public:
    CStatusBar m_wndStatusBar;

protected:
    int OnCreate(LPCREATESTRUCT lpCreateStruct) {
        const UINT indicators[] = {ID_SEPARATOR, ID_INDICATOR_CAPS};
        return CMDIFrameWnd::OnCreate(lpCreateStruct) == -1 || !m_wndStatusBar.Create(this) ||
                       !m_wndStatusBar.SetIndicators(indicators, 2)
                   ? -1
                   : 0;
    }
    afx_msg BOOL OnTestCommand(UINT) { return Tell("main"), FALSE; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(MainFrame, CMDIFrameWnd)
    ON_WM_CREATE()
    ON_COMMAND_EX(ID_MDI_COMMAND, &MainFrame::OnTestCommand)
END_MESSAGE_MAP()

CString TextOf(const CWnd* pWnd) {
    CString str;
    return pWnd->GetWindowText(str), str;
}

class ManyDocuments : public testing::Test {
protected:
    void SetUp() override {
        TheTestApp().Forget();
        m_pTemplate = new CMultiDocTemplate(IDR_MDI_NOTE, RUNTIME_CLASS(Note),
                                            RUNTIME_CLASS(ChildFrame), RUNTIME_CLASS(NoteView));
        TheTestApp().AddDocTemplate(m_pTemplate);
        m_pMain = new MainFrame;
        ASSERT_TRUE(m_pMain->LoadFrame(IDR_MDI_MAIN));
        m_hMain = m_pMain->m_hWnd;
        TheTestApp().m_pMainWnd = m_pMain;
        m_pMain->ShowWindow(SW_SHOW);
        s_log.clear();
    }
    void TearDown() override {
        s_told = nullptr;
        TheTestApp().m_nAnswer = IDNO;
        ::SendMessage(m_hMain, WM_CLOSE, 0, 0);
        EXPECT_FALSE(::IsWindow(m_hMain));
        EXPECT_EQ(s_nLiving, 0) << "each is deleted once";
        MSG msg;
        ::PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
        delete std::exchange(TheTestApp().m_pDocManager, nullptr);
        TheTestApp().m_nAnswer = IDOK;
    }
    Note* New() { return static_cast<Note*>(m_pTemplate->OpenDocumentFile(nullptr)); }
    ChildFrame* Active() { return static_cast<ChildFrame*>(m_pMain->MDIGetActive()); }
    void Command(UINT nID) { ::SendMessage(m_hMain, WM_COMMAND, nID, 0); }
    CString Title() { return TextOf(m_pMain); }

    CMultiDocTemplate* m_pTemplate = nullptr;
    MainFrame* m_pMain = nullptr;
    HWND m_hMain = nullptr;
};

TEST_F(ManyDocuments, ShowTheirMenuAndNameInTheMainFrame) {
    const HMENU hMain = ::GetMenu(m_hMain);
    EXPECT_STREQ(Title(), "Program");
    Note* pFirst = New();
    EXPECT_EQ(::GetMenu(m_hMain), m_pTemplate->m_hMenuShared);
    EXPECT_STREQ(Title(), "Program - Note1");
    New();
    EXPECT_STREQ(Title(), "Program - Note2");
    const HMENU hWindows = m_pMain->GetWindowMenuPopup(::GetMenu(m_hMain));
    EXPECT_EQ(::GetMenuItemCount(hWindows), 3 + 3) << "a line and both documents";

    pFirst->SetTitle("First");
    Command(AFX_IDM_FIRST_MDICHILD);  // as the list in the menu does
    EXPECT_STREQ(Title(), "Program - First");
    Active()->MDIMaximize();
    EXPECT_STREQ(Title(), "Program - [First]");
    New();
    EXPECT_STREQ(Title(), "Program - [Note3]") << "shown as the others are";
    Active()->MDIRestore();
    EXPECT_STREQ(Title(), "Program - Note3");
    Command(ID_FILE_CLOSE);
    Command(ID_FILE_CLOSE);
    EXPECT_EQ(TheTestApp().GetOpenDocumentCount(), 1);
    Command(ID_FILE_CLOSE);
    EXPECT_EQ(::GetMenu(m_hMain), hMain);
    EXPECT_STREQ(Title(), "Program");
    EXPECT_TRUE(::IsMenu(m_pTemplate->m_hMenuShared));
}

TEST_F(ManyDocuments, HaveSeveralFramesOfOneDocument) {
    Note* pDoc = New();
    Command(ID_WINDOW_NEW);
    ChildFrame* pSecond = Active();
    EXPECT_STREQ(TextOf(pSecond), "Note1:2");
    EXPECT_STREQ(Title(), "Program - Note1:2");
    pDoc->SetModifiedFlag();
    pSecond->SendMessage(WM_CLOSE);
    EXPECT_TRUE(TheTestApp().m_prompts.empty()) << "another frame is left";
    EXPECT_STREQ(TextOf(Active()), "Note1");
    TheTestApp().m_nAnswer = IDCANCEL;
    Active()->SendMessage(WM_CLOSE);
    EXPECT_EQ(TheTestApp().m_prompts.size(), 1u);
    New()->SetModifiedFlag();
    m_pMain->SendMessage(WM_CLOSE);
    EXPECT_EQ(TheTestApp().m_prompts.size(), 2u) << "the first one that wants to stay";
    EXPECT_EQ(TheTestApp().GetOpenDocumentCount(), 2);
}

TEST_F(ManyDocuments, AreArrangedAndReachedByKeys) {
    class Probe : public CCmdUI {
    public:
        BOOL m_bOn = TRUE;
        void Enable(BOOL bOn) override { m_bOn = bOn, m_bEnableChanged = TRUE; }
    } arrange;
    arrange.m_nID = ID_WINDOW_TILE_HORZ;
    arrange.DoUpdate(m_pMain, TRUE);
    EXPECT_FALSE(arrange.m_bOn) << "nothing to arrange";
    New();
    ChildFrame* const pFirst = Active();
    New();
    ChildFrame* const pSecond = Active();
    Command(ID_WINDOW_TILE_HORZ);
    CRect rcFirst, rcSecond, rcClient;
    pFirst->GetWindowRect(rcFirst), pSecond->GetWindowRect(rcSecond);
    ::GetWindowRect(m_pMain->m_hWndMDIClient, rcClient);
    EXPECT_EQ(rcFirst.Width(), rcSecond.Width());
    EXPECT_TRUE((rcFirst & rcSecond).IsRectEmpty());
    EXPECT_GT(rcFirst.Width(), rcClient.Width() * 9 / 10);
    CRect rcBar;
    m_pMain->m_wndStatusBar.GetWindowRect(rcBar);
    EXPECT_TRUE((rcClient & rcBar).IsRectEmpty());

    ASSERT_TRUE(BringToFront(m_hMain));
    EXPECT_EQ(CWnd::GetFocus(), pSecond->GetActiveView());
    s_log.clear();
    ASSERT_TRUE(TypeKey(VK_F6, false, true));
    EXPECT_EQ(Active(), pFirst);
    EXPECT_EQ(s_log.substr(0, 11), "-view +view");
    EXPECT_EQ(CWnd::GetFocus(), pFirst->GetActiveView());
    s_log.clear();
    ASSERT_TRUE(TypeKey('D', false, true));
    EXPECT_EQ(s_log, "view doc child main");
    ASSERT_TRUE(TypeKey(VK_F4, false, true));
    EXPECT_EQ(Active(), pSecond);
}

int s_nChoice = 0;  // the line in the dialog; -1 gives it up

void CALLBACK Choose(HWND hWnd, UINT, UINT_PTR nTimer, DWORD) {
    ::KillTimer(hWnd, nTimer);
    const HWND hDialog = ::GetLastActivePopup(hWnd);
    const HWND hList = ::GetDlgItem(hDialog, AFX_IDC_LISTBOX);
    EXPECT_EQ(::SendMessage(hList, LB_GETCOUNT, 0, 0), 2);
    ::SendMessage(hList, LB_SETCURSEL, s_nChoice, 0);
    ::SendMessage(hDialog, WM_COMMAND,
                  s_nChoice < 0 ? IDCANCEL : MAKEWPARAM(AFX_IDC_LISTBOX, LBN_DBLCLK),
                  reinterpret_cast<LPARAM>(hList));
}

TEST_F(ManyDocuments, OfSeveralKindsAreAskedFor) {
    TheTestApp().AddDocTemplate(new CMultiDocTemplate(
        IDR_MDI_PLAN, RUNTIME_CLASS(Note), RUNTIME_CLASS(ChildFrame), RUNTIME_CLASS(NoteView)));
    for (const auto& [nChoice, pszTitle] :
         {std::pair(-1, "Program"), {1, "Program - Plan1"}, {0, "Program - Note1"}}) {
        s_nChoice = nChoice;
        ::SetTimer(m_hMain, 1, 1, Choose);
        TheTestApp().OnFileNew();
        EXPECT_STREQ(Title(), pszTitle);
    }
}

TEST_F(ManyDocuments, AreOpenedByMessagesOfTheShell) {
    class ShellApp : public TestApp {
    public:
        using CWinApp::EnableShellOpen;
    };
    auto& app = static_cast<ShellApp&>(TheTestApp());
    app.EnableShellOpen();
    const TempFile file;
    const CWnd client(
        ::CreateWindow("STATIC", "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr));
    for (const CString& strCommand :
         {CString("[open(\"") + file.Path() + "\")]", CString("[open("), CString("open \"a\"")}) {
        const HGLOBAL h = ::GlobalAlloc(GHND | GMEM_DDESHARE, strCommand.GetLength() + 1u);
        lstrcpy(static_cast<LPSTR>(::GlobalLock(h)), strCommand);
        ::GlobalUnlock(h);
        m_pMain->SendMessage(WM_DDE_EXECUTE, reinterpret_cast<WPARAM>(client.m_hWnd),
                             ::PackDDElParam(WM_DDE_EXECUTE, 0, reinterpret_cast<UINT_PTR>(h)));
        MSG answer = {};
        EXPECT_TRUE(::PeekMessage(&answer, client.m_hWnd, WM_DDE_ACK, WM_DDE_ACK, PM_REMOVE));
        EXPECT_EQ(reinterpret_cast<HWND>(answer.wParam), m_hMain);
        ::FreeDDElParam(WM_DDE_ACK, answer.lParam);
        ::GlobalFree(h);
    }
    EXPECT_EQ(app.GetOpenDocumentCount(), 1);
    EXPECT_EQ(Active()->GetActiveDocument()->GetTitle().Right(4).MakeLower(), ".tmp");
    ::DestroyWindow(client.m_hWnd);
}

TEST_F(ManyDocuments, ArePreviewedInTheirFrame) {
    New();
    ChildFrame* const pChild = Active();
    CView* const pView = pChild->GetActiveView();
    Command(ID_FILE_PRINT_PREVIEW);
    EXPECT_TRUE(pChild->GetActiveView()->IsKindOf(RUNTIME_CLASS(CPreviewView)));
    EXPECT_FALSE(pView->IsWindowVisible());
    Command(AFX_ID_PREVIEW_CLOSE);
    EXPECT_EQ(pChild->GetActiveView(), pView);
    EXPECT_TRUE(pView->IsWindowVisible());
    EXPECT_EQ(::GetMenu(m_hMain), m_pTemplate->m_hMenuShared);
}

TEST_F(ManyDocuments, ThatCannotBeMadeLeaveNothing) {
    const int nRefused = RefuseEachAllocation(
        FailingHeap::kJustOne, [&] { Try([&] { New(); }); },
        [&](int) {
            TheTestApp().CloseAllDocuments(FALSE);
            EXPECT_EQ(s_nLiving, 0);
        });
    EXPECT_GT(nRefused, 5);
}

// A child, a document or the main frame that goes in the midst of a step.
TEST_F(ManyDocuments, MayGoInAnyStep) {
    for (const char* pszStep : {"new", "+view", "-view", "view", "doc", "child", "main"}) {
        for (const int nDeed : {0, 1, 2}) {
            SCOPED_TRACE(std::string(pszStep) + std::to_string(nDeed));
            New(), New();
            s_told = [&](const std::string& str) {
                if (str != pszStep || Active() == nullptr) {
                    return;
                }
                s_told = nullptr;
                CDocument* pDoc = Active()->GetActiveDocument();
                nDeed == 0           ? (void)Active()->DestroyWindow()
                : nDeed == 1 && pDoc ? pDoc->OnCloseDocument()
                                     : (void)m_pMain->DestroyWindow();
            };
            New();
            ::IsWindow(m_hMain) ? m_pMain->MDINext() : void();
            Command(ID_MDI_COMMAND);
            EXPECT_FALSE(s_told) << "the step came";
            ::SendMessage(m_hMain, WM_CLOSE, 0, 0);
            ASSERT_EQ(s_nLiving, 0);
            m_pMain = new MainFrame;
            ASSERT_TRUE(m_pMain->LoadFrame(IDR_MDI_MAIN));
            m_hMain = m_pMain->m_hWnd, TheTestApp().m_pMainWnd = m_pMain;
        }
    }
}

}  // namespace
