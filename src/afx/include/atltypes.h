// Points, sizes and rectangles.
#pragma once

#define __ATLTYPES_H__

#include "afx/values/api.h"

class CPoint;
class CRect;

class CSize : public SIZE {
public:
    CSize() : SIZE{0, 0} {}
    CSize(int initCX, int initCY) : SIZE{initCX, initCY} {}
    CSize(SIZE initSize) : SIZE(initSize) {}
    CSize(POINT initPt) : SIZE{initPt.x, initPt.y} {}
    explicit CSize(DWORD dwSize)
        : SIZE{static_cast<short>(LOWORD(dwSize)), static_cast<short>(HIWORD(dwSize))} {}

    void SetSize(int newCX, int newCY) { *this = CSize(newCX, newCY); }
    BOOL operator==(SIZE size) const { return cx == size.cx && cy == size.cy; }
    BOOL operator!=(SIZE size) const { return !(*this == size); }
    void operator+=(SIZE size) { cx += size.cx, cy += size.cy; }
    void operator-=(SIZE size) { cx -= size.cx, cy -= size.cy; }
    CSize operator+(SIZE size) const { return CSize(cx + size.cx, cy + size.cy); }
    CSize operator-(SIZE size) const { return CSize(cx - size.cx, cy - size.cy); }
    CSize operator-() const { return CSize(-cx, -cy); }
    CPoint operator+(POINT point) const;
    CPoint operator-(POINT point) const;
    CRect operator+(const RECT* lpRect) const;
    CRect operator-(const RECT* lpRect) const;
};

class CPoint : public POINT {
public:
    CPoint() : POINT{0, 0} {}
    CPoint(int initX, int initY) : POINT{initX, initY} {}
    CPoint(POINT initPt) : POINT(initPt) {}
    CPoint(SIZE initSize) : POINT{initSize.cx, initSize.cy} {}
    explicit CPoint(LPARAM dwPoint)
        : POINT{static_cast<short>(LOWORD(dwPoint)), static_cast<short>(HIWORD(dwPoint))} {}

    void SetPoint(int X, int Y) { *this = CPoint(X, Y); }
    void Offset(int xOffset, int yOffset) { x += xOffset, y += yOffset; }
    void Offset(POINT point) { Offset(point.x, point.y); }
    void Offset(SIZE size) { Offset(size.cx, size.cy); }
    BOOL operator==(POINT point) const { return x == point.x && y == point.y; }
    BOOL operator!=(POINT point) const { return !(*this == point); }
    void operator+=(SIZE size) { Offset(size); }
    void operator-=(SIZE size) { Offset(-size.cx, -size.cy); }
    void operator+=(POINT point) { Offset(point); }
    void operator-=(POINT point) { Offset(-point.x, -point.y); }
    CPoint operator+(SIZE size) const { return CPoint(x + size.cx, y + size.cy); }
    CPoint operator-(SIZE size) const { return CPoint(x - size.cx, y - size.cy); }
    CPoint operator+(POINT point) const { return CPoint(x + point.x, y + point.y); }
    CSize operator-(POINT point) const { return CSize(x - point.x, y - point.y); }
    CPoint operator-() const { return CPoint(-x, -y); }
    CRect operator+(const RECT* lpRect) const;
    CRect operator-(const RECT* lpRect) const;
};

