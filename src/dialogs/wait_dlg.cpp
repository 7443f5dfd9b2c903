#include "dialogs/wait_dlg.h"

#include "common/status.h"
#include "dialogs/core/progress_percent.h"
#include "dialogs/dialog_ids.h"
#include "frame/create_window.h"

#include <utility>

BEGIN_MESSAGE_MAP(QVWaitDlg, CDialog)
    ON_WM_DESTROY()
    ON_WM_ACTIVATE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()

namespace {

constexpr DWORD kMostPumping = 20;  // milliseconds for what comes while messages are dispatched
constexpr int kAll = 100;           // percent

enum class Pumped { All, NotAll, Quit };

// nExitCode is set for Quit.
Pumped PumpQueue(int& nExitCode) {
    CWinThread* const pThread = AfxGetThread();
    if (pThread == nullptr) {
        return Pumped::All;
    }
    const DWORD dwStart = ::GetTickCount();
    MSG msg;
    while (::PeekMessage(&msg, nullptr, 0, 0, PM_NOREMOVE)) {
        // A message that posts its successor and a window that stays invalid never end.
        const bool bCameBefore = static_cast<LONG>(msg.time - dwStart) <= 0;
        if (!bCameBefore && ::GetTickCount() - dwStart > kMostPumping) {
            return Pumped::NotAll;
        }
        if (!pThread->PumpMessage()) {
            nExitCode = static_cast<int>(msg.wParam);
            return Pumped::Quit;
        }
    }
    return Pumped::All;
}

}  // namespace

QVWaitDlg::QVWaitDlg() = default;

QVWaitDlg::~QVWaitDlg() {
    if (m_hWnd != nullptr) {
        QVWaitDlg::Remove();
    }
    GiveOwnerBack(false);
}

void QVWaitDlg::SetProgressRange(DWORD nRange) {
    m_nPos = 0;
    m_nRange = nRange;
}

void QVWaitDlg::SetWaitMessage(UINT nStringID) {
    CString strText;
    qv::MemorySuffices([&] { strText.LoadString(nStringID); });
    SetWaitMessage(static_cast<LPCSTR>(strText));
}

