#include "common/core/path.h"

#include <algorithm>
#include <vector>

namespace qv {

namespace {

constexpr std::size_t kDriveBytes = 2;

bool IsLetter(char ch) {
    return (ch >= 'A' && ch <= 'Z') || (ch >= 'a' && ch <= 'z');
}

// Bytes of the mark that a machine follows in a device path, with its separator if that is there.
std::size_t UncMark(std::string_view path) {
    const bool bMark = path.size() >= 3 && (path[0] | 32) == 'u' && (path[1] | 32) == 'n' &&
                       (path[2] | 32) == 'c' && (path.size() == 3 || path[3] == '\\');
    return bMark ? std::min<std::size_t>(path.size(), 4) : 0;
}

}  // namespace

PathText::PathText(const MultiByte& text, char chSeparator)
    : m_text(text), m_chSeparator(chSeparator), m_bByBytes(text.KeepsAscii()) {}

bool PathText::IsDrive(std::string_view path) const {
    return path.size() >= kDriveBytes && IsLetter(path[0]) && path[1] == ':' &&
           m_chSeparator != ':';
}

PathText::Root PathText::RootOf(std::string_view path) const {
    Root root;
    const std::size_t nSeparators = SkipSeparators(path, 0, false);
    if (nSeparators >= 2) {
        root.nBytes = 2;
        root.bAnchored = true;
        root.bDevice =
            m_chSeparator == '\\' && nSeparators < path.size() &&
            (path[nSeparators] == '?' || path[nSeparators] == '.') &&
            (nSeparators + 1 == path.size() || IsSeparator(path[nSeparators + 1], false));
        if (root.bDevice) {
            root.nBytes = SkipSeparators(path, nSeparators + 1, false);
        }
        const std::size_t nMark = root.bDevice ? UncMark(path.substr(root.nBytes)) : 0;
        root.bMachine = !root.bDevice || nMark > 0;
        root.nBytes += nMark;
        if (root.bMachine) {
            return root;
        }
    }
    if (IsDrive(path.substr(root.nBytes))) {
        root.bDrive = true;
        root.nDrive = root.nBytes;
        root.nBytes += kDriveBytes;
    }
    if (root.nBytes < path.size() && (root.nBytes == 0 || root.bDrive) &&
        IsSeparator(path[root.nBytes], root.bDevice)) {
        ++root.nBytes;
        root.bAnchored = true;
    }
    return root;
}

std::size_t PathText::SkipSeparators(std::string_view path, std::size_t nPos, bool bDevice) const {
    while (nPos < path.size() && IsSeparator(path[nPos], bDevice)) {
        ++nPos;
    }
    return nPos;
}

std::string_view PathText::Next(std::string_view path, std::size_t& nPos) const {
    return Next(path, RootOf(path), nPos);
}

std::string_view PathText::Next(std::string_view path, const Root& root, std::size_t& nPos) const {
    if (root.bDrive && nPos <= root.nDrive) {
        nPos = root.nDrive + kDriveBytes;
        return path.substr(root.nDrive, kDriveBytes);
    }
    const std::size_t nStart = nPos =
        SkipSeparators(path, std::min(std::max(nPos, root.nBytes), path.size()), root.bDevice);
    while (nPos < path.size() && !IsSeparator(path[nPos], root.bDevice)) {
        nPos += CharBytes(path, nPos);
    }
    return path.substr(nStart, nPos - nStart);
}

// A byte is the second one of a character if an odd number of bytes that can lead stand before it.
bool PathText::BeginsChar(std::string_view path, std::size_t nPos) const {
    std::size_t nStart = nPos;
    while (!m_bByBytes && nStart > 0 &&
           m_text.CanLead(static_cast<unsigned char>(path[nStart - 1]))) {
        --nStart;
    }
    return (nPos - nStart) % 2 == 0;
}

bool PathText::SeparatorBefore(std::string_view path, const Root& root, std::size_t nPos) const {
    return nPos > root.nBytes && IsSeparator(path[nPos - 1], root.bDevice) &&
           BeginsChar(path, nPos - 1);
}

PathText::Cut PathText::CutLast(std::string_view path, int nCount) const {
    const Root root = RootOf(path);
    const auto skipBack = [&](std::size_t nPos) {
        while (SeparatorBefore(path, root, nPos)) {
            --nPos;
        }
        return nPos;
    };
    const std::size_t nEnd = skipBack(path.size());
    std::size_t nStart = nEnd;
    std::size_t nRest = nEnd;
    Cut cut;
    for (; cut.nTaken < nCount && nRest > root.nBytes; ++cut.nTaken) {
        for (nStart = nRest; nStart > root.nBytes && !SeparatorBefore(path, root, nStart);) {
            --nStart;
        }
        nRest = skipBack(nStart);
    }
    cut.rest = cut.nTaken > 0 ? path.substr(0, nRest) : path;
    cut.taken = path.substr(nStart, nEnd - nStart);
    return cut;
}

void PathText::Append(std::string& strPath, std::string_view part) const {
    if (strPath.empty()) {
        strPath = part;
        return;
    }
    const Root root = RootOf(strPath);
    part.remove_prefix(SkipSeparators(part, 0, root.bDevice));
    if (part.empty()) {
        return;
    }
    const std::size_t nLast = strPath.size() - 1;
    const bool bHalf = !m_bByBytes && m_text.CanLead(static_cast<unsigned char>(strPath[nLast])) &&
                       BeginsChar(strPath, nLast);
    std::size_t nEnd = nLast + (bHalf ? 0 : 1);
    while (SeparatorBefore(strPath, root, nEnd)) {
        --nEnd;
    }
    strPath.resize(nEnd);
    // Two separators before a machine, or a root's one, are there already.
    if (nEnd > root.nBytes || (nEnd > 0 && !IsSeparator(strPath[nEnd - 1], false))) {
        strPath += m_chSeparator;
    }
    strPath.append(part);
}

std::string PathText::Normal(std::string_view path) const {
    const Root root = RootOf(path);
    if (root.bDevice || path.empty()) {
        return std::string(path);
    }
    const std::size_t nKept = root.bMachine ? 2 : 0;  // machine and share are no folders
    std::vector<std::string_view> parts;
    for (std::size_t nPos = root.nBytes;;) {
        const std::string_view part = Next(path, root, nPos);
        if (part.empty()) {
            break;
        }
        if (parts.size() < nKept || (part != "." && part != "..")) {
            parts.push_back(part);
        } else if (part == "..") {
            if (parts.size() > nKept && parts.back() != "..") {
                parts.pop_back();
            } else if (!root.bAnchored) {
                parts.push_back(part);
            }
        }
    }
    std::string strNormal(path.substr(0, root.bDrive ? kDriveBytes : 0));
    strNormal.append(root.bMachine ? 2 : root.bAnchored ? 1 : 0, m_chSeparator);
    if (root.nBytes == 0 && !parts.empty() && IsDrive(parts.front())) {
        strNormal += '.';  // a name, not a drive
        strNormal += m_chSeparator;
    }
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i > 0) {
            strNormal += m_chSeparator;
        }
        strNormal.append(parts[i]);
    }
    return strNormal.empty() ? std::string(1, '.') : strNormal;
}

std::string_view PathText::Extension(std::string_view name) {
    const std::size_t nDot = name.rfind('.');
    const bool bNone = nDot == std::string_view::npos || name.find_first_not_of('.') >= nDot;
    return bNone ? std::string_view() : name.substr(nDot + 1);
}

}  // namespace qv
