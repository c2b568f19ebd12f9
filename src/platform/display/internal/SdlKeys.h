// From the keys of the window library to virtual keys.
#pragma once

#include "platform/base/Types.h"

struct SDL_Keysym;

namespace splitframe {

/// Letters by what the keyboard layout makes of the key, digits by their place on the keyboard. Left and
/// right modifiers are one key. @return 0 for keys that have no code
UINT VirtualKey(const SDL_Keysym& key);

/// The character that the key types without modifiers; 0 for other keys.
wchar_t PlainCharacter(const SDL_Keysym& key);

} // namespace splitframe
