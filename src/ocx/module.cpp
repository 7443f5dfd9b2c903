// The module as COM and a program see it.

#include "ocx/class_factory.h"
#include "ocx/com.h"
#include "ocx/qvocx.h"
#include "ocx/registration.h"

#include <array>
#include <olectl.h>

namespace {

using ocx::ClassFactory;
using ocx::Guarded;
using ocx::Owner;

/// What one thread registered. COM forgets a class with the apartment of the thread that told it.
struct ThreadClasses {
    int nCalls = 0;
    DWORD cookies[ocx::kClassCount] = {};  // in the order of ClassFactories; 0: not told
};
thread_local ThreadClasses t_classes;

/// S_OK if calls may be taken in this thread's apartment.
HRESULT CheckApartment() {
    APTTYPE type = APTTYPE_CURRENT;
    APTTYPEQUALIFIER qualifier = APTTYPEQUALIFIER_NONE;
    const HRESULT hr = ::CoGetApartmentType(&type, &qualifier);
    if (FAILED(hr)) {
        return hr;
    }
    return type == APTTYPE_STA || type == APTTYPE_MAINSTA ? S_OK : RPC_E_CHANGED_MODE;
}

/// Makes one class known in this apartment. S_OK: it is ours; S_FALSE: another's is known.
HRESULT Tell(ClassFactory& control, DWORD& dwCookie) {
    const Owner owner = ocx::RegisteredOwner(control.Id());
    if (owner == Owner::kOthers) {
        return S_FALSE;
    }
    // Known without the registry: by an earlier call, by a manifest, or by another module here.
    IUnknown* pKnown = nullptr;
    if (SUCCEEDED(::CoGetClassObject(control.Id(), CLSCTX_INPROC_SERVER, nullptr, IID_IUnknown,
                                     reinterpret_cast<void**>(&pKnown)))) {
        const bool bOurs = pKnown == static_cast<IUnknown*>(&control);
        pKnown->Release();
        return bOurs ? S_OK : S_FALSE;
    }
    return ::CoRegisterClassObject(control.Id(), &control, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
                                   &dwCookie);
}

void Forget() {
    for (DWORD& dwCookie : t_classes.cookies) {
        if (dwCookie != 0) {
            ::CoRevokeClassObject(dwCookie);
            dwCookie = 0;
        }
    }
}

/// The module stays from the first registration on: controls may be there after the last.
void StayLoaded() {
    HMODULE hModule = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                         reinterpret_cast<const wchar_t*>(&StayLoaded), &hModule);
}

}  // namespace

HRESULT QVRegisterControls() {
    const HRESULT hrApartment = CheckApartment();
    if (FAILED(hrApartment)) {
        return hrApartment;
    }
    bool bAny = false;
    std::size_t i = 0;
    for (ClassFactory& control : ocx::ClassFactories()) {
        const HRESULT hr = Guarded([&] { return Tell(control, t_classes.cookies[i++]); });
        if (FAILED(hr)) {
            if (t_classes.nCalls == 0) {
                Forget();
            }
            return hr;
        }
        bAny = bAny || hr == S_OK;
    }
    StayLoaded();
    ++t_classes.nCalls;
    return bAny ? S_OK : S_FALSE;
}

void QVRevokeControls() {
    if (t_classes.nCalls > 0 && --t_classes.nCalls == 0) {
        Forget();
    }
}

STDAPI DllGetClassObject(REFCLSID rclsid, REFIID riid, void** ppv) {
    if (ppv == nullptr) {
        return E_POINTER;
    }
    *ppv = nullptr;
    for (ClassFactory& control : ocx::ClassFactories()) {
        if (control.Id() == rclsid) {
            return control.QueryInterface(riid, ppv);
        }
    }
    return CLASS_E_CLASSNOTAVAILABLE;
}

STDAPI DllCanUnloadNow() {
    return ocx::FactoryLocks() == 0 && ocx::ObjectCount() == 0 ? S_OK : S_FALSE;
}

// S_OK: all three are this module's now; S_FALSE: at least one is another's, which stays as it is;
// else why a class could not be written: the registry is as it was then.
STDAPI DllRegisterServer() {
    HRESULT hrAll = S_OK;
    const auto classes = ocx::ClassFactories();
    std::array<bool, ocx::kClassCount> written = {};
    for (std::size_t i = 0; i < classes.size() && SUCCEEDED(hrAll); ++i) {
        const HRESULT hr = Guarded([&] {
            const bool bNew = ocx::RegisteredOwner(classes[i].Id()) == Owner::kNobody;
            const HRESULT hrWritten = ocx::WriteEntries(classes[i]);
            written[i] = bNew && hrWritten == S_OK;
            return hrWritten;
        });
        hrAll = hr == S_OK ? hrAll : hr;
    }
    for (std::size_t i = 0; i < classes.size() && FAILED(hrAll); ++i) {
        if (written[i]) {
            Guarded([&] { return ocx::RemoveEntries(classes[i]); });
        }
    }
    return hrAll;
}

// S_OK: none of this module's is left; S_FALSE: at least one class is another's, which stays; else
// the first failure.
STDAPI DllUnregisterServer() {
    HRESULT hrAll = S_OK;
    for (const ClassFactory& control : ocx::ClassFactories()) {
        const HRESULT hr = Guarded([&] { return ocx::RemoveEntries(control); });
        if (SUCCEEDED(hrAll) && hr != S_OK) {
            hrAll = hr;
        }
    }
    return hrAll;
}
