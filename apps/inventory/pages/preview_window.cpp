#include "pages/preview_window.h"

#include <algorithm>
#include <numeric>
#include <tuple>

namespace {

constexpr int kEdge = 12;  // pixels around the sheet
constexpr int kLine = 40;  // pixels a line scrolls
constexpr int kLeastPercent = 10;
constexpr int kMostPercent = 300;
constexpr int kReadablePercent = 100;
constexpr int kMarksPerInch = 7;  // the height of a mark on what was found

// Draws on the screen what is measured on the printer.
class StandInDC : public CDC {
public:
    explicit StandInDC(CDC& dcDevice) { SetAttribDC(dcDevice.m_hAttribDC); }
    ~StandInDC() override { ReleaseAttribDC(); }
};

}  // namespace

BEGIN_MESSAGE_MAP(PreviewWindow, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_MOUSEWHEEL()
    ON_WM_KEYDOWN()
    ON_WM_LBUTTONDOWN()
    ON_WM_GETDLGCODE()
END_MESSAGE_MAP()

BOOL PreviewWindow::Create(CWnd* pParent, UINT nID) {
    return CWnd::CreateEx(WS_EX_CLIENTEDGE, nullptr, "",
                          WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_HSCROLL | WS_VSCROLL,
                          CRect(0, 0, 0, 0), pParent, nID);
}

void PreviewWindow::SetReport(Report* pReport, CDC* pDevice) {
    if (m_pReport != nullptr) {
        m_kept = CPoint(GetScrollPos(SB_HORZ), GetScrollPos(SB_VERT));
    }
    m_pReport = pReport;
    m_pDevice = pDevice;
    m_rcFound.SetRectEmpty();
    if (m_pReport == nullptr) {
        FitBars();
        return;
    }
    m_nPage = std::clamp(m_nPage, 1u, std::max(m_pReport->Pages(), 1u));
    FitBars();
    ScrollTo(SB_HORZ, m_kept.x);
    ScrollTo(SB_VERT, m_kept.y);
}

void PreviewWindow::ShowPage(unsigned nPage) {
    m_kept.y = 0;
    m_rcFound.SetRectEmpty();
    m_nPage = nPage;
    if (m_pReport != nullptr) {
        m_nPage = std::clamp(nPage, 1u, std::max(m_pReport->Pages(), 1u));
        m_bDrawn = false;
        SetScrollPos(SB_VERT, 0, TRUE);
        Invalidate(FALSE);
    }
    m_changed();
}

void PreviewWindow::Fit(Scale scale) {
    m_bChosen = true;
    m_scale = scale;
    FitBars();
}

bool PreviewWindow::CanZoom(bool bIn) const {
    return bIn ? m_nPercent < kMostPercent : m_nPercent > kLeastPercent;
}

void PreviewWindow::Zoom(bool bIn) {
    m_bChosen = true;
    m_scale = Scale::Percent;
    m_nPercent =
        std::clamp(bIn ? m_nPercent * 5 / 4 : m_nPercent * 4 / 5, kLeastPercent, kMostPercent);
    FitBars();
}

// 100 percent: as large as on paper, by the screen's resolution.
CSize PreviewWindow::SheetSize(int nPercent) const {
    const CClientDC dcScreen(nullptr);
    const CSize paper = m_pReport->PaperSize();
    const auto scale = [&](int nUnits, int nIndex) {
        return ::MulDiv(::MulDiv(nUnits, dcScreen.GetDeviceCaps(nIndex),
                                 std::max(m_pDevice->GetDeviceCaps(nIndex), 1)),
                        nPercent, 100);
    };
    return CSize(std::max(scale(paper.cx, LOGPIXELSX), 1),
                 std::max(scale(paper.cy, LOGPIXELSY), 1));
}

CSize PreviewWindow::Room(bool bVertBar) const {
    CRect rc;
    GetClientRect(&rc);
    const DWORD dwStyle = GetStyle();
    const int nBar = ::GetSystemMetrics(SM_CXVSCROLL);
    const int nMore = (dwStyle & WS_VSCROLL) != 0 ? nBar : 0;
    const int nHigher = (dwStyle & WS_HSCROLL) != 0 ? ::GetSystemMetrics(SM_CYHSCROLL) : 0;
    return CSize(rc.Width() + nMore - (bVertBar ? nBar : 0), rc.Height() + nHigher);
}

// A sheet that is higher than the window takes the vertical bar, which takes some of the width.
int PreviewWindow::FittingPercent() const {
    const CSize whole = SheetSize(100);
    const auto largest = [&](CSize room) {
        int nPercent = (room.cx - 2 * kEdge) * 100 / whole.cx;
        if (m_scale == Scale::Whole) {
            nPercent = std::min<int>(nPercent, (room.cy - 2 * kEdge) * 100 / whole.cy);
        }
        // Sizes are rounded, and a pixel too much is another bar.
        while (nPercent > kLeastPercent && SheetSize(nPercent).cx + 2 * kEdge > room.cx) {
            --nPercent;
        }
        return std::clamp(nPercent, kLeastPercent, kMostPercent);
    };
    const int nPercent = largest(Room(false));
    const bool bBar = SheetSize(nPercent).cy + 2 * kEdge > Room(false).cy;
    return m_scale == Scale::Width && bBar ? largest(Room(true)) : nPercent;
}

// The place in the middle of the window stays there. Bars that come or go resize the window once
// more: that is within what was reckoned with.
void PreviewWindow::FitBars() {
    if (m_bFitting) {
        return;
    }
    m_bFitting = true;
    m_bDrawn = false;
    Invalidate(FALSE);
    if (m_pReport != nullptr && !m_bChosen) {
        m_scale = Scale::Width;
    }
    if (m_pReport != nullptr && m_scale != Scale::Percent) {
        m_nPercent = FittingPercent();
    }
    if (!m_bChosen && m_nPercent < kReadablePercent) {
        m_scale = Scale::Percent;
        m_nPercent = kReadablePercent;
    }
    const CSize sheet = m_pReport != nullptr ? SheetSize(m_nPercent) : CSize(0, 0);
    CSize room = Room(false);
    const bool bVert = sheet.cy + 2 * kEdge > room.cy;
    room.cx = Room(bVert).cx;
    const bool bHorz = sheet.cx + 2 * kEdge > room.cx;
    room.cy -= bHorz ? ::GetSystemMetrics(SM_CYHSCROLL) : 0;
    const auto fit = [&](int nBar, int nSize, int nPage) {
        SCROLLINFO info{};
        info.cbSize = sizeof(info);
        info.fMask = SIF_ALL;
        GetScrollInfo(nBar, &info);
        const int nMiddle = info.nPos + static_cast<int>(info.nPage) / 2;
        const int nOld = info.nMax + 1;
        info.nMax = nSize + 2 * kEdge - 1;
        info.nPage = static_cast<UINT>(std::max(nPage, 0));
        info.nPos = info.nPos > 0 ? ::MulDiv(nMiddle, info.nMax + 1, std::max(nOld, 1)) - nPage / 2
                                  : info.nPos;
        info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
        SetScrollInfo(nBar, &info, TRUE);
    };
    fit(SB_HORZ, sheet.cx, room.cx);
    fit(SB_VERT, sheet.cy, room.cy);
    m_bFitting = false;
    m_changed();
}

void PreviewWindow::DrawSheet() {
    const CSize sheet = SheetSize(m_nPercent);
    const CSize paper = m_pReport->PaperSize();
    CClientDC dcScreen(this);
    m_bmpSheet.DeleteObject();
    if (!m_bmpSheet.CreateCompatibleBitmap(&dcScreen, sheet.cx, sheet.cy)) {
        return;
    }
    const CWaitCursor wait;
    CDC dcSheet;
    dcSheet.CreateCompatibleDC(&dcScreen);
    const qv::SelectGuard select(dcSheet, &m_bmpSheet);
    StandInDC dc(*m_pDevice);
    dc.SetOutputDC(dcSheet.m_hDC);
    ::PatBlt(dc.m_hDC, 0, 0, sheet.cx, sheet.cy, WHITENESS);
    ::SetMapMode(dc.m_hDC, MM_ANISOTROPIC);
    ::SetWindowExtEx(dc.m_hDC, paper.cx, paper.cy, nullptr);
    ::SetViewportExtEx(dc.m_hDC, sheet.cx, sheet.cy, nullptr);
    const CPoint origin = m_pReport->Origin();
    ::SetWindowOrgEx(dc.m_hDC, -origin.x, -origin.y, nullptr);
    dc.m_bPrinting = TRUE;
    m_pReport->PrintPage(dc, m_nPage);
    dc.ReleaseOutputDC();
    m_bDrawn = true;
}

void PreviewWindow::OnPaint() {
    CPaintDC dc(this);
    CRect rcClient;
    GetClientRect(&rcClient);
    if (m_pReport == nullptr || m_pReport->Pages() == 0) {
        dc.FillSolidRect(&rcClient, ::GetSysColor(COLOR_APPWORKSPACE));
        return;
    }
    if (!m_bDrawn) {
        DrawSheet();
    }
    const CSize sheet = SheetSize(m_nPercent);
    const CPoint scrolled(GetScrollPos(SB_HORZ), GetScrollPos(SB_VERT));
    const int x = std::max<int>(kEdge, (rcClient.Width() - sheet.cx) / 2) - scrolled.x;
    const int y = kEdge - scrolled.y;
    CDC dcSheet;
    dcSheet.CreateCompatibleDC(&dc);
    const qv::SelectGuard select(dcSheet, &m_bmpSheet);
    dc.BitBlt(x, y, sheet.cx, sheet.cy, &dcSheet, 0, 0, SRCCOPY);
    const CRect rcFound = OnSheet(m_rcFound, sheet);
    dc.PatBlt(x + rcFound.left, y + rcFound.top, rcFound.Width(), rcFound.Height(), DSTINVERT);
    dc.ExcludeClipRect(x, y, x + sheet.cx, y + sheet.cy);
    dc.FillSolidRect(&rcClient, ::GetSysColor(COLOR_APPWORKSPACE));
}

BOOL PreviewWindow::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void PreviewWindow::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    FitBars();
}

