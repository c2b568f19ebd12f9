// Where the angle brackets of a text are, found block by block while the text is copied. So the text passes
// through the processor's cache once: copied, searched and parsed before it leaves it. Knows text units only.
#pragma once

#include <cstddef>

namespace splitframe::markup {

/// Finds the '<' and '>' of one text, from front to back only: every search has to start behind the bracket
/// that the last one found. Copies what it passes.
class TagIndex
{
public:
    /// @param pFrom  the text, of at most INT_MAX - 1 characters and a zero behind them; must outlive the
    /// index
    /// @param pTo  where to copy it, aligned to 16 bytes, or null for no copy
    TagIndex(const wchar_t* pFrom, wchar_t* pTo, std::size_t nLength);

    /// The first bracket at nFrom or behind it; the text's length when there is none.
    int FindOpen(int nFrom) { return Find(nFrom, L'<'); }
    int FindClose(int nFrom) { return Find(nFrom, L'>'); }

    /// Copies what no search has passed. @return false when the text holds values above FFFF: then it has to
    /// be split into units first, and copy and positions are of no use
    bool Finish();

private:
    // Source and copy of one block fit into the first-level cache together, with room for the parser's table.
    static constexpr int BLOCK = 2048;

    int Find(int nFrom, wchar_t ch)
    {
        for (;;) {
            const int nPos = *m_pNext++;
            if (nPos >= nFrom && m_pFrom[nPos] == ch)
                return nPos;
            if (nPos == m_nLength && !LoadBlock())
                return nPos;
        }
    }

    bool LoadBlock();
    template <class Store> void LoadWords(int nWords);
    template <class Store> void LoadWordsWide(int nWords);
    void LoadRest(int nFrom);

    const wchar_t* m_pFrom;
    wchar_t* m_pTo;
    int m_nLength;
    int m_nBlockStart = 0;
    int m_nBlockEnd = 0;
    bool m_bWide = false; // a value above FFFF was passed
    // The positions of the block's brackets, ended by the text's length. Finding the next one is a step in a
    // list: the processor runs ahead of it, which it can not when each position is computed from the one
    // before.
    int* m_pNext = m_arrPos;
    int* m_pEnd = m_arrPos;
    int m_arrPos[BLOCK + 8]; // some more are written than there are
};

} // namespace splitframe::markup
