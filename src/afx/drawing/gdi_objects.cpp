#include "afx/drawing/gdi.h"

#include "afx/drawing/handle_map.h"
#include "afx/drawing/owned_handles.h"
#include "afx/drawing/thread_map.h"

#include <afxwin.h>

IMPLEMENT_DYNCREATE(CGdiObject, CObject)
IMPLEMENT_DYNCREATE(CPen, CGdiObject)
IMPLEMENT_DYNCREATE(CBrush, CGdiObject)
IMPLEMENT_DYNCREATE(CFont, CGdiObject)
IMPLEMENT_DYNCREATE(CBitmap, CGdiObject)
IMPLEMENT_DYNCREATE(CPalette, CGdiObject)
IMPLEMENT_DYNCREATE(CRgn, CGdiObject)

namespace {

LONG s_nOwnedHandles = 0;

// Programs call these through null pointers; without noipa the check would be compiled away.
[[gnu::noipa]] HGDIOBJ HandleOrNull(const CGdiObject* pObject) {
    return pObject != nullptr ? pObject->m_hObject : nullptr;
}

template <class Handle>
Handle HandleOf(const CGdiObject* pObject) {
    return static_cast<Handle>(HandleOrNull(pObject));
}

}  // namespace

LONG AfxGetOwnedHandleCount() {
    return s_nOwnedHandles;
}

void AfxCountOwnedHandle(int nChange) {
    ::InterlockedExchangeAdd(&s_nOwnedHandles, nChange);
}

/// The map of one thread. Temporary objects are plain CGdiObjects: pens, brushes and so on add
/// nothing to it, so one serves as any of them.
struct AfxGdiMap {
    static void Put(CGdiObject& object, HGDIOBJ hObject) {
        object.m_hObject = hObject;
        object.m_bTemporary = true;
    }
    struct Map : CHandleMap<CGdiObject, HGDIOBJ> {
        Map() : CHandleMap(&Put) {}
    };
    static Map& Get() { return AfxThreadMap<Map>(); }
};

CGdiObject::CGdiObject() = default;

CGdiObject::~CGdiObject() {
    DeleteObject();
}

HGDIOBJ CGdiObject::GetSafeHandle() const {
    return HandleOrNull(this);
}

BOOL CGdiObject::Attach(HGDIOBJ hObject) {
    if (hObject == nullptr) {
        return FALSE;
    }
    DeleteObject();
    m_hObject = hObject;
    AfxGdiMap::Get().SetPermanent(hObject, this);
    AfxCountOwnedHandle(1);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach() {
    const HGDIOBJ hObject = m_hObject;
    m_hObject = nullptr;
    if (hObject != nullptr && !m_bTemporary) {
        AfxGdiMap::Get().RemovePermanent(this);
        AfxCountOwnedHandle(-1);
    }
    return hObject;
}

BOOL CGdiObject::DeleteObject() {
    if (m_hObject == nullptr) {
        return FALSE;
    }
    return ::DeleteObject(Detach());
}

CGdiObject* CGdiObject::FromHandle(HGDIOBJ hObject) {
    return AfxGdiMap::Get().FromHandle(hObject);
}

void CGdiObject::DeleteTempMap() {
    AfxGdiMap::Get().DeleteTemp();
}

int CGdiObject::GetObject(int nCount, LPVOID lpObject) const {
    return ::GetObject(m_hObject, nCount, lpObject);
}

UINT CGdiObject::GetObjectType() const {
    return ::GetObjectType(m_hObject);
}

BOOL CGdiObject::CreateStockObject(int nIndex) {
    return Attach(::GetStockObject(nIndex));
}

BOOL CGdiObject::UnrealizeObject() {
    return ::UnrealizeObject(m_hObject);
}

CPen* CPen::FromHandle(HPEN h) {
    return static_cast<CPen*>(CGdiObject::FromHandle(h));
}
CBrush* CBrush::FromHandle(HBRUSH h) {
    return static_cast<CBrush*>(CGdiObject::FromHandle(h));
}
CFont* CFont::FromHandle(HFONT h) {
    return static_cast<CFont*>(CGdiObject::FromHandle(h));
}
CBitmap* CBitmap::FromHandle(HBITMAP h) {
    return static_cast<CBitmap*>(CGdiObject::FromHandle(h));
}
CPalette* CPalette::FromHandle(HPALETTE h) {
    return static_cast<CPalette*>(CGdiObject::FromHandle(h));
}
CRgn* CRgn::FromHandle(HRGN h) {
    return static_cast<CRgn*>(CGdiObject::FromHandle(h));
}

// --- Pens and brushes

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor) {
    if (!CreatePen(nPenStyle, nWidth, crColor)) {
        AfxThrowResourceException();
    }
}

