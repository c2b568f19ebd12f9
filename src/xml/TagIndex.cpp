// Copying a text and noting its angle brackets, 64 characters at a time: with the instructions that every
// x86-64 processor has, or with wider ones where they are there. Elsewhere the same is done one character at
// a time.
#include "xml/TagIndex.h"

#include "xml/MarkupScan.h"

#include <algorithm>
#include <bit>
#include <cstdint>

#ifdef __x86_64__
#include <immintrin.h>
#endif

namespace splitframe::markup {

TagIndex::TagIndex(const wchar_t* pFrom, wchar_t* pTo, std::size_t nLength)
    : m_pFrom(pFrom), m_pTo(pTo), m_nLength(static_cast<int>(nLength))
{
    *m_pEnd = m_nLength;
}

#ifdef __x86_64__

namespace {

// A copy this large will not be in the cache when it is read again, so it goes past the cache.
constexpr int LARGE = 4 << 20;

// Where four or eight characters go: to the index n of a copy, whose start is aligned for four.
struct StoreNothing
{
    static void Four(wchar_t*, int, __m128i) {}
    __attribute__((target("avx2"))) static void Eight(wchar_t*, int, __m256i) {}
};

struct StoreCached
{
    static void Four(wchar_t* pTo, int n, __m128i four)
    {
        _mm_store_si128(reinterpret_cast<__m128i*>(pTo + n), four);
    }
    __attribute__((target("avx2"))) static void Eight(wchar_t* pTo, int n, __m256i eight)
    {
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(pTo + n), eight);
    }
};

struct StorePastCache
{
    static void Four(wchar_t* pTo, int n, __m128i four)
    {
        _mm_stream_si128(reinterpret_cast<__m128i*>(pTo + n), four);
    }
    __attribute__((target("avx2"))) static void Eight(wchar_t* pTo, int n, __m256i eight)
    {
        Four(pTo, n, _mm256_castsi256_si128(eight));
        Four(pTo, n + 4, _mm256_extracti128_si256(eight, 1));
    }
};

bool HasWide(__m128i all)
{
    const __m128i high = _mm_srli_epi32(all, 16);
    return _mm_movemask_epi8(_mm_cmpeq_epi32(high, _mm_setzero_si128())) != 0xFFFF;
}

// Writes the positions of all bits. @return behind the last one
inline int* WritePositions(int* pOut, std::uint64_t nBits, int nStart)
{
    for (; nBits != 0; nBits &= nBits - 1)
        *pOut++ = nStart + std::countr_zero(nBits);
    return pOut;
}

// The same, the first four without asking whether they are there: there are rarely more among 64 characters.
__attribute__((target("avx2,bmi,popcnt"))) inline int* WritePositionsWide(int* pOut, std::uint64_t nBits,
                                                                          int nStart)
{
    int* pEnd = pOut + std::popcount(nBits);
    for (int i = 0; i < 4; ++i, nBits &= nBits - 1)
        pOut[i] = nStart + std::countr_zero(nBits);
    for (pOut += 4; nBits != 0; nBits &= nBits - 1)
        *pOut++ = nStart + std::countr_zero(nBits);
    return pEnd;
}

bool HasWideInstructions()
{
    static const bool bHas =
        __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi") && __builtin_cpu_supports("popcnt");
    return bHas;
}

// Both brackets become '>' with this bit, and nothing else does.
static_assert(('<' | 2) == '>');

} // namespace

// The characters shrink to bytes (all above FF to FF or 0, which are no brackets), and one comparison then
// gives one bit for each character.
template <class Store> void TagIndex::LoadWords(int nWords)
{
    __m128i all = _mm_setzero_si128();
    for (int nStart = m_nBlockStart; nStart < m_nBlockStart + 64 * nWords; nStart += 64) {
        std::uint64_t nBrackets = 0;
        Prefetch(m_pFrom + nStart, BLOCK, 64);
        for (int j = 0; j < 64; j += 16) {
            __m128i four[4];
            for (int k = 0; k < 4; ++k) {
                const int n = nStart + j + 4 * k;
                four[k] = _mm_loadu_si128(reinterpret_cast<const __m128i*>(m_pFrom + n));
                Store::Four(m_pTo, n, four[k]);
                all = _mm_or_si128(all, four[k]);
            }
            const __m128i chars =
                _mm_packus_epi16(_mm_packs_epi32(four[0], four[1]), _mm_packs_epi32(four[2], four[3]));
            const __m128i hits = _mm_cmpeq_epi8(_mm_or_si128(chars, _mm_set1_epi8(2)), _mm_set1_epi8('>'));
            nBrackets |= std::uint64_t{static_cast<unsigned>(_mm_movemask_epi8(hits))} << j;
        }
        m_pEnd = WritePositions(m_pEnd, nBrackets, nStart);
    }
    m_bWide = m_bWide || HasWide(all);
}

