// Collections of pointers that give them as what they are. They keep and own what the collection
// does that they are made of.
#pragma once

#include "afx/collections/ready.h"

/// BASE_CLASS: CPtrArray or CObArray.
template <class BASE_CLASS, class TYPE>
class CTypedPtrArray : public BASE_CLASS {
public:
    TYPE GetAt(INT_PTR nIndex) const { return static_cast<TYPE>(BASE_CLASS::GetAt(nIndex)); }
    TYPE& ElementAt(INT_PTR nIndex) {
        return reinterpret_cast<TYPE&>(BASE_CLASS::ElementAt(nIndex));
    }
    void SetAt(INT_PTR nIndex, TYPE ptr) { BASE_CLASS::SetAt(nIndex, ptr); }
    void SetAtGrow(INT_PTR nIndex, TYPE newElement) { BASE_CLASS::SetAtGrow(nIndex, newElement); }
    INT_PTR Add(TYPE newElement) { return BASE_CLASS::Add(newElement); }
    INT_PTR Append(const CTypedPtrArray& src) { return BASE_CLASS::Append(src); }
    void Copy(const CTypedPtrArray& src) { BASE_CLASS::Copy(src); }
    void InsertAt(INT_PTR nIndex, TYPE newElement, INT_PTR nCount = 1) {
        BASE_CLASS::InsertAt(nIndex, newElement, nCount);
    }
    void InsertAt(INT_PTR nStartIndex, CTypedPtrArray* pNewArray) {
        BASE_CLASS::InsertAt(nStartIndex, pNewArray);
    }
    TYPE operator[](INT_PTR nIndex) const { return GetAt(nIndex); }
    TYPE& operator[](INT_PTR nIndex) { return ElementAt(nIndex); }
};

/// BASE_CLASS: CPtrList or CObList.
template <class BASE_CLASS, class TYPE>
class CTypedPtrList : public BASE_CLASS {
public:
    explicit CTypedPtrList(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize) {}

    TYPE& GetHead() { return reinterpret_cast<TYPE&>(BASE_CLASS::GetHead()); }
    TYPE GetHead() const { return static_cast<TYPE>(BASE_CLASS::GetHead()); }
    TYPE& GetTail() { return reinterpret_cast<TYPE&>(BASE_CLASS::GetTail()); }
    TYPE GetTail() const { return static_cast<TYPE>(BASE_CLASS::GetTail()); }
    TYPE RemoveHead() { return static_cast<TYPE>(BASE_CLASS::RemoveHead()); }
    TYPE RemoveTail() { return static_cast<TYPE>(BASE_CLASS::RemoveTail()); }
    POSITION AddHead(TYPE newElement) { return BASE_CLASS::AddHead(newElement); }
    POSITION AddTail(TYPE newElement) { return BASE_CLASS::AddTail(newElement); }
    void AddHead(CTypedPtrList* pNewList) { BASE_CLASS::AddHead(pNewList); }
    void AddTail(CTypedPtrList* pNewList) { BASE_CLASS::AddTail(pNewList); }
    TYPE& GetNext(POSITION& rPosition) {
        return reinterpret_cast<TYPE&>(BASE_CLASS::GetNext(rPosition));
    }
    TYPE GetNext(POSITION& rPosition) const {
        return static_cast<TYPE>(BASE_CLASS::GetNext(rPosition));
    }
    TYPE& GetPrev(POSITION& rPosition) {
        return reinterpret_cast<TYPE&>(BASE_CLASS::GetPrev(rPosition));
    }
    TYPE GetPrev(POSITION& rPosition) const {
        return static_cast<TYPE>(BASE_CLASS::GetPrev(rPosition));
    }
    TYPE& GetAt(POSITION position) { return reinterpret_cast<TYPE&>(BASE_CLASS::GetAt(position)); }
    TYPE GetAt(POSITION position) const { return static_cast<TYPE>(BASE_CLASS::GetAt(position)); }
    void SetAt(POSITION pos, TYPE newElement) { BASE_CLASS::SetAt(pos, newElement); }
};

/// BASE_CLASS: CMapPtrToPtr, CMapPtrToWord, CMapWordToPtr, CMapWordToOb, CMapStringToPtr or
/// CMapStringToOb.
template <class BASE_CLASS, class KEY, class VALUE>
class CTypedPtrMap : public BASE_CLASS {
    using BaseKey = typename BASE_CLASS::BASE_KEY;
    using BaseArgKey = typename BASE_CLASS::BASE_ARG_KEY;
    using BaseValue = typename BASE_CLASS::BASE_VALUE;

public:
    explicit CTypedPtrMap(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize) {}

    BOOL Lookup(BaseArgKey key, VALUE& rValue) const {
        BaseValue value{};
        if (!BASE_CLASS::Lookup(key, value)) {
            return FALSE;
        }
        rValue = (VALUE)(value);
        return TRUE;
    }
    VALUE& operator[](BaseArgKey key) {
        return reinterpret_cast<VALUE&>(BASE_CLASS::operator[](key));
    }
    void SetAt(KEY key, VALUE newValue) { BASE_CLASS::SetAt(key, newValue); }
    BOOL RemoveKey(KEY key) { return BASE_CLASS::RemoveKey(key); }
    void GetNextAssoc(POSITION& rPosition, KEY& rKey, VALUE& rValue) const {
        BaseKey key{};
        BaseValue value{};
        BASE_CLASS::GetNextAssoc(rPosition, key, value);
        rKey = (KEY)(key);
        rValue = (VALUE)(value);
    }
};
