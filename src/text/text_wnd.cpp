#include "text/text_wnd.h"

#include <afxext.h>

#include <algorithm>

#include "frame/module_state.h"
#include "frame/select_object.h"
#include "frame/text_out.h"
#include "text/text_wnd_measure.h"

namespace {

// All text windows of the thread, so that one that goes can end pairings with it. Never freed:
// global objects may be windows until the process ends.
std::vector<QVTextWnd*>& Windows() {
    static thread_local auto* pWindows = new std::vector<QVTextWnd*>;
    return *pWindows;
}

}  // namespace

IMPLEMENT_DYNCREATE(QVTextWnd, CWnd)

BEGIN_MESSAGE_MAP(QVTextWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_WM_PAINT()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_LBUTTONDOWN()
    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()
END_MESSAGE_MAP()

// --- Life

QVTextWnd::QVTextWnd()
    : m_crBk(::GetSysColor(COLOR_WINDOW)), m_pMeasure(std::make_unique<Measure>()) {
    Windows().push_back(this);
}

QVTextWnd::~QVTextWnd() {
    std::erase(Windows(), this);
    for (QVTextWnd* pWindow : Windows()) {
        if (pWindow->m_pSyncWnd == this) {
            pWindow->m_pSyncWnd = nullptr;
        }
    }
    DestroyWindow();
}

int QVTextWnd::CreateDisplayFont(CFont& font) {
    return font.CreateStockObject(DEFAULT_GUI_FONT);
}

// The stock font is the system's: it is only let go of.
void QVTextWnd::CleanupDisplayFont(CFont& font) {
    font.Detach();
}

int QVTextWnd::Create(CRect& rc, CWnd* pParent, UINT nID, int bBorder) {
    m_bBorder = bBorder;
    return CWnd::Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, rc, pParent, nID, nullptr);
}

BOOL QVTextWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (m_bBorder || (cs.style & WS_BORDER) != 0) {
        cs.dwExStyle |= WS_EX_CLIENTEDGE;
        cs.style &= ~WS_BORDER;
    }
    return CWnd::PreCreateWindow(cs);
}

int QVTextWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1) {
        return -1;
    }
    const auto nID = static_cast<UINT>(reinterpret_cast<UINT_PTR>(lpCreateStruct->hMenu));
    return Initialize(nID, CWnd::FromHandle(lpCreateStruct->hwndParent), m_bBorder) ? 0 : -1;
}

int QVTextWnd::Initialize(UINT nID, CWnd* pParent, int bBorder) {
    if (m_hWnd == nullptr) {
        m_bBorder = bBorder;
        CWnd* pPlace = pParent != nullptr ? pParent->GetDlgItem(static_cast<int>(nID)) : nullptr;
        if (pPlace == nullptr) {
            return 0;
        }
        CRect rc;
        pPlace->GetWindowRect(&rc);
        pParent->ScreenToClient(&rc);
        pPlace->ShowWindow(SW_HIDE);
        pPlace->DestroyWindow();
        return Create(rc, pParent, nID, bBorder);
    }
    CFont font;
    if (!CreateDisplayFont(font)) {
        return 0;
    }
    m_pMeasure->font.SetFont(static_cast<HFONT>(font.GetSafeHandle()));
    m_rows.Forget();
    {
        CClientDC dc(this);
        const qv::SelectGuard<CFont> selected(dc, &font);
        const CSize size = qv::TextExtent(dc, "O");
        m_nCharWidth = size.cx;
        m_nCharHeight = size.cy;
    }
    CleanupDisplayFont(font);
    if (m_nCharWidth == 0 || m_nCharHeight == 0) {
        return 0;
    }
    CalculateScrollBars();
    return AddStyle(::GetSysColor(COLOR_WINDOWTEXT), m_crBk) != -1;
}

void QVTextWnd::OnDestroy() {
    CWnd::OnDestroy();
    m_bHScrollBar = m_bVScrollBar = 0;
}

// --- Text

