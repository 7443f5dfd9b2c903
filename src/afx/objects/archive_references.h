// What an archive knows of the classes and objects that came by. Internal to the framework.
#pragma once

#include "afx/objects/archive.h"

#include <unordered_map>
#include <vector>

/// Reference 0 is null.
struct CArchive::References {
    /// While loading: a class with the schema that the archive has of it, or an object. Both null
    /// for null, and for an object that failed.
    struct Entry {
        CObject* pObject;
        CRuntimeClass* pClass;
        UINT nSchema;
    };
    std::vector<Entry> loaded{{nullptr, nullptr, 0}};
    std::unordered_map<const void*, DWORD> stored;
};
