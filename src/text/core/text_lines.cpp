#include "text/core/text_lines.h"

#include "base/no_memory.h"

#include <cstring>

namespace qv {

namespace {

constexpr size_t kBlock = 65536;

}  // namespace

int TextLines::Add(std::string_view text, int nStyle) {
    const FieldPrefix code = MakeStyleCodes(nStyle == -1 ? 0 : nStyle & 255);
    try {
        char* psz = Room(kCodeBytes + text.size() + 1);
        std::memcpy(psz, code.data(), kCodeBytes);
        std::memcpy(psz + kCodeBytes, text.data(), text.size());
        psz[kCodeBytes + text.size()] = '\0';
        m_lines.push_back(psz);
    } catch (...) {
        ExpectNoMemory();
        return -1;
    }
    return Count();
}

// A text too large to share a block gets one of its own, and the open one stays open.
char* TextLines::Room(size_t nBytes) {
    if (nBytes > m_nFree) {
        const bool bAlone = nBytes > kBlock / 4;
        auto block = std::make_unique<char[]>(bAlone ? nBytes : kBlock);
        char* p = block.get();
        m_blocks.push_back(std::move(block));
        if (bAlone) {
            return p;
        }
        m_pFree = p;
        m_nFree = kBlock;
    }
    char* p = m_pFree;
    m_pFree += nBytes;
    m_nFree -= nBytes;
    return p;
}

void TextLines::Clear() {
    m_lines.clear();
    m_lines.shrink_to_fit();
    m_blocks.clear();
    m_pFree = nullptr;
    m_nFree = 0;
    ++m_nGeneration;
}

const char* TextLines::Line(int nLine) const {
    return nLine >= 0 && nLine < Count() ? m_lines[static_cast<size_t>(nLine)] : nullptr;
}

const char* TextLines::Text(int nLine) const {
    const char* pszLine = Line(nLine);
    return pszLine != nullptr ? pszLine + kCodeBytes : nullptr;
}

const char* LineText(const StyleTable& styles, const char* pszLine) {
    return styles.Count() == 0 && HasStyle(pszLine) ? pszLine + TextLines::kCodeBytes
                                                    : styles.ParseStyleText(pszLine);
}

}  // namespace qv
