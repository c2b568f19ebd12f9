#include "definition/LayoutFaults.h"

#include "platform/base/Diagnostics.h"

namespace splitframe {

void LayoutFaults::Report(const CString& strMessage, const CString& strName, int nPosition) const
{
    Diagnostic diagnostic;
    diagnostic.strMessage = strMessage;
    diagnostic.strFrame = strFrame;
    diagnostic.strStyle = strStyle;
    diagnostic.strName = strName;
    diagnostic.nPosition = nPosition;
    ReportDiagnostic(diagnostic);
}

} // namespace splitframe
