// Turns wheel movements into scroll steps.

#pragma once

namespace qv {

inline constexpr int kWheelNotch = 120;
inline constexpr unsigned kWheelPage = 0xFFFFFFFFu;  // the line count that means a page a notch

// Adds a movement (positive away from the user) to the remainder and calls scroll(bUp, bPage) for
// each whole step, so that small movements add up across messages. nLines is the line count of a
// notch; 0 scrolls a line a notch. Above 120 lines a step would be nothing: then nothing scrolls.
template <class Scroll>
void TurnWheel(int& nRemainder, int nDelta, unsigned nLines, Scroll scroll) {
    const bool bPage = nLines == kWheelPage;
    const int nStep = nLines == 0 || bPage
                          ? kWheelNotch
                          : static_cast<int>(static_cast<unsigned>(kWheelNotch) / nLines);
    if (nStep == 0) {
        nRemainder = 0;
        return;
    }
    nRemainder += nDelta;
    while (nRemainder >= nStep || nRemainder <= -nStep) {
        const bool bUp = nRemainder > 0;
        nRemainder += bUp ? -nStep : nStep;
        scroll(bUp, bPage);
    }
}

}  // namespace qv
