// One line of text that is being typed: where the caret stands, and what keys do to it. Moves by whole
// characters, also those that take two units. Knows neither windows nor drawing.
#pragma once

#include <platform/base/String.h>
#include <platform/base/Types.h>

class CTextLine
{
public:
    /// Edits another text from now on: the caret goes to its end.
    void Begin(const CString& strText) { SetCaret(strText.GetLength(), strText); }

    /// Left, Right, Home, End and Delete. @return false for other keys
    bool PressKey(UINT nChar, CString& strText);
    /// A character, or Backspace. What would make the text longer than nMost units is ignored.
    /// @return whether the text has changed
    bool Type(UINT nChar, CString& strText, int nMost);

    /// Units before the caret.
    int GetCaret() const { return m_nCaret; }
    /// To the nearest place between two characters.
    void SetCaret(int nCaret, const CString& strText);

private:
    int m_nCaret = 0;
    bool m_bHalf = false; // the first half of a character has been typed, the second one follows
};