class CRect : public RECT {
public:
    CRect() : RECT{0, 0, 0, 0} {}
    CRect(int l, int t, int r, int b) : RECT{l, t, r, b} {}
    CRect(const RECT& srcRect) : RECT(srcRect) {}
    CRect(LPCRECT lpSrcRect) : RECT(*lpSrcRect) {}
    CRect(POINT point, SIZE size) : RECT{point.x, point.y, point.x + size.cx, point.y + size.cy} {}
    CRect(POINT topLeft, POINT bottomRight)
        : RECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return CSize(Width(), Height()); }
    CPoint TopLeft() const { return CPoint(left, top); }
    CPoint BottomRight() const { return CPoint(right, bottom); }
    CPoint& TopLeft() { return *reinterpret_cast<CPoint*>(&left); }
    CPoint& BottomRight() { return *reinterpret_cast<CPoint*>(&right); }
    CPoint CenterPoint() const { return CPoint((left + right) / 2, (top + bottom) / 2); }
    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }

    BOOL IsRectEmpty() const { return left >= right || top >= bottom; }
    BOOL IsRectNull() const { return left == 0 && right == 0 && top == 0 && bottom == 0; }
    BOOL PtInRect(POINT point) const { return ::PtInRect(this, point); }
    void SetRect(int x1, int y1, int x2, int y2) { *this = CRect(x1, y1, x2, y2); }
    void SetRect(POINT topLeft, POINT bottomRight) { *this = CRect(topLeft, bottomRight); }
    void SetRectEmpty() { *this = CRect(); }
    void SwapLeftRight() { OffsetEdges(left, right); }
    static void SwapLeftRight(LPRECT lpRect) { OffsetEdges(lpRect->left, lpRect->right); }
    void CopyRect(LPCRECT lpSrcRect) { *this = CRect(lpSrcRect); }
    BOOL EqualRect(LPCRECT lpRect) const { return ::EqualRect(this, lpRect); }

    void InflateRect(int x, int y) { InflateRect(x, y, x, y); }
    void InflateRect(SIZE size) { InflateRect(size.cx, size.cy); }
    void InflateRect(LPCRECT r) { InflateRect(r->left, r->top, r->right, r->bottom); }
    void InflateRect(int l, int t, int r, int b) { left -= l, top -= t, right += r, bottom += b; }
    void DeflateRect(int x, int y) { InflateRect(-x, -y); }
    void DeflateRect(SIZE size) { InflateRect(-size.cx, -size.cy); }
    void DeflateRect(LPCRECT r) { DeflateRect(r->left, r->top, r->right, r->bottom); }
    void DeflateRect(int l, int t, int r, int b) { InflateRect(-l, -t, -r, -b); }
    void OffsetRect(int x, int y) { left += x, right += x, top += y, bottom += y; }
    void OffsetRect(SIZE size) { OffsetRect(size.cx, size.cy); }
    void OffsetRect(POINT point) { OffsetRect(point.x, point.y); }
    void MoveToY(int y) { OffsetRect(0, y - top); }
    void MoveToX(int x) { OffsetRect(x - left, 0); }
    void MoveToXY(int x, int y) { OffsetRect(x - left, y - top); }
    void MoveToXY(POINT point) { MoveToXY(point.x, point.y); }
    void NormalizeRect() {
        if (left > right) {
            OffsetEdges(left, right);
        }
        if (top > bottom) {
            OffsetEdges(top, bottom);
        }
    }
    BOOL IntersectRect(LPCRECT r1, LPCRECT r2) { return ::IntersectRect(this, r1, r2); }
    BOOL UnionRect(LPCRECT r1, LPCRECT r2) { return ::UnionRect(this, r1, r2); }
    BOOL SubtractRect(LPCRECT r1, LPCRECT r2) { return ::SubtractRect(this, r1, r2); }

    BOOL operator==(const RECT& rect) const { return EqualRect(&rect); }
    BOOL operator!=(const RECT& rect) const { return !EqualRect(&rect); }
    void operator+=(POINT point) { OffsetRect(point); }
    void operator+=(SIZE size) { OffsetRect(size); }
    void operator-=(POINT point) { OffsetRect(-point.x, -point.y); }
    void operator-=(SIZE size) { OffsetRect(-size.cx, -size.cy); }
    void operator+=(LPCRECT lpRect) { InflateRect(lpRect); }
    void operator-=(LPCRECT lpRect) { DeflateRect(lpRect); }
    void operator&=(const RECT& rect) { ::IntersectRect(this, this, &rect); }
    void operator|=(const RECT& rect) { ::UnionRect(this, this, &rect); }
    CRect operator+(POINT point) const { return Moved(point.x, point.y); }
    CRect operator-(POINT point) const { return Moved(-point.x, -point.y); }
    CRect operator+(SIZE size) const { return Moved(size.cx, size.cy); }
    CRect operator-(SIZE size) const { return Moved(-size.cx, -size.cy); }
    CRect operator+(LPCRECT lpRect) const { return Inflated(lpRect, 1); }
    CRect operator-(LPCRECT lpRect) const { return Inflated(lpRect, -1); }
    CRect operator&(const RECT& rect) const {
        CRect r(*this);
        r &= rect;
        return r;
    }
    CRect operator|(const RECT& rect) const {
        CRect r(*this);
        r |= rect;
        return r;
    }
    CRect MulDiv(int nMultiplier, int nDivisor) const {
        return CRect(::MulDiv(left, nMultiplier, nDivisor), ::MulDiv(top, nMultiplier, nDivisor),
                     ::MulDiv(right, nMultiplier, nDivisor),
                     ::MulDiv(bottom, nMultiplier, nDivisor));
    }

private:
    static void OffsetEdges(LONG& n1, LONG& n2) {
        const LONG n = n1;
        n1 = n2;
        n2 = n;
    }
    CRect Inflated(LPCRECT r, int nSign) const {
        return CRect(left - nSign * r->left, top - nSign * r->top, right + nSign * r->right,
                     bottom + nSign * r->bottom);
    }
    CRect Moved(int x, int y) const {
        CRect r(*this);
        r.OffsetRect(x, y);
        return r;
    }
};

inline CPoint CSize::operator+(POINT point) const {
    return CPoint(cx + point.x, cy + point.y);
}
inline CPoint CSize::operator-(POINT point) const {
    return CPoint(cx - point.x, cy - point.y);
}
// A rectangle moved by a size or a point.
inline CRect CSize::operator+(const RECT* lpRect) const {
    return CRect(lpRect) + *this;
}
inline CRect CSize::operator-(const RECT* lpRect) const {
    return CRect(lpRect) - *this;
}
inline CRect CPoint::operator+(const RECT* lpRect) const {
    return CRect(lpRect) + *this;
}
inline CRect CPoint::operator-(const RECT* lpRect) const {
    return CRect(lpRect) - *this;
}
