// TextQuery: what the user looks for, and whether a text has it.

#pragma once

#include <afxwin.h>

#include <string>

class TextQuery {
public:
    // Looks for nothing.
    TextQuery() = default;
    // In the process's code page.
    TextQuery(LPCSTR pszText, bool bMatchCase, bool bWholeWord);

    bool IsEmpty() const { return m_strText.empty(); }
    bool IsIn(LPCSTR pszText) const;
    // From where to where.
    bool FindIn(const std::wstring& strText, size_t& nAt, size_t& nEnd) const;

private:
    std::wstring m_strText;
    bool m_bMatchCase = false;
    bool m_bWholeWord = false;
};
