// CDC: curves, paths, regions, pictures drawn through a mask, and metafiles.
#include "afx/drawing/dc.h"

#include "afx/values/wide_text.h"

#include <afxwin.h>

namespace {

HGDIOBJ ObjectOf(const CGdiObject* pObject) {
    return pObject != nullptr ? pObject->GetSafeHandle() : nullptr;
}
HRGN RegionOf(CRgn* pRgn) {
    return static_cast<HRGN>(ObjectOf(pRgn));
}
HBRUSH BrushOf(CBrush* pBrush) {
    return static_cast<HBRUSH>(ObjectOf(pBrush));
}

}  // namespace

// --- Curves

BOOL CDC::PolylineTo(const POINT* p, int nCount) {
    return ::PolylineTo(m_hDC, p, static_cast<DWORD>(nCount));
}
BOOL CDC::PolyPolyline(const POINT* p, const DWORD* pCounts, int nCount) {
    return ::PolyPolyline(m_hDC, p, pCounts, static_cast<DWORD>(nCount));
}
BOOL CDC::PolyBezier(const POINT* p, int nCount) {
    return ::PolyBezier(m_hDC, p, static_cast<DWORD>(nCount));
}
BOOL CDC::PolyBezierTo(const POINT* p, int nCount) {
    return ::PolyBezierTo(m_hDC, p, static_cast<DWORD>(nCount));
}
BOOL CDC::PolyDraw(const POINT* p, const BYTE* pTypes, int nCount) {
    return ::PolyDraw(m_hDC, p, pTypes, nCount);
}
BOOL CDC::ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    return ::ArcTo(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}
BOOL CDC::AngleArc(int x, int y, int nRadius, float fStart, float fSweep) {
    return ::AngleArc(m_hDC, x, y, static_cast<DWORD>(nRadius), fStart, fSweep);
}
int CDC::GetArcDirection() const {
    return ::GetArcDirection(m_hAttribDC);
}
BOOL CDC::PolyPolygon(const POINT* p, const INT* pCounts, int nCount) {
    return ::PolyPolygon(m_hDC, p, pCounts, nCount);
}
BOOL CDC::Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    return ::Chord(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}
BOOL CDC::Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

// --- Paths

BOOL CDC::BeginPath() {
    return ::BeginPath(m_hDC);
}
BOOL CDC::EndPath() {
    return ::EndPath(m_hDC);
}
BOOL CDC::AbortPath() {
    return ::AbortPath(m_hDC);
}
BOOL CDC::CloseFigure() {
    return ::CloseFigure(m_hDC);
}
BOOL CDC::FillPath() {
    return ::FillPath(m_hDC);
}
BOOL CDC::StrokePath() {
    return ::StrokePath(m_hDC);
}
BOOL CDC::StrokeAndFillPath() {
    return ::StrokeAndFillPath(m_hDC);
}
BOOL CDC::FlattenPath() {
    return ::FlattenPath(m_hDC);
}
BOOL CDC::WidenPath() {
    return ::WidenPath(m_hDC);
}
int CDC::GetPath(LPPOINT p, LPBYTE pTypes, int nCount) const {
    return ::GetPath(m_hDC, p, pTypes, nCount);
}
float CDC::GetMiterLimit() const {
    float fLimit = 0;
    ::GetMiterLimit(m_hDC, &fLimit);
    return fLimit;
}
BOOL CDC::SetMiterLimit(float fMiterLimit) {
    return ::SetMiterLimit(m_hDC, fMiterLimit, nullptr);
}
BOOL CDC::SelectClipPath(int nMode) {
    return ::SelectClipPath(m_hDC, nMode);
}

// --- Regions, and the frame that is dragged

BOOL CDC::FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight) {
    return ::FrameRgn(m_hDC, RegionOf(pRgn), BrushOf(pBrush), nWidth, nHeight);
}
BOOL CDC::InvertRgn(CRgn* pRgn) {
    return ::InvertRgn(m_hDC, RegionOf(pRgn));
}

