#include "pages/printing.h"

#include <algorithm>

PrinterChoice::PrinterChoice(CWnd* pParent)
    : CPrintDialog(FALSE, PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOSELECTION, pParent) {}

PrinterChoice::~PrinterChoice() {
    ::GlobalFree(m_pd.hDevMode);
    ::GlobalFree(m_pd.hDevNames);
}

bool PrinterChoice::Ask(unsigned nPages, CDC& dc) {
    m_pd.nMinPage = 1;
    m_pd.nMaxPage = static_cast<WORD>(std::clamp(nPages, 1u, 0xFFFFu));
    m_pd.nFromPage = 1;
    m_pd.nToPage = m_pd.nMaxPage;
    if (DoModal() != IDOK) {
        return false;
    }
    if (!dc.Attach(GetPrinterDC())) {
        AfxMessageBox("There is no printer to print on.", MB_ICONEXCLAMATION);
        return false;
    }
    dc.m_bPrinting = TRUE;
    return true;
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

unsigned PrinterChoice::FirstPage() const {
    return PrintRange() ? static_cast<unsigned>(GetFromPage()) : 1;
}

unsigned PrinterChoice::LastPage() const {
    return PrintRange() ? static_cast<unsigned>(GetToPage()) : ~0u;
}

bool OpenDefaultPrinter(CWnd* pParent, CDC& dc, int nPaper) {
    PrinterChoice printer(pParent);
    if (!printer.GetDefaults()) {
        return false;
    }
    printer.UsePaper(nPaper);
    if (!dc.Attach(printer.CreatePrinterDC())) {
        return false;
    }
    dc.m_bPrinting = TRUE;
    return true;
}

bool PrintJob(CDC& dc, LPCSTR pszName, unsigned nFirst, unsigned nLast, LPCSTR pszOutput,
              const std::function<void(unsigned)>& printPage) {
    DOCINFO doc{};
    doc.cbSize = sizeof(doc);
    doc.lpszDocName = pszName;
    doc.lpszOutput = pszOutput;
    bool bDone = dc.StartDoc(&doc) > 0;
    for (unsigned nPage = nFirst; bDone && nPage <= nLast; ++nPage) {
        bDone = dc.StartPage() > 0;
        if (bDone) {
            printPage(nPage);
            bDone = dc.EndPage() > 0;
        }
    }
    if (bDone) {
        return dc.EndDoc() > 0;
    }
    dc.AbortDoc();
    return false;
}

void MakePrintFont(CFont& font, CDC& dc, int nPoints, int nWeight, LPCSTR pszFace) {
    const int nHeight = -::MulDiv(nPoints, dc.GetDeviceCaps(LOGPIXELSY), 72);
    font.CreateFont(nHeight, 0, 0, 0, nWeight, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                    OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                    DEFAULT_PITCH | FF_DONTCARE, pszFace);
}
