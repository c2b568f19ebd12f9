// Reads everything that a document offers through the public operations, as a fuzz target's last step.
#pragma once

#include "../tests/xml/OpenMarkup.h"
#include "xml/TextPlace.h"

#include <cstdlib>

/// Reads names, values and data of every element and checks what must hold for any text.
inline void WalkMarkup(COpenMarkup& markup)
{
    const auto require = [](bool bHolds) {
        if (!bHolds)
            std::abort();
    };
    const int nLength = markup.GetDoc().GetLength();
    require(markup.GetFailurePos() >= -1 && markup.GetFailurePos() <= nLength);
    FindTextPlace(markup.GetDoc(), markup.GetFailurePos());
    if (!markup.IsWellFormed())
        return;
    int nElements = 0;
    for (int nLast = -1;;) {
        if (markup.FindElem()) {
            require(markup.GetElemPos() > nLast && markup.GetElemPos() < nLength); // document order
            nLast = markup.GetElemPos();
            require(!markup.GetTagName().IsEmpty());
            const CString strFirst = markup.GetAttrib(L"");
            // In an order that is none of the tag's, and one name twice.
            for (const wchar_t* pszName : {L"b", strFirst.GetString(), L"", L"a", L"b", L"a=1"})
                require(markup.GetAttrib(pszName) == markup.ScannedAttrib(pszName));
            require(markup.GetData().GetLength() < nLength);
            markup.FindChildElem(markup.GetTagName());
            markup.ResetChildPos();
            require(++nElements <= nLength / 3);
            markup.IntoElem();
        } else if (!markup.OutOfElem()) {
            break;
        } else {
            markup.ResetChildPos();
        }
    }
    require(nElements > 0);
}
