// What the window library tells becomes the input that people mean.
#include "platform/display/internal/SdlInput.h"
#include "platform/display/InputRecord.h"

#include <SDL.h>

#include <cstdio>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using namespace splitframe;

SDL_Event Key(Uint32 nType, SDL_Keycode sym, Uint16 nMod = 0, SDL_Scancode code = SDL_SCANCODE_UNKNOWN)
{
    SDL_Event event{};
    event.type = nType;
    event.key.keysym = {code, sym, nMod, 0};
    return event;
}
SDL_Event Down(SDL_Keycode sym, Uint16 nMod = 0, SDL_Scancode code = SDL_SCANCODE_UNKNOWN)
{
    return Key(SDL_KEYDOWN, sym, nMod, code);
}
SDL_Event Up(SDL_Keycode sym, Uint16 nMod = 0)
{
    return Key(SDL_KEYUP, sym, nMod);
}
SDL_Event Text(const char* pszText)
{
    SDL_Event event{};
    event.type = SDL_TEXTINPUT;
    std::snprintf(event.text.text, sizeof event.text.text, "%s", pszText);
    return event;
}
SDL_Event Window(Uint8 nEvent)
{
    SDL_Event event{};
    event.type = SDL_WINDOWEVENT;
    event.window.event = nEvent;
    return event;
}
SDL_Event Move(int x, int y)
{
    SDL_Event event{};
    event.type = SDL_MOUSEMOTION;
    event.motion.x = x;
    event.motion.y = y;
    return event;
}
SDL_Event Button(Uint32 nType, Uint8 nButton, int x, int y)
{
    SDL_Event event{};
    event.type = nType;
    event.button.button = nButton;
    event.button.x = x;
    event.button.y = y;
    return event;
}
SDL_Event Wheel(float y)
{
    SDL_Event event{};
    event.type = SDL_MOUSEWHEEL;
    event.wheel.preciseY = y;
    return event;
}
// All events so far came at once; those that follow come later.
SDL_Event Pause()
{
    return SDL_Event{};
}

std::string Told(const std::vector<SDL_Event>& events, double dScale = 1.0)
{
    SdlInput input(dScale);
    std::string strTold;
    const auto take = [&] {
        input.EndBatch();
        for (InputEvent event; input.Next(event);)
            strTold += (strTold.empty() ? "" : "; ") + InputAsText({0, event}).substr(2);
    };
    for (const SDL_Event& event : events) {
        if (event.type == 0)
            take();
        else
            input.Take(event);
    }
    take();
    return strTold;
}

constexpr Uint8 FOCUS_LOST = SDL_WINDOWEVENT_FOCUS_LOST;
constexpr Uint8 FOCUS_GAINED = SDL_WINDOWEVENT_FOCUS_GAINED;

struct Case
{
    const char* what;
    std::vector<SDL_Event> events;
    const char* told;
};

void Check(const std::vector<Case>& cases)
{
    for (const Case& c : cases)
        EXPECT_EQ(Told(c.events), c.told) << c.what;
}

TEST(SdlInputTest, KeysAndText)
{
    Check({
        {"a letter is a key and a text", {Down(SDLK_a), Text("a"), Up(SDLK_a)}, "key 65; text a; keyup 65"},
        {"composed text has no key", {Text("\xC3\xA9")}, "text \xC3\xA9"},
        {"with Ctrl there is no text", {Down(SDLK_LCTRL), Down(SDLK_c), Text("c")}, "key 17; key 67"},
        {"two Ctrl keys are one",
         {Down(SDLK_LCTRL), Down(SDLK_RCTRL), Up(SDLK_LCTRL, KMOD_RCTRL), Up(SDLK_RCTRL)},
         "key 17; key 17; keyup 17"},
        {"digits by place, whatever the layout types there",
         {Down(SDLK_AMPERSAND, 0, SDL_SCANCODE_1)},
         "key 49"},
        {"letters of other alphabets by place", {Down(0x0444, 0, SDL_SCANCODE_A)}, "key 65"},
        {"number pad, locked and not",
         {Down(SDLK_KP_1, KMOD_NUM, SDL_SCANCODE_KP_1), Down(SDLK_KP_1, 0, SDL_SCANCODE_KP_1),
          Down(SDLK_KP_0, KMOD_NUM, SDL_SCANCODE_KP_0), Down(SDLK_KP_PERIOD, 0, SDL_SCANCODE_KP_PERIOD)},
         "key 97; key 35; key 96; key 46"},
        {"function keys", {Down(SDLK_F10, 0, SDL_SCANCODE_F10)}, "key 121"},
        {"a key without a code", {Down(SDLK_MUTE), Up(SDLK_MUTE)}, ""},
    });
}

