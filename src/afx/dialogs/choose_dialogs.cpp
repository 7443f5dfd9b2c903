#include "afx/dialogs/choose_dialogs.h"

#include "afx/window/wnd_state.h"

#include <afxdlgs.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CColorDialog, CCommonDialog)
IMPLEMENT_DYNAMIC(CFontDialog, CCommonDialog)

CColorDialog::CColorDialog(COLORREF clrInit, DWORD dwFlags, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd), m_cc() {
    m_cc.lStructSize = sizeof m_cc;
    m_cc.rgbResult = clrInit;
    m_cc.lpCustColors = GetSavedCustomColors();
    m_cc.Flags = dwFlags | CC_ENABLEHOOK | (clrInit != 0 ? CC_RGBINIT : 0);
    m_cc.lpfnHook = &CColorDialog::HookProc;
}

COLORREF* CColorDialog::GetSavedCustomColors() {
    struct Colors {
        COLORREF all[16];
        Colors() { std::fill(std::begin(all), std::end(all), RGB(255, 255, 255)); }
    };
    static Colors s_colors;
    return s_colors.all;
}

INT_PTR CColorDialog::DoModal() {
    m_cc.hwndOwner = PreModal();
    return RunSystemDialog(m_cc.hwndOwner, [](CCommonDialog* pDlg) {
        return ::ChooseColor(&static_cast<CColorDialog*>(pDlg)->m_cc);
    });
}

void CColorDialog::SetCurrentColor(COLORREF clr) {
    static const UINT s_nSetRGB = ::RegisterWindowMessage(SETRGBSTRING);
    SendMessage(s_nSetRGB, 0, static_cast<LPARAM>(clr));
}

BOOL CColorDialog::OnColorOK() {
    return FALSE;
}

UINT_PTR CALLBACK CColorDialog::HookProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    static const UINT s_nColorOK = ::RegisterWindowMessage(COLOROKSTRING);
    if (message != s_nColorOK) {
        return SystemDialogHook(hWnd, message, wParam, lParam);
    }
    try {
        auto* pDlg = dynamic_cast<CColorDialog*>(CWnd::FromHandlePermanent(hWnd));
        return pDlg != nullptr && pDlg->OnColorOK();
    } catch (...) {
        AfxProcessCurrentException(hWnd, message, wParam, lParam);
        return TRUE;
    }
}

// --- CFontDialog

namespace {

constexpr int kTwipsOfInch = 1440;
constexpr int kTwipsOfTenth = 2;  // of a point

/// Of the screen, which a null context means.
int PixelsOfInch() {
    const HDC hDC = ::GetDC(nullptr);
    const int nPixels = ::GetDeviceCaps(hDC, LOGPIXELSY);
    ::ReleaseDC(nullptr, hDC);
    return nPixels;
}

LOGFONT FontOf(const CHARFORMAT& format) {
    LOGFONT lf = {};
    if (format.dwMask & CFM_SIZE) {
        lf.lfHeight = -::MulDiv(format.yHeight, PixelsOfInch(), kTwipsOfInch);
    }
    lf.lfWeight = (format.dwMask & format.dwEffects & CFM_BOLD) ? FW_BOLD : FW_NORMAL;
    lf.lfItalic = (format.dwMask & format.dwEffects & CFM_ITALIC) != 0;
    lf.lfUnderline = (format.dwMask & format.dwEffects & CFM_UNDERLINE) != 0;
    lf.lfStrikeOut = (format.dwMask & format.dwEffects & CFM_STRIKEOUT) != 0;
    lf.lfCharSet = (format.dwMask & CFM_CHARSET) ? format.bCharSet : DEFAULT_CHARSET;
    lf.lfPitchAndFamily = DEFAULT_PITCH;
    if (format.dwMask & CFM_FACE) {
        lf.lfPitchAndFamily = format.bPitchAndFamily;
        lstrcpyn(lf.lfFaceName, format.szFaceName, LF_FACESIZE);
    }
    return lf;
}

}  // namespace

CFontDialog::CFontDialog(LPLOGFONT lplfInitial, DWORD dwFlags, CDC* pdcPrinter, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd), m_cf(), m_lf() {
    Init(lplfInitial, dwFlags, pdcPrinter);
}

CFontDialog::CFontDialog(const CHARFORMAT& charformat, DWORD dwFlags, CDC* pdcPrinter,
                         CWnd* pParentWnd)
    : CCommonDialog(pParentWnd), m_cf(), m_lf() {
    const LOGFONT lf = FontOf(charformat);
    Init(&lf, dwFlags, pdcPrinter);
    if ((charformat.dwMask & CFM_COLOR) && !(charformat.dwEffects & CFE_AUTOCOLOR)) {
        m_cf.rgbColors = charformat.crTextColor;
        m_cf.Flags |= CF_EFFECTS;
    }
}

void CFontDialog::Init(const LOGFONT* lplfInitial, DWORD dwFlags, const CDC* pdcPrinter) {
    m_cf.lStructSize = sizeof m_cf;
    m_cf.Flags = dwFlags | CF_ENABLEHOOK;
    m_cf.lpfnHook = &CFontDialog::SystemDialogHook;
    m_cf.lpLogFont = &m_lf;
    m_cf.lpszStyle = m_szStyleName;
    if (lplfInitial != nullptr) {
        m_lf = *lplfInitial;
        m_cf.Flags |= CF_INITTOLOGFONTSTRUCT;
    }
    if (pdcPrinter != nullptr) {
        m_cf.hDC = pdcPrinter->m_hDC;
        m_cf.Flags |= CF_PRINTERFONTS;
    }
}

INT_PTR CFontDialog::DoModal() {
    m_cf.hwndOwner = PreModal();
    return RunSystemDialog(m_cf.hwndOwner, [](CCommonDialog* pDlg) {
        return ::ChooseFont(&static_cast<CFontDialog*>(pDlg)->m_cf);
    });
}

void CFontDialog::GetCurrentFont(LPLOGFONT lplf) {
    if (m_hWnd != nullptr) {
        SendMessage(WM_CHOOSEFONT_GETLOGFONT, 0, reinterpret_cast<LPARAM>(lplf));
    } else {
        *lplf = m_lf;
    }
}

void CFontDialog::GetCharFormat(CHARFORMAT& cf) const {
    cf = {};
    cf.cbSize = sizeof cf;
    cf.dwMask = CFM_BOLD | CFM_ITALIC | CFM_FACE | CFM_SIZE | CFM_CHARSET;
    cf.dwEffects = (IsBold() ? CFE_BOLD : 0) | (IsItalic() ? CFE_ITALIC : 0);
    if (m_cf.Flags & CF_EFFECTS) {
        cf.dwMask |= CFM_UNDERLINE | CFM_STRIKEOUT | CFM_COLOR;
        cf.dwEffects |= (IsUnderline() ? CFE_UNDERLINE : 0) | (IsStrikeOut() ? CFE_STRIKEOUT : 0);
        cf.crTextColor = m_cf.rgbColors;
    }
    cf.yHeight = m_cf.iPointSize * kTwipsOfTenth;
    cf.bCharSet = m_lf.lfCharSet;
    cf.bPitchAndFamily = m_lf.lfPitchAndFamily;
    lstrcpyn(cf.szFaceName, m_lf.lfFaceName, LF_FACESIZE);
}

CString CFontDialog::GetFaceName() const {
    return m_lf.lfFaceName;
}
