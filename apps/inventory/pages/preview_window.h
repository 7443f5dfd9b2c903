// PreviewWindow: one page of a report as it will come out of the printer, scaled: by the window's
// width, or so that the whole page shows, or by a percentage. Until something is chosen it is the
// width, or the size on paper where the width would be too small to be read.
//
// Keys: Page Up and Down scroll by the window and go on to other pages, Home and End go to the
// first and the last one, the arrows scroll, plus and minus zoom, star is the page's width and
// slash the whole page.

#pragma once

#include "model/find_rows.h"
#include "pages/report.h"

#include <functional>

class PreviewWindow : public CWnd {
public:
    enum class Scale { Width, Whole, Percent };

    BOOL Create(CWnd* pParent, UINT nID);
    // Null shows nothing. Not owned; device is the context that the report was laid out for. What
    // is in view stays, as far as the report goes.
    void SetReport(Report* pReport, CDC* pDevice);
    // Called when another page or another scale is shown.
    void SetChanged(std::function<void()> changed) { m_changed = std::move(changed); }

    unsigned PageShown() const { return m_nPage; }
    // From its top.
    void ShowPage(unsigned nPage);
    // Whole and Width follow the window's size.
    void Fit(Scale scale);
    void Zoom(bool bIn);
    bool CanZoom(bool bIn) const;
    int Percent() const { return m_nPercent; }
    Scale ScaleShown() const { return m_scale; }

    // Shows and marks the next place that matches, as the pages show their texts, behind what was
    // found before: on the page shown, or on the next that has one. The number of the page from 0.
    using Matches = std::function<bool(const std::wstring& strPiece, size_t& nAt, size_t& nEnd)>;
    FoundRow Find(const Matches& matches, bool bDown);

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
    CSize SheetSize(int nPercent) const;  // in pixels
    CSize Room(bool bVertBar) const;      // of the window without bars, or with the vertical one
    int FittingPercent() const;
    void FitBars();
    bool Scroll(int nBar, UINT nCode);
    void ScrollTo(int nBar, int nPos);
    void Turn(bool bDown);
    void DrawSheet();
    // In the order in which they are read, in units of the device.
    std::vector<CRect> Places(unsigned nPage, const Matches& matches);
    CRect OnSheet(const CRect& rc, CSize sheet) const;
    void Mark(const CRect& rc);

    Report* m_pReport = nullptr;
    CDC* m_pDevice = nullptr;
    std::function<void()> m_changed = [] {};
    unsigned m_nPage = 1;
    int m_nPercent = 100;
    Scale m_scale = Scale::Width;
    bool m_bChosen = false;  // the scale, by the user
    bool m_bFitting = false;
    CPoint m_kept;       // where the bars were, while there is no report
    CBitmap m_bmpSheet;  // the page at the present scale, drawn once
    bool m_bDrawn = false;
    CRect m_rcFound{0, 0, 0, 0};  // on the page shown, in units of the device
};
