// Pages of a print preview: drawn once for the printer, shown at any scale. Internal to the
// framework.
#pragma once

#include <afxwin.h>

/// A printer's context that somebody else deletes, for pages to be recorded on. A recording is
/// played for another device, so it gets no measure that depends on one: each mapping becomes the
/// extents that it has on the printer.
class AfxPreviewDC : public CDC {
public:
    ~AfxPreviewDC() override { Detach(); }

    int SetMapMode(int nMapMode) override;
    CSize SetViewportExt(int cx, int cy) override;
    CSize SetWindowExt(int cx, int cy) override;
    using CDC::SetViewportExt;
    using CDC::SetWindowExt;
    /// Makes the output's mapping that of the printer.
    void FollowMapping();
};

/// Between the two, what is drawn on a printer's context becomes a page instead: measures are the
/// printer's, so that everything lies where it will lie on paper. Each page begins with the
/// context as it was before the first one.
class AfxPageRecording {
public:
    explicit AfxPageRecording(AfxPreviewDC& dcPrinter);
    ~AfxPageRecording();
    AfxPageRecording(const AfxPageRecording&) = delete;
    AfxPageRecording& operator=(const AfxPageRecording&) = delete;

    /// False if the printer has gone, or there is no memory.
    bool Stands() const { return m_hRecorder != nullptr; }
    /// The caller's; null on failure.
    HENHMETAFILE Close();

private:
    AfxPreviewDC& m_dc;
    const HDC m_hPrinter;
    const int m_nSaved;
    HDC m_hRecorder;
};

/// One page, which may be empty.
class AfxPreviewPage {
public:
    AfxPreviewPage() = default;
    ~AfxPreviewPage();
    AfxPreviewPage(AfxPreviewPage&& other) noexcept;
    AfxPreviewPage& operator=(AfxPreviewPage&& other) noexcept;
    /// Owns the drawing; null is a page on which nothing stands.
    AfxPreviewPage(UINT nPage, HENHMETAFILE hDrawing);

    UINT Number() const { return m_nPage; }  ///< 0: no page
    /// rc: the printable area on hDC, in pixels; nothing is drawn outside, but for the edge of a
    /// pixel that the last ones on paper fall on.
    void Play(HDC hDC, const RECT& rc) const;

private:
    UINT m_nPage = 0;
    HENHMETAFILE m_hDrawing = nullptr;
};
