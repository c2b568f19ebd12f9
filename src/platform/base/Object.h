// CObject and its runtime classes: which class an object is of, whether it derives from another, and objects
// made from a class that is only known by pointer or name. Knows modules only as lists of classes
// (platform/base/Module.h).
//
// A class opens with DECLARE_DYNAMIC (kind queries) or DECLARE_DYNCREATE (objects can be made too) and has
// the matching IMPLEMENT_ line in its source. Its record is the static member class<Name>; classes enter the
// process's list when their module is loaded and leave it when the module is unloaded.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/Types.h"

#include <cstddef>

class CArchive;
class CObject;

/// The record of one class. Lives as long as the module that holds the class.
struct SPLITFRAME_PLATFORM_API CRuntimeClass
{
    const char* m_lpszClassName;
    int m_nObjectSize;                     // bytes
    CObject* (*m_pfnCreateObject)();       // null for a class that can not be made this way
    CRuntimeClass* m_pBaseClass;           // null for CObject
    CRuntimeClass* m_pNextClass = nullptr; // the next class of the same list

    /// Makes an object with the default constructor.
    /// @return the object, owned by the caller, or null for a class without DECLARE_DYNCREATE. What the
    /// constructor throws passes through.
    CObject* CreateObject() const;
    /// Makes an object of the class of that name; null if there is no such class or it can not be made.
    static CObject* CreateObject(const char* pszClassName);
    static CObject* CreateObject(const wchar_t* pszClassName);
    /// Whether this class is pBaseClass or derives from it; false for null.
    bool IsDerivedFrom(const CRuntimeClass* pBaseClass) const;
    /// The class of that name, compared exactly, of any module that is loaded now; null if there is none. A
    /// null name finds nothing.
    static CRuntimeClass* FromName(const char* pszClassName);
    static CRuntimeClass* FromName(const wchar_t* pszClassName);
};

/// Enters a class into the process's list for as long as this object lives: one stands beside each runtime
/// class.
class SPLITFRAME_PLATFORM_API AFX_CLASSINIT
{
public:
    explicit AFX_CLASSINIT(CRuntimeClass* pNewClass);
    ~AFX_CLASSINIT();
    AFX_CLASSINIT(const AFX_CLASSINIT&) = delete;
    AFX_CLASSINIT& operator=(const AFX_CLASSINIT&) = delete;

private:
    CRuntimeClass* m_pClass;
};

/// Base of everything that is deleted through a base pointer or known by its runtime class. Not copied.
class SPLITFRAME_PLATFORM_API CObject
{
public:
    virtual ~CObject() = default;
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    virtual CRuntimeClass* GetRuntimeClass() const;
    static CRuntimeClass* GetThisClass();
    /// Whether the object's class is pClass or derives from it.
    bool IsKindOf(const CRuntimeClass* pClass) const;

    /// Writes the object to an archive or reads it from one, whichever the archive is for. The base's version
    /// does nothing.
    virtual void Serialize(CArchive& ar);

    static CRuntimeClass classCObject;

protected:
    CObject() = default;
};

/// pObject as a TYPE, or null when it is null or no TYPE.
template <class TYPE> TYPE* DynamicDownCast(const CObject* pObject)
{
    if (!pObject || !pObject->IsKindOf(TYPE::GetThisClass()))
        return nullptr;
    return static_cast<TYPE*>(const_cast<CObject*>(pObject));
}

#define RUNTIME_CLASS(class_name) (&class_name::class##class_name)
#define DYNAMIC_DOWNCAST(class_name, object) (DynamicDownCast<class_name>(object))

#define DECLARE_DYNAMIC(class_name)                                                                          \
public:                                                                                                      \
    static CRuntimeClass class##class_name;                                                                  \
    [[maybe_unused]] static CRuntimeClass* GetThisClass();                                                   \
    CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name)                                                                        \
    DECLARE_DYNAMIC(class_name)                                                                              \
    static CObject* CreateObject();

#define SPLITFRAME_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, create)                               \
    CRuntimeClass class_name::class##class_name                                                              \
    {                                                                                                        \
#class_name, static_cast < int>(sizeof(class_name)), create,                                         \
            &base_class_name::class##base_class_name                                                         \
    };                                                                                                       \
    CRuntimeClass* class_name::GetThisClass()                                                                \
    {                                                                                                        \
        return &class_name::class##class_name;                                                               \
    }                                                                                                        \
    CRuntimeClass* class_name::GetRuntimeClass() const                                                       \
    {                                                                                                        \
        return &class_name::class##class_name;                                                               \
    }                                                                                                        \
    static const AFX_CLASSINIT init##class_name(&class_name::class##class_name);

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                       \
    SPLITFRAME_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                     \
    CObject* class_name::CreateObject()                                                                      \
    {                                                                                                        \
        return new class_name;                                                                               \
    }                                                                                                        \
    SPLITFRAME_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, &class_name::CreateObject)
