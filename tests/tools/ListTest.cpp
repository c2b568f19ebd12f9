// The list and the warnings: what the viewer says of a layout.
#include "LayoutText.h"
#include "RunViewer.h"

#include <gtest/gtest.h>

using namespace layout_text;

TEST(ViewerList, ShowsTablesAndTree)
{
    const Workplace place;
    place.Write("f.xml",
                Layout("<GLOBAL>" + Unit("G") + "</GLOBAL>" +
                       Frame("F", Unit("A", "<WIDTH MIN='20' MAX='20'/>") +
                                      Unit("東京", "<HEIGHT MIN='5'/>", 0) + Unit("Z", "", 1) +
                                      Style("S", Use("A", "ID=1") + Use("東京", "x\ny") + Use("G") +
                                                     Use("Z") + Split("top", "V_LINE", "A", "low", "0.25") +
                                                     Split("low", "H_LINE", "東京", "nobody")))));
    const Outcome outcome = place.Run({"--list", "--size", "202x103", "f.xml"});
    EXPECT_EQ(outcome.nStatus, 0);
    EXPECT_EQ(outcome.strOut,
              "1 frame, 1 global unit\n"
              "\n"
              "Global units\n"
              "    NAME  CLASS                                 PLACE      EDGE RATES  BORDER  WIDTH  HEIGHT\n"
              "    G     01234567-89AB-CDEF-0123-456789ABCDEF  3,4 50x40  0 0 1 1     drawn   free   free\n"
              "\n"
              "Frame F\n"
              "  Units\n"
              "    NAME  CLASS                                 PLACE      EDGE RATES  BORDER           WIDTH "
              "    HEIGHT\n"
              "    A     01234567-89AB-CDEF-0123-456789ABCDEF  3,4 50x40  0 0 1 1     drawn            fixed "
              "20  free\n"
              "    東京  01234567-89AB-CDEF-0123-456789ABCDEF  3,4 50x40  0 0 1 1     none             free  "
              "    5 to "
              "10000\n"
              "    Z     01234567-89AB-CDEF-0123-456789ABCDEF  3,4 50x40  0 0 1 1     drawn, by rates  free  "
              "    free\n"
              "\n"
              "  Style S\n"
              "      UNIT  KIND    PARAMETER\n"
              "      A     own     ID=1\n"
              "      東京  own     x\\x0Ay\n"
              "      G     global\n"
              "      Z     own\n"
              "\n"
              "      LINE  TYPE        FIRST  SECOND  RATE  MOVABLE\n"
              "      top   vertical    A      low     0.25  yes\n"
              "      low   horizontal  東京   nobody   0.5  yes\n"
              "\n"
              "      TREE             KIND        RATE  PLACE         REMARKS\n"
              "      top              vertical    0.25  0,0 200x100   movable\n"
              "      ├─ A             unit              0,0 20x100    fixed width\n"
              "      └─ low           horizontal   0.5  20,0 180x100  movable\n"
              "         ├─ 東京       unit              20,0 180x100\n"
              "         └─ (nothing)\n"
              "\n"
              "      UNIT IN NO LINE  PLACE\n"
              "      Z                0,0 200x100\n");
    EXPECT_NE(outcome.strErr.find("warning"), std::string::npos) << "nobody is unknown";
}

TEST(ViewerList, TakesOnlyWhatIsAskedFor)
{
    const Workplace place;
    const Outcome outcome =
        place.Run({"--list", "--frame", "Market", "--style", "Tall", LAYOUTS "/tour.xml"});
    EXPECT_EQ(outcome.nStatus, 0) << outcome.strErr;
    EXPECT_NE(outcome.strOut.find("\nFrame Market\n"), std::string::npos);
    EXPECT_NE(outcome.strOut.find("\n  Style Tall\n"), std::string::npos);
    EXPECT_EQ(outcome.strOut.find("Style Wide"), std::string::npos);
    EXPECT_EQ(outcome.strOut.find("Frame Nesting"), std::string::npos);
}

TEST(ViewerList, DrawsDeepTreesWithoutEndlessIndents)
{
    constexpr int kLines = 500;
    std::string strUnits, strUses, strLines;
    for (int n = 0; n < kLines; ++n) {
        const std::string strUnit = "u" + std::to_string(n);
        strUnits += Unit(strUnit);
        strUses += Use(strUnit);
        strLines += Split("l" + std::to_string(n), "V_LINE", strUnit, "l" + std::to_string(n + 1), "0.1");
    }
    const Workplace place;
    place.Write("f.xml", Layout(Frame("F", strUnits + Style("S", strUses + strLines))));
    const Outcome outcome = place.Run({"--list", "f.xml"});
    EXPECT_EQ(outcome.nStatus, 0);
    EXPECT_NE(outcome.strOut.find("(500) u499"), std::string::npos);
    EXPECT_LT(outcome.strOut.size(), 1000000U);
}

TEST(ViewerWarnings, NameTheLineOfWhatIsTolerated)
{
    const Workplace place;
    place.Write("f.xml",
                "<Layout>\n"                  // 1
                "<BaseFrame><NAME>F</NAME>\n" // 2
                "<HELPER><GUID>11111111-2222-3333-4444-555555555555</GUID></HELPER>\n" +
                    Unit("A") +                                                                        // 4
                    "<STYLE><NAME>S</NAME>\n" +                                                        // 5
                    Use("A") +                                                                         // 6
                    "  <BaseUnit NAME='Gone' PARAM=''/>\n"                                             // 7
                    "<SPLIT NAME='m' TYPE='V_LINE' MOBILE='1' LEFT='A' RIGHT='Nobody' LRATE='0.5'/>\n" // 8
                    "</STYLE></BaseFrame></Layout>\n");
    const Outcome outcome = place.Run({"--list", "f.xml"});
    EXPECT_EQ(outcome.nStatus, 0);
    EXPECT_NE(outcome.strErr.find("f.xml:7:3: warning: "), std::string::npos) << outcome.strErr;
    EXPECT_NE(outcome.strErr.find("'Gone'"), std::string::npos) << outcome.strErr;
    EXPECT_NE(outcome.strErr.find("'Nobody'"), std::string::npos) << outcome.strErr;
}

TEST(ViewerWarnings, ExamplesHaveNoneButTheOneFullOfMistakes)
{
    const Workplace place;
    for (const char* pszGood : {"minimal.xml", "tour.xml"}) {
        const Outcome outcome = place.Run({"--list", std::string(LAYOUTS "/") + pszGood});
        EXPECT_EQ(outcome.nStatus, 0);
        EXPECT_EQ(outcome.strErr, "");
    }
    const Outcome outcome = place.Run({"--list", LAYOUTS "/mistakes.xml"});
    EXPECT_EQ(outcome.nStatus, 0);
    EXPECT_NE(outcome.strErr.find("mistakes.xml:"), std::string::npos);
    EXPECT_NE(outcome.strErr.find("'Nowhere'"), std::string::npos);
}
