#include "afx/drawing/image.h"

#include <afxwin.h>

#include <cstdlib>

void CImage::Destroy() {
    m_nDCs = m_hDC != nullptr ? 1 : 0;
    ReleaseDC();
    if (m_hBitmap != nullptr) {
        ::DeleteObject(m_hBitmap);
    }
    m_hBitmap = nullptr;
    TakeMeasures(DIBOR_DEFAULT);
}

void CImage::Attach(HBITMAP hBitmap, DIBOrientation eOrientation) {
    Destroy();
    m_hBitmap = hBitmap;
    TakeMeasures(eOrientation);
}

HBITMAP CImage::Detach() {
    const HBITMAP hBitmap = m_hBitmap;
    m_hBitmap = nullptr;
    Destroy();
    return hBitmap;
}

void CImage::TakeMeasures(DIBOrientation eOrientation) {
    DIBSECTION section = {};
    const int nBytes = m_hBitmap != nullptr ? ::GetObject(m_hBitmap, sizeof(section), &section) : 0;
    const BITMAP& bitmap = section.dsBm;
    m_nWidth = bitmap.bmWidth;
    m_nHeight = bitmap.bmHeight;
    m_nBPP = bitmap.bmBitsPixel;
    m_bAlpha = false;
    m_iTransparent = -1;
    m_pBits = nullptr;
    m_nPitch = bitmap.bmWidthBytes;
    if (nBytes != sizeof(section) || bitmap.bmBits == nullptr) {
        return;
    }
    m_pBits = bitmap.bmBits;
    const bool bBottomUp = eOrientation == DIBOR_BOTTOMUP ||
                           (eOrientation == DIBOR_DEFAULT && section.dsBmih.biHeight > 0);
    if (bBottomUp) {
        m_pBits = static_cast<BYTE*>(m_pBits) + static_cast<ptrdiff_t>(m_nHeight - 1) * m_nPitch;
        m_nPitch = -m_nPitch;
    }
}

BOOL CImage::Create(int nWidth, int nHeight, int nBPP, DWORD dwFlags) {
    Destroy();
    struct {
        BITMAPINFOHEADER header;
        RGBQUAD colors[256];
    } info = {};
    info.header.biSize = sizeof(info.header);
    info.header.biWidth = nWidth;
    info.header.biHeight = nHeight;
    info.header.biPlanes = 1;
    info.header.biBitCount = static_cast<WORD>(nBPP);
    info.header.biCompression = BI_RGB;
    void* pBits = nullptr;
    m_hBitmap = ::CreateDIBSection(nullptr, reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS,
                                   &pBits, nullptr, 0);
    TakeMeasures(nHeight < 0 ? DIBOR_TOPDOWN : DIBOR_BOTTOMUP);
    m_bAlpha = !IsNull() && nBPP == 32 && (dwFlags & createAlphaChannel) != 0;
    return !IsNull();
}

void* CImage::GetPixelAddress(int x, int y) const {
    if (m_pBits == nullptr || x < 0 || y < 0 || x >= m_nWidth || y >= m_nHeight) {
        return nullptr;
    }
    return static_cast<BYTE*>(m_pBits) + static_cast<ptrdiff_t>(y) * m_nPitch +
           static_cast<ptrdiff_t>(x) * m_nBPP / 8;
}

HDC CImage::GetDC() const {
    if (m_hDC == nullptr) {
        m_hDC = ::CreateCompatibleDC(nullptr);
        m_hOldBitmap = ::SelectObject(m_hDC, m_hBitmap);
    }
    ++m_nDCs;
    return m_hDC;
}

void CImage::ReleaseDC() const {
    if (m_nDCs > 0 && --m_nDCs == 0) {
        ::SelectObject(m_hDC, m_hOldBitmap);
        ::DeleteDC(m_hDC);
        m_hDC = nullptr;
    }
}

namespace {

/// An image's context while this lives.
class ImageDC {
public:
    explicit ImageDC(const CImage& image) : m_image(image), m_hDC(image.GetDC()) {}
    ~ImageDC() { m_image.ReleaseDC(); }
    ImageDC(const ImageDC&) = delete;
    ImageDC& operator=(const ImageDC&) = delete;
    operator HDC() const { return m_hDC; }

private:
    const CImage& m_image;
    HDC m_hDC;
};

}  // namespace

COLORREF CImage::GetPixel(int x, int y) const {
    return ::GetPixel(ImageDC(*this), x, y);
}

void CImage::SetPixel(int x, int y, COLORREF color) {
    ::SetPixelV(ImageDC(*this), x, y, color);
}

void CImage::GetColorTable(UINT iFirstColor, UINT nColors, RGBQUAD* prgbColors) const {
    ::GetDIBColorTable(ImageDC(*this), iFirstColor, nColors, prgbColors);
}

void CImage::SetColorTable(UINT iFirstColor, UINT nColors, const RGBQUAD* prgbColors) {
    ::SetDIBColorTable(ImageDC(*this), iFirstColor, nColors, prgbColors);
}

LONG CImage::SetTransparentColor(LONG iTransparentColor) {
    const LONG iOld = m_iTransparent;
    m_iTransparent = iTransparentColor;
    return iOld;
}

