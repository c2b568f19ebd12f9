// Exceptions of every type into the diagnostics hook.
#include "platform/window/Report.h"
#include "platform/base/Diagnostics.h"
#include "platform/base/Exception.h"

#include <exception>

namespace splitframe {

namespace {

CString DescribeAndFree()
{
    try {
        throw;
    } catch (CException* pException) {
        CString strText = pException ? pException->GetErrorMessage() : CString(L"exception");
        if (pException)
            pException->Delete();
        return strText;
    } catch (const std::exception& exception) {
        return CString(exception.what());
    } catch (...) {
        return CString(L"exception of unknown type");
    }
}

} // namespace

void ReportCurrentException(const wchar_t* pszWhere) noexcept
{
    try {
        Diagnostic diagnostic;
        diagnostic.strMessage = CString(L"exception caught in ") + pszWhere + L": " + DescribeAndFree();
        ReportDiagnostic(diagnostic);
    } catch (...) {
        return; // no memory left for the report
    }
}

} // namespace splitframe
