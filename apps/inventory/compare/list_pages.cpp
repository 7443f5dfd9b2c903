#include "compare/list_pages.h"

#include "compare/difference_colors.h"
#include "resource.h"

namespace {

constexpr int kSummaryColumns = 4;
constexpr int kKeyColumn = 2;  // the architecture, beside the name

constexpr PaperColumn kPackageColumns[] = {{"Package", "a-package-with-a-long-name~", false, true},
                                           {"Version", "1:14.0.6-12+deb12u1~"},
                                           {"Architecture", "amd64~"},
                                           {"KiB", "1,234,567~", true},
                                           {"Section", "interpreters~"},
                                           {"Summary", "A summary in a line", false, true}};

CString Joined(const SummaryRow& row) {
    CString strRow;
    strRow.Format("%s\t%s\t%s\t%s", row.strWhat.c_str(), row.strBefore.c_str(), row.strNow.c_str(),
                  row.strGrowth.c_str());
    return strRow;
}

CRect FocusRectOf(QVListCtrlEx& list) {
    CRect rc(0, 0, 0, 0);
    list.GetItemRect(list.GetNextItem(-1, LVNI_FOCUSED), &rc, LVIR_LABEL);
    return rc;
}

}  // namespace

// --- The summary

IMPLEMENT_DYNCREATE(SummaryPage, QVTabViewPage)

SummaryPage::SummaryPage() : ComparisonPage(IDD_COMPARE_LIST) {}

BOOL SummaryPage::OnInitDialog() {
    ComparisonPage::OnInitDialog();
    m_list.Initialize(IDC_COMPARE_LIST, this);
    m_list.EnableExpectedKeys();
    return FALSE;
}

size_t SummaryPage::Rows() {
    return static_cast<size_t>(m_list.GetItemCount());
}

void SummaryPage::Show(const ComparisonDocument& document) {
    m_list.SetRedraw(FALSE);
    m_list.DeleteAllItems();
    m_list.ClearHeaders();
    m_list.ClearCols();
    m_list.AddHeader(" \t" + document.NameBefore() + "\t" + document.NameNow() + "\tDifference");
    const CString strSample = "status-of-another-machine, 2026-11-22 00:00";
    m_list.SetupColumnsFromString("Changed otherwise~~\t" + strSample + "\t" + strSample +
                                  "\t+999.9 MiB~~");
    for (int nCol = 1; nCol < kSummaryColumns; ++nCol) {
        m_list.SetColFormat(nCol, LVCFMT_RIGHT);
        m_list.SetHdrFormat(nCol, LVCFMT_RIGHT);
    }
    for (const SummaryRow& row :
         SummaryOf(document.Before(), document.Now(), document.Differences())) {
        m_list.InsertBitmapString(-1, -1, Joined(row));
    }
    m_list.SetRedraw(TRUE);
    m_list.Invalidate(FALSE);
}

CString SummaryPage::Message() {
    const Comparison& comparison = Document().Differences();
    CString strText;
    strText.Format("%u new, %u gone, %u changed", static_cast<unsigned>(comparison.New().size()),
                   static_cast<unsigned>(comparison.Gone().size()),
                   static_cast<unsigned>(comparison.Changed().size()));
    return strText;
}

CString SummaryPage::SelectedText() {
    CString strText;
    for (int nItem = -1; (nItem = m_list.GetNextItem(nItem, LVNI_SELECTED)) != -1;) {
        CString strRow;
        m_list.GetItemString(nItem, strRow);
        strText += strRow + "\r\n";
    }
    return strText;
}

CRect SummaryPage::FocusRect() {
    return FocusRectOf(m_list);
}

std::unique_ptr<PaperTable> SummaryPage::Table() {
    auto pTable = std::make_unique<PaperTable>();
    const ComparisonDocument& document = Document();
    pTable->strTitle = "Packages: summary";
    pTable->strText = document.NameBefore() + " and " + document.NameNow();
    pTable->columns = {{" ", "Changed otherwise~~"},
                       {"Before", "123,456 packages~", true},
                       {"Now", "123,456 packages~", true},
                       {"Difference", "+999.9 MiB~~", true}};
    CStringArray& rows = pTable->groups.emplace_back().rows;
    for (const SummaryRow& row :
         SummaryOf(document.Before(), document.Now(), document.Differences())) {
        rows.Add(Joined(row));
    }
    return pTable;
}

// --- New and gone

IMPLEMENT_DYNCREATE(NewPage, QVTabViewPage)
IMPLEMENT_DYNCREATE(GonePage, QVTabViewPage)

NewPage::NewPage() : DifferencePage("new", kBetterStyle) {}

GonePage::GonePage() : DifferencePage("gone", kWorseStyle) {}

DifferencePage::DifferencePage(const char* pszWhat, int nStyle)
    : ComparisonPage(IDD_COMPARE_LIST), m_pszWhat(pszWhat), m_nStyle(nStyle) {}

BOOL DifferencePage::OnInitDialog() {
    ComparisonPage::OnInitDialog();
    m_list.Initialize(IDC_COMPARE_LIST, this);
    m_list.EnableExpectedKeys();
    UseColors();
    m_list.ShowSortArrow();
    for (const PaperColumn& column : kPackageColumns) {
        m_list.AddHeader(column.pszHeading, column.bRight ? lcdtNumber : lcdtString);
        if (column.bRight) {
            m_list.SetColFormat(m_list.NumColumns() - 1, LVCFMT_RIGHT);
            m_list.SetHdrFormat(m_list.NumColumns() - 1, LVCFMT_RIGHT);
        }
    }
    return FALSE;
}

