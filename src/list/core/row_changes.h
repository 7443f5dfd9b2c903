// Keeps account of the changes to a list's rows, so that what was read from them can be kept as
// long as nobody changed them. The control tells of no change to a text but by the message that
// makes it.

#pragma once

namespace qv {

class RowChanges {
public:
    // A message that changes texts, item data, or which rows and columns there are.
    void CountContent() {
        ++m_nContent;
        ++m_nAll;
    }
    // The end of such a message: whoever read the rows on its way read them half changed.
    void EndContent() { ++m_nContent; }
    // Item data alone.
    void CountData() { ++m_nContent; }
    // The order of the rows alone.
    void CountOrder() { ++m_nAll; }
    // A text that the owner supplies on demand changes without a message, from now on.
    void SeeCallback() { m_bCallbacks = true; }
    // One of the messages counted in All that the list is about to send by itself.
    void CountSent() { ++m_nSent; }

    int Content() const { return m_nContent; }
    int All() const { return m_nAll; }
    // Unless it is the same after a call as before, somebody else has changed rows meanwhile.
    int Foreign() const { return m_nAll - m_nSent; }
    bool Callbacks() const { return m_bCallbacks; }

private:
    int m_nContent = 0;
    int m_nAll = 0;
    int m_nSent = 0;
    bool m_bCallbacks = false;
};

}  // namespace qv
