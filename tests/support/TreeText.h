// A short notation for split trees, written and read: the language of tests and bug reports.
//
//   V0.3[tree H0.5[chart log-]]     a vertical line at 0.3: left "tree", right a horizontal line over two
//   units a:w50 b:h30 c:w20..300          units of fixed width, of fixed height, of limited width
//   -  collapsed                    ~  window hidden (before the first layout)
//   *  movable line                 #name  the line's name, before the bracket: V0.3*#main[a b]
//   .  an empty side
//
// Unit names are lower-case letters, digits and '_'.
#pragma once

#include "definition/UnitInfo.h"
#include "layout/SplitLine.h"
#include "platform/base/Number.h"
#include "unit/BaseUnitWnd.h"

#include <cctype>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace testing_support {

/// A tree from its text, with records and, where a host window is given, unit windows. Owns all of it; tests
/// may delete any node or unit meanwhile.
class TextTree
{
public:
    using UnitFactory = std::function<CBaseUnitWnd*()>;

    explicit TextTree(
        std::string_view strText, CWnd* pHost = nullptr,
        const UnitFactory& makeUnit = [] { return new CBaseUnitWnd; })
        : m_strText(strText), m_pHost(pHost), m_makeUnit(makeUnit)
    {
        m_start = ReadNode();
        if (m_nAt != m_strText.size())
            Fail("the end");
    }
    TextTree(const TextTree&) = delete;
    TextTree& operator=(const TextTree&) = delete;
    ~TextTree()
    {
        if (m_start && !m_start->GetUnitWnd())
            delete m_start.Get();
        for (const auto& unit : m_units)
            delete unit.Get();
    }

    CSplitLine& Root() { return *m_start; }
    CSplitLine* operator->() { return m_start; }
    bool HasRoot() const { return m_start.Get(); }
    int CountUnits() const { return static_cast<int>(m_units.size()); }
    /// In the order of the text; null when the unit has been deleted.
    CBaseUnitWnd* UnitAt(int nIndex) const
    {
        CSplitLine* pLeaf = m_units[static_cast<std::size_t>(nIndex)];
        return pLeaf ? pLeaf->GetUnitWnd() : nullptr;
    }
    CBaseUnitInfo& InfoAt(int nIndex) { return *m_infos[static_cast<std::size_t>(nIndex)]; }
    /// In the order of the text; null when the line has been deleted.
    CSplitLine* LineAt(int nIndex) const { return m_lines[static_cast<std::size_t>(nIndex)]; }
    int CountLines() const { return static_cast<int>(m_lines.size()); }
    /// The node of that name; throws when the text had none.
    CSplitLine& Node(std::string_view strName) const
    {
        for (const auto* pList : {&m_units, &m_lines}) {
            for (const auto& node : *pList) {
                if (node && node->m_strName.ToUtf8() == strName)
                    return *node;
            }
        }
        throw std::runtime_error("no node " + std::string(strName));
    }
    CBaseUnitWnd& Unit(std::string_view strName) const { return *Node(strName).GetUnitWnd(); }
    CBaseUnitInfo& Info(std::string_view strName) const { return *Unit(strName).m_pBaseUnitInfo; }

private:
    using Link = splitframe::CSplitLineLink;

    [[noreturn]] void Fail(const std::string& strExpected) const
    {
        throw std::runtime_error("tree text: expected " + strExpected + " at '" + m_strText.substr(m_nAt) +
                                 "'");
    }
    char Peek() const { return m_nAt < m_strText.size() ? m_strText[m_nAt] : '\0'; }
    bool Take(char c)
    {
        if (Peek() != c)
            return false;
        ++m_nAt;
        return true;
    }
    void Expect(char c)
    {
        if (!Take(c))
            Fail(std::string("'") + c + "'");
    }
    template <class Predicate> std::string TakeWhile(Predicate predicate)
    {
        const std::size_t nFrom = m_nAt;
        while (Peek() && predicate(Peek()))
            ++m_nAt;
        return m_strText.substr(nFrom, m_nAt - nFrom);
    }
    std::string TakeName()
    {
        return TakeWhile([](char c) {
            return std::islower(static_cast<unsigned char>(c)) ||
                   std::isdigit(static_cast<unsigned char>(c)) || c == '_';
        });
    }
    int TakeInt()
    {
        const std::string strSign = Take('-') ? "-" : "";
        return std::stoi(strSign +
                         TakeWhile([](char c) { return std::isdigit(static_cast<unsigned char>(c)); }));
    }

    CSplitLine* ReadNode()
    {
        if (Take('.'))
            return nullptr;
        return Peek() == 'V' || Peek() == 'H' ? ReadLine() : ReadUnit();
    }

