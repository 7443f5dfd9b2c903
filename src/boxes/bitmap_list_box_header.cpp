// The list's tab stops, and the header above it.

#include "boxes/bitmap_list_box.h"

#include "boxes/core/box_row.h"
#include "boxes/core/header_tabs.h"
#include "common/process_text.h"
#include "frame/core/styled_text.h"
#include "frame/core/tab_stops.h"
#include "frame/dc_guards.h"
#include "frame/out_of_memory.h"
#include "frame/text_out.h"

#include <algorithm>
#include <span>

namespace {

constexpr int kNewColumnWidth = 30;  // pixels
constexpr int kTitleRoom = 100;      // bytes, with the terminator
constexpr int kIconGap = 2;          // what the column above the images is wider than them
constexpr DWORD kHeaderStyle = WS_CHILD | HDS_BUTTONS | CCS_TOP;

// A column's item as it is read.
class Title {
public:
    explicit Title(UINT nMask) {
        m_item.mask = nMask | HDI_TEXT;
        m_item.pszText = m_szText;
        m_item.cchTextMax = sizeof(m_szText);
    }
    bool Read(const CHeaderCtrl& header, int nItem) {
        if (!header.GetItem(nItem, &m_item)) {
            return false;
        }
        if (m_item.pszText == m_szText) {
            m_szText[qv::ProcessText().PrefixBytes(m_szText, kTitleRoom - 1)] = '\0';
        }
        return true;
    }
    // The header may hand out the text of a title by another place, or leave it to be asked for.
    const char* Text() const {
        return m_item.pszText != nullptr && m_item.pszText != LPSTR_TEXTCALLBACK ? m_item.pszText
                                                                                 : "";
    }
    HDITEM& Item() { return m_item; }

private:
    static constexpr int kLongestCharacter = 4;

    HDITEM m_item{};
    char m_szText[kTitleRoom + kLongestCharacter] = {};  // the character that is cut out is whole
};

int NumberOfTabs(int nTabs) {
    return std::clamp(nTabs, 0, qv::kMaxTabs);
}

// A derived class may write the number as well.
template <class Int>
std::span<Int> Table(Int* pTabs, int nTabs) {
    return {pTabs, static_cast<size_t>(NumberOfTabs(nTabs))};
}

void PlaceBehind(HWND hWnd, HWND hAfter, const CRect& rc, UINT nFlags) {
    ::SetWindowPos(hWnd, hAfter, rc.left, rc.top, rc.Width(), rc.Height(), nFlags | SWP_SHOWWINDOW);
}

// A header over the images, that shows one empty column and takes no input.
HWND MakeIconColumn(HWND hParent, int nWidth) {
    HWND hColumn =
        ::CreateWindowEx(0, WC_HEADER, nullptr, kHeaderStyle | WS_DISABLED, 0, 0, 0, 0, hParent,
                         reinterpret_cast<HMENU>(INT_PTR(-1)), AfxGetInstanceHandle(), nullptr);
    char szText[] = "";
    HDITEM item{};
    item.mask = HDI_WIDTH | HDI_TEXT;
    item.cxy = nWidth;
    item.pszText = szText;
    ::SendMessage(hColumn, HDM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&item));
    return hColumn;
}

}  // namespace

// --- Tab stops

void QVBitmapListBox::UseTabs(const int* pTabs, int nCount) {
    m_nTabs = qv::CopyTabs(pTabs, nCount, m_anTabs);
    const qv::AliveWatch watch(m_alive);
    if (m_header.m_hWnd != nullptr) {
        SyncHeaderWithTabs();
    }
    if (watch && m_hWnd != nullptr) {
        Invalidate(FALSE);
    }
}

void QVBitmapListBox::ClearTabs() {
    m_nTabs = qv::CopyTabs(nullptr, 0, m_anTabs);
    if (m_hWnd != nullptr) {
        Invalidate(FALSE);
    }
}

int QVBitmapListBox::GetTabValue(int nTab, int* pTabs) {
    return qv::TabValue(Table(pTabs != nullptr ? pTabs : m_anTabs, m_nTabs), nTab);
}

