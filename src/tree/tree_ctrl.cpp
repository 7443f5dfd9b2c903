#include "tree/tree_ctrl.h"

#include "frame/ancestor_font.h"
#include "frame/module_state.h"
#include "frame/out_of_memory.h"
#include "frame/text_out.h"
#include "tree/tree_ctrl_core.h"

namespace {

constexpr UINT kCheckStatesBitmap = 30008;  // four boxes, see controls.rc
constexpr int kStateImageWidth = 12;
constexpr COLORREF kStateImageMask = RGB(0, 128, 128);

// A deleted item, or a TVI_ position where an item is meant.
bool IsDead(HTREEITEM hItem) {
    return hItem == TVI_ROOT || hItem == TVI_FIRST || hItem == TVI_LAST || hItem == TVI_SORT ||
           (hItem != nullptr && hItem->pszText == nullptr);
}

// What getters of an item's attributes read: null for no item and for a dead one.
HTREEITEM Live(HTREEITEM hItem) {
    return IsDead(hItem) ? nullptr : hItem;
}

}  // namespace

IMPLEMENT_DYNCREATE(QVTreeCtrlEx, CWnd)

BEGIN_MESSAGE_MAP(QVTreeCtrlEx, CWnd)
    ON_WM_PAINT()
    ON_WM_SIZE()
    ON_WM_VSCROLL()
    ON_WM_HSCROLL()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONDOWN()
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_WM_GETDLGCODE()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_MOUSEWHEEL()
    ON_REGISTERED_MESSAGE(g_nMsgMouseWheel, &QVTreeCtrlEx::OnRegisteredMouseWheel)
    ON_MESSAGE(WM_SETREDRAW, &QVTreeCtrlEx::OnSetRedraw)
    ON_WM_DESTROY()
    ON_WM_SYSCOLORCHANGE()
    ON_MESSAGE(WM_GETOBJECT, &QVTreeCtrlEx::OnGetObject)
END_MESSAGE_MAP()

// --- Creation

QVTreeCtrlEx::QVTreeCtrlEx()
    : QVAccessible(static_cast<CWnd&>(*this)),
      m_pCore(qv::AsMemoryException([this] { return std::make_unique<Core>(*this); })) {}

QVTreeCtrlEx::~QVTreeCtrlEx() {
    DestroyWindow();
}

qv::TreeView& QVTreeCtrlEx::View() const {
    return m_pCore->View();
}

const qv::TreeItems& QVTreeCtrlEx::Items() const {
    return m_pCore->Items();
}

BOOL QVTreeCtrlEx::Create(DWORD dwStyle, const RECT& rect, CWnd* pParent, UINT nID) {
    return CWnd::Create(nullptr, "", dwStyle, rect, pParent, nID, nullptr);
}

void QVTreeCtrlEx::OnSysColorChange() {
    CWnd::OnSysColorChange();
    FollowSystemColors();
    Invalidate(FALSE);
}

void QVTreeCtrlEx::OnDestroy() {
    CWnd::OnDestroy();
    m_hFont = nullptr;
    m_pCore->UseFont(nullptr);
    View().Reset();
}

// The tree handles no WM_SETFONT: its font is that of its nearest ancestor that has one.
void QVTreeCtrlEx::FindFont() {
    if (m_hFont == nullptr) {
        if (const CFont* pFont = qv::NearestFont(this)) {
            m_hFont = *pFont;
        }
    }
    m_pCore->UseFont(m_hFont);
}

void QVTreeCtrlEx::InvalidateAll() {
    InvalidateRect(nullptr, FALSE);
}

void QVTreeCtrlEx::SetAllowTags(BOOL bAllow) {
    m_bAllowTags = bAllow;
}

void QVTreeCtrlEx::SetShowStatesAtRoot(BOOL bShow) {
    View().ShowStatesAtRoot(bShow);
}

void QVTreeCtrlEx::SetAutoTagChildren(BOOL bAuto) {
    m_bAutoTagChildren = bAuto;
}

// --- What a derived class sees of its tree

HTREEITEM QVTreeCtrlEx::GetTopItem() const {
    return Items().Top();
}

HTREEITEM QVTreeCtrlEx::GetBottomItem() const {
    return Items().Bottom();
}

BOOL QVTreeCtrlEx::GetRedraw() const {
    return View().Redraw();
}

BOOL QVTreeCtrlEx::GetShowStatesAtRoot() const {
    return Items().StatesAtRoot();
}

