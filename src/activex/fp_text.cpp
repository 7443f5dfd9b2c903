// From tools/activex_members/fp_text.txt by the script beside it: change those.

#include "activex/fp_text.h"

#include "activex/member_calls.h"

IMPLEMENT_DYNCREATE(CfpText, CWnd)

const GUID& CfpText::GetClsid() {
    static constexpr GUID clsid = {
        0xcdf3b180, 0xd408, 0x11ce, {0xae, 0x2c, 0x00, 0x80, 0xc7, 0x86, 0xe3, 0x7d}};
    return clsid;
}

BOOL CfpText::Create(LPCSTR, LPCSTR pszWindowName, DWORD dwStyle, const RECT& rc, CWnd* pParent,
                     UINT nID, CCreateContext*) {
    return CreateControl(GetClsid(), pszWindowName, dwStyle, rc, pParent, nID);
}

BOOL CfpText::Create(LPCSTR pszWindowName, DWORD dwStyle, const RECT& rc, CWnd* pParent, UINT nID,
                     CFile* pPersist, BOOL bStorage) {
    return CreateControl(GetClsid(), pszWindowName, dwStyle, rc, pParent, nID, pPersist, bStorage);
}

// The control

void CfpText::AboutBox() {
    qv::InvokeMethod(*this, -552);
}

long CfpText::GetHWnd() {
    return qv::GetMember<long>(*this, -515, VT_I4);
}

void CfpText::SetHWnd(long nHWnd) {
    SetProperty(-515, VT_I4, nHWnd);
}

BOOL CfpText::GetEnabled() {
    return qv::GetMember<BOOL>(*this, -514, VT_BOOL);
}

void CfpText::SetEnabled(BOOL bEnabled) {
    SetProperty(-514, VT_BOOL, bEnabled);
}

short CfpText::GetAction() {
    return qv::GetMember<short>(*this, 38, VT_I2);
}

void CfpText::SetAction(short nAction) {
    SetProperty(38, VT_I2, nAction);
}

long CfpText::GetControlType() {
    return qv::GetMember<long>(*this, 68, VT_I4);
}

void CfpText::SetControlType(long nControlType) {
    SetProperty(68, VT_I4, nControlType);
}

BOOL CfpText::GetRedraw() {
    return qv::GetMember<BOOL>(*this, 77, VT_BOOL);
}

void CfpText::SetRedraw(BOOL bRedraw) {
    SetProperty(77, VT_BOOL, bRedraw);
}

CString CfpText::GetAbout() {
    return qv::GetMember<CString>(*this, 78, VT_BSTR);
}

void CfpText::SetAbout(LPCTSTR pszAbout) {
    SetProperty(78, VT_BSTR, pszAbout);
}

long CfpText::GetMousePointer() {
    return qv::GetMember<long>(*this, 83, VT_I4);
}

void CfpText::SetMousePointer(long nMousePointer) {
    SetProperty(83, VT_I4, nMousePointer);
}

CPicture CfpText::GetMouseIcon() {
    return CPicture(qv::GetMember<LPDISPATCH>(*this, 84, VT_DISPATCH));
}

void CfpText::SetMouseIcon(LPDISPATCH pMouseIcon) {
    SetProperty(84, VT_DISPATCH, pMouseIcon);
}

long CfpText::GetAppearance() {
    return qv::GetMember<long>(*this, 88, VT_I4);
}

void CfpText::SetAppearance(long nAppearance) {
    SetProperty(88, VT_I4, nAppearance);
}

// Text and what may be typed

BOOL CfpText::GetAllowNull() {
    return qv::GetMember<BOOL>(*this, 41, VT_BOOL);
}

void CfpText::SetAllowNull(BOOL bAllowNull) {
    SetProperty(41, VT_BOOL, bAllowNull);
}

long CfpText::GetNoSpecialKeys() {
    return qv::GetMember<long>(*this, 42, VT_I4);
}

void CfpText::SetNoSpecialKeys(long nNoSpecialKeys) {
    SetProperty(42, VT_I4, nNoSpecialKeys);
}

BOOL CfpText::GetAutoAdvance() {
    return qv::GetMember<BOOL>(*this, 43, VT_BOOL);
}

void CfpText::SetAutoAdvance(BOOL bAutoAdvance) {
    SetProperty(43, VT_BOOL, bAutoAdvance);
}

BOOL CfpText::GetAutoBeep() {
    return qv::GetMember<BOOL>(*this, 44, VT_BOOL);
}

