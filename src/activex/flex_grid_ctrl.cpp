#include "activex/flex_grid_ctrl.h"

#include "activex/control_answers.h"
#include "common/process_text.h"
#include "frame/core/twips.h"
#include "frame/tip_relay.h"

#include <algorithm>
#include <memory>
#include <vector>

BEGIN_MESSAGE_MAP(QVFlexGridCtrl, CFlexGrid)
    ON_NOTIFY(TTN_NEEDTEXTA, 0, &QVFlexGridCtrl::OnGetToolTipInfo)
END_MESSAGE_MAP()

namespace {

// A row or column on the screen.
struct Band {
    long nIndex;
    LONG nFrom;
    LONG nTo;
};

// Bands that are not fixed, from what the control tells in twips. bReachable: those alone that lie
// between 0 and nExtent.
template <class GetPos, class GetSize>
std::vector<Band> Bands(long nFirst, long nEnd, int nPerInch, LONG nOrigin, bool bReachable,
                        LONG nExtent, GetPos getPos, GetSize getSize) {
    std::vector<Band> bands;
    const auto pixels = [&](long nTwips) {
        return static_cast<LONG>(qv::TwipsToPixels(nTwips, nPerInch));
    };
    for (long n = nFirst; n < nEnd; ++n) {
        const LONG nFrom = pixels(getPos(n)) + nOrigin;
        if (bReachable && nFrom > nExtent) {
            break;
        }
        const LONG nTo = nFrom + pixels(getSize(n));
        if (!bReachable || nTo > 0) {
            bands.push_back({n, nFrom, nTo});
        }
    }
    return bands;
}

}  // namespace

QVFlexGridCtrl::QVFlexGridCtrl() = default;

QVFlexGridCtrl::~QVFlexGridCtrl() {
    delete m_pToolTip;
}

void QVFlexGridCtrl::GetSelectedRange(int& nTopRow, int& nBottomRow, int& nLeftCol,
                                      int& nRightCol) {
    nTopRow = nBottomRow = nLeftCol = nRightCol = 0;
    qv::ControlAnswers([&] {
        const auto rows = std::minmax({GetRowSel(), GetRow()});
        const auto cols = std::minmax({GetColSel(), GetCol()});
        nTopRow = rows.first;
        nBottomRow = rows.second;
        nLeftCol = cols.first;
        nRightCol = cols.second;
    });
}

void QVFlexGridCtrl::EnableToolTip() {
    if (m_pToolTip != nullptr || m_hWnd == nullptr) {
        return;
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    qv::ControlAnswers([&] {
        auto pToolTip = std::make_unique<CToolTipCtrl>();
        if (pToolTip->Create(GetParent())) {
            m_pToolTip = pToolTip.release();
            AddCellTools();
        }
    });
    if (watch && m_pToolTip != nullptr) {
        m_pToolTip->Activate(TRUE);
    }
}

void QVFlexGridCtrl::AddCellTools() {
    CRect rcClient;
    GetClientRect(&rcClient);
    CWindowDC dc(this);
    const int nPerInchX = dc.GetDeviceCaps(LOGPIXELSX);
    const int nPerInchY = dc.GetDeviceCaps(LOGPIXELSY);
    const long nRows = GetRows();
    const long nCols = GetCols();
    const long nFixedRows = GetFixedRows();
    const long nFixedCols = GetFixedCols();
    const bool bReachable =
        static_cast<LONGLONG>(nRows - nFixedRows) * (nCols - nFixedCols) > kMaxToolTips;

    const auto cols = Bands(
        nFixedCols, nCols, nPerInchX, rcClient.left, bReachable,
        ::GetSystemMetrics(SM_CXVIRTUALSCREEN), [this](long n) { return GetColPos(n); },
        [this](long n) { return GetColWidth(n); });
    const auto rows = Bands(
        nFixedRows, nRows, nPerInchY, rcClient.top, bReachable,
        ::GetSystemMetrics(SM_CYVIRTUALSCREEN), [this](long n) { return GetRowPos(n); },
        [this](long n) { return GetRowHeight(n); });

    TOOLINFOA tool{};
    tool.cbSize = TTTOOLINFOA_V2_SIZE;
    tool.hwnd = m_hWnd;
    tool.lpszText = LPSTR_TEXTCALLBACKA;
    for (const Band& row : rows) {
        for (const Band& col : cols) {
            // Not by AddTool, for which 0 is no number of a tool.
            tool.uId = static_cast<UINT_PTR>(row.nIndex) * static_cast<UINT_PTR>(nRows) +
                       static_cast<UINT_PTR>(col.nIndex);
            tool.rect = {col.nFrom, row.nFrom, col.nTo, row.nTo};
            m_pToolTip->SendMessage(TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
        }
    }
}

int QVFlexGridCtrl::GetCellToolTip(int, int, char*) {
    return 0;
}

void QVFlexGridCtrl::OnGetToolTipInfo(NMHDR* pNMHDR, LRESULT* pResult) {
    *pResult = 0;
    auto* pInfo = reinterpret_cast<NMTTDISPINFOA*>(pNMHDR);
    const qv::AliveWatch watch(m_alive);
    qv::ControlAnswers([&] {
        // The object may be gone behind the hook, so the hook's buffer is not a part of it.
        char szText[kToolTipRoom + 1] = "";
        const long nRow = GetMouseRow();
        const long nCol = GetMouseCol();
        const int nGiven = GetCellToolTip(nRow, nCol, szText);
        if (nGiven <= 0 || !watch) {
            return;
        }
        const size_t nBytes = qv::ProcessText().PrefixBytes(szText, kToolTipRoom - 1);
        std::copy_n(szText, nBytes, m_szToolTip);
        m_szToolTip[nBytes] = 0;
        pInfo->lpszText = m_szToolTip;
        *pResult = 1;
    });
}

// Tools stay where they were, so a scrolled grid has more than one cell under a tool: as the mouse
// comes to another cell, the tip begins anew. What may scroll takes it away.
void QVFlexGridCtrl::FollowCell(UINT nMessage) {
    if (m_pToolTip == nullptr) {
        return;
    }
    if (nMessage == WM_MOUSEWHEEL || nMessage == WM_KEYDOWN) {
        m_nTipRow = m_nTipCol = kNoCell;
        ::SendMessage(m_pToolTip->m_hWnd, TTM_POP, 0, 0);
    }
    if (nMessage != WM_MOUSEMOVE) {
        return;
    }
    const qv::AliveWatch watch(m_alive);
    qv::ControlAnswers([&] {
        const long nRow = GetMouseRow();
        const long nCol = GetMouseCol();
        if (!watch || (nRow == m_nTipRow && nCol == m_nTipCol)) {
            return;
        }
        m_nTipRow = nRow;
        m_nTipCol = nCol;
        ::SendMessage(m_pToolTip->m_hWnd, TTM_ACTIVATE, FALSE, 0);
    });
}

BOOL QVFlexGridCtrl::PreTranslateMessage(MSG* pMsg) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    FollowCell(pMsg->message);
    if (!watch) {
        return TRUE;
    }
    qv::RelayToTip(m_pToolTip, *pMsg);
    return watch ? CFlexGrid::PreTranslateMessage(pMsg) : TRUE;
}
