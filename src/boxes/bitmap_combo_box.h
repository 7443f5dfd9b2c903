// QVBitmapComboBox: an owner-drawn combo box whose rows show a small image and a text.
//
// In a dialog template the item has CBS_OWNERDRAWVARIABLE and CBS_HASSTRINGS; a combo box made by
// Create gets them. Then SortByImageIndex, if at all; Initialize; rows. The platform asks for a
// row's height once, when the row comes: rows that come before Initialize keep the platform's.
//
// Each row is one string of the platform's control, image number and text with a TAB between; that
// is what CB_GETLBTEXT gives, what CBS_SORT sorts by, and what a combo box with an edit shows in
// it. The text may begin with one style code (frame/styled_rows.h), which holds for the whole row.
// A style's background shows behind the letters alone, and -1 does not stand for none here.
//
// With EnableExpectedKeys, letters lead to the next row that begins with them as it is shown, in
// boxes without an edit; the parent is told as of an arrow key.
//
// Screen readers hear a combo box and the list that it opens: see docs/accessibility.md.
//
// Without memory nothing is thrown: what reports failure reports it, and rows stay as they are.
// The parent may delete rows and destroy the control whenever it is told something; what was under
// way then ends. In two messages the platform's own control does not live through its end: in the
// WM_MEASUREITEM of a row that comes, and in the WM_DELETEITEM of a single row.
//
// The control owns its images; item data are the caller's and as wide as a pointer. Sizes are in
// pixels.

#pragma once

#include "boxes/combo_accessible.h"
#include "frame/alive.h"
#include "frame/expected_keys.h"
#include "frame/styled_rows.h"

#include <afxcmn.h>
#include <afxwin.h>

namespace qv {
enum class NumberPlace;
}

class QV_CONTROLS_API QVBitmapComboBox : public CComboBox,
                                         public QVStyledRows,
                                         public QVExpectedKeys,
                                         public QVComboAccessible {
    DECLARE_DYNCREATE(QVBitmapComboBox)

public:
    QVBitmapComboBox() : QVComboAccessible(static_cast<CComboBox&>(*this), m_alive) {}

    // --- Creation

    // Attaches to the dialog item nID if there is no window yet, takes the font of the nearest
    // parent if it has none, and images nBitmapWidth wide from a bitmap resource, crMask being
    // transparent. 0 if there is no such item, or no such bitmap: the control then is attached, and
    // without images.
    int Initialize(UINT nID, UINT nBitmapID, COLORREF crMask, int nBitmapWidth, CWnd* pParent);
    // Stores the image number in front of the text, so that CBS_SORT groups rows by image, and
    // comparisons go by it first. Rows that are there already are not written anew, and misread.
    void SortByImageIndex(int bSort) { m_bSortByImageIndex = bSort; }

    // --- Rows

    // Index of the row, or CB_ERR or CB_ERRSPACE.
    int AddBitmapString(int nImage, LPCSTR pszText);
    int InsertBitmapString(int nImage, int nIndex, LPCSTR pszText);
    // The row with that image and that text, case aside; CB_ERR if there is none.
    int FindBitmapString(int nImage, LPCSTR pszText);
    // -1 for a row that is none or is empty; 0 for one without a number.
    int GetImage(int nIndex);
    // The text with its style code. 0, and strText as it was, for a row that is none or is empty.
    int GetItemString(int nIndex, CString& strText);
    // Puts a new row in the place of an old one, which tells the parent WM_DELETEITEM; image, item
    // data and selection stay. 0, and the old row stays, if the new one cannot be made.
    int SetItemString(int nIndex, LPCSTR pszText);

    // --- Comparing. No code of a style is taken off: it counts as two bytes of text.

    // A row given by image and text, and row nItem: below 0, 0 or above. Case does not count. To a
    // control without images all its rows are empty.
    int CompareToItem(int nImage, LPCSTR pszText, int nItem);

    // What a screen reader hears of a row: the text as it is shown in the list; images are not
    // heard.
    CString GetAccessibleRow(int nRow) override;

    void DrawItem(LPDRAWITEMSTRUCT pDraw) override;
    void MeasureItem(LPMEASUREITEMSTRUCT pMeasure) override;
    int CompareItem(LPCOMPAREITEMSTRUCT pCompare) override;

protected:
    // --- Steps that a derived class may replace

    // How far a row of the list is moved to the right, image and text; the part that shows the
    // selected row is not asked for.
    virtual int GetItemIndent(int nItem, DWORD_PTR dwItemData);
    // What is drawn of a row; a style code at its start is obeyed. bComboEdit: in the part that
    // shows the selected row. Without images it is the stored string, number included.
    virtual void GetDisplayText(int nItem, DWORD_PTR dwItemData, int bComboEdit, CString& strText);

    // Splits a stored string. Without a TAB all of it is text, and the image 0.
    void ExtractInfo(LPCSTR pszStored, int& nImage, CString& strText) const;
    // The higher of font and image, and 2. The font is measured once.
    void CalcItemHeight();

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    afx_msg void OnMeasureItem(int nCtlID, LPMEASUREITEMSTRUCT pMeasure);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysColorChange();
    DECLARE_MESSAGE_MAP()

    int m_nBitmapHeight = 0;  // 0: no images
    int m_nBitmapWidth = 0;
    int m_nFontHeight = 0;  // as it was asked for; 0: not known
    int m_nItemHeight = 0;  // 0: not known
    CImageList m_imageList;
    int m_bSortByImageIndex = FALSE;
    qv::AliveToken m_alive;  // for whoever leads out of the control

private:
    qv::NumberPlace Place() const;
    bool SetUp(UINT nBitmapID, COLORREF crMask, int nBitmapWidth);
    bool ReadImage(int nIndex, int& nImage);
    bool ReplaceRow(int nIndex, int nImage, LPCSTR pszText);
    void DrawRow(const DRAWITEMSTRUCT& draw);
};
