// Comparison: what is different between two inventories: packages that only the later one has, that
// only the earlier one has, and that have changed. Packages of one name and architecture are the
// same package; where an inventory has several of those, they are paired in its order.

#pragma once

#include "model/inventory.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

enum PackageChange : unsigned {
    kVersionUp = 1,
    kVersionDown = 2,
    kVersionSpelling = 4,  // other characters for the same version
    kSizeChanged = 8,
    kStateChanged = 16,
    kSectionChanged = 32
};

// A package in both inventories, or null in one of them.
struct Difference {
    const Package* pBefore = nullptr;
    const Package* pAfter = nullptr;
    unsigned nChanges = 0;  // PackageChange

    // The later one, as far as it is there.
    const Package& Shown() const { return pAfter != nullptr ? *pAfter : *pBefore; }
    // KiB, below 0 for what became less.
    long long Growth() const;
};

class Comparison {
public:
    // Told at each package of those that there are; what it throws leaves the comparison.
    using Step = std::function<void(std::uint64_t nDone, std::uint64_t nAll)>;

    // None: nothing is different.
    Comparison() = default;
    // Both must outlive the comparison. Takes n log n.
    Comparison(const Inventory& before, const Inventory& after, const Step& step = {});

    // Each by section, name and architecture; changed ones by the section they are in now.
    const std::vector<Difference>& New() const { return m_new; }
    const std::vector<Difference>& Gone() const { return m_gone; }
    const std::vector<Difference>& Changed() const { return m_changed; }
    size_t CountSame() const { return m_nSame; }

private:
    void Take(const Package* pBefore, const Package* pAfter);

    std::vector<Difference> m_new;
    std::vector<Difference> m_gone;
    std::vector<Difference> m_changed;
    size_t m_nSame = 0;
};

// Of all together, in KiB.
long long GrowthOf(const std::vector<Difference>& differences);
// "+12 KiB", "-3.4 MiB", "0 KiB".
std::string GrowthText(long long nKiB);
// What has changed, in a few words for a column: "newer, larger, state".
std::string ChangeWords(const Difference& difference);
// All of it, a line each: "Version: 1.0-1, now 1.0-2".
std::vector<std::string> ChangeLines(const Difference& difference);

// A line of numbers: how many packages, and KiB, of either inventory and between them. Texts are
// empty where there is nothing to count.
struct SummaryRow {
    std::string strWhat;
    std::string strBefore;
    std::string strNow;
    std::string strGrowth;
};
// Of what the comparison was made of.
std::vector<SummaryRow> SummaryOf(const Inventory& before, const Inventory& after,
                                  const Comparison& comparison);
