// Text on its way into a document: measured first, then written where it belongs, without a copy in between.
// Only for the sources of this folder.
#pragma once

#include <algorithm>

namespace splitframe::markup {

/// What becomes of the characters that mean something in markup.
enum class Encode
{
    Nothing, // they are written as they are
    Data,    // "<&>" become entities
    Attrib   // and both quotes do
};

/// A text that ends with a zero; null is empty text. Not copied: it must last until it is written.
class DocText
{
public:
    /// @throw CMemoryException when no document can hold it
    DocText(const wchar_t* psz, Encode encode = Encode::Nothing);

    bool IsEmpty() const { return m_nLength == 0; }
    /// Units that Write writes.
    int Length() const { return m_nLength; }
    /// @return behind what was written
    wchar_t* Write(wchar_t* pOut) const
    {
        return m_bPlain ? std::copy_n(m_psz, m_nLength, pOut) : WriteEncoded(pOut);
    }

private:
    wchar_t* WriteEncoded(wchar_t* pOut) const;

    const wchar_t* m_psz;
    Encode m_encode;
    bool m_bPlain; // every character is written as it is
    int m_nLength;
};

} // namespace splitframe::markup
