// Finding a text in what a control shows: its rows and columns as they stand, without what a filter
// or a closed branch hides. The next row behind the one with the focus that has it is shown and
// selected.

#pragma once

#include "QVControls.h"
#include "pages/text_query.h"

struct FindResult {
    bool bFound = false;
    bool bWrapped = false;  // the search went on at the other end
    CString strPlace;       // what was searched, as "the list"; empty: nothing can be
};

FindResult FindInList(QVListCtrlEx& list, const TextQuery& query, bool bDown);
FindResult FindInBox(QVBitmapListBox& box, const TextQuery& query, bool bDown);
FindResult FindInGrid(QVGridCtrl& grid, const TextQuery& query, bool bDown);
FindResult FindInText(QVTextWnd& text, const TextQuery& query, bool bDown);
// In whichever of these the control is.
FindResult FindInControl(CWnd& control, const TextQuery& query, bool bDown);

// Some field of a row string has the text.
bool RowHas(const QVStyleTable& styles, const CString& strRow, const TextQuery& query);
