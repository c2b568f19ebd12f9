// Files through the operating system's descriptors.
#include "platform/file/File.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

IMPLEMENT_DYNAMIC(CFile, CObject)

CFile::~CFile()
{
    CFile::Close();
}

static int FlagsOf(UINT nOpenFlags)
{
    int nFlags = O_CLOEXEC;
    switch (nOpenFlags & 3) {
    case CFile::modeWrite:
        nFlags |= O_WRONLY;
        break;
    case CFile::modeReadWrite:
        nFlags |= O_RDWR;
        break;
    default:
        nFlags |= O_RDONLY;
        break;
    }
    if (nOpenFlags & CFile::modeCreate)
        nFlags |= O_CREAT | O_TRUNC;
    return nFlags;
}

// A directory can be opened for reading but never read: better refused here. A pipe that nobody writes would
// block.
static int OpenRegular(const char* pszPath, int nFlags)
{
    const int nDescriptor = ::open(pszPath, nFlags | O_NONBLOCK, 0666);
    if (nDescriptor < 0)
        return -1;
    struct stat status;
    int nError = 0;
    if (::fstat(nDescriptor, &status) != 0)
        nError = errno;
    else if (S_ISDIR(status.st_mode))
        nError = EISDIR;
    if (nError == 0)
        return nDescriptor;
    ::close(nDescriptor);
    errno = nError;
    return -1;
}

bool CFile::TellLastError(const CString& strFileName, CFileException* pError)
{
    const int nError = errno;
    if (pError) {
        pError->m_cause = CFileException::OsErrorToException(nError);
        pError->m_lOsError = nError;
        pError->m_strFileName = strFileName;
    }
    return false;
}

bool CFile::Open(const wchar_t* pszFileName, UINT nOpenFlags, CFileException* pError)
{
    Close();
    const CString strFileName(pszFileName);
    const std::string path = strFileName.ToUtf8();
    m_nDescriptor = OpenRegular(path.c_str(), FlagsOf(nOpenFlags));
    if (m_nDescriptor < 0)
        return TellLastError(strFileName, pError);
    m_strFileName = strFileName;
    return true;
}

void CFile::Close()
{
    if (m_nDescriptor >= 0)
        ::close(m_nDescriptor);
    m_nDescriptor = -1;
    m_strFileName.Empty();
}

[[noreturn]] static void ThrowLastError(const CString& strFileName)
{
    const int nError = errno;
    AfxThrowFileException(CFileException::OsErrorToException(nError), nError, strFileName);
}

ULONGLONG CFile::GetLength() const
{
    struct stat status;
    if (::fstat(m_nDescriptor, &status) != 0)
        ThrowLastError(m_strFileName);
    return static_cast<ULONGLONG>(status.st_size);
}

ULONGLONG CFile::Seek(std::int64_t nOffset, UINT nFrom)
{
    const int nWhence = nFrom == current ? SEEK_CUR : nFrom == end ? SEEK_END : SEEK_SET;
    const off_t nPlace = ::lseek(m_nDescriptor, nOffset, nWhence);
    if (nPlace < 0 && errno == EINVAL)
        AfxThrowFileException(CFileException::badSeek, EINVAL, m_strFileName);
    if (nPlace < 0)
        ThrowLastError(m_strFileName);
    return static_cast<ULONGLONG>(nPlace);
}

UINT CFile::Read(void* pBuffer, UINT nCount)
{
    BYTE* pTo = static_cast<BYTE*>(pBuffer);
    UINT nRead = 0;
    while (nRead < nCount) {
        const ssize_t nResult = ::read(m_nDescriptor, pTo + nRead, nCount - nRead);
        if (nResult < 0 && errno == EINTR)
            continue;
        if (nResult < 0)
            ThrowLastError(m_strFileName);
        if (nResult == 0)
            break;
        nRead += static_cast<UINT>(nResult);
    }
    return nRead;
}

void CFile::Write(const void* pBuffer, UINT nCount)
{
    const BYTE* pFrom = static_cast<const BYTE*>(pBuffer);
    UINT nWritten = 0;
    while (nWritten < nCount) {
        const ssize_t nResult = ::write(m_nDescriptor, pFrom + nWritten, nCount - nWritten);
        if (nResult < 0 && errno == EINTR)
            continue;
        if (nResult < 0)
            ThrowLastError(m_strFileName);
        nWritten += static_cast<UINT>(nResult);
    }
}
