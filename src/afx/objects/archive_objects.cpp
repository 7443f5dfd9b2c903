// CArchive's objects and classes.
#include "afx/objects/archive_references.h"

#include <afxtempl.h>

#include <string>

namespace {

// Tags of 16 bits. What does not fit into one follows as 32 bits behind kBigTag.
constexpr WORD kNullTag = 0;
constexpr WORD kNewClassTag = 0xFFFF;  // the class follows
constexpr WORD kClassTag = 0x8000;     // with the reference to a class
constexpr WORD kBigTag = 0x7FFF;
constexpr DWORD kBigClassTag = 0x80000000;
constexpr DWORD kMostReferences = 0x3FFFFFFE;

constexpr UINT kNotSerial = 0xFFFF;
constexpr UINT kNoSchema = static_cast<UINT>(-1);

/// Objects load within objects, as deep as a file says. TRUE when there is hardly room for more.
bool IsStackShort() {
    constexpr ptrdiff_t kReserve = 128 * 1024;
    MEMORY_BASIC_INFORMATION info{};
    return ::VirtualQuery(&info, &info, sizeof(info)) != 0 &&
           reinterpret_cast<BYTE*>(&info) - static_cast<BYTE*>(info.AllocationBase) < kReserve;
}

}  // namespace

CObject* AfxReadObject(CArchive& ar, const CRuntimeClass* pClass) {
    return ar.ReadObject(pClass);
}

void CRuntimeClass::Store(CArchive& ar) const {
    const auto nLength = static_cast<WORD>(std::strlen(m_lpszClassName));
    ar << static_cast<WORD>(m_wSchema) << nLength;
    ar.Write(m_lpszClassName, nLength);
}

CRuntimeClass* CRuntimeClass::Load(CArchive& ar, UINT* pwSchemaNum) {
    WORD wSchema = 0;
    WORD nLength = 0;
    ar >> wSchema >> nLength;
    *pwSchemaNum = wSchema;
    const std::string name = AfxNeedMemory([&] {
        std::string strName(nLength, '\0');
        ar.EnsureRead(strName.data(), nLength);
        return strName;
    });
    return FromName(name.c_str());
}

CArchive::References& CArchive::Refs() {
    if (m_pRefs == nullptr) {
        AfxNeedMemory([&] {
            m_pRefs = new References;
            if (IsStoring()) {
                m_pRefs->stored.reserve(m_nExpected);
            }
        });
    }
    return *m_pRefs;
}

void CArchive::SetLoadParams(UINT nGrowBy) {
    m_nExpected = nGrowBy;
}

void CArchive::SetStoreParams(UINT nHashSize, UINT) {
    m_nExpected = nHashSize;
}

UINT CArchive::GetObjectSchema() {
    const UINT nSchema = m_nObjectSchema;
    m_nObjectSchema = kNoSchema;
    return nSchema;
}

// --- Storing

DWORD CArchive::NextReference() {
    const size_t nNext = IsLoading() ? Refs().loaded.size() : Refs().stored.size() + 1;
    if (nNext >= kMostReferences) {
        Throw(CArchiveException::badIndex);
    }
    return static_cast<DWORD>(nNext);
}

void CArchive::WriteReference(DWORD dwReference, bool bClass) {
    if (dwReference < kBigTag) {
        *this << static_cast<WORD>(dwReference | (bClass ? kClassTag : 0));
    } else {
        *this << kBigTag << static_cast<DWORD>(dwReference | (bClass ? kBigClassTag : 0));
    }
}

void CArchive::WriteClass(const CRuntimeClass* pClassRef) {
    MustStore();
    if (pClassRef->m_wSchema == kNotSerial) {
        AfxThrowNotSupportedException();
    }
    const auto it = Refs().stored.find(pClassRef);
    if (it != Refs().stored.end()) {
        WriteReference(it->second, true);
        return;
    }
    const DWORD dwReference = NextReference();
    *this << kNewClassTag;
    pClassRef->Store(*this);
    AfxNeedMemory([&] { Refs().stored.emplace(pClassRef, dwReference); });
}

void CArchive::WriteObject(const CObject* pOb) {
    MustStore();
    if (pOb == nullptr) {
        *this << kNullTag;
        return;
    }
    const auto it = Refs().stored.find(pOb);
    if (it != Refs().stored.end()) {
        WriteReference(it->second, false);
        return;
    }
    WriteClass(pOb->GetRuntimeClass());
    const DWORD dwReference = NextReference();
    AfxNeedMemory([&] { Refs().stored.emplace(pOb, dwReference); });
    const_cast<CObject*>(pOb)->Serialize(*this);
}

