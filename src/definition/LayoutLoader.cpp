#include "definition/LayoutLoader.h"

#include "definition/FrameStyle.h"
#include "definition/LayoutFaults.h"
#include "definition/LayoutText.h"
#include "definition/LayoutValues.h"
#include "definition/StyleReader.h"
#include "definition/UnitInfo.h"
#include "definition/UnitReader.h"
#include "document/BaseFrameDoc.h"
#include "document/ObjectFactory.h"

#include <memory>

namespace splitframe {
namespace {

// The pointers of a list that is given away; the objects have a new owner from here on.
template <class TYPE> void GiveAway(std::vector<std::unique_ptr<TYPE>>& arrFrom, CArray<TYPE*, TYPE*>& arrTo)
{
    for (auto& p : arrFrom) {
        arrTo.Add(p.get());
        static_cast<void>(p.release());
    }
}

// A definition document that nobody has taken over yet: it goes with its records and styles.
struct DefinitionDeleter
{
    void operator()(CBaseFrameDoc* pDoc) const
    {
        pDoc->Clear();
        delete pDoc;
    }
};
using Definition = std::unique_ptr<CBaseFrameDoc, DefinitionDeleter>;

class LayoutReader
{
public:
    LayoutReader(FrameDocs& arrDoc, UnitInfos& arrGlobal) : m_arrDoc(arrDoc), m_arrGlobal(arrGlobal) {}

    void Read(LayoutText::Element root)
    {
        const LayoutText::Element start = root;
        if (root.Find(L"GLOBAL")) {
            ReportPassedOver(start, root.ChildPosition());
            ReadGlobals(root.Child());
        }
        for (CBaseUnitInfo* pInfo : m_arrGlobal)
            m_global.Add(pInfo);
        UniqueNames names;
        while (root.Find(L"BaseFrame")) {
            ReadFrame(root.Child());
            const CString& strName = m_arrDoc[m_arrDoc.GetUpperBound()]->m_strName;
            if (!names.Add(strName))
                m_faults.Report(L"an earlier frame has the same name", strName, root.ChildPosition());
        }
    }

private:
    // The reader does not come back for the frames that stand before the global section.
    void ReportPassedOver(LayoutText::Element before, int nEnd)
    {
        while (before.Find(L"BaseFrame") && before.ChildPosition() < nEnd) {
            LayoutText::Element frame = before.Child();
            frame.Find(L"NAME");
            m_faults.strFrame = frame.Data();
            m_faults.Report(L"the frame stands before the global section and is not read", m_faults.strFrame,
                            before.ChildPosition());
            m_faults.strFrame.Empty();
        }
    }

    void ReadGlobals(LayoutText::Element global)
    {
        auto arrInfo = ReadUnits(global, m_faults);
        GiveAway(arrInfo, m_arrGlobal);
    }

    void ReadFrame(LayoutText::Element frame)
    {
        FindRequired(frame, L"NAME", L"", m_faults);
        m_faults.strFrame = frame.Data();
        const GUID guidHelper = ReadHelper(frame);
        auto arrInfo = ReadUnits(frame, m_faults);
        UnitRecords own;
        for (const auto& pInfo : arrInfo)
            own.Add(pInfo.get());
        auto arrStyle = StyleReader(own, m_global, m_faults).ReadAll(frame);

        Definition pDoc(new CBaseFrameDoc);
        pDoc->FaultsAreTold();
        UnitInfos arrOwn;
        CArray<CBaseFrameStyle*, CBaseFrameStyle*> arrOwnStyle;
        GiveAway(arrInfo, arrOwn);
        GiveAway(arrStyle, arrOwnStyle);
        pDoc->Init(m_faults.strFrame, arrOwn, arrOwnStyle, guidHelper);
        m_arrDoc.Add(pDoc.get());
        static_cast<void>(pDoc.release());
        m_faults.strFrame.Empty();
    }

    GUID ReadHelper(LayoutText::Element& frame)
    {
        GUID guid = {};
        if (!frame.Find(L"HELPER")) {
            m_faults.Report(L"the required element HELPER is missing", m_faults.strFrame, frame.Position());
            return guid;
        }
        LayoutText::Element helper = frame.Child();
        FindRequired(helper, L"GUID", m_faults.strFrame, m_faults);
        if (!TextToGuid(helper.Data(), guid))
            m_faults.Report(L"the GUID of the helper can not be read; the frame gets the default helper",
                            m_faults.strFrame, helper.ChildPosition());
        else if (!IsHelperClass(guid))
            m_faults.Report(L"no usable helper class has this GUID; the frame gets the default helper",
                            m_faults.strFrame, helper.ChildPosition());
        return guid;
    }

    FrameDocs& m_arrDoc;
    UnitInfos& m_arrGlobal;
    UnitRecords m_global;
    LayoutFaults m_faults;
};

CLayoutLoadResult ReadParsed(LayoutText& text, FrameDocs& arrDoc, UnitInfos& arrGlobal)
{
    CLayoutLoadResult result;
    result.bOpened = text.GetFailure() != CMarkup::Failure::CannotRead;
    result.bParsed = text.GetFailure() == CMarkup::Failure::None;
    if (result.bParsed) {
        LayoutReader(arrDoc, arrGlobal).Read(text.Root());
    } else {
        result.strError = text.GetFailureText();
        result.nPosition = text.GetFailurePos();
        LayoutFaults().Report(result.strError, L"", result.nPosition);
    }
    return result;
}

} // namespace

CLayoutLoadResult LoadLayoutFile(const wchar_t* pszFile, FrameDocs& arrDoc, UnitInfos& arrGlobal)
{
    LayoutText text;
    text.Load(pszFile);
    return ReadParsed(text, arrDoc, arrGlobal);
}

CLayoutLoadResult LoadLayoutText(const wchar_t* pszText, FrameDocs& arrDoc, UnitInfos& arrGlobal)
{
    LayoutText text;
    text.SetDoc(pszText);
    return ReadParsed(text, arrDoc, arrGlobal);
}

} // namespace splitframe