BOOL QVTreeCtrlEx::GetIndentTabs() const {
    return View().IndentTabs();
}

int QVTreeCtrlEx::GetTabCount() const {
    return View().Tabs().Count();
}

int QVTreeCtrlEx::GetMaxWidth() const {
    return View().MaxWidth();
}

int QVTreeCtrlEx::GetHScrollPos() const {
    return View().HScrollPos();
}

int QVTreeCtrlEx::GetVScrollPos() const {
    return View().VScrollPos();
}

int QVTreeCtrlEx::GetHPage() const {
    return View().HPage();
}

int QVTreeCtrlEx::GetVPage() const {
    return View().VPage();
}

CSize QVTreeCtrlEx::GetImageSize() const {
    return {View().Images().cxImage, View().Images().cyImage};
}

CSize QVTreeCtrlEx::GetStateImageSize() const {
    return {View().Images().cxStateImage, View().Images().cyStateImage};
}

int QVTreeCtrlEx::GetIndentStep() const {
    return View().IndentStep();
}

// --- Items

HTREEITEM QVTreeCtrlEx::InsertItem(LPCSTR pszText, int nImage, int nSelectedImage,
                                   HTREEITEM hParent, HTREEITEM hInsertAfter) {
    const qv::AliveWatch watch(Items().Alive());
    const HTREEITEM hItem =
        View().InsertItem(pszText, nImage, nSelectedImage, hParent, hInsertAfter);
    if (watch) {
        TellAccessibleReorder();
    }
    return hItem;
}

// A selection among what goes is moved silently; who listens hears of it.
template <class Removal>
BOOL QVTreeCtrlEx::TellRemoval(Removal remove) {
    const HTREEITEM hSelected = GetSelectedItem();
    const BOOL bRemoved = remove();
    TellAccessibleReorder();
    if (GetSelectedItem() != hSelected) {
        TellAccessibleSelected(GetItemPart(GetSelectedItem()));
    }
    return bRemoved;
}

BOOL QVTreeCtrlEx::DeleteItem(HTREEITEM hItem) {
    return TellRemoval([&] { return View().DeleteItem(hItem); });
}

BOOL QVTreeCtrlEx::DeleteChildren(HTREEITEM hItem) {
    if (IsDead(hItem)) {
        return FALSE;
    }
    return TellRemoval([&] { return View().DeleteChildren(hItem); });
}

BOOL QVTreeCtrlEx::DeleteAllItems() {
    return TellRemoval([&] {
        View().DeleteAllItems();
        return true;
    });
}

BOOL QVTreeCtrlEx::ChangeParent(HTREEITEM hItem, HTREEITEM hNewParent) {
    const BOOL bMoved = View().ChangeParent(hItem, hNewParent);
    TellAccessibleReorder();
    return bMoved;
}

BOOL QVTreeCtrlEx::SortChildren(HTREEITEM hParent) {
    if (IsDead(hParent)) {
        return FALSE;
    }
    const qv::AliveWatch watch(Items().Alive());
    const BOOL bSorted = View().SortChildren(hParent);
    if (watch) {
        TellAccessibleReorder();
    }
    return bSorted;
}

HTREEITEM QVTreeCtrlEx::FindItem(HTREEITEM hParent, const CString& strText, int nImage) {
    if (hParent == TVI_ROOT) {
        hParent = nullptr;
    }
    return IsDead(hParent) ? nullptr : Items().FindItem(hParent, strText, nImage);
}

int QVTreeCtrlEx::CompareItems(HTREEITEM hItem1, HTREEITEM hItem2) {
    return Items().CompareTexts(hItem1, hItem2);
}

// --- Navigation

HTREEITEM QVTreeCtrlEx::GetNextItem(HTREEITEM hItem, UINT nCode) {
    if (hItem == TVI_ROOT) {
        hItem = nullptr;
    }
    return IsDead(hItem) ? nullptr : Items().GetNextItem(hItem, nCode);
}

HTREEITEM QVTreeCtrlEx::GetSelectedItem() {
    return Items().Selected();
}

HTREEITEM QVTreeCtrlEx::GetLastChild(HTREEITEM hItem) {
    return Items().GetLastChild(Live(hItem));
}

HTREEITEM QVTreeCtrlEx::WalkNext(HTREEITEM hItem) {
    return Items().WalkNext(Live(hItem));
}

HTREEITEM QVTreeCtrlEx::WalkPrev(HTREEITEM hItem) {
    return Items().WalkPrev(Live(hItem));
}

