// CfpText: a text field with frame styles, as a window. From tools/activex_members/fp_text.txt
// by the script beside it: change those.
//
// A line of text in frames of several kinds, behind an outside party's control or the one of
// qvocx.dll (docs/automation.md). Create it from code, or tie it to a control that a dialog's
// template made by DDX_Control.
//
// Each member asks the control at once, and what the control refuses leaves it as the framework's
// dispatch exception (COleDispatchException*, or another COleException*). Without a control a
// getter gives 0, empty or null, and nothing else happens. Fonts and pictures that come back are
// objects that let go of what they hold. HWnd has the 32 bits of a window handle that mean
// something.

#pragma once

#include "activex/ole_objects.h"
#include "frame/qv_api.h"

#include <afxwin.h>

class QV_CONTROLS_API CfpText : public CWnd {
    DECLARE_DYNCREATE(CfpText)

public:
    // {CDF3B180-D408-11CE-AE2C-0080C786E37D}
    const GUID& GetClsid();

    // Makes the control. The class name and the context are not used. FALSE if there
    // is no such control.
    BOOL Create(LPCSTR pszClassName, LPCSTR pszWindowName, DWORD dwStyle, const RECT& rc,
                CWnd* pParent, UINT nID, CCreateContext* pContext = nullptr) override;
    // With a state that was saved: as a stream, or with bStorage as a storage.
    BOOL Create(LPCSTR pszWindowName, DWORD dwStyle, const RECT& rc, CWnd* pParent, UINT nID,
                CFile* pPersist = nullptr, BOOL bStorage = FALSE);

    // The control
    void AboutBox();
    long GetHWnd();
    void SetHWnd(long nHWnd);
    BOOL GetEnabled();
    void SetEnabled(BOOL bEnabled);
    short GetAction();
    void SetAction(short nAction);
    long GetControlType();
    void SetControlType(long nControlType);
    BOOL GetRedraw();
    void SetRedraw(BOOL bRedraw);
    CString GetAbout();
    void SetAbout(LPCTSTR pszAbout);
    long GetMousePointer();
    void SetMousePointer(long nMousePointer);
    CPicture GetMouseIcon();
    void SetMouseIcon(LPDISPATCH pMouseIcon);
    long GetAppearance();
    void SetAppearance(long nAppearance);

    // Text and what may be typed
    BOOL GetAllowNull();
    void SetAllowNull(BOOL bAllowNull);
    long GetNoSpecialKeys();
    void SetNoSpecialKeys(long nNoSpecialKeys);
    BOOL GetAutoAdvance();
    void SetAutoAdvance(BOOL bAutoAdvance);
    BOOL GetAutoBeep();
    void SetAutoBeep(BOOL bAutoBeep);
    long GetCaretInsert();
    void SetCaretInsert(long nCaretInsert);
    long GetCaretOverWrite();
    void SetCaretOverWrite(long nCaretOverWrite);
    long GetCharPositionLeft();
    void SetCharPositionLeft(long nCharPositionLeft);
    long GetCharPositionRight();
    void SetCharPositionRight(long nCharPositionRight);
    long GetCurrentPosition();
    void SetCurrentPosition(long nCurrentPosition);
    long GetUserEntry();
    void SetUserEntry(long nUserEntry);
    BOOL GetHideSelection();
    void SetHideSelection(BOOL bHideSelection);
    long GetInvalidColor();
    void SetInvalidColor(long nInvalidColor);
    long GetInvalidOption();
    void SetInvalidOption(long nInvalidOption);
    BOOL GetIsNull();
    void SetIsNull(BOOL bIsNull);
    BOOL GetIsValid();
    void SetIsValid(BOOL bIsValid);
    long GetNullColor();
    void SetNullColor(long nNullColor);
    long GetSelLength();
    void SetSelLength(long nSelLength);
    long GetSelStart();
    void SetSelStart(long nSelStart);
    CString GetSelText();
    void SetSelText(LPCTSTR pszSelText);
    CString GetText();
    void SetText(LPCTSTR pszText);
    long GetAutoCase();
    void SetAutoCase(long nAutoCase);
    CString GetCharValidationText();
    void SetCharValidationText(LPCTSTR pszCharValidationText);
    long GetMaxLength();
    void SetMaxLength(long nMaxLength);
    BOOL GetMultiLine();
    void SetMultiLine(BOOL bMultiLine);
    CString GetPasswordChar();
    void SetPasswordChar(LPCTSTR pszPasswordChar);
    float GetIncHoriz();
    void SetIncHoriz(float fltIncHoriz);
    BOOL GetAllowModifiedFlag();
    void SetAllowModifiedFlag(BOOL bAllowModifiedFlag);
    BOOL GetNoPrefix();
    void SetNoPrefix(BOOL bNoPrefix);
    BOOL GetScrollV();
    void SetScrollV(BOOL bScrollV);
    CString GetFpBoundVal();
    void SetFpBoundVal(LPCTSTR pszFpBoundVal);
    BOOL GetDataChanged();
    void SetDataChanged(BOOL bDataChanged);

