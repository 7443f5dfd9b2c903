// The page of a comparison with what has changed, in a grid.

#pragma once

#include "compare/changed_grid.h"
#include "compare/comparison_page.h"

class ChangedPage : public ComparisonPage {
    DECLARE_DYNCREATE(ChangedPage)

public:
    ChangedPage();
    // Fails where there is no control for the grid.
    int Create(CWnd* pParent) override;
    CWnd& Control() override { return m_grid; }
    size_t Rows() override { return Document().Differences().Changed().size(); }
    int Row() override { return m_grid.Row(); }
    void GoTo(int nRow) override { m_grid.GoTo(nRow); }
    CString Message() override;
    FindResult Find(const TextQuery& query, bool bDown) override;
    std::unique_ptr<PaperTable> Table() override;

protected:
    BOOL OnInitDialog() override;
    void Show(const ComparisonDocument& document) override;
    void Clear() override;
    CString SelectedText() override { return m_grid.SelectedText(); }
    bool HasSelection() override { return Rows() > 0; }
    void SelectAll() override { m_grid.SelectAll(); }
    const Package* ShownPackage() override;
    void LayOut(CSize size) override;
    void UseColors() override { m_grid.UseColors(); }
    CRect FocusRect() override { return m_grid.FocusRect(); }

private:
    ChangedGrid m_grid;
};
