// What the XML DOM service adds to the XML library underneath: loading a file of 10 MB, and queries.
#include "platform/base/String.h"
#include "platform/dom/XmlDom.h"

#include <benchmark/benchmark.h>
#include <pugixml.hpp>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <unistd.h>

namespace {

constexpr std::size_t SIZE = 10'000'000;

std::string Document()
{
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<list>\n";
    for (int i = 0; text.size() < SIZE; ++i)
        text += "  <item id=\"" + std::to_string(i) + "\" name=\"Item number " + std::to_string(i) +
                "\">\n    <price unit=\"EUR\">" + std::to_string(i % 997) +
                ".50</price>\n    <note>some words &amp; a sign</note>\n  </item>\n";
    return text + "</list>\n";
}

// The document as a file, written once, gone at the end.
const char* DocumentPath()
{
    static char szPath[] = "/tmp/splitframe-bench-XXXXXX";
    static const bool bMade = [] {
        const std::string text = Document();
        const int nDescriptor = mkstemp(szPath);
        if (write(nDescriptor, text.data(), text.size()) != static_cast<ssize_t>(text.size()))
            std::abort();
        close(nDescriptor);
        return std::atexit([] { unlink(szPath); }) == 0;
    }();
    static_cast<void>(bMade);
    return szPath;
}

class Document10MB
{
public:
    Document10MB()
    {
        CoInitialize(nullptr);
        CoCreateInstance(CLSID_DOMDocument, nullptr, CLSCTX_ALL, IID_IXMLDOMDocument,
                         reinterpret_cast<void**>(&m_pDocument));
    }
    Document10MB(const Document10MB&) = delete;
    Document10MB& operator=(const Document10MB&) = delete;
    ~Document10MB()
    {
        m_pDocument->Release();
        CoUninitialize();
    }
    void Load()
    {
        VARIANT path;
        path.vt = VT_BSTR;
        path.bstrVal = SysAllocString(CString(DocumentPath()));
        if (m_pDocument->load(path, nullptr) != S_OK)
            std::abort();
        VariantClear(&path);
    }
    IXMLDOMDocument* operator->() const { return m_pDocument; }

private:
    IXMLDOMDocument* m_pDocument = nullptr;
};

void Load(benchmark::State& state)
{
    DocumentPath();
    for (auto _ : state) {
        Document10MB document;
        document.Load();
    }
}

void LoadPugixml(benchmark::State& state)
{
    DocumentPath();
    for (auto _ : state) {
        pugi::xml_document document;
        if (!document.load_file(DocumentPath()))
            std::abort();
    }
}

const wchar_t* const QUERIES[] = {L"/list/item[40000]/price", L"//item[@id='40000']/note",
                                  L"/list/item[price='996.50']/@name"};

void Query(benchmark::State& state)
{
    Document10MB document;
    document.Load();
    const BSTR query = SysAllocString(QUERIES[state.range(0)]);
    for (auto _ : state) {
        IXMLDOMNode* pNode = nullptr;
        BSTR text = nullptr;
        if (document->selectSingleNode(query, &pNode) != S_OK || pNode->get_text(&text) != S_OK)
            std::abort();
        SysFreeString(text);
        pNode->Release();
    }
    SysFreeString(query);
}

void QueryPugixml(benchmark::State& state)
{
    pugi::xml_document document;
    document.load_file(DocumentPath());
    const std::string strQuery = CString(QUERIES[state.range(0)]).ToUtf8();
    for (auto _ : state) {
        const pugi::xpath_node node = document.select_node(strQuery.c_str());
        if (!node)
            std::abort();
        benchmark::DoNotOptimize(
            std::string(node.attribute() ? node.attribute().value() : node.node().child_value()));
    }
}

} // namespace

BENCHMARK(Load)->Name("dom/load/splitframe")->Unit(benchmark::kMillisecond);
BENCHMARK(LoadPugixml)->Name("dom/load/pugixml")->Unit(benchmark::kMillisecond);
BENCHMARK(Query)->Name("dom/query/splitframe")->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);
BENCHMARK(QueryPugixml)->Name("dom/query/pugixml")->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
