// CTab: a tab strip, as a window. From tools/activex_members/tab.txt by the script beside it:
// change those.
//
// Tabs along an edge, behind an outside party's control or the one of qvocx.dll
// (docs/automation.md). Create it from code, or tie it to a control that a dialog's template made
// by DDX_Control. Events are told by number: 7, before a tab becomes active, and 8, behind it, both
// with two short*: the tab, and whether to cancel.
//
// Each member asks the control at once, and what the control refuses leaves it as the framework's
// dispatch exception (COleDispatchException*, or another COleException*). Without a control a
// getter gives 0, empty or null, and nothing else happens. Fonts and pictures that come back are
// objects that let go of what they hold. GetDataSource gives a reference that the caller releases.

#pragma once

#include "activex/ole_objects.h"
#include "frame/qv_api.h"

#include <afxwin.h>

class QV_CONTROLS_API CTab : public CWnd {
    DECLARE_DYNCREATE(CTab)

public:
    // {48932A4F-981F-101B-A7FB-4A79242FD97B}
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
    void Refresh();
    long GetHWnd();
    void SetHWnd(long nHWnd);
    BOOL GetEnabled();
    void SetEnabled(BOOL bEnabled);
    CString GetAbout();
    void SetAbout(LPCTSTR pszAbout);
    long GetApplyTo();
    void SetApplyTo(long nApplyTo);
    long GetHighestPrecedence();
    void SetHighestPrecedence(long nHighestPrecedence);
    BOOL GetAllowPreview();
    void SetAllowPreview(BOOL bAllowPreview);
    short GetAction();
    void SetAction(short nAction);
    long GetMode();
    void SetMode(long nMode);
    BOOL GetFireTabActivateEvent();
    void SetFireTabActivateEvent(BOOL bFireTabActivateEvent);
    long GetMousePointer();
    void SetMousePointer(long nMousePointer);
    CPicture GetMouseIcon();
    void SetMouseIcon(LPDISPATCH pMouseIcon);
    long GetFpInternal();
    void SetFpInternal(long nFpInternal);
    long GetAutoStyle();
    void SetAutoStyle(long nAutoStyle);

    // Tabs; what is of one tab applies to the tab with the index Tab
    short GetActiveTab();
    void SetActiveTab(short nActiveTab);
    long GetTabHeight();
    void SetTabHeight(long nTabHeight);
    short GetTabsPerRow();
    void SetTabsPerRow(short nTabsPerRow);
    short GetTabCount();
    void SetTabCount(short nTabCount);
    CString GetTabCaption();
    void SetTabCaption(LPCTSTR pszTabCaption);
    short GetTab();
    void SetTab(short nTab);
    long GetOrientation();
    void SetOrientation(long nOrientation);
    long GetTabShape();
    void SetTabShape(long nTabShape);
    long GetMarginLeft();
    void SetMarginLeft(long nMarginLeft);
    long GetMarginRight();
    void SetMarginRight(long nMarginRight);
    long GetTabMaxWidth();
    void SetTabMaxWidth(long nTabMaxWidth);
    short GetTabState();
    void SetTabState(short nTabState);
    BOOL GetActiveTabBold();
    void SetActiveTabBold(BOOL bActiveTabBold);
    CPicture GetTabPicture();
    void SetTabPicture(LPDISPATCH pTabPicture);
    short GetTabSeparator();
    void SetTabSeparator(short nTabSeparator);
    short GetMouseOverTab();
    void SetMouseOverTab(short nMouseOverTab);
    short GetChamferedWidth();
    void SetChamferedWidth(short nChamferedWidth);
    short GetChamferedHeight();
    void SetChamferedHeight(short nChamferedHeight);
    long GetTabRowOffset();
    void SetTabRowOffset(long nTabRowOffset);
    long GetTabID();
    void SetTabID(long nTabID);
    short GetTabDest();
    void SetTabDest(short nTabDest);
    long GetAllowScroll();
    void SetAllowScroll(long nAllowScroll);
    short GetTabLeft();
    void SetTabLeft(short nTabLeft);
    short GetTabRight();
    void SetTabRight(short nTabRight);
    short GetMaxScrollRows();
    void SetMaxScrollRows(short nMaxScrollRows);
    BOOL GetFreezeRows();
    void SetFreezeRows(BOOL bFreezeRows);
    long GetTabShapeApplyTo();
    void SetTabShapeApplyTo(long nTabShapeApplyTo);
    CString GetTabTag();
    void SetTabTag(LPCTSTR pszTabTag);
    short GetTabHelpContextID();
    void SetTabHelpContextID(short nTabHelpContextID);
    short GetActiveTabInflate();
    void SetActiveTabInflate(short nActiveTabInflate);