CPen::CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount,
           const DWORD* lpStyle) {
    if (!CreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle)) {
        AfxThrowResourceException();
    }
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, COLORREF crColor) {
    return Attach(::CreatePen(nPenStyle, nWidth, crColor));
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount,
                     const DWORD* lpStyle) {
    return Attach(::ExtCreatePen(static_cast<DWORD>(nPenStyle), static_cast<DWORD>(nWidth),
                                 pLogBrush, static_cast<DWORD>(nStyleCount), lpStyle));
}

BOOL CPen::CreatePenIndirect(LPLOGPEN lpLogPen) {
    return Attach(::CreatePenIndirect(lpLogPen));
}

CBrush::CBrush(COLORREF crColor) {
    if (!CreateSolidBrush(crColor)) {
        AfxThrowResourceException();
    }
}

CBrush::CBrush(int nIndex, COLORREF crColor) {
    if (!CreateHatchBrush(nIndex, crColor)) {
        AfxThrowResourceException();
    }
}

CBrush::CBrush(CBitmap* pBitmap) {
    if (!CreatePatternBrush(pBitmap)) {
        AfxThrowResourceException();
    }
}

BOOL CBrush::CreateSolidBrush(COLORREF crColor) {
    return Attach(::CreateSolidBrush(crColor));
}
BOOL CBrush::CreateHatchBrush(int nIndex, COLORREF crColor) {
    return Attach(::CreateHatchBrush(nIndex, crColor));
}
BOOL CBrush::CreateBrushIndirect(const LOGBRUSH* lpLogBrush) {
    return Attach(::CreateBrushIndirect(lpLogBrush));
}
BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap) {
    return Attach(::CreatePatternBrush(HandleOf<HBITMAP>(pBitmap)));
}
BOOL CBrush::CreateDIBPatternBrush(HGLOBAL hPackedDIB, UINT nUsage) {
    const void* const pDIB = ::GlobalLock(hPackedDIB);
    if (pDIB == nullptr) {
        return FALSE;
    }
    const BOOL bMade = CreateDIBPatternBrush(pDIB, nUsage);
    ::GlobalUnlock(hPackedDIB);
    return bMade;
}
BOOL CBrush::CreateDIBPatternBrush(const void* lpPackedDIB, UINT nUsage) {
    return Attach(::CreateDIBPatternBrushPt(lpPackedDIB, nUsage));
}
BOOL CBrush::CreateSysColorBrush(int nIndex) {
    return Attach(::GetSysColorBrush(nIndex));
}

// --- Fonts

