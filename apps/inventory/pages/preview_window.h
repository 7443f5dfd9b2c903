// PreviewWindow: one page of a report as it will come out of the printer, scaled.

#pragma once

#include "pages/report.h"

class PreviewWindow : public CWnd {
public:
    BOOL Create(CWnd* pParent, UINT nID);
    // Null shows nothing. Not owned; device is the context that the report was laid out for.
    void SetReport(Report* pReport, CDC* pDevice);

    unsigned PageShown() const { return m_nPage; }
    void ShowPage(unsigned nPage);
    // As large as the window allows.
    void Fit();
    void Zoom(bool bIn);
    int Percent() const { return m_nPercent; }
    bool Fits() const { return m_bFit; }

protected:
    void PostNcDestroy() override {}

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnHScroll(UINT nCode, UINT nPos, CScrollBar* pBar);
    afx_msg void OnVScroll(UINT nCode, UINT nPos, CScrollBar* pBar);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint pt);
    afx_msg UINT OnGetDlgCode();
    DECLARE_MESSAGE_MAP()

private:
    CSize SheetSize() const;  // in pixels at the present scale
    void FitBars();
    void Scroll(int nBar, UINT nCode);
    void DrawSheet();

    Report* m_pReport = nullptr;
    CDC* m_pDevice = nullptr;
    unsigned m_nPage = 1;
    int m_nPercent = 100;
    bool m_bFit = true;
    CBitmap m_bmpSheet;  // the page at the present scale, drawn once
    bool m_bDrawn = false;
};
