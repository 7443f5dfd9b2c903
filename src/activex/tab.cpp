// From tools/activex_members/tab.txt by the script beside it: change those.

#include "activex/tab.h"

#include "activex/member_calls.h"

IMPLEMENT_DYNCREATE(CTab, CWnd)

const GUID& CTab::GetClsid() {
    static constexpr GUID clsid = {
        0x48932a4f, 0x981f, 0x101b, {0xa7, 0xfb, 0x4a, 0x79, 0x24, 0x2f, 0xd9, 0x7b}};
    return clsid;
}

BOOL CTab::Create(LPCSTR, LPCSTR pszWindowName, DWORD dwStyle, const RECT& rc, CWnd* pParent,
                  UINT nID, CCreateContext*) {
    return CreateControl(GetClsid(), pszWindowName, dwStyle, rc, pParent, nID);
}

BOOL CTab::Create(LPCSTR pszWindowName, DWORD dwStyle, const RECT& rc, CWnd* pParent, UINT nID,
                  CFile* pPersist, BOOL bStorage) {
    return CreateControl(GetClsid(), pszWindowName, dwStyle, rc, pParent, nID, pPersist, bStorage);
}

// The control

void CTab::AboutBox() {
    qv::InvokeMethod(*this, -552);
}

void CTab::Refresh() {
    qv::InvokeMethod(*this, -550);
}

long CTab::GetHWnd() {
    return qv::GetMember<long>(*this, -515, VT_I4);
}

void CTab::SetHWnd(long nHWnd) {
    SetProperty(-515, VT_I4, nHWnd);
}

BOOL CTab::GetEnabled() {
    return qv::GetMember<BOOL>(*this, -514, VT_BOOL);
}

void CTab::SetEnabled(BOOL bEnabled) {
    SetProperty(-514, VT_BOOL, bEnabled);
}

CString CTab::GetAbout() {
    return qv::GetMember<CString>(*this, 9, VT_BSTR);
}

void CTab::SetAbout(LPCTSTR pszAbout) {
    SetProperty(9, VT_BSTR, pszAbout);
}

long CTab::GetApplyTo() {
    return qv::GetMember<long>(*this, 37, VT_I4);
}

void CTab::SetApplyTo(long nApplyTo) {
    SetProperty(37, VT_I4, nApplyTo);
}

long CTab::GetHighestPrecedence() {
    return qv::GetMember<long>(*this, 49, VT_I4);
}

void CTab::SetHighestPrecedence(long nHighestPrecedence) {
    SetProperty(49, VT_I4, nHighestPrecedence);
}

BOOL CTab::GetAllowPreview() {
    return qv::GetMember<BOOL>(*this, 54, VT_BOOL);
}

void CTab::SetAllowPreview(BOOL bAllowPreview) {
    SetProperty(54, VT_BOOL, bAllowPreview);
}

short CTab::GetAction() {
    return qv::GetMember<short>(*this, 56, VT_I2);
}

void CTab::SetAction(short nAction) {
    SetProperty(56, VT_I2, nAction);
}

long CTab::GetMode() {
    return qv::GetMember<long>(*this, 66, VT_I4);
}

void CTab::SetMode(long nMode) {
    SetProperty(66, VT_I4, nMode);
}

BOOL CTab::GetFireTabActivateEvent() {
    return qv::GetMember<BOOL>(*this, 115, VT_BOOL);
}

void CTab::SetFireTabActivateEvent(BOOL bFireTabActivateEvent) {
    SetProperty(115, VT_BOOL, bFireTabActivateEvent);
}

long CTab::GetMousePointer() {
    return qv::GetMember<long>(*this, 133, VT_I4);
}

void CTab::SetMousePointer(long nMousePointer) {
    SetProperty(133, VT_I4, nMousePointer);
}

CPicture CTab::GetMouseIcon() {
    return CPicture(qv::GetMember<LPDISPATCH>(*this, 134, VT_DISPATCH));
}

void CTab::SetMouseIcon(LPDISPATCH pMouseIcon) {
    SetProperty(134, VT_DISPATCH, pMouseIcon);
}

long CTab::GetFpInternal() {
    return qv::GetMember<long>(*this, 135, VT_I4);
}

void CTab::SetFpInternal(long nFpInternal) {
    SetProperty(135, VT_I4, nFpInternal);
}

long CTab::GetAutoStyle() {
    return qv::GetMember<long>(*this, 136, VT_I4);
}

void CTab::SetAutoStyle(long nAutoStyle) {
    SetProperty(136, VT_I4, nAutoStyle);
}

// Tabs; what is of one tab applies to the tab with the index Tab

short CTab::GetActiveTab() {
    return qv::GetMember<short>(*this, 8, VT_I2);
}

void CTab::SetActiveTab(short nActiveTab) {
    SetProperty(8, VT_I2, nActiveTab);
}

long CTab::GetTabHeight() {
    return qv::GetMember<long>(*this, 10, VT_I4);
}

void CTab::SetTabHeight(long nTabHeight) {
    SetProperty(10, VT_I4, nTabHeight);
}

short CTab::GetTabsPerRow() {
    return qv::GetMember<short>(*this, 11, VT_I2);
}

void CTab::SetTabsPerRow(short nTabsPerRow) {
    SetProperty(11, VT_I2, nTabsPerRow);
}

short CTab::GetTabCount() {
    return qv::GetMember<short>(*this, 12, VT_I2);
}

void CTab::SetTabCount(short nTabCount) {
    SetProperty(12, VT_I2, nTabCount);
}

