// Archives: the bytes of values and texts, their limits, and what happens when there are fewer than promised.
#include "platform/file/Archive.h"

#include "platform/base/Diagnostics.h"
#include "platform/file/MemFile.h"
#include "support/CauseOf.h"

#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

std::string Bytes(const CMemFile& file)
{
    return {file.GetBytes().begin(), file.GetBytes().end()};
}

std::string Stored(const std::function<void(CArchive&)>& work)
{
    CMemFile file;
    CArchive ar(&file, CArchive::store, 1); // the smallest buffer there is
    work(ar);
    ar.Close();
    return Bytes(file);
}

// Runs the work over an archive of those bytes.
// @return the cause of the archive exception that it raised, -1 for none
int Load(const std::string& bytes, const std::function<void(CArchive&)>& work)
{
    CMemFile file(reinterpret_cast<const BYTE*>(bytes.data()), static_cast<UINT>(bytes.size()));
    CArchive ar(&file, CArchive::load, 1);
    return test::CauseOf<CArchiveException>([&] { work(ar); });
}

std::string Hex(const std::string& bytes)
{
    std::string text;
    for (const char ch : bytes) {
        char two[3];
        std::snprintf(two, sizeof(two), "%02X", static_cast<unsigned char>(ch));
        text += two;
    }
    return text;
}

std::string FromHex(const std::string& text)
{
    std::string bytes;
    for (std::size_t i = 0; i + 1 < text.size(); i += 2)
        bytes += static_cast<char>(std::stoi(text.substr(i, 2), nullptr, 16));
    return bytes;
}

// n units: zeros, unpaired surrogates and all.
CString TextOf(int nLength)
{
    std::vector<wchar_t> units(static_cast<std::size_t>(nLength) + 1);
    for (int i = 0; i < nLength; ++i)
        units[static_cast<std::size_t>(i)] = (i * 977) & 0xFFFF;
    return CString::FromUnits(units.data(), nLength);
}

TEST(Archive, WritesLittleEndianBytes)
{
    const std::string bytes = Stored([](CArchive& ar) {
        ar << BYTE{0xFE} << WORD{0x1234} << DWORD{0x89ABCDEF} << -2 << std::int64_t{-3} << 0.1 << 1.5F
           << true;
        ar.Write("xyz", 3);
        ar << CString(L"a\u4E2D\U0001F600") << CString();
    });
    EXPECT_EQ(Hex(bytes), "FE3412EFCDAB89FEFFFFFFFDFFFFFFFFFFFFFF9A9999999999B93F0000C03F01"
                          "78797A"
                          "FFFEFF0461002D4E3DD800DE"
                          "FFFEFF00");
    // Cut anywhere, everything before the cut reads back and the rest raises the exception.
    for (std::size_t nCut = 0; nCut <= bytes.size(); ++nCut) {
        SCOPED_TRACE(nCut);
        CString str = L"before";
        const int cause = Load(bytes.substr(0, nCut), [&](CArchive& ar) {
            BYTE b = 0;
            WORD w = 0;
            DWORD dw = 0;
            int n = 0;
            std::int64_t n64 = 0;
            double d = 0;
            float f = 0;
            bool bTrue = false;
            char xyz[3];
            ar >> b >> w >> dw >> n >> n64 >> d >> f >> bTrue;
            EXPECT_EQ(b, 0xFE);
            EXPECT_EQ(w, 0x1234);
            EXPECT_EQ(dw, 0x89ABCDEF);
            EXPECT_EQ(n, -2);
            EXPECT_EQ(n64, -3);
            EXPECT_EQ(d, 0.1);
            EXPECT_EQ(f, 1.5F);
            EXPECT_TRUE(bTrue);
            if (ar.Read(xyz, 3) == 3) {
                EXPECT_EQ(std::string(xyz, 3), "xyz");
            }
            ar >> str;
            EXPECT_TRUE(str == L"a\u4E2D\U0001F600");
            ar >> str;
        });
        EXPECT_EQ(cause, nCut == bytes.size() ? -1 : CArchiveException::endOfFile);
    }
}

TEST(Archive, PutsTheLengthBeforeATextInThreeSizes)
{
    struct Case
    {
        int nLength;
        const char* pszPrefix;
    };
    const Case cases[] = {
        {0, "FFFEFF00"},
        {3, "FFFEFF03"},
        {254, "FFFEFFFE"},
        {255, "FFFEFFFFFF00"},
        {65533, "FFFEFFFFFDFF"},
        {65534, "FFFEFFFFFFFFFEFF0000"},
        {65535, "FFFEFFFFFFFFFFFF0000"},
        {100000, "FFFEFFFFFFFFA0860100"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.nLength);
        const CString strText = TextOf(c.nLength);
        const std::string bytes = Stored([&](CArchive& ar) { ar << strText; });
        const std::string prefix = FromHex(c.pszPrefix);
        ASSERT_EQ(bytes.size(), prefix.size() + static_cast<std::size_t>(c.nLength) * 2);
        EXPECT_EQ(Hex(bytes.substr(0, prefix.size())), c.pszPrefix);
        const auto readsBack = [&](CArchive& ar) {
            CString str;
            ar >> str;
            EXPECT_TRUE(str == strText);
        };
        EXPECT_EQ(Load(bytes, readsBack), -1);
        EXPECT_EQ(Load(bytes.substr(0, bytes.size() - 1), readsBack), CArchiveException::endOfFile);
        // The narrow form of the same length is the prefix without its first three bytes.
        const std::string narrow =
            Stored([&](CArchive& ar) { AfxWriteStringLength(ar, static_cast<UINT>(c.nLength), false); });
        EXPECT_EQ("FFFEFF" + Hex(narrow), c.pszPrefix);
        EXPECT_EQ(Load(narrow + std::string(static_cast<std::size_t>(c.nLength), 'x'),
                       [&](CArchive& ar) {
                           CString str;
                           ar >> str;
                           EXPECT_TRUE(str == CString(L'x', c.nLength));
                       }),
                  -1);
    }
    CString str;
    const auto read = [&str](CArchive& ar) { ar >> str; };
    EXPECT_EQ(Load("\x06"
                   "a\xE4\xB8\xAD\xFF"
                   "b",
                   read),
              -1); // narrow text is UTF-8; other bytes keep their number
    EXPECT_TRUE(str == L"a\u4E2D\u00FF"
                       L"b");
    EXPECT_EQ(Load("", read), CArchiveException::endOfFile);
    EXPECT_TRUE(str == L"a\u4E2D\u00FF"
                       L"b"); // what could not be read changes nothing
}

