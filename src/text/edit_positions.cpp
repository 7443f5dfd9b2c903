#include "text/edit_positions.h"

#include "frame/wide_text.h"

#include <algorithm>
#include <numeric>

namespace qv {

namespace {

// By its last line, so that an edit of many lines tells it as well.
int LengthInPositions(HWND hEdit) {
    const LRESULT nLine = ::SendMessage(hEdit, EM_GETLINECOUNT, 0, 0) - 1;
    const LRESULT nStart = ::SendMessage(hEdit, EM_LINEINDEX, static_cast<WPARAM>(nLine), 0);
    return static_cast<int>(nStart +
                            ::SendMessage(hEdit, EM_LINELENGTH, static_cast<WPARAM>(nStart), 0));
}

}  // namespace

EditPositions::EditPositions(HWND hEdit, std::string_view text)
    : m_nBytes(static_cast<int>(text.size())) {
    if (IsAscii(text) || LengthInPositions(hEdit) == m_nBytes) {
        return;
    }
    const WideText wide(text);
    m_ends.resize(text.size());
    std::iota(m_ends.begin(), m_ends.end(), 1);
    wide.UnitsToBytes(m_ends.data());
}

int EditPositions::FromByte(int nByte) const {
    nByte = std::clamp(nByte, 0, m_nBytes);
    return nByte == 0 || m_ends.empty() ? nByte : m_ends[static_cast<size_t>(nByte) - 1];
}

int EditPositions::ToByte(int nPosition) const {
    if (m_ends.empty()) {
        return std::clamp(nPosition, 0, m_nBytes);
    }
    return static_cast<int>(std::upper_bound(m_ends.begin(), m_ends.end(), nPosition) -
                            m_ends.begin());
}

}  // namespace qv