HTREEITEM QVTreeCtrlEx::NextDisplayableItem(HTREEITEM hItem) {
    return Items().NextDisplayableItem(Live(hItem));
}

HTREEITEM QVTreeCtrlEx::LastDisplayableItem(HTREEITEM hItem) {
    return Items().LastDisplayableItem(Live(hItem));
}

BOOL QVTreeCtrlEx::CheckForAncestor(HTREEITEM hItem, HTREEITEM hAncestor) {
    return Items().CheckForAncestor(Live(hItem), Live(hAncestor));
}

// --- Attributes

CString QVTreeCtrlEx::GetItemText(HTREEITEM hItem) {
    return Live(hItem) != nullptr ? CString(hItem->pszText) : g_strEmpty;
}

void QVTreeCtrlEx::SetItemText(HTREEITEM hItem, const CString& strText) {
    View().SetItemText(Live(hItem), strText);
    TellItem(EVENT_OBJECT_NAMECHANGE, Live(hItem));
}

DWORD_PTR QVTreeCtrlEx::GetItemData(HTREEITEM hItem) {
    return Live(hItem) != nullptr ? hItem->dwData : 0;
}

BOOL QVTreeCtrlEx::SetItemData(HTREEITEM hItem, DWORD_PTR dwData) {
    if (Live(hItem) == nullptr) {
        return FALSE;
    }
    hItem->dwData = dwData;
    return TRUE;
}

BOOL QVTreeCtrlEx::GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) {
    if (Live(hItem) == nullptr) {
        return FALSE;
    }
    nImage = hItem->nImage;
    nSelectedImage = hItem->nSelectedImage;
    return TRUE;
}

int QVTreeCtrlEx::GetItemImage(HTREEITEM hItem) {
    return Live(hItem) != nullptr ? hItem->nImage : -1;
}

BOOL QVTreeCtrlEx::SetItemImage(HTREEITEM hItem, int nImage) {
    return SetItemImage(hItem, nImage, nImage);
}

BOOL QVTreeCtrlEx::SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage) {
    View().SetItemImage(Live(hItem), nImage, nSelectedImage);
    return FALSE;
}

UINT QVTreeCtrlEx::GetItemState(HTREEITEM hItem) {
    return Live(hItem) != nullptr ? hItem->nState : 0;
}

void QVTreeCtrlEx::SetItemState(HTREEITEM hItem, UINT nState, UINT nMask) {
    View().SetItemState(Live(hItem), nState, nMask);
    if ((nMask & TVIS_EXPANDED) != 0) {
        TellAccessibleReorder();
    }
    TellItem(EVENT_OBJECT_STATECHANGE, Live(hItem));
}

UINT QVTreeCtrlEx::StateImageFromState(UINT nState) {
    return qv::TreeItems::StateImageFromState(nState);
}

UINT QVTreeCtrlEx::SetStateImage(UINT nState, UINT nImage) {
    return qv::TreeItems::SetStateImage(nState, nImage);
}

BOOL QVTreeCtrlEx::HaveStateImage(HTREEITEM hItem) {
    return Items().HaveStateImage(Live(hItem));
}

UINT QVTreeCtrlEx::GetItemStateImage(HTREEITEM hItem) {
    return Items().GetItemStateImage(Live(hItem));
}

void QVTreeCtrlEx::SetItemStateImage(HTREEITEM hItem, UINT nImage, BOOL bChildren) {
    View().SetItemStateImage(Live(hItem), nImage, bChildren);
    TellItem(EVENT_OBJECT_STATECHANGE, Live(hItem));
}

BOOL QVTreeCtrlEx::GetCheck(HTREEITEM hItem) {
    return GetItemStateImage(hItem) > 0;
}

void QVTreeCtrlEx::SetCheck(HTREEITEM hItem, BOOL bCheck, BOOL bChildren) {
    SetItemStateImage(hItem, bCheck ? 1 : 0, bChildren);
}

HTREEITEM QVTreeCtrlEx::GetNextCheckedItem(HTREEITEM hItem, UINT nState) {
    return IsDead(hItem) ? nullptr : Items().GetNextCheckedItem(hItem, nState);
}

BOOL QVTreeCtrlEx::GetItem(TVITEM* pItem) {
    if (pItem == nullptr) {
        return FALSE;
    }
    MakeTVItem(Live(pItem->hItem), *pItem, TRUE);
    return TRUE;
}

// --- Styles

BOOL QVTreeCtrlEx::ChangeStyle(char* pszText, int nStyle) {
    return qv::ChangeStyle(pszText, nStyle);
}

