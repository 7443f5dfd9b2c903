#include "list/list_ctrl.h"

#include "frame/ancestor_font.h"
#include "frame/core/wheel.h"
#include "frame/create_window.h"
#include "frame/dc_guards.h"
#include "frame/image_strip.h"
#include "frame/mouse_wheel.h"
#include "frame/out_of_memory.h"
#include "frame/saved_rows.h"
#include "list/list_ctrl_core.h"

#include <climits>

IMPLEMENT_DYNCREATE(QVListCtrlEx, CListCtrl)

BEGIN_MESSAGE_MAP(QVListCtrlEx, CListCtrl)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_MOUSEWHEEL()
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_WM_SIZE()
    ON_WM_DESTROY()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_WINDOWPOSCHANGING()
    ON_WM_WINDOWPOSCHANGED()
    ON_MESSAGE(WM_GETOBJECT, &QVListCtrlEx::OnGetObject)
    ON_NOTIFY_REFLECT_EX(LVN_ITEMCHANGED, &QVListCtrlEx::OnTellItemChanged)
    ON_NOTIFY_REFLECT(LVN_COLUMNCLICK, &QVListCtrlEx::OnItemclick)
    ON_MESSAGE(LVM_INSERTCOLUMNA, &QVListCtrlEx::OnInsertColumn)
    ON_MESSAGE(LVM_INSERTCOLUMNW, &QVListCtrlEx::OnInsertColumn)
    ON_MESSAGE(LVM_DELETECOLUMN, &QVListCtrlEx::OnDeleteColumn)
    ON_MESSAGE(LVM_DELETEITEM, &QVListCtrlEx::OnDeleteListItem)
    ON_MESSAGE(LVM_DELETEALLITEMS, &QVListCtrlEx::OnDeleteAllItems)
END_MESSAGE_MAP()

// --- Creation

QVListCtrlEx::QVListCtrlEx()
    : QVAccessible(static_cast<CWnd&>(*this)),
      m_dwDefStyle(WS_CHILD | WS_VISIBLE | WS_BORDER | LVS_REPORT | LVS_SINGLESEL |
                   LVS_SHOWSELALWAYS | LVS_OWNERDRAWFIXED),
      m_pCore(qv::AsMemoryException([] { return std::make_unique<Core>(); })) {}

QVListCtrlEx::~QVListCtrlEx() {
    DestroyWindow();
}

void QVListCtrlEx::ModifyDefStyle(DWORD dwRemove, DWORD dwAdd) {
    m_dwDefStyle = (m_dwDefStyle & ~dwRemove) | dwAdd;
}

BOOL QVListCtrlEx::Create(UINT nID, const CRect& rc, UINT nBitmapID, COLORREF crMask, int cx,
                          CWnd* pParent) {
    const qv::AliveWatch watch(m_alive);
    BOOL bInitialized = FALSE;
    qv::MemorySuffices([&] {
        bInitialized = CListCtrl::Create(m_dwDefStyle, rc, pParent, nID) &&
                       Initialize(nID, nBitmapID, crMask, cx, pParent);
    });
    if (!bInitialized && watch) {
        DestroyWindow();
    }
    return bInitialized;
}

BOOL QVListCtrlEx::Create(UINT nID, const CRect& rc, CWnd* pParent) {
    return Create(nID, rc, 0, 0, 0, pParent);
}

BOOL QVListCtrlEx::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr) {
        cs.lpszClass = WC_LISTVIEW;
    }
    cs.style = static_cast<LONG>(m_dwDefStyle);
    qv::BorderToClientEdge(cs);
    return CListCtrl::PreCreateWindow(cs);
}

BOOL QVListCtrlEx::Initialize(UINT nID, CWnd* pParent) {
    return Initialize(nID, 0, 0, 0, pParent);
}

