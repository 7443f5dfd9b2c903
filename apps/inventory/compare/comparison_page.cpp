#include "compare/comparison_page.h"

#include "clipboard_text.h"
#include "compare/comparison_view.h"
#include "main_frame.h"
#include "model/count_text.h"
#include "resource.h"

BEGIN_MESSAGE_MAP(ComparisonPage, QVTabViewPage)
    ON_WM_SIZE()
    ON_WM_SYSCOLORCHANGE()
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
    const bool bCan = nID == ID_EDIT_COPY         ? HasSelection()
                      : nID == ID_EDIT_SELECT_ALL ? Rows() > 0
                                                  : pPackage != nullptr;
    if (!bCan || !bExecute) {
        return bCan;
    }
    if (nID == ID_EDIT_COPY) {
        CopyText(*this, SelectedText());
    } else if (nID == ID_EDIT_SELECT_ALL) {
        SelectAll();
    } else {
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
    if (pFrame != nullptr && pFrame->PreTranslateMessage(pMsg)) {
        return TRUE;
    }
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_TAB && ::GetKeyState(VK_CONTROL) >= 0) {
        static_cast<ComparisonView*>(GetTabView())->GoToTabs();  // the page has one control
        return TRUE;
    }
    return CDialog::PreTranslateMessage(pMsg);
}

void ComparisonPage::OnSize(UINT nType, int cx, int cy) {
    QVTabViewPage::OnSize(nType, cx, cy);
    if (Control().GetSafeHwnd() != nullptr) {
        LayOut(CSize(cx, cy));
    }
}

void ComparisonPage::OnSysColorChange() {
    QVTabViewPage::OnSysColorChange();
    UseColors();
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
