// CDC as an owner: contexts, selections, modes and coordinates.
#include "afx/drawing/dc.h"

#include "afx/drawing/handle_map.h"
#include "afx/drawing/owned_handles.h"
#include "afx/drawing/thread_map.h"

#include <afxwin.h>

IMPLEMENT_DYNCREATE(CDC, CObject)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)

struct AfxDcMap {
    static void Put(CDC& dc, HDC hDC) {
        dc.m_hDC = dc.m_hAttribDC = hDC;
        dc.m_bTemporary = true;
    }
    struct Map : CHandleMap<CDC, HDC> {
        Map() : CHandleMap(&Put) {}
    };
    static Map& Get() { return AfxThreadMap<Map>(); }
};

namespace {

// Programs call these through null pointers; without noipa the check would be compiled away.
[[gnu::noipa]] HDC HandleOrNull(const CDC* pDC) {
    return pDC != nullptr ? pDC->m_hDC : nullptr;
}

HGDIOBJ ObjectOf(const CGdiObject* pObject) {
    return pObject != nullptr ? pObject->GetSafeHandle() : nullptr;
}

}  // namespace

CDC::CDC() = default;

CDC::~CDC() {
    if (m_hDC != nullptr && !m_bTemporary) {
        ::DeleteDC(Detach());
    }
    if (m_mapLink.handle != nullptr) {
        AfxDcMap::Get().RemovePermanent(this);  // the output context was taken away
    }
}

HDC CDC::GetSafeHdc() const {
    return HandleOrNull(this);
}

CDC* CDC::FromHandle(HDC hDC) {
    return AfxDcMap::Get().FromHandle(hDC);
}

void CDC::DeleteTempMap() {
    AfxDcMap::Get().DeleteTemp();
}

BOOL CDC::Attach(HDC hDC) {
    if (hDC == nullptr) {
        return FALSE;
    }
    if (m_hDC != nullptr) {
        DeleteDC();
    }
    m_hDC = hDC;
    AfxDcMap::Get().SetPermanent(hDC, this);
    AfxCountOwnedHandle(1);
    SetAttribDC(hDC);
    return TRUE;
}

HDC CDC::Detach() {
    const HDC hDC = m_hDC;
    if (hDC != nullptr && !m_bTemporary) {
        AfxDcMap::Get().RemovePermanent(this);
        AfxCountOwnedHandle(-1);
    }
    m_hDC = nullptr;
    m_hAttribDC = nullptr;
    m_pfnAbort = nullptr;
    return hDC;
}

void CDC::SetAttribDC(HDC hDC) {
    m_hAttribDC = hDC;
}
void CDC::SetOutputDC(HDC hDC) {
    m_hDC = hDC;
}
void CDC::ReleaseAttribDC() {
    m_hAttribDC = nullptr;
}
void CDC::ReleaseOutputDC() {
    m_hDC = nullptr;
}

BOOL CDC::CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput,
                   const void* lpInitData) {
    return Attach(::CreateDC(lpszDriverName, lpszDeviceName, lpszOutput,
                             static_cast<const DEVMODE*>(lpInitData)));
}

BOOL CDC::CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput,
                   const void* lpInitData) {
    return Attach(::CreateIC(lpszDriverName, lpszDeviceName, lpszOutput,
                             static_cast<const DEVMODE*>(lpInitData)));
}

BOOL CDC::CreateCompatibleDC(CDC* pDC) {
    return Attach(::CreateCompatibleDC(HandleOrNull(pDC)));
}

BOOL CDC::ResetDC(const DEVMODE* lpDevMode) {
    return m_hAttribDC != nullptr && ::ResetDC(m_hAttribDC, lpDevMode) != nullptr;
}

BOOL CDC::DeleteDC() {
    return m_hDC != nullptr && ::DeleteDC(Detach());
}

