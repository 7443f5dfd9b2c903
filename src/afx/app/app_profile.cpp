// An application's settings: in the registry once a key is set, in its ini file before.
#include "afx/app/app.h"

#include <afxwin.h>

#include <algorithm>
#include <vector>

namespace {

/// A registry key, closed with its owner.
class RegKey {
public:
    explicit RegKey(HKEY hKey) : m_hKey(hKey) {}
    ~RegKey() {
        if (m_hKey != nullptr) {
            ::RegCloseKey(m_hKey);
        }
    }
    RegKey(const RegKey&) = delete;
    RegKey& operator=(const RegKey&) = delete;
    explicit operator bool() const { return m_hKey != nullptr; }

    BOOL Write(LPCTSTR lpszEntry, DWORD dwType, const void* pData, DWORD nBytes) const {
        return ::RegSetValueEx(m_hKey, lpszEntry, 0, dwType, static_cast<const BYTE*>(pData),
                               nBytes) == ERROR_SUCCESS;
    }
    /// The value's bytes; FALSE if there is none of that type.
    BOOL Read(LPCTSTR lpszEntry, DWORD dwType, std::vector<BYTE>& bytes) const {
        DWORD dwFound = 0;
        DWORD nBytes = 0;
        if (::RegQueryValueEx(m_hKey, lpszEntry, nullptr, &dwFound, nullptr, &nBytes) !=
                ERROR_SUCCESS ||
            dwFound != dwType) {
            return FALSE;
        }
        bytes.resize(nBytes);
        return ::RegQueryValueEx(m_hKey, lpszEntry, nullptr, &dwFound, bytes.data(), &nBytes) ==
               ERROR_SUCCESS;
    }
    HKEY Get() const { return m_hKey; }

private:
    HKEY m_hKey;
};

// Bytes in an ini file: two letters each, low half first, counted from A.
CString BytesAsLetters(const BYTE* pData, UINT nBytes) {
    CString strLetters;
    for (UINT nByte = 0; nByte < nBytes; ++nByte) {
        strLetters += static_cast<TCHAR>('A' + (pData[nByte] & 0x0F));
        strLetters += static_cast<TCHAR>('A' + (pData[nByte] >> 4));
    }
    return strLetters;
}

}  // namespace

void CWinApp::SetRegistryKey(LPCTSTR lpszRegistryKey) {
    m_strRegistryKey = lpszRegistryKey;
    m_pszRegistryKey = m_strRegistryKey;
    m_strProfileName = m_strAppName;
    m_pszProfileName = m_strProfileName;
}

void CWinApp::SetRegistryKey(UINT nIDRegistryKey) {
    CString strKey;
    strKey.LoadString(nIDRegistryKey);
    SetRegistryKey(strKey);
}

HKEY CWinApp::OpenSection(LPCTSTR lpszSection) {
    const CString strPath =
        CString("Software\\") + m_pszRegistryKey + "\\" + m_pszProfileName + "\\" + lpszSection;
    HKEY hKey = nullptr;
    ::RegCreateKeyEx(HKEY_CURRENT_USER, strPath, 0, nullptr, REG_OPTION_NON_VOLATILE,
                     KEY_READ | KEY_WRITE, nullptr, &hKey, nullptr);
    return hKey;
}

UINT CWinApp::GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault) {
    if (m_pszRegistryKey == nullptr) {
        return ::GetPrivateProfileInt(lpszSection, lpszEntry, nDefault, m_pszProfileName);
    }
    RegKey key(OpenSection(lpszSection));
    std::vector<BYTE> bytes;
    if (!key || !key.Read(lpszEntry, REG_DWORD, bytes) || bytes.size() != sizeof(DWORD)) {
        return static_cast<UINT>(nDefault);
    }
    DWORD dwValue = 0;
    memcpy(&dwValue, bytes.data(), sizeof dwValue);
    return dwValue;
}

BOOL CWinApp::WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue) {
    if (m_pszRegistryKey == nullptr) {
        CString strValue;
        strValue.Format("%d", nValue);
        return ::WritePrivateProfileString(lpszSection, lpszEntry, strValue, m_pszProfileName);
    }
    RegKey key(OpenSection(lpszSection));
    return key && key.Write(lpszEntry, REG_DWORD, &nValue, sizeof nValue);
}

CString CWinApp::GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault) {
    const LPCTSTR lpszOtherwise = lpszDefault != nullptr ? lpszDefault : "";
    if (m_pszRegistryKey == nullptr) {
        std::vector<char> text(4096);
        // A result that fills the buffer was cut off.
        while (::GetPrivateProfileString(lpszSection, lpszEntry, lpszOtherwise, text.data(),
                                         static_cast<DWORD>(text.size()),
                                         m_pszProfileName) == text.size() - 1) {
            text.resize(text.size() * 2);
        }
        return CString(text.data());
    }
    RegKey key(OpenSection(lpszSection));
    std::vector<BYTE> bytes;
    if (!key || !key.Read(lpszEntry, REG_SZ, bytes)) {
        return CString(lpszOtherwise);
    }
    bytes.push_back(0);  // whoever wrote the value may have left the terminator out
    return CString(reinterpret_cast<const char*>(bytes.data()));
}

BOOL CWinApp::WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue) {
    if (m_pszRegistryKey == nullptr) {
        return ::WritePrivateProfileString(lpszSection, lpszEntry, lpszValue, m_pszProfileName);
    }
    RegKey key(OpenSection(lpszSection));
    if (!key) {
        return FALSE;
    }
    if (lpszEntry == nullptr) {  // the whole section
        const LSTATUS status = ::RegDeleteTree(key.Get(), nullptr);
        return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND;
    }
    if (lpszValue == nullptr) {
        const LSTATUS status = ::RegDeleteValue(key.Get(), lpszEntry);
        return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND;
    }
    return key.Write(lpszEntry, REG_SZ, lpszValue, static_cast<DWORD>(lstrlen(lpszValue) + 1));
}

BOOL CWinApp::GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData,
                               UINT* pBytes) {
    *ppData = nullptr;
    *pBytes = 0;
    std::vector<BYTE> bytes;
    if (m_pszRegistryKey != nullptr) {
        RegKey key(OpenSection(lpszSection));
        if (!key || !key.Read(lpszEntry, REG_BINARY, bytes)) {
            return FALSE;
        }
    } else {
        const CString strLetters = GetProfileString(lpszSection, lpszEntry);
        if (strLetters.IsEmpty()) {
            return FALSE;
        }
        const char* p = strLetters;
        for (int nLetter = 0; nLetter + 1 < strLetters.GetLength(); nLetter += 2) {
            bytes.push_back(static_cast<BYTE>((p[nLetter + 1] - 'A') * 16 + (p[nLetter] - 'A')));
        }
    }
    *ppData = new BYTE[bytes.size()];
    *pBytes = static_cast<UINT>(bytes.size());
    std::copy(bytes.begin(), bytes.end(), *ppData);
    return TRUE;
}

BOOL CWinApp::WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData,
                                 UINT nBytes) {
    if (m_pszRegistryKey == nullptr) {
        return WriteProfileString(lpszSection, lpszEntry, BytesAsLetters(pData, nBytes));
    }
    RegKey key(OpenSection(lpszSection));
    return key && key.Write(lpszEntry, REG_BINARY, pData, nBytes);
}
