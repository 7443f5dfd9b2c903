// How long and with which numbers the tests play that send a control anything in any order.
#pragma once

#include <random>

/// Messages in a run: 2,000, or QV_MONKEY_STEPS of the environment.
int MonkeySteps();
/// Numbers for a run: those of nSeed, or of QV_MONKEY_SEED where that is set. The test's output
/// names a seed that was given.
std::mt19937 MonkeyRandom(unsigned nSeed);
