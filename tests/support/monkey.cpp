#include "support/monkey.h"

#include <cstdlib>
#include <gtest/gtest.h>

int MonkeySteps() {
    const char* pszSteps = std::getenv("QV_MONKEY_STEPS");
    return pszSteps != nullptr ? std::atoi(pszSteps) : 2000;
}

std::mt19937 MonkeyRandom(unsigned nSeed) {
    if (const char* pszSeed = std::getenv("QV_MONKEY_SEED")) {
        nSeed = static_cast<unsigned>(std::strtoul(pszSeed, nullptr, 10));
        testing::Test::RecordProperty("seed", pszSeed);
    }
    return std::mt19937(nSeed);
}
