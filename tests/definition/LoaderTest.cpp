// The layout definition loader: what it makes of a text, and what it tells about texts that are not right.
#include "definition/FrameStyle.h"
#include "definition/LayoutLoader.h"
#include "definition/LayoutValues.h"
#include "definition/UnitInfo.h"
#include "document/BaseFrameDoc.h"
#include "document/BaseFrameHelper.h"
#include "platform/base/Diagnostics.h"
#include "support/LayoutXml.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <limits>

using namespace test;
using splitframe::FrameDocs;
using splitframe::UnitInfos;

namespace {

// What one text was read as; frees it at the end.
struct Loaded
{
    explicit Loaded(const std::wstring& strXml)
    {
        const auto old = SetDiagnosticsHook([this](const Diagnostic& d) { arrFault.push_back(d); });
        result = splitframe::LoadLayoutText(strXml.c_str(), arrDoc, arrGlobal);
        SetDiagnosticsHook(old);
    }
    Loaded(const Loaded&) = delete;
    Loaded& operator=(const Loaded&) = delete;
    ~Loaded()
    {
        for (CBaseFrameDoc* pDoc : arrDoc) {
            pDoc->Clear();
            delete pDoc;
        }
        for (CBaseUnitInfo* pInfo : arrGlobal)
            delete pInfo;
    }

    CBaseUnitInfo& Unit(int nDoc = 0, int nUnit = 0) { return *arrDoc[nDoc]->m_arrBaseUnitInfo[nUnit]; }
    CBaseFrameStyle& Style(int nDoc = 0, int nStyle = 0) { return *arrDoc[nDoc]->m_arrStyle[nStyle]; }

    /// Faults about units whose class nobody registered are left out: no test here registers one.
    std::vector<std::string> Faults() const
    {
        std::vector<std::string> arrText;
        for (const Diagnostic& d : arrFault) {
            const std::string strMessage = d.strMessage.ToUtf8();
            if (strMessage.find("no usable") == std::string::npos)
                arrText.push_back(strMessage);
        }
        return arrText;
    }

    FrameDocs arrDoc;
    UnitInfos arrGlobal;
    CLayoutLoadResult result;
    std::vector<Diagnostic> arrFault;
};

std::string Describe(const Loaded& loaded)
{
    std::string strText;
    for (const CBaseUnitInfo* pInfo : loaded.arrGlobal)
        strText += "global " + pInfo->m_strName.ToUtf8() + (pInfo->m_bGlobal ? "!" : "") + "\n";
    for (const CBaseFrameDoc* pDoc : loaded.arrDoc) {
        strText += "frame " + pDoc->m_strName.ToUtf8() + ":";
        for (const CBaseUnitInfo* pInfo : pDoc->m_arrBaseUnitInfo)
            strText += " " + pInfo->m_strName.ToUtf8();
        for (const CBaseFrameStyle* pStyle : pDoc->m_arrStyle) {
            strText += "\n  style " + pStyle->m_strName.ToUtf8() + ":";
            for (int i = 0; i < pStyle->m_arrBaseUnitInfo.GetSize(); ++i)
                strText += " " + pStyle->m_arrBaseUnitInfo[i]->m_strName.ToUtf8() + "(" +
                           pStyle->m_arrParam[i].ToUtf8() + ")";
            for (const _SPLIT_INFO* pLine : pStyle->m_arrSplitInfo)
                strText += " | " + CString(pLine->szName).ToUtf8() + " " + CString(pLine->szType).ToUtf8() +
                           " " + CString(pLine->szLeft).ToUtf8() + " " + CString(pLine->szRight).ToUtf8();
        }
        strText += "\n";
    }
    return strText;
}

} // namespace

