// The bar of a split window: where it and the panes on its two sides lie, how its position and its
// share of the window follow from each other, and what a drag does. Client pixels of the split
// window; a position is that of the bar's centre, an x coordinate if the bar is vertical, else a y.
//
// A program may set any number: what lies farther off than any window ends at kFarthest.

#pragma once

#include "base/geometry.h"

#include <optional>

namespace qv {

inline constexpr int kKeepPosition = -1;  // a ratio: the next resize leaves the bar at its pixel
inline constexpr int kDefaultSplit = 50;  // the ratio where there is nothing to take one of
inline constexpr int kFarthest = 1 << 28;

struct SplitLayout {
    Size client;
    bool bVertical = true;
    int nBarWidth = 0;  // an odd one makes a bar that is thinner by a pixel

    // Along which positions run.
    int Length() const { return bVertical ? client.cx : client.cy; }
    Rect Client() const { return {0, 0, client.cx, client.cy}; }
    Rect Bar(int nPos) const;
    // Pane 0 ends where the bar begins, pane 1 begins where it ends. A bar that is outside of the
    // window gives one of them a negative size.
    Rect Pane(int nPane, int nPos) const;
    // Where a drag takes the bar: two bar widths from either end. In a window too narrow for that,
    // a position between the bounds goes to the far one.
    int Dragged(Point pt) const;

private:
    int Edge(int nPos, int nSide) const;
};

// Where a key takes a bar at nPos, as far as a drag goes: arrows by some pixels, bFine by one, Home
// and End to the bounds. None for any other key.
std::optional<int> KeyTarget(const SplitLayout& layout, int nPos, unsigned nKey, bool bFine);

// The share of pane 0 to be read, rounded: that which SplitPosition was given, in a window that is
// not smaller than its steps.
int SplitPercent(int nPos, int nLength);

// Both truncate, so a position may creep to its ratio's.
int SplitPosition(int nRatio, int nLength);
int SplitRatio(int nPos, int nLength);

// The fields of a split window that are about its bar. They are the window's, for derived classes
// to see, and this is the one that keeps them.
class SplitBar {
public:
    SplitBar(int& nPos, int& nRatio, int& bTracking, int& nTrackStart)
        : m_nPos(nPos), m_nRatio(nRatio), m_bTracking(bTracking), m_nTrackStart(nTrackStart) {}

    // The window is about to have a new length, and then has it: panes are moved in between.
    void BeginResize(int nLength);
    void EndResize(int nLength);

    // A tracker is drawn where the bar would go. It is drawn at the bar by Press, and erased there
    // by Release and Cancel, which say whether there is one.
    struct TrackerStep {
        int nFrom;
        int nTo;
    };
    bool Press(const SplitLayout& layout, Point pt);
    // A point outside of the window takes the bar back to where the drag began. None: it stays.
    std::optional<TrackerStep> MoveTo(const SplitLayout& layout, Point pt);
    bool Release();
    // The ratio of where the bar was left.
    void TakeRatio(int nLength) { m_nRatio = SplitRatio(m_nPos, nLength); }
    // Where the tracker is; the bar is back at its old place.
    std::optional<int> Cancel();

private:
    int& m_nPos;
    int& m_nRatio;
    int& m_bTracking;
    int& m_nTrackStart;
};

}  // namespace qv
