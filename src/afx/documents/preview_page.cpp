#include "afx/documents/preview_page.h"

#include "afx/drawing/owned_handles.h"

#include <utility>

namespace {

/// What OnBeginPrinting may have set for all pages.
void CopyState(HDC hFrom, HDC hTo) {
    for (const UINT nType : {OBJ_FONT, OBJ_PEN, OBJ_BRUSH}) {
        ::SelectObject(hTo, ::GetCurrentObject(hFrom, nType));
    }
    ::SetTextColor(hTo, ::GetTextColor(hFrom));
    ::SetBkColor(hTo, ::GetBkColor(hFrom));
    ::SetBkMode(hTo, ::GetBkMode(hFrom));
    ::SetTextAlign(hTo, ::GetTextAlign(hFrom));
    POINT pt;
    ::GetWindowOrgEx(hFrom, &pt);
    ::SetWindowOrgEx(hTo, pt.x, pt.y, nullptr);
    ::GetViewportOrgEx(hFrom, &pt);
    ::SetViewportOrgEx(hTo, pt.x, pt.y, nullptr);
}

HDC NewRecorder(HDC hPrinter) {
    constexpr int kPerMillimetre = 100;
    const RECT rcFrame = {0, 0, ::GetDeviceCaps(hPrinter, HORZSIZE) * kPerMillimetre,
                          ::GetDeviceCaps(hPrinter, VERTSIZE) * kPerMillimetre};
    return ::CreateEnhMetaFile(hPrinter, nullptr, &rcFrame, nullptr);
}

}  // namespace

void AfxPreviewDC::FollowMapping() {
    if (m_hDC == m_hAttribDC) {
        return;
    }
    SIZE size;
    ::SetMapMode(m_hDC, MM_ANISOTROPIC);
    ::GetWindowExtEx(m_hAttribDC, &size);
    ::SetWindowExtEx(m_hDC, size.cx, size.cy, nullptr);
    ::GetViewportExtEx(m_hAttribDC, &size);
    ::SetViewportExtEx(m_hDC, size.cx, size.cy, nullptr);
}

int AfxPreviewDC::SetMapMode(int nMapMode) {
    const int nOld = ::SetMapMode(m_hAttribDC, nMapMode);
    FollowMapping();
    return nOld;
}

CSize AfxPreviewDC::SetViewportExt(int cx, int cy) {
    SIZE size = {};
    ::SetViewportExtEx(m_hAttribDC, cx, cy, &size);
    FollowMapping();
    return size;
}

CSize AfxPreviewDC::SetWindowExt(int cx, int cy) {
    SIZE size = {};
    ::SetWindowExtEx(m_hAttribDC, cx, cy, &size);
    FollowMapping();
    return size;
}

AfxPageRecording::AfxPageRecording(AfxPreviewDC& dcPrinter)
    : m_dc(dcPrinter),
      m_hPrinter(dcPrinter.m_hDC),
      m_nSaved(::SaveDC(m_hPrinter)),
      m_hRecorder(NewRecorder(m_hPrinter)) {
    if (m_hRecorder != nullptr) {
        CopyState(m_hPrinter, m_hRecorder);
        m_dc.SetOutputDC(m_hRecorder);
        m_dc.FollowMapping();
    }
}

AfxPageRecording::~AfxPageRecording() {
    ::DeleteEnhMetaFile(Close());
    ::RestoreDC(m_hPrinter, m_nSaved);
}

HENHMETAFILE AfxPageRecording::Close() {
    m_dc.SetOutputDC(m_hPrinter);
    return ::CloseEnhMetaFile(std::exchange(m_hRecorder, nullptr));
}

AfxPreviewPage::AfxPreviewPage(UINT nPage, HENHMETAFILE hDrawing)
    : m_nPage(nPage), m_hDrawing(hDrawing) {
    AfxCountOwnedHandle(hDrawing != nullptr ? 1 : 0);
}

AfxPreviewPage::~AfxPreviewPage() {
    if (m_hDrawing != nullptr) {
        ::DeleteEnhMetaFile(m_hDrawing);
        AfxCountOwnedHandle(-1);
    }
}

AfxPreviewPage::AfxPreviewPage(AfxPreviewPage&& other) noexcept {
    *this = std::move(other);
}

AfxPreviewPage& AfxPreviewPage::operator=(AfxPreviewPage&& other) noexcept {
    std::swap(m_nPage, other.m_nPage);
    std::swap(m_hDrawing, other.m_hDrawing);
    return *this;
}

void AfxPreviewPage::Play(HDC hDC, const RECT& rc) const {
    if (m_hDrawing == nullptr) {
        return;
    }
    const int nSaved = ::SaveDC(hDC);
    // The printer's last pixels fall on the one behind the area, by rounding.
    ::IntersectClipRect(hDC, rc.left, rc.top, rc.right + 1, rc.bottom + 1);
    ::PlayEnhMetaFile(hDC, m_hDrawing, &rc);
    ::RestoreDC(hDC, nSaved);
}
