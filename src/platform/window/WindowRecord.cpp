// Allocation of window records.
#include "platform/window/WindowRecord.h"

namespace splitframe {

constinit WindowTable g_windows;

namespace {
// Frees the memory when the library goes; the table itself stays readable and finds nothing then.
struct TableRelease
{
    ~TableRelease() { g_windows.ReleaseMemory(); }
};
} // namespace

WindowRecord* WindowTable::Allocate()
{
    static const TableRelease release;
    if (!m_pFree) {
        const UINT nChunk = m_nSlots / CHUNK;
        if (nChunk == MAX_CHUNKS)
            return nullptr;
        m_chunks[nChunk] = new WindowRecord[CHUNK];
        for (UINT n = CHUNK; n-- > 0;) {
            m_chunks[nChunk][n].nSlot = m_nSlots + n;
            m_chunks[nChunk][n].pBelow = m_pFree;
            m_pFree = &m_chunks[nChunk][n];
        }
        m_nSlots += CHUNK;
    }
    WindowRecord* pRecord = m_pFree;
    m_pFree = pRecord->pBelow;
    pRecord->pBelow = nullptr;
    ++m_nLive;
    return pRecord;
}

void WindowTable::Free(WindowRecord* pRecord)
{
    const UINT nSlot = pRecord->nSlot;
    const std::uint64_t nGeneration = pRecord->nGeneration + 1;
    *pRecord = WindowRecord();
    pRecord->nSlot = nSlot;
    pRecord->nGeneration = nGeneration;
    pRecord->pBelow = m_pFree;
    m_pFree = pRecord;
    --m_nLive;
}

void WindowTable::ReleaseMemory()
{
    for (WindowRecord*& pChunk : m_chunks) {
        delete[] pChunk;
        pChunk = nullptr;
    }
    m_pFree = nullptr;
    m_nSlots = 0;
    m_nLive = 0;
}

WindowRecord& Desktop()
{
    static WindowRecord desktop;
    return desktop;
}

} // namespace splitframe
