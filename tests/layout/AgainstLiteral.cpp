// Random trees laid out by the library and by the literal algorithm side by side, with hooks that change
// records, rates, flags, visibility and sizes in the middle: the same rectangles, records, rates, hook calls
// and stacking order.
#include "LiteralLayout.h"
#include "RandomTree.h"
#include "layout/CheckTree.h"
#include "layout/TreeDump.h"
#include "support/HostWindow.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <map>

namespace {

using random_tree::Dice;
using testing_support::HostWindow;
using testing_support::RectOf;
using testing_support::TextTree;

// One thing that a hook does to its own tree.
struct Action
{
    int nKind;
    int nTarget;
    int nValue;
};

class Stage;

// A unit that follows a script: what to do at its n-th hook call.
class ScriptedUnit : public CBaseUnitWnd
{
public:
    ScriptedUnit(Stage& stage, bool bHandlesSize) : m_stage(stage), m_bHandlesSize(bHandlesSize) {}
    void ProcessActivate2(bool) override { Hook("activate"); }

    std::map<int, std::vector<Action>> m_script;

protected:
    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT nResult = CBaseUnitWnd::WindowProc(nMessage, wParam, lParam);
        if (m_bHandlesSize && nMessage == WM_SIZE)
            Hook("size");
        return nResult;
    }

private:
    void Hook(const char* pszWhat);

    Stage& m_stage;
    bool m_bHandlesSize;
    int m_nCalls = 0;
};

// A host window with one tree, its scripts and the log of its hooks.
class Stage
{
public:
    Stage(const std::string& strTree, std::uint32_t nSeed)
    {
        Dice dice(nSeed);
        m_tree = std::make_unique<TextTree>(
            strTree, &m_host, [&]() -> CBaseUnitWnd* { return new ScriptedUnit(*this, dice.OneIn(3)); });
        const int nUnits = m_tree->CountUnits();
        for (int i = dice.Roll(nUnits + 2); i > 0; --i) {
            auto* pUnit = static_cast<ScriptedUnit*>(m_tree->UnitAt(dice.Roll(nUnits)));
            pUnit->m_script[dice.Roll(3)].push_back({dice.Roll(8), dice.Roll(1000), dice.Roll(1000)});
        }
        m_bReady = true;
    }

    TextTree& Tree() { return *m_tree; }

    void Hook(CBaseUnitWnd& unit, const char* pszWhat, const std::vector<Action>* pActions)
    {
        if (!m_bReady)
            return;
        m_strLog += std::string(pszWhat) + " " + unit.m_strName.ToUtf8() + "\n";
        if (!pActions)
            return;
        for (const Action& action : *pActions)
            Do(action);
    }

    std::string Describe()
    {
        std::string strText = m_strLog;
        for (int i = 0; i < m_tree->CountUnits(); ++i) {
            const CBaseUnitWnd& unit = *m_tree->UnitAt(i);
            const CBaseUnitInfo& info = m_tree->InfoAt(i);
            strText += unit.m_strName.ToUtf8() + " " + testing_support::ToText(RectOf(unit)) + " record " +
                       std::to_string(info.m_x) + " " + std::to_string(info.m_y) + " " +
                       std::to_string(info.m_cx) + " " + std::to_string(info.m_cy) +
                       (unit.IsWindowVisible() ? " visible" : " hidden") +
                       (unit.m_bActivated ? " active\n" : "\n");
        }
        for (HWND h = ::GetWindow(m_host.m_hWnd, GW_CHILD); h; h = ::GetWindow(h, GW_HWNDNEXT))
            strText += static_cast<ScriptedUnit*>(CWnd::FromHandle(h))->m_strName.ToUtf8() + " ";
        return strText + "\n" + testing_support::ToText(&m_tree->Root());
    }

private:
    void Do(const Action& action)
    {
        const int nUnit = action.nTarget % m_tree->CountUnits();
        CBaseUnitWnd& unit = *m_tree->UnitAt(nUnit);
        CBaseUnitInfo& info = m_tree->InfoAt(nUnit);
        const int nLines = m_tree->CountLines();
        CSplitLine* pLine = nLines ? m_tree->LineAt(action.nTarget % nLines) : nullptr;
        switch (action.nKind) {
        case 0:
            unit.SetHeightFixed(action.nValue % 2);
            break;
        case 1:
            info.m_nMinWidth = info.m_nMaxWidth = action.nValue;
            break;
        case 2:
            info.m_nMinHeight = action.nValue;
            break;
        case 3:
            if (pLine)
                pLine->m_dLRate = action.nValue / 1000.0;
            break;
        case 4:
            (action.nValue % 2 || !pLine ? static_cast<CSplitLine&>(unit) : *pLine).m_bShow =
                action.nValue % 3 != 0;
            break;
        case 5:
            unit.ShowWindow(action.nValue % 2 ? SW_SHOW : SW_HIDE);
            break;
        case 6:
            unit.m_bActivated = false;
            break;
        default:
            ::SetWindowPos(unit.m_hWnd, nullptr, action.nValue, 3, action.nValue / 2, 40, 0);
            break;
        }
    }

