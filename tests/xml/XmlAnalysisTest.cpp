// The DOM reader as a host class uses it.
#include "xml/XmlAnalysis.h"

#include "platform/display/Headless.h"

#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace {

class Reader : public CXmlAnalysis
{
public:
    using CXmlAnalysis::GetElementAttribute;
    using CXmlAnalysis::GetElementDouble;
    using CXmlAnalysis::GetElementInt32;
    using CXmlAnalysis::GetElementText;
    using CXmlAnalysis::m_pDomDoc;
};

class XmlAnalysis : public testing::Test
{
protected:
    XmlAnalysis()
    {
        auto pDisplay = std::make_unique<splitframe::HeadlessDisplay>(100, 100);
        m_pDisplay = pDisplay.get();
        splitframe::SetDisplay(std::move(pDisplay));
        m_reader = std::make_unique<Reader>();
        m_reader->LoadXml(L"<r><n a='x y'>12abc</n><d> -1.5e2z</d><big>-1e999</big><w>word</w><e/></r>");
    }
    ~XmlAnalysis() override
    {
        m_reader.reset();
        splitframe::SetDisplay(nullptr);
    }

    /// "caption: text", one a line, of the boxes shown since the last call.
    std::string Boxes()
    {
        std::string text;
        const auto& boxes = m_pDisplay->MessageBoxes();
        for (; m_nSeen < boxes.size(); ++m_nSeen)
            text += boxes[m_nSeen].strCaption.ToUtf8() + ": " + boxes[m_nSeen].strText.ToUtf8() + "\n";
        return text;
    }

    std::unique_ptr<Reader> m_reader;
    splitframe::HeadlessDisplay* m_pDisplay = nullptr;
    std::size_t m_nSeen = 0;
};

TEST_F(XmlAnalysis, ReadsTextsAndNumbers)
{
    struct Case
    {
        const wchar_t* pszQuery;
        const char* pszText;
        int nValue;
        double dValue;
    };
    const Case cases[] = {
        {L"/r/n", "12abc", 12, 12.0},
        {L"/r/d", " -1.5e2z", -1, -150.0},
        {L"//w", "word", 0, 0.0},
        {L"/r/missing", "", 0, 0.0},
        {L"/r/e", "", 0, 0.0},
        {L"/r/n/@a", "x y", 0, 0.0},
        {L"/r/big", "-1e999", -1, -HUGE_VAL},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.pszText);
        CString str = L"before";
        int n = 77;
        double d = 7.7;
        Reader::GetElementText(m_reader->m_pDomDoc, c.pszQuery, str);
        Reader::GetElementInt32(m_reader->m_pDomDoc, c.pszQuery, n);
        Reader::GetElementDouble(m_reader->m_pDomDoc, c.pszQuery, d);
        EXPECT_EQ(str.ToUtf8(), c.pszText);
        EXPECT_EQ(n, c.nValue);
        EXPECT_EQ(d, c.dValue);
    }
    EXPECT_EQ(Boxes(), "");
}

TEST_F(XmlAnalysis, TellsInABoxWhatFailed)
{
    const std::string box = "Error: Exception occurred\n";
    CString str = L"before";
    Reader::GetElementText(m_reader->m_pDomDoc, L"///", str);
    EXPECT_EQ(Boxes(), box);
    Reader::GetElementText(m_reader->m_pDomDoc, nullptr, str);
    Reader::GetElementText(nullptr, L"/r", str);
    EXPECT_EQ(Boxes(), box + box);
    EXPECT_TRUE(str == L"before");
    int n = 77;
    double d = 7.7;
    Reader::GetElementInt32(m_reader->m_pDomDoc, L"[", n);
    Reader::GetElementDouble(m_reader->m_pDomDoc, L"[", d);
    EXPECT_EQ(n, 0);
    EXPECT_EQ(d, 0.0);
    EXPECT_EQ(Boxes(), box + box);
    m_pDisplay->SetMessageBoxAnswer([](const auto&) -> int { throw 7; });
    Reader::GetElementText(nullptr, nullptr, str); // never lets anything out
    m_reader->m_pDomDoc->AddRef();
    EXPECT_EQ(m_reader->m_pDomDoc->Release(), 1U) << "every reference was given back";
}

