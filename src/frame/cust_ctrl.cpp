#include "frame/cust_ctrl.h"

#include "frame/dc_guards.h"
#include "frame/out_of_memory.h"

IMPLEMENT_DYNCREATE(QVCustCtrl, CWnd)

BEGIN_MESSAGE_MAP(QVCustCtrl, CWnd)
    ON_WM_CREATE()
    ON_WM_PAINT()
END_MESSAGE_MAP()

QVCustCtrl::QVCustCtrl() : m_dwDefStyle(WS_CHILD | WS_VISIBLE | WS_TABSTOP) {}

QVCustCtrl::~QVCustCtrl() = default;

void QVCustCtrl::ModifyDefStyle(DWORD dwRemove, DWORD dwAdd) {
    m_dwDefStyle = (m_dwDefStyle & ~dwRemove) | dwAdd;
}

int QVCustCtrl::Create(UINT nID, const CRect& rect, CWnd* pParent) {
    BOOL bCreated = FALSE;
    qv::MemorySuffices(
        [&] { bCreated = CWnd::Create(nullptr, "", m_dwDefStyle, rect, pParent, nID, nullptr); });
    if (!bCreated) {
        ForgetHalfAttached();
    }
    return bCreated ? 1 : 0;
}

int QVCustCtrl::Initialize(UINT nID, CWnd* pParent) {
    if (m_hWnd != nullptr) {
        return 1;
    }
    BOOL bAttached = FALSE;
    if (!qv::MemorySuffices(
            [&] { bAttached = pParent != nullptr && SubclassDlgItem(nID, pParent); })) {
        ForgetHalfAttached();
    }
    return bAttached ? 1 : 0;
}

// A handle that the framework found no memory to remember.
void QVCustCtrl::ForgetHalfAttached() {
    if (FromHandlePermanent(m_hWnd) != this) {
        m_hWnd = nullptr;
    }
}

LRESULT QVCustCtrl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return qv::HandleQuietly(m_hWnd, message,
                             [&] { return CWnd::WindowProc(message, wParam, lParam); });
}

void QVCustCtrl::Draw(CDC& dc, const CRect& rect) {
    CBrush brush(::GetSysColor(COLOR_BTNFACE));
    dc.FillRect(&rect, &brush);
}

int QVCustCtrl::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (const auto nResult = static_cast<int>(Default())) {
        return nResult;
    }
    const auto nID = static_cast<UINT>(reinterpret_cast<UINT_PTR>(lpCreateStruct->hMenu));
    return Initialize(nID, CWnd::FromHandle(lpCreateStruct->hwndParent)) ? 0 : -1;
}

// The bitmap is made anew for each paint, so a new size needs no handling. Draw is asked for the
// whole client area; what lies outside of the invalid part is clipped, as it would reach no screen.
void QVCustCtrl::OnPaint() {
    CPaintDC dc(this);
    CRect rect;
    if (dc.GetClipBox(&rect) == NULLREGION) {
        return;  // its children cover all of it
    }
    GetClientRect(&rect);
    CDC dcMemory;
    CBitmap bitmap;
    if (!dcMemory.CreateCompatibleDC(&dc) ||
        !bitmap.CreateCompatibleBitmap(&dc, rect.Width(), rect.Height())) {
        return;  // nothing to draw on; the next paint tries again
    }
    const qv::SelectGuard<CBitmap> selected(dcMemory, &bitmap);
    dcMemory.IntersectClipRect(&dc.m_ps.rcPaint);
    Draw(dcMemory, rect);
    dc.BitBlt(rect.left, rect.top, rect.Width(), rect.Height(), &dcMemory, 0, 0, SRCCOPY);
}
