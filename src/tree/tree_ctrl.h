// QVTreeCtrlEx: a tree with columns, coloured fields and check marks that draws itself.
//
// A row is one string in the shared row format (frame/styled_rows.h): its first field is the item's
// text, further fields stand at tab stops. The control speaks the vocabulary of the platform's tree
// control - HTREEITEM, TVI_, TVGN_, TVE_, TVIS_, TVHT_, NM_TREEVIEW and TVN_ - but is none: handles
// point at records of its own, state image 0 is a real picture, and a parent hears of a check mark
// by the selection codes with itemOld.hItem equal to itemNew.hItem.
//
// A dialog item of the platform's class, "SysTreeView32", may be taken over as any other: that
// class is asked for its font, and for nothing else. None of its bars, tips and notifications come
// up.
//
// Ownership: the control owns its items and its standard check images; image lists handed to
// SetImageList stay the caller's and must outlive the control's window. Item data are the caller's.
// A deleted handle points at zeroed memory until an insertion uses it again.
//
// Coordinates: row coordinates are client pixels plus the horizontal scroll position; GetItemRect,
// CalcItemRect and HitTest's rectangle are in them. All rows have one height.
//
// The font is that of the nearest ancestor that has one, looked up when the first item is measured
// and kept until the window is destroyed. Set image lists before the first item too: the row height
// follows both.
//
// Without memory an operation gives its error result and the tree is as it was; one that has none
// does nothing. Only where a result has no room for that - the constructor, a CString, the step
// CalcItemRect - a CMemoryException leaves it. A refit or a paint that fails is made up for by the
// next one. Steps that a derived class replaces may throw CMemoryException or std::bad_alloc.
//
// With EnableExpectedKeys, beside the arrows and the blank: Home and End lead to the first and the
// last row, Page Up and Page Down a page on; on the number pad + opens a branch, - closes it and *
// opens all below it, each with its notifications; letters lead to the next row that begins with
// them. All select, with the notifications of a click.
//
// Screen readers hear an outline of the displayable rows: see docs/accessibility.md. A part is the
// item with that number (GetItemPart), for as long as the item is there.
//
// Bulk changes go between SetRedraw(FALSE) and SetRedraw(TRUE), as with any control.

#pragma once

#include "frame/accessible.h"
#include "frame/expected_keys.h"
#include "frame/styled_rows.h"

#include <afxcmn.h>
#include <afxwin.h>

#include <memory>
#include <typeinfo>

namespace qv {
class TreeItems;
class TreeView;
}  // namespace qv

