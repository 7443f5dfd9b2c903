// The kinds of documents in the shell: what opens and prints a file of an extension. In the current
// user's classes; entries of other programs stay as they are.
#include "afx/documents/doc_manager.h"

#include <afxwin.h>

#include <shlobj.h>

namespace {

constexpr char kClasses[] = "Software\\Classes\\";

CString Value(const CString& strKey) {
    TCHAR szText[MAX_PATH * 2] = {};
    LONG nBytes = sizeof szText;
    return ::RegQueryValue(HKEY_CURRENT_USER, kClasses + strKey, szText, &nBytes) == ERROR_SUCCESS
               ? CString(szText)
               : CString();
}

void SetValue(const CString& strKey, const CString& strText) {
    ::RegSetValue(HKEY_CURRENT_USER, kClasses + strKey, REG_SZ, strText,
                  static_cast<DWORD>(strText.GetLength()));
}

/// The program as it stands at the head of its commands.
CString Program() {
    TCHAR szPath[MAX_PATH] = {};
    ::GetModuleFileName(AfxGetInstanceHandle(), szPath, _countof(szPath));
    return CString("\"") + szPath + "\"";
}

/// What one kind of documents is called in the shell.
struct ShellType {
    explicit ShellType(const CDocTemplate& docTemplate) {
        docTemplate.GetDocString(strID, CDocTemplate::regFileTypeId);
        docTemplate.GetDocString(strName, CDocTemplate::regFileTypeName);
        docTemplate.GetDocString(strExt, CDocTemplate::filterExt);
        strID.Replace(" ", "");
    }
    /// False for a kind that is not for the shell, and for one that another program registered.
    bool IsOurs() const {
        const CString strCommand(Value(strID + "\\shell\\open\\command"));
        const CString strProgram(Program());
        return !strID.IsEmpty() && strID.FindOneOf("\\/.") != 0 &&
               (strCommand.IsEmpty() ||
                ::lstrcmpi(strCommand.Left(strProgram.GetLength()), strProgram) == 0);
    }
    CString strID;
    CString strName;
    CString strExt;
};

/// dde: what a program that is running is sent instead of being started anew.
void RegisterVerb(const CString& strID, LPCTSTR lpszVerb, LPCTSTR lpszArguments, LPCTSTR lpszDde) {
    const CString strVerb(strID + "\\shell\\" + lpszVerb);
    const CWinApp* pApp = AfxGetApp();
    if (pApp->m_atomApp == 0) {
        SetValue(strVerb + "\\command", Program() + " " + lpszArguments);
        return;
    }
    SetValue(strVerb + "\\command", Program() + " /dde");
    SetValue(strVerb + "\\ddeexec", lpszDde);
    SetValue(strVerb + "\\ddeexec\\application", pApp->m_pszExeName);
    SetValue(strVerb + "\\ddeexec\\topic", "system");
}

void Register(const ShellType& type, UINT nIDIcon, BOOL bCompat) {
    SetValue(type.strID, type.strName);
    TCHAR szPath[MAX_PATH] = {};
    const HINSTANCE hInst = AfxGetInstanceHandle();
    ::GetModuleFileName(hInst, szPath, _countof(szPath));
    const bool bIcon = ::FindResource(hInst, MAKEINTRESOURCE(nIDIcon), RT_GROUP_ICON) != nullptr;
    CString strIcon;
    strIcon.Format("%s,%d", szPath, bIcon ? -static_cast<int>(nIDIcon) : 0);
    SetValue(type.strID + "\\DefaultIcon", strIcon);

    RegisterVerb(type.strID, "open", "\"%1\"", "[open(\"%1\")]");
    if (bCompat) {
        RegisterVerb(type.strID, "print", "/p \"%1\"", "[print(\"%1\")]");
        RegisterVerb(type.strID, "printto", "/pt \"%1\" \"%2\" \"%3\" \"%4\"",
                     "[printto(\"%1\",\"%2\",\"%3\",\"%4\")]");
    }
    const CString strOwner(type.strExt.IsEmpty() ? CString() : Value(type.strExt));
    if (type.strExt.IsEmpty() || (!strOwner.IsEmpty() && strOwner != type.strID)) {
        return;
    }
    SetValue(type.strExt, type.strID);
    if (bCompat) {
        HKEY hKey = nullptr;
        if (::RegCreateKey(HKEY_CURRENT_USER, kClasses + type.strExt + "\\ShellNew", &hKey) ==
            ERROR_SUCCESS) {
            ::RegSetValueEx(hKey, "NullFile", 0, REG_SZ, reinterpret_cast<const BYTE*>(""), 1);
            ::RegCloseKey(hKey);
        }
    }
}

void Delete(const CString& strKey) {
    ::RegDeleteTree(HKEY_CURRENT_USER, kClasses + strKey);
}

/// Takes out what Register wrote under the extension; others may have more there.
void ForgetExtension(const CString& strExt) {
    const CString strKey(kClasses + strExt);
    Delete(strExt + "\\ShellNew");
    ::RegDeleteKeyValue(HKEY_CURRENT_USER, strKey, nullptr);
    HKEY hKey = nullptr;
    if (::RegOpenKey(HKEY_CURRENT_USER, strKey, &hKey) != ERROR_SUCCESS) {
        return;
    }
    DWORD dwKeys = 1;
    DWORD dwValues = 1;
    ::RegQueryInfoKey(hKey, nullptr, nullptr, nullptr, &dwKeys, nullptr, nullptr, &dwValues,
                      nullptr, nullptr, nullptr, nullptr);
    ::RegCloseKey(hKey);
    if (dwKeys == 0 && dwValues == 0) {
        Delete(strExt);
    }
}

/// Calls action with each kind that the program may write about.
template <class Action>
void ForOurTypes(const CDocManager& manager, Action action) {
    for (POSITION pos = manager.GetFirstDocTemplatePosition(); pos != nullptr;) {
        const CDocTemplate* pTemplate = manager.GetNextDocTemplate(pos);
        const ShellType type(*pTemplate);
        if (type.IsOurs()) {
            action(*pTemplate, type);
        }
    }
    ::SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr);
}

}  // namespace

void CDocManager::RegisterShellFileTypes(BOOL bCompat) {
    ForOurTypes(*this, [bCompat](const CDocTemplate& docTemplate, const ShellType& type) {
        Register(type, docTemplate.GetResourceID(), bCompat);
    });
}

void CDocManager::UnregisterShellFileTypes() {
    ForOurTypes(*this, [](const CDocTemplate&, const ShellType& type) {
        if (!type.strExt.IsEmpty() && Value(type.strExt) == type.strID) {
            ForgetExtension(type.strExt);
        }
        Delete(type.strID);
    });
}
