// What a list keeps of its rows between two AddBitmapString calls, and whether it still holds.

#pragma once

#include "list/core/sorted_places.h"
#include "list/list_ctrl.h"

class QVListCtrlEx::Places {
public:
    // Texts that the owner supplies on demand change without a message: then nothing is kept.
    void SeeText(LPCSTR pszText) { m_bCallbacks = m_bCallbacks || pszText == LPSTR_TEXTCALLBACK; }
    void CountChange() { ++m_nChanges; }
    // A change that the list itself is about to make.
    void CountOwnChange() { ++m_nOwnChanges; }
    int ForeignChanges() const { return m_nChanges - m_nOwnChanges; }

    bool Valid(bool bNumeric, int nItems, int nColumns) const {
        return m_bValid && m_bNumeric == bNumeric && !m_bCallbacks &&
               m_nValidFor == ForeignChanges() && static_cast<int>(rows.Count()) == nItems &&
               m_nColumns == nColumns;
    }
    void SetValid(bool bNumeric, int nColumns) {
        m_bValid = true;
        m_bNumeric = bNumeric;
        m_nColumns = nColumns;
        m_nValidFor = ForeignChanges();
    }
    void Invalidate() { m_bValid = false; }

    qv::SortedPlaces rows;

private:
    bool m_bValid = false;
    bool m_bNumeric = false;
    bool m_bCallbacks = false;
    int m_nColumns = 0;
    int m_nChanges = 0;
    int m_nOwnChanges = 0;
    int m_nValidFor = 0;
};
