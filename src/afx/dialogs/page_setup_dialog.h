// CPageSetupDialog: paper, margins and printer of a document.
#pragma once

#include "afx/dialogs/dialog.h"

#include <afxdlgs.h>

/// Whoever uses it frees m_psd.hDevMode and m_psd.hDevNames in the end.
class QVAFX_API CPageSetupDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CPageSetupDialog)

public:
    /// dwFlags: PSD_ flags.
    explicit CPageSetupDialog(DWORD dwFlags = PSD_MARGINS | PSD_INWININIINTLMEASURE,
                              CWnd* pParentWnd = nullptr);

    PAGESETUPDLG m_psd;  ///< may be changed before DoModal

    INT_PTR DoModal() override;

    // The answer. Sizes are in the flags' unit: thousandths of an inch or hundredths of a
    // millimetre.
    CSize GetPaperSize() const { return CSize(m_psd.ptPaperSize); }
    /// Either may be null.
    void GetMargins(LPRECT lpRectMargins, LPRECT lpRectMinMargins) const;
    CString GetDeviceName() const;
    CString GetDriverName() const;
    CString GetPortName() const;
    /// Locked: call GlobalUnlock on m_psd.hDevMode afterwards. Null without a printer.
    LPDEVMODE GetDevMode() const;
    HDC CreatePrinterDC();

    // The sample page. Nonzero from the first: nothing of it is drawn; from the other: that part
    // was drawn here.
    virtual UINT PreDrawPage(WORD wPaper, WORD wFlags, LPPAGESETUPDLG pPSD);
    virtual UINT OnDrawPage(CDC* pDC, UINT nMessage, LPRECT lpRect);

private:
    static UINT_PTR CALLBACK PaintHook(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
};
