#include "details/details_page.h"

#include "model/stanza.h"
#include "sources/code_page.h"

CString Shown(std::string_view text) {
    return InProcessCodePage(Printable(text)).c_str();
}

namespace {

// What a control has on top and in front, in rows.
struct Place {
    int nTop = 0;
    int nFront = -1;
};

Place PlaceIn(CWnd& control) {
    if (auto* pList = dynamic_cast<QVListCtrlEx*>(&control)) {
        return {pList->GetTopIndex(), pList->GetNextItem(-1, LVNI_FOCUSED)};
    }
    auto* pText = dynamic_cast<QVTextWnd*>(&control);
    return {pText != nullptr ? pText->VScrollPos() : 0, -1};
}

void GoTo(CWnd& control, const Place& place) {
    if (auto* pText = dynamic_cast<QVTextWnd*>(&control)) {
        pText->ScrollTo(place.nTop, 0);
    }
    auto* pList = dynamic_cast<QVListCtrlEx*>(&control);
    const int nRows = pList != nullptr ? pList->GetItemCount() : 0;
    if (place.nFront >= 0 && place.nFront < nRows) {
        constexpr UINT kFront = LVIS_SELECTED | LVIS_FOCUSED;
        pList->SetItemState(place.nFront, kFront, kFront);
    }
    // From the end back, a row that is to be in view comes to the top.
    if (place.nTop > 0 && place.nTop < nRows) {
        pList->EnsureVisible(nRows - 1, FALSE);
        pList->EnsureVisible(place.nTop, FALSE);
    }
}

}  // namespace

BEGIN_MESSAGE_MAP(DetailsPage, QVTabWndPage)
    ON_WM_SIZE()
    ON_WM_SYSCOLORCHANGE()
END_MESSAGE_MAP()

// The packages page moves the focus, out of here as well, and asks for accelerators.
BOOL DetailsPage::PreTranslateMessage(MSG* pMsg) {
    return CWnd::PreTranslateMessage(pMsg);
}

void DetailsPage::ShowPage() {
    ReadOnce();
    QVTabWndPage::ShowPage();
}

void DetailsPage::ReadOnce() {
    if (m_bRead) {
        return;
    }
    m_bRead = true;
    const CWaitCursor wait;
    const Place place = PlaceIn(Control());
    m_strProblem = m_source.bChosen ? Read() : CString("No package is chosen.");
    // The same package, read anew, shows where it did.
    const std::string strRead = m_source.package.strName + '\n' + m_source.package.strArchitecture;
    if (std::exchange(m_strRead, strRead) == strRead) {
        GoTo(Control(), place);
    }
    SetDlgItemText(IDC_DETAILS_MESSAGE, m_strProblem);
    const HWND hFocus = ::GetFocus();
    if (!m_strProblem.IsEmpty() && hFocus != nullptr && ::IsChild(m_hWnd, hFocus)) {
        GetTabWnd()->GetTabCtrl().SetFocus();  // the keyboard does not go with what is hidden
    }
    GetDlgItem(IDC_DETAILS_MESSAGE)->ShowWindow(m_strProblem.IsEmpty() ? SW_HIDE : SW_SHOW);
    ShowContent(m_strProblem.IsEmpty());
}

void DetailsPage::BeginPrinting(CDC* pDC, QVPrintEngine& engine) {
    ReadOnce();
    if (m_strProblem.IsEmpty()) {
        Print(*pDC, engine);
    } else {
        engine.AddText(m_strProblem, pDC, nullptr);
    }
}

void DetailsPage::OnSize(UINT nType, int cx, int cy) {
    QVTabWndPage::OnSize(nType, cx, cy);
    if (CWnd* pMessage = GetDlgItem(IDC_DETAILS_MESSAGE)) {
        pMessage->MoveWindow(0, 0, cx, cy);
        LayOut(CRect(0, 0, cx, cy));
        Invalidate();  // a list that moves leaves what it uncovers as it was
    }
}

void DetailsPage::OnSysColorChange() {
    QVTabWndPage::OnSysColorChange();
    UseColors();
}

void DetailsPage::LayOut(const CRect& rc) {
    if (Control().GetSafeHwnd() != nullptr) {
        Control().MoveWindow(&rc);
    }
}

void DetailsPage::ShowContent(bool bShow) {
    Control().ShowWindow(bShow ? SW_SHOW : SW_HIDE);
}
