// The same jobs done by Qt's tree and table widgets and its text layout. Each gives the seconds of
// the job alone.

#pragma once

#include <string>
#include <vector>

namespace qt_peer {

void Start(int& argc, char** argv);
double Append(int nItems, const char* pszText);
// A tree of nRoots times nMiddle times nLeaves, shown; the time to open all of it.
double ExpandAll(int nRoots, int nMiddle, int nLeaves);
double Sort(const std::vector<std::string>& texts);
// A table of rows with TAB-separated fields, never shown. The texts are in Qt's own form beforehand
// and shared with the items, so that only the table's work counts.
double FillTable(const std::vector<std::string>& rows, int nColumns);
// A layout for each line, wrapped at words to nChars characters of a font of one width; nRows
// becomes the number of rows. The texts are in Qt's own form beforehand.
double WrapLines(const std::vector<std::string>& lines, int nChars, int& nRows);

// Sorted by themselves, stable: the quickest way that Qt's own types offer.
double SortPlain(const std::vector<std::string>& texts);
double SortPlain(const std::vector<int>& numbers);
// By the proxy that sorts for a view: the first column of a model that has these, or the second.
double SortByProxy(const std::vector<std::string>& texts, const std::vector<int>& numbers,
                   bool bTexts);
// A table view on the screen that has been painted empty gets a model of nRows rows and nColumns
// columns; the time until its first page is painted, and until the view has nothing left to do:
// it paints a second time once its scroll bar has taken some of its space.
struct Shown {
    double firstPage;
    double ready;
};
Shown ShowModel(int nRows, int nColumns);
// As ready, of a view that has the model and its columns and gets the rows.
double ShowMoreRows(int nRows, int nColumns);

}  // namespace qt_peer
