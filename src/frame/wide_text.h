// A text of the process's code page in the platform's wide characters, for as long as a call takes.

#pragma once

#include <afxwin.h>

#include <memory>
#include <string_view>

namespace qv {

// True if every byte means the same in all code pages, and so in every font's character set.
bool IsAscii(std::string_view text);

// Converted character by character, as ProcessText() splits the text: bytes that form none become
// one replacement character each. Nothing throws: a long text for which there is no memory is cut
// behind its first characters.
class WideText {
public:
    explicit WideText(std::string_view text);
    WideText(const WideText&) = delete;
    WideText& operator=(const WideText&) = delete;

    const wchar_t* Data() const { return m_pUnits; }
    int Length() const { return m_nUnits; }
    std::wstring_view View() const { return {m_pUnits, static_cast<size_t>(m_nUnits)}; }

    // Turns the widths of the first 1, 2, 3 ... units, Length() of them, into those of the first
    // bytes, one for each byte of the text: a byte counts up to the end of its character. Where
    // the text was cut, the last width stands for the rest.
    void UnitsToBytes(int* pWidths) const;

private:
    static constexpr size_t kRoom = 256;  // units for which no memory is taken

    void Convert(std::string_view text, size_t nRoom);

    std::string_view m_text;
    wchar_t m_room[kRoom];
    std::unique_ptr<wchar_t[]> m_pLong;
    wchar_t* m_pUnits = m_room;
    int m_nUnits = 0;
    size_t m_nBytes = 0;  // that were converted
};

}  // namespace qv
