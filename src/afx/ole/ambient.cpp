// What a window's controls are told about it: the ambient properties.
#include "afx/ole/control_container.h"
#include "afx/ole/control_site.h"
#include "afx/window/wnd_state.h"

#include <afxwin.h>

namespace {

/// The colours in which a window has its static texts painted.
struct Colors {
    COLORREF crBack;
    COLORREF crFore;
};

Colors ColorsOf(HWND hWnd, HWND hWndCtrl) {
    const HDC hDC = ::GetDC(nullptr);
    ::SetBkColor(hDC, ::GetSysColor(COLOR_WINDOW));
    ::SetTextColor(hDC, ::GetSysColor(COLOR_WINDOWTEXT));
    AfxSend(hWnd, WM_CTLCOLORSTATIC, hDC, hWndCtrl != nullptr ? hWndCtrl : hWnd);
    const Colors colors{::GetBkColor(hDC), ::GetTextColor(hDC)};
    ::ReleaseDC(nullptr, hDC);
    return colors;
}

BOOL Answer(VARIANT* pvar, bool bValue) {
    V_VT(pvar) = VT_BOOL;
    V_BOOL(pvar) = bValue ? VARIANT_TRUE : VARIANT_FALSE;
    return TRUE;
}

BOOL Answer(VARIANT* pvar, COLORREF crValue) {
    V_VT(pvar) = VT_I4;
    V_I4(pvar) = static_cast<LONG>(crValue);
    return TRUE;
}

BOOL Answer(VARIANT* pvar, LPCOLESTR pszValue) {
    V_BSTR(pvar) = ::SysAllocString(pszValue);
    V_VT(pvar) = V_BSTR(pvar) != nullptr ? VT_BSTR : VT_EMPTY;
    return V_VT(pvar) == VT_BSTR;
}

BOOL AnswerShort(VARIANT* pvar, SHORT nValue) {
    V_VT(pvar) = VT_I2;
    V_I2(pvar) = nValue;
    return TRUE;
}

}  // namespace

LPFONTDISP COleControlContainer::CreateOleFont() const {
    constexpr LONGLONG kUnitsPerPoint = 10000;  // CY is a number of ten-thousandths
    constexpr int kPointsPerInch = 72;
    HFONT hFont = AfxSend<HFONT>(m_pWnd->GetSafeHwnd(), WM_GETFONT);
    if (hFont == nullptr) {
        hFont = static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT));
    }
    LOGFONTW log = {};
    ::GetObjectW(hFont, sizeof log, &log);
    FONTDESC desc = {};
    desc.cbSizeofstruct = sizeof desc;
    desc.lpstrName = log.lfFaceName;
    desc.cySize.int64 =
        ::MulDiv(abs(log.lfHeight), kPointsPerInch * kUnitsPerPoint, AfxScreenDpi().cy);
    desc.sWeight = static_cast<SHORT>(log.lfWeight);
    desc.sCharset = log.lfCharSet;
    desc.fItalic = log.lfItalic;
    desc.fUnderline = log.lfUnderline;
    desc.fStrikethrough = log.lfStrikeOut;
    LPFONTDISP pFont = nullptr;
    ::OleCreateFontIndirect(&desc, IID_IFontDisp, reinterpret_cast<void**>(&pFont));
    return pFont;
}

BOOL COleControlContainer::GetAmbientProp(COleControlSite* pSite, DISPID dispid, VARIANT* pvar) {
    const HWND hWnd = m_pWnd->GetSafeHwnd();
    switch (dispid) {
        case DISPID_AMBIENT_BACKCOLOR:
            return Answer(pvar, ColorsOf(hWnd, pSite->m_hWnd).crBack);
        case DISPID_AMBIENT_FORECOLOR:
            return Answer(pvar, ColorsOf(hWnd, pSite->m_hWnd).crFore);
        case DISPID_AMBIENT_FONT:
            V_DISPATCH(pvar) = CreateOleFont();
            V_VT(pvar) = V_DISPATCH(pvar) != nullptr ? VT_DISPATCH : VT_EMPTY;
            return V_VT(pvar) == VT_DISPATCH;
        case DISPID_AMBIENT_DISPLAYNAME:
            return Answer(pvar, L"");
        case DISPID_AMBIENT_SCALEUNITS:
            return Answer(pvar, L"Pixels");
        case DISPID_AMBIENT_LOCALEID:
            return Answer(pvar, static_cast<COLORREF>(::GetThreadLocale()));
        case DISPID_AMBIENT_TEXTALIGN:
            return AnswerShort(pvar, 0);  // text to the left, numbers to the right
        case DISPID_AMBIENT_APPEARANCE:
            return AnswerShort(pvar, 1);  // with depth
        case DISPID_AMBIENT_USERMODE:
        case DISPID_AMBIENT_MESSAGEREFLECT:
        case DISPID_AMBIENT_SUPPORTSMNEMONICS:
        case DISPID_AMBIENT_AUTOCLIP:
            return Answer(pvar, true);
        case DISPID_AMBIENT_UIDEAD:
        case DISPID_AMBIENT_SHOWGRABHANDLES:
        case DISPID_AMBIENT_SHOWHATCHING:
            return Answer(pvar, false);
        case DISPID_AMBIENT_DISPLAYASDEFAULT:
            return Answer(pvar, pSite->IsDefaultButton() != FALSE);
        default:
            return FALSE;
    }
}
