// CArray, the growing array.
#pragma once

#include "afx/collections/elements.h"

#include <iterator>
#include <utility>
#include <vector>

/// A growing array. An index that is none throws CInvalidArgException, want of memory
/// CMemoryException; then the array is as it was.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray : public CObject {
public:
    CArray() = default;

    INT_PTR GetSize() const { return static_cast<INT_PTR>(m_data.size()); }
    INT_PTR GetCount() const { return GetSize(); }
    BOOL IsEmpty() const { return m_data.empty(); }
    INT_PTR GetUpperBound() const { return GetSize() - 1; }
    /// nGrowBy is how many elements more to reserve when the array must grow; -1 keeps it.
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1) {
        if (nNewSize < 0) {
            AfxThrowInvalidArgException();
        }
        AfxNeedMemory([&] { m_data.resize(static_cast<size_t>(nNewSize)); });
        if (nGrowBy >= 0) {
            m_nGrowBy = nGrowBy;
        }
    }
    void FreeExtra() { m_data.shrink_to_fit(); }
    void RemoveAll() { std::vector<Slot>().swap(m_data); }

    const TYPE& GetAt(INT_PTR nIndex) const { return m_data[Check(nIndex)].value; }
    TYPE& GetAt(INT_PTR nIndex) { return m_data[Check(nIndex)].value; }
    TYPE& ElementAt(INT_PTR nIndex) { return m_data[Check(nIndex)].value; }
    const TYPE& ElementAt(INT_PTR nIndex) const { return m_data[Check(nIndex)].value; }
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement) {
        TYPE& value = m_data[Check(nIndex)].value;
        AfxNeedMemory([&] { value = newElement; });
    }
    const TYPE& operator[](INT_PTR nIndex) const { return GetAt(nIndex); }
    TYPE& operator[](INT_PTR nIndex) { return ElementAt(nIndex); }
    const TYPE* GetData() const {
        return m_data.empty() ? nullptr : reinterpret_cast<const TYPE*>(m_data.data());
    }
    TYPE* GetData() { return m_data.empty() ? nullptr : reinterpret_cast<TYPE*>(m_data.data()); }

    void SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement) {
        if (nIndex < 0) {
            AfxThrowInvalidArgException();
        }
        AfxNeedMemory([&] {
            TYPE value(newElement);  // it may lie in this array
            if (nIndex >= GetSize()) {
                m_data.resize(static_cast<size_t>(nIndex) + 1);
            }
            m_data[static_cast<size_t>(nIndex)].value = std::move(value);
        });
    }
    INT_PTR Add(ARG_TYPE newElement) {
        const INT_PTR nIndex = GetSize();
        AfxNeedMemory([&] {
            Slot added{TYPE(newElement)};  // it may lie in this array
            Reserve(m_data.size(), 1);
            m_data.push_back(std::move(added));
        });
        return nIndex;
    }
    INT_PTR Append(const CArray& src) {
        const INT_PTR nOldSize = GetSize();
        AddBehind(nOldSize, src.m_data.size(),
                  [&](size_t n) -> const TYPE& { return src.m_data[n].value; });
        return nOldSize;
    }
    void Copy(const CArray& src) {
        if (this != &src) {
            AfxNeedMemory([&] { std::vector<Slot>(src.m_data).swap(m_data); });
        }
    }
    /// Makes room by moving what stands at nIndex and behind it; elements that are missing before
    /// nIndex are added as well.
    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount = 1) {
        if (nIndex < 0 || nCount <= 0) {
            AfxThrowInvalidArgException();
        }
        const INT_PTR nOldSize = GetSize();
        AddBehind(nIndex, static_cast<size_t>(nCount),
                  [&](size_t) -> ARG_TYPE { return newElement; });
        MoveNewTo(nIndex, nOldSize);
    }
    void InsertAt(INT_PTR nStartIndex, CArray* pNewArray) {
        if (nStartIndex < 0) {
            AfxThrowInvalidArgException();
        }
        if (!pNewArray->IsEmpty()) {
            const INT_PTR nOldSize = GetSize();
            AddBehind(nStartIndex, pNewArray->m_data.size(),
                      [&](size_t n) -> const TYPE& { return pNewArray->m_data[n].value; });
            MoveNewTo(nStartIndex, nOldSize);
        }
    }
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1) {
        if (nIndex < 0 || nCount < 0 || nCount > GetSize() - nIndex) {
            AfxThrowInvalidArgException();
        }
        m_data.erase(m_data.begin() + nIndex, m_data.begin() + nIndex + nCount);
    }

    /// Loading takes the place of what was there.
    void Serialize(CArchive& ar) override {
        CObject::Serialize(ar);
        if (ar.IsStoring()) {
            ar.WriteCount(static_cast<DWORD_PTR>(GetSize()));
            SerializeElements<TYPE>(ar, GetData(), GetSize());
            return;
        }
        // Part by part: the count may be a lie.
        constexpr auto kPart = static_cast<INT_PTR>(65536 / sizeof(TYPE)) + 1;
        auto nLeft = static_cast<INT_PTR>(ar.ReadCount());
        RemoveAll();
        while (nLeft > 0) {
            const INT_PTR nOld = GetSize();
            const INT_PTR nPart = (std::min)(nLeft, kPart);
            AfxNeedMemory([&] {
                Reserve(m_data.size(), static_cast<size_t>(nPart));
                m_data.resize(static_cast<size_t>(nOld + nPart));
            });
            SerializeElements<TYPE>(ar, GetData() + nOld, nPart);
            nLeft -= nPart;
        }
    }
    void Dump(CDumpContext& dc) const override {
        CObject::Dump(dc);
        dc << "with " << static_cast<LONGLONG>(GetSize()) << " elements\n";
        if (dc.GetDepth() > 0) {
            DumpElements<TYPE>(dc, GetData(), GetSize());
        }
    }

