// Runs a fuzz target without libFuzzer: every file of the given folders once, then random changes of them
// until the time is over. It takes libFuzzer's option -max_total_time=SECONDS and its -seed=N, so that one
// command line serves both.
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <random>
#include <string>
#include <unistd.h>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize);

namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes ReadAll(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(file), {});
}

void Collect(const std::filesystem::path& path, std::vector<Bytes>& arrSeed)
{
    if (std::filesystem::is_directory(path)) {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(path)) {
            if (entry.is_regular_file())
                arrSeed.push_back(ReadAll(entry.path()));
        }
    } else {
        arrSeed.push_back(ReadAll(path));
    }
}

// A target is never given a null pointer, also when there are no bytes.
void Run(const Bytes& data)
{
    static const std::uint8_t nothing = 0;
    LLVMFuzzerTestOneInput(data.empty() ? &nothing : data.data(), data.size());
}

// The input is in the file before it runs, so that a crash leaves it behind. The file stays open: a file that
// is opened anew and emptied each time would wait for the disk.
void Keep(std::FILE* pFile, const Bytes& data)
{
    std::rewind(pFile);
    if (!data.empty())
        std::fwrite(data.data(), 1, data.size(), pFile);
    std::fflush(pFile);
    if (ftruncate(fileno(pFile), static_cast<off_t>(data.size())) != 0)
        std::perror("the last input");
}

class Mutator
{
public:
    explicit Mutator(unsigned nSeed) : m_random(nSeed) {}

    std::size_t Below(std::size_t nEnd) { return nEnd == 0 ? 0 : m_random() % nEnd; }

    Bytes Change(const std::vector<Bytes>& arrSeed)
    {
        Bytes data = arrSeed[Below(arrSeed.size())];
        for (std::size_t nLeft = 1 + Below(8); nLeft > 0; --nLeft)
            ChangeOnce(data, arrSeed[Below(arrSeed.size())]);
        return data;
    }

private:
    void ChangeOnce(Bytes& data, const Bytes& other)
    {
        const auto at = [&] { return data.begin() + static_cast<std::ptrdiff_t>(Below(data.size() + 1)); };
        switch (Below(5)) {
        case 0:
            data.insert(at(), static_cast<std::uint8_t>(m_random()));
            break;
        case 1:
            if (!data.empty())
                data[Below(data.size())] ^= static_cast<std::uint8_t>(1U << Below(8));
            break;
        case 2: {
            const auto from = at();
            const auto room = static_cast<std::size_t>(data.end() - from);
            data.erase(from, from + static_cast<std::ptrdiff_t>(Below(room + 1)));
            break;
        }
        case 3: {
            const std::size_t nFrom = Below(other.size());
            const std::size_t nCount = Below(other.size() - nFrom + 1);
            const Bytes piece(other.begin() + static_cast<std::ptrdiff_t>(nFrom),
                              other.begin() + static_cast<std::ptrdiff_t>(nFrom + nCount));
            if (data.size() < (1U << 20U))
                data.insert(at(), piece.begin(), piece.end());
            break;
        }
        default:
            if (!data.empty())
                data[Below(data.size())] = static_cast<std::uint8_t>("<>/!?\"'=[]-& \n\0\xFF"[Below(16)]);
        }
    }

    std::mt19937 m_random;
};

} // namespace

int main(int argc, char** argv)
{
    long nSeconds = 0;
    unsigned nSeed = std::random_device{}();
    std::vector<Bytes> arrSeed;
    for (int i = 1; i < argc; ++i) {
        const std::string strArg = argv[i];
        if (strArg.starts_with("-max_total_time="))
            nSeconds = std::stol(strArg.substr(16));
        else if (strArg.starts_with("-seed="))
            nSeed = static_cast<unsigned>(std::stoul(strArg.substr(6)));
        else if (!strArg.starts_with("-"))
            Collect(strArg, arrSeed);
    }
    for (const Bytes& data : arrSeed)
        Run(data);
    if (arrSeed.empty())
        arrSeed.emplace_back();

    std::printf("seed %u\n", nSeed);
    std::fflush(stdout);
    Mutator mutator(nSeed);
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(nSeconds);
    unsigned long nRuns = 0;
    const char* pszKeep = "fuzz-last-input";
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> keep(std::fopen(pszKeep, "wb"), std::fclose);
    if (!keep) {
        std::perror(pszKeep);
        return 1;
    }
    while (std::chrono::steady_clock::now() < end) {
        const Bytes data = mutator.Change(arrSeed);
        Keep(keep.get(), data);
        Run(data);
        ++nRuns;
    }
    std::remove(pszKeep);
    std::printf("%lu runs\n", nRuns);
    return 0;
}