void CfpText::SetAutoBeep(BOOL bAutoBeep) {
    SetProperty(44, VT_BOOL, bAutoBeep);
}

long CfpText::GetCaretInsert() {
    return qv::GetMember<long>(*this, 45, VT_I4);
}

void CfpText::SetCaretInsert(long nCaretInsert) {
    SetProperty(45, VT_I4, nCaretInsert);
}

long CfpText::GetCaretOverWrite() {
    return qv::GetMember<long>(*this, 46, VT_I4);
}

void CfpText::SetCaretOverWrite(long nCaretOverWrite) {
    SetProperty(46, VT_I4, nCaretOverWrite);
}

long CfpText::GetCharPositionLeft() {
    return qv::GetMember<long>(*this, 47, VT_I4);
}

void CfpText::SetCharPositionLeft(long nCharPositionLeft) {
    SetProperty(47, VT_I4, nCharPositionLeft);
}

long CfpText::GetCharPositionRight() {
    return qv::GetMember<long>(*this, 48, VT_I4);
}

void CfpText::SetCharPositionRight(long nCharPositionRight) {
    SetProperty(48, VT_I4, nCharPositionRight);
}

long CfpText::GetCurrentPosition() {
    return qv::GetMember<long>(*this, 49, VT_I4);
}

void CfpText::SetCurrentPosition(long nCurrentPosition) {
    SetProperty(49, VT_I4, nCurrentPosition);
}

long CfpText::GetUserEntry() {
    return qv::GetMember<long>(*this, 50, VT_I4);
}

void CfpText::SetUserEntry(long nUserEntry) {
    SetProperty(50, VT_I4, nUserEntry);
}

BOOL CfpText::GetHideSelection() {
    return qv::GetMember<BOOL>(*this, 51, VT_BOOL);
}

void CfpText::SetHideSelection(BOOL bHideSelection) {
    SetProperty(51, VT_BOOL, bHideSelection);
}

long CfpText::GetInvalidColor() {
    return qv::GetMember<long>(*this, 52, VT_I4);
}

void CfpText::SetInvalidColor(long nInvalidColor) {
    SetProperty(52, VT_I4, nInvalidColor);
}

long CfpText::GetInvalidOption() {
    return qv::GetMember<long>(*this, 53, VT_I4);
}

void CfpText::SetInvalidOption(long nInvalidOption) {
    SetProperty(53, VT_I4, nInvalidOption);
}

BOOL CfpText::GetIsNull() {
    return qv::GetMember<BOOL>(*this, 54, VT_BOOL);
}

void CfpText::SetIsNull(BOOL bIsNull) {
    SetProperty(54, VT_BOOL, bIsNull);
}

BOOL CfpText::GetIsValid() {
    return qv::GetMember<BOOL>(*this, 55, VT_BOOL);
}

void CfpText::SetIsValid(BOOL bIsValid) {
    SetProperty(55, VT_BOOL, bIsValid);
}

long CfpText::GetNullColor() {
    return qv::GetMember<long>(*this, 60, VT_I4);
}

void CfpText::SetNullColor(long nNullColor) {
    SetProperty(60, VT_I4, nNullColor);
}

long CfpText::GetSelLength() {
    return qv::GetMember<long>(*this, 65, VT_I4);
}

void CfpText::SetSelLength(long nSelLength) {
    SetProperty(65, VT_I4, nSelLength);
}

long CfpText::GetSelStart() {
    return qv::GetMember<long>(*this, 66, VT_I4);
}

void CfpText::SetSelStart(long nSelStart) {
    SetProperty(66, VT_I4, nSelStart);
}

CString CfpText::GetSelText() {
    return qv::GetMember<CString>(*this, 67, VT_BSTR);
}

void CfpText::SetSelText(LPCTSTR pszSelText) {
    SetProperty(67, VT_BSTR, pszSelText);
}

CString CfpText::GetText() {
    return qv::GetMember<CString>(*this, 70, VT_BSTR);
}

void CfpText::SetText(LPCTSTR pszText) {
    SetProperty(70, VT_BSTR, pszText);
}

long CfpText::GetAutoCase() {
    return qv::GetMember<long>(*this, 71, VT_I4);
}

void CfpText::SetAutoCase(long nAutoCase) {
    SetProperty(71, VT_I4, nAutoCase);
}

