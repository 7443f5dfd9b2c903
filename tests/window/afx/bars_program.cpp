#include "window/afx/bars_program.h"

#include "support/pump.h"

#include <afxpriv.h>

IMPLEMENT_DYNCREATE(PageDoc, CDocument)
IMPLEMENT_DYNCREATE(PageView, CScrollView)
IMPLEMENT_DYNCREATE(PageFrame, CFrameWnd)

BEGIN_MESSAGE_MAP(PageFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_WM_SYSCOMMAND()
    ON_COMMAND(ID_FILE_NEW, &PageFrame::OnFileNew)
    ON_COMMAND(ID_EDIT_COPY, &PageFrame::OnFileNew)
    ON_COMMAND(ID_BARS_CHECK, &PageFrame::OnCheck)
    ON_UPDATE_COMMAND_UI(ID_BARS_CHECK, &PageFrame::OnUpdateCheck)
END_MESSAGE_MAP()

BarsProgram::BarsProgram() {
    auto* pTemplate = new CSingleDocTemplate(IDR_BARS, RUNTIME_CLASS(PageDoc),
                                             RUNTIME_CLASS(PageFrame), RUNTIME_CLASS(PageView));
    m_manager.AddDocTemplate(pTemplate);
    CDocument* pDoc = pTemplate->OpenDocumentFile(nullptr);
    POSITION pos = pDoc->GetFirstViewPosition();
    m_hFrame = pDoc->GetNextView(pos)->GetParentFrame()->m_hWnd;
    TheTestApp().m_pMainWnd = Frame();
    ::SetWindowPos(m_hFrame, nullptr, 100, 80, 500, 400, SWP_NOZORDER);
    PumpPending();
    Idle();
}

BarsProgram::~BarsProgram() {
    if (Frame() != nullptr) {
        // Not the end of the tests' own loop.
        TheTestApp().m_pMainWnd = nullptr;
        Frame()->DestroyWindow();
    }
    TheTestApp().m_pMainWnd = nullptr;
    PumpPending();
}

void BarsProgram::Idle() {
    for (LONG n = 0; TheTestApp().OnIdle(n); ++n) {
    }
}
