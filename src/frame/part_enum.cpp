#include "frame/part_enum.h"

#include "frame/accessible_object.h"

#include <new>

namespace qv {

namespace {

class PartEnum final : public IEnumVARIANT {
public:
    PartEnum(AccessibleObject& object, const PartCursor& cursor)
        : m_object(object), m_cursor(cursor) {
        m_object.AddRef();
    }

    STDMETHODIMP QueryInterface(REFIID riid, void** ppv) override {
        if (ppv == nullptr) {
            return E_POINTER;
        }
        const bool bKnown = riid == IID_IUnknown || riid == IID_IEnumVARIANT;
        *ppv = bKnown ? static_cast<IEnumVARIANT*>(this) : nullptr;
        if (bKnown) {
            AddRef();
        }
        return bKnown ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override {
        return static_cast<ULONG>(::InterlockedIncrement(&m_nReferences));
    }
    STDMETHODIMP_(ULONG) Release() override {
        const LONG nLeft = ::InterlockedDecrement(&m_nReferences);
        if (nLeft == 0) {
            delete this;
        }
        return static_cast<ULONG>(nLeft);
    }
    STDMETHODIMP Next(ULONG nWanted, VARIANT* pFound, ULONG* pnFound) override {
        return m_object.NextOf(m_cursor, nWanted, pFound, pnFound);
    }
    STDMETHODIMP Skip(ULONG nParts) override { return m_object.SkipOf(m_cursor, nParts); }
    STDMETHODIMP Reset() override {
        m_cursor.nIndex = m_cursor.nLast = 0;
        return S_OK;
    }
    STDMETHODIMP Clone(IEnumVARIANT** ppClone) override {
        if (ppClone == nullptr) {
            return E_POINTER;
        }
        *ppClone = MakePartEnum(m_object, m_cursor);
        return *ppClone != nullptr ? S_OK : E_OUTOFMEMORY;
    }

private:
    ~PartEnum() { m_object.Release(); }

    LONG m_nReferences = 1;
    AccessibleObject& m_object;
    PartCursor m_cursor;
};

}  // namespace

long PartCursor::Next(QVAccessible& parts) {
    if (bSelected) {
        // -1 once the end was met, lest it begin anew.
        const long nPart = nLast >= 0 ? parts.GetNextAccessibleSelected(nLast) : 0;
        nLast = nPart > 0 ? nPart : -1;
        return nPart;
    }
    if (nIndex >= parts.GetAccessibleCount()) {
        return 0;
    }
    return parts.GetAccessiblePart(nIndex++);
}

IEnumVARIANT* MakePartEnum(AccessibleObject& object, const PartCursor& cursor) {
    return new (std::nothrow) PartEnum(object, cursor);
}

}  // namespace qv
