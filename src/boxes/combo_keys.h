// Rows that are chosen in a combo box as keys do it; type-ahead where it is a list without an edit.

#pragma once

#include "frame/alive.h"
#include "frame/core/typed_search.h"
#include "frame/notify.h"

#include <afxwin.h>

namespace qv {

// Selects a row as an arrow key does. The parent is told, and may take the box away.
inline void ChooseRow(CComboBox& box, const AliveToken& alive, int nRow) {
    const WindowWatch watch(alive, box.m_hWnd);
    const bool bClosed = !box.GetDroppedState();
    box.SetCurSel(nRow);
    if (watch && (!bClosed || CommandParent(box, alive, CBN_SELENDOK).bAlive)) {
        CommandParent(box, alive, CBN_SELCHANGE);
    }
}

// A character that was typed: the row that begins with it is selected, and the parent told as of a
// key. textOf(nRow) gives what a row shows, or null once the box is gone. False if it is none that
// is searched for; the box may be gone otherwise.
template <class TextOf>
bool TakeTypedChar(CComboBox& box, const AliveToken& alive, TypedSearch& typed, UINT nChar,
                   TextOf textOf) {
    constexpr DWORD kKinds = CBS_SIMPLE | CBS_DROPDOWN | CBS_DROPDOWNLIST;
    if ((box.GetStyle() & kKinds) != CBS_DROPDOWNLIST) {
        return false;
    }
    const auto answer =
        typed.Type(static_cast<unsigned char>(nChar), static_cast<unsigned>(::GetMessageTime()));
    if (answer != TypedSearch::Answer::Searches) {
        return answer != TypedSearch::Answer::NotTyped;
    }
    const WindowWatch watch(alive, box.m_hWnd);
    const int nCurrent = box.GetCurSel();
    const int nFound = typed.Find(box.GetCount(), nCurrent, textOf);
    if (!watch || nFound == -1 || nFound == nCurrent) {
        return true;
    }
    ChooseRow(box, alive, nFound);
    return true;
}

}  // namespace qv
