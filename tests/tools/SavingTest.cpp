// Saving lines that were dragged: which bytes change, that the same pixels come back, and what never happens
// to a file.
#include "LayoutText.h"
#include "ShortRate.h"
#include "WindowFixture.h"

#include "platform/window/MessageLoop.h"

#include <cmath>
#include <functional>

using namespace layout_text;

namespace {

constexpr UINT kF5 = VK_F1 + 4;

std::string Wide(const std::string& strAscii)
{
    std::string strBytes = "\xFF\xFE";
    for (const char ch : strAscii)
        strBytes += {ch, '\0'};
    return strBytes;
}

std::string Same(const std::string& strAscii)
{
    return strAscii;
}

std::string ReplaceOnce(std::string strText, const std::string& strOld, const std::string& strNew)
{
    const std::size_t nAt = strText.find(strOld);
    EXPECT_NE(nAt, std::string::npos) << strOld;
    return strText.replace(nAt, strOld.size(), strNew);
}

// Two lines whose LRATE is written in unusual ways, in a text that nobody formats like this. 800 pixels of
// window give the panes 798.
std::string OddLayout(const std::string& strComment)
{
    return "<?xml version='1.0'?>\r\n<!-- " + strComment + " <SPLIT LRATE='0.1'/> -->\n<any>\t" +
           Frame("F",
                 Unit("A") + Unit("B") + Unit("C", "<WIDTH MIN='100' MAX='100'/>") +
                     Style("S", Use("A") + Use("B") + Use("C") +
                                    "<SPLIT\n\tLRATE = \"+.50e0\" NAME='m' MOBILE='' RIGHT='n' LEFT='A'\r "
                                    "TYPE='V_LINE' "
                                    "/>\r\n" +
                                    "<SPLIT NAME='n' x='LRATE=\"7\"' LRATE='0.3000' TYPE='H_LINE' LEFT='B' "
                                    "RIGHT='C'></SPLIT>") +
                     Style("T", Use("A") + Use("B") + "<SPLIT NAME='m' TYPE='V_LINE' LEFT='A' RIGHT='B'/>")) +
           "</any>\n\n<!-- the end -->";
}

} // namespace

TEST(ShortRate, HasTheFewestDecimals)
{
    const struct
    {
        double dFrom, dTo, dExpected;
    } cases[] = {{0.0, 0.001, 0.0},
                 {0.999, 1.01, 1.0},
                 {307.0 / 1022, 308.0 / 1022, 0.301},
                 {0.3, 0.4, 0.3},
                 {0.05, 0.15, 0.1},
                 {1.0 / 3, 2.0 / 3, 0.4},
                 {0.12345678, 0.12345679, 0.12345678},
                 {0.1, std::nextafter(0.1, 1.0), 0.1},
                 {1.0 / 3, std::nextafter(1.0 / 3, 1.0), 1.0 / 3}};
    for (const auto& c : cases)
        EXPECT_EQ(viewer::ShortestRate(c.dFrom, c.dTo), c.dExpected);
}

