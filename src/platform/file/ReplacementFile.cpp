// Replacing files in one step: rename within the folder.
#include "platform/file/ReplacementFile.h"

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

IMPLEMENT_DYNAMIC(CReplacementFile, CFile)

namespace {

constexpr int MOST_TRIES = 100;

// The file that a path leads to; the path itself when nothing is there.
std::string FollowLinks(const std::string& path)
{
    const std::unique_ptr<char, decltype(&std::free)> pResolved(::realpath(path.c_str(), nullptr),
                                                                &std::free);
    return pResolved ? pResolved.get() : path;
}

// A name in the same folder that no other writer uses.
std::string NameBeside(const std::string& path)
{
    static std::atomic<unsigned> nNext = 0; // distinguishes the writers of one process
    const std::size_t nFolder = path.rfind('/');
    return (nFolder == std::string::npos ? std::string() : path.substr(0, nFolder + 1)) + ".splitframe-" +
           std::to_string(::getpid()) + "-" + std::to_string(nNext++);
}

} // namespace

CReplacementFile::~CReplacementFile()
{
    CReplacementFile::Close();
}

bool CReplacementFile::Open(const wchar_t* pszFileName, CFileException* pError)
{
    Close();
    const CString strFileName(pszFileName);
    const std::string target = FollowLinks(strFileName.ToUtf8());
    if (!OpenBeside(target))
        return TellLastError(strFileName, pError);
    m_target = target;
    m_strFileName = strFileName;
    return true;
}

bool CReplacementFile::OpenBeside(const std::string& target)
{
    struct stat old;
    const bool bOld = ::stat(target.c_str(), &old) == 0;
    if (bOld && !S_ISREG(old.st_mode)) {
        m_nDescriptor = ::open(target.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK);
        return m_nDescriptor >= 0;
    }
    // A file that may not be written is not to be replaced either.
    if (bOld && ::access(target.c_str(), W_OK) != 0)
        return false;
    for (int nTry = 0; nTry < MOST_TRIES; ++nTry) {
        m_beside = NameBeside(target);
        m_nDescriptor = ::open(m_beside.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (m_nDescriptor >= 0 || errno != EEXIST)
            break; // a name that is taken is left over from a process that died
    }
    if (m_nDescriptor < 0) {
        m_beside.clear();
        return false;
    }
    if (bOld)
        ::fchmod(m_nDescriptor, old.st_mode & 07777);
    return true;
}

void CReplacementFile::Commit()
{
    if (m_nDescriptor < 0)
        AfxThrowFileException(CFileException::invalidFile);
    const CString strFileName = m_strFileName;
    if (!m_beside.empty() &&
        (::fsync(m_nDescriptor) != 0 || ::rename(m_beside.c_str(), m_target.c_str()) != 0)) {
        const int nError = errno;
        Close();
        AfxThrowFileException(CFileException::OsErrorToException(nError), nError, strFileName);
    }
    m_beside.clear();
    Close();
}

void CReplacementFile::Close()
{
    CFile::Close();
    if (!m_beside.empty())
        ::unlink(m_beside.c_str());
    m_beside.clear();
}
