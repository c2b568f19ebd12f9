// The pictures: where files go, what pixels they hold, and layouts that try to prevent it.
#include "LayoutText.h"
#include "PaneColors.h"
#include "RunViewer.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace layout_text;

namespace {

std::uint32_t Rgb(COLORREF color)
{
    return static_cast<std::uint32_t>(GetRValue(color) << 16 | GetGValue(color) << 8 | GetBValue(color));
}

std::uint32_t BodyOf(const char* pszUnit)
{
    return Rgb(viewer::ColorsOf(CString(pszUnit)).body);
}

std::uint32_t BorderOf(const char* pszUnit)
{
    return Rgb(viewer::ColorsOf(CString(pszUnit)).border);
}

std::size_t CountPictures(const std::filesystem::path& directory)
{
    const auto isPicture = [](const auto& entry) { return entry.path().extension() == ".png"; };
    return static_cast<std::size_t>(
        std::ranges::count_if(std::filesystem::directory_iterator(directory), isPicture));
}

} // namespace

TEST(ViewerPicture, HoldsTheViewWithEachPaneWhereTheLayoutPutsIt)
{
    const Workplace place;
    place.Write("f.xml", Pair());
    const Outcome outcome = place.Run({"--png", "out.png", "--size", "202x103", "f.xml"});
    ASSERT_EQ(outcome.nStatus, 0) << outcome.strErr;
    EXPECT_EQ(outcome.strOut, "out.png\n");
    EXPECT_EQ(outcome.strErr, "");
    const Picture picture = ReadPicture(place.Path("out.png"));
    ASSERT_EQ(picture.cx, 202);
    ASSERT_EQ(picture.cy, 103);
    // Panes share 200 by 100 pixels; 2 at the right and 3 at the bottom stay free.
    EXPECT_EQ(picture.At(0, 90), BorderOf("A"));
    EXPECT_EQ(picture.At(1, 95), BodyOf("A"));
    EXPECT_EQ(picture.At(98, 99), BodyOf("A"));
    EXPECT_EQ(picture.At(99, 50), BorderOf("A"));
    EXPECT_EQ(picture.At(100, 50), BorderOf("B"));
    EXPECT_EQ(picture.At(198, 95), BodyOf("B"));
    EXPECT_EQ(picture.At(199, 95), BorderOf("B"));
    for (const auto& [x, y] : {std::pair{200, 50}, {201, 102}, {50, 100}, {150, 102}}) {
        EXPECT_NE(picture.At(x, y), BodyOf("A"));
        EXPECT_EQ(picture.At(x, y), picture.At(201, 0));
    }
}

TEST(ViewerPicture, IsSharpAtAScale)
{
    const Workplace place;
    place.Write("f.xml", Pair());
    const Outcome outcome = place.Run({"--png", "out.png", "--size", "202x103", "--scale", "2.5", "f.xml"});
    ASSERT_EQ(outcome.nStatus, 0) << outcome.strErr;
    const Picture picture = ReadPicture(place.Path("out.png"));
    ASSERT_EQ(picture.cx, 505);
    ASSERT_EQ(picture.cy, 258);
    EXPECT_EQ(picture.At(249, 125), BorderOf("A"));
    EXPECT_EQ(picture.At(250, 125), BorderOf("B"));
}

TEST(ViewerPicture, GoesWhereItIsAskedTo)
{
    const Workplace place;
    place.Write("f.xml", Pair());
    std::filesystem::create_directory(place.Path("d.png"));
    const struct
    {
        std::vector<std::string> args;
        const char* pszFile;
    } cases[] = {
        {{"--png", "one.PNG"}, "one.PNG"},
        {{"--png", "new/deep"}, "new/deep/F-S.png"},
        {{"--png", "d.png"}, "d.png/F-S.png"},
        {{"--png", "all", "--all"}, "all/F-S.png"},
        {{}, "f-view/F-S.png"},
    };
    for (const auto& c : cases) {
        std::vector<std::string> args = c.args;
        args.emplace_back("f.xml");
        for (int nRun = 0; nRun < 2; ++nRun) { // the second one replaces the file
            const Outcome outcome = place.Run(args);
            EXPECT_EQ(outcome.nStatus, 0) << outcome.strErr;
            EXPECT_EQ(outcome.strOut, std::string(c.pszFile) + "\n");
        }
        const Picture picture = ReadPicture(place.Path(c.pszFile));
        EXPECT_EQ(picture.cx, 1024);
        EXPECT_EQ(picture.cy, 768);
        EXPECT_TRUE(picture.Has(BodyOf("A")));
    }
    EXPECT_NE(place.Run({"f.xml"}).strErr.find("pictures go to the directory f-view"), std::string::npos);
}