class QV_CONTROLS_API QVTreeCtrlEx : public CWnd,
                                     public QVStyledRows,
                                     public QVExpectedKeys,
                                     public QVAccessible {
    DECLARE_DYNCREATE(QVTreeCtrlEx)

public:
    QVTreeCtrlEx();
    ~QVTreeCtrlEx() override;

    // Window styles that matter beside the usual ones: TVS_HASLINES (lines, and with them buttons),
    // TVS_HASBUTTONS, TVS_LINESATROOT, TVS_SHOWSELALWAYS. May be called again after destruction.
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParent, UINT nID);

    // --- Settings. None repaints.

    // Users may change check marks. On at first.
    void SetAllowTags(BOOL bAllow);
    // Root items have check marks too. Off at first.
    void SetShowStatesAtRoot(BOOL bShow);
    // A user's check mark goes on to all descendants, each with its notifications. On at first.
    void SetAutoTagChildren(BOOL bAuto);

    // --- Items

    // The new item, or null without memory. hParent null or TVI_ROOT: root level. hInsertAfter:
    // TVI_FIRST, TVI_LAST (also for null), TVI_SORT (before the first sibling for which
    // CompareItems gives exactly -1) or an item, behind which the new one goes - with that item's
    // parent, if it has another than hParent.
    HTREEITEM InsertItem(LPCSTR pszText, int nImage, int nSelectedImage, HTREEITEM hParent,
                         HTREEITEM hInsertAfter);
    // With all below it; null or TVI_ROOT deletes everything. A selection in there moves to the row
    // below or above, silently. 1, or 0 for a handle deleted before.
    BOOL DeleteItem(HTREEITEM hItem);
    BOOL DeleteChildren(HTREEITEM hItem);
    BOOL DeleteAllItems();
    // Moves an item with all below it to the end of another parent's children. 0 if that lies below
    // the item or is it. Levels below the item stay as they were until reinserted.
    BOOL ChangeParent(HTREEITEM hItem, HTREEITEM hNewParent);
    // Sorts the direct children by CompareItems; 0 for null, without children and without memory.
    // The view keeps its top row, but stays full.
    BOOL SortChildren(HTREEITEM hParent);
    // First direct child whose whole row behind the first style code equals strText, case ignored,
    // and whose image is nImage (-1: any).
    HTREEITEM FindItem(HTREEITEM hParent, const CString& strText, int nImage);

    // --- Navigation

    // By TVGN_ code. TVGN_ROOT gives the top ancestor of hItem; TVGN_CHILD of null the first root.
    HTREEITEM GetNextItem(HTREEITEM hItem, UINT nCode);
    HTREEITEM GetChildItem(HTREEITEM hItem) { return GetNextItem(hItem, TVGN_CHILD); }
    HTREEITEM GetParentItem(HTREEITEM hItem) { return GetNextItem(hItem, TVGN_PARENT); }
    HTREEITEM GetNextSiblingItem(HTREEITEM hItem) { return GetNextItem(hItem, TVGN_NEXT); }
    HTREEITEM GetPrevSiblingItem(HTREEITEM hItem) { return GetNextItem(hItem, TVGN_PREVIOUS); }
    HTREEITEM GetRootItem() { return GetNextItem(nullptr, TVGN_CHILD); }
    HTREEITEM GetSelectedItem();
    HTREEITEM GetLastChild(HTREEITEM hItem);
    // The whole tree in pre-order, whatever is expanded.
    HTREEITEM WalkNext(HTREEITEM hItem);
    HTREEITEM WalkPrev(HTREEITEM hItem);
    // The row below and above.
    HTREEITEM NextDisplayableItem(HTREEITEM hItem);
    HTREEITEM LastDisplayableItem(HTREEITEM hItem);
    // 1 for a proper ancestor.
    BOOL CheckForAncestor(HTREEITEM hItem, HTREEITEM hAncestor);

    // --- Attributes. A null handle gives 0 or nothing.

    // The row as stored, with its style codes and TABs.
    CString GetItemText(HTREEITEM hItem);
    // Without memory the old text stays. Scroll ranges are fitted with the next change of rows.
    void SetItemText(HTREEITEM hItem, const CString& strText);
    DWORD_PTR GetItemData(HTREEITEM hItem);
    BOOL SetItemData(HTREEITEM hItem, DWORD_PTR dwData);
    BOOL GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage);
    int GetItemImage(HTREEITEM hItem);  // -1 for null
    // The result is always 0 and says nothing.
    BOOL SetItemImage(HTREEITEM hItem, int nImage);
    BOOL SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage);
    // The whole state word.
    UINT GetItemState(HTREEITEM hItem);
    // Sets bits and nothing else: no repaint, no selection, no refit.
    void SetItemState(HTREEITEM hItem, UINT nState, UINT nMask);
    UINT StateImageFromState(UINT nState);
    UINT SetStateImage(UINT nState, UINT nImage);
    BOOL HaveStateImage(HTREEITEM hItem);
    UINT GetItemStateImage(HTREEITEM hItem);
    // Nothing happens to an item without state image, nor to those below it then. No notification.
    void SetItemStateImage(HTREEITEM hItem, UINT nImage, BOOL bChildren);
    BOOL GetCheck(HTREEITEM hItem);
    void SetCheck(HTREEITEM hItem, BOOL bCheck, BOOL bChildren);
    // The next item in pre-order whose state image is nState, or with 255 is any but 0; from the
    // first root for null.
    HTREEITEM GetNextCheckedItem(HTREEITEM hItem, UINT nState);
    // Fills what pItem->mask asks of pItem->hItem. Text is cut at cchTextMax - 1 bytes, between
    // characters.
    BOOL GetItem(TVITEM* pItem);

    // --- Styles, beside those of QVStyledRows

    using QVStyledRows::AppendStyleText;
    // Overwrites the style code of a text that has one, in place; 0 for a text without.
    BOOL ChangeStyle(char* pszText, int nStyle);
    // Restyles an item and, with bUpTheTree, its ancestors; bOnlyDefault spares rows in a style
    // other than 0, and rows without a code are passed over. Gives the number changed.
    int ChangeItemStyles(HTREEITEM hItem, int nStyle, BOOL bUpTheTree, BOOL bOnlyDefault);

    // --- Columns

    // Stops in pixels, plus 10000 for centred or 20000 for right-aligned columns; at most 20 are
    // taken. nCount -1 counts up to the first 0.
    void UseTabs(const int* pTabs, int nCount);
    void ClearTabs();
    int GetTabValue(int nTab);
    void SetTabValue(int nTab, int nValue);
    UINT GetTabFormat(int nTab);  // DT_LEFT, DT_CENTER or DT_RIGHT
    void SetTabFormat(int nTab, UINT nFormat);
    // TRUE: stops count from the start of the item's text. FALSE: from the start of the row, so
    // that columns line up across levels. No repaint.
    void SetIndentTabs(BOOL bIndent);

    // --- Images

    // TVSIL_NORMAL or TVSIL_STATE. Gives the list before. No repaint, and no new row height.
    CImageList* SetImageList(CImageList* pImageList, int nImageList);
    // Empty, ticked, grey empty, grey ticked box.
    void LoadStandardCheckStates();
    // State images 12 pixels wide from a bitmap resource; RGB(0,128,128) is transparent. 0 if there
    // is no such bitmap; the images loaded before stay then.
    BOOL LoadTreeStates(UINT nBitmapId);

    // --- Geometry and view

    // Row coordinates; 0 for an item that is not on screen.
    BOOL GetItemRect(HTREEITEM hItem, LPRECT pRect, BOOL bTextOnly);
    // The item at a point in client pixels; both pointers may be null.
    HTREEITEM HitTest(CPoint pt, UINT* pFlags, CRect* pRect);
    BOOL ItemVisible(HTREEITEM hItem);
    BOOL ItemExpanded(HTREEITEM hItem);
    BOOL EnsureVisible(HTREEITEM hItem);
    // TVE_COLLAPSE, TVE_EXPAND or TVE_TOGGLE. Tells nobody, but a selection that is hidden by it
    // moves to hItem with notifications. bCollapseChildren closes the direct children as the item
    // opens.
    BOOL Expand(HTREEITEM hItem, UINT nCode, BOOL bInvalidate, BOOL bCollapseChildren);
    // Tells nobody; null clears the selection. 0 if hItem is the selection already.
    BOOL SelectItem(HTREEITEM hItem);
    void InvalidateItem(HTREEITEM hItem, BOOL bErase);

    // --- What a screen reader is told

    // Headings of the columns, a row string: the fields behind the first are said with them then
    // ("Size: 3 GB"), in an item's description. Without headings an item's name is its whole row.
    void SetAccessibleHeadings(const CString& strHeadings) { m_strHeadings = strHeadings; }
    const CString& GetAccessibleHeadings() const { return m_strHeadings; }
    // The item of a part, and the part of an item; null and 0 for none.
    HTREEITEM GetPartItem(long nPart) const;
    long GetItemPart(HTREEITEM hItem) const;

    // Name: the fields that are shown. Value: the level, from 0. Description: the columns under
    // their headings, and which of its siblings the item is: "3 of 7".
    CString GetAccessibleName(long nPart) override;
    CString GetAccessibleValue(long nPart) override;
    CString GetAccessibleDescription(long nPart) override;
    // "Expand" or "Collapse" of an item with children; of another with a check mark that users may
    // change, "Check" or "Uncheck".
    CString GetAccessibleAction(long nPart) override;
    long GetAccessibleRole(long nPart) override;
    long GetAccessibleState(long nPart) override;
    BOOL GetAccessibleRect(long nPart, CRect& rect) override;
    BOOL IsAccessiblePart(long nPart) override;
    long GetAccessibleCount() override;
    long GetAccessiblePart(long nIndex) override;
    long GetAccessibleIndex(long nPart) override;
    long AccessibleHitTest(CPoint pt) override;
    // Left leads to the parent, right to the first child of an item that is expanded.
    long NavigateAccessible(long nPart, long nDirection) override;
    long GetNextAccessibleSelected(long nPart) override;
    BOOL SelectAccessible(long nPart, long nFlags) override;
    BOOL DoAccessibleAction(long nPart) override;

    afx_msg LRESULT OnRegisteredMouseWheel(WPARAM wParam, LPARAM lParam);

    // --- Steps that a derived class may replace

    // -1, 0 or 1: the order used by TVI_SORT and SortChildren.
    virtual int CompareItems(HTREEITEM hItem1, HTREEITEM hItem2);
    // Rectangle of a row whose top is nTop, or of its text cell. dc has the tree's font selected.
    virtual void CalcItemRect(CDC& dc, int nTop, HTREEITEM hItem, CRect& rect, BOOL bTextOnly);
    // Draws the row right of its button; what is drawn is excluded from the clip.
    virtual void DrawItem(CDC& dc, HTREEITEM hItem, const CRect& rect);
    // Draws lines and button left of the row.
    virtual void DrawItemSymbols(CDC& dc, HTREEITEM hItem, const CRect& rect);
    virtual void DrawItemButton(CDC& dc, const CRect& rect, BOOL bExpanded);
    virtual COLORREF GetTextColor(HTREEITEM hItem);
    virtual COLORREF GetBkColor(HTREEITEM hItem);