BOOL QVListCtrlEx::Initialize(UINT nID, UINT nBitmapID, COLORREF crMask, int cx, CWnd* pParent) {
    const bool bAttach = m_hWnd == nullptr;
    bool bDone = false;
    const qv::AliveWatch watch(m_alive);
    qv::MemorySuffices([&] {
        bDone = (!bAttach || SubclassDlgItem(nID, pParent)) && SetUp(nBitmapID, crMask, cx);
    });
    if (!bDone && watch && bAttach && m_hWnd != nullptr) {
        UnsubclassWindow();
    }
    return bDone;
}

// False if the list is gone.
bool QVListCtrlEx::SetUp(UINT nBitmapID, COLORREF crMask, int cx) {
    if (m_pCore->hTold == nullptr) {
        m_pCore->hTold = ::GetParent(m_hWnd);
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    ModifyStyle(LVS_TYPEMASK, LVS_REPORT | LVS_OWNERDRAWFIXED, 0);
    LoadImages(nBitmapID, crMask, cx);
    qv::TakeNearestFont(*this);
    MeasureFont();
    CRect rcClient;
    GetClientRect(&rcClient);
    m_nClientWidth = rcClient.Width();
    if (m_bSingleColumn) {
        LVCOLUMN column{};
        column.mask = LVCF_WIDTH;
        if (!GetColumn(0, &column)) {
            CListCtrl::InsertColumn(0, "", LVCFMT_LEFT, -1, 0);
            SetColWidth(0, m_nClientWidth, nullptr);
        }
    }
    if (watch) {
        SetupColumns();
    }
    return static_cast<bool>(watch);
}

// The control deletes the image lists that it has when it goes; ours is not its own.
void QVListCtrlEx::OnSysColorChange() {
    CListCtrl::OnSysColorChange();
    FollowSystemColors();
    Invalidate(FALSE);
}

void QVListCtrlEx::OnDestroy() {
    SetImageList(nullptr, LVSIL_SMALL);
    m_pCore->hTold = nullptr;
    m_pCore->bSortsItself.reset();
    CListCtrl::OnDestroy();
}

HWND QVListCtrlEx::ToldWindow() const {
    return m_pCore->hTold != nullptr ? m_pCore->hTold : ::GetParent(m_hWnd);
}

void QVListCtrlEx::LoadImages(UINT nBitmapID, COLORREF crMask, int cx) {
    if (cx <= 0) {
        return;
    }
    SetImageList(nullptr, LVSIL_SMALL);
    CSize size;
    const bool bLoaded = qv::LoadStrip(m_imageList, nBitmapID, cx, crMask, size);
    m_nImageWidth = size.cx;
    m_nImageHeight = size.cy;
    if (bLoaded) {
        SetImageList(&m_imageList, LVSIL_SMALL);
    }
}

void QVListCtrlEx::MeasureFont() {
    CFont* pFont = GetFont();
    if (m_nTextHeight != 0 || pFont == nullptr) {
        return;
    }
    CClientDC dc(this);
    const qv::SelectGuard<CFont> font(dc, pFont);
    TEXTMETRIC metrics;
    if (dc.GetTextMetrics(&metrics)) {
        m_nTextHeight = metrics.tmHeight - metrics.tmInternalLeading;
    }
}

void QVListCtrlEx::SetImageFirstCol(BOOL bFirst) {
    m_bImageFirstCol = bFirst;
    m_pCore->places.Invalidate();
}

// --- Selection

int QVListCtrlEx::GetSelectedItem() {
    return GetSelectedCount() == 1 ? GetNextItem(-1, LVNI_SELECTED) : -1;
}

int QVListCtrlEx::SelectItem(int nItem) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    for (int nOld; watch && (nOld = GetSelectedItem()) != -1;) {
        // A parent may refuse the change; it would be asked without end.
        if (!SetItemState(nOld, 0, LVIS_SELECTED) || !watch || GetSelectedItem() == nOld) {
            break;
        }
    }
    if (watch && nItem != -1) {
        const UINT nState = LVIS_SELECTED | (HasFocus() ? LVIS_FOCUSED : 0);
        SetItemState(nItem, nState, nState);
    }
    return -1;
}