private:
    // Keeps a vector of bool from packing its elements.
    struct Slot {
        TYPE value{};
    };

    size_t Check(INT_PTR nIndex) const {
        if (nIndex < 0 || nIndex >= GetSize()) {
            AfxThrowInvalidArgException();
        }
        return static_cast<size_t>(nIndex);
    }
    // Adds nCount elements, element(n) for each, behind the last one or behind nIndex - 1,
    // whichever comes later. All of them or none.
    template <class Element>
    void AddBehind(INT_PTR nIndex, size_t nCount, Element element) {
        const size_t nOldSize = m_data.size();
        AfxNeedMemory([&] {
            try {
                std::vector<Slot> added;  // apart: they may be copies of this array's own
                added.reserve(nCount);
                for (size_t n = 0; n < nCount; ++n) {
                    added.push_back(Slot{TYPE(element(n))});
                }
                const size_t nGap = std::max(static_cast<size_t>(nIndex), nOldSize);
                Reserve(nGap, nCount);
                m_data.resize(nGap);
                std::move(added.begin(), added.end(), std::back_inserter(m_data));
            } catch (...) {
                m_data.erase(m_data.begin() + static_cast<INT_PTR>(nOldSize), m_data.end());
                throw;
            }
        });
    }
    // Room for nCount elements behind nSize, and for more, so that adding one by one stays cheap.
    void Reserve(size_t nSize, size_t nCount) {
        if (m_data.capacity() < nSize || m_data.capacity() - nSize < nCount) {
            const size_t nMore = m_nGrowBy > 0 ? static_cast<size_t>(m_nGrowBy) : m_data.capacity();
            m_data.reserve(nSize + std::max(nCount, nMore));
        }
    }
    // The elements that came behind nOldSize change places with those from nIndex on.
    void MoveNewTo(INT_PTR nIndex, INT_PTR nOldSize) {
        if (nIndex < nOldSize) {
            std::rotate(m_data.begin() + nIndex, m_data.begin() + nOldSize, m_data.end());
        }
    }

    std::vector<Slot> m_data;
    INT_PTR m_nGrowBy = 0;
};
