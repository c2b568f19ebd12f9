// Key tables.
#include "platform/display/internal/SdlKeys.h"
#include "platform/window/Messages.h"

#include <SDL.h>

#include <array>
#include <utility>

namespace splitframe {

namespace {

constexpr std::array<std::pair<SDL_Keycode, UINT>, 53> BY_CODE = {{{SDLK_BACKSPACE, VK_BACK},
                                                                   {SDLK_TAB, VK_TAB},
                                                                   {SDLK_RETURN, VK_RETURN},
                                                                   {SDLK_KP_ENTER, VK_RETURN},
                                                                   {SDLK_LSHIFT, VK_SHIFT},
                                                                   {SDLK_RSHIFT, VK_SHIFT},
                                                                   {SDLK_LCTRL, VK_CONTROL},
                                                                   {SDLK_RCTRL, VK_CONTROL},
                                                                   {SDLK_LALT, VK_MENU},
                                                                   {SDLK_RALT, VK_MENU},
                                                                   {SDLK_PAUSE, VK_PAUSE},
                                                                   {SDLK_CAPSLOCK, VK_CAPITAL},
                                                                   {SDLK_ESCAPE, VK_ESCAPE},
                                                                   {SDLK_SPACE, VK_SPACE},
                                                                   {SDLK_PAGEUP, VK_PRIOR},
                                                                   {SDLK_PAGEDOWN, VK_NEXT},
                                                                   {SDLK_END, VK_END},
                                                                   {SDLK_HOME, VK_HOME},
                                                                   {SDLK_LEFT, VK_LEFT},
                                                                   {SDLK_UP, VK_UP},
                                                                   {SDLK_RIGHT, VK_RIGHT},
                                                                   {SDLK_DOWN, VK_DOWN},
                                                                   {SDLK_INSERT, VK_INSERT},
                                                                   {SDLK_DELETE, VK_DELETE},
                                                                   {SDLK_APPLICATION, VK_APPS},
                                                                   {SDLK_MENU, VK_APPS},
                                                                   {SDLK_KP_MULTIPLY, VK_MULTIPLY},
                                                                   {SDLK_KP_PLUS, VK_ADD},
                                                                   {SDLK_KP_MINUS, VK_SUBTRACT},
                                                                   {SDLK_KP_DIVIDE, VK_DIVIDE},
                                                                   {SDLK_PRINTSCREEN, 0x2C},
                                                                   {SDLK_HELP, 0x2F},
                                                                   {SDLK_LGUI, 0x5B},
                                                                   {SDLK_RGUI, 0x5C},
                                                                   {SDLK_NUMLOCKCLEAR, 0x90},
                                                                   {SDLK_SCROLLLOCK, 0x91},
                                                                   // Punctuation where it has a code.
                                                                   {SDLK_SEMICOLON, 0xBA},
                                                                   {SDLK_COLON, 0xBA},
                                                                   {SDLK_EQUALS, 0xBB},
                                                                   {SDLK_PLUS, 0xBB},
                                                                   {SDLK_COMMA, 0xBC},
                                                                   {SDLK_MINUS, 0xBD},
                                                                   {SDLK_UNDERSCORE, 0xBD},
                                                                   {SDLK_PERIOD, 0xBE},
                                                                   {SDLK_SLASH, 0xBF},
                                                                   {SDLK_QUESTION, 0xBF},
                                                                   {SDLK_BACKQUOTE, 0xC0},
                                                                   {SDLK_LEFTBRACKET, 0xDB},
                                                                   {SDLK_BACKSLASH, 0xDC},
                                                                   {SDLK_RIGHTBRACKET, 0xDD},
                                                                   {SDLK_QUOTE, 0xDE},
                                                                   {SDLK_QUOTEDBL, 0xDE},
                                                                   {SDLK_LESS, 0xE2}}};

// What the number pad's keys mean without the number lock, 1 to 9, then 0 and the decimal key.
constexpr UINT PAD_KEYS[] = {VK_END,  VK_DOWN, VK_NEXT,  VK_LEFT,   0x0C,     VK_RIGHT,
                             VK_HOME, VK_UP,   VK_PRIOR, VK_INSERT, VK_DELETE};

UINT PadKey(const SDL_Keysym& key)
{
    const auto nPlace = static_cast<UINT>(key.scancode - SDL_SCANCODE_KP_1);
    if ((key.mod & KMOD_NUM) == 0)
        return PAD_KEYS[nPlace];
    return nPlace < 9 ? VK_NUMPAD0 + 1 + nPlace : nPlace == 9 ? VK_NUMPAD0 : VK_DECIMAL;
}

constexpr bool IsWithin(SDL_Scancode code, SDL_Scancode first, SDL_Scancode last)
{
    return code >= first && code <= last;
}

} // namespace

UINT VirtualKey(const SDL_Keysym& key)
{
    const SDL_Scancode code = key.scancode;
    if (key.sym >= SDLK_a && key.sym <= SDLK_z)
        return static_cast<UINT>('A' + (key.sym - SDLK_a));
    if (IsWithin(code, SDL_SCANCODE_1, SDL_SCANCODE_9))
        return static_cast<UINT>('1' + (code - SDL_SCANCODE_1));
    if (code == SDL_SCANCODE_0)
        return '0';
    if (IsWithin(code, SDL_SCANCODE_KP_1, SDL_SCANCODE_KP_PERIOD))
        return PadKey(key);
    if (IsWithin(code, SDL_SCANCODE_F1, SDL_SCANCODE_F12))
        return VK_F1 + static_cast<UINT>(code - SDL_SCANCODE_F1);
    for (const auto& [sym, nKey] : BY_CODE) {
        if (sym == key.sym)
            return nKey;
    }
    // Layouts without Latin letters: shortcuts stay where they are on others.
    if (IsWithin(code, SDL_SCANCODE_A, SDL_SCANCODE_Z))
        return static_cast<UINT>('A' + (code - SDL_SCANCODE_A));
    return 0;
}

wchar_t PlainCharacter(const SDL_Keysym& key)
{
    return key.sym >= SDLK_SPACE && (key.sym & SDLK_SCANCODE_MASK) == 0 ? static_cast<wchar_t>(key.sym)
                                                                        : L'\0';
}

} // namespace splitframe
