// The component runtime: its start and end on a thread, its one class, and its strings.
#include "platform/dom/Component.h"

#include "platform/base/Exception.h"
#include "platform/base/String.h"
#include "platform/dom/XmlDom.h"
#include "platform/dom/internal/DomDocument.h"

#include <cstdlib>
#include <cstring>
#include <new>

namespace {

// Calls of CoInitialize on this thread that are not undone yet.
thread_local int g_nInitialized = 0;

// The length stands before the text, with room that keeps the text aligned.
constexpr std::size_t HEADER = sizeof(std::size_t);

} // namespace

HRESULT CoInitialize(void* /*pReserved*/)
{
    return g_nInitialized++ == 0 ? S_OK : S_FALSE;
}

void CoUninitialize()
{
    if (g_nInitialized > 0)
        --g_nInitialized;
}

HRESULT CoCreateInstance(const GUID& clsid, IUnknown* pOuter, DWORD nContext, const GUID& iid,
                         void** ppObject)
{
    if (!ppObject)
        return E_POINTER;
    *ppObject = nullptr;
    if (g_nInitialized == 0)
        return CO_E_NOTINITIALIZED;
    if (!(clsid == CLSID_DOMDocument) || !(nContext & CLSCTX_INPROC_SERVER))
        return REGDB_E_CLASSNOTREG;
    if (pOuter)
        return CLASS_E_NOAGGREGATION;
    IUnknown* pDocument = splitframe::NewDomDocument();
    if (!pDocument)
        return E_OUTOFMEMORY;
    const HRESULT hr = pDocument->QueryInterface(iid, ppObject);
    pDocument->Release();
    return hr;
}

BSTR SysAllocString(const wchar_t* psz)
{
    if (!psz)
        return nullptr;
    try {
        const CString str(psz);
        return SysAllocStringLen(str, static_cast<UINT>(str.GetLength()));
    } catch (CException* pException) { // the text is too long for memory
        pException->Delete();
        return nullptr;
    }
}

BSTR SysAllocStringLen(const wchar_t* pUnits, UINT nLength)
{
    const std::size_t nCount = nLength;
    auto* pBlock = static_cast<char*>(std::malloc(HEADER + (nCount + 1) * sizeof(wchar_t)));
    if (!pBlock)
        return nullptr;
    std::memcpy(pBlock, &nCount, sizeof(nCount));
    const BSTR bstr = reinterpret_cast<BSTR>(pBlock + HEADER);
    if (pUnits && nCount != 0)
        std::memcpy(bstr, pUnits, nCount * sizeof(wchar_t));
    else
        std::memset(bstr, 0, nCount * sizeof(wchar_t));
    bstr[nCount] = 0;
    return bstr;
}

UINT SysStringLen(const wchar_t* bstr)
{
    if (!bstr)
        return 0;
    std::size_t nCount = 0;
    std::memcpy(&nCount, reinterpret_cast<const char*>(bstr) - HEADER, sizeof(nCount));
    return static_cast<UINT>(nCount);
}

void SysFreeString(BSTR bstr)
{
    if (bstr)
        std::free(reinterpret_cast<char*>(bstr) - HEADER);
}

HRESULT VariantClear(VARIANT* pValue)
{
    if (!pValue)
        return E_INVALIDARG;
    if (pValue->vt == VT_BSTR)
        SysFreeString(pValue->bstrVal);
    *pValue = VARIANT();
    return S_OK;
}
