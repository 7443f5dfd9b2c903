// What the pages that print share: the choice of a printer, and a job from its first to its last
// page.

#pragma once

#include <afxdlgs.h>
#include <afxwin.h>

#include <functional>

// Frees what a print dialog hands out beside the device context.
class PrinterChoice : public CPrintDialog {
public:
    explicit PrinterChoice(CWnd* pParent);
    ~PrinterChoice() override;

    // Asks which printer and which of nPages pages. False if the user does not want to, or if there
    // is no printer, which is said.
    bool Ask(unsigned nPages, CDC& dc);
    // Begins with a paper (DMPAPER_) in place of the printer's own; 0 leaves that.
    void UsePaper(int nPaper);
    unsigned FirstPage() const;
    unsigned LastPage() const;
};

// The default printer without a question; false if there is none.
bool OpenDefaultPrinter(CWnd* pParent, CDC& dc, int nPaper = 0);

// Prints pages nFirst to nLast. pszOutput: a file that the job goes to, null for the printer's own
// port. False if the printer does not take it; nothing is printed then.
bool PrintJob(CDC& dc, LPCSTR pszName, unsigned nFirst, unsigned nLast, LPCSTR pszOutput,
              const std::function<void(unsigned)>& printPage);

// A font by its size in points on a device.
void MakePrintFont(CFont& font, CDC& dc, int nPoints, int nWeight, LPCSTR pszFace = "Tahoma");
