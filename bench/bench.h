// What the benchmarks share: several runs of each thing, and lines that a script can read.

#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <limits>
#include <vector>

namespace bench {

constexpr int kRuns = 5;

// Seconds that the action takes.
template <class Action>
double Time(Action action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

inline double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// Median of kRuns calls of a function that gives a time.
template <class Run>
double MedianOf(Run run) {
    std::vector<double> times;
    for (int i = 0; i < kRuns; ++i) {
        times.push_back(run());
    }
    return Median(times);
}

inline void Figure(const char* pszName, double value, const char* pszUnit) {
    std::printf("figure %s %.4g %s\n", pszName, value, pszUnit);
    std::fflush(stdout);
}

inline void Ratio(const char* pszName, double ours, double theirs) {
    std::printf("ratio %s %.4g\n", pszName, ours / theirs);
    std::fflush(stdout);
}

// Both in turn, each first as often as the other, and the fastest run of each: what else the
// machine does only adds to a time, and it never falls on both alike.
struct Pair {
    double ours;
    double theirs;
};
template <class Ours, class Theirs>
Pair FastestPair(Ours ours, Theirs theirs, int nRuns = kRuns) {
    Pair pair{std::numeric_limits<double>::max(), std::numeric_limits<double>::max()};
    const auto runOurs = [&] { pair.ours = std::min<double>(pair.ours, ours()); };
    const auto runTheirs = [&] { pair.theirs = std::min<double>(pair.theirs, theirs()); };
    for (int i = 0; i < nRuns; ++i) {
        if (i % 2 == 0) {
            runOurs();
            runTheirs();
        } else {
            runTheirs();
            runOurs();
        }
    }
    return pair;
}

}  // namespace bench