namespace {

/// The sides of a rectangle, as thick as size.
void MakeFrame(CRgn& rgn, LPCRECT lpRect, SIZE size) {
    CRect rcInside(lpRect);
    rcInside.DeflateRect(size);
    rcInside &= CRect(lpRect);
    CRgn rgnInside;
    rgnInside.CreateRectRgnIndirect(rcInside);
    rgn.CreateRectRgnIndirect(lpRect);
    rgn.CombineRgn(&rgn, &rgnInside, RGN_DIFF);
}

void InvertFrame(CDC& dc, CRgn& rgn, CBrush* pBrush) {
    dc.SaveDC();
    dc.SelectClipRgn(&rgn);
    CRect rcBox;
    dc.GetClipBox(rcBox);
    dc.SelectObject(pBrush != nullptr ? pBrush : CDC::GetHalftoneBrush());
    dc.PatBlt(rcBox.left, rcBox.top, rcBox.Width(), rcBox.Height(), PATINVERT);
    dc.RestoreDC(-1);
}

}  // namespace

void CDC::DrawDragRect(LPCRECT lpRect, SIZE size, LPCRECT lpRectLast, SIZE sizeLast, CBrush* pBrush,
                       CBrush* pBrushLast) {
    CRgn rgnNew;
    MakeFrame(rgnNew, lpRect, size);
    if (lpRectLast == nullptr) {
        InvertFrame(*this, rgnNew, pBrush);
        return;
    }
    CRgn rgnLast;
    MakeFrame(rgnLast, lpRectLast, sizeLast);
    if (BrushOf(pBrush) == BrushOf(pBrushLast)) {
        // In one step where both are alike, so that what stays does not flicker.
        rgnNew.CombineRgn(&rgnNew, &rgnLast, RGN_XOR);
    } else {
        InvertFrame(*this, rgnLast, pBrushLast);
    }
    InvertFrame(*this, rgnNew, pBrush);
}

// --- Pictures

BOOL CDC::FloodFill(int x, int y, COLORREF crColor) {
    return ::FloodFill(m_hDC, x, y, crColor);
}
BOOL CDC::ExtFloodFill(int x, int y, COLORREF crColor, UINT nFillType) {
    return ::ExtFloodFill(m_hDC, x, y, crColor, nFillType);
}
BOOL CDC::MaskBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                  CBitmap& maskBitmap, int xMask, int yMask, DWORD dwRop) {
    return ::MaskBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, maskBitmap,
                     xMask, yMask, dwRop);
}
BOOL CDC::PlgBlt(LPPOINT lpPoint, CDC* pSrcDC, int xSrc, int ySrc, int nWidth, int nHeight,
                 CBitmap& maskBitmap, int xMask, int yMask) {
    return ::PlgBlt(m_hDC, lpPoint, pSrcDC->GetSafeHdc(), xSrc, ySrc, nWidth, nHeight, maskBitmap,
                    xMask, yMask);
}
BOOL CDC::TransparentBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                         int nSrcWidth, int nSrcHeight, UINT clrTransparent) {
    return ::GdiTransparentBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc,
                               nSrcWidth, nSrcHeight, clrTransparent);
}
BOOL CDC::AlphaBlend(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                     int nSrcWidth, int nSrcHeight, BLENDFUNCTION blend) {
    return ::GdiAlphaBlend(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc,
                           nSrcWidth, nSrcHeight, blend);
}
BOOL CDC::GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nElements,
                       DWORD dwMode) {
    return ::GdiGradientFill(m_hDC, pVertices, nVertices, pMesh, nElements, dwMode);
}
BOOL CDC::DrawState(CPoint pt, CSize size, CBitmap* pBitmap, UINT nFlags, CBrush* pBrush) {
    return DrawState(pt, size, static_cast<HBITMAP>(ObjectOf(pBitmap)), nFlags, BrushOf(pBrush));
}
BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush* pBrush) {
    return DrawState(pt, size, hIcon, nFlags, BrushOf(pBrush));
}
BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText,
                    int nTextLen, CBrush* pBrush) {
    return DrawState(pt, size, lpszText, nFlags, bPrefixText, nTextLen, BrushOf(pBrush));
}
BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                    HBRUSH hBrush) {
    return ::DrawState(m_hDC, hBrush, lpDrawProc, lData, 0, pt.x, pt.y, size.cx, size.cy,
                       (nFlags & ~0xFu) | DST_COMPLEX);
}

// --- Fonts and what is counted in them

