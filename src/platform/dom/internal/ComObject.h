// What the implementations of the DOM's interfaces share: counting references, answering for their
// interfaces.
#pragma once

#include "platform/base/Exception.h"
#include "platform/dom/Component.h"

#include <new>

namespace splitframe {

/// An object with one reference, its maker's. Made with new, ends itself. IIDS: what it answers besides
/// IUnknown.
template <class INTERFACE, const GUID&... IIDS> class ComObject : public INTERFACE
{
public:
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    HRESULT QueryInterface(const GUID& iid, void** ppObject) override
    {
        if (!ppObject)
            return E_POINTER;
        *ppObject = nullptr;
        if (!((iid == IID_IUnknown) || ... || (iid == IIDS)))
            return E_NOINTERFACE;
        *ppObject = static_cast<INTERFACE*>(this);
        AddRef();
        return S_OK;
    }
    DWORD AddRef() override { return ++m_nReferences; }
    DWORD Release() override
    {
        const DWORD nLeft = --m_nReferences;
        if (nLeft == 0)
            delete this;
        return nLeft;
    }

protected:
    ComObject() = default;
    virtual ~ComObject() = default;

private:
    DWORD m_nReferences = 1;
};

/// Runs an operation's work: no exception crosses an interface.
template <class WORK> HRESULT Guarded(const WORK& work)
{
    try {
        return work();
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (CException* pException) { // of a text that memory can not hold
        pException->Delete();
        return E_OUTOFMEMORY;
    }
}

} // namespace splitframe
