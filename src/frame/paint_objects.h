// Brushes and pens that live for one paint, in members that derived classes may read meanwhile.

#pragma once

#include <afxwin.h>

namespace qv {

// Makes a brush or pen for as long as something is painted.
class BrushLife {
public:
    BrushLife(CBrush& brush, COLORREF cr) : m_brush(brush) {
        m_brush.DeleteObject();
        m_brush.CreateSolidBrush(cr);
    }
    ~BrushLife() { m_brush.DeleteObject(); }
    BrushLife(const BrushLife&) = delete;
    BrushLife& operator=(const BrushLife&) = delete;

private:
    CBrush& m_brush;
};

class PenLife {
public:
    PenLife(CPen& pen, COLORREF cr) : m_pen(pen) {
        m_pen.DeleteObject();
        m_pen.CreatePen(PS_SOLID, 0, cr);
    }
    ~PenLife() { m_pen.DeleteObject(); }
    PenLife(const PenLife&) = delete;
    PenLife& operator=(const PenLife&) = delete;

private:
    CPen& m_pen;
};

}  // namespace qv