int QVTreeCtrlEx::ChangeItemStyles(HTREEITEM hItem, int nStyle, BOOL bUpTheTree,
                                   BOOL bOnlyDefault) {
    return View().ChangeItemStyles(Live(hItem), nStyle, bUpTheTree, bOnlyDefault);
}

// --- Columns

void QVTreeCtrlEx::UseTabs(const int* pTabs, int nCount) {
    View().UseTabs(pTabs, nCount);
}

void QVTreeCtrlEx::ClearTabs() {
    View().ClearTabs();
}

int QVTreeCtrlEx::GetTabValue(int nTab) {
    return View().Tabs().Value(nTab);
}

void QVTreeCtrlEx::SetTabValue(int nTab, int nValue) {
    View().SetTabValue(nTab, nValue);
}

UINT QVTreeCtrlEx::GetTabFormat(int nTab) {
    return View().Tabs().Format(nTab);
}

void QVTreeCtrlEx::SetTabFormat(int nTab, UINT nFormat) {
    View().SetTabFormat(nTab, nFormat);
}

void QVTreeCtrlEx::SetIndentTabs(BOOL bIndent) {
    View().SetIndentTabs(bIndent);
}

// --- Images

CImageList* QVTreeCtrlEx::SetImageList(CImageList* pImageList, int nImageList) {
    const bool bNormal = nImageList == TVSIL_NORMAL;
    if (!bNormal && nImageList != TVSIL_STATE) {
        return nullptr;
    }
    CImageList*& pList = bNormal ? m_pImageList : m_pStateImageList;
    CImageList* pOld = pList;
    pList = pImageList;
    qv::TreeImages images = View().Images();
    (bNormal ? images.bNormal : images.bState) = pImageList != nullptr;
    m_pCore->ReadImageSizes(images);
    View().SetImages(images);
    return pOld;
}

void QVTreeCtrlEx::LoadStandardCheckStates() {
    LoadTreeStates(kCheckStatesBitmap);
}

BOOL QVTreeCtrlEx::LoadTreeStates(UINT nBitmapId) {
    CImageList states;
    BOOL bLoaded = FALSE;
    qv::MemorySuffices(
        [&] { bLoaded = states.Create(nBitmapId, kStateImageWidth, 0, kStateImageMask); });
    if (!bLoaded) {
        return FALSE;
    }
    const HIMAGELIST hStates = states.Detach();
    m_imlStates.DeleteImageList();
    qv::MemorySuffices([&] { m_imlStates.Attach(hStates); });
    if (m_imlStates.GetSafeHandle() != hStates) {
        ::ImageList_Destroy(hStates);
        return FALSE;
    }
    SetImageList(&m_imlStates, TVSIL_STATE);
    return TRUE;
}

// --- Geometry and view

int QVTreeCtrlEx::ItemHeight() {
    return View().ItemHeight();
}

void QVTreeCtrlEx::CalcItemRect(CDC& dc, int nTop, HTREEITEM hItem, CRect& rect, BOOL bTextOnly) {
    ItemHeight();  // finds the font, if that is still to be done
    // On the screen, pixel by pixel, the widths that are known hold.
    const bool bOwnFont =
        m_hFont != nullptr && ::GetCurrentObject(dc.m_hAttribDC, OBJ_FONT) == m_hFont &&
        dc.GetMapMode() == MM_TEXT && dc.GetDeviceCaps(TECHNOLOGY) == DT_RASDISPLAY;
    qv::DcMeasure other(dc);
    qv::Rect rc;
    qv::AsMemoryException(
        [&] { View().CalcItemRect(bOwnFont ? nullptr : &other, nTop, hItem, rc, bTextOnly); });
    rect = qv::ToCRect(rc);
}

BOOL QVTreeCtrlEx::GetItemRect(HTREEITEM hItem, LPRECT pRect, BOOL bTextOnly) {
    qv::Rect rect;
    if (!View().GetItemRect(Live(hItem), rect, bTextOnly)) {
        return FALSE;
    }
    *pRect = qv::ToCRect(rect);
    return TRUE;
}

HTREEITEM QVTreeCtrlEx::HitTest(CPoint pt, UINT* pFlags, CRect* pRect) {
    qv::Rect rect;
    const HTREEITEM hItem =
        View().HitTest({static_cast<int>(pt.x), static_cast<int>(pt.y)}, pFlags, &rect);
    if (hItem != nullptr && pRect != nullptr) {
        *pRect = qv::ToCRect(rect);
    }
    return hItem;
}

