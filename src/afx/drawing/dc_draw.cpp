// CDC's output and measuring: clip, lines, areas, pixels, text, print jobs.
#include "afx/drawing/dc.h"

#include "afx/values/wide_text.h"

#include <afxtempl.h>
#include <afxwin.h>

#include <algorithm>
#include <cwchar>
#include <vector>

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
    nFlags |= bPrefixText ? DST_PREFIXTEXT : DST_TEXT;
    const AfxWideText wide(m_hDC, lpszText, nTextLen != 0 ? nTextLen : -1);
    return wide.IsPlain()
               ? ::DrawStateA(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(lpszText),
                              static_cast<WPARAM>(nTextLen), pt.x, pt.y, size.cx, size.cy, nFlags)
               : ::DrawStateW(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(wide.Get()),
                              static_cast<WPARAM>(wide.Length()), pt.x, pt.y, size.cx, size.cy,
                              nFlags);
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

namespace {

template <typename Value>
std::vector<Value> Zeros(int nCount) {
    return AfxNeedMemory([&] { return std::vector<Value>(static_cast<size_t>(nCount)); });
}

/// Widths given for each byte, as widths for each unit: a character gets the sum of its bytes'.
/// nPerPlace: numbers for each byte and unit.
std::vector<int> WidthsOfUnits(const AfxWideText& wide, const INT* pWidths, int nPerPlace) {
    std::vector<int> widths = Zeros<int>(wide.Length() * nPerPlace);
    wide.ForEachChar([&](int nByte, int nBytes, int nUnit, int) {
        for (int i = 0; i < nBytes * nPerPlace; ++i) {
            widths[static_cast<size_t>(nUnit * nPerPlace + i % nPerPlace)] +=
                pWidths[nByte * nPerPlace + i];
        }
    });
    return widths;
}

/// Draws with DT_MODIFYSTRING, by which a text that was shortened for display comes back in the
/// caller's buffer. That has room for four bytes more than the text.
int DrawAndModify(HDC hDC, const AfxWideText& wide, LPSTR lpszString, LPRECT lpRect, UINT nFormat,
                  LPDRAWTEXTPARAMS lpDTParams) {
    constexpr int kMoreRoom = 4;
    std::vector<WCHAR> text = Zeros<WCHAR>(wide.Length() + kMoreRoom + 1);
    std::copy_n(wide.Get(), wide.Length(), text.begin());
    const int nHeight = ::DrawTextExW(hDC, text.data(), wide.Length(), lpRect, nFormat, lpDTParams);
    if (std::wcscmp(text.data(), wide.Get()) != 0) {
        ::WideCharToMultiByte(CP_ACP, 0, text.data(), -1, lpszString, wide.Bytes() + kMoreRoom,
                              nullptr, nullptr);
    }
    return nHeight;
}

/// The character of an 8-bit code: one byte, or lead byte and trail byte. 0 where it is none.
WCHAR CharOfCode(UINT nCode) {
    const char bytes[] = {static_cast<char>(nCode >> 8), static_cast<char>(nCode)};
    const int nBytes = nCode > 0xFF ? 2 : 1;
    WCHAR chars[2] = {};
    return ::MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, bytes + 2 - nBytes, nBytes, chars,
                                 2) == 1
               ? chars[0]
               : L'\0';
}

}  // namespace

BOOL CDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount) {
    const AfxWideText wide(m_hDC, lpszString, nCount);
    return wide.IsPlain() ? ::TextOutA(m_hDC, x, y, lpszString, nCount)
                          : ::TextOutW(m_hDC, x, y, wide.Get(), wide.Length());
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                     LPINT lpDxWidths) {
    const bool bText = (nOptions & ETO_GLYPH_INDEX) == 0;
    const AfxWideText wide(m_hDC, bText ? lpszString : nullptr, static_cast<int>(nCount));
    if (wide.IsPlain()) {
        return ::ExtTextOutA(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
    }
    const auto draw = [&](const INT* pWidths) {
        return ::ExtTextOutW(m_hDC, x, y, nOptions, lpRect, wide.Get(),
                             static_cast<UINT>(wide.Length()), pWidths);
    };
    return lpDxWidths == nullptr
               ? draw(nullptr)
               : draw(WidthsOfUnits(wide, lpDxWidths, nOptions & ETO_PDY ? 2 : 1).data());
}

CSize CDC::TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                         LPINT lpnTabStopPositions, int nTabOrigin) {
    const AfxWideText wide(m_hDC, lpszString, nCount);
    const LONG lSize = wide.IsPlain()
                           ? ::TabbedTextOutA(m_hDC, x, y, lpszString, nCount, nTabPositions,
                                              lpnTabStopPositions, nTabOrigin)
                           : ::TabbedTextOutW(m_hDC, x, y, wide.Get(), wide.Length(), nTabPositions,
                                              lpnTabStopPositions, nTabOrigin);
    return CSize(static_cast<DWORD>(lSize));
}

