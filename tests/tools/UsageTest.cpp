// The command line, and files and names that are no good: exit status and message.
#include "LayoutText.h"
#include "RunViewer.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace layout_text;
using testing::TestWithParam;

namespace {

std::string Utf16(const std::string& strAscii, bool bMark)
{
    std::string strBytes = bMark ? "\xFF\xFE" : "";
    for (const char ch : strAscii)
        strBytes += {ch, '\0'};
    return strBytes;
}

} // namespace

TEST(ViewerUsage, WrongUsageIsStatus2AndPrintsNothingElse)
{
    const Workplace place;
    place.Write("f.xml", Pair());
    const struct
    {
        std::vector<std::string> args;
        const char* pszMessage;
    } cases[] = {
        {{}, "no layout file given"},
        {{"f.xml", "g.xml"}, "more than one layout file: 'g.xml'"},
        {{"--lst", "f.xml"}, "unknown option '--lst'"},
        {{"f.xml", "--frame"}, "option --frame needs a value"},
        {{"f.xml", "--frame=A", "--frame", "B"}, "option --frame is given twice"},
        {{"f.xml", "--list=yes"}, "option --list takes no value"},
        {{"f.xml", "--png="}, "option --png needs a file or directory"},
        {{"f.xml", "--size", "0x0"}, "size '0x0' is not"},
        {{"f.xml", "--size", "-5x10"}, "size '-5x10' is not"},
        {{"f.xml", "--size", "100"}, "size '100' is not"},
        {{"f.xml", "--size", "100x"}, "size '100x' is not"},
        {{"f.xml", "--size", "100x50px"}, "size '100x50px' is not"},
        {{"f.xml", "--size", "8193x10"}, "size '8193x10' is not"},
        {{"f.xml", "--size", "99999999999999999999x1"}, "is not WIDTHxHEIGHT from 1x1 to 8192x8192"},
        {{"f.xml", "--scale", "0"}, "scale '0' is not a number from 0.25 to 8"},
        {{"f.xml", "--scale", "nan"}, "scale 'nan' is not"},
        {{"f.xml", "--scale", "2x"}, "scale '2x' is not"},
        {{"f.xml", "--save-as", ""}, "option --save-as needs a file or directory"},
        {{"--", "--list", "f.xml"}, "more than one layout file"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszMessage);
        const Outcome outcome = place.Run(c.args);
        EXPECT_EQ(outcome.nStatus, 2);
        EXPECT_NE(outcome.strErr.find(c.pszMessage), std::string::npos) << outcome.strErr;
        EXPECT_EQ(outcome.strOut, "");
    }
}

TEST(ViewerUsage, HelpAndVersionNeedNoFile)
{
    const Workplace place;
    const Outcome help = place.Run({"--help"});
    EXPECT_EQ(help.nStatus, 0);
    for (const char* pszOption : {"--list", "--frame", "--style", "--all", "--size", "--png", "--scale",
                                  "--save-as", "--version", "F5", "Ctrl+S", "Ctrl+Left"})
        EXPECT_NE(help.strOut.find(pszOption), std::string::npos) << pszOption;
    const Outcome version = place.Run({"--version"});
    EXPECT_EQ(version.nStatus, 0);
    EXPECT_EQ(version.strOut, "splitframe-view " VERSION "\n");
}

TEST(ViewerUsage, OutputThatCanNotBeWrittenIsAnError)
{
    const Workplace place;
    place.Write("f.xml", Pair());
    EXPECT_EQ(place.Run({"--list", "f.xml"}, "/dev/full").nStatus, 1);
}