TEST(ViewerPicture, PlaceThatCanNotBeWrittenIsAnError)
{
    const Workplace place;
    place.Write("f.xml", Pair());
    place.Write("file", "keep");
    for (const char* pszPath : {"file", "file/dir", "missing/one.png", "file/one.png", "/proc/none"}) {
        SCOPED_TRACE(pszPath);
        const Outcome outcome = place.Run({"--png", pszPath, "f.xml"});
        EXPECT_EQ(outcome.nStatus, 1);
        EXPECT_NE(outcome.strErr.find(pszPath), std::string::npos) << outcome.strErr;
        EXPECT_EQ(outcome.strOut, "");
    }
    EXPECT_EQ(std::filesystem::file_size(place.Path("file")), 4U);
}

TEST(ViewerPicture, EveryFrameAndStyleOfTheTourGetsOne)
{
    const Workplace place;
    const Outcome outcome = place.Run({"--all", "--png", "d", "--size", "640x480", LAYOUTS "/tour.xml"});
    ASSERT_EQ(outcome.nStatus, 0) << outcome.strErr;
    EXPECT_EQ(outcome.strErr, "");
    EXPECT_EQ(CountPictures(place.Path("d")), 7U);
    EXPECT_EQ(std::ranges::count(outcome.strOut, '\n'), 7);
    EXPECT_NE(outcome.strOut.find("d/世界時間-四つの窓.png\n"), std::string::npos) << outcome.strOut;

    const Picture wide = ReadPicture(place.Path("d/Market-Wide.png"));
    EXPECT_TRUE(wide.Has(BorderOf("Clock"))) << "a global unit";
    EXPECT_TRUE(wide.Has(BodyOf("Chart")));
    const Picture tall = ReadPicture(place.Path("d/Market-Tall.png"));
    EXPECT_TRUE(tall.Has(BodyOf("Settings")));
    EXPECT_FALSE(tall.Has(BorderOf("Clock")));
    EXPECT_TRUE(ReadPicture(place.Path("d/Dashboard-Tiles.png")).Has(BodyOf("World map")))
        << "placed by rates";
}

TEST(ViewerPicture, ShowsFramesBeyondTheMenusLastCommand)
{
    const Workplace place;
    std::string strFrames;
    for (int n = 0; n < 130; ++n) {
        const std::string strNumber = std::to_string(n);
        strFrames += Frame("F" + strNumber, Unit("U" + strNumber, "", 1) + Style("S", Use("U" + strNumber)));
    }
    place.Write("f.xml", Layout(strFrames));
    for (const char* pszNumber : {"100", "101", "129"}) {
        const std::string strNumber = pszNumber;
        const Outcome outcome =
            place.Run({"--frame", "F" + strNumber, "--png", "x.png", "--size", "300x200", "f.xml"});
        EXPECT_EQ(outcome.nStatus, 0) << outcome.strErr;
        EXPECT_TRUE(ReadPicture(place.Path("x.png")).Has(BodyOf(("U" + strNumber).c_str()))) << strNumber;
    }
    EXPECT_EQ(place.Run({"--all", "--png", "d", "--size", "40x30", "f.xml"}).nStatus, 0);
    EXPECT_EQ(CountPictures(place.Path("d")), 130U);
}