int QVTextWnd::AddText(const char* pszText, int nStyle) {
    const int nLines = m_lines.Add(pszText != nullptr ? pszText : "", nStyle);
    if (nLines != -1) {
        const size_t nLength = pszText != nullptr ? strlen(pszText) : 0;
        m_nMaxLineLength = std::max(m_nMaxLineLength, static_cast<int>(nLength));
        m_nNumRows = std::max(m_nNumRows, nLines);
    }
    return nLines;
}

const char* QVTextWnd::GetLine(int nLine) const {
    return m_lines.Line(nLine);
}

void QVTextWnd::ClearTextData() {
    m_nHScrollPos = m_nVScrollPos = 0;
    m_nMaxLineLength = m_nNumRows = 0;
    m_bHScrollBar = m_bVScrollBar = 0;
    m_lines.Clear();
    if (m_hWnd != nullptr) {
        ShowScrollBar(SB_HORZ, m_pSyncWnd != nullptr);
        ShowScrollBar(SB_VERT, FALSE);
        InvalidateRect(nullptr, FALSE);
    }
}

int QVTextWnd::LoadFile(const char* pszPath, int nStyle) {
    const CWaitCursor wait;
    CStdioFile file;
    if (!file.Open(pszPath, CFile::modeRead | CFile::typeText | CFile::shareDenyNone)) {
        return 0;
    }
    return LoadFile(file, nStyle);
}

int QVTextWnd::LoadFile(CStdioFile& file, int nStyle) {
    const CWaitCursor wait;
    const bool bRead = ReadLines(file, nStyle);
    if (m_hWnd != nullptr) {
        m_nHScrollPos = m_nVScrollPos = 0;
        CalculateScrollBars();
        InvalidateRect(nullptr, FALSE);
    }
    return bRead;
}

// What was read before a fault stays.
bool QVTextWnd::ReadLines(CStdioFile& file, int nStyle) {
    try {
        ClearTextData();
        file.SeekToBegin();
        for (CString strLine; file.ReadString(strLine);) {
            // A line ends at its end, not at a zero; CString itself does not find zeros.
            const int nLength = strLine.GetLength();
            char* pText = strLine.GetBuffer();
            std::replace(pText, pText + nLength, '\0', ' ');
            strLine.ReleaseBuffer(nLength);
            if (AddText(strLine, nStyle) == -1) {
                return false;
            }
        }
        CalcLayout();
        return true;
    } catch (CFileException* pException) {
        pException->Delete();
    } catch (CMemoryException* pException) {
        pException->Delete();
    } catch (const std::bad_alloc&) {
    }
    return false;
}

void QVTextWnd::SetBkColor(COLORREF cr) {
    m_crBk = cr;
    if (m_aStyles.Count() > 0) {
        m_aStyles.Update(0, m_aStyles[0].crText, cr);
    }
}

// --- Out of the window

int QVTextWnd::ExportData(const char* pszPath) {
    CStdioFile file;
    if (!file.Open(pszPath, CFile::modeCreate | CFile::modeWrite | CFile::typeText)) {
        return 0;
    }
    for (int nLine = 0; nLine < NumLines(); ++nLine) {
        file.WriteString(ParseStyleText(GetLine(nLine)));
        file.WriteString("\n");
    }
    file.Close();
    return 1;
}

int QVTextWnd::CopyToClipboard() {
    constexpr std::string_view kLineEnd = "\r\n";
    size_t nBytes = kLineEnd.size() + 1;
    for (int nLine = 0; nLine < NumLines(); ++nLine) {
        nBytes += strlen(ParseStyleText(GetLine(nLine))) + kLineEnd.size();
    }
    const HGLOBAL hText = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_DDESHARE, nBytes);
    auto* pText = static_cast<char*>(hText != nullptr ? ::GlobalLock(hText) : nullptr);
    if (pText == nullptr) {
        ::GlobalFree(hText);
        return 0;
    }
    const auto append = [&pText](std::string_view text) {
        pText = std::copy(text.begin(), text.end(), pText);
    };
    for (int nLine = 0; nLine < NumLines(); ++nLine) {
        append(ParseStyleText(GetLine(nLine)));
        append(kLineEnd);
    }
    append(kLineEnd);
    *pText = '\0';
    ::GlobalUnlock(hText);
    return qv::GiveToClipboard(*this, hText);
}

