// What mouse and keys do to the check state of a button.

#pragma once

namespace qv {

inline constexpr int kUnchecked = 0;
inline constexpr int kChecked = 1;
inline constexpr int kIndeterminate = 2;

// The state after a click. Programs may have set any number; what is neither 0 nor 2 goes back to
// 0.
inline int ClickedCheck(int nCheck) {
    if (nCheck == kIndeterminate) {
        return kChecked;
    }
    return nCheck == kUnchecked ? kChecked : kUnchecked;
}

// Whether Space or the mouse holds the button, which has the capture in both cases. The platform
// lets Space click a button that the mouse holds, and the mouse's release would then move the state
// without a click.
class SpacePress {
public:
    // Space went down, also again and again while it is held. False: the key is not the button's.
    bool GoesDown(bool bCaptured) const { return m_bHeld || !bCaptured; }
    // The platform has handled it.
    void WentDown(bool bCaptured) { m_bHeld = bCaptured; }

    // Another window, or the mouse, has taken the capture: the release is no click.
    void LoseCapture() { m_bHeld = false; }

    enum class Release {
        kNotOurs,  // the mouse holds the button, which goes on
        kNoClick,
        kClick
    };
    Release GoesUp(bool bCaptured, bool bPushed) {
        const bool bHeld = m_bHeld;
        m_bHeld = false;
        if (!bHeld) {
            return bCaptured ? Release::kNotOurs : Release::kNoClick;
        }
        return bCaptured && bPushed ? Release::kClick : Release::kNoClick;
    }

private:
    bool m_bHeld = false;
};

}  // namespace qv
