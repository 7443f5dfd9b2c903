#include <afxdlgs.h>

#include <mbstring.h>

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)
IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)

CCommonDialog::CCommonDialog(CWnd* pParentWnd) {
    m_pParentWnd = pParentWnd;
}

CFileDialog::CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt, LPCTSTR lpszFileName,
                         DWORD dwFlags, LPCTSTR lpszFilter, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd),
      m_ofn(),
      m_bOpenFileDialog(bOpenFileDialog),
      m_strFilter(lpszFilter) {
    m_ofn.lStructSize = sizeof m_ofn;
    m_ofn.lpstrFile = m_szFileName;
    m_ofn.nMaxFile = _countof(m_szFileName);
    m_ofn.lpstrFileTitle = m_szFileTitle;
    m_ofn.nMaxFileTitle = _countof(m_szFileTitle);
    m_ofn.lpstrDefExt = lpszDefExt;
    m_ofn.Flags = dwFlags | OFN_EXPLORER | OFN_ENABLESIZING;
    if (lpszFileName != nullptr) {
        lstrcpyn(m_szFileName, lpszFileName, _countof(m_szFileName));
    }
    if (!m_strFilter.IsEmpty()) {
        // The system wants the pairs ended by nulls, and an empty one at the end. A bar may be the
        // second byte of a character, so the search walks whole characters.
        const int nLength = m_strFilter.GetLength();
        LPTSTR pFilter = m_strFilter.GetBuffer(nLength + 1);
        pFilter[nLength + 1] = '\0';
        for (auto* p = reinterpret_cast<unsigned char*>(pFilter); (p = _mbschr(p, '|')) != nullptr;
             ++p) {
            *p = '\0';
        }
        m_ofn.lpstrFilter = pFilter;
    }
}

INT_PTR CFileDialog::DoModal() {
    m_ofn.hwndOwner = PreModal();
    HWND hWndFocus = ::GetFocus();
    const BOOL bChosen = m_bOpenFileDialog ? ::GetOpenFileName(&m_ofn) : ::GetSaveFileName(&m_ofn);
    if (::IsWindow(hWndFocus)) {
        ::SetFocus(hWndFocus);
    }
    PostModal();
    return bChosen ? IDOK : IDCANCEL;
}

CString CFileDialog::GetPathName() const {
    return CString(m_ofn.lpstrFile);
}

CString CFileDialog::GetFileName() const {
    const CString strPath(GetPathName());
    return strPath.Mid(strPath.ReverseFind('\\') + 1);
}

CString CFileDialog::GetFileExt() const {
    const CString strName(GetFileName());
    const int nDot = strName.ReverseFind('.');
    return nDot >= 0 ? strName.Mid(nDot + 1) : CString();
}

CString CFileDialog::GetFileTitle() const {
    const CString strName(GetFileName());
    const int nDot = strName.ReverseFind('.');
    return nDot >= 0 ? strName.Left(nDot) : strName;
}

BOOL CFileDialog::GetReadOnlyPref() const {
    return (m_ofn.Flags & OFN_READONLY) != 0;
}

POSITION CFileDialog::GetStartPosition() const {
    return reinterpret_cast<POSITION>(m_ofn.lpstrFile);
}

CString CFileDialog::GetNextPathName(POSITION& pos) const {
    LPCTSTR lpszFolder = m_ofn.lpstrFile;
    LPCTSTR lpszFirst = lpszFolder + lstrlen(lpszFolder) + 1;
    const bool bSeveral = (m_ofn.Flags & OFN_ALLOWMULTISELECT) && *lpszFirst != '\0';
    if (!bSeveral) {
        pos = nullptr;
        return GetPathName();
    }
    // The folder comes first, then the names in it, each ended by a null.
    auto lpszName = reinterpret_cast<LPCTSTR>(pos);
    if (lpszName == lpszFolder) {
        lpszName = lpszFirst;
    }
    CString strPath(lpszFolder);
    // A backslash may be the second byte of a character.
    if (strPath.IsEmpty() || strPath.ReverseFind('\\') != strPath.GetLength() - 1) {
        strPath += '\\';
    }
    strPath += lpszName;
    LPCTSTR lpszNext = lpszName + lstrlen(lpszName) + 1;
    pos = *lpszNext != '\0' ? reinterpret_cast<POSITION>(const_cast<LPTSTR>(lpszNext)) : nullptr;
    return strPath;
}
