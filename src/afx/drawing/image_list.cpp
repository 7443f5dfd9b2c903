#include "afx/drawing/image_list.h"

#include "afx/drawing/handle_map.h"
#include "afx/drawing/owned_handles.h"
#include "afx/drawing/thread_map.h"

#include <afxcmn.h>

IMPLEMENT_DYNCREATE(CImageList, CObject)

struct AfxImageListMap {
    static void Put(CImageList& list, HIMAGELIST hImageList) {
        list.m_hImageList = hImageList;
        list.m_bTemporary = true;
    }
    struct Map : CHandleMap<CImageList, HIMAGELIST> {
        Map() : CHandleMap(&Put) {}
    };
    static Map& Get() { return AfxThreadMap<Map>(); }
};

namespace {

// Programs call these through null pointers; without noipa the check would be compiled away.
[[gnu::noipa]] HIMAGELIST HandleOrNull(const CImageList* pList) {
    return pList != nullptr ? pList->m_hImageList : nullptr;
}

constexpr int kMostPaletteBits = 8;  // of a pixel

HBITMAP BitmapOf(CBitmap* pBitmap) {
    return pBitmap != nullptr ? static_cast<HBITMAP>(pBitmap->GetSafeHandle()) : nullptr;
}

}  // namespace

CImageList::CImageList() = default;
CImageList::~CImageList() {
    DeleteImageList();
}

HIMAGELIST CImageList::GetSafeHandle() const {
    return HandleOrNull(this);
}

CImageList* CImageList::FromHandle(HIMAGELIST h) {
    return AfxImageListMap::Get().FromHandle(h);
}
CImageList* CImageList::FromHandlePermanent(HIMAGELIST h) {
    return AfxImageListMap::Get().LookupPermanent(h);
}
void CImageList::DeleteTempMap() {
    AfxImageListMap::Get().DeleteTemp();
}

BOOL CImageList::Attach(HIMAGELIST hImageList) {
    if (hImageList == nullptr) {
        return FALSE;
    }
    DeleteImageList();
    m_hImageList = hImageList;
    AfxImageListMap::Get().SetPermanent(hImageList, this);
    AfxCountOwnedHandle(1);
    return TRUE;
}

HIMAGELIST CImageList::Detach() {
    const HIMAGELIST hImageList = m_hImageList;
    if (hImageList != nullptr && !m_bTemporary) {
        AfxImageListMap::Get().RemovePermanent(this);
        AfxCountOwnedHandle(-1);
    }
    m_hImageList = nullptr;
    return hImageList;
}

CImageList* AfxNewImageList(HIMAGELIST hImageList) {
    if (hImageList == nullptr) {
        return nullptr;
    }
    auto* pList = new (std::nothrow) CImageList;
    if (pList == nullptr) {
        ::ImageList_Destroy(hImageList);
        AfxThrowMemoryException();
    }
    pList->Attach(hImageList);
    return pList;
}

BOOL CImageList::DeleteImageList() {
    return m_hImageList != nullptr && ::ImageList_Destroy(Detach());
}

