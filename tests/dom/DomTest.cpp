// The XML DOM service: what is loaded and what is not, in which encodings, what queries find, and that
// nothing but the file asked for is ever read.
#include "platform/dom/XmlDom.h"

#include "platform/base/String.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <string>

namespace {

const GUID NO_GUID = {1, 2, 3, {}};

std::string Taken(BSTR bstr)
{
    const std::string text = CString::FromUnits(bstr, static_cast<int>(SysStringLen(bstr))).ToUtf8();
    SysFreeString(bstr);
    return text;
}

class Dom : public testing::Test, public test::TempFolder
{
protected:
    Dom()
    {
        CoInitialize(nullptr);
        CoCreateInstance(CLSID_DOMDocument, nullptr, CLSCTX_ALL, IID_IXMLDOMDocument,
                         reinterpret_cast<void**>(&m_pDocument));
    }
    ~Dom() override
    {
        EXPECT_EQ(m_pDocument->Release(), 0U);
        CoUninitialize();
    }

    HRESULT LoadText(const CString& strXml)
    {
        const BSTR bstr = SysAllocStringLen(strXml, static_cast<UINT>(strXml.GetLength()));
        VARIANT_BOOL bSuccessful = 7;
        const HRESULT hr = m_pDocument->loadXML(bstr, &bSuccessful);
        EXPECT_EQ(bSuccessful, hr == S_OK ? VARIANT_TRUE : VARIANT_FALSE);
        SysFreeString(bstr);
        return hr;
    }
    HRESULT LoadFile(const CString& strPath)
    {
        VARIANT path;
        path.vt = VT_BSTR;
        path.bstrVal = SysAllocString(strPath);
        VARIANT_BOOL bSuccessful = 7;
        const HRESULT hr = m_pDocument->load(path, &bSuccessful);
        EXPECT_EQ(bSuccessful, hr == S_OK ? VARIANT_TRUE : VARIANT_FALSE);
        VariantClear(&path);
        return hr;
    }
    /// The text of the first node that the query selects; "?STATUS" when that is not S_OK.
    std::string Select(const std::string& strQuery, IXMLDOMNode* pFrom = nullptr)
    {
        const BSTR query = SysAllocString(CString::FromUtf8(strQuery));
        IXMLDOMNode* pNode = nullptr;
        const HRESULT hr = (pFrom ? pFrom : m_pDocument)->selectSingleNode(query, &pNode);
        SysFreeString(query);
        EXPECT_EQ(pNode != nullptr, hr == S_OK);
        if (!pNode)
            return "?" + std::to_string(hr);
        BSTR text = nullptr;
        EXPECT_EQ(pNode->get_text(&text), S_OK);
        EXPECT_EQ(pNode->Release(), 0U);
        return Taken(text);
    }