void QVBitmapListBox::SetTabValue(int nTab, int nValue, int* pTabs) {
    qv::SetTabValue(Table(pTabs != nullptr ? pTabs : m_anTabs, m_nTabs), nTab, nValue);
}

UINT QVBitmapListBox::GetTabFormat(int nTab, int* pTabs) {
    return nTab < 0 ? m_nFirstFieldFormat
                    : qv::TabFormat(Table(pTabs != nullptr ? pTabs : m_anTabs, m_nTabs), nTab);
}

void QVBitmapListBox::SetTabFormat(int nTab, UINT nFormat, int* pTabs) {
    qv::SetTabFormat(Table(pTabs != nullptr ? pTabs : m_anTabs, m_nTabs), nTab, nFormat);
}

int QVBitmapListBox::MakeTabsFromString(CDC* pDC, const CString& strFields, int* pTabs) {
    qv::DcMeasure measure(*pDC);
    return qv::TabsFromFields(qv::View(strFields), measure, pTabs != nullptr ? pTabs : m_anTabs);
}

void QVBitmapListBox::CalcTabsFromHeader(int nStretchFrom) {
    if (m_header.m_hWnd == nullptr) {
        return;
    }
    const qv::WindowWatch watch(m_alive, m_header.m_hWnd);
    const bool bFitted = qv::MemorySuffices([&] {
        CString strTitles;
        ReadTitles(strTitles);
        if (!watch) {
            return;
        }
        CWindowDC dc(&m_header);
        const qv::SelectGuard<CFont> font(dc, m_header.GetFont());
        m_nTabs = MakeTabsFromString(&dc, strTitles, m_anTabs);
        CRect rc;
        m_header.GetWindowRect(&rc);
        qv::StretchTabs(Table(m_anTabs, m_nTabs), nStretchFrom, m_header.GetItemCount(),
                        rc.Width());
    });
    if (bFitted && watch) {
        SyncHeaderWithTabs();
    }
}

