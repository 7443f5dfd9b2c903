#include "details/facts_page.h"

#include "model/package_facts.h"

namespace {

constexpr int kGap = 6;
constexpr size_t kLongestBesideLabel = 70;  // bytes; longer ones are wrapped on paper

}  // namespace

BOOL FactsPage::OnInitDialog() {
    DetailsPage::OnInitDialog();
    m_list.Initialize(IDC_DETAILS_LIST, this);
    m_list.EnableExpectedKeys();
    m_list.AddHeader("Fact\tValue");
    m_list.SetupColumnsFromString("Installed-Size~~\t");
    m_text.Initialize(IDC_DETAILS_TEXT, this, TRUE);
    m_text.SetExactLayout(TRUE);
    m_text.EnableExpectedKeys();
    m_text.ModifyStyle(0, WS_TABSTOP);
    return FALSE;
}

CString FactsPage::Read() {
    m_list.SetRedraw(FALSE);
    m_list.DeleteAllItems();
    for (const Fact& fact : FactsOf(m_source.package)) {
        const CString strRow = Shown(fact.strName) + "\t" + Shown(fact.strValue);
        m_list.InsertBitmapString(-1, -1, strRow);
        m_list.SetupColumnsFromString(strRow);
    }
    m_list.SetRedraw(TRUE);
    m_list.Invalidate(FALSE);
    m_text.ClearTextData();
    for (const std::string& strLine : DescriptionOf(m_source.package)) {
        m_text.AddText(Shown(strLine), 0);
    }
    m_text.CalcLayout();
    m_text.ScrollTo(0, 0);
    return "";
}

void FactsPage::Print(CDC& dc, QVPrintEngine& engine) {
    using Item = QVPeDataLabeledListItem;
    QVPeDataLabeledList& facts = engine.AddLabeledDataList(&dc);
    CStringArray texts;
    for (const Fact& fact : FactsOf(m_source.package)) {
        const CString strName = Shown(fact.strName) + ":";
        if (fact.strValue.size() <= kLongestBesideLabel) {
            facts.AddData(strName, Shown(fact.strValue), Item::Left);
        } else {
            texts.Add(strName + " " + Shown(fact.strValue));
        }
    }
    texts.Add("");
    for (const std::string& strLine : DescriptionOf(m_source.package)) {
        texts.Add(Shown(strLine));
    }
    engine.AddText(texts, &dc, nullptr);
}

void FactsPage::LayOut(const CRect& rc) {
    if (m_text.GetSafeHwnd() == nullptr) {
        return;
    }
    const int nHalf = (rc.Width() - kGap) / 2;
    m_list.MoveWindow(0, 0, nHalf, rc.Height());
    m_text.MoveWindow(nHalf + kGap, 0, rc.Width() - nHalf - kGap, rc.Height());
}

void FactsPage::ShowContent(bool bShow) {
    DetailsPage::ShowContent(bShow);
    m_text.ShowWindow(bShow ? SW_SHOW : SW_HIDE);
}
