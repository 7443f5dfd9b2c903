// QVAboutBox: what a program tells about itself: its icon, its name, and this library's version and
// legal lines. A second form tells which database the program is tied to as well.
//
//     QVAboutBox box(TRUE, this);
//     box.m_strTitle = "About Inventory";
//     box.m_strProductName = "Inventory";
//     box.m_nIconID = IDR_MAINFRAME;
//     box.SetDatabaseInfo("Packages", "/var/lib/dpkg", "status");
//     box.DoModal();
//
// Set the fields, then DoModal. The form with a database shows it in three controls of CfpText
// (activex/fp_text.h), to be read and copied, not typed over: DoModal gives -1 where those cannot be
// made, as for any dialog that cannot be made. What such a control refuses is not shown; nothing is
// thrown.
//
// A template of a derived class may have the items 30110 and 30113 to 30115 as well (see
// m_bExtended); the library's have not.

#pragma once

#include "activex/fp_text.h"
#include "frame/alive.h"
#include "frame/qv_api.h"

#include <afxwin.h>

class QV_CONTROLS_API QVAboutBox : public CDialog {
public:
    explicit QVAboutBox(CWnd* pParent = nullptr);
    // With the database's places if bShowDatabase is not 0.
    QVAboutBox(int bShowDatabase, CWnd* pParent);

    // Stored always, shown only in the form with a database. Null is an empty text. Without memory
    // they stay what they were.
    void SetDatabaseInfo(const char* pszType, const char* pszLocation, const char* pszName);

protected:
    // Of the template with the number nIDTemplate.
    QVAboutBox(UINT nIDTemplate, int bShowDatabase, CWnd* pParent);

    void DoDataExchange(CDataExchange* pDX) override;
    // Shows everything. 1 always.
    int OnInitDialog() override;

    CStatic m_wndIcon;

public:
    CString m_strExtra1;  // item 30113 of an extended template
    CString m_strProductName;
    CString m_strExtra2;  // item 30114
    CString m_strExtra3;  // item 30115, shown only where m_strExtra4 is not empty
    CString m_strExtra4;  // item 30110, hidden where this is empty

protected:
    int m_bShowDatabase;
    int m_bExtended = 0;  // for derived classes, whose template has the items

public:
    CString m_strDatabaseType;
    CString m_strDatabaseLocation;
    CString m_strDatabaseName;
    CString m_strTitle;  // the dialog's caption
    UINT m_nIconID = 0;  // found through the resource chain; 0, or one that is not there: no icon

protected:
    CfpText m_wndDatabaseType;
    CfpText m_wndDatabaseLocation;
    CfpText m_wndDatabaseName;

private:
    void ShowIcon();
    void ShowExtras();
    void ShowDatabase();

    qv::AliveToken m_alive;
};
