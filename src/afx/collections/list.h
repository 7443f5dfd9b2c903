// CList, the doubly linked list.
#pragma once

#include "afx/collections/elements.h"

#include <utility>

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
    void AddHead(CList* pNewList) {
        for (Node* p = pNewList->m_pTail; p != nullptr; p = p->pPrev) {
            AddHead(p->value);
        }
    }
    void AddTail(CList* pNewList) {
        INT_PTR nLeft = pNewList->m_nCount;  // it may be this list
        for (Node* p = pNewList->m_pHead; nLeft > 0; p = p->pNext, --nLeft) {
            AddTail(p->value);
        }
    }
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
    const TYPE& GetPrev(POSITION& rPosition) const {
        return const_cast<CList*>(this)->GetPrev(rPosition);
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
        while (pNode != nullptr && !CompareElements(&pNode->value, &searchValue)) {
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

    /// Loading adds to what is there.
    void Serialize(CArchive& ar) override {
        CObject::Serialize(ar);
        if (ar.IsStoring()) {
            ar.WriteCount(static_cast<DWORD_PTR>(m_nCount));
            for (Node* p = m_pHead; p != nullptr; p = p->pNext) {
                SerializeElements<TYPE>(ar, &p->value, 1);
            }
            return;
        }
        for (DWORD_PTR nLeft = ar.ReadCount(); nLeft > 0; --nLeft) {
            TYPE value[1]{};
            SerializeElements<TYPE>(ar, value, 1);
            AddTail(value[0]);
        }
    }
    void Dump(CDumpContext& dc) const override {
        CObject::Dump(dc);
        dc << "with " << static_cast<LONGLONG>(m_nCount) << " elements\n";
        for (Node* p = dc.GetDepth() > 0 ? m_pHead : nullptr; p != nullptr; p = p->pNext) {
            DumpElements<TYPE>(dc, &p->value, 1);
        }
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
