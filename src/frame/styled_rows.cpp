#include "frame/styled_rows.h"

#include "frame/core/styled_text.h"

QVStyleTable::QVStyleTable() : m_pStyles(new qv::StyleTable), m_aStyles(*m_pStyles) {}

QVStyleTable::~QVStyleTable() = default;

int QVStyleTable::AddStyle(COLORREF crText, COLORREF crBk) {
    return m_aStyles.Add(crText, crBk);
}

int QVStyleTable::UpdateStyle(int nStyle, COLORREF crText, COLORREF crBk) {
    m_aStyles.Update(nStyle, crText, crBk);
    if (nStyle == m_nDefault) {
        m_nDefault = -1;
    }
    return 0;
}

int QVStyleTable::AddDefaultStyle(COLORREF crBk) {
    const int nStyle = AddStyle(::GetSysColor(COLOR_WINDOWTEXT), crBk);
    if (m_nDefault == -1) {
        m_nDefault = nStyle;
    }
    return nStyle;
}

void QVStyleTable::FollowSystemColors(COLORREF crBk) {
    m_aStyles.Update(m_nDefault, ::GetSysColor(COLOR_WINDOWTEXT), crBk);
}

int QVStyleTable::ParseStyle(LPCSTR pszText) const {
    return m_aStyles.ParseStyle(pszText);
}

LPCSTR QVStyleTable::ParseStyleText(LPCSTR pszText) const {
    return m_aStyles.ParseStyleText(pszText);
}

int QVStyleTable::NumStyles() const {
    return m_aStyles.Count();
}

QVSTYLE QVStyleTable::StyleColors(int nStyle) const {
    return nStyle >= 0 && nStyle < m_aStyles.Count() ? m_aStyles[nStyle] : QVSTYLE{};
}

QVStyledRows::QVStyledRows() {
    AddDefaultStyle(::GetSysColor(COLOR_WINDOW));
}

void QVStyledRows::FollowSystemColors() {
    QVStyleTable::FollowSystemColors(::GetSysColor(COLOR_WINDOW));
}

BOOL QVStyledRows::HasStyle(LPCSTR pszText) const {
    return qv::HasStyle(pszText);
}

CString QVStyledRows::MakeStyleCodes(int nStyle) {
    // Two bytes in any case, though an index far beyond any table makes the second one 0.
    return CString(qv::MakeStyleCodes(nStyle).data(), nStyle >= 0 ? 2 : 0);
}

CString QVStyledRows::MakeStyleText(LPCSTR pszText, int nStyle) const {
    CString strRow;
    return AppendStyleText(strRow, pszText, nStyle);
}

CString& QVStyledRows::MakeStyleText(LPCSTR pszText, int nStyle, CString& strOut) const {
    // The text may stand in strOut.
    const CString strText(pszText);
    strOut.Empty();
    return AppendStyleText(strOut, strText, nStyle);
}

CString& QVStyledRows::AppendStyleText(CString& strRow, LPCSTR pszText, int nStyle) const {
    const int nLength = strRow.GetLength();
    const char chLast = nLength > 0 ? strRow[nLength - 1] : '\0';
    const CString strText(pszText);
    strRow += m_aStyles.PrefixFor(chLast, nStyle).data();
    strRow += strText;
    return strRow;
}

BOOL QVStyledRows::NextField(const CString& strRow, int& nPos, CString& strField) const {
    std::string_view field;
    const bool bFound = qv::NextField(std::string_view(strRow), nPos, field);
    strField = CString(field.data(), static_cast<int>(field.size()));
    return bFound;
}
