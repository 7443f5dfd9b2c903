// CDC's output and measuring: clip, lines, areas, pixels, text, print jobs.
#include "afxwin.h"

namespace {

HRGN RegionOf(CRgn* pRgn) {
    return pRgn != nullptr ? static_cast<HRGN>(pRgn->GetSafeHandle()) : nullptr;
}
HBRUSH BrushOf(CBrush* pBrush) {
    return pBrush != nullptr ? static_cast<HBRUSH>(pBrush->GetSafeHandle()) : nullptr;
}

}  // namespace

// --- Clip

int CDC::GetClipBox(LPRECT lpRect) const {
    return ::GetClipBox(m_hDC, lpRect);
}
BOOL CDC::PtVisible(int x, int y) const {
    return ::PtVisible(m_hDC, x, y);
}
BOOL CDC::RectVisible(LPCRECT lpRect) const {
    return ::RectVisible(m_hDC, lpRect);
}
int CDC::SelectClipRgn(CRgn* pRgn) {
    return ::SelectClipRgn(m_hDC, RegionOf(pRgn));
}
int CDC::SelectClipRgn(CRgn* pRgn, int nMode) {
    return ::ExtSelectClipRgn(m_hDC, RegionOf(pRgn), nMode);
}
int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2) {
    return ::ExcludeClipRect(m_hDC, x1, y1, x2, y2);
}
int CDC::ExcludeClipRect(LPCRECT r) {
    return ExcludeClipRect(r->left, r->top, r->right, r->bottom);
}
int CDC::ExcludeUpdateRgn(CWnd* pWnd) {
    return ::ExcludeUpdateRgn(m_hDC, pWnd->m_hWnd);
}
int CDC::IntersectClipRect(int x1, int y1, int x2, int y2) {
    return ::IntersectClipRect(m_hDC, x1, y1, x2, y2);
}
int CDC::IntersectClipRect(LPCRECT r) {
    return IntersectClipRect(r->left, r->top, r->right, r->bottom);
}
int CDC::OffsetClipRgn(int x, int y) {
    return ::OffsetClipRgn(m_hDC, x, y);
}

// --- Lines and shapes

CPoint CDC::GetCurrentPosition() const {
    POINT pt{};
    ::GetCurrentPositionEx(m_hDC, &pt);
    return pt;
}
CPoint CDC::MoveTo(int x, int y) {
    POINT pt{};
    ::MoveToEx(m_hDC, x, y, &pt);
    return pt;
}
BOOL CDC::LineTo(int x, int y) {
    return ::LineTo(m_hDC, x, y);
}
BOOL CDC::Polyline(const POINT* p, int nCount) {
    return ::Polyline(m_hDC, p, nCount);
}
BOOL CDC::Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}
BOOL CDC::Polygon(const POINT* p, int nCount) {
    return ::Polygon(m_hDC, p, nCount);
}
BOOL CDC::Ellipse(int x1, int y1, int x2, int y2) {
    return ::Ellipse(m_hDC, x1, y1, x2, y2);
}
BOOL CDC::Rectangle(int x1, int y1, int x2, int y2) {
    return ::Rectangle(m_hDC, x1, y1, x2, y2);
}
BOOL CDC::RoundRect(int x1, int y1, int x2, int y2, int x3, int y3) {
    return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3);
}

// --- Areas

void CDC::FillRect(LPCRECT lpRect, CBrush* pBrush) {
    ::FillRect(m_hDC, lpRect, BrushOf(pBrush));
}
void CDC::FrameRect(LPCRECT lpRect, CBrush* pBrush) {
    ::FrameRect(m_hDC, lpRect, BrushOf(pBrush));
}
void CDC::InvertRect(LPCRECT lpRect) {
    ::InvertRect(m_hDC, lpRect);
}
BOOL CDC::FillRgn(CRgn* pRgn, CBrush* pBrush) {
    return ::FillRgn(m_hDC, RegionOf(pRgn), BrushOf(pBrush));
}
BOOL CDC::PaintRgn(CRgn* pRgn) {
    return ::PaintRgn(m_hDC, RegionOf(pRgn));
}

// An empty text with an opaque background is the quickest fill there is.
void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr) {
    const COLORREF clrOld = ::SetBkColor(m_hDC, clr);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
    ::SetBkColor(m_hDC, clrOld);
}
void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr) {
    const RECT rect{x, y, x + cx, y + cy};
    FillSolidRect(&rect, clr);
}
void CDC::Draw3dRect(LPCRECT r, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    Draw3dRect(r->left, r->top, r->right - r->left, r->bottom - r->top, clrTopLeft, clrBottomRight);
}
void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, clrBottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, clrBottomRight);
}
BOOL CDC::DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags) {
    return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags);
}
BOOL CDC::DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState) {
    return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
}
void CDC::DrawFocusRect(LPCRECT lpRect) {
    ::DrawFocusRect(m_hDC, lpRect);
}
BOOL CDC::DrawIcon(int x, int y, HICON hIcon) {
    return ::DrawIcon(m_hDC, x, y, hIcon);
}
BOOL CDC::DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush) {
    return ::DrawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(hBitmap), 0, pt.x, pt.y,
                       size.cx, size.cy, nFlags | DST_BITMAP);
}
BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush) {
    return ::DrawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(hIcon), 0, pt.x, pt.y,
                       size.cx, size.cy, nFlags | DST_ICON);
}
BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText,
                    int nTextLen, HBRUSH hBrush) {
    return ::DrawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(lpszText),
                       static_cast<WPARAM>(nTextLen), pt.x, pt.y, size.cx, size.cy,
                       nFlags | (bPrefixText ? DST_PREFIXTEXT : DST_TEXT));
}

