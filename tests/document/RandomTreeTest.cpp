// Trees from random split records: names that repeat, lead nowhere or in circles. Whatever the records say,
// the tree is sound, can be laid out, and everything is freed (the sanitizers and the host see to that).
#include "definition/FrameStyle.h"
#include "layout/CheckTree.h"
#include "layout/SplitLine.h"
#include "layout/TreeDump.h"
#include "support/FrameHost.h"

#include <algorithm>
#include <random>

using namespace test;

namespace {

void SetName(wchar_t (&szField)[20], const std::wstring& strName)
{
    std::copy_n(strName.c_str(), strName.size() + 1, szField);
}

class Records
{
public:
    explicit Records(unsigned nSeed) : m_random(nSeed) {}

    // Lines are named l0.., own units u0.., global ones g0..; "x" is nobody's name.
    std::wstring Name()
    {
        const std::wstring strNumber = std::to_wstring(Below(6));
        switch (Below(8)) {
        case 0:
            return L"x";
        case 1:
            return L"g" + std::to_wstring(Below(2));
        case 2:
        case 3:
            return L"u" + strNumber;
        default:
            return L"l" + strNumber;
        }
    }

    void Fill(CBaseFrameStyle& style)
    {
        while (!style.m_arrSplitInfo.IsEmpty()) {
            delete style.m_arrSplitInfo[0];
            style.m_arrSplitInfo.RemoveAt(0);
        }
        for (unsigned i = 0, nCount = Below(9); i < nCount; ++i) {
            auto* pInfo = new _SPLIT_INFO;
            SetName(pInfo->szName, Below(5) == 0 ? Name() : L"l" + std::to_wstring(i));
            SetName(pInfo->szType, Below(2) ? L"H_LINE" : L"V_LINE");
            SetName(pInfo->szLeft, Name());
            SetName(pInfo->szRight, Name());
            pInfo->bMobile = Below(2) != 0;
            pInfo->dLRate = Below(101) / 100.0;
            style.m_arrSplitInfo.Add(pInfo);
        }
    }

    unsigned Below(unsigned nEnd) { return static_cast<unsigned>(m_random() % nEnd); }

private:
    std::mt19937 m_random;
};

} // namespace

TEST(RandomTrees, AreSoundAndFreed)
{
    constexpr unsigned SEED = 4711;
    FrameHost host;
    host.Load(LayoutXml(GlobalXml(L"g0 g1") +
                        FrameXml(L"F", L"u0 u1 u2 u3 u4 u5", {{L"S", L"u0 u1 u2 u3 u4 u5 g0", L""}}) +
                        FrameXml(L"G", L"a", {{L"T", L"a g0 g1", L"m V a g0"}})));
    host.Open(L"T");
    Records records(SEED);
    for (int nRound = 0; nRound < 400; ++nRound) {
        SCOPED_TRACE("seed " + std::to_string(SEED) + ", round " + std::to_string(nRound));
        records.Fill(*host.m_pMain->FindBaseFrameDoc(L"F")->m_arrStyle[0]);
        CBaseFrameDoc* pDoc = host.Open(L"S");
        ASSERT_EQ(pDoc->m_pRoot != nullptr, !pDoc->m_arrStyle[0]->m_arrSplitInfo.IsEmpty());
        if (pDoc->m_pRoot) {
            EXPECT_EQ(splitframe::CheckTree(*pDoc->m_pRoot), "") << splitframe::DumpTree(*pDoc->m_pRoot);
            EXPECT_EQ(pDoc->m_pRoot->m_pParent, nullptr);
            pDoc->m_pRoot->ReCalRate();
        }
        if (records.Below(4) == 0)
            delete pDoc->GetBaseUnitWnd(static_cast<int>(records.Below(6)));
        if (records.Below(4) == 0)
            host.Open(L"G");
        if (pDoc->m_pRoot) {
            EXPECT_EQ(splitframe::CheckTree(*pDoc->m_pRoot), "") << splitframe::DumpTree(*pDoc->m_pRoot);
        }
        host.Open(L"F");
        host.CloseActive();
        EXPECT_EQ(Log().nUnits, 3); // g0, g1, a
        Log().Take();
    }
}
