// What makes the controls: one factory for each class, which lives as long as the module does.

#pragma once

#include <windows.h>

#include <ole2.h>
#include <span>

namespace ocx {

/// Makes a control with one reference. It may throw: the factory answers for it.
using Maker = IUnknown* (*)();

/// A class of controls: what is registered under its id, and how one is made.
class ClassFactory final : public IClassFactory {
public:
    ClassFactory(const CLSID& clsid, const wchar_t* pszProgId, const wchar_t* pszName, Maker make)
        : m_clsid(clsid), m_pszProgId(pszProgId), m_pszName(pszName), m_make(make) {}

    const CLSID& Id() const { return m_clsid; }
    const wchar_t* ProgId() const { return m_pszProgId; }  ///< without a version
    const wchar_t* Name() const { return m_pszName; }      ///< as a user reads it

    STDMETHODIMP QueryInterface(REFIID riid, void** ppv) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;
    /// Nothing is aggregated: the outer object has to be null.
    STDMETHODIMP CreateInstance(IUnknown* pOuter, REFIID riid, void** ppv) override;
    STDMETHODIMP LockServer(BOOL bLock) override;

private:
    const CLSID& m_clsid;
    const wchar_t* m_pszProgId;
    const wchar_t* m_pszName;
    Maker m_make;
};

inline constexpr std::size_t kClassCount = 3;

/// Those of this module, at most kClassCount.
std::span<ClassFactory> ClassFactories();

/// References to factories, and locks on them: while there are any, the module has to stay.
LONG FactoryLocks();

/// OLEMISC_ bits of all three controls.
inline constexpr DWORD kMiscStatus = OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_INSIDEOUT |
                                     OLEMISC_CANTLINKINSIDE | OLEMISC_RECOMPOSEONRESIZE |
                                     OLEMISC_SETCLIENTSITEFIRST;

}  // namespace ocx
