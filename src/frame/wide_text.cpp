#include "frame/wide_text.h"

#include "common/process_text.h"

#include <algorithm>
#include <new>

namespace qv {

namespace {

constexpr wchar_t kReplacement = 0xFFFD;
constexpr size_t kMostUnits = 2;  // of one character

bool IsAsciiByte(char ch) {
    return static_cast<signed char>(ch) >= 0;
}

// Writes the units of one character; gives their number.
size_t ConvertChar(std::string_view ch, wchar_t* pUnits) {
    if (ch.size() == 1 && IsAsciiByte(ch.front())) {
        *pUnits = static_cast<wchar_t>(ch.front());
        return 1;
    }
    const int nUnits = ::MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, ch.data(),
                                             static_cast<int>(ch.size()), pUnits, kMostUnits);
    if (nUnits <= 0) {
        *pUnits = kReplacement;
        return 1;
    }
    return static_cast<size_t>(nUnits);
}

}  // namespace

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), IsAsciiByte);
}

// No character has more units than bytes.
WideText::WideText(std::string_view text) : m_text(text) {
    size_t nRoom = kRoom;
    if (text.size() > kRoom) {
        m_pLong.reset(new (std::nothrow) wchar_t[text.size()]);
        if (m_pLong != nullptr) {
            m_pUnits = m_pLong.get();
            nRoom = text.size();
        }
    }
    Convert(text, nRoom);
}

void WideText::Convert(std::string_view text, size_t nRoom) {
    const MultiByte& rule = ProcessText();
    size_t nUnits = 0;
    while (m_nBytes < text.size()) {
        const std::string_view rest = text.substr(m_nBytes);
        const size_t nChar = rule.CharBytes(rest);
        wchar_t units[kMostUnits];
        const size_t nNew = ConvertChar(rest.substr(0, nChar), units);
        if (nUnits + nNew > nRoom) {
            break;
        }
        std::copy_n(units, nNew, m_pUnits + nUnits);
        nUnits += nNew;
        m_nBytes += nChar;
    }
    m_nUnits = static_cast<int>(nUnits);
}

// In place: the widths move to the end of their room first, where none is overwritten before it is
// read, since no rest of the text has more units than bytes.
void WideText::UnitsToBytes(int* pWidths) const {
    const int nWhole = m_nUnits > 0 ? pWidths[m_nUnits - 1] : 0;
    const size_t nUnits = static_cast<size_t>(m_nUnits);
    if (nUnits != m_nBytes) {
        const MultiByte& rule = ProcessText();
        const int* pUnits = pWidths + (m_nBytes - nUnits);
        std::copy_backward(pWidths, pWidths + nUnits, pWidths + m_nBytes);
        size_t nUnit = 0;
        for (size_t nByte = 0; nByte < m_nBytes;) {
            const size_t nChar = rule.CharBytes(m_text.substr(nByte));
            nUnit += IS_HIGH_SURROGATE(m_pUnits[nUnit]) ? 2 : 1;
            nByte = static_cast<size_t>(std::fill_n(pWidths + nByte, nChar, pUnits[nUnit - 1]) -
                                        pWidths);
        }
    }
    std::fill(pWidths + m_nBytes, pWidths + m_text.size(), nWhole);
}

}  // namespace qv
