#include "model/problem.h"

std::string ProblemPlace(const Problem& problem) {
    std::string strPlace = problem.strFile;
    if (problem.nLine > 0) {
        strPlace += (strPlace.empty() ? "line " : ", line ") + std::to_string(problem.nLine);
    }
    return strPlace;
}

std::string ProblemText(const Problem& problem) {
    const std::string strPlace = ProblemPlace(problem);
    return strPlace.empty() ? problem.strMessage : strPlace + ": " + problem.strMessage;
}