int CDC::SaveDC() {
    // The output's number is the one to give back.
    const int nAttrib = m_hAttribDC != m_hDC && m_hAttribDC != nullptr ? ::SaveDC(m_hAttribDC) : 0;
    return m_hDC != nullptr ? ::SaveDC(m_hDC) : nAttrib;
}

BOOL CDC::RestoreDC(int nSavedDC) {
    if (m_hDC == nullptr || m_hAttribDC == nullptr || m_hAttribDC == m_hDC) {
        return ::RestoreDC(m_hDC != nullptr ? m_hDC : m_hAttribDC, nSavedDC);
    }
    // Somebody may have saved one of the two before: by number they differ, step by step they
    // agree.
    int nSteps = nSavedDC;
    if (nSavedDC > 0) {
        nSteps -= ::SaveDC(m_hDC);
        ::RestoreDC(m_hDC, -1);
    }
    return nSteps < 0 && ::RestoreDC(m_hDC, nSteps) && ::RestoreDC(m_hAttribDC, nSteps);
}

int CDC::GetDeviceCaps(int nIndex) const {
    return ::GetDeviceCaps(m_hAttribDC, nIndex);
}

CWnd* CDC::GetWindow() const {
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

// --- Selections. Both contexts get the object, so that measuring sees what drawing uses.

namespace {

// The object that another of its kind is about to replace is looked up beforehand: the lookup may
// want memory, and an object that nobody can put back would stay selected.
void LookUpCurrent(HDC hDC, HGDIOBJ hNext) {
    const DWORD dwType = hNext != nullptr ? ::GetObjectType(hNext) : 0;
    if (dwType != 0 && hDC != nullptr) {
        CGdiObject::FromHandle(::GetCurrentObject(hDC, dwType == OBJ_EXTPEN ? OBJ_PEN : dwType));
    }
}

HGDIOBJ SelectInto(const CDC& dc, HGDIOBJ hObject) {
    HGDIOBJ hOld = nullptr;
    if (hObject == nullptr) {
        return nullptr;
    }
    LookUpCurrent(dc.m_hDC != nullptr ? dc.m_hDC : dc.m_hAttribDC, hObject);
    if (dc.m_hDC != dc.m_hAttribDC && dc.m_hAttribDC != nullptr) {
        hOld = ::SelectObject(dc.m_hAttribDC, hObject);
    }
    if (dc.m_hDC != nullptr) {
        hOld = ::SelectObject(dc.m_hDC, hObject);
    }
    return hOld;
}

}  // namespace

CGdiObject* CDC::SelectStockObject(int nIndex) {
    return CGdiObject::FromHandle(SelectInto(*this, ::GetStockObject(nIndex)));
}
CPen* CDC::SelectObject(CPen* p) {
    return CPen::FromHandle(static_cast<HPEN>(SelectInto(*this, ObjectOf(p))));
}
CBrush* CDC::SelectObject(CBrush* p) {
    return CBrush::FromHandle(static_cast<HBRUSH>(SelectInto(*this, ObjectOf(p))));
}
CFont* CDC::SelectObject(CFont* p) {
    return CFont::FromHandle(static_cast<HFONT>(SelectInto(*this, ObjectOf(p))));
}
CBitmap* CDC::SelectObject(CBitmap* p) {
    // A bitmap goes into one context only.
    const HGDIOBJ hBitmap = ObjectOf(p);
    LookUpCurrent(m_hDC, hBitmap);
    return hBitmap != nullptr
               ? CBitmap::FromHandle(static_cast<HBITMAP>(::SelectObject(m_hDC, hBitmap)))
               : nullptr;
}
int CDC::SelectObject(CRgn* p) {
    return SelectClipRgn(p);
}
CGdiObject* CDC::SelectObject(CGdiObject* p) {
    return CGdiObject::FromHandle(SelectInto(*this, ObjectOf(p)));
}
#ifndef QVAFX_STRICT
HGDIOBJ CDC::SelectObject(HGDIOBJ hObject) {
    return ::GetObjectType(hObject) == OBJ_BITMAP ? ::SelectObject(m_hDC, hObject)
                                                  : SelectInto(*this, hObject);
}
#endif
CPen* CDC::GetCurrentPen() const {
    return CPen::FromHandle(static_cast<HPEN>(::GetCurrentObject(m_hAttribDC, OBJ_PEN)));
}
CBrush* CDC::GetCurrentBrush() const {
    return CBrush::FromHandle(static_cast<HBRUSH>(::GetCurrentObject(m_hAttribDC, OBJ_BRUSH)));
}
CFont* CDC::GetCurrentFont() const {
    return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hAttribDC, OBJ_FONT)));
}
CBitmap* CDC::GetCurrentBitmap() const {
    return CBitmap::FromHandle(static_cast<HBITMAP>(::GetCurrentObject(m_hAttribDC, OBJ_BITMAP)));
}
CPalette* CDC::SelectPalette(CPalette* p, BOOL bForceBackground) {
    return CPalette::FromHandle(
        ::SelectPalette(m_hDC, static_cast<HPALETTE>(ObjectOf(p)), bForceBackground));
}
CPalette* CDC::GetCurrentPalette() const {
    return CPalette::FromHandle(static_cast<HPALETTE>(::GetCurrentObject(m_hAttribDC, OBJ_PAL)));
}
void CDC::UpdateColors() {
    ::UpdateColors(m_hDC);
}
UINT CDC::RealizePalette() {
    return ::RealizePalette(m_hDC);
}