CString CfpText::GetCharValidationText() {
    return qv::GetMember<CString>(*this, 72, VT_BSTR);
}

void CfpText::SetCharValidationText(LPCTSTR pszCharValidationText) {
    SetProperty(72, VT_BSTR, pszCharValidationText);
}

long CfpText::GetMaxLength() {
    return qv::GetMember<long>(*this, 73, VT_I4);
}

void CfpText::SetMaxLength(long nMaxLength) {
    SetProperty(73, VT_I4, nMaxLength);
}

BOOL CfpText::GetMultiLine() {
    return qv::GetMember<BOOL>(*this, 74, VT_BOOL);
}

void CfpText::SetMultiLine(BOOL bMultiLine) {
    SetProperty(74, VT_BOOL, bMultiLine);
}

CString CfpText::GetPasswordChar() {
    return qv::GetMember<CString>(*this, 75, VT_BSTR);
}

void CfpText::SetPasswordChar(LPCTSTR pszPasswordChar) {
    SetProperty(75, VT_BSTR, pszPasswordChar);
}

float CfpText::GetIncHoriz() {
    return qv::GetMember<float>(*this, 76, VT_R4);
}

void CfpText::SetIncHoriz(float fltIncHoriz) {
    SetProperty(76, VT_R4, fltIncHoriz);
}

BOOL CfpText::GetAllowModifiedFlag() {
    return qv::GetMember<BOOL>(*this, 80, VT_BOOL);
}

void CfpText::SetAllowModifiedFlag(BOOL bAllowModifiedFlag) {
    SetProperty(80, VT_BOOL, bAllowModifiedFlag);
}

BOOL CfpText::GetNoPrefix() {
    return qv::GetMember<BOOL>(*this, 81, VT_BOOL);
}

void CfpText::SetNoPrefix(BOOL bNoPrefix) {
    SetProperty(81, VT_BOOL, bNoPrefix);
}

BOOL CfpText::GetScrollV() {
    return qv::GetMember<BOOL>(*this, 82, VT_BOOL);
}

void CfpText::SetScrollV(BOOL bScrollV) {
    SetProperty(82, VT_BOOL, bScrollV);
}

CString CfpText::GetFpBoundVal() {
    return qv::GetMember<CString>(*this, 86, VT_BSTR);
}

void CfpText::SetFpBoundVal(LPCTSTR pszFpBoundVal) {
    SetProperty(86, VT_BSTR, pszFpBoundVal);
}

BOOL CfpText::GetDataChanged() {
    return qv::GetMember<BOOL>(*this, 87, VT_BOOL);
}

void CfpText::SetDataChanged(BOOL bDataChanged) {
    SetProperty(87, VT_BOOL, bDataChanged);
}

// Font and alignment, margins in pixels

COleFont CfpText::GetFont() {
    return COleFont(qv::GetMember<LPDISPATCH>(*this, -512, VT_DISPATCH));
}

void CfpText::SetFont(LPDISPATCH pFont) {
    SetProperty(-512, VT_DISPATCH, pFont);
}

CString CfpText::GetFontName() {
    return qv::GetMember<CString>(*this, 1, VT_BSTR);
}

void CfpText::SetFontName(LPCTSTR pszFontName) {
    SetProperty(1, VT_BSTR, pszFontName);
}

BOOL CfpText::GetFontBold() {
    return qv::GetMember<BOOL>(*this, 2, VT_BOOL);
}

void CfpText::SetFontBold(BOOL bFontBold) {
    SetProperty(2, VT_BOOL, bFontBold);
}

BOOL CfpText::GetFontItalic() {
    return qv::GetMember<BOOL>(*this, 3, VT_BOOL);
}

void CfpText::SetFontItalic(BOOL bFontItalic) {
    SetProperty(3, VT_BOOL, bFontItalic);
}

BOOL CfpText::GetFontStrikethru() {
    return qv::GetMember<BOOL>(*this, 4, VT_BOOL);
}

void CfpText::SetFontStrikethru(BOOL bFontStrikethru) {
    SetProperty(4, VT_BOOL, bFontStrikethru);
}

BOOL CfpText::GetFontUnderline() {
    return qv::GetMember<BOOL>(*this, 5, VT_BOOL);
}

void CfpText::SetFontUnderline(BOOL bFontUnderline) {
    SetProperty(5, VT_BOOL, bFontUnderline);
}

float CfpText::GetFontSize() {
    return qv::GetMember<float>(*this, 6, VT_R4);
}

