// The component runtime, as far as the XML DOM service needs it: statuses, objects that count their
// references, strings and values that cross their interfaces.
//
// Rules: a pointer that an operation hands out is a reference of the caller's, who ends it with Release(); a
// string that it hands out is freed with SysFreeString(). A failed operation hands out null. One thread
// makes, uses and ends an object.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/Types.h"

/// The status of an operation; negative: it failed.
using HRESULT = std::int32_t;

inline constexpr HRESULT S_OK = 0;
inline constexpr HRESULT S_FALSE = 1; // done, but there is nothing to hand out
inline constexpr HRESULT E_NOINTERFACE = static_cast<HRESULT>(0x80004002);
inline constexpr HRESULT E_POINTER = static_cast<HRESULT>(0x80004003);
inline constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005);
inline constexpr HRESULT CLASS_E_NOAGGREGATION = static_cast<HRESULT>(0x80040110);
inline constexpr HRESULT REGDB_E_CLASSNOTREG = static_cast<HRESULT>(0x80040154);
inline constexpr HRESULT CO_E_NOTINITIALIZED = static_cast<HRESULT>(0x800401F0);
inline constexpr HRESULT E_OUTOFMEMORY = static_cast<HRESULT>(0x8007000E);
inline constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057);

constexpr bool SUCCEEDED(HRESULT hr)
{
    return hr >= 0;
}
constexpr bool FAILED(HRESULT hr)
{
    return hr < 0;
}

/// Where the code of a class may run; this runtime knows classes inside the process only.
enum CLSCTX : DWORD
{
    CLSCTX_INPROC_SERVER = 1,
    CLSCTX_INPROC_HANDLER = 2,
    CLSCTX_LOCAL_SERVER = 4,
    CLSCTX_REMOTE_SERVER = 16,
    CLSCTX_ALL = 23
};

/// What every object offers. It ends itself with its last reference.
class IUnknown
{
public:
    /// Hands out the object as the interface of that identifier. @return E_NOINTERFACE when it has none such
    virtual HRESULT QueryInterface(const GUID& iid, void** ppObject) = 0;
    /// Both answer the number of references afterwards.
    virtual DWORD AddRef() = 0;
    virtual DWORD Release() = 0;

protected:
    ~IUnknown() = default; // only Release() ends an object
};

inline constexpr GUID IID_IUnknown = {0, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

/// Makes the runtime ready on this thread; each call is undone by one CoUninitialize().
/// @param pReserved  null @return S_OK, or S_FALSE when it was ready already
SPLITFRAME_PLATFORM_API HRESULT CoInitialize(void* pReserved);
/// One call too many does nothing. Objects that are still referenced stay usable.
SPLITFRAME_PLATFORM_API void CoUninitialize();

/// Makes an object of a class.
/// @param pOuter     null: no class here lets itself be made a part of another object
/// @param nContext   CLSCTX values; CLSCTX_INPROC_SERVER must be among them
/// @param ppObject   receives the object as the interface iid
/// @return CO_E_NOTINITIALIZED, REGDB_E_CLASSNOTREG, E_NOINTERFACE, ... when there is none
SPLITFRAME_PLATFORM_API HRESULT CoCreateInstance(const GUID& clsid, IUnknown* pOuter, DWORD nContext,
                                                 const GUID& iid, void** ppObject);

/// A text that crosses an interface: UTF-16 units, one in each wchar_t, and a zero behind them; its length
/// stands before it. Null is the empty text.
using BSTR = wchar_t*;

/// A copy of a text up to its first zero, values above FFFF split into two units. @return null for null and
/// when memory runs out
SPLITFRAME_PLATFORM_API BSTR SysAllocString(const wchar_t* psz);
/// A copy of nLength UTF-16 units as they stand. @return null when memory runs out
SPLITFRAME_PLATFORM_API BSTR SysAllocStringLen(const wchar_t* pUnits, UINT nLength);
/// The length in units; 0 for null.
SPLITFRAME_PLATFORM_API UINT SysStringLen(const wchar_t* bstr);
/// Null is ignored.
SPLITFRAME_PLATFORM_API void SysFreeString(BSTR bstr);

/// Truth as it crosses an interface.
using VARIANT_BOOL = std::int16_t;
inline constexpr VARIANT_BOOL VARIANT_TRUE = -1;
inline constexpr VARIANT_BOOL VARIANT_FALSE = 0;

enum VARENUM : WORD
{
    VT_EMPTY = 0,
    VT_BSTR = 8
};

/// A value of a kind that is only known at run time: nothing, or a text, which it owns.
struct VARIANT
{
    WORD vt = VT_EMPTY;
    BSTR bstrVal = nullptr; // of VT_BSTR; may be null
};

/// Frees what the value owns and makes it empty. @return E_INVALIDARG for null
SPLITFRAME_PLATFORM_API HRESULT VariantClear(VARIANT* pValue);