protected:
    // A derived class counts as one that replaces CompareItems and CalcItemRect: sorting asks the
    // one for each pair, each refit of the scroll bars the other for each displayable row. A class
    // that replaces neither may say so with its own type, for the speed of many rows; a class
    // derived from that one is asked again:
    //
    //     PackageTree::PackageTree() { KeepSteps(typeid(PackageTree)); }
    void KeepSteps(const std::type_info& derived);

    // --- What the steps and handlers of a derived class see of their tree

    // First and last row that is fully shown, null without items. They may be stale while redraw
    // is off.
    HTREEITEM GetTopItem() const;
    HTREEITEM GetBottomItem() const;
    // What WM_SETREDRAW said last.
    BOOL GetRedraw() const;
    BOOL GetShowStatesAtRoot() const;
    BOOL GetIndentTabs() const;
    int GetTabCount() const;
    // Right edge of the widest displayable row, in row coordinates.
    int GetMaxWidth() const;
    // Pixels by which the rows are scrolled to the left: what is added to client pixels.
    int GetHScrollPos() const;
    // Index of the top row among the displayable ones.
    int GetVScrollPos() const;
    // Pixels and rows a page; 0 while there is no such scroll bar.
    int GetHPage() const;
    int GetVPage() const;
    // Of image 0 of a list; 0 before there is one.
    CSize GetImageSize() const;
    CSize GetStateImageSize() const;
    // Pixels by which each level moves a row to the right.
    int GetIndentStep() const;
    // Pixels; 0 while there is neither a font nor an image.
    int ItemHeight();

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void PreSubclassWindow() override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void DrawDottedLine(CDC& dc, int x1, int y1, int x2, int y2);
    void OutputFormattedText(CDC& dc, const CRect& rect, const CString& strText, BOOL bSelected);

    // Selection and check mark with notification, refused by a non-zero answer of the parent.
    void NfySelectItem(HTREEITEM hItem);
    void NfyChangeStateImage(HTREEITEM hItem, UINT nImage);
    LRESULT NotifyParent(UINT nCode, UINT nAction, HTREEITEM hOld, HTREEITEM hNew);
    LRESULT NotifyParent(UINT nCode, UINT nAction, HTREEITEM hOld, HTREEITEM hNew, CPoint pt);
    void MakeTVItem(HTREEITEM hItem, TVITEM& item, BOOL bQuery);

    afx_msg void OnPaint();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnVScroll(UINT nCode, UINT nPos, CScrollBar* pBar);
    afx_msg void OnHScroll(UINT nCode, UINT nPos, CScrollBar* pBar);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint pt);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint pt);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint pt);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg LRESULT OnSetRedraw(WPARAM wParam, LPARAM lParam);
    afx_msg void OnDestroy();
    afx_msg void OnSysColorChange();
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    CImageList* m_pImageList = nullptr;       // not owned
    CImageList* m_pStateImageList = nullptr;  // not owned, or m_imlStates
    CImageList m_imlStates;
    CBrush m_brBackground;  // both live for one paint
    CPen m_penLines;
    HFONT m_hFont = nullptr;         // found, not owned
    BOOL m_bAllowTags = TRUE;        // users may change check marks
    BOOL m_bAutoTagChildren = TRUE;  // a user's check mark goes on to all descendants

