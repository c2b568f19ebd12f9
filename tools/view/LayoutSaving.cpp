// The text says what changes, the bytes of the file are changed in those places, and the file is replaced
// whole or not at all.
#include "LayoutSaving.h"

#include "OpenFile.h"
#include "RateWriter.h"
#include "platform/base/Exception.h"
#include "platform/file/ReplacementFile.h"

#include <system_error>

namespace viewer {
namespace {

std::string Reason(const CFileException& failure)
{
    return failure.m_lOsError != 0 ? std::generic_category().message(static_cast<int>(failure.m_lOsError))
                                   : failure.GetErrorMessage().ToUtf8();
}

// @return empty, or why the file could not be replaced
std::string ReplaceFile(const std::string& strFile, const std::string& strBytes)
{
    const Descriptor old(OpenToRead(strFile));
    try {
        CReplacementFile file;
        CFileException failure;
        if (!file.Open(WidePath(strFile, old.Get()), &failure))
            return Reason(failure);
        file.Write(strBytes.data(), static_cast<UINT>(strBytes.size()));
        file.Commit();
    } catch (CFileException* pException) {
        std::string strReason = Reason(*pException);
        pException->Delete();
        return strReason;
    }
    return {};
}

} // namespace

bool IsOther(const std::string& strFile, const LayoutFile& layout)
{
    const Descriptor descriptor(OpenToRead(strFile));
    try {
        return descriptor.Get() >= 0 &&
               FileText(WidePath(strFile, descriptor.Get())).GetBytes() != layout.GetFileText().GetBytes();
    } catch (CFileException* pException) {
        pException->Delete();
        return true;
    }
}

bool SaveLayout(LayoutFile& layout, const std::vector<ChangedRate>& changed, const std::string& strFile,
                Messages& messages)
{
    const RateEdits plan = PlanRates(layout.GetMarkup(), changed);
    if (!plan.strError.empty()) {
        messages.Error(plan.strError, plan.nErrorPosition);
        return false;
    }
    const std::string strReason = ReplaceFile(strFile, layout.GetFileText().Apply(plan.edits));
    if (!strReason.empty())
        messages.Failure(strFile + ": can't be written: " + strReason);
    return strReason.empty();
}

} // namespace viewer
