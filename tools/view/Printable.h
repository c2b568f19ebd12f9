// Names and texts of a layout file as a terminal may show them.
#pragma once

#include "platform/base/String.h"

#include <string>
#include <string_view>

namespace viewer {

/// The text as UTF-8, with control characters, line ends and characters that turn the writing direction shown
/// as \xNN or \uNNNN: a layout file can't move the cursor or fake a line of output.
std::string Printable(const CString& strText);

/// The columns that UTF-8 text takes on a terminal: East Asian characters take two, combining ones none.
int TerminalWidth(std::string_view strText);

} // namespace viewer
