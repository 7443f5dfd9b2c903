// The application's own settings: what each is called, what kind of value it has, and how they
// stand in a file.

#pragma once

#include <string>
#include <string_view>
#include <vector>

enum class SettingKind { Text, Choice, Folder };

struct Setting {
    const char* pszKey;   // in the file
    const char* pszName;  // on the screen
    SettingKind kind;
    std::string strValue;
    std::vector<std::string> choices;  // of a choice
};

// A file of lines "key=value" below a first line that names it.
class KeyedValues {
public:
    std::vector<Setting>& All() { return m_settings; }
    const std::string& Value(int n) const { return m_settings[n].strValue; }
    // The number of the value among the choices.
    int Choice(int n) const;
    // False, and nothing changes, for a choice that is none and for a text of several lines.
    bool Set(int n, const std::string& strValue);

    void Reset() { m_settings = m_defaults; }
    std::string Format() const;
    // Reads what Format wrote; lines that are missing keep their defaults. False for anything else,
    // with the line in nLine, and all values are the defaults then.
    bool Parse(std::string_view text, size_t& nLine);

protected:
    KeyedValues(std::string_view firstLine, std::vector<Setting> defaults);

private:
    bool ParseLine(std::string_view line);

    std::string_view m_firstLine;
    std::vector<Setting> m_defaults;
    std::vector<Setting> m_settings;
};

// Indices of the settings: first those that have a row in the settings page's grid, then those of
// the preferences.
enum SettingIndex {
    kSettingTreeColumns,
    kSettingSeparator,
    kSettingExportName,
    kSettingExportFolder,
    kSettingsInGrid,
    kSettingTitle = kSettingsInGrid,
    kSettingFooter,
    kSettingPaper,
    kSettingOrientation,
    kSettingMargins,
    kSettingPackages,
    kSettingColorInstalled,
    kSettingColorRequired,
    kSettingColorUnusual,
    kSettingStartPage,    // its title; empty: the first one
    kSettingStartReport,  // its name; empty: the standard one
    kSettingStartFilter,
    kSettingReplace,  // 0: a report takes the place of another only if the user says so
    kSettingToolBar,  // 0: shown
    kSettingStatusBar
};

class Settings : public KeyedValues {
public:
    Settings();  // defaults
};