void QVWaitDlg::SetWaitMessage(LPCSTR pszText) {
    if (m_hWnd == nullptr) {
        qv::MemorySuffices([&] { m_strMessage = CString(pszText); });
        return;
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    ::SetDlgItemText(m_hWnd, QV_IDC_WAIT_MESSAGE, pszText != nullptr ? pszText : "");
    if (watch) {
        UpdateWindow();
    }
}

void QVWaitDlg::SetHasCancelButton(BOOL bHas) {
    m_bHasCancel = bHas;
}

BOOL QVWaitDlg::Cancelled() {
    return m_bCancelled;
}

// --- Coming and going

BOOL QVWaitDlg::Display(CWnd* pParent, BOOL bCapture) {
    const qv::AliveWatch object(m_alive);
    if (m_hWnd != nullptr) {
        Remove();
        if (!object || m_hWnd != nullptr) {
            return FALSE;
        }
    }
    m_bCancelled = FALSE;
    TakeOwner(pParent->GetSafeHwnd() != nullptr ? pParent : AfxGetMainWnd());
    // Who is told of it may delete the dialog, or destroy the owner.
    if (!object) {
        return FALSE;
    }
    if (m_hDisabled != nullptr && !::IsWindow(m_hDisabled)) {
        GiveOwnerBack(false);
        return FALSE;
    }
    if (!qv::CreateWhole(*this, [&] {
            return Create(QV_IDD_WAIT, m_pOwner) && m_wndProgress.m_hWnd != nullptr;
        })) {
        GiveOwnerBack(false);
        return FALSE;
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    if (!m_bHasCancel) {
        CutOffCancel();
    }
    m_bCapture = bCapture;
    if (m_bCapture) {
        SetCapture();
    }
    if (watch) {
        ShowWindow(SW_SHOW);
    }
    if (watch) {
        UpdateWindow();
    }
    if (!watch) {
        return FALSE;
    }
    if (m_pOwner == nullptr) {
        m_pOwner = GetParent();
        m_hDisabled = m_pOwner->GetSafeHwnd();
        m_bOwnerEnabled = m_hDisabled != nullptr && ::IsWindowEnabled(m_hDisabled);
    }
    return TRUE;
}

void QVWaitDlg::TakeOwner(CWnd* pOwner) {
    m_hDisabled = pOwner->GetSafeHwnd();
    m_pOwner = m_hDisabled != nullptr ? pOwner : nullptr;
    if (m_pOwner != nullptr) {
        m_bOwnerEnabled = ::IsWindowEnabled(m_hDisabled);
        ::EnableWindow(m_hDisabled, FALSE);
    }
}

namespace {

struct OtherDialog {
    HWND hOwner;
    QVWaitDlg* pDlg;
};

}  // namespace

BOOL CALLBACK QVWaitDlg::FindOther(HWND hWnd, LPARAM lSearch) {
    auto& other = *reinterpret_cast<OtherDialog*>(lSearch);
    auto* const pDlg = dynamic_cast<QVWaitDlg*>(CWnd::FromHandlePermanent(hWnd));
    if (pDlg != nullptr && pDlg->m_hDisabled == other.hOwner) {
        other.pDlg = pDlg;
    }
    return other.pDlg == nullptr;
}

void QVWaitDlg::GiveOwnerBack(bool bActivate) {
    m_pOwner = nullptr;
    const HWND hOwner = std::exchange(m_hDisabled, nullptr);
    const BOOL bEnabled = m_bOwnerEnabled;
    if (::IsWindow(hOwner)) {
        OtherDialog other{hOwner, nullptr};
        ::EnumThreadWindows(::GetCurrentThreadId(), &QVWaitDlg::FindOther,
                            reinterpret_cast<LPARAM>(&other));
        if (other.pDlg != nullptr) {
            other.pDlg->m_bOwnerEnabled |= bEnabled;
            return;
        }
        ::EnableWindow(hOwner, bEnabled);
        if (bEnabled && bActivate) {
            ::SetActiveWindow(hOwner);
        }
    }
}

// Message and bar stay in sight.
void QVWaitDlg::CutOffCancel() {
    constexpr int kGap = 1;
    const HWND hCancel = ::GetDlgItem(m_hWnd, IDCANCEL);
    if (hCancel == nullptr) {
        return;
    }
    ::EnableWindow(hCancel, FALSE);
    CRect rcCancel;
    CRect rcDialog;
    ::GetWindowRect(hCancel, rcCancel);
    GetWindowRect(rcDialog);
    rcDialog.bottom = rcCancel.top - kGap;
    MoveWindow(rcDialog);
}

void QVWaitDlg::Remove() {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    GiveOwnerBack(true);
    if (watch) {
        DestroyWindow();
    }
}

// Here also where somebody else destroys the window: the application, or the owner as it goes,
// which is hidden already.
void QVWaitDlg::OnDestroy() {
    if (std::exchange(m_bCapture, FALSE)) {
        ::ReleaseCapture();
    }
    if (std::exchange(m_bQuit, false)) {
        AfxPostQuitMessage(m_nExitCode);
    }
    const qv::AliveWatch watch(m_alive);
    GiveOwnerBack(::IsWindowVisible(m_hDisabled));
    if (watch) {
        CDialog::OnDestroy();
    }
}

BOOL QVWaitDlg::OnInitDialog() {
    if (!CDialog::OnInitDialog()) {
        return FALSE;  // ended
    }
    m_wndProgress.SendMessage(PBM_SETRANGE, 0, MAKELPARAM(0, kAll));
    m_wndProgress.SendMessage(PBM_SETPOS, 0);
    CenterWindow(nullptr);
    return TRUE;
}

// The bar last: Display takes it as the sign that all went well.
void QVWaitDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, QV_IDC_WAIT_MESSAGE, m_strMessage);
    DDX_Control(pDX, QV_IDC_WAIT_PROGRESS, m_wndProgress);
}

// --- Progress

void QVWaitDlg::Step(DWORD nAmount) {
    m_nPos += nAmount;
    ShowProgress();
}

void QVWaitDlg::SetPosition(DWORD nPos) {
    m_nPos = nPos;
    ShowProgress();
}

void QVWaitDlg::SetPosition64(ULONGLONG nPos, ULONGLONG nRange) {
    m_nRange = kAll;
    SetPosition(qv::Percent(nPos, nRange));
}

void QVWaitDlg::ShowProgress() {
    const qv::AliveWatch watch(m_alive);
    UpdateProgressBar();
    if (watch) {
        PumpMessages();
    }
}