void QVListCtrlEx::SaveSelections() {
    INT_PTR nSaved = 0;
    const auto nSelected = static_cast<INT_PTR>(GetSelectedCount());
    if (!qv::MemorySuffices([&] { m_aSavedSel.SetSize(nSelected); })) {
        return;
    }
    for (int nItem = -1; (nItem = GetNextItem(nItem, LVNI_SELECTED)) != -1 && nSaved < nSelected;) {
        m_aSavedSel[nSaved++] = GetItemData(nItem);
    }
    m_aSavedSel.SetSize(nSaved);
}

void QVListCtrlEx::RestoreSelections() {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const auto select = [&](int nItem) {
        SetItemState(nItem, LVIS_SELECTED, LVIS_SELECTED);
        return static_cast<bool>(watch);
    };
    if (m_pCore->pRows == nullptr) {
        qv::FindSavedRows(
            m_aSavedSel, GetItemCount(), [this](int nItem) { return GetItemData(nItem); }, select);
        return;
    }
    qv::MemorySuffices([&] {
        for (INT_PTR i = 0; watch && i < m_aSavedSel.GetSize(); ++i) {
            if (const int nItem = m_pCore->pRows->ItemOf(m_aSavedSel[i]); nItem != -1) {
                select(nItem);
            }
        }
    });
}

void QVListCtrlEx::InvalidateData(BOOL bErase) {
    CRect rcItem;
    if (GetItemCount() > 0 && GetItemRect(GetTopIndex(), &rcItem, LVIR_BOUNDS)) {
        CRect rc;
        GetClientRect(&rc);
        rc.top = rcItem.top;
        InvalidateRect(&rc, bErase);
    }
}

// --- Messages

// Comes before all maps: a message that a derived class answers by itself changes rows as well.
LRESULT QVListCtrlEx::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const bool bContent = m_pCore->SeeMessage(message, wParam, lParam);
    const qv::AliveWatch watch(m_alive);
    const LRESULT lResult = CListCtrl::WindowProc(message, wParam, lParam);
    if (!watch) {
        return lResult;
    }
    if (bContent) {
        m_pCore->changes.EndContent();
    }
    TellChange(message, wParam, lParam);
    return lResult;
}

bool QVListCtrlEx::Core::SeeMessage(UINT nMessage, WPARAM wParam, LPARAM lParam) {
    const auto* pItem = reinterpret_cast<const LVITEM*>(lParam);
    switch (nMessage) {
        case LVM_INSERTITEMA:
        case LVM_INSERTITEMW:
            return SeeItem(pItem, true);
        case LVM_SETITEMA:
        case LVM_SETITEMW:
            return SeeItem(pItem, false);
        case LVM_SETITEMTEXTA:
        case LVM_SETITEMTEXTW:
            SeeText(pItem != nullptr ? pItem->pszText : nullptr);
            return true;
        case LVM_DELETEITEM:
        case LVM_DELETEALLITEMS:
        case LVM_SETITEMCOUNT:
        case LVM_INSERTCOLUMNA:
        case LVM_INSERTCOLUMNW:
        case LVM_DELETECOLUMN:
            changes.CountContent();
            return true;
        case LVM_SORTITEMS:
        case LVM_SORTITEMSEX:
            changes.CountOrder();
            return false;
        case WM_SETREDRAW:
            bRedraws = wParam != FALSE;
            return false;
        case WM_STYLECHANGED:
            bSortsItself.reset();
            changes.CountData();
            return false;
        default:
            return false;
    }
}

bool QVListCtrlEx::Redraws() const {
    return m_pCore->bRedraws;
}

bool QVListCtrlEx::PausesFor(int nRows) const {
    return Redraws() && nRows > GetCountPerPage();
}