TEST_F(XmlAnalysis, ReadsAttributesAndSaysHowItWent)
{
    IXMLDOMNode* pDoc = m_reader->m_pDomDoc;
    CString str = L"before";
    EXPECT_EQ(Reader::GetElementAttribute(pDoc, L"/r/missing", L"a", str), 1);
    EXPECT_EQ(Reader::GetElementAttribute(pDoc, L"/r/n", L"missing", str), 1);
    EXPECT_EQ(Reader::GetElementAttribute(pDoc, L"/r/n/@a", L"a", str), 1);
    EXPECT_EQ(Reader::GetElementAttribute(pDoc, L"", L"a", str), 1); // a document has none
    EXPECT_LT(Reader::GetElementAttribute(pDoc, L"///", L"a", str), 0L);
    EXPECT_LT(Reader::GetElementAttribute(pDoc, L"/r/n", nullptr, str), 0L);
    EXPECT_LT(Reader::GetElementAttribute(pDoc, nullptr, L"a", str), 0L);
    EXPECT_LT(Reader::GetElementAttribute(nullptr, L"", L"a", str), 0L);
    EXPECT_TRUE(str == L"before");
    EXPECT_EQ(Reader::GetElementAttribute(pDoc, L"/r/n", L"a", str), 0);
    EXPECT_TRUE(str == L"x y");

    const BSTR query = SysAllocString(L"/r/n");
    IXMLDOMNode* pNode = nullptr;
    ASSERT_EQ(pDoc->selectSingleNode(query, &pNode), S_OK);
    SysFreeString(query);
    str.Empty();
    EXPECT_EQ(Reader::GetElementAttribute(pNode, L"", L"a", str), 0); // the node itself
    EXPECT_TRUE(str == L"x y");
    EXPECT_EQ(pNode->Release(), 0U);
    EXPECT_EQ(Boxes(), "");
}

// Answers every load with one status.
class FailingDocument : public IXMLDOMDocument
{
public:
    explicit FailingDocument(HRESULT hr) : m_hr(hr) {}
    HRESULT QueryInterface(const GUID&, void**) override { return E_NOINTERFACE; }
    DWORD AddRef() override { return 1; }
    DWORD Release() override { return 1; }
    HRESULT selectSingleNode(BSTR, IXMLDOMNode** ppNode) override
    {
        *ppNode = nullptr;
        return m_hr;
    }
    HRESULT get_text(BSTR*) override { return m_hr; }
    HRESULT get_attributes(IXMLDOMNamedNodeMap**) override { return m_hr; }
    HRESULT load(VARIANT, VARIANT_BOOL*) override { return m_hr; }
    HRESULT loadXML(BSTR, VARIANT_BOOL*) override { return m_hr; }

private:
    HRESULT m_hr;
};

TEST_F(XmlAnalysis, ThrowsFailedStatusesAndNoOthers)
{
    for (const wchar_t* pszNothing : {static_cast<const wchar_t*>(nullptr), L"", L"/missing/file", L"<a>"}) {
        EXPECT_NO_THROW(m_reader->Load(pszNothing));
        EXPECT_NO_THROW(m_reader->LoadXml(pszNothing));
    }
    const auto thrown = [](const std::function<void()>& work) {
        try {
            work();
        } catch (long nStatus) {
            return nStatus;
        }
        return 0L;
    };
    m_reader->m_pDomDoc->Release();
    FailingDocument failing(E_FAIL);
    m_reader->m_pDomDoc = &failing;
    EXPECT_EQ(thrown([&] { m_reader->Load(L"x"); }), -2147467259L);
    EXPECT_EQ(thrown([&] { m_reader->LoadXml(L"x"); }), -2147467259L);
    FailingDocument odd(5); // no failure, whatever it means
    m_reader->m_pDomDoc = &odd;
    EXPECT_EQ(thrown([&] { m_reader->Load(L"x"); }), 0L);
    m_reader->m_pDomDoc = nullptr; // the stand-ins die before the reader
}

} // namespace
