#include "model/file_text.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>

namespace {

// Of the call into the C library that has just failed.
unsigned long PlatformError() {
#ifdef _WIN32
    return _doserrno;
#else
    return static_cast<unsigned long>(errno);
#endif
}

}  // namespace

FilePieces::FilePieces(const std::string& strPath)
    : m_strPath(strPath), m_file(std::fopen(strPath.c_str(), "rb"), std::fclose), m_piece(kPiece) {
    if (m_file == nullptr) {
        Fail("the file cannot be opened");
    } else if (std::fseek(m_file.get(), 0, SEEK_END) == 0) {
        m_nSize = static_cast<std::uint64_t>(std::max(std::ftell(m_file.get()), 0L));
        std::rewind(m_file.get());
    }
}

void FilePieces::Fail(const char* pszMessage) {
    m_problem = {pszMessage, m_strPath, 0, PlatformError()};
}

std::string_view FilePieces::Next() {
    if (m_file == nullptr) {
        return {};
    }
    const size_t nRead = std::fread(m_piece.data(), 1, m_piece.size(), m_file.get());
    if (nRead == 0 && std::ferror(m_file.get()) != 0) {
        Fail("the file cannot be read");
    }
    return {m_piece.data(), nRead};
}

FileText ReadFileText(const std::string& strPath, std::size_t nMost) {
    FilePieces pieces(strPath);
    FileText text;
    for (std::string_view piece; !(piece = pieces.Next()).empty();) {
        if (piece.size() > nMost - text.strText.size()) {
            return {"",
                    {"too large to be shown: it has more than " + std::to_string(nMost) + " bytes",
                     strPath, 0, 0}};
        }
        text.strText += piece;
    }
    if (!pieces.Trouble().strMessage.empty()) {
        return {"", pieces.Trouble()};
    }
    return text;
}
