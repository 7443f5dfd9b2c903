#include "pages/printing.h"

#include "model/count_text.h"
#include "model/inventory.h"
#include "pages/print_target.h"
#include "sources/disk_file.h"

#include <algorithm>

PrinterChoice::PrinterChoice(CWnd* pParent)
    : CPrintDialog(FALSE, PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOSELECTION, pParent) {}

PrinterChoice::~PrinterChoice() {
    ::GlobalFree(m_pd.hDevMode);
    ::GlobalFree(m_pd.hDevNames);
}

bool PrinterChoice::Ask(unsigned nPages, LPCSTR pszName, CDC& dc) {
    CWnd* const pParent = m_pParentWnd;
    if (!HasPrinter(pParent)) {
        return false;
    }
    m_pd.nMinPage = 1;
    m_pd.nMaxPage = static_cast<WORD>(std::clamp(nPages, 1u, 0xFFFFu));
    m_pd.nFromPage = 1;
    m_pd.nToPage = m_pd.nMaxPage;
    if (DoModal() != IDOK) {
        return false;
    }
    ::SetLastError(NO_ERROR);
    if (!dc.Attach(GetPrinterDC())) {
        Tell(Failed(kErrorNoPrinter, SystemReason(::GetLastError(), nullptr)), pParent);
        return false;
    }
    dc.m_bPrinting = TRUE;
    m_strOutput = pszName;
    return AskForOutput(*this, pParent, m_strOutput);
}

void PrinterChoice::UsePaper(int nPaper) {
    if (nPaper == 0 || (m_pd.hDevMode == nullptr && !GetDefaults())) {
        return;
    }
    if (DEVMODE* pMode = GetDevMode()) {
        pMode->dmPaperSize = static_cast<short>(nPaper);
        pMode->dmFields |= DM_PAPERSIZE;
        ::GlobalUnlock(m_pd.hDevMode);
    }
}

void PrinterChoice::UseOrientation(bool bLandscape) {
    if (m_pd.hDevMode == nullptr && !GetDefaults()) {
        return;
    }
    if (DEVMODE* pMode = GetDevMode()) {
        pMode->dmOrientation = bLandscape ? DMORIENT_LANDSCAPE : DMORIENT_PORTRAIT;
        pMode->dmFields |= DM_ORIENTATION;
        ::GlobalUnlock(m_pd.hDevMode);
    }
}

unsigned PrinterChoice::FirstPage() const {
    return PrintRange() ? static_cast<unsigned>(GetFromPage()) : 1;
}

unsigned PrinterChoice::LastPage() const {
    return PrintRange() ? static_cast<unsigned>(GetToPage()) : ~0u;
}

Failure OpenDefaultPrinter(CWnd* pParent, CDC& dc, int nPaper, bool bLandscape) {
    PrinterChoice printer(pParent);
    if (!printer.GetDefaults()) {
        return Failed(kErrorNoPrinter);
    }
    printer.UsePaper(nPaper);
    if (bLandscape) {
        printer.UseOrientation(true);
    }
    ::SetLastError(NO_ERROR);
    if (!dc.Attach(printer.CreatePrinterDC())) {
        return Failed(kErrorNoPrinter, SystemReason(::GetLastError(), nullptr));
    }
    dc.m_bPrinting = TRUE;
    return nullptr;
}

namespace {

// From the start of a document to its end; taken back if it does not come to that.
class Document {
public:
    Document(CDC& dc, LPCSTR pszName, LPCSTR pszOutput) : m_dc(dc), m_pszOutput(pszOutput) {
        DOCINFO doc{};
        doc.cbSize = sizeof(doc);
        doc.lpszDocName = pszName;
        doc.lpszOutput = pszOutput;
        m_bOpen = m_dc.StartDoc(&doc) > 0;
    }
    ~Document() {
        if (m_bOpen) {
            m_dc.AbortDoc();
            if (m_pszOutput != nullptr) {
                RemovePart(m_pszOutput);
            }
        }
    }
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    bool IsOpen() const { return m_bOpen; }
    bool End() {
        m_bOpen = m_dc.EndDoc() <= 0;
        return !m_bOpen;
    }

private:
    CDC& m_dc;
    const LPCSTR m_pszOutput;
    bool m_bOpen = false;
};

}  // namespace

void PrintJob(Work& work, CDC& dc, LPCSTR pszName, unsigned nFirst, unsigned nLast,
              LPCSTR pszOutput, const std::function<void(unsigned)>& printPage) {
    const auto check = [&](bool bTaken, LPCSTR pszWhat) {
        if (!bTaken) {
            throw Failed(kErrorPrint,
                         Reason(pszWhat, pszName, SystemReason(::GetLastError(), pszOutput)))
                .release();
        }
    };
    ::SetLastError(NO_ERROR);
    Document document(dc, pszName, pszOutput);
    check(document.IsOpen(), "The printer does not begin a document.");
    for (unsigned nPage = nFirst; nPage <= nLast; ++nPage) {
        work.Step(nPage - nFirst, nLast - nFirst + 1);
        ::SetLastError(NO_ERROR);
        check(dc.StartPage() > 0, "The printer does not begin a page.");
        printPage(nPage);
        check(dc.EndPage() > 0, "The printer does not take a page.");
    }
    ::SetLastError(NO_ERROR);
    check(document.End(), "The printer does not end the document.");
}

CString PrintedText(const Failure& pFailure, unsigned nPages, LPCSTR pszOutput) {
    if (pFailure == nullptr) {
        const CString strPages = (CountText(nPages, "page") + " printed").c_str();
        return pszOutput != nullptr ? strPages + " to " + pszOutput : strPages;
    }
    return WasCancelled(pFailure) ? "Printing was cancelled." : pFailure->Text();
}

void MakePrintFont(CFont& font, CDC& dc, int nPoints, int nWeight, LPCSTR pszFace) {
    const int nHeight = -::MulDiv(nPoints, dc.GetDeviceCaps(LOGPIXELSY), 72);
    font.CreateFont(nHeight, 0, 0, 0, nWeight, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                    OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                    DEFAULT_PITCH | FF_DONTCARE, pszFace);
}
