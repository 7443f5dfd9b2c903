#include "model/comparison.h"

#include "model/package_version.h"

#include <algorithm>
#include <tuple>

namespace {

auto Key(const Package& package) {
    return std::tie(package.strName, package.strArchitecture);
}

std::vector<const Package*> ByKey(const Inventory& inventory) {
    std::vector<const Package*> packages;
    packages.reserve(inventory.CountPackages());
    for (const Section& section : inventory.Sections()) {
        for (const Package& package : section.packages) {
            packages.push_back(&package);
        }
    }
    std::stable_sort(packages.begin(), packages.end(),
                     [](const Package* p, const Package* q) { return Key(*p) < Key(*q); });
    return packages;
}

void SortBySection(std::vector<Difference>& differences) {
    std::stable_sort(differences.begin(), differences.end(),
                     [](const Difference& a, const Difference& b) {
                         const Package& p = a.Shown();
                         const Package& q = b.Shown();
                         return std::tie(p.strSection, p.strName, p.strArchitecture) <
                                std::tie(q.strSection, q.strName, q.strArchitecture);
                     });
}

unsigned ChangesBetween(const Package& before, const Package& after) {
    unsigned nChanges = 0;
    if (before.strVersion != after.strVersion) {
        const auto order = CompareVersions(before.strVersion, after.strVersion);
        nChanges |= order < 0 ? kVersionUp : order > 0 ? kVersionDown : kVersionSpelling;
    }
    nChanges |= before.nSizeKiB != after.nSizeKiB ? kSizeChanged : 0u;
    nChanges |= before.strState != after.strState ? kStateChanged : 0u;
    nChanges |= before.strSection != after.strSection ? kSectionChanged : 0u;
    return nChanges;
}

long long SizeOf(const Inventory& inventory) {
    long long nKiB = 0;
    for (const Section& section : inventory.Sections()) {
        for (const Package& package : section.packages) {
            nKiB += package.nSizeKiB;
        }
    }
    return nKiB;
}

// How many of the changed packages have one of the changes or, for 0, none of the version.
SummaryRow ChangedRow(const char* pszWhat, const Comparison& comparison, unsigned nChange) {
    size_t n = 0;
    long long nGrowth = 0;
    for (const Difference& difference : comparison.Changed()) {
        if (nChange != 0 ? (difference.nChanges & nChange) != 0
                         : (difference.nChanges & (kVersionUp | kVersionDown)) == 0) {
            ++n;
            nGrowth += difference.Growth();
        }
    }
    return {pszWhat, "", std::to_string(n), GrowthText(nGrowth)};
}

std::string Now(const char* pszWhat, const std::string& strBefore, const std::string& strAfter) {
    return std::string(pszWhat) + ": " + strBefore + ", now " + strAfter;
}

}  // namespace

long long Difference::Growth() const {
    return (pAfter != nullptr ? static_cast<long long>(pAfter->nSizeKiB) : 0) -
           (pBefore != nullptr ? static_cast<long long>(pBefore->nSizeKiB) : 0);
}

Comparison::Comparison(const Inventory& before, const Inventory& after, const Step& step) {
    const std::vector<const Package*> packagesBefore = ByKey(before);
    const std::vector<const Package*> packagesAfter = ByKey(after);
    auto itBefore = packagesBefore.begin();
    auto itAfter = packagesAfter.begin();
    for (std::uint64_t nDone = 0;
         itBefore != packagesBefore.end() || itAfter != packagesAfter.end(); ++nDone) {
        if (step) {
            step(nDone, packagesBefore.size() + packagesAfter.size());
        }
        if (itAfter == packagesAfter.end() ||
            (itBefore != packagesBefore.end() && Key(**itBefore) < Key(**itAfter))) {
            m_gone.push_back({*itBefore++, nullptr, 0});
        } else if (itBefore == packagesBefore.end() || Key(**itAfter) < Key(**itBefore)) {
            m_new.push_back({nullptr, *itAfter++, 0});
        } else {
            Take(*itBefore++, *itAfter++);
        }
    }
    SortBySection(m_new);
    SortBySection(m_gone);
    SortBySection(m_changed);
}

