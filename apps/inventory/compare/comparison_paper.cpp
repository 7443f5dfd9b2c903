#include "compare/comparison_paper.h"

#include "compare/difference_colors.h"
#include "model/column_widths.h"
#include "model/table_writer.h"
#include "pages/exporting.h"
#include "pages/printing.h"
#include "pages/row_fields.h"
#include "resource.h"

namespace {

constexpr int kMarginsPerInch = 2;
constexpr int kGapsPerInch = 8;  // beside a column's text
constexpr int kLinesAround = 2;  // above and below the text, for the page's own lines

// The styles that the rows have, without a control.
struct StylesAlone : QVStyledRows {
    StylesAlone() { AddDifferenceStyles(*this); }
};

}  // namespace

ComparisonPaper::ComparisonPaper(CDC& dc, CWnd& parent, std::unique_ptr<PaperTable> pTable)
    : m_pTable(std::move(pTable)) {
    MakePrintFont(m_fontTitle, dc, 14, FW_BOLD);
    MakePrintFont(m_fontHeading, dc, 9, FW_BOLD);
    MakePrintFont(m_fontText, dc, 9, FW_NORMAL);
    {
        const qv::SelectGuard select(dc, &m_fontText);
        m_nLineHeight = dc.GetTextExtent("0", 1).cy;
    }
    m_rcText.SetRect(0, 0, dc.GetDeviceCaps(HORZRES), dc.GetDeviceCaps(VERTRES));
    m_rcText.DeflateRect(
        dc.GetDeviceCaps(LOGPIXELSX) / kMarginsPerInch,
        dc.GetDeviceCaps(LOGPIXELSY) / kMarginsPerInch + kLinesAround * m_nLineHeight);
    m_pEngine = std::make_unique<QVPrintEngine>(&dc, &m_fontHeading, &m_fontText, &m_fontHeading);
    m_pEngine->SetPrintAllRows(true);
    m_pEngine->AddText(m_pTable->strTitle, &dc, &m_fontTitle);
    m_pEngine->AddText(m_pTable->strText, &dc, nullptr);
    for (const PaperGroup& group : m_pTable->groups) {
        QVListCtrlEx& list = m_lists.emplace_back();
        if (!MakeList(dc, parent, group, list)) {
            continue;
        }
        m_pEngine->AddBreak();
        if (!group.strTitle.IsEmpty()) {
            m_pEngine->AddSectionHeader(group.strTitle);
        }
        m_pEngine->AddList(&list, &dc);
    }
    m_nPages = m_pEngine->Paginate(m_rcText);
}

bool ComparisonPaper::MakeList(CDC& dc, CWnd& parent, const PaperGroup& group, QVListCtrlEx& list) {
    list.ModifyDefStyle(WS_VISIBLE | WS_TABSTOP, 0);
    if (!list.Create(IDC_COMPARE_PAPER, CRect(0, 0, 0, 0), &parent)) {
        return false;
    }
    AddDifferenceStyles(list);
    for (const PaperColumn& column : m_pTable->columns) {
        list.AddHeader(column.pszHeading);
        if (column.bRight) {
            list.SetColFormat(list.NumColumns() - 1, LVCFMT_RIGHT);
            list.SetHdrFormat(list.NumColumns() - 1, LVCFMT_RIGHT);
        }
    }
    SetWidths(dc, list);
    list.SetRedraw(FALSE);
    for (int nRow = 0; nRow < group.rows.GetSize(); ++nRow) {
        list.InsertBitmapString(-1, -1, group.rows[nRow]);
    }
    return true;
}

// On paper the columns have the proportions of those of the list: so the widths are those of the
// paper.
void ComparisonPaper::SetWidths(CDC& dc, QVListCtrlEx& list) {
    const int nGap = dc.GetDeviceCaps(LOGPIXELSX) / kGapsPerInch;
    const auto width = [&](CFont& font, LPCSTR pszText) {
        const qv::SelectGuard select(dc, &font);
        return static_cast<int>(dc.GetTextExtent(pszText, lstrlen(pszText)).cx) + nGap;
    };
    std::vector<ColumnWish> wishes;
    for (const PaperColumn& column : m_pTable->columns) {
        const int nHeading = width(m_fontHeading, column.pszHeading);
        wishes.push_back(
            {std::max(width(m_fontText, column.pszSample), nHeading), nHeading, column.bMayBeCut});
    }
    const std::vector<int> widths = ShareWidth(wishes, m_rcText.Width());
    for (size_t i = 0; i < widths.size(); ++i) {
        list.SetColWidth(static_cast<int>(i), widths[i], nullptr);
    }
}

void WritePaper(const PaperTable& table, TableWriter& writer, Work& work) {
    std::vector<TableColumn> columns;
    for (const PaperColumn& column : table.columns) {
        columns.push_back({column.pszHeading, column.bRight});
    }
    const bool bSections = !table.groups.empty() && !table.groups.front().strTitle.IsEmpty();
    writer.Begin(std::string(table.strTitle), columns, std::string(table.strText),
                 bSections ? "Section" : "");
    StylesAlone styles;
    std::uint64_t nGroup = 0;
    for (const PaperGroup& group : table.groups) {
        work.Step(nGroup++, table.groups.size());
        if (bSections) {
            writer.Group(std::string(group.strTitle));
        }
        for (int nRow = 0; nRow < group.rows.GetSize(); ++nRow) {
            writer.Row(FieldsOf(styles, group.rows[nRow]));
        }
    }
    writer.End();
}

void ComparisonPaper::PrintPage(CDC& dc, unsigned nPage) {
    m_pEngine->PrintPage(&dc, m_rcText, nPage);
    const qv::SelectGuard select(dc, &m_fontText);
    CRect rcLine(m_rcText);
    rcLine.OffsetRect(0, -kLinesAround * m_nLineHeight);
    CString strText("Inventory");
    dc.DrawText(strText, &rcLine, DT_SINGLELINE | DT_NOPREFIX);
    dc.DrawText(CTime::GetCurrentTime().Format("%Y-%m-%d"), &rcLine,
                DT_SINGLELINE | DT_NOPREFIX | DT_RIGHT);
    rcLine = m_rcText;
    rcLine.top = rcLine.bottom + m_nLineHeight;
    rcLine.bottom = rcLine.top + m_nLineHeight;
    strText.Format("Page %u of %u", nPage, m_nPages);
    dc.DrawText(strText, &rcLine, DT_SINGLELINE | DT_NOPREFIX | DT_CENTER);
}
