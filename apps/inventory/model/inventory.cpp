#include "model/inventory.h"

#include <algorithm>
#include <cstdio>
#include <tuple>
#include <utility>

void Inventory::SetPackages(std::vector<Package> packages) {
    m_sections.clear();
    std::sort(packages.begin(), packages.end(), [](const Package& a, const Package& b) {
        return std::tie(a.strSection, a.strName) < std::tie(b.strSection, b.strName);
    });
    for (Package& package : packages) {
        if (m_sections.empty() || m_sections.back().strName != package.strSection) {
            m_sections.push_back({package.strSection, {}});
        }
        m_sections.back().packages.push_back(std::move(package));
    }
}

size_t Inventory::CountPackages() const {
    size_t nPackages = 0;
    for (const Section& section : m_sections) {
        nPackages += section.packages.size();
    }
    return nPackages;
}

std::string SizeText(long long nKiB) {
    char szText[32];
    if (nKiB < 1024) {
        std::snprintf(szText, sizeof(szText), "%lld KiB", nKiB);
    } else if (nKiB < 1024 * 1024) {
        std::snprintf(szText, sizeof(szText), "%.1f MiB", static_cast<double>(nKiB) / 1024);
    } else {
        std::snprintf(szText, sizeof(szText), "%.1f GiB", static_cast<double>(nKiB) / 1048576);
    }
    return szText;
}

std::string DateText(std::time_t t) {
    char szDate[32] = "";
    if (const std::tm* pTime = t != 0 ? std::localtime(&t) : nullptr) {
        std::strftime(szDate, sizeof(szDate), "%Y-%m-%d %H:%M", pTime);
    }
    return szDate;
}
