// Set operations on banded rectangles. Every operation is one walk over the bands of two operands, top to
// bottom; where one operand is a single rectangle only the bands near it are walked, so that cutting many
// windows out of a large area one after another stays cheap.
#include "platform/graphics/Region.h"

#include "platform/graphics/RegionWalk.h"

#include <algorithm>
#include <limits>

namespace splitframe {

namespace {

using Rects = std::span<const RECT>;

constexpr auto kUnion = [](bool a, bool b) { return a || b; };
constexpr auto kSubtract = [](bool a, bool b) { return a && !b; };
constexpr auto kIntersect = [](bool a, bool b) { return a && b; };
constexpr auto kXor = [](bool a, bool b) { return a != b; };

bool Overlap(const RECT& a, const RECT& b)
{
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

bool Holds(const RECT& outer, const RECT& inner)
{
    return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right &&
           outer.bottom >= inner.bottom;
}

RECT Around(const RECT& a, const RECT& b)
{
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
            std::max(a.bottom, b.bottom)};
}

bool Same(const RECT& a, const RECT& b)
{
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

// The bands of a list from top to bottom; asked row by row which rectangles a row holds.
class BandWalk
{
public:
    explicit BandWalk(Rects rects) : m_rects(rects) { FindEnd(); }

    bool AtEnd() const { return m_nFirst == m_rects.size(); }
    LONG Top() const { return m_rects[m_nFirst].top; }

    // The rectangles of the row y (none in a gap); y never goes back. nNext is lowered to the next row where
    // that changes.
    Rects RowAt(LONG y, LONG& nNext)
    {
        while (!AtEnd() && m_rects[m_nFirst].bottom <= y)
            NextBand();
        if (AtEnd())
            return {};
        const RECT& rc = m_rects[m_nFirst];
        nNext = std::min(nNext, y < rc.top ? rc.top : rc.bottom);
        return y < rc.top ? Rects{} : m_rects.subspan(m_nFirst, m_nEnd - m_nFirst);
    }

private:
    void NextBand()
    {
        m_nFirst = m_nEnd;
        FindEnd();
    }
    void FindEnd()
    {
        while (m_nEnd < m_rects.size() && m_rects[m_nEnd].top == m_rects[m_nFirst].top)
            ++m_nEnd;
    }

    Rects m_rects;
    std::size_t m_nFirst = 0;
    std::size_t m_nEnd = 0;
};

// Collects bands; a band equal to the one it touches makes that one longer instead.
class BandList
{
public:
    explicit BandList(std::size_t nExpected) { m_rects.reserve(nExpected); }

    void Begin() { m_nBand = m_rects.size(); }
    void Add(const RECT& rc) { m_rects.push_back(rc); }
    void End()
    {
        const std::size_t nSize = m_rects.size() - m_nBand;
        if (nSize > 0 && nSize == m_nBand - m_nPrevious && Continues(nSize)) {
            for (std::size_t i = 0; i < nSize; ++i)
                m_rects[m_nPrevious + i].bottom = m_rects[m_nBand].bottom;
            m_rects.resize(m_nBand);
        } else if (nSize > 0)
            m_nPrevious = m_nBand;
    }
    std::vector<RECT> Take() { return std::move(m_rects); }

private:
    bool Continues(std::size_t nSize) const
    {
        for (std::size_t i = 0; i < nSize; ++i) {
            const RECT& above = m_rects[m_nPrevious + i];
            const RECT& below = m_rects[m_nBand + i];
            if (above.bottom != below.top || above.left != below.left || above.right != below.right)
                return false;
        }
        return true;
    }

    std::vector<RECT> m_rects;
    std::size_t m_nPrevious = 0;
    std::size_t m_nBand = 0;
};

// The left and right edges of one row's rectangles from left to right, and whether the last one taken opened
// one.
class EdgeWalk
{
public:
    explicit EdgeWalk(Rects row) : m_row(row) {}

    bool AtEnd() const { return m_nEdge == 2 * m_row.size(); }
    bool Inside() const { return m_nEdge % 2 != 0; }
    LONG Position() const { return Inside() ? m_row[m_nEdge / 2].right : m_row[m_nEdge / 2].left; }
    void Pass(LONG x)
    {
        if (!AtEnd() && Position() == x)
            ++m_nEdge;
    }

private:
    Rects m_row;
    std::size_t m_nEdge = 0;
};

template <class Rule> void CombineRow(Rects a, Rects b, LONG nTop, LONG nBottom, Rule rule, BandList& out)
{
    EdgeWalk edgeA(a);
    EdgeWalk edgeB(b);
    bool bOpen = false;
    LONG nStart = 0;
    out.Begin();
    while (!edgeA.AtEnd() || !edgeB.AtEnd()) {
        const LONG x = edgeA.AtEnd()   ? edgeB.Position()
                       : edgeB.AtEnd() ? edgeA.Position()
                                       : std::min(edgeA.Position(), edgeB.Position());
        edgeA.Pass(x);
        edgeB.Pass(x);
        const bool bInside = rule(edgeA.Inside(), edgeB.Inside());
        if (bInside && !bOpen)
            nStart = x;
        else if (!bInside && bOpen)
            out.Add({nStart, nTop, x, nBottom});
        bOpen = bInside;
    }
    out.End();
}

template <class Rule> std::vector<RECT> Combine(Rects a, Rects b, Rule rule)
{
    BandList out(a.size() + b.size() + 4);
    BandWalk walkA(a);
    BandWalk walkB(b);
    constexpr LONG kLast = std::numeric_limits<LONG>::max();
    LONG y = std::min(walkA.AtEnd() ? kLast : walkA.Top(), walkB.AtEnd() ? kLast : walkB.Top());
    while (y < kLast) {
        LONG nNext = kLast;
        const Rects rowA = walkA.RowAt(y, nNext);
        const Rects rowB = walkB.RowAt(y, nNext);
        CombineRow(rowA, rowB, y, nNext, rule, out);
        y = nNext;
    }
    return out.Take();
}

LONG Moved(LONG n, int d)
{
    return static_cast<LONG>(std::clamp<std::int64_t>(std::int64_t{n} + d, std::numeric_limits<LONG>::min(),
                                                      std::numeric_limits<LONG>::max()));
}

RECT Moved(const RECT& rc, int dx, int dy)
{
    return {Moved(rc.left, dx), Moved(rc.top, dy), Moved(rc.right, dx), Moved(rc.bottom, dy)};
}

bool Stays(const RECT& rc, int dx, int dy)
{
    const RECT moved = Moved(rc, dx, dy);
    return std::int64_t{moved.left} - rc.left == dx && std::int64_t{moved.right} - rc.right == dx &&
           std::int64_t{moved.top} - rc.top == dy && std::int64_t{moved.bottom} - rc.bottom == dy;
}

} // namespace

Region::Region(const RECT& rc)
{
    if (HasArea(rc))
        m_rcBounds = rc;
}

Region Region::FromRects(std::span<const RECT> rects)
{
    // Halves are united with halves: each rectangle is walked about log2(n) times.
    std::vector<Region> parts;
    parts.reserve(rects.size());
    for (const RECT& rc : rects)
        parts.emplace_back(rc);
    for (std::size_t nStep = 1; nStep < parts.size(); nStep *= 2)
        for (std::size_t i = 0; i + nStep < parts.size(); i += 2 * nStep)
            parts[i].Union(parts[i + nStep]);
    return parts.empty() ? Region() : std::move(parts.front());
}

std::span<const RECT> Region::Rects() const
{
    if (IsEmpty())
        return {};
    return m_rects.empty() ? std::span<const RECT>(&m_rcBounds, 1) : std::span<const RECT>(m_rects);
}

bool Region::Contains(POINT pt) const
{
    const std::span<const RECT> rects = Rects();
    const auto band =
        std::partition_point(rects.begin(), rects.end(), [&](const RECT& rc) { return rc.bottom <= pt.y; });
    const auto hit = std::partition_point(band, rects.end(),
                                          [&](const RECT& rc) { return rc.top <= pt.y && rc.right <= pt.x; });
    return hit != rects.end() && hit->top <= pt.y && hit->left <= pt.x;
}

bool Region::Contains(const RECT& rc) const
{
    if (!HasArea(rc))
        return true;
    if (!Holds(m_rcBounds, rc))
        return false;
    Region rest(rc);
    rest.Subtract(*this);
    return rest.IsEmpty();
}

bool Region::Intersects(const RECT& rc) const
{
    if (!HasArea(rc) || IsEmpty() || !Overlap(m_rcBounds, rc))
        return false;
    if (m_rects.empty() || Holds(rc, m_rcBounds))
        return true;
    const auto first = std::partition_point(m_rects.begin(), m_rects.end(),
                                            [&](const RECT& rcOwn) { return rcOwn.bottom <= rc.top; });
    const auto last =
        std::partition_point(first, m_rects.end(), [&](const RECT& rcOwn) { return rcOwn.top < rc.bottom; });
    return std::any_of(first, last, [&](const RECT& rcOwn) { return Overlap(rcOwn, rc); });
}

void Region::Clear()
{
    m_rcBounds = {};
    m_rects.clear();
}

void Region::Assign(std::vector<RECT>&& rects)
{
    m_rects = std::move(rects);
    Settle();
}

// Makes bounds and the form of a single rectangle fit the list.
void Region::Settle()
{
    m_rcBounds = {};
    if (m_rects.empty())
        return;
    m_rcBounds = m_rects.front();
    for (const RECT& rc : m_rects)
        m_rcBounds = Around(m_rcBounds, rc);
    if (m_rects.size() == 1)
        m_rects.clear();
}

// Combines with one rectangle by a rule that leaves the bands above and below it as they are. The bands that
// it only touches are walked too, as they may become one with a changed neighbour.
template <class Rule> void Region::CombineRows(const RECT& rc, Rule rule)
{
    if (m_rects.empty())
        return Assign(Combine(Rects(), {&rc, 1}, rule));
    const auto first = std::partition_point(m_rects.begin(), m_rects.end(),
                                            [&](const RECT& rcOwn) { return rcOwn.bottom < rc.top; });
    const auto last =
        std::partition_point(first, m_rects.end(), [&](const RECT& rcOwn) { return rcOwn.top <= rc.bottom; });
    std::vector<RECT> changed = Combine(std::span<const RECT>(first, last), {&rc, 1}, rule);
    const auto nOld = last - first;
    const auto nNew = static_cast<std::ptrdiff_t>(changed.size());
    if (nNew <= nOld) {
        m_rects.erase(std::copy(changed.begin(), changed.end(), first), last);
    } else {
        std::copy(changed.begin(), changed.begin() + nOld, first);
        m_rects.insert(last, changed.begin() + nOld, changed.end());
    }
    Settle();
}

template <class Rule> void Region::CombineAll(const Region& other, Rule rule)
{
    Assign(Combine(Rects(), other.Rects(), rule));
}

void Region::Union(const RECT& rc)
{
    if (!HasArea(rc) || (m_rects.empty() && !IsEmpty() && Holds(m_rcBounds, rc)))
        return;
    if (IsEmpty() || Holds(rc, m_rcBounds))
        *this = Region(rc);
    else
        CombineRows(rc, kUnion);
}

void Region::Union(const Region& other)
{
    if (other.m_rects.empty())
        Union(RECT(other.m_rcBounds));
    else if (IsEmpty())
        *this = other;
    else if (!m_rects.empty() || !Holds(m_rcBounds, other.m_rcBounds))
        CombineAll(other, kUnion);
}

void Region::Subtract(const RECT& rc)
{
    if (IsEmpty() || !HasArea(rc) || !Overlap(m_rcBounds, rc))
        return;
    if (Holds(rc, m_rcBounds))
        Clear();
    else
        CombineRows(rc, kSubtract);
}

void Region::Subtract(const Region& other)
{
    if (other.m_rects.empty())
        Subtract(RECT(other.m_rcBounds));
    else if (!IsEmpty() && Overlap(m_rcBounds, other.m_rcBounds))
        CombineAll(other, kSubtract);
}

void Region::Intersect(const RECT& rc)
{
    if (IsEmpty() || !HasArea(rc) || !Overlap(m_rcBounds, rc))
        return Clear();
    if (Holds(rc, m_rcBounds))
        return;
    if (m_rects.empty())
        m_rcBounds = SharedRect(m_rcBounds, rc);
    else
        CombineAll(Region(rc), kIntersect);
}

void Region::Intersect(const Region& other)
{
    if (other.m_rects.empty())
        Intersect(RECT(other.m_rcBounds));
    else if (IsEmpty() || !Overlap(m_rcBounds, other.m_rcBounds))
        Clear();
    else if (m_rects.empty() && Holds(m_rcBounds, other.m_rcBounds))
        *this = other;
    else
        CombineAll(other, kIntersect);
}

void Region::Xor(const Region& other)
{
    CombineAll(other, kXor);
}

void Region::Offset(int dx, int dy)
{
    if (IsEmpty() || (dx == 0 && dy == 0))
        return;
    if (Stays(m_rcBounds, dx, dy)) {
        m_rcBounds = Moved(m_rcBounds, dx, dy);
        for (RECT& rc : m_rects)
            rc = Moved(rc, dx, dy);
        return;
    }
    std::vector<RECT> cut;
    for (const RECT& rc : Rects())
        cut.push_back(Moved(rc, dx, dy));
    *this = FromRects(cut); // cutting may make bands equal
}

bool operator==(const Region& a, const Region& b)
{
    return Same(a.m_rcBounds, b.m_rcBounds) &&
           std::equal(a.m_rects.begin(), a.m_rects.end(), b.m_rects.begin(), b.m_rects.end(), Same);
}

} // namespace splitframe
