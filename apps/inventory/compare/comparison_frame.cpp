#include "compare/comparison_frame.h"

#include "compare/comparison_view.h"
#include "frame_size.h"
#include "resource.h"
#include "work.h"

namespace {

const UINT s_nFindMessage = FindDesk::Message();

}  // namespace

IMPLEMENT_DYNCREATE(ComparisonFrame, CFrameWnd)

BEGIN_MESSAGE_MAP(ComparisonFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_WM_CLOSE()
    ON_REGISTERED_MESSAGE(s_nFindMessage, &ComparisonFrame::OnFindMessage)
END_MESSAGE_MAP()

BOOL ComparisonFrame::PreCreateWindow(CREATESTRUCT& cs) {
    const CSize size = OnScreen(CSize(960, 600));
    cs.cx = size.cx;
    cs.cy = size.cy;
    return CFrameWnd::PreCreateWindow(cs);
}

int ComparisonFrame::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    static constexpr UINT kIndicators[] = {ID_INDICATOR_MESSAGE};
    if (CFrameWnd::OnCreate(lpCreateStruct) == -1 || !m_statusBar.Create(this) ||
        !m_statusBar.SetIndicators(kIndicators, static_cast<int>(std::size(kIndicators)))) {
        return -1;
    }
    m_statusBar.SetPaneStyle(0, SBPS_STRETCH);
    return 0;
}

void ComparisonFrame::OnClose() {
    if (!Work::ClosesLater(*this)) {
        CFrameWnd::OnClose();
    }
}

BOOL ComparisonFrame::OnCmdMsg(UINT nID, int nCode, void* pExtra,
                               AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (nCode == CN_COMMAND && Work::IsRunning()) {
        return TRUE;
    }
    const HWND hWnd = m_hWnd;
    if (CFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    return FromHandlePermanent(hWnd) == this && View() != nullptr &&
           m_find.OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

// --- Finding

ComparisonView* ComparisonFrame::View() const {
    return dynamic_cast<ComparisonView*>(GetActiveView());
}

LRESULT ComparisonFrame::OnFindMessage(WPARAM, LPARAM lParam) {
    m_find.OnDialog(lParam);
    return 0;
}

FindResult ComparisonFrame::Find(const TextQuery& query, bool bDown) {
    ComparisonPage* const pPage = View() != nullptr ? View()->Active() : nullptr;
    return pPage != nullptr ? pPage->Find(query, bDown) : FindResult{false, false, "this view"};
}

void ComparisonFrame::Say(const CString& strMessage) {
    if (View() != nullptr) {
        View()->Say(strMessage);
    }
}

void ComparisonFrame::GetMessageString(UINT nID, CString& rMessage) const {
    if (ComparisonView* const pView = View()) {
        pView->GetMessageString(nID, rMessage);
    }
    if (rMessage.IsEmpty()) {
        CFrameWnd::GetMessageString(nID, rMessage);
    }
}