BOOL CFont::CreateFontIndirect(const LOGFONT* lpLogFont) {
    return Attach(::CreateFontIndirect(lpLogFont));
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight,
                       BYTE bItalic, BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet,
                       BYTE nOutPrecision, BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily,
                       LPCTSTR lpszFacename) {
    return Attach(::CreateFont(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic,
                               bUnderline, cStrikeOut, nCharSet, nOutPrecision, nClipPrecision,
                               nQuality, nPitchAndFamily, lpszFacename));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC) {
    LOGFONT font{};
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfHeight = nPointSize;
    lstrcpyn(font.lfFaceName, lpszFaceName, LF_FACESIZE);
    return CreatePointFontIndirect(&font, pDC);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC) {
    constexpr int kTenthsAnInch = 720;
    const HDC hDC = pDC != nullptr ? pDC->m_hAttribDC : ::GetDC(nullptr);
    LOGFONT font = *lpLogFont;
    // Through the mapping of the context, as its units need not be pixels.
    POINT pt{0, ::MulDiv(::GetDeviceCaps(hDC, LOGPIXELSY), font.lfHeight, kTenthsAnInch)};
    POINT ptOrigin{0, 0};
    ::DPtoLP(hDC, &pt, 1);
    ::DPtoLP(hDC, &ptOrigin, 1);
    font.lfHeight = -abs(pt.y - ptOrigin.y);
    if (pDC == nullptr) {
        ::ReleaseDC(nullptr, hDC);
    }
    return CreateFontIndirect(&font);
}

// --- Bitmaps

BOOL CBitmap::LoadBitmap(LPCTSTR lpszResourceName) {
    return Attach(
        ::LoadBitmap(AfxFindResourceHandle(lpszResourceName, RT_BITMAP), lpszResourceName));
}

BOOL CBitmap::LoadOEMBitmap(UINT nIDBitmap) {
    return Attach(::LoadBitmap(nullptr, MAKEINTRESOURCE(nIDBitmap)));
}

BOOL CBitmap::LoadMappedBitmap(UINT nIDBitmap, UINT nFlags, LPCOLORMAP lpColorMap, int nMapSize) {
    const HINSTANCE hInst = AfxFindResourceHandle(MAKEINTRESOURCE(nIDBitmap), RT_BITMAP);
    return Attach(
        ::CreateMappedBitmap(hInst, static_cast<INT_PTR>(nIDBitmap), nFlags, lpColorMap, nMapSize));
}

BOOL CBitmap::CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount,
                           const void* lpBits) {
    return Attach(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
}

BOOL CBitmap::CreateBitmapIndirect(LPBITMAP lpBitmap) {
    return Attach(::CreateBitmapIndirect(lpBitmap));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight) {
    return Attach(::CreateCompatibleBitmap(pDC->GetSafeHdc(), nWidth, nHeight));
}

BOOL CBitmap::CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight) {
    return Attach(::CreateDiscardableBitmap(pDC->GetSafeHdc(), nWidth, nHeight));
}

DWORD CBitmap::SetBitmapBits(DWORD dwCount, const void* lpBits) {
    return static_cast<DWORD>(::SetBitmapBits(*this, dwCount, lpBits));
}

DWORD CBitmap::GetBitmapBits(DWORD dwCount, LPVOID lpBits) const {
    return static_cast<DWORD>(::GetBitmapBits(*this, static_cast<LONG>(dwCount), lpBits));
}

CSize CBitmap::GetBitmapDimension() const {
    SIZE size{};
    ::GetBitmapDimensionEx(*this, &size);
    return size;
}

CSize CBitmap::SetBitmapDimension(int nWidth, int nHeight) {
    SIZE size{};
    ::SetBitmapDimensionEx(*this, nWidth, nHeight, &size);
    return size;
}

// --- Palettes and regions

BOOL CPalette::CreatePalette(LPLOGPALETTE lpLogPalette) {
    return Attach(::CreatePalette(lpLogPalette));
}

int CPalette::GetEntryCount() {
    WORD nEntries = 0;
    GetObject(sizeof(nEntries), &nEntries);
    return nEntries;
}

