// ChangedGrid: packages that have changed: a row each below a fixed heading, sections merged at the
// left, colours for what has changed, and all of it in the tips of the cells.

#pragma once

#include "QVControls.h"
#include "model/comparison.h"

class ChangedGrid : public QVFlexGridCtrl {
public:
    // Fills pParent.
    BOOL Make(CWnd* pParent, UINT nID);
    // The differences must outlive what is shown of them.
    void Show(const std::vector<Difference>& differences);
    // The last column takes what the others leave.
    void Fit();
    // Of the differences, the cell with the focus in it; -1: there is none.
    int Row();
    void GoTo(int nRow);
    // What is selected, as it shows.
    CString SelectedText();

    static constexpr int kColumns = 7;
    static CString CellText(const Difference& difference, int nCol);
    static int CellStyle(const Difference& difference, int nCol);

protected:
    int GetCellToolTip(int nRow, int nCol, char* pszText) override;

private:
    void Fill();
    void ColorColumn(int nCol);

    const std::vector<Difference>* m_pDifferences = nullptr;
    long m_nLeastWidth = 0;  // of the last column, in twips
};
