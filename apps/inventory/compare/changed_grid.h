// ChangedGrid: packages that have changed: a row each below a fixed heading, sections merged at the
// left, colours for what has changed, and all of it in the tips of the cells.

#pragma once

#include "QVControls.h"
#include "model/comparison.h"

class ChangedGrid : public QVFlexGridCtrl {
public:
    // Fills pParent.
    BOOL Make(CWnd* pParent, UINT nID);
    // What has the focus and what is on top stay so, if they are still there. The differences must
    // outlive what is shown of them.
    void Show(const std::vector<Difference>& differences);
    // Colours what has changed for the system's colours of the moment.
    void UseColors();
    // The last column takes what the others leave.
    void Fit();
    // Of the differences, the cell with the focus in it; -1: there is none.
    int Row();
    void GoTo(int nRow);
    // The cell with the focus; empty where it is scrolled away.
    CRect FocusRect();
    // All cells but those of the headings; the first one has the focus.
    void SelectAll();
    // What is selected, as it shows.
    CString SelectedText();

    enum { kSection, kName, kArchitecture, kBefore, kNow, kSize, kChange, kColumns };
    static CString CellText(const Difference& difference, int nCol);
    static int CellStyle(const Difference& difference, int nCol);

protected:
    BOOL PreTranslateMessage(MSG* pMsg) override;
    int GetCellToolTip(int nRow, int nCol, char* pszText) override;

private:
    void Fill();
    CString KeyOf(long nGridRow);
    void ColorColumns();
    void ColorColumn(int nCol);
    // Null in a row without.
    const Difference* At(long nGridRow) const;

    const std::vector<Difference>* m_pDifferences = nullptr;
    long m_nLeastWidth = 0;  // of the last column, in twips
    CString m_strFront;      // keys of rows, while the grid is filled anew
    CString m_strTop;
};
