// Frames written to archives and read back: the bytes, what a reader makes of damaged ones, and a frame that
// goes through a file and is shown again.
#include "platform/file/Archive.h"
#include "definition/FrameStyle.h"
#include "definition/UnitInfo.h"
#include "document/BaseFrameDoc.h"
#include "platform/file/MemFile.h"
#include "support/CauseOf.h"
#include "support/FrameHost.h"
#include "support/TempFolder.h"

#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace {

using namespace test;

std::string Stored(CObject& object)
{
    CMemFile file;
    CArchive ar(&file, CArchive::store);
    object.Serialize(ar);
    ar.Close();
    return {file.GetBytes().begin(), file.GetBytes().end()};
}

// @return the cause of the archive exception, -1 for none
int Load(CObject& object, const std::string& bytes)
{
    CMemFile file(reinterpret_cast<const BYTE*>(bytes.data()), static_cast<UINT>(bytes.size()));
    CArchive ar(&file, CArchive::load);
    return CauseOf<CArchiveException>([&] { object.Serialize(ar); });
}

// A document whose records are cleared at its end.
struct OwnDoc
{
    OwnDoc() = default;
    OwnDoc(const OwnDoc&) = delete;
    OwnDoc& operator=(const OwnDoc&) = delete;
    ~OwnDoc() { doc.Clear(); }

    CBaseUnitInfo* AddUnit(const wchar_t* pszName)
    {
        auto* pInfo = new CBaseUnitInfo;
        pInfo->m_strName = pszName;
        doc.m_arrBaseUnitInfo.Add(pInfo);
        return pInfo;
    }
    CBaseFrameStyle* AddStyle(const wchar_t* pszName, const wchar_t* pszUnits)
    {
        auto* pStyle = new CBaseFrameStyle;
        pStyle->m_strName = pszName;
        for (const std::wstring& strUnit : Words(pszUnits))
            pStyle->m_arrBaseUnitInfo.Add(doc.GetBaseUnitInfo(strUnit.c_str()));
        doc.m_arrStyle.Add(pStyle);
        return pStyle;
    }
    /// "frame: a b; S[a a] T[]; 1": records, styles, current style.
    std::string Text() const
    {
        std::string text = doc.m_strName.ToUtf8() + ":";
        for (const CBaseUnitInfo* pInfo : doc.m_arrBaseUnitInfo)
            text += " " + pInfo->m_strName.ToUtf8();
        text += ";";
        for (const CBaseFrameStyle* pStyle : doc.m_arrStyle) {
            text += " " + pStyle->m_strName.ToUtf8() + "[";
            for (const CBaseUnitInfo* pInfo : pStyle->m_arrBaseUnitInfo)
                text += pInfo->m_strName.ToUtf8();
            text += "]";
        }
        return text + "; " + std::to_string(doc.m_nCurStyle);
    }

    CBaseFrameDoc doc;
};

void Fill(OwnDoc& own)
{
    own.doc.m_strName = L"frm";
    own.AddUnit(L"a");
    own.AddUnit(L"b")->m_cx = 7;
    auto* pStyle = own.AddStyle(L"S", L"a b a");
    for (const wchar_t* pszParam : {L"ID=1", L"ID=2", L"ID=3"})
        pStyle->m_arrParam.Add(pszParam);
    pStyle->m_arrSplitInfo.Add(new _SPLIT_INFO);
    own.AddStyle(L"T", L"");
    own.doc.m_nCurStyle = 1;
}

std::string Wide(const std::string& strAscii)
{
    std::string bytes = "\xFF\xFE\xFF" + std::string(1, static_cast<char>(strAscii.size()));
    for (const char ch : strAscii)
        bytes += std::string{ch, '\0'};
    return bytes;
}

std::string Int(int nValue)
{
    const auto value = static_cast<unsigned>(nValue);
    return {static_cast<char>(value), static_cast<char>(value >> 8), static_cast<char>(value >> 16),
            static_cast<char>(value >> 24)};
}

