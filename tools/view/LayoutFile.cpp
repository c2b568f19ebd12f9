// Reading of the layout file. Only regular files are read: a pipe or a device might never end.
#include "LayoutFile.h"

#include "ClassGuids.h"
#include "platform/base/Unicode.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace viewer {
namespace {

class Descriptor
{
public:
    explicit Descriptor(int nDescriptor) : m_nDescriptor(nDescriptor) {}
    ~Descriptor()
    {
        if (m_nDescriptor >= 0)
            ::close(m_nDescriptor);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int Get() const { return m_nDescriptor; }

private:
    int m_nDescriptor;
};

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

// Paths are bytes. Those that are not UTF-8 can't be said in wide text, but the open file has a name that
// can.
CString WidePath(const std::string& strFile, int nDescriptor)
{
    const CString strWide = CString::FromUtf8(strFile);
    return strWide.ToUtf8() == strFile ? strWide
                                       : CString::FromUtf8("/proc/self/fd/" + std::to_string(nDescriptor));
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
    const Descriptor descriptor(::open(strFile.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    const std::string strReason = WhyUnreadable(descriptor.Get());
    if (!strReason.empty()) {
        messages.Error("can't be read: " + strReason);
        return false;
    }
    const bool bParsed = m_markup.Load(WidePath(strFile, descriptor.Get())) != 0;
    if (m_markup.GetFailure() == CMarkup::Failure::CannotRead ||
        m_markup.GetFailure() == CMarkup::Failure::TextCut) {
        messages.Error(m_markup.GetFailureText().ToUtf8() + EncodingHint(descriptor.Get()));
        return false;
    }
    messages.SetText(m_markup.GetDoc(), [this](const Diagnostic& fault) { return FindPlace(fault); });
    if (!bParsed)
        messages.Error(m_markup.GetFailureText().ToUtf8(), m_markup.GetFailurePos());
    else
        m_classes = GatherClassGuids(m_markup);
    return bParsed;
}

} // namespace viewer
