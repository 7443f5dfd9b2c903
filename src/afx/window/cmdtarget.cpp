#include "afx/window/cmdtarget.h"

#include "afx/window/wnd_state.h"

#include <afxwin.h>

#include <atomic>

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

CCmdTarget::CCmdTarget() = default;
CCmdTarget::~CCmdTarget() = default;

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const {
    return GetThisMessageMap();
}

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap() {
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, nullptr, nullptr}};
    static const AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

void CCmdTarget::OnFinalRelease() {
    delete this;
}

namespace {

const AFX_MSGMAP* BaseOf(const AFX_MSGMAP* pMap) {
    return pMap->pfnGetBaseMap != nullptr ? pMap->pfnGetBaseMap() : nullptr;
}

const AFX_MSGMAP_ENTRY* WalkForMessage(const AFX_MSGMAP* pMap, UINT nMsg) {
    const bool bRegistered = nMsg >= kFirstRegisteredMessage;
    for (; pMap != nullptr; pMap = BaseOf(pMap)) {
        for (const AFX_MSGMAP_ENTRY* p = pMap->lpEntries; p->pfnCall != nullptr; ++p) {
            if (p->pnRegistered != nullptr ? bRegistered && *p->pnRegistered == nMsg
                                           : p->nMessage == nMsg) {
                return p;
            }
        }
    }
    return nullptr;
}

/// The outcome of one search. Most searches find nothing, so that outcome is kept as well.
struct CacheLine {
    const AFX_MSGMAP* pMap = nullptr;
    UINT nMsg = 0;
    const AFX_MSGMAP_ENTRY* pEntry = nullptr;
};
constexpr size_t kCacheLines = 512;

/// Counts the modules that went away: their maps' addresses may come to be other maps.
std::atomic<unsigned> s_nModulesGone{0};

struct Cache {
    unsigned nModulesGone = 0;
    CacheLine lines[kCacheLines];
};

CacheLine& LineFor(const AFX_MSGMAP* pMap, UINT nMsg) {
    static Cache first;
    static thread_local Cache other;
    Cache& cache = AfxInFirstThread() ? first : other;
    const unsigned nModulesGone = s_nModulesGone;
    if (cache.nModulesGone != nModulesGone) {
        cache = Cache();
        cache.nModulesGone = nModulesGone;
    }
    const size_t hash = reinterpret_cast<size_t>(pMap) / alignof(AFX_MSGMAP) + nMsg;
    return cache.lines[hash % kCacheLines];
}

}  // namespace

void AfxForgetMessageMaps() {
    ++s_nModulesGone;
}

const AFX_MSGMAP_ENTRY* AfxFindWindowEntry(const AFX_MSGMAP* pMap, UINT nMsg) {
    if (nMsg >= kFirstRegisteredMessage) {
        return WalkForMessage(pMap, nMsg);
    }
    CacheLine& line = LineFor(pMap, nMsg);
    if (line.pMap != pMap || line.nMsg != nMsg) {
        line = {pMap, nMsg, WalkForMessage(pMap, nMsg)};
    }
    return line.pEntry;
}

const AFX_MSGMAP_ENTRY* AfxFindCommandEntry(const AFX_MSGMAP* pMap, UINT nMsg, UINT nCode,
                                            UINT nID) {
    for (; pMap != nullptr; pMap = BaseOf(pMap)) {
        for (const AFX_MSGMAP_ENTRY* p = pMap->lpEntries; p->pfnCall != nullptr; ++p) {
            if (p->nMessage == nMsg && p->nCode == nCode && nID >= p->nID && nID <= p->nLastID) {
                return p;
            }
        }
    }
    return nullptr;
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (static_cast<UINT>(nCode) == CN_EVENT) {
        return OnEvent(nID, static_cast<AFX_EVENT*>(pExtra), pHandlerInfo);
    }
    const bool bPlainUpdate = static_cast<UINT>(nCode) == CN_UPDATE_COMMAND_UI;
    UINT nMsg = bPlainUpdate ? 0 : HIWORD(nCode);
    if (nMsg == 0) {
        nMsg = WM_COMMAND;
    }
    const UINT nWordCode = LOWORD(nCode);

    const AFX_MSGMAP_ENTRY* pEntry = AfxFindCommandEntry(GetMessageMap(), nMsg, nWordCode, nID);
    if (pEntry == nullptr) {
        return FALSE;
    }
    if (pHandlerInfo != nullptr) {
        pHandlerInfo->pTarget = this;
        pHandlerInfo->pfnCall = pEntry->pfnCall;
        return TRUE;
    }

    AFX_MSGCALL call;
    call.nID = nID;
    if (nMsg == WM_NOTIFY || nMsg == WM_REFLECT_BASE + WM_NOTIFY) {
        const auto* pNotify = static_cast<const AFX_NOTIFY*>(pExtra);
        call.pNMHDR = pNotify->pNMHDR;
        call.pResult = pNotify->pResult;
    } else if (nWordCode == LOWORD(CN_UPDATE_COMMAND_UI)) {
        call.pCmdUI = static_cast<CCmdUI*>(pExtra);
        call.pCmdUI->m_bContinueRouting = FALSE;
    }
    // The handler may delete this object.
    pEntry->pfnCall(this, call);
    if (call.pCmdUI != nullptr) {
        call.bHandled = !call.pCmdUI->m_bContinueRouting;
        call.pCmdUI->m_bContinueRouting = FALSE;
    }
    return call.bHandled;
}

void CCmdTarget::BeginWaitCursor() {
    if (CWinApp* pApp = AfxGetApp()) {
        pApp->DoWaitCursor(1);
    }
}

void CCmdTarget::EndWaitCursor() {
    if (CWinApp* pApp = AfxGetApp()) {
        pApp->DoWaitCursor(-1);
    }
}

void CCmdTarget::RestoreWaitCursor() {
    if (CWinApp* pApp = AfxGetApp()) {
        pApp->DoWaitCursor(0);
    }
}

CWaitCursor::CWaitCursor() {
    if (CWinApp* pApp = AfxGetApp()) {
        pApp->DoWaitCursor(1);
    }
}

CWaitCursor::~CWaitCursor() {
    if (CWinApp* pApp = AfxGetApp()) {
        pApp->DoWaitCursor(-1);
    }
}

void CWaitCursor::Restore() {
    if (CWinApp* pApp = AfxGetApp()) {
        pApp->DoWaitCursor(0);
    }
}
