// The five named entities that markup text is written and read with. Only for the sources of this folder.
#pragma once

#include <string_view>

namespace splitframe::markup {

struct Entity
{
    std::wstring_view name; // behind the '&'
    wchar_t ch;
};

inline constexpr Entity ENTITIES[] = {
    {L"lt;", L'<'}, {L"amp;", L'&'}, {L"gt;", L'>'}, {L"apos;", L'\''}, {L"quot;", L'"'},
};

} // namespace splitframe::markup
