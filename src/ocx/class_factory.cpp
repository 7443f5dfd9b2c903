#include "ocx/class_factory.h"

#include "ocx/class_ids.h"
#include "ocx/com.h"
#include "ocx/flex_grid.h"
#include "ocx/tab_strip.h"
#include "ocx/text_field.h"

#include <atomic>

namespace ocx {
namespace {

std::atomic<LONG> s_nLocks = 0;

template <class Control>
IUnknown* Make() {
    return static_cast<IOleObject*>(new Control);
}

ClassFactory s_factories[] = {
    {kFlexGridClass, L"QVControls.FlexGrid", L"QVControls Flexible Grid", Make<FlexGrid>},
    {kTabStripClass, L"QVControls.TabStrip", L"QVControls Tab Strip", Make<TabStrip>},
    {kTextFieldClass, L"QVControls.TextField", L"QVControls Text Field", Make<TextField>},
};

}  // namespace

std::span<ClassFactory> ClassFactories() {
    return s_factories;
}

LONG FactoryLocks() {
    return s_nLocks;
}

STDMETHODIMP ClassFactory::QueryInterface(REFIID riid, void** ppv) {
    if (ppv == nullptr) {
        return E_POINTER;
    }
    const bool bKnown = riid == IID_IUnknown || riid == IID_IClassFactory;
    *ppv = bKnown ? static_cast<IClassFactory*>(this) : nullptr;
    if (!bKnown) {
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) ClassFactory::AddRef() {
    ++s_nLocks;
    return 2;  // it is never gone
}

STDMETHODIMP_(ULONG) ClassFactory::Release() {
    --s_nLocks;
    return 1;
}

STDMETHODIMP ClassFactory::CreateInstance(IUnknown* pOuter, REFIID riid, void** ppv) {
    if (ppv == nullptr) {
        return E_POINTER;
    }
    *ppv = nullptr;
    if (pOuter != nullptr) {
        return CLASS_E_NOAGGREGATION;
    }
    return Guarded([&] {
        const auto control = Ref<IUnknown>::Take(m_make());
        return control->QueryInterface(riid, ppv);
    });
}

STDMETHODIMP ClassFactory::LockServer(BOOL bLock) {
    s_nLocks += bLock ? 1 : -1;
    return S_OK;
}

}  // namespace ocx