// --- Pixels

COLORREF CDC::GetPixel(int x, int y) const {
    return ::GetPixel(m_hDC, x, y);
}
COLORREF CDC::SetPixel(int x, int y, COLORREF cr) {
    return ::SetPixel(m_hDC, x, y, cr);
}
BOOL CDC::SetPixelV(int x, int y, COLORREF cr) {
    return ::SetPixelV(m_hDC, x, y, cr);
}
BOOL CDC::PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop) {
    return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
}
BOOL CDC::BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                 DWORD dwRop) {
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, dwRop);
}
BOOL CDC::StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                     int nSrcWidth, int nSrcHeight, DWORD dwRop) {
    return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, nSrcWidth,
                        nSrcHeight, dwRop);
}
BOOL CDC::ScrollDC(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* pRgnUpdate,
                   LPRECT lpRectUpdate) {
    return ::ScrollDC(m_hDC, dx, dy, lpRectScroll, lpRectClip, RegionOf(pRgnUpdate), lpRectUpdate);
}

// --- Text

BOOL CDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount) {
    return ::TextOut(m_hDC, x, y, lpszString, nCount);
}
BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                     LPINT lpDxWidths) {
    return ::ExtTextOut(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
}
CSize CDC::TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                         LPINT lpnTabStopPositions, int nTabOrigin) {
    return CSize(static_cast<DWORD>(::TabbedTextOut(m_hDC, x, y, lpszString, nCount, nTabPositions,
                                                    lpnTabStopPositions, nTabOrigin)));
}
int CDC::DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat) {
    return ::DrawText(m_hDC, lpszString, nCount, lpRect, nFormat);
}
int CDC::DrawText(const CString& str, LPRECT lpRect, UINT nFormat) {
    return DrawText(str, str.GetLength(), lpRect, nFormat);
}
int CDC::DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat,
                    LPDRAWTEXTPARAMS lpDTParams) {
    return ::DrawTextEx(m_hDC, lpszString, nCount, lpRect, nFormat, lpDTParams);
}

namespace {

CSize TextExtent(HDC hDC, LPCTSTR lpszString, int nCount) {
    SIZE size{};
    ::GetTextExtentPoint32(hDC, lpszString, nCount, &size);
    return size;
}

}  // namespace

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const {
    return TextExtent(m_hAttribDC, lpszString, nCount);
}
CSize CDC::GetOutputTextExtent(LPCTSTR lpszString, int nCount) const {
    return TextExtent(m_hDC, lpszString, nCount);
}
CSize CDC::GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                               LPINT lpnTabStopPositions) const {
    return CSize(static_cast<DWORD>(::GetTabbedTextExtent(m_hAttribDC, lpszString, nCount,
                                                          nTabPositions, lpnTabStopPositions)));
}
BOOL CDC::GetTextExtentExPoint(LPCTSTR lpszString, int nCount, int nMaxExtent, LPINT lpnFit,
                               LPINT lpnDx, LPSIZE lpSize) const {
    return ::GetTextExtentExPoint(m_hAttribDC, lpszString, nCount, nMaxExtent, lpnFit, lpnDx,
                                  lpSize);
}
BOOL CDC::GetTextMetrics(LPTEXTMETRIC p) const {
    return ::GetTextMetrics(m_hAttribDC, p);
}
BOOL CDC::GetOutputTextMetrics(LPTEXTMETRIC p) const {
    return ::GetTextMetrics(m_hDC, p);
}
int CDC::GetTextFace(int nCount, LPTSTR lpszFacename) const {
    return ::GetTextFace(m_hAttribDC, nCount, lpszFacename);
}
int CDC::GetTextFace(CString& rString) const {
    char szFace[LF_FACESIZE] = {};
    const int nResult = GetTextFace(LF_FACESIZE, szFace);
    rString = szFace;
    return nResult;
}
BOOL CDC::GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const {
    return ::GetCharWidth32(m_hAttribDC, nFirstChar, nLastChar, lpBuffer);
}

// --- Print jobs

int CDC::StartDoc(LPDOCINFO lpDocInfo) {
    return ::StartDoc(m_hDC, lpDocInfo);
}
int CDC::StartPage() {
    return ::StartPage(m_hDC);
}
int CDC::EndPage() {
    return ::EndPage(m_hDC);
}
int CDC::EndDoc() {
    return ::EndDoc(m_hDC);
}
int CDC::AbortDoc() {
    return ::AbortDoc(m_hDC);
}
int CDC::SetAbortProc(BOOL(CALLBACK* lpfn)(HDC, int)) {
    return ::SetAbortProc(m_hDC, lpfn);
}
int CDC::Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData) {
    return ::Escape(m_hDC, nEscape, nCount, lpszInData, lpOutData);
}
