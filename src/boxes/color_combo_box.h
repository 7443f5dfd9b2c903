// QVColorComboBox: an owner-drawn combo box for picking a colour out of a table. Each row shows a
// small square in its colour and a text.
//
// In a dialog template the item has CBS_OWNERDRAWVARIABLE and CBS_HASSTRINGS; a combo box made by
// Create gets them. Then Initialize, once, and the rows. The platform asks for a row's height when
// the row comes: rows that come before Initialize keep the platform's.
//
// Each row is one string of the platform's control: the text, a TAB and the number of the colour in
// the table. The text may hold TABs itself.
//
// With EnableExpectedKeys, letters lead to the next row that begins with them as it is shown, in
// boxes without an edit; the parent is told as of an arrow key.
//
// Screen readers hear a combo box and the list that it opens: see docs/accessibility.md.
//
// Without memory nothing is thrown: what reports failure reports it. The parent may delete rows and
// destroy the control whenever it is told something, but in the WM_MEASUREITEM of a row that comes
// and in the WM_DELETEITEM of a single row, which the platform's own control does not live through.
// Sizes are in pixels.

#pragma once

#include "boxes/combo_accessible.h"
#include "frame/alive.h"
#include "frame/expected_keys.h"
#include "frame/qv_api.h"

#include <afxtempl.h>
#include <afxwin.h>

class QV_CONTROLS_API QVColorComboBox : public CComboBox,
                                        public QVExpectedKeys,
                                        public QVComboAccessible {
    DECLARE_DYNCREATE(QVColorComboBox)

public:
    QVColorComboBox() : QVComboAccessible(static_cast<CComboBox&>(*this), m_alive) {}

    // --- Creation

    // Attaches to the dialog item nID if there is no window yet, takes the font of the nearest
    // parent if it has none, and copies nColors colours; a null table is one without colours. 0 if
    // there is no such item, or no memory. Each further call makes rows 2 pixels higher.
    int Initialize(UINT nID, COLORREF* pColors, int nColors, CWnd* pParent);

    // --- Rows

    // Index of the row, or CB_ERR or CB_ERRSPACE. A colour that the table does not have is taken:
    // its square stays empty.
    int InsertColorString(int nColor, int nIndex, LPCSTR pszText);
    // The colour's number in the table; -1 for a row that is none or is empty, 0 for one without a
    // number.
    int GetColor(int nIndex);

    // What a screen reader hears of a row: the text as it is shown in the list; without one, its
    // colour.
    CString GetAccessibleRow(int nRow) override;

    void DrawItem(LPDRAWITEMSTRUCT pDraw) override;
    void MeasureItem(LPMEASUREITEMSTRUCT pMeasure) override;

protected:
    // --- Steps that a derived class may replace

    // What is drawn of a row. bComboEdit: in the part that shows the selected row.
    virtual void GetDisplayText(int nItem, DWORD_PTR dwItemData, int bComboEdit, CString& strText);
    // Draws the square of a colour, m_nItemHeight - 1 wide, with its upper left corner at pt. Its
    // outline is the context's current pen, and what is inside of that its current brush.
    virtual void DrawColorBox(CDC* pDC, int nColor, const CPoint& pt);

    // Splits a stored string at its last TAB. Without one all of it is text, and the colour 0.
    void ExtractInfo(LPCSTR pszStored, int& nColor, CString& strText) const;
    // The height of the font as it was asked for, and 2; another 2 at each further call.
    void CalcItemHeight();

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    afx_msg void OnMeasureItem(int nCtlID, LPMEASUREITEMSTRUCT pMeasure);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    DECLARE_MESSAGE_MAP()

    CArray<COLORREF, COLORREF> m_aColors;
    int m_nItemHeight = 0;   // also the side of the square; 0: not known
    qv::AliveToken m_alive;  // for whoever leads out of the control

private:
    bool SetUp(const COLORREF* pColors, int nColors);
    void DrawRow(const DRAWITEMSTRUCT& draw);
};
