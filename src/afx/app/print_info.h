// What a print job and the pages it prints tell each other.
#pragma once

#include "afx/values/string.h"

#include <atltypes.h>

class CPrintDialog;

/// State of one print job. Owns its dialog, which keeps the page range, and the device context that
/// the dialog holds at the end. Making one asks nothing of the printers.
struct QVAFX_API CPrintInfo {
    CPrintInfo();
    ~CPrintInfo();
    CPrintInfo(const CPrintInfo&) = delete;
    CPrintInfo& operator=(const CPrintInfo&) = delete;

    CPrintDialog* m_pPD;
    BOOL m_bDocObject = FALSE;
    DWORD m_dwFlags = 0;     ///< of a job for a document object
    UINT m_nOffsetPage = 0;  ///< pages of other documents before this one's, in such a job
    BOOL m_bPreview = FALSE;
    BOOL m_bDirect = FALSE;           ///< without a dialog
    BOOL m_bContinuePrinting = TRUE;  ///< set to FALSE to end the job before its last page
    UINT m_nCurPage = 1;              ///< page being printed, in the numbers of the range
    UINT m_nNumPreviewPages = 0;      ///< pages side by side in the preview
    CString m_strPageDesc;            ///< formats for one page and for two, each ended by '\n'
    LPVOID m_lpUserData = nullptr;
    CRect m_rectDraw = CRect(0, 0, 0, 0);  ///< usable part of the page, in logical units

    // The whole document.
    void SetMinPage(UINT nMinPage);
    void SetMaxPage(UINT nMaxPage);
    UINT GetMinPage() const;
    UINT GetMaxPage() const;
    // The part to print: all of the document unless the dialog says otherwise.
    UINT GetFromPage() const;
    UINT GetToPage() const;
    UINT GetOffsetPage() const { return m_nOffsetPage; }
};
