// The lines of a text window: appended one by one, cleared all at once. Each is stored with its
// style code in front.
//
// Texts lie in large blocks and cost three bytes more than their own length, the index of lines
// eight bytes a line.

#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <string_view>
#include <vector>

namespace qv {

class TextLines {
public:
    // The new number of lines, or -1 without memory; nothing has changed then. Style -1 counts as
    // 0; only the low 8 bits of others are used, and no table is asked.
    int Add(std::string_view text, int nStyle);
    void Clear();

    int Count() const { return static_cast<int>(m_lines.size()); }
    // With its code, NUL-terminated; null if there is no such line.
    const char* Line(int nLine) const;
    // Bytes of the longest line without its code.
    int MaxLength() const { return m_nMaxLength; }
    // Another one after each Clear.
    unsigned Generation() const { return m_nGeneration; }

private:
    char* Room(size_t nBytes);

    std::deque<const char*> m_lines;
    std::vector<std::unique_ptr<char[]>> m_blocks;
    char* m_pFree = nullptr;
    size_t m_nFree = 0;
    int m_nMaxLength = 0;
    unsigned m_nGeneration = 0;
};

}  // namespace qv
