// A file as text, as far as it is one to show.

#pragma once

#include <cstddef>
#include <string>

struct FileText {
    std::string strText;
    std::string strProblem;  // empty: it was read. Names the file.
};

constexpr std::size_t kLargestText = 16 << 20;

// Whole or not at all: a file of more than nMost bytes is a problem.
FileText ReadFileText(const std::string& strPath, std::size_t nMost = kLargestText);
