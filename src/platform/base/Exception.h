// The exceptions of the platform layer, thrown by pointer: whoever catches one calls Delete().
#pragma once

#include "platform/base/Export.h"
#include "platform/base/Object.h"
#include "platform/base/String.h"

/// Base of all exceptions. Caught as `CException*`; the catcher ends it with Delete(), or throws it on.
class SPLITFRAME_PLATFORM_API CException : public CObject
{
    DECLARE_DYNAMIC(CException)

public:
    ~CException() override;
    /// Ends the exception: frees it, unless it is a shared object.
    void Delete();
    /// What happened, in words, for a log or a message box.
    virtual CString GetErrorMessage() const = 0;

protected:
    enum class Storage
    {
        Owned,
        Shared
    };
    explicit CException(Storage storage = Storage::Owned) : m_storage(storage) {}

private:
    Storage m_storage;
};

/// An argument outside its range, above all an index outside a list. One shared object: Delete() leaves it
/// alone.
class SPLITFRAME_PLATFORM_API CInvalidArgException : public CException
{
    DECLARE_DYNAMIC(CInvalidArgException)

public:
    CInvalidArgException() : CException(Storage::Shared) {}
    CString GetErrorMessage() const override;
};

/// Memory ran out. One shared object: reporting it takes no memory.
class SPLITFRAME_PLATFORM_API CMemoryException : public CException
{
    DECLARE_DYNAMIC(CMemoryException)

public:
    CMemoryException() : CException(Storage::Shared) {}
    CString GetErrorMessage() const override;
};

/// A file operation failed.
class SPLITFRAME_PLATFORM_API CFileException : public CException
{
    DECLARE_DYNAMIC(CFileException)

public:
    enum Cause
    {
        none = 0,
        genericException = 1,
        fileNotFound = 2,
        badPath = 3,
        tooManyOpenFiles = 4,
        accessDenied = 5,
        invalidFile = 6,
        removeCurrentDir = 7,
        directoryFull = 8,
        badSeek = 9,
        hardIO = 10,
        sharingViolation = 11,
        lockViolation = 12,
        diskFull = 13,
        endOfFile = 14
    };
    explicit CFileException(int cause = none, LONG lOsError = 0, const wchar_t* pszFileName = nullptr);
    CString GetErrorMessage() const override;

    /// The cause that stands for an errno value.
    static int OsErrorToException(LONG lOsError);

    int m_cause;
    LONG m_lOsError;       // errno, or 0
    CString m_strFileName; // empty when unknown
};

/// An archive was used against its direction, or ended too early.
class SPLITFRAME_PLATFORM_API CArchiveException : public CException
{
    DECLARE_DYNAMIC(CArchiveException)

public:
    enum Cause
    {
        none = 0,
        genericException = 1,
        readOnly = 2,  // written to, but made for loading
        endOfFile = 3, // what was asked for is not there
        writeOnly = 4, // read from, but made for storing
        badIndex = 5,
        badClass = 6,
        badSchema = 7
    };
    explicit CArchiveException(int cause = none, const wchar_t* pszFileName = nullptr);
    CString GetErrorMessage() const override;

    int m_cause;
    CString m_strFileName; // empty when unknown
};

[[noreturn]] SPLITFRAME_PLATFORM_API void AfxThrowInvalidArgException();
[[noreturn]] SPLITFRAME_PLATFORM_API void AfxThrowMemoryException();
[[noreturn]] SPLITFRAME_PLATFORM_API void AfxThrowFileException(int cause, LONG lOsError = 0,
                                                                const wchar_t* pszFileName = nullptr);
[[noreturn]] SPLITFRAME_PLATFORM_API void AfxThrowArchiveException(int cause,
                                                                   const wchar_t* pszFileName = nullptr);
