// The grid's plain records: kinds of columns, states of rows and cells, and where editing stands.

#pragma once

#include <cstdint>

// What a column's cells are and do.
enum GridColType {
    gctStatic = 0,      // text alone
    gctButton = 1,      // text, with a "..." button in the current cell
    gctEdit = 2,        // edited in place
    gctEditButton = 3,  // both
    gctDropList = 4,    // chosen from a list, with an arrow button in the current cell
};

// Row states.
inline constexpr unsigned GRS_CURRENT = 1;
inline constexpr unsigned GRS_BUTTONDOWN = 8;
// Cell styles. GCS_FOCUS is never stored: painting adds it.
inline constexpr unsigned GCS_DISABLED = 4;
inline constexpr unsigned GCS_FOCUS = 16;
inline constexpr unsigned GCS_READONLY = 32;

class CStringArray;

struct _QVGRID_COL_INFO {
    int nWidth;  // pixels; the last column reaches the window's edge
    GridColType nType;
    CStringArray* pListData;  // the caller's choices, or null
    std::uintptr_t dwData;
};

struct _QVGRID_ROW_INFO {
    unsigned dwState;
    int nCellIndex;  // block of cells; -1: no memory for one
    std::uintptr_t dwData;
};

struct _QVGRID_CELL_INFO {
    int nString;  // 0: no text
    unsigned dwStyle;
    std::uintptr_t dwData;
};

// Where editing stands. The grid's core works on these fields, and classes derived from QVGridCtrl
// read and write them as members of it.
struct QVGridState {
    int m_bReadOnly = 0;  // the grid as a whole
    int m_nCurRow = -1;   // -1: no current cell
    int m_nCurCol = -1;
    int m_bEditing = 0;      // an editor is up
    int m_bIgnoreFocus = 0;  // the grid moves the focus itself
    int m_bBtnDown = 0;      // a cell's button is being pressed
    int m_bBtnOver = 0;      // with the pointer over it
};
