// Any bytes as an XML file and as XML text, asked any query: the first line is the query, the rest is the
// document. Loading and asking end with a status; a document that was loaded from its bytes gives the same
// answer when its text is loaded.
#include "platform/base/String.h"
#include "platform/dom/XmlDom.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>

namespace {

// Queries are asked of small documents: their steps multiply.
constexpr std::size_t LONGEST_QUERY = 60;
constexpr std::size_t LONGEST_DOCUMENT = 600;

void Require(bool bHolds)
{
    if (!bHolds)
        std::abort();
}

// A file in memory, so that the disk does not set the pace.
CString MemoryFile(std::string_view bytes)
{
    static const int nDescriptor = memfd_create("document", 0);
    Require(ftruncate(nDescriptor, 0) == 0 &&
            pwrite(nDescriptor, bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size()));
    CString strPath;
    strPath.Format(L"/proc/self/fd/%d", nDescriptor);
    return strPath;
}

void AskAttribute(IXMLDOMNode* pNode, BSTR bstrName)
{
    IXMLDOMNamedNodeMap* pMap = nullptr;
    if (pNode->get_attributes(&pMap) != S_OK)
        return;
    IXMLDOMNode* pItem = nullptr;
    Require((pMap->getNamedItem(bstrName, &pItem) == S_OK) == (pItem != nullptr));
    if (pItem)
        pItem->Release();
    pMap->Release();
}

// The text that the query selects; the status in place of it when there is none.
CString Ask(IXMLDOMNode* pFrom, BSTR bstrQuery)
{
    IXMLDOMNode* pNode = nullptr;
    const HRESULT hr = pFrom->selectSingleNode(bstrQuery, &pNode);
    Require((hr == S_OK) == (pNode != nullptr));
    CString strAnswer;
    strAnswer.Format(L"%d", hr);
    if (!pNode)
        return strAnswer;
    BSTR bstrText = nullptr;
    Require(pNode->get_text(&bstrText) == S_OK);
    strAnswer = CString::FromUnits(bstrText, static_cast<int>(SysStringLen(bstrText)));
    SysFreeString(bstrText);
    AskAttribute(pNode, bstrQuery);
    Require(pNode->Release() == 0);
    return strAnswer;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    const std::string_view input(reinterpret_cast<const char*>(pData), nSize);
    const std::size_t nLine = std::min(input.find('\n'), input.size());
    const std::string_view bytes = input.substr(std::min(nLine + 1, input.size()));
    if (nLine > LONGEST_QUERY || bytes.size() > LONGEST_DOCUMENT)
        return 0;
    CoInitialize(nullptr);
    IXMLDOMDocument* pDocument = nullptr;
    Require(CoCreateInstance(CLSID_DOMDocument, nullptr, CLSCTX_ALL, IID_IXMLDOMDocument,
                             reinterpret_cast<void**>(&pDocument)) == S_OK);
    const BSTR bstrQuery = SysAllocString(CString::FromUtf8(input.substr(0, nLine)));
    VARIANT path;
    path.vt = VT_BSTR;
    path.bstrVal = SysAllocString(MemoryFile(bytes));
    const bool bLoaded = pDocument->load(path, nullptr) == S_OK;
    VariantClear(&path);
    const CString strAnswer = Ask(pDocument, bstrQuery);

    const CString strText = CString::FromUtf8(bytes);
    const BSTR bstrText = SysAllocStringLen(strText, static_cast<UINT>(strText.GetLength()));
    const bool bLoadedText = pDocument->loadXML(bstrText, nullptr) == S_OK;
    SysFreeString(bstrText);
    const CString strAgain = Ask(pDocument, bstrQuery);
    const bool bAscii = std::all_of(bytes.begin(), bytes.end(), [](char ch) { return ch > 0; });
    if (bAscii && bytes.find("encoding") == std::string_view::npos)
        Require(bLoaded == bLoadedText && strAnswer == strAgain);
    SysFreeString(bstrQuery);
    Require(pDocument->Release() == 0);
    CoUninitialize();
    return 0;
}
