// Paths as text: a root, then components with separators between them. Nothing here asks a file
// system.
//
//   root                                     example        its components
//   none: relative                           a\b            a, b
//   folder, of the current drive             \a             a
//   drive: its current folder                C:a            C:, a
//   drive and folder                         C:\a           C:, a
//   machine: two separators                  \\m\share\a    m, share, a
//   device: "\\?\" or "\\.\", also           \\?\C:\a       C:, a
//     with a drive, or "UNC" for a machine   \\?\UNC\m\a    m, a
//
// With the backslash as separator a slash separates as well, but for device paths, which the
// platform takes literally. Several separators count as one. A drive is a component to walk over,
// though none to take off: it belongs to the root. A separator's byte inside a character of several
// bytes separates nothing.

#pragma once

#include "base/multi_byte.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace qv {

class PathText {
public:
    // The text's rule outlives this. The separator is a character of one byte.
    PathText(const MultiByte& text, char chSeparator);

    struct Root {
        std::size_t nBytes = 0;  // of all of it
        std::size_t nDrive = 0;  // where the drive's letter is, if there is one
        bool bDrive = false;
        bool bMachine = false;  // machine and share follow as components
        bool bDevice = false;
        bool bAnchored = false;  // does not depend on a current folder, but for the drive of "\"
    };
    Root RootOf(std::string_view path) const;

    // The component that begins at nPos or behind it; nPos moves to its end. Empty at the end.
    // nPos starts as 0.
    std::string_view Next(std::string_view path, std::size_t& nPos) const;

    // The last nCount components, with what separates them, or as many as there are: none of the
    // root. The rest has no separator at its end, unless it is the root's.
    struct Cut {
        std::string_view rest;
        std::string_view taken;
        int nTaken = 0;
    };
    Cut CutLast(std::string_view path, int nCount) const;

    // Puts one separator between both. An empty path becomes the part as it stands; else its
    // leading separators go, so that appending never leaves the folder that the path names. Half a
    // character at the end of the path goes: it would swallow the separator.
    void Append(std::string& strPath, std::string_view part) const;

    // Without "." and without ".." wherever a component stands before it to be left; ".." ends at
    // the root, which for a machine includes the share. Single separators, none at the end. What
    // comes to nothing is "."; device paths stay as they are.
    std::string Normal(std::string_view path) const;

    // Of a name: what follows its last dot, unless nothing stands before that.
    static std::string_view Extension(std::string_view name);

    char Separator() const { return m_chSeparator; }

private:
    bool IsSeparator(char ch, bool bDevice) const {
        return ch == m_chSeparator || (ch == '/' && m_chSeparator == '\\' && !bDevice);
    }
    bool IsDrive(std::string_view path) const;
    std::size_t CharBytes(std::string_view path, std::size_t nPos) const {
        return m_bByBytes ? 1 : m_text.CharBytes(path.substr(nPos));
    }
    std::size_t SkipSeparators(std::string_view path, std::size_t nPos, bool bDevice) const;
    std::string_view Next(std::string_view path, const Root& root, std::size_t& nPos) const;
    bool BeginsChar(std::string_view path, std::size_t nPos) const;
    bool SeparatorBefore(std::string_view path, const Root& root, std::size_t nPos) const;

    const MultiByte& m_text;
    char m_chSeparator;
    bool m_bByBytes;
};

}  // namespace qv
