// The archive form of a frame: its name, its unit records, its styles as lists of unit names, and which style
// is the current one. There is no version and no class in it. A count is only a claim: every item is read
// before room is made for the next, so an archive that promises more than it holds ends with an exception and
// costs nothing.
#include "definition/FrameStyle.h"
#include "definition/UnitInfo.h"
#include "document/BaseFrameDoc.h"
#include "document/MainFrame.h"
#include "document/NameIndex.h"
#include "frame/BaseFrameWnd.h"
#include "platform/base/Diagnostics.h"
#include "platform/file/Archive.h"

#include <memory>

using splitframe::RecordNames;

namespace {

// The main frame's records of global units, by name.
RecordNames GlobalRecords()
{
    const CBaseFrameWnd* pMain = splitframe::FindMainFrame();
    return pMain ? RecordNames(pMain->m_arrGlobalBaseUnitInfo) : RecordNames();
}

void ReportDropped(const CString& strFrame, const CString& strStyle, const CString& strUnit)
{
    Diagnostic diagnostic;
    diagnostic.strMessage = L"no unit has the name of this archived style entry; the entry is dropped";
    diagnostic.strFrame = strFrame;
    diagnostic.strStyle = strStyle;
    diagnostic.strName = strUnit;
    ReportDiagnostic(diagnostic);
}

void StoreStyle(CArchive& ar, const CBaseFrameStyle& style)
{
    ar << style.m_strName << style.m_arrBaseUnitInfo.GetSize();
    for (const CBaseUnitInfo* pInfo : style.m_arrBaseUnitInfo)
        ar << pInfo->m_strName;
}

// Look-ups of records by name go through an index while this lives.
class UseRecordNames
{
public:
    UseRecordNames(const RecordNames*& pInUse, const RecordNames& names) : m_pInUse(pInUse)
    {
        m_pInUse = &names;
    }
    UseRecordNames(const UseRecordNames&) = delete;
    UseRecordNames& operator=(const UseRecordNames&) = delete;
    ~UseRecordNames() { m_pInUse = nullptr; }

private:
    const RecordNames*& m_pInUse;
};

} // namespace

void CBaseFrameDoc::Serialize(CArchive& ar)
{
    if (ar.IsStoring())
        StoreFrame(ar);
    else
        LoadFrame(ar);
}

void CBaseFrameDoc::StoreFrame(CArchive& ar)
{
    ar << m_strName << m_arrBaseUnitInfo.GetSize();
    for (CBaseUnitInfo* pInfo : m_arrBaseUnitInfo)
        pInfo->Serialize(ar);
    ar << m_arrStyle.GetSize();
    for (const CBaseFrameStyle* pStyle : m_arrStyle)
        StoreStyle(ar, *pStyle);
    ar << m_nCurStyle;
}

void CBaseFrameDoc::LoadFrame(CArchive& ar)
{
    ar >> m_strName;
    int nUnits = 0;
    ar >> nUnits;
    for (int i = 0; i < nUnits; ++i)
        LoadUnit(ar);
    const RecordNames own(m_arrBaseUnitInfo);
    const RecordNames global = GlobalRecords();
    const UseRecordNames use(m_pRecordNames, own);
    int nStyles = 0;
    ar >> nStyles;
    for (int i = 0; i < nStyles; ++i)
        LoadStyle(ar, global);
    ar >> m_nCurStyle;
}

void CBaseFrameDoc::LoadUnit(CArchive& ar)
{
    auto pInfo = std::make_unique<CBaseUnitInfo>();
    pInfo->Serialize(ar);
    m_arrReadUnit.push_back(pInfo.get());
    m_arrBaseUnitInfo.Add(pInfo.release());
}

void CBaseFrameDoc::LoadStyle(CArchive& ar, const RecordNames& global)
{
    auto pStyle = std::make_unique<CBaseFrameStyle>();
    ar >> pStyle->m_strName;
    int nEntries = 0;
    ar >> nEntries;
    CString strUnit;
    for (int i = 0; i < nEntries; ++i) {
        ar >> strUnit;
        CBaseUnitInfo* pInfo = GetBaseUnitInfo(strUnit);
        if (!pInfo && (pInfo = global.Find(strUnit)))
            pInfo->m_bGlobal = true; // its window is lent to this frame from now on
        if (pInfo)
            pStyle->m_arrBaseUnitInfo.Add(pInfo);
        else
            ReportDropped(m_strName, pStyle->m_strName, strUnit);
    }
    m_arrReadStyle.push_back(pStyle.get());
    m_arrStyle.Add(pStyle.release());
}
