// From handles of the system to the objects that stand for them. A permanent object is one that the
// program made or attached; for any other handle a temporary one is made, which lives until the
// next idle time.
#pragma once

#include "afx/objects/except.h"

#include <cstdint>
#include <memory>
#include <new>
#include <unordered_map>

/// Object needs a default constructor, and a CHandleMapLink m_mapLink that this class may use.
/// bind(object, handle) puts a handle into a temporary object, or null to take it out again before
/// the object is deleted, so that its destructor leaves it alone.
template <class Object, class Handle>
class CHandleMap {
public:
    using Bind = void (*)(Object&, Handle);

    explicit CHandleMap(Bind bind) : m_bind(bind) {}
    ~CHandleMap() { DeleteTemp(); }

    /// The permanent object, else the temporary one, which is made if need be. Null for null.
    /// Throws CMemoryException.
    Object* FromHandle(Handle handle) {
        if (handle == nullptr) {
            return nullptr;
        }
        if (Object* pObject = LookupPermanent(handle)) {
            return pObject;
        }
        if (Object* pObject = LookupTemporary(handle)) {
            return pObject;
        }
        try {
            auto pTemporary = std::make_unique<Object>();
            Object* pObject = pTemporary.get();
            m_temporary.emplace(handle, std::move(pTemporary));
            m_bind(*pObject, handle);
            return pObject;
        } catch (const std::bad_alloc&) {
            AfxThrowMemoryException();
        }
    }
    /// The object that was entered last for a handle, or null.
    Object* LookupPermanent(Handle handle) const {
        Object* pObject = m_buckets[BucketOf(handle)];
        while (pObject != nullptr && pObject->m_mapLink.handle != handle) {
            pObject = pObject->m_mapLink.pNext;
        }
        return handle != nullptr ? pObject : nullptr;
    }
    Object* LookupTemporary(Handle handle) const {
        const auto it = m_temporary.find(handle);
        return it != m_temporary.end() ? it->second.get() : nullptr;
    }
    void SetPermanent(Handle handle, Object* pObject) {
        RemovePermanent(pObject);
        Object*& pHead = m_buckets[BucketOf(handle)];
        pObject->m_mapLink = {pHead, handle};
        pHead = pObject;
    }
    /// Takes an object out. A temporary one for the same handle stays until idle time: someone may
    /// use it. Nothing happens if the object is not in this map.
    void RemovePermanent(Object* pObject) {
        if (pObject->m_mapLink.handle == nullptr) {
            return;
        }
        Object** ppObject = &m_buckets[BucketOf(pObject->m_mapLink.handle)];
        while (*ppObject != nullptr && *ppObject != pObject) {
            ppObject = &(*ppObject)->m_mapLink.pNext;
        }
        if (*ppObject != nullptr) {
            *ppObject = pObject->m_mapLink.pNext;
            pObject->m_mapLink = {};
        }
    }
    void DeleteTemp() {
        // An object's destructor may look things up here.
        auto temporary = std::move(m_temporary);
        m_temporary.clear();
        for (auto& entry : temporary) {
            m_bind(*entry.second, nullptr);
        }
    }
    size_t CountTemporary() const { return m_temporary.size(); }

private:
    static constexpr size_t kBuckets = 1024;

    static size_t BucketOf(const void* handle) {
        // The system counts in the low bits and marks kinds or reuse in the high ones.
        const auto n = static_cast<uint32_t>(reinterpret_cast<uintptr_t>(handle));
        return (n * 2654435761u >> 16) % kBuckets;
    }

    Bind m_bind;
    Object* m_buckets[kBuckets] = {};
    std::unordered_map<Handle, std::unique_ptr<Object>> m_temporary;
};
