// Guards for what is set on a device context for a while and must go back on every path.

#pragma once

#include <afxwin.h>

namespace qv {

// Selects a pen, brush, font or bitmap and puts the old one back. A null object selects nothing.
template <class Object>
class SelectGuard {
public:
    SelectGuard(CDC& dc, Object* pObject) : m_dc(dc) {
        if (pObject != nullptr) {
            m_hOld = ::SelectObject(dc.GetSafeHdc(), pObject->GetSafeHandle());
        }
    }
    SelectGuard(CDC& dc, HGDIOBJ hObject) : m_dc(dc) {
        if (hObject != nullptr) {
            m_hOld = ::SelectObject(dc.GetSafeHdc(), hObject);
        }
    }
    ~SelectGuard() {
        if (m_hOld != nullptr) {
            ::SelectObject(m_dc.GetSafeHdc(), m_hOld);
        }
    }
    SelectGuard(const SelectGuard&) = delete;
    SelectGuard& operator=(const SelectGuard&) = delete;

private:
    CDC& m_dc;
    HGDIOBJ m_hOld = nullptr;
};

// Remembers text and background colour.
class ColorGuard {
public:
    explicit ColorGuard(CDC& dc) : m_dc(dc), m_crText(dc.GetTextColor()), m_crBk(dc.GetBkColor()) {}
    ~ColorGuard() {
        m_dc.SetTextColor(m_crText);
        m_dc.SetBkColor(m_crBk);
    }
    ColorGuard(const ColorGuard&) = delete;
    ColorGuard& operator=(const ColorGuard&) = delete;

private:
    CDC& m_dc;
    COLORREF m_crText;
    COLORREF m_crBk;
};

}  // namespace qv
