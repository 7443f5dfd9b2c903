#include "frame/tip_relay.h"

#include "frame/out_of_memory.h"

#include <memory>

namespace qv {

namespace {

bool IsRelayed(UINT nMessage) {
    switch (nMessage) {
        case WM_MOUSEMOVE:
        case WM_LBUTTONDOWN:
        case WM_LBUTTONUP:
        case WM_RBUTTONDOWN:
        case WM_RBUTTONUP:
        case WM_MBUTTONDOWN:
        case WM_MBUTTONUP:
            return true;
        default:
            return false;
    }
}

bool HasTool(CToolTipCtrl& toolTip, CWnd& wnd) {
    TOOLINFO info{};
    info.cbSize = TTTOOLINFOA_V2_SIZE;
    info.hwnd = ::GetParent(wnd.m_hWnd);
    info.uId = reinterpret_cast<UINT_PTR>(wnd.m_hWnd);
    return toolTip.SendMessage(TTM_GETTOOLINFO, 0, reinterpret_cast<LPARAM>(&info)) != 0;
}

// A tooltip's window goes with that of its owner; its object stays.
bool MakeToolTip(CToolTipCtrl*& pToolTip, CWnd& wnd) {
    if (pToolTip != nullptr && pToolTip->m_hWnd != nullptr) {
        return true;
    }
    auto pNew = std::make_unique<CToolTipCtrl>();
    if (!pNew->Create(wnd.GetParent())) {
        return false;
    }
    delete pToolTip;
    pToolTip = pNew.release();
    return true;
}

}  // namespace

bool SetTipText(CToolTipCtrl*& pToolTip, CWnd& wnd, LPCSTR pszText) {
    bool bSet = false;
    MemorySuffices([&] {
        if (wnd.m_hWnd == nullptr || !MakeToolTip(pToolTip, wnd)) {
            return;
        }
        const LPCSTR pszShown = pszText != nullptr ? pszText : "";
        bSet = true;
        if (HasTool(*pToolTip, wnd)) {
            pToolTip->UpdateTipText(pszShown, &wnd);
        } else {
            bSet = pToolTip->AddTool(&wnd, pszShown) != 0;
            pToolTip->Activate(TRUE);
        }
    });
    return bSet;
}

bool SetTipText(CToolTipCtrl*& pToolTip, CWnd& wnd, UINT nTextID, UINT nDefaultID) {
    bool bSet = false;
    MemorySuffices([&] {
        CString strText;
        bSet = strText.LoadString(nTextID != 0 ? nTextID : nDefaultID) &&
               SetTipText(pToolTip, wnd, strText);
    });
    return bSet;
}

void RelayToTip(CToolTipCtrl* pToolTip, MSG& msg) {
    if (pToolTip == nullptr || !IsRelayed(msg.message)) {
        return;
    }
    const HWND hToolTip = pToolTip->m_hWnd;
    ::SendMessage(hToolTip, TTM_ACTIVATE, TRUE, 0);
    ::SendMessage(hToolTip, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&msg));
}

}  // namespace qv