TEST_F(ViewerWindowTest, SavingChangesTheDraggedLinesRatesAndNoOtherByte)
{
    const struct
    {
        const char* pszWhat;
        std::string strComment;
        std::function<std::string(const std::string&)> encode;
    } cases[] = {
        {"plain", "x", Same},
        {"UTF-8", "äöü 日本 🙂", Same},
        {"UTF-8 with a mark", "ö", [](const std::string& str) { return "\xEF\xBB\xBF" + str; }},
        {"bytes that are no UTF-8", "\xE4\xF6\xFC \xFF \xC3\xA4 \xF0\x9F", Same},
        {"UTF-16", "x", Wide},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszWhat);
        const std::string strText = OddLayout(c.strComment);
        Start(c.encode(strText));
        DragEdge("A", true, CPoint(240, 100));
        EXPECT_EQ(RectOf("A").right, 240);
        EXPECT_TRUE(Window().IsUnsaved());
        Press('S', true);
        EXPECT_EQ(Status(), "Saved 1 line to " + m_place.Path("f.xml").string());
        EXPECT_EQ(FileBytes(), c.encode(ReplaceOnce(strText, "+.50e0", "0.344")));
        EXPECT_FALSE(Window().IsUnsaved());

        // Only the other line, in a frame whose first line was never where k / n would put it.
        DragEdge("B", false, CPoint(400, 200));
        Press('S', true);
        const std::string strTwice = ReplaceOnce(ReplaceOnce(strText, "+.50e0", "0.344"), "0.3000", "0.39");
        EXPECT_EQ(FileBytes(), c.encode(strTwice));

        // An attribute that was not there.
        Window().ShowStyle(0, 1);
        DragEdge("A", true, CPoint(399, 100));
        Press('S', true);
        EXPECT_EQ(FileBytes(), c.encode(ReplaceOnce(strTwice, "RIGHT='B'/>", "RIGHT='B' LRATE=\"0.5\"/>")));
        const std::string strSaved = FileBytes();
        LetFileSettle();
        EXPECT_NE(Status().find("Saved"), std::string::npos)
            << "what the window wrote itself it does not read again";
        Press('S', true);
        EXPECT_EQ(Status(), "There is nothing to save");
        EXPECT_EQ(FileBytes(), strSaved);
        Stop();
    }
}

TEST_F(ViewerWindowTest, SavedLinesComeBackToTheSamePixels)
{
    Start(Layout(
        Frame("F", Unit("A") + Unit("B", "<WIDTH MIN='70' MAX='70'/>") + Unit("C") + Unit("D") +
                       Style("S", Use("A") + Use("B") + Use("C") + Use("D") + Split("m", "V_LINE", "n", "o") +
                                      Split("n", "V_LINE", "A", "B") + Split("o", "H_LINE", "C", "D")))));
    for (int nStep = 0; nStep < 60; ++nStep) {
        Display().Resize(700 + 3 * nStep, 500 + nStep);
        splitframe::DrainMessages();
        DragEdge("B", true, CPoint(80 + nStep * 11, 100));
        DragEdge("C", false, CPoint(RectOf("C").left + 5, 3 + nStep * 7));
        const std::string strPanes = Panes();
        Press('S', true);
        Press(kF5);
        ASSERT_EQ(Panes(), strPanes) << nStep;
        ASSERT_EQ(Status(), "Reloaded 1 frame");
    }
}

TEST_F(ViewerWindowTest, DraggedLinesOutliveStylesFramesAndNewVersionsOfTheFile)
{
    const std::string strFile = OddLayout("x");
    Start(strFile);
    DragEdge("A", true, CPoint(240, 100));
    Press('2', true);
    Press('1', true);
    EXPECT_EQ(RectOf("A").right, 240);
    Press('W', true);
    Command(500);
    EXPECT_EQ(RectOf("A").right, 240);

    Replace(ReplaceOnce(strFile, "0.3000", "0.6"));
    LetFileSettle();
    EXPECT_EQ(Status(), "Reloaded 1 frame");
    EXPECT_EQ(RectOf("A").right, 240) << "the file has this line where it was";
    EXPECT_TRUE(Window().IsUnsaved());
    Replace(ReplaceOnce(strFile, "+.50e0", "0.75"));
    LetFileSettle();
    EXPECT_EQ(RectOf("A").right, 523) << "the file has moved it, too";
    EXPECT_FALSE(Window().IsUnsaved());

    DragEdge("A", true, CPoint(240, 100));
    Display().SetMessageBoxAnswer([](const auto&) { return IDNO; });
    Press(kF5);
    EXPECT_EQ(RectOf("A").right, 240);
    Display().SetMessageBoxAnswer({});
    Press(kF5);
    EXPECT_EQ(RectOf("A").right, 523);
    EXPECT_EQ(Display().MessageBoxes().size(), 2U);
}

TEST_F(ViewerWindowTest, AsksBeforeItReplacesWhatOthersWrote)
{
    Start(Pair());
    const std::string strOther = Layout(Frame("other", Style("S", "")));
    for (const bool bReplace : {false, true}) {
        Replace(strOther);
        DragEdge("A", true, CPoint(200, 100));
        Display().SetMessageBoxAnswer([&](const auto&) { return bReplace ? IDYES : IDNO; });
        Press('S', true);
        EXPECT_EQ(FileBytes(), bReplace ? ReplaceOnce(Pair(), "'0.5'", "'0.251'") : strOther);
        EXPECT_EQ(Window().IsUnsaved(), !bReplace);
    }
    EXPECT_EQ(Display().MessageBoxes().size(), 2U);
}

