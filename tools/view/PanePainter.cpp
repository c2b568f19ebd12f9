// Where the texts of a placeholder go, from large panes to those of a few pixels.
#include "PanePainter.h"

#include "platform/graphics/DC.h"

#include <algorithm>

namespace viewer {
namespace {

constexpr int kBandHeight = 24;
constexpr int kMargin = 8;
constexpr int kNarrowMargin = 3;
// Below these a text would be clutter: no letters could be told apart.
constexpr int kLeastTextWidth = 30;
constexpr int kLeastTextHeight = 13;
// A pane lower than this shows one line; its band would leave no room for anything else.
constexpr int kLeastBodyHeight = kBandHeight + 20;
// Where name and size share a line, the size must leave the name this much.
constexpr int kLeastNameWidth = 48;

constexpr UINT kOneLine = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;

int MarginOf(const CRect& rc)
{
    return rc.Width() < 80 ? kNarrowMargin : kMargin;
}

int LineHeight(const CDC& dc)
{
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    return static_cast<int>(metrics.tmHeight);
}

// Draws one line of text at the top of the rectangle, if it has room for it, and takes that room away.
void TakeLine(CDC& dc, CRect& rc, int nLine, const CString& strText)
{
    if (rc.Height() < nLine)
        return;
    CRect rcLine = rc;
    rcLine.bottom = rc.top + nLine;
    dc.DrawText(strText, rcLine, kOneLine);
    rc.top = rcLine.bottom;
}

} // namespace

PanePainter::PanePainter()
{
    m_fontName.CreateFont(14, nullptr, FW_BOLD);
    m_fontText.CreateFont(12, nullptr);
}

void PanePainter::Paint(CDC& dc, const CRect& rc, const PaneTexts& texts, const PaneColors& colors)
{
    dc.FillSolidRect(rc, colors.body);
    if (rc.Width() < kLeastTextWidth || rc.Height() < kLeastTextHeight)
        return;
    if (rc.Height() < kLeastBodyHeight)
        return PaintBand(dc, rc, texts, colors);
    CRect rcBand = rc;
    rcBand.bottom = rc.top + kBandHeight;
    CRect rcBody = rc;
    rcBody.top = rcBand.bottom;
    PaneTexts onlyName = texts;
    onlyName.strSize.Empty();
    PaintBand(dc, rcBand, onlyName, colors);
    PaintBody(dc, rcBody, texts, colors);
}

// The name at the left and, where it is given and leaves enough room, the size at the right.
void PanePainter::PaintBand(CDC& dc, CRect rc, const PaneTexts& texts, const PaneColors& colors)
{
    dc.FillSolidRect(rc, colors.header);
    const int nMargin = MarginOf(rc);
    rc.DeflateRect(nMargin, 0);
    if (!texts.strSize.IsEmpty()) {
        dc.SelectObject(&m_fontText);
        const int nWidth = dc.GetTextExtent(texts.strSize).cx;
        if (rc.Width() - nWidth - nMargin >= kLeastNameWidth) {
            dc.SetTextColor(colors.headerText);
            dc.DrawText(texts.strSize, rc, kOneLine | DT_RIGHT);
            rc.right -= nWidth + nMargin;
        }
    }
    dc.SelectObject(&m_fontName);
    dc.SetTextColor(colors.headerText);
    dc.DrawText(texts.strName, rc, kOneLine);
}

// Size and place on one line, or on two where they do not fit on one; notes below; the parameter string on as
// many as fit whole.
void PanePainter::PaintBody(CDC& dc, CRect rc, const PaneTexts& texts, const PaneColors& colors)
{
    rc.DeflateRect(MarginOf(rc), 4);
    dc.SelectObject(&m_fontText);
    const int nLine = std::max(1, LineHeight(dc));
    if (rc.Width() < kLeastTextWidth)
        return;
    dc.SetTextColor(colors.faintText);
    const CString strBoth = texts.strSize + L" " + texts.strPlace;
    if (dc.GetTextExtent(strBoth).cx <= rc.Width()) {
        TakeLine(dc, rc, nLine, strBoth);
    } else {
        TakeLine(dc, rc, nLine, texts.strSize);
        TakeLine(dc, rc, nLine, texts.strPlace);
    }
    if (!texts.strNotes.IsEmpty())
        TakeLine(dc, rc, nLine, texts.strNotes);
    rc.top += 4;
    dc.SetTextColor(colors.text);
    if (rc.Height() < 2 * nLine)
        return TakeLine(dc, rc, nLine, texts.strParam);
    rc.bottom = rc.top + rc.Height() / nLine * nLine;
    dc.DrawText(texts.strParam, rc, DT_WORDBREAK | DT_NOPREFIX);
}

} // namespace viewer