    HostWindow m_host{CRect(7, 11, 900, 700)};
    std::unique_ptr<TextTree> m_tree;
    std::string m_strLog;
    bool m_bReady = false;
};

void ScriptedUnit::Hook(const char* pszWhat)
{
    const auto actions = m_script.find(m_nCalls++);
    m_stage.Hook(*this, pszWhat, actions == m_script.end() ? nullptr : &actions->second);
}

CRect RandomRect(Dice& dice)
{
    if (dice.OneIn(15))
        return {-2000000000, 0, 2000000000, 100};
    const int x = dice.Roll(50) - 10, y = dice.Roll(50) - 10;
    return {x, y, x + dice.Roll(900), y + dice.Roll(700)};
}

// One operation on both trees; what it answers must agree too.
void Step(Dice& dice, CSplitLine& tested, CSplitLine& plain, int nLines)
{
    switch (dice.Roll(5)) {
    case 0:
        tested.ModifyWindow();
        literal::ModifyWindow(&plain);
        break;
    case 1:
        tested.ReCalRate();
        literal::ReCalRate(&plain);
        break;
    case 2: {
        CString strName;
        strName.Format(L"l%d", dice.Roll(nLines + 1));
        const double dRate = dice.Roll(100) / 100.0;
        EXPECT_EQ(tested.ModifyWindow(strName, dRate), literal::ModifyWindow(&plain, strName, dRate));
        break;
    }
    default: {
        const CRect rc = RandomRect(dice);
        tested.ModifyWindow(rc);
        literal::ModifyWindow(&plain, rc);
        break;
    }
    }
}

void CompareQueries(CSplitLine& tested, CSplitLine& plain)
{
    EXPECT_EQ(tested.GetMinWidth(), literal::MinWidth(&plain));
    EXPECT_EQ(tested.GetMaxWidth(), literal::MaxWidth(&plain));
    EXPECT_EQ(tested.GetMinHeight(), literal::MinHeight(&plain));
    EXPECT_EQ(tested.GetMaxHeight(), literal::MaxHeight(&plain));
    EXPECT_EQ(testing_support::ToText(tested.GetViewRect()),
              testing_support::ToText(literal::ViewRect(&plain)));
}

void RunCase(std::uint32_t nSeed)
{
    Dice dice(nSeed);
    int nUnits = 0, nLines = 0;
    const std::string strTree =
        random_tree::Tree(dice, 2 + dice.Roll(dice.OneIn(4) ? 40 : 8), nUnits, nLines);
    SCOPED_TRACE("seed " + std::to_string(nSeed) + ", tree " + strTree);
    Stage tested(strTree, nSeed), plain(strTree, nSeed);
    for (int i = 0; i < 5 && !testing::Test::HasFailure(); ++i) {
        Step(dice, tested.Tree().Root(), plain.Tree().Root(), nLines);
        EXPECT_EQ(tested.Describe(), plain.Describe()) << "after step " << i;
        CompareQueries(tested.Tree().Root(), plain.Tree().Root());
        EXPECT_EQ(splitframe::CheckTree(tested.Tree().Root()), "");
    }
}

// Repeat one case: RunCase with the seed that the trace names.
TEST(AgainstLiteral, EqualForRandomTreesAndHooks)
{
    for (std::uint32_t nSeed = 1; nSeed <= 1500 && !HasFailure(); ++nSeed)
        RunCase(nSeed);
}

} // namespace