void CfpText::SetFontSize(float fltFontSize) {
    SetProperty(6, VT_R4, fltFontSize);
}

long CfpText::GetAlignTextH() {
    return qv::GetMember<long>(*this, 39, VT_I4);
}

void CfpText::SetAlignTextH(long nAlignTextH) {
    SetProperty(39, VT_I4, nAlignTextH);
}

long CfpText::GetAlignTextV() {
    return qv::GetMember<long>(*this, 40, VT_I4);
}

void CfpText::SetAlignTextV(long nAlignTextV) {
    SetProperty(40, VT_I4, nAlignTextV);
}

short CfpText::GetMarginLeft() {
    return qv::GetMember<short>(*this, 56, VT_I2);
}

void CfpText::SetMarginLeft(short nMarginLeft) {
    SetProperty(56, VT_I2, nMarginLeft);
}

short CfpText::GetMarginTop() {
    return qv::GetMember<short>(*this, 57, VT_I2);
}

void CfpText::SetMarginTop(short nMarginTop) {
    SetProperty(57, VT_I2, nMarginTop);
}

short CfpText::GetMarginRight() {
    return qv::GetMember<short>(*this, 58, VT_I2);
}

void CfpText::SetMarginRight(short nMarginRight) {
    SetProperty(58, VT_I2, nMarginRight);
}

short CfpText::GetMarginBottom() {
    return qv::GetMember<short>(*this, 59, VT_I2);
}

void CfpText::SetMarginBottom(short nMarginBottom) {
    SetProperty(59, VT_I2, nMarginBottom);
}

// Button beside the text

BOOL CfpText::GetButtonDisable() {
    return qv::GetMember<BOOL>(*this, 21, VT_BOOL);
}

void CfpText::SetButtonDisable(BOOL bButtonDisable) {
    SetProperty(21, VT_BOOL, bButtonDisable);
}

BOOL CfpText::GetButtonHide() {
    return qv::GetMember<BOOL>(*this, 22, VT_BOOL);
}

void CfpText::SetButtonHide(BOOL bButtonHide) {
    SetProperty(22, VT_BOOL, bButtonHide);
}

short CfpText::GetButtonIncrement() {
    return qv::GetMember<short>(*this, 23, VT_I2);
}

void CfpText::SetButtonIncrement(short nButtonIncrement) {
    SetProperty(23, VT_I2, nButtonIncrement);
}

short CfpText::GetButtonIndex() {
    return qv::GetMember<short>(*this, 24, VT_I2);
}

void CfpText::SetButtonIndex(short nButtonIndex) {
    SetProperty(24, VT_I2, nButtonIndex);
}

short CfpText::GetButtonMin() {
    return qv::GetMember<short>(*this, 25, VT_I2);
}

void CfpText::SetButtonMin(short nButtonMin) {
    SetProperty(25, VT_I2, nButtonMin);
}

short CfpText::GetButtonMax() {
    return qv::GetMember<short>(*this, 26, VT_I2);
}

void CfpText::SetButtonMax(short nButtonMax) {
    SetProperty(26, VT_I2, nButtonMax);
}

long CfpText::GetButtonStyle() {
    return qv::GetMember<long>(*this, 27, VT_I4);
}

void CfpText::SetButtonStyle(long nButtonStyle) {
    SetProperty(27, VT_I4, nButtonStyle);
}

short CfpText::GetButtonWidth() {
    return qv::GetMember<short>(*this, 28, VT_I2);
}

void CfpText::SetButtonWidth(short nButtonWidth) {
    SetProperty(28, VT_I2, nButtonWidth);
}

BOOL CfpText::GetButtonWrap() {
    return qv::GetMember<BOOL>(*this, 29, VT_BOOL);
}

void CfpText::SetButtonWrap(BOOL bButtonWrap) {
    SetProperty(29, VT_BOOL, bButtonWrap);
}

BOOL CfpText::GetButtonDefaultAction() {
    return qv::GetMember<BOOL>(*this, 69, VT_BOOL);
}

void CfpText::SetButtonDefaultAction(BOOL bButtonDefaultAction) {
    SetProperty(69, VT_BOOL, bButtonDefaultAction);
}

// While the field has the focus

BOOL CfpText::GetOnFocusInvert3D() {
    return qv::GetMember<BOOL>(*this, 30, VT_BOOL);
}

