// Copying a text and noting its angle brackets, 64 characters at a time. SSE2 is in every x86-64 processor;
// elsewhere the same is done one character at a time.
#include "xml/TagIndex.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace splitframe::markup {

namespace {

struct Bits
{
    std::uint64_t nOpen = 0;
    std::uint64_t nClose = 0;
    bool bWide = false; // a value above FFFF
};

void CopyFew(Bits& bits, wchar_t* pTo, const wchar_t* pFrom, std::size_t nCount)
{
    for (std::size_t i = 0; i < nCount; ++i) {
        const wchar_t ch = pFrom[i];
        pTo[i] = ch;
        bits.nOpen |= std::uint64_t{ch == L'<'} << i;
        bits.nClose |= std::uint64_t{ch == L'>'} << i;
        bits.bWide |= static_cast<char32_t>(ch) > 0xFFFF;
    }
}

#ifdef __SSE2__

// Sixteen characters: they shrink to bytes (all above FF to FF or 0, which are no brackets), and each
// comparison then gives sixteen bits at once.
inline __m128i CopySixteen(std::uint64_t& nOpen, std::uint64_t& nClose, wchar_t* pTo, const wchar_t* pFrom)
{
    __m128i four[4];
    for (int i = 0; i < 4; ++i) {
        four[i] = _mm_loadu_si128(reinterpret_cast<const __m128i*>(pFrom) + i);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(pTo) + i, four[i]);
    }
    const __m128i bytes =
        _mm_packus_epi16(_mm_packs_epi32(four[0], four[1]), _mm_packs_epi32(four[2], four[3]));
    nOpen = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('<'))));
    nClose = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('>'))));
    return _mm_or_si128(_mm_or_si128(four[0], four[1]), _mm_or_si128(four[2], four[3]));
}

void CopyWord(Bits& bits, __m128i& all, wchar_t* pTo, const wchar_t* pFrom)
{
    bits.nOpen = 0;
    bits.nClose = 0;
    for (int i = 0; i < 4; ++i) {
        std::uint64_t nOpen = 0;
        std::uint64_t nClose = 0;
        all = _mm_or_si128(all, CopySixteen(nOpen, nClose, pTo + 16 * i, pFrom + 16 * i));
        bits.nOpen |= nOpen << (16 * i);
        bits.nClose |= nClose << (16 * i);
    }
}

bool HasWide(__m128i all)
{
    const __m128i high = _mm_srli_epi32(all, 16);
    return _mm_movemask_epi8(_mm_cmpeq_epi32(high, _mm_setzero_si128())) != 0xFFFF;
}

#endif

} // namespace

bool TagIndex::Copy(wchar_t* pTo, const wchar_t* pFrom)
{
    const std::size_t nWords = m_nLength / 64;
    Bits bits;
#ifdef __SSE2__
    __m128i all = _mm_setzero_si128();
    for (std::size_t i = 0; i < nWords; ++i) {
        CopyWord(bits, all, pTo + 64 * i, pFrom + 64 * i);
        m_arrWord[i] = {bits.nOpen, bits.nClose};
    }
    if (HasWide(all))
        return false;
#else
    for (std::size_t i = 0; i < nWords; ++i) {
        bits = {0, 0, bits.bWide};
        CopyFew(bits, pTo + 64 * i, pFrom + 64 * i, 64);
        m_arrWord[i] = {bits.nOpen, bits.nClose};
    }
#endif
    bits = {0, 0, bits.bWide};
    CopyFew(bits, pTo + 64 * nWords, pFrom + 64 * nWords, m_nLength % 64);
    const std::uint64_t nEnd = std::uint64_t{1} << (m_nLength % 64);
    m_arrWord[nWords] = {bits.nOpen | nEnd, bits.nClose | nEnd};
    return !bits.bWide;
}

} // namespace splitframe::markup