// What shows already is neither set nor painted again: most steps of many change nothing.
void QVWaitDlg::UpdateProgressBar() {
    const HWND hBar = m_wndProgress.m_hWnd;
    const auto nPercent = qv::PercentIn32Bits(m_nPos, m_nRange);
    if (hBar == nullptr ||
        ::SendMessage(hBar, PBM_GETPOS, 0, 0) == static_cast<LRESULT>(nPercent)) {
        return;
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    ::SendMessage(hBar, PBM_SETPOS, nPercent, 0);
    if (watch) {
        UpdateWindow();
    }
}

// --- Messages

void QVWaitDlg::ProcessWinMessages() {
    int nExitCode = 0;
    if (PumpQueue(nExitCode) == Pumped::Quit) {
        AfxPostQuitMessage(nExitCode);
    }
}

void QVWaitDlg::PumpMessages() {
    const qv::AliveWatch watch(m_alive);
    int nExitCode = 0;
    const Pumped pumped = PumpQueue(nExitCode);
    if (pumped == Pumped::Quit) {
        if (watch) {
            m_bCancelled = TRUE;
        }
        if (watch && m_hWnd != nullptr) {
            m_bQuit = true;
            m_nExitCode = nExitCode;
        } else {
            AfxPostQuitMessage(nExitCode);
        }
    }
    if (pumped == Pumped::NotAll && watch) {
        PumpInput();
    }
    if (watch) {
        KeepCapture();
    }
}

// What is posted comes before what is typed: a flood of messages would keep the user from
// cancelling.
void QVWaitDlg::PumpInput() {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    constexpr std::pair<UINT, UINT> kRanges[] = {{WM_KEYFIRST, WM_KEYLAST},
                                                 {WM_MOUSEFIRST, WM_MOUSELAST}};
    for (const auto& [nFirst, nLast] : kRanges) {
        MSG msg;
        while (watch && ::PeekMessage(&msg, m_hWnd, nFirst, nLast, PM_REMOVE)) {
            if (!PreTranslateMessage(&msg)) {
                ::TranslateMessage(&msg);
                ::DispatchMessage(&msg);
            }
        }
    }
}

// --- Cancelling

void QVWaitDlg::OnCancel() {
    m_bCancelled = TRUE;
}

// Without a default button, Enter means OK.
void QVWaitDlg::OnOK() {}

BOOL QVWaitDlg::PreTranslateMessage(MSG* pMsg) {
    // Where nobody has the focus a key comes as a system key without the menu key held. The
    // platform does not take ESC for a Cancel button that is disabled.
    const bool bUnfocused =
        pMsg->message == WM_SYSKEYDOWN && (HIWORD(pMsg->lParam) & KF_ALTDOWN) == 0;
    if (pMsg->wParam == VK_ESCAPE && (pMsg->message == WM_KEYDOWN || bUnfocused)) {
        const HWND hCancel = ::GetDlgItem(m_hWnd, IDCANCEL);
        if (bUnfocused || !::IsWindowEnabled(hCancel)) {
            SendMessage(WM_COMMAND, IDCANCEL, reinterpret_cast<LPARAM>(hCancel));
            return TRUE;
        }
    }
    return CDialog::PreTranslateMessage(pMsg);
}

void QVWaitDlg::OnActivate(UINT nState, CWnd* pOther, BOOL bMinimized) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    CDialog::OnActivate(nState, pOther, bMinimized);
    if (watch && m_bCapture && nState != WA_INACTIVE) {
        SetCapture();
    }
}

// The button captures the mouse itself for a click, and gives it to nobody then.
void QVWaitDlg::KeepCapture() {
    if (m_bCapture && m_hWnd != nullptr && ::GetCapture() == nullptr &&
        ::GetActiveWindow() == m_hWnd) {
        SetCapture();
    }
}

// With the capture the dialog gets the clicks on its items.
void QVWaitDlg::OnLButtonDown(UINT nFlags, CPoint point) {
    const HWND hItem =
        m_bCapture ? ::ChildWindowFromPointEx(m_hWnd, point, CWP_SKIPDISABLED | CWP_SKIPINVISIBLE)
                   : nullptr;
    if (hItem == nullptr || hItem == m_hWnd) {
        CDialog::OnLButtonDown(nFlags, point);
        return;
    }
    ::MapWindowPoints(m_hWnd, hItem, &point, 1);
    ::SendMessage(hItem, WM_LBUTTONDOWN, nFlags, MAKELPARAM(point.x, point.y));
}

void QVWaitDlg::OnLButtonDblClk(UINT nFlags, CPoint point) {
    OnLButtonDown(nFlags, point);
}

// --- The callback

void QVWaitDlgProgressCallback::Callback(BYTE nCode, DWORD_PTR dwValue, void* pParam) {
    auto* const pDlg = static_cast<QVWaitDlg*>(pParam);
    if (pDlg == nullptr) {
        return;
    }
    const qv::AliveWatch watch(pDlg->m_alive);
    const auto dwCount = static_cast<DWORD>(dwValue);
    switch (nCode) {
        case qvpcRange:
            pDlg->SetProgressRange(dwCount);
            break;
        case qvpcPosition:
            pDlg->SetPosition(dwCount);
            break;
        case qvpcStep:
            pDlg->Step(dwCount);
            break;
        case qvpcText:
            pDlg->SetWaitMessage(reinterpret_cast<LPCSTR>(dwValue));
            break;
        case qvpcTextID:
            pDlg->SetWaitMessage(static_cast<UINT>(dwValue));
            break;
        default:
            break;
    }
    if (!watch || pDlg->Cancelled()) {
        throw new QVStatus(QVStatus::cancelled);
    }
}
