// Names as file names and on terminals, colours: the viewer's parts that are functions of text.
#include "FileNames.h"
#include "PaneColors.h"
#include "Printable.h"

#include <gtest/gtest.h>

using namespace viewer;

TEST(FileNamesTest, UnsafeCharactersAndLengthsBecomeSafeParts)
{
    const struct
    {
        const wchar_t* pszName;
        const char* pszPart;
    } cases[] = {
        {L"Chart", "Chart"},
        {L"Order book 2.0", "Order_book_2.0"},
        {L"../../etc/passwd", "_._.._etc_passwd"},
        {L"..", "_."},
        {L"-rf *", "_rf__"},
        {L"a\x1B[31m\nb", "a__31m_b"},
        {L"東京 Zürich", "東京_Zürich"},
        {L"\U0001D11E", "\U0001D11E"},
        {L"x\xD834", "x_"},
        {L"", "unnamed"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(FileNamePart(c.pszName), c.pszPart);
    // Cut between characters, so that what stays is still UTF-8.
    const std::string strLong = FileNamePart(CString(L'東', 300));
    EXPECT_LE(strLong.size(), 100U);
    EXPECT_EQ(strLong.size() % 3, 0U);
}

TEST(FileNamesTest, NoNameIsGivenTwice)
{
    PictureNames names;
    EXPECT_EQ(names.Next(L"F", L"S"), "F-S.png");
    EXPECT_EQ(names.Next(L"f", L"s"), "f-s-2.png") << "file systems may ignore case";
    EXPECT_EQ(names.Next(L"F", L"S-2"), "F-S-2-2.png");
    EXPECT_EQ(names.Next(L"F?", L"S"), "F_-S.png");
    EXPECT_EQ(names.Next(L"F*", L"S"), "F_-S-2.png");
}

TEST(PrintableTest, NothingDisturbsTheTerminal)
{
    EXPECT_EQ(Printable(L"Zürich 東京 \U0001D11E"), "Zürich 東京 \U0001D11E");
    EXPECT_EQ(Printable(L"a\x1B[2J\tb\n"), "a\\x1B[2J\\x09b\\x0A");
    EXPECT_EQ(Printable(L"\x202E"
                        L"x\xD800"),
              "\\u202Ex\\uD800");
    EXPECT_EQ(TerminalWidth("東京"), 4);
    EXPECT_EQ(TerminalWidth("e\u0301"), 1);
}

TEST(PaneColorsTest, EveryNameHasTextThatCanBeRead)
{
    const auto sum = [](COLORREF color) { return GetRValue(color) + GetGValue(color) + GetBValue(color); };
    for (int n = 0; n < 400; ++n) {
        CString strName;
        strName.Format(L"unit %d", n);
        const PaneColors colors = ColorsOf(strName);
        EXPECT_GT(sum(colors.header) - sum(colors.text), 380);
        EXPECT_GT(sum(colors.body) - sum(colors.faintText), 280);
    }
    EXPECT_EQ(ColorsOf(L"Chart").body, ColorsOf(CString("Chart")).body);
    EXPECT_NE(ColorsOf(L"Pane A").body, ColorsOf(L"Pane B").body);
}
