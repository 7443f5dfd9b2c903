// Guards for what is set on a device context for a while and must go back on every path, for the
// library and for programs that draw beside it.

#pragma once

#include <afxwin.h>

namespace qv {

// Selects a pen, brush, font or bitmap and puts the old one back, in the context that is drawn on
// and in the one that is asked, where they differ. A null object selects nothing.
template <class Object>
class SelectGuard {
public:
    SelectGuard(CDC& dc, Object* pObject)
        : SelectGuard(dc, pObject != nullptr ? pObject->GetSafeHandle() : nullptr) {}
    SelectGuard(CDC& dc, HGDIOBJ hObject) : m_hDC(dc.m_hDC), m_hAttribDC(dc.m_hAttribDC) {
        if (hObject != nullptr) {
            Select(hObject, hObject);
        }
    }
    ~SelectGuard() { Select(m_hOld, m_hOldAttrib); }
    SelectGuard(const SelectGuard&) = delete;
    SelectGuard& operator=(const SelectGuard&) = delete;

private:
    void Select(HGDIOBJ hObject, HGDIOBJ hAttribObject) {
        if (m_hDC != nullptr && hObject != nullptr) {
            m_hOld = ::SelectObject(m_hDC, hObject);
        }
        if (m_hAttribDC != nullptr && m_hAttribDC != m_hDC && hAttribObject != nullptr) {
            m_hOldAttrib = ::SelectObject(m_hAttribDC, hAttribObject);
        }
    }

    HDC m_hDC;
    HDC m_hAttribDC;
    HGDIOBJ m_hOld = nullptr;
    HGDIOBJ m_hOldAttrib = nullptr;
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
