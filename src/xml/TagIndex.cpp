// Copying a text and noting its angle brackets, 64 characters at a time. SSE2 is in every x86-64 processor;
// elsewhere the same is done one character at a time.
#include "xml/TagIndex.h"

#include <algorithm>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace splitframe::markup {

namespace {

// A copy this large will not be in the cache when it is read again, so it goes past the cache.
[[maybe_unused]] constexpr std::size_t LARGE = std::size_t{4} << 20;

#ifdef __SSE2__

struct StoreNothing
{
    void operator()(wchar_t*, __m128i) const {}
};

struct StoreCached
{
    void operator()(wchar_t* pTo, __m128i four) const
    {
        _mm_store_si128(reinterpret_cast<__m128i*>(pTo), four);
    }
};

struct StorePastCache
{
    void operator()(wchar_t* pTo, __m128i four) const
    {
        _mm_stream_si128(reinterpret_cast<__m128i*>(pTo), four);
    }
};

// Sixteen characters: they shrink to bytes (all above FF to FF or 0, which are no brackets), and each
// comparison then gives sixteen bits at once. @return all values ORed together
template <class Store>
inline __m128i CopySixteen(std::uint64_t& nOpen, std::uint64_t& nClose, wchar_t* pTo, const wchar_t* pFrom,
                           Store store)
{
    __m128i four[4];
    for (int i = 0; i < 4; ++i) {
        four[i] = _mm_loadu_si128(reinterpret_cast<const __m128i*>(pFrom) + i);
        store(pTo + 4 * i, four[i]);
    }
    const __m128i bytes =
        _mm_packus_epi16(_mm_packs_epi32(four[0], four[1]), _mm_packs_epi32(four[2], four[3]));
    nOpen = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('<'))));
    nClose = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('>'))));
    return _mm_or_si128(_mm_or_si128(four[0], four[1]), _mm_or_si128(four[2], four[3]));
}

bool HasWide(__m128i all)
{
    const __m128i high = _mm_srli_epi32(all, 16);
    return _mm_movemask_epi8(_mm_cmpeq_epi32(high, _mm_setzero_si128())) != 0xFFFF;
}

#endif

} // namespace

TagIndex::TagIndex(const wchar_t* pFrom, wchar_t* pTo, std::size_t nLength)
    : m_pFrom(pFrom), m_pTo(pTo), m_nLength(nLength)
{
}

#ifdef __SSE2__

template <class Store> void TagIndex::LoadWords(std::size_t nWords, Store store)
{
    __m128i all = _mm_setzero_si128();
    const wchar_t* pFrom = m_pFrom + m_nBlockStart;
    wchar_t* pTo = m_pTo ? m_pTo + m_nBlockStart : nullptr;
    for (std::size_t i = 0; i < nWords; ++i) {
        Word word;
        for (std::size_t j = 0; j < 64; j += 16) {
            std::uint64_t nOpen = 0;
            std::uint64_t nClose = 0;
            all = _mm_or_si128(all, CopySixteen(nOpen, nClose, pTo + 64 * i + j, pFrom + 64 * i + j, store));
            word.nOpen |= nOpen << j;
            word.nClose |= nClose << j;
        }
        m_arrWord[i] = word;
    }
    m_bWide = m_bWide || HasWide(all);
}

#endif

void TagIndex::LoadBlock()
{
    m_nBlockStart = m_nBlockEnd;
    m_nBlockEnd = std::min(m_nBlockStart + BLOCK, m_nLength);
    std::size_t nDone = 0;
#ifdef __SSE2__
    nDone = (m_nBlockEnd - m_nBlockStart) / 64;
    if (!m_pTo)
        LoadWords(nDone, StoreNothing());
    else if (m_nLength < LARGE)
        LoadWords(nDone, StoreCached());
    else
        LoadWords(nDone, StorePastCache());
#endif
    for (std::size_t i = nDone; i <= BLOCK_WORDS; ++i)
        m_arrWord[i] = {};
    for (std::size_t n = m_nBlockStart + 64 * nDone; n < m_nBlockEnd; ++n) {
        const wchar_t ch = m_pFrom[n];
        if (m_pTo)
            m_pTo[n] = ch;
        Word& word = m_arrWord[(n - m_nBlockStart) / 64];
        word.nOpen |= std::uint64_t{ch == L'<'} << (n % 64);
        word.nClose |= std::uint64_t{ch == L'>'} << (n % 64);
        m_bWide = m_bWide || static_cast<char32_t>(ch) > 0xFFFF;
    }
    Word& last = m_arrWord[(m_nBlockEnd - m_nBlockStart) / 64];
    const std::uint64_t nBehind = ~std::uint64_t{0} << (m_nBlockEnd % 64);
    last = {last.nOpen | nBehind, last.nClose | nBehind};
}

bool TagIndex::Finish()
{
    while (m_nBlockEnd < m_nLength)
        LoadBlock();
#ifdef __SSE2__
    _mm_sfence(); // what went past the cache is there for everybody from now on
#endif
    return !m_bWide;
}

} // namespace splitframe::markup
