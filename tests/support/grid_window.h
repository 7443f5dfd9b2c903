// A grid in a parent that writes down what it is told and may answer, on the screen.
#pragma once

#include "QVControls.h"
#include "support/tree_window.h"

#include <functional>
#include <string>

constexpr UINT kGridId = 79;
constexpr int kGridEditChild = 100;
constexpr UINT kButtonOrList = 0;  // high words of the notifications, and EN_CHANGE
constexpr UINT kListChanged = 1;

// What only derived classes see.
class OpenGrid : public QVGridCtrl {
public:
    using QVGridCtrl::ButtonRectFromCellRect;
    using QVGridCtrl::CalcCellRect;
    using QVGridCtrl::m_bEditing;
    using QVGridCtrl::m_bIgnoreFocus;
    using QVGridCtrl::m_nCellHeight;
    using QVGridCtrl::m_nTopRow;
    using QVGridCtrl::RowAt;
};

class AnsweringParent : public FontParent {
public:
    using FontParent::FontParent;
    // Called with the high word of each command after it was written down.
    std::function<void(UINT nCode)> m_answer;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        const BOOL bDone = FontParent::OnCommand(wParam, lParam);
        if (m_answer && LOWORD(wParam) == kGridId) {
            m_answer(HIWORD(wParam));
        }
        return bDone;
    }
};

// Five columns, one of each kind, and another control under the grid.
enum GridColumn { kStatic, kEdit, kEditButton, kList, kButton };

// Stops at the first list box that shows.
inline BOOL CALLBACK FindShownList(HWND hWnd, LPARAM lParam) {
    char szClass[20] = "";
    ::GetClassName(hWnd, szClass, sizeof szClass);
    if (::_stricmp(szClass, "LISTBOX") != 0 || !::IsWindowVisible(hWnd)) {
        return TRUE;
    }
    *reinterpret_cast<HWND*>(lParam) = hWnd;
    return FALSE;
}

template <class Grid = OpenGrid>
class GridWindow {
public:
    explicit GridWindow(int nRows, CSize size = CSize(420, 200))
        : parent(CSize(size.cx, size.cy + 40)), grid(*new Grid) {
        for (const char* psz : {"one", "two", "three"}) {
            choices.Add(psz);
        }
        grid.AddColumn(gctStatic, 60);
        grid.AddColumn(gctEdit, 80);
        grid.AddColumn(gctEditButton, 90);
        grid.AddColumn(gctDropList, 80);
        grid.AddColumn(gctButton, 50);
        grid.SetColListData(kList, &choices);
        for (int i = 0; i < nRows; ++i) {
            grid.AddRow("name\tabc\tdef\tone\tbtn", 0);
        }
        grid.Create(kGridId, CRect(CPoint(0, 0), size), &parent);
        other.Create(WS_CHILD | WS_VISIBLE, CRect(0, size.cy + 10, 100, size.cy + 30), &parent, 5);
        grid.UpdateWindow();
    }
    ~GridWindow() {
        if (!bDeleted) {
            delete &grid;
        }
    }
    GridWindow(const GridWindow&) = delete;
    GridWindow& operator=(const GridWindow&) = delete;

    // As a parent would do in the middle of a notification.
    void DeleteGrid() {
        bDeleted = true;
        delete &grid;
    }
    CRect CellRect(int nRow, int nCol) {
        CRect rc(0, 0, 0, 0);
        grid.CalcCellRect(nRow, nCol, rc);
        return rc;
    }
    CRect ButtonRect(int nRow, int nCol) {
        CRect rc = CellRect(nRow, nCol);
        grid.ButtonRectFromCellRect(rc);
        return rc;
    }
    // Left in the cell, where no button is.
    CPoint At(int nRow, int nCol) {
        const CRect rc = CellRect(nRow, nCol);
        return CPoint(rc.left + 8, rc.CenterPoint().y);
    }
    // What the grid gives for the cell, which may be what is being typed.
    std::string Text(int nRow, int nCol) {
        CString str;
        grid.GetCellText(nRow, nCol, str);
        return std::string(str);
    }
    std::string Current() {
        return std::to_string(grid.CurrentRow()) + "," + std::to_string(grid.CurrentColumn());
    }
    // The editors, or null while they do not show.
    HWND Edit() {
        HWND hWnd = ::GetDlgItem(grid.m_hWnd, kGridEditChild);
        return ::IsWindowVisible(hWnd) ? hWnd : nullptr;
    }
    HWND List() {
        HWND hWndList = nullptr;
        ::EnumThreadWindows(::GetCurrentThreadId(), FindShownList,
                            reinterpret_cast<LPARAM>(&hWndList));
        return hWndList;
    }
    std::string ListLine() {
        char szLine[80] = "-";
        const LRESULT lLine = ::SendMessage(List(), LB_GETCURSEL, 0, 0);
        if (List() != nullptr && lLine != LB_ERR) {
            ::SendMessage(List(), LB_GETTEXT, static_cast<WPARAM>(lLine),
                          reinterpret_cast<LPARAM>(szLine));
        }
        return szLine;
    }
    // A line of the open list in the grid's client pixels: the pointer goes there by way of the
    // grid, for a list that came to the front would be activated.
    CPoint LineAt(int nLine) {
        CRect rc;
        ::SendMessage(List(), LB_GETITEMRECT, static_cast<WPARAM>(nLine),
                      reinterpret_cast<LPARAM>(&rc));
        CPoint pt = rc.CenterPoint();
        ::MapWindowPoints(List(), grid.m_hWnd, &pt, 1);
        return pt;
    }
    // The selection of the open edit, "from-to".
    std::string Selected() {
        DWORD dwStart = 0;
        DWORD dwEnd = 0;
        ::SendMessage(Edit(), EM_GETSEL, reinterpret_cast<WPARAM>(&dwStart),
                      reinterpret_cast<LPARAM>(&dwEnd));
        return std::to_string(dwStart) + "-" + std::to_string(dwEnd);
    }
    // High words of the notifications since the last call.
    std::string Told() {
        std::string strTold;
        for (const auto& command : parent.m_commands) {
            if (command.id == kGridId) {
                strTold += command.hwnd != grid.m_hWnd ? "? "
                           : command.code == EN_CHANGE ? "change "
                                                       : std::to_string(command.code) + " ";
            }
        }
        parent.Forget();
        return strTold;
    }

    CStringArray choices;
    AnsweringParent parent;
    CEdit other;
    Grid& grid;
    bool bDeleted = false;
};