// --- Printing

void QVTextWnd::SplitTextLines(CDC* pDC, int nWidth, const CString& strText,
                               CArray<int, int>& aStarts) {
    qv::DcMeasure measure(*pDC);
    std::vector<int> starts;
    qv::TextSplitter(measure).Split(qv::View(strText), nWidth, starts);
    aStarts.RemoveAll();
    for (const int nStart : starts) {
        aStarts.Add(nStart);
    }
}

void QVTextWnd::SetPrintAreaSize(const CSize& size) {
    m_print.m_sizePrintArea = {static_cast<int>(size.cx), static_cast<int>(size.cy)};
}

void QVTextWnd::FormatText(CDC* pDC, const CSize& sizeArea) {
    QVTextWnd* pPartner = m_pSyncWnd;
    ClearPrintData();
    SetPrintAreaSize(sizeArea);
    const int nHeight = qv::TextExtent(*pDC, " ").cy;
    SetLinesPerPage(nHeight > 0 ? sizeArea.cy / nHeight : 0);
    if (pPartner != nullptr) {
        pPartner->ClearPrintData();
        pPartner->SetPrintAreaSize(sizeArea);
        pPartner->SetLinesPerPage(m_print.m_nLinesPerPage);
    }
    qv::DcMeasure measure(*pDC);
    qv::TextSplitter splitter(measure);
    try {
        qv::FormatPrintRows(m_lines, m_print, pPartner != nullptr ? &pPartner->m_lines : nullptr,
                            pPartner != nullptr ? &pPartner->m_print : nullptr, m_aStyles,
                            splitter);
    } catch (const std::bad_alloc&) {
        // The rows that there is memory for are printed.
    }
    const int nPages = m_print.PagesNeeded();
    if (nPages > 0) {
        SetNumPages(nPages);
        if (pPartner != nullptr) {
            pPartner->SetNumPages(nPages);
        }
    }
}

namespace {

// Hands a row out in the caller's variables; only the text changes where there is none.
template <class Read>
int GiveRow(CDC* pDC, CString& strText, int& nStyle, int& nLine, Read read) {
    qv::DcMeasure measure(*pDC);
    qv::TextSplitter splitter(measure);
    qv::PrintedRow row{std::string(qv::View(strText)), nStyle, nLine};
    const bool bRow = read(splitter, row);
    strText = CString(row.strText.data(), static_cast<int>(row.strText.size()));
    nStyle = row.nStyle;
    nLine = row.nLine;
    return bRow;
}

}  // namespace

int QVTextWnd::StartPage(CDC* pDC, CPrintInfo* pInfo, CString& strText, int& nStyle, int& nLine) {
    return GiveRow(pDC, strText, nStyle, nLine,
                   [&](qv::TextSplitter& splitter, qv::PrintedRow& row) {
                       return m_print.StartPage(static_cast<int>(pInfo->m_nCurPage), m_lines,
                                                m_aStyles, splitter, row);
                   });
}

int QVTextWnd::NextLine(CDC* pDC, CPrintInfo* pInfo, CString& strText, int& nStyle, int& nLine) {
    return GiveRow(pDC, strText, nStyle, nLine,
                   [&](qv::TextSplitter& splitter, qv::PrintedRow& row) {
                       return m_print.NextLine(static_cast<int>(pInfo->m_nCurPage), m_lines,
                                               m_aStyles, splitter, row);
                   });
}

int QVTextWnd::GetCurrentLine(CDC* pDC, CString& strText, int& nStyle, int& nLine) {
    return GiveRow(pDC, strText, nStyle, nLine,
                   [&](qv::TextSplitter& splitter, qv::PrintedRow& row) {
                       return m_print.CurrentLine(m_lines, m_aStyles, splitter, row);
                   });
}
