#include "compare/comparison_page.h"

#include "main_frame.h"
#include "model/count_text.h"
#include "resource.h"

namespace {

bool CopyText(CWnd& owner, const CString& strText) {
    const int nWide = ::MultiByteToWideChar(CP_ACP, 0, strText, -1, nullptr, 0);
    const HGLOBAL hText = ::GlobalAlloc(GMEM_MOVEABLE, static_cast<size_t>(nWide) * sizeof(WCHAR));
    if (hText == nullptr || !owner.OpenClipboard()) {
        ::GlobalFree(hText);
        return false;
    }
    ::MultiByteToWideChar(CP_ACP, 0, strText, -1, static_cast<WCHAR*>(::GlobalLock(hText)), nWide);
    ::GlobalUnlock(hText);
    const bool bTaken = ::EmptyClipboard() && ::SetClipboardData(CF_UNICODETEXT, hText) != nullptr;
    if (!bTaken) {
        ::GlobalFree(hText);
    }
    ::CloseClipboard();
    return bTaken;
}

}  // namespace

BEGIN_MESSAGE_MAP(ComparisonPage, QVTabViewPage)
    ON_WM_SIZE()
    ON_WM_CONTEXTMENU()
END_MESSAGE_MAP()

const ComparisonDocument& ComparisonPage::Document() {
    return static_cast<const ComparisonDocument&>(*GetTabView()->GetDocument());
}

void ComparisonPage::UpdatePage(int, void*, int bActive) {
    m_bNeedsUpdate = !bActive;
    if (bActive) {
        const CWaitCursor wait;
        Show(Document());
    } else {
        Clear();
    }
}

int ComparisonPage::HandleCommand(unsigned nID, int bExecute) {
    const Package* const pPackage = nID == ID_COMPARE_GO ? ShownPackage() : nullptr;
    if (nID == ID_EDIT_COPY ? !HasSelection() : pPackage == nullptr) {
        return FALSE;
    }
    if (bExecute && nID == ID_EDIT_COPY) {
        CopyText(*this, SelectedText());
    } else if (bExecute) {
        static_cast<MainFrame*>(AfxGetMainWnd())->ShowPackage(pPackage->strName.c_str());
    }
    return TRUE;
}

void ComparisonPage::GetMessageString(unsigned nID, CString& strMessage) {
    if (nID == ID_FILE_PRINT || nID == ID_FILE_PRINT_PREVIEW) {
        strMessage = (CountText(Rows(), "row") + " on paper").c_str();
    }
}

void ComparisonPage::SetPageFocus() {
    Control().SetFocus();
}

// The accelerators of the page's own frame, not the main window's.
BOOL ComparisonPage::PreTranslateMessage(MSG* pMsg) {
    CFrameWnd* const pFrame = GetParentFrame();
    return (pFrame != nullptr && pFrame->PreTranslateMessage(pMsg)) ||
           CDialog::PreTranslateMessage(pMsg);
}

void ComparisonPage::OnSize(UINT nType, int cx, int cy) {
    QVTabViewPage::OnSize(nType, cx, cy);
    if (Control().GetSafeHwnd() != nullptr) {
        LayOut(CSize(cx, cy));
    }
}

void ComparisonPage::LayOut(CSize size) {
    Control().MoveWindow(0, 0, size.cx, size.cy);
}

// By the keyboard it comes up below what has the focus, or else in the control's corner.
void ComparisonPage::OnContextMenu(CWnd*, CPoint pt) {
    if (pt == CPoint(-1, -1)) {
        CRect rcControl;
        Control().GetClientRect(&rcControl);
        const CRect rcFocus = FocusRect();
        CRect rcSeen;
        pt = rcSeen.IntersectRect(rcFocus, rcControl) ? CPoint(rcSeen.left, rcSeen.bottom)
                                                      : CPoint(0, 0);
        Control().ClientToScreen(&pt);
    }
    ShowContextMenu(IDR_COMPARE_CONTEXT, pt, ID_COMPARE_GO);
}

CString CountMessage(const std::vector<Difference>& differences, const char* pszWhat) {
    const char* pszVerb = differences.size() == 1 ? " is " : " are ";
    return (CountText(differences.size(), "package") + pszVerb + pszWhat + ", " +
            GrowthText(GrowthOf(differences)))
        .c_str();
}
