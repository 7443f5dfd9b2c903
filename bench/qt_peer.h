// The same jobs done by Qt's tree widget. Each gives the seconds of the job alone.

#pragma once

#include <string>
#include <vector>

namespace qt_peer {

void Start(int& argc, char** argv);
double Append(int nItems, const char* pszText);
// A tree of nRoots times nMiddle times nLeaves, shown; the time to open all of it.
double ExpandAll(int nRoots, int nMiddle, int nLeaves);
double Sort(const std::vector<std::string>& texts);

}  // namespace qt_peer
