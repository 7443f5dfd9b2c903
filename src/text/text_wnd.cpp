#include "text/text_wnd.h"

#include "frame/create_window.h"
#include "frame/module_state.h"
#include "frame/out_of_memory.h"
#include "frame/select_object.h"
#include "frame/text_out.h"
#include "text/text_wnd_measure.h"

#include <afxext.h>

#include <algorithm>

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
    ON_WM_MOUSEWHEEL()
    ON_WM_LBUTTONDOWN()
    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()
END_MESSAGE_MAP()

// --- Life

QVTextWnd::QVTextWnd()
    : m_crBk(::GetSysColor(COLOR_WINDOW)),
      m_pMeasure(qv::AsMemoryException([this] { return std::make_unique<Measure>(*this); })) {
    qv::AsMemoryException([this] { Windows().push_back(this); });
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
    return qv::CreateWhole(*this, [&] {
        return CWnd::Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, rc, pParent, nID,
                            nullptr);
    });
}

BOOL QVTextWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (m_bBorder || (cs.style & WS_BORDER) != 0) {
        cs.dwExStyle |= WS_EX_CLIENTEDGE;
        cs.style &= ~WS_BORDER;
    }
    return CWnd::PreCreateWindow(cs);
}

int QVTextWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    int bInitialized = 0;
    qv::MemorySuffices([&] {
        if (CWnd::OnCreate(lpCreateStruct) != -1) {
            const auto nID = static_cast<UINT>(reinterpret_cast<UINT_PTR>(lpCreateStruct->hMenu));
            bInitialized = Initialize(nID, CWnd::FromHandle(lpCreateStruct->hwndParent), m_bBorder);
        }
    });
    return bInitialized ? 0 : -1;
}

int QVTextWnd::Initialize(UINT nID, CWnd* pParent, int bBorder) {
    bool bDone = false;
    qv::MemorySuffices([&] {
        if (m_hWnd == nullptr) {
            bDone = ReplaceControl(nID, pParent, bBorder);
        } else if (MeasureFont()) {
            CalculateScrollBars();
            bDone = AddStyle(::GetSysColor(COLOR_WINDOWTEXT), m_crBk) != -1;
        }
    });
    return bDone;
}

// The control goes when the window that takes its place is there.
bool QVTextWnd::ReplaceControl(UINT nID, CWnd* pParent, int bBorder) {
    const HWND hPlace =
        pParent != nullptr ? ::GetDlgItem(pParent->m_hWnd, static_cast<int>(nID)) : nullptr;
    if (hPlace == nullptr) {
        return false;
    }
    CRect rc;
    ::GetWindowRect(hPlace, &rc);
    pParent->ScreenToClient(&rc);
    if (!Create(rc, pParent, nID, bBorder)) {
        return false;
    }
    ::ShowWindow(hPlace, SW_HIDE);
    ::DestroyWindow(hPlace);
    return true;
}