    // Font and alignment, margins in pixels
    COleFont GetFont();
    void SetFont(LPDISPATCH pFont);
    CString GetFontName();
    void SetFontName(LPCTSTR pszFontName);
    BOOL GetFontBold();
    void SetFontBold(BOOL bFontBold);
    BOOL GetFontItalic();
    void SetFontItalic(BOOL bFontItalic);
    BOOL GetFontStrikethru();
    void SetFontStrikethru(BOOL bFontStrikethru);
    BOOL GetFontUnderline();
    void SetFontUnderline(BOOL bFontUnderline);
    float GetFontSize();
    void SetFontSize(float fltFontSize);
    long GetAlignTextH();
    void SetAlignTextH(long nAlignTextH);
    long GetAlignTextV();
    void SetAlignTextV(long nAlignTextV);
    short GetMarginLeft();
    void SetMarginLeft(short nMarginLeft);
    short GetMarginTop();
    void SetMarginTop(short nMarginTop);
    short GetMarginRight();
    void SetMarginRight(short nMarginRight);
    short GetMarginBottom();
    void SetMarginBottom(short nMarginBottom);

    // Button beside the text
    BOOL GetButtonDisable();
    void SetButtonDisable(BOOL bButtonDisable);
    BOOL GetButtonHide();
    void SetButtonHide(BOOL bButtonHide);
    short GetButtonIncrement();
    void SetButtonIncrement(short nButtonIncrement);
    short GetButtonIndex();
    void SetButtonIndex(short nButtonIndex);
    short GetButtonMin();
    void SetButtonMin(short nButtonMin);
    short GetButtonMax();
    void SetButtonMax(short nButtonMax);
    long GetButtonStyle();
    void SetButtonStyle(long nButtonStyle);
    short GetButtonWidth();
    void SetButtonWidth(short nButtonWidth);
    BOOL GetButtonWrap();
    void SetButtonWrap(BOOL bButtonWrap);
    BOOL GetButtonDefaultAction();
    void SetButtonDefaultAction(BOOL bButtonDefaultAction);

    // While the field has the focus
    BOOL GetOnFocusInvert3D();
    void SetOnFocusInvert3D(BOOL bOnFocusInvert3D);
    BOOL GetOnFocusShadow();
    void SetOnFocusShadow(BOOL bOnFocusShadow);
    long GetOnFocusAlignH();
    void SetOnFocusAlignH(long nOnFocusAlignH);
    long GetOnFocusAlignV();
    void SetOnFocusAlignV(long nOnFocusAlignV);
    BOOL GetOnFocusNoSelect();
    void SetOnFocusNoSelect(BOOL bOnFocusNoSelect);
    long GetOnFocusPosition();
    void SetOnFocusPosition(long nOnFocusPosition);
    BOOL GetThreeDOnFocusInvert();
    void SetThreeDOnFocusInvert(BOOL bThreeDOnFocusInvert);

    // Edges and colours
    long GetBackColor();
    void SetBackColor(long nBackColor);
    long GetForeColor();
    void SetForeColor(long nForeColor);
    long GetThreeDInsideStyle();
    void SetThreeDInsideStyle(long nThreeDInsideStyle);
    long GetThreeDInsideHighlightColor();
    void SetThreeDInsideHighlightColor(long nThreeDInsideHighlightColor);
    long GetThreeDInsideShadowColor();
    void SetThreeDInsideShadowColor(long nThreeDInsideShadowColor);
    short GetThreeDInsideWidth();
    void SetThreeDInsideWidth(short nThreeDInsideWidth);
    long GetThreeDOutsideStyle();
    void SetThreeDOutsideStyle(long nThreeDOutsideStyle);
    long GetThreeDOutsideHighlightColor();
    void SetThreeDOutsideHighlightColor(long nThreeDOutsideHighlightColor);
    long GetThreeDOutsideShadowColor();
    void SetThreeDOutsideShadowColor(long nThreeDOutsideShadowColor);
    short GetThreeDOutsideWidth();
    void SetThreeDOutsideWidth(short nThreeDOutsideWidth);
    short GetThreeDFrameWidth();
    void SetThreeDFrameWidth(short nThreeDFrameWidth);
    long GetBorderStyle();
    void SetBorderStyle(long nBorderStyle);
    long GetBorderColor();
    void SetBorderColor(long nBorderColor);
    short GetBorderWidth();
    void SetBorderWidth(short nBorderWidth);
    long GetDropShadowColor();
    void SetDropShadowColor(long nDropShadowColor);
    short GetDropShadowWidth();
    void SetDropShadowWidth(short nDropShadowWidth);
    long GetThreeDText();
    void SetThreeDText(long nThreeDText);
    long GetThreeDTextHighlightColor();
    void SetThreeDTextHighlightColor(long nThreeDTextHighlightColor);
    long GetThreeDTextShadowColor();
    void SetThreeDTextShadowColor(long nThreeDTextShadowColor);
    short GetThreeDTextOffset();
    void SetThreeDTextOffset(short nThreeDTextOffset);
    long GetBorderGrayAreaColor();
    void SetBorderGrayAreaColor(long nBorderGrayAreaColor);
    long GetBorderDropShadow();
    void SetBorderDropShadow(long nBorderDropShadow);
    long GetBorderDropShadowColor();
    void SetBorderDropShadowColor(long nBorderDropShadowColor);
    short GetBorderDropShadowWidth();
    void SetBorderDropShadowWidth(short nBorderDropShadowWidth);
    long GetThreeDFrameColor();
    void SetThreeDFrameColor(long nThreeDFrameColor);
};
