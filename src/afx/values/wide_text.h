// 8-bit text for the system's drawing calls. Those go by the character set of the selected font,
// not by the process's code page, so a text beyond ASCII is converted by the code page and handed
// to the wide calls. Internal to the framework.
#pragma once

#include "afx/values/api.h"

#include <memory>

/// Bytes of the character at the start of a text of nBytes bytes, in the process's code page: 1 to
/// 4, and 1 for what is no whole character. 0 for an empty text.
int AfxCharBytes(LPCSTR lpsz, int nBytes);
/// Bytes of the whole characters at the start of a terminated text that find room in nRoom bytes.
int AfxWholeBytes(LPCSTR lpsz, int nRoom);

/// Copies what has room of a text, whole characters, and the terminator. Null is an empty text.
void AfxCopyChars(LPSTR pTo, LPCSTR pFrom, int nRoom);

/// A text of the process's code page as UTF-16, zero-terminated.
class AfxWideText {
public:
    /// hDC: the context that the text is for. nBytes: -1 for a terminated text.
    AfxWideText(HDC hDC, LPCSTR lpsz, int nBytes);

    /// True for a text that the 8-bit calls take as it is meant, so that nothing was converted:
    /// plain ASCII, and glyphs of a symbol font, whose bytes are of no code page. Also where there
    /// is no memory to convert.
    bool IsPlain() const { return m_pText == nullptr; }
    LPCWSTR Get() const { return m_pText; }
    int Length() const { return m_nLength; }  ///< units of 16 bits, without the terminator
    int Bytes() const { return m_nBytes; }

    /// Bytes of the whole characters among the first nUnits units.
    int BytesOf(int nUnits) const;

    /// What the text's characters are made of. Calls visit(first byte, bytes, first unit, units)
    /// for each.
    template <class Visit>
    void ForEachChar(Visit visit) const {
        for (int nByte = 0, nUnit = 0; nByte < m_nBytes;) {
            const int nBytes = AfxCharBytes(m_lpsz + nByte, m_nBytes - nByte);
            const int nUnits = UnitsOf(nByte, nBytes);
            visit(nByte, nBytes, nUnit, nUnits);
            nByte += nBytes;
            nUnit += nUnits;
        }
    }

private:
    static constexpr int kInPlace = 256;  // units

    int UnitsOf(int nByte, int nBytes) const;

    void Convert();

    LPCSTR m_lpsz;
    int m_nBytes;
    int m_nLength = 0;
    LPWSTR m_pText = nullptr;
    std::unique_ptr<WCHAR[]> m_pLong;
    WCHAR m_szShort[kInPlace];
};

/// The extent of a text of the process's code page in the context's font.
SIZE AfxTextExtent(HDC hDC, LPCSTR lpsz, int nBytes);