private:
    class Core;
    class Guard;
    using CWnd::Create;

    qv::TreeView& View() const;
    const qv::TreeItems& Items() const;
    bool MayReplaceSteps() const;
    void FindFont();
    void InvalidateAll();
    bool IsHighlighted(HTREEITEM hItem);
    void DrawBranchLine(CDC& dc, HTREEITEM hItem, const CRect& rcItem, const CRect& rcText);
    void DrawImage(CDC& dc, CImageList& images, int nImage, CRect rcCell, CSize size);
    void DrawTreeLines(CDC& dc, HTREEITEM hItem, const CRect& rcCell, int nShift, int nRight);
    bool ToggleByMouse(HTREEITEM hItem);
    bool ExpandByKey(HTREEITEM hItem, bool bKeepsChildren = false);
    bool CollapseByKey(HTREEITEM hItem);
    void StepSelection(bool bDown);
    void SelectParent(HTREEITEM hItem);
    bool TakeExpectedKey(UINT nKey);
    bool TakeTypedChar(UINT nChar);
    HTREEITEM KeyTarget(UINT nKey, HTREEITEM hFrom);
    HTREEITEM FindTyped();
    void SelectAndShow(HTREEITEM hItem);
    void ExpandBranch(HTREEITEM hItem);
    bool ChangeOneStateImage(HTREEITEM hItem, UINT nImage);
    void ToggleCheck(HTREEITEM hItem);
    void DrawFocusFrame(bool bFocus);

    void DropPlatformTips();
    CString SpokenFields(HTREEITEM hItem, bool bName);
    template <class Removal>
    BOOL TellRemoval(Removal remove);
    void TellItem(DWORD nEvent, HTREEITEM hItem) const;

    const std::type_info* m_pKeepsSteps = nullptr;
    CString m_strHeadings;
    UINT m_chOfKey = 0;            // that a key of the number pad leaves behind
    bool m_bPlatformTree = false;  // the window is of the platform's class
    std::unique_ptr<Core> m_pCore;
};
