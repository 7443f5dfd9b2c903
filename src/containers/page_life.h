// How long the object of a page, or of a view of pages, lives: until its owner discards it and none
// of its functions runs any more, as of a button on it that closed everything.

#pragma once

#include "frame/alive.h"

#include <afxwin.h>

namespace qv {

// A member of the page. One that is not discarded belongs to whoever made it.
class PageLife {
public:
    explicit PageLife(CWnd& page) : m_page(page) {}

    // Keeps the object while one of its functions runs.
    class InUse {
    public:
        explicit InUse(PageLife& life) : m_life(life), m_watch(life.m_alive) { ++life.m_nInUse; }
        ~InUse() {
            if (m_watch.ObjectAlive() && --m_life.m_nInUse == 0 && m_life.m_bDiscarded) {
                delete &m_life.m_page;
            }
        }
        InUse(const InUse&) = delete;
        InUse& operator=(const InUse&) = delete;
        // False if somebody deleted it nevertheless.
        explicit operator bool() const { return m_watch.ObjectAlive(); }

    private:
        PageLife& m_life;
        const AliveWatch m_watch;
    };

    // Deletes the object, at once or as soon as none of its functions runs.
    void Discard() {
        m_bDiscarded = true;
        if (m_nInUse == 0) {
            delete &m_page;
        }
    }
    bool Discarded() const { return m_bDiscarded; }
    const AliveToken& Token() const { return m_alive; }

private:
    CWnd& m_page;
    AliveToken m_alive;
    int m_nInUse = 0;
    bool m_bDiscarded = false;
};

}  // namespace qv
