// How an edit's text prints.
#include "afx/documents/edit_view.h"

#include "afx/values/wide_text.h"

#include <afxext.h>

#include <algorithm>

BOOL CEditView::OnPreparePrinting(CPrintInfo* pInfo) {
    return DoPreparePrinting(pInfo);
}

void CEditView::SetPrinterFont(CFont* pFont) {
    m_hPrinterFont = pFont != nullptr ? static_cast<HFONT>(*pFont) : nullptr;
}

CFont* CEditView::GetPrinterFont() const {
    return CFont::FromHandle(m_hPrinterFont);
}

void CEditView::OnBeginPrinting(CDC* pDC, CPrintInfo*) {
    m_aPageStart.assign(1, 0);
    if (m_hPrinterFont == nullptr) {
        LOGFONT font{};
        CFont* pFont = GetFont();
        if (pFont == nullptr || !pFont->GetLogFont(&font)) {
            ::GetObject(::GetStockObject(SYSTEM_FONT), sizeof font, &font);
        }
        const CClientDC screen(this);
        font.lfHeight = ::MulDiv(font.lfHeight, pDC->GetDeviceCaps(LOGPIXELSY),
                                 screen.GetDeviceCaps(LOGPIXELSY));
        font.lfWidth = 0;
        m_mirrorFont.CreateFontIndirect(&font);
    }
}

void CEditView::OnPrepareDC(CDC* pDC, CPrintInfo* pInfo) {
    CCtrlView::OnPrepareDC(pDC, pInfo);
    if (pInfo == nullptr) {
        return;
    }
    pDC->SelectObject(m_hPrinterFont != nullptr ? CFont::FromHandle(m_hPrinterFont)
                                                : &m_mirrorFont);
    // Pages are known as far as they were laid out; the next one follows where there is text left.
    const size_t nPage = pInfo->m_nCurPage;
    while (m_aPageStart.size() < nPage && m_aPageStart.back() < GetBufferLength()) {
        CRect rect(0, 0, pDC->GetDeviceCaps(HORZRES), pDC->GetDeviceCaps(VERTRES));
        pDC->SaveDC();
        pDC->IntersectClipRect(0, 0, 0, 0);
        m_aPageStart.push_back(PrintInsideRect(pDC, rect, m_aPageStart.back(), GetBufferLength()));
        pDC->RestoreDC(-1);
    }
    pInfo->m_bContinuePrinting =
        nPage == 1 || (m_aPageStart.size() >= nPage && m_aPageStart[nPage - 1] < GetBufferLength());
}

void CEditView::OnPrint(CDC* pDC, CPrintInfo* pInfo) {
    const size_t nPage = pInfo->m_nCurPage;
    if (nPage == 0 || nPage > m_aPageStart.size()) {
        return;
    }
    CRect rect(pInfo->m_rectDraw);
    const UINT nEnd = PrintInsideRect(pDC, rect, m_aPageStart[nPage - 1], GetBufferLength());
    if (nPage == m_aPageStart.size()) {
        m_aPageStart.push_back(nEnd);
    } else {
        m_aPageStart[nPage] = nEnd;
    }
    if (nEnd >= GetBufferLength()) {
        pInfo->SetMaxPage(pInfo->m_nCurPage);
    }
}

void CEditView::OnEndPrinting(CDC*, CPrintInfo*) {
    m_aPageStart.clear();
    m_mirrorFont.DeleteObject();
}

UINT CEditView::PrintInsideRect(CDC* pDC, RECT& rectLayout, UINT nIndexStart, UINT nIndexStop) {
    const CString strText = Text();
    TEXTMETRIC tm{};
    pDC->GetTextMetrics(&tm);
    const int nLineHeight = std::max<int>(tm.tmHeight + tm.tmExternalLeading, 1);
    const int nWidth = std::max<int>(rectLayout.right - rectLayout.left, 1);
    // Units of dialogs are quarters of an average character.
    int nTabWidth = std::max<int>(m_nTabStops * tm.tmAveCharWidth / 4, 1);
    const int nStop = std::min(static_cast<int>(nIndexStop), strText.GetLength());
    int nByte = static_cast<int>(nIndexStart);
    int y = rectLayout.top;
    while (nByte < nStop && y + nLineHeight <= rectLayout.bottom) {
        int nEnd = strText.Find('\n', nByte);
        nEnd = nEnd < 0 || nEnd > nStop ? nStop : nEnd;
        const bool bBreak = nEnd < nStop;
        const int nLine = nEnd - nByte - (nEnd > nByte && strText[nEnd - 1] == '\r' ? 1 : 0);
        // As many characters as fit, or one.
        const CString strLine = strText.Mid(nByte, nLine);
        int nTake = 0;
        while (nTake < nLine) {
            const int nNext =
                nTake + AfxCharBytes(static_cast<LPCSTR>(strLine) + nTake, nLine - nTake);
            if (nTake > 0 && pDC->GetTabbedTextExtent(strLine, nNext, 1, &nTabWidth).cx > nWidth) {
                break;
            }
            nTake = nNext;
        }
        const bool bWrapped = nTake < nLine;
        pDC->TabbedTextOut(rectLayout.left, y, strLine, nTake, 1, &nTabWidth, rectLayout.left);
        y += nLineHeight;
        nByte = bWrapped ? nByte + nTake : nEnd + (bBreak ? 1 : 0);
    }
    rectLayout.bottom = y;
    return static_cast<UINT>(nByte);
}
