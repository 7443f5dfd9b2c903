// Documents with their views and frames: order of calls, routing, closing, and whoever takes
// something away on the way.
#include "support/mortal.h"
#include "support/temp_file.h"
#include "support/test_app.h"
#include "window/afx/document_test_ids.h"
#include "window/refusals.h"

#include <afxpriv.h>

#include <gtest/gtest.h>

namespace {

std::string s_log;
int s_nLiving = 0;  // documents, views and frames
bool s_bFails = false;
std::function<void(const std::string& strStep)> s_told;

BOOL Tell(const std::string& strStep) {
    s_log += (s_log.empty() ? "" : " ") + strStep;
    const auto told = s_told;
    told ? told(strStep) : void();
    return !s_bFails;
}

// Whoever handles a command says so and lets it go on.
#define TELLS_COMMANDS(cWho)            \
    afx_msg BOOL OnSheetCommand(UINT) { \
        return Tell(cWho), FALSE;       \
    }                                   \
    DECLARE_MESSAGE_MAP()
#define MAP_COMMANDS(Class, Base)                               \
    BEGIN_MESSAGE_MAP(Class, Base)                              \
        ON_COMMAND_EX(ID_SHEET_COMMAND, &Class::OnSheetCommand) \
    END_MESSAGE_MAP()

class Sheet : public Mortal<CDocument> {
    DECLARE_DYNCREATE(Sheet)
public:
    Sheet() { ++s_nLiving; }
    ~Sheet() override { --s_nLiving, Tell("~doc"); }
    BOOL OnNewDocument() override { return CDocument::OnNewDocument() && Tell("new"); }
    BOOL OnOpenDocument(LPCTSTR psz) override {
        s_told ? s_told("opening") : void();
        return !s_bFails && CDocument::OnOpenDocument(psz) && Tell("open");
    }
    BOOL OnSaveDocument(LPCTSTR) override { return SetModifiedFlag(FALSE), Tell("save"); }
    void OnCloseDocument() override { Tell("close"), CDocument::OnCloseDocument(); }

protected:
    TELLS_COMMANDS("d")
};
IMPLEMENT_DYNCREATE(Sheet, CDocument)
MAP_COMMANDS(Sheet, CDocument)

class SheetView : public Mortal<CView> {
    DECLARE_DYNCREATE(SheetView)
public:
    SheetView() { ++s_nLiving; }
    ~SheetView() override { --s_nLiving; }
    std::string m_strName;
    void OnActivateView(BOOL bActivate, CView* pNew, CView* pOld) override {
        const std::string strStep = (bActivate ? "+" : "-") + m_strName;
        CView::OnActivateView(bActivate, pNew, pOld);
        Tell(strStep + (pNew == pOld ? "=" : ""));
    }

protected:
    void OnInitialUpdate() override { CView::OnInitialUpdate(), Tell("initial"); }
    void OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint) override {
        const std::string strStep = "update" + m_strName + (pSender ? "*" : "");
        CView::OnUpdate(pSender, lHint, pHint);
        Tell(strStep + std::to_string(lHint) + (pHint ? "!" : ""));
    }
    void OnActivateFrame(UINT nState, CFrameWnd*) override {
        Tell("frame" + std::to_string(nState));
    }
    void OnDraw(CDC*) override { Tell("draw"); }
    TELLS_COMMANDS("v")
};
IMPLEMENT_DYNCREATE(SheetView, CView)
MAP_COMMANDS(SheetView, CView)

class SheetFrame : public Mortal<CFrameWnd> {
    DECLARE_DYNCREATE(SheetFrame)
public:
    SheetFrame() { ++s_nLiving; }
    ~SheetFrame() override { --s_nLiving; }
    std::string Title() {
        CString str;
        return GetWindowText(str), std::string(str);
    }

protected:
    TELLS_COMMANDS("f")
};
IMPLEMENT_DYNCREATE(SheetFrame, CFrameWnd)
MAP_COMMANDS(SheetFrame, CFrameWnd)