TEST(SdlInputTest, TheAltKeys)
{
    Check({
        {"left Alt and a letter",
         {Down(SDLK_LALT), Down(SDLK_f), Text("f"), Up(SDLK_LALT), Up(SDLK_f)},
         "key 18; key 70; keyup 18; keyup 70"},
        {"a stroke of the right one", {Down(SDLK_RALT), Pause(), Up(SDLK_RALT)}, "key 18; keyup 18"},
        {"the right one like the left one",
         {Down(SDLK_RALT), Pause(), Down(SDLK_f), Text("f"), Pause(), Up(SDLK_f), Up(SDLK_RALT)},
         "key 18; key 70; keyup 70; keyup 18"},
        {"the right one with a key that types nothing",
         {Down(SDLK_RALT), Down(SDLK_F4, 0, SDL_SCANCODE_F4), Pause(), Up(SDLK_RALT)},
         "key 18; key 115; keyup 18"},
        {"the right one types another character",
         {Down(SDLK_RALT), Down(SDLK_e), Text("\xE2\x82\xAC"), Up(SDLK_e), Up(SDLK_RALT)},
         "key 69; text \xE2\x82\xAC; keyup 69"},
        {"the right one with an accent that waits for its letter",
         {Down(SDLK_RALT), Down(0xE5), Pause(), Up(0xE5), Up(SDLK_RALT), Down(SDLK_u), Text("ü")},
         "key 85; text ü"},
        {"leaving the window is no stroke of Alt",
         {Down(SDLK_LALT), Pause(), Up(SDLK_LALT), Window(FOCUS_LOST)},
         "key 18; deactivate"},
        {"nor is coming back with Alt held",
         {Window(FOCUS_GAINED), Down(SDLK_LALT), Pause(), Up(SDLK_LALT)},
         "activate"},
        {"but Alt and a letter then are",
         {Window(FOCUS_GAINED), Down(SDLK_LALT), Pause(), Down(SDLK_f), Text("f"), Up(SDLK_LALT)},
         "activate; key 18; key 70; keyup 18"},
        {"Alt is forgotten with the focus",
         {Down(SDLK_LALT), Window(FOCUS_LOST), Window(FOCUS_GAINED), Pause(), Text("x")},
         "key 18; deactivate; activate; text x"},
    });
}

TEST(SdlInputTest, Mouse)
{
    Check({
        {"moves in a row are one", {Move(1, 2), Move(3, 4), Move(-5, 600)}, "move -5,600"},
        {"but not across a press",
         {Move(1, 2), Button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_LEFT, 1, 2), Move(3, 4),
          Button(SDL_MOUSEBUTTONUP, SDL_BUTTON_LEFT, 3, 4)},
         "move 1,2; down 1,2 left; move 3,4; up 3,4 left; move 3,4"},
        {"buttons that nobody knows", {Button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_X1, 1, 2)}, ""},
        {"wheel",
         {Wheel(1), Wheel(-2), Wheel(0.25F), Wheel(0)},
         "wheel 0,0 120; wheel 0,0 -240; wheel 0,0 30"},
    });
    // Every device pixel belongs to the logical pixel that is drawn over it.
    for (const double dScale : {0.75, 1.0, 1.25, 1.5, 2.0}) {
        const Surface surface(20, 1, dScale);
        for (int x = 0; x < 20; ++x) {
            const RECT rc = surface.ToDevice({x, 0, x + 1, 1});
            for (int nDevice = rc.left; nDevice < rc.right; ++nDevice)
                EXPECT_EQ(SdlInput(dScale).ToLogical(nDevice, 0).x, x) << dScale << ": " << nDevice;
        }
        EXPECT_EQ(SdlInput(dScale).ToLogical(-1, 0).x, -1) << dScale;
    }
}

} // namespace