BOOL CDC::GetOutputCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const {
    return ::GetCharWidth32(m_hDC, nFirstChar, nLastChar, lpBuffer);
}
CSize CDC::GetOutputTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                                     LPINT lpnTabStopPositions) const {
    const AfxWideText wide(m_hDC, lpszString, nCount);
    return CSize(wide.IsPlain() ? ::GetTabbedTextExtentA(m_hDC, lpszString, nCount, nTabPositions,
                                                         lpnTabStopPositions)
                                : ::GetTabbedTextExtentW(m_hDC, wide.Get(), wide.Length(),
                                                         nTabPositions, lpnTabStopPositions));
}
BOOL CDC::GetCharABCWidths(UINT nFirst, UINT nLast, LPABC lpabc) const {
    return ::GetCharABCWidths(m_hAttribDC, nFirst, nLast, lpabc);
}
UINT CDC::GetOutlineTextMetrics(UINT cbData, LPOUTLINETEXTMETRIC lpotm) const {
    return ::GetOutlineTextMetrics(m_hAttribDC, cbData, lpotm);
}
int CDC::GetKerningPairs(int nPairs, LPKERNINGPAIR lpkrnpair) const {
    return static_cast<int>(::GetKerningPairs(m_hAttribDC, static_cast<DWORD>(nPairs), lpkrnpair));
}
DWORD CDC::GetFontData(DWORD dwTable, DWORD dwOffset, LPVOID lpData, DWORD cbData) const {
    return ::GetFontData(m_hAttribDC, dwTable, dwOffset, lpData, cbData);
}
DWORD CDC::GetFontLanguageInfo() const {
    return ::GetFontLanguageInfo(m_hDC);
}
CSize CDC::GetAspectRatioFilter() const {
    SIZE size{};
    ::GetAspectRatioFilterEx(m_hDC, &size);
    return size;
}
BOOL CDC::GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int), LPARAM lpData,
                     int nCount, int x, int y, int nWidth, int nHeight) {
    return ::GrayString(m_hDC, BrushOf(pBrush), lpfnOutput, lpData, nCount, x, y, nWidth, nHeight);
}
int CDC::EnumObjects(int nObjectType, int(CALLBACK* lpfn)(LPVOID, LPARAM), LPARAM lpData) {
    return ::EnumObjects(m_hAttribDC, nObjectType, lpfn, lpData);
}

// --- Metafiles

namespace {

int CALLBACK PlayRecord(HDC hDC, HANDLETABLE* pTable, METARECORD* pRecord, int nHandles,
                        LPARAM lpDC) {
    CDC& dc = *reinterpret_cast<CDC*>(lpDC);
    switch (pRecord->rdFunction) {
        // The origins and extents of a preview's context are virtual.
        case META_SETMAPMODE:
            dc.SetMapMode(static_cast<short>(pRecord->rdParm[0]));
            break;
        case META_SETWINDOWEXT:
            dc.SetWindowExt(static_cast<short>(pRecord->rdParm[1]),
                            static_cast<short>(pRecord->rdParm[0]));
            break;
        case META_SETWINDOWORG:
            dc.SetWindowOrg(static_cast<short>(pRecord->rdParm[1]),
                            static_cast<short>(pRecord->rdParm[0]));
            break;
        case META_SETVIEWPORTEXT:
            dc.SetViewportExt(static_cast<short>(pRecord->rdParm[1]),
                              static_cast<short>(pRecord->rdParm[0]));
            break;
        case META_SETVIEWPORTORG:
            dc.SetViewportOrg(static_cast<short>(pRecord->rdParm[1]),
                              static_cast<short>(pRecord->rdParm[0]));
            break;
        default:
            ::PlayMetaFileRecord(hDC, pTable, pRecord, static_cast<UINT>(nHandles));
            break;
    }
    return 1;
}

}  // namespace

BOOL CDC::PlayMetaFile(HMETAFILE hMF) {
    if (::GetDeviceCaps(m_hDC, TECHNOLOGY) == DT_METAFILE) {
        return ::PlayMetaFile(m_hDC, hMF);
    }
    return ::EnumMetaFile(m_hDC, hMF, PlayRecord, reinterpret_cast<LPARAM>(this));
}
BOOL CDC::PlayMetaFile(HENHMETAFILE hEnhMetaFile, LPCRECT lpBounds) {
    return ::PlayEnhMetaFile(m_hDC, hEnhMetaFile, lpBounds);
}
BOOL CDC::AddMetaFileComment(UINT nDataSize, const BYTE* pCommentData) {
    return ::GdiComment(m_hDC, nDataSize, pCommentData);
}
