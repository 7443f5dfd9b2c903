#include "ocx/registration.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace ocx {
namespace {

constexpr wchar_t kVersion[] = L"1.0";
constexpr wchar_t kServer[] = L"\\InprocServer32";
constexpr wchar_t kCategories[] = L"\\Implemented Categories";
constexpr wchar_t kControlCategory[] = L"\\{40FC6ED4-2438-11CF-A3DB-080036F12502}";

struct KeyCloser {
    void operator()(HKEY hKey) const { ::RegCloseKey(hKey); }
};
using Key = std::unique_ptr<std::remove_pointer_t<HKEY>, KeyCloser>;

bool KeyIsThere(const std::wstring& strKey) {
    HKEY hKey = nullptr;
    const LSTATUS nStatus = ::RegOpenKeyExW(HKEY_CLASSES_ROOT, strKey.c_str(), 0, KEY_READ, &hKey);
    const Key key(hKey);
    return nStatus != ERROR_FILE_NOT_FOUND;  // what may not be read is there
}

/// The default value of a key as text, with variables of the environment expanded; empty if there
/// is none, "?" if it cannot be told.
std::wstring DefaultValue(const std::wstring& strKey) {
    DWORD cb = 0;
    std::wstring str;
    for (int i = 0; i < 3; ++i) {  // asked for its size, read; and again if it grew meanwhile
        const LSTATUS nStatus =
            ::RegGetValueW(HKEY_CLASSES_ROOT, strKey.c_str(), nullptr, RRF_RT_REG_SZ, nullptr,
                           str.empty() ? nullptr : str.data(), &cb);
        if (nStatus == ERROR_FILE_NOT_FOUND) {
            return {};
        }
        if (nStatus == ERROR_SUCCESS && !str.empty()) {
            str.resize(wcslen(str.c_str()));
            return str;
        }
        if (nStatus != ERROR_SUCCESS && nStatus != ERROR_MORE_DATA) {
            break;
        }
        str.assign(cb / sizeof(wchar_t) + 1, L'\0');
        cb = static_cast<DWORD>(str.size() * sizeof(wchar_t));
    }
    return L"?";
}

bool SameText(const std::wstring& strA, const std::wstring& strB) {
    return ::CompareStringOrdinal(strA.c_str(), -1, strB.c_str(), -1, TRUE) == CSTR_EQUAL;
}

std::wstring ThisFile() {
    HMODULE hModule = nullptr;
    ::GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        kVersion, &hModule);
    std::wstring str(MAX_PATH, L'\0');
    DWORD cch = 0;
    while ((cch = ::GetModuleFileNameW(hModule, str.data(), static_cast<DWORD>(str.size()))) ==
           str.size()) {
        str.resize(str.size() * 2);
    }
    str.resize(cch);
    return str;
}

