#include "pages/print_target.h"

#include "errors.h"
#include "resource.h"

#include <virtual_printer/virtual_printer.h>
#include <winspool.h>

namespace {

bool KnowsPrinters() {
    DWORD nBytes = 0;
    DWORD nPrinters = 0;
    constexpr DWORD kAll = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
    // Where there is one, the names do not fit in nothing.
    ::EnumPrinters(kAll, nullptr, 4, nullptr, 0, &nBytes, &nPrinters);
    return nBytes > 0;
}

// What the driver writes is for printers of its own language.
LPCSTR ExtensionFor(const CPrintDialog& printer) {
    const int nEscape = POSTSCRIPT_PASSTHROUGH;
    const HDC hDC = printer.GetPrinterDC();
    return ::ExtEscape(hDC, QUERYESCSUPPORT, sizeof nEscape,
                       reinterpret_cast<const char*>(&nEscape), 0, nullptr) > 0
               ? "ps"
               : "prn";
}

}  // namespace

bool HasPrinter(CWnd* pParent) {
    if (KnowsPrinters()) {
        return true;
    }
    if (!CanMakeVirtualPrinter()) {
        Tell(Failed(kErrorNoPrinter,
                    Reason("Add one in the settings of the system, under printers, and print "
                           "again. One that makes PDF files will do.",
                           nullptr)),
             pParent);
        return false;
    }
    CString strQuestion;
    strQuestion.Format(
        "There is no printer to print on.\n\nAdd one, called %s, that writes what "
        "is printed to files of PostScript?",
        kVirtualPrinterName);
    if (AfxMessageBox(strQuestion, MB_YESNO | MB_ICONQUESTION) != IDYES) {
        return false;
    }
    std::string strError;
    if (!EnsureVirtualPrinter(strError)) {
        Tell(Failed(kErrorNoPrinter, Reason((strError + ".").c_str(), kVirtualPrinterName)),
             pParent);
        return false;
    }
    return true;
}

bool AskForOutput(const CPrintDialog& printer, CWnd* pParent, CString& strName) {
    const bool bToFile = (printer.m_pd.Flags & PD_PRINTTOFILE) != 0;
    if (!bToFile && printer.GetPortName().CompareNoCase("FILE:") != 0) {
        strName.Empty();
        return true;
    }
    const CString strExtension = ExtensionFor(printer);
    const CString strBegin = strName + "." + strExtension;
    const CString strFilter = strExtension == "ps" ? "PostScript files|*.ps|All files|*.*||"
                                                   : "Printer files|*.prn|All files|*.*||";
    QVFileDialogEx dialog(FALSE, strExtension, strBegin,
                          OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST, strFilter,
                          pParent);
    dialog.SetDlgTitle(IDS_PRINT_TO_FILE);
    if (dialog.DoModal() != IDOK) {
        return false;
    }
    strName = dialog.GetPathName();
    return true;
}
