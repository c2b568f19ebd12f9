#include "platform/window/MenuText.h"

#include "platform/base/Unicode.h"

namespace splitframe {

namespace {

template <class LetterOf>
LetterMatch FindNext(const std::vector<CString>& arrLabel, int nAfter, wchar_t ch, LetterOf letterOf)
{
    LetterMatch match;
    const int nCount = static_cast<int>(arrLabel.size());
    for (int n = 1; n <= nCount; ++n) {
        const int nItem = (nAfter + n) % nCount;
        if (letterOf(arrLabel[static_cast<std::size_t>(nItem)]) != ch)
            continue;
        if (match.nItem >= 0)
            return {match.nItem, false};
        match = {nItem, true};
    }
    return match;
}

wchar_t FirstLetterOf(const CString& strLabel)
{
    return strLabel.IsEmpty() || MnemonicOf(strLabel) != 0 ? L'\0' : FoldCase(strLabel.GetAt(0));
}

} // namespace

MenuText SplitMenuText(const CString& strText)
{
    const int nTab = strText.Find(L'\t');
    return nTab < 0 ? MenuText{strText, CString()} : MenuText{strText.Left(nTab), strText.Mid(nTab + 1)};
}

wchar_t MnemonicOf(const CString& strLabel)
{
    for (int n = 0; n + 1 < strLabel.GetLength(); ++n) {
        if (strLabel.GetAt(n) != L'&')
            continue;
        ++n;
        if (strLabel.GetAt(n) != L'&')
            return FoldCase(strLabel.GetAt(n));
    }
    return L'\0';
}

LetterMatch FindByLetter(const std::vector<CString>& arrLabel, int nAfter, wchar_t ch)
{
    ch = FoldCase(ch);
    if (ch == L'\0')
        return {};
    const LetterMatch marked = FindNext(arrLabel, nAfter, ch, MnemonicOf);
    return marked.nItem >= 0 ? marked : FindNext(arrLabel, nAfter, ch, FirstLetterOf);
}

} // namespace splitframe
