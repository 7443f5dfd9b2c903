#include "model/package_facts.h"

#include "model/stanza.h"

#include <algorithm>

std::vector<Fact> FactsOf(const Package& package) {
    std::vector<Fact> facts;
    const auto add = [&](const char* pszName, const std::string& strValue) {
        if (!strValue.empty()) {
            facts.push_back({pszName, strValue});
        }
    };
    const std::string strSize = package.nSizeKiB != 0 ? SizeText(package.nSizeKiB) : "";
    if (package.pStanza == nullptr) {
        add("Package", package.strName);
        add("Section", package.strSection);
        add("Version", package.strVersion);
        add("Architecture", package.strArchitecture);
        add("Status", package.strState);
        add("Installed-Size", strSize);
    } else {
        for (StanzaField& field : StanzaFields(*package.pStanza)) {
            if (field.strName == "Installed-Size") {
                field.strValue = strSize;
            }
            if (field.strName != "Description" && field.strName != "Conffiles") {
                facts.push_back({Printable(field.strName), Printable(field.strValue)});
            }
        }
    }
    add("Installed", DateText(package.tInstalled));
    return facts;
}

std::vector<std::string> DescriptionOf(const Package& package) {
    std::vector<std::string> lines{package.strSummary};
    if (package.pStanza != nullptr) {
        const std::vector<std::string> paragraphs =
            Paragraphs(StanzaValue(*package.pStanza, "Description"));
        if (!paragraphs.empty()) {
            lines.emplace_back();
            std::transform(paragraphs.begin(), paragraphs.end(), std::back_inserter(lines),
                           Printable);
        }
    }
    return lines;
}
