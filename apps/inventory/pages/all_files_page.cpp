#include "pages/all_files_page.h"

#include "details/details_page.h"
#include "model/count_text.h"
#include "model/find_rows.h"
#include "pages/printing.h"
#include "resource.h"

#include <climits>

namespace {

enum Column { kName, kFolder, kPackage, kSection, kColumns };

constexpr UINT_PTR kReadTimer = 1;
constexpr UINT kReadAgain = 60;  // milliseconds; input, paints and idle work come between
constexpr ULONGLONG kReadAtOnce = 40;
constexpr double kMarginInch = 0.75;

}  // namespace

BEGIN_MESSAGE_MAP(AllFilesPage, Page)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_TIMER()
    ON_NOTIFY(NM_DBLCLK, IDC_FILES, &AllFilesPage::OnDoubleClick)
    ON_COMMAND(IDOK, &AllFilesPage::OnEnter)
    ON_COMMAND(ID_FILES_GO, &AllFilesPage::OnGo)
    ON_UPDATE_COMMAND_UI(ID_FILES_GO, &AllFilesPage::OnUpdateGo)
    ON_COMMAND(ID_LIST_EXPORT, &AllFilesPage::OnExport)
    ON_COMMAND(ID_FILES_PRINT, &AllFilesPage::OnPrint)
END_MESSAGE_MAP()

int AllFilesPage::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    m_list.ModifyDefStyle(0, WS_TABSTOP);
    if (Page::OnCreate(lpCreateStruct) == -1 ||
        !m_list.Create(IDC_FILES, CRect(0, 0, 0, 0), this)) {
        return -1;
    }
    m_list.SetFont(&m_font);
    m_list.EnableExpectedKeys();
    m_list.ShowSortArrow();
    m_list.AddHeader("File\tFolder\tPackage\tSection", lcdtString);
    m_list.SetRowSource(this);
    return 0;
}

void AllFilesPage::OnSize(UINT nType, int cx, int cy) {
    Page::OnSize(nType, cx, cy);
    const bool bFirst = m_list.GetColumnWidth(kSection) == 0 || !m_list.IsWindowVisible();
    m_list.MoveWindow(0, 0, cx, cy);
    if (bFirst) {
        m_list.SetupColumnsFromString(
            "a-file-with-a-name-of-some-length.gz\t/usr/share/a-folder/of-a-package/and-a-folder*\t"
            "a-package-with-a-long-name\tinterpreters~");
    }
}

// --- Reading

void AllFilesPage::UseDatabase(const CString& strFolder) {
    m_store = strFolder.IsEmpty() ? PackageStore() : PackageStore(std::string(strFolder));
}

void AllFilesPage::SetInventory(const Inventory& inventory) {
    KillTimer(kReadTimer);
    m_pInventory = &inventory;
    m_files = AllFiles();  // what it points at may be gone already
    m_bStarted = false;
    m_bWhole = false;
    m_strMessage.Empty();
    m_list.SetRowCount(0);
    m_list.RestoreOrder();
    m_list.Forget();
    if (IsWindowVisible()) {
        StartReading();
    }
}

void AllFilesPage::StartReading() {
    if (m_bStarted || m_pInventory == nullptr) {
        return;
    }
    m_bStarted = true;
    m_files.Start(*m_pInventory, m_store);
    ReadSome();
    if (!m_bWhole) {
        SetTimer(kReadTimer, kReadAgain, nullptr);
    }
}

void AllFilesPage::OnTimer(UINT_PTR nTimer) {
    if (nTimer == kReadTimer) {
        ReadSome();
    } else {
        Page::OnTimer(nTimer);
    }
}

void AllFilesPage::ReadSome() {
    const ULONGLONG nEnd = ::GetTickCount64() + kReadAtOnce;
    bool bMore = true;
    while (bMore && ::GetTickCount64() < nEnd) {
        bMore = m_files.ReadNext();
    }
    const int nFocus = m_list.GetNextItem(-1, LVNI_FOCUSED);
    m_list.SetRowCount(static_cast<int>(m_files.Count()));
    if (nFocus == -1 && m_files.Count() > 0) {
        m_list.SetItemState(0, LVIS_FOCUSED, LVIS_FOCUSED);
    }
    if (!bMore) {
        KillTimer(kReadTimer);
        m_bWhole = true;
        if (m_list.IsSorted()) {
            m_list.ReSort();
        }
        if (!m_files.LastProblem().strMessage.empty()) {
            Keep(Failed(kErrorReadPackageFile, ProblemReason(m_files.LastProblem())));
        }
    }
    SayHowMany();
}

void AllFilesPage::SayHowMany() {
    if (!m_store.IsKnown()) {
        m_strMessage = "Windows does not tell which files belong to a program.";
        return;
    }
    m_strMessage = (GroupedText(m_files.Count()) + ' ' + NounText(m_files.Count(), "file") +
                    " of " + CountText(m_files.PackagesRead(), "package") +
                    (m_bWhole ? "" : " so far: more are being read"))
                       .c_str();
}

// --- Rows

CString AllFilesPage::Cell(size_t nRow, int nCol) const {
    return Shown(nCol == kName      ? m_files.Name(nRow)
                 : nCol == kFolder  ? m_files.Folder(nRow)
                 : nCol == kPackage ? std::string_view(m_files.PackageOf(nRow).strName)
                                    : std::string_view(m_files.PackageOf(nRow).strSection));
}