void PreviewWindow::ScrollTo(int nBar, int nPos) {
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_POS;
    info.nPos = nPos;
    SetScrollInfo(nBar, &info, TRUE);
    Invalidate(FALSE);
}

// False where there is nowhere to go.
bool PreviewWindow::Scroll(int nBar, UINT nCode) {
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    GetScrollInfo(nBar, &info);
    const int nPage = static_cast<int>(info.nPage);
    const int nOld = info.nPos;
    switch (nCode) {
        case SB_LINEUP:
            info.nPos -= kLine;
            break;
        case SB_LINEDOWN:
            info.nPos += kLine;
            break;
        case SB_PAGEUP:
            info.nPos -= nPage;
            break;
        case SB_PAGEDOWN:
            info.nPos += nPage;
            break;
        case SB_TOP:
            info.nPos = 0;
            break;
        case SB_BOTTOM:
            info.nPos = info.nMax;
            break;
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION:
            info.nPos = info.nTrackPos;
            break;
        default:
            return false;
    }
    ScrollTo(nBar, info.nPos);
    return GetScrollPos(nBar) != nOld;
}

void PreviewWindow::OnHScroll(UINT nCode, UINT, CScrollBar*) {
    Scroll(SB_HORZ, nCode);
}

void PreviewWindow::OnVScroll(UINT nCode, UINT, CScrollBar*) {
    Scroll(SB_VERT, nCode);
}

