#include "compare/changed_page.h"

#include "compare/difference_colors.h"
#include "model/find_rows.h"
#include "resource.h"

namespace {

constexpr PaperColumn kPaperColumns[] = {{"Package", "a-package-with-a-long-name~", false, true},
                                         {"Arch.", "amd64~"},
                                         {"Before", "1:14.0.6-12+deb12u1~"},
                                         {"Now", "1:14.0.6-12+deb12u1~"},
                                         {"Size", "+999.9 MiB~", true},
                                         {"Change", "newer, larger~", false, true}};

}  // namespace

IMPLEMENT_DYNCREATE(ChangedPage, QVTabViewPage)

ChangedPage::ChangedPage() : ComparisonPage(IDD_COMPARE_GRID) {}

int ChangedPage::Create(CWnd* pParent) {
    return ComparisonPage::Create(pParent) && m_grid.GetSafeHwnd() != nullptr;
}

BOOL ChangedPage::OnInitDialog() {
    ComparisonPage::OnInitDialog();
    m_grid.Make(this, IDC_COMPARE_GRID);
    return FALSE;
}

void ChangedPage::LayOut(CSize size) {
    ComparisonPage::LayOut(size);
    m_grid.Fit();
}

void ChangedPage::Show(const ComparisonDocument& document) {
    m_grid.Show(document.Differences().Changed());
}

void ChangedPage::Clear() {
    static const std::vector<Difference> none;
    m_grid.Show(none);
}

CString ChangedPage::Message() {
    return CountMessage(Document().Differences().Changed(), "changed");
}

FindResult ChangedPage::Find(const TextQuery& query, bool bDown) {
    const std::vector<Difference>& changed = Document().Differences().Changed();
    const FoundRow found =
        FindRow(static_cast<int>(changed.size()), m_grid.Row(), bDown, [&](int nRow) {
            for (int nCol = 0; nCol < ChangedGrid::kColumns; ++nCol) {
                if (query.IsIn(ChangedGrid::CellText(changed[static_cast<size_t>(nRow)], nCol))) {
                    return true;
                }
            }
            return false;
        });
    if (found.nRow >= 0) {
        m_grid.GoTo(found.nRow);
    }
    return {found.nRow >= 0, found.bWrapped, "what has changed"};
}

const Package* ChangedPage::ShownPackage() {
    const int nRow = m_grid.Row();
    return nRow >= 0 ? Document().Differences().Changed()[static_cast<size_t>(nRow)].pAfter
                     : nullptr;
}

// A heading for each section, where the grid merges cells.
std::unique_ptr<PaperTable> ChangedPage::Table() {
    auto pTable = std::make_unique<PaperTable>();
    pTable->strTitle = "Packages that are changed";
    pTable->strText = Message() + ": " + Document().NameBefore() + " and " + Document().NameNow();
    pTable->columns.assign(std::begin(kPaperColumns), std::end(kPaperColumns));
    for (const Difference& difference : Document().Differences().Changed()) {
        const CString strSection = ChangedGrid::CellText(difference, ChangedGrid::kSection);
        if (pTable->groups.empty() || pTable->groups.back().strTitle != strSection) {
            pTable->groups.emplace_back().strTitle = strSection;
        }
        CString strRow;
        for (int nCol = ChangedGrid::kName; nCol < ChangedGrid::kColumns; ++nCol) {
            strRow += (nCol > ChangedGrid::kName ? "\t" : "") +
                      QVStyledRows::MakeStyleCodes(ChangedGrid::CellStyle(difference, nCol)) +
                      ChangedGrid::CellText(difference, nCol);
        }
        pTable->groups.back().rows.Add(strRow);
    }
    return pTable;
}
