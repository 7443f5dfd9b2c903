#include "model/report_values.h"

#include "model/package_filter.h"
#include "model/report_settings.h"

#include <algorithm>
#include <cstdlib>

namespace {

enum ReportValue {
    kName,
    kPackages,
    kAllSections,
    kSections,
    kArchitecture,
    kSince,
    kIntroduction,
    kTables,
    kList,
    kAllColumns,
    kColumns,
    kOrder,
    kDirection,
    kTotals,
    kTitle,
    kTitleFont,
    kHeadingFont,
    kTextFont,
    kFirstColor
};

constexpr size_t kLongestFace = 31;  // the platform's

using Choices = std::vector<std::string>;

Setting Text(const char* pszKey) {
    return {pszKey, "", SettingKind::Text, "", {}};
}

// The first choice at first.
Setting Chosen(const char* pszKey, Choices choices) {
    std::string strFirst = choices.front();
    return {pszKey, "", SettingKind::Choice, std::move(strFirst), std::move(choices)};
}

Setting YesNo(const char* pszKey, bool bFirst) {
    return Chosen(pszKey, bFirst ? Choices{"yes", "no"} : Choices{"no", "yes"});
}

Setting Color(const char* pszKey) {
    Choices names;
    for (const NamedColor& color : kTextColors) {
        names.emplace_back(color.pszName);
    }
    return Chosen(pszKey, std::move(names));
}

Choices ColumnKeys() {
    Choices keys;
    for (int i = 0; i < kReportColumns; ++i) {
        keys.emplace_back(InfoOf(static_cast<ReportColumn>(i)).pszKey);
    }
    return keys;
}

std::string DayText(std::time_t t) {
    return DateText(t).substr(0, 10);
}

std::time_t ReadDay(const std::string& strDay) {
    FilterValues filter;
    size_t nLine = 0;
    filter.Parse("inventory filter, version 1\nsince=" + strDay, nLine);
    return filter.Filter().tSince;
}

std::string FontText(const ReportFont& font) {
    return std::to_string(font.nPoints) + " " + font.strFace;
}

void ReadFont(const std::string& strText, ReportFont& font) {
    const size_t nFace = std::min(strText.find(' '), strText.size() - 1) + 1;
    const size_t nLength = strText.size() - nFace;
    const long nPoints = std::strtol(strText.c_str(), nullptr, 10);
    if (nLength > 0 && nLength <= kLongestFace && nPoints >= kSmallestPoints &&
        nPoints <= kLargestPoints) {
        font = {strText.substr(nFace), static_cast<int>(nPoints)};
    }
}

}  // namespace

// A TAB behind each; what stands for a TAB in a text begins with a bar, and so does a bar.
std::string JoinTexts(const std::vector<std::string>& texts) {
    std::string strJoined;
    for (const std::string& strText : texts) {
        for (const char ch : strText) {
            if (ch == '\t' || ch == '|') {
                strJoined += '|';
            }
            strJoined += ch == '\t' ? 't' : ch;
        }
        strJoined += '\t';
    }
    return strJoined;
}

std::vector<std::string> SplitTexts(const std::string& strJoined) {
    std::vector<std::string> texts;
    std::string strText;
    bool bBar = false;
    for (const char ch : strJoined) {
        if (!bBar && ch == '\t') {
            texts.push_back(std::move(strText));
            strText.clear();
        } else if (bBar || ch != '|') {
            strText += bBar && ch == 't' ? '\t' : ch;
        }
        bBar = !bBar && ch == '|';
    }
    return texts;
}

ReportValues::ReportValues()
    : KeyedValues("inventory report, version 1",
                  {Text("name"),
                   Chosen("packages", {"all", "required", "unusual"}),
                   YesNo("all sections", true),
                   Text("sections"),
                   Text("architecture"),
                   Text("since"),
                   YesNo("introduction", true),
                   Chosen("tables", {"by section", "one", "none"}),
                   YesNo("list", false),
                   YesNo("all columns", true),
                   Text("columns"),
                   Chosen("order", ColumnKeys()),
                   Chosen("direction", {"rising", "falling"}),
                   Chosen("totals", {"none", "by section", "overall"}),
                   Text("title"),
                   Text("font.title"),
                   Text("font.headings"),
                   Text("font.text"),
                   Color("color.texts"),
                   Color("color.installed"),
                   Color("color.required"),
                   Color("color.unusual")}) {}

