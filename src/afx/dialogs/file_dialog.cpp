#include "afx/window/wnd_state.h"

#include <afxdlgs.h>

#include <algorithm>

// Defines short names that clash with those of the standard library's headers: after them.
#include <mbstring.h>

IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)

CFileDialog::CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt, LPCTSTR lpszFileName,
                         DWORD dwFlags, LPCTSTR lpszFilter, CWnd* pParentWnd, DWORD, BOOL)
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
    m_ofn.Flags = dwFlags | OFN_EXPLORER | OFN_ENABLESIZING | OFN_ENABLEHOOK;
    m_ofn.lpfnHook = &CFileDialog::HookProc;
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

/// Names of several files take more room than one path; a program may have brought its own.
void CFileDialog::MakeRoomForMany() {
    constexpr DWORD kRoom = 0x40000;
    if ((m_ofn.Flags & OFN_ALLOWMULTISELECT) && m_ofn.lpstrFile == m_szFileName) {
        m_manyNames.assign(kRoom, '\0');
        std::copy_n(m_szFileName, _countof(m_szFileName), m_manyNames.begin());
        m_ofn.lpstrFile = m_manyNames.data();
        m_ofn.nMaxFile = kRoom;
    }
}

INT_PTR CFileDialog::DoModal() {
    MakeRoomForMany();
    m_ofn.hwndOwner = PreModal();
    return RunSystemDialog(m_ofn.hwndOwner, [](CCommonDialog* pDlg) {
        auto* pThis = static_cast<CFileDialog*>(pDlg);
        return pThis->m_bOpenFileDialog ? ::GetOpenFileName(&pThis->m_ofn)
                                        : ::GetSaveFileName(&pThis->m_ofn);
    });
}

// --- The window

// The procedure of a child that the system makes of its dialog for the hook's sake. The object
// takes the child over at its first message; all later ones come through the object, as its
// default.
UINT_PTR CALLBACK CFileDialog::HookProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        return SystemDialogHook(hWnd, message, wParam, lParam);
    }
    // The system's code lies between here and whoever opened the dialog; no exception may cross it.
    try {
        auto* pDlg = dynamic_cast<CFileDialog*>(CWnd::FromHandlePermanent(hWnd));
        return pDlg != nullptr ? pDlg->OnHookMessage(message, wParam, lParam) : 0;
    } catch (...) {
        AfxProcessCurrentException(hWnd, message, wParam, lParam);
        return 0;
    }
}

// The messages of dialogs without OFN_EXPLORER; the others notify.
UINT_PTR CFileDialog::OnHookMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    static const UINT s_nFileOK = ::RegisterWindowMessage(FILEOKSTRING);
    static const UINT s_nShareViolation = ::RegisterWindowMessage(SHAREVISTRING);
    static const UINT s_nSelChange = ::RegisterWindowMessage(LBSELCHSTRING);
    if (message < kFirstRegisteredMessage || (m_ofn.Flags & OFN_EXPLORER)) {
        return 0;
    }
    if (message == s_nFileOK) {
        return static_cast<UINT_PTR>(OnFileNameOK());
    }
    if (message == s_nShareViolation) {
        return OnShareViolation(reinterpret_cast<LPCTSTR>(lParam));
    }
    if (message == s_nSelChange) {
        OnLBSelChangedNotify(static_cast<UINT>(wParam), LOWORD(lParam), HIWORD(lParam));
    }
    return 0;
}

BOOL CFileDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (CCommonDialog::OnNotify(wParam, lParam, pResult)) {
        return TRUE;
    }
    const auto& notify = *reinterpret_cast<const OFNOTIFY*>(lParam);
    const HWND hWnd = m_hWnd;
    switch (notify.hdr.code) {
        case CDN_INITDONE:
            OnInitDone();
            return TRUE;
        case CDN_SELCHANGE:
            OnFileNameChange();
            return TRUE;
        case CDN_FOLDERCHANGE:
            OnFolderChange();
            return TRUE;
        case CDN_TYPECHANGE:
            OnTypeChange();
            return TRUE;
        case CDN_FILEOK:
            *pResult = OnFileNameOK();
            break;
        case CDN_SHAREVIOLATION:
            *pResult = static_cast<LRESULT>(OnShareViolation(notify.pszFile));
            break;
        default:
            return FALSE;
    }
    // Where a dialog looks for an answer.
    ::SetWindowLongPtr(hWnd, DWLP_MSGRESULT, *pResult);
    return TRUE;
}

UINT CFileDialog::OnShareViolation(LPCTSTR) {
    return OFN_SHAREWARN;
}

BOOL CFileDialog::OnFileNameOK() {
    return FALSE;
}

void CFileDialog::OnLBSelChangedNotify(UINT, UINT, UINT) {}

// A dialog without a place of its own comes up in the middle of its owner.
void CFileDialog::OnInitDone() {
    GetParent()->CenterWindow();
}

void CFileDialog::OnFileNameChange() {}
void CFileDialog::OnFolderChange() {}
void CFileDialog::OnTypeChange() {}

void CFileDialog::SetControlText(int nID, LPCSTR lpsz) {
    AfxSend(::GetParent(m_hWnd), CDM_SETCONTROLTEXT, nID, lpsz);
}

void CFileDialog::HideControl(int nID) {
    AfxSend(::GetParent(m_hWnd), CDM_HIDECONTROL, nID);
}

void CFileDialog::SetDefExt(LPCSTR lpsz) {
    AfxSend(::GetParent(m_hWnd), CDM_SETDEFEXT, 0, lpsz);
}

// What the open dialog says to a question for a text.
CString CFileDialog::Ask(UINT message) const {
    CString strText;
    const DWORD nRoom = std::max(m_ofn.nMaxFile, DWORD{_countof(m_szFileName)});
    const int nBytes = AfxSend<int>(::GetParent(m_hWnd), message, nRoom,
                                    strText.GetBuffer(static_cast<int>(nRoom)));
    strText.ReleaseBuffer(nBytes > 0 ? -1 : 0);
    return strText;
}

// --- What was chosen

CString CFileDialog::GetPathName() const {
    return m_hWnd != nullptr ? Ask(CDM_GETFILEPATH) : CString(m_ofn.lpstrFile);
}

CString CFileDialog::GetFolderPath() const {
    return m_hWnd != nullptr ? Ask(CDM_GETFOLDERPATH) : CString();
}

CString CFileDialog::GetFileName() const {
    if (m_hWnd != nullptr) {
        return Ask(CDM_GETSPEC);
    }
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
