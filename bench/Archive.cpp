// What an archive of a frame of 10,000 units costs, beside writing and reading the same bytes with the C
// library's buffered files, record by record.
#include "platform/file/Archive.h"
#include "definition/FrameStyle.h"
#include "definition/UnitInfo.h"
#include "document/BaseFrameDoc.h"
#include "platform/file/MemFile.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

constexpr int UNITS = 10000;
constexpr std::size_t RECORD = 90; // bytes of a unit record, about

// A file of its own that is gone at the end.
class TempFile
{
public:
    TempFile() : m_nDescriptor(mkstemp(m_szPath)) {}
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;
    ~TempFile()
    {
        close(m_nDescriptor);
        unlink(m_szPath);
    }
    const char* Path() const { return m_szPath; }

private:
    char m_szPath[32] = "/tmp/splitframe-bench-XXXXXX";
    int m_nDescriptor;
};

std::unique_ptr<CBaseFrameDoc> MakeFrame()
{
    auto pDoc = std::make_unique<CBaseFrameDoc>();
    pDoc->m_strName = L"Frame";
    auto* pStyle = new CBaseFrameStyle;
    pStyle->m_strName = L"Style";
    for (int i = 0; i < UNITS; ++i) {
        auto* pInfo = new CBaseUnitInfo;
        pInfo->m_strName.Format(L"Unit%d", i);
        pDoc->m_arrBaseUnitInfo.Add(pInfo);
        pStyle->m_arrBaseUnitInfo.Add(pInfo);
    }
    pDoc->m_arrStyle.Add(pStyle);
    return pDoc;
}

void Store(CBaseFrameDoc& doc, CFile& file)
{
    CArchive ar(&file, CArchive::store);
    doc.Serialize(ar);
    ar.Close();
}

std::vector<BYTE> FrameBytes()
{
    const auto pDoc = MakeFrame();
    CMemFile file;
    Store(*pDoc, file);
    pDoc->Clear();
    return {file.GetBytes().begin(), file.GetBytes().end()};
}

void WriteArchive(benchmark::State& state)
{
    const TempFile temp;
    const auto pDoc = MakeFrame();
    for (auto _ : state) {
        CFile file;
        file.Open(CString(temp.Path()), CFile::modeCreate | CFile::modeWrite);
        Store(*pDoc, file);
    }
    pDoc->Clear();
}

void WritePlain(benchmark::State& state)
{
    const TempFile temp;
    const std::vector<BYTE> bytes = FrameBytes();
    for (auto _ : state) {
        std::FILE* pFile = std::fopen(temp.Path(), "wb");
        for (std::size_t n = 0; n < bytes.size(); n += RECORD)
            std::fwrite(bytes.data() + n, 1, std::min(RECORD, bytes.size() - n), pFile);
        std::fclose(pFile);
    }
    state.counters["bytes"] = static_cast<double>(bytes.size());
}

// Making the records is part of it, their end is not.
void ReadArchive(benchmark::State& state)
{
    const TempFile temp;
    const auto pDoc = MakeFrame();
    CFile file;
    file.Open(CString(temp.Path()), CFile::modeCreate | CFile::modeReadWrite);
    Store(*pDoc, file);
    pDoc->Clear();
    for (auto _ : state) {
        CFile source;
        source.Open(CString(temp.Path()), CFile::modeRead);
        CArchive ar(&source, CArchive::load);
        CBaseFrameDoc doc;
        doc.Serialize(ar);
        state.PauseTiming();
        doc.Clear();
        state.ResumeTiming();
    }
}

void ReadPlain(benchmark::State& state)
{
    const TempFile temp;
    const std::vector<BYTE> bytes = FrameBytes();
    std::FILE* pNew = std::fopen(temp.Path(), "wb");
    std::fwrite(bytes.data(), 1, bytes.size(), pNew);
    std::fclose(pNew);
    BYTE arrRecord[RECORD];
    for (auto _ : state) {
        std::FILE* pFile = std::fopen(temp.Path(), "rb");
        while (std::fread(arrRecord, 1, RECORD, pFile) == RECORD)
            benchmark::DoNotOptimize(arrRecord);
        std::fclose(pFile);
    }
}

} // namespace

BENCHMARK(WriteArchive)->Name("archive/write/splitframe")->Unit(benchmark::kMicrosecond);
BENCHMARK(WritePlain)->Name("archive/write/plain")->Unit(benchmark::kMicrosecond);
BENCHMARK(ReadArchive)->Name("archive/read/splitframe")->Unit(benchmark::kMicrosecond);
BENCHMARK(ReadPlain)->Name("archive/read/plain")->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
