// References to COM objects, and objects that count theirs. Internal to the framework.
#pragma once

#include "afx/values/api.h"

#include <ole2.h>
#include <utility>

template <class Interface>
class AfxComPtr {
public:
    AfxComPtr() = default;
    explicit AfxComPtr(Interface* p) : m_p(p) {
        if (m_p != nullptr) {
            m_p->AddRef();
        }
    }
    AfxComPtr(const AfxComPtr& other) : AfxComPtr(other.m_p) {}
    AfxComPtr(AfxComPtr&& other) noexcept : m_p(std::exchange(other.m_p, nullptr)) {}
    AfxComPtr& operator=(AfxComPtr other) noexcept {
        std::swap(m_p, other.m_p);
        return *this;
    }
    ~AfxComPtr() { Reset(); }

    /// The pointer is forgotten first: the object's end may come back to whoever holds this.
    void Reset() {
        if (Interface* const p = std::exchange(m_p, nullptr)) {
            p->Release();
        }
    }
    Interface* Get() const { return m_p; }
    Interface* operator->() const { return m_p; }
    explicit operator bool() const { return m_p != nullptr; }

    /// Where a call is to leave a reference that is this object's from then on.
    Interface** Put() {
        Reset();
        return &m_p;
    }
    void** PutVoid() { return reinterpret_cast<void**>(Put()); }

    /// Another interface of the object, or null.
    template <class Other>
    AfxComPtr<Other> As() const {
        AfxComPtr<Other> other;
        if (m_p == nullptr || FAILED(m_p->QueryInterface(__uuidof(Other), other.PutVoid()))) {
            return {};
        }
        return other;
    }

private:
    Interface* m_p = nullptr;
};

/// COM in use in this thread for as long as it lives, if the thread lets it.
class AfxComInUse {
public:
    AfxComInUse()
        : m_bInUse(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
    ~AfxComInUse() {
        if (m_bInUse) {
            ::CoUninitialize();
        }
    }
    AfxComInUse(const AfxComInUse&) = delete;
    AfxComInUse& operator=(const AfxComInUse&) = delete;

private:
    bool m_bInUse;
};

/// Counts references. The maker has the first one.
template <class... Interfaces>
class AfxComObject : public Interfaces... {
public:
    STDMETHODIMP_(ULONG) AddRef() override {
        return static_cast<ULONG>(::InterlockedIncrement(&m_nRefs));
    }
    STDMETHODIMP_(ULONG) Release() override {
        const LONG nRefs = ::InterlockedDecrement(&m_nRefs);
        if (nRefs == 0) {
            delete this;
        }
        return static_cast<ULONG>(nRefs);
    }

protected:
    virtual ~AfxComObject() = default;

private:
    LONG m_nRefs = 1;
};