TEST(FrameArchive, WritesAUnitRecordToTheByte)
{
    CBaseUnitInfo info;
    info.m_strName = L"u";
    info.m_guid = {0x04030201, 0x0605, 0x0807, {9, 10, 11, 12, 13, 14, 15, 16}};
    info.m_cx = 17;
    info.m_cy = -1;
    info.m_x = 2;
    info.m_y = 3;
    info.m_dLeftRate = 1.0;
    info.m_dTopRate = 2.0;
    info.m_dRightRate = -2.0;
    info.m_dBottomRate = 0.5;
    info.m_nBorderStyle = 5;
    info.m_bGlobal = true;
    info.m_nMinWidth = info.m_nMaxWidth = info.m_nMinHeight = info.m_nMaxHeight = 77;
    info.m_dHeightRate = info.m_dWidthRate = 3.0;
    const auto real = [](const char* pszLastTwo) {
        return std::string(6, '\0') + std::string(pszLastTwo, 2);
    };
    const std::string bytes = Wide("u") + "\x1\x2\x3\x4\x5\x6\x7\x8\x9\xA\xB\xC\xD\xE\xF\x10" + Int(17) +
                              Int(-1) + Int(2) + Int(3) + real("\xF0\x3F") + real("\0\x40") + real("\0\xC0") +
                              real("\xE0\x3F") + Int(5);
    EXPECT_EQ(Stored(info), bytes);

    CBaseUnitInfo back;
    EXPECT_EQ(Load(back, bytes), -1);
    EXPECT_EQ(Stored(back), bytes);
    EXPECT_FALSE(back.m_bGlobal);
    EXPECT_EQ(back.m_nMaxWidth + back.m_nMaxHeight + back.m_nMinWidth + back.m_nMinHeight, 20000);
    EXPECT_EQ(back.m_dHeightRate + back.m_dWidthRate, 20.0);
}

TEST(FrameArchive, HoldsNamesRecordsStylesAndTheCurrentOne)
{
    OwnDoc empty;
    empty.doc.m_strName = L"e";
    EXPECT_EQ(Stored(empty.doc), Wide("e") + Int(0) + Int(0) + Int(0));

    OwnDoc own;
    Fill(own);
    const std::string bytes = Stored(own.doc);
    EXPECT_EQ(bytes, Wide("frm") + Int(2) + Stored(*own.doc.m_arrBaseUnitInfo[0]) +
                         Stored(*own.doc.m_arrBaseUnitInfo[1]) + Int(2) + Wide("S") + Int(3) + Wide("a") +
                         Wide("b") + Wide("a") + Wide("T") + Int(0) + Int(1));

    OwnDoc back;
    EXPECT_EQ(Load(back.doc, bytes), -1);
    EXPECT_EQ(back.Text(), "frm: a b; S[aba] T[]; 1");
    EXPECT_TRUE(back.doc.m_arrStyle[0]->m_arrParam.IsEmpty());
    EXPECT_TRUE(back.doc.m_arrStyle[0]->m_arrSplitInfo.IsEmpty());
    EXPECT_EQ(back.doc.m_pHelper, nullptr);

    // A second archive is appended; its style finds the earlier record of the same name, and one only held
    // before.
    back.AddUnit(L"x");
    const std::string more = Wide("more") + Int(1) + Stored(*own.doc.m_arrBaseUnitInfo[1]) + Int(1) +
                             Wide("U") + Int(3) + Wide("b") + Wide("none") + Wide("x") + Int(-5);
    EXPECT_EQ(Load(back.doc, more), -1);
    EXPECT_EQ(back.Text(), "more: a b x b; S[aba] T[] U[bx]; -5");
    EXPECT_EQ(back.doc.m_arrStyle[2]->m_arrBaseUnitInfo[0], back.doc.m_arrBaseUnitInfo[1]);
}

// What was read before the end stays, whole items only, and the document can be used and cleared.
TEST(FrameArchive, CutAnywhereLeavesADocumentInOrder)
{
    OwnDoc own;
    Fill(own);
    const std::string bytes = Stored(own.doc);
    for (std::size_t nCut = 0; nCut < bytes.size(); ++nCut) {
        SCOPED_TRACE(nCut);
        OwnDoc back;
        back.AddUnit(L"old");
        EXPECT_EQ(Load(back.doc, bytes.substr(0, nCut)), CArchiveException::endOfFile);
        const CArray<CBaseFrameStyle*, CBaseFrameStyle*>& arrStyle = back.doc.m_arrStyle;
        EXPECT_TRUE(arrStyle.IsEmpty() || arrStyle[0]->m_arrBaseUnitInfo.GetSize() == 3);
        EXPECT_LE(back.doc.m_arrBaseUnitInfo.GetSize(), 3);
        EXPECT_EQ(back.doc.m_nCurStyle, 0);
        back.doc.TakeFromDefinition();
        Stored(back.doc);
    }
}

