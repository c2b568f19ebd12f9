// Reading of the layout file. Only regular files are read: a pipe or a device might never end.
#include "LayoutFile.h"

#include "ClassGuids.h"
#include "OpenFile.h"
#include "platform/base/Unicode.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace viewer {
namespace {

// Why a file can't be read, in words; empty if it can be.
std::string WhyUnreadable(int nDescriptor)
{
    struct stat status = {};
    if (nDescriptor < 0 || ::fstat(nDescriptor, &status) != 0)
        return std::strerror(errno);
    if (S_ISDIR(status.st_mode))
        return "it is a directory";
    return S_ISREG(status.st_mode) ? "" : "it is no regular file";
}

// Two encodings that are not read are easily taken for a broken file.
std::string EncodingHint(int nDescriptor)
{
    unsigned char bytes[4] = {};
    const ssize_t nRead = ::pread(nDescriptor, bytes, sizeof bytes, 0);
    if (nRead >= 2 && bytes[0] == 0xFE && bytes[1] == 0xFF)
        return ": UTF-16 with the high byte first is not read; save it as UTF-8";
    if (nRead == 4 && (bytes[0] == 0 || bytes[1] == 0))
        return ": UTF-16 is read only with the mark FF FE at the start; UTF-8 needs none";
    return {};
}

} // namespace

bool LayoutFile::Read(const std::string& strFile, Messages& messages)
{
    const Descriptor descriptor(OpenToRead(strFile));
    const std::string strReason = WhyUnreadable(descriptor.Get());
    if (!strReason.empty()) {
        messages.Error("can't be read: " + strReason);
        return false;
    }
    m_stamp = StampOf(descriptor.Get());
    const CString strPath = WidePath(strFile, descriptor.Get());
    if (!Parse(strPath, EncodingHint(descriptor.Get()), messages))
        return false;
    m_pFileText = std::make_unique<FileText>(strPath);
    if (m_pFileText->GetText() == m_markup.GetDoc() && StampOf(strFile) == m_stamp)
        return true;
    messages.Error("can't be read: it was changed meanwhile");
    return false;
}

bool LayoutFile::Parse(const CString& strPath, const std::string& strHint, Messages& messages)
{
    const bool bParsed = m_markup.Load(strPath) != 0;
    if (m_markup.GetFailure() == CMarkup::Failure::CannotRead ||
        m_markup.GetFailure() == CMarkup::Failure::TextCut) {
        messages.Error(m_markup.GetFailureText().ToUtf8() + strHint);
        return false;
    }
    TellPlaces(messages);
    if (!bParsed)
        messages.Error(m_markup.GetFailureText().ToUtf8(), m_markup.GetFailurePos());
    else
        m_classes = GatherClassGuids(m_markup);
    return bParsed;
}

void LayoutFile::TellPlaces(Messages& messages)
{
    messages.SetText(m_markup.GetDoc(), [this](const Diagnostic& fault) { return FindPlace(fault); });
}

} // namespace viewer
