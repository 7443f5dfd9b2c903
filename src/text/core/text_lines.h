// The lines of a text window: appended one by one, cleared all at once. Each is stored with its
// style code in front.
//
// Texts lie in large blocks and cost three bytes more than their own length, the index of lines
// eight bytes a line.

#pragma once

#include "frame/core/styled_text.h"

#include <cstddef>
#include <deque>
#include <memory>
#include <string_view>
#include <vector>

namespace qv {

class TextLines {
public:
    static constexpr size_t kCodeBytes = 2;  // before each text

    // The new number of lines, or -1 without memory; nothing has changed then. Style -1 counts as
    // 0; only the low 8 bits of others are used, and no table is asked.
    int Add(std::string_view text, int nStyle);
    void Clear();

    int Count() const { return static_cast<int>(m_lines.size()); }
    // With its code, NUL-terminated; null if there is no such line.
    const char* Line(int nLine) const;
    // As it was added.
    const char* Text(int nLine) const;
    // Another one after each Clear.
    unsigned Generation() const { return m_nGeneration; }

private:
    char* Room(size_t nBytes);

    std::deque<const char*> m_lines;
    std::vector<std::unique_ptr<char[]>> m_blocks;
    char* m_pFree = nullptr;
    size_t m_nFree = 0;
    unsigned m_nGeneration = 0;
};

// What shows of a stored line: its text without the style code. While there are no styles at all,
// which is before the window is made, the code that TextLines wrote goes all the same; once there
// are some, the letter of a style that is not among them shows.
const char* LineText(const StyleTable& styles, const char* pszLine);

}  // namespace qv
