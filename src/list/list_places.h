// What a list keeps of its rows between two AddBitmapString calls, and whether it still holds.

#pragma once

#include "list/core/sorted_places.h"
#include "list/list_ctrl.h"

class QVListCtrlEx::Places {
public:
    // Texts that the owner supplies on demand change without a message: then nothing is kept.
    void SeeText(LPCSTR pszText) { m_bCallbacks = m_bCallbacks || pszText == LPSTR_TEXTCALLBACK; }
    // Each message that changes a row, and each of those that the list is about to send itself.
    void CountChange() { ++m_nChanges; }
    void CountSent() { ++m_nSent; }
    // Unless it is the same after a call as before, somebody else has changed rows meanwhile.
    int ForeignChanges() const { return m_nChanges - m_nSent; }

    bool Valid(bool bNumeric, int nItems, int nColumns, int nStyles) const {
        return m_bValid && m_bNumeric == bNumeric && !m_bCallbacks && m_nValidFor == m_nChanges &&
               static_cast<int>(rows.Count()) == nItems && m_nColumns == nColumns &&
               m_nStyles == nStyles;
    }
    void SetValid(bool bNumeric, int nColumns, int nStyles) {
        m_bValid = true;
        m_bNumeric = bNumeric;
        m_nColumns = nColumns;
        m_nStyles = nStyles;
        m_nValidFor = m_nChanges;
    }
    void Invalidate() { m_bValid = false; }

    qv::SortedPlaces rows;

private:
    bool m_bValid = false;
    bool m_bNumeric = false;
    bool m_bCallbacks = false;
    int m_nColumns = 0;
    int m_nStyles = 0;
    int m_nChanges = 0;
    int m_nSent = 0;
    int m_nValidFor = 0;
};