// On to what is behind the end of the page that is in view.
void PreviewWindow::Turn(bool bDown) {
    if (m_pReport == nullptr || Scroll(SB_VERT, bDown ? SB_PAGEDOWN : SB_PAGEUP)) {
        return;
    }
    const unsigned nOld = m_nPage;
    ShowPage(bDown ? m_nPage + 1 : std::max(m_nPage, 2u) - 1);
    if (!bDown && m_nPage != nOld) {
        Scroll(SB_VERT, SB_BOTTOM);
    }
}

BOOL PreviewWindow::OnMouseWheel(UINT nFlags, short zDelta, CPoint) {
    const bool bDown = zDelta < 0;
    if ((nFlags & MK_CONTROL) != 0) {
        Zoom(!bDown);
    } else if (!Scroll(SB_VERT, bDown ? SB_LINEDOWN : SB_LINEUP)) {
        Turn(bDown);
    }
    return TRUE;
}

void PreviewWindow::OnKeyDown(UINT nChar, UINT, UINT) {
    switch (nChar) {
        case VK_NEXT:
        case VK_PRIOR:
            Turn(nChar == VK_NEXT);
            break;
        case VK_HOME:
            ShowPage(1);
            break;
        case VK_END:
            ShowPage(m_pReport != nullptr ? m_pReport->Pages() : 1);
            break;
        case VK_UP:
        case VK_DOWN:
            Scroll(SB_VERT, nChar == VK_UP ? SB_LINEUP : SB_LINEDOWN);
            break;
        case VK_LEFT:
        case VK_RIGHT:
            Scroll(SB_HORZ, nChar == VK_LEFT ? SB_LINEUP : SB_LINEDOWN);
            break;
        case VK_ADD:
        case VK_OEM_PLUS:
        case VK_SUBTRACT:
        case VK_OEM_MINUS:
            Zoom(nChar == VK_ADD || nChar == VK_OEM_PLUS);
            break;
        case VK_MULTIPLY:
            Fit(Scale::Width);
            break;
        case VK_DIVIDE:
            Fit(Scale::Whole);
            break;
        default:
            Default();
            break;
    }
}

