// Laying out and drawing text with fallback fonts. One font map for the process, one layout context for each
// scale of surface; the texts used last are kept laid out. Everything is laid out in logical pixels, whatever
// the scale, with glyphs at whole positions.
#include "platform/graphics/TextEngine.h"

#include "platform/base/Unicode.h"
#include "platform/graphics/CairoContext.h"
#include "platform/graphics/Font.h"

#include <pango/pangocairo.h>

#include <algorithm>
#include <list>
#include <map>
#include <memory>
#include <unordered_map>
#include <vector>

namespace splitframe {

namespace {

template <auto fnFree> struct Freer
{
    template <class T> void operator()(T* p) const { fnFree(p); }
};
using FontMapPtr = std::unique_ptr<PangoFontMap, Freer<&g_object_unref>>;
using ContextPtr = std::unique_ptr<PangoContext, Freer<&g_object_unref>>;
using LayoutPtr = std::unique_ptr<PangoLayout, Freer<&g_object_unref>>;
using FontPtr = std::unique_ptr<PangoFontDescription, Freer<&pango_font_description_free>>;
using AttributesPtr = std::unique_ptr<PangoAttrList, Freer<&pango_attr_list_unref>>;
using OptionsPtr = std::unique_ptr<cairo_font_options_t, Freer<&cairo_font_options_destroy>>;

constexpr std::size_t kMaxUnits = 65536;       // of one text
constexpr std::size_t kMaxBrokenUnits = 16384; // of one text that is broken into lines
constexpr std::size_t kMaxParagraph = 1000;    // units of one paragraph in such a text
constexpr std::size_t kMaxExtent = 1'500'000; // logical pixels: what the layout library can count in one line
constexpr int kMaxWidth = 1'000'000;
constexpr std::size_t kMaxBlocks = 4096; // kept in the cache
constexpr std::size_t kMaxCachedUnits = 1U << 20;

struct CleanText
{
    std::wstring units;
    std::vector<std::size_t> marks; // positions of underlined units
};

bool IsHigh(wchar_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsLow(wchar_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

// A cut never parts the two units of one character.
std::size_t CutBefore(std::wstring_view text, std::size_t nMax)
{
    return nMax > 0 && nMax < text.size() && IsHigh(text[nMax - 1]) ? nMax - 1 : std::min(nMax, text.size());
}

std::wstring_view CutText(const TextRequest& request, int nFontHeight)
{
    const std::size_t nMax = (request.nFlags & TextRequest::WordBreak) != 0 ? kMaxBrokenUnits : kMaxUnits;
    return request.text.substr(
        0, CutBefore(request.text, std::min(nMax, kMaxExtent / static_cast<std::size_t>(nFontHeight))));
}

// Every unit as it can be shown: unpaired surrogates become the replacement character; zeros, and in a single
// line breaks and tabs, become spaces.
wchar_t Shown(std::wstring_view text, std::size_t i, bool bSingleLine)
{
    const wchar_t unit = text[i];
    if (IsHigh(unit) && (i + 1 == text.size() || !IsLow(text[i + 1])))
        return 0xFFFD;
    if (IsLow(unit) && (i == 0 || !IsHigh(text[i - 1])))
        return 0xFFFD;
    const bool bBreak = (unit >= L'\t' && unit <= L'\r') || unit == 0x2028 || unit == 0x2029;
    return unit == 0 || (bSingleLine && bBreak) ? L' ' : unit;
}

CleanText Clean(std::wstring_view text, unsigned nFlags)
{
    CleanText clean;
    clean.units.reserve(text.size());
    const bool bPrefix = (nFlags & TextRequest::Prefix) != 0;
    bool bMarkNext = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (bPrefix && text[i] == L'&' && !bMarkNext) {
            bMarkNext = true;
            continue;
        }
        if (bMarkNext && text[i] != L'&' && (nFlags & TextRequest::HidePrefix) == 0)
            clean.marks.push_back(clean.units.size());
        bMarkNext = false;
        clean.units.push_back(Shown(text, i, (nFlags & TextRequest::SingleLine) != 0));
    }
    return clean;
}

// Breaking a paragraph costs the square of its length: a very long one goes on in a new line now and then.
void PartParagraphs(std::wstring& units)
{
    std::size_t nStart = 0;
    while (nStart + kMaxParagraph < units.size()) {
        const std::size_t nBreak = units.find(L'\n', nStart);
        if (nBreak <= nStart + kMaxParagraph) {
            nStart = nBreak + 1;
            continue;
        }
        const std::size_t nSpace = units.rfind(L' ', nStart + kMaxParagraph);
        const bool bAtSpace = nSpace != std::wstring::npos && nSpace > nStart;
        const std::size_t nAt = bAtSpace ? nSpace : CutBefore(units, nStart + kMaxParagraph);
        if (bAtSpace)
            units[nAt] = L'\n';
        else
            units.insert(nAt, 1, L'\n');
        nStart = nAt + 1;
    }
}

AttributesPtr Underlines(const CleanText& clean, std::size_t nBytes, bool bWhole)
{
    AttributesPtr pList(pango_attr_list_new());
    const auto add = [&](std::size_t nFrom, std::size_t nTo) {
        PangoAttribute* pAttribute = pango_attr_underline_new(PANGO_UNDERLINE_SINGLE);
        pAttribute->start_index = static_cast<guint>(nFrom);
        pAttribute->end_index = static_cast<guint>(nTo);
        pango_attr_list_insert(pList.get(), pAttribute);
    };
    if (bWhole)
        add(0, nBytes);
    for (const std::size_t nMark : clean.marks) {
        const std::wstring_view units = clean.units;
        const std::size_t nFrom = EncodeUtf8(units.substr(0, nMark)).size();
        add(nFrom, nFrom + EncodeUtf8(units.substr(nMark, IsHigh(units[nMark]) ? 2 : 1)).size());
        break; // one mnemonic: the first
    }
    return pList;
}

FontPtr Describe(const FontData& font)
{
    FontPtr pFont(pango_font_description_new());
    // Family lists are separated by commas; the name itself is one family.
    std::wstring strFace = font.strFace.empty() ? L"Sans" : Clean(font.strFace, 0).units;
    std::replace(strFace.begin(), strFace.end(), L',', L' ');
    pango_font_description_set_family(pFont.get(), EncodeUtf8(strFace).c_str());
    pango_font_description_set_absolute_size(pFont.get(), font.nHeight * double{PANGO_SCALE});
    pango_font_description_set_weight(pFont.get(), static_cast<PangoWeight>(font.nWeight));
    pango_font_description_set_style(pFont.get(), font.bItalic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
    return pFont;
}

class Block final : public TextBlock
{
public:
    explicit Block(LayoutPtr pLayout) : m_pLayout(std::move(pLayout))
    {
        for (const GSList* p = pango_layout_get_lines_readonly(m_pLayout.get()); p; p = p->next) {
            auto* pLine = static_cast<PangoLayoutLine*>(p->data);
            PangoRectangle rc;
            pango_layout_line_get_pixel_extents(pLine, nullptr, &rc);
            m_lines.push_back({pLine, std::max(rc.width, 0)});
            m_nWidth = std::max(m_nWidth, rc.width);
        }
    }

    int LineCount() const override { return static_cast<int>(m_lines.size()); }
    int LineWidth(int nLine) const override { return m_lines[static_cast<std::size_t>(nLine)].nWidth; }
    int Width() const override { return m_nWidth; }
    PangoLayoutLine* Line(int nLine) const { return m_lines[static_cast<std::size_t>(nLine)].pLine; }

private:
    struct LineEntry
    {
        PangoLayoutLine* pLine; // the layout's
        int nWidth;
    };

    LayoutPtr m_pLayout;
    std::vector<LineEntry> m_lines;
    int m_nWidth = 0;
};

struct CachedBlock
{
    std::wstring strText;
    TextRequest request; // text points to strText
    Block block;

    CachedBlock(const TextRequest& req, LayoutPtr pLayout)
        : strText(req.text), request(req), block(std::move(pLayout))
    {
        request.text = strText;
    }
};

struct RequestHash
{
    std::size_t operator()(const TextRequest& request) const
    {
        std::size_t n = std::hash<std::wstring_view>()(request.text);
        for (const std::size_t nPart :
             {static_cast<std::size_t>(request.nFont), std::size_t{request.nFlags},
              static_cast<std::size_t>(request.nWidth), std::hash<double>()(request.dScale)})
            n = (n ^ nPart) * 0x9E3779B97F4A7C15U;
        return n;
    }
};

struct RequestEqual
{
    bool operator()(const TextRequest& a, const TextRequest& b) const
    {
        return a.nFont == b.nFont && a.nWidth == b.nWidth && a.nFlags == b.nFlags && a.dScale == b.dScale &&
               a.text == b.text;
    }
};

// The resources that ReleaseFontResources frees.
class TextEngine
{
public:
    const Block& LayOut(const TextRequest& request);
    FontMetrics Metrics(int nFont);

private:
    PangoContext* ContextFor(double dScale);
    const PangoFontDescription* FontFor(int nFont);
    LayoutPtr MakeLayout(const TextRequest& request);
    void MakeRoom();

    FontMapPtr m_pFontMap; // declared first: goes last
    std::map<double, ContextPtr> m_mapContexts;
    std::vector<FontPtr> m_arrFonts; // by font number, made at first use
    std::unordered_map<int, FontMetrics> m_mapMetrics;
    std::list<CachedBlock> m_blocks; // used last first
    std::unordered_map<TextRequest, std::list<CachedBlock>::iterator, RequestHash, RequestEqual> m_mapBlocks;
    std::size_t m_nCachedUnits = 0;
};

std::vector<FontData>& Fonts()
{
    static std::vector<FontData> fonts; // by number
    return fonts;
}

std::unique_ptr<TextEngine>& EnginePtr()
{
    static std::unique_ptr<TextEngine> pEngine; // freed when the library is unloaded
    return pEngine;
}

TextEngine& Engine()
{
    std::unique_ptr<TextEngine>& pEngine = EnginePtr();
    if (!pEngine)
        pEngine = std::make_unique<TextEngine>();
    return *pEngine;
}

PangoContext* TextEngine::ContextFor(double dScale)
{
    ContextPtr& pContext = m_mapContexts[dScale];
    if (pContext)
        return pContext.get();
    if (!m_pFontMap) {
        m_pFontMap.reset(pango_cairo_font_map_new());
        pango_cairo_font_map_set_resolution(PANGO_CAIRO_FONT_MAP(m_pFontMap.get()), 96.0);
    }
    pContext.reset(pango_font_map_create_context(m_pFontMap.get()));
    const OptionsPtr pOptions(cairo_font_options_create());
    cairo_font_options_set_antialias(pOptions.get(), CAIRO_ANTIALIAS_GRAY);
    cairo_font_options_set_hint_style(pOptions.get(), CAIRO_HINT_STYLE_SLIGHT);
    cairo_font_options_set_hint_metrics(pOptions.get(), CAIRO_HINT_METRICS_ON);
    pango_cairo_context_set_font_options(pContext.get(), pOptions.get());
    pango_context_set_round_glyph_positions(pContext.get(), TRUE);
    const PangoMatrix matrix{dScale, 0.0, 0.0, dScale, 0.0, 0.0};
    pango_context_set_matrix(pContext.get(), &matrix);
    return pContext.get();
}

const PangoFontDescription* TextEngine::FontFor(int nFont)
{
    const auto n = static_cast<std::size_t>(nFont);
    if (m_arrFonts.size() <= n)
        m_arrFonts.resize(n + 1);
    if (!m_arrFonts[n])
        m_arrFonts[n] = Describe(Fonts()[n]);
    return m_arrFonts[n].get();
}

FontMetrics TextEngine::Metrics(int nFont)
{
    const auto found = m_mapMetrics.find(nFont);
    if (found != m_mapMetrics.end())
        return found->second;
    PangoFontMetrics* pMetrics = pango_context_get_metrics(ContextFor(1.0), FontFor(nFont), nullptr);
    FontMetrics metrics;
    metrics.nAscent = PANGO_PIXELS_CEIL(pango_font_metrics_get_ascent(pMetrics));
    metrics.nDescent = PANGO_PIXELS_CEIL(pango_font_metrics_get_descent(pMetrics));
    metrics.nAverageWidth = PANGO_PIXELS(pango_font_metrics_get_approximate_char_width(pMetrics));
    pango_font_metrics_unref(pMetrics);
    m_mapMetrics.emplace(nFont, metrics);
    return metrics;
}

LayoutPtr TextEngine::MakeLayout(const TextRequest& request)
{
    const FontData& font = Fonts()[static_cast<std::size_t>(request.nFont)];
    CleanText clean = Clean(CutText(request, font.nHeight), request.nFlags);
    if ((request.nFlags & TextRequest::WordBreak) != 0)
        PartParagraphs(clean.units);
    const std::string utf8 = EncodeUtf8(clean.units);
    LayoutPtr pLayout(pango_layout_new(ContextFor(request.dScale)));
    pango_layout_set_font_description(pLayout.get(), FontFor(request.nFont));
    pango_layout_set_text(pLayout.get(), utf8.data(), static_cast<int>(utf8.size()));
    if (font.bUnderline || !clean.marks.empty())
        pango_layout_set_attributes(pLayout.get(), Underlines(clean, utf8.size(), font.bUnderline).get());
    pango_layout_set_single_paragraph_mode(pLayout.get(), (request.nFlags & TextRequest::SingleLine) != 0);
    if (request.nWidth >= 0) {
        pango_layout_set_width(pLayout.get(), std::min(request.nWidth, kMaxWidth) * PANGO_SCALE);
        pango_layout_set_wrap(pLayout.get(), PANGO_WRAP_WORD_CHAR);
        pango_layout_set_ellipsize(pLayout.get(), (request.nFlags & TextRequest::Ellipsis) != 0
                                                      ? PANGO_ELLIPSIZE_END
                                                      : PANGO_ELLIPSIZE_NONE);
    }
    return pLayout;
}

void TextEngine::MakeRoom()
{
    while (!m_blocks.empty() && (m_blocks.size() >= kMaxBlocks || m_nCachedUnits > kMaxCachedUnits)) {
        m_nCachedUnits -= m_blocks.back().strText.size();
        m_mapBlocks.erase(m_blocks.back().request);
        m_blocks.pop_back();
    }
}

const Block& TextEngine::LayOut(const TextRequest& request)
{
    if (const auto found = m_mapBlocks.find(request); found != m_mapBlocks.end()) {
        m_blocks.splice(m_blocks.begin(), m_blocks, found->second);
        return m_blocks.front().block;
    }
    MakeRoom();
    m_blocks.emplace_front(request, MakeLayout(request));
    m_mapBlocks.emplace(m_blocks.front().request, m_blocks.begin());
    m_nCachedUnits += request.text.size();
    return m_blocks.front().block;
}

} // namespace

int InternFont(const FontData& font)
{
    std::vector<FontData>& fonts = Fonts();
    const auto found = std::find_if(fonts.begin(), fonts.end(), [&](const FontData& known) {
        return known.nHeight == font.nHeight && known.nWeight == font.nWeight &&
               known.bItalic == font.bItalic && known.bUnderline == font.bUnderline &&
               known.strFace == font.strFace;
    });
    if (found != fonts.end())
        return static_cast<int>(found - fonts.begin());
    fonts.push_back(font);
    return static_cast<int>(fonts.size()) - 1;
}

FontMetrics GetFontMetrics(int nFont)
{
    return Engine().Metrics(nFont);
}

const TextBlock& LayOutText(const TextRequest& request)
{
    return Engine().LayOut(request);
}

void DrawTextLine(Surface& surface, const Region& clip, const TextBlock& block, int nLine, int nFont,
                  std::int64_t x, std::int64_t y, COLORREF color)
{
    // Slanted and fallback glyphs reach a little out of their line's box.
    const FontMetrics metrics = Engine().Metrics(nFont);
    const std::int64_t nReach = metrics.Height();
    const RECT& rcClip = clip.Bounds();
    const std::int64_t nRight = x + block.LineWidth(nLine);
    const auto cut = [](std::int64_t n, LONG nFrom, LONG nTo) {
        return static_cast<LONG>(std::clamp<std::int64_t>(n, nFrom, nTo));
    };
    const RECT rcNear{cut(x - nReach, rcClip.left, rcClip.right), cut(y - nReach, rcClip.top, rcClip.bottom),
                      cut(nRight + nReach, rcClip.left, rcClip.right),
                      cut(y + 2 * nReach, rcClip.top, rcClip.bottom)};
    if (!clip.Intersects(rcNear))
        return;
    const CairoContext context(surface, clip, rcNear);
    cairo_t* pCairo = context.Get();
    if (!pCairo)
        return;
    cairo_set_source_rgb(pCairo, GetRValue(color) / 255.0, GetGValue(color) / 255.0,
                         GetBValue(color) / 255.0);
    cairo_move_to(pCairo, static_cast<double>(x), static_cast<double>(y + metrics.nAscent));
    pango_cairo_show_layout_line(pCairo, static_cast<const Block&>(block).Line(nLine));
}

void ReleaseFontResources()
{
    EnginePtr().reset();
}

} // namespace splitframe
