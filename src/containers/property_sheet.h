// QVPropertySheet and QVPropertySheetEx: property sheets whose pages keep the font that they were
// designed in (property_page.h), and whose tabs show in the font of the first page's template, or
// in "MS Shell Dlg" of 8 points where that names none. QVPropertySheetEx may also be a wizard whose
// pages have titles in a header.
//
// As with the framework's sheets: the constructor, AddPage for each page, then DoModal or Create.
// Pages, and pictures of a wizard, stay the application's and have to be there until the sheet is
// gone. The tabs' font is the sheet's.

#pragma once

#include "frame/alive.h"
#include "frame/qv_api.h"

#include <afxdlgs.h>

class QV_CONTROLS_API QVPropertySheet : public CPropertySheet {
public:
    explicit QVPropertySheet(UINT nIDCaption, CWnd* pParent = nullptr, UINT iSelectPage = 0);
    explicit QVPropertySheet(const char* pszCaption, CWnd* pParent = nullptr, UINT iSelectPage = 0);

    // Gives the tabs their font. Always 1.
    int OnInitDialog() override;

protected:
    // Makes the records of the pages, without titles for a header, and the tabs' font. Without
    // memory there are no records, and the sheet does not come up.
    void BuildPropPageArray() override;

    CFont m_fontTab;  // of the tabs; stays where a later first page names no font

private:
    qv::AliveToken m_alive;
};

class QV_CONTROLS_API QVPropertySheetEx : public CPropertySheetEx {
    DECLARE_DYNAMIC(QVPropertySheetEx)

public:
    QVPropertySheetEx();
    explicit QVPropertySheetEx(UINT nIDCaption, CWnd* pParent = nullptr, UINT iSelectPage = 0,
                               HBITMAP hbmWatermark = nullptr, HPALETTE hpalWatermark = nullptr,
                               HBITMAP hbmHeader = nullptr);
    explicit QVPropertySheetEx(const char* pszCaption, CWnd* pParent = nullptr,
                               UINT iSelectPage = 0, HBITMAP hbmWatermark = nullptr,
                               HPALETTE hpalWatermark = nullptr, HBITMAP hbmHeader = nullptr);

    int OnInitDialog() override;

protected:
    // As in QVPropertySheet, with the titles of pages that are QVPropertyPageEx.
    void BuildPropPageArray() override;

    CFont m_fontTab;

private:
    qv::AliveToken m_alive;
};
