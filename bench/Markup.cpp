// Markup parsing beside two other XML libraries, on a document like a layout definition, in the same run.
// "parse": the document is parsed and freed. "walk": that, and every attribute value and element text is read
// by name, as the layout loader does. Names are library/size in characters; characters a second are
// items_per_second. Measure with
// GLIBC_TUNABLES=glibc.malloc.mmap_threshold=4294967296:glibc.malloc.trim_threshold=8589934592, else the page
// faults of freed and mapped memory are what is measured.
#include "xml/Markup.h"

#include <array>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstring>
#include <map>
#include <pugixml.hpp>
#include <string>
#include <tinyxml2.h>

namespace {

constexpr std::array UNIT_ATTRIBUTES = {"NAME",  "GUID",   "LEFT",   "TOP",
                                        "RIGHT", "BOTTOM", "BORDER", "MINWIDTH"};
constexpr std::array UNIT_ATTRIBUTES_WIDE = {L"NAME",  L"GUID",   L"LEFT",   L"TOP",
                                             L"RIGHT", L"BOTTOM", L"BORDER", L"MINWIDTH"};
constexpr std::array SPLIT_ATTRIBUTES = {"NAME", "TYPE", "RATE", "MOBILE"};
constexpr std::array SPLIT_ATTRIBUTES_WIDE = {L"NAME", L"TYPE", L"RATE", L"MOBILE"};

template <class... Args> void Print(std::string& text, const char* format, Args... args)
{
    char line[512];
    std::snprintf(line, sizeof(line), format, args...);
    text += line;
}

void PrintFrame(std::string& text, int nFrame)
{
    Print(text, "    <FRAME NAME=\"frame%d\">\n        <HELPER>{3D1F4C20-77AA-4E0B-9C5D-%012d}</HELPER>\n",
          nFrame, nFrame);
    for (int i = 0; i < 20; ++i) {
        Print(text,
              "        <UNIT NAME=\"unit%d\" GUID=\"{5F1D2A30-8C41-4D77-A5B2-%012d}\" LEFT=\"0.%02d\" "
              "TOP=\"0.1\" "
              "RIGHT=\"0.95\" BOTTOM=\"1.0\" BORDER=\"1\" MINWIDTH=\"%d\">Trades of the day &amp; of unit "
              "%d</UNIT>\n",
              i, i, i, 20 * i, i);
    }
    text += "        <STYLE NAME=\"main\">\n";
    for (int i = 0; i < 20; ++i) {
        Print(text,
              "            <SPLIT NAME=\"split%d\" TYPE=\"%d\" RATE=\"0.%02d\" MOBILE=\"1\">\n"
              "                <FIRST>unit%d</FIRST>\n                <SECOND>split%d</SECOND>\n            "
              "</SPLIT>\n",
              i, i % 2, 30 + i, i, i + 1);
    }
    text += "        </STYLE>\n    </FRAME>\n";
}

/// Narrow text of about the given size.
const std::string& Document(std::size_t nSize)
{
    static std::map<std::size_t, std::string> documents;
    std::string& text = documents[nSize];
    if (text.empty()) {
        text =
            "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!-- the frames of the application -->\n<FRAMES>\n";
        for (int nFrame = 0; nFrame == 0 || text.size() + 3000 < nSize; ++nFrame)
            PrintFrame(text, nFrame);
        text += "</FRAMES>\n";
    }
    return text;
}

const std::wstring& WideDocument(std::size_t nSize)
{
    static std::map<std::size_t, std::wstring> documents;
    std::wstring& text = documents[nSize];
    if (text.empty())
        text.assign(Document(nSize).begin(), Document(nSize).end());
    return text;
}

// What was read: characters and values, so that the libraries' walks can be seen to be the same.
struct Sum
{
    std::size_t nCharacters = 0;
    std::size_t nValues = 0;