BOOL CImageList::Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow) {
    return Attach(::ImageList_Create(cx, cy, nFlags, nInitial, nGrow));
}
BOOL CImageList::Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask) {
    return Create(MAKEINTRESOURCE(nBitmapID), cx, nGrow, crMask);
}
BOOL CImageList::Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask) {
    const HINSTANCE hInst = AfxFindResourceHandle(lpszBitmapID, RT_BITMAP);
    // As a section of its own depth the bitmap keeps its colours, whatever a list has by default.
    CBitmap bitmap;
    bitmap.Attach(::LoadImage(hInst, lpszBitmapID, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
    BITMAP size = {};
    bitmap.GetBitmap(&size);
    if (size.bmBitsPixel > kMostPaletteBits || crMask == CLR_NONE || cx <= 0) {
        return Attach(::ImageList_LoadImage(hInst, lpszBitmapID, cx, nGrow, crMask, IMAGE_BITMAP,
                                            LR_CREATEDIBSECTION));
    }
    // But a list of few colours draws them as the nearest of a palette that is not the bitmap's.
    if (size.bmHeight == 0 || !Create(cx, size.bmHeight, ILC_COLOR24 | ILC_MASK,
                                      static_cast<int>(size.bmWidth) / cx, nGrow)) {
        return FALSE;
    }
    Add(&bitmap, crMask);
    return TRUE;
}
BOOL CImageList::Create(CImageList& list1, int nImage1, CImageList& list2, int nImage2, int dx,
                        int dy) {
    return Attach(::ImageList_Merge(list1, nImage1, list2, nImage2, dx, dy));
}
BOOL CImageList::Create(CImageList* p) {
    return Attach(::ImageList_Duplicate(HandleOrNull(p)));
}

int CImageList::GetImageCount() const {
    return ::ImageList_GetImageCount(m_hImageList);
}
BOOL CImageList::SetImageCount(UINT n) {
    return ::ImageList_SetImageCount(m_hImageList, n);
}
COLORREF CImageList::GetBkColor() const {
    return ::ImageList_GetBkColor(m_hImageList);
}
COLORREF CImageList::SetBkColor(COLORREF cr) {
    return ::ImageList_SetBkColor(m_hImageList, cr);
}
BOOL CImageList::GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const {
    return ::ImageList_GetImageInfo(m_hImageList, nImage, pImageInfo);
}
int CImageList::Add(CBitmap* pbmImage, CBitmap* pbmMask) {
    return ::ImageList_Add(m_hImageList, BitmapOf(pbmImage), BitmapOf(pbmMask));
}
int CImageList::Add(CBitmap* pbmImage, COLORREF crMask) {
    return ::ImageList_AddMasked(m_hImageList, BitmapOf(pbmImage), crMask);
}
int CImageList::Add(HICON hIcon) {
    return ::ImageList_ReplaceIcon(m_hImageList, -1, hIcon);
}
BOOL CImageList::Remove(int nImage) {
    return ::ImageList_Remove(m_hImageList, nImage);
}
BOOL CImageList::Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask) {
    return ::ImageList_Replace(m_hImageList, nImage, BitmapOf(pbmImage), BitmapOf(pbmMask));
}
int CImageList::Replace(int nImage, HICON hIcon) {
    return ::ImageList_ReplaceIcon(m_hImageList, nImage, hIcon);
}
HICON CImageList::ExtractIcon(int nImage) {
    return ::ImageList_GetIcon(m_hImageList, nImage, ILD_NORMAL);
}
BOOL CImageList::Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle) {
    return ::ImageList_Draw(m_hImageList, nImage, pDC->GetSafeHdc(), pt.x, pt.y, nStyle);
}
BOOL CImageList::DrawEx(CDC* pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg,
                        UINT nStyle) {
    return ::ImageList_DrawEx(m_hImageList, nImage, pDC->GetSafeHdc(), pt.x, pt.y, sz.cx, sz.cy,
                              clrBk, clrFg, nStyle);
}
BOOL CImageList::SetOverlayImage(int nImage, int nOverlay) {
    return ::ImageList_SetOverlayImage(m_hImageList, nImage, nOverlay);
}
BOOL CImageList::Copy(int iDst, int iSrc, UINT uFlags) {
    return ::ImageList_Copy(m_hImageList, iDst, m_hImageList, iSrc, uFlags);
}
BOOL CImageList::Copy(int iDst, CImageList* pSrc, int iSrc, UINT uFlags) {
    return ::ImageList_Copy(m_hImageList, iDst, HandleOrNull(pSrc), iSrc, uFlags);
}
BOOL CImageList::DrawIndirect(IMAGELISTDRAWPARAMS* p) {
    IMAGELISTDRAWPARAMS params = *p;
    params.cbSize = sizeof params;
    params.himl = m_hImageList;
    return ::ImageList_DrawIndirect(&params);
}
BOOL CImageList::DrawIndirect(CDC* pDC, int nImage, POINT pt, SIZE sz, POINT ptOrigin, UINT fStyle,
                              DWORD dwRop, COLORREF rgbBack, COLORREF rgbFore) {
    IMAGELISTDRAWPARAMS params{};
    params.i = nImage;
    params.hdcDst = pDC->GetSafeHdc();
    params.x = pt.x;
    params.y = pt.y;
    params.cx = sz.cx;
    params.cy = sz.cy;
    params.xBitmap = ptOrigin.x;
    params.yBitmap = ptOrigin.y;
    params.rgbBk = rgbBack;
    params.rgbFg = rgbFore;
    params.fStyle = fStyle;
    params.dwRop = dwRop;
    return DrawIndirect(&params);
}

// Dragging. Null stands for the screen.

static HWND WindowOf(CWnd* pWnd) {
    return pWnd != nullptr ? pWnd->m_hWnd : nullptr;
}

BOOL CImageList::BeginDrag(int nImage, CPoint ptHotSpot) {
    return ::ImageList_BeginDrag(m_hImageList, nImage, ptHotSpot.x, ptHotSpot.y);
}
void CImageList::EndDrag() {
    ::ImageList_EndDrag();
}
BOOL CImageList::DragEnter(CWnd* pWndLock, CPoint point) {
    return ::ImageList_DragEnter(WindowOf(pWndLock), point.x, point.y);
}
BOOL CImageList::DragMove(CPoint pt) {
    return ::ImageList_DragMove(pt.x, pt.y);
}
BOOL CImageList::DragLeave(CWnd* pWndLock) {
    return ::ImageList_DragLeave(WindowOf(pWndLock));
}
BOOL CImageList::DragShowNolock(BOOL bShow) {
    return ::ImageList_DragShowNolock(bShow);
}
BOOL CImageList::SetDragCursorImage(int nDrag, CPoint ptHotSpot) {
    return ::ImageList_SetDragCursorImage(m_hImageList, nDrag, ptHotSpot.x, ptHotSpot.y);
}
CImageList* CImageList::GetDragImage(LPPOINT lpPoint, LPPOINT lpPointHotSpot) {
    return FromHandle(::ImageList_GetDragImage(lpPoint, lpPointHotSpot));
}
