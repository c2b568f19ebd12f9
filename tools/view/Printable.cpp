// Escapes for what is not shown, and the widths of what is.
#include "Printable.h"

#include "platform/base/Unicode.h"

#include <algorithm>
#include <cstdio>
#include <span>

namespace viewer {
namespace {

struct Range
{
    char32_t first;
    char32_t last;
};

constexpr Range kWide[] = {{0x1100, 0x115F},   {0x2E80, 0x303E},  {0x3041, 0x33FF}, {0x3400, 0x4DBF},
                           {0x4E00, 0x9FFF},   {0xA000, 0xA4CF},  {0xAC00, 0xD7A3}, {0xF900, 0xFAFF},
                           {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},  {0xFFE0, 0xFFE6}, {0x1F300, 0x1F64F},
                           {0x1F900, 0x1F9FF}, {0x20000, 0x3FFFD}};
constexpr Range kNarrowless[] = {{0x0300, 0x036F}, {0x1AB0, 0x1AFF}, {0x20D0, 0x20FF}, {0xFE00, 0xFE0F}};
constexpr Range kUnseen[] = {{0x0000, 0x001F}, {0x007F, 0x009F}, {0x061C, 0x061C},
                             {0x200B, 0x200F}, {0x2028, 0x202E}, {0x2060, 0x206F},
                             {0xD800, 0xDFFF}, {0xFEFF, 0xFEFF}, {0xFFFE, 0xFFFF}};

bool LiesIn(std::span<const Range> ranges, char32_t ch)
{
    return std::ranges::any_of(ranges,
                               [ch](const Range& range) { return ch >= range.first && ch <= range.last; });
}

std::string Escape(char32_t ch)
{
    char szText[16];
    std::snprintf(szText, sizeof szText, ch <= 0xFF ? "\\x%02X" : "\\u%04X", static_cast<unsigned>(ch));
    return szText;
}

int WidthOf(char32_t ch)
{
    if (LiesIn(kNarrowless, ch))
        return 0;
    return LiesIn(kWide, ch) ? 2 : 1;
}

} // namespace

std::string Printable(const CString& strText)
{
    std::string strResult;
    for (const wchar_t ch : strText.ToWide()) {
        const auto code = static_cast<char32_t>(ch);
        strResult += LiesIn(kUnseen, code) ? Escape(code) : splitframe::EncodeUtf8({&ch, 1});
    }
    return strResult;
}

int TerminalWidth(std::string_view strText)
{
    int nWidth = 0;
    for (const wchar_t ch : CString::FromUtf8(strText).ToWide())
        nWidth += WidthOf(static_cast<char32_t>(ch));
    return nWidth;
}

} // namespace viewer
