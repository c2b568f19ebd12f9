// The device context's text: from flags and rectangles to lines at positions.
#include "platform/graphics/DCPainter.h"
#include "platform/graphics/RegionWalk.h"
#include "platform/graphics/TextEngine.h"

using splitframe::FindObject;
using splitframe::FontData;
using splitframe::FontMetrics;
using splitframe::Region;
using splitframe::TextBlock;
using splitframe::TextRequest;

namespace {

int FontNumber(HFONT hFont)
{
    // A font that was deleted while selected: text goes on in the default font rather than to vanish.
    const auto* pFont = FindObject<FontData>(hFont);
    if (!pFont)
        pFont = FindObject<FontData>(GetStockObject(SYSTEM_FONT));
    return pFont ? pFont->nId : splitframe::InternFont({});
}

unsigned RequestFlags(UINT nFlags)
{
    unsigned n = 0;
    if (nFlags & DT_SINGLELINE)
        n |= TextRequest::SingleLine;
    if ((nFlags & DT_NOPREFIX) == 0)
        n |= TextRequest::Prefix | (nFlags & DT_HIDEPREFIX ? unsigned{TextRequest::HidePrefix} : 0U);
    return n;
}

std::int64_t WidthOf(const RECT& rc)
{
    return std::clamp<std::int64_t>(std::int64_t{rc.right} - rc.left, 0, INT32_MAX);
}

// Laid out without a limit first: what fits is then found in the cache at every width.
const TextBlock& LayOutWithin(TextRequest request, const RECT& rc, UINT nFlags)
{
    const int nWidth = static_cast<int>(WidthOf(rc));
    const TextBlock& block = splitframe::LayOutText(request);
    const bool bBreak = (nFlags & DT_WORDBREAK) && !(nFlags & DT_SINGLELINE);
    if (block.Width() <= nWidth || (!bBreak && !(nFlags & DT_END_ELLIPSIS)))
        return block;
    request.nWidth = nWidth;
    request.nFlags |= bBreak ? unsigned{TextRequest::WordBreak} : unsigned{TextRequest::Ellipsis};
    return splitframe::LayOutText(request);
}

std::int64_t LineStart(std::int64_t nLeft, std::int64_t nRight, int nWidth, UINT nFlags)
{
    if (nFlags & DT_CENTER)
        return nLeft + (nRight - nLeft - nWidth) / 2;
    return nFlags & DT_RIGHT ? nRight - nWidth : nLeft;
}

std::int64_t FirstLineTop(std::int64_t nTop, std::int64_t nBottom, std::int64_t nHeight, UINT nFlags)
{
    if ((nFlags & DT_SINGLELINE) == 0)
        return nTop;
    if (nFlags & DT_VCENTER)
        return nTop + (nBottom - nTop - nHeight) / 2;
    return nFlags & DT_BOTTOM ? nBottom - nHeight : nTop;
}

} // namespace

int CDC::DrawText(const CString& strText, LPRECT pRect, UINT nFlags)
{
    const Painter painter(*this);
    TextRequest request;
    request.text = strText.View();
    request.nFont = FontNumber(m_state.hFont);
    request.nFlags = RequestFlags(nFlags);
    request.dScale = m_canvas.pSurface ? m_canvas.pSurface->Scale() : 1.0;
    const int nLineHeight = splitframe::GetFontMetrics(request.nFont).Height();

    const bool bCalc = (nFlags & DT_CALCRECT) != 0;
    Region clip = m_state.clip;
    if (!bCalc && (nFlags & DT_NOCLIP) == 0)
        clip.Intersect(painter.Place(*pRect));
    if (clip.IsEmpty() && (nFlags & DT_SINGLELINE) && !bCalc)
        return nLineHeight;

    const TextBlock& block = LayOutWithin(request, *pRect, nFlags);
    const int nHeight = std::max(1, block.LineCount()) * nLineHeight;
    if (bCalc) {
        *pRect = Painter::MakeRect(pRect->left, pRect->top, std::int64_t{pRect->left} + block.Width(),
                                   std::int64_t{pRect->top} + nHeight);
        return nHeight;
    }
    if (nLineHeight != 0 && !clip.IsEmpty())
        painter.DrawLines(block, request.nFont, *pRect, nFlags, clip);
    return nHeight;
}

void CDC::Painter::DrawLines(const TextBlock& block, int nFont, const RECT& rc, UINT nFlags,
                             const Region& clip) const
{
    const std::int64_t nLineHeight = splitframe::GetFontMetrics(nFont).Height();
    const std::int64_t nTop = FirstLineTop(Y(rc.top), Y(rc.bottom), block.LineCount() * nLineHeight, nFlags);
    const RECT& rcSeen = clip.Bounds();
    // One line more on either side: glyphs reach a little out of their line.
    const std::int64_t nFirst = std::max<std::int64_t>(0, (rcSeen.top - nTop) / nLineHeight - 1);
    const std::int64_t nLast =
        std::min<std::int64_t>(block.LineCount(), (rcSeen.bottom - nTop) / nLineHeight + 2);
    for (std::int64_t i = nFirst; i < nLast; ++i) {
        const int nLine = static_cast<int>(i);
        const int nWidth = block.LineWidth(nLine);
        const std::int64_t x = LineStart(X(rc.left), X(rc.right), nWidth, nFlags);
        const std::int64_t y = nTop + i * nLineHeight;
        if (m_dc.m_state.nBkMode == OPAQUE) {
            const RECT rcLine = splitframe::SharedRect(MakeRect(x, y, x + nWidth, y + nLineHeight), rcSeen);
            splitframe::ForEachOverlap(clip, rcLine,
                                       [&](const RECT& rcPart) { Fill(rcPart, m_dc.m_state.colBack); });
        }
        splitframe::DrawTextLine(Target(), clip, block, nLine, nFont, x, y, m_dc.m_state.colText);
        AddDamage(splitframe::SharedRect(
            MakeRect(x - nLineHeight, y - nLineHeight, x + nWidth + nLineHeight, y + 2 * nLineHeight),
            rcSeen));
    }
}

BOOL CDC::TextOut(int x, int y, const CString& strText)
{
    RECT rc{x, y, x, y};
    DrawText(strText, &rc, DT_SINGLELINE | DT_NOPREFIX | DT_NOCLIP);
    return TRUE;
}

CSize CDC::GetTextExtent(const CString& strText) const
{
    TextRequest request;
    request.text = strText.View();
    request.nFont = FontNumber(m_state.hFont);
    request.nFlags = TextRequest::SingleLine;
    request.dScale = m_canvas.pSurface ? m_canvas.pSurface->Scale() : 1.0;
    return {splitframe::LayOutText(request).Width(), splitframe::GetFontMetrics(request.nFont).Height()};
}

BOOL CDC::GetTextMetrics(TEXTMETRIC* pMetrics) const
{
    if (!pMetrics)
        return FALSE;
    const auto* pFont = FindObject<FontData>(m_state.hFont);
    const FontMetrics metrics = splitframe::GetFontMetrics(FontNumber(m_state.hFont));
    *pMetrics = {metrics.Height(), metrics.nAscent, metrics.nDescent, metrics.nAverageWidth,
                 pFont ? pFont->nWeight : FW_NORMAL};
    return TRUE;
}
