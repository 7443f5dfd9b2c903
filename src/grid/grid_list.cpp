#include "grid/grid_list.h"

#include "frame/rectangles.h"
#include "grid/core/grid_list_rect.h"

#include <utility>

namespace {

// Of the screen that the rectangle lies on, or is nearest to.
qv::Rect WorkArea(const CRect& rc) {
    MONITORINFO info{};
    info.cbSize = sizeof(info);
    ::GetMonitorInfo(::MonitorFromRect(&rc, MONITOR_DEFAULTTONEAREST), &info);
    return qv::ToRect(info.rcWork);
}

}  // namespace

BEGIN_MESSAGE_MAP(QVGridList, CListBox)
    ON_WM_MOUSEACTIVATE()
    ON_WM_KILLFOCUS()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
END_MESSAGE_MAP()

// --- What core asks of it

void QVGridList::Make() {
    // The bar shows in a list that is limited in height alone.
    if (!CreateEx(0, "LISTBOX", nullptr, WS_POPUP | WS_BORDER | WS_VSCROLL, CRect(0, 0, 0, 0),
                  &m_grid, 0)) {
        AfxThrowMemoryException();
    }
    SetOwner(&m_grid);
    SendMessage(WM_SETFONT, static_cast<WPARAM>(m_grid.SendMessage(WM_GETFONT)), FALSE);
}

void QVGridList::Fill(const CStringArray& choices) {
    qv::AsBadAlloc([&] {
        if (m_hWnd == nullptr) {
            Make();
        } else {
            ShowWindow(SW_HIDE);
        }
        ResetContent();
        for (INT_PTR i = 0; i < choices.GetSize(); ++i) {
            if (InsertString(-1, choices[i]) < 0) {
                AfxThrowMemoryException();
            }
        }
    });
}

std::string QVGridList::LineText(int nLine) const {
    return qv::AsBadAlloc([&] {
        CString str;
        GetText(nLine, str);
        return std::string(str, static_cast<size_t>(str.GetLength()));
    });
}

void QVGridList::Place(const qv::Rect& rcCell) {
    CRect rcScreen = qv::ToCRect(rcCell);
    m_grid.ClientToScreen(&rcScreen);
    const qv::Rect rcOver = qv::ToRect(rcScreen);
    const int nHeight = GetItemHeight(0);
    const CRect rc =
        qv::ToCRect(m_nMaxLines > 0 ? qv::GridListRectOnScreen(rcOver, nHeight, GetCount(),
                                                               m_nMaxLines, WorkArea(rcScreen))
                                    : qv::GridListRect(rcOver, nHeight, GetCount()));
    MoveWindow(&rc, Up());
}

void QVGridList::Show() {
    ShowWindow(SW_SHOWNA);
    Follow(true);
}

void QVGridList::Hide() {
    Follow(false);
    if (::GetCapture() == m_hWnd) {
        ::ReleaseCapture();
    }
    ShowWindow(SW_HIDE);
}

void QVGridList::Close() {
    Follow(false);
    DestroyWindow();
}

// --- Moving with the windows around the grid, which the grid is not told of

void QVGridList::Follow(bool bFollow) {
    if (bFollow == m_bFollows) {
        return;
    }
    m_bFollows = bFollow;
    if (bFollow) {
        m_pNext = std::exchange(s_pFollowing, this);
    } else {
        QVGridList** ppList = &s_pFollowing;
        while (*ppList != this) {
            ppList = &(*ppList)->m_pNext;
        }
        *ppList = m_pNext;
    }
    if (s_pFollowing != nullptr && s_hHook == nullptr) {
        s_hHook =
            ::SetWindowsHookEx(WH_CALLWNDPROCRET, AfterMessage, nullptr, ::GetCurrentThreadId());
    } else if (s_pFollowing == nullptr && s_hHook != nullptr) {
        ::UnhookWindowsHookEx(std::exchange(s_hHook, nullptr));
    }
}

LRESULT CALLBACK QVGridList::AfterMessage(int nCode, WPARAM wParam, LPARAM lParam) {
    const auto& sent = *reinterpret_cast<const CWPRETSTRUCT*>(lParam);
    if (nCode == HC_ACTION && sent.message == WM_WINDOWPOSCHANGED) {
        for (QVGridList* pList = s_pFollowing; pList != nullptr; pList = pList->m_pNext) {
            HWND hWndGrid = pList->m_grid.m_hWnd;
            if (sent.hwnd == hWndGrid || ::IsChild(sent.hwnd, hWndGrid)) {
                pList->m_editing.PlaceEditors();
            }
        }
    }
    return ::CallNextHookEx(nullptr, nCode, wParam, lParam);
}

// --- Messages

void QVGridList::OnKillFocus(CWnd*) {
    const MSG msg = *GetCurrentMessage();
    const qv::WindowWatch watch(m_alive, m_hWnd);
    m_editing.SaveList();
    if (watch) {
        DefWindowProc(msg.message, msg.wParam, msg.lParam);
    }
}

int QVGridList::OnMouseActivate(CWnd*, UINT, UINT) {
    return MA_NOACTIVATE;
}

// The choice is made by the release.
void QVGridList::OnLButtonDown(UINT, CPoint) {}

void QVGridList::OnLButtonUp(UINT, CPoint) {
    m_editing.SaveList();
}

void QVGridList::OnMouseMove(UINT, CPoint pt) {
    CRect rc;
    GetClientRect(&rc);
    if (rc.PtInRect(pt)) {
        BOOL bOutside;
        const int nLine = static_cast<int>(ItemFromPoint(pt, bOutside));
        if (GetCurSel() != nLine) {
            SetCurSel(nLine);
        }
        if (::GetCapture() != m_hWnd) {
            ::SetCapture(m_hWnd);
        }
    } else {
        ::ReleaseCapture();
        SetCurSel(-1);
    }
    Default();
}
