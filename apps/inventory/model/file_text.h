// A file as text, as far as it is one to show, and piece by piece.

#pragma once

#include "model/problem.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct FileText {
    std::string strText;
    Problem problem;  // without a message: it was read. Names the file.

    bool WasRead() const { return problem.strMessage.empty(); }
};

constexpr std::size_t kLargestText = 16 << 20;

// Whole or not at all: a file of more than nMost bytes is a problem.
FileText ReadFileText(const std::string& strPath, std::size_t nMost = kLargestText);

class FilePieces {
public:
    static constexpr std::size_t kPiece = 65536;

    explicit FilePieces(const std::string& strPath);
    // In bytes, at the moment it was opened; 0 for a file that has none, as a device.
    std::uint64_t Size() const { return m_nSize; }
    // Good until the next is asked for; empty at the end, and where the file cannot be read.
    std::string_view Next();
    // Without a message: the file was there, and all pieces so far could be read.
    const Problem& Trouble() const { return m_problem; }

private:
    void Fail(const char* pszMessage);

    const std::string m_strPath;
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> m_file;
    std::uint64_t m_nSize = 0;
    std::vector<char> m_piece;
    Problem m_problem;
};
