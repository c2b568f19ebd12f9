// Turns the exception that is being handled into a diagnostic. Knows exceptions and diagnostics only.
#pragma once

namespace splitframe {

/// Inside a catch block: reports the exception, whatever its type, and frees one that was thrown by pointer.
/// @param pszWhere  what was under way, in a word or two
void ReportCurrentException(const wchar_t* pszWhere) noexcept;

} // namespace splitframe
