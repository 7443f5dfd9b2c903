#include "model/settings.h"

#include "model/report_settings.h"

#include <algorithm>

namespace {

std::string_view NextLine(std::string_view& text) {
    const size_t nEnd = text.find('\n');
    std::string_view line = text.substr(0, nEnd);
    text.remove_prefix(nEnd == std::string_view::npos ? text.size() : nEnd + 1);
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

template <class Entry, size_t nCount>
std::vector<std::string> Names(const Entry (&entries)[nCount]) {
    std::vector<std::string> names;
    for (const Entry& entry : entries) {
        names.emplace_back(entry.pszName);
    }
    return names;
}

}  // namespace

KeyedValues::KeyedValues(std::string_view firstLine, std::vector<Setting> defaults)
    : m_firstLine(firstLine), m_defaults(std::move(defaults)), m_settings(m_defaults) {}

int KeyedValues::Choice(int n) const {
    const Setting& setting = m_settings[n];
    const auto it = std::find(setting.choices.begin(), setting.choices.end(), setting.strValue);
    return it != setting.choices.end() ? static_cast<int>(it - setting.choices.begin()) : 0;
}

bool KeyedValues::Set(int n, const std::string& strValue) {
    Setting& setting = m_settings[n];
    const bool bChoice = setting.kind == SettingKind::Choice;
    if (strValue.find_first_of(std::string_view("\r\n\0", 3)) != std::string::npos ||
        (bChoice && std::find(setting.choices.begin(), setting.choices.end(), strValue) ==
                        setting.choices.end())) {
        return false;
    }
    setting.strValue = strValue;
    return true;
}

std::string KeyedValues::Format() const {
    std::string text(m_firstLine);
    text += '\n';
    for (const Setting& setting : m_settings) {
        text += setting.pszKey;
        text += '=';
        text += setting.strValue;
        text += '\n';
    }
    return text;
}

bool KeyedValues::ParseLine(std::string_view line) {
    const size_t nEquals = line.find('=');
    const auto it = std::find_if(m_settings.begin(), m_settings.end(), [&](const Setting& setting) {
        return nEquals != std::string_view::npos && setting.pszKey == line.substr(0, nEquals);
    });
    return it != m_settings.end() &&
           Set(static_cast<int>(it - m_settings.begin()), std::string(line.substr(nEquals + 1)));
}

bool KeyedValues::Parse(std::string_view text, size_t& nLine) {
    nLine = 1;
    bool bGood = NextLine(text) == m_firstLine;
    while (bGood && !text.empty()) {
        ++nLine;
        bGood = ParseLine(NextLine(text));
    }
    if (!bGood) {
        Reset();
    }
    return bGood;
}

Settings::Settings()
    : KeyedValues(
          "inventory settings, version 1",
          {{"tree.columns",
            "Columns of the tree",
            SettingKind::Choice,
            "indented",
            {"indented", "absolute"}},
           {"export.separator",
            "Between exported cells",
            SettingKind::Choice,
            "comma",
            {"TAB", "comma", "semicolon", "bar"}},
           {"export.name", "Name of the exported list", SettingKind::Text, "packages.csv", {}},
           {"export.folder", "Folder for exports", SettingKind::Folder, "", {}},
           {"report.title", "Title", SettingKind::Text, "What is installed on <machine>", {}},
           {"report.footer", "Footer", SettingKind::Text, "", {}},
           {"report.paper", "Paper", SettingKind::Choice, kPapers[0].pszName, Names(kPapers)},
           {"report.orientation",
            "Orientation",
            SettingKind::Choice,
            kOrientations[0],
            {std::begin(kOrientations), std::end(kOrientations)}},
           {"report.margins", "Margins", SettingKind::Text, "23 23 23 23", {}},
           {"report.packages",
            "Packages",
            SettingKind::Choice,
            "all of them",
            {"all of them", "the required ones", "those in an unusual state"}},
           {"colors.installed", "Installed", SettingKind::Choice, "black", Names(kTextColors)},
           {"colors.required", "Required", SettingKind::Choice, "blue", Names(kTextColors)},
           {"colors.unusual", "In an unusual state", SettingKind::Choice, "red",
            Names(kTextColors)},
           {"start.page", "Page at the start", SettingKind::Text, "", {}},
           {"start.report", "Report at the start", SettingKind::Text, "", {}},
           {"start.filter",
            "Packages at the start",
            SettingKind::Choice,
            "as they were left",
            {"as they were left", "all of them"}},
           {"reports.replace",
            "A report of that name",
            SettingKind::Choice,
            "ask",
            {"ask", "replace it"}},
           {"view.toolbar", "Toolbar", SettingKind::Choice, "shown", {"shown", "hidden"}},
           {"view.statusbar", "Status bar", SettingKind::Choice, "shown", {"shown", "hidden"}}}) {}