COLORREF CImage::TransparentColor() const {
    RGBQUAD color = {};
    if (m_iTransparent < 0 || m_iTransparent >= GetMaxColorTableEntries()) {
        return CLR_INVALID;
    }
    GetColorTable(static_cast<UINT>(m_iTransparent), 1, &color);
    return RGB(color.rgbRed, color.rgbGreen, color.rgbBlue);
}

void CImage::LoadFromResource(HINSTANCE hInstance, LPCTSTR pszResourceName) {
    Attach(static_cast<HBITMAP>(
        ::LoadImage(hInstance, pszResourceName, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
}

// --- Drawing

BOOL CImage::Draw(HDC hDestDC, int xDest, int yDest) const {
    return Draw(hDestDC, xDest, yDest, m_nWidth, m_nHeight);
}

BOOL CImage::Draw(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight) const {
    return Draw(hDestDC, xDest, yDest, nDestWidth, nDestHeight, 0, 0, m_nWidth, m_nHeight);
}

BOOL CImage::Draw(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc,
                  int ySrc, int nSrcWidth, int nSrcHeight) const {
    if (m_bAlpha) {
        return AlphaBlend(hDestDC, xDest, yDest, nDestWidth, nDestHeight, xSrc, ySrc, nSrcWidth,
                          nSrcHeight);
    }
    if (TransparentColor() != CLR_INVALID) {
        return TransparentBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, xSrc, ySrc, nSrcWidth,
                              nSrcHeight);
    }
    return StretchBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, xSrc, ySrc, nSrcWidth,
                      nSrcHeight);
}

BOOL CImage::Draw(HDC hDestDC, const POINT& pointDest) const {
    return Draw(hDestDC, pointDest.x, pointDest.y);
}

BOOL CImage::Draw(HDC hDestDC, const RECT& rectDest) const {
    return Draw(hDestDC, rectDest, CRect(0, 0, m_nWidth, m_nHeight));
}

BOOL CImage::Draw(HDC hDestDC, const RECT& rectDest, const RECT& rectSrc) const {
    const CRect to(rectDest);
    const CRect from(rectSrc);
    return Draw(hDestDC, to.left, to.top, to.Width(), to.Height(), from.left, from.top,
                from.Width(), from.Height());
}

BOOL CImage::BitBlt(HDC hDestDC, int xDest, int yDest, DWORD dwROP) const {
    return BitBlt(hDestDC, xDest, yDest, m_nWidth, m_nHeight, 0, 0, dwROP);
}

BOOL CImage::BitBlt(HDC hDestDC, const POINT& pointDest, DWORD dwROP) const {
    return BitBlt(hDestDC, pointDest.x, pointDest.y, dwROP);
}

BOOL CImage::BitBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc,
                    int ySrc, DWORD dwROP) const {
    return ::BitBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, ImageDC(*this), xSrc, ySrc,
                    dwROP);
}

BOOL CImage::StretchBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight,
                        DWORD dwROP) const {
    return StretchBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, 0, 0, m_nWidth, m_nHeight,
                      dwROP);
}

BOOL CImage::StretchBlt(HDC hDestDC, const RECT& rectDest, DWORD dwROP) const {
    return StretchBlt(hDestDC, rectDest.left, rectDest.top, rectDest.right - rectDest.left,
                      rectDest.bottom - rectDest.top, dwROP);
}

BOOL CImage::StretchBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight,
                        int xSrc, int ySrc, int nSrcWidth, int nSrcHeight, DWORD dwROP) const {
    return ::StretchBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, ImageDC(*this), xSrc, ySrc,
                        nSrcWidth, nSrcHeight, dwROP);
}

BOOL CImage::AlphaBlend(HDC hDestDC, int xDest, int yDest, BYTE bSrcAlpha, BYTE bBlendOp) const {
    return AlphaBlend(hDestDC, xDest, yDest, m_nWidth, m_nHeight, 0, 0, m_nWidth, m_nHeight,
                      bSrcAlpha, bBlendOp);
}

BOOL CImage::AlphaBlend(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight,
                        int xSrc, int ySrc, int nSrcWidth, int nSrcHeight, BYTE bSrcAlpha,
                        BYTE bBlendOp) const {
    const BYTE byFormat = m_bAlpha ? BYTE{AC_SRC_ALPHA} : BYTE{0};
    const BLENDFUNCTION blend = {bBlendOp, 0, bSrcAlpha, byFormat};
    return ::GdiAlphaBlend(hDestDC, xDest, yDest, nDestWidth, nDestHeight, ImageDC(*this), xSrc,
                           ySrc, nSrcWidth, nSrcHeight, blend);
}

BOOL CImage::TransparentBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight,
                            UINT crTransparent) const {
    return TransparentBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, 0, 0, m_nWidth, m_nHeight,
                          crTransparent);
}

BOOL CImage::TransparentBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight,
                            int xSrc, int ySrc, int nSrcWidth, int nSrcHeight,
                            UINT crTransparent) const {
    if (crTransparent == CLR_INVALID) {
        crTransparent = TransparentColor();
    }
    return ::GdiTransparentBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, ImageDC(*this), xSrc,
                               ySrc, nSrcWidth, nSrcHeight, crTransparent);
}
