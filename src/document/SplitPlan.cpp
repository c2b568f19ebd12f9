#include "document/SplitPlan.h"

#include "document/AncestorForest.h"

#include <cstddef>
#include <utility>

namespace splitframe {
namespace {

// A link is a line and one of its sides: twice the line, plus one for the second side. So later links have
// larger numbers.
constexpr int NO_LINK = -1;

class Planner
{
public:
    Planner(const std::vector<SplitSides>& arrWanted, int nLeaves)
        : m_arrWanted(arrWanted), m_arrLineLink(arrWanted.size(), NO_LINK),
          m_arrLeafLink(static_cast<std::size_t>(nLeaves), NO_LINK),
          m_forest(static_cast<int>(arrWanted.size()))
    {
        m_plan.arrLine.resize(arrWanted.size());
        m_plan.arrHangs.resize(arrWanted.size(), 0);
    }

    SplitPlan Make()
    {
        if (!m_arrWanted.empty()) {
            HangFromRoot();
            for (int nLink = 0; nLink < LinkCount(); ++nLink)
                TakeOver(nLink);
            for (int nLink = 0; nLink < LinkCount(); ++nLink)
                Keep(nLink);
        }
        return std::move(m_plan);
    }

private:
    int LinkCount() const { return 2 * static_cast<int>(m_arrWanted.size()); }

    const SplitSide& Wanted(int nLink) const
    {
        const SplitSides& sides = m_arrWanted[static_cast<std::size_t>(nLink / 2)];
        return nLink % 2 == 0 ? sides.first : sides.second;
    }

    int& Holder(const SplitSide& side)
    {
        auto& arrLink = side.kind == SplitSide::Kind::Line ? m_arrLineLink : m_arrLeafLink;
        return arrLink[static_cast<std::size_t>(side.nIndex)];
    }

    // Every line that the root reaches gets a first place, nearest to the root. From then on lines only move
    // from one line of the tree to another, so none is lost.
    void HangFromRoot()
    {
        std::vector<int> arrReached{0};
        m_plan.arrHangs[0] = 1;
        for (std::size_t nNext = 0; nNext < arrReached.size(); ++nNext) {
            const int nLine = arrReached[nNext];
            for (const int nLink : {2 * nLine, 2 * nLine + 1}) {
                const SplitSide& side = Wanted(nLink);
                if (side.kind != SplitSide::Kind::Line || m_plan.Hangs(side.nIndex))
                    continue;
                m_plan.arrHangs[static_cast<std::size_t>(side.nIndex)] = 1;
                Holder(side) = nLink;
                m_forest.Link(side.nIndex, nLine);
                arrReached.push_back(side.nIndex);
            }
        }
    }

    // The last line that names a child holds it.
    void TakeOver(int nLink)
    {
        const SplitSide& side = Wanted(nLink);
        const int nLine = nLink / 2;
        if (side.kind == SplitSide::Kind::Empty || !m_plan.Hangs(nLine))
            return;
        if (side.kind == SplitSide::Kind::Line) {
            const bool bRoot = side.nIndex == 0;
            if (bRoot || nLink <= Holder(side) || m_forest.IsAbove(side.nIndex, nLine))
                return;
            m_forest.Cut(side.nIndex);
            m_forest.Link(side.nIndex, nLine);
        }
        Holder(side) = nLink;
    }

    void Keep(int nLink)
    {
        const SplitSide& side = Wanted(nLink);
        if (side.kind == SplitSide::Kind::Empty || Holder(side) != nLink)
            return;
        SplitSides& sides = m_plan.arrLine[static_cast<std::size_t>(nLink / 2)];
        (nLink % 2 == 0 ? sides.first : sides.second) = side;
    }

    const std::vector<SplitSides>& m_arrWanted;
    std::vector<int> m_arrLineLink; // the link that holds each line
    std::vector<int> m_arrLeafLink; // the link that holds each leaf
    AncestorForest m_forest;
    SplitPlan m_plan;
};

} // namespace

SplitPlan PlanSplitTree(const std::vector<SplitSides>& arrWanted, int nLeaves)
{
    return Planner(arrWanted, nLeaves).Make();
}

} // namespace splitframe
