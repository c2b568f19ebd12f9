// The interfaces of the DOM over parsed trees. A node keeps the tree alive that it belongs to; a document
// that is loaded anew takes another tree.
#include "platform/dom/internal/DomDocument.h"

#include "platform/base/String.h"
#include "platform/base/Unicode.h"
#include "platform/dom/XmlDom.h"
#include "platform/dom/internal/ComObject.h"
#include "platform/dom/internal/XmlBytes.h"
#include "platform/dom/internal/XmlTree.h"
#include "platform/file/File.h"

#include <algorithm>
#include <string_view>

namespace splitframe {
namespace {

using TreePtr = std::shared_ptr<const XmlTree>;

constexpr ULONGLONG LARGEST_FILE = 0x7FFFFFF0; // lengths are 32-bit

std::wstring_view ViewOf(BSTR bstr)
{
    return bstr ? std::wstring_view(bstr, SysStringLen(bstr)) : std::wstring_view();
}

HRESULT HandOutText(const std::string& text, BSTR* pbstrText)
{
    const CString str = CString::FromUtf8(text);
    *pbstrText = SysAllocStringLen(str, static_cast<UINT>(str.GetLength()));
    return *pbstrText ? S_OK : E_OUTOFMEMORY;
}

HRESULT HandOutNode(const TreePtr& pTree, const pugi::xpath_node& node, IXMLDOMNode** ppNode);
HRESULT HandOutAttributes(const TreePtr& pTree, const pugi::xml_node& element, IXMLDOMNamedNodeMap** ppMap);

HRESULT SelectSingleNode(const TreePtr& pTree, const pugi::xpath_node& from, BSTR bstrQuery,
                         IXMLDOMNode** ppNode)
{
    if (!ppNode)
        return E_POINTER;
    *ppNode = nullptr;
    if (!bstrQuery)
        return E_INVALIDARG;
    return Guarded([&] {
        try {
            const pugi::xpath_query query(EncodeUtf8(ViewOf(bstrQuery)).c_str());
            return HandOutNode(pTree, query.evaluate_node(from), ppNode);
        } catch (const pugi::xpath_exception&) { // no query, or one for something else than nodes
            return E_FAIL;
        }
    });
}

HRESULT GetText(const pugi::xpath_node& node, BSTR* pbstrText)
{
    if (!pbstrText)
        return E_POINTER;
    *pbstrText = nullptr;
    return Guarded([&] { return HandOutText(TextOf(node), pbstrText); });
}

class DomNode final : public ComObject<IXMLDOMNode>
{
public:
    DomNode(TreePtr pTree, const pugi::xpath_node& node) : m_pTree(std::move(pTree)), m_node(node) {}

    HRESULT selectSingleNode(BSTR bstrQuery, IXMLDOMNode** ppNode) override
    {
        return SelectSingleNode(m_pTree, m_node, bstrQuery, ppNode);
    }
    HRESULT get_text(BSTR* pbstrText) override { return GetText(m_node, pbstrText); }
    HRESULT get_attributes(IXMLDOMNamedNodeMap** ppMap) override
    {
        return HandOutAttributes(m_pTree, m_node.node(), ppMap);
    }

private:
    TreePtr m_pTree;
    pugi::xpath_node m_node;
};

class DomAttributes final : public ComObject<IXMLDOMNamedNodeMap>
{
public:
    DomAttributes(TreePtr pTree, const pugi::xml_node& element)
        : m_pTree(std::move(pTree)), m_element(element)
    {
    }

