#include "buttons/menu_button.h"

#include "buttons/button_accessible.h"
#include "buttons/core/menu_face.h"
#include "frame/bevel.h"
#include "frame/dc_guards.h"
#include "frame/out_of_memory.h"
#include "frame/rectangles.h"
#include "frame/text_out.h"

#include <oleacc.h>

IMPLEMENT_DYNAMIC(QVMenuButton, CButton)

BEGIN_MESSAGE_MAP(QVMenuButton, CButton)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_CONTROL_REFLECT(BN_CLICKED, &QVMenuButton::OnClicked)
    ON_WM_GETDLGCODE()
    ON_WM_DESTROY()
    ON_MESSAGE(WM_SETTEXT, &QVMenuButton::OnSetText)
    ON_MESSAGE(WM_GETOBJECT, &QVMenuButton::OnGetObject)
END_MESSAGE_MAP()

namespace {

constexpr unsigned kFirstCommand = 900;
constexpr int kFocusInset = 3;

bool FillMenu(CMenu& menu, const CStringArray& items, unsigned nStartCmdID) {
    if (!menu.CreatePopupMenu()) {
        return false;
    }
    for (INT_PTR i = 0; i < items.GetSize(); ++i) {
        const auto nPosition = static_cast<UINT>(i);
        if (!menu.InsertMenu(nPosition, MF_BYPOSITION | MF_STRING, nStartCmdID + nPosition,
                             items[i])) {
            return false;
        }
    }
    return true;
}

}  // namespace

QVMenuButton::QVMenuButton()
    : QVAccessible(static_cast<CWnd&>(*this)), m_nStartCmdID(kFirstCommand) {}

QVMenuButton::~QVMenuButton() {
    CloseMenu();
}

int QVMenuButton::AddString(const CString& strItem) {
    INT_PTR nIndex = -1;
    qv::MemorySuffices([&] { nIndex = m_astrItems.Add(strItem); });
    return static_cast<int>(nIndex);
}

void QVMenuButton::SetStartCmdID(unsigned nCmdID) {
    m_nStartCmdID = nCmdID;
}

// --- The menu

void QVMenuButton::ShowMenu() {
    if (m_bMenuOpen) {
        return;  // a message of the menu's own loop led here
    }
    qv::MemorySuffices([&] {
        CMenu menu;
        if (!FillMenu(menu, m_astrItems, m_nStartCmdID)) {
            return;
        }
        CRect rc;
        GetWindowRect(&rc);
        const qv::WindowWatch watch(m_alive, m_hWnd);
        {
            const qv::SetWhileAlive<bool> open(m_alive, m_bMenuOpen, true);
            TellAccessible(EVENT_OBJECT_STATECHANGE, CHILDID_SELF);
            if (watch) {
                menu.TrackPopupMenu(TPM_RIGHTBUTTON, rc.left, rc.bottom, this);
            }
        }
        if (watch) {
            TellAccessible(EVENT_OBJECT_STATECHANGE, CHILDID_SELF);
        }
    });
}

// A menu does not end by itself when its window goes. Where the popup goes first, with the
// top-level window that owns it, EndMenu has nobody to wake the menu's loop by.
void QVMenuButton::CloseMenu() {
    if (m_bMenuOpen) {
        ::EndMenu();
        ::PostThreadMessage(::GetCurrentThreadId(), WM_CANCELMODE, 0, 0);
    }
}

void QVMenuButton::OnMenuSelected(unsigned nIndex) {
    CWinThread* const pThread = AfxGetThread();
    CWnd* const pMainWnd = pThread != nullptr ? pThread->GetMainWnd() : nullptr;
    if (pMainWnd->GetSafeHwnd() != nullptr) {
        pMainWnd->PostMessage(WM_COMMAND, m_nStartCmdID + nIndex, reinterpret_cast<LPARAM>(m_hWnd));
    }
}

BOOL QVMenuButton::OnCommand(WPARAM wParam, LPARAM lParam) {
    const unsigned nIndex = LOWORD(wParam) - m_nStartCmdID;
    if (HIWORD(wParam) == 0 && LOWORD(wParam) >= m_nStartCmdID &&
        nIndex < static_cast<unsigned>(m_astrItems.GetSize())) {
        OnMenuSelected(nIndex);
        return TRUE;
    }
    return CButton::OnCommand(wParam, lParam);
}

// The command that the main window gets names this button as its sender, and looks like its click:
// the framework offers it here first. Only what the parent was told about the button's own id is a
// click.
BOOL QVMenuButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message == WM_COMMAND && (LOWORD(wParam) != LOWORD(::GetDlgCtrlID(m_hWnd)) ||
                                  GetCurrentMessage()->hwnd != ::GetParent(m_hWnd))) {
        return FALSE;
    }
    return CButton::OnChildNotify(message, wParam, lParam, pResult);
}

