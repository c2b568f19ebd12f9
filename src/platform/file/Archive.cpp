// The archive's buffer. Between two calls m_pAt lies inside the buffer: storing, what is before it waits to
// be written; loading, what is from it up to m_pEnd waits to be read. A closed archive has an empty buffer,
// so that every operation comes to ask for the file.
#include "platform/file/Archive.h"

#include "platform/base/Diagnostics.h"
#include "platform/file/File.h"

#include <algorithm>
#include <cstring>
#include <exception>

static constexpr int SMALLEST_BUFFER = 64; // every value fits

CArchive::CArchive(CFile* pFile, UINT nMode, int nBufSize)
    : m_pFile(pFile), m_bLoading((nMode & load) != 0), m_bFlushOnDelete((nMode & bNoFlushOnDelete) == 0),
      m_nExceptions(std::uncaught_exceptions()),
      m_nBufSize(static_cast<UINT>(std::max(nBufSize, SMALLEST_BUFFER))),
      m_pBuffer(std::make_unique_for_overwrite<BYTE[]>(m_nBufSize)), m_pAt(m_pBuffer.get()), m_pEnd(m_pAt)
{
    if (m_pFile && !m_bLoading)
        m_pEnd = m_pAt + m_nBufSize;
}

CArchive::~CArchive()
{
    if (!m_bFlushOnDelete || std::uncaught_exceptions() > m_nExceptions)
        return;
    Diagnostic diagnostic;
    diagnostic.strMessage = L"an archive could not be written to its end";
    try {
        Close();
    } catch (CException* pException) {
        diagnostic.strName = pException->GetErrorMessage();
        pException->Delete();
        ReportDiagnostic(diagnostic);
    } catch (...) { // a host's file may throw anything
        ReportDiagnostic(diagnostic);
    }
}

CFile& CArchive::NeedFile() const
{
    if (!m_pFile)
        AfxThrowFileException(CFileException::invalidFile);
    return *m_pFile;
}

void CArchive::Abort() noexcept
{
    m_pFile = nullptr;
    m_pAt = m_pEnd = m_pBuffer.get();
}

void CArchive::Close()
{
    if (m_pFile)
        Flush();
    Abort();
}

void CArchive::Flush()
{
    CFile& file = NeedFile();
    if (!m_bLoading)
        return WriteBuffer();
    if (m_pAt == m_pEnd)
        return;
    file.Seek(m_pAt - m_pEnd, CFile::current);
    m_pAt = m_pEnd = m_pBuffer.get();
}

void CArchive::WriteBuffer()
{
    const UINT nWaiting = static_cast<UINT>(m_pAt - m_pBuffer.get());
    if (nWaiting == 0)
        return;
    NeedFile().Write(m_pBuffer.get(), nWaiting);
    m_pAt = m_pBuffer.get();
}

// For one value: after it the buffer has room.
void CArchive::MakeRoom()
{
    if (m_bLoading)
        AfxThrowArchiveException(CArchiveException::readOnly);
    NeedFile();
    WriteBuffer();
}

// For one value: after it the buffer holds that many bytes.
void CArchive::Fill(UINT nNeeded)
{
    if (!m_bLoading)
        AfxThrowArchiveException(CArchiveException::writeOnly);
    const UINT nLeft = static_cast<UINT>(m_pEnd - m_pAt);
    std::memmove(m_pBuffer.get(), m_pAt, nLeft);
    if (FillFrom(nLeft) < nNeeded)
        AfxThrowArchiveException(CArchiveException::endOfFile, m_pFile->GetFilePath());
}

// Fills the buffer behind its first nLeft bytes. @return how many it then holds
UINT CArchive::FillFrom(UINT nLeft)
{
    m_pAt = m_pBuffer.get();
    m_pEnd = m_pAt + nLeft;
    m_pEnd += NeedFile().Read(m_pEnd, m_nBufSize - nLeft);
    return static_cast<UINT>(m_pEnd - m_pAt);
}

UINT CArchive::Read(void* pBuffer, UINT nCount)
{
    if (!m_bLoading)
        AfxThrowArchiveException(CArchiveException::writeOnly);
    BYTE* pTo = static_cast<BYTE*>(pBuffer);
    UINT nRead = 0;
    const auto take = [&] {
        const UINT nTaken = std::min(nCount - nRead, static_cast<UINT>(m_pEnd - m_pAt));
        if (nTaken != 0)
            std::memcpy(pTo + nRead, m_pAt, nTaken);
        m_pAt += nTaken;
        nRead += nTaken;
    };
    take();
    if (nCount - nRead >= m_nBufSize) {
        nRead += NeedFile().Read(pTo + nRead, nCount - nRead);
    } else if (nRead < nCount) {
        FillFrom(0);
        take();
    }
    return nRead;
}

void CArchive::Write(const void* pBuffer, UINT nCount)
{
    if (m_bLoading)
        AfxThrowArchiveException(CArchiveException::readOnly);
    if (nCount == 0)
        return;
    if (nCount > static_cast<UINT>(m_pEnd - m_pAt)) {
        NeedFile();
        WriteBuffer();
        if (nCount >= m_nBufSize)
            return m_pFile->Write(pBuffer, nCount);
    }
    std::memcpy(m_pAt, pBuffer, nCount);
    m_pAt += nCount;
}