CString CTab::GetTabCaption() {
    return qv::GetMember<CString>(*this, 13, VT_BSTR);
}

void CTab::SetTabCaption(LPCTSTR pszTabCaption) {
    SetProperty(13, VT_BSTR, pszTabCaption);
}

short CTab::GetTab() {
    return qv::GetMember<short>(*this, 14, VT_I2);
}

void CTab::SetTab(short nTab) {
    SetProperty(14, VT_I2, nTab);
}

long CTab::GetOrientation() {
    return qv::GetMember<long>(*this, 18, VT_I4);
}

void CTab::SetOrientation(long nOrientation) {
    SetProperty(18, VT_I4, nOrientation);
}

long CTab::GetTabShape() {
    return qv::GetMember<long>(*this, 32, VT_I4);
}

void CTab::SetTabShape(long nTabShape) {
    SetProperty(32, VT_I4, nTabShape);
}

long CTab::GetMarginLeft() {
    return qv::GetMember<long>(*this, 33, VT_I4);
}

void CTab::SetMarginLeft(long nMarginLeft) {
    SetProperty(33, VT_I4, nMarginLeft);
}

long CTab::GetMarginRight() {
    return qv::GetMember<long>(*this, 34, VT_I4);
}

void CTab::SetMarginRight(long nMarginRight) {
    SetProperty(34, VT_I4, nMarginRight);
}

long CTab::GetTabMaxWidth() {
    return qv::GetMember<long>(*this, 35, VT_I4);
}

void CTab::SetTabMaxWidth(long nTabMaxWidth) {
    SetProperty(35, VT_I4, nTabMaxWidth);
}

short CTab::GetTabState() {
    return qv::GetMember<short>(*this, 36, VT_I2);
}

void CTab::SetTabState(short nTabState) {
    SetProperty(36, VT_I2, nTabState);
}

BOOL CTab::GetActiveTabBold() {
    return qv::GetMember<BOOL>(*this, 38, VT_BOOL);
}

void CTab::SetActiveTabBold(BOOL bActiveTabBold) {
    SetProperty(38, VT_BOOL, bActiveTabBold);
}

CPicture CTab::GetTabPicture() {
    return CPicture(qv::GetMember<LPDISPATCH>(*this, 41, VT_DISPATCH));
}

void CTab::SetTabPicture(LPDISPATCH pTabPicture) {
    SetProperty(41, VT_DISPATCH, pTabPicture);
}

short CTab::GetTabSeparator() {
    return qv::GetMember<short>(*this, 45, VT_I2);
}

void CTab::SetTabSeparator(short nTabSeparator) {
    SetProperty(45, VT_I2, nTabSeparator);
}

short CTab::GetMouseOverTab() {
    return qv::GetMember<short>(*this, 47, VT_I2);
}

void CTab::SetMouseOverTab(short nMouseOverTab) {
    SetProperty(47, VT_I2, nMouseOverTab);
}

short CTab::GetChamferedWidth() {
    return qv::GetMember<short>(*this, 51, VT_I2);
}

void CTab::SetChamferedWidth(short nChamferedWidth) {
    SetProperty(51, VT_I2, nChamferedWidth);
}

short CTab::GetChamferedHeight() {
    return qv::GetMember<short>(*this, 52, VT_I2);
}

void CTab::SetChamferedHeight(short nChamferedHeight) {
    SetProperty(52, VT_I2, nChamferedHeight);
}

long CTab::GetTabRowOffset() {
    return qv::GetMember<long>(*this, 53, VT_I4);
}

void CTab::SetTabRowOffset(long nTabRowOffset) {
    SetProperty(53, VT_I4, nTabRowOffset);
}

long CTab::GetTabID() {
    return qv::GetMember<long>(*this, 55, VT_I4);
}

void CTab::SetTabID(long nTabID) {
    SetProperty(55, VT_I4, nTabID);
}

short CTab::GetTabDest() {
    return qv::GetMember<short>(*this, 57, VT_I2);
}

void CTab::SetTabDest(short nTabDest) {
    SetProperty(57, VT_I2, nTabDest);
}

long CTab::GetAllowScroll() {
    return qv::GetMember<long>(*this, 58, VT_I4);
}

void CTab::SetAllowScroll(long nAllowScroll) {
    SetProperty(58, VT_I4, nAllowScroll);
}

short CTab::GetTabLeft() {
    return qv::GetMember<short>(*this, 60, VT_I2);
}

void CTab::SetTabLeft(short nTabLeft) {
    SetProperty(60, VT_I2, nTabLeft);
}

short CTab::GetTabRight() {
    return qv::GetMember<short>(*this, 61, VT_I2);
}

void CTab::SetTabRight(short nTabRight) {
    SetProperty(61, VT_I2, nTabRight);
}

short CTab::GetMaxScrollRows() {
    return qv::GetMember<short>(*this, 109, VT_I2);
}

void CTab::SetMaxScrollRows(short nMaxScrollRows) {
    SetProperty(109, VT_I2, nMaxScrollRows);
}

BOOL CTab::GetFreezeRows() {
    return qv::GetMember<BOOL>(*this, 130, VT_BOOL);
}

void CTab::SetFreezeRows(BOOL bFreezeRows) {
    SetProperty(130, VT_BOOL, bFreezeRows);
}

long CTab::GetTabShapeApplyTo() {
    return qv::GetMember<long>(*this, 132, VT_I4);
}

void CTab::SetTabShapeApplyTo(long nTabShapeApplyTo) {
    SetProperty(132, VT_I4, nTabShapeApplyTo);
}

