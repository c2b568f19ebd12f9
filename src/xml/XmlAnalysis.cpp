// The DOM reader's calls into the component runtime, with every reference and string held by an owner.
#include "xml/XmlAnalysis.h"

#include "platform/base/Exception.h"
#include "platform/base/Number.h"
#include "platform/window/MessageLoop.h"

#include <cmath>
#include <utility>

namespace {

void ThrowIfFailed(HRESULT hr)
{
    if (FAILED(hr))
        throw static_cast<long>(hr);
}

// A string of the runtime's; null for null.
class SystemString
{
public:
    SystemString() = default;
    explicit SystemString(const wchar_t* psz) : m_bstr(SysAllocString(psz))
    {
        if (psz && !m_bstr)
            AfxThrowMemoryException();
    }
    SystemString(const SystemString&) = delete;
    SystemString& operator=(const SystemString&) = delete;
    ~SystemString() { SysFreeString(m_bstr); }

    BSTR Get() const { return m_bstr; }
    BSTR* Receive() { return &m_bstr; } // only while it is null
    BSTR Detach() { return std::exchange(m_bstr, nullptr); }
    CString Text() const { return CString::FromUnits(m_bstr, static_cast<int>(SysStringLen(m_bstr))); }

private:
    BSTR m_bstr = nullptr;
};

// A reference to an object.
template <class INTERFACE> class Reference
{
public:
    Reference() = default;
    Reference(const Reference&) = delete;
    Reference& operator=(const Reference&) = delete;
    ~Reference()
    {
        if (m_pObject)
            m_pObject->Release();
    }

    explicit operator bool() const { return m_pObject != nullptr; }
    INTERFACE* operator->() const { return m_pObject; }
    INTERFACE** Receive() { return &m_pObject; } // only while it is null
    void Share(INTERFACE* pObject)
    {
        pObject->AddRef();
        m_pObject = pObject;
    }

private:
    INTERFACE* m_pObject = nullptr;
};

// @throw long, CMemoryException
CString SelectedText(IXMLDOMNode* pNode, const wchar_t* pszQuery)
{
    if (!pNode)
        ThrowIfFailed(E_POINTER);
    const SystemString query(pszQuery);
    Reference<IXMLDOMNode> selected;
    ThrowIfFailed(pNode->selectSingleNode(query.Get(), selected.Receive()));
    if (!selected)
        return CString();
    SystemString text;
    ThrowIfFailed(selected->get_text(text.Receive()));
    return text.Text();
}

} // namespace

CXmlAnalysis::CXmlAnalysis()
{
    CoInitialize(nullptr);
    const HRESULT hr = CoCreateInstance(CLSID_DOMDocument, nullptr, CLSCTX_ALL, IID_IXMLDOMDocument,
                                        reinterpret_cast<void**>(&m_pDomDoc));
    if (FAILED(hr)) {
        CoUninitialize();
        throw static_cast<long>(hr);
    }
}

CXmlAnalysis::~CXmlAnalysis()
{
    if (IXMLDOMDocument* pDomDoc = std::exchange(m_pDomDoc, nullptr))
        pDomDoc->Release();
    CoUninitialize();
}

void CXmlAnalysis::Load(const wchar_t* pszFileName)
{
    SystemString path(pszFileName);
    VARIANT source;
    source.vt = VT_BSTR;
    source.bstrVal = path.Detach();
    VARIANT_BOOL bSuccessful = VARIANT_FALSE;
    const HRESULT hr = m_pDomDoc->load(source, &bSuccessful);
    VariantClear(&source);
    ThrowIfFailed(hr);
}

void CXmlAnalysis::LoadXml(const wchar_t* pszXml)
{
    const SystemString text(pszXml);
    VARIANT_BOOL bSuccessful = VARIANT_FALSE;
    ThrowIfFailed(m_pDomDoc->loadXML(text.Get(), &bSuccessful));
}

void CXmlAnalysis::GetElementText(IXMLDOMNode* pNode, const wchar_t* pszQuery, CString& strText)
{
    try {
        strText = SelectedText(pNode, pszQuery);
        return;
    } catch (CException* pException) {
        pException->Delete();
    } catch (...) { // NOLINT(bugprone-empty-catch): told below, outside the handler
    }
    try {
        MessageBoxW(nullptr, L"Exception occurred", L"Error", MB_OK);
    } catch (...) { // NOLINT(bugprone-empty-catch): a handler that runs under the box may throw anything
    }
}

void CXmlAnalysis::GetElementInt32(IXMLDOMNode* pNode, const wchar_t* pszQuery, int& nValue)
{
    CString strText;
    GetElementText(pNode, pszQuery, strText);
    nValue = splitframe::TextToInt(strText);
}

void CXmlAnalysis::GetElementDouble(IXMLDOMNode* pNode, const wchar_t* pszQuery, double& dValue)
{
    CString strText;
    GetElementText(pNode, pszQuery, strText);
    if (!splitframe::TextToReal(strText, dValue))
        dValue = strText.Trim()[0] == L'-' ? -HUGE_VAL : HUGE_VAL;
}

long CXmlAnalysis::GetElementAttribute(IXMLDOMNode* pNode, const wchar_t* pszQuery, const wchar_t* pszName,
                                       CString& strText)
{
    if (!pNode)
        return E_POINTER;
    if (!pszQuery)
        return E_INVALIDARG;
    Reference<IXMLDOMNode> element;
    HRESULT hr = S_OK;
    if (*pszQuery == 0)
        element.Share(pNode);
    else
        hr = pNode->selectSingleNode(SystemString(pszQuery).Get(), element.Receive());
    if (hr != S_OK)
        return hr;
    Reference<IXMLDOMNamedNodeMap> attributes;
    hr = element->get_attributes(attributes.Receive());
    if (hr != S_OK)
        return hr;
    Reference<IXMLDOMNode> attribute;
    hr = attributes->getNamedItem(SystemString(pszName).Get(), attribute.Receive());
    if (hr != S_OK)
        return hr;
    SystemString text;
    hr = attribute->get_text(text.Receive());
    strText = text.Text();
    return hr;
}
