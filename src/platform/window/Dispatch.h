// Message dispatch: from a window record to the handler in its C++ object. The one place where handlers'
// exceptions are caught, calls are counted, and the message under way is known.
#pragma once

#include "platform/window/WindowRecord.h"

#include <functional>

namespace splitframe {

/// The message that is being handled, innermost first.
struct MessageFrame
{
    MSG msg;
    const MessageFrame* pOuter;
};

class Dispatcher
{
public:
    /// Sends a message. The window may be gone afterwards, the record then belongs to nobody: look the handle
    /// up again.
    /// @param nOnException  the result when a handler throws
    static LRESULT Send(WindowRecord& record, UINT nMessage, WPARAM wParam, LPARAM lParam,
                        LRESULT nOnException = 0);
    /// Whether code of a class would see the message: a map entry, or an overridden procedure.
    static bool IsHandled(const CWnd& wnd, UINT nMessage);
    /// Runs code of a class outside of a message (a hook) as dispatch would: counted, exceptions reported.
    static void Guard(const wchar_t* pszWhere, const std::function<void()>& call) noexcept;
    static const MessageFrame* Current();

    // The hooks that the manager calls; here because they are protected.
    static void CallBeginDestroy(CWnd& wnd) noexcept;
    static void CallPostNcDestroy(CWnd& wnd) noexcept;
    static bool CallPreCreate(CWnd& wnd, CREATESTRUCT& cs);

private:
    static bool OverridesProcedure(const CWnd& wnd);
};

} // namespace splitframe