    void Add(std::size_t nLength)
    {
        nCharacters += nLength;
        ++nValues;
    }
    bool operator==(const Sum&) const = default;
};

void WalkMarkup(CMarkup& markup, Sum& sum)
{
    const auto readAttributes = [&](const auto& names) {
        for (const wchar_t* pszName : names)
            sum.Add(static_cast<std::size_t>(markup.GetChildAttrib(pszName).GetLength()));
    };
    const auto readText = [&] { sum.Add(static_cast<std::size_t>(markup.GetChildData().GetLength())); };
    while (markup.FindChildElem(L"FRAME")) {
        sum.Add(static_cast<std::size_t>(markup.GetChildAttrib(L"NAME").GetLength()));
        markup.IntoElem();
        if (markup.FindChildElem(L"HELPER"))
            readText();
        while (markup.FindChildElem(L"UNIT")) {
            readAttributes(UNIT_ATTRIBUTES_WIDE);
            readText();
        }
        markup.ResetChildPos();
        while (markup.FindChildElem(L"STYLE")) {
            sum.Add(static_cast<std::size_t>(markup.GetChildAttrib(L"NAME").GetLength()));
            markup.IntoElem();
            while (markup.FindChildElem(L"SPLIT")) {
                readAttributes(SPLIT_ATTRIBUTES_WIDE);
                markup.IntoElem();
                if (markup.FindChildElem(L"FIRST"))
                    readText();
                if (markup.FindChildElem(L"SECOND"))
                    readText();
                markup.OutOfElem();
            }
            markup.OutOfElem();
        }
        markup.OutOfElem();
    }
}

void WalkPugi(pugi::xml_node frames, Sum& sum)
{
    const auto read = [&](const char* psz) { sum.Add(std::strlen(psz)); };
    for (pugi::xml_node frame = frames.child("FRAME"); frame; frame = frame.next_sibling("FRAME")) {
        read(frame.attribute("NAME").value());
        read(frame.child("HELPER").child_value());
        for (pugi::xml_node unit = frame.child("UNIT"); unit; unit = unit.next_sibling("UNIT")) {
            for (const char* pszName : UNIT_ATTRIBUTES)
                read(unit.attribute(pszName).value());
            read(unit.child_value());
        }
        for (pugi::xml_node style = frame.child("STYLE"); style; style = style.next_sibling("STYLE")) {
            read(style.attribute("NAME").value());
            for (pugi::xml_node split = style.child("SPLIT"); split; split = split.next_sibling("SPLIT")) {
                for (const char* pszName : SPLIT_ATTRIBUTES)
                    read(split.attribute(pszName).value());
                read(split.child("FIRST").child_value());
                read(split.child("SECOND").child_value());
            }
        }
    }
}

void WalkTiny(const tinyxml2::XMLElement* pFrames, Sum& sum)
{
    const auto read = [&](const char* psz) { sum.Add(psz ? std::strlen(psz) : 0); };
    const auto text = [&](const tinyxml2::XMLElement* pElem) { read(pElem ? pElem->GetText() : nullptr); };
    for (auto* pFrame = pFrames->FirstChildElement("FRAME"); pFrame;
         pFrame = pFrame->NextSiblingElement("FRAME")) {
        read(pFrame->Attribute("NAME"));
        text(pFrame->FirstChildElement("HELPER"));
        for (auto* pUnit = pFrame->FirstChildElement("UNIT"); pUnit;
             pUnit = pUnit->NextSiblingElement("UNIT")) {
            for (const char* pszName : UNIT_ATTRIBUTES)
                read(pUnit->Attribute(pszName));
            text(pUnit);
        }
        for (auto* pStyle = pFrame->FirstChildElement("STYLE"); pStyle;
             pStyle = pStyle->NextSiblingElement("STYLE")) {
            read(pStyle->Attribute("NAME"));
            for (auto* pSplit = pStyle->FirstChildElement("SPLIT"); pSplit;
                 pSplit = pSplit->NextSiblingElement("SPLIT")) {
                for (const char* pszName : SPLIT_ATTRIBUTES)
                    read(pSplit->Attribute(pszName));
                text(pSplit->FirstChildElement("FIRST"));
                text(pSplit->FirstChildElement("SECOND"));
            }
        }
    }
}

struct Splitframe
{
    static Sum Run(std::size_t nSize, bool bWalk)
    {
        Sum sum;
        CMarkup markup;
        if (markup.SetDoc(WideDocument(nSize).c_str()) && bWalk)
            WalkMarkup(markup, sum);
        benchmark::DoNotOptimize(markup.IsWellFormed());
        return sum;
    }
};

struct Pugixml
{
    static Sum Run(std::size_t nSize, bool bWalk)
    {
        Sum sum;
        pugi::xml_document document;
        const std::string& text = Document(nSize);
        if (document.load_buffer(text.data(), text.size()) && bWalk)
            WalkPugi(document.child("FRAMES"), sum);
        benchmark::DoNotOptimize(document.first_child());
        return sum;
    }
};

struct Tinyxml2
{
    static Sum Run(std::size_t nSize, bool bWalk)
    {
        Sum sum;
        tinyxml2::XMLDocument document;
        const std::string& text = Document(nSize);
        if (document.Parse(text.data(), text.size()) == tinyxml2::XML_SUCCESS && bWalk)
            WalkTiny(document.RootElement(), sum);
        benchmark::DoNotOptimize(document.RootElement());
        return sum;
    }
};

template <class Library> void Measure(benchmark::State& state, bool bWalk)
{
    const std::size_t nSize = static_cast<std::size_t>(state.range(0));
    WideDocument(nSize);
    const Sum expected = Pugixml::Run(nSize, bWalk);
    for (auto _ : state) {
        if (Library::Run(nSize, bWalk) != expected) {
            state.SkipWithError("the walk read something else");
            break;
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(Document(nSize).size()));
}

template <class Library> void Register(const std::string& name)
{
    for (const bool bWalk : {false, true}) {
        benchmark::RegisterBenchmark(((bWalk ? "walk/" : "parse/") + name).c_str(), Measure<Library>, bWalk)
            ->Arg(10'000)
            ->Arg(1'000'000)
            ->Arg(20'000'000);
    }
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    Register<Splitframe>("splitframe");
    Register<Pugixml>("pugixml");
    Register<Tinyxml2>("tinyxml2");
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
