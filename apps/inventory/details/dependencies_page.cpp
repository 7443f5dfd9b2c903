#include "details/dependencies_page.h"

#include "model/dependencies.h"
#include "row_colors.h"

namespace {

constexpr int kColumnPackage = 1;

}  // namespace

BEGIN_MESSAGE_MAP(DependenciesPage, DetailsPage)
    ON_NOTIFY(NM_DBLCLK, IDC_DETAILS_LIST, &DependenciesPage::OnDoubleClick)
END_MESSAGE_MAP()

BOOL DependenciesPage::OnInitDialog() {
    DetailsPage::OnInitDialog();
    m_list.Initialize(IDC_DETAILS_LIST, this);
    m_list.EnableExpectedKeys();
    UseColors();
    m_list.ShowSortArrow();
    m_list.AddHeader("Relation\tPackage\tState\tAsked for", lcdtString);
    m_list.SetupColumnsFromString(
        "is needed by~~\ta-package-with-a-long-name-and\tconfig-files~~\t"
        "a-package-with-a-long-name (>= 1:14.0.6-12+deb12u1)");
    return FALSE;
}

void DependenciesPage::UseColors() {
    ShowStyle(m_list, m_nMissing, kTroubleColors);
    ShowStyle(m_list, m_nDetail, kDetailColors);
}

CString DependenciesPage::Read() {
    m_list.SetRedraw(FALSE);
    m_list.DeleteAllItems();
    CString strProblem;
    if (m_source.package.pStanza == nullptr || m_source.pInventory == nullptr) {
        strProblem = "Windows does not tell what a program needs.";
    } else {
        const Relations relations = RelationsOf(*m_source.pInventory, m_source.package);
        for (const Relation& relation : relations.needs) {
            Add("needs", relation);
        }
        for (const Relation& relation : relations.neededBy) {
            Add("is needed by", relation);
        }
        if (m_list.GetItemCount() == 0) {
            strProblem.Format("%s needs no other package, and none needs it.",
                              m_source.package.strName.c_str());
        }
    }
    m_list.SetRedraw(TRUE);
    m_list.Invalidate(FALSE);
    return strProblem;
}

void DependenciesPage::Add(const char* pszRelation, const Relation& relation) {
    const bool bMissing = relation.strName.empty();
    const int nStyle = bMissing ? m_nMissing : 0;
    CString strRow = m_list.MakeStyleText(pszRelation, 0);
    m_list.AppendStyleText(
        strRow,
        Shown(bMissing ? DependencyName(relation.strText) : std::string_view(relation.strName)),
        nStyle);
    m_list.AppendStyleText(strRow, bMissing ? "not here" : Shown(relation.strState), nStyle);
    m_list.AppendStyleText(strRow, Shown(relation.strText), m_nDetail);
    // Item data: whether the row leads to a package.
    m_list.SetItemData(m_list.InsertBitmapString(-1, -1, strRow), !bMissing);
}

CString DependenciesPage::Target() {
    const int nItem = m_list.GetNextItem(-1, LVNI_FOCUSED);
    return nItem != -1 && m_list.GetItemData(nItem) != 0
               ? CString(m_list.ParseStyleText(m_list.GetItemText(nItem, kColumnPackage)))
               : CString();
}

void DependenciesPage::OnDoubleClick(NMHDR*, LRESULT* pResult) {
    *pResult = 0;
    // As Enter: the page around knows where that leads.
    GetTabWnd()->PostMessage(WM_COMMAND, ID_DETAILS_GO);
}

void DependenciesPage::Print(CDC& dc, QVPrintEngine& engine) {
    engine.AddList(&m_list, &dc);
}
