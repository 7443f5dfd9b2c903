#include "text/text_wnd.h"

#include "frame/create_window.h"
#include "frame/dc_guards.h"
#include "frame/out_of_memory.h"
#include "frame/text_out.h"
#include "text/text_wnd_core.h"

#include <afxext.h>

#include <algorithm>

IMPLEMENT_DYNCREATE(QVTextWnd, CWnd)

BEGIN_MESSAGE_MAP(QVTextWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_PAINT()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_MOUSEWHEEL()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_CAPTURECHANGED()
    ON_WM_TIMER()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()
    ON_MESSAGE(WM_GETOBJECT, &QVTextWnd::OnGetObject)
END_MESSAGE_MAP()

// --- Life

QVTextWnd::QVTextWnd()
    : QVAccessible(static_cast<CWnd&>(*this)),
      m_crBk(::GetSysColor(COLOR_WINDOW)),
      m_pCore(qv::AsMemoryException([this] { return std::make_unique<Core>(*this); })) {}

// The window's last messages find the core.
QVTextWnd::~QVTextWnd() {
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
    if (m_bBorder) {
        cs.style |= WS_BORDER;
    }
    qv::BorderToClientEdge(cs);
    return CWnd::PreCreateWindow(cs);
}

int QVTextWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    return qv::InitializeOnCreate(
        *lpCreateStruct, [&] { return CWnd::OnCreate(lpCreateStruct); },
        [&](UINT nID, CWnd* pParent) { return Initialize(nID, pParent, m_bBorder); });
}