bool QVTextWnd::MeasureFont() {
    CFont font;
    if (!CreateDisplayFont(font)) {
        return false;
    }
    m_pMeasure->font.SetFont(static_cast<HFONT>(font.GetSafeHandle()));
    m_rows.Forget();
    const FontScope scope(*this, font);
    CClientDC dc(this);
    const qv::SelectGuard<CFont> selected(dc, &font);
    const CSize size = qv::TextExtent(dc, "O");
    m_nCharWidth = size.cx;
    m_nCharHeight = size.cy;
    return m_nCharWidth != 0 && m_nCharHeight != 0;
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

const char* QVTextWnd::GetLineText(int nLine) const {
    const char* pszLine = GetLine(nLine);
    return pszLine != nullptr ? pszLine + qv::kLineCodeBytes : nullptr;
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
    int bRead = 0;
    qv::MemorySuffices([&] {
        CStdioFile file;
        if (file.Open(pszPath, CFile::modeRead | CFile::typeText | CFile::shareDenyNone)) {
            bRead = LoadFile(file, nStyle);
        }
    });
    return bRead;
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
    bool bRead = false;
    try {
        bRead = qv::MemorySuffices([&] {
            ClearTextData();
            file.SeekToBegin();
            for (CString strLine; file.ReadString(strLine);) {
                // A line ends at its end, not at a zero; CString itself does not find zeros.
                const int nLength = strLine.GetLength();
                char* pText = strLine.GetBuffer();
                std::replace(pText, pText + nLength, '\0', ' ');
                strLine.ReleaseBuffer(nLength);
                if (AddText(strLine, nStyle) == -1) {
                    throw std::bad_alloc();
                }
            }
            CalcLayout();
        });
    } catch (CFileException* pException) {
        pException->Delete();
    }
    return bRead;
}

void QVTextWnd::SetBkColor(COLORREF cr) {
    m_crBk = cr;
    if (m_aStyles.Count() > 0) {
        m_aStyles.Update(0, m_aStyles[0].crText, cr);
    }
}

// --- Out of the window

int QVTextWnd::ExportData(const char* pszPath) {
    int bWritten = 0;
    qv::MemorySuffices([&] {
        CStdioFile file;
        if (!file.Open(pszPath, CFile::modeCreate | CFile::modeWrite | CFile::typeText)) {
            return;
        }
        for (int nLine = 0; nLine < NumLines(); ++nLine) {
            file.WriteString(qv::LineText(m_aStyles, GetLine(nLine)));
            file.WriteString("\n");
        }
        file.Close();
        bWritten = 1;
    });
    return bWritten;
}

int QVTextWnd::CopyToClipboard() {
    constexpr std::string_view kLineEnd = "\r\n";
    size_t nBytes = kLineEnd.size() + 1;
    for (int nLine = 0; nLine < NumLines(); ++nLine) {
        nBytes += strlen(qv::LineText(m_aStyles, GetLine(nLine))) + kLineEnd.size();
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
        append(qv::LineText(m_aStyles, GetLine(nLine)));
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
    qv::MemorySuffices([&] {
        qv::DcMeasure measure(*pDC);
        std::vector<int> starts;
        qv::TextSplitter(measure).Split(qv::View(strText), nWidth, starts);
        aStarts.SetSize(static_cast<INT_PTR>(starts.size()));
        for (size_t i = 0; i < starts.size(); ++i) {
            aStarts[static_cast<INT_PTR>(i)] = starts[i];
        }
    });
}

void QVTextWnd::AddPrintLine(int nLine, int nSubLine) {
    qv::MemorySuffices([&] { m_print.Add(nLine, nSubLine); });
}

void QVTextWnd::SetPrintAreaSize(const CSize& size) {
    m_print.m_sizePrintArea = {static_cast<int>(size.cx), static_cast<int>(size.cy)};
}

void QVTextWnd::FormatText(CDC* pDC, const CSize& sizeArea) {
    qv::MemorySuffices([&] { FormatPrint(*pDC, sizeArea); });
}

void QVTextWnd::FormatPrint(CDC& dc, const CSize& sizeArea) {
    QVTextWnd* pPartner = m_pSyncWnd;
    qv::PrintRows own;
    qv::PrintRows other;
    const int nHeight = qv::TextExtent(dc, " ").cy;
    own.m_sizePrintArea = {static_cast<int>(sizeArea.cx), static_cast<int>(sizeArea.cy)};
    own.m_nLinesPerPage = nHeight > 0 ? sizeArea.cy / nHeight : 0;
    qv::DcMeasure measure(dc);
    qv::TextSplitter splitter(measure);
    qv::FormatPrintRows(m_lines, own, pPartner != nullptr ? &pPartner->m_lines : nullptr,
                        pPartner != nullptr ? &other : nullptr, m_aStyles, splitter);
    own.m_nNumPages = own.PagesNeeded();
    if (pPartner != nullptr) {
        other.m_sizePrintArea = own.m_sizePrintArea;
        other.m_nLinesPerPage = own.m_nLinesPerPage;
        other.m_nNumPages = own.m_nNumPages;
        pPartner->m_print.SwapLayout(other);
    }
    m_print.SwapLayout(own);
}

int QVTextWnd::GetPrintRow(int nRow, CString& strText, int& nStyle, int& nLine) {
    bool bRow = false;
    qv::MemorySuffices([&] {
        qv::PrintedRow row;
        if (m_print.Row(nRow, m_lines, m_aStyles, row)) {
            strText = CString(row.strText.data(), static_cast<int>(row.strText.size()));
            nStyle = row.nStyle;
            nLine = row.nLine;
            bRow = true;
        }
    });
    return bRow;
}

namespace {

// Hands a row out in the caller's variables; only the text changes where there is none.
template <class Read>
int GiveRow(CDC* pDC, CString& strText, int& nStyle, int& nLine, Read read) {
    bool bRow = false;
    qv::MemorySuffices([&] {
        qv::DcMeasure measure(*pDC);
        qv::TextSplitter splitter(measure);
        qv::PrintedRow row{std::string(qv::View(strText)), nStyle, nLine};
        const bool bRead = read(splitter, row);
        strText = CString(row.strText.data(), static_cast<int>(row.strText.size()));
        nStyle = row.nStyle;
        nLine = row.nLine;
        bRow = bRead;
    });
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
