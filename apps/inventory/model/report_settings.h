// What the report's settings mean: margins, papers, colours, and codes in its texts.

#pragma once

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Left, top, right and bottom, in millimetres.
using Margins = std::array<double, 4>;
constexpr double kWidestMargin = 60;

// One margin; false for anything but a number from 0 to kWidestMargin.
bool ReadMargin(const std::string& strText, double& margin);
// As they stand in the settings, a blank between. What cannot be read gives the margins of the
// defaults.
Margins ReadMargins(const std::string& strText);
std::string MarginText(double margin);

// The choices of the setting. The first one, without a size, is the printer's own.
struct Paper {
    const char* pszName;
    int nPlatformNumber;   // DMPAPER_
    double width, height;  // millimetres
};
constexpr Paper kPapers[] = {{"the printer's own", 0, 0, 0},
                             {"A4", 9, 210, 297},
                             {"A5", 11, 148, 210},
                             {"Letter", 1, 215.9, 279.4},
                             {"Legal", 5, 215.9, 355.6}};

// The choices of the setting. By the tables: across the paper where their columns need it.
enum Orientation { kByTables, kPortrait, kLandscape };
constexpr const char* kOrientations[] = {"as needed", "portrait", "landscape"};

// The choices of the settings of colours.
struct NamedColor {
    const char* pszName;
    unsigned char red, green, blue;
};
constexpr NamedColor kTextColors[] = {
    {"black", 0, 0, 0},      {"blue", 0, 0, 144},   {"red", 176, 0, 0},  {"green", 0, 112, 0},
    {"violet", 120, 0, 120}, {"brown", 136, 72, 0}, {"grey", 96, 96, 96}};

// Codes that a title or footer may hold.
constexpr char kCodeMachine[] = "<machine>";
constexpr char kCodeDate[] = "<date>";
constexpr char kCodePackages[] = "<packages>";
// Puts values in the place of their codes, once; what else stands in the text stays.
std::string ReplaceCodes(std::string_view text,
                         const std::vector<std::pair<std::string_view, std::string>>& values);
