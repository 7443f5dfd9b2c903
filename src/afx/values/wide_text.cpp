#include "afx/values/wide_text.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace {

bool IsTail(char ch) {
    return (ch & 0xC0) == 0x80;
}

// Bytes that a UTF-8 character with this first byte should have; 1 where it begins none.
int Utf8Bytes(BYTE chFirst) {
    return chFirst >= 0xF0 && chFirst <= 0xF4   ? 4
           : chFirst >= 0xE0 && chFirst <= 0xEF ? 3
           : chFirst >= 0xC2 && chFirst <= 0xDF ? 2
                                                : 1;
}

bool IsAscii(LPCSTR lpsz, int nBytes) {
    return std::none_of(lpsz, lpsz + nBytes, [](char ch) { return (ch & 0x80) != 0; });
}

}  // namespace

int AfxCharBytes(LPCSTR lpsz, int nBytes) {
    static const bool s_bUtf8 = ::GetACP() == CP_UTF8;
    if (nBytes <= 0) {
        return 0;
    }
    if ((*lpsz & 0x80) == 0) {
        return 1;
    }
    if (!s_bUtf8) {
        return nBytes > 1 && lpsz[1] != 0 && ::IsDBCSLeadByte(static_cast<BYTE>(*lpsz)) ? 2 : 1;
    }
    const int nWhole = Utf8Bytes(static_cast<BYTE>(*lpsz));
    return nWhole <= nBytes && std::all_of(lpsz + 1, lpsz + nWhole, IsTail) ? nWhole : 1;
}

int AfxWholeBytes(LPCSTR lpsz, int nRoom) {
    const int nBytes = static_cast<int>(std::strlen(lpsz));
    int nWhole = 0;
    for (int nNext = 0; nNext <= nRoom && nWhole < nBytes;) {
        nNext = nWhole + AfxCharBytes(lpsz + nWhole, nBytes - nWhole);
        nWhole = nNext <= nRoom ? nNext : nWhole;
    }
    return nWhole;
}

void AfxCopyChars(LPSTR pTo, LPCSTR pFrom, int nRoom) {
    if (nRoom > 0) {
        const int nBytes = pFrom != nullptr ? AfxWholeBytes(pFrom, nRoom - 1) : 0;
        std::copy_n(pFrom, nBytes, pTo);
        pTo[nBytes] = 0;
    }
}

AfxWideText::AfxWideText(HDC hDC, LPCSTR lpsz, int nBytes)
    : m_lpsz(lpsz),
      m_nBytes(lpsz != nullptr && nBytes == -1 ? static_cast<int>(std::strlen(lpsz)) : nBytes) {
    if (lpsz == nullptr || m_nBytes <= 0 || IsAscii(lpsz, m_nBytes) ||
        ::GetTextCharset(hDC) == SYMBOL_CHARSET) {
        return;
    }
    // No character has more units than bytes.
    LPWSTR pText = m_szShort;
    if (m_nBytes >= kInPlace) {
        m_pLong.reset(new (std::nothrow) WCHAR[static_cast<size_t>(m_nBytes) + 1]);
        pText = m_pLong.get();
    }
    if (pText == nullptr) {
        return;
    }
    m_pText = pText;
    Convert();
    m_pText[m_nLength] = 0;
}

void AfxWideText::Convert() {
    m_nLength =
        ::MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, m_lpsz, m_nBytes, m_pText, m_nBytes);
    if (m_nLength > 0) {
        return;
    }
    // Where bytes are no characters, one by one, so that all ways of counting agree about them.
    ForEachChar([&](int nByte, int nCount, int nUnit, int nUnits) {
        ::MultiByteToWideChar(CP_ACP, 0, m_lpsz + nByte, nCount, m_pText + nUnit, nUnits);
        m_nLength = nUnit + nUnits;
    });
}

int AfxWideText::UnitsOf(int nByte, int nBytes) const {
    // ASCII is most of most texts.
    return (m_lpsz[nByte] & 0x80) == 0
               ? 1
               : ::MultiByteToWideChar(CP_ACP, 0, m_lpsz + nByte, nBytes, nullptr, 0);
}

int AfxWideText::BytesOf(int nUnits) const {
    int nWhole = 0;
    ForEachChar([&](int nByte, int nBytes, int nUnit, int nOfChar) {
        if (nUnit + nOfChar <= nUnits) {
            nWhole = nByte + nBytes;
        }
    });
    return nWhole;
}

SIZE AfxTextExtent(HDC hDC, LPCSTR lpsz, int nBytes) {
    const AfxWideText wide(hDC, lpsz, nBytes);
    SIZE size{};
    if (wide.IsPlain()) {
        ::GetTextExtentPoint32A(hDC, lpsz, nBytes, &size);
    } else {
        ::GetTextExtentPoint32W(hDC, wide.Get(), wide.Length(), &size);
    }
    return size;
}
