// CMap, the map by hash.
#pragma once

#include "afx/collections/elements.h"

#include <memory>
#include <utility>

/// Positions and pairs stay good until their element is removed, whatever else comes or goes.
template <class KEY, class ARG_KEY = const KEY&, class VALUE = KEY, class ARG_VALUE = const VALUE&>
class CMap : public CObject {
public:
    struct CPair {
        const KEY key;
        VALUE value{};

    protected:
        explicit CPair(ARG_KEY keyOfPair) : key(keyOfPair) {}
    };

    explicit CMap(INT_PTR = 10) {}
    ~CMap() override { RemoveAll(); }

    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }
    BOOL Lookup(ARG_KEY key, VALUE& rValue) const {
        const CPair* pPair = PLookup(key);
        if (pPair == nullptr) {
            return FALSE;
        }
        rValue = pPair->value;
        return TRUE;
    }
    /// Null if there is none.
    const CPair* PLookup(ARG_KEY key) const { return FindKey(key); }
    CPair* PLookup(ARG_KEY key) { return FindKey(key); }
    VALUE& operator[](ARG_KEY key) {
        CAssoc* pAssoc = FindKey(key);
        return (pAssoc != nullptr ? pAssoc : Insert(key))->value;
    }
    void SetAt(ARG_KEY key, ARG_VALUE newValue) {
        if (CAssoc* pFound = FindKey(key)) {
            AfxNeedMemory([&] { pFound->value = newValue; });
            return;
        }
        VALUE value(newValue);  // it may lie in this map, or throw: nothing is inserted then
        Insert(key)->value = std::move(value);
    }
    BOOL RemoveKey(ARG_KEY key) {
        CAssoc** ppAssoc = Place(key);
        CAssoc* pAssoc = ppAssoc != nullptr ? *ppAssoc : nullptr;
        if (pAssoc == nullptr) {
            return FALSE;
        }
        *ppAssoc = pAssoc->pNext;
        --m_nCount;
        delete pAssoc;
        return TRUE;
    }
    void RemoveAll() {
        const std::unique_ptr<CAssoc*[]> pBuckets(m_pBuckets.release());
        const UINT nBuckets = m_nBuckets;
        m_nBuckets = 0;
        m_nCount = 0;
        for (UINT n = 0; n < nBuckets; ++n) {
            while (CAssoc* pAssoc = pBuckets[n]) {
                pBuckets[n] = pAssoc->pNext;
                delete pAssoc;
            }
        }
    }
    UINT GetHashTableSize() const { return m_nBuckets != 0 ? m_nBuckets : m_nFirstBuckets; }
    /// How many keys are expected; the map grows beyond it. Only while it is empty.
    void InitHashTable(UINT nHashSize, BOOL bAllocNow = TRUE) {
        if (m_nCount == 0 && nHashSize > 0) {
            m_nFirstBuckets = nHashSize;
            m_pBuckets.reset();
            m_nBuckets = 0;
            if (bAllocNow) {
                Rehash(nHashSize);
            }
        }
    }

    POSITION GetStartPosition() const { return m_nCount != 0 ? BEFORE_START_POSITION : nullptr; }
    /// Walks in no particular order; the position becomes null behind the last. What was given may
    /// be removed.
    void GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const {
        const CAssoc* pAssoc = At(rNextPosition);
        const CAssoc* pNext = After(pAssoc);
        rNextPosition = reinterpret_cast<POSITION>(const_cast<CAssoc*>(pNext));
        rKey = pAssoc->key;
        rValue = pAssoc->value;
    }
    const CPair* PGetFirstAssoc() const { return FirstFrom(0); }
    CPair* PGetFirstAssoc() { return FirstFrom(0); }
    const CPair* PGetNextAssoc(const CPair* pAssoc) const {
        return After(static_cast<const CAssoc*>(pAssoc));
    }
    CPair* PGetNextAssoc(const CPair* pAssoc) { return After(static_cast<const CAssoc*>(pAssoc)); }

    /// Loading adds to what is there.
    void Serialize(CArchive& ar) override {
        CObject::Serialize(ar);
        if (ar.IsStoring()) {
            ar.WriteCount(static_cast<DWORD_PTR>(m_nCount));
            for (CAssoc* p = FirstFrom(0); p != nullptr; p = After(p)) {
                SerializeElements<KEY>(ar, const_cast<KEY*>(&p->key), 1);
                SerializeElements<VALUE>(ar, &p->value, 1);
            }
            return;
        }
        for (DWORD_PTR nLeft = ar.ReadCount(); nLeft > 0; --nLeft) {
            KEY key[1]{};
            VALUE value[1]{};
            SerializeElements<KEY>(ar, key, 1);
            SerializeElements<VALUE>(ar, value, 1);
            SetAt(key[0], value[0]);
        }
    }
    void Dump(CDumpContext& dc) const override {
        CObject::Dump(dc);
        dc << "with " << static_cast<LONGLONG>(m_nCount) << " elements\n";
        if (dc.GetDepth() > 0) {
            for (const CAssoc* p = FirstFrom(0); p != nullptr; p = After(p)) {
                DumpElements<KEY>(dc, &p->key, 1);
                DumpElements<VALUE>(dc, &p->value, 1);
            }
        }
    }

