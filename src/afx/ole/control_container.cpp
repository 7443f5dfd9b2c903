#include "afx/ole/control_container.h"

#include "afx/ole/site_interfaces.h"
#include "afx/window/wnd_state.h"

#include <afxdisp.h>

#include <algorithm>

COleControlContainer::COleControlContainer(CWnd* pWnd)
    : m_pWnd(pWnd), m_pInterfaces(new AfxContainerInterfaces(this)) {}

COleControlContainer::~COleControlContainer() {
    m_pInterfaces->ForgetContainer();
    m_pInterfaces->Release();
}

void COleControlContainer::Unhold() {
    if (--m_nHolds == 0 && m_pWnd == nullptr) {
        delete this;
    }
}

void COleControlContainer::EndAllControls() {
    const AfxHold<COleControlContainer> hold(this);
    while (!m_sites.empty()) {
        COleControlSite* const pSite = m_sites.back();
        if (!pSite->DestroyControl()) {
            m_sites.pop_back();  // on its way out already
        }
    }
}

void COleControlContainer::OnWindowGone() {
    const AfxHold<COleControlContainer> hold(this);
    EndAllControls();
    if (m_pWnd != nullptr) {
        m_pWnd->m_pCtrlCont = nullptr;
        m_pWnd = nullptr;
        m_pInterfaces->ForgetContainer();
    }
}

BOOL COleControlContainer::CreateControl(CWnd* pWndCtrl, REFCLSID clsid, LPCTSTR lpszWindowName,
                                         DWORD dwStyle, const RECT& rect, UINT nID, CFile* pPersist,
                                         BOOL bStorage, BSTR bstrLicKey,
                                         COleControlSite** ppNewSite) {
    const CRect rc(rect);
    const CPoint point = rc.TopLeft();
    const CSize size = rc.Size();
    return CreateControl(pWndCtrl, clsid, lpszWindowName, dwStyle, &point, &size, nID, pPersist,
                         bStorage, bstrLicKey, ppNewSite);
}

BOOL COleControlContainer::CreateControl(CWnd* pWndCtrl, REFCLSID clsid, LPCTSTR lpszWindowName,
                                         DWORD dwStyle, const POINT* ppt, const SIZE* psize,
                                         UINT nID, CFile* pPersist, BOOL bStorage, BSTR bstrLicKey,
                                         COleControlSite** ppNewSite) {
    const AfxHold<COleControlContainer> hold(this);
    COleControlSite* pSite = nullptr;
    if (m_pWnd == nullptr || !m_pWnd->CreateControlSite(this, &pSite, nID, clsid)) {
        return FALSE;
    }
    m_sites.reserve(m_sites.size() + 1);
    if (pSite == nullptr) {
        pSite = new COleControlSite(this);
    }
    const AfxHold<COleControlSite> holdSite(pSite);
    m_sites.push_back(pSite);
    HRESULT hr = E_FAIL;
    try {
        hr = pSite->CreateControl(pWndCtrl, clsid, lpszWindowName, dwStyle, ppt, psize, nID,
                                  pPersist, bStorage, bstrLicKey);
    } catch (...) {
        pSite->DestroyControl();
        throw;
    }
    if (FAILED(hr)) {
        pSite->DestroyControl();
        return FALSE;
    }
    if (ppNewSite != nullptr) {
        *ppNewSite = pSite;
    }
    return TRUE;
}

COleControlSite* COleControlContainer::FindItem(UINT nID) const {
    const auto it = std::ranges::find(m_sites, nID, &COleControlSite::m_nID);
    return it != m_sites.end() ? *it : nullptr;
}

COleControlSite* COleControlContainer::FindItem(HWND hWnd, bool bInside) const {
    for (COleControlSite* pSite : m_sites) {
        if (pSite->m_hWnd != nullptr &&
            (pSite->m_hWnd == hWnd || (bInside && ::IsChild(pSite->m_hWnd, hWnd)))) {
            return pSite;
        }
    }
    return nullptr;
}