    // Captions
    COleFont GetFont();
    void SetFont(LPDISPATCH pFont);
    BOOL GetFontBold();
    void SetFontBold(BOOL bFontBold);
    BOOL GetFontItalic();
    void SetFontItalic(BOOL bFontItalic);
    CString GetFontName();
    void SetFontName(LPCTSTR pszFontName);
    float GetFontSize();
    void SetFontSize(float fltFontSize);
    BOOL GetFontUnderline();
    void SetFontUnderline(BOOL bFontUnderline);
    long GetAlignTextH();
    void SetAlignTextH(long nAlignTextH);
    long GetAlignTextV();
    void SetAlignTextV(long nAlignTextV);
    BOOL GetWordWrap();
    void SetWordWrap(BOOL bWordWrap);
    BOOL GetFlipText();
    void SetFlipText(BOOL bFlipText);
    long GetThreeDText();
    void SetThreeDText(long nThreeDText);
    short GetThreeDTextOffset();
    void SetThreeDTextOffset(short nThreeDTextOffset);
    long GetThreeDTextHighlightColor();
    void SetThreeDTextHighlightColor(long nThreeDTextHighlightColor);
    long GetThreeDTextShadowColor();
    void SetThreeDTextShadowColor(long nThreeDTextShadowColor);
    long GetAlignPictureV();
    void SetAlignPictureV(long nAlignPictureV);
    long GetAlignPictureH();
    void SetAlignPictureH(long nAlignPictureH);
    BOOL GetFontStrikethru();
    void SetFontStrikethru(BOOL bFontStrikethru);
    BOOL GetRotateText90();
    void SetRotateText90(BOOL bRotateText90);
    long GetTextOrientation();
    void SetTextOrientation(long nTextOrientation);

    // The area of the pages, twips
    long GetClientHeight();
    void SetClientHeight(long nClientHeight);
    long GetClientLeft();
    void SetClientLeft(long nClientLeft);
    long GetClientTop();
    void SetClientTop(long nClientTop);
    long GetClientWidth();
    void SetClientWidth(long nClientWidth);
    BOOL GetOffsetFromClientTop();
    void SetOffsetFromClientTop(BOOL bOffsetFromClientTop);
    long GetClientHeightPrev();
    void SetClientHeightPrev(long nClientHeightPrev);
    long GetClientLeftPrev();
    void SetClientLeftPrev(long nClientLeftPrev);
    long GetClientTopPrev();
    void SetClientTopPrev(long nClientTopPrev);
    long GetClientWidthPrev();
    void SetClientWidthPrev(long nClientWidthPrev);

    // Windows on the pages
    long GetAutoSize();
    void SetAutoSize(long nAutoSize);
    long GetAutoSizeChildren();
    void SetAutoSizeChildren(long nAutoSizeChildren);
    long GetAutoSizeOffsetLeft();
    void SetAutoSizeOffsetLeft(long nAutoSizeOffsetLeft);
    long GetAutoSizeOffsetRight();
    void SetAutoSizeOffsetRight(long nAutoSizeOffsetRight);
    long GetAutoSizeOffsetTop();
    void SetAutoSizeOffsetTop(long nAutoSizeOffsetTop);
    long GetAutoSizeOffsetBottom();
    void SetAutoSizeOffsetBottom(long nAutoSizeOffsetBottom);
    void TabAssignChild(LPDISPATCH pChild, short nTab, long nLeft, long nTop);
    void TabAssignChildToPage(LPDISPATCH pChild, short nTab, short nPage, long nLeft, long nTop);
    BOOL TabGetChildEnabled(LPDISPATCH pChild, BOOL* pbEnabled);
    void TabSetChildEnabled(LPDISPATCH pChild, BOOL bEnabled);
    BOOL TabGetChildPos(LPDISPATCH pChild, long* pnLeft, long* pnTop);
    void TabSetChildPos(LPDISPATCH pChild, long nLeft, long nTop);
    BOOL TabGetChildSize(LPDISPATCH pChild, long* pnWidth, long* pnHeight);
    void TabSetChildSize(LPDISPATCH pChild, long nWidth, long nHeight);
    void TabRemoveChild(LPDISPATCH pChild);
    void TabGetCurrentPages(short* pnTab, short* pnPage, short* pnTabPrev, short* pnPagePrev);
    BOOL TabSetActiveTabPage(short nTab, short nPage);