TEST(Loader, ReadsWhatStandsInOrder)
{
    const std::wstring strUnits = UnitXml(L"a") + UnitXml(L"b");
    const std::wstring strHead =
        L"<BaseFrame><NAME>F</NAME><HELPER><GUID>" + HELPER_GUID + L"</GUID></HELPER>";
    const struct
    {
        const char* what;
        std::wstring strXml;
        const char* read;
    } cases[] = {
        {"no global section",
         LayoutXml(FrameXml(L"F", L"a", {{L"S", L"a=P", L""}}) + FrameXml(L"G", L"", {})),
         "frame F: a\n  style S: a(P)\nframe G:\n"},
        {"a frame before the global section is not seen",
         LayoutXml(FrameXml(L"F", L"", {}) + GlobalXml(L"g") + FrameXml(L"G", L"", {})),
         "global g\nframe G:\n"},
        {"a second global section is ignored",
         LayoutXml(GlobalXml(L"g") + GlobalXml(L"h") + FrameXml(L"F", L"", {})), "global g\nframe F:\n"},
        {"the root has any name", L"<x>" + FrameXml(L"F", L"", {}) + L"</x>", "frame F:\n"},
        {"a line before the last reference is lost",
         LayoutXml(strHead + strUnits +
                   L"<STYLE><NAME>S</NAME><BaseUnit NAME='a'/><SPLIT NAME='x' LEFT='a' RIGHT='b'/><BaseUnit "
                   L"NAME='b'/>"
                   L"<SPLIT NAME='y' LEFT='a' RIGHT='b'/></STYLE></BaseFrame>"),
         "frame F: a b\n  style S: a() b() | y  a b\n"},
        {"an own unit wins over a global one",
         LayoutXml(GlobalXml(L"a g") + FrameXml(L"F", L"a", {{L"S", L"a g", L""}})),
         "global a\nglobal g!\nframe F: a\n  style S: a() g()\n"},
        {"names are case-sensitive; a dropped reference takes its parameter along",
         LayoutXml(FrameXml(L"F", L"a b", {{L"S", L"A=1 b=2", L""}})), "frame F: a b\n  style S: b(2)\n"},
        {"a unit named twice stands twice", LayoutXml(FrameXml(L"F", L"a", {{L"S", L"a=1 a=2", L""}})),
         "frame F: a\n  style S: a(1) a(2)\n"},
        {"only the type H_LINE is kept as such",
         LayoutXml(FrameXml(L"F", L"a b", {{L"S", L"a b", L"m H a b"}})),
         "frame F: a b\n  style S: a() b() | m H_LINE a b\n"},
        {"an empty HELPER does not throw the reader back",
         LayoutXml(L"<BaseFrame><HELPER/><STYLE/></BaseFrame>" + FrameXml(L"F", L"", {})),
         "frame :\n  style :\nframe F:\n"},
        {"nor does an empty GUID, or an empty frame",
         LayoutXml(L"<BaseFrame/><BaseFrame><HELPER><GUID/></HELPER></BaseFrame>"), "frame :\nframe :\n"},
        {"an empty root", L"<x/>", ""},
        {"text outside the basic plane", LayoutXml(FrameXml(L"\U0001F600", L"\U0001F680", {})),
         "frame \xF0\x9F\x98\x80: \xF0\x9F\x9A\x80\n"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const Loaded loaded(c.strXml);
        EXPECT_TRUE(loaded.result.bParsed);
        EXPECT_EQ(Describe(loaded), c.read);
    }
}

TEST(Loader, ReadsUnitValues)
{
    Loaded loaded(LayoutXml(
        L"<BaseFrame><BaseUnit><NAME>a</NAME><GUID>6863074a-e996-4d17-A3AF-7FA2D093541B</GUID>"
        L"<LOCATION X=' -5x' Y='99999999999'/><SIZE CX='x' CY='-99999999999'/><BORDERSTYLE>2</BORDERSTYLE>"
        L"<LEFTRATE>1e-1</LEFTRATE><TOPRATE> "
        L".5</TOPRATE><RIGHTRATE>1e999</RIGHTRATE><BOTTOMRATE>nan</BOTTOMRATE>"
        L"<RATE WIDTH='' HEIGHT='2.5'/><HEIGHT MAX='300'/></BaseUnit></BaseFrame>"));
    const CBaseUnitInfo& info = loaded.Unit();
    const GUID guid = {0x6863074A, 0xE996, 0x4D17, {0xA3, 0xAF, 0x7F, 0xA2, 0xD0, 0x93, 0x54, 0x1B}};
    EXPECT_TRUE(info.m_guid == guid);
    EXPECT_EQ(info.m_x, -5);
    EXPECT_EQ(info.m_y, std::numeric_limits<int>::max());
    EXPECT_EQ(info.m_cx, 0);
    EXPECT_EQ(info.m_cy, std::numeric_limits<int>::min());
    EXPECT_EQ(info.m_nBorderStyle, 2);
    EXPECT_EQ(info.m_dLeftRate, 0.1);
    EXPECT_EQ(info.m_dTopRate, 0.5);
    EXPECT_EQ(info.m_dRightRate, 0.0);
    EXPECT_EQ(info.m_dBottomRate, 0.0);
    EXPECT_EQ(info.m_dWidthRate, 10.0);
    EXPECT_EQ(info.m_dHeightRate, 2.5);
    EXPECT_EQ(info.m_nMinHeight, 0);
    EXPECT_EQ(info.m_nMaxHeight, 300);
    EXPECT_EQ(info.m_nMinWidth, 0);
    EXPECT_EQ(info.m_nMaxWidth, 10000);
}

TEST(Loader, AMissingElementTakesTheValueBefore)
{
    Loaded loaded(
        LayoutXml(L"<BaseFrame><NAME>F</NAME><HELPER><GUID>0</GUID></HELPER><BaseUnit><GUID>x</GUID>"
                  L"<BORDERSTYLE>3</BORDERSTYLE><TOPRATE>0.25</TOPRATE></BaseUnit></BaseFrame>"));
    const CBaseUnitInfo& info = loaded.Unit();
    EXPECT_EQ(info.m_strName, CString());
    EXPECT_EQ(info.m_x, 0);
    EXPECT_EQ(info.m_dLeftRate, 3.0);
    EXPECT_EQ(info.m_dTopRate, 0.25);
    EXPECT_EQ(info.m_dBottomRate, 0.25);
}

TEST(Loader, ReadsLines)
{
    const struct
    {
        const wchar_t* attributes;
        bool bMobile;
        double dRate;
    } cases[] = {
        {L"", true, 0.0},
        {L"MOBILE='0' LRATE='0.25'", false, 0.25},
        {L"MOBILE=' 0' LRATE='1e999'", true, 0.5},
        {L"MOBILE='' LRATE='-1e999'", true, 0.5},
        {L"MOBILE='00' LRATE='0x10'", true, 0.0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.attributes);
        Loaded loaded(
            LayoutXml(L"<BaseFrame><STYLE><SPLIT " + std::wstring(c.attributes) + L"/></STYLE></BaseFrame>"));
        const _SPLIT_INFO& info = *loaded.Style().m_arrSplitInfo[0];
        EXPECT_EQ(info.bMobile, c.bMobile);
        EXPECT_EQ(info.dLRate, c.dRate);
    }
}

// 19 units fit; a character outside the basic plane takes two.
TEST(Loader, ALineWithATextThatDoesNotFitIsNotLoaded)
{
    const std::wstring str18(18, L'n');
    const struct
    {
        std::wstring strValue;
        bool bFits;
    } cases[] = {{str18 + L"x", true}, {str18 + L"xy", false}, {str18 + L"\U0001F600", false}};
    for (const wchar_t* pszAttribute : {L"NAME", L"TYPE", L"LEFT", L"RIGHT"}) {
        for (const auto& c : cases) {
            Loaded loaded(LayoutXml(L"<BaseFrame><STYLE><SPLIT " + std::wstring(pszAttribute) + L"='" +
                                    c.strValue + L"'/><SPLIT/></STYLE></BaseFrame>"));
            EXPECT_EQ(loaded.Style().m_arrSplitInfo.GetSize(), c.bFits ? 2 : 1);
        }
    }
}

TEST(Loader, TellsFaultsWithTheirPlace)
{
    const std::wstring strXml = LayoutXml(
        FrameXml(L"F", L"", {}) + GlobalXml(L"") +
        FrameXml(L"F", L"a a", {{L"S", L"a ghost", L"m V a nowhere;m V a a;x V a m"}, {L"S", L"", L""}}));
    const Loaded loaded(strXml);
    EXPECT_EQ(loaded.Faults(),
              (std::vector<std::string>{
                  "the frame stands before the global section and is not read",
                  "an earlier unit has the same name",
                  "no unit has this name; the reference is dropped",
                  "no split line or unit of this style has this name; the side is empty",
                  "an earlier split line of this style has the same name",
                  "no line that hangs on the first one names this split line; it is left out",
                  "no line that hangs on the first one names this split line; it is left out",
                  "an earlier style of this frame has the same name",
              }));
    for (const Diagnostic& d : loaded.arrFault) {
        EXPECT_EQ(d.strFrame, CString(L"F"));
        ASSERT_GE(d.nPosition, 0);
        EXPECT_EQ(strXml[static_cast<std::size_t>(d.nPosition)], L'<');
    }
    const Diagnostic& dropped = *std::find_if(loaded.arrFault.begin(), loaded.arrFault.end(),
                                              [](const Diagnostic& d) { return d.strName == L"ghost"; });
    EXPECT_EQ(dropped.strStyle, CString(L"S"));
    EXPECT_EQ(strXml.substr(static_cast<std::size_t>(dropped.nPosition), 22), L"<BaseUnit NAME=\"ghost\"");
}

TEST(Loader, UnknownHelpersGetTheDefault)
{
    const Loaded loaded(LayoutXml(FrameXml(L"F", L"", {})));
    CBaseFrameHelper* pHelper = loaded.arrDoc[0]->m_pHelper;
    ASSERT_TRUE(pHelper);
    EXPECT_EQ(pHelper->GetRuntimeClass(), RUNTIME_CLASS(CBaseFrameHelper));
    EXPECT_EQ(pHelper->m_pDoc, loaded.arrDoc[0]);
    EXPECT_TRUE(loaded.arrDoc[0]->m_bAutoDeleteHelper);
}

TEST(Loader, BothListsAreAppendedTo)
{
    Loaded loaded(LayoutXml(GlobalXml(L"g") + FrameXml(L"F", L"", {{L"S", L"g", L""}})));
    splitframe::LoadLayoutText(
        LayoutXml(GlobalXml(L"h") + FrameXml(L"G", L"", {{L"S", L"g h", L""}})).c_str(), loaded.arrDoc,
        loaded.arrGlobal);
    EXPECT_EQ(Describe(loaded),
              "global g!\nglobal h!\nframe F:\n  style S: g()\nframe G:\n  style S: g() h()\n");
}

TEST(Loader, EveryPrefixOfAGoodTextEnds)
{
    const std::wstring strXml =
        LayoutXml(GlobalXml(L"g") +
                  FrameXml(L"F", L"a b", {{L"S", L"a=ID=1 b g", L"m V a r;r H b g"}, {L"T", L"a", L""}}));
    for (std::size_t n = 0; n < strXml.size(); ++n) {
        const Loaded loaded(strXml.substr(0, n));
        if (!loaded.result.bParsed) {
            EXPECT_EQ(loaded.arrDoc.GetSize(), 0);
            EXPECT_EQ(loaded.arrFault.size(), 1U);
            EXPECT_FALSE(loaded.result.strError.IsEmpty());
        }
    }
}

TEST(Loader, FilesThatCanNotBeReadOrParsed)
{
    const std::string strPath = testing::TempDir() + "splitframe-loader-test.xml";
    const struct
    {
        const char* what;
        bool bWrite;
        std::string strBytes;
        bool bOpened;
        bool bParsed;
        int nPosition; // -2: some position
    } cases[] = {
        {"missing", false, "", false, false, -1},
        {"empty", true, "", true, false, -2},
        {"not closed", true, "<a>\n<b>\n</a>", true, false, -2},
        {"well formed", true, "<a/>", true, true, -1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        std::remove(strPath.c_str());
        if (c.bWrite)
            std::ofstream(strPath, std::ios::binary) << c.strBytes;
        FrameDocs arrDoc;
        UnitInfos arrGlobal;
        const CLayoutLoadResult result =
            splitframe::LoadLayoutFile(CString(strPath.c_str()), arrDoc, arrGlobal);
        EXPECT_EQ(result.bOpened, c.bOpened);
        EXPECT_EQ(result.bParsed, c.bParsed);
        EXPECT_EQ(result.strError.IsEmpty(), c.bParsed);
        if (c.nPosition != -2) {
            EXPECT_EQ(result.nPosition, c.nPosition);
        }
        EXPECT_EQ(arrDoc.GetSize() + arrGlobal.GetSize(), 0);
    }
    std::remove(strPath.c_str());
}

TEST(Guid, IsReadByItsForm)
{
    const struct
    {
        const wchar_t* text;
        bool bMatches;
    } cases[] = {
        {L"6863074A-E996-4D17-A3AF-7FA2D093541B", true},
        {L"6863074a-e996-4d17-a3af-7fa2d093541b trailing", true},
        {L" \n6863074A-E996-4D17-A3AF-7FA2D093541B", true},
        {L"1-2-3-4 5-6 7 8 9 A B", true},
        {L"", false},
        {L"{6863074A-E996-4D17-A3AF-7FA2D093541B}", false},
        {L"6863074A-E996-4D17-A3AF-7FA2D09354", false},
        {L"6863074AE-996-4D17-A3AF-7FA2D093541B", false},
        {L"6863074A-E996-4D17-A3AF", false},
    };
    for (const auto& c : cases) {
        GUID guid = {1, 2, 3, {4}};
        EXPECT_EQ(splitframe::TextToGuid(c.text, guid), c.bMatches) << CString(c.text).ToUtf8();
        if (!c.bMatches) {
            EXPECT_TRUE(guid == GUID());
        }
    }
}