/// The file's one path, whatever links, short names or folders led to it. Of a file that is not
/// there it is the path as written, made whole.
std::wstring RealPath(const std::wstring& strPath) {
    std::wstring str(32768, L'\0');  // the longest that there are
    const auto cchMost = static_cast<DWORD>(str.size());
    const HANDLE hFile =
        ::CreateFileW(strPath.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    DWORD cch = 0;
    if (hFile != INVALID_HANDLE_VALUE) {
        cch = ::GetFinalPathNameByHandleW(hFile, str.data(), cchMost, FILE_NAME_NORMALIZED);
        ::CloseHandle(hFile);
    }
    if (cch == 0 || cch >= cchMost) {
        cch = ::GetFullPathNameW(strPath.c_str(), cchMost, str.data(), nullptr);
    }
    str.resize(cch < cchMost ? cch : 0);
    return str;
}

bool IsThisFile(std::wstring strPath) {
    if (strPath.size() > 2 && strPath.front() == L'"' && strPath.back() == L'"') {
        strPath = strPath.substr(1, strPath.size() - 2);
    }
    // A bare name is searched for when it is loaded, and may lead anywhere. Ours are whole.
    const bool bWhole =
        strPath.size() > 2 && (strPath[1] == L':' || strPath.compare(0, 2, L"\\\\") == 0);
    return bWhole && SameText(RealPath(strPath), RealPath(ThisFile()));
}

std::wstring TextOf(const CLSID& clsid) {
    wchar_t sz[40] = L"";
    ::StringFromGUID2(clsid, sz, 40);
    return sz;
}

std::wstring ClassKey(const CLSID& clsid) {
    return L"CLSID\\" + TextOf(clsid);
}

std::wstring VersionedName(const ClassFactory& control) {
    return control.ProgId() + std::wstring(L".1");
}

struct Entry {
    std::wstring strKey;
    std::wstring strDefault;  // none if empty
};

/// Keys stand before those below them; the one that makes the class ours stands last.
std::vector<Entry> ClassEntries(const ClassFactory& control) {
    const std::wstring strClass = ClassKey(control.Id());
    return {
        {strClass, control.Name()},
        {strClass + L"\\Control", {}},
        {strClass + kCategories, {}},
        {strClass + kCategories + kControlCategory, {}},
        {strClass + L"\\MiscStatus", L"0"},
        {strClass + L"\\MiscStatus\\1", std::to_wstring(kMiscStatus)},
        {strClass + L"\\ProgID", VersionedName(control)},
        {strClass + L"\\VersionIndependentProgID", control.ProgId()},
        {strClass + L"\\Version", kVersion},
        {strClass + kServer, ThisFile()},
    };
}

/// A name that programs may use in place of the class id, if it is free or leads there already.
void AddName(std::vector<Entry>& entries, const std::wstring& strName, const ClassFactory& control,
             bool bVersioned) {
    const std::wstring strClass = TextOf(control.Id());
    const std::wstring strKnown = DefaultValue(strName + L"\\CLSID");
    if (strKnown.empty() || SameText(strKnown, strClass)) {
        entries.push_back({strName, control.Name()});
        entries.push_back({strName + L"\\CLSID", strClass});
        if (!bVersioned) {
            entries.push_back({strName + L"\\CurVer", VersionedName(control)});
        }
    }
}

std::vector<Entry> AllEntries(const ClassFactory& control) {
    std::vector<Entry> entries;
    AddName(entries, control.ProgId(), control, false);
    AddName(entries, VersionedName(control), control, true);
    for (Entry& entry : ClassEntries(control)) {
        entries.push_back(std::move(entry));
    }
    return entries;
}

LSTATUS SetText(HKEY hKey, const wchar_t* pszName, const std::wstring& str) {
    return ::RegSetValueExW(hKey, pszName, 0, REG_SZ, reinterpret_cast<const BYTE*>(str.c_str()),
                            static_cast<DWORD>((str.size() + 1) * sizeof(wchar_t)));
}

/// Writes one key and remembers it if it is new.
LSTATUS Write(const Entry& entry, std::vector<const Entry*>& created) {
    HKEY hKey = nullptr;
    DWORD dwDisposition = 0;
    LSTATUS nStatus = ::RegCreateKeyExW(HKEY_CLASSES_ROOT, entry.strKey.c_str(), 0, nullptr, 0,
                                        KEY_READ | KEY_WRITE, nullptr, &hKey, &dwDisposition);
    const Key key(hKey);
    if (nStatus == ERROR_SUCCESS && dwDisposition == REG_CREATED_NEW_KEY) {
        created.push_back(&entry);
    }
    if (nStatus == ERROR_SUCCESS && entry.strKey.ends_with(kServer)) {
        nStatus = SetText(hKey, L"ThreadingModel", L"Apartment");
    }
    if (nStatus == ERROR_SUCCESS && !entry.strDefault.empty()) {
        nStatus = SetText(hKey, nullptr, entry.strDefault);
    }
    return nStatus;
}

}  // namespace

Owner RegisteredOwner(const CLSID& clsid) {
    const std::wstring strKey = ClassKey(clsid);
    const std::wstring strServer = DefaultValue(strKey + kServer);
    if (!strServer.empty()) {
        return IsThisFile(strServer) ? Owner::kThisModule : Owner::kOthers;
    }
    for (const wchar_t* psz : {L"\\LocalServer32", L"\\InprocHandler32", L"\\TreatAs"}) {
        if (KeyIsThere(strKey + psz)) {
            return Owner::kOthers;
        }
    }
    return Owner::kNobody;
}

HRESULT WriteEntries(const ClassFactory& control) {
    if (RegisteredOwner(control.Id()) == Owner::kOthers) {
        return S_FALSE;
    }
    const std::vector<Entry> entries = AllEntries(control);
    std::vector<const Entry*> created;
    created.reserve(entries.size());  // nothing throws between the first key and the last
    for (const Entry& entry : entries) {
        const LSTATUS nStatus = Write(entry, created);
        if (nStatus != ERROR_SUCCESS) {
            std::for_each(created.rbegin(), created.rend(), [](const Entry* pCreated) {
                ::RegDeleteKeyW(HKEY_CLASSES_ROOT, pCreated->strKey.c_str());
            });
            return HRESULT_FROM_WIN32(nStatus);
        }
    }
    return S_OK;
}

HRESULT RemoveEntries(const ClassFactory& control) {
    const Owner owner = RegisteredOwner(control.Id());
    if (owner != Owner::kThisModule) {
        return owner == Owner::kOthers ? S_FALSE : S_OK;
    }
    // The server goes first: where that is refused, nothing has been taken out. A key stays that
    // somebody else put more below.
    const std::vector<Entry> entries = AllEntries(control);
    const LSTATUS nStatus = ::RegDeleteKeyW(HKEY_CLASSES_ROOT, entries.back().strKey.c_str());
    if (nStatus != ERROR_SUCCESS) {
        return HRESULT_FROM_WIN32(nStatus);
    }
    std::for_each(entries.rbegin() + 1, entries.rend(), [](const Entry& entry) {
        ::RegDeleteKeyW(HKEY_CLASSES_ROOT, entry.strKey.c_str());
    });
    return S_OK;
}

}  // namespace ocx