int CDC::DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat) {
    const AfxWideText wide(m_hDC, lpszString, nCount);
    if (wide.IsPlain()) {
        return ::DrawTextA(m_hDC, lpszString, nCount, lpRect, nFormat);
    }
    return nFormat & DT_MODIFYSTRING
               ? DrawAndModify(m_hDC, wide, const_cast<LPSTR>(lpszString), lpRect, nFormat, nullptr)
               : ::DrawTextW(m_hDC, wide.Get(), wide.Length(), lpRect, nFormat);
}
int CDC::DrawText(const CString& str, LPRECT lpRect, UINT nFormat) {
    return DrawText(str, str.GetLength(), lpRect, nFormat);
}

int CDC::DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat,
                    LPDRAWTEXTPARAMS lpDTParams) {
    const AfxWideText wide(m_hDC, lpszString, nCount);
    if (wide.IsPlain()) {
        return ::DrawTextExA(m_hDC, lpszString, nCount, lpRect, nFormat, lpDTParams);
    }
    const int nHeight = nFormat & DT_MODIFYSTRING
                            ? DrawAndModify(m_hDC, wide, lpszString, lpRect, nFormat, lpDTParams)
                            : ::DrawTextExW(m_hDC, const_cast<LPWSTR>(wide.Get()), wide.Length(),
                                            lpRect, nFormat, lpDTParams);
    if (lpDTParams != nullptr) {
        lpDTParams->uiLengthDrawn =
            static_cast<UINT>(wide.BytesOf(static_cast<int>(lpDTParams->uiLengthDrawn)));
    }
    return nHeight;
}

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const {
    return AfxTextExtent(m_hAttribDC, lpszString, nCount);
}
CSize CDC::GetOutputTextExtent(LPCTSTR lpszString, int nCount) const {
    return AfxTextExtent(m_hDC, lpszString, nCount);
}
CSize CDC::GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                               LPINT lpnTabStopPositions) const {
    const AfxWideText wide(m_hAttribDC, lpszString, nCount);
    const DWORD dwSize = wide.IsPlain()
                             ? ::GetTabbedTextExtentA(m_hAttribDC, lpszString, nCount,
                                                      nTabPositions, lpnTabStopPositions)
                             : ::GetTabbedTextExtentW(m_hAttribDC, wide.Get(), wide.Length(),
                                                      nTabPositions, lpnTabStopPositions);
    return CSize(dwSize);
}

BOOL CDC::GetTextExtentExPoint(LPCTSTR lpszString, int nCount, int nMaxExtent, LPINT lpnFit,
                               LPINT lpnDx, LPSIZE lpSize) const {
    const AfxWideText wide(m_hAttribDC, lpszString, nCount);
    if (wide.IsPlain()) {
        return ::GetTextExtentExPointA(m_hAttribDC, lpszString, nCount, nMaxExtent, lpnFit, lpnDx,
                                       lpSize);
    }
    int nFit = 0;
    std::vector<int> extents = Zeros<int>(wide.Length());
    if (!::GetTextExtentExPointW(m_hAttribDC, wide.Get(), wide.Length(), nMaxExtent,
                                 lpnFit != nullptr ? &nFit : nullptr,
                                 lpnDx != nullptr ? extents.data() : nullptr, lpSize)) {
        return FALSE;
    }
    const int nGiven = lpnFit != nullptr ? nFit : wide.Length();
    if (lpnFit != nullptr) {
        *lpnFit = wide.BytesOf(nFit);
    }
    if (lpnDx != nullptr) {
        // Each byte of a character reaches to where the character ends.
        wide.ForEachChar([&](int nByte, int nBytes, int nUnit, int nUnits) {
            if (nUnit + nUnits <= nGiven) {
                std::fill_n(lpnDx + nByte, nBytes,
                            extents[static_cast<size_t>(nUnit + nUnits - 1)]);
            }
        });
    }
    return TRUE;
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
    if (!::GetCharWidth32A(m_hAttribDC, nFirstChar, nLastChar, lpBuffer)) {
        return FALSE;
    }
    if (::GetTextCharset(m_hAttribDC) == SYMBOL_CHARSET) {
        return TRUE;
    }
    constexpr UINT kFirstBeyondAscii = 0x80;
    for (UINT nCode = std::max(nFirstChar, kFirstBeyondAscii); nCode <= nLastChar; ++nCode) {
        if (const WCHAR ch = CharOfCode(nCode)) {
            ::GetCharWidth32W(m_hAttribDC, ch, ch, lpBuffer + (nCode - nFirstChar));
        }
    }
    return TRUE;
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
    const int nResult = ::SetAbortProc(m_hDC, lpfn);
    if (nResult > 0) {
        m_pfnAbort = lpfn;
    }
    return nResult;
}
BOOL CDC::QueryAbort() const {
    return m_pfnAbort == nullptr || m_pfnAbort(m_hDC, 0);
}
int CDC::Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData) {
    return ::Escape(m_hDC, nEscape, nCount, lpszInData, lpOutData);
}
