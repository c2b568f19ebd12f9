// The bytes of an XML file as UTF-8, whatever encoding they are in.
#pragma once

#include <optional>
#include <string>

namespace splitframe {

/// Converts to UTF-8 without a byte-order mark. The encoding is that of a mark at the beginning, else the one
/// of the XML declaration, else UTF-8. Bytes that are said to be UTF-8 are not checked.
/// @return nothing when the encoding is unknown or the bytes are not of it
/// @throw std::bad_alloc
std::optional<std::string> XmlBytesToUtf8(std::string&& bytes);

} // namespace splitframe