int QVTextWnd::Initialize(UINT nID, CWnd* pParent, int bBorder) {
    bool bDone = false;
    qv::MemorySuffices([&] {
        if (m_hWnd == nullptr) {
            bDone = ReplaceControl(nID, pParent, bBorder);
        } else if (MeasureFont()) {
            const qv::WindowWatch watch(m_pCore->view.Alive(), m_hWnd);
            CalculateScrollBars();
            bDone = watch && AddDefaultStyle(m_crBk) != -1;
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
    const FontScope scope(font);
    m_pCore->font.SetFont(static_cast<HFONT>(font.GetSafeHandle()));
    m_pCore->view.ForgetWidths();
    CClientDC dc(this);
    const qv::SelectGuard<CFont> selected(dc, &font);
    const CSize size = qv::TextExtent(dc, "O");
    m_nCharWidth = size.cx;
    m_nCharHeight = size.cy;
    return m_nCharWidth != 0 && m_nCharHeight != 0;
}

void QVTextWnd::OnDestroy() {
    CWnd::OnDestroy();
    m_pCore->selection.Release();
    m_bHScrollBar = m_bVScrollBar = 0;
}

// --- Text

int QVTextWnd::AddText(const char* pszText, int nStyle) {
    const std::string_view text = pszText != nullptr ? pszText : "";
    const int nLines = m_pCore->lines.Add(text, nStyle);
    if (nLines != -1) {
        m_nMaxLineLength = std::max(m_nMaxLineLength, static_cast<int>(text.size()));
        m_nNumRows = std::max(m_nNumRows, nLines);
    }
    return nLines;
}

int QVTextWnd::NumLines() const {
    return m_pCore->lines.Count();
}

const char* QVTextWnd::GetLine(int nLine) const {
    return m_pCore->lines.Line(nLine);
}

const char* QVTextWnd::GetLineText(int nLine) const {
    return m_pCore->lines.Text(nLine);
}

void QVTextWnd::ClearTextData() {
    m_nHScrollPos = m_nVScrollPos = 0;
    m_nMaxLineLength = m_nNumRows = 0;
    m_bHScrollBar = m_bVScrollBar = 0;
    m_pCore->lines.Clear();
    const qv::WindowWatch watch(m_pCore->view.Alive(), m_hWnd);
    if (watch) {
        ShowScrollBar(SB_HORZ, SyncWnd() != nullptr);
    }
    if (watch) {
        ShowScrollBar(SB_VERT, FALSE);
    }
    if (watch) {
        InvalidateRect(nullptr, FALSE);
        TellAccessibleReorder();
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
    const qv::AliveWatch watch(m_pCore->view.Alive());
    const bool bRead = ReadLines(file, nStyle);
    if (watch && m_hWnd != nullptr) {
        m_nHScrollPos = m_nVScrollPos = 0;
        CalcLayout();
    }
    return bRead;
}

// What was read before a fault stays.
bool QVTextWnd::ReadLines(CStdioFile& file, int nStyle) {
    const qv::AliveWatch watch(m_pCore->view.Alive());
    bool bRead = false;
    try {
        bRead = qv::MemorySuffices([&] {
            ClearTextData();
            file.SeekToBegin();
            for (CString strLine; watch && file.ReadString(strLine);) {
                // A line ends at its end, not at a zero; CString itself does not find zeros.
                const int nLength = strLine.GetLength();
                char* pText = strLine.GetBuffer();
                std::replace(pText, pText + nLength, '\0', ' ');
                strLine.ReleaseBuffer(nLength);
                if (AddText(strLine, nStyle) == -1) {
                    throw std::bad_alloc();
                }
            }
            if (watch) {
                CalcLayout();
            }
        });
    } catch (CFileException* pException) {
        pException->Delete();
    }
    return bRead;
}

void QVTextWnd::SetBkColor(COLORREF cr) {
    m_crBk = cr;
    m_bOwnBk = true;
    if (m_aStyles.Count() > 0) {
        UpdateStyle(0, m_aStyles[0].crText, cr);
    }
}

void QVTextWnd::OnSysColorChange() {
    CWnd::OnSysColorChange();
    if (!m_bOwnBk) {
        m_crBk = ::GetSysColor(COLOR_WINDOW);
        FollowSystemColors(m_crBk);
    }
    Invalidate(FALSE);
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

int QVTextWnd::NumPages() const {
    return m_pCore->print.m_nNumPages;
}

void QVTextWnd::SetNumPages(int nPages) {
    m_pCore->print.m_nNumPages = nPages;
}

int QVTextWnd::NumPrintRows() const {
    return m_pCore->print.Count();
}

int QVTextWnd::LinesPerPage() const {
    return m_pCore->print.m_nLinesPerPage;
}

void QVTextWnd::SetLinesPerPage(int nLines) {
    m_pCore->print.m_nLinesPerPage = nLines;
}

void QVTextWnd::ClearPrintData() {
    m_pCore->print.Clear();
}

void QVTextWnd::AddPrintLine(int nLine, int nSubLine) {
    qv::MemorySuffices([&] { m_pCore->print.Add(nLine, nSubLine); });
}

int QVTextWnd::GetPrintLine(int nRow, QVTEXTLINE& row) const {
    const QVTEXTLINE* pRow = m_pCore->print.Piece(nRow);
    if (pRow != nullptr) {
        row = *pRow;
    }
    return pRow != nullptr;
}

int QVTextWnd::CurPrintLine() const {
    return m_pCore->print.Current();
}

CSize QVTextWnd::PrintAreaSize() const {
    const qv::Size size = m_pCore->print.m_sizePrintArea;
    return CSize(size.cx, size.cy);
}

void QVTextWnd::SetPrintAreaSize(const CSize& size) {
    m_pCore->print.m_sizePrintArea = {static_cast<int>(size.cx), static_cast<int>(size.cy)};
}

void QVTextWnd::FormatText(CDC* pDC, const CSize& sizeArea) {
    qv::MemorySuffices([&] { FormatPrint(*pDC, sizeArea); });
}

void QVTextWnd::FormatPrint(CDC& dc, const CSize& sizeArea) {
    QVTextWnd* pPartner = SyncWnd();
    qv::PrintRows own;
    qv::PrintRows other;
    const int nHeight = qv::TextExtent(dc, " ").cy;
    own.m_sizePrintArea = {static_cast<int>(sizeArea.cx), static_cast<int>(sizeArea.cy)};
    own.m_nLinesPerPage = nHeight > 0 ? sizeArea.cy / nHeight : 0;
    qv::DcMeasure measure(dc);
    qv::TextSplitter splitter(measure);
    qv::FormatPrintRows(m_pCore->lines, own,
                        pPartner != nullptr ? &pPartner->m_pCore->lines : nullptr,
                        pPartner != nullptr ? &other : nullptr, m_aStyles, splitter);
    own.m_nNumPages = own.PagesNeeded();
    if (pPartner != nullptr) {
        other.m_sizePrintArea = own.m_sizePrintArea;
        other.m_nLinesPerPage = own.m_nLinesPerPage;
        other.m_nNumPages = own.m_nNumPages;
        pPartner->m_pCore->print.SwapLayout(other);
    }
    m_pCore->print.SwapLayout(own);
}

int QVTextWnd::GetPrintRow(int nRow, CString& strText, int& nStyle, int& nLine) {
    bool bRow = false;
    qv::MemorySuffices([&] {
        qv::PrintedRow row;
        if (m_pCore->print.Row(nRow, m_pCore->lines, m_aStyles, row)) {
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
                       return m_pCore->print.StartPage(static_cast<int>(pInfo->m_nCurPage),
                                                       m_pCore->lines, m_aStyles, splitter, row);
                   });
}

int QVTextWnd::NextLine(CDC* pDC, CPrintInfo* pInfo, CString& strText, int& nStyle, int& nLine) {
    return GiveRow(pDC, strText, nStyle, nLine,
                   [&](qv::TextSplitter& splitter, qv::PrintedRow& row) {
                       return m_pCore->print.NextLine(static_cast<int>(pInfo->m_nCurPage),
                                                      m_pCore->lines, m_aStyles, splitter, row);
                   });
}

int QVTextWnd::GetCurrentLine(CDC* pDC, CString& strText, int& nStyle, int& nLine) {
    return GiveRow(pDC, strText, nStyle, nLine,
                   [&](qv::TextSplitter& splitter, qv::PrintedRow& row) {
                       return m_pCore->print.CurrentLine(m_pCore->lines, m_aStyles, splitter, row);
                   });
}
