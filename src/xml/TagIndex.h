// Where the angle brackets of a text are: one bit for each character, found block by block while the text is
// copied. So the text passes through the processor's cache once: copied, searched and parsed before it leaves
// it. Knows text units only.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace splitframe::markup {

/// Finds the '<' and '>' of one text, from front to back only: no search may start before the block in which
/// the last one ended. Copies what it passes.
class TagIndex
{
public:
    /// @param pFrom  the text; must outlive the index
    /// @param pTo  where to copy it, aligned to 16 bytes, or null for no copy
    TagIndex(const wchar_t* pFrom, wchar_t* pTo, std::size_t nLength);

    /// The first bracket at nFrom or behind it; the text's length when there is none.
    int FindOpen(int nFrom) { return Find<&Word::nOpen>(static_cast<std::size_t>(nFrom)); }
    int FindClose(int nFrom) { return Find<&Word::nClose>(static_cast<std::size_t>(nFrom)); }

    /// Copies what no search has passed. @return false when the text holds values above FFFF: then it has to
    /// be split into units first, and copy and positions are of no use
    bool Finish();

private:
    // Source, copy and bits of one block fit into the first-level cache together.
    static constexpr std::size_t BLOCK_WORDS = 64;
    static constexpr std::size_t BLOCK = 64 * BLOCK_WORDS;

    struct Word
    {
        std::uint64_t nOpen = 0;
        std::uint64_t nClose = 0;
    };

    template <std::uint64_t Word::*MEMBER> int Find(std::size_t nFrom)
    {
        for (;;) {
            if (nFrom >= m_nBlockEnd) {
                if (m_nBlockEnd == m_nLength)
                    return static_cast<int>(m_nLength);
                LoadBlock();
                continue;
            }
            // All bits behind the block's end are set, so every search ends.
            std::size_t i = (nFrom - m_nBlockStart) / 64;
            std::uint64_t nBits = m_arrWord[i].*MEMBER & (~std::uint64_t{0} << (nFrom % 64));
            while (nBits == 0)
                nBits = m_arrWord[++i].*MEMBER;
            nFrom = m_nBlockStart + 64 * i + static_cast<std::size_t>(std::countr_zero(nBits));
            if (nFrom < m_nBlockEnd)
                return static_cast<int>(nFrom);
        }
    }

    void LoadBlock();
    template <class Store> void LoadWords(std::size_t nWords, Store store);

    const wchar_t* m_pFrom;
    wchar_t* m_pTo;
    std::size_t m_nLength;
    std::size_t m_nBlockStart = 0;
    std::size_t m_nBlockEnd = 0;
    bool m_bWide = false;                        // a value above FFFF was passed
    std::array<Word, BLOCK_WORDS + 1> m_arrWord; // of the block; not set before the first one is loaded
};

} // namespace splitframe::markup
