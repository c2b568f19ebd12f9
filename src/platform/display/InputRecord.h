// Input as text, a line each: what a user did in a window is written down, read, changed and repeated on the
// headless display, so that a user's trouble becomes a test.
//
//   1200 move 299,200          the time in milliseconds, what happened, its values
//   1210 down 299,200 left
//   1300 key 70 repeat         virtual-key codes
//   1300 text grün             UTF-8 to the end of the line
//   1400 resize 1280x800       logical pixels, as all points are
#pragma once

#include "platform/display/Display.h"

#include <fstream>
#include <optional>
#include <string>
#include <string_view>

namespace splitframe {

struct TimedInput
{
    ULONGLONG nTime = 0; ///< milliseconds since the recording began
    InputEvent event;
};

/// Without the end of the line; empty for what is the display's own business (Expose).
SPLITFRAME_PLATFORM_API std::string InputAsText(const TimedInput& input);

/// @return nothing for a line that InputAsText does not write
SPLITFRAME_PLATFORM_API std::optional<TimedInput> ReadInput(std::string_view line);

/// A file that is being recorded. Each line is in the file at once: a recording ends as the program does.
class InputRecorder
{
public:
    InputRecorder(const std::filesystem::path& file, ULONGLONG nNow) : m_file(file), m_nStart(nNow) {}

    bool IsGood() const { return m_file.good(); }
    void Note(const InputEvent& event, ULONGLONG nNow);

private:
    std::ofstream m_file;
    ULONGLONG m_nStart;
};

} // namespace splitframe