BOOL CPalette::CreateHalftonePalette(CDC* pDC) {
    return Attach(::CreateHalftonePalette(pDC->GetSafeHdc()));
}
UINT CPalette::GetPaletteEntries(UINT nStart, UINT nCount, LPPALETTEENTRY p) const {
    return ::GetPaletteEntries(*this, nStart, nCount, p);
}
UINT CPalette::SetPaletteEntries(UINT nStart, UINT nCount, LPPALETTEENTRY p) {
    return ::SetPaletteEntries(*this, nStart, nCount, p);
}
void CPalette::AnimatePalette(UINT nStart, UINT nCount, LPPALETTEENTRY p) {
    ::AnimatePalette(*this, nStart, nCount, p);
}
UINT CPalette::GetNearestPaletteIndex(COLORREF crColor) const {
    return ::GetNearestPaletteIndex(*this, crColor);
}
BOOL CPalette::ResizePalette(UINT nNumEntries) {
    return ::ResizePalette(*this, nNumEntries);
}

BOOL CRgn::CreateRectRgn(int x1, int y1, int x2, int y2) {
    return Attach(::CreateRectRgn(x1, y1, x2, y2));
}
BOOL CRgn::CreateRectRgnIndirect(LPCRECT lpRect) {
    return Attach(::CreateRectRgnIndirect(lpRect));
}
BOOL CRgn::CreateEllipticRgn(int x1, int y1, int x2, int y2) {
    return Attach(::CreateEllipticRgn(x1, y1, x2, y2));
}
BOOL CRgn::CreatePolyPolygonRgn(LPPOINT lpPoints, LPINT lpPolyCounts, int nCount, int nMode) {
    return Attach(::CreatePolyPolygonRgn(lpPoints, lpPolyCounts, nCount, nMode));
}
BOOL CRgn::CreateFromPath(CDC* pDC) {
    return Attach(::PathToRegion(pDC->GetSafeHdc()));
}
BOOL CRgn::CreateFromData(const XFORM* lpXForm, int nCount, const RGNDATA* pRgnData) {
    return Attach(::ExtCreateRegion(lpXForm, static_cast<DWORD>(nCount), pRgnData));
}
int CRgn::GetRegionData(LPRGNDATA lpRgnData, int nDataSize) const {
    return static_cast<int>(::GetRegionData(*this, static_cast<DWORD>(nDataSize), lpRgnData));
}
BOOL CRgn::CreateEllipticRgnIndirect(LPCRECT lpRect) {
    return Attach(::CreateEllipticRgnIndirect(lpRect));
}
BOOL CRgn::CreatePolygonRgn(LPPOINT lpPoints, int nCount, int nMode) {
    return Attach(::CreatePolygonRgn(lpPoints, nCount, nMode));
}
BOOL CRgn::CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3) {
    return Attach(::CreateRoundRectRgn(x1, y1, x2, y2, x3, y3));
}
int CRgn::CombineRgn(CRgn* pRgn1, CRgn* pRgn2, int nCombineMode) {
    return ::CombineRgn(*this, HandleOf<HRGN>(pRgn1), HandleOf<HRGN>(pRgn2), nCombineMode);
}
BOOL CRgn::EqualRgn(CRgn* pRgn) const {
    return ::EqualRgn(*this, HandleOf<HRGN>(pRgn));
}
int CRgn::OffsetRgn(int x, int y) {
    return ::OffsetRgn(*this, x, y);
}
int CRgn::GetRgnBox(LPRECT lpRect) const {
    return ::GetRgnBox(*this, lpRect);
}
BOOL CRgn::PtInRegion(int x, int y) const {
    return ::PtInRegion(*this, x, y);
}
BOOL CRgn::RectInRegion(LPCRECT lpRect) const {
    return ::RectInRegion(*this, lpRect);
}
void CRgn::SetRectRgn(LPCRECT r) {
    SetRectRgn(r->left, r->top, r->right, r->bottom);
}
void CRgn::SetRectRgn(int x1, int y1, int x2, int y2) {
    ::SetRectRgn(*this, x1, y1, x2, y2);
}