void DifferencePage::UseColors() {
    ShowDifferenceStyles(m_list);
}

// The last column takes what the others leave.
void DifferencePage::LayOut(CSize size) {
    ComparisonPage::LayOut(size);
    CString strSample;
    for (const PaperColumn& column : kPackageColumns) {
        (strSample += strSample.IsEmpty() ? "" : "\t") += column.pszSample;
    }
    m_list.SetColWidth(m_list.NumColumns() - 1, 0, nullptr);
    m_list.SetupColumnsFromString(strSample + "*");
}

CRect DifferencePage::FocusRect() {
    return FocusRectOf(m_list);
}

size_t DifferencePage::Rows() {
    return Differences().size();
}

int DifferencePage::Row() {
    return m_list.GetNextItem(-1, LVNI_FOCUSED);
}

void DifferencePage::GoTo(int nRow) {
    m_list.SetItemState(-1, 0, LVIS_SELECTED);
    m_list.SetItemState(nRow, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    m_list.EnsureVisible(nRow, FALSE);
}

CString DifferencePage::Message() {
    return CountMessage(Differences(), m_pszWhat);
}

// By what the rows say: the packages may be gone.
CString DifferencePage::KeyOf(int nItem) {
    return nItem >= 0 ? m_list.GetItemText(nItem, 0) + "\t" + m_list.GetItemText(nItem, kKeyColumn)
                      : CString();
}

void DifferencePage::Clear() {
    if (m_list.GetItemCount() > 0) {
        m_strFront = KeyOf(Row());
        m_strTop = KeyOf(m_list.GetTopIndex());
    }
    m_list.DeleteAllItems();
}

void DifferencePage::Restore() {
    int nTop = -1;
    for (int nItem = 0; nItem < m_list.GetItemCount(); ++nItem) {
        const CString strKey = KeyOf(nItem);
        if (strKey == m_strFront) {
            m_list.SetItemState(nItem, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        }
        nTop = strKey == m_strTop ? nItem : nTop;
    }
    // From the end back, a row that is to be in view comes to the top.
    if (nTop > 0) {
        m_list.EnsureVisible(m_list.GetItemCount() - 1, FALSE);
        m_list.EnsureVisible(nTop, FALSE);
    }
}

void DifferencePage::Show(const ComparisonDocument&) {
    m_list.SetRedraw(FALSE);
    Clear();
    DWORD_PTR nDifference = 0;
    for (const Difference& difference : Differences()) {
        const Package& package = difference.Shown();
        CString strRow = m_list.MakeStyleText(package.strName.c_str(), m_nStyle);
        m_list.AppendStyleText(strRow, package.strVersion.c_str(), kPlainStyle);
        for (const std::string& strField :
             {package.strArchitecture, std::to_string(package.nSizeKiB), package.strSection,
              package.strSummary}) {
            (strRow += '\t') += strField.c_str();
        }
        m_list.SetItemData(m_list.InsertBitmapString(-1, -1, strRow), nDifference++);
    }
    m_list.SetRedraw(TRUE);
    Restore();
    m_list.Invalidate(FALSE);
}

CString DifferencePage::SelectedText() {
    CString strText;
    for (int nItem = -1; (nItem = m_list.GetNextItem(nItem, LVNI_SELECTED)) != -1;) {
        // Only the first two fields have a style.
        strText += m_list.GetItemText(nItem, 0);
        for (int nCol = 1; nCol < m_list.NumColumns(); ++nCol) {
            const CString strCell = m_list.GetItemText(nItem, nCol);
            (strText += '\t') += m_list.ParseStyleText(strCell);
        }
        strText += "\r\n";
    }
    return strText;
}

const Package* DifferencePage::ShownPackage() {
    const int nItem = Row();
    const DWORD_PTR nDifference = nItem >= 0 ? m_list.GetItemData(nItem) : Differences().size();
    return nDifference < Differences().size() ? Differences()[nDifference].pAfter : nullptr;
}

void DifferencePage::SortBy(int nCol) {
    NMLISTVIEW click{};
    click.hdr.hwndFrom = m_list.m_hWnd;
    click.hdr.idFrom = IDC_COMPARE_LIST;
    click.hdr.code = LVN_COLUMNCLICK;
    click.iItem = -1;
    click.iSubItem = nCol;
    SendMessage(WM_NOTIFY, click.hdr.idFrom, reinterpret_cast<LPARAM>(&click));
}

// In the order that the list has.
std::unique_ptr<PaperTable> DifferencePage::Table() {
    auto pTable = std::make_unique<PaperTable>();
    pTable->strTitle = CString("Packages that are ") + m_pszWhat;
    pTable->strText = Message() + ": " + Document().NameBefore() + " and " + Document().NameNow();
    pTable->columns.assign(std::begin(kPackageColumns), std::end(kPackageColumns));
    if (m_list.GetItemCount() > 0) {
        CStringArray& rows = pTable->groups.emplace_back().rows;
        rows.SetSize(m_list.GetItemCount());
        for (int nItem = 0; nItem < m_list.GetItemCount(); ++nItem) {
            m_list.GetItemString(nItem, rows[nItem]);
        }
    }
    return pTable;
}
