#include "tree/tree_ctrl.h"

#include "frame/ancestor_font.h"
#include "frame/out_of_memory.h"
#include "frame/select_object.h"
#include "frame/text_out.h"
#include "frame/virtual_step.h"
#include "tree/tree_ctrl_core.h"

#include <algorithm>

// TVSIL_ and state images as the platform publishes them.
namespace {

constexpr UINT kCheckStatesBitmap = 30008;
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
    ON_REGISTERED_MESSAGE(g_nMsgMouseWheel, OnRegisteredMouseWheel)
    ON_MESSAGE(WM_SETREDRAW, OnSetRedraw)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

// --- The core's way back to the control

QVTreeCtrlEx::Core::Core(QVTreeCtrlEx& tree)
    : QVTreeCtrlCoreParts(tree),
      qv::TreeView(port, measure, qv::ProcessText(), tree.m_aStyles),
      m_tree(tree) {}

int QVTreeCtrlEx::Core::CompareItems(HTREEITEM hItem1, HTREEITEM hItem2) {
    return qv::AsBadAlloc([&] { return m_tree.CompareItems(hItem1, hItem2); });
}

bool QVTreeCtrlEx::Core::ReplacesCompareItems() const {
    return QV_REPLACES_STEP(m_tree, QVTreeCtrlEx, CompareItems);
}

bool QVTreeCtrlEx::Core::ReplacesCalcItemRect() const {
    return QV_REPLACES_STEP(m_tree, QVTreeCtrlEx, CalcItemRect);
}

void QVTreeCtrlEx::Core::ReadImageSizes() {
    const auto read = [](CImageList* pImageList, int& cx, int& cy) {
        if (pImageList != nullptr) {
            IMAGEINFO info;
            const bool bKnown = pImageList->GetImageInfo(0, &info);
            cx = bKnown ? info.rcImage.right - info.rcImage.left : 0;
            cy = bKnown ? info.rcImage.bottom - info.rcImage.top : 0;
        }
    };
    read(m_tree.m_pImageList, m_images.cxImage, m_images.cyImage);
    read(m_tree.m_pStateImageList, m_images.cxStateImage, m_images.cyStateImage);
}

void QVTreeCtrlEx::Core::UseFont(HFONT hFont) {
    if (hFont != m_hMeasured) {
        m_hMeasured = hFont;
        measure.SetFont(hFont);
        ForgetExtents();
    }
}

int QVTreeCtrlEx::Core::FontHeight() {
    return qv::AsBadAlloc([this] {
        m_tree.FindFont();
        return m_tree.m_hFont != nullptr ? measure.Extent(" ").cy : 0;
    });
}

void QVTreeCtrlEx::Core::RowRect(int nTop, HTREEITEM hItem, qv::Rect& rect, bool bTextOnly) {
    if (!ReplacesCalcItemRect()) {
        TreeView::CalcItemRect(nullptr, nTop, hItem, rect, bTextOnly);
        return;
    }
    rect = qv::AsBadAlloc([&] {
        CClientDC dc(&m_tree);
        const qv::SelectGuard<CFont> font(dc, m_tree.m_hFont);
        CRect rc;
        m_tree.CalcItemRect(dc, nTop, hItem, rc, bTextOnly);
        return qv::ToRect(rc);
    });
}

int QVTreeCtrlEx::Core::WidestRow() {
    return qv::AsBadAlloc([this] {
        CClientDC dc(&m_tree);
        const qv::SelectGuard<CFont> font(dc, m_tree.m_hFont);
        int nWidest = 0;
        for (HTREEITEM h = m_hRootItem; h != nullptr; h = TreeItems::NextDisplayableItem(h)) {
            CRect rc;
            m_tree.CalcItemRect(dc, 0, h, rc, FALSE);
            nWidest = std::max(nWidest, static_cast<int>(rc.right));
        }
        return nWidest;
    });
}

void QVTreeCtrlEx::Core::NfySelectItem(HTREEITEM hItem) {
    m_tree.NfySelectItem(hItem);
}

// --- Creation

QVTreeCtrlEx::QVTreeCtrlEx()
    : m_pCore(qv::AsMemoryException([this] { return std::make_unique<Core>(*this); })) {}

QVTreeCtrlEx::~QVTreeCtrlEx() {
    DestroyWindow();
}

BOOL QVTreeCtrlEx::Create(DWORD dwStyle, const RECT& rect, CWnd* pParent, UINT nID) {
    return CWnd::Create(nullptr, "", dwStyle, rect, pParent, nID, nullptr);
}

void QVTreeCtrlEx::OnDestroy() {
    CWnd::OnDestroy();
    m_hFont = nullptr;
    m_pCore->UseFont(nullptr);
    m_pCore->Reset();
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
    m_pCore->m_bAllowTags = bAllow;
}

void QVTreeCtrlEx::SetShowStatesAtRoot(BOOL bShow) {
    m_pCore->m_bShowStatesAtRoot = bShow;
}

void QVTreeCtrlEx::SetAutoTagChildren(BOOL bAuto) {
    m_pCore->m_bAutoTagChildren = bAuto;
}

// --- Items

HTREEITEM QVTreeCtrlEx::InsertItem(LPCSTR pszText, int nImage, int nSelectedImage,
                                   HTREEITEM hParent, HTREEITEM hInsertAfter) {
    return m_pCore->InsertItem(pszText, nImage, nSelectedImage, hParent, hInsertAfter);
}

BOOL QVTreeCtrlEx::DeleteItem(HTREEITEM hItem) {
    return m_pCore->DeleteItem(hItem);
}

BOOL QVTreeCtrlEx::DeleteChildren(HTREEITEM hItem) {
    if (IsDead(hItem)) {
        return FALSE;
    }
    return m_pCore->DeleteChildren(hItem);
}

BOOL QVTreeCtrlEx::DeleteAllItems() {
    m_pCore->DeleteAllItems();
    return TRUE;
}

BOOL QVTreeCtrlEx::ChangeParent(HTREEITEM hItem, HTREEITEM hNewParent) {
    return m_pCore->ChangeParent(hItem, hNewParent);
}

BOOL QVTreeCtrlEx::SortChildren(HTREEITEM hParent) {
    if (IsDead(hParent)) {
        return FALSE;
    }
    return m_pCore->SortChildren(hParent);
}

HTREEITEM QVTreeCtrlEx::FindItem(HTREEITEM hParent, const CString& strText, int nImage) {
    if (hParent == TVI_ROOT) {
        hParent = nullptr;
    }
    return IsDead(hParent) ? nullptr : m_pCore->FindItem(hParent, strText, nImage);
}

int QVTreeCtrlEx::CompareItems(HTREEITEM hItem1, HTREEITEM hItem2) {
    return m_pCore->TreeItems::CompareItems(hItem1, hItem2);
}

// --- Navigation

HTREEITEM QVTreeCtrlEx::GetNextItem(HTREEITEM hItem, UINT nCode) {
    if (hItem == TVI_ROOT) {
        hItem = nullptr;
    }
    return IsDead(hItem) ? nullptr : m_pCore->GetNextItem(hItem, nCode);
}

HTREEITEM QVTreeCtrlEx::GetSelectedItem() {
    return m_pCore->m_hSelectedItem;
}

HTREEITEM QVTreeCtrlEx::GetLastChild(HTREEITEM hItem) {
    return m_pCore->GetLastChild(Live(hItem));
}

HTREEITEM QVTreeCtrlEx::WalkNext(HTREEITEM hItem) {
    return m_pCore->WalkNext(Live(hItem));
}

HTREEITEM QVTreeCtrlEx::WalkPrev(HTREEITEM hItem) {
    return m_pCore->WalkPrev(Live(hItem));
}

HTREEITEM QVTreeCtrlEx::NextDisplayableItem(HTREEITEM hItem) {
    return m_pCore->NextDisplayableItem(Live(hItem));
}

HTREEITEM QVTreeCtrlEx::LastDisplayableItem(HTREEITEM hItem) {
    return m_pCore->LastDisplayableItem(Live(hItem));
}

BOOL QVTreeCtrlEx::CheckForAncestor(HTREEITEM hItem, HTREEITEM hAncestor) {
    return m_pCore->CheckForAncestor(Live(hItem), Live(hAncestor));
}

// --- Attributes

CString QVTreeCtrlEx::GetItemText(HTREEITEM hItem) {
    return Live(hItem) != nullptr ? CString(hItem->pszText) : g_strEmpty;
}

void QVTreeCtrlEx::SetItemText(HTREEITEM hItem, const CString& strText) {
    m_pCore->SetItemText(Live(hItem), strText);
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
    m_pCore->SetItemImage(Live(hItem), nImage, nSelectedImage);
    return FALSE;
}

UINT QVTreeCtrlEx::GetItemState(HTREEITEM hItem) {
    return Live(hItem) != nullptr ? hItem->nState : 0;
}

void QVTreeCtrlEx::SetItemState(HTREEITEM hItem, UINT nState, UINT nMask) {
    m_pCore->SetItemState(Live(hItem), nState, nMask);
}

UINT QVTreeCtrlEx::StateImageFromState(UINT nState) {
    return Core::StateImageFromState(nState);
}

UINT QVTreeCtrlEx::SetStateImage(UINT nState, UINT nImage) {
    return Core::SetStateImage(nState, nImage);
}

BOOL QVTreeCtrlEx::HaveStateImage(HTREEITEM hItem) {
    return m_pCore->HaveStateImage(Live(hItem));
}

UINT QVTreeCtrlEx::GetItemStateImage(HTREEITEM hItem) {
    return m_pCore->GetItemStateImage(Live(hItem));
}

void QVTreeCtrlEx::SetItemStateImage(HTREEITEM hItem, UINT nImage, BOOL bChildren) {
    m_pCore->SetItemStateImage(Live(hItem), nImage, bChildren);
}

BOOL QVTreeCtrlEx::GetCheck(HTREEITEM hItem) {
    return GetItemStateImage(hItem) > 0;
}

void QVTreeCtrlEx::SetCheck(HTREEITEM hItem, BOOL bCheck, BOOL bChildren) {
    SetItemStateImage(hItem, bCheck ? 1 : 0, bChildren);
}

HTREEITEM QVTreeCtrlEx::GetNextCheckedItem(HTREEITEM hItem, UINT nState) {
    return IsDead(hItem) ? nullptr : m_pCore->GetNextCheckedItem(hItem, nState);
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
    return m_pCore->ChangeItemStyles(Live(hItem), nStyle, bUpTheTree, bOnlyDefault);
}

// --- Columns

void QVTreeCtrlEx::UseTabs(const int* pTabs, int nCount) {
    m_pCore->UseTabs(pTabs, nCount);
}

void QVTreeCtrlEx::ClearTabs() {
    m_pCore->ClearTabs();
}

int QVTreeCtrlEx::GetTabValue(int nTab) {
    return m_pCore->Tabs().Value(nTab);
}

void QVTreeCtrlEx::SetTabValue(int nTab, int nValue) {
    m_pCore->SetTabValue(nTab, nValue);
}

UINT QVTreeCtrlEx::GetTabFormat(int nTab) {
    return m_pCore->Tabs().Format(nTab);
}

void QVTreeCtrlEx::SetTabFormat(int nTab, UINT nFormat) {
    m_pCore->SetTabFormat(nTab, nFormat);
}

void QVTreeCtrlEx::SetIndentTabs(BOOL bIndent) {
    m_pCore->SetIndentTabs(bIndent);
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
    (bNormal ? m_pCore->m_images.bNormal : m_pCore->m_images.bState) = pImageList != nullptr;
    m_pCore->ReadImageSizes();
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
    return m_pCore->ItemHeight();
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
        [&] { m_pCore->CalcItemRect(bOwnFont ? nullptr : &other, nTop, hItem, rc, bTextOnly); });
    rect = qv::ToCRect(rc);
}

