// QVFlexGridCtrl: a flexible grid (flex_grid.h) whose selection is read in order, and whose cells
// have tool tips.
//
// Create the grid and fill it, then call EnableToolTip; the text of a cell comes from
// GetCellToolTip of a derived class, asked for as the mouse rests on the cell. The tips belong to
// the window that the grid has at that moment. Nothing here lets an exception of the control
// through, other than the members that CFlexGrid has.

#pragma once

#include "activex/flex_grid.h"
#include "frame/alive.h"
#include "frame/qv_api.h"

#include <afxcmn.h>

class QV_CONTROLS_API QVFlexGridCtrl : public CFlexGrid {
public:
    QVFlexGridCtrl();
    ~QVFlexGridCtrl() override;

    // The selected block, whichever way it was dragged; zeros where the control does not tell.
    void GetSelectedRange(int& nTopRow, int& nBottomRow, int& nLeftCol, int& nRightCol);

    // Gives each cell that is not fixed a tool, at the place that it has now, under the number
    // row * rows + column (the rows multiply, so that in a grid with more columns than rows cells
    // may share a number). The number is a UINT_PTR: on 32-bit systems its 32 bits may wrap in
    // grids of more than 65,535 rows, and cells share numbers there too. Later scrolling and sizing
    // do not move the tools; the text is still that of the cell under the mouse. Only once for a
    // grid.
    //
    // Beyond kMaxToolTips cells only those places get a tool that the mouse can reach, which are
    // those on the screen if the grid were as large: tools are searched and added one by one.
    void EnableToolTip();
    enum { kMaxToolTips = 4096 };

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    // Bytes that GetCellToolTip may write, with the end of the text. All are 0 at first.
    enum { kToolTipRoom = 1024 };

    // The text of a cell's tip, in the process's code page, and whether there is one: above 0.
    // nRow and nCol are -1 or beyond the grid where the control says so. Here: 0. The grid may be
    // destroyed or deleted in here.
    virtual int GetCellToolTip(int nRow, int nCol, char* pszText);

    CToolTipCtrl* m_pToolTip = nullptr;  // null until EnableToolTip

    // The result is 1 if there is a text, else 0.
    afx_msg void OnGetToolTipInfo(NMHDR* pNMHDR, LRESULT* pResult);

    DECLARE_MESSAGE_MAP()

private:
    void AddCellTools();
    void FollowCell(UINT nMessage);

    char m_szToolTip[kToolTipRoom] = "";  // what the tip shows, as long as it does
    static constexpr long kNoCell = -2;   // -1 is what a control may say outside of its cells
    long m_nTipRow = kNoCell;             // the cell that the mouse was over last
    long m_nTipCol = kNoCell;
    qv::AliveToken m_alive;
};
