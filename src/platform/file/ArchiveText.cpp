// Texts in archives. A length is only a claim: memory grows with the characters that were really read.
#include "platform/file/Archive.h"

#include "platform/file/File.h"

#include <algorithm>
#include <limits>
#include <string>
#include <utility>

namespace {

constexpr BYTE MORE = 0xFF;        // the length does not fit in this byte
constexpr WORD MORE16 = 0xFFFF;    // the length does not fit in these 16 bits
constexpr WORD WIDE_MARK = 0xFFFE; // in the place of 16 bits of length: two bytes a character
constexpr UINT PIECE = 4096;       // bytes

[[noreturn]] void ThrowEndOfFile(const CArchive& ar)
{
    AfxThrowArchiveException(CArchiveException::endOfFile,
                             ar.GetFile() ? ar.GetFile()->GetFilePath() : CString());
}

// Reads exactly so many bytes.
void ReadBytes(CArchive& ar, BYTE* pTo, UINT nCount)
{
    if (ar.Read(pTo, nCount) < nCount)
        ThrowEndOfFile(ar);
}

// Puts units into a text behind its first nLength ones.
void TakeUnits(CString& str, UINT nLength, const BYTE* pFrom, UINT nUnits)
{
    const int nNewLength = static_cast<int>(nLength + nUnits);
    wchar_t* pTo = str.GetBuffer(nNewLength) + nLength;
    for (UINT i = 0; i < nUnits; ++i)
        pTo[i] = splitframe::GetLittleEndian<WORD>(pFrom + std::size_t{2} * i);
    str.ReleaseBufferSetLength(nNewLength);
}

CString ReadWide(CArchive& ar, UINT nLength)
{
    CString str;
    BYTE arrByte[PIECE];
    for (UINT nRead = 0; nRead < nLength;) {
        const UINT nUnits = std::min(nLength - nRead, PIECE / 2);
        ReadBytes(ar, arrByte, nUnits * 2);
        TakeUnits(str, nRead, arrByte, nUnits);
        nRead += nUnits;
    }
    return str;
}

CString ReadNarrow(CArchive& ar, UINT nLength)
{
    std::string text;
    BYTE arrByte[PIECE];
    for (UINT nLeft = nLength; nLeft > 0;) {
        const UINT nCount = std::min(nLeft, PIECE);
        ReadBytes(ar, arrByte, nCount);
        text.append(reinterpret_cast<const char*>(arrByte), nCount);
        nLeft -= nCount;
    }
    return CString::FromUtf8(text);
}

} // namespace

void AfxWriteStringLength(CArchive& ar, UINT nLength, bool bUnicode)
{
    if (bUnicode)
        ar << MORE << WIDE_MARK;
    if (nLength < MORE)
        ar << static_cast<BYTE>(nLength);
    else if (nLength < WIDE_MARK)
        ar << MORE << static_cast<WORD>(nLength);
    else
        ar << MORE << MORE16 << nLength;
}

UINT AfxReadStringLength(CArchive& ar, int& nCharSize)
{
    nCharSize = 1;
    BYTE nByte = 0;
    WORD nWord = 0;
    ar >> nByte;
    if (nByte < MORE)
        return nByte;
    ar >> nWord;
    if (nWord == WIDE_MARK) {
        nCharSize = 2;
        ar >> nByte;
        if (nByte < MORE)
            return nByte;
        ar >> nWord;
    }
    if (nWord != MORE16)
        return nWord;
    UINT nLength = 0;
    ar >> nLength;
    return nLength;
}

CArchive& operator<<(CArchive& ar, const CString& str)
{
    UINT nLeft = static_cast<UINT>(str.GetLength());
    AfxWriteStringLength(ar, nLeft, true);
    const wchar_t* pFrom = str.GetString();
    BYTE arrByte[PIECE];
    while (nLeft > 0) {
        const UINT nUnits = std::min(nLeft, PIECE / 2);
        for (UINT i = 0; i < nUnits; ++i)
            splitframe::PutLittleEndian(arrByte + std::size_t{2} * i, static_cast<WORD>(pFrom[i]));
        ar.Write(arrByte, nUnits * 2);
        pFrom += nUnits;
        nLeft -= nUnits;
    }
    return ar;
}

CArchive& operator>>(CArchive& ar, CString& str)
{
    int nCharSize = 0;
    const UINT nLength = AfxReadStringLength(ar, nCharSize);
    // No text is longer than its positions can count, whatever is in the file.
    if (nLength > static_cast<UINT>(std::numeric_limits<int>::max() - 1))
        ThrowEndOfFile(ar);
    if (nCharSize == 2) {
        if (const BYTE* pBytes = ar.TakeBuffered(nLength * 2)) { // as nearly always: texts are short
            TakeUnits(str, 0, pBytes, nLength);
            return ar;
        }
    }
    str = nCharSize == 2 ? ReadWide(ar, nLength) : ReadNarrow(ar, nLength);
    return ar;
}
