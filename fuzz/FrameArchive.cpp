// Any bytes as the archive of a frame: reading ends with a document or with the archive exception, and what
// was read can be completed, written, and read back as the same.
#include "definition/UnitInfo.h"
#include "document/BaseFrameDoc.h"
#include "platform/file/Archive.h"
#include "platform/file/MemFile.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <vector>

namespace {

// @return whether the archive held all that it promised
bool Read(CBaseFrameDoc& doc, std::span<const BYTE> bytes)
{
    CMemFile file(bytes.data(), static_cast<UINT>(bytes.size()));
    CArchive ar(&file, CArchive::load);
    try {
        doc.Serialize(ar);
        return true;
    } catch (CArchiveException* pException) {
        const bool bEnd = pException->m_cause == CArchiveException::endOfFile;
        pException->Delete();
        if (!bEnd)
            std::abort();
        return false;
    }
}

std::vector<BYTE> Write(CBaseFrameDoc& doc)
{
    CMemFile file;
    CArchive ar(&file, CArchive::store);
    doc.Serialize(ar);
    ar.Close();
    return {file.GetBytes().begin(), file.GetBytes().end()};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    CBaseFrameDoc doc;
    doc.m_arrBaseUnitInfo.Add(new CBaseUnitInfo); // a record that was there before, without a name
    const bool bWhole = Read(doc, {pData, nSize});
    if (!bWhole && nSize > 0)
        Read(doc, {pData, nSize - 1}); // once more, behind what was read the first time
    doc.TakeFromDefinition();
    const std::vector<BYTE> bytes = Write(doc);
    CBaseFrameDoc back;
    if (!Read(back, bytes) || Write(back) != bytes)
        std::abort();
    back.DeleteContents();
    doc.Clear();
    return 0;
}
