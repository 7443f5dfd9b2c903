// The application's preferences: a sheet of pages that work on one copy of the settings. OK and
// Apply hand it on; Cancel leaves what was applied last.

#pragma once

#include "QVControls.h"
#include "dialogs/report_controls.h"
#include "model/settings.h"
#include "resource.h"

#include <functional>
#include <string>
#include <vector>

// What one page's fields say is taken over as a whole or not at all.
class PreferencesPage : public QVPropertyPage {
public:
    PreferencesPage(UINT nTemplate, Settings& settings, const std::function<void()>& applied)
        : QVPropertyPage(nTemplate), m_settings(settings), m_applied(applied) {}

protected:
    // Puts the settings into the fields.
    virtual void Offer() = 0;
    // The settings become what the fields say. The field that says what cannot be kept, or 0.
    virtual UINT Take(Settings& settings) = 0;
    virtual CString ProblemText() const { return ""; }

    BOOL OnInitDialog() override;
    BOOL OnKillActive() override;
    BOOL OnApply() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    Settings& m_settings;

private:
    const std::function<void()>& m_applied;
    bool m_bOffered = false;
};

// The texts of the standard report, its packages, and the paper of all reports.
class ReportPreferences : public PreferencesPage {
public:
    ReportPreferences(Settings& settings, const std::function<void()>& applied)
        : PreferencesPage(IDD_PREFERENCES_REPORT, settings, applied) {}

protected:
    void Offer() override;
    UINT Take(Settings& settings) override;
    CString ProblemText() const override;

private:
    QVMacroButton m_titleCodes;
    QVMacroButton m_footerCodes;
    QVBitmapComboBox m_packages;
    QVTextBox m_paper;
};

// The colours of packages in the list, which new reports begin with.
class ColorPreferences : public PreferencesPage {
public:
    ColorPreferences(Settings& settings, const std::function<void()>& applied)
        : PreferencesPage(IDD_PREFERENCES_COLORS, settings, applied) {}

protected:
    void Offer() override;
    UINT Take(Settings& settings) override;

private:
    QVColorComboBox m_aColors[IDC_REPORT_LAST_COLOR - IDC_REPORT_FIRST_COLOR + 1];
};

// What the application begins with.
class StartPreferences : public PreferencesPage {
public:
    using Names = std::vector<std::string>;
    StartPreferences(Settings& settings, const std::function<void()>& applied, const Names& pages,
                     const Names& reports)
        : PreferencesPage(IDD_PREFERENCES_START, settings, applied),
          m_pages(pages),
          m_reports(reports) {}

protected:
    void Offer() override;
    UINT Take(Settings& settings) override;

private:
    const Names m_pages;
    const Names m_reports;
};

class Preferences : public QVPropertySheet {
public:
    // apply gets each new set of settings. Titles of the application's pages and names of reports
    // are what the start can be chosen from.
    Preferences(CWnd* pParent, const Settings& settings, std::function<void(const Settings&)> apply,
                const StartPreferences::Names& pages, const StartPreferences::Names& reports);

protected:
    int OnInitDialog() override;

private:
    Settings m_settings;
    const std::function<void()> m_applied;
    ReportPreferences m_report;
    ColorPreferences m_colors;
    StartPreferences m_start;
};