CString CTab::GetTabTag() {
    return qv::GetMember<CString>(*this, 137, VT_BSTR);
}

void CTab::SetTabTag(LPCTSTR pszTabTag) {
    SetProperty(137, VT_BSTR, pszTabTag);
}

short CTab::GetTabHelpContextID() {
    return qv::GetMember<short>(*this, 138, VT_I2);
}

void CTab::SetTabHelpContextID(short nTabHelpContextID) {
    SetProperty(138, VT_I2, nTabHelpContextID);
}

short CTab::GetActiveTabInflate() {
    return qv::GetMember<short>(*this, 147, VT_I2);
}

void CTab::SetActiveTabInflate(short nActiveTabInflate) {
    SetProperty(147, VT_I2, nActiveTabInflate);
}

// Captions

COleFont CTab::GetFont() {
    return COleFont(qv::GetMember<LPDISPATCH>(*this, -512, VT_DISPATCH));
}

void CTab::SetFont(LPDISPATCH pFont) {
    SetProperty(-512, VT_DISPATCH, pFont);
}

BOOL CTab::GetFontBold() {
    return qv::GetMember<BOOL>(*this, 2, VT_BOOL);
}

void CTab::SetFontBold(BOOL bFontBold) {
    SetProperty(2, VT_BOOL, bFontBold);
}

BOOL CTab::GetFontItalic() {
    return qv::GetMember<BOOL>(*this, 3, VT_BOOL);
}

void CTab::SetFontItalic(BOOL bFontItalic) {
    SetProperty(3, VT_BOOL, bFontItalic);
}

CString CTab::GetFontName() {
    return qv::GetMember<CString>(*this, 4, VT_BSTR);
}

void CTab::SetFontName(LPCTSTR pszFontName) {
    SetProperty(4, VT_BSTR, pszFontName);
}

float CTab::GetFontSize() {
    return qv::GetMember<float>(*this, 5, VT_R4);
}

void CTab::SetFontSize(float fltFontSize) {
    SetProperty(5, VT_R4, fltFontSize);
}

BOOL CTab::GetFontUnderline() {
    return qv::GetMember<BOOL>(*this, 6, VT_BOOL);
}

void CTab::SetFontUnderline(BOOL bFontUnderline) {
    SetProperty(6, VT_BOOL, bFontUnderline);
}

long CTab::GetAlignTextH() {
    return qv::GetMember<long>(*this, 15, VT_I4);
}

void CTab::SetAlignTextH(long nAlignTextH) {
    SetProperty(15, VT_I4, nAlignTextH);
}

long CTab::GetAlignTextV() {
    return qv::GetMember<long>(*this, 16, VT_I4);
}

void CTab::SetAlignTextV(long nAlignTextV) {
    SetProperty(16, VT_I4, nAlignTextV);
}

BOOL CTab::GetWordWrap() {
    return qv::GetMember<BOOL>(*this, 17, VT_BOOL);
}

void CTab::SetWordWrap(BOOL bWordWrap) {
    SetProperty(17, VT_BOOL, bWordWrap);
}

BOOL CTab::GetFlipText() {
    return qv::GetMember<BOOL>(*this, 19, VT_BOOL);
}

void CTab::SetFlipText(BOOL bFlipText) {
    SetProperty(19, VT_BOOL, bFlipText);
}

long CTab::GetThreeDText() {
    return qv::GetMember<long>(*this, 28, VT_I4);
}

void CTab::SetThreeDText(long nThreeDText) {
    SetProperty(28, VT_I4, nThreeDText);
}

short CTab::GetThreeDTextOffset() {
    return qv::GetMember<short>(*this, 29, VT_I2);
}

void CTab::SetThreeDTextOffset(short nThreeDTextOffset) {
    SetProperty(29, VT_I2, nThreeDTextOffset);
}

long CTab::GetThreeDTextHighlightColor() {
    return qv::GetMember<long>(*this, 30, VT_I4);
}

void CTab::SetThreeDTextHighlightColor(long nThreeDTextHighlightColor) {
    SetProperty(30, VT_I4, nThreeDTextHighlightColor);
}

long CTab::GetThreeDTextShadowColor() {
    return qv::GetMember<long>(*this, 31, VT_I4);
}

void CTab::SetThreeDTextShadowColor(long nThreeDTextShadowColor) {
    SetProperty(31, VT_I4, nThreeDTextShadowColor);
}

long CTab::GetAlignPictureV() {
    return qv::GetMember<long>(*this, 42, VT_I4);
}

void CTab::SetAlignPictureV(long nAlignPictureV) {
    SetProperty(42, VT_I4, nAlignPictureV);
}

long CTab::GetAlignPictureH() {
    return qv::GetMember<long>(*this, 43, VT_I4);
}

void CTab::SetAlignPictureH(long nAlignPictureH) {
    SetProperty(43, VT_I4, nAlignPictureH);
}

BOOL CTab::GetFontStrikethru() {
    return qv::GetMember<BOOL>(*this, 44, VT_BOOL);
}

void CTab::SetFontStrikethru(BOOL bFontStrikethru) {
    SetProperty(44, VT_BOOL, bFontStrikethru);
}

BOOL CTab::GetRotateText90() {
    return qv::GetMember<BOOL>(*this, 50, VT_BOOL);
}

void CTab::SetRotateText90(BOOL bRotateText90) {
    SetProperty(50, VT_BOOL, bRotateText90);
}

long CTab::GetTextOrientation() {
    return qv::GetMember<long>(*this, 131, VT_I4);
}