TEST(FrameArchive, BelievesNoCount)
{
    CBaseUnitInfo unit;
    const std::string record = Stored(unit);
    struct Case
    {
        const char* pszWhat;
        std::string bytes;
        int cause;
        const char* pszText;
    };
    const std::string before = Wide("f") + Int(1) + record;
    const int nMost = 0x7FFFFFFF;
    const Case cases[] = {
        {"units -1", Wide("f") + Int(-1) + Int(0) + Int(3), -1, "f:;; 3"},
        {"units most", Wide("f") + Int(nMost) + record, CArchiveException::endOfFile, "f: ;; 0"},
        {"styles -1", before + Int(-1) + Int(3), -1, "f: ;; 3"},
        {"styles most", before + Int(nMost) + Wide("S") + Int(0), CArchiveException::endOfFile,
         "f: ; S[]; 0"},
        {"entries -1", before + Int(1) + Wide("S") + Int(-1) + Int(3), -1, "f: ; S[]; 3"},
        {"entries most", before + Int(1) + Wide("S") + Int(nMost) + Wide("") + Wide(""),
         CArchiveException::endOfFile, "f: ;; 0"},
        {"the smallest", std::string(1, '\0') + Int(0) + Int(0) + Int(nMost), -1, ":;; 2147483647"},
        {"a narrow name",
         "\x1"
         "f" +
             Int(0) + Int(0) + Int(0),
         -1, "f:;; 0"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.pszWhat);
        OwnDoc back;
        EXPECT_EQ(Load(back.doc, c.bytes), c.cause);
        EXPECT_EQ(back.Text(), c.pszText);
    }
}

// --- through a file into a window

const std::wstring LAYOUT =
    LayoutXml(GlobalXml(L"g") +
              FrameXml(L"F", L"b", {{L"F1", L"a=ID=7 b g", L"r V a t 0.25;t H b g 0.5"}, {L"F2", L"b", L""}},
                       UnitXml(L"a", UNIT_GUID, L"<WIDTH MIN=\"120\" MAX=\"120\"/>")) +
              FrameXml(L"Other", L"b", {{L"O1", L"b", L""}}));

class FrameFile : public testing::Test, public TempFolder
{
protected:
    FrameFile() { m_host.Load(LAYOUT); }
    CDocument* OpenFile(const char* pszName)
    {
        CDocument* pDoc = m_host.m_pTemplate->OpenDocumentFile(Path(pszName));
        m_host.Settle();
        return pDoc;
    }
    std::string Boxes() const
    {
        std::string text;
        for (const auto& box : m_host.m_pDisplay->MessageBoxes())
            text += box.strText.ToUtf8() + "\n";
        return text;
    }

    FrameHost m_host;
};

TEST_F(FrameFile, IsShownAsItWasSaved)
{
    CBaseFrameDoc* pDoc = m_host.Open(L"F1");
    const std::string panes = m_host.Panes();
    EXPECT_EQ(panes, "a 0,0 120x668; b 120,0 682x334; g 120,334 682x334") << "the picture to come back to";
    ASSERT_TRUE(pDoc->OnSaveDocument(Path("frame")));
    m_host.CloseActive();
    ASSERT_EQ(m_host.OpenFrames(), "");
    Log().Take();

    auto* pOpened = DynamicDownCast<CBaseFrameDoc>(OpenFile("frame"));
    ASSERT_NE(pOpened, nullptr);
    EXPECT_EQ(pOpened, m_host.ActiveDoc());
    EXPECT_EQ(m_host.Panes(), panes);
    EXPECT_TRUE(pOpened->GetPathName() == Path("frame"));
    EXPECT_TRUE(pOpened->GetTitle() == L"F");
    EXPECT_FALSE(pOpened->IsModified());
    EXPECT_EQ(Log().Take(".Init"), "a.InitID=7 b.Init");
    EXPECT_NE(DynamicDownCast<RecordingHelper>(pOpened->m_pHelper), nullptr);
    EXPECT_EQ(pOpened->m_arrStyle[0]->m_arrBaseUnitInfo[2], m_host.m_pMain->m_arrGlobalBaseUnitInfo[0]);
    // Nothing but the global unit is shared: the definition may go first.
    CBaseFrameDoc* pDefinition = m_host.m_pMain->FindBaseFrameDoc(L"F");
    m_host.m_pMain->m_arrBaseFrameDoc.RemoveAt(0);
    pDefinition->Clear();
    delete pDefinition;
    pOpened->ChangeStyle(1, false);
    pOpened->ChangeStyle(0, false);
    m_host.ActiveFrame()->RecalcLayout(TRUE);
    m_host.Settle();
    EXPECT_EQ(m_host.Panes(), panes);
    EXPECT_EQ(Told(m_host.m_arrDiagnostic), "");
    EXPECT_EQ(Boxes(), "");
}

