#include "text/text_box.h"

#include "common/process_text.h"
#include "frame/ancestor_font.h"
#include "frame/create_window.h"
#include "frame/dc_guards.h"
#include "frame/notify.h"
#include "frame/paint_objects.h"
#include "frame/text_out.h"
#include "text/core/text_list.h"

#include <algorithm>
#include <cstring>
#include <oleacc.h>

namespace {

constexpr UINT kChosen = 8;  // high word of WM_COMMAND when a choice is made
constexpr UINT kSpinId = UINT(-1);
constexpr int kSpinInset = 2;  // from the window's edges, pixels
constexpr int kTextInset = 2;  // from the left and the right, and before an image
constexpr int kImageGap = 4;   // behind an image
constexpr INT_PTR kLastSpinPos = 0x7FFF;

}  // namespace

BEGIN_MESSAGE_MAP(QVTextBox, CStatic)
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_WM_VSCROLL()
    ON_WM_ENABLE()
    ON_WM_SYSCOLORCHANGE()
    ON_MESSAGE(WM_SETTEXT, &QVTextBox::OnSetText)
    ON_MESSAGE(WM_GETTEXT, &QVTextBox::OnGetText)
    ON_MESSAGE(WM_GETTEXTLENGTH, &QVTextBox::OnGetTextLength)
    ON_WM_SIZE()
    ON_WM_WINDOWPOSCHANGING()
    ON_WM_GETDLGCODE()
    ON_WM_NCHITTEST()
    ON_WM_LBUTTONDOWN()
    ON_WM_KEYDOWN()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_MESSAGE(WM_GETOBJECT, &QVTextBox::OnGetObject)
END_MESSAGE_MAP()

// --- Life

QVTextBox::QVTextBox()
    : QVAccessible(static_cast<CWnd&>(*this)),
      m_crText(::GetSysColor(COLOR_BTNTEXT)),
      m_crTextBk(::GetSysColor(COLOR_BTNFACE)) {
    NameByLabelAlone();
}

// The window's last messages find the text and the spin button.
QVTextBox::~QVTextBox() {
    DestroyWindow();
}

LRESULT QVTextBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return qv::HandleQuietly(m_hWnd, message,
                             [&] { return CStatic::WindowProc(message, wParam, lParam); });
}

BOOL QVTextBox::PreCreateWindow(CREATESTRUCT& cs) {
    cs.style &= ~WS_BORDER;
    if (m_bShowBorder) {
        cs.dwExStyle |= WS_EX_STATICEDGE;
    }
    return CStatic::PreCreateWindow(cs);
}

int QVTextBox::Create(UINT nID, const CRect& rc, CWnd* pParent) {
    return qv::CreateWhole(*this, [&] {
        return CStatic::Create("", WS_CHILD | WS_VISIBLE | WS_TABSTOP, rc, pParent, nID);
    });
}

int QVTextBox::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    return qv::InitializeOnCreate(
        *lpCreateStruct, [&] { return CStatic::OnCreate(lpCreateStruct); },
        [&](UINT nID, CWnd* pParent) { return Initialize(nID, pParent); });
}

// A box that has its window shows its own text already.
int QVTextBox::Initialize(UINT nID, CWnd* pParent) {
    const bool bDone = qv::MemorySuffices([&] {
        if (m_hWnd == nullptr && pParent != nullptr) {
            pParent->GetDlgItemText(static_cast<int>(nID), m_strText);
            SubclassDlgItem(nID, pParent);
        }
    });
    if (FromHandlePermanent(m_hWnd) != this) {
        m_hWnd = nullptr;  // a handle that the framework found no memory to remember
    }
    if (!bDone || m_hWnd == nullptr) {
        return 0;
    }
    if (m_aTexts.GetSize() > 1) {
        EnableSpin();
    }
    return 1;
}

// --- Attributes

void QVTextBox::SetShowBorder(int bShow) {
    m_bShowBorder = bShow;
}

void QVTextBox::SetTextColor(COLORREF cr) {
    m_crText = cr;
    m_bOwnColors = true;
}

void QVTextBox::SetTextBkColor(COLORREF cr) {
    m_crTextBk = cr;
    m_bOwnColors = true;
}