void CTab::SetTextOrientation(long nTextOrientation) {
    SetProperty(131, VT_I4, nTextOrientation);
}

// The area of the pages, twips

long CTab::GetClientHeight() {
    return qv::GetMember<long>(*this, 23, VT_I4);
}

void CTab::SetClientHeight(long nClientHeight) {
    SetProperty(23, VT_I4, nClientHeight);
}

long CTab::GetClientLeft() {
    return qv::GetMember<long>(*this, 24, VT_I4);
}

void CTab::SetClientLeft(long nClientLeft) {
    SetProperty(24, VT_I4, nClientLeft);
}

long CTab::GetClientTop() {
    return qv::GetMember<long>(*this, 25, VT_I4);
}

void CTab::SetClientTop(long nClientTop) {
    SetProperty(25, VT_I4, nClientTop);
}

long CTab::GetClientWidth() {
    return qv::GetMember<long>(*this, 26, VT_I4);
}

void CTab::SetClientWidth(long nClientWidth) {
    SetProperty(26, VT_I4, nClientWidth);
}

BOOL CTab::GetOffsetFromClientTop() {
    return qv::GetMember<BOOL>(*this, 48, VT_BOOL);
}

void CTab::SetOffsetFromClientTop(BOOL bOffsetFromClientTop) {
    SetProperty(48, VT_BOOL, bOffsetFromClientTop);
}

long CTab::GetClientHeightPrev() {
    return qv::GetMember<long>(*this, 110, VT_I4);
}

void CTab::SetClientHeightPrev(long nClientHeightPrev) {
    SetProperty(110, VT_I4, nClientHeightPrev);
}

long CTab::GetClientLeftPrev() {
    return qv::GetMember<long>(*this, 111, VT_I4);
}

void CTab::SetClientLeftPrev(long nClientLeftPrev) {
    SetProperty(111, VT_I4, nClientLeftPrev);
}

long CTab::GetClientTopPrev() {
    return qv::GetMember<long>(*this, 112, VT_I4);
}

void CTab::SetClientTopPrev(long nClientTopPrev) {
    SetProperty(112, VT_I4, nClientTopPrev);
}

long CTab::GetClientWidthPrev() {
    return qv::GetMember<long>(*this, 113, VT_I4);
}

void CTab::SetClientWidthPrev(long nClientWidthPrev) {
    SetProperty(113, VT_I4, nClientWidthPrev);
}

// Windows on the pages

long CTab::GetAutoSize() {
    return qv::GetMember<long>(*this, 114, VT_I4);
}

void CTab::SetAutoSize(long nAutoSize) {
    SetProperty(114, VT_I4, nAutoSize);
}

long CTab::GetAutoSizeChildren() {
    return qv::GetMember<long>(*this, 117, VT_I4);
}

void CTab::SetAutoSizeChildren(long nAutoSizeChildren) {
    SetProperty(117, VT_I4, nAutoSizeChildren);
}

long CTab::GetAutoSizeOffsetLeft() {
    return qv::GetMember<long>(*this, 119, VT_I4);
}

void CTab::SetAutoSizeOffsetLeft(long nAutoSizeOffsetLeft) {
    SetProperty(119, VT_I4, nAutoSizeOffsetLeft);
}

long CTab::GetAutoSizeOffsetRight() {
    return qv::GetMember<long>(*this, 120, VT_I4);
}

void CTab::SetAutoSizeOffsetRight(long nAutoSizeOffsetRight) {
    SetProperty(120, VT_I4, nAutoSizeOffsetRight);
}

long CTab::GetAutoSizeOffsetTop() {
    return qv::GetMember<long>(*this, 121, VT_I4);
}

void CTab::SetAutoSizeOffsetTop(long nAutoSizeOffsetTop) {
    SetProperty(121, VT_I4, nAutoSizeOffsetTop);
}

long CTab::GetAutoSizeOffsetBottom() {
    return qv::GetMember<long>(*this, 122, VT_I4);
}

void CTab::SetAutoSizeOffsetBottom(long nAutoSizeOffsetBottom) {
    SetProperty(122, VT_I4, nAutoSizeOffsetBottom);
}

void CTab::TabAssignChild(LPDISPATCH pChild, short nTab, long nLeft, long nTop) {
    qv::InvokeMethod(*this, 1000, VTS_DISPATCH VTS_I2 VTS_I4 VTS_I4, pChild, nTab, nLeft, nTop);
}

void CTab::TabAssignChildToPage(LPDISPATCH pChild, short nTab, short nPage, long nLeft, long nTop) {
    qv::InvokeMethod(*this, 1001, VTS_DISPATCH VTS_I2 VTS_I2 VTS_I4 VTS_I4, pChild, nTab, nPage,
                     nLeft, nTop);
}

BOOL CTab::TabGetChildEnabled(LPDISPATCH pChild, BOOL* pbEnabled) {
    return qv::InvokeMethodFor<BOOL>(*this, 1002, VT_BOOL, VTS_DISPATCH VTS_PBOOL, pChild,
                                     pbEnabled);
}

void CTab::TabSetChildEnabled(LPDISPATCH pChild, BOOL bEnabled) {
    qv::InvokeMethod(*this, 1003, VTS_DISPATCH VTS_BOOL, pChild, bEnabled);
}

BOOL CTab::TabGetChildPos(LPDISPATCH pChild, long* pnLeft, long* pnTop) {
    return qv::InvokeMethodFor<BOOL>(*this, 1004, VT_BOOL, VTS_DISPATCH VTS_PI4 VTS_PI4, pChild,
                                     pnLeft, pnTop);
}