class SheetTemplate : public CSingleDocTemplate {
public:
    SheetTemplate()
        : CSingleDocTemplate(IDR_SHEET, RUNTIME_CLASS(Sheet), RUNTIME_CLASS(SheetFrame),
                             RUNTIME_CLASS(SheetView)) {
        LoadTemplate();
    }
    using CSingleDocTemplate::m_pViewClass;

protected:
    TELLS_COMMANDS("t")
};
MAP_COMMANDS(SheetTemplate, CSingleDocTemplate)

class Manager : public CDocManager {
public:
    CString m_strPath;
    BOOL DoPromptFileName(CString& str, UINT, DWORD, BOOL, CDocTemplate*) override {
        return str = m_strPath, !m_strPath.IsEmpty();
    }
};

class Documents : public testing::Test {
protected:
    void SetUp() override {
        s_log.clear(), TheTestApp().Forget();
        TheTestApp().m_pMainWnd = new CFrameWnd;
        static_cast<CFrameWnd*>(TheTestApp().m_pMainWnd)->Create(nullptr, "Main");
        TheTestApp().m_pDocManager = m_pManager = new Manager;
        TheTestApp().AddDocTemplate(m_pTemplate = new SheetTemplate);
    }
    void TearDown() override {
        s_told = nullptr, s_bFails = false;
        TheTestApp().CloseAllDocuments(FALSE);
        EXPECT_EQ(s_nLiving, 0) << "each is deleted once";
        EXPECT_EQ(TheTestApp().GetOpenDocumentCount(), 0);
        delete m_pManager;
        TheTestApp().m_pDocManager = nullptr, TheTestApp().m_nAnswer = IDOK;
        CWnd* pMain = std::exchange(TheTestApp().m_pMainWnd, nullptr);
        pMain ? pMain->DestroyWindow() : FALSE;
    }
    void Open(LPCTSTR pszPath = nullptr) {
        m_pDoc = static_cast<Sheet*>(m_pTemplate->OpenDocumentFile(pszPath));
        POSITION pos = m_pDoc ? m_pDoc->GetFirstViewPosition() : nullptr;
        m_pView = pos ? static_cast<SheetView*>(m_pDoc->GetNextView(pos)) : nullptr;
        m_pFrame = m_pView ? static_cast<SheetFrame*>(m_pView->GetParentFrame()) : nullptr;
    }
    SheetView* SecondView() {
        CCreateContext context;
        context.m_pCurrentDoc = m_pDoc, context.m_pNewViewClass = RUNTIME_CLASS(SheetView);
        auto* pView = static_cast<SheetView*>(m_pFrame->CreateView(&context, 7));
        pView->m_strName = "2";
        return pView;
    }
    std::string LogOf(const std::function<void()>& deed) { return s_log.clear(), deed(), s_log; }

    Manager* m_pManager = nullptr;
    SheetTemplate* m_pTemplate = nullptr;
    Sheet* m_pDoc = nullptr;
    SheetView* m_pView = nullptr;
    SheetFrame* m_pFrame = nullptr;
};

TEST_F(Documents, AreMadeShownAndReadInThePublishedOrder) {
    Open();
    EXPECT_EQ(s_log.substr(0, 28), "new update0 initial frame0 +") << s_log;
    EXPECT_EQ(s_log.substr(s_log.size() - 2), "+=");
    EXPECT_EQ(m_pFrame->Title(), "Sheet - Program");
    EXPECT_EQ(m_pFrame->GetActiveView(), m_pView);
    EXPECT_TRUE(m_pFrame->IsWindowVisible());

    const TempFile file;
    auto* pFrame = m_pFrame;
    EXPECT_EQ(LogOf([&] { Open(file.Path()); }).substr(0, 20), "open update0 initial");
    EXPECT_EQ(m_pFrame, pFrame) << "one document, one frame";
    const CString strName = m_pDoc->GetTitle();
    EXPECT_EQ(m_pFrame->Title(), std::string(strName + " - Program"));
    EXPECT_EQ(m_pDoc->GetPathName().Right(strName.GetLength() + 1), "\\" + strName);
    CDocument* pMatch = nullptr;
    EXPECT_EQ(m_pTemplate->MatchDocType("c:\\a.Qvs", pMatch), CDocTemplate::yesAttemptNative);
    EXPECT_EQ(m_pTemplate->MatchDocType("c:\\a.b", pMatch), CDocTemplate::yesAttemptForeign);
    EXPECT_EQ(TheTestApp().OpenDocumentFile(file.Path()), m_pDoc);
    Open("c:\\no\\such.qvs");
    EXPECT_EQ(m_pDoc, nullptr);
    EXPECT_EQ(TheTestApp().m_prompts.size(), 1u);
    EXPECT_EQ(pFrame->Title(), std::string(strName + " - Program")) << "stays what it was";
}