TEST(ViewerBadFile, IsToldWithItsPlaceAndReason)
{
    const Workplace place;
    std::filesystem::create_directory(place.Path("dir"));
    ::mkfifo(place.Path("pipe").c_str(), 0600);
    place.Write("empty", "");
    place.Write("text", "no markup at all\n");
    place.Write("open", "<Layout>\n  <BaseFrame>\n    <NAME>x</NAM>\n  </BaseFrame>\n</Layout>\n");
    place.Write("cut", "<Layout>\r\n<BaseFrame>");
    place.Write("node", "<Layout><!-- never ends");
    place.Write("binary", std::string("\x7F"
                                      "ELF\x02\x01\x01\0\0\0\0\0",
                                      12) +
                              std::string(5000, '\0'));
    place.Write("little", Utf16(Pair(), false));
    place.Write("big", "\xFE\xFF" + std::string(1, '\0') + Utf16(Pair(), false));
    const struct
    {
        const char* pszFile;
        const char* pszMessage;
    } cases[] = {
        {"missing", "missing: error: can't be read: No such file or directory\n"},
        {"dir", "dir: error: can't be read: it is a directory\n"},
        {"pipe", "pipe: error: can't be read: it is no regular file\n"},
        {"empty", "empty"},
        {"text", "text:2:1: error: BaseUnit tag not found\n"},
        {"open", "open:3:12: error: End tag does not correspond to NAME\n"},
        {"cut", "cut:2:"},
        {"node", "node:1:9: error: Invalid node\n"},
        {"binary", "binary: error: "},
        {"little", "UTF-16 is read only with the mark FF FE"},
        {"big", "UTF-16 with the high byte first is not read"},
    };
    for (const auto& c : cases) {
        for (const char* pszAction : {"--list", "--all"}) {
            SCOPED_TRACE(c.pszFile);
            const Outcome outcome = place.Run({pszAction, c.pszFile});
            EXPECT_EQ(outcome.nStatus, 1);
            EXPECT_NE(outcome.strErr.find(c.pszMessage), std::string::npos) << outcome.strErr;
            EXPECT_NE(outcome.strErr.find(": error: "), std::string::npos) << outcome.strErr;
            EXPECT_EQ(outcome.strOut, "");
        }
    }
}

TEST(ViewerBadFile, NoPrefixOfAGoodFileDoesHarm)
{
    const Workplace place;
    const std::string strWhole = Pair();
    for (std::size_t nLength = 0; nLength <= strWhole.size(); nLength += 23) {
        place.Write("f.xml", strWhole.substr(0, nLength));
        const Outcome outcome = place.Run({"--list", "f.xml"});
        EXPECT_EQ(outcome.nStatus, 1) << nLength << outcome.strErr;
    }
}

TEST(ViewerGoodFile, EncodingsAndOddPathsAreRead)
{
    const Workplace place;
    place.Write("plain.xml", Pair());
    place.Write("mark8.xml", "\xEF\xBB\xBF" + Pair());
    place.Write("mark16.xml", Utf16(Pair(), true));
    place.Write("päth 東.xml", Pair());
    place.Write("latin\xE9.xml", Pair());
    place.Write("-dash.xml", Pair());
    const std::string strList = place.Run({"--list", "plain.xml"}).strOut;
    EXPECT_NE(strList.find("Frame F\n"), std::string::npos);
    for (const char* pszFile : {"mark8.xml", "mark16.xml", "päth 東.xml", "latin\xE9.xml", "-dash.xml"}) {
        SCOPED_TRACE(pszFile);
        const Outcome outcome = place.Run({"--list", "--", pszFile});
        EXPECT_EQ(outcome.nStatus, 0) << outcome.strErr;
        EXPECT_EQ(outcome.strErr, "");
        EXPECT_EQ(outcome.strOut, strList);
    }
}

TEST(ViewerNames, UnknownOnesAreToldWithTheKnownOnes)
{
    const Workplace place;
    place.Write("f.xml", Layout(Frame("One", Unit("A") + Style("S1", Use("A")) + Style("S2", Use("A"))) +
                                Frame("Two", Unit("A") + Style("S3", Use("A")))));
    const struct
    {
        std::vector<std::string> args;
        const char* pszMessage;
    } cases[] = {
        {{"--frame", "one"}, "f.xml: error: no frame 'one'; there are: 'One', 'Two'\n"},
        {{"--style", "S9"}, "f.xml: error: no style 'S9'; there are: 'S1', 'S2', 'S3'\n"},
        {{"--frame", "Two", "--style", "S1"}, "f.xml: error: no style 'S1'; there are: 'S3'\n"},
        {{"--list", "--frame", "\x1B[2J"}, "f.xml: error: no frame '\\x1B[2J'; there are: 'One', 'Two'\n"},
    };
    for (const auto& c : cases) {
        std::vector<std::string> args = c.args;
        args.insert(args.end(), {"--png", "x.png", "f.xml"});
        const Outcome outcome = place.Run(args);
        EXPECT_EQ(outcome.nStatus, 1);
        EXPECT_EQ(outcome.strErr, c.pszMessage);
        EXPECT_EQ(outcome.strOut, "");
        EXPECT_FALSE(std::filesystem::exists(place.Path("x.png")));
    }
}
