// Units that take the place of others in a tree: what becomes of links, windows and flags, whom it is told
// to, and hooks that edit the tree meanwhile.
#include "layout/CheckTree.h"
#include "support/HostWindow.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <optional>

namespace {

using testing_support::HostWindow;
using testing_support::RectOf;
using testing_support::TextTree;
using testing_support::ToText;

std::string g_strLog;
std::map<std::string, std::function<void()>> g_hooks; // run when their event comes, once

// Writes down what it is told: "a+" shown, "a-" hidden, "a:on" "a:off" and "a:use" "a:rest" activated.
class ToldUnit : public CBaseUnitWnd
{
public:
    void ProcessActivate(bool bActivate) override
    {
        CBaseUnitWnd::ProcessActivate(bActivate);
        Note(bActivate ? ":on" : ":off");
    }
    void ProcessActivate2(bool bActivate) override { Note(bActivate ? ":use" : ":rest"); }

protected:
    void OnShowWindow(BOOL bShow, UINT) { Note(bShow ? "+" : "-"); }
    void OnMove(int x, int y) { Note("@" + std::to_string(x) + "," + std::to_string(y)); }
    DECLARE_MESSAGE_MAP()

private:
    void Note(const std::string& strWhat)
    {
        const std::string strEvent = m_strName.ToUtf8() + strWhat;
        g_strLog += (g_strLog.empty() ? "" : " ") + strEvent;
        if (const auto node = g_hooks.extract(strEvent))
            node.mapped()();
    }
};

BEGIN_MESSAGE_MAP(ToldUnit, CBaseUnitWnd)
ON_WM_SHOWWINDOW()
ON_WM_MOVE()
END_MESSAGE_MAP()

// A tree that is laid out in 200 by 100 pixels, and a unit "u" that stands in no tree.
class EditTest : public testing::Test
{
protected:
    ~EditTest() override { g_hooks.clear(); }
    void Make(const std::string& strTree)
    {
        const auto makeUnit = [] { return new ToldUnit; };
        m_pSpare.reset();
        m_pTree = std::make_unique<TextTree>(strTree, &m_host, makeUnit);
        m_pSpare = std::make_unique<TextTree>("u~", &m_host, makeUnit);
        Root().ModifyWindow(CRect(0, 0, 200, 100));
        g_strLog.clear();
    }
    CSplitLine& Root() { return m_pTree->Root(); }
    CBaseUnitWnd* Unit(const char* pszName)
    {
        return pszName == std::string("u") ? m_pSpare->UnitAt(0) : &m_pTree->Unit(pszName);
    }
    std::string Tree() { return m_pTree->HasRoot() ? ToText(&Root()) : ""; }