// --- Messages

LRESULT QVMenuButton::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return qv::HandleQuietly(m_hWnd, message,
                             [&] { return CButton::WindowProc(message, wParam, lParam); });
}

// Nothing by default: the button does not go down, sends no click, and leaves the focus where it
// is, which the macro button relies on.
void QVMenuButton::OnLButtonDown(UINT, CPoint) {
    ShowMenu();
}

void QVMenuButton::OnLButtonDblClk(UINT, CPoint) {}

void QVMenuButton::OnClicked() {
    ShowMenu();
}

UINT QVMenuButton::OnGetDlgCode() {
    return DLGC_BUTTON;  // no default button: its looks would replace the owner-drawn style
}

void QVMenuButton::OnDestroy() {
    CloseMenu();
    CButton::OnDestroy();
}

// --- Drawing

void QVMenuButton::DrawArrow(CDC& dc, const CRect& rect, unsigned long crColor) {
    CPen pen(PS_SOLID, 1, crColor);
    const qv::SelectGuard<CPen> selected(dc, &pen);
    for (const qv::ArrowLine& line : qv::ArrowLines(qv::ToRect(rect))) {
        dc.MoveTo(line.start.x, line.start.y);
        dc.LineTo(line.start.x + line.nLength, line.start.y);
    }
}

// The parent's window procedure is the caller.
void QVMenuButton::DrawItem(LPDRAWITEMSTRUCT pDrawItem) {
    qv::MemorySuffices([&] { Paint(*pDrawItem); });
}

void QVMenuButton::Paint(const DRAWITEMSTRUCT& item) {
    CDC& dc = *CDC::FromHandle(item.hDC);
    CRect rcItem(item.rcItem);
    dc.DrawFrameControl(&rcItem, DFC_BUTTON, DFCS_BUTTONPUSH);
    if ((item.itemState & ODS_FOCUS) != 0) {
        CRect rcFocus(rcItem);
        rcFocus.DeflateRect(kFocusInset, kFocusInset);
        dc.DrawFocusRect(&rcFocus);
    }
    const qv::SelectGuard<CFont> selected(dc, GetFont());
    CString strCaption;
    GetWindowText(strCaption);
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    const qv::Rect rcBlock =
        qv::CaptionBlock(qv::ToRect(item.rcItem), qv::TextExtent(dc, qv::View(strCaption)).cx,
                         {static_cast<int>(metrics.tmHeight), static_cast<int>(metrics.tmDescent),
                          static_cast<int>(metrics.tmMaxCharWidth)});
    const CRect rcArrow = qv::ToCRect(qv::ArrowRect(rcBlock));
    if (IsWindowEnabled()) {
        qv::DrawTextAt(dc, rcBlock.left, rcBlock.top, qv::View(strCaption));
        DrawArrow(dc, rcArrow, ::GetSysColor(COLOR_WINDOWTEXT));
        return;
    }
    qv::DrawEngravedText(dc, rcBlock.left, rcBlock.top, qv::View(strCaption));
    qv::DrawEngraved(
        [&](int nOffset, COLORREF cr) { DrawArrow(dc, rcArrow + CPoint(nOffset, nOffset), cr); });
}

// --- What a screen reader is told

LRESULT QVMenuButton::OnGetObject(WPARAM wParam, LPARAM lParam) {
    return AsksAccessible(lParam) ? AnswerAccessible(wParam, lParam) : Default();
}

LRESULT QVMenuButton::OnSetText(WPARAM, LPARAM) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const LRESULT lResult = Default();
    if (watch) {
        TellAccessible(EVENT_OBJECT_NAMECHANGE, CHILDID_SELF);
    }
    return lResult;
}

CString QVMenuButton::GetAccessibleAction(long) {
    return m_bMenuOpen ? "Close" : "Open";
}

long QVMenuButton::GetAccessibleRole(long) {
    return ROLE_SYSTEM_BUTTONMENU;
}

long QVMenuButton::GetAccessibleState(long nPart) {
    return QVAccessible::GetAccessibleState(nPart) | qv::ButtonState(*this) |
           STATE_SYSTEM_HASPOPUP | (m_bMenuOpen ? STATE_SYSTEM_EXPANDED : STATE_SYSTEM_COLLAPSED);
}

BOOL QVMenuButton::DoAccessibleAction(long) {
    if (m_bMenuOpen) {
        CloseMenu();
        return TRUE;
    }
    return qv::PressButton(*this);
}