CPoint CDC::GetBrushOrg() const {
    POINT pt{};
    ::GetBrushOrgEx(m_hDC, &pt);
    return pt;
}
CPoint CDC::SetBrushOrg(int x, int y) {
    POINT pt{};
    ::SetBrushOrgEx(m_hDC, x, y, &pt);
    return pt;
}

CBrush* CDC::GetHalftoneBrush() {
    // No object owns it: it comes with its first use and lives as long as the process, and would
    // look like a leak.
    static const HBRUSH hHalftone = [] {
        static constexpr WORD kPixels[] = {0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA};
        const HBITMAP hPixels = ::CreateBitmap(8, 8, 1, 1, kPixels);
        const HBRUSH hBrush = ::CreatePatternBrush(hPixels);
        ::DeleteObject(hPixels);
        return hBrush;
    }();
    return CBrush::FromHandle(hHalftone);
}

// --- Modes: asked of the attribute context, set in both

#define AFX_SET_IN_BOTH(call_with_output, call_with_attrib) \
    auto result = call_with_output;                         \
    if (m_hAttribDC != nullptr && m_hAttribDC != m_hDC) {   \
        result = call_with_attrib;                          \
    }                                                       \
    return result

COLORREF CDC::GetNearestColor(COLORREF cr) const {
    return ::GetNearestColor(m_hAttribDC, cr);
}
COLORREF CDC::GetBkColor() const {
    return ::GetBkColor(m_hAttribDC);
}
COLORREF CDC::GetTextColor() const {
    return ::GetTextColor(m_hAttribDC);
}
int CDC::GetBkMode() const {
    return ::GetBkMode(m_hAttribDC);
}
int CDC::GetROP2() const {
    return ::GetROP2(m_hAttribDC);
}
int CDC::GetPolyFillMode() const {
    return ::GetPolyFillMode(m_hAttribDC);
}
int CDC::GetStretchBltMode() const {
    return ::GetStretchBltMode(m_hAttribDC);
}
int CDC::GetMapMode() const {
    return ::GetMapMode(m_hAttribDC);
}
UINT CDC::GetTextAlign() const {
    return ::GetTextAlign(m_hAttribDC);
}
COLORREF CDC::GetDCBrushColor() const {
    return ::GetDCBrushColor(m_hAttribDC);
}
COLORREF CDC::GetDCPenColor() const {
    return ::GetDCPenColor(m_hAttribDC);
}
DWORD CDC::GetLayout() const {
    return ::GetLayout(m_hAttribDC);
}
int CDC::GetGraphicsMode() const {
    return ::GetGraphicsMode(m_hAttribDC);
}
BOOL CDC::GetWorldTransform(XFORM& rXform) const {
    return ::GetWorldTransform(m_hAttribDC, &rXform);
}
BOOL CDC::GetColorAdjustment(LPCOLORADJUSTMENT p) const {
    return ::GetColorAdjustment(m_hAttribDC, p);
}
int CDC::GetTextCharacterExtra() const {
    return ::GetTextCharacterExtra(m_hAttribDC);
}