void CTab::TabSetChildPos(LPDISPATCH pChild, long nLeft, long nTop) {
    qv::InvokeMethod(*this, 1005, VTS_DISPATCH VTS_I4 VTS_I4, pChild, nLeft, nTop);
}

BOOL CTab::TabGetChildSize(LPDISPATCH pChild, long* pnWidth, long* pnHeight) {
    return qv::InvokeMethodFor<BOOL>(*this, 1006, VT_BOOL, VTS_DISPATCH VTS_PI4 VTS_PI4, pChild,
                                     pnWidth, pnHeight);
}

void CTab::TabSetChildSize(LPDISPATCH pChild, long nWidth, long nHeight) {
    qv::InvokeMethod(*this, 1007, VTS_DISPATCH VTS_I4 VTS_I4, pChild, nWidth, nHeight);
}

void CTab::TabRemoveChild(LPDISPATCH pChild) {
    qv::InvokeMethod(*this, 1008, VTS_DISPATCH, pChild);
}

void CTab::TabGetCurrentPages(short* pnTab, short* pnPage, short* pnTabPrev, short* pnPagePrev) {
    qv::InvokeMethod(*this, 1009, VTS_PI2 VTS_PI2 VTS_PI2 VTS_PI2, pnTab, pnPage, pnTabPrev,
                     pnPagePrev);
}

BOOL CTab::TabSetActiveTabPage(short nTab, short nPage) {
    return qv::InvokeMethodFor<BOOL>(*this, 1010, VT_BOOL, VTS_I2 VTS_I2, nTab, nPage);
}

// Pages of a tab, and the book that they may look like

long CTab::GetPageColor() {
    return qv::GetMember<long>(*this, 46, VT_I4);
}

void CTab::SetPageColor(long nPageColor) {
    SetProperty(46, VT_I4, nPageColor);
}

long CTab::GetBookMarginH() {
    return qv::GetMember<long>(*this, 67, VT_I4);
}

void CTab::SetBookMarginH(long nBookMarginH) {
    SetProperty(67, VT_I4, nBookMarginH);
}

long CTab::GetBookMarginV() {
    return qv::GetMember<long>(*this, 68, VT_I4);
}

void CTab::SetBookMarginV(long nBookMarginV) {
    SetProperty(68, VT_I4, nBookMarginV);
}

long CTab::GetBookCreaseType() {
    return qv::GetMember<long>(*this, 69, VT_I4);
}

void CTab::SetBookCreaseType(long nBookCreaseType) {
    SetProperty(69, VT_I4, nBookCreaseType);
}

long CTab::GetBookCreaseColor() {
    return qv::GetMember<long>(*this, 70, VT_I4);
}

void CTab::SetBookCreaseColor(long nBookCreaseColor) {
    SetProperty(70, VT_I4, nBookCreaseColor);
}

long CTab::GetBookColor() {
    return qv::GetMember<long>(*this, 71, VT_I4);
}

void CTab::SetBookColor(long nBookColor) {
    SetProperty(71, VT_I4, nBookColor);
}

long CTab::GetBookRingColor() {
    return qv::GetMember<long>(*this, 72, VT_I4);
}

void CTab::SetBookRingColor(long nBookRingColor) {
    SetProperty(72, VT_I4, nBookRingColor);
}

long CTab::GetBookRingColorLight() {
    return qv::GetMember<long>(*this, 73, VT_I4);
}

void CTab::SetBookRingColorLight(long nBookRingColorLight) {
    SetProperty(73, VT_I4, nBookRingColorLight);
}

long CTab::GetBookRingColorOutline() {
    return qv::GetMember<long>(*this, 74, VT_I4);
}

void CTab::SetBookRingColorOutline(long nBookRingColorOutline) {
    SetProperty(74, VT_I4, nBookRingColorOutline);
}

long CTab::GetBookRingLength() {
    return qv::GetMember<long>(*this, 75, VT_I4);
}

void CTab::SetBookRingLength(long nBookRingLength) {
    SetProperty(75, VT_I4, nBookRingLength);
}

short CTab::GetBookRingWidth() {
    return qv::GetMember<short>(*this, 76, VT_I2);
}

void CTab::SetBookRingWidth(short nBookRingWidth) {
    SetProperty(76, VT_I2, nBookRingWidth);
}

short CTab::GetBookRingCount() {
    return qv::GetMember<short>(*this, 77, VT_I2);
}

void CTab::SetBookRingCount(short nBookRingCount) {
    SetProperty(77, VT_I2, nBookRingCount);
}

short CTab::GetBookRingGroupCount() {
    return qv::GetMember<short>(*this, 78, VT_I2);
}

void CTab::SetBookRingGroupCount(short nBookRingGroupCount) {
    SetProperty(78, VT_I2, nBookRingGroupCount);
}

short CTab::GetBookRingMargin() {
    return qv::GetMember<short>(*this, 79, VT_I2);
}

void CTab::SetBookRingMargin(short nBookRingMargin) {
    SetProperty(79, VT_I2, nBookRingMargin);
}

long CTab::GetBookRingOutsideMargin() {
    return qv::GetMember<long>(*this, 80, VT_I4);
}

void CTab::SetBookRingOutsideMargin(long nBookRingOutsideMargin) {
    SetProperty(80, VT_I4, nBookRingOutsideMargin);
}

BOOL CTab::GetBookShowMetalSpine() {
    return qv::GetMember<BOOL>(*this, 81, VT_BOOL);
}