BOOL QVTreeCtrlEx::GetItemRect(HTREEITEM hItem, LPRECT pRect, BOOL bTextOnly) {
    qv::Rect rect;
    if (!m_pCore->GetItemRect(Live(hItem), rect, bTextOnly)) {
        return FALSE;
    }
    *pRect = qv::ToCRect(rect);
    return TRUE;
}

HTREEITEM QVTreeCtrlEx::HitTest(CPoint pt, UINT* pFlags, CRect* pRect) {
    qv::Rect rect;
    const HTREEITEM hItem =
        m_pCore->HitTest({static_cast<int>(pt.x), static_cast<int>(pt.y)}, pFlags, &rect);
    if (hItem != nullptr && pRect != nullptr) {
        *pRect = qv::ToCRect(rect);
    }
    return hItem;
}

BOOL QVTreeCtrlEx::ItemVisible(HTREEITEM hItem) {
    return m_pCore->ItemVisible(Live(hItem));
}

BOOL QVTreeCtrlEx::ItemExpanded(HTREEITEM hItem) {
    return (GetItemState(hItem) & TVIS_EXPANDED) != 0;
}

BOOL QVTreeCtrlEx::EnsureVisible(HTREEITEM hItem) {
    return m_pCore->EnsureVisible(Live(hItem));
}

BOOL QVTreeCtrlEx::Expand(HTREEITEM hItem, UINT nCode, BOOL bInvalidate, BOOL bCollapseChildren) {
    return m_pCore->Expand(Live(hItem), nCode, bInvalidate, bCollapseChildren);
}

BOOL QVTreeCtrlEx::SelectItem(HTREEITEM hItem) {
    return !IsDead(hItem) && m_pCore->SelectItem(hItem);
}

void QVTreeCtrlEx::InvalidateItem(HTREEITEM hItem, BOOL bErase) {
    m_pCore->InvalidateItem(Live(hItem), bErase);
}

// Nothing leaves the window procedure for want of memory, and nobody is asked to close a message
// about it: what the message was to do is left undone.
LRESULT QVTreeCtrlEx::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return qv::HandleQuietly(m_hWnd, message,
                             [&] { return CWnd::WindowProc(message, wParam, lParam); });
}

void QVTreeCtrlEx::OnSize(UINT, int, int) {
    Default();
    m_pCore->Resize();
}

LRESULT QVTreeCtrlEx::OnSetRedraw(WPARAM wParam, LPARAM) {
    m_pCore->SetRedraw(wParam != 0);
    return 0;
}
