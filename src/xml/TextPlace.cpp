// Counting lines and columns.
#include "xml/TextPlace.h"

#include <algorithm>

TextPlace FindTextPlace(const CString& strText, int nIndex)
{
    const std::wstring_view text = strText.View();
    const std::size_t nEnd = static_cast<std::size_t>(std::clamp(nIndex, 0, strText.GetLength()));
    TextPlace place{1, 1};
    const bool bMark = !text.empty() && text[0] == 0xFEFF; // a byte-order mark takes no column
    for (std::size_t i = bMark ? 1 : 0; i < nEnd; ++i) {
        const bool bCarriageOfPair = text[i] == L'\r' && i + 1 < text.size() && text[i + 1] == L'\n';
        if (text[i] == L'\n' || (text[i] == L'\r' && !bCarriageOfPair))
            place = {place.nLine + 1, 1};
        else if (text[i] < 0xDC00 ||
                 text[i] > 0xDFFF) // the second unit of a pair stands in its first one's column
            ++place.nColumn;
    }
    return place;
}