COLORREF CDC::SetBkColor(COLORREF cr) {
    AFX_SET_IN_BOTH(::SetBkColor(m_hDC, cr), ::SetBkColor(m_hAttribDC, cr));
}
COLORREF CDC::SetTextColor(COLORREF cr) {
    AFX_SET_IN_BOTH(::SetTextColor(m_hDC, cr), ::SetTextColor(m_hAttribDC, cr));
}
int CDC::SetBkMode(int n) {
    AFX_SET_IN_BOTH(::SetBkMode(m_hDC, n), ::SetBkMode(m_hAttribDC, n));
}
int CDC::SetROP2(int n) {
    AFX_SET_IN_BOTH(::SetROP2(m_hDC, n), ::SetROP2(m_hAttribDC, n));
}
int CDC::SetPolyFillMode(int n) {
    AFX_SET_IN_BOTH(::SetPolyFillMode(m_hDC, n), ::SetPolyFillMode(m_hAttribDC, n));
}
int CDC::SetStretchBltMode(int n) {
    AFX_SET_IN_BOTH(::SetStretchBltMode(m_hDC, n), ::SetStretchBltMode(m_hAttribDC, n));
}
int CDC::SetMapMode(int n) {
    AFX_SET_IN_BOTH(::SetMapMode(m_hDC, n), ::SetMapMode(m_hAttribDC, n));
}
UINT CDC::SetTextAlign(UINT n) {
    AFX_SET_IN_BOTH(::SetTextAlign(m_hDC, n), ::SetTextAlign(m_hAttribDC, n));
}
int CDC::SetTextCharacterExtra(int n) {
    AFX_SET_IN_BOTH(::SetTextCharacterExtra(m_hDC, n), ::SetTextCharacterExtra(m_hAttribDC, n));
}

int CDC::SetTextJustification(int nExtra, int nCount) {
    AFX_SET_IN_BOTH(::SetTextJustification(m_hDC, nExtra, nCount),
                    ::SetTextJustification(m_hAttribDC, nExtra, nCount));
}
DWORD CDC::SetMapperFlags(DWORD dw) {
    AFX_SET_IN_BOTH(::SetMapperFlags(m_hDC, dw), ::SetMapperFlags(m_hAttribDC, dw));
}
COLORREF CDC::SetDCBrushColor(COLORREF cr) {
    AFX_SET_IN_BOTH(::SetDCBrushColor(m_hDC, cr), ::SetDCBrushColor(m_hAttribDC, cr));
}
COLORREF CDC::SetDCPenColor(COLORREF cr) {
    AFX_SET_IN_BOTH(::SetDCPenColor(m_hDC, cr), ::SetDCPenColor(m_hAttribDC, cr));
}
DWORD CDC::SetLayout(DWORD dw) {
    AFX_SET_IN_BOTH(::SetLayout(m_hDC, dw), ::SetLayout(m_hAttribDC, dw));
}
BOOL CDC::SetColorAdjustment(const COLORADJUSTMENT* p) {
    AFX_SET_IN_BOTH(::SetColorAdjustment(m_hDC, p), ::SetColorAdjustment(m_hAttribDC, p));
}
int CDC::SetGraphicsMode(int n) {
    AFX_SET_IN_BOTH(::SetGraphicsMode(m_hDC, n), ::SetGraphicsMode(m_hAttribDC, n));
}
BOOL CDC::SetWorldTransform(const XFORM& x) {
    AFX_SET_IN_BOTH(::SetWorldTransform(m_hDC, &x), ::SetWorldTransform(m_hAttribDC, &x));
}
BOOL CDC::ModifyWorldTransform(const XFORM& x, DWORD iMode) {
    AFX_SET_IN_BOTH(::ModifyWorldTransform(m_hDC, &x, iMode),
                    ::ModifyWorldTransform(m_hAttribDC, &x, iMode));
}
int CDC::SetArcDirection(int n) {
    AFX_SET_IN_BOTH(::SetArcDirection(m_hDC, n), ::SetArcDirection(m_hAttribDC, n));
}
UINT CDC::GetBoundsRect(LPRECT p, UINT flags) {
    return ::GetBoundsRect(m_hAttribDC, p, flags);
}
UINT CDC::SetBoundsRect(LPCRECT p, UINT flags) {
    return ::SetBoundsRect(m_hDC, p, flags);
}

