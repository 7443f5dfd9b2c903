// Rows and a page of them: where the messages of a scroll bar lead, which bars a view needs, and
// the refit when rows, page or client area are other ones. Rows stand for any unit that a bar
// counts: columns of characters and pixels scroll by the same arithmetic.
//
// Position and number of rows stay where the view has them; what is asked here takes them as a
// ScrollAxis. Views differ in what they fill in:
//
//                     ScrollSteps     ThumbLimit   position of a thumb
//     text, rows      {1, page}       Refused      ThumbPosition
//     text, columns   {1, page}       Refused      the message's
//     grid            {1, page - 1}   Clamped      the message's; of many rows ThumbPosition
//     tree, rows      {1, page - 1}   -            ThumbPosition
//     tree, pixels    {4, page}       Followed     twice the message's
//
// A message goes through MoveOf and Target. A view with steps of its own, as the tree has whose
// view begins at an item, takes the move apart itself.
//
// A refit goes in RowScroll::Fit, which keeps the calls out that its own bars bring about: PlanBars
// and ShowBar, or Settle where the rows depend on the room that they have.

#pragma once

#include "base/geometry.h"
#include "base/window_port.h"
#include "frame/alive.h"

#include <optional>

namespace qv {

// --- Where a scroll code leads

// What a bar scrolls over. Nothing has to hold between the members: rows go, and windows grow.
struct ScrollAxis {
    int nPos = 0;    // the first row that shows
    int nCount = 0;  // rows in all
    int nPage = 0;   // rows that show whole

    // The position of the last page; below 0 where the page is longer than all rows.
    int MaxPos() const { return nCount - nPage; }
    // The position so many rows on, the last page at most; none at the last page or behind it.
    // Rows below 0 count as 0, which leads to where the view is.
    std::optional<int> Down(int nRows) const;
    // The same towards the start.
    std::optional<int> Up(int nRows) const;
    // The position nearest to n that fills the page; 0 where none does.
    int Clamped(int n) const;
    // Once rows have gone or the page has grown: no empty space behind the last row while there
    // are rows before the first.
    int Refitted() const;
    // As the bar has it.
    ScrollRange Range() const { return {0, nCount - 1, nPage, nPos}; }
};

// Rows that a code moves; below 0 counts as 0.
struct ScrollSteps {
    int nLine = 1;
    int nPage = 0;
};

// What a scroll code asks for.
struct ScrollMove {
    enum class Kind { None, Up, Down, Top, Bottom, Thumb };
    Kind kind = Kind::None;
    int nRows = 0;  // of Up and Down; of Thumb the position
};

// nCode is an SB_ value, of either bar: SB_LEFT and SB_RIGHT are SB_TOP and SB_BOTTOM. nThumb is
// the position of the thumb, should that be what has moved.
ScrollMove MoveOf(unsigned nCode, ScrollSteps steps, int nThumb);

// What becomes of a thumb before the start or behind the last page. Refused refuses one that is
// where the view is as well; but where a page is longer than all rows, it lets all behind the start
// pass.
enum class ThumbLimit { Refused, Clamped, Followed };

// Where a move leads; none where it is refused.
std::optional<int> Target(const ScrollAxis& axis, ScrollMove move, ThumbLimit limit);

// Where a thumb leads on a bar whose page is shorter than what shows. Such a bar goes on where the
// view ends: its very end stands for the last page.
int ThumbAtEnd(int nThumb, const ScrollRange& bar, const ScrollAxis& axis);

// --- Which bars show

// All that there is to show, in pixels. Rows without a height need no bar.
struct ScrolledContent {
    int cx = 0;
    int nRows = 0;
    int cyRow = 0;
};

// The bars that show, and the room that they leave.
struct BarPlan {
    Size room;
    bool bHorz = false;
    bool bVert = false;
};

struct BarRules {
    bool bVert = true;    // a vertical bar may show
    bool bTight = false;  // beside it, what is as wide as the room has a horizontal bar as well
};

// Whole rows that fit; 0 for rows without a height.
int WholeRows(int nPixels, int cyRow);

// The bars that a content needs in a client area that is `whole` without them. One may force the
// other. bars: the width of a vertical one and the height of a horizontal one.
BarPlan PlanBars(Size whole, Size bars, const ScrolledContent& content, BarRules rules = {});

// The scroll bars of one window.
//
// While a bar shows or goes, the window is told another size, and that comes back here. Who hears
// of it may destroy the window, or delete the view and this object with it.
class RowScroll {
public:
    explicit RowScroll(WindowPort& port) : m_port(port) {}

