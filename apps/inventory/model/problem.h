// What went wrong, as the model tells it: what, where, and what the platform said about it.

#pragma once

#include <cstddef>
#include <string>

struct Problem {
    std::string strMessage;    // no sentence: it stands behind the place
    std::string strFile = {};  // empty: no file
    std::size_t nLine = 0;     // 0: the file as a whole
    unsigned long nError = 0;  // the platform's own number; 0: it said nothing
};

// "status, line 12: the line is no field"
std::string ProblemText(const Problem& problem);
// Only the place: "status, line 12". Empty if it has none.
std::string ProblemPlace(const Problem& problem);