// --- Coordinates

namespace {

template <class Value, class Call>
Value AskContext(const CDC& dc, Call call) {
    Value value{};
    call(dc.m_hAttribDC, &value);
    return value;
}

template <class Value, class Call>
Value SetInBoth(const CDC& dc, Call call, int x, int y) {
    Value value{};
    if (dc.m_hDC != nullptr) {
        call(dc.m_hDC, x, y, &value);
    }
    if (dc.m_hAttribDC != nullptr && dc.m_hAttribDC != dc.m_hDC) {
        call(dc.m_hAttribDC, x, y, &value);
    }
    return value;
}

}  // namespace

CPoint CDC::GetViewportOrg() const {
    return AskContext<POINT>(*this, ::GetViewportOrgEx);
}
CPoint CDC::SetViewportOrg(int x, int y) {
    return SetInBoth<POINT>(*this, ::SetViewportOrgEx, x, y);
}
CPoint CDC::OffsetViewportOrg(int x, int y) {
    return SetInBoth<POINT>(*this, ::OffsetViewportOrgEx, x, y);
}
CSize CDC::GetViewportExt() const {
    return AskContext<SIZE>(*this, ::GetViewportExtEx);
}
CSize CDC::SetViewportExt(int cx, int cy) {
    return SetInBoth<SIZE>(*this, ::SetViewportExtEx, cx, cy);
}
CPoint CDC::GetWindowOrg() const {
    return AskContext<POINT>(*this, ::GetWindowOrgEx);
}
CPoint CDC::SetWindowOrg(int x, int y) {
    return SetInBoth<POINT>(*this, ::SetWindowOrgEx, x, y);
}
CPoint CDC::OffsetWindowOrg(int x, int y) {
    return SetInBoth<POINT>(*this, ::OffsetWindowOrgEx, x, y);
}
CSize CDC::GetWindowExt() const {
    return AskContext<SIZE>(*this, ::GetWindowExtEx);
}
CSize CDC::SetWindowExt(int cx, int cy) {
    return SetInBoth<SIZE>(*this, ::SetWindowExtEx, cx, cy);
}

namespace {

template <class Call>
CSize ScaleInBoth(const CDC& dc, Call call, int xNum, int xDenom, int yNum, int yDenom) {
    SIZE size{};
    if (dc.m_hDC != nullptr) {
        call(dc.m_hDC, xNum, xDenom, yNum, yDenom, &size);
    }
    if (dc.m_hAttribDC != nullptr && dc.m_hAttribDC != dc.m_hDC) {
        call(dc.m_hAttribDC, xNum, xDenom, yNum, yDenom, &size);
    }
    return size;
}

constexpr int kHimetricAnInch = 2540;

/// A mode in which a logical unit has a length of its own.
bool HasFixedScale(int nMapMode) {
    return nMapMode >= MM_LOMETRIC && nMapMode <= MM_TWIPS;
}

}  // namespace