    HostWindow m_host;
    std::unique_ptr<TextTree> m_pTree;
    std::unique_ptr<TextTree> m_pSpare;
};

// How one unit comes to the place of another: by the unit's name, by the unit, or by line and side.
const std::function<bool(CSplitLine&, const char*, CBaseUnitWnd*)> BY_NAME =
    [](CSplitLine& root, const char* psz, CBaseUnitWnd* pNew) {
        return root.Replace(CString::FromUtf8(psz), pNew);
    };
const std::function<bool(CSplitLine&, const char*, CBaseUnitWnd*)> BY_SIDE =
    [](CSplitLine& root, const char* psz, CBaseUnitWnd* pNew) {
        return root.Replace(CString::FromUtf8(std::string_view(psz).substr(1)), *psz == '1', pNew);
    };

TEST_F(EditTest, TheNewUnitIsShownFirstOrTheOldOneHiddenFirst)
{
    const char* const NEW_FIRST = "u+ u:on u:use u@100,50 c- c:off c:rest";
    Make("V0.5#m[a H0.5#r[b c-]]");
    CBaseUnitWnd& old = *Unit("c");
    Root().ModifyWindow(CRect(0, 0, 200, 100));
    old.MoveWindow(CRect(100, 50, 200, 100));
    g_strLog.clear();
    EXPECT_TRUE(BY_NAME(Root(), "c", Unit("u")));
    EXPECT_EQ(g_strLog, NEW_FIRST);
    EXPECT_EQ(Tree(), "V0.5#m[a H0.5#r[b u-]]");
    EXPECT_EQ(RectOf(*Unit("u")), CRect(100, 50, 200, 100));
    EXPECT_FALSE(old.IsWindowVisible());
    EXPECT_EQ(old.m_pParent.Get(), Unit("u")->m_pParent.Get()) << "it remembers where it stood";
    g_strLog.clear();
    EXPECT_TRUE(Root().Replace(Unit("u"), &old));
    EXPECT_EQ(g_strLog, "u- u:off u:rest c+ c:on c:use");
    EXPECT_EQ(Tree(), "V0.5#m[a H0.5#r[b c-]]");
    g_strLog.clear();
    EXPECT_TRUE(BY_SIDE(Root(), "0r", Unit("u")));
    EXPECT_EQ(g_strLog, "u+ u:on u:use c- c:off c:rest");
    EXPECT_EQ(splitframe::CheckTree(Root()), "");
}

TEST_F(EditTest, WhoeverIsNotFoundStays)
{
    const struct
    {
        const char* pszWhat;
        const std::function<bool(CSplitLine&, const char*, CBaseUnitWnd*)>& replace;
        const char* pszWhere;
        const char* pszNew; // null: no unit
        bool bDone;
    } cases[] = {
        {"unknown", BY_NAME, "x", "u", false},
        {"empty", BY_NAME, "", "u", false},
        {"other case", BY_NAME, "C", "u", false},
        {"no unit", BY_NAME, "c", nullptr, false},
        {"a line", BY_NAME, "r", "u", false},
        {"the start", BY_NAME, "m", "u", false},
        {"itself", BY_NAME, "c", "c", true},
        {"itself by side", BY_SIDE, "0r", "c", true},
        {"a side that is a line", BY_SIDE, "0m", "u", false},
        {"a side that is missing", BY_SIDE, "0e", "u", false},
        {"an unknown line", BY_SIDE, "1x", "u", false},
        {"a unit has no sides", BY_SIDE, "1a", "u", false},
        {"no unit by side", BY_SIDE, "1m", nullptr, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszWhat);
        const std::string strTree = "V0.5#m[a H0.5#r[V0.5#e[b .] c]]";
        Make(strTree);
        const std::string strPanes = PanesToText(*m_pTree);
        EXPECT_EQ(c.replace(Root(), c.pszWhere, c.pszNew ? Unit(c.pszNew) : nullptr), c.bDone);
        EXPECT_EQ(Tree(), strTree);
        EXPECT_EQ(PanesToText(*m_pTree), strPanes);
        EXPECT_EQ(g_strLog, "");
    }
    EXPECT_FALSE(Root().Replace(static_cast<CBaseUnitWnd*>(nullptr), Unit("u")));
    HostWindow elsewhere;
    ToldUnit stranger;
    stranger.Create(&elsewhere, nullptr);
    EXPECT_FALSE(BY_NAME(Root(), "a", &stranger)) << "a child of another window";
}

TEST_F(EditTest, TwoOfOneTreeChangePlaces)
{
    for (const auto& [pszTree, pszAfter] :
         {std::pair{"V0.5[a- H0.5[b c]]", "V0.5[c- H0.5[b a]]"}, std::pair{"V0.5[a c]", "V0.5[c a]"}}) {
        SCOPED_TRACE(pszTree);
        Make(pszTree);
        const CRect rcA = RectOf(*Unit("a"));
        const CRect rcC = RectOf(*Unit("c"));
        EXPECT_TRUE(BY_NAME(Root(), "a", Unit("c")));
        EXPECT_EQ(Tree(), pszAfter);
        EXPECT_EQ(RectOf(*Unit("a")), rcC);
        EXPECT_EQ(RectOf(*Unit("c")), rcA);
        EXPECT_TRUE(Unit("a")->IsWindowVisible() && Unit("c")->IsWindowVisible());
        EXPECT_EQ(g_strLog.find(':'), std::string::npos) << "nobody goes out of use";
        EXPECT_EQ(splitframe::CheckTree(Root()), "");
    }
    Make("V0.5[a b]");
    TextTree other("H0.5[c d]", &m_host, [] { return new ToldUnit; });
    EXPECT_TRUE(BY_NAME(Root(), "a", &other.Unit("c"))) << "from another tree it is taken";
    EXPECT_EQ(Tree(), "V0.5[c b]");
    EXPECT_EQ(ToText(&other.Root()), "H0.5[. d]");
}

TEST_F(EditTest, NamesMayBelongToLinesAndUnitsAtOnce)
{
    const struct
    {
        const char* pszTree;
        const char* pszFind; // side and line
        const char* pszFound;
    } cases[] = {
        {"V0.5#m[a H0.5#r[b c]]", "1m", "a"},
        {"V0.5#m[a H0.5#r[b c]]", "0r", "c"},
        {"V0.5#m[a H0.5#r[b c]]", "0m", ""},
        {"V0.5#m[a H0.5#m[b c]]", "0m", "c"},
        {"V0.5#m[H0.5#r[a .] V0.5#r[b c]]", "0r", "c"},
        {"V0.5#m[a H0.5#a[b c]]", "1a", "b"},
        {"V0.5#m[a b]", "1x", ""},
        {"V0.5[a b]", "1", "a"},
        {"a", "1a", ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.pszTree) + " " + c.pszFind);
        Make(c.pszTree);
        const CBaseUnitWnd* pFound = Root().FindBaseUnitWnd(
            CString::FromUtf8(std::string_view(c.pszFind).substr(1)), *c.pszFind == '1');
        EXPECT_EQ(pFound ? pFound->m_strName.ToUtf8() : "", c.pszFound);
    }
    Make("V0.5#m[H0.5#c[a b] c]");
    EXPECT_TRUE(BY_NAME(Root(), "c", Unit("u"))) << "the line is passed by";
    EXPECT_EQ(Tree(), "V0.5#m[H0.5#c[a b] u]");
}