bool QVListCtrlEx::Core::SeeItem(const LVITEM* pItem, bool bNew) {
    const UINT nMask = pItem != nullptr ? pItem->mask : 0;
    if (bNew || (nMask & LVIF_TEXT) != 0) {
        SeeText((nMask & LVIF_TEXT) != 0 ? pItem->pszText : nullptr);
        return true;
    }
    if ((nMask & LVIF_PARAM) != 0) {
        changes.CountData();
    }
    return (nMask & LVIF_PARAM) != 0;
}

// The constant of a text on demand is the same for both kinds of text.
void QVListCtrlEx::Core::SeeText(LPCSTR pszText) {
    if (pszText == LPSTR_TEXTCALLBACK) {
        changes.SeeCallback();
    }
    changes.CountContent();
}

const qv::RowChanges& QVListCtrlEx::Changes() const {
    return m_pCore->changes;
}

// What a paint knows of them is not read anew: the control takes over a new width when it sees the
// message that says so, after the handler that this comes from.
void QVListCtrlEx::ForgetWidths() {
    m_nDataWidth = -1;
    m_pCore->paintWidths.clear();
}

LRESULT QVListCtrlEx::OnInsertColumn(WPARAM wParam, LPARAM lParam) {
    if (lParam != 0 && wParam < INT_MAX) {
        m_pCore->columns.CountInserted(static_cast<int>(wParam));
    }
    ForgetWidths();
    return Default();
}

LRESULT QVListCtrlEx::OnDeleteColumn(WPARAM, LPARAM) {
    m_pCore->columns.CountDeleted();
    ForgetWidths();
    return Default();
}

LRESULT QVListCtrlEx::OnDeleteListItem(WPARAM, LPARAM) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const LRESULT lResult = Default();
    if (watch && m_bSingleColumn) {
        CalcSingleColWidth();
    }
    return lResult;
}

LRESULT QVListCtrlEx::OnDeleteAllItems(WPARAM wParam, LPARAM lParam) {
    return OnDeleteListItem(wParam, lParam);
}

void QVListCtrlEx::OnItemclick(NMHDR* pHdr, LRESULT* pResult) {
    *pResult = 0;
    SortOnHeader(reinterpret_cast<NMLISTVIEW*>(pHdr)->iSubItem);
}

BOOL QVListCtrlEx::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT*) {
    const UINT nCode = reinterpret_cast<const NMHDR*>(lParam)->code;
    if (wParam == 0 && (nCode == HDN_ITEMCHANGEDA || nCode == HDN_ITEMCHANGEDW)) {
        ForgetWidths();
        InvalidateData(FALSE);
    }
    return FALSE;
}

void QVListCtrlEx::OnSize(UINT, int cx, int) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    Default();
    if (!watch) {
        return;
    }
    m_nClientWidth = cx;
    if (!m_bSingleColumn) {
        return;
    }
    CRect rcWindow;
    GetWindowRect(&rcWindow);
    if (rcWindow.Width() != m_rcWindow.Width()) {
        CalcSingleColWidth();
        if (watch) {
            m_rcWindow = rcWindow;
        }
    }
}

void QVListCtrlEx::OnWindowPosChanging(WINDOWPOS* pPos) {
    Default();
    pPos->flags |= SWP_NOREDRAW;
}

void QVListCtrlEx::OnWindowPosChanged(WINDOWPOS*) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    Default();
    if (watch) {
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
    }
}

BOOL QVListCtrlEx::OnMouseWheel(UINT, short zDelta, CPoint) {
    // One remainder for all lists of the process: the wheel is one.
    static int s_nRemainder = 0;
    const qv::WindowWatch watch(m_alive, m_hWnd);
    qv::TurnWheel(s_nRemainder, zDelta, GetMouseScrollLines(FALSE), [&](bool bUp, bool) {
        if (watch) {
            Scroll(CSize(0, bUp ? -m_nTextHeight : m_nTextHeight));
        }
    });
    return TRUE;
}