BOOL QVTreeCtrlEx::ItemVisible(HTREEITEM hItem) {
    return View().ItemVisible(Live(hItem));
}

BOOL QVTreeCtrlEx::ItemExpanded(HTREEITEM hItem) {
    return (GetItemState(hItem) & TVIS_EXPANDED) != 0;
}

BOOL QVTreeCtrlEx::EnsureVisible(HTREEITEM hItem) {
    hItem = Live(hItem);
    HTREEITEM hClosed = hItem != nullptr ? hItem->pParent : nullptr;
    while (hClosed != nullptr && ItemExpanded(hClosed)) {
        hClosed = hClosed->pParent;
    }
    const BOOL bVisible = View().EnsureVisible(hItem);
    if (hClosed != nullptr) {
        TellAccessibleReorder();
        TellItem(EVENT_OBJECT_STATECHANGE, hClosed);
    }
    return bVisible;
}

BOOL QVTreeCtrlEx::Expand(HTREEITEM hItem, UINT nCode, BOOL bInvalidate, BOOL bCollapseChildren) {
    const qv::AliveWatch watch(Items().Alive());
    const BOOL bDone = View().Expand(Live(hItem), nCode, bInvalidate, bCollapseChildren);
    if (bDone && watch) {
        TellAccessibleReorder();
        TellItem(EVENT_OBJECT_STATECHANGE, Live(hItem));
    }
    return bDone;
}

BOOL QVTreeCtrlEx::SelectItem(HTREEITEM hItem) {
    const Guard guard(*this, nullptr);
    if (IsDead(hItem) || !View().SelectItem(hItem)) {
        return FALSE;
    }
    if (guard) {
        TellAccessibleSelected(GetItemPart(hItem));
    }
    return TRUE;
}

void QVTreeCtrlEx::InvalidateItem(HTREEITEM hItem, BOOL bErase) {
    View().InvalidateItem(Live(hItem), bErase);
}

// Nothing leaves the window procedure for want of memory, and nobody is asked to close a message
// about it: what the message was to do is left undone.
LRESULT QVTreeCtrlEx::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return qv::HandleQuietly(m_hWnd, message,
                             [&] { return CWnd::WindowProc(message, wParam, lParam); });
}

// --- On a window of the platform's tree class

void QVTreeCtrlEx::PreSubclassWindow() {
    char szClass[sizeof(WC_TREEVIEW) + 1];
    m_bPlatformTree = ::GetClassName(m_hWnd, szClass, sizeof(szClass)) != 0 &&
                      ::lstrcmpi(szClass, WC_TREEVIEW) == 0;
    CWnd::PreSubclassWindow();
    if (m_bPlatformTree) {
        DropPlatformTips();
    }
}

void QVTreeCtrlEx::DropPlatformTips() {
    const auto hTips = reinterpret_cast<HWND>(::SendMessage(m_hWnd, TVM_GETTOOLTIPS, 0, 0));
    if (hTips != nullptr) {
        ::SendMessage(m_hWnd, TVM_SETTOOLTIPS, 0, 0);
        ::DestroyWindow(hTips);
    }
}

// The platform's class would tell the parent of focus, keys and clicks, search by typing, wait for
// a drag, and hide the bars of a tree that is empty to it. It gets what makes and ends the window,
// and the font, which the tree may take from it.
LRESULT QVTreeCtrlEx::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (!m_bPlatformTree) {
        return CWnd::DefWindowProc(message, wParam, lParam);
    }
    switch (message) {
        case WM_NCCREATE:
        case WM_DESTROY:
        case WM_NCDESTROY:
        case WM_GETFONT:
        case TVM_GETTOOLTIPS:
        case TVM_SETTOOLTIPS:
            return CWnd::DefWindowProc(message, wParam, lParam);
        case WM_CREATE: {
            const LRESULT lResult = CWnd::DefWindowProc(message, wParam, lParam);
            DropPlatformTips();
            return lResult;
        }
        case WM_SETFONT:
            CWnd::DefWindowProc(message, wParam, lParam);
            View().Resize();
            return 0;
        default:
            return ::DefWindowProc(m_hWnd, message, wParam, lParam);
    }
}

void QVTreeCtrlEx::OnSize(UINT, int, int) {
    Default();
    View().Resize();
}

LRESULT QVTreeCtrlEx::OnSetRedraw(WPARAM wParam, LPARAM) {
    View().SetRedraw(wParam != 0);
    return 0;
}
