// How the controls become known: entries in the registry, held against a root of the test's own,
// and classes told to the process alone.

#include "ocx/class_ids.h"
#include "ocx/com.h"
#include "ocx/qvocx.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <olectl.h>
#include <string>
#include <thread>

namespace {

using ocx::Ref;

const CLSID kClasses[] = {ocx::kTabStripClass, ocx::kTextFieldClass, ocx::kFlexGridClass};

template <class Function>
Function* Exported(const char* pszName) {
    return reinterpret_cast<Function*>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"qvocx.dll"), pszName)));
}

HRESULT Call(const char* pszName) {
    return Exported<HRESULT STDAPICALLTYPE()>(pszName)();
}

std::wstring ThisFile() {
    wchar_t sz[MAX_PATH] = L"";
    ::GetModuleFileNameW(::GetModuleHandleW(L"qvocx.dll"), sz, MAX_PATH);
    return sz;
}

std::wstring ClassKey(const CLSID& clsid) {
    wchar_t sz[40] = L"";
    ::StringFromGUID2(clsid, sz, 40);
    return std::wstring(L"CLSID\\") + sz;
}

/// HKEY_CLASSES_ROOT is an empty key of the test's as long as it lives.
class RegistrationTest : public testing::Test {
protected:
    static constexpr wchar_t kRoot[] = L"Software\\QVControls tests\\Classes";

    RegistrationTest() {
        ::RegDeleteTreeW(HKEY_CURRENT_USER, kRoot);
        ::RegCreateKeyExW(HKEY_CURRENT_USER, kRoot, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                          &m_hRoot, nullptr);
        EXPECT_EQ(::RegOverridePredefKey(HKEY_CLASSES_ROOT, m_hRoot), ERROR_SUCCESS);
    }
    ~RegistrationTest() override {
        ::RegOverridePredefKey(HKEY_CLASSES_ROOT, nullptr);
        ::RegCloseKey(m_hRoot);
        ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\QVControls tests");
    }

    void Write(const std::wstring& strKey, const std::wstring& strValue, DWORD dwType = REG_SZ) {
        ::RegSetKeyValueW(m_hRoot, strKey.c_str(), nullptr, dwType, strValue.c_str(),
                          (strValue.size() + 1) * sizeof(wchar_t));
    }
    std::wstring Read(const std::wstring& strKey, const wchar_t* pszValue = nullptr) {
        wchar_t sz[MAX_PATH] = L"";
        DWORD cb = sizeof sz;
        ::RegGetValueW(m_hRoot, strKey.c_str(), pszValue, RRF_RT_REG_SZ, nullptr, sz, &cb);
        return sz;
    }
    /// Keys right below one.
    DWORD CountKeys(const std::wstring& strKey) {
        HKEY hKey = nullptr;
        DWORD nCount = 0;
        ::RegOpenKeyExW(m_hRoot, strKey.c_str(), 0, KEY_READ, &hKey);
        ::RegQueryInfoKeyW(hKey, nullptr, nullptr, nullptr, &nCount, nullptr, nullptr, nullptr,
                           nullptr, nullptr, nullptr, nullptr);
        ::RegCloseKey(hKey);
        return nCount;
    }

    HKEY m_hRoot = nullptr;
};

TEST_F(RegistrationTest, Register_WritesWhatLeadsToThisFile_AndUnregisterTakesItOut) {
    EXPECT_EQ(Call("DllRegisterServer"), S_OK);
    for (const std::wstring& strKey : {ClassKey(kClasses[0]), ClassKey(kClasses[2])}) {
        EXPECT_EQ(Read(strKey + L"\\InprocServer32"), ThisFile());
        EXPECT_EQ(Read(strKey + L"\\InprocServer32", L"ThreadingModel"), L"Apartment");
        const std::wstring strName = Read(strKey + L"\\ProgID");
        EXPECT_EQ(L"CLSID\\" + Read(strName + L"\\CLSID"), strKey);
        EXPECT_EQ(Read(Read(strKey + L"\\VersionIndependentProgID") + L"\\CurVer"), strName);
    }
    EXPECT_EQ(Call("DllRegisterServer"), S_OK);
    EXPECT_EQ(Call("DllUnregisterServer"), S_OK);
    EXPECT_EQ(CountKeys(L""), 1U);  // CLSID itself
    EXPECT_EQ(CountKeys(L"CLSID"), 0U);
    EXPECT_EQ(Call("DllUnregisterServer"), S_OK);
}