void PreviewWindow::OnLButtonDown(UINT, CPoint) {
    SetFocus();
}

UINT PreviewWindow::OnGetDlgCode() {
    return DLGC_WANTARROWS;
}

// --- Finding

namespace {

// A text on a page, with the width of each of its characters.
struct PieceOfPage {
    std::wstring strText;
    CPoint pt;
    std::vector<int> widths;
};

int CALLBACK TakePiece(HDC, HANDLETABLE*, const ENHMETARECORD* pRecord, int, LPARAM lParam) {
    if (pRecord->iType == EMR_EXTTEXTOUTW) {
        const auto& record = *reinterpret_cast<const EMREXTTEXTOUTW*>(pRecord);
        const auto* pBytes = reinterpret_cast<const BYTE*>(pRecord);
        const EMRTEXT& text = record.emrtext;
        PieceOfPage piece;
        piece.pt = CPoint(text.ptlReference.x, text.ptlReference.y);
        piece.strText.assign(reinterpret_cast<const WCHAR*>(pBytes + text.offString), text.nChars);
        if (text.offDx != 0) {
            const auto* pWidths = reinterpret_cast<const UINT*>(pBytes + text.offDx);
            piece.widths.assign(pWidths, pWidths + text.nChars);
        }
        piece.widths.resize(text.nChars);
        reinterpret_cast<std::vector<PieceOfPage>*>(lParam)->push_back(std::move(piece));
    }
    return 1;
}

}  // namespace

