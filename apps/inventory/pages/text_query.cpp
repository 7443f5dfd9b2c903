#include "pages/text_query.h"

#include "model/find_rows.h"

namespace {

std::wstring Wide(LPCSTR pszText) {
    const int nBytes = lstrlen(pszText);
    std::wstring strWide(static_cast<size_t>(nBytes), L'\0');
    strWide.resize(static_cast<size_t>(
        ::MultiByteToWideChar(CP_ACP, 0, pszText, nBytes, strWide.data(), nBytes)));
    return strWide;
}

// As long as it was.
std::wstring Folded(std::wstring strText) {
    ::CharLowerBuffW(strText.data(), static_cast<DWORD>(strText.size()));
    return strText;
}

}  // namespace

TextQuery::TextQuery(LPCSTR pszText, bool bMatchCase, bool bWholeWord)
    : m_strText(bMatchCase ? Wide(pszText) : Folded(Wide(pszText))),
      m_bMatchCase(bMatchCase),
      m_bWholeWord(bWholeWord) {}

bool TextQuery::FindIn(const std::wstring& strText, size_t& nAt, size_t& nEnd) const {
    nAt = PlaceOfText(m_bMatchCase ? strText : Folded(strText), m_strText, m_bWholeWord);
    nEnd = nAt + m_strText.size();
    return nAt != std::wstring_view::npos;
}

bool TextQuery::IsIn(LPCSTR pszText) const {
    size_t nAt = 0;
    size_t nEnd = 0;
    return FindIn(Wide(pszText), nAt, nEnd);
}