void CfpText::SetOnFocusInvert3D(BOOL bOnFocusInvert3D) {
    SetProperty(30, VT_BOOL, bOnFocusInvert3D);
}

BOOL CfpText::GetOnFocusShadow() {
    return qv::GetMember<BOOL>(*this, 31, VT_BOOL);
}

void CfpText::SetOnFocusShadow(BOOL bOnFocusShadow) {
    SetProperty(31, VT_BOOL, bOnFocusShadow);
}

long CfpText::GetOnFocusAlignH() {
    return qv::GetMember<long>(*this, 61, VT_I4);
}

void CfpText::SetOnFocusAlignH(long nOnFocusAlignH) {
    SetProperty(61, VT_I4, nOnFocusAlignH);
}

long CfpText::GetOnFocusAlignV() {
    return qv::GetMember<long>(*this, 62, VT_I4);
}

void CfpText::SetOnFocusAlignV(long nOnFocusAlignV) {
    SetProperty(62, VT_I4, nOnFocusAlignV);
}

BOOL CfpText::GetOnFocusNoSelect() {
    return qv::GetMember<BOOL>(*this, 63, VT_BOOL);
}

void CfpText::SetOnFocusNoSelect(BOOL bOnFocusNoSelect) {
    SetProperty(63, VT_BOOL, bOnFocusNoSelect);
}

long CfpText::GetOnFocusPosition() {
    return qv::GetMember<long>(*this, 64, VT_I4);
}

void CfpText::SetOnFocusPosition(long nOnFocusPosition) {
    SetProperty(64, VT_I4, nOnFocusPosition);
}

BOOL CfpText::GetThreeDOnFocusInvert() {
    return qv::GetMember<BOOL>(*this, 85, VT_BOOL);
}

void CfpText::SetThreeDOnFocusInvert(BOOL bThreeDOnFocusInvert) {
    SetProperty(85, VT_BOOL, bThreeDOnFocusInvert);
}

// Edges and colours

long CfpText::GetBackColor() {
    return qv::GetMember<long>(*this, 7, VT_I4);
}

void CfpText::SetBackColor(long nBackColor) {
    SetProperty(7, VT_I4, nBackColor);
}

long CfpText::GetForeColor() {
    return qv::GetMember<long>(*this, 8, VT_I4);
}

void CfpText::SetForeColor(long nForeColor) {
    SetProperty(8, VT_I4, nForeColor);
}

long CfpText::GetThreeDInsideStyle() {
    return qv::GetMember<long>(*this, 9, VT_I4);
}

void CfpText::SetThreeDInsideStyle(long nThreeDInsideStyle) {
    SetProperty(9, VT_I4, nThreeDInsideStyle);
}

long CfpText::GetThreeDInsideHighlightColor() {
    return qv::GetMember<long>(*this, 10, VT_I4);
}

void CfpText::SetThreeDInsideHighlightColor(long nThreeDInsideHighlightColor) {
    SetProperty(10, VT_I4, nThreeDInsideHighlightColor);
}

long CfpText::GetThreeDInsideShadowColor() {
    return qv::GetMember<long>(*this, 11, VT_I4);
}

void CfpText::SetThreeDInsideShadowColor(long nThreeDInsideShadowColor) {
    SetProperty(11, VT_I4, nThreeDInsideShadowColor);
}

short CfpText::GetThreeDInsideWidth() {
    return qv::GetMember<short>(*this, 12, VT_I2);
}

void CfpText::SetThreeDInsideWidth(short nThreeDInsideWidth) {
    SetProperty(12, VT_I2, nThreeDInsideWidth);
}

long CfpText::GetThreeDOutsideStyle() {
    return qv::GetMember<long>(*this, 13, VT_I4);
}

void CfpText::SetThreeDOutsideStyle(long nThreeDOutsideStyle) {
    SetProperty(13, VT_I4, nThreeDOutsideStyle);
}

long CfpText::GetThreeDOutsideHighlightColor() {
    return qv::GetMember<long>(*this, 14, VT_I4);
}

void CfpText::SetThreeDOutsideHighlightColor(long nThreeDOutsideHighlightColor) {
    SetProperty(14, VT_I4, nThreeDOutsideHighlightColor);
}

long CfpText::GetThreeDOutsideShadowColor() {
    return qv::GetMember<long>(*this, 15, VT_I4);
}

void CfpText::SetThreeDOutsideShadowColor(long nThreeDOutsideShadowColor) {
    SetProperty(15, VT_I4, nThreeDOutsideShadowColor);
}

