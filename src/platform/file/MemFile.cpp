// Files in memory.
#include "platform/file/MemFile.h"

#include <algorithm>
#include <limits>
#include <new>

IMPLEMENT_DYNAMIC(CMemFile, CFile)

CMemFile::CMemFile(const BYTE* pBytes, UINT nCount) : m_bReadOnly(true)
{
    if (pBytes)
        m_foreign = {pBytes, nCount};
}

CMemFile::~CMemFile() = default;

ULONGLONG CMemFile::Seek(std::int64_t nOffset, UINT nFrom)
{
    const ULONGLONG nBase = nFrom == current ? m_nPlace : nFrom == end ? GetLength() : 0;
    const ULONGLONG nPlace = nBase + static_cast<ULONGLONG>(nOffset);
    const bool bBefore = nOffset < 0 && nPlace > nBase;
    if (bBefore || nPlace > static_cast<ULONGLONG>(std::numeric_limits<std::int64_t>::max()))
        AfxThrowFileException(CFileException::badSeek);
    return m_nPlace = nPlace;
}

UINT CMemFile::Read(void* pBuffer, UINT nCount)
{
    const std::span<const BYTE> bytes = GetBytes();
    if (m_nPlace >= bytes.size())
        return 0;
    const auto rest = bytes.subspan(static_cast<std::size_t>(m_nPlace));
    const UINT nRead = static_cast<UINT>(std::min<std::size_t>(nCount, rest.size()));
    std::copy_n(rest.begin(), nRead, static_cast<BYTE*>(pBuffer));
    m_nPlace += nRead;
    return nRead;
}

void CMemFile::Write(const void* pBuffer, UINT nCount)
{
    if (m_bReadOnly)
        AfxThrowFileException(CFileException::accessDenied);
    if (nCount == 0)
        return;
    if (m_nPlace > m_arrByte.max_size() - nCount)
        AfxThrowMemoryException();
    const std::size_t nPlace = static_cast<std::size_t>(m_nPlace);
    try {
        if (m_arrByte.size() < nPlace + nCount)
            m_arrByte.resize(nPlace + nCount);
    } catch (const std::bad_alloc&) {
        AfxThrowMemoryException();
    }
    std::copy_n(static_cast<const BYTE*>(pBuffer), nCount,
                m_arrByte.begin() + static_cast<std::ptrdiff_t>(nPlace));
    m_nPlace += nCount;
}