    HRESULT getNamedItem(BSTR bstrName, IXMLDOMNode** ppNode) override
    {
        if (!ppNode)
            return E_POINTER;
        *ppNode = nullptr;
        if (!bstrName)
            return E_INVALIDARG;
        return Guarded([&] {
            const pugi::xml_attribute attribute = m_element.attribute(EncodeUtf8(ViewOf(bstrName)).c_str());
            return HandOutNode(
                m_pTree, attribute ? pugi::xpath_node(attribute, m_element) : pugi::xpath_node(), ppNode);
        });
    }

private:
    TreePtr m_pTree;
    pugi::xml_node m_element;
};

HRESULT HandOutNode(const TreePtr& pTree, const pugi::xpath_node& node, IXMLDOMNode** ppNode)
{
    if (!node)
        return S_FALSE;
    *ppNode = new DomNode(pTree, node);
    return S_OK;
}

HRESULT HandOutAttributes(const TreePtr& pTree, const pugi::xml_node& element, IXMLDOMNamedNodeMap** ppMap)
{
    if (!ppMap)
        return E_POINTER;
    *ppMap = nullptr;
    if (element.type() != pugi::node_element)
        return S_FALSE;
    return Guarded([&] {
        *ppMap = new DomAttributes(pTree, element);
        return S_OK;
    });
}

// @throw CFileException
std::string ReadFile(const CString& strPath)
{
    CFile file;
    CFileException failure;
    if (!file.Open(strPath, CFile::modeRead, &failure))
        AfxThrowFileException(failure.m_cause, failure.m_lOsError, strPath);
    // Some files do not tell their size: reading goes on until there is no more.
    std::string bytes;
    ULONGLONG nRoom = std::min(file.GetLength(), LARGEST_FILE) + 1;
    for (std::size_t nRead = 0;;) {
        bytes.resize(nRead + static_cast<std::size_t>(nRoom));
        nRead += file.Read(bytes.data() + nRead, static_cast<UINT>(nRoom));
        if (nRead > LARGEST_FILE)
            AfxThrowFileException(CFileException::genericException, 0, strPath);
        if (nRead < bytes.size()) {
            bytes.resize(nRead);
            return bytes;
        }
        nRoom = std::min<ULONGLONG>(std::max<ULONGLONG>(nRead, 65536), LARGEST_FILE + 1 - nRead);
    }
}

TreePtr LoadTree(const CString& strPath)
{
    try {
        auto text = XmlBytesToUtf8(ReadFile(strPath));
        return text ? XmlTree::Parse(std::move(*text)) : nullptr;
    } catch (CFileException* pException) {
        pException->Delete();
        return nullptr;
    }
}

class DomDocument final : public ComObject<IXMLDOMDocument, IID_IXMLDOMDocument>
{
public:
    DomDocument() : m_pTree(std::make_shared<XmlTree>()) {}

    HRESULT selectSingleNode(BSTR bstrQuery, IXMLDOMNode** ppNode) override
    {
        return SelectSingleNode(m_pTree, m_pTree->Top(), bstrQuery, ppNode);
    }
    HRESULT get_text(BSTR* pbstrText) override { return GetText(m_pTree->Top(), pbstrText); }
    HRESULT get_attributes(IXMLDOMNamedNodeMap** ppMap) override
    {
        return HandOutAttributes(m_pTree, m_pTree->Top(), ppMap);
    }
    HRESULT load(VARIANT source, VARIANT_BOOL* pbSuccessful) override
    {
        if (source.vt != VT_BSTR)
            return Finish(E_INVALIDARG, pbSuccessful);
        return Finish(Guarded([&] {
                          const std::wstring_view path = ViewOf(source.bstrVal);
                          return Take(
                              LoadTree(CString::FromUnits(path.data(), static_cast<int>(path.size()))));
                      }),
                      pbSuccessful);
    }
    HRESULT loadXML(BSTR bstrXml, VARIANT_BOOL* pbSuccessful) override
    {
        return Finish(Guarded([&] {
                          std::wstring_view text = ViewOf(bstrXml);
                          if (text.starts_with(L'\uFEFF'))
                              text.remove_prefix(1);
                          return Take(XmlTree::Parse(EncodeUtf8(text)));
                      }),
                      pbSuccessful);
    }

private:
    HRESULT Take(TreePtr pTree)
    {
        const bool bLoaded = pTree != nullptr;
        m_pTree = bLoaded ? std::move(pTree) : std::make_shared<XmlTree>();
        return bLoaded ? S_OK : S_FALSE;
    }
    static HRESULT Finish(HRESULT hr, VARIANT_BOOL* pbSuccessful)
    {
        if (pbSuccessful)
            *pbSuccessful = hr == S_OK ? VARIANT_TRUE : VARIANT_FALSE;
        return hr;
    }

    TreePtr m_pTree; // never null
};

} // namespace

IUnknown* NewDomDocument()
{
    try {
        return static_cast<IXMLDOMDocument*>(new DomDocument);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

} // namespace splitframe
