// What the command line of splitframe-view asks for. Knows text and numbers only.
#pragma once

#include "platform/base/Geometry.h"

#include <optional>
#include <span>
#include <string>
#include <variant>

namespace viewer {

/// Longest side of a picture in pixels; keeps its memory within what any machine has.
inline constexpr int kMaxSide = 8192;

/// Size of a picture that nobody gave another.
inline constexpr CSize kPictureSize{1024, 768};

struct Options
{
    std::string strFile; // the layout file as it was typed
    bool bList = false;
    bool bAll = false;
    std::optional<std::string> strFrame;
    std::optional<std::string> strStyle;
    std::optional<std::string> strPng;
    std::optional<std::string> strSaveAs; // where saving goes instead of into the layout file
    std::optional<CSize> size;   // of the frame's view, in pixels; a picture has kPictureSize otherwise
    std::optional<double> scale; // device pixels per pixel
};

/// The command line asks for a text instead of work.
struct Answer
{
    std::string strText;
};

/// The command line is wrong; the text says how.
struct UsageError
{
    std::string strText;
};

/// Reads the command line. @param args the arguments without the program's name
std::variant<Options, Answer, UsageError> ParseOptions(std::span<const char* const> args);

} // namespace viewer
