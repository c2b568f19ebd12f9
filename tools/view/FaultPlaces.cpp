// Goes down the markup by names: frame, style, then what the style holds.
#include "FaultPlaces.h"

#include "platform/base/Diagnostics.h"
#include "xml/Markup.h"

#include <algorithm>
#include <initializer_list>

namespace viewer {
namespace {

// Enters the next child element of that kind whose NAME element has that text.
bool EnterNamed(CMarkup& markup, const wchar_t* pszKind, const CString& strName)
{
    while (markup.FindChildElem(pszKind)) {
        markup.IntoElem();
        if (markup.FindChildElem(L"NAME") && markup.GetChildData() == strName)
            return true;
        markup.OutOfElem();
    }
    return false;
}

// Moves to the next child of that kind one of whose attributes is the text. A search that fails starts over
// next time.
bool FindMention(CMarkup& markup, const wchar_t* pszKind, std::initializer_list<const wchar_t*> attributes,
                 const CString& strText)
{
    while (markup.FindChildElem(pszKind))
        if (std::ranges::any_of(attributes,
                                [&](const wchar_t* psz) { return markup.GetChildAttrib(psz) == strText; }))
            return true;
    markup.ResetChildPos();
    return false;
}

} // namespace

int FindFaultPlace(CMarkup& markup, const Diagnostic& fault)
{
    markup.ResetPos();
    if (!markup.FindElem() || !EnterNamed(markup, L"BaseFrame", fault.strFrame))
        return -1;
    const int nFrame = markup.GetElemPos();
    if (fault.strStyle.IsEmpty() || !EnterNamed(markup, L"STYLE", fault.strStyle))
        return nFrame;
    if (FindMention(markup, L"SPLIT", {L"LEFT", L"RIGHT"}, fault.strName) ||
        FindMention(markup, L"SPLIT", {L"NAME"}, fault.strName) ||
        FindMention(markup, L"BaseUnit", {L"NAME"}, fault.strName))
        return markup.GetChildElemPos();
    return markup.GetElemPos();
}

} // namespace viewer
