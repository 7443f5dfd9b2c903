// What collections do with their elements: a program specializes these for types of its own.
#pragma once

#include "afx/objects/archive.h"
#include "afx/objects/dump.h"

#include <algorithm>
#include <functional>
#include <new>
#include <stdexcept>
#include <type_traits>

/// Opaque place in a list or map. Null is before the first and behind the last element.
struct __POSITION {};
typedef __POSITION* POSITION;
#define BEFORE_START_POSITION (reinterpret_cast<POSITION>(static_cast<INT_PTR>(-1)))

/// Runs an action that needs memory. The framework's exception stands for the language's.
template <class Action>
auto AfxNeedMemory(Action action) -> decltype(action()) {
    try {
        return action();
    } catch (const std::bad_alloc&) {
        AfxThrowMemoryException();
    } catch (const std::length_error&) {
        AfxThrowMemoryException();
    }
}

/// Writes or reads elements. Values that can be copied as bytes are; for other types a program has
/// a version of its own, or CNotSupportedException is thrown. While loading, it is called for a
/// part of the elements at a time.
template <class TYPE>
void SerializeElements(CArchive& ar, TYPE* pElements, INT_PTR nCount) {
    if constexpr (std::is_trivially_copyable_v<TYPE>) {
        constexpr auto kMost = static_cast<INT_PTR>(0x10000000 / sizeof(TYPE));
        while (nCount > 0) {
            const INT_PTR nPart = (std::min)(nCount, (std::max)(kMost, INT_PTR{1}));
            const auto nBytes = static_cast<UINT>(static_cast<size_t>(nPart) * sizeof(TYPE));
            if (ar.IsStoring()) {
                ar.Write(pElements, nBytes);
            } else {
                ar.EnsureRead(pElements, nBytes);
            }
            pElements += nPart;
            nCount -= nPart;
        }
    } else {
        AfxThrowNotSupportedException();
    }
}
template <>
inline void SerializeElements<CString>(CArchive& ar, CString* pElements, INT_PTR nCount) {
    for (; nCount > 0; --nCount, ++pElements) {
        if (ar.IsStoring()) {
            ar << *pElements;
        } else {
            ar >> *pElements;
        }
    }
}
template <>
inline void SerializeElements<CObject*>(CArchive& ar, CObject** pElements, INT_PTR nCount) {
    for (; nCount > 0; --nCount, ++pElements) {
        if (ar.IsStoring()) {
            ar << *pElements;
        } else {
            ar >> *pElements;
        }
    }
}

/// Describes elements, by their bytes unless a program has its own version.
template <class TYPE>
void DumpElements(CDumpContext& dc, const TYPE* pElements, INT_PTR nCount) {
    constexpr int kBytesOfLine = 16;
    const auto nBytes = static_cast<int>(nCount * static_cast<INT_PTR>(sizeof(TYPE)));
    dc.HexDump("\t", reinterpret_cast<BYTE*>(const_cast<TYPE*>(pElements)), nBytes, kBytesOfLine);
}

/// Whether two elements are the same: by ==.
template <class TYPE, class ARG_TYPE>
BOOL CompareElements(const TYPE* pElement1, const ARG_TYPE* pElement2) {
    return *pElement1 == *pElement2;
}

/// A number for a map's key. Equal keys have the same.
template <class ARG_KEY>
UINT HashKey(ARG_KEY key) {
    using Key = std::remove_cv_t<std::remove_reference_t<ARG_KEY>>;
    constexpr ULONGLONG kSpread = 0x9E3779B97F4A7C15;
    if constexpr (std::is_convertible_v<const Key&, LPCSTR>) {
        UINT nHash = 0;
        for (LPCSTR p = key; p != nullptr && *p != 0; ++p) {
            nHash = nHash * 33 + static_cast<BYTE>(*p);
        }
        return nHash;
    } else if constexpr (std::is_pointer_v<Key>) {
        return static_cast<UINT>(reinterpret_cast<UINT_PTR>(key) * kSpread >> 32);
    } else if constexpr (std::is_integral_v<Key> || std::is_enum_v<Key>) {
        return static_cast<UINT>(static_cast<ULONGLONG>(key) * kSpread >> 32);
    } else {
        return static_cast<UINT>(std::hash<Key>()(key));
    }
}
