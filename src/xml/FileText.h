// A text file as bytes and as text: what encoding it has, and how to change a few characters while every
// other byte stays as it is. Knows files and encodings; knows nothing of markup.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/String.h"
#include "platform/base/Types.h"
#include "xml/TextEdit.h"

#include <memory>
#include <span>
#include <string>
#include <string_view>

/// The content of one file at the time it was read. UTF-16, low byte first, when it starts with the mark
/// FF FE, else UTF-8; a byte that is not UTF-8 stands for the character of the same number. Text ends at the
/// first zero.
class SPLITFRAME_API FileText
{
public:
    /// Reads a file. @throw CFileException when it can not be opened or read, or has 2 GB or more
    explicit FileText(const wchar_t* pszFileName);

    /// Whether the bytes can be text: no zero cuts off more than half of them and some.
    bool IsText() const;
    /// The text without the mark, as CMarkup::Load takes it for its document.
    CString GetText() const;
    /// The file's bytes.
    std::string_view GetBytes() const { return {reinterpret_cast<const char*>(m_pBytes.get()), m_nCount}; }
    /// The file's bytes with some characters of the text replaced; the mark, the encoding and every byte of
    /// all other characters stay, those that are not valid and those behind a zero included.
    /// @param edits  places in GetText, in order and not overlapping; an edit at the end of another one
    /// follows it
    std::string Apply(std::span<const TextEdit> edits) const;

private:
    bool IsUtf16() const { return m_nCount >= 2 && m_pBytes[0] == 0xFF && m_pBytes[1] == 0xFE; }
    std::string_view GetNarrow() const;
    UINT CountUnits() const;
    std::size_t SkipUnits(std::size_t nByte, int nUnits) const;

    // Two zeros follow the bytes, so that an odd last byte of UTF-16 text has its partner.
    std::unique_ptr<BYTE[]> m_pBytes;
    UINT m_nCount = 0;
    UINT m_nUnits = 0; // the length of the text in the file's own units, up to the first zero
};