    // The position that a code means, with all its 32 bits; a message has room for 16.
    // SB_THUMBTRACK means the place of the drag, any other code the bar's own position. None if
    // the bar has none to give: the message's stands then.
    std::optional<int> ThumbPosition(int nBar, unsigned nCode) const;

    Size ClientSize() const;
    // The width of a vertical bar and the height of a horizontal one.
    Size BarSizes() const;
    // The client area if the bars named were not there.
    Size SizeWithout(bool bHorz, bool bVert) const;

    // False once the view or its window is gone; nothing of it may be touched then.
    bool ShowBar(int nBar, bool bShow);

    // Runs refit, unless there is no window or a refit is under way. True if it ran, and view and
    // window are there. Throws what refit does.
    template <class Refit>
    bool Fit(Refit refit);
    // To be asked when the window is told a size. True while a refit is under way, which has
    // brought that about and finishes the job: it asks WasResized.
    bool NoteResize() {
        m_bResized = m_bResized || m_bFitting;
        return m_bFitting;
    }
    // Since the last refit began.
    bool WasResized() const { return m_bResized; }

    // In a refit, for rows that depend on the room for them, as those of wrapped text do.
    // layout(size) lays out for a client area of that size and gives the bars that it wants, a
    // BarPlan or a class of it, without showing any. It is asked until it gets what it wants; a
    // window whose size is not its own to choose, once. apply(plan) then shows the bars. All that
    // goes again where the window takes another size than planned.
    template <class Layout, class Apply>
    void Settle(Layout layout, Apply apply);

private:
    // A bar that comes or goes makes another layout; they settle after two or three.
    static constexpr int kMostLayouts = 4;
    // The second one is for a window that did not take the size that was reckoned with.
    static constexpr int kMostRounds = 2;

    BarPlan ShownBars() const;
    bool ChoosesItsSize() const;
    // Makes the client area with the bars of shown the one with those of next; false if it is.
    bool MakeRoom(Size& client, const BarPlan& shown, const BarPlan& next) const;
    // The last layout's plan, and the client area that it leads to.
    template <class Layout>
    auto SettledPlan(Layout layout, Size& client);

    WindowPort& m_port;
    AliveToken m_alive;
    bool m_bFitting = false;
    bool m_bResized = false;  // while fitting
};

template <class Refit>
bool RowScroll::Fit(Refit refit) {
    if (m_bFitting || !m_port.HasWindow()) {
        return false;
    }
    m_bResized = false;
    const AliveWatch watch(m_alive);
    {
        const SetWhileAlive<bool> fitting(m_alive, m_bFitting, true);
        refit();
    }
    return watch && m_port.HasWindow();
}

template <class Layout>
auto RowScroll::SettledPlan(Layout layout, Size& client) {
    client = ClientSize();
    BarPlan shown = ShownBars();
    for (int nLayouts = 1;; ++nLayouts) {
        const auto plan = layout(client);
        // What one layout asks for is the next one's client area.
        const bool bSettled = !MakeRoom(client, shown, plan) || !ChoosesItsSize();
        m_bResized = m_bResized || !bSettled;
        if (bSettled || nLayouts == kMostLayouts) {
            return plan;
        }
        shown = plan;
    }
}

template <class Layout, class Apply>
void RowScroll::Settle(Layout layout, Apply apply) {
    const AliveWatch watch(m_alive);
    bool bAsPlanned = false;
    for (int nRound = 0; nRound < kMostRounds && !bAsPlanned; ++nRound) {
        Size planned;
        apply(SettledPlan(layout, planned));
        if (!watch || !m_port.HasWindow()) {
            return;
        }
        const Size client = ClientSize();
        bAsPlanned = client.cx == planned.cx && client.cy == planned.cy;
    }
}

}  // namespace qv
