// Finds the lines by the searches by which the layout was loaded, and has the markup say what a new LRATE
// changes.
#include "RateWriter.h"

#include "definition/SplitInfo.h"
#include "platform/base/Number.h"
#include "xml/Markup.h"

#include <algorithm>
#include <functional>
#include <map>
#include <utility>

namespace viewer {
namespace {

// Told of a line whose element is the markup's child. @return false to stop
using LineFunction = std::function<bool(const _SPLIT_INFO& line)>;

class LineFinder
{
public:
    LineFinder(CMarkup& markup, const std::vector<ChangedRate>& changed, LineFunction fn)
        : m_markup(markup), m_nLeft(changed.size()), m_fn(std::move(fn))
    {
        for (const ChangedRate& change : changed)
            m_mapWanted[{change.nFrame, change.nStyle}].push_back(change.pLine);
    }

    // Forward only, in a fixed order. @return whether every line was found and told
    bool Run()
    {
        m_markup.ResetPos();
        m_markup.FindChildElem(L"GLOBAL");
        for (int nFrame = 0; m_bGoOn && m_markup.FindChildElem(L"BaseFrame"); ++nFrame) {
            m_markup.IntoElem();
            m_markup.FindChildElem(L"NAME");
            m_markup.FindChildElem(L"HELPER");
            PassUnits();
            for (int nStyle = 0; m_bGoOn && m_markup.FindChildElem(L"STYLE"); ++nStyle) {
                m_markup.IntoElem();
                m_markup.FindChildElem(L"NAME");
                PassUnits();
                TellLinesOfStyle(m_mapWanted[{nFrame, nStyle}]);
                m_markup.OutOfElem();
            }
            m_markup.OutOfElem();
        }
        m_markup.ResetPos();
        return m_bGoOn && m_nLeft == 0;
    }

private:
    void PassUnits()
    {
        while (m_markup.FindChildElem(L"BaseUnit"))
            continue;
    }

    void TellLinesOfStyle(std::vector<const _SPLIT_INFO*>& wanted)
    {
        while (m_bGoOn && !wanted.empty() && m_markup.FindChildElem(L"SPLIT")) {
            const auto it =
                std::ranges::find_if(wanted, [this](const auto* pLine) { return ChildIs(*pLine); });
            if (it == wanted.end())
                continue;
            m_bGoOn = m_fn(**it);
            wanted.erase(it);
            --m_nLeft;
        }
    }

    bool ChildIs(const _SPLIT_INFO& line) const
    {
        return m_markup.GetChildAttrib(L"NAME") == line.szName &&
               m_markup.GetChildAttrib(L"TYPE") == line.szType &&
               m_markup.GetChildAttrib(L"LEFT") == line.szLeft &&
               m_markup.GetChildAttrib(L"RIGHT") == line.szRight;
    }

    CMarkup& m_markup;
    std::map<std::pair<int, int>, std::vector<const _SPLIT_INFO*>> m_mapWanted; // by frame and style
    std::size_t m_nLeft;
    LineFunction m_fn;
    bool m_bGoOn = true;
};

CString Edited(const CString& strText, const std::vector<TextEdit>& edits)
{
    CString strNew;
    int nDone = 0;
    for (const TextEdit& edit : edits) {
        strNew += strText.Mid(nDone, edit.nPos - nDone) + edit.strText;
        nDone = edit.nPos + edit.nCount;
    }
    return strNew + strText.Mid(nDone);
}

// An LRATE without quotes, for one, is never read: another one behind it would not be, either.
bool ReadsBack(const CString& strText, const std::vector<ChangedRate>& changed)
{
    CMarkup markup(strText);
    return LineFinder(markup, changed,
                      [&markup](const _SPLIT_INFO& line) {
                          double dRate = 0.0;
                          return splitframe::TextToReal(markup.GetChildAttrib(L"LRATE"), dRate) &&
                                 dRate == line.dLRate;
                      })
        .Run();
}

} // namespace

RateEdits PlanRates(CMarkup& markup, const std::vector<ChangedRate>& changed)
{
    RateEdits plan;
    const bool bFound =
        LineFinder(markup, changed, [&](const _SPLIT_INFO& line) {
            TextEdit edit;
            if (!markup.PlanChildAttrib(L"LRATE", splitframe::RealToText(line.dLRate), edit)) {
                plan.strError = "the tag of this SPLIT has a '>' inside a quoted value and is not "
                                "changed; write &gt; there";
                plan.nErrorPosition = markup.GetChildElemPos();
                return false;
            }
            plan.edits.push_back(std::move(edit));
            return true;
        }).Run();
    if (plan.strError.empty() && (!bFound || !ReadsBack(Edited(markup.GetDoc(), plan.edits), changed)))
        plan.strError = "the LRATE of a line that was dragged can't be changed";
    return plan;
}

} // namespace viewer
