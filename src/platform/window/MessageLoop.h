// The message loop: posted messages in their order, then input, then painting of all that is marked, then
// timers; after 8 ms of posted messages input and one painting get their turn. Loops nest (menus, message
// boxes): all take from the same queue.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/String.h"
#include "platform/base/Types.h"
#include "platform/window/Messages.h"

#include <functional>

/// Takes the next message, painting and waiting meanwhile as needed. Painting is done inside, not returned.
/// @return FALSE when the message is WM_QUIT, or when nothing can come any more (a headless display whose
/// clock
///         was set: time does not pass by itself, so there is no sense in waiting)
SPLITFRAME_PLATFORM_API BOOL GetMessage(MSG* pMsg);
/// As GetMessage, but answers FALSE at once when there is nothing to take.
/// @param nRemove  PM_NOREMOVE leaves the message where it was
SPLITFRAME_PLATFORM_API BOOL PeekMessage(MSG* pMsg, UINT nRemove = PM_REMOVE);
/// Displays hand in text beside keys; here follow what they do not: WM_CHAR of control keys, WM_SYSCHAR of
/// letters and digits pressed with Alt. @return whether it was a key message
SPLITFRAME_PLATFORM_API BOOL TranslateMessage(const MSG* pMsg);
/// Sends a message taken from the queue to its window.
SPLITFRAME_PLATFORM_API LRESULT DispatchMessage(const MSG* pMsg);
/// Makes the loops end once the posted messages before it are done: GetMessage answers FALSE with the exit
/// code.
SPLITFRAME_PLATFORM_API void PostQuitMessage(int nExitCode);

/// Shows a message box over the active window, named like that, and waits for the answer: a loop inside the
/// call; the window is disabled meanwhile. The headless display records the box and answers at once, unless a
/// test wants the box itself.
/// @param nType  MB_ values: buttons, icon and the button that Enter presses
/// @return the ID of the button; cancel or no when the box went without an answer
SPLITFRAME_PLATFORM_API int AfxMessageBox(LPCWSTR pszText, UINT nType = MB_OK, UINT nIDHelp = 0);

/// The same over a window, with a caption; null: over none.
SPLITFRAME_PLATFORM_API int MessageBoxW(HWND hWnd, LPCWSTR pszText, LPCWSTR pszCaption, UINT nType);

namespace splitframe {

/// What every loop asks before a message goes to its window; nonzero: the message is dealt with. The
/// application object sets it. @return the filter before
using PreTranslateFilter = BOOL (*)(MSG* pMsg);
SPLITFRAME_PLATFORM_API PreTranslateFilter SetPreTranslateFilter(PreTranslateFilter pfnFilter);

/// Handles one message taken from the queue: filter, then dispatch.
SPLITFRAME_PLATFORM_API void HandleMessage(MSG* pMsg);

/// Handles all that is queued or due, paintings included, and comes back: for tests, tools and modal work. A
/// handler that posts to itself for ever is stopped after a great number of messages. WM_QUIT stays queued.
SPLITFRAME_PLATFORM_API void DrainMessages();

/// A loop inside a loop, for what waits for the user: handles messages as long as the condition, asked before
/// each, holds. @return false when it ended because nothing can come any more, or because of WM_QUIT, which
/// is left for the loop outside
bool RunLoopWhile(const std::function<bool()>& goesOn);

/// Whether this is the thread that first used the loop or created a window.
SPLITFRAME_PLATFORM_API bool IsUserInterfaceThread();

/// Paints all that is marked now and shows it.
SPLITFRAME_PLATFORM_API void PaintNow();

} // namespace splitframe
