// What every object of the module needs of COM: references that are held and given back, the
// module's count of living objects, refusals, and the border that no exception crosses.

#pragma once

#include "ocx/qvocx.h"

#include <windows.h>

#include <new>
#include <ocidl.h>
#include <oleauto.h>
#include <utility>

namespace ocx {

/// An error that a member answers with, thrown on the way to the COM method that was called. Text
/// is for the container's user and makes the answer DISP_E_EXCEPTION; without, hr itself goes out.
struct Refusal {
    HRESULT hr;
    const wchar_t* pszText = nullptr;
    int nArgument = -1;  ///< which argument was wrong, from 0; -1: none
    LONG nAsked = 0;     ///< the text's first "%ld"
    LONG nMost = 0;      ///< and its second one
};

/// Codes of refusals as automation controls give them (facility CONTROL).
constexpr HRESULT kInvalidValue = static_cast<HRESULT>(0x800A017C);
constexpr HRESULT kBadIndex = static_cast<HRESULT>(0x800A017D);

/// Runs f, which gives a result, and makes one of whatever it throws.
template <class F>
HRESULT Guarded(F f) noexcept {
    try {
        return f();
    } catch (const Refusal& refusal) {
        return refusal.hr;
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_FAIL;
    }
}

/// Throws the failure of a platform's call.
inline void Check(HRESULT hr) {
    if (FAILED(hr)) {
        throw Refusal{hr};
    }
}

/// How many objects of the module live: it stays loaded meanwhile.
long ObjectCount() noexcept;

/// A member of each object that counts.
class CountedObject {
public:
    CountedObject() noexcept;
    ~CountedObject();
    CountedObject(const CountedObject&) = delete;
    CountedObject& operator=(const CountedObject&) = delete;
};

/// Holds a reference.
template <class I>
class Ref {
public:
    Ref() = default;
    explicit Ref(I* p) noexcept : m_p(p) {
        if (m_p != nullptr) {
            m_p->AddRef();
        }
    }
    Ref(const Ref& other) noexcept : Ref(other.m_p) {}
    Ref(Ref&& other) noexcept : m_p(std::exchange(other.m_p, nullptr)) {}
    Ref& operator=(Ref other) noexcept {
        std::swap(m_p, other.m_p);
        return *this;
    }
    ~Ref() { Release(); }

    /// Takes a reference over that the caller has.
    static Ref Take(I* p) noexcept {
        Ref ref;
        ref.m_p = p;
        return ref;
    }
    /// The interface of an object, if it has it.
    static Ref Of(IUnknown* pObject) noexcept {
        Ref ref;
        if (pObject != nullptr &&
            FAILED(pObject->QueryInterface(__uuidof(I), reinterpret_cast<void**>(&ref.m_p)))) {
            ref.m_p = nullptr;
        }
        return ref;
    }

    I* Get() const noexcept { return m_p; }
    I* operator->() const noexcept { return m_p; }
    explicit operator bool() const noexcept { return m_p != nullptr; }
    void Release() noexcept {
        if (I* p = std::exchange(m_p, nullptr)) {
            p->Release();
        }
    }
    /// For a call that gives an object.
    I** Out() noexcept {
        Release();
        return &m_p;
    }
    /// The reference goes to the caller.
    I* Detach() noexcept { return std::exchange(m_p, nullptr); }

private:
    I* m_p = nullptr;
};

/// QueryInterface of an object that has one interface beside IUnknown.
template <class I>
HRESULT QueryOne(I* pObject, REFIID iid, void** ppv) noexcept {
    if (ppv == nullptr) {
        return E_POINTER;
    }
    const bool bOurs = iid == IID_IUnknown || iid == __uuidof(I);
    *ppv = bOurs ? pObject : nullptr;
    if (!bOurs) {
        return E_NOINTERFACE;
    }
    pObject->AddRef();
    return S_OK;
}

/// Base of objects of their own, which go with their last reference; made with none.
template <class I>
class OwnObject : public I {
public:
    virtual ~OwnObject() = default;
    STDMETHODIMP QueryInterface(REFIID iid, void** ppv) override {
        return QueryOne<I>(this, iid, ppv);
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++m_nRefs; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG nRefs = --m_nRefs;
        if (nRefs == 0) {
            delete this;
        }
        return nRefs;
    }

private:
    ULONG m_nRefs = 0;
    CountedObject m_counted;
};

/// A value that is cleared in the end.
class Variant {
public:
    Variant() noexcept { ::VariantInit(&m_value); }
    ~Variant() { Clear(); }
    Variant(const Variant& other) : Variant() {
        Check(::VariantCopy(&m_value, const_cast<VARIANT*>(&other.m_value)));
    }
    Variant(Variant&& other) noexcept : m_value(other.m_value) { ::VariantInit(&other.m_value); }
    Variant& operator=(Variant other) noexcept {
        std::swap(m_value, other.m_value);
        return *this;
    }
    /// A converted copy; throws what VariantChangeType gives.
    Variant(const VARIANT& value, VARTYPE vt);

    VARTYPE Type() const noexcept { return m_value.vt; }
    VARIANT* Get() noexcept { return &m_value; }
    const VARIANT& Value() const noexcept { return m_value; }
    void Clear() noexcept {
        if (m_value.vt >= VT_BSTR) {
            ::VariantClear(&m_value);
        }
        m_value.vt = VT_EMPTY;
    }

private:
    VARIANT m_value;
};

}  // namespace ocx

/// Living objects of the module, for tests.
QVOCX_API long QVOcxObjectCount();
