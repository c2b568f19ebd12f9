// A display: where the pixels of all windows go and where input, the clock and wake-ups come from. One small
// interface; nothing above it can tell which display runs. Knows surfaces and key codes; knows no window. All
// coordinates are logical pixels from the upper left corner of the display's area.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/String.h"
#include "platform/base/Types.h"
#include "platform/graphics/Region.h"
#include "platform/graphics/Surface.h"

#include <filesystem>
#include <memory>

namespace splitframe {

/// One thing that the user did.
struct InputEvent
{
    enum class Kind
    {
        MouseMove,  ///< pt
        ButtonDown, ///< pt, nButton
        ButtonUp,   ///< pt, nButton
        Wheel,      ///< pt, nDelta
        KeyDown,    ///< nKey, bRepeat
        KeyUp,      ///< nKey
        Text,       ///< strText: what was typed, printable characters only
        Activate,   ///< the display's window became active
        Deactivate, ///< it is no longer
        Close,      ///< the user asks to close it
        Minimize,   ///< it became an icon: nobody sees it
        Restore,    ///< it is no longer one
        Resize,     ///< size: what Display::Size answers from now on
        Expose      ///< what was shown is lost: present everything again
    };
    Kind kind = Kind::MouseMove;
    POINT pt{};
    UINT nButton = 0; ///< VK_LBUTTON, VK_RBUTTON or VK_MBUTTON
    int nDelta = 0;   ///< WHEEL_DELTA a notch, away from the user positive
    UINT nKey = 0;    ///< virtual-key code
    bool bRepeat = false;
    CString strText;
    SIZE size{}; ///< logical pixels
};

struct MessageBoxRequest
{
    CString strText;
    CString strCaption;
    UINT nType = 0; ///< MB_ values
};

/// User-interface thread only, Wake excepted.
class SPLITFRAME_PLATFORM_API Display
{
public:
    Display();
    virtual ~Display();
    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;

    /// Size in logical pixels, and device pixels per logical pixel.
    virtual SIZE Size() const = 0;
    virtual double Scale() const = 0;
    /// Shows the changed part of the surface, which holds the whole display's pixels and is not kept.
    virtual void Present(const Surface& surface, const Region& damage) = 0;
    /// Asks for another size in logical pixels. A Resize input tells what came of it.
    virtual void Resize(int cx, int cy) = 0;
    /// Takes the oldest input that waits. @return false when none does
    bool NextInput(InputEvent& event);
    /// Writes all input that is taken from now on into a file, a line each (InputRecord.h), for Headless to
    /// repeat. @return empty, or why the file can not be written
    CString RecordInput(const std::filesystem::path& file);
    /// Sleeps until input or a wake-up comes, at most nMilliseconds (INFINITE_WAIT: for ever).
    /// @return false when nothing can come any more, so that waiting has no sense
    virtual bool Wait(DWORD nMilliseconds) = 0;
    /// Ends a Wait that is under way or the next one. Any thread.
    virtual void Wake() = 0;
    /// Milliseconds since some moment; never runs backwards.
    virtual ULONGLONG Now() const = 0;
    /// Longest time between the two presses of a double click, milliseconds.
    virtual UINT DoubleClickTime() const = 0;
    /// Shows a system cursor by its number; 0 hides the cursor.
    virtual void ShowCursor(UINT nCursor) = 0;
    virtual void SetTitle(const CString& strTitle) = 0;
    /// @return the ID of a button, or 0: the display has no box of its own, the window manager shows one in
    /// its window
    virtual int ShowMessageBox(const MessageBoxRequest& request) = 0;

    static constexpr DWORD INFINITE_WAIT = 0xFFFFFFFF;
    /// Size of a display that nobody gave another, as far as the screen has room.
    static constexpr int DEFAULT_WIDTH = 1280;
    static constexpr int DEFAULT_HEIGHT = 800;

protected:
    virtual bool TakeInput(InputEvent& event) = 0;

private:
    std::unique_ptr<class InputRecorder> m_pRecorder;
};

/// Opens a display, unless one is open. The environment says which:
/// - SPLITFRAME_DISPLAY: "sdl", a window on the screen, or "headless", pixels in memory. Not set: a window if
///   there is a screen (DISPLAY or WAYLAND_DISPLAY); one that can not be opened is told on standard error,
///   and the display is headless, as it is without a screen.
/// - SPLITFRAME_SCALE: device pixels per logical pixel, 0.25 to 8; not set: 1.
/// - SPLITFRAME_RECORD: a file that gets all input, see Display::RecordInput.
/// @return empty, or why there is none, in words
SPLITFRAME_PLATFORM_API CString OpenDisplay();

/// The display in use; opens one if there is none yet. When the one asked for can not be opened, a headless
/// one stands in so that clock and queue work, and no top-level window can be created.
SPLITFRAME_PLATFORM_API Display& CurrentDisplay();

/// Whether the display is the one asked for.
SPLITFRAME_PLATFORM_API bool IsDisplayUsable();

/// Puts another display in its place, before there are windows or in tests; null: the next use opens one
/// anew.
/// @return the one before, null if none was open
SPLITFRAME_PLATFORM_API std::unique_ptr<Display> SetDisplay(std::unique_ptr<Display> pDisplay);

/// Another number for each display that is put in use.
SPLITFRAME_PLATFORM_API unsigned long DisplaySerial();

/// Wakes the display in use, if any. Any thread.
SPLITFRAME_PLATFORM_API void WakeDisplay();

} // namespace splitframe