void CTab::SetBookShowMetalSpine(BOOL bBookShowMetalSpine) {
    SetProperty(81, VT_BOOL, bBookShowMetalSpine);
}

long CTab::GetBookMetalSpineColor() {
    return qv::GetMember<long>(*this, 82, VT_I4);
}

void CTab::SetBookMetalSpineColor(long nBookMetalSpineColor) {
    SetProperty(82, VT_I4, nBookMetalSpineColor);
}

long CTab::GetBookMetalSpineOutlineColor() {
    return qv::GetMember<long>(*this, 83, VT_I4);
}

void CTab::SetBookMetalSpineOutlineColor(long nBookMetalSpineOutlineColor) {
    SetProperty(83, VT_I4, nBookMetalSpineOutlineColor);
}

long CTab::GetBookCornerType() {
    return qv::GetMember<long>(*this, 84, VT_I4);
}

void CTab::SetBookCornerType(long nBookCornerType) {
    SetProperty(84, VT_I4, nBookCornerType);
}

long CTab::GetBookCornerWidth() {
    return qv::GetMember<long>(*this, 85, VT_I4);
}

void CTab::SetBookCornerWidth(long nBookCornerWidth) {
    SetProperty(85, VT_I4, nBookCornerWidth);
}

long CTab::GetBookCornerHeight() {
    return qv::GetMember<long>(*this, 86, VT_I4);
}

void CTab::SetBookCornerHeight(long nBookCornerHeight) {
    SetProperty(86, VT_I4, nBookCornerHeight);
}

short CTab::GetBookShadowSize() {
    return qv::GetMember<short>(*this, 87, VT_I2);
}

void CTab::SetBookShadowSize(short nBookShadowSize) {
    SetProperty(87, VT_I2, nBookShadowSize);
}

long CTab::GetBookShadowColor() {
    return qv::GetMember<long>(*this, 88, VT_I4);
}

void CTab::SetBookShadowColor(long nBookShadowColor) {
    SetProperty(88, VT_I4, nBookShadowColor);
}

long CTab::GetBookGutter() {
    return qv::GetMember<long>(*this, 89, VT_I4);
}

void CTab::SetBookGutter(long nBookGutter) {
    SetProperty(89, VT_I4, nBookGutter);
}

long CTab::GetBookRingType() {
    return qv::GetMember<long>(*this, 90, VT_I4);
}

void CTab::SetBookRingType(long nBookRingType) {
    SetProperty(90, VT_I4, nBookRingType);
}

short CTab::GetBookDoubleWireMargin() {
    return qv::GetMember<short>(*this, 91, VT_I2);
}

void CTab::SetBookDoubleWireMargin(short nBookDoubleWireMargin) {
    SetProperty(91, VT_I2, nBookDoubleWireMargin);
}

short CTab::GetBookRingArc() {
    return qv::GetMember<short>(*this, 92, VT_I2);
}

void CTab::SetBookRingArc(short nBookRingArc) {
    SetProperty(92, VT_I2, nBookRingArc);
}

BOOL CTab::GetBookRingShowHole() {
    return qv::GetMember<BOOL>(*this, 93, VT_BOOL);
}

void CTab::SetBookRingShowHole(BOOL bBookRingShowHole) {
    SetProperty(93, VT_BOOL, bBookRingShowHole);
}

long CTab::GetBookCoverStyle() {
    return qv::GetMember<long>(*this, 94, VT_I4);
}

void CTab::SetBookCoverStyle(long nBookCoverStyle) {
    SetProperty(94, VT_I4, nBookCoverStyle);
}

short CTab::GetPageMax() {
    return qv::GetMember<short>(*this, 95, VT_I2);
}

void CTab::SetPageMax(short nPageMax) {
    SetProperty(95, VT_I2, nPageMax);
}

short CTab::GetPage() {
    return qv::GetMember<short>(*this, 96, VT_I2);
}

void CTab::SetPage(short nPage) {
    SetProperty(96, VT_I2, nPage);
}

short CTab::GetActivePage() {
    return qv::GetMember<short>(*this, 97, VT_I2);
}

void CTab::SetActivePage(short nActivePage) {
    SetProperty(97, VT_I2, nActivePage);
}

long CTab::GetPageEarMarkType() {
    return qv::GetMember<long>(*this, 98, VT_I4);
}

void CTab::SetPageEarMarkType(long nPageEarMarkType) {
    SetProperty(98, VT_I4, nPageEarMarkType);
}

long CTab::GetPageFlipEffect() {
    return qv::GetMember<long>(*this, 99, VT_I4);
}

void CTab::SetPageFlipEffect(long nPageFlipEffect) {
    SetProperty(99, VT_I4, nPageFlipEffect);
}

long CTab::GetPageEarMarkColorDark() {
    return qv::GetMember<long>(*this, 100, VT_I4);
}

void CTab::SetPageEarMarkColorDark(long nPageEarMarkColorDark) {
    SetProperty(100, VT_I4, nPageEarMarkColorDark);
}

long CTab::GetPageEarMarkColorLight() {
    return qv::GetMember<long>(*this, 101, VT_I4);
}

void CTab::SetPageEarMarkColorLight(long nPageEarMarkColorLight) {
    SetProperty(101, VT_I4, nPageEarMarkColorLight);
}

long CTab::GetPageEarMarkColorOutline() {
    return qv::GetMember<long>(*this, 102, VT_I4);
}

void CTab::SetPageEarMarkColorOutline(long nPageEarMarkColorOutline) {
    SetProperty(102, VT_I4, nPageEarMarkColorOutline);
}