TEST_F(FrameFile, OutlivesItsFrameAndTheMainFrame)
{
    CBaseFrameDoc* pDoc = m_host.Open(L"F1");
    ASSERT_TRUE(pDoc->OnSaveDocument(Path("frame")));
    auto* pOpened = DynamicDownCast<CBaseFrameDoc>(OpenFile("frame")); // beside the first
    ASSERT_NE(pOpened, nullptr);
    pOpened->m_bAutoDelete = FALSE;
    const std::unique_ptr<CBaseFrameDoc> own(pOpened);
    m_host.m_pMain->DestroyWindow();
    m_host.Settle();
    // The global records went with the main frame; the entry and its parameter are gone.
    EXPECT_EQ(pOpened->m_arrStyle[0]->m_arrBaseUnitInfo.GetSize(), 2);
    EXPECT_EQ(pOpened->m_arrStyle[0]->m_arrParam.GetSize(), 2);
    pOpened->OnCloseDocument(); // frees what was read
    EXPECT_TRUE(pOpened->m_arrStyle.IsEmpty());
    EXPECT_TRUE(pOpened->m_arrBaseUnitInfo.IsEmpty());
}

TEST_F(FrameFile, WithoutADefinitionGetsWhatItNeedsToBeShown)
{
    OwnDoc own;
    own.doc.m_strName = L"Stranger";
    CBaseUnitInfo* pInfo = own.AddUnit(L"a");
    pInfo->m_guid = m_host.m_pMain->m_arrGlobalBaseUnitInfo[0]->m_guid;
    pInfo->m_cx = pInfo->m_cy = 50;
    pInfo->m_nBorderStyle = 0;
    own.AddStyle(L"S", L"a a");
    own.doc.m_nCurStyle = 99;
    ASSERT_TRUE(own.doc.OnSaveDocument(Path("frame")));
    auto* pOpened = DynamicDownCast<CBaseFrameDoc>(OpenFile("frame"));
    ASSERT_NE(pOpened, nullptr);
    EXPECT_EQ(pOpened->m_nCurStyle, 0);
    EXPECT_EQ(m_host.Panes(), "a 0,0 50x50; a 0,0 50x50");
}

TEST_F(FrameFile, ThatIsNoneOpensNothing)
{
    CBaseFrameDoc* pFirst = m_host.Open(L"O1");
    const std::string panes = m_host.Panes();
    Write("short", Wide("F") + Int(5));
    Write("nothing", Wide("F") + Int(0) + Int(0) + Int(0));
    EXPECT_EQ(OpenFile("missing"), nullptr);
    EXPECT_EQ(OpenFile("short"), nullptr);
    EXPECT_EQ(OpenFile("nothing"), nullptr);
    const std::string strFolder = m_folder.string();
    EXPECT_EQ(Boxes(), "The document could not be opened.\n" + strFolder + "/missing: No such file\n" +
                           "The document could not be opened.\n" + strFolder +
                           "/short: The archive ends too early\n" + "The document could not be opened.\n" +
                           strFolder + "/nothing: The archive is damaged\n");
    EXPECT_EQ(m_host.OpenFrames(), "Other");
    EXPECT_EQ(m_host.Panes(), panes);
    EXPECT_FALSE(pFirst->OnSaveDocument(Path("missing/file")));
    EXPECT_FALSE(pFirst->OnSaveDocument(L"/dev/full"));
}

// Hooks that close, and classes that throw, while an archived frame is opened.
TEST_F(FrameFile, MayBeClosedWhileItOpens)
{
    CBaseFrameDoc* pDoc = m_host.Open(L"F1");
    ASSERT_TRUE(pDoc->OnSaveDocument(Path("frame")));
    m_host.CloseActive();
    Log().hooks["a.InitID=7"] = [](CBaseUnitWnd* pUnit) { pUnit->GetParentFrame()->DestroyWindow(); };
    EXPECT_EQ(OpenFile("frame"), nullptr);
    Log().hooks.clear();
    EXPECT_EQ(m_host.OpenFrames(), "");
    Log().hooks["b.Init"] = [](CBaseUnitWnd*) { throw 7; };
    EXPECT_THROW(m_host.m_pTemplate->OpenDocumentFile(Path("frame")), int);
    Log().hooks.clear();
    m_host.Settle();
    EXPECT_EQ(m_host.OpenFrames(), "");
    EXPECT_NE(OpenFile("frame"), nullptr);
}

} // namespace