// Each hook does each thing in each of the ways to replace; no unit may stand twice, and nothing dead
// anywhere.
TEST_F(EditTest, HooksMayDoAnythingMeanwhile)
{
    const std::function<void()> deeds[] = {
        [&] { delete Unit("u"); },
        [&] { delete m_pTree->UnitAt(1); },
        [&] { delete &Root(); },
        [&] { delete m_pTree->LineAt(1); },
        [&] { m_pTree->UnitAt(1)->DestroyWindow(); },
        [&] { Root().Replace(CString(L"a"), Unit("u")); },
        [&] { Root().Replace(CString(L"u"), m_pTree->UnitAt(1)); },
        [&] { Root().Replace(CString(L"b"), m_pTree->UnitAt(2)); },
        [&] { Root().ReleaseWnd(); },
        [&] { Root().ModifyWindow(CRect(0, 0, 50, 50)); },
    };
    for (const char* pszEvent : {"u+", "u:on", "u:use", "u@100,0", "b-", "b:off", "b:rest"}) {
        for (std::size_t nDeed = 0; nDeed < std::size(deeds); ++nDeed) {
            for (int nWay = 0; nWay < 3; ++nWay) {
                SCOPED_TRACE(std::string(pszEvent) + " " + std::to_string(nDeed) + " " +
                             std::to_string(nWay));
                Make("V0.5#m[a H0.5#r[b c]]");
                g_hooks[pszEvent] = deeds[nDeed];
                if (nWay == 0)
                    BY_NAME(Root(), "b", Unit("u"));
                else if (nWay == 1)
                    Root().Replace(Unit("b"), Unit("u"));
                else
                    BY_SIDE(Root(), "1r", Unit("u"));
                g_hooks.clear();
                if (!m_pTree->HasRoot())
                    continue;
                EXPECT_EQ(splitframe::CheckTree(Root()), "");
                const std::string strTree = Tree();
                for (const char c : {'a', 'b', 'c', 'u'})
                    EXPECT_LE(std::count(strTree.begin(), strTree.end(), c), 1) << strTree;
                Root().ModifyWindow(CRect(0, 0, 200, 100));
            }
        }
    }
}

} // namespace