void QVTextBox::SetImage(CImageList* pImageList, int nImage) {
    m_pImageList = pImageList;
    m_nImage = nImage;
}

// --- The list

void QVTextBox::SetTextList(const char* pszList) {
    m_bTextList = 1;
    m_nCurText = 0;
    if (!qv::MemorySuffices([&] { TakeList(pszList != nullptr ? pszList : ""); })) {
        m_aTexts.RemoveAll();
        m_strText.Empty();
    }
    if (m_hWnd != nullptr) {
        if (m_aTexts.GetSize() > 1) {
            EnableSpin();
        }
        Invalidate(FALSE);
        TellText();
    }
}

// The list may be a text of the box.
void QVTextBox::TakeList(const char* pszList) {
    const CString strList(pszList);
    m_aTexts.RemoveAll();
    for (const std::string_view entry : qv::SplitTextList(qv::View(strList))) {
        m_aTexts.Add(CString(entry.data(), static_cast<int>(entry.size())));
    }
    m_strText = m_aTexts.GetSize() > 0 ? m_aTexts[0] : CString();
}

void QVTextBox::EnableSpin() {
    if (m_hWnd == nullptr || IsChooser()) {
        return;
    }
    m_nSystemBk = COLOR_WINDOW;
    m_crTextBk = ::GetSysColor(m_nSystemBk);
    ModifyStyle(0, WS_CLIPCHILDREN);  // its paint leaves the spin button alone
    const bool bMade = qv::CreateWhole(m_spin, [&] {
        return m_spin.Create(WS_CHILD | WS_VISIBLE | UDS_WRAP | UDS_ALIGNRIGHT, SpinRect(), this,
                             kSpinId);
    });
    if (!bMade) {
        return;
    }
    // The platform puts a spin button beside its buddy and makes room for it there. This one lies
    // inside, so the buddy stays as it is and the button goes back to its place.
    {
        const qv::SetWhileAlive keep(m_alive, m_bKeepPlace, true);
        m_spin.SendMessage(UDM_SETBUDDY, reinterpret_cast<WPARAM>(m_hWnd));
    }
    PlaceSpin();
    const INT_PTR nLast = std::clamp<INT_PTR>(m_aTexts.GetSize() - 1, 0, kLastSpinPos);
    m_spin.SetRange(0, static_cast<short>(nLast));
    m_spin.EnableWindow(IsWindowEnabled());
}

CRect QVTextBox::SpinRect() const {
    CRect rc;
    GetWindowRect(&rc);
    ScreenToClient(&rc);
    rc.left = rc.right - ::GetSystemMetrics(SM_CXHSCROLL);
    rc.DeflateRect(0, kSpinInset);
    rc.bottom = std::max(rc.top, rc.bottom);
    rc.OffsetRect(-kSpinInset, 0);
    return rc;
}

void QVTextBox::PlaceSpin() {
    if (IsChooser()) {
        const CRect rc = SpinRect();
        m_spin.SetWindowPos(nullptr, rc.left, rc.top, rc.Width(), rc.Height(),
                            SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void QVTextBox::OnWindowPosChanging(WINDOWPOS* pPos) {
    if (m_bKeepPlace) {
        pPos->flags |= SWP_NOMOVE | SWP_NOSIZE;
    }
    CStatic::OnWindowPosChanging(pPos);
}

void QVTextBox::OnSize(UINT nType, int cx, int cy) {
    CStatic::OnSize(nType, cx, cy);
    PlaceSpin();
    Invalidate(FALSE);  // the text keeps to the middle
}

// --- Steps

void QVTextBox::OnVScroll(UINT nCode, UINT nPos, CScrollBar* pBar) {
    if (!m_bTextList) {
        CStatic::OnVScroll(nCode, nPos, pBar);
    } else if (nCode == SB_THUMBPOSITION) {
        m_nCurText = static_cast<int>(nPos);
        if (m_nCurText < m_aTexts.GetSize()) {
            m_strText = m_aTexts[m_nCurText];
            Invalidate(TRUE);
            TellText();
        }
    } else if (nCode == SB_ENDSCROLL) {
        const MSG msg = *GetCurrentMessage();
        const auto nID = static_cast<UINT>(GetDlgCtrlID());
        if (qv::SendToParent(*this, m_alive, WM_COMMAND, MAKEWPARAM(nID, kChosen), 0).bAlive) {
            DefWindowProc(msg.message, msg.wParam, msg.lParam);
        }
    }
}

void QVTextBox::Step(int nSteps) {
    int nFirst = 0;
    int nLast = 0;
    m_spin.GetRange(nFirst, nLast);
    GoTo(qv::StepInList(static_cast<short>(LOWORD(m_spin.GetPos())), nSteps, nLast));
}

// As the spin button does it: a position, and the end of the choice.
void QVTextBox::GoTo(int nPos) {
    m_spin.SetPos(nPos);
    const auto lSpin = reinterpret_cast<LPARAM>(m_spin.m_hWnd);
    const qv::WindowWatch watch(m_alive, m_hWnd);
    SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, nPos), lSpin);
    if (watch) {
        SendMessage(WM_VSCROLL, MAKEWPARAM(SB_ENDSCROLL, nPos), lSpin);
    }
}

void QVTextBox::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    if (IsChooser() && (nChar == VK_UP || nChar == VK_DOWN)) {
        Step(nChar == VK_UP ? 1 : -1);
    } else {
        CStatic::OnKeyDown(nChar, nRepCnt, nFlags);
    }
}