TEST(Archive, BelievesNoLength)
{
    for (const char* pszPrefix :
         {"FFFEFFFFFFFFFFFFFF7F", "FFFEFFFFFFFFFEFFFF7F", "FFFEFFFFFFFFFFFFFFFF", "FFFFFFFFFFFFFF",
          "FFFFFFFFFFFF7F", "FFFEFFFFFEFF", "FFFEFFFFFDFF", "FFFEFFFE", "FE"}) {
        SCOPED_TRACE(pszPrefix);
        CString str = L"before";
        const auto read = [&str](CArchive& ar) { ar >> str; };
        EXPECT_EQ(Load(FromHex(pszPrefix) + "some", read), CArchiveException::endOfFile);
        EXPECT_TRUE(str == L"before");
    }
}

TEST(Archive, KnowsItsDirection)
{
    CMemFile file;
    const auto causeOf = test::CauseOf<CArchiveException>;
    CString str = L"x";
    int n = 0;
    CArchive storing(&file, CArchive::store);
    EXPECT_TRUE(storing.IsStoring());
    EXPECT_EQ(causeOf([&] { storing >> n; }), CArchiveException::writeOnly);
    EXPECT_EQ(causeOf([&] { storing >> str; }), CArchiveException::writeOnly);
    EXPECT_EQ(causeOf([&] { storing.Read(&n, 0); }), CArchiveException::writeOnly);
    CArchive loading(&file, CArchive::load);
    EXPECT_TRUE(loading.IsLoading());
    EXPECT_EQ(causeOf([&] { loading << n; }), CArchiveException::readOnly);
    EXPECT_EQ(causeOf([&] { loading << str; }), CArchiveException::readOnly);
    EXPECT_EQ(causeOf([&] { loading.Write("", 0); }), CArchiveException::readOnly);
    storing.Close();
    storing.Close();
    EXPECT_EQ(test::CauseOf<CFileException>([&] { storing << n; }), CFileException::invalidFile);
    EXPECT_TRUE(file.GetBytes().empty());
}

// The archive takes of its file what was asked for, and gives it all that was written, whatever the sizes
// are.
TEST(Archive, LeavesTheFileBehindTheLastByte)
{
    for (const int nBufSize : {1, 100, 1000000}) {
        SCOPED_TRACE(nBufSize);
        CMemFile file;
        std::string block(1000, 'b');
        {
            CArchive ar(&file, CArchive::store, nBufSize);
            for (int i = 0; i < 50; ++i) {
                ar << i;
                ar.Write(block.data(), static_cast<UINT>(i * 20));
            }
        } // its end closes it
        file.SeekToBegin();
        {
            CArchive ar(&file, CArchive::load, nBufSize);
            for (int i = 0; i < 20; ++i) {
                int n = -1;
                ar >> n;
                EXPECT_EQ(n, i);
                EXPECT_EQ(ar.Read(block.data(), static_cast<UINT>(i * 20)), static_cast<UINT>(i * 20));
            }
        }
        CArchive ar(&file, CArchive::load, nBufSize);
        int n = -1;
        ar >> n;
        EXPECT_EQ(n, 20);
        std::string rest(100000, ' ');
        EXPECT_EQ(ar.Read(rest.data(), 100000), file.GetBytes().size() - (4 * 21 + 20 * 190));
    }
}

TEST(Archive, ThatCannotBeWrittenSaysSo)
{
    std::string told;
    SetDiagnosticsHook([&](const Diagnostic& diagnostic) { told += diagnostic.strMessage.ToUtf8() + "\n"; });
    CFile full;
    ASSERT_TRUE(full.Open(L"/dev/full", CFile::modeWrite));
    {
        CArchive ar(&full, CArchive::store);
        ar << 1;
        EXPECT_EQ(test::CauseOf<CFileException>([&] { ar.Close(); }), CFileException::diskFull);
    }
    EXPECT_EQ(told, "an archive could not be written to its end\n");
    told.clear();
    CMemFile file;
    EXPECT_THROW(
        {
            CArchive ar(&file, CArchive::store);
            ar << 1;
            throw std::runtime_error("what is half done stays away from the file");
        },
        std::runtime_error);
    EXPECT_TRUE(file.GetBytes().empty());
    EXPECT_EQ(told, "");
    SetDiagnosticsHook({});
}

} // namespace