TEST_F(ViewerWindowTest, AsksBeforeDraggedLinesAreLost)
{
    Start(Pair());
    DragEdge("A", true, CPoint(200, 100));
    const auto close = [this](int nAnswer) {
        Display().SetMessageBoxAnswer([nAnswer](const auto&) { return nAnswer; });
        Press('Q', true);
    };
    close(IDCANCEL);
    ASSERT_TRUE(m_pApp->m_pMainWnd);
    EXPECT_EQ(FileBytes(), Pair());
    close(IDYES);
    EXPECT_FALSE(m_pApp->m_pMainWnd);
    EXPECT_NE(FileBytes(), Pair());
}

TEST_F(ViewerWindowTest, RefusesATagThatEndsInsideAValue)
{
    const std::string strFile = ReplaceOnce(Pair(), "LRATE='0.5'/>", "x='a>b' LRATE='0.5'></SPLIT>");
    Start(strFile);
    DragEdge("A", true, CPoint(200, 100));
    Press('S', true);
    EXPECT_TRUE(Window().GetStatusLine().IsError());
    EXPECT_EQ(Status().find("f.xml:8:1: error: the tag of this SPLIT has a '>' inside a quoted value"), 0U)
        << Status();
    EXPECT_EQ(FileBytes(), strFile);
    EXPECT_TRUE(Window().IsUnsaved());
}

TEST_F(ViewerWindowTest, SavesElsewhere)
{
    viewer::Options options;
    options.strSaveAs = m_place.Path("copy.xml").string();
    Start(Pair(), options);
    for (const auto& [nX, strRate] : {std::pair(200, "'0.251'"), {240, "'0.301'"}}) {
        DragEdge("A", true, CPoint(nX, 100));
        Press('S', true);
        EXPECT_EQ(ReadBytes(m_place.Path("copy.xml")), ReplaceOnce(Pair(), "'0.5'", strRate));
        EXPECT_FALSE(Window().IsUnsaved());
    }
    EXPECT_EQ(FileBytes(), Pair());

    const std::string strOdd = OddLayout("\xE4");
    m_place.Write("odd.xml", strOdd);
    const Outcome outcome = m_place.Run({"--save-as", "odd-copy.xml", "odd.xml"});
    EXPECT_EQ(outcome.nStatus, 0) << outcome.strErr;
    EXPECT_EQ(ReadBytes(m_place.Path("odd-copy.xml")), strOdd);
    EXPECT_EQ(m_place.Run({"--save-as", "none/x.xml", "odd.xml"}).nStatus, 1);
}

TEST_F(ViewerWindowTest, SavesThroughALinkAndKeepsTheOldFileWhenItCanNot)
{
    std::filesystem::create_directory(m_place.Path("dir"));
    m_place.Write("dir/real.xml", Pair());
    viewer::Options options;
    options.strSaveAs = m_place.Path("link.xml").string();
    std::filesystem::create_symlink("dir/real.xml", m_place.Path("link.xml"));
    Start(Pair(), options);
    DragEdge("A", true, CPoint(200, 100));
    Press('S', true);
    EXPECT_TRUE(std::filesystem::is_symlink(m_place.Path("link.xml")));
    EXPECT_EQ(ReadBytes(m_place.Path("dir/real.xml")), ReplaceOnce(Pair(), "'0.5'", "'0.251'"));

    std::filesystem::remove(m_place.Path("link.xml"));
    std::filesystem::create_directory(m_place.Path("link.xml"));
    DragEdge("A", true, CPoint(240, 100));
    Press('S', true);
    EXPECT_TRUE(Window().GetStatusLine().IsError());
    EXPECT_EQ(Status(),
              "splitframe-view: " + m_place.Path("link.xml").string() + ": can't be written: Is a directory");
    EXPECT_TRUE(Window().IsUnsaved());
}