CSize CDC::ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom) {
    return ScaleInBoth(*this, ::ScaleViewportExtEx, xNum, xDenom, yNum, yDenom);
}
CSize CDC::ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom) {
    return ScaleInBoth(*this, ::ScaleWindowExtEx, xNum, xDenom, yNum, yDenom);
}

// In a mode of fixed scale the device's own idea of a length counts, which may differ from its
// pixels an inch.
void CDC::DPtoHIMETRIC(LPSIZE p) const {
    const int nMapMode = GetMapMode();
    if (HasFixedScale(nMapMode)) {
        ::SetMapMode(m_hAttribDC, MM_HIMETRIC);
        DPtoLP(p);
        ::SetMapMode(m_hAttribDC, nMapMode);
        return;
    }
    p->cx = ::MulDiv(p->cx, kHimetricAnInch, GetDeviceCaps(LOGPIXELSX));
    p->cy = ::MulDiv(p->cy, kHimetricAnInch, GetDeviceCaps(LOGPIXELSY));
}
void CDC::HIMETRICtoDP(LPSIZE p) const {
    const int nMapMode = GetMapMode();
    if (HasFixedScale(nMapMode)) {
        ::SetMapMode(m_hAttribDC, MM_HIMETRIC);
        LPtoDP(p);
        ::SetMapMode(m_hAttribDC, nMapMode);
        return;
    }
    p->cx = ::MulDiv(p->cx, GetDeviceCaps(LOGPIXELSX), kHimetricAnInch);
    p->cy = ::MulDiv(p->cy, GetDeviceCaps(LOGPIXELSY), kHimetricAnInch);
}
void CDC::LPtoHIMETRIC(LPSIZE p) const {
    LPtoDP(p);
    DPtoHIMETRIC(p);
}
void CDC::HIMETRICtoLP(LPSIZE p) const {
    HIMETRICtoDP(p);
    DPtoLP(p);
}

void CDC::DPtoLP(LPPOINT p, int nCount) const {
    ::DPtoLP(m_hAttribDC, p, nCount);
}
void CDC::DPtoLP(LPRECT p) const {
    ::DPtoLP(m_hAttribDC, reinterpret_cast<LPPOINT>(p), 2);
}
void CDC::LPtoDP(LPPOINT p, int nCount) const {
    ::LPtoDP(m_hAttribDC, p, nCount);
}
void CDC::LPtoDP(LPRECT p) const {
    ::LPtoDP(m_hAttribDC, reinterpret_cast<LPPOINT>(p), 2);
}
void CDC::DPtoLP(LPSIZE p) const {
    POINT points[] = {{0, 0}, {p->cx, p->cy}};
    DPtoLP(points, 2);
    *p = {labs(points[1].x - points[0].x), labs(points[1].y - points[0].y)};
}
void CDC::LPtoDP(LPSIZE p) const {
    POINT points[] = {{0, 0}, {p->cx, p->cy}};
    LPtoDP(points, 2);
    *p = {labs(points[1].x - points[0].x), labs(points[1].y - points[0].y)};
}

// --- Contexts of windows

namespace {

HWND WindowOf(CWnd* pWnd) {
    return pWnd != nullptr ? pWnd->m_hWnd : nullptr;
}

}  // namespace

CPaintDC::CPaintDC(CWnd* pWnd) : m_hWnd(WindowOf(pWnd)) {
    if (!Attach(::BeginPaint(m_hWnd, &m_ps))) {
        AfxThrowResourceException();
    }
}
CPaintDC::~CPaintDC() {
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(WindowOf(pWnd)) {
    if (!Attach(::GetDC(m_hWnd))) {
        AfxThrowResourceException();
    }
}
CClientDC::~CClientDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(WindowOf(pWnd)) {
    if (!Attach(::GetWindowDC(m_hWnd))) {
        AfxThrowResourceException();
    }
}
CWindowDC::~CWindowDC() {
    ::ReleaseDC(m_hWnd, Detach());
}
