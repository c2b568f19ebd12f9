// The text of menu items and buttons: "&" before the letter that chooses it ("&&" is an ampersand), and after
// a tab character the key that does the same. Text only; knows no menu.
#pragma once

#include "platform/base/String.h"

#include <vector>

namespace splitframe {

struct MenuText
{
    CString strLabel;    // with its "&"
    CString strShortcut; // as it is shown; empty: none
};

/// Splits at the first tab character.
MenuText SplitMenuText(const CString& strText);

/// The letter behind the "&", case folded; 0 when none is marked.
wchar_t MnemonicOf(const CString& strLabel);

struct LetterMatch
{
    int nItem = -1;     // -1: none
    bool bOnly = false; // no other item has the letter
};

/// The item that a typed letter means: the next one behind nAfter that bears it as its mnemonic, going round;
/// where no item does, the next one without a mnemonic that begins with it.
/// @param arrLabel  empty texts are never meant
LetterMatch FindByLetter(const std::vector<CString>& arrLabel, int nAfter, wchar_t ch);

} // namespace splitframe
