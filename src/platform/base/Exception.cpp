// Throwing and telling of the platform's exceptions.
#include "platform/base/Exception.h"

#include <cerrno>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CInvalidArgException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CException)
IMPLEMENT_DYNAMIC(CFileException, CException)
IMPLEMENT_DYNAMIC(CArchiveException, CException)

CException::~CException() = default;

void CException::Delete()
{
    if (m_storage == Storage::Owned)
        delete this;
}

CString CInvalidArgException::GetErrorMessage() const
{
    return L"An argument is outside its range";
}

CString CMemoryException::GetErrorMessage() const
{
    return L"Out of memory";
}

CFileException::CFileException(int cause, LONG lOsError, const wchar_t* pszFileName)
    : m_cause(cause), m_lOsError(lOsError), m_strFileName(pszFileName)
{
}

static const wchar_t* TextOfCause(int cause)
{
    switch (cause) {
    case CFileException::none:
        return L"No error";
    case CFileException::fileNotFound:
        return L"No such file";
    case CFileException::badPath:
        return L"The path is not valid";
    case CFileException::tooManyOpenFiles:
        return L"Too many open files";
    case CFileException::accessDenied:
        return L"Access denied";
    case CFileException::invalidFile:
        return L"No file is open";
    case CFileException::directoryFull:
        return L"The directory is full";
    case CFileException::badSeek:
        return L"The position in the file is not valid";
    case CFileException::hardIO:
        return L"The device failed";
    case CFileException::diskFull:
        return L"The disk is full";
    case CFileException::endOfFile:
        return L"The file ends too early";
    default:
        return L"The file operation failed";
    }
}

static CString WithFileName(const CString& strFileName, const wchar_t* pszText)
{
    return strFileName.IsEmpty() ? CString(pszText) : strFileName + L": " + pszText;
}

CString CFileException::GetErrorMessage() const
{
    return WithFileName(m_strFileName, TextOfCause(m_cause));
}

int CFileException::OsErrorToException(LONG lOsError)
{
    switch (lOsError) {
    case 0:
        return none;
    case ENOENT:
        return fileNotFound;
    case ENOTDIR:
    case ENAMETOOLONG:
    case ELOOP:
    case EISDIR:
        return badPath;
    case EMFILE:
    case ENFILE:
        return tooManyOpenFiles;
    case EACCES:
    case EPERM:
    case EROFS:
    case ETXTBSY:
        return accessDenied;
    case EBADF:
        return invalidFile;
    case ESPIPE:
        return badSeek;
    case EIO:
        return hardIO;
    case ENOSPC:
    case EDQUOT:
        return diskFull;
    default:
        return genericException;
    }
}

CArchiveException::CArchiveException(int cause, const wchar_t* pszFileName)
    : m_cause(cause), m_strFileName(pszFileName)
{
}

static const wchar_t* TextOfArchiveCause(int cause)
{
    switch (cause) {
    case CArchiveException::none:
        return L"No error";
    case CArchiveException::readOnly:
        return L"The archive can only be read";
    case CArchiveException::endOfFile:
        return L"The archive ends too early";
    case CArchiveException::writeOnly:
        return L"The archive can only be written";
    default:
        return L"The archive is damaged";
    }
}

CString CArchiveException::GetErrorMessage() const
{
    return WithFileName(m_strFileName, TextOfArchiveCause(m_cause));
}

void AfxThrowInvalidArgException()
{
    static CInvalidArgException exception;
    throw &exception;
}

void AfxThrowMemoryException()
{
    static CMemoryException exception;
    throw &exception;
}

void AfxThrowFileException(int cause, LONG lOsError, const wchar_t* pszFileName)
{
    throw new CFileException(cause, lOsError, pszFileName);
}

void AfxThrowArchiveException(int cause, const wchar_t* pszFileName)
{
    throw new CArchiveException(cause, pszFileName);
}