// The same with 32 bytes at a time. Shrinking works within halves, so the bytes are put back in order
// afterwards.
template <class Store> __attribute__((target("avx2,bmi,popcnt"))) void TagIndex::LoadWordsWide(int nWords)
{
    const __m256i order = _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7);
    const wchar_t* pFrom = m_pFrom;
    wchar_t* pTo = m_pTo;
    int* pEnd = m_pEnd;
    __m256i all = _mm256_setzero_si256();
    for (int nStart = m_nBlockStart; nStart < m_nBlockStart + 64 * nWords; nStart += 64) {
        std::uint64_t nBrackets = 0;
        Prefetch(pFrom + nStart, BLOCK, 64); // of the next block, while this one is worked on
        for (int j = 0; j < 64; j += 32) {
            __m256i eight[4];
            for (int k = 0; k < 4; ++k) {
                const int n = nStart + j + 8 * k;
                eight[k] = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(pFrom + n));
                Store::Eight(pTo, n, eight[k]);
                all = _mm256_or_si256(all, eight[k]);
            }
            const __m256i chars =
                _mm256_permutevar8x32_epi32(_mm256_packus_epi16(_mm256_packs_epi32(eight[0], eight[1]),
                                                                _mm256_packs_epi32(eight[2], eight[3])),
                                            order);
            const __m256i hits =
                _mm256_cmpeq_epi8(_mm256_or_si256(chars, _mm256_set1_epi8(2)), _mm256_set1_epi8('>'));
            nBrackets |= std::uint64_t{static_cast<unsigned>(_mm256_movemask_epi8(hits))} << j;
        }
        pEnd = WritePositionsWide(pEnd, nBrackets, nStart);
    }
    m_pEnd = pEnd;
    m_bWide = m_bWide || HasWide(_mm_or_si128(_mm256_castsi256_si128(all), _mm256_extracti128_si256(all, 1)));
}

#endif

// One character at a time.
void TagIndex::LoadRest(int nFrom)
{
    for (int n = nFrom; n < m_nBlockEnd; ++n) {
        const wchar_t ch = m_pFrom[n];
        if (m_pTo)
            m_pTo[n] = ch;
        if (ch == L'<' || ch == L'>')
            *m_pEnd++ = n;
        m_bWide = m_bWide || static_cast<char32_t>(ch) > 0xFFFF;
    }
}

// @return false at the end of the text, where it changes nothing but to say so once more
bool TagIndex::LoadBlock()
{
    m_pNext = m_pEnd = m_arrPos;
    *m_pEnd = m_nLength;
    if (m_nBlockEnd == m_nLength)
        return false;
    m_nBlockStart = m_nBlockEnd;
    m_nBlockEnd += std::min(BLOCK, m_nLength - m_nBlockStart);
    int nDone = 0;
#ifdef __x86_64__
    const int nWords = (m_nBlockEnd - m_nBlockStart) / 64;
    nDone = 64 * nWords;
    const bool bWide = HasWideInstructions();
    if (!m_pTo)
        bWide ? LoadWordsWide<StoreNothing>(nWords) : LoadWords<StoreNothing>(nWords);
    else if (m_nLength < LARGE)
        bWide ? LoadWordsWide<StoreCached>(nWords) : LoadWords<StoreCached>(nWords);
    else
        bWide ? LoadWordsWide<StorePastCache>(nWords) : LoadWords<StorePastCache>(nWords);
#endif
    LoadRest(m_nBlockStart + nDone);
    *m_pEnd = m_nLength;
    return true;
}

bool TagIndex::Finish()
{
    while (LoadBlock()) {
    }
#ifdef __x86_64__
    _mm_sfence(); // what went past the cache is there for everybody from now on
#endif
    return !m_bWide;
}

} // namespace splitframe::markup
