// CMemFile: a file whose bytes are in memory, for archives that never touch a disk.
#pragma once

#include "platform/file/File.h"

#include <span>
#include <vector>

/// Bytes in memory, used like a file. It can not be opened or closed: it is there as long as the object is.
class SPLITFRAME_PLATFORM_API CMemFile : public CFile
{
    DECLARE_DYNAMIC(CMemFile)

public:
    /// An empty file that grows as it is written.
    CMemFile() = default;
    /// A file of the caller's bytes, which must outlive it; they are neither copied nor changed. Writing
    /// raises the file exception (accessDenied). Null counts as no bytes.
    CMemFile(const BYTE* pBytes, UINT nCount);
    ~CMemFile() override;

    bool Open(const wchar_t* pszFileName, UINT nOpenFlags, CFileException* pError = nullptr) = delete;
    void Close() override {}

    ULONGLONG GetLength() const override { return GetBytes().size(); }
    ULONGLONG Seek(std::int64_t nOffset, UINT nFrom) override;
    UINT Read(void* pBuffer, UINT nCount) override;
    /// Writing behind the end fills the gap with zeros. @throw CMemoryException; then nothing has changed
    void Write(const void* pBuffer, UINT nCount) override;

    /// All bytes from the first to the last; valid until the next write.
    std::span<const BYTE> GetBytes() const
    {
        return m_bReadOnly ? m_foreign : std::span<const BYTE>(m_arrByte);
    }

private:
    std::vector<BYTE> m_arrByte;
    std::span<const BYTE> m_foreign; // not owned
    bool m_bReadOnly = false;        // m_foreign is what the file holds
    ULONGLONG m_nPlace = 0;
};
