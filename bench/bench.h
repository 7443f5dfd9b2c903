// What the benchmarks share: medians of several runs, and lines that a script can read.

#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
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

// Both in turn, so that what else the machine does falls on both.
struct Pair {
    double ours;
    double theirs;
};
template <class Ours, class Theirs>
Pair MedianPair(Ours ours, Theirs theirs) {
    std::vector<double> ourTimes;
    std::vector<double> theirTimes;
    for (int i = 0; i < kRuns; ++i) {
        ourTimes.push_back(ours());
        theirTimes.push_back(theirs());
    }
    return {Median(ourTimes), Median(theirTimes)};
}

}  // namespace bench