TEST_F(RegistrationTest, EntriesThatNameAnotherServerStayWhole) {
    std::wstring strRound = ThisFile();
    ::CharUpperW(strRound.data());
    strRound.insert(strRound.rfind(L'\\'), L"\\.\\x\\..");
    const struct {
        const wchar_t* pszKey;
        std::wstring strValue;
        bool bOurs;
    } cases[] = {
        {L"\\InprocServer32", L"C:\\gone\\grid.ocx", false},
        {L"\\InprocServer32", L"qvocx.dll", false},  // wherever that is found
        {L"\\InprocServer32", L"%SystemRoot%\\system32\\oleaut32.dll", false},
        {L"\\LocalServer32", L"C:\\gone\\grid.exe", false},
        {L"\\TreatAs", L"{00000000-0000-0000-0000-000000000001}", false},
        {L"\\InprocServer32", L"\"" + ThisFile() + L"\"", true},
        {L"\\InprocServer32", strRound, true},
    };
    for (const auto& c : cases) {
        const std::wstring strKey = ClassKey(ocx::kFlexGridClass) + c.pszKey;
        Write(strKey, c.strValue, c.strValue[0] == L'%' ? REG_EXPAND_SZ : REG_SZ);
        const std::wstring strBefore = Read(strKey);
        EXPECT_EQ(Call("DllRegisterServer"), c.bOurs ? S_OK : S_FALSE) << c.strValue.c_str();
        EXPECT_EQ(Read(strKey), c.bOurs ? ThisFile() : strBefore);
        EXPECT_EQ(Call("DllUnregisterServer"), c.bOurs ? S_OK : S_FALSE);
        EXPECT_EQ(Read(strKey), c.bOurs ? L"" : strBefore);
        EXPECT_EQ(CountKeys(L"CLSID"), c.bOurs ? 0U : 1U);
        ::RegDeleteTreeW(m_hRoot, ClassKey(ocx::kFlexGridClass).c_str());
    }
    Write(L"QVControls.FlexGrid\\CLSID", L"{00000000-0000-0000-0000-000000000001}");
    EXPECT_EQ(Call("DllRegisterServer"), S_OK);
    EXPECT_EQ(Call("DllUnregisterServer"), S_OK);
    EXPECT_EQ(Read(L"QVControls.FlexGrid\\CLSID"), L"{00000000-0000-0000-0000-000000000001}");
}

TEST_F(RegistrationTest, ARegistrationThatFailsLeavesNothing) {
    // Keys that last cannot be made below one that does not.
    HKEY hKey = nullptr;
    ::RegCreateKeyExW(m_hRoot, ClassKey(ocx::kFlexGridClass).c_str(), 0, nullptr,
                      REG_OPTION_VOLATILE, KEY_WRITE, nullptr, &hKey, nullptr);
    ::RegCloseKey(hKey);
    EXPECT_EQ(Call("DllRegisterServer"), HRESULT_FROM_WIN32(ERROR_CHILD_MUST_BE_VOLATILE));
    EXPECT_EQ(CountKeys(L"") + CountKeys(L"CLSID"), 2U);
    EXPECT_EQ(CountKeys(ClassKey(ocx::kFlexGridClass)), 0U);
}

HRESULT Find(const CLSID& clsid, IUnknown** ppFactory) {
    return ::CoGetClassObject(clsid, CLSCTX_INPROC_SERVER, nullptr, IID_IUnknown,
                              reinterpret_cast<void**>(ppFactory));
}

bool IsKnown(const CLSID& clsid) {
    Ref<IUnknown> factory;
    return SUCCEEDED(Find(clsid, factory.Out()));
}

TEST_F(RegistrationTest, ClassesAreKnownInTheProcess_UntilTheLastRevoke) {
    EXPECT_EQ(QVRegisterControls(), S_OK);
    EXPECT_EQ(QVRegisterControls(), S_OK);
    QVRevokeControls();
    EXPECT_TRUE(std::ranges::all_of(kClasses, IsKnown));
    EXPECT_EQ(Call("DllCanUnloadNow"), S_FALSE);
    QVRevokeControls();
    QVRevokeControls();  // one too many
    EXPECT_TRUE(std::ranges::none_of(kClasses, IsKnown));
    EXPECT_EQ(Call("DllCanUnloadNow"), S_OK);
    EXPECT_EQ(CountKeys(L""), 0U);
}

TEST_F(RegistrationTest, WhatTheMachineHasWins) {
    Write(ClassKey(ocx::kFlexGridClass) + L"\\InprocServer32", L"C:\\gone\\grid.ocx");
    // Another module of the process has the tab strip.
    Ref<IUnknown> others;
    Exported<decltype(DllGetClassObject)>("DllGetClassObject")(
        ocx::kTextFieldClass, IID_IUnknown, reinterpret_cast<void**>(others.Out()));
    DWORD dwCookie = 0;
    ::CoRegisterClassObject(ocx::kTabStripClass, others.Get(), CLSCTX_INPROC_SERVER,
                            REGCLS_MULTIPLEUSE, &dwCookie);
    EXPECT_EQ(QVRegisterControls(), S_OK);
    EXPECT_TRUE(!IsKnown(ocx::kFlexGridClass) && IsKnown(ocx::kTextFieldClass));
    Ref<IUnknown> found;
    EXPECT_EQ(Find(ocx::kTabStripClass, found.Out()), S_OK);
    EXPECT_TRUE(found && found.Get() == others.Get());
    QVRevokeControls();
    Write(ClassKey(ocx::kTextFieldClass) + L"\\InprocServer32", L"C:\\gone\\text.ocx");
    EXPECT_EQ(QVRegisterControls(), S_FALSE);
    QVRevokeControls();
    ::CoRevokeClassObject(dwCookie);
}

TEST_F(RegistrationTest, EachApartmentIsToldByItself) {
    HRESULT hrFree = S_OK;
    HRESULT hrOther = E_FAIL;
    bool bKnown = false;
    ASSERT_EQ(QVRegisterControls(), S_OK);
    std::thread([&] {
        EXPECT_TRUE(FAILED(QVRegisterControls()));
        ::CoInitializeEx(nullptr, COINIT_MULTITHREADED);
        hrFree = QVRegisterControls();
        ::CoUninitialize();
        for (int i = 0; i < 2; ++i) {  // the second time after its apartment went with the classes
            ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
            hrOther = QVRegisterControls();
            bKnown = IsKnown(ocx::kTextFieldClass);
            ::CoUninitialize();
        }
    }).join();
    EXPECT_EQ(hrFree, RPC_E_CHANGED_MODE);
    EXPECT_TRUE(hrOther == S_OK && bKnown && IsKnown(ocx::kTextFieldClass));
    QVRevokeControls();
}

}  // namespace
