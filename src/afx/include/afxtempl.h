// Collection templates: arrays, lists and maps of any type.
#pragma once

#include <afx.h>

#include <algorithm>
#include <iterator>
#include <list>
#include <new>
#include <stdexcept>
#include <unordered_map>
#include <utility>
#include <vector>

/// Opaque place in a list or map. Null is before the first and behind the last element.
struct __POSITION {};
typedef __POSITION* POSITION;
#define BEFORE_START_POSITION (reinterpret_cast<POSITION>(static_cast<INT_PTR>(-1)))

template <class KEY>
struct AFX_MAP_HASH {
    size_t operator()(const KEY& key) const { return std::hash<KEY>()(key); }
};
template <>
struct AFX_MAP_HASH<CString> {
    size_t operator()(const CString& key) const {
        size_t nHash = 0;
        for (LPCSTR p = key; *p != 0; ++p) {
            nHash = nHash * 33 + static_cast<unsigned char>(*p);
        }
        return nHash;
    }
};

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

/// A doubly linked list.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CList : public CObject {
    struct Node : __POSITION {
        Node* pNext;
        Node* pPrev;
        TYPE value;
    };
    static Node* ToNode(POSITION pos) { return static_cast<Node*>(pos); }

public:
    explicit CList(INT_PTR = 10) {}
    ~CList() override { RemoveAll(); }

    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }
    TYPE& GetHead() { return Checked(m_pHead)->value; }
    const TYPE& GetHead() const { return Checked(m_pHead)->value; }
    TYPE& GetTail() { return Checked(m_pTail)->value; }
    const TYPE& GetTail() const { return Checked(m_pTail)->value; }
    POSITION AddHead(ARG_TYPE newElement) { return Link(newElement, m_pHead); }
    POSITION AddTail(ARG_TYPE newElement) { return Link(newElement, nullptr); }
    TYPE RemoveHead() { return Take(Checked(m_pHead)); }
    TYPE RemoveTail() { return Take(Checked(m_pTail)); }
    void RemoveAll() {
        while (m_pHead != nullptr) {
            Take(m_pHead);
        }
    }

    POSITION GetHeadPosition() const { return m_pHead; }
    POSITION GetTailPosition() const { return m_pTail; }
    TYPE& GetNext(POSITION& rPosition) {
        Node* pNode = Checked(ToNode(rPosition));
        rPosition = pNode->pNext;
        return pNode->value;
    }
    const TYPE& GetNext(POSITION& rPosition) const {
        return const_cast<CList*>(this)->GetNext(rPosition);
    }
    TYPE& GetPrev(POSITION& rPosition) {
        Node* pNode = Checked(ToNode(rPosition));
        rPosition = pNode->pPrev;
        return pNode->value;
    }
    TYPE& GetAt(POSITION position) { return Checked(ToNode(position))->value; }
    const TYPE& GetAt(POSITION position) const { return Checked(ToNode(position))->value; }
    void SetAt(POSITION pos, ARG_TYPE newElement) { Checked(ToNode(pos))->value = newElement; }
    void RemoveAt(POSITION position) { Take(Checked(ToNode(position))); }
    POSITION InsertBefore(POSITION position, ARG_TYPE newElement) {
        return position != nullptr ? Link(newElement, ToNode(position)) : AddHead(newElement);
    }
    POSITION InsertAfter(POSITION position, ARG_TYPE newElement) {
        return position != nullptr ? Link(newElement, ToNode(position)->pNext)
                                   : AddTail(newElement);
    }
    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = nullptr) const {
        Node* pNode = startAfter != nullptr ? ToNode(startAfter)->pNext : m_pHead;
        while (pNode != nullptr && !(pNode->value == searchValue)) {
            pNode = pNode->pNext;
        }
        return pNode;
    }
    POSITION FindIndex(INT_PTR nIndex) const {
        Node* pNode = nIndex >= 0 ? m_pHead : nullptr;
        while (pNode != nullptr && nIndex-- > 0) {
            pNode = pNode->pNext;
        }
        return pNode;
    }

private:
    static Node* Checked(Node* pNode) {
        if (pNode == nullptr) {
            AfxThrowInvalidArgException();
        }
        return pNode;
    }
    POSITION Link(ARG_TYPE value, Node* pNext) {
        Node* pPrev = pNext != nullptr ? pNext->pPrev : m_pTail;
        auto* pNode = AfxNeedMemory([&] { return new Node{{}, pNext, pPrev, TYPE(value)}; });
        (pPrev != nullptr ? pPrev->pNext : m_pHead) = pNode;
        (pNext != nullptr ? pNext->pPrev : m_pTail) = pNode;
        ++m_nCount;
        return pNode;
    }
    TYPE Take(Node* pNode) {
        TYPE value(std::move(pNode->value));
        (pNode->pPrev != nullptr ? pNode->pPrev->pNext : m_pHead) = pNode->pNext;
        (pNode->pNext != nullptr ? pNode->pNext->pPrev : m_pTail) = pNode->pPrev;
        --m_nCount;
        delete pNode;
        return value;
    }

    Node* m_pHead = nullptr;
    Node* m_pTail = nullptr;
    INT_PTR m_nCount = 0;
};

/// A map by hash. Positions are valid until an element is added or removed.
template <class KEY, class ARG_KEY = const KEY&, class VALUE = KEY, class ARG_VALUE = const VALUE&>
class CMap : public CObject {
    using Storage = std::unordered_map<KEY, VALUE, AFX_MAP_HASH<KEY>>;

public:
    explicit CMap(INT_PTR = 10) {}

    INT_PTR GetCount() const { return static_cast<INT_PTR>(m_map.size()); }
    INT_PTR GetSize() const { return GetCount(); }
    BOOL IsEmpty() const { return m_map.empty(); }
    BOOL Lookup(ARG_KEY key, VALUE& rValue) const {
        const auto it = m_map.find(key);
        if (it == m_map.end()) {
            return FALSE;
        }
        rValue = it->second;
        return TRUE;
    }
    VALUE& operator[](ARG_KEY key) {
        return AfxNeedMemory([&]() -> VALUE& { return m_map[key]; });
    }
    void SetAt(ARG_KEY key, ARG_VALUE newValue) {
        AfxNeedMemory([&] { m_map.insert_or_assign(KEY(key), VALUE(newValue)); });
    }
    BOOL RemoveKey(ARG_KEY key) { return m_map.erase(key) > 0; }
    void RemoveAll() { m_map.clear(); }
    void InitHashTable(UINT nHashSize, BOOL = TRUE) {
        AfxNeedMemory([&] { m_map.reserve(nHashSize); });
    }

    POSITION GetStartPosition() const { return m_map.empty() ? nullptr : ToPosition(1); }
    /// Walks in no particular order; the position becomes null behind the last.
    void GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const {
        const auto nAt = reinterpret_cast<size_t>(rNextPosition);
        auto it = nAt == 1 || m_walk.nAt != nAt ? m_map.begin() : m_walk.it;
        if (nAt != 1 && m_walk.nAt != nAt) {
            std::advance(it, static_cast<std::ptrdiff_t>(nAt - 1));
        }
        rKey = it->first;
        rValue = it->second;
        ++it;
        m_walk = {it, nAt + 1};
        rNextPosition = it == m_map.end() ? nullptr : ToPosition(nAt + 1);
    }

private:
    struct Walk {
        typename Storage::const_iterator it;
        size_t nAt = 0;
    };
    static POSITION ToPosition(size_t n) { return reinterpret_cast<POSITION>(n); }

    Storage m_map;
    mutable Walk m_walk;
};
