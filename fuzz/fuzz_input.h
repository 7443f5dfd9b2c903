// Reads an input byte by byte; zeros follow its end.

#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

class FuzzInput {
public:
    FuzzInput(const std::uint8_t* pData, std::size_t nSize) : m_p(pData), m_pEnd(pData + nSize) {}
    bool AtEnd() const { return m_p == m_pEnd; }
    unsigned Byte() { return AtEnd() ? 0 : *m_p++; }
    int Int() { return static_cast<int>(Byte() << 8 | Byte()) - 1000; }
    std::string Text() {
        std::string strText;
        for (unsigned n = Byte() % 24; n > 0 && !AtEnd(); --n) {
            // Mostly what carries structure.
            static constexpr char kBytes[] = "ab\t\033A\x81\xC3\xA4z{";
            const unsigned b = Byte();
            strText += b < 200 ? kBytes[b % (sizeof(kBytes) - 1)] : static_cast<char>(b);
        }
        return strText.substr(0, strText.find('\0'));
    }

private:
    const std::uint8_t* m_p;
    const std::uint8_t* m_pEnd;
};

#define FUZZ_CHECK(condition)                                                    \
    do {                                                                         \
        if (!(condition)) {                                                      \
            std::fprintf(stderr, "%s:%d: %s\n", __FILE__, __LINE__, #condition); \
            std::abort();                                                        \
        }                                                                        \
    } while (false)
