#include "monkey/Monkey.h"

#include "document/BaseFrameDoc.h"
#include "layout/SplitLine.h"
#include "platform/base/Exception.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace monkey {

namespace {

constexpr int MAX_DEPTH = 3;
constexpr int MAX_IN_HOOKS = 12;

Monkey* g_pMonkey = nullptr;

const Operation& Choose(Monkey& monkey)
{
    unsigned nSum = 0;
    for (const Operation& operation : Operations())
        nSum += operation.nWeight;
    unsigned nLeft = monkey.Below(nSum);
    for (const Operation& operation : Operations()) {
        if (nLeft < operation.nWeight)
            return operation;
        nLeft -= operation.nWeight;
    }
    return Operations()[0];
}

} // namespace

Monkey* Current()
{
    return g_pMonkey;
}

Monkey::Monkey(std::uint32_t nSeed, bool bTrace) : m_random(nSeed), m_bTrace(bTrace)
{
    m_host.m_pDisplay->SetClock(0);
    m_host.m_pDisplay->Resize(300, 240);
    LoadFrames(m_host);
    g_pMonkey = this;
}

Monkey::~Monkey()
{
    g_pMonkey = nullptr;
}

std::string Monkey::Step()
{
    m_nLeft = MAX_IN_HOOKS;
    DoSomething();
    std::string strFault = CheckHost(m_host);
    if (strFault.empty() && Below(3) == 0) {
        m_host.Settle();
        strFault = CheckHost(m_host);
    }
    m_host.m_arrDiagnostic.clear();
    return strFault;
}

void Monkey::DoSomething()
{
    const Operation& operation = Choose(*this);
    ++m_nDone;
    if (m_bTrace)
        std::fprintf(stderr, "%6ld %*s%s\n", m_nDone, 2 * m_nDepth, "", operation.pszName);
    ++m_nDepth;
    try {
        operation.pfnDo(*this);
    } catch (CException* pException) {
        pException->Delete();
    }
    --m_nDepth;
}

void Monkey::Hook(const CBaseUnitWnd* pUnit)
{
    if (m_nDepth == 0 || m_nDepth > MAX_DEPTH || m_nLeft == 0 || Below(30) != 0)
        return;
    --m_nLeft;
    m_arrBusy.push_back(pUnit);
    DoSomething();
    m_arrBusy.pop_back();
}

CBaseFrameDoc* Monkey::AnyDoc()
{
    const int nCount = m_host.m_pTemplate->GetDocumentCount();
    if (nCount == 0)
        return nullptr;
    return DynamicDownCast<CBaseFrameDoc>(
        m_host.m_pTemplate->GetDocument(static_cast<int>(Below(static_cast<unsigned>(nCount)))));
}

CBaseUnitWnd* Monkey::AnyUnit()
{
    std::vector<CBaseUnitWnd*> arrUnit(m_host.m_pMain->m_arrGlobalBaseUnitWnd.begin(),
                                       m_host.m_pMain->m_arrGlobalBaseUnitWnd.end());
    if (CBaseFrameDoc* pDoc = AnyDoc()) {
        std::copy(pDoc->m_arrBaseUnitWnd.begin(), pDoc->m_arrBaseUnitWnd.end(), std::back_inserter(arrUnit));
        std::copy(pDoc->m_arrWndCache.begin(), pDoc->m_arrWndCache.end(), std::back_inserter(arrUnit));
    }
    return arrUnit.empty() ? nullptr : arrUnit[Below(static_cast<unsigned>(arrUnit.size()))];
}

bool Monkey::IsBusy(const CBaseUnitWnd* pUnit) const
{
    return std::find(m_arrBusy.begin(), m_arrBusy.end(), pUnit) != m_arrBusy.end();
}

const wchar_t* Monkey::AnyName()
{
    static const wchar_t* const NAMES[] = {L"A",  L"B", L"C", L"S1", L"S2", L"S3", L"T1", L"T2",
                                           L"W1", L"a", L"b", L"c",  L"d",  L"e",  L"f",  L"g",
                                           L"h",  L"x", L"m", L"r",  L"q",  L"s",  L"",   L"no"};
    return NAMES[Below(static_cast<unsigned>(std::size(NAMES)))];
}

CPoint Monkey::AnyPoint()
{
    CBaseFrameView* pView = m_host.ActiveView();
    CSplitLine* pLine = m_host.ActiveDoc() ? m_host.ActiveDoc()->m_pRoot : nullptr;
    if (!pView || !pView->GetSafeHwnd() || !pLine || Below(3) == 0)
        return {static_cast<int>(Below(320)) - 10, static_cast<int>(Below(260)) - 10};
    while (Below(2) == 0 && (Below(2) == 0 ? pLine->m_pFirst : pLine->m_pSecond)) {
        CSplitLine* pSide = Below(2) == 0 ? pLine->m_pFirst : pLine->m_pSecond;
        if (!pSide || !pSide->m_pFirst)
            break;
        pLine = pSide;
    }
    const CRect rc = pLine->m_pFirst ? pLine->m_pFirst->GetViewRect() : pLine->GetViewRect();
    CPoint pt(rc.right - 1, rc.top + rc.Height() / 2);
    if (pLine->GetNodeType() == CSplitLine::NT_HLINE)
        pt = CPoint(rc.left + rc.Width() / 2, rc.bottom - 1);
    pView->ClientToScreen(&pt);
    return pt;
}

} // namespace monkey
