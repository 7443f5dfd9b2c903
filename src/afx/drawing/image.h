// CImage: a bitmap that is read from files and written to them.
#pragma once

#include "afx/drawing/dc.h"
#include "afx/drawing/gdi.h"

#include <guiddef.h>

struct IStream;

/// A picture in device-independent bits, top row first or last by the sign of its pitch, or a
/// bitmap of the device that was attached. Reads and writes what the system's imaging component
/// knows: PNG, JPEG, BMP, GIF, TIFF, and reads icons. Results are those of COM calls.
class QVAFX_API CImage {
public:
    enum { createAlphaChannel = 0x01 };
    enum DIBOrientation { DIBOR_DEFAULT, DIBOR_TOPDOWN, DIBOR_BOTTOMUP };

    CImage() = default;
    ~CImage() { Destroy(); }
    CImage(const CImage&) = delete;
    CImage& operator=(const CImage&) = delete;

    operator HBITMAP() const { return m_hBitmap; }
    bool IsNull() const { return m_hBitmap == nullptr; }
    /// The bitmap is the object's from then on.
    void Attach(HBITMAP hBitmap, DIBOrientation eOrientation = DIBOR_DEFAULT);
    HBITMAP Detach();

    /// nHeight below 0: top row first. nBPP: 1, 4, 8, 16, 24 or 32 bits.
    BOOL Create(int nWidth, int nHeight, int nBPP, DWORD dwFlags = 0);
    void Destroy();
    HRESULT Load(LPCTSTR pszFileName);
    HRESULT Load(IStream* pStream);
    void LoadFromResource(HINSTANCE hInstance, LPCTSTR pszResourceName);
    void LoadFromResource(HINSTANCE hInstance, UINT nIDResource) {
        LoadFromResource(hInstance, MAKEINTRESOURCE(nIDResource));
    }
    /// The format by the file's extension, unless a format of GDI+ or the imaging component is
    /// named.
    HRESULT Save(LPCTSTR pszFileName, REFGUID guidFileType = GUID_NULL) const;
    HRESULT Save(IStream* pStream, REFGUID guidFileType) const;

    int GetWidth() const { return m_nWidth; }
    int GetHeight() const { return m_nHeight; }
    int GetBPP() const { return m_nBPP; }
    int GetPitch() const { return m_nPitch; }  ///< bytes from a row to the next below it
    void* GetBits() const { return m_pBits; }  ///< of the top row; null without bits
    void* GetPixelAddress(int x, int y) const;
    bool IsDIBSection() const { return m_pBits != nullptr; }
    bool IsIndexed() const { return IsDIBSection() && m_nBPP <= 8; }
    bool HasAlpha() const { return m_bAlpha; }
    int GetMaxColorTableEntries() const { return IsIndexed() ? 1 << m_nBPP : 0; }
    void GetColorTable(UINT iFirstColor, UINT nColors, RGBQUAD* prgbColors) const;
    void SetColorTable(UINT iFirstColor, UINT nColors, const RGBQUAD* prgbColors);
    /// -1: no transparent colour. An index of the colour table; gives the one before.
    LONG SetTransparentColor(LONG iTransparentColor);
    LONG GetTransparentColor() const { return m_iTransparent; }
    static BOOL IsTransparencySupported() { return TRUE; }

    COLORREF GetPixel(int x, int y) const;
    void SetPixel(int x, int y, COLORREF color);
    void SetPixelRGB(int x, int y, BYTE r, BYTE g, BYTE b) { SetPixel(x, y, RGB(r, g, b)); }

    /// A context with the bitmap selected, until ReleaseDC. Calls may be nested.
    HDC GetDC() const;
    void ReleaseDC() const;

    // With its alpha channel, or with what is opaque of it, or as it is.
    BOOL Draw(HDC hDestDC, int xDest, int yDest) const;
    BOOL Draw(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight) const;
    BOOL Draw(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc,
              int ySrc, int nSrcWidth, int nSrcHeight) const;
    BOOL Draw(HDC hDestDC, const POINT& pointDest) const;
    BOOL Draw(HDC hDestDC, const RECT& rectDest) const;
    BOOL Draw(HDC hDestDC, const RECT& rectDest, const RECT& rectSrc) const;

    BOOL BitBlt(HDC hDestDC, int xDest, int yDest, DWORD dwROP = SRCCOPY) const;
    BOOL BitBlt(HDC hDestDC, const POINT& pointDest, DWORD dwROP = SRCCOPY) const;
    BOOL BitBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc,
                int ySrc, DWORD dwROP = SRCCOPY) const;
    BOOL StretchBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight,
                    DWORD dwROP = SRCCOPY) const;
    BOOL StretchBlt(HDC hDestDC, const RECT& rectDest, DWORD dwROP = SRCCOPY) const;
    BOOL StretchBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc,
                    int ySrc, int nSrcWidth, int nSrcHeight, DWORD dwROP = SRCCOPY) const;
    BOOL AlphaBlend(HDC hDestDC, int xDest, int yDest, BYTE bSrcAlpha = 0xFF,
                    BYTE bBlendOp = AC_SRC_OVER) const;
    BOOL AlphaBlend(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc,
                    int ySrc, int nSrcWidth, int nSrcHeight, BYTE bSrcAlpha = 0xFF,
                    BYTE bBlendOp = AC_SRC_OVER) const;
    BOOL TransparentBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight,
                        UINT crTransparent = CLR_INVALID) const;
    BOOL TransparentBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight,
                        int xSrc, int ySrc, int nSrcWidth, int nSrcHeight,
                        UINT crTransparent = CLR_INVALID) const;

private:
    void TakeMeasures(DIBOrientation eOrientation);
    COLORREF TransparentColor() const;

    HBITMAP m_hBitmap = nullptr;
    int m_nWidth = 0;
    int m_nHeight = 0;
    int m_nBPP = 0;
    int m_nPitch = 0;
    void* m_pBits = nullptr;
    bool m_bAlpha = false;
    LONG m_iTransparent = -1;
    mutable HDC m_hDC = nullptr;
    mutable HGDIOBJ m_hOldBitmap = nullptr;
    mutable int m_nDCs = 0;
};
