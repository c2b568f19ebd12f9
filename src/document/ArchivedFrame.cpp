// A frame that came out of an archive, on its way to be shown: it takes what an archive does not hold from
// the main frame's definition of the same name, and has a helper of its own. So it depends on no other
// document; only the global units it places are the main frame's.
#include "definition/FrameStyle.h"
#include "definition/UnitInfo.h"
#include "document/BaseFrameDoc.h"
#include "document/BaseFrameHelper.h"
#include "document/DocumentList.h"
#include "document/Listed.h"
#include "document/MainFrame.h"
#include "document/NameIndex.h"
#include "document/ObjectFactory.h"
#include "frame/BaseFrameWnd.h"

#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <utility>

using splitframe::DocumentList;
using splitframe::RemoveListed;
using splitframe::StillListed;

namespace {

const CBaseFrameStyle* FindStyleOf(const CBaseFrameDoc& doc, const CString& strName)
{
    for (const CBaseFrameStyle* pStyle : doc.m_arrStyle) {
        if (pStyle->m_strName == strName)
            return pStyle;
    }
    return nullptr;
}

// The n-th entry of a unit takes the parameter of its n-th entry in the other style, or the empty one.
void TakeParams(CBaseFrameStyle& style, const CBaseFrameStyle* pFrom)
{
    const CBaseFrameStyle nothing;
    const CBaseFrameStyle& from = pFrom ? *pFrom : nothing;
    const splitframe::EntryNames names(from);
    std::unordered_map<CString, std::size_t> mapSeen;
    for (int i = 0; i < style.m_arrBaseUnitInfo.GetSize(); ++i) {
        const CString& strUnit = style.m_arrBaseUnitInfo[i]->m_strName;
        const std::size_t nSeen = mapSeen[strUnit]++;
        if (i < style.m_arrParam.GetSize())
            continue;
        const std::vector<int>& arrAt = names.Find(strUnit);
        const bool bThere = nSeen < arrAt.size() && arrAt[nSeen] < from.m_arrParam.GetSize();
        style.m_arrParam.Add(bThere ? from.m_arrParam[arrAt[nSeen]] : CString());
    }
}

void TakeLines(CBaseFrameStyle& style, const CBaseFrameStyle& from)
{
    if (!style.m_arrSplitInfo.IsEmpty())
        return;
    for (const _SPLIT_INFO* pLine : from.m_arrSplitInfo) {
        auto pCopy = std::make_unique<_SPLIT_INFO>(*pLine);
        style.m_arrSplitInfo.Add(pCopy.get());
        static_cast<void>(pCopy.release());
    }
}

void TakeLimits(const std::vector<CBaseUnitInfo*>& arrInfo, const CBaseFrameDoc& definition)
{
    const splitframe::RecordNames names(definition.m_arrBaseUnitInfo);
    for (CBaseUnitInfo* pInfo : arrInfo) {
        if (CBaseUnitInfo* pFrom = names.Find(pInfo->m_strName))
            *pInfo = *pFrom;
    }
}

} // namespace

bool CBaseFrameDoc::TakeFromDefinition()
{
    CBaseFrameWnd* pMain = splitframe::FindMainFrame();
    const CBaseFrameDoc* pDefinition = pMain ? pMain->FindBaseFrameDoc(m_strName) : nullptr;
    if (pDefinition)
        TakeLimits(StillListed(m_arrReadUnit, m_arrBaseUnitInfo), *pDefinition);
    for (CBaseFrameStyle* pStyle : StillListed(m_arrReadStyle, m_arrStyle)) {
        const CBaseFrameStyle* pFrom = pDefinition ? FindStyleOf(*pDefinition, pStyle->m_strName) : nullptr;
        TakeParams(*pStyle, pFrom);
        if (pFrom)
            TakeLines(*pStyle, *pFrom);
    }
    if (!FindCurrentStyle())
        m_nCurStyle = 0;
    if (!m_pHelper) {
        const CBaseFrameHelper* pModel = pDefinition ? pDefinition->m_pHelper : nullptr;
        auto pHelper = pModel ? splitframe::MakeHelperLike(*pModel) : nullptr;
        OwnHelper(pHelper ? std::move(pHelper) : std::make_unique<CBaseFrameHelper>());
    }
    return pDefinition != nullptr;
}

BOOL CBaseFrameDoc::OnOpenDocument(const wchar_t* pszPathName)
{
    if (!CDocument::OnOpenDocument(pszPathName))
        return FALSE;
    TakeFromDefinition();
    if (FindCurrentStyle())
        return TRUE;
    const CArchiveException exception(CArchiveException::genericException, pszPathName);
    DeleteContents(); // without a style there is nothing to show
    ReportSaveLoadException(pszPathName, exception, FALSE);
    return FALSE;
}

void CBaseFrameDoc::DeleteContents()
{
    const auto arrStyle = StillListed(std::exchange(m_arrReadStyle, {}), m_arrStyle);
    const auto arrUnit = StillListed(std::exchange(m_arrReadUnit, {}), m_arrBaseUnitInfo);
    RemoveListed<CBaseFrameStyle>(m_arrStyle, {arrStyle.begin(), arrStyle.end()});
    for (const CBaseFrameStyle* pStyle : arrStyle)
        delete pStyle;
    const std::unordered_set<const CBaseUnitInfo*> setUnit(arrUnit.begin(), arrUnit.end());
    DocumentList::RecordsAreDeleted(setUnit);
    RemoveListed(m_arrBaseUnitInfo, setUnit);
    for (const CBaseUnitInfo* pInfo : arrUnit)
        delete pInfo;
    CDocument::DeleteContents();
}