UINT QVTextBox::OnGetDlgCode() {
    return IsChooser() ? DLGC_WANTARROWS : CStatic::OnGetDlgCode();
}

// A static control lets the mouse through to its parent.
LRESULT QVTextBox::OnNcHitTest(CPoint pt) {
    return IsChooser() ? HTCLIENT : CStatic::OnNcHitTest(pt);
}

void QVTextBox::OnLButtonDown(UINT, CPoint) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const MSG msg = *GetCurrentMessage();
    if (IsChooser()) {
        SetFocus();
    }
    if (watch) {
        DefWindowProc(msg.message, msg.wParam, msg.lParam);
    }
}

void QVTextBox::OnSetFocus(CWnd* pOldWnd) {
    Invalidate(FALSE);
    CStatic::OnSetFocus(pOldWnd);
}

void QVTextBox::OnKillFocus(CWnd* pNewWnd) {
    Invalidate(FALSE);
    CStatic::OnKillFocus(pNewWnd);
}

void QVTextBox::OnEnable(BOOL bEnable) {
    Invalidate(FALSE);
    if (IsChooser()) {
        m_spin.EnableWindow(bEnable);
    }
}

// --- Text

LRESULT QVTextBox::OnSetText(WPARAM, LPARAM lParam) {
    const auto* pszText = reinterpret_cast<const char*>(lParam);
    const CString strText(pszText != nullptr ? pszText : "");
    m_strText = strText;
    if (m_bTextList) {
        m_nCurText = FindText(strText);
        if (m_nCurText >= 0 && IsChooser()) {
            m_spin.SetPos(m_nCurText);
        }
    }
    Invalidate(TRUE);
    TellText();
    return 1;
}