    // Pages of a tab, and the book that they may look like
    long GetPageColor();
    void SetPageColor(long nPageColor);
    long GetBookMarginH();
    void SetBookMarginH(long nBookMarginH);
    long GetBookMarginV();
    void SetBookMarginV(long nBookMarginV);
    long GetBookCreaseType();
    void SetBookCreaseType(long nBookCreaseType);
    long GetBookCreaseColor();
    void SetBookCreaseColor(long nBookCreaseColor);
    long GetBookColor();
    void SetBookColor(long nBookColor);
    long GetBookRingColor();
    void SetBookRingColor(long nBookRingColor);
    long GetBookRingColorLight();
    void SetBookRingColorLight(long nBookRingColorLight);
    long GetBookRingColorOutline();
    void SetBookRingColorOutline(long nBookRingColorOutline);
    long GetBookRingLength();
    void SetBookRingLength(long nBookRingLength);
    short GetBookRingWidth();
    void SetBookRingWidth(short nBookRingWidth);
    short GetBookRingCount();
    void SetBookRingCount(short nBookRingCount);
    short GetBookRingGroupCount();
    void SetBookRingGroupCount(short nBookRingGroupCount);
    short GetBookRingMargin();
    void SetBookRingMargin(short nBookRingMargin);
    long GetBookRingOutsideMargin();
    void SetBookRingOutsideMargin(long nBookRingOutsideMargin);
    BOOL GetBookShowMetalSpine();
    void SetBookShowMetalSpine(BOOL bBookShowMetalSpine);
    long GetBookMetalSpineColor();
    void SetBookMetalSpineColor(long nBookMetalSpineColor);
    long GetBookMetalSpineOutlineColor();
    void SetBookMetalSpineOutlineColor(long nBookMetalSpineOutlineColor);
    long GetBookCornerType();
    void SetBookCornerType(long nBookCornerType);
    long GetBookCornerWidth();
    void SetBookCornerWidth(long nBookCornerWidth);
    long GetBookCornerHeight();
    void SetBookCornerHeight(long nBookCornerHeight);
    short GetBookShadowSize();
    void SetBookShadowSize(short nBookShadowSize);
    long GetBookShadowColor();
    void SetBookShadowColor(long nBookShadowColor);
    long GetBookGutter();
    void SetBookGutter(long nBookGutter);
    long GetBookRingType();
    void SetBookRingType(long nBookRingType);
    short GetBookDoubleWireMargin();
    void SetBookDoubleWireMargin(short nBookDoubleWireMargin);
    short GetBookRingArc();
    void SetBookRingArc(short nBookRingArc);
    BOOL GetBookRingShowHole();
    void SetBookRingShowHole(BOOL bBookRingShowHole);
    long GetBookCoverStyle();
    void SetBookCoverStyle(long nBookCoverStyle);
    short GetPageMax();
    void SetPageMax(short nPageMax);
    short GetPage();
    void SetPage(short nPage);
    short GetActivePage();
    void SetActivePage(short nActivePage);
    long GetPageEarMarkType();
    void SetPageEarMarkType(long nPageEarMarkType);
    long GetPageFlipEffect();
    void SetPageFlipEffect(long nPageFlipEffect);
    long GetPageEarMarkColorDark();
    void SetPageEarMarkColorDark(long nPageEarMarkColorDark);
    long GetPageEarMarkColorLight();
    void SetPageEarMarkColorLight(long nPageEarMarkColorLight);
    long GetPageEarMarkColorOutline();
    void SetPageEarMarkColorOutline(long nPageEarMarkColorOutline);
    long GetPageEarMarkHeight();
    void SetPageEarMarkHeight(long nPageEarMarkHeight);
    long GetPageEarMarkAlignNext();
    void SetPageEarMarkAlignNext(long nPageEarMarkAlignNext);
    long GetPageEarMarkAlignPrev();
    void SetPageEarMarkAlignPrev(long nPageEarMarkAlignPrev);
    short GetPageFlipSpeed();
    void SetPageFlipSpeed(short nPageFlipSpeed);
    BOOL GetBookShowCornerGuard();
    void SetBookShowCornerGuard(BOOL bBookShowCornerGuard);
    long GetBookCornerGuardWidth();
    void SetBookCornerGuardWidth(long nBookCornerGuardWidth);
    long GetBookCornerGuardLength();
    void SetBookCornerGuardLength(long nBookCornerGuardLength);
    long GetBookCornerGuardColor();
    void SetBookCornerGuardColor(long nBookCornerGuardColor);
    long GetBookCornerGuardColorDark();
    void SetBookCornerGuardColorDark(long nBookCornerGuardColorDark);
    long GetBookCornerGuardColorLight();
    void SetBookCornerGuardColorLight(long nBookCornerGuardColorLight);
    long GetBookModeType();
    void SetBookModeType(long nBookModeType);

