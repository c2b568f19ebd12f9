// CFile: bytes in a file. Knows the operating system's file calls and the file exception.
#pragma once

#include "platform/base/Exception.h"
#include "platform/base/Export.h"
#include "platform/base/String.h"
#include "platform/base/Types.h"

/// One open file, or none. Not copied; closes what it still holds when it ends. Derived classes keep their
/// bytes elsewhere.
class SPLITFRAME_PLATFORM_API CFile : public CObject
{
    DECLARE_DYNAMIC(CFile)

public:
    enum OpenFlags : UINT
    {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        modeCreate = 0x1000
    };
    enum SeekPosition : UINT
    {
        begin = 0,
        current = 1,
        end = 2
    };

    CFile() = default;
    ~CFile() override;

    /// Opens a file by name; a file that is open already is closed first.
    /// @param nOpenFlags  one of the mode values; modeCreate makes the file, or empties the one that is there
    /// @param pError  where to tell why it failed; may be null
    /// @return false when it can not be opened, which also goes for directories
    bool Open(const wchar_t* pszFileName, UINT nOpenFlags, CFileException* pError = nullptr);
    virtual void Close();

    /// Size in bytes. @throw CFileException when no file is open or it can not be asked
    virtual ULONGLONG GetLength() const;
    /// Moves the place where the next byte is read or written; it may lie behind the end.
    /// @param nOffset  bytes from the place that nFrom names
    /// @return the new place, in bytes from the beginning
    /// @throw CFileException for a place before the beginning, a file without places (a pipe), or none open
    virtual ULONGLONG Seek(std::int64_t nOffset, UINT nFrom);
    void SeekToBegin() { Seek(0, begin); }
    /// Reads up to nCount bytes. @return how many were read; fewer only at the end of the file
    /// @throw CFileException when no file is open or reading fails
    virtual UINT Read(void* pBuffer, UINT nCount);
    /// Writes all bytes. @throw CFileException when no file is open or not all could be written
    virtual void Write(const void* pBuffer, UINT nCount);

    CString GetFilePath() const { return m_strFileName; }

protected:
    /// Passes errno on, where pError is not null. @return false
    static bool TellLastError(const CString& strFileName, CFileException* pError);

    int m_nDescriptor = -1; // -1: no file is open
    CString m_strFileName;
};