void QVBitmapListBox::CalcListTabs() {
    if (m_hWnd == nullptr) {
        return;
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    qv::MemorySuffices([&] {
        CWindowDC dc(this);
        const qv::SelectGuard<CFont> font(dc, GetFont());
        const int nTabs = CalcTabs(&dc, m_anTabs);
        if (watch) {
            m_nTabs = NumberOfTabs(nTabs);
        }
    });
    if (watch && m_header.m_hWnd != nullptr) {
        SyncHeaderWithTabs();
    }
}

int QVBitmapListBox::CalcTabs(CDC*, int*) {
    return m_nTabs;
}

// --- Columns of the header

void QVBitmapListBox::AddHeader(const char* pszText) {
    const qv::WindowWatch watch(m_alive, m_header.m_hWnd);
    if (!watch) {
        return;
    }
    const std::string_view text = qv::OrEmpty(pszText);
    HDITEM item{};
    item.mask = HDI_WIDTH | HDI_TEXT;
    item.cxy = kNewColumnWidth;
    item.pszText = const_cast<char*>(text.data());
    item.cchTextMax = static_cast<int>(text.size());
    m_header.InsertItem(m_header.GetItemCount(), &item);
    if (watch && m_nTabs != 0) {
        SyncHeaderWithTabs();
    }
}

void QVBitmapListBox::AddHeader(UINT nStringID) {
    qv::MemorySuffices([&] {
        CString strTitles;
        if (!strTitles.LoadString(nStringID)) {
            return;
        }
        const qv::WindowWatch watch(m_alive, m_header.m_hWnd);
        CString strTitle;
        for (int nPos = 0; watch && NextField(strTitles, nPos, strTitle);) {
            AddHeader(strTitle);
        }
    });
}

void QVBitmapListBox::ClearHeaders() {
    const qv::WindowWatch watch(m_alive, m_header.m_hWnd);
    for (int nLeft = watch ? m_header.GetItemCount() : 0; watch && nLeft > 0; --nLeft) {
        m_header.DeleteItem(0);
    }
}

int QVBitmapListBox::MakeHeaderString(CString& strOut) {
    int nRead = 0;
    return qv::MemorySuffices([&] { nRead = ReadTitles(strOut); }) ? nRead : 0;
}

// str stays as it was where an exception is thrown.
int QVBitmapListBox::ReadTitles(CString& str) {
    // The parent may be asked for titles, and take the header away.
    const qv::WindowWatch watch(m_alive, m_header.m_hWnd);
    const InHeader inHeader(*this);
    CString strAll(str);
    int nRead = 0;
    const int nItems = watch ? m_header.GetItemCount() : 0;
    for (int nItem = 0; watch && nItem < nItems; ++nItem) {
        Title title(0);
        if (title.Read(m_header, nItem)) {
            if (nItem > 0) {
                strAll += qv::kFieldSeparator;
            }
            strAll += title.Text();
            ++nRead;
        }
    }
    str = strAll;
    return nRead;
}

void QVBitmapListBox::InvalidateHeader(int bErase) {
    if (m_header.m_hWnd != nullptr) {
        const InHeader inHeader(*this);
        m_header.InvalidateRect(nullptr, bErase);
        m_header.UpdateWindow();
    }
}

void QVBitmapListBox::SyncHeaderWithTabs() {
    const qv::WindowWatch watch(m_alive, m_header.m_hWnd);
    const InHeader inHeader(*this);
    for (int nItem = 0; watch && nItem < std::min(NumberOfTabs(m_nTabs), m_header.GetItemCount());
         ++nItem) {
        Title title(HDI_WIDTH | HDI_FORMAT);
        if (!title.Read(m_header, nItem) || !watch) {
            continue;
        }
        HDITEM& item = title.Item();
        item.cxy = qv::ColumnWidth(Table(m_anTabs, m_nTabs), nItem);
        item.fmt &= ~(HDF_RIGHT | HDF_CENTER);
        item.fmt |= nItem > 0 ? HDF_CENTER : 0;
        m_header.SetItem(nItem, &item);
    }
    if (watch) {
        InvalidateHeader(FALSE);
    }
}

void QVBitmapListBox::ChangeHeaderWidth(int nCol, int nWidth) {
    if (qv::SetColumnWidth(Table(m_anTabs, m_nTabs), nCol, nWidth) && m_hWnd != nullptr) {
        Invalidate(FALSE);
    }
}

// A header speaks to its parent in wide or 8-bit texts, as the parent asks; neither counts here.
void QVBitmapListBox::OnHdNotify(int nCode, NMHEADER* pNotify) {
    if (pNotify == nullptr) {
        return;
    }
    const InHeader inHeader(*this);
    switch (static_cast<UINT>(nCode)) {
        case HDN_ENDTRACKA:
        case HDN_ENDTRACKW:
            if (pNotify->pitem != nullptr) {
                ChangeHeaderWidth(pNotify->iItem, pNotify->pitem->cxy);
            }
            break;
        case HDN_ITEMCLICKA:
        case HDN_ITEMCLICKW:
            SortOnHeader(pNotify->iItem);
            break;
    }
}

void QVBitmapListBox::SortOnHeader(int) {}

// --- The header's window, and where it stands

void QVBitmapListBox::PreCreateHeaders(CRect&) {}

CRect QVBitmapListBox::InParent(const CWnd& wnd) const {
    CRect rc;
    wnd.GetWindowRect(&rc);
    ::MapWindowPoints(nullptr, ::GetParent(m_hWnd), reinterpret_cast<POINT*>(&rc), 2);
    return rc;
}

int QVBitmapListBox::CreateHeaders() {
    if (m_header.m_hWnd != nullptr) {
        if (::GetParent(m_header.m_hWnd) == ::GetParent(m_hWnd)) {
            return TRUE;
        }
        m_header.DestroyWindow();  // of a window that the list had before
        m_wndFrame.DestroyWindow();
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    KeepAccessibleLabel();  // header and frame come between
    CRect rc;
    GetClientRect(&rc);
    ::MapWindowPoints(m_hWnd, ::GetParent(m_hWnd), reinterpret_cast<POINT*>(&rc), 2);
    if (!MakeFrame(rc)) {
        return FALSE;
    }
    PreCreateHeaders(rc);
    if (!watch) {
        return FALSE;
    }
    const int nCreated =
        CreateHeader(m_header, m_nHeaderID, rc, m_nBitmapWidth < 1 ? 0 : m_nBitmapWidth + kIconGap);
    if (nCreated && watch) {
        PlaceBehind(m_hWnd, m_wndFrame.m_hWnd != nullptr ? m_wndFrame.m_hWnd : m_header.m_hWnd, rc,
                    SWP_FRAMECHANGED);
    }
    // The frame paints nothing where header and list are, not even before they do.
    if (watch && m_wndFrame.m_hWnd != nullptr) {
        m_wndFrame.ModifyStyle(0, WS_CLIPSIBLINGS);
        m_wndFrame.SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    }
    return nCreated;
}

// In place of the list's border, if it has one: rc becomes what is inside. False if it cannot be
// made, or the list is gone.
bool QVBitmapListBox::MakeFrame(CRect& rc) {
    if ((GetStyle() & WS_BORDER) == 0 && (GetExStyle() & WS_EX_CLIENTEDGE) == 0) {
        return true;
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    ModifyStyle(WS_BORDER, 0);
    ModifyStyleEx(WS_EX_CLIENTEDGE, 0);
    CWnd* pParent = GetParent();
    if (!m_wndFrame.CreateEx(WS_EX_CLIENTEDGE, "STATIC", "", WS_CHILD | WS_VISIBLE, rc, pParent,
                             static_cast<UINT>(-1)) ||
        !watch) {
        return false;
    }
    m_wndFrame.SetWindowPos(pParent, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW);
    rc.DeflateRect(::GetSystemMetrics(SM_CXEDGE), ::GetSystemMetrics(SM_CYEDGE));
    return static_cast<bool>(watch);
}

int QVBitmapListBox::CreateHeader(CHeaderCtrl& header, UINT nID, CRect& rc, int nIconWidth) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    if (!header.Create(kHeaderStyle, CRect(0, 0, 0, 0), GetParent(), nID) || !watch) {
        return FALSE;
    }
    HWND hIcons = nIconWidth != 0 ? MakeIconColumn(::GetParent(m_hWnd), nIconWidth) : nullptr;
    if (!watch) {
        return FALSE;
    }
    header.SendMessage(WM_SETFONT, static_cast<WPARAM>(SendMessage(WM_GETFONT)), TRUE);
    CRect rcLeft(rc);
    WINDOWPOS pos{};
    HDLAYOUT layout{&rcLeft, &pos};
    if (!header.Layout(&layout)) {
        return FALSE;
    }
    CRect rcHeader(CPoint(pos.x, pos.y), CSize(pos.cx, pos.cy));
    HWND hFrame = m_wndFrame.m_hWnd;
    if (hIcons != nullptr) {
        CRect rcIcons(rcHeader);
        rcIcons.right = rcHeader.left += nIconWidth;
        PlaceBehind(hIcons, hFrame, rcIcons, 0);
    }
    if (watch) {
        PlaceBehind(header.m_hWnd, hFrame, rcHeader, 0);
    }
    rc = rcLeft;
    return static_cast<bool>(watch);
}

// Header, frame and list share what the list had; the header's height stays.
void QVBitmapListBox::FitHeaderToWidth(int cx) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    CRect rcHeader = InParent(m_header);
    rcHeader.right = rcHeader.left + cx - (m_nBitmapWidth > 0 ? m_nBitmapWidth + kIconGap : 0);
    rcHeader.right = std::max(rcHeader.right, rcHeader.left);
    m_header.MoveWindow(&rcHeader, TRUE);
    if (watch && m_wndFrame.m_hWnd != nullptr) {
        CRect rcFrame;
        rcFrame.UnionRect(&rcHeader, InParent(*this));
        rcFrame.InflateRect(::GetSystemMetrics(SM_CXEDGE), ::GetSystemMetrics(SM_CYEDGE));
        m_wndFrame.MoveWindow(&rcFrame, TRUE);
    }
    if (watch) {
        CRect rcList = InParent(*this);
        rcList.top = rcHeader.bottom;
        SetWindowPos(nullptr, rcList.left, rcList.top, rcList.Width(), rcList.Height(),
                     SWP_NOZORDER);
    }
}
