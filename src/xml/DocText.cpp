// Encoding characters as entities, and splitting those above FFFF into units.
#include "xml/DocText.h"

#include "platform/base/Exception.h"
#include "platform/base/Unicode.h"
#include "xml/Entities.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace splitframe::markup {

namespace {

using Bits = unsigned long long;

// One bit for each character below 64 that is not written as it is, the terminating zero included.
Bits SpecialBits(Encode encode)
{
    constexpr Bits DATA = 1 | 1ULL << '<' | 1ULL << '&' | 1ULL << '>';
    constexpr Bits ATTRIB = DATA | 1ULL << '\'' | 1ULL << '"';
    return encode == Encode::Nothing ? 1 : encode == Encode::Data ? DATA : ATTRIB;
}

bool Has(Bits nBits, wchar_t ch)
{
    return static_cast<char32_t>(ch) < 64 && (nBits >> ch & 1) != 0;
}

std::wstring_view EntityName(wchar_t ch)
{
    return std::find_if(std::begin(ENTITIES), std::end(ENTITIES),
                        [ch](const Entity& entity) { return entity.ch == ch; })
        ->name;
}

} // namespace

DocText::DocText(const wchar_t* psz, Encode encode) : m_psz(psz ? psz : L""), m_encode(encode)
{
    const Bits nBits = SpecialBits(encode);
    const wchar_t* p = m_psz;
    while (!Has(nBits, *p) && UnitsOf(*p) == 1)
        ++p;
    m_bPlain = *p == 0;
    std::size_t nLength = static_cast<std::size_t>(p - m_psz);
    for (; *p != 0; ++p)
        nLength += Has(nBits, *p) ? 1 + EntityName(*p).size() : static_cast<std::size_t>(UnitsOf(*p));
    if (nLength >= static_cast<std::size_t>(std::numeric_limits<int>::max()))
        AfxThrowMemoryException();
    m_nLength = static_cast<int>(nLength);
}

wchar_t* DocText::WriteEncoded(wchar_t* pOut) const
{
    const Bits nBits = SpecialBits(m_encode);
    for (const wchar_t* p = m_psz; *p != 0; ++p) {
        if (Has(nBits, *p)) {
            const std::wstring_view name = EntityName(*p);
            *pOut++ = L'&';
            pOut = std::copy(name.begin(), name.end(), pOut);
        } else if (UnitsOf(*p) == 1) {
            *pOut++ = *p;
        } else {
            *pOut++ = HighUnit(*p);
            *pOut++ = LowUnit(*p);
        }
    }
    return pOut;
}

} // namespace splitframe::markup