void Comparison::Take(const Package* pBefore, const Package* pAfter) {
    const unsigned nChanges = ChangesBetween(*pBefore, *pAfter);
    if (nChanges != 0) {
        m_changed.push_back({pBefore, pAfter, nChanges});
    } else {
        ++m_nSame;
    }
}

long long GrowthOf(const std::vector<Difference>& differences) {
    long long nGrowth = 0;
    for (const Difference& difference : differences) {
        nGrowth += difference.Growth();
    }
    return nGrowth;
}

std::string GrowthText(long long nKiB) {
    std::string strText = nKiB < 0 ? "-" : nKiB > 0 ? "+" : "";
    return strText += SizeText(nKiB < 0 ? -nKiB : nKiB);
}

std::string ChangeWords(const Difference& difference) {
    const bool bLarger = difference.Growth() > 0;
    const std::pair<unsigned, const char*> words[] = {
        {kVersionUp, "newer"},         {kVersionDown, "older"},
        {kVersionSpelling, "version"}, {kSizeChanged, bLarger ? "larger" : "smaller"},
        {kStateChanged, "state"},      {kSectionChanged, "section"}};
    std::string strWords;
    for (const auto& [nChange, pszWord] : words) {
        if ((difference.nChanges & nChange) != 0) {
            (strWords += strWords.empty() ? "" : ", ") += pszWord;
        }
    }
    return strWords;
}

std::vector<std::string> ChangeLines(const Difference& difference) {
    std::vector<std::string> lines;
    if (difference.pBefore == nullptr || difference.pAfter == nullptr) {
        return lines;
    }
    const Package& before = *difference.pBefore;
    const Package& after = *difference.pAfter;
    if ((difference.nChanges & (kVersionUp | kVersionDown | kVersionSpelling)) != 0) {
        lines.push_back(Now("Version", before.strVersion, after.strVersion));
    }
    if ((difference.nChanges & kSizeChanged) != 0) {
        lines.push_back(Now("Size", SizeText(before.nSizeKiB), SizeText(after.nSizeKiB)) + " (" +
                        GrowthText(difference.Growth()) + ")");
    }
    if ((difference.nChanges & kStateChanged) != 0) {
        lines.push_back(Now("State", before.strState, after.strState));
    }
    if ((difference.nChanges & kSectionChanged) != 0) {
        lines.push_back(Now("Section", before.strSection, after.strSection));
    }
    return lines;
}

std::vector<SummaryRow> SummaryOf(const Inventory& before, const Inventory& after,
                                  const Comparison& comparison) {
    const size_t nBefore = before.CountPackages();
    const size_t nNow = after.CountPackages();
    std::string strMore = nNow > nBefore ? "+" : nNow < nBefore ? "-" : "";
    strMore += std::to_string(nNow > nBefore ? nNow - nBefore : nBefore - nNow);
    const long long nSizeBefore = SizeOf(before);
    const long long nSizeNow = SizeOf(after);
    return {{"Packages", std::to_string(nBefore), std::to_string(nNow), strMore},
            {"Size", SizeText(nSizeBefore), SizeText(nSizeNow), GrowthText(nSizeNow - nSizeBefore)},
            {"New", "", std::to_string(comparison.New().size()),
             GrowthText(GrowthOf(comparison.New()))},
            {"Gone", std::to_string(comparison.Gone().size()), "",
             GrowthText(GrowthOf(comparison.Gone()))},
            ChangedRow("Newer", comparison, kVersionUp),
            ChangedRow("Older", comparison, kVersionDown),
            ChangedRow("Changed otherwise", comparison, 0),
            {"Unchanged", "", std::to_string(comparison.CountSame()), ""}};
}