void CArchive::MapObject(const CObject* pOb) {
    if (pOb == nullptr) {
        return;
    }
    const DWORD dwReference = NextReference();
    AfxNeedMemory([&] {
        if (IsStoring()) {
            Refs().stored.emplace(pOb, dwReference);
        } else {
            Refs().loaded.push_back({const_cast<CObject*>(pOb), nullptr, 0});
        }
    });
}

void CArchive::SerializeClass(const CRuntimeClass* pClassRef) {
    if (IsStoring()) {
        WriteClass(pClassRef);
    } else {
        ReadClass(pClassRef);
    }
}

// --- Loading

CRuntimeClass* CArchive::ReadClass(const CRuntimeClass* pClassRefRequested, UINT* pSchema,
                                   DWORD* pObTag) {
    MustLoad();
    WORD wTag = 0;
    *this >> wTag;
    DWORD dwTag = wTag & ~kClassTag;
    bool bClass = (wTag & kClassTag) != 0;
    if (wTag == kBigTag) {
        *this >> dwTag;
        bClass = (dwTag & kBigClassTag) != 0;
        dwTag &= ~kBigClassTag;
    }
    if (!bClass) {
        if (pObTag == nullptr) {
            Throw(CArchiveException::badIndex);
        }
        *pObTag = dwTag;
        return nullptr;
    }

    auto& loaded = Refs().loaded;
    CRuntimeClass* pClass = nullptr;
    UINT nSchema = 0;
    if (wTag == kNewClassTag) {
        pClass = CRuntimeClass::Load(*this, &nSchema);
        if (pClass == nullptr || pClass->m_wSchema == kNotSerial) {
            Throw(CArchiveException::badClass);
        }
        const UINT nOwnSchema = pClass->m_wSchema & 0xFFFF;
        if (nSchema != nOwnSchema && (pClass->m_wSchema & VERSIONABLE_SCHEMA) == 0) {
            Throw(CArchiveException::badSchema);
        }
        NextReference();
        AfxNeedMemory([&] { loaded.push_back({nullptr, pClass, nSchema}); });
    } else {
        if (dwTag >= loaded.size() || loaded[dwTag].pClass == nullptr) {
            Throw(CArchiveException::badIndex);
        }
        pClass = loaded[dwTag].pClass;
        nSchema = loaded[dwTag].nSchema;
    }
    if (pClassRefRequested != nullptr && !pClass->IsDerivedFrom(pClassRefRequested)) {
        Throw(CArchiveException::badClass);
    }
    if (pSchema != nullptr) {
        *pSchema = nSchema;
    } else {
        m_nObjectSchema = nSchema;
    }
    return pClass;
}

CObject* CArchive::ReadObject(const CRuntimeClass* pClass) {
    UINT nSchema = 0;
    DWORD dwTag = 0;
    CRuntimeClass* pClassRef = ReadClass(pClass, &nSchema, &dwTag);
    if (pClassRef != nullptr) {
        return MakeObject(pClassRef, nSchema);
    }
    const auto& loaded = Refs().loaded;
    if (dwTag == kNullTag) {
        return nullptr;
    }
    if (dwTag >= loaded.size() || loaded[dwTag].pObject == nullptr) {
        Throw(CArchiveException::badIndex);
    }
    CObject* pObject = loaded[dwTag].pObject;
    if (pClass != nullptr && !pObject->IsKindOf(pClass)) {
        Throw(CArchiveException::badClass);
    }
    return pObject;
}

CObject* CArchive::MakeObject(CRuntimeClass* pClass, UINT nSchema) {
    constexpr int kLooksAtStack = 16;  // objects between one look and the next
    if (++m_nDepth % kLooksAtStack == 0 && IsStackShort()) {
        --m_nDepth;
        Throw(CArchiveException::badIndex);
    }
    const UINT nOuterSchema = m_nObjectSchema;
    const DWORD dwReference = NextReference();
    auto& loaded = Refs().loaded;
    CObject* pObject = nullptr;
    try {
        pObject = pClass->CreateObject();
        if (pObject == nullptr) {
            AfxThrowMemoryException();
        }
        AfxNeedMemory([&] { loaded.push_back({pObject, nullptr, 0}); });
        m_nObjectSchema = nSchema;
        pObject->Serialize(*this);
    } catch (...) {
        if (dwReference < loaded.size()) {
            loaded[dwReference].pObject = nullptr;
        }
        delete pObject;
        m_nObjectSchema = nOuterSchema;
        --m_nDepth;
        throw;
    }
    m_nObjectSchema = nOuterSchema;
    --m_nDepth;
    return pObject;
}