    CSplitLine* ReadLine()
    {
        const auto nType = m_strText[m_nAt++] == 'V' ? CSplitLine::NT_VLINE : CSplitLine::NT_HLINE;
        auto* pLine = new CSplitLine(nType, false, m_pHost);
        m_lines.emplace_back(pLine);
        pLine->m_dLRate = std::stod(TakeWhile([](char c) {
            return std::isdigit(static_cast<unsigned char>(c)) || c == '.' || c == '-' || c == 'e';
        }));
        pLine->m_bMobile = Take('*');
        if (Take('#'))
            pLine->m_strName = CString::FromUtf8(TakeName());
        Expect('[');
        pLine->m_pFirst = Hang(ReadNode(), pLine);
        Expect(' ');
        pLine->m_pSecond = Hang(ReadNode(), pLine);
        Expect(']');
        pLine->m_bShow = !Take('-');
        return pLine;
    }

    static CSplitLine* Hang(CSplitLine* pSide, CSplitLine* pLine)
    {
        if (pSide)
            pSide->m_pParent = pLine;
        return pSide;
    }

    CSplitLine* ReadUnit()
    {
        const std::string strName = TakeName();
        if (strName.empty())
            Fail("a name");
        m_infos.push_back(std::make_unique<CBaseUnitInfo>());
        CBaseUnitInfo& info = *m_infos.back();
        info.m_strName = CString::FromUtf8(strName);
        CBaseUnitWnd* pUnit = m_makeUnit();
        m_units.emplace_back(pUnit);
        while (Take(':'))
            ReadLimits(info);
        pUnit->m_pBaseUnitInfo = &info;
        pUnit->m_strName = info.m_strName;
        const bool bHidden = Take('~');
        if (m_pHost) {
            pUnit->Create(m_pHost, &info);
            pUnit->ShowWindow(bHidden ? SW_HIDE : SW_SHOW);
        }
        pUnit->m_bShow = !Take('-');
        return pUnit;
    }

    void ReadLimits(CBaseUnitInfo& info)
    {
        const bool bWidth = Take('w');
        if (!bWidth)
            Expect('h');
        int& nMin = bWidth ? info.m_nMinWidth : info.m_nMinHeight;
        int& nMax = bWidth ? info.m_nMaxWidth : info.m_nMaxHeight;
        nMin = nMax = TakeInt();
        if (Take('.')) {
            Expect('.');
            nMax = TakeInt();
        }
    }

    std::string m_strText;
    std::size_t m_nAt = 0;
    CWnd* m_pHost;
    UnitFactory m_makeUnit;
    Link m_start;
    std::vector<Link> m_units;
    std::vector<Link> m_lines;
    std::vector<std::unique_ptr<CBaseUnitInfo>> m_infos;
};

inline std::string LimitsToText(char axis, int nMin, int nMax)
{
    if (nMin == 0 && nMax == 10000)
        return {};
    std::string strText = std::string(":") + axis + std::to_string(nMin);
    return nMin == nMax ? strText : strText + ".." + std::to_string(nMax);
}

/// The tree in the notation. Window visibility is left out.
inline std::string ToText(const CSplitLine* pNode)
{
    if (!pNode)
        return ".";
    const std::string strFlag = pNode->m_bShow ? "" : "-";
    const std::string strName = pNode->m_strName.ToUtf8();
    if (pNode->m_nType == CSplitLine::NT_UNIT) {
        const CBaseUnitInfo* pInfo = pNode->GetUnitWnd() ? pNode->GetUnitWnd()->m_pBaseUnitInfo : nullptr;
        return strName +
               (pInfo ? LimitsToText('w', pInfo->m_nMinWidth, pInfo->m_nMaxWidth) +
                            LimitsToText('h', pInfo->m_nMinHeight, pInfo->m_nMaxHeight)
                      : "") +
               strFlag;
    }
    return (pNode->m_nType == CSplitLine::NT_HLINE ? "H" : "V") +
           splitframe::RealToText(pNode->m_dLRate).ToUtf8() + (pNode->m_bMobile ? "*" : "") +
           (strName.empty() ? "" : "#" + strName) + "[" + ToText(pNode->m_pFirst) + " " +
           ToText(pNode->m_pSecond) + "]" + strFlag;
}

/// "x,y WxH".
inline std::string ToText(const CRect& rc)
{
    return std::to_string(rc.left) + "," + std::to_string(rc.top) + " " + std::to_string(rc.Width()) + "x" +
           std::to_string(rc.Height());
}

/// A unit's window rectangle in its parent's client coordinates.
inline CRect RectOf(const CBaseUnitWnd& unit)
{
    CRect rc;
    unit.GetWindowRect(rc);
    if (const CWnd* pParent = unit.GetParent())
        pParent->ScreenToClient(rc);
    return rc;
}

/// "a 0,0 100x100; b 100,0 100x100": the units in the order of the tree's text.
inline std::string PanesToText(const TextTree& tree)
{
    std::string strPanes;
    for (int i = 0; i < tree.CountUnits(); ++i) {
        if (const CBaseUnitWnd* pUnit = tree.UnitAt(i)) {
            strPanes += strPanes.empty() ? "" : "; ";
            strPanes += pUnit->m_strName.ToUtf8() + " " + ToText(RectOf(*pUnit));
        }
    }
    return strPanes;
}

} // namespace testing_support
