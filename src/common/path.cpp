#include "common/path.h"

#include "common/core/path.h"
#include "common/process_text.h"

#include <algorithm>

namespace {

std::string_view View(const CString& str) {
    return {str.GetString(), static_cast<std::size_t>(str.GetLength())};
}

CString Text(std::string_view text) {
    return CString(text.data(), static_cast<int>(text.size()));
}

qv::PathText Rules(char chSeparator) {
    return qv::PathText(qv::ProcessText(), chSeparator);
}

}  // namespace

QVPath::QVPath(char chSeparator) : m_chSeparator(chSeparator) {}

QVPath::QVPath(LPCSTR pszPath, char chSeparator) : m_strPath(pszPath), m_chSeparator(chSeparator) {}

void QVPath::Set(LPCSTR pszPath) {
    m_strPath = pszPath;
}

void QVPath::Append(LPCSTR pszPart) {
    std::string strPath(View(m_strPath));
    Rules(m_chSeparator).Append(strPath, pszPart != nullptr ? pszPart : "");
    m_strPath = Text(strPath);
}

int QVPath::RemoveLast(CString& strLast, int nCount) {
    const auto cut = Rules(m_chSeparator).CutLast(View(m_strPath), nCount);
    strLast = Text(cut.taken);
    m_strPath = Text(cut.rest);
    return cut.nTaken;
}

BOOL QVPath::GetNextComponent(int& nPos, CString& strPart) const {
    auto nAt = static_cast<std::size_t>(std::max(nPos, 0));
    const std::string_view part = Rules(m_chSeparator).Next(View(m_strPath), nAt);
    nPos = static_cast<int>(nAt);
    strPart = Text(part);
    return !part.empty();
}

CString QVPath::GetName() const {
    return Text(Rules(m_chSeparator).CutLast(View(m_strPath), 1).taken);
}

CString QVPath::GetExtension() const {
    return Text(qv::PathText::Extension(Rules(m_chSeparator).CutLast(View(m_strPath), 1).taken));
}

CString QVPath::GetTitle() const {
    const CString strName = GetName();
    const std::size_t nExtension = qv::PathText::Extension(View(strName)).size();
    return nExtension > 0 ? strName.Left(strName.GetLength() - static_cast<int>(nExtension) - 1)
                          : strName;
}

QVPath QVPath::GetParent() const {
    QVPath parent(*this);
    CString strLast;
    parent.RemoveLast(strLast);
    return parent;
}

BOOL QVPath::IsAbsolute() const {
    const auto root = Rules(m_chSeparator).RootOf(View(m_strPath));
    return root.bAnchored &&
           (root.bDrive || root.bMachine || root.bDevice || m_chSeparator != '\\');
}

BOOL QVPath::IsUnc() const {
    return Rules(m_chSeparator).RootOf(View(m_strPath)).bMachine;
}

void QVPath::Normalize() {
    m_strPath = Text(Rules(m_chSeparator).Normal(View(m_strPath)));
}
