#include "common/core/log_file.h"

#include "common/core/status_text.h"

#include <algorithm>
#include <array>

namespace qv {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

bool EndsInLine(LogBytes& file, std::uint64_t nSize) {
    char chLast = '\n';
    if (nSize > 0) {
        file.Read(nSize - 1, {&chLast, 1});
    }
    return chLast == '\n';
}

// As much as fits, up to nEnd.
std::string_view ReadPiece(LogBytes& file, std::uint64_t nFrom, std::uint64_t nEnd,
                           std::span<char> piece) {
    const auto bytes =
        piece.first(static_cast<std::size_t>(std::min<std::uint64_t>(piece.size(), nEnd - nFrom)));
    file.Read(nFrom, bytes);
    return {bytes.data(), bytes.size()};
}

// Where the first entry begins from nFrom on, which is behind the file's first byte. nLast is where
// the newest one does.
std::uint64_t FirstEntry(LogBytes& file, std::uint64_t nFrom, std::uint64_t nLast,
                         std::span<char> bytes) {
    // Pieces overlap by the line end and a mark that is not whole.
    for (std::uint64_t nAt = nFrom - 1; nAt + kEntryMark.size() < nLast;
         nAt += bytes.size() - kEntryMark.size()) {
        const std::string_view piece = ReadPiece(file, nAt, nLast, bytes);
        for (std::size_t i = piece.find('\n'); i != piece.npos; i = piece.find('\n', i + 1)) {
            if (piece.substr(i + 1).starts_with(kEntryMark)) {
                return nAt + i + 1;
            }
        }
    }
    return nLast;
}

}  // namespace

bool AppendToLog(LogBytes& file, std::string_view entry, std::uint64_t nLimit, std::size_t nPiece) {
    const std::uint64_t nBefore = file.Size();
    std::uint64_t nLast = nBefore;
    std::uint64_t nSize = nBefore + entry.size();
    try {
        if (!EndsInLine(file, nBefore)) {
            file.Write(nLast, kLineEnd);
            nLast += kLineEnd.size();
            nSize += kLineEnd.size();
        }
        file.Write(nLast, entry);
    } catch (...) {
        file.Cut(nBefore);
        throw;
    }
    if (nSize <= nLimit || nLast == 0) {
        return true;
    }
    std::array<char, kLogPiece> bytes;
    const std::span<char> piece = std::span(bytes).first(nPiece);
    const std::uint64_t nHalf = nLimit / 2;
    const std::uint64_t nFrom =
        nSize - nHalf < nLast ? FirstEntry(file, nSize - nHalf, nLast, piece) : nLast;
    for (std::uint64_t nAt = nFrom; nAt < nSize;) {
        const std::string_view moved = ReadPiece(file, nAt, nSize, piece);
        file.Write(nAt - nFrom, moved);
        nAt += moved.size();
    }
    return file.Cut(nSize - nFrom);
}

}  // namespace qv