short CfpText::GetThreeDOutsideWidth() {
    return qv::GetMember<short>(*this, 16, VT_I2);
}

void CfpText::SetThreeDOutsideWidth(short nThreeDOutsideWidth) {
    SetProperty(16, VT_I2, nThreeDOutsideWidth);
}

short CfpText::GetThreeDFrameWidth() {
    return qv::GetMember<short>(*this, 17, VT_I2);
}

void CfpText::SetThreeDFrameWidth(short nThreeDFrameWidth) {
    SetProperty(17, VT_I2, nThreeDFrameWidth);
}

long CfpText::GetBorderStyle() {
    return qv::GetMember<long>(*this, 18, VT_I4);
}

void CfpText::SetBorderStyle(long nBorderStyle) {
    SetProperty(18, VT_I4, nBorderStyle);
}

long CfpText::GetBorderColor() {
    return qv::GetMember<long>(*this, 19, VT_I4);
}

void CfpText::SetBorderColor(long nBorderColor) {
    SetProperty(19, VT_I4, nBorderColor);
}

short CfpText::GetBorderWidth() {
    return qv::GetMember<short>(*this, 20, VT_I2);
}

void CfpText::SetBorderWidth(short nBorderWidth) {
    SetProperty(20, VT_I2, nBorderWidth);
}

long CfpText::GetDropShadowColor() {
    return qv::GetMember<long>(*this, 32, VT_I4);
}

void CfpText::SetDropShadowColor(long nDropShadowColor) {
    SetProperty(32, VT_I4, nDropShadowColor);
}

short CfpText::GetDropShadowWidth() {
    return qv::GetMember<short>(*this, 33, VT_I2);
}

void CfpText::SetDropShadowWidth(short nDropShadowWidth) {
    SetProperty(33, VT_I2, nDropShadowWidth);
}

long CfpText::GetThreeDText() {
    return qv::GetMember<long>(*this, 34, VT_I4);
}

void CfpText::SetThreeDText(long nThreeDText) {
    SetProperty(34, VT_I4, nThreeDText);
}

long CfpText::GetThreeDTextHighlightColor() {
    return qv::GetMember<long>(*this, 35, VT_I4);
}

void CfpText::SetThreeDTextHighlightColor(long nThreeDTextHighlightColor) {
    SetProperty(35, VT_I4, nThreeDTextHighlightColor);
}

long CfpText::GetThreeDTextShadowColor() {
    return qv::GetMember<long>(*this, 36, VT_I4);
}

void CfpText::SetThreeDTextShadowColor(long nThreeDTextShadowColor) {
    SetProperty(36, VT_I4, nThreeDTextShadowColor);
}

short CfpText::GetThreeDTextOffset() {
    return qv::GetMember<short>(*this, 37, VT_I2);
}

void CfpText::SetThreeDTextOffset(short nThreeDTextOffset) {
    SetProperty(37, VT_I2, nThreeDTextOffset);
}

long CfpText::GetBorderGrayAreaColor() {
    return qv::GetMember<long>(*this, 79, VT_I4);
}

void CfpText::SetBorderGrayAreaColor(long nBorderGrayAreaColor) {
    SetProperty(79, VT_I4, nBorderGrayAreaColor);
}

long CfpText::GetBorderDropShadow() {
    return qv::GetMember<long>(*this, 89, VT_I4);
}

void CfpText::SetBorderDropShadow(long nBorderDropShadow) {
    SetProperty(89, VT_I4, nBorderDropShadow);
}

long CfpText::GetBorderDropShadowColor() {
    return qv::GetMember<long>(*this, 90, VT_I4);
}

void CfpText::SetBorderDropShadowColor(long nBorderDropShadowColor) {
    SetProperty(90, VT_I4, nBorderDropShadowColor);
}

short CfpText::GetBorderDropShadowWidth() {
    return qv::GetMember<short>(*this, 91, VT_I2);
}

void CfpText::SetBorderDropShadowWidth(short nBorderDropShadowWidth) {
    SetProperty(91, VT_I2, nBorderDropShadowWidth);
}

long CfpText::GetThreeDFrameColor() {
    return qv::GetMember<long>(*this, 92, VT_I4);
}

void CfpText::SetThreeDFrameColor(long nThreeDFrameColor) {
    SetProperty(92, VT_I4, nThreeDFrameColor);
}
