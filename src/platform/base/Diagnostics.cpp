// The hook for tolerated faults.
#include "platform/base/Diagnostics.h"

#include "platform/base/Exception.h"

#include <utility>

// Process-wide: tolerated faults have no owner to report to. Used from the user-interface thread only.
static DiagnosticsHook g_hook;
static bool g_bTelling = false;

DiagnosticsHook SetDiagnosticsHook(DiagnosticsHook hook)
{
    return std::exchange(g_hook, std::move(hook));
}

void ReportDiagnostic(const Diagnostic& diagnostic)
{
    if (!g_hook || g_bTelling)
        return;
    g_bTelling = true;
    const DiagnosticsHook hook = g_hook; // the hook may set another one
    try {
        hook(diagnostic);
    } catch (CException* pException) {
        pException->Delete();
    } catch (...) { // NOLINT(bugprone-empty-catch): a listener's failure must not become the library's
    }
    g_bTelling = false;
}