namespace {

/// Those of a list that are still there when their turn comes: each may end others.
template <class Act>
void ForEachSite(const std::vector<COleControlSite*>& sites, Act act) {
    const std::vector<COleControlSite*> all = sites;
    for (COleControlSite* pSite : all) {
        if (std::ranges::find(sites, pSite) != sites.end()) {
            act(*pSite);
        }
    }
}

}  // namespace

void COleControlContainer::BroadcastAmbientPropertyChange(DISPID dispid) {
    const AfxHold<COleControlContainer> hold(this);
    ForEachSite(m_sites, [&](COleControlSite& site) { site.OnAmbientPropertyChange(dispid); });
}

void COleControlContainer::FreezeAllEvents(BOOL bFreeze) {
    const AfxHold<COleControlContainer> hold(this);
    ForEachSite(m_sites, [&](COleControlSite& site) { site.FreezeEvents(bFreeze); });
}

void COleControlContainer::OnUIActivate(COleControlSite* pSite) {
    COleControlSite* const pOld = m_pSiteUIActive;
    if (pOld == pSite) {
        return;
    }
    m_pSiteUIActive = pSite;
    if (pOld != nullptr && pOld->m_pInPlaceObject) {
        const AfxHold<COleControlSite> hold(pOld);
        const AfxComPtr<IOleInPlaceObject> pInPlace = pOld->m_pInPlaceObject;
        pInPlace->UIDeactivate();
    }
}

void COleControlContainer::OnUIDeactivate(COleControlSite* pSite) {
    if (m_pSiteUIActive == pSite) {
        m_pSiteUIActive = nullptr;
    }
}

// --- Keys

BOOL COleControlContainer::OnMnemonic(LPMSG lpMsg) {
    if (lpMsg->message != WM_SYSKEYDOWN && lpMsg->message != WM_SYSCHAR) {
        return FALSE;
    }
    const AfxHold<COleControlContainer> hold(this);
    COleControlSite* pTaker = nullptr;
    ForEachSite(m_sites, [&](COleControlSite& site) {
        if (pTaker == nullptr && ::IsWindowVisible(site.m_hWnd) && ::IsWindowEnabled(site.m_hWnd) &&
            site.HasMnemonic(*lpMsg)) {
            pTaker = &site;
        }
    });
    if (pTaker == nullptr) {
        return FALSE;
    }
    pTaker->OnMnemonic(lpMsg);
    return TRUE;
}

BOOL COleControlContainer::WantsKey(const MSG& msg) const {
    if (msg.message != WM_KEYDOWN || (msg.wParam != VK_RETURN && msg.wParam != VK_ESCAPE)) {
        return FALSE;
    }
    COleControlSite* const pSite = FindItem(msg.hwnd, true);
    const DWORD dwEats = msg.wParam == VK_RETURN ? CTRLINFO_EATS_RETURN : CTRLINFO_EATS_ESCAPE;
    return pSite != nullptr && (pSite->ControlInfo().dwFlags & dwEats) != 0;
}

BOOL COleControlContainer::OnReturn(const MSG& msg) {
    if (msg.message != WM_KEYDOWN || msg.wParam != VK_RETURN) {
        return FALSE;
    }
    const AfxHold<COleControlContainer> hold(this);
    if (COleControlSite* const pSite = FindItem(msg.hwnd, true)) {
        if (pSite->Click()) {
            return TRUE;
        }
    } else if (AfxSend(msg.hwnd, WM_GETDLGCODE, VK_RETURN, &msg) &
               (DLGC_DEFPUSHBUTTON | DLGC_WANTMESSAGE)) {
        return FALSE;
    }
    const DWORD dwDefault = AfxSend<DWORD>(m_pWnd->GetSafeHwnd(), DM_GETDEFID);
    COleControlSite* const pDefault =
        HIWORD(dwDefault) == DC_HASDEFID ? FindItem(LOWORD(dwDefault)) : nullptr;
    return pDefault != nullptr && pDefault->IsWindowEnabled() && pDefault->Click();
}