// -1 if it is not in the list.
int QVTextBox::FindText(const CString& strText) const {
    for (INT_PTR i = 0; i < m_aTexts.GetSize(); ++i) {
        if (qv::ProcessText().CompareNoCase(m_aTexts[i], strText) == 0) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

LRESULT QVTextBox::OnGetText(WPARAM wParam, LPARAM lParam) {
    auto* pszBuffer = reinterpret_cast<char*>(lParam);
    if (pszBuffer == nullptr) {
        return 0;
    }
    const size_t nBytes = qv::ProcessText().PrefixBytes(m_strText, wParam);
    std::memcpy(pszBuffer, m_strText, nBytes);
    std::memset(pszBuffer + nBytes, 0, wParam - nBytes);
    return static_cast<LRESULT>(nBytes);
}

LRESULT QVTextBox::OnGetTextLength(WPARAM, LPARAM) {
    return m_strText.GetLength();
}

void QVTextBox::OnSysColorChange() {
    CStatic::OnSysColorChange();
    if (!m_bOwnColors) {
        m_crText = ::GetSysColor(COLOR_BTNTEXT);
        m_crTextBk = ::GetSysColor(m_nSystemBk);
    }
    Invalidate(FALSE);
}

// --- Painting

void QVTextBox::OnPaint() {
    CPaintDC dc(this);
    CRect rcClient;
    GetClientRect(&rcClient);
    const bool bEnabled = IsWindowEnabled();
    const qv::ColorGuard colors(dc);
    const qv::SelectGuard<CFont> font(dc, qv::NearestFont(this));
    const COLORREF crBk = bEnabled ? m_crTextBk : ::GetSysColor(COLOR_BTNFACE);
    dc.SetBkColor(crBk);
    dc.SetTextColor(bEnabled ? m_crText : ::GetSysColor(COLOR_GRAYTEXT));
    {
        CBrush brush(crBk);
        dc.FillRect(&rcClient, &brush);
    }
    CRect rcText = DrawImage(dc, rcClient);
    const DWORD dwAlign = GetStyle() & SS_TYPEMASK;
    const UINT nAlign = dwAlign == SS_CENTER ? DT_CENTER : dwAlign == SS_RIGHT ? DT_RIGHT : DT_LEFT;
    qv::DrawTextIn(dc, qv::View(m_strText), rcText,
                   DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | nAlign);
    if (IsChooser() && GetFocus() == this) {
        rcClient.right = SpinRect().left;
        dc.DrawFocusRect(&rcClient);
    }
}

CRect QVTextBox::DrawImage(CDC& dc, const CRect& rcClient) {
    CRect rcText = rcClient;
    rcText.DeflateRect(kTextInset, 0);
    IMAGEINFO info;
    if (m_pImageList != nullptr && m_nImage != -1 && m_pImageList->GetImageInfo(m_nImage, &info)) {
        const CSize size = CRect(info.rcImage).Size();
        m_pImageList->Draw(&dc, m_nImage, CPoint(kTextInset, (rcClient.Height() - size.cy) / 2),
                           ILD_NORMAL);
        rcText.left = kTextInset + size.cx + kImageGap;
    }
    return rcText;
}

// --- What a screen reader is told

LRESULT QVTextBox::OnGetObject(WPARAM wParam, LPARAM lParam) {
    return AsksAccessible(lParam) ? AnswerAccessible(wParam, lParam) : Default();
}

void QVTextBox::TellText() {
    TellAccessible(IsChooser() ? EVENT_OBJECT_VALUECHANGE : EVENT_OBJECT_NAMECHANGE, CHILDID_SELF);
}

CString QVTextBox::GetAccessibleName(long nPart) {
    return IsChooser() ? QVAccessible::GetAccessibleName(nPart) : m_strText;
}

CString QVTextBox::GetAccessibleValue(long nPart) {
    return IsChooser() && nPart == CHILDID_SELF ? m_strText : CString();
}

CString QVTextBox::GetAccessibleShortcut(long nPart) {
    return IsChooser() ? QVAccessible::GetAccessibleShortcut(nPart) : CString();
}

long QVTextBox::GetAccessibleRole(long) {
    return IsChooser() ? ROLE_SYSTEM_SPINBUTTON : ROLE_SYSTEM_STATICTEXT;
}

long QVTextBox::GetAccessibleState(long nPart) {
    return IsChooser() ? QVAccessible::GetAccessibleState(nPart)
                       : AccessibleWindowState() | STATE_SYSTEM_READONLY;
}

long QVTextBox::GetAccessibleCount() {
    return IsChooser() ? 1 : 0;
}

HWND QVTextBox::GetAccessibleWindow(long) {
    return m_spin.m_hWnd;
}

long QVTextBox::AccessibleHitTest(CPoint pt) {
    return IsChooser() && SpinRect().PtInRect(pt) ? 1 : CHILDID_SELF;
}

BOOL QVTextBox::SetAccessibleValue(long nPart, const CString& strValue) {
    const int nText = nPart == CHILDID_SELF && IsChooser() ? FindText(strValue) : -1;
    int nFirst = 0;
    int nLast = -1;
    if (nText >= 0) {
        m_spin.GetRange(nFirst, nLast);
    }
    if (nText < 0 || nText > nLast || !IsWindowEnabled()) {
        return FALSE;
    }
    if (nText != m_nCurText) {
        GoTo(nText);
    }
    return TRUE;
}
