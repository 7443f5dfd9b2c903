#include "model/settings.h"

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
    : KeyedValues("inventory settings, version 1",
                  {
                      {"report.title",
                       "Title of the report",
                       SettingKind::Text,
                       "What is installed on this machine",
                       {}},
                      {"report.footer", "Beside the page number", SettingKind::Text, "", {}},
                      {"report.margins",
                       "Margins",
                       SettingKind::Choice,
                       "normal",
                       {"narrow", "normal", "wide"}},
                      {"tree.columns",
                       "Columns of the tree",
                       SettingKind::Choice,
                       "indented",
                       {"indented", "absolute"}},
                      {"export.separator",
                       "Between exported cells",
                       SettingKind::Choice,
                       "TAB",
                       {"TAB", "comma", "semicolon", "bar"}},
                      {"export.folder", "Folder for exports", SettingKind::Folder, "", {}},
                  }) {}
