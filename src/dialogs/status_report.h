// QVStatusReport: shows an error to the user, whole, in a QVTextDlg that reads it from a temporary
// file. Whatever goes wrong on the way - a full disk, no memory, a dialog that cannot be made - the
// report ends in a message box, and the file, if there is one, stays.
//
// Ownership: statuses and exceptions are taken over and deleted, once, on every way. Null is
// reported as an error of which nothing is known.

#pragma once

#include "frame/qv_api.h"

#include <afxwin.h>

class QVStatus;

class QV_CONTROLS_API QVStatusReport : public CObject {
public:
    QVStatusReport();
    ~QVStatusReport() override;

    // pParent may be null. If it goes while the report shows, the dialog goes with it, and the user
    // gets the application's own box. bLogFormat: see AfxMsgBoxReport.
    static void Report(QVStatus* pStatus, CWnd* pParent, int bLogFormat);
    static void Report(CException* pException, CWnd* pParent);
    // In a message box: the form for logs if bLogFormat is 1, the compact text for all other
    // values. With a parent the caption is the string 61488 of the application, or its name;
    // without one the application shows the box, as AfxMessageBox does.
    static void AfxMsgBoxReport(QVStatus* pStatus, CWnd* pParent, int bLogFormat);
};
