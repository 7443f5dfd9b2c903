// What the pages that print share: the choice of a printer, and a job from its first to its last
// page.

#pragma once

#include "work.h"

#include <afxdlgs.h>
#include <afxwin.h>

#include <functional>

// Frees what a print dialog hands out beside the device context.
class PrinterChoice : public CPrintDialog {
public:
    explicit PrinterChoice(CWnd* pParent);
    ~PrinterChoice() override;

    // Asks which printer and which of nPages pages, and for the file of a printer that writes to
    // one: pszName without an extension to begin with. False if the user does not want to, or if
    // there is no printer, which is said.
    bool Ask(unsigned nPages, LPCSTR pszName, CDC& dc);
    // Begins with a paper (DMPAPER_) in place of the printer's own; 0 leaves that.
    void UsePaper(int nPaper);
    // Begins with the paper upright or across.
    void UseOrientation(bool bLandscape);
    unsigned FirstPage() const;
    unsigned LastPage() const;
    // The file that the job goes to; null for the printer's own port.
    LPCSTR Output() const { return m_strOutput.IsEmpty() ? nullptr : m_strOutput.GetString(); }

private:
    CString m_strOutput;
};

// The default printer without a question. Null: it is open.
Failure OpenDefaultPrinter(CWnd* pParent, CDC& dc, int nPaper = 0, bool bLandscape = false);

// Prints pages nFirst to nLast, a step of the work each. pszOutput: a file that the job goes to,
// null for the printer's own port. Leaves the work by a status if the printer does not take it:
// where it is left nothing is printed, the job is taken back, and its file is gone.
void PrintJob(Work& work, CDC& dc, LPCSTR pszName, unsigned nFirst, unsigned nLast,
              LPCSTR pszOutput, const std::function<void(unsigned)>& printPage);

// What to say of a job in the status bar: how many pages it was and in which file (null: on paper),
// or why it was none.
CString PrintedText(const Failure& pFailure, unsigned nPages, LPCSTR pszOutput);

// A font by its size in points on a device.
void MakePrintFont(CFont& font, CDC& dc, int nPoints, int nWeight, LPCSTR pszFace = "Tahoma");