TEST_F(Documents, UpdateTheirViews_ButTheSender) {
    Open();
    SheetView* pSecond = SecondView();
    CObject* const pHint = m_pFrame;
    EXPECT_EQ(LogOf([&] { m_pDoc->UpdateAllViews(nullptr, 5, pHint); }), "update5! update25!");
    EXPECT_EQ(LogOf([&] { m_pDoc->UpdateAllViews(pSecond); }), "update*0");
    s_told = [&](const std::string&) { pSecond->DestroyWindow(), s_told = nullptr; };
    EXPECT_EQ(LogOf([&] { m_pDoc->UpdateAllViews(nullptr); }), "update0") << "one went away";

    pSecond = SecondView();
    EXPECT_EQ(LogOf([&] { m_pFrame->SetActiveView(pSecond); }), "- +2");
    EXPECT_EQ(LogOf([&] { pSecond->SendMessage(WM_MOUSEACTIVATE), pSecond->DestroyWindow(); }),
              "+2= -2");
    EXPECT_EQ(m_pFrame->GetActiveView(), nullptr);
}

TEST_F(Documents, RouteCommands_ViewDocumentTemplateFrame) {
    Open();
    EXPECT_EQ(LogOf([&] { m_pFrame->SendMessage(WM_COMMAND, ID_SHEET_COMMAND); }), "v d t f");
    EXPECT_EQ(LogOf([&] { m_pFrame->SendMessage(WM_COMMAND, ID_FILE_CLOSE); }),
              "close frame0 ~doc");
}

TEST_F(Documents, AskBeforeTheyClose) {
    const TempFile file;
    const auto close = [&](BOOL bModified, int nAnswer, CWnd* pWnd) {
        Open(file.Path());
        m_pDoc->SetModifiedFlag(bModified);
        TheTestApp().Forget(), TheTestApp().m_nAnswer = nAnswer;
        LogOf([&] { (pWnd ? pWnd : m_pFrame)->SendMessage(WM_CLOSE); });
        const std::string strDone = std::to_string(TheTestApp().m_prompts.size()) +
                                    (s_log.find("save") != s_log.npos ? "s" : "") +
                                    (s_log.find("~doc") != s_log.npos ? "~" : "");
        TheTestApp().CloseAllDocuments(FALSE);
        return strDone;
    };
    for (CWnd* pWnd : {static_cast<CWnd*>(nullptr), TheTestApp().m_pMainWnd}) {
        EXPECT_EQ(close(TRUE, IDCANCEL, pWnd), "1");
        EXPECT_NE(TheTestApp().m_pMainWnd, nullptr);
        EXPECT_EQ(close(TRUE, pWnd ? IDNO : IDYES, pWnd), pWnd ? "1~" : "1s~");
        if (pWnd == nullptr) {
            EXPECT_EQ(close(FALSE, IDCANCEL, pWnd), "0~");
        }
        MSG msg;
        EXPECT_EQ(::PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != FALSE,
                  pWnd != nullptr)
            << "only the main window ends the program";
    }
}

