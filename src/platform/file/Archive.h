// CArchive: values in a row of bytes, written to a file or read from one. Knows files by CFile's operations
// only. There is no version, no class information and nothing between the values: who reads must ask for what
// was written, in the same order.
//
// Numbers are little-endian on every machine. A text is its length, then its UTF-16 units, two bytes each.
#pragma once

#include "platform/base/Exception.h"
#include "platform/base/Export.h"
#include "platform/base/String.h"
#include "platform/base/Types.h"

#include <bit>
#include <concepts>
#include <memory>
#include <type_traits>

class CFile;

namespace splitframe {

/// What an archive holds directly. wchar_t is left out: its size differs between machines.
template <class T>
concept ArchiveValue = std::is_arithmetic_v<T> && !std::same_as<T, wchar_t> && sizeof(T) <= 8;

/// Writes and reads an unsigned value, low byte first; compilers make one instruction of it.
template <std::unsigned_integral T> void PutLittleEndian(BYTE* pTo, T value)
{
    for (std::size_t i = 0; i < sizeof(T); ++i)
        pTo[i] = static_cast<BYTE>(value >> (8 * i));
}
template <std::unsigned_integral T> T GetLittleEndian(const BYTE* pFrom)
{
    T value = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i)
        value = static_cast<T>(value | (static_cast<T>(pFrom[i]) << (8 * i)));
    return value;
}

template <std::size_t SIZE> struct UnsignedOfSize;
template <> struct UnsignedOfSize<1>
{
    using type = std::uint8_t;
};
template <> struct UnsignedOfSize<2>
{
    using type = std::uint16_t;
};
template <> struct UnsignedOfSize<4>
{
    using type = std::uint32_t;
};
template <> struct UnsignedOfSize<8>
{
    using type = std::uint64_t;
};

} // namespace splitframe

/// An archive over an open file, for storing or for loading. Writing to a loading archive and reading from a
/// storing one raises the archive exception (readOnly, writeOnly), and so does a value that the file ends
/// before (endOfFile). What the file raises passes through.
class SPLITFRAME_PLATFORM_API CArchive
{
public:
    enum Mode : UINT
    {
        store = 0,
        load = 1,
        bNoFlushOnDelete = 2 // the destructor gives up what is still in the buffer
    };

    /// @param pFile     read or written from where it stands; not owned, outlives the archive or its Close()
    /// @param nMode     store or load
    /// @param nBufSize  bytes that are gathered between two operations of the file
    CArchive(CFile* pFile, UINT nMode, int nBufSize = 32768);
    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;

    /// Closes the archive; when an exception is what ends it, what is still in the buffer is given up. A
    /// failure can only be told to the diagnostics hook here: call Close() to learn of it.
    ~CArchive();

    bool IsLoading() const { return m_bLoading; }
    bool IsStoring() const { return !m_bLoading; }
    /// The file, or null once the archive is closed.
    CFile* GetFile() const { return m_pFile; }

    /// Reads up to nCount bytes. @return how many; fewer only at the end of the file
    UINT Read(void* pBuffer, UINT nCount);
    void Write(const void* pBuffer, UINT nCount);

    /// Storing: writes what is in the buffer. Loading: puts the file back to behind the last byte read.
    void Flush();
    /// Flushes and leaves the file, which stays open. Nothing can be read or written any more. A second call
    /// does nothing.
    void Close();
    /// Leaves the file without flushing.
    void Abort() noexcept;

    template <splitframe::ArchiveValue T> CArchive& operator<<(T value)
    {
        using Bits = typename splitframe::UnsignedOfSize<sizeof(T)>::type;
        if (m_bLoading || m_pEnd - m_pAt < static_cast<std::ptrdiff_t>(sizeof(T))) [[unlikely]]
            MakeRoom();
        splitframe::PutLittleEndian(m_pAt, std::bit_cast<Bits>(value));
        m_pAt += sizeof(T);
        return *this;
    }
    template <splitframe::ArchiveValue T> CArchive& operator>>(T& value)
    {
        using Bits = typename splitframe::UnsignedOfSize<sizeof(T)>::type;
        if (!m_bLoading || m_pEnd - m_pAt < static_cast<std::ptrdiff_t>(sizeof(T))) [[unlikely]]
            Fill(sizeof(T));
        const Bits bits = splitframe::GetLittleEndian<Bits>(m_pAt);
        if constexpr (std::same_as<T, bool>)
            value = bits != 0;
        else
            value = std::bit_cast<T>(bits);
        m_pAt += sizeof(T);
        return *this;
    }

private:
    friend SPLITFRAME_PLATFORM_API CArchive& operator>>(CArchive& ar, CString& str);

    // The next bytes, where they lie in the buffer; null when not all of them do, and then nothing is taken.
    const BYTE* TakeBuffered(UINT nCount)
    {
        if (!m_bLoading || static_cast<std::size_t>(m_pEnd - m_pAt) < nCount)
            return nullptr;
        const BYTE* pBytes = m_pAt;
        m_pAt += nCount;
        return pBytes;
    }
    CFile& NeedFile() const;
    void WriteBuffer();
    void MakeRoom();
    void Fill(UINT nNeeded);
    UINT FillFrom(UINT nLeft);

    CFile* m_pFile; // not owned
    bool m_bLoading;
    bool m_bFlushOnDelete;
    int m_nExceptions; // on their way when the archive was made
    UINT m_nBufSize;
    std::unique_ptr<BYTE[]> m_pBuffer;
    BYTE* m_pAt;  // the next byte in the buffer
    BYTE* m_pEnd; // storing: the buffer's end; loading: the end of what was read
};

/// A text with its length. Reading takes the narrow form, too, whose bytes are UTF-8 like all narrow text.
/// @throw CArchiveException endOfFile when the text ends before its length; then str is what it was
SPLITFRAME_PLATFORM_API CArchive& operator<<(CArchive& ar, const CString& str);
SPLITFRAME_PLATFORM_API CArchive& operator>>(CArchive& ar, CString& str);

/// Writes the length that stands before a text: FF FE FF for the wide form, nothing for the narrow one, then
/// one byte below 255, else FF and 16 bits below 65,534, else FF, FFFF and 32 bits.
/// @param nLength   in characters, of two bytes in the wide form, else of one
/// @param bUnicode  the wide form
SPLITFRAME_PLATFORM_API void AfxWriteStringLength(CArchive& ar, UINT nLength, bool bUnicode);

/// Reads such a length. Nobody has checked it: as many characters need not be there.
/// @param nCharSize  set to the bytes of one character, 1 or 2
SPLITFRAME_PLATFORM_API UINT AfxReadStringLength(CArchive& ar, int& nCharSize);
