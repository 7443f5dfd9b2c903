// CObject and the runtime records of classes.
#pragma once

#include "afx/values/api.h"

class CArchive;
class CDumpContext;
class CObject;

/// One record a class. The base is reached through a function, because its record may lie in
/// another module.
struct QVAFX_API CRuntimeClass {
    LPCSTR m_lpszClassName;
    int m_nObjectSize;                ///< bytes
    UINT m_wSchema;                   ///< 0xFFFF: not serialized
    CObject* (*m_pfnCreateObject)();  ///< null for an abstract or merely dynamic class
    CRuntimeClass* (*m_pfnGetBaseClass)();
    CRuntimeClass* m_pNextClass;  ///< link of the module's class list

    /// A new object, or null if the class has no CreateObject or memory ran out.
    CObject* CreateObject();
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;

    /// Looks a class up in the application and all extension modules. Null if there is none.
    static CRuntimeClass* FromName(LPCSTR lpszClassName);
    static CObject* CreateObject(LPCSTR lpszClassName);

    /// Name and schema, as they stand in an archive.
    void Store(CArchive& ar) const;
    /// Null if no class of the name is there; the archive's schema then goes to pwSchemaNum as
    /// well.
    static CRuntimeClass* Load(CArchive& ar, UINT* pwSchemaNum);
};

/// With a class's schema number: objects of other schemas may be loaded as well, whose Serialize
/// asks the archive for the number.
#define VERSIONABLE_SCHEMA 0x80000000

/// Enters a record into the list of the process, from which AfxInitExtensionModule takes those of
/// an extension module. A record that is still there when its module goes, goes with it.
struct QVAFX_API AFX_CLASSINIT {
    explicit AFX_CLASSINIT(CRuntimeClass* pNewClass);
    ~AFX_CLASSINIT();
    AFX_CLASSINIT(const AFX_CLASSINIT&) = delete;
    AFX_CLASSINIT& operator=(const AFX_CLASSINIT&) = delete;

private:
    CRuntimeClass* m_pClass;
};

class QVAFX_API CObject {
public:
    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject();

    BOOL IsKindOf(const CRuntimeClass* pClass) const;
    BOOL IsSerializable() const;
    /// Writes the object's values into the archive, or reads them, in the same order.
    virtual void Serialize(CArchive& ar);
    virtual void AssertValid() const;
    /// For people who look for faults: the class's name and what a derived class adds.
    virtual void Dump(CDumpContext& dc) const;

    static CRuntimeClass* GetThisClass();
    static CRuntimeClass classCObject;

protected:
    CObject();

private:
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
};

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

#define DECLARE_DYNAMIC(class_name)         \
public:                                     \
    static CRuntimeClass class##class_name; \
    static CRuntimeClass* GetThisClass();   \
    virtual CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name) \
    DECLARE_DYNAMIC(class_name)       \
    static CObject* CreateObject();

#define AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, pfnNew)   \
    CRuntimeClass class_name::class##class_name = {#class_name,                    \
                                                   sizeof(class_name),             \
                                                   wSchema,                        \
                                                   pfnNew,                         \
                                                   &base_class_name::GetThisClass, \
                                                   nullptr};                       \
    CRuntimeClass* class_name::GetThisClass() {                                    \
        return &class_name::class##class_name;                                     \
    }                                                                              \
    CRuntimeClass* class_name::GetRuntimeClass() const {                           \
        return GetThisClass();                                                     \
    }                                                                              \
    static const AFX_CLASSINIT s_init_##class_name(&class_name::class##class_name);

#define IMPLEMENT_DYNAMIC(class_name, base_class_name) \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name) \
    CObject* class_name::CreateObject() {                \
        return new class_name;                           \
    }                                                    \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, &class_name::CreateObject)

/// For classes of which archives hold objects. Loads an object by ar >> pointer.
#define DECLARE_SERIAL(class_name)                                                    \
    DECLARE_DYNCREATE(class_name)                                                     \
    [[maybe_unused]] friend CArchive& operator>>(CArchive& ar, class_name*& pOb) {    \
        pOb = static_cast<class_name*>(AfxReadObject(ar, RUNTIME_CLASS(class_name))); \
        return ar;                                                                    \
    }
#define IMPLEMENT_SERIAL(class_name, base_class_name, wSchema) \
    CObject* class_name::CreateObject() {                      \
        return new class_name;                                 \
    }                                                          \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, &class_name::CreateObject)

/// What CArchive::ReadObject gives.
QVAFX_API CObject* AfxReadObject(CArchive& ar, const CRuntimeClass* pClass);

/// An object's place in a CHandleMap. It lies in the object itself, so that entering one needs no
/// memory and cannot fail.
template <class Object>
struct CHandleMapLink {
    Object* pNext = nullptr;
    const void* handle = nullptr;  ///< null: the object is in no map
};

/// The object as a class_name, or null if it is none.
QVAFX_API CObject* AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject);
#define DYNAMIC_DOWNCAST(class_name, object) \
    (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))
#define STATIC_DOWNCAST(class_name, object) (static_cast<class_name*>(object))
