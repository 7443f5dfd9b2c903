#include "buttons/bitmap_button.h"

#include "buttons/button_accessible.h"
#include "buttons/core/check_press.h"
#include "frame/bevel.h"
#include "frame/dc_guards.h"
#include "frame/out_of_memory.h"
#include "frame/tip_relay.h"

#include <oleacc.h>

IMPLEMENT_DYNAMIC(QVBitmapButton, CButton)

BEGIN_MESSAGE_MAP(QVBitmapButton, CButton)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_KEYDOWN()
    ON_WM_KEYUP()
    ON_WM_CAPTURECHANGED()
    ON_WM_ERASEBKGND()
    ON_MESSAGE(BM_SETCHECK, &QVBitmapButton::OnSetCheck)
    ON_MESSAGE(BM_GETCHECK, &QVBitmapButton::OnGetCheck)
    ON_MESSAGE(WM_SETTEXT, &QVBitmapButton::OnSetText)
    ON_MESSAGE(WM_GETOBJECT, &QVBitmapButton::OnGetObject)
END_MESSAGE_MAP()

QVBitmapButton::QVBitmapButton()
    : QVAccessible(static_cast<CWnd&>(*this)), m_pSpace(std::make_unique<qv::SpacePress>()) {}

QVBitmapButton::~QVBitmapButton() {
    delete m_pToolTip;
}

void QVBitmapButton::SetImageID(CImageList* pImageList, int nImage) {
    m_pImageList = pImageList;
    m_nImage = nImage;
}

void QVBitmapButton::SetCheckable(int bCheckable) {
    m_bCheckable = bCheckable;
}

void QVBitmapButton::EnableToolTip(unsigned nTextID) {
    qv::SetTipText(m_pToolTip, *this, nTextID, static_cast<UINT>(::GetDlgCtrlID(m_hWnd)));
}

void QVBitmapButton::EnableToolTip(const char* pszText) {
    qv::SetTipText(m_pToolTip, *this, pszText);
}

// --- Drawing

BOOL QVBitmapButton::ShadeRect(CDC& dc, CRect& rect) {
    return qv::ShadeRect(dc, rect) ? TRUE : FALSE;
}

// The parent's window procedure is the caller.
void QVBitmapButton::DrawItem(LPDRAWITEMSTRUCT pDrawItem) {
    qv::MemorySuffices([&] { Paint(*pDrawItem); });
}

void QVBitmapButton::Paint(const DRAWITEMSTRUCT& item) {
    const CRect rcItem(item.rcItem);
    CDC& dc = *CDC::FromHandle(item.hDC);
    CDC dcMemory;
    CBitmap bitmap;
    if (rcItem.IsRectEmpty() || !dcMemory.CreateCompatibleDC(&dc) ||
        !bitmap.CreateCompatibleBitmap(&dc, rcItem.Width(), rcItem.Height())) {
        return;  // nothing to draw on; the next paint tries again
    }
    const qv::SelectGuard<CBitmap> selected(dcMemory, &bitmap);
    dcMemory.SetViewportOrg(-rcItem.left, -rcItem.top);
    DrawFace(dcMemory, item);
    dc.BitBlt(rcItem.left, rcItem.top, rcItem.Width(), rcItem.Height(), &dcMemory, rcItem.left,
              rcItem.top, SRCCOPY);
}

void QVBitmapButton::DrawFace(CDC& dc, const DRAWITEMSTRUCT& item) {
    const bool bPressed = (item.itemState & ODS_SELECTED) != 0;
    CRect rc(item.rcItem);
    qv::DrawBevel(dc, rc, !bPressed && m_nCheck != qv::kChecked);
    if (rc.IsRectEmpty()) {
        return;
    }
    dc.FillSolidRect(&rc, ::GetSysColor(COLOR_BTNFACE));
    if (m_pImageList == nullptr) {
        return;
    }
    if (m_nCheck == qv::kChecked) {
        ShadeRect(dc, rc);
    }
    IMAGEINFO info;
    if (m_nImage < 0 || m_nImage >= m_pImageList->GetImageCount() ||
        !m_pImageList->GetImageInfo(m_nImage, &info)) {
        return;
    }
    const CSize size = CRect(info.rcImage).Size();
    CPoint pt(rc.left + (rc.Width() - size.cx) / 2, rc.top + (rc.Height() - size.cy) / 2);
    if (m_nCheck == qv::kIndeterminate || (m_nCheck == qv::kUnchecked && !IsWindowEnabled())) {
        qv::DrawDisabledImage(dc, *m_pImageList, m_nImage, pt, size);
        return;
    }
    if (bPressed) {
        pt.Offset(1, 1);
    }
    m_pImageList->Draw(&dc, m_nImage, pt, ILD_NORMAL);
}

BOOL QVBitmapButton::OnEraseBkgnd(CDC*) {
    return TRUE;  // DrawItem writes each pixel
}

// --- Mouse and keys. The parent is told in the default handling, and may delete the button there.

LRESULT QVBitmapButton::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return qv::HandleQuietly(m_hWnd, message,
                             [&] { return CButton::WindowProc(message, wParam, lParam); });
}