long CTab::GetPageEarMarkHeight() {
    return qv::GetMember<long>(*this, 103, VT_I4);
}

void CTab::SetPageEarMarkHeight(long nPageEarMarkHeight) {
    SetProperty(103, VT_I4, nPageEarMarkHeight);
}

long CTab::GetPageEarMarkAlignNext() {
    return qv::GetMember<long>(*this, 107, VT_I4);
}

void CTab::SetPageEarMarkAlignNext(long nPageEarMarkAlignNext) {
    SetProperty(107, VT_I4, nPageEarMarkAlignNext);
}

long CTab::GetPageEarMarkAlignPrev() {
    return qv::GetMember<long>(*this, 108, VT_I4);
}

void CTab::SetPageEarMarkAlignPrev(long nPageEarMarkAlignPrev) {
    SetProperty(108, VT_I4, nPageEarMarkAlignPrev);
}

short CTab::GetPageFlipSpeed() {
    return qv::GetMember<short>(*this, 118, VT_I2);
}

void CTab::SetPageFlipSpeed(short nPageFlipSpeed) {
    SetProperty(118, VT_I2, nPageFlipSpeed);
}

BOOL CTab::GetBookShowCornerGuard() {
    return qv::GetMember<BOOL>(*this, 123, VT_BOOL);
}

void CTab::SetBookShowCornerGuard(BOOL bBookShowCornerGuard) {
    SetProperty(123, VT_BOOL, bBookShowCornerGuard);
}

long CTab::GetBookCornerGuardWidth() {
    return qv::GetMember<long>(*this, 124, VT_I4);
}

void CTab::SetBookCornerGuardWidth(long nBookCornerGuardWidth) {
    SetProperty(124, VT_I4, nBookCornerGuardWidth);
}

long CTab::GetBookCornerGuardLength() {
    return qv::GetMember<long>(*this, 125, VT_I4);
}

void CTab::SetBookCornerGuardLength(long nBookCornerGuardLength) {
    SetProperty(125, VT_I4, nBookCornerGuardLength);
}

long CTab::GetBookCornerGuardColor() {
    return qv::GetMember<long>(*this, 126, VT_I4);
}

void CTab::SetBookCornerGuardColor(long nBookCornerGuardColor) {
    SetProperty(126, VT_I4, nBookCornerGuardColor);
}

long CTab::GetBookCornerGuardColorDark() {
    return qv::GetMember<long>(*this, 127, VT_I4);
}

void CTab::SetBookCornerGuardColorDark(long nBookCornerGuardColorDark) {
    SetProperty(127, VT_I4, nBookCornerGuardColorDark);
}

long CTab::GetBookCornerGuardColorLight() {
    return qv::GetMember<long>(*this, 128, VT_I4);
}

void CTab::SetBookCornerGuardColorLight(long nBookCornerGuardColorLight) {
    SetProperty(128, VT_I4, nBookCornerGuardColorLight);
}

long CTab::GetBookModeType() {
    return qv::GetMember<long>(*this, 129, VT_I4);
}

void CTab::SetBookModeType(long nBookModeType) {
    SetProperty(129, VT_I4, nBookModeType);
}

// Data

CString CTab::GetDataFormat() {
    return qv::GetMember<CString>(*this, 104, VT_BSTR);
}

void CTab::SetDataFormat(LPCTSTR pszDataFormat) {
    SetProperty(104, VT_BSTR, pszDataFormat);
}

BOOL CTab::GetDataAutoRead() {
    return qv::GetMember<BOOL>(*this, 105, VT_BOOL);
}

void CTab::SetDataAutoRead(BOOL bDataAutoRead) {
    SetProperty(105, VT_BOOL, bDataAutoRead);
}

CString CTab::GetDataBookmark() {
    return qv::GetMember<CString>(*this, 106, VT_BSTR);
}

void CTab::SetDataBookmark(LPCTSTR pszDataBookmark) {
    SetProperty(106, VT_BSTR, pszDataBookmark);
}

long CTab::GetDataSync() {
    return qv::GetMember<long>(*this, 116, VT_I4);
}

void CTab::SetDataSync(long nDataSync) {
    SetProperty(116, VT_I4, nDataSync);
}

LPUNKNOWN CTab::GetDataSource() {
    return qv::GetMember<LPUNKNOWN>(*this, 150, VT_UNKNOWN);
}

void CTab::SetDataSource(LPUNKNOWN pDataSource) {
    SetProperty(150, VT_UNKNOWN, pDataSource);
}

CString CTab::GetDataField() {
    return qv::GetMember<CString>(*this, 151, VT_BSTR);
}

void CTab::SetDataField(LPCTSTR pszDataField) {
    SetProperty(151, VT_BSTR, pszDataField);
}

// Edges and colours

short CTab::GetBorderStyle() {
    return qv::GetMember<short>(*this, -504, VT_I2);
}

void CTab::SetBorderStyle(short nBorderStyle) {
    SetProperty(-504, VT_I2, nBorderStyle);
}

long CTab::GetBackColor() {
    return qv::GetMember<long>(*this, 1, VT_I4);
}

void CTab::SetBackColor(long nBackColor) {
    SetProperty(1, VT_I4, nBackColor);
}

long CTab::GetForeColor() {
    return qv::GetMember<long>(*this, 7, VT_I4);
}

void CTab::SetForeColor(long nForeColor) {
    SetProperty(7, VT_I4, nForeColor);
}

BOOL CTab::GetThreeD() {
    return qv::GetMember<BOOL>(*this, 20, VT_BOOL);
}

