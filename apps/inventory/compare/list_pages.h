// Pages of a comparison that are lists: the summary, what is new and what is gone.

#pragma once

#include "compare/comparison_page.h"
#include "pages/cut_tips.h"

class SummaryPage : public ComparisonPage {
    DECLARE_DYNCREATE(SummaryPage)

public:
    SummaryPage();
    CWnd& Control() override { return m_list; }
    size_t Rows() override;
    int Row() override { return -1; }
    void GoTo(int) override {}
    CString Message() override;
    std::unique_ptr<PaperTable> Table() override;

protected:
    BOOL OnInitDialog() override;
    void Show(const ComparisonDocument& document) override;
    void Clear() override { m_list.DeleteAllItems(); }
    CString SelectedText() override;
    bool HasSelection() override { return m_list.GetSelectedCount() > 0; }
    void SelectAll() override { m_list.SelectAllRows(); }
    const Package* ShownPackage() override { return nullptr; }
    CRect FocusRect() override;

private:
    CutTipList<QVListCtrlEx> m_list;
};

// Packages that only one of the two has.
class DifferencePage : public ComparisonPage {
public:
    CWnd& Control() override { return m_list; }
    size_t Rows() override;
    int Row() override;
    void GoTo(int nRow) override;
    CString Message() override;
    bool CanSort() override { return m_list.GetItemCount() > 0; }
    void SortBy(int nCol) override;
    std::unique_ptr<PaperTable> Table() override;

protected:
    DifferencePage(const char* pszWhat, int nStyle);
    virtual const std::vector<Difference>& Differences() = 0;
    BOOL OnInitDialog() override;
    void Show(const ComparisonDocument& document) override;
    void Clear() override;
    CString SelectedText() override;
    bool HasSelection() override { return m_list.GetSelectedCount() > 0; }
    void SelectAll() override { m_list.SelectAllRows(); }
    const Package* ShownPackage() override;
    void LayOut(CSize size) override;
    void UseColors() override;
    CRect FocusRect() override;

private:
    CString KeyOf(int nItem);
    void Restore();

    const char* m_pszWhat;
    const int m_nStyle;
    CutTipList<QVSortingListCtrl> m_list;  // item data: the number of the difference
    CString m_strFront;                    // keys of rows, while the list is filled anew
    CString m_strTop;
};

class NewPage : public DifferencePage {
    DECLARE_DYNCREATE(NewPage)

public:
    NewPage();

protected:
    const std::vector<Difference>& Differences() override { return Document().Differences().New(); }
};

class GonePage : public DifferencePage {
    DECLARE_DYNCREATE(GonePage)

public:
    GonePage();

protected:
    const std::vector<Difference>& Differences() override {
        return Document().Differences().Gone();
    }
};
