// Where the angle brackets of a text are: one bit for each character, found while the text is copied, so that
// the copy and the search for tags cost one pass over memory. Knows text units only.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace splitframe::markup {

/// The '<' and '>' of one text, for finding the next one from any position in a few steps.
class TagIndex
{
public:
    /// @param nLength  characters the text will have
    explicit TagIndex(std::size_t nLength) : m_arrWord(nLength / 64 + 1), m_nLength(nLength) {}

    /// Copies the whole text and notes its brackets.
    /// @return false when the text holds values above FFFF: then the copy and the index are of no use
    bool Copy(wchar_t* pTo, const wchar_t* pFrom);

    /// The first bracket at nFrom or behind it; the text's length when there is none.
    int FindOpen(int nFrom) const { return Find<&Word::nOpen>(nFrom); }
    int FindClose(int nFrom) const { return Find<&Word::nClose>(nFrom); }

private:
    struct Word
    {
        std::uint64_t nOpen = 0;
        std::uint64_t nClose = 0;
    };

    template <std::uint64_t Word::*MEMBER> int Find(int nFrom) const
    {
        const std::size_t nStart = static_cast<std::size_t>(nFrom);
        if (nStart >= m_nLength)
            return static_cast<int>(m_nLength);
        // The bit behind the last character is set in both masks, so every search ends.
        const Word* pWord = m_arrWord.data() + nStart / 64;
        std::uint64_t nBits = pWord->*MEMBER & (~std::uint64_t{0} << (nStart % 64));
        while (nBits == 0)
            nBits = (++pWord)->*MEMBER;
        return static_cast<int>((pWord - m_arrWord.data()) * 64 + std::countr_zero(nBits));
    }

    std::vector<Word> m_arrWord;
    std::size_t m_nLength;
};

} // namespace splitframe::markup
