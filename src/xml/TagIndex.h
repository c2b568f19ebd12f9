// Where the angle brackets of a text are, found block by block while the text is copied. So the text passes
// through the processor's cache once: copied, searched and parsed before it leaves it. Knows text units only.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>

namespace splitframe::markup {

/// Finds the '<' and '>' of one text, from front to back only: no search may start before the bracket that
/// the last one found. Copies what it passes.
class TagIndex
{
public:
    /// @param pFrom  the text, of at most INT_MAX - 1 characters; must outlive the index
    /// @param pTo  where to copy it, aligned to 16 bytes, or null for no copy
    TagIndex(const wchar_t* pFrom, wchar_t* pTo, std::size_t nLength);

    /// The first bracket at nFrom or behind it; the text's length when there is none.
    int FindOpen(int nFrom) { return Find(m_open, nFrom); }
    int FindClose(int nFrom) { return Find(m_close, nFrom); }

    /// Copies what no search has passed. @return false when the text holds values above FFFF: then it has to
    /// be split into units first, and copy and positions are of no use
    bool Finish();

private:
    // Source and copy of one block fit into the first-level cache together, with room for the parser's table.
    static constexpr std::size_t BLOCK = 2048;
    static constexpr int NO_MORE = std::numeric_limits<int>::max();

    // The positions of one kind of bracket in the block, ended by NO_MORE. Finding the next one is a step in
    // a list: the processor runs ahead of it, which it can not when each position is computed from the one
    // before.
    struct List
    {
        int* pNext;
        int* pEnd;
        int arrPos[BLOCK + 8]; // some more are written than there are
    };

    int Find(List& list, int nFrom)
    {
        for (;;) {
            while (*list.pNext < nFrom)
                ++list.pNext;
            if (*list.pNext != NO_MORE)
                return *list.pNext;
            if (m_nBlockEnd == m_nLength)
                return static_cast<int>(m_nLength);
            LoadBlock();
        }
    }

    void LoadBlock();
    template <class Store> void LoadWords(std::size_t nWords);
    template <class Store> void LoadWordsWide(std::size_t nWords);
    void LoadRest(std::size_t nFrom);

    const wchar_t* m_pFrom;
    wchar_t* m_pTo;
    std::size_t m_nLength;
    std::size_t m_nBlockStart = 0;
    std::size_t m_nBlockEnd = 0;
    bool m_bWide = false; // a value above FFFF was passed
    List m_open;
    List m_close;
};

} // namespace splitframe::markup
