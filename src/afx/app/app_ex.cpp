#include "afx/app/app_ex.h"

#include <afxwin.h>

IMPLEMENT_DYNAMIC(CWinAppEx, CWinApp)
IMPLEMENT_DYNCREATE(CFrameWndEx, CFrameWnd)
IMPLEMENT_DYNCREATE(CMDIFrameWndEx, CMDIFrameWnd)
IMPLEMENT_DYNCREATE(CMDIChildWndEx, CMDIChildWnd)

static constexpr char kFirstSection[] = "Workspace";

CWinAppEx::CWinAppEx(BOOL) : m_strRegSection(kFirstSection) {}

LPCTSTR CWinAppEx::SetRegistryBase(LPCTSTR lpszSectionName) {
    m_strRegSection = lpszSectionName != nullptr ? lpszSectionName : kFirstSection;
    return m_strRegSection;
}

CString CWinAppEx::GetRegSectionPath(LPCTSTR szSectionAdd) const {
    const bool bBelow = szSectionAdd != nullptr && *szSectionAdd != '\0';
    return bBelow ? m_strRegSection + "\\" + szSectionAdd : m_strRegSection;
}

int CWinAppEx::GetInt(LPCTSTR lpszEntry, int nDefault) {
    return GetSectionInt("", lpszEntry, nDefault);
}

CString CWinAppEx::GetString(LPCTSTR lpszEntry, LPCTSTR lpszDefault) {
    return GetSectionString("", lpszEntry, lpszDefault);
}

BOOL CWinAppEx::GetBinary(LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes) {
    return GetProfileBinary(GetRegSectionPath(), lpszEntry, ppData, pBytes);
}

BOOL CWinAppEx::WriteInt(LPCTSTR lpszEntry, int nValue) {
    return WriteSectionInt("", lpszEntry, nValue);
}

BOOL CWinAppEx::WriteString(LPCTSTR lpszEntry, LPCTSTR lpszValue) {
    return WriteSectionString("", lpszEntry, lpszValue);
}

BOOL CWinAppEx::WriteBinary(LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes) {
    return WriteProfileBinary(GetRegSectionPath(), lpszEntry, pData, nBytes);
}

int CWinAppEx::GetSectionInt(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, int nDefault) {
    return static_cast<int>(GetProfileInt(GetRegSectionPath(lpszSubSection), lpszEntry, nDefault));
}

CString CWinAppEx::GetSectionString(LPCTSTR lpszSubSection, LPCTSTR lpszEntry,
                                    LPCTSTR lpszDefault) {
    return GetProfileString(GetRegSectionPath(lpszSubSection), lpszEntry, lpszDefault);
}

BOOL CWinAppEx::WriteSectionInt(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, int nValue) {
    return WriteProfileInt(GetRegSectionPath(lpszSubSection), lpszEntry, nValue);
}

BOOL CWinAppEx::WriteSectionString(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPCTSTR lpszValue) {
    return WriteProfileString(GetRegSectionPath(lpszSubSection), lpszEntry, lpszValue);
}

BOOL CWinAppEx::LoadState(CFrameWnd*) {
    PreLoadState();
    LoadCustomState();
    return TRUE;
}

BOOL CWinAppEx::SaveState(CFrameWnd*) {
    PreSaveState();
    SaveCustomState();
    return TRUE;
}
