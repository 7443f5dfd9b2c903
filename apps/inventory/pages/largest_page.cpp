#include "pages/largest_page.h"

#include "package_strip.h"
#include "pages/printing.h"
#include "resource.h"

#include <afxext.h>

#include <climits>

namespace {

constexpr int kMargin = 4;
const CSize kFirstSize(400, 300);

// A run of the list's print protocol, from its first step to its last.
class PrintRun {
public:
    PrintRun(LargestList& list, CDC& dc) : m_list(list), m_dc(dc) {
        MakePrintFont(m_font, dc, 9, FW_NORMAL);
        MakePrintFont(m_fontHeader, dc, 9, FW_BOLD);
        const int nMargin = dc.GetDeviceCaps(LOGPIXELSX) / 2;
        m_rcRows.SetRect(nMargin, nMargin, dc.GetDeviceCaps(HORZRES) - nMargin,
                         dc.GetDeviceCaps(VERTRES) - nMargin);
        m_list.SetPrintFonts(&m_font, &m_fontHeader);
        m_list.BeginPrinting(&m_dc, &m_info);
        m_list.CalcPrintTabStops(&m_dc, 0);
        m_rcHeader = m_rcRows;
        m_rcHeader.bottom = m_rcRows.top += m_list.HeaderPrintHeight(&m_dc);
        const qv::SelectGuard select(dc, &m_font);
        const int nPerPage = m_rcRows.Height() / std::max<int>(dc.GetTextExtent("0", 1).cy, 1);
        m_nPages =
            static_cast<unsigned>((m_list.GetCount() + nPerPage - 1) / std::max(nPerPage, 1));
    }
    ~PrintRun() { m_list.EndPrinting(&m_dc, &m_info); }
    PrintRun(const PrintRun&) = delete;
    PrintRun& operator=(const PrintRun&) = delete;

    unsigned Pages() const { return m_nPages; }
    void PrintPage(unsigned nPage) {
        m_info.m_nCurPage = nPage;
        m_list.PrintHeader(&m_dc, m_rcHeader);
        m_list.PrintItems(&m_dc, &m_info, m_rcRows);
    }

private:
    LargestList& m_list;
    CDC& m_dc;
    CPrintInfo m_info;
    CFont m_font;
    CFont m_fontHeader;
    CRect m_rcHeader;
    CRect m_rcRows;
    unsigned m_nPages = 0;
};

}  // namespace

BEGIN_MESSAGE_MAP(LargestPage, Page)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_LBN_SELCHANGE(IDC_LARGEST, &LargestPage::OnSelected)
    ON_COMMAND(ID_LIST_EXPORT, &LargestPage::OnExport)
    ON_COMMAND(ID_LARGEST_PRINT, &LargestPage::OnPrint)
    ON_COMMAND_RANGE(ID_LARGEST_BY_SIZE, ID_LARGEST_BY_STATE, &LargestPage::OnOrder)
    ON_UPDATE_COMMAND_UI_RANGE(ID_LARGEST_BY_SIZE, ID_LARGEST_BY_STATE, &LargestPage::OnUpdateOrder)
END_MESSAGE_MAP()

int LargestPage::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    m_list.SetHeader(IDC_LARGEST_HEADER);
    if (Page::OnCreate(lpCreateStruct) == -1 ||
        !m_list.Create(WS_CHILD | WS_VISIBLE | WS_BORDER | WS_VSCROLL | WS_TABSTOP | LBS_NOTIFY |
                           LBS_EXTENDEDSEL | LBS_NOINTEGRALHEIGHT,
                       CRect(CPoint(kMargin, kMargin), kFirstSize), this, IDC_LARGEST) ||
        !m_list.Initialize(IDC_LARGEST, IDB_PACKAGES, kStripMask, kStripImageWidth, this)) {
        return -1;
    }
    m_list.SetUp();
    return 0;
}

void LargestPage::OnSize(UINT nType, int cx, int cy) {
    Page::OnSize(nType, cx, cy);
    // The list makes room for its headings by itself.
    m_list.MoveWindow(kMargin, kMargin, std::max(cx - 2 * kMargin, 0),
                      std::max(cy - 2 * kMargin, 0));
}

BOOL LargestPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (wParam == m_list.HeaderID()) {
        auto* pHeader = reinterpret_cast<NMHEADER*>(lParam);
        m_list.OnHdNotify(static_cast<int>(pHeader->hdr.code), pHeader);
    }
    return Page::OnNotify(wParam, lParam, pResult);
}

void LargestPage::OnSelected() {
    const Package* pPackage = m_list.PackageOf(m_list.GetCaretIndex());
    m_strMessage = pPackage != nullptr ? pPackage->strSummary.c_str() : "";
}

CString LargestPage::MarkedText() {
    CString strText;
    strText.Format("%d of the largest selected", m_list.GetSelCount());
    return strText;
}

// The commands in the order of Order.
void LargestPage::OnOrder(UINT nID) {
    m_list.SortBy(static_cast<LargestList::Order>(nID - ID_LARGEST_BY_SIZE));
}

void LargestPage::OnUpdateOrder(CCmdUI* pCmdUI) {
    pCmdUI->SetRadio(static_cast<LargestList::Order>(pCmdUI->m_nID - ID_LARGEST_BY_SIZE) ==
                     m_list.SortOrder());
}

void LargestPage::OnExport() {
    m_strMessage = m_exporter.Run(*this, "largest.csv", [this](TableWriter& writer, Work& work) {
        WriteBox(m_list, "Largest packages", writer, work);
    });
}

// --- Paper

void LargestPage::OnPrint() {
    PrinterChoice printer(this);
    CDC dc;
    if (printer.Ask(USHRT_MAX, "Largest packages", dc)) {
        Tell(Print(dc, &printer, printer.Output()), this);
    }
}

Failure LargestPage::PrintToFile(LPCSTR pszOutput) {
    CDC dc;
    Failure pFailure = OpenDefaultPrinter(this, dc);
    return pFailure != nullptr ? std::move(pFailure) : Print(dc, nullptr, pszOutput);
}

Failure LargestPage::Print(CDC& dc, PrinterChoice* pPrinter, LPCSTR pszOutput) {
    const CWaitCursor wait;
    PrintRun run(m_list, dc);
    const unsigned nFirst = pPrinter != nullptr ? pPrinter->FirstPage() : 1;
    const unsigned nLast =
        std::min(pPrinter != nullptr ? pPrinter->LastPage() : run.Pages(), run.Pages());
    Failure pFailure = Work::Run("Printing the list...", [&](Work& work) {
        PrintJob(work, dc, "Largest packages", nFirst, nLast, pszOutput,
                 [&](unsigned nPage) { run.PrintPage(nPage); });
    });
    m_strMessage = PrintedText(pFailure, nLast - nFirst + 1, pszOutput);
    return pFailure;
}
