// What a text leaves on a window, wherever it stands there.
#pragma once

#include "support/picture.h"

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

/// The pixels in which two pictures differ and that are not of the background, from the first to
/// the last row and column of them; the others are CLR_INVALID.
struct Ink {
    CSize size{0, 0};
    std::vector<COLORREF> pixels;

    Ink(const Picture& with, const Picture& without, COLORREF crBk) {
        const auto isInk = [&](int x, int y) {
            return with.At(x, y) != without.At(x, y) && with.At(x, y) != crBk;
        };
        CRect rc(with.Width(), with.Height(), 0, 0);
        for (int y = 0; y < with.Height(); ++y) {
            for (int x = 0; x < with.Width(); ++x) {
                if (isInk(x, y)) {
                    rc = CRect(std::min<LONG>(rc.left, x), std::min<LONG>(rc.top, y),
                               std::max<LONG>(rc.right, x + 1), std::max<LONG>(rc.bottom, y + 1));
                }
            }
        }
        if (rc.Width() <= 0) {
            return;
        }
        size = rc.Size();
        for (int y = rc.top; y < rc.bottom; ++y) {
            for (int x = rc.left; x < rc.right; ++x) {
                pixels.push_back(isInk(x, y) ? with.At(x, y) : CLR_INVALID);
            }
        }
    }
    bool operator==(const Ink& other) const { return size == other.size && pixels == other.pixels; }
    bool IsEmpty() const { return pixels.empty(); }
};

inline std::ostream& operator<<(std::ostream& out, const Ink& ink) {
    out << ink.size.cx << " x " << ink.size.cy << '\n';
    for (size_t i = 0; i < ink.pixels.size(); ++i) {
        out << (ink.pixels[i] != CLR_INVALID ? '#' : '.');
        if ((i + 1) % static_cast<size_t>(ink.size.cx) == 0) {
            out << '\n';
        }
    }
    return out;
}

/// A wide text as the platform draws it in a font: what every control should leave.
class WideLabel : public CWnd {
public:
    WideLabel(CWnd& parent, HFONT hFont, COLORREF crText, COLORREF crBk, UINT nFormat = 0)
        : m_hFont(hFont), m_crText(crText), m_crBk(crBk), m_nFormat(nFormat) {
        CreateEx(0, AfxRegisterWndClass(0), "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 40),
                 &parent, 999);
    }
    Ink Shows(const std::wstring& strText) {
        const Picture with = With(strText);
        return Ink(with, With(L""), m_crBk);
    }

protected:
    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override {
        if (nMessage != WM_PAINT) {
            return CWnd::WindowProc(nMessage, wParam, lParam);
        }
        CPaintDC dc(this);
        CRect rc;
        GetClientRect(&rc);
        dc.FillSolidRect(&rc, m_crBk);
        dc.SetTextColor(m_crText);
        dc.SetBkColor(m_crBk);
        const HGDIOBJ hOld = ::SelectObject(dc, m_hFont);
        rc.DeflateRect(5, 5);
        ::DrawTextW(dc, m_strText.data(), static_cast<int>(m_strText.size()), &rc,
                    DT_NOPREFIX | DT_SINGLELINE | m_nFormat);
        ::SelectObject(dc, hOld);
        return 0;
    }

private:
    Picture With(const std::wstring& strText) {
        m_strText = strText;
        ::SetWindowPos(m_hWnd, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        Invalidate(FALSE);
        const Picture picture = Picture::OfClient(m_hWnd);
        return picture;
    }

    HFONT m_hFont;
    COLORREF m_crText;
    COLORREF m_crBk;
    UINT m_nFormat;
    std::wstring m_strText;
};
