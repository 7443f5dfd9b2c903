// How long and with which numbers the tests play that send a control anything in any order.
#pragma once

#include <afxwin.h>

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <vector>

/// Messages in a run: 2,000, or QV_MONKEY_STEPS of the environment.
int MonkeySteps();
/// Numbers for a run: those of nSeed, or of QV_MONKEY_SEED where that is set. The test's output
/// names a seed that was given.
std::mt19937 MonkeyRandom(unsigned nSeed);

/// Makes a control anew a thousand times and more, and plays deeds on it in any order, with numbers
/// from -5 to 54; they may take it away. No handle of the framework's is left behind. nLeast: how
/// often instead, where one control takes long to make; the steps are then four times as many.
template <class Control>
void PlayInAnyOrder(std::unique_ptr<Control>& pControl, const std::function<void()>& make,
                    const std::vector<std::function<void(int n)>>& deeds, int nLeast = 1000) {
    const int nSteps = nLeast == 1000 ? MonkeySteps() : nLeast * 4;
    const LONG nHandles = AfxGetOwnedHandleCount();
    std::mt19937 random = MonkeyRandom(9);
    int nMade = 0;
    for (int i = 0; i < nSteps || nMade < nLeast; ++i) {
        if (pControl == nullptr || random() % 4 == 0) {
            make();
            ++nMade;
        }
        deeds[random() % deeds.size()](static_cast<int>(random() % 60) - 5);
    }
    pControl.reset();
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
}
