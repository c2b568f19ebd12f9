// Shares by record. A layout's records live as long as it is loaded.
#include "LineRates.h"

#include "PaneLines.h"
#include "ShortRate.h"
#include "definition/FrameStyle.h"
#include "document/BaseFrameDoc.h"
#include "frame/BaseFrameWnd.h"
#include "layout/RateRange.h"
#include "layout/SplitLine.h"

#include <functional>

namespace viewer {
namespace {

void ForEachRecord(const CBaseFrameWnd& main,
                   const std::function<void(int nFrame, int nStyle, _SPLIT_INFO*)>& fn)
{
    const auto& definitions = main.GetBaseFrameDocs();
    for (int nFrame = 0; nFrame < definitions.GetSize(); ++nFrame) {
        const auto& styles = definitions[nFrame]->m_arrStyle;
        for (int nStyle = 0; nStyle < styles.GetSize(); ++nStyle)
            for (_SPLIT_INFO* pLine : styles[nStyle]->m_arrSplitInfo)
                fn(nFrame, nStyle, pLine);
    }
}

} // namespace

void LineRates::TakeAsFile(const CBaseFrameWnd& main)
{
    m_mapInFile.clear();
    ForEachRecord(main, [this](int, int, const _SPLIT_INFO* pLine) { m_mapInFile[pLine] = pLine->dLRate; });
}

bool LineRates::Note(const CBaseFrameDoc& document)
{
    bool bMoved = false;
    for (CSplitLine* pLine : LinesOf(document)) {
        _SPLIT_INFO* pRecord = FindRecord(document, *pLine);
        const auto inFile = m_mapInFile.find(pRecord);
        if (inFile == m_mapInFile.end() || pLine->m_dLRate == pRecord->dLRate)
            continue;
        double dFrom = 0.0, dTo = 0.0;
        if (splitframe::FindRateRange(*pLine, dFrom, dTo)) {
            const auto fits = [&](double dRate) { return dFrom <= dRate && dRate < dTo; };
            const double dBefore = pRecord->dLRate;
            if (fits(inFile->second))
                pRecord->dLRate = inFile->second;
            else if (!fits(pRecord->dLRate))
                pRecord->dLRate = ShortestRate(dFrom, dTo);
            bMoved = bMoved || pRecord->dLRate != dBefore;
        }
        pLine->m_dLRate = pRecord->dLRate;
    }
    return bMoved;
}

std::vector<ChangedRate> LineRates::ListChanged(const CBaseFrameWnd& main) const
{
    std::vector<ChangedRate> changed;
    ForEachRecord(main, [&](int nFrame, int nStyle, const _SPLIT_INFO* pLine) {
        const auto inFile = m_mapInFile.find(pLine);
        if (inFile != m_mapInFile.end() && inFile->second != pLine->dLRate)
            changed.push_back({nFrame, nStyle, pLine});
    });
    return changed;
}

std::vector<LineRates::Carried> LineRates::Carry(const CBaseFrameWnd& main) const
{
    std::vector<Carried> carried;
    for (const ChangedRate& change : ListChanged(main)) {
        const CBaseFrameDoc& definition = *main.GetBaseFrameDocs()[change.nFrame];
        carried.push_back({definition.m_strName, definition.m_arrStyle[change.nStyle]->m_strName,
                           change.pLine->szName, m_mapInFile.at(change.pLine), change.pLine->dLRate});
    }
    return carried;
}

void LineRates::Apply(const std::vector<Carried>& carried, CBaseFrameWnd& main)
{
    for (const Carried& rate : carried)
        ForEachRecord(main, [&](int nFrame, int nStyle, _SPLIT_INFO* pLine) {
            const CBaseFrameDoc& definition = *main.GetBaseFrameDocs()[nFrame];
            if (definition.m_strName == rate.strFrame &&
                definition.m_arrStyle[nStyle]->m_strName == rate.strStyle && rate.strLine == pLine->szName &&
                pLine->dLRate == rate.dInFile)
                pLine->dLRate = rate.dNow;
        });
}

} // namespace viewer
