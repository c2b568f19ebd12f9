// Where in the markup the things are that a fault names. Faults that only show when a frame is opened come
// with names but without a position.
#pragma once

struct Diagnostic;
class CMarkup;

namespace viewer {

/// The position of the element that a fault is about: of the first line or reference of the style that
/// mentions the name, else of the style, else of the frame. Of frames or styles with one name the first is
/// taken.
/// @return a character index into the text, or -1 when not even the frame is found
int FindFaultPlace(CMarkup& markup, const Diagnostic& fault);

} // namespace viewer