TEST(ViewerPicture, IsDrawnForEveryLayoutThatParses)
{
    std::string strChain, strUses, strUnits;
    for (int n = 0; n < 300; ++n) {
        const std::string strNumber = std::to_string(n);
        strUnits += Unit("u" + strNumber);
        strUses += Use("u" + strNumber);
        strChain += Split("l" + strNumber, n % 2 == 0 ? "H_LINE" : "V_LINE", "u" + strNumber,
                          "l" + std::to_string(n + 1));
    }
    const struct
    {
        const char* pszWhat;
        std::string strBody;
    } cases[] = {
        {"a style without units", Frame("F", Style("S", ""))},
        {"lines without units", Frame("F", Style("S", Split("a", "V_LINE", "b", "c")))},
        {"a circle of lines", Frame("F", Unit("A") + Style("S", Use("A") + Split("a", "V_LINE", "b", "A") +
                                                                    Split("b", "H_LINE", "a", "b")))},
        {"a line that names itself", Frame("F", Unit("A") + Style("S", Use("A") + Split("a", "", "a", "a")))},
        {"a unit on both sides",
         Frame("F", Unit("A") + Style("S", Use("A") + Split("a", "V_LINE", "A", "A")))},
        {"a unit twice in a style", Frame("F", Unit("A") + Style("S", Use("A", "ID=1") + Use("A", "ID=1") +
                                                                          Split("a", "V_LINE", "A", "")))},
        {"wild sizes",
         Frame("F",
               Unit("A", "<HEIGHT MIN='2147483647' MAX='-5'/><WIDTH MIN='9999999999' MAX='9999999999'/>") +
                   Unit("B", "<WIDTH MIN='2000000000' MAX='2000000000'/>") +
                   Style("S", Use("A") + Use("B") + Split("a", "V_LINE", "A", "B", "1e308")))},
        {"wild edge rates", Frame("F", Unit("A", "", 1) + Style("S", Use("A")))},
        {"panes without room",
         Frame("F", Unit("A") + Unit("B") +
                        Style("S", Use("A") + Use("B") + Split("a", "V_LINE", "A", "B", "-7")))},
        {"a class that is no GUID",
         Frame("F", "<BaseUnit><NAME>A</NAME><GUID>chart</GUID></BaseUnit>" + Style("S", Use("A")))},
        {"a global unit without a name", "<GLOBAL><BaseUnit/></GLOBAL>" + Frame("F", Style("S", Use("")))},
        {"empty elements", Frame("F", "<BaseUnit/><STYLE/>")},
        {"a very long parameter",
         Frame("F", Unit("A") + Style("S", Use("A", std::string(200000, 'x') + " &lt; &amp; &quot;")))},
        {"a chain of lines", Frame("F", strUnits + Style("S", strUses + strChain))},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszWhat);
        const Workplace place;
        place.Write("f.xml", Layout(c.strBody));
        for (const char* pszSize : {"1x1", "640x480"}) {
            const Outcome outcome = place.Run({"--list", "--png", "x.png", "--size", pszSize, "f.xml"});
            EXPECT_EQ(outcome.nStatus, 0) << outcome.strErr;
            const Picture picture = ReadPicture(place.Path("x.png"));
            EXPECT_EQ(std::to_string(picture.cx) + "x" + std::to_string(picture.cy), pszSize);
        }
    }
}

TEST(ViewerPicture, LayoutWithoutAnythingToShowIsAnError)
{
    const Workplace place;
    place.Write("none.xml", Layout(""));
    place.Write("bare.xml", Layout(Frame("F", Unit("A"))));
    EXPECT_EQ(place.Run({"none.xml"}).nStatus, 1);
    EXPECT_EQ(place.Run({"none.xml"}).strErr, "none.xml: error: there is no frame to show\n");
    const Outcome bare = place.Run({"--all", "bare.xml"});
    EXPECT_EQ(bare.nStatus, 1);
    EXPECT_NE(bare.strErr.find("bare.xml: warning: frame 'F' has no style and can't be opened\n"),
              std::string::npos);
    EXPECT_EQ(place.Run({"--list", "none.xml"}).nStatus, 0);
}

TEST(ViewerPicture, NeedsNoScreen)
{
    const Workplace place;
    place.Write("f.xml", Pair());
    ::setenv("SPLITFRAME_DISPLAY", "none such", 1);
    const Outcome picture = place.Run({"--png", "x.png", "f.xml"});
    const Outcome window = place.Run({"f.xml"});
    ::unsetenv("SPLITFRAME_DISPLAY");
    EXPECT_EQ(picture.nStatus, 0) << picture.strErr;
    EXPECT_EQ(window.nStatus, 1);
    EXPECT_NE(window.strErr.find("SPLITFRAME_DISPLAY=none such"), std::string::npos) << window.strErr;
}