    IXMLDOMDocument* m_pDocument = nullptr;
};

TEST(Component, MakesItsOneClass)
{
    void* pObject = &pObject;
    const auto create = [&](const GUID& clsid, IUnknown* pOuter, DWORD nContext, const GUID& iid) {
        pObject = &pObject;
        return CoCreateInstance(clsid, pOuter, nContext, iid, &pObject);
    };
    CoUninitialize(); // one too many
    EXPECT_EQ(create(CLSID_DOMDocument, nullptr, 23, IID_IUnknown), CO_E_NOTINITIALIZED);
    EXPECT_EQ(CoInitialize(nullptr), S_OK);
    EXPECT_EQ(CoInitialize(nullptr), S_FALSE);
    CoUninitialize();
    EXPECT_EQ(create(NO_GUID, nullptr, 23, IID_IUnknown), REGDB_E_CLASSNOTREG);
    EXPECT_EQ(create(CLSID_DOMDocument, nullptr, CLSCTX_REMOTE_SERVER, IID_IUnknown), REGDB_E_CLASSNOTREG);
    EXPECT_EQ(create(CLSID_DOMDocument, nullptr, 23, NO_GUID), E_NOINTERFACE);
    EXPECT_EQ(pObject, nullptr);
    EXPECT_EQ(CoCreateInstance(CLSID_DOMDocument, nullptr, 23, IID_IUnknown, nullptr), E_POINTER);

    ASSERT_EQ(create(CLSID_DOMDocument, nullptr, 23, IID_IUnknown), S_OK);
    auto* pUnknown = static_cast<IUnknown*>(pObject);
    EXPECT_EQ(create(CLSID_DOMDocument, pUnknown, 23, IID_IUnknown), CLASS_E_NOAGGREGATION);
    IXMLDOMDocument* pDocument = nullptr;
    EXPECT_EQ(pUnknown->QueryInterface(IID_IXMLDOMDocument, reinterpret_cast<void**>(&pDocument)), S_OK);
    CoUninitialize();
    EXPECT_EQ(pUnknown->Release(), 1U); // still usable
    BSTR text = nullptr;
    EXPECT_EQ(pDocument->get_text(&text), S_OK);
    EXPECT_EQ(Taken(text), "");
    EXPECT_EQ(pDocument->Release(), 0U);
}

TEST_F(Dom, LoadsWhatIsWellFormedOnly)
{
    struct Case
    {
        const char* pszXml;
        bool bLoads;
    };
    const Case cases[] = {
        {"<a/>", true},
        {"\xEF\xBB\xBF<?xml version='1.0' encoding='utf-16'?>\n<!-- c --><!DOCTYPE a [<!ELEMENT a "
         "ANY>]>\n<a>x</a>\n<?p?>",
         true},
        {"<a b='1' c=\"2\" B='3'><![CDATA[<]]>&lt;&#65;</a>", true},
        {"", false},
        {" \n", false},
        {"text", false},
        {"<?xml version='1.0'?>", false},
        {"<a/><b/>", false},
        {"<a/>text", false},
        {"text<a/>", false},
        {"<a/><![CDATA[]]>", false},
        {"<a>", false},
        {"<a></b>", false},
        {"<a b=1/>", false},
        {"<a b/>", false},
        {"<a", false},
        {"<", false},
        {"<a><!-- </a>", false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.pszXml);
        ASSERT_EQ(LoadText(L"<before/>"), S_OK);
        EXPECT_EQ(LoadText(CString::FromUtf8(c.pszXml)), c.bLoads ? S_OK : S_FALSE);
        EXPECT_EQ(Select("/before"), "?1") << "what was loaded before is gone either way";
        EXPECT_EQ(Select("/*") != "?1", c.bLoads);
        Write("file", c.pszXml);
        EXPECT_EQ(LoadFile(Path("file")), c.bLoads ? S_OK : S_FALSE);
    }
    EXPECT_EQ(LoadText(CString::FromUnits(L"<a/>\0<b/>", 9)), S_FALSE);
    Write("file", std::string("<a/>\0<b/>", 9));
    EXPECT_EQ(LoadFile(Path("file")), S_FALSE);
}

TEST_F(Dom, SelectsByXPath)
{
    ASSERT_EQ(
        LoadText(L"<list n='1' \u540D='\U0001F600'>\n  <item id='7'>12 <b>cm</b><![CDATA[ & more]]></item>\n"
                 L"  <item id='8'>&lt;&#x4E2D;&undeclared;<!-- no text --></item>\n  <x:item "
                 L"xmlns:x='u'/>\n</list>"),
        S_OK);
    struct Case
    {
        const char* pszQuery;
        const char* pszText;
    };
    const Case cases[] = {
        {"/list/item", "12 cm & more"},
        {"list/item[2]", "<\xE4\xB8\xAD&undeclared;"},
        {"//item[@id='8']/@id", "8"},
        {"/list/item/text()", "12 "},
        {"list/@\xE5\x90\x8D", "\xF0\x9F\x98\x80"},
        {"/", "12 cm & more<\xE4\xB8\xAD&undeclared;"},
        {"//x:item", ""},
        {"/list/missing", "?1"},
        {"/list/@missing", "?1"},
        {"count(//item)", "?-2147467259"},
        {"", "?-2147467259"},
        {"///", "?-2147467259"},
        {"[", "?-2147467259"},
        {"unknown()", "?-2147467259"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.pszQuery);
        EXPECT_EQ(Select(c.pszQuery), c.pszText);
    }
    EXPECT_EQ(Select(std::string(100000, '(')), "?-2147467259");
    EXPECT_EQ(Select("//item" + std::string(3000, '[') + "1" + std::string(3000, ']')), "?-2147467259");
}

TEST_F(Dom, NodesOutliveTheirDocument)
{
    ASSERT_EQ(LoadText(L"<a><b c='1'>text</b></a>"), S_OK);
    const BSTR query = SysAllocString(L"//b");
    const BSTR name = SysAllocString(L"c");
    IXMLDOMNode* pNode = nullptr;
    ASSERT_EQ(m_pDocument->selectSingleNode(query, &pNode), S_OK);
    ASSERT_EQ(LoadText(L"<other/>"), S_OK);
    IXMLDOMNamedNodeMap* pMap = nullptr;
    ASSERT_EQ(pNode->get_attributes(&pMap), S_OK);
    EXPECT_EQ(pNode->AddRef(), 2U);
    EXPECT_EQ(pNode->Release(), 1U);
    EXPECT_EQ(Select("..", pNode), "text");
    EXPECT_EQ(pNode->Release(), 0U);
    IXMLDOMNode* pAttribute = nullptr;
    ASSERT_EQ(pMap->getNamedItem(name, &pAttribute), S_OK);
    IXMLDOMNode* pMissing = pAttribute;
    EXPECT_EQ(pMap->getNamedItem(query, &pMissing), S_FALSE);
    EXPECT_EQ(pMissing, nullptr);
    EXPECT_EQ(pMap->Release(), 0U);
    EXPECT_EQ(Select("..", pAttribute), "text");
    IXMLDOMNamedNodeMap* pNone = pMap;
    EXPECT_EQ(pAttribute->get_attributes(&pNone), S_FALSE); // elements only
    EXPECT_EQ(pNone, nullptr);
    EXPECT_EQ(m_pDocument->get_attributes(&pNone), S_FALSE);
    pAttribute->Release();
    SysFreeString(query);
    SysFreeString(name);
}

TEST_F(Dom, ReadsEveryEncoding)
{
    using namespace std::string_literals;
    const auto declared = [](const char* pszEncoding, const std::string& text) {
        return "<?xml version=\"1.0\" encoding='"s + pszEncoding + "' ?><a>" + text + "</a>";
    };
    const auto spread = [](const std::string& text, std::size_t nBytes, bool bBig, const char* pszMark) {
        std::string bytes = pszMark;
        if (!bytes.empty())
            bytes.resize(nBytes);
        if (nBytes == 4 && bBig && !bytes.empty())
            bytes = "\0\0\xFE\xFF"s;
        for (const char ch : text)
            bytes += bBig ? std::string(nBytes - 1, '\0') + ch : ch + std::string(nBytes - 1, '\0');
        return bytes;
    };
    const std::string ascii = declared("UTF-16", "plain");
    struct Case
    {
        const char* pszWhat;
        std::string bytes;
        const char* pszText; // "?1": not loaded
    };
    const Case cases[] = {
        {"none", "<a>\xE4\xB8\xAD</a>", "\xE4\xB8\xAD"},
        {"none, no UTF-8: a byte keeps its number", "<a>\xE4z</a>", "\xC3\xA4z"},
        {"mark", "\xEF\xBB\xBF" + declared("UTF-8", "\xE4\xB8\xAD"), "\xE4\xB8\xAD"},
        {"mark wins", "\xEF\xBB\xBF" + declared("GBK", "\xE4\xB8\xAD"), "\xE4\xB8\xAD"},
        {"16le mark", spread(ascii, 2, false, "\xFF\xFE"), "plain"},
        {"16be mark", spread(ascii, 2, true, "\xFE\xFF"), "plain"},
        {"16le", spread(ascii, 2, false, ""), "plain"},
        {"16be", spread(ascii, 2, true, ""), "plain"},
        {"32le mark", spread(ascii, 4, false, "\xFF\xFE"), "plain"},
        {"32be mark", spread(ascii, 4, true, "\x01"), "plain"},
        {"32be", spread(ascii, 4, true, ""), "plain"},
        {"16le units", "\xFF\xFE"s + "<\0a\0>\0\x2D\x4E\x3D\xD8\0\xDE<\0/\0a\0>\0"s,
         "\xE4\xB8\xAD\xF0\x9F\x98\x80"},
        {"16le half a pair", "\xFF\xFE"s + "<\0a\0>\0\x3D\xD8<\0/\0a\0>\0"s, "?1"},
        {"16le odd", spread("<a/>", 2, false, "\xFF\xFE") + "x", "?1"},
        {"said to be 16", declared("UTF-16", "\xE4\xB8\xAD"), "\xE4\xB8\xAD"},
        {"latin 1", declared("iso-8859-1", "\xE4"), "\xC3\xA4"},
        {"windows", declared("windows-1252", "\x80"), "\xE2\x82\xAC"},
        {"GBK", declared("GBK", "\xD6\xD0"), "\xE4\xB8\xAD"},
        {"Shift_JIS", declared("Shift_JIS", "\x92\x86"), "\xE4\xB8\xAD"},
        {"GB18030 above FFFF", declared("gb18030", "\x94\x39\xFC\x36"), "\xF0\x9F\x98\x80"},
        {"with state", declared("ISO-2022-JP", "\x1B$BCf\x1B(B"), "\xE4\xB8\xAD"},
        {"half a character", declared("GBK", "\xD6"), "?1"},
        {"unknown", declared("no-such", "x"), "?1"},
        {"an option", declared("GBK//IGNORE", "x"), "?1"},
        {"a path", declared("../../etc/passwd", "x"), "?1"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.pszWhat);
        Write("\xE4\xB8\xAD.xml", c.bytes);
        LoadFile(Path("\xE4\xB8\xAD.xml"));
        EXPECT_EQ(Select("/a"), c.pszText);
    }
}

TEST_F(Dom, OpensTheFileAskedForAndNothingElse)
{
    Write("secret", "TOPSECRET");
    Write("good.xml", "<a>good</a>");
    const std::string secret = (m_folder / "secret").string();
    const std::string attacks[] = {
        "<!DOCTYPE a [<!ENTITY e SYSTEM \"file://" + secret + "\">]><a>&e;</a>",
        "<!DOCTYPE a [<!ENTITY e SYSTEM \"" + secret + "\">]><a b='&e;'>&e;</a>",
        "<!DOCTYPE a SYSTEM \"file://" + secret + "\"><a>&e;</a>",
        "<!DOCTYPE a [<!ENTITY % p SYSTEM \"" + secret + "\"> %p;]><a>&e;</a>",
    };
    for (const std::string& attack : attacks) {
        SCOPED_TRACE(attack);
        ASSERT_EQ(LoadText(CString::FromUtf8(attack)), S_OK);
        EXPECT_EQ(Select("/a"), "&e;");
    }
    std::string bomb = "<!DOCTYPE a [<!ENTITY e0 \"lol\">";
    for (int i = 1; i < 30; ++i)
        bomb += "<!ENTITY e" + std::to_string(i) + " \"&e" + std::to_string(i - 1) + ";&e" +
                std::to_string(i - 1) + ";&e" + std::to_string(i - 1) + ";\">";
    ASSERT_EQ(LoadText(CString::FromUtf8(bomb + "]><a>&e29;</a>")), S_OK);
    EXPECT_EQ(Select("/a"), "&e29;");

    ASSERT_EQ(LoadFile(Path("good.xml")), S_OK);
    for (const CString& strPath :
         {CString(), Path("missing.xml"), Path("."), CString(L"http://localhost/a.xml"),
          CString(L"/dev/null"), CString(L"file://") + Path("good.xml"), Path("good.xml") + L"/"})
        EXPECT_EQ(LoadFile(strPath), S_FALSE) << strPath.ToUtf8();
}

TEST_F(Dom, HoldsDeepAndLargeDocuments)
{
    constexpr int DEPTH = 100000;
    std::string deep;
    for (int i = 0; i < DEPTH; ++i)
        deep += "<a>";
    deep += "x";
    for (int i = 0; i < DEPTH; ++i)
        deep += "</a>";
    ASSERT_EQ(LoadText(CString::FromUtf8(deep)), S_OK);
    EXPECT_EQ(Select("/a"), "x");
    EXPECT_EQ(Select("//a[not(a)]"), "x");

    std::string wide = "<r";
    for (int i = 0; i < 50000; ++i)
        wide += " a" + std::to_string(i) + "=''";
    wide += ">";
    for (int i = 0; i < 200000; ++i)
        wide += "<i>1</i>";
    Write("wide", wide + "</r>");
    ASSERT_EQ(LoadFile(Path("wide")), S_OK);
    EXPECT_EQ(Select("/r").size(), 200000U);
    EXPECT_EQ(Select("/r/i[200000]"), "1");
    EXPECT_EQ(Select("/r/@a49999"), "");
}

TEST_F(Dom, TakesNullEverywhere)
{
    ASSERT_EQ(LoadText(L"<a/>"), S_OK);
    IXMLDOMNode* pNode = m_pDocument;
    EXPECT_EQ(m_pDocument->selectSingleNode(nullptr, &pNode), E_INVALIDARG);
    EXPECT_EQ(pNode, nullptr);
    const BSTR query = SysAllocString(L"/a");
    EXPECT_EQ(m_pDocument->selectSingleNode(query, nullptr), E_POINTER);
    EXPECT_EQ(m_pDocument->get_text(nullptr), E_POINTER);
    EXPECT_EQ(m_pDocument->get_attributes(nullptr), E_POINTER);
    ASSERT_EQ(m_pDocument->selectSingleNode(query, &pNode), S_OK);
    SysFreeString(query);
    IXMLDOMNamedNodeMap* pMap = nullptr;
    ASSERT_EQ(pNode->get_attributes(&pMap), S_OK);
    IXMLDOMNode* pItem = pNode;
    EXPECT_EQ(pMap->getNamedItem(nullptr, &pItem), E_INVALIDARG);
    EXPECT_EQ(pItem, nullptr);
    EXPECT_EQ(pMap->getNamedItem(nullptr, nullptr), E_POINTER);
    EXPECT_EQ(pMap->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
    pMap->Release();
    pNode->Release();
    EXPECT_EQ(m_pDocument->load(VARIANT(), nullptr), E_INVALIDARG);
    VARIANT path;
    path.vt = VT_BSTR;
    EXPECT_EQ(m_pDocument->load(path, nullptr), S_FALSE);
    EXPECT_EQ(m_pDocument->loadXML(nullptr, nullptr), S_FALSE);
    EXPECT_EQ(VariantClear(nullptr), E_INVALIDARG);
    SysFreeString(nullptr);
    EXPECT_EQ(SysAllocString(nullptr), nullptr);
    EXPECT_EQ(SysStringLen(nullptr), 0U);
}

} // namespace
