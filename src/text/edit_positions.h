// Positions in the platform's edit, and bytes of its text. The platform counts what an edit holds:
// the wide characters of a wide one, the bytes of any other. Texts here are 8-bit, where a
// character may have several bytes.

#pragma once

#include <afxwin.h>

#include <string_view>
#include <vector>

namespace qv {

// For a text that the edit holds: hEdit is asked how long that is in its own count. The text must
// outlive this.
class EditPositions {
public:
    EditPositions(HWND hEdit, std::string_view text);

    // The edit's position at byte nByte; inside a character, and from its second byte on, the
    // position behind it. Beyond the end: that of the end.
    int FromByte(int nByte) const;
    // The byte at a position of the edit; inside a character, the byte where it begins.
    int ToByte(int nPosition) const;

private:
    int m_nBytes;
    std::vector<int> m_ends;  // position behind the character of each byte; empty: they are bytes
};

}  // namespace qv