void CTab::SetThreeD(BOOL bThreeD) {
    SetProperty(20, VT_BOOL, bThreeD);
}

long CTab::GetThreeDShadowColor() {
    return qv::GetMember<long>(*this, 21, VT_I4);
}

void CTab::SetThreeDShadowColor(long nThreeDShadowColor) {
    SetProperty(21, VT_I4, nThreeDShadowColor);
}

long CTab::GetThreeDHighlightColor() {
    return qv::GetMember<long>(*this, 22, VT_I4);
}

void CTab::SetThreeDHighlightColor(long nThreeDHighlightColor) {
    SetProperty(22, VT_I4, nThreeDHighlightColor);
}

BOOL CTab::GetShowFocusRect() {
    return qv::GetMember<BOOL>(*this, 27, VT_BOOL);
}

void CTab::SetShowFocusRect(BOOL bShowFocusRect) {
    SetProperty(27, VT_BOOL, bShowFocusRect);
}

long CTab::GetGrayAreaColor() {
    return qv::GetMember<long>(*this, 39, VT_I4);
}

void CTab::SetGrayAreaColor(long nGrayAreaColor) {
    SetProperty(39, VT_I4, nGrayAreaColor);
}

long CTab::GetOutlineColor() {
    return qv::GetMember<long>(*this, 40, VT_I4);
}

void CTab::SetOutlineColor(long nOutlineColor) {
    SetProperty(40, VT_I4, nOutlineColor);
}

BOOL CTab::GetShowEarMark() {
    return qv::GetMember<BOOL>(*this, 59, VT_BOOL);
}

void CTab::SetShowEarMark(BOOL bShowEarMark) {
    SetProperty(59, VT_BOOL, bShowEarMark);
}

long CTab::GetEarMarkColorDark() {
    return qv::GetMember<long>(*this, 62, VT_I4);
}

void CTab::SetEarMarkColorDark(long nEarMarkColorDark) {
    SetProperty(62, VT_I4, nEarMarkColorDark);
}

long CTab::GetEarMarkColorLight() {
    return qv::GetMember<long>(*this, 63, VT_I4);
}

void CTab::SetEarMarkColorLight(long nEarMarkColorLight) {
    SetProperty(63, VT_I4, nEarMarkColorLight);
}

long CTab::GetEarMarkColorOutline() {
    return qv::GetMember<long>(*this, 64, VT_I4);
}

void CTab::SetEarMarkColorOutline(long nEarMarkColorOutline) {
    SetProperty(64, VT_I4, nEarMarkColorOutline);
}

long CTab::GetEarMarkHeight() {
    return qv::GetMember<long>(*this, 65, VT_I4);
}

void CTab::SetEarMarkHeight(long nEarMarkHeight) {
    SetProperty(65, VT_I4, nEarMarkHeight);
}

long CTab::GetThreeDOuterDark() {
    return qv::GetMember<long>(*this, 139, VT_I4);
}

void CTab::SetThreeDOuterDark(long nThreeDOuterDark) {
    SetProperty(139, VT_I4, nThreeDOuterDark);
}

long CTab::GetThreeDOuterLight() {
    return qv::GetMember<long>(*this, 140, VT_I4);
}

void CTab::SetThreeDOuterLight(long nThreeDOuterLight) {
    SetProperty(140, VT_I4, nThreeDOuterLight);
}

short CTab::GetThreeDOuterWidth() {
    return qv::GetMember<short>(*this, 141, VT_I2);
}

void CTab::SetThreeDOuterWidth(short nThreeDOuterWidth) {
    SetProperty(141, VT_I2, nThreeDOuterWidth);
}

short CTab::GetThreeDOuterWidthActive() {
    return qv::GetMember<short>(*this, 142, VT_I2);
}

void CTab::SetThreeDOuterWidthActive(short nThreeDOuterWidthActive) {
    SetProperty(142, VT_I2, nThreeDOuterWidthActive);
}

long CTab::GetThreeDInnerDark() {
    return qv::GetMember<long>(*this, 143, VT_I4);
}

void CTab::SetThreeDInnerDark(long nThreeDInnerDark) {
    SetProperty(143, VT_I4, nThreeDInnerDark);
}

long CTab::GetThreeDInnerLight() {
    return qv::GetMember<long>(*this, 144, VT_I4);
}

void CTab::SetThreeDInnerLight(long nThreeDInnerLight) {
    SetProperty(144, VT_I4, nThreeDInnerLight);
}

short CTab::GetThreeDInnerWidth() {
    return qv::GetMember<short>(*this, 145, VT_I2);
}

void CTab::SetThreeDInnerWidth(short nThreeDInnerWidth) {
    SetProperty(145, VT_I2, nThreeDInnerWidth);
}

short CTab::GetThreeDInnerWidthActive() {
    return qv::GetMember<short>(*this, 146, VT_I2);
}

void CTab::SetThreeDInnerWidthActive(short nThreeDInnerWidthActive) {
    SetProperty(146, VT_I2, nThreeDInnerWidthActive);
}

long CTab::GetThreeDAppearance() {
    return qv::GetMember<long>(*this, 148, VT_I4);
}

void CTab::SetThreeDAppearance(long nThreeDAppearance) {
    SetProperty(148, VT_I4, nThreeDAppearance);
}

long CTab::GetDrawFocusRect() {
    return qv::GetMember<long>(*this, 149, VT_I4);
}

void CTab::SetDrawFocusRect(long nDrawFocusRect) {
    SetProperty(149, VT_I4, nDrawFocusRect);
}
