// Copying a text and noting its angle brackets, 64 characters at a time: with the instructions that every
// x86-64 processor has, or with wider ones where they are there. Elsewhere the same is done one character at
// a time.
#include "xml/TagIndex.h"

#include <algorithm>
#include <bit>

#ifdef __x86_64__
#include <immintrin.h>
#endif

namespace splitframe::markup {

TagIndex::TagIndex(const wchar_t* pFrom, wchar_t* pTo, std::size_t nLength)
    : m_pFrom(pFrom), m_pTo(pTo), m_nLength(nLength)
{
    for (List* pList : {&m_open, &m_close}) {
        pList->pNext = pList->pEnd = pList->arrPos;
        *pList->pEnd = NO_MORE;
    }
}

#ifdef __x86_64__

namespace {

// A copy this large will not be in the cache when it is read again, so it goes past the cache.
constexpr std::size_t LARGE = std::size_t{4} << 20;

// Where four characters go: into a text that starts at pTo, at index n.
struct StoreNothing
{
    static void Store(wchar_t*, std::size_t, __m128i) {}
};

struct StoreCached
{
    static void Store(wchar_t* pTo, std::size_t n, __m128i four)
    {
        _mm_store_si128(reinterpret_cast<__m128i*>(pTo + n), four);
    }
};

struct StorePastCache
{
    static void Store(wchar_t* pTo, std::size_t n, __m128i four)
    {
        _mm_stream_si128(reinterpret_cast<__m128i*>(pTo + n), four);
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

} // namespace

// The characters shrink to bytes (all above FF to FF or 0, which are no brackets), and each comparison then
// gives one bit for each character.
template <class Store> void TagIndex::LoadWords(std::size_t nWords)
{
    __m128i all = _mm_setzero_si128();
    for (std::size_t i = 0; i < nWords; ++i) {
        const std::size_t nStart = m_nBlockStart + 64 * i;
        std::uint64_t nOpen = 0;
        std::uint64_t nClose = 0;
        for (std::size_t j = 0; j < 64; j += 16) {
            __m128i four[4];
            for (std::size_t k = 0; k < 4; ++k) {
                four[k] = _mm_loadu_si128(reinterpret_cast<const __m128i*>(m_pFrom + nStart + j + 4 * k));
                Store::Store(m_pTo, nStart + j + 4 * k, four[k]);
                all = _mm_or_si128(all, four[k]);
            }
            const __m128i chars =
                _mm_packus_epi16(_mm_packs_epi32(four[0], four[1]), _mm_packs_epi32(four[2], four[3]));
            const int nOpens = _mm_movemask_epi8(_mm_cmpeq_epi8(chars, _mm_set1_epi8('<')));
            const int nCloses = _mm_movemask_epi8(_mm_cmpeq_epi8(chars, _mm_set1_epi8('>')));
            nOpen |= std::uint64_t{static_cast<unsigned>(nOpens)} << j;
            nClose |= std::uint64_t{static_cast<unsigned>(nCloses)} << j;
        }
        m_open.pEnd = WritePositions(m_open.pEnd, nOpen, static_cast<int>(nStart));
        m_close.pEnd = WritePositions(m_close.pEnd, nClose, static_cast<int>(nStart));
    }
    m_bWide = m_bWide || HasWide(all);
}

// The same with 32 bytes at a time. Shrinking works within halves, so the bytes are put back in order
// afterwards.
template <class Store>
__attribute__((target("avx2,bmi,popcnt"))) void TagIndex::LoadWordsWide(std::size_t nWords)
{
    const __m256i order = _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7);
    int* pOpenEnd = m_open.pEnd;
    int* pCloseEnd = m_close.pEnd;
    const wchar_t* pFrom = m_pFrom;
    wchar_t* pTo = m_pTo;
    __m256i all = _mm256_setzero_si256();
    for (std::size_t nStart = m_nBlockStart; nStart < m_nBlockStart + 64 * nWords; nStart += 64) {
        std::uint64_t nOpen = 0;
        std::uint64_t nClose = 0;
        for (std::size_t j = 0; j < 64; j += 32) {
            __m256i eight[4];
            for (std::size_t k = 0; k < 4; ++k) {
                const std::size_t n = nStart + j + 8 * k;
                eight[k] = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(pFrom + n));
                Store::Store(pTo, n, _mm256_castsi256_si128(eight[k]));
                Store::Store(pTo, n + 4, _mm256_extracti128_si256(eight[k], 1));
                all = _mm256_or_si256(all, eight[k]);
            }
            const __m256i chars =
                _mm256_permutevar8x32_epi32(_mm256_packus_epi16(_mm256_packs_epi32(eight[0], eight[1]),
                                                                _mm256_packs_epi32(eight[2], eight[3])),
                                            order);
            const int nOpens = _mm256_movemask_epi8(_mm256_cmpeq_epi8(chars, _mm256_set1_epi8('<')));
            const int nCloses = _mm256_movemask_epi8(_mm256_cmpeq_epi8(chars, _mm256_set1_epi8('>')));
            nOpen |= std::uint64_t{static_cast<unsigned>(nOpens)} << j;
            nClose |= std::uint64_t{static_cast<unsigned>(nCloses)} << j;
        }
        pOpenEnd = WritePositionsWide(pOpenEnd, nOpen, static_cast<int>(nStart));
        pCloseEnd = WritePositionsWide(pCloseEnd, nClose, static_cast<int>(nStart));
    }
    m_open.pEnd = pOpenEnd;
    m_close.pEnd = pCloseEnd;
    m_bWide = m_bWide || HasWide(_mm_or_si128(_mm256_castsi256_si128(all), _mm256_extracti128_si256(all, 1)));
}

#endif

// One character at a time.
void TagIndex::LoadRest(std::size_t nFrom)
{
    for (std::size_t n = nFrom; n < m_nBlockEnd; ++n) {
        const wchar_t ch = m_pFrom[n];
        if (m_pTo)
            m_pTo[n] = ch;
        if (ch == L'<')
            *m_open.pEnd++ = static_cast<int>(n);
        if (ch == L'>')
            *m_close.pEnd++ = static_cast<int>(n);
        m_bWide = m_bWide || static_cast<char32_t>(ch) > 0xFFFF;
    }
}

void TagIndex::LoadBlock()
{
    m_nBlockStart = m_nBlockEnd;
    m_nBlockEnd = std::min(m_nBlockStart + BLOCK, m_nLength);
    m_open.pNext = m_open.pEnd = m_open.arrPos;
    m_close.pNext = m_close.pEnd = m_close.arrPos;
    std::size_t nDone = 0;
#ifdef __x86_64__
    const std::size_t nWords = (m_nBlockEnd - m_nBlockStart) / 64;
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
    *m_open.pEnd = *m_close.pEnd = NO_MORE;
}

bool TagIndex::Finish()
{
    while (m_nBlockEnd < m_nLength)
        LoadBlock();
#ifdef __x86_64__
    _mm_sfence(); // what went past the cache is there for everybody from now on
#endif
    return !m_bWide;
}

} // namespace splitframe::markup