TEST_F(Documents, AreSavedUnderTheirName_OrOneThatTheUserGives) {
    const TempFile file, other;
    Open(file.Path());
    for (const bool bReadOnly : {false, true}) {
        ::SetFileAttributes(file.Path(),
                            bReadOnly ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL);
        EXPECT_EQ(m_pDoc->DoFileSave(), !bReadOnly) << "nobody gives another name";
    }
    m_pManager->m_strPath = other.Path();
    EXPECT_TRUE(m_pDoc->DoFileSave());
    EXPECT_EQ(::lstrcmpi(m_pDoc->GetPathName(), other.Path()), 0);
    ::SetFileAttributes(file.Path(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(Documents, ThatCannotBeMadeLeaveNothing) {
    for (CRuntimeClass* const pView : {RUNTIME_CLASS(CObject), RUNTIME_CLASS(SheetView)}) {
        m_pTemplate->m_pViewClass = pView, s_bFails = true;  // by OnNewDocument, too
        EXPECT_EQ(m_pTemplate->OpenDocumentFile(nullptr), nullptr);
        EXPECT_EQ(s_nLiving, 0);
    }
    s_bFails = false;
    const auto close = [&] {
        TheTestApp().CloseAllDocuments(FALSE);
        EXPECT_EQ(s_nLiving, 0);
    };
    close();
    EXPECT_GT(
        RefuseEachAllocation(
            FailingHeap::kJustOne, [&] { Try([&] { m_pTemplate->OpenDocumentFile(nullptr); }); },
            [&](int) { close(); }),
        5);
}

TEST_F(Documents, ThatCannotReadAFileStayWhatTheyWereOrAreEmpty) {
    const TempFile file, other;
    for (const int nCase : {0, 1, 2, 3}) {
        const bool bTouched = nCase >= 2;
        Open(file.Path());
        m_pDoc->SetModifiedFlag(), TheTestApp().m_nAnswer = IDNO;
        s_told = [&](const std::string& strStep) {
            s_bFails = strStep == (bTouched ? "open" : "opening");
            nCase % 2 != 0 && s_bFails ? AfxThrowUserException() : void();
        };
        EXPECT_NE(Try([&] { m_pTemplate->OpenDocumentFile(other.Path()); }) == Outcome::kDone,
                  nCase % 2);
        s_told = nullptr, s_bFails = false;
        EXPECT_EQ(m_pDoc->IsModified(), !bTouched);
        EXPECT_EQ(m_pDoc->GetPathName().IsEmpty(), bTouched);
    }
}

// A frame or a document that goes in the midst of a step.
TEST_F(Documents, AndFramesMayGoInAnyStep) {
    for (const char* pszStep : {"new", "open", "initial", "update0", "frame0", "+=", "v", "d", "t",
                                "f", "save", "draw"}) {
        for (const int nDeed : {0, 1, 2}) {
            SCOPED_TRACE(std::string(pszStep) + std::to_string(nDeed));
            const TempFile file;
            m_pManager->m_strPath = file.Path();
            HWND hFrame = nullptr;
            s_told = [&](const std::string& str) {
                CDocument* pDoc = nullptr;
                POSITION pos = m_pTemplate->GetFirstDocPosition();
                if (str != pszStep || (pDoc = m_pTemplate->GetNextDoc(pos)) == nullptr) {
                    return;
                }
                s_told = nullptr;
                POSITION posView = pDoc->GetFirstViewPosition();
                CView* pView = pDoc->GetNextView(posView);
                CFrameWnd* pFrame = pView ? pView->GetParentFrame() : nullptr;
                hFrame = pFrame->GetSafeHwnd();
                nDeed == 0 && pFrame  ? (void)pFrame->DestroyWindow()
                : nDeed == 1 && pView ? (void)pView->DestroyWindow()
                                      : pDoc->CDocument::OnCloseDocument();
            };
            for (LPCTSTR pszPath : {static_cast<LPCTSTR>(nullptr), file.Path()}) {
                Open(pszPath);
                s_told&& m_pFrame ? m_pView->RedrawWindow() : FALSE;
                s_told&& m_pFrame ? m_pFrame->SendMessage(WM_COMMAND, ID_SHEET_COMMAND) : 0;
                if (s_told && m_pTemplate->GetFirstDocPosition()) {
                    m_pDoc->SetModifiedFlag(), TheTestApp().m_nAnswer = IDYES;
                    m_pFrame->SendMessage(WM_CLOSE);
                }
            }
            EXPECT_FALSE(s_told) << "the step came";
            TheTestApp().CloseAllDocuments(FALSE);
            ::DestroyWindow(hFrame);  // where it lost its view alone
            ASSERT_EQ(s_nLiving, 0);
        }
    }
}

}  // namespace
