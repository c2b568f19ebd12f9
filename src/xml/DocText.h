// Text on its way into a document: measured first, then written where it belongs, without a copy in between.
// Only for the sources of this folder.
#pragma once

namespace splitframe::markup {

/// What becomes of the characters that mean something in markup.
enum class Encode
{
    Nothing, // they are written as they are
    Data,    // "<&>" become entities
    Attrib   // and both quotes do
};

/// A text that ends with a zero; null is empty text. Not copied: it must last until it is written.
struct DocText
{
    const wchar_t* psz;
    Encode encode = Encode::Nothing;

    bool IsEmpty() const { return !psz || *psz == 0; }
    /// Units that Write writes. @throw CMemoryException when no text can hold them
    int Length() const;
    /// @return behind what was written
    wchar_t* Write(wchar_t* pOut) const;
};

} // namespace splitframe::markup
