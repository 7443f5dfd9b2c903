// From handles of the system to the objects that stand for them. A permanent object is one that the
// program made or attached; for any other handle a temporary one is made, which lives until the
// next idle time.
#pragma once

#include "afx_object.h"

#include <memory>
#include <unordered_map>

/// Object needs a default constructor. bind(object, handle) puts a handle into a temporary object,
/// or null to take it out again before the object is deleted, so that its destructor leaves it
/// alone.
template <class Object, class Handle>
class CHandleMap {
public:
    using Bind = void (*)(Object&, Handle);

    explicit CHandleMap(Bind bind) : m_bind(bind) {}
    ~CHandleMap() { DeleteTemp(); }

    /// The permanent object, else the temporary one, which is made if need be. Null for null.
    Object* FromHandle(Handle handle) {
        if (handle == nullptr) {
            return nullptr;
        }
        if (Object* pObject = LookupPermanent(handle)) {
            return pObject;
        }
        std::unique_ptr<Object>& pTemporary = m_temporary[handle];
        if (pTemporary == nullptr) {
            pTemporary = std::make_unique<Object>();
            m_bind(*pTemporary, handle);
        }
        return pTemporary.get();
    }
    Object* LookupPermanent(Handle handle) const {
        const auto it = m_permanent.find(handle);
        return it != m_permanent.end() ? it->second : nullptr;
    }
    Object* LookupTemporary(Handle handle) const {
        const auto it = m_temporary.find(handle);
        return it != m_temporary.end() ? it->second.get() : nullptr;
    }
    void SetPermanent(Handle handle, Object* pObject) { m_permanent[handle] = pObject; }
    /// Takes the permanent entry out. A temporary object stays until idle time: someone may use it.
    void RemoveHandle(Handle handle) { m_permanent.erase(handle); }
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
    Bind m_bind;
    std::unordered_map<Handle, Object*> m_permanent;
    std::unordered_map<Handle, std::unique_ptr<Object>> m_temporary;
};