// The page is drawn where its texts can be read back, with the measures of the device.
std::vector<CRect> PreviewWindow::Places(unsigned nPage, const Matches& matches) {
    std::vector<CRect> places;
    const HDC hdcMeta = ::CreateEnhMetaFile(m_pDevice->m_hAttribDC, nullptr, nullptr, nullptr);
    if (hdcMeta == nullptr) {
        return places;
    }
    {
        StandInDC dc(*m_pDevice);
        dc.SetOutputDC(hdcMeta);
        dc.m_bPrinting = TRUE;
        m_pReport->PrintPage(dc, nPage);
        dc.ReleaseOutputDC();
    }
    std::vector<PieceOfPage> pieces;
    const HENHMETAFILE hMeta = ::CloseEnhMetaFile(hdcMeta);
    ::EnumEnhMetaFile(nullptr, hMeta, TakePiece, &pieces, nullptr);
    ::DeleteEnhMetaFile(hMeta);
    const int nHeight = m_pDevice->GetDeviceCaps(LOGPIXELSY) / kMarksPerInch;
    for (const PieceOfPage& piece : pieces) {
        size_t nAt = 0;
        size_t nEnd = 0;
        if (matches(piece.strText, nAt, nEnd)) {
            const auto width = [&](size_t nChar) {
                return std::accumulate(piece.widths.begin(),
                                       piece.widths.begin() + static_cast<ptrdiff_t>(nChar), 0);
            };
            places.emplace_back(piece.pt.x + width(nAt), piece.pt.y, piece.pt.x + width(nEnd),
                                piece.pt.y + nHeight);
        }
    }
    // As they are read.
    std::sort(places.begin(), places.end(), [](const CRect& rc1, const CRect& rc2) {
        return std::tie(rc1.top, rc1.left) < std::tie(rc2.top, rc2.left);
    });
    return places;
}

CRect PreviewWindow::OnSheet(const CRect& rc, CSize sheet) const {
    const CSize paper = m_pReport->PaperSize();
    const CPoint origin = m_pReport->Origin();
    return CRect(::MulDiv(rc.left + origin.x, sheet.cx, paper.cx),
                 ::MulDiv(rc.top + origin.y, sheet.cy, paper.cy),
                 ::MulDiv(rc.right + origin.x, sheet.cx, paper.cx),
                 ::MulDiv(rc.bottom + origin.y, sheet.cy, paper.cy));
}

void PreviewWindow::Mark(const CRect& rc) {
    const CSize sheet = SheetSize(m_nPercent);
    CRect rcClient;
    GetClientRect(&rcClient);
    const CRect rcSheet = OnSheet(m_rcFound = rc, sheet);
    const int nTop = GetScrollPos(SB_VERT);
    if (rcSheet.top + kEdge < nTop || rcSheet.bottom + kEdge > nTop + rcClient.Height()) {
        ScrollTo(SB_VERT, rcSheet.top - rcClient.Height() / 3);
    }
    const int nLeft = GetScrollPos(SB_HORZ);
    if (rcSheet.left + kEdge < nLeft || rcSheet.right + kEdge > nLeft + rcClient.Width()) {
        ScrollTo(SB_HORZ, rcSheet.left - rcClient.Width() / 3);
    }
    Invalidate(FALSE);
}

FoundRow PreviewWindow::Find(const Matches& matches, bool bDown) {
    if (m_pReport == nullptr || m_pReport->Pages() == 0) {
        return {};
    }
    const CWaitCursor wait;
    const auto before = [](const CRect& rc1, const CRect& rc2) {
        return std::tie(rc1.top, rc1.left) < std::tie(rc2.top, rc2.left);
    };
    const auto show = [&](unsigned nPage, const CRect& rc) {
        if (nPage != m_nPage) {
            ShowPage(nPage);
        }
        Mark(rc);
    };
    const int nPage = static_cast<int>(m_nPage) - 1;
    const std::vector<CRect> here = Places(m_nPage, matches);
    for (size_t i = 0; i < here.size(); ++i) {
        const CRect& rc = here[bDown ? i : here.size() - 1 - i];
        if (m_rcFound.IsRectEmpty() || (bDown ? before(m_rcFound, rc) : before(rc, m_rcFound))) {
            show(m_nPage, rc);
            return {nPage, false};
        }
    }
    std::vector<CRect> places;
    const FoundRow found =
        FindRow(static_cast<int>(m_pReport->Pages()), nPage, bDown, [&](int nOther) {
            places = Places(static_cast<unsigned>(nOther) + 1, matches);
            return !places.empty();
        });
    if (found.nRow >= 0) {
        show(static_cast<unsigned>(found.nRow) + 1, bDown ? places.front() : places.back());
    }
    return found;
}