BOOL QVBitmapButton::PreTranslateMessage(MSG* pMsg) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    qv::RelayToTip(m_pToolTip, *pMsg);
    return watch ? CButton::PreTranslateMessage(pMsg) : TRUE;
}

void QVBitmapButton::MoveCheck() {
    if (m_bCheckable) {
        m_nCheck = qv::ClickedCheck(m_nCheck);
        TellAccessible(EVENT_OBJECT_STATECHANGE, CHILDID_SELF);
    }
}

void QVBitmapButton::OnLButtonDown(UINT, CPoint) {
    m_bIgnoreUp = FALSE;  // a double click that ended elsewhere
    Default();
}

void QVBitmapButton::OnLButtonUp(UINT, CPoint point) {
    CRect rc;
    GetClientRect(&rc);
    const bool bMoves = !m_bIgnoreUp && rc.PtInRect(point);
    m_bIgnoreUp = FALSE;
    Invalidate(FALSE);
    const qv::WindowWatch watch(m_alive, m_hWnd);
    if (bMoves) {
        MoveCheck();
    }
    if (watch) {
        Default();
    }
}

void QVBitmapButton::OnLButtonDblClk(UINT, CPoint) {
    m_bIgnoreUp = TRUE;
    Default();
}

void QVBitmapButton::OnKeyDown(UINT nChar, UINT, UINT) {
    if (nChar != VK_SPACE) {
        Default();
        return;
    }
    const auto captured = [this] { return ::GetCapture() == m_hWnd; };
    if (!m_pSpace->GoesDown(captured())) {
        return;
    }
    const qv::WindowWatch watch(m_alive, m_hWnd);
    Default();
    if (watch) {
        m_pSpace->WentDown(captured());
    }
}

// The platform clicks as Space goes up, and sends no release of the mouse.
void QVBitmapButton::OnKeyUp(UINT nChar, UINT, UINT) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    if (nChar == VK_SPACE) {
        const bool bPushed = (GetState() & BST_PUSHED) != 0;
        switch (m_pSpace->GoesUp(::GetCapture() == m_hWnd, bPushed)) {
            case qv::SpacePress::Release::kNotOurs:
                return;
            case qv::SpacePress::Release::kClick:
                Invalidate(FALSE);
                MoveCheck();
                break;
            case qv::SpacePress::Release::kNoClick:
                break;
        }
    }
    if (watch) {
        Default();
    }
}

void QVBitmapButton::OnCaptureChanged(CWnd*) {
    m_pSpace->LoseCapture();
    Default();
}

// --- The state

LRESULT QVBitmapButton::OnSetCheck(WPARAM wParam, LPARAM) {
    const int nCheck = static_cast<int>(wParam);
    if (m_bCheckable && nCheck != m_nCheck) {
        m_nCheck = nCheck;
        Invalidate(FALSE);
        TellAccessible(EVENT_OBJECT_STATECHANGE, CHILDID_SELF);
    }
    return 0;
}

LRESULT QVBitmapButton::OnGetCheck(WPARAM, LPARAM) {
    return m_nCheck;
}

// --- What a screen reader is told

LRESULT QVBitmapButton::OnGetObject(WPARAM wParam, LPARAM lParam) {
    return AsksAccessible(lParam) ? AnswerAccessible(wParam, lParam) : Default();
}

LRESULT QVBitmapButton::OnSetText(WPARAM, LPARAM) {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const LRESULT lResult = Default();
    if (watch) {
        TellAccessible(EVENT_OBJECT_NAMECHANGE, CHILDID_SELF);
    }
    return lResult;
}

CString QVBitmapButton::TipText() const {
    CString strTip;
    if (m_pToolTip != nullptr && m_pToolTip->m_hWnd != nullptr) {
        m_pToolTip->GetText(strTip, const_cast<QVBitmapButton*>(this));
    }
    return strTip;
}

CString QVBitmapButton::GetAccessibleName(long nPart) {
    const CString strTip = GetWindowTextLength() == 0 ? TipText() : CString();
    return strTip.IsEmpty() ? QVAccessible::GetAccessibleName(nPart) : strTip;
}

CString QVBitmapButton::GetAccessibleDescription(long nPart) {
    const CString strTip = TipText();
    return strTip != GetAccessibleName(nPart) ? strTip : CString();
}

CString QVBitmapButton::GetAccessibleAction(long) {
    return !m_bCheckable                                  ? "Press"
           : qv::ClickedCheck(m_nCheck) == qv::kUnchecked ? "Uncheck"
                                                          : "Check";
}

long QVBitmapButton::GetAccessibleRole(long) {
    return m_bCheckable ? ROLE_SYSTEM_CHECKBUTTON : ROLE_SYSTEM_PUSHBUTTON;
}

long QVBitmapButton::GetAccessibleState(long nPart) {
    long nState = QVAccessible::GetAccessibleState(nPart) | qv::ButtonState(*this);
    if (m_nCheck == qv::kIndeterminate) {
        nState |= STATE_SYSTEM_MIXED;
    } else if (m_nCheck == qv::kChecked) {
        nState |= STATE_SYSTEM_CHECKED;
    }
    return nState;
}

BOOL QVBitmapButton::DoAccessibleAction(long) {
    return qv::PressButton(*this);
}