ReportValues::ReportValues(const ReportDefinition& report) : ReportValues() {
    const auto choose = [this](int nValue, int nChoice) {
        Set(nValue,
            std::string(All()[static_cast<size_t>(nValue)].choices[static_cast<size_t>(nChoice)]));
    };
    const auto tell = [this](int nValue, bool bYes) { Set(nValue, bYes ? "yes" : "no"); };
    std::vector<std::string> columns;
    for (const ReportColumn column : report.columns) {
        columns.emplace_back(InfoOf(column).pszKey);
    }
    Set(kName, report.strName);
    choose(kPackages, static_cast<int>(report.packages));
    tell(kAllSections, report.bAllSections);
    Set(kSections, JoinTexts(report.sections));
    Set(kArchitecture, report.strArchitecture);
    Set(kSince, DayText(report.tSince));
    tell(kIntroduction, report.bIntroduction);
    choose(kTables, static_cast<int>(report.tables));
    tell(kList, report.bList);
    tell(kAllColumns, report.bAllColumns);
    Set(kColumns, JoinTexts(columns));
    choose(kOrder, static_cast<int>(report.order));
    choose(kDirection, report.bFalling ? 1 : 0);
    choose(kTotals, static_cast<int>(report.totals));
    Set(kTitle, report.strTitle);
    Set(kTitleFont, FontText(report.titleFont));
    Set(kHeadingFont, FontText(report.headingFont));
    Set(kTextFont, FontText(report.textFont));
    for (int i = 0; i < kReportColors; ++i) {
        choose(kFirstColor + i, report.colors[static_cast<size_t>(i)]);
    }
}

ReportDefinition ReportValues::Definition() const {
    const auto tells = [this](int nValue) { return Value(nValue) == "yes"; };
    ReportDefinition report;
    report.strName = Value(kName);
    report.packages = static_cast<ReportPackages>(Choice(kPackages));
    report.bAllSections = tells(kAllSections);
    report.sections = SplitTexts(Value(kSections));
    report.strArchitecture = Value(kArchitecture);
    report.tSince = ReadDay(Value(kSince));
    report.bIntroduction = tells(kIntroduction);
    report.tables = static_cast<ReportTables>(Choice(kTables));
    report.bList = tells(kList);
    const Choices keys = ColumnKeys();
    for (const std::string& strColumn : SplitTexts(Value(kColumns))) {
        if (const auto it = std::find(keys.begin(), keys.end(), strColumn); it != keys.end()) {
            report.columns.push_back(static_cast<ReportColumn>(it - keys.begin()));
        }
    }
    report.bAllColumns = tells(kAllColumns) || report.columns.empty();
    report.order = static_cast<ReportColumn>(Choice(kOrder));
    report.bFalling = Choice(kDirection) == 1;
    report.totals = static_cast<ReportTotals>(Choice(kTotals));
    report.strTitle = Value(kTitle);
    ReadFont(Value(kTitleFont), report.titleFont);
    ReadFont(Value(kHeadingFont), report.headingFont);
    ReadFont(Value(kTextFont), report.textFont);
    for (int i = 0; i < kReportColors; ++i) {
        report.colors[static_cast<size_t>(i)] = Choice(kFirstColor + i);
    }
    return report;
}

ReportDefinition StandardReport(const Settings& settings) {
    ReportDefinition report;
    report.strTitle = settings.Value(kSettingTitle);
    report.packages = static_cast<ReportPackages>(settings.Choice(kSettingPackages));
    report.bAllColumns = false;
    report.columns = {ReportColumn::Name, ReportColumn::Version, ReportColumn::Size,
                      ReportColumn::State, ReportColumn::Summary};
    return report;
}
