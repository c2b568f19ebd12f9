#include "document/SplitFaults.h"

#include "definition/FrameStyle.h"
#include "document/NameIndex.h"

namespace splitframe {
namespace {

const wchar_t* SideFault(const SplitSide& wanted, const SplitSide& planned)
{
    if (wanted.kind == SplitSide::Kind::Empty)
        return L"no split line or unit of this style has this name; the side is empty";
    if (planned.kind == SplitSide::Kind::Empty)
        return L"this name stands at another place of the tree as well; the side is empty";
    return nullptr;
}

} // namespace

void FindSplitFaults(const CBaseFrameStyle& style, const std::vector<SplitSides>& arrWanted,
                     const SplitPlan& plan,
                     const std::function<void(int, const wchar_t*, const CString&)>& report)
{
    const LineNames names(style);
    for (int i = 0; i < style.m_arrSplitInfo.GetSize(); ++i) {
        const _SPLIT_INFO& info = *style.m_arrSplitInfo[i];
        if (names.Find(info.szName) != i)
            report(i, L"an earlier split line of this style has the same name", info.szName);
        const auto n = static_cast<std::size_t>(i);
        if (!plan.Hangs(i)) {
            report(i, L"no line that hangs on the first one names this split line; it is left out",
                   info.szName);
            continue;
        }
        if (const wchar_t* pszFault = SideFault(arrWanted[n].first, plan.arrLine[n].first))
            report(i, pszFault, info.szLeft);
        if (const wchar_t* pszFault = SideFault(arrWanted[n].second, plan.arrLine[n].second))
            report(i, pszFault, info.szRight);
    }
}

} // namespace splitframe