protected:
    class CAssoc : public CPair {
        friend class CMap;
        CAssoc(ARG_KEY keyOfPair, UINT nHashOfKey) : CPair(keyOfPair), nHash(nHashOfKey) {}
        UINT nHash;
        CAssoc* pNext = nullptr;
    };

private:
    static constexpr UINT kFewBuckets = 17;

    /// Where the pointer to the key's element is, or would be. Null without a table.
    CAssoc** Place(ARG_KEY key) const {
        if (m_nBuckets == 0) {
            return nullptr;
        }
        const UINT nHash = HashKey<ARG_KEY>(key);
        CAssoc** ppAssoc = &m_pBuckets[nHash % m_nBuckets];
        while (*ppAssoc != nullptr &&
               ((*ppAssoc)->nHash != nHash || !CompareElements(&(*ppAssoc)->key, &key))) {
            ppAssoc = &(*ppAssoc)->pNext;
        }
        return ppAssoc;
    }
    CAssoc* FindKey(ARG_KEY key) const {
        CAssoc** ppAssoc = Place(key);
        return ppAssoc != nullptr ? *ppAssoc : nullptr;
    }
    CAssoc* Insert(ARG_KEY key) {
        if (m_nBuckets == 0 || static_cast<size_t>(m_nCount) >= 2 * size_t{m_nBuckets}) {
            Rehash(m_nBuckets == 0 ? m_nFirstBuckets : 4 * m_nBuckets + 1);
        }
        const UINT nHash = HashKey<ARG_KEY>(key);
        CAssoc* pAssoc = AfxNeedMemory([&] { return new CAssoc(key, nHash); });
        Link(pAssoc);
        ++m_nCount;
        return pAssoc;
    }
    void Link(CAssoc* pAssoc) {
        CAssoc*& pHead = m_pBuckets[pAssoc->nHash % m_nBuckets];
        pAssoc->pNext = pHead;
        pHead = pAssoc;
    }
    void Rehash(UINT nBuckets) {
        auto pBuckets = AfxNeedMemory([&] { return std::make_unique<CAssoc*[]>(nBuckets); });
        std::swap(m_pBuckets, pBuckets);
        std::swap(m_nBuckets, nBuckets);
        for (UINT n = 0; n < nBuckets; ++n) {
            while (CAssoc* pAssoc = pBuckets[n]) {
                pBuckets[n] = pAssoc->pNext;
                Link(pAssoc);
            }
        }
    }
    CAssoc* FirstFrom(UINT nBucket) const {
        for (; nBucket < m_nBuckets; ++nBucket) {
            if (m_pBuckets[nBucket] != nullptr) {
                return m_pBuckets[nBucket];
            }
        }
        return nullptr;
    }
    CAssoc* After(const CAssoc* pAssoc) const {
        return pAssoc->pNext != nullptr ? pAssoc->pNext : FirstFrom(pAssoc->nHash % m_nBuckets + 1);
    }
    const CAssoc* At(POSITION pos) const {
        const CAssoc* pAssoc = pos == BEFORE_START_POSITION
                                   ? FirstFrom(0)
                                   : static_cast<CAssoc*>(static_cast<void*>(pos));
        if (pAssoc == nullptr) {
            AfxThrowInvalidArgException();
        }
        return pAssoc;
    }

    std::unique_ptr<CAssoc*[]> m_pBuckets;
    UINT m_nBuckets = 0;
    UINT m_nFirstBuckets = kFewBuckets;
    INT_PTR m_nCount = 0;
};
