// The ready-made collections. Those of numbers, strings and objects can be parts of archives.
#pragma once

#include "afx/collections/array.h"
#include "afx/collections/list.h"
#include "afx/collections/map.h"

class QVAFX_API CByteArray : public CArray<BYTE, BYTE> {
    DECLARE_SERIAL(CByteArray)
};
class QVAFX_API CWordArray : public CArray<WORD, WORD> {
    DECLARE_SERIAL(CWordArray)
};
class QVAFX_API CDWordArray : public CArray<DWORD, DWORD> {
    DECLARE_SERIAL(CDWordArray)
};
class QVAFX_API CUIntArray : public CArray<UINT, UINT> {
    DECLARE_DYNAMIC(CUIntArray)
};
class QVAFX_API CPtrArray : public CArray<void*, void*> {
    DECLARE_DYNAMIC(CPtrArray)
    /// Pointers mean nothing in another run of the program: nothing is written.
    void Serialize(CArchive& ar) override { CObject::Serialize(ar); }
};
/// Of objects that somebody else owns.
class QVAFX_API CObArray : public CArray<CObject*, CObject*> {
    DECLARE_SERIAL(CObArray)
};
class QVAFX_API CStringArray : public CArray<CString, LPCTSTR> {
    DECLARE_SERIAL(CStringArray)
};

class QVAFX_API CPtrList : public CList<void*, void*> {
    DECLARE_DYNAMIC(CPtrList)
    explicit CPtrList(INT_PTR nBlockSize = 10) : CList(nBlockSize) {}
    void Serialize(CArchive& ar) override { CObject::Serialize(ar); }
};
class QVAFX_API CObList : public CList<CObject*, CObject*> {
    DECLARE_SERIAL(CObList)
    explicit CObList(INT_PTR nBlockSize = 10) : CList(nBlockSize) {}
};
class QVAFX_API CStringList : public CList<CString, LPCTSTR> {
    DECLARE_SERIAL(CStringList)
    explicit CStringList(INT_PTR nBlockSize = 10) : CList(nBlockSize) {}
};

/// A map with the names of its types, for CTypedPtrMap.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class CReadyMap : public CMap<KEY, ARG_KEY, VALUE, ARG_VALUE> {
public:
    using BASE_KEY = KEY;
    using BASE_ARG_KEY = ARG_KEY;
    using BASE_VALUE = VALUE;
    using BASE_ARG_VALUE = ARG_VALUE;

    explicit CReadyMap(INT_PTR nBlockSize = 10)
        : CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>(nBlockSize) {}
};

template <class VALUE, class ARG_VALUE>
class CReadyStringMap : public CReadyMap<CString, LPCTSTR, VALUE, ARG_VALUE> {
public:
    explicit CReadyStringMap(INT_PTR nBlockSize = 10)
        : CReadyMap<CString, LPCTSTR, VALUE, ARG_VALUE>(nBlockSize) {}

    /// The map's own text of a key.
    BOOL LookupKey(LPCTSTR key, LPCTSTR& rKey) const {
        const auto* pPair = this->PLookup(key);
        if (pPair == nullptr) {
            return FALSE;
        }
        rKey = pPair->key;
        return TRUE;
    }
};

class QVAFX_API CMapStringToPtr : public CReadyStringMap<void*, void*> {
    DECLARE_DYNAMIC(CMapStringToPtr)
    explicit CMapStringToPtr(INT_PTR nBlockSize = 10) : CReadyStringMap(nBlockSize) {}
    void Serialize(CArchive& ar) override { CObject::Serialize(ar); }
};
class QVAFX_API CMapStringToOb : public CReadyStringMap<CObject*, CObject*> {
    DECLARE_SERIAL(CMapStringToOb)
    explicit CMapStringToOb(INT_PTR nBlockSize = 10) : CReadyStringMap(nBlockSize) {}
};
class QVAFX_API CMapStringToString : public CReadyStringMap<CString, LPCTSTR> {
    DECLARE_SERIAL(CMapStringToString)
    explicit CMapStringToString(INT_PTR nBlockSize = 10) : CReadyStringMap(nBlockSize) {}
};
class QVAFX_API CMapPtrToPtr : public CReadyMap<void*, void*, void*, void*> {
    DECLARE_DYNAMIC(CMapPtrToPtr)
    explicit CMapPtrToPtr(INT_PTR nBlockSize = 10) : CReadyMap(nBlockSize) {}
    void Serialize(CArchive& ar) override { CObject::Serialize(ar); }
    /// Null if there is none.
    void* GetValueAt(void* key) const {
        void* pValue = nullptr;
        return Lookup(key, pValue) ? pValue : nullptr;
    }
};
class QVAFX_API CMapPtrToWord : public CReadyMap<void*, void*, WORD, WORD> {
    DECLARE_DYNAMIC(CMapPtrToWord)
    explicit CMapPtrToWord(INT_PTR nBlockSize = 10) : CReadyMap(nBlockSize) {}
    void Serialize(CArchive& ar) override { CObject::Serialize(ar); }
};
class QVAFX_API CMapWordToPtr : public CReadyMap<WORD, WORD, void*, void*> {
    DECLARE_DYNAMIC(CMapWordToPtr)
    explicit CMapWordToPtr(INT_PTR nBlockSize = 10) : CReadyMap(nBlockSize) {}
    void Serialize(CArchive& ar) override { CObject::Serialize(ar); }
};
class QVAFX_API CMapWordToOb : public CReadyMap<WORD, WORD, CObject*, CObject*> {
    DECLARE_SERIAL(CMapWordToOb)
    explicit CMapWordToOb(INT_PTR nBlockSize = 10) : CReadyMap(nBlockSize) {}
};
