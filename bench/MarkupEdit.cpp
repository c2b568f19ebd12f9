// Building a document of many children with two attributes each and saving it as UTF-16, beside two other XML
// libraries; changing one attribute in the middle of a document. Names are build/library/children; the files
// lie in memory. "set" changes a value's length each time, so that all text behind it moves; "parse" is what
// a new parse of the same document takes.
#include "xml/Markup.h"

#include <benchmark/benchmark.h>
#include <pugixml.hpp>
#include <string>
#include <sys/mman.h>
#include <tinyxml2.h>
#include <utility>
#include <vector>

namespace {

struct Values
{
    std::vector<std::string> narrow;
    std::vector<std::wstring> wide;
};

const Values& ValuesOf(std::size_t nCount)
{
    static Values values;
    while (values.narrow.size() < nCount) {
        const std::string text = "unit & " + std::to_string(values.narrow.size());
        values.narrow.push_back(text);
        values.wide.emplace_back(text.begin(), text.end());
    }
    return values;
}

const std::string& MemoryFile()
{
    static const std::string path = "/proc/self/fd/" + std::to_string(memfd_create("saved", 0));
    return path;
}

struct Splitframe
{
    static void Build(CMarkup& markup, std::size_t nChildren)
    {
        const Values& values = ValuesOf(nChildren);
        markup.AddElem(L"FRAME");
        for (std::size_t i = 0; i < nChildren; ++i) {
            markup.AddChildElem(L"UNIT");
            markup.SetChildAttrib(L"NAME", values.wide[i].c_str());
            markup.SetChildAttrib(L"BORDER", L"1");
        }
    }
    static void Run(std::size_t nChildren)
    {
        CMarkup markup;
        Build(markup, nChildren);
        markup.Save(CString(MemoryFile().c_str()));
    }
};

struct Pugixml
{
    static void Run(std::size_t nChildren)
    {
        const Values& values = ValuesOf(nChildren);
        pugi::xml_document document;
        pugi::xml_node frame = document.append_child("FRAME");
        for (std::size_t i = 0; i < nChildren; ++i) {
            pugi::xml_node unit = frame.append_child("UNIT");
            unit.append_attribute("NAME").set_value(values.narrow[i].c_str());
            unit.append_attribute("BORDER").set_value("1");
        }
        document.save_file(MemoryFile().c_str(), "", pugi::format_indent | pugi::format_no_declaration,
                           pugi::encoding_utf16_le);
    }
};

// It saves narrow text only, a quarter of the work in that part.
struct Tinyxml2
{
    static void Run(std::size_t nChildren)
    {
        const Values& values = ValuesOf(nChildren);
        tinyxml2::XMLDocument document;
        tinyxml2::XMLElement* pFrame = document.NewElement("FRAME");
        document.InsertEndChild(pFrame);
        for (std::size_t i = 0; i < nChildren; ++i) {
            tinyxml2::XMLElement* pUnit = pFrame->InsertNewChildElement("UNIT");
            pUnit->SetAttribute("NAME", values.narrow[i].c_str());
            pUnit->SetAttribute("BORDER", "1");
        }
        document.SaveFile(MemoryFile().c_str());
    }
};

template <class Library> void MeasureBuild(benchmark::State& state)
{
    const std::size_t nChildren = static_cast<std::size_t>(state.range(0));
    ValuesOf(nChildren);
    for (auto _ : state)
        Library::Run(nChildren);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

// A document of about a million characters; the child position stands in the middle of it.
CMarkup MiddleOfDocument()
{
    constexpr int CHILDREN = 25000;
    CMarkup markup;
    Splitframe::Build(markup, CHILDREN);
    markup.ResetChildPos();
    for (int i = 0; i < CHILDREN / 2; ++i)
        markup.FindChildElem();
    return markup;
}

void MeasureSet(benchmark::State& state)
{
    CMarkup markup = MiddleOfDocument();
    bool bLong = false;
    for (auto _ : state)
        markup.SetChildAttrib(L"BORDER", std::exchange(bLong, !bLong) ? L"1" : L"100");
    state.counters["characters"] = markup.GetDoc().GetLength();
}

void MeasureParse(benchmark::State& state)
{
    const std::wstring text(MiddleOfDocument().GetDoc().View());
    CMarkup markup;
    for (auto _ : state)
        markup.SetDoc(text.c_str());
}

template <class Library> void RegisterBuild(const std::string& name)
{
    benchmark::RegisterBenchmark(("build/" + name).c_str(), MeasureBuild<Library>)
        ->Arg(1'000)
        ->Arg(10'000)
        ->Arg(100'000);
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    RegisterBuild<Splitframe>("splitframe");
    RegisterBuild<Pugixml>("pugixml");
    RegisterBuild<Tinyxml2>("tinyxml2");
    benchmark::RegisterBenchmark("attribute/set", MeasureSet);
    benchmark::RegisterBenchmark("attribute/parse", MeasureParse);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
