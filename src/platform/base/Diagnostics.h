// The one hook through which the library tells of what it tolerates silently: a skipped unit, an unknown
// class, a name that leads nowhere, an exception caught at dispatch. By default nobody listens and nothing is
// printed.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/String.h"

#include <functional>

/// One tolerated fault. Texts that do not apply are empty.
struct Diagnostic
{
    CString strMessage;
    CString strFrame;
    CString strStyle;
    CString strName;    // the unit, line or class that it is about
    int nPosition = -1; // character index into the markup text, -1: none
};

using DiagnosticsHook = std::function<void(const Diagnostic&)>;

/// Sets who is told of tolerated faults; an empty hook tells nobody. The hook runs inside whatever found the
/// fault; what it throws is swallowed. User-interface thread only.
/// @return the hook that was set before
SPLITFRAME_PLATFORM_API DiagnosticsHook SetDiagnosticsHook(DiagnosticsHook hook);

/// Tells the hook; does nothing without one. A fault that is found while the hook runs is not told.
SPLITFRAME_PLATFORM_API void ReportDiagnostic(const Diagnostic& diagnostic);