void AllFilesPage::GetRow(int nRow, QVLISTROW& row) {
    if (static_cast<size_t>(nRow) < m_files.Count()) {
        for (int nCol = 0; nCol < kColumns; ++nCol) {
            row.strText += (nCol > 0 ? "\t" : "") + Cell(static_cast<size_t>(nRow), nCol);
        }
    }
}

BOOL AllFilesPage::GetSortText(int nRow, int nCol, CString& strText) {
    if (static_cast<size_t>(nRow) < m_files.Count()) {
        strText = Cell(static_cast<size_t>(nRow), nCol);
    }
    return TRUE;
}

FindResult AllFilesPage::Find(const TextQuery& query, bool bDown) {
    const CWaitCursor wait;
    const FoundRow found =
        FindRow(m_list.GetItemCount(), m_list.GetNextItem(-1, LVNI_FOCUSED), bDown, [&](int nItem) {
            const int nRow = m_list.DataRow(nItem);
            for (int nCol = 0; nRow >= 0 && nCol < kColumns; ++nCol) {
                if (query.IsIn(Cell(static_cast<size_t>(nRow), nCol))) {
                    return true;
                }
            }
            return false;
        });
    if (found.nRow >= 0) {
        constexpr UINT kFront = LVIS_SELECTED | LVIS_FOCUSED;
        m_list.SetItemState(-1, 0, LVIS_SELECTED);
        m_list.SetItemState(found.nRow, kFront, kFront);
        m_list.EnsureVisible(found.nRow, FALSE);
    }
    return {found.nRow >= 0, found.bWrapped, m_bWhole ? "the files" : "the files that are read"};
}

CString AllFilesPage::MarkedText() {
    return (CountText(m_list.GetSelectedCount(), "file") + " selected").c_str();
}

// --- Commands

void AllFilesPage::OnDoubleClick(NMHDR*, LRESULT* pResult) {
    *pResult = 0;
    PostMessage(WM_COMMAND, ID_FILES_GO);
}

void AllFilesPage::OnEnter() {
    OnGo();
}

void AllFilesPage::OnGo() {
    const int nRow = m_list.DataRow(m_list.GetNextItem(-1, LVNI_FOCUSED));
    if (nRow >= 0 && m_showPackage) {
        m_showPackage(m_files.PackageOf(static_cast<size_t>(nRow)).strName.c_str());
    }
}

void AllFilesPage::OnUpdateGo(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_list.GetNextItem(-1, LVNI_FOCUSED) >= 0);
}

void AllFilesPage::OnExport() {
    m_strMessage = m_exporter.Run(*this, "files.csv", [this](TableWriter& writer, Work& work) {
        WriteList(m_list, "Files of all packages", writer, work);
    });
}

void AllFilesPage::OnPrint() {
    PrinterChoice printer(this);
    CDC dc;
    if (printer.Ask(USHRT_MAX, "Files", dc)) {
        Tell(Print(dc, printer.FirstPage(), printer.LastPage(), printer.Output()), this);
    }
}

Failure AllFilesPage::PrintToFile(LPCSTR pszOutput, unsigned nMost) {
    CDC dc;
    Failure pFailure = OpenDefaultPrinter(this, dc);
    return pFailure != nullptr ? std::move(pFailure) : Print(dc, 1, nMost, pszOutput);
}

Failure AllFilesPage::Print(CDC& dc, unsigned nFirst, unsigned nLast, LPCSTR pszOutput) {
    const CWaitCursor wait;
    CFont fontNormal;
    CFont fontHeader;
    MakePrintFont(fontNormal, dc, 8, FW_NORMAL);
    MakePrintFont(fontHeader, dc, 11, FW_BOLD);
    CRect rc(0, 0, dc.GetDeviceCaps(HORZRES), dc.GetDeviceCaps(VERTRES));
    rc.DeflateRect(static_cast<int>(kMarginInch * dc.GetDeviceCaps(LOGPIXELSX)),
                   static_cast<int>(kMarginInch * dc.GetDeviceCaps(LOGPIXELSY)));
    QVPrintEngine engine(&dc, &fontHeader, &fontNormal, &fontHeader);
    engine.SetPrintAllRows(true);
    engine.AddList(&m_list, &dc);
    const unsigned nPages = engine.Paginate(rc);
    const unsigned nEnd = std::min(nLast, nPages);
    const int nLine = dc.GetDeviceCaps(LOGPIXELSY) / 4;
    Failure pFailure = Work::Run("Printing the files...", [&](Work& work) {
        if (!engine.IsComplete()) {
            throw Failed(kErrorPrint, std::make_unique<QVStatus>(QVStatus::outOfMemory)).release();
        }
        PrintJob(work, dc, "Files", nFirst, nEnd, pszOutput, [&](unsigned nPage) {
            engine.PrintPage(&dc, rc, nPage);
            const qv::SelectGuard select(dc, &fontNormal);
            CString strFooter;
            strFooter.Format("Files of all packages, page %u of %u", nPage, nPages);
            CRect rcFooter(rc.left, rc.bottom + nLine, rc.right, rc.bottom + 2 * nLine);
            dc.DrawText(strFooter, &rcFooter, DT_SINGLELINE | DT_NOPREFIX | DT_CENTER);
        });
    });
    m_strMessage = "Files: " + PrintedText(pFailure, nEnd - nFirst + 1, pszOutput);
    return pFailure;
}
