// The control's window: made in the container's, painted through a buffer, its input told as stock
// events.

#include "ocx/control.h"

#include <windowsx.h>

namespace ocx {

HINSTANCE Control::ModuleHandle() {
    static const HINSTANCE hInstance = [] {
        HMODULE hModule = nullptr;
        ::GetModuleHandleExW(
            GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
            reinterpret_cast<LPCWSTR>(&Control::WindowProc), &hModule);
        return hModule;
    }();
    return hInstance;
}

bool Control::MakeWindow(HWND hParent, const RECT& rect) {
    WNDCLASSEXW windowClass = {};
    windowClass.cbSize = sizeof windowClass;
    if (!::GetClassInfoExW(ModuleHandle(), m_kind.pszWindowClass, &windowClass)) {
        windowClass = {};
        windowClass.cbSize = sizeof windowClass;
        windowClass.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
        windowClass.lpfnWndProc = WindowProc;
        windowClass.hInstance = ModuleHandle();
        windowClass.hCursor = ::LoadCursorA(nullptr, IDC_ARROW);
        windowClass.lpszClassName = m_kind.pszWindowClass;
        ::RegisterClassExW(&windowClass);
    }
    // The window's own pointer is set by its first message.
    const HWND hWnd = ::CreateWindowExW(
        0, m_kind.pszWindowClass, nullptr,
        WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | WS_TABSTOP | (IsEnabled() ? 0 : WS_DISABLED),
        rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, hParent, nullptr,
        ModuleHandle(), this);
    return hWnd != nullptr && m_hWnd == hWnd;
}

void Control::DropWindow() {
    if (m_hWnd != nullptr) {
        ::DestroyWindow(m_hWnd);
        m_hWnd = nullptr;
    }
}

STDMETHODIMP Control::GetWindow(HWND* phWnd) {
    if (phWnd == nullptr) {
        return E_POINTER;
    }
    *phWnd = m_hWnd;
    return m_hWnd != nullptr ? S_OK : E_FAIL;
}

RECT Control::ClientRect() const {
    RECT rect = {};
    if (m_hWnd != nullptr) {
        ::GetClientRect(m_hWnd, &rect);
    } else {
        const SIZE dpi = PixelsPerInch();
        rect.right = ::MulDiv(m_extent.cx, dpi.cx, kHimetricPerInch);
        rect.bottom = ::MulDiv(m_extent.cy, dpi.cy, kHimetricPerInch);
    }
    return rect;
}

bool Control::HasFocus() const {
    return m_hWnd != nullptr && ::GetFocus() == m_hWnd;
}

void Control::Invalidate() {
    if (m_hWnd != nullptr) {
        ::InvalidateRect(m_hWnd, nullptr, FALSE);
    }
    ViewChanged();
}

LRESULT CALLBACK Control::WindowProc(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam) {
    if (nMessage == WM_NCCREATE) {
        const auto* pCreate = reinterpret_cast<CREATESTRUCTW*>(lParam);
        auto* pControl = static_cast<Control*>(pCreate->lpCreateParams);
        pControl->m_hWnd = hWnd;
        ::SetWindowLongPtrW(hWnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(pControl));
    }
    auto* pControl = reinterpret_cast<Control*>(::GetWindowLongPtrW(hWnd, GWLP_USERDATA));
    if (pControl == nullptr) {
        return ::DefWindowProcW(hWnd, nMessage, wParam, lParam);
    }
    const Hold hold(*pControl);
    LRESULT lResult = 0;
    Guarded([&] {
        lResult = pControl->HandleMessage(hWnd, nMessage, wParam, lParam);
        return S_OK;
    });
    if (nMessage == WM_NCDESTROY) {
        ::SetWindowLongPtrW(hWnd, GWLP_USERDATA, 0);
        if (pControl->m_hWnd == hWnd) {
            pControl->m_hWnd = nullptr;
        }
    }
    return lResult;
}

LRESULT Control::HandleMessage(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam) {
    switch (nMessage) {
        case WM_PAINT:
            Paint();
            return 0;
        case WM_ERASEBKGND:
            return TRUE;
        case WM_PRINTCLIENT:
            DrawControl(reinterpret_cast<HDC>(wParam), ClientRect());
            return 0;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            if (!::IsChild(m_hWnd, reinterpret_cast<HWND>(wParam))) {
                TellFocus(nMessage == WM_SETFOCUS);
            }
            break;
        case WM_SETCURSOR:
            if (LOWORD(lParam) == HTCLIENT && SetPointer()) {
                return TRUE;
            }
            break;
        case WM_SIZE: {
            const SIZE dpi = PixelsPerInch();
            m_extent = {::MulDiv(LOWORD(lParam), kHimetricPerInch, dpi.cx),
                        ::MulDiv(HIWORD(lParam), kHimetricPerInch, dpi.cy)};
            break;
        }
        case WM_ENABLE:
            Invalidate();
            break;
        case WM_KEYDOWN:
            // A key that the container had no use for comes back, and was told before.
            if (std::exchange(m_bKeyOffered, false) && wParam == VK_TAB) {
                return 0;
            }
            [[fallthrough]];
        default:
            if (TellStockEvents(nMessage, wParam, lParam)) {
                return 0;
            }
            break;
    }
    LRESULT lResult = 0;
    if (OnMessage(nMessage, wParam, lParam, lResult)) {
        return lResult;
    }
    return ::DefWindowProcW(hWnd, nMessage, wParam, lParam);
}

void Control::Paint() {
    PAINTSTRUCT paint;
    const HDC hDC = ::BeginPaint(m_hWnd, &paint);
    // A paint that fails leaves the window valid: asked again at once, it would fail again.
    Guarded([&] {
        if (hDC != nullptr) {
            const PaintBuffer buffer(hDC, ClientRect());
            DrawControl(buffer, ClientRect());
        }
        return S_OK;
    });
    ::EndPaint(m_hWnd, &paint);
}

void Control::TellFocus(bool bGot) {
    Invalidate();
    const auto site = Ref<IOleControlSite>::Of(m_site.Get());
    if (bGot) {
        ActivateUI();
    }
    if (site) {
        site->OnFocus(bGot);
    }
}

short Control::ShiftState() {
    return static_cast<short>((::GetKeyState(VK_SHIFT) < 0 ? 1 : 0) |
                              (::GetKeyState(VK_CONTROL) < 0 ? 2 : 0) |
                              (::GetKeyState(VK_MENU) < 0 ? 4 : 0));
}

WPARAM Control::FireKeyDown(WPARAM vk) {
    short nKey = static_cast<short>(vk);
    Fire(DISPID_KEYDOWN, &nKey, ShiftState());
    return static_cast<WORD>(nKey);
}

void Control::TellMouse(DISPID id, short nButton, LPARAM lParam) {
    Fire(id, nButton, ShiftState(), static_cast<LONG>(GET_X_LPARAM(lParam)),
         static_cast<LONG>(GET_Y_LPARAM(lParam)));
}

bool Control::TellStockEvents(UINT nMessage, WPARAM& wParam, LPARAM lParam) {
    constexpr short kLeft = 1;
    constexpr short kRight = 2;
    constexpr short kMiddle = 4;
    switch (nMessage) {
        case WM_KEYDOWN:
            wParam = FireKeyDown(wParam);
            return wParam == 0 || m_hWnd == nullptr;
        case WM_KEYUP: {
            short nKey = static_cast<short>(wParam);
            Fire(DISPID_KEYUP, &nKey, ShiftState());
            break;
        }
        case WM_CHAR: {
            short nKey = static_cast<short>(wParam);
            Fire(DISPID_KEYPRESS, &nKey);
            wParam = static_cast<WORD>(nKey);
            return wParam == 0 || m_hWnd == nullptr;
        }
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
        case WM_MBUTTONDOWN:
            if (!HasFocus()) {
                ::SetFocus(m_hWnd);
            }
            m_bPressed = nMessage == WM_LBUTTONDOWN;
            TellMouse(DISPID_MOUSEDOWN,
                      nMessage == WM_LBUTTONDOWN   ? kLeft
                      : nMessage == WM_RBUTTONDOWN ? kRight
                                                   : kMiddle,
                      lParam);
            break;
        case WM_MOUSEMOVE:
            TellMouse(DISPID_MOUSEMOVE, static_cast<short>(wParam & (MK_LBUTTON | MK_RBUTTON)),
                      lParam);
            break;
        case WM_LBUTTONUP:
        case WM_RBUTTONUP:
        case WM_MBUTTONUP:
            // Whoever hears of the click may want the mouse for a dialog.
            if (nMessage == WM_LBUTTONUP && ::GetCapture() == m_hWnd) {
                ::ReleaseCapture();
            }
            TellMouse(DISPID_MOUSEUP,
                      nMessage == WM_LBUTTONUP   ? kLeft
                      : nMessage == WM_RBUTTONUP ? kRight
                                                 : kMiddle,
                      lParam);
            if (nMessage == WM_LBUTTONUP && std::exchange(m_bPressed, false)) {
                Fire(DISPID_CLICK);
            }
            break;
        case WM_LBUTTONDBLCLK:
            Fire(DISPID_DBLCLICK);
            break;
        default:
            return false;
    }
    return m_hWnd == nullptr;
}

/// MousePointer as it is published; false where the class's own is to show.
bool Control::SetPointer() {
    constexpr LONG kCustom = 99;
    static const LPCSTR kPointers[] = {nullptr,      IDC_ARROW,       IDC_CROSS,    IDC_IBEAM,
                                       IDC_ARROW,    IDC_SIZEALL,     IDC_SIZENESW, IDC_SIZENS,
                                       IDC_SIZENWSE, IDC_SIZEWE,      IDC_UPARROW,  IDC_WAIT,
                                       IDC_NO,       IDC_APPSTARTING, IDC_HELP,     IDC_SIZEALL};
    const LONG nPointer = Number(m_kind.idMousePointer);
    if (nPointer == kCustom) {
        OLE_HANDLE hPicture = 0;
        short nType = PICTYPE_NONE;
        const auto icon = Ref<IPicture>::Of(Object(m_kind.idMouseIcon));
        if (icon && SUCCEEDED(icon->get_Type(&nType)) && nType == PICTYPE_ICON &&
            SUCCEEDED(icon->get_Handle(&hPicture))) {
            ::SetCursor(static_cast<HCURSOR>(LongToHandle(hPicture)));
            return true;
        }
        return false;
    }
    if (nPointer <= 0 || nPointer >= static_cast<LONG>(std::size(kPointers))) {
        return false;
    }
    ::SetCursor(::LoadCursorA(nullptr, kPointers[nPointer]));
    return true;
}

bool Control::WantsKey(const MSG&) {
    return false;
}

std::wstring Control::Mnemonics() {
    return {};
}

void Control::OnMnemonicKey(wchar_t) {}

}  // namespace ocx