    // Data
    CString GetDataFormat();
    void SetDataFormat(LPCTSTR pszDataFormat);
    BOOL GetDataAutoRead();
    void SetDataAutoRead(BOOL bDataAutoRead);
    CString GetDataBookmark();
    void SetDataBookmark(LPCTSTR pszDataBookmark);
    long GetDataSync();
    void SetDataSync(long nDataSync);
    LPUNKNOWN GetDataSource();
    void SetDataSource(LPUNKNOWN pDataSource);
    CString GetDataField();
    void SetDataField(LPCTSTR pszDataField);

    // Edges and colours
    short GetBorderStyle();
    void SetBorderStyle(short nBorderStyle);
    long GetBackColor();
    void SetBackColor(long nBackColor);
    long GetForeColor();
    void SetForeColor(long nForeColor);
    BOOL GetThreeD();
    void SetThreeD(BOOL bThreeD);
    long GetThreeDShadowColor();
    void SetThreeDShadowColor(long nThreeDShadowColor);
    long GetThreeDHighlightColor();
    void SetThreeDHighlightColor(long nThreeDHighlightColor);
    BOOL GetShowFocusRect();
    void SetShowFocusRect(BOOL bShowFocusRect);
    long GetGrayAreaColor();
    void SetGrayAreaColor(long nGrayAreaColor);
    long GetOutlineColor();
    void SetOutlineColor(long nOutlineColor);
    BOOL GetShowEarMark();
    void SetShowEarMark(BOOL bShowEarMark);
    long GetEarMarkColorDark();
    void SetEarMarkColorDark(long nEarMarkColorDark);
    long GetEarMarkColorLight();
    void SetEarMarkColorLight(long nEarMarkColorLight);
    long GetEarMarkColorOutline();
    void SetEarMarkColorOutline(long nEarMarkColorOutline);
    long GetEarMarkHeight();
    void SetEarMarkHeight(long nEarMarkHeight);
    long GetThreeDOuterDark();
    void SetThreeDOuterDark(long nThreeDOuterDark);
    long GetThreeDOuterLight();
    void SetThreeDOuterLight(long nThreeDOuterLight);
    short GetThreeDOuterWidth();
    void SetThreeDOuterWidth(short nThreeDOuterWidth);
    short GetThreeDOuterWidthActive();
    void SetThreeDOuterWidthActive(short nThreeDOuterWidthActive);
    long GetThreeDInnerDark();
    void SetThreeDInnerDark(long nThreeDInnerDark);
    long GetThreeDInnerLight();
    void SetThreeDInnerLight(long nThreeDInnerLight);
    short GetThreeDInnerWidth();
    void SetThreeDInnerWidth(short nThreeDInnerWidth);
    short GetThreeDInnerWidthActive();
    void SetThreeDInnerWidthActive(short nThreeDInnerWidthActive);
    long GetThreeDAppearance();
    void SetThreeDAppearance(long nThreeDAppearance);
    long GetDrawFocusRect();
    void SetDrawFocusRect(long nDrawFocusRect);
};
