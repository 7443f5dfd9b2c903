// paper_job OUTPUT.ps EXPECTED: prints a long document to a file, and writes down what has to be
// found on its pages.
#include "paper_document.h"
#include "virtual_printer/virtual_printer.h"

#include <afxwin.h>

#include <winspool.h>

namespace {

constexpr short kDotsPerInch = 600;
constexpr int kPointsPerInch = 72;

// A device context of the default printer, on A4.
class PrinterDC : public CDC {
public:
    bool Open() {
        char szName[256] = "";
        DWORD nBytes = sizeof szName;
        if (!::GetDefaultPrinter(szName, &nBytes)) {
            return false;
        }
        DEVMODE mode{};
        mode.dmSize = sizeof mode;
        mode.dmFields = DM_PRINTQUALITY | DM_PAPERSIZE;
        mode.dmPrintQuality = kDotsPerInch;
        mode.dmPaperSize = DMPAPER_A4;
        m_bPrinting = TRUE;
        return CreateDC("WINSPOOL", szName, nullptr, &mode) &&
               GetDeviceCaps(LOGPIXELSX) == kDotsPerInch &&
               GetDeviceCaps(LOGPIXELSY) == kDotsPerInch;
    }
    // What margins of an inch leave of the paper, in so many units an inch from the paper's corner.
    CRect BoxIn(int nPerInch) const {
        CRect rc(0, 0, ::MulDiv(GetDeviceCaps(PHYSICALWIDTH), nPerInch, kDotsPerInch),
                 ::MulDiv(GetDeviceCaps(PHYSICALHEIGHT), nPerInch, kDotsPerInch));
        rc.DeflateRect(nPerInch, nPerInch);
        return rc;
    }
    // The same in device units from where printing can begin.
    CRect Box() const {
        return BoxIn(kDotsPerInch) -
               CPoint(GetDeviceCaps(PHYSICALOFFSETX), GetDeviceCaps(PHYSICALOFFSETY));
    }
};

void PrintFooter(CDC& dc, CFont& font, const CRect& rcBox, unsigned nPage, unsigned nPages) {
    CString strText;
    strText.Format("Page %u of %u", nPage, nPages);
    CRect rc(rcBox.left, rcBox.bottom + kDotsPerInch / 4, rcBox.right,
             rcBox.bottom + kDotsPerInch / 2);
    CFont* pOld = dc.SelectObject(&font);
    dc.DrawText(strText, &rc, DT_CENTER | DT_SINGLELINE);
    dc.SelectObject(pOld);
}

bool Print(PrinterDC& dc, const char* pszOutput, Expectation& expected) {
    PaperDocument document(dc, expected);
    const CRect rcBox = dc.Box();
    const unsigned nPages = document.Paginate(rcBox);
    const double pitch = static_cast<double>(document.LineHeight());
    expected.Layout(dc.BoxIn(kPointsPerInch), nPages, pitch * kPointsPerInch / kDotsPerInch);
    DOCINFO info{};
    info.cbSize = sizeof info;
    info.lpszDocName = "Paper";
    info.lpszOutput = pszOutput;
    bool bGood = dc.StartDoc(&info) > 0;
    for (unsigned nPage = 1; bGood && nPage <= nPages; ++nPage) {
        bGood = dc.StartPage() > 0;
        document.PrintPage(rcBox, nPage);
        PrintFooter(dc, document.NormalFont(), rcBox, nPage, nPages);
        bGood = bGood && dc.EndPage() > 0;
    }
    return bGood && dc.EndDoc() > 0;
}

int Fail(const char* pszWhy) {
    std::fprintf(stderr, "paper_job: %s\n", pszWhy);
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        return Fail("usage: paper_job OUTPUT.ps EXPECTED");
    }
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL)) {
        return Fail("the framework does not start");
    }
    std::string strError;
    if (!EnsureVirtualPrinter(strError)) {
        return Fail(strError.c_str());
    }
    PrinterDC dc;
    if (!dc.Open()) {
        return Fail("the default printer does not print 600 dots an inch");
    }
    Expectation expected(argv[2]);
    if (!Print(dc, argv[1], expected)) {
        return Fail("the job fails");
    }
    return expected.Close() ? 0 : Fail("the expectations cannot be written");
}
