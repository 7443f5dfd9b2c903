#include "pages/tree_headings.h"

#include "resource.h"

#include <algorithm>

namespace {

constexpr int kLast = kTreeColumns - 1;

// Each notification exists for both kinds of text.
bool IsOf(const NMHDR& header, UINT nAnsi, UINT nWide) {
    return header.code == nAnsi || header.code == nWide;
}

}  // namespace

BEGIN_MESSAGE_MAP(TreeHeadings, CWnd)
    ON_WM_SIZE()
    ON_NOTIFY(HDN_BEGINTRACKA, IDC_TREE_HEADINGS, &TreeHeadings::OnChanging)
    ON_NOTIFY(HDN_BEGINTRACKW, IDC_TREE_HEADINGS, &TreeHeadings::OnChanging)
    ON_NOTIFY(HDN_ITEMCHANGINGA, IDC_TREE_HEADINGS, &TreeHeadings::OnChanging)
    ON_NOTIFY(HDN_ITEMCHANGINGW, IDC_TREE_HEADINGS, &TreeHeadings::OnChanging)
    ON_NOTIFY(HDN_ITEMCHANGEDA, IDC_TREE_HEADINGS, &TreeHeadings::OnChanged)
    ON_NOTIFY(HDN_ITEMCHANGEDW, IDC_TREE_HEADINGS, &TreeHeadings::OnChanged)
    ON_NOTIFY(HDN_DIVIDERDBLCLICKA, IDC_TREE_HEADINGS, &TreeHeadings::OnFitColumn)
    ON_NOTIFY(HDN_DIVIDERDBLCLICKW, IDC_TREE_HEADINGS, &TreeHeadings::OnFitColumn)
END_MESSAGE_MAP()

BOOL TreeHeadings::Create(CWnd* pParent, UINT nID) {
    const CRect rcNone(0, 0, 0, 0);
    if (!CWnd::Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, rcNone, pParent, nID) ||
        !m_header.Create(WS_CHILD | WS_VISIBLE | HDS_HORZ | HDS_FULLDRAG, rcNone, this,
                         IDC_TREE_HEADINGS)) {
        return FALSE;
    }
    m_header.SetFont(NearestFontOf(*pParent), FALSE);
    for (int nCol = 0; nCol < kTreeColumns; ++nCol) {
        const PackageTree::Column& column = PackageTree::kColumns[nCol];
        CString strHeading(column.pszHeading);
        HDITEM item{};
        item.mask = HDI_TEXT | HDI_FORMAT | HDI_WIDTH;
        item.pszText = strHeading.GetBuffer();
        item.fmt = HDF_STRING | column.nHeadingFormat;
        item.cxy = kLeastTreeWidth;
        m_header.InsertItem(nCol, &item);
    }
    return TRUE;
}

int TreeHeadings::Height() const {
    CRect rc(0, 0, 1000, 1000);
    WINDOWPOS place{};
    HDLAYOUT layout{&rc, &place};
    return ::SendMessage(m_header.m_hWnd, HDM_LAYOUT, 0, reinterpret_cast<LPARAM>(&layout)) != 0
               ? place.cy
               : 0;
}

void TreeHeadings::Fit() {
    if (m_header.m_hWnd == nullptr || m_bFitting) {
        return;
    }
    m_bFitting = true;
    CRect rc;
    GetClientRect(&rc);
    const int nLeft = m_tree.LeftEdge();
    const int nRight = std::max(m_tree.RightEdge(), nLeft + rc.Width());
    int nPos = 0;
    for (int nCol = 0; nCol < kTreeColumns; ++nCol) {
        HDITEM item{};
        item.mask = HDI_WIDTH;
        m_header.GetItem(nCol, &item);
        const int nWidth = nCol < kLast ? m_tree.HeadingWidth(nCol) : std::max(nRight - nPos, 0);
        if (std::exchange(item.cxy, nWidth) != nWidth) {
            m_header.SetItem(nCol, &item);
        }
        nPos += nWidth;
    }
    m_header.SetWindowPos(nullptr, -nLeft, 0, nPos, rc.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
    m_bFitting = false;
}

void TreeHeadings::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    Fit();
}

// The last heading goes to the end in any case, and none so far that it could not be taken hold of.
void TreeHeadings::OnChanging(NMHDR* pNMHDR, LRESULT* pResult) {
    const auto& change = *reinterpret_cast<NMHEADER*>(pNMHDR);
    const bool bWidth = change.pitem != nullptr && (change.pitem->mask & HDI_WIDTH) != 0;
    const bool bTracks = IsOf(*pNMHDR, HDN_BEGINTRACKA, HDN_BEGINTRACKW);
    *pResult = !m_bFitting &&
               (change.iItem == kLast ||
                (!bTracks && bWidth && change.pitem->cxy < m_tree.LeastHeadingWidth(change.iItem)));
}

void TreeHeadings::OnChanged(NMHDR* pNMHDR, LRESULT* pResult) {
    const auto& change = *reinterpret_cast<NMHEADER*>(pNMHDR);
    *pResult = 0;
    if (!m_bFitting && change.pitem != nullptr && (change.pitem->mask & HDI_WIDTH) != 0) {
        m_tree.SetHeadingWidth(change.iItem, change.pitem->cxy);
        Fit();
    }
}

void TreeHeadings::OnFitColumn(NMHDR* pNMHDR, LRESULT* pResult) {
    *pResult = 0;
    m_tree.FitColumn(reinterpret_cast<NMHEADER*>(pNMHDR)->iItem);
    Fit();
}
