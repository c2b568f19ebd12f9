// Random operations under the eyes of the invariants.
// SPLITFRAME_MONKEY_SEED and SPLITFRAME_MONKEY_COUNT set the first seed and the number of operations;
// SPLITFRAME_MONKEY_TRACE=1 writes each operation before it is done.
#include "monkey/Monkey.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

long Setting(const char* pszName, long nUsual)
{
    const char* pszValue = std::getenv(pszName);
    return pszValue ? std::strtol(pszValue, nullptr, 10) : nUsual;
}

constexpr long DEFAULT_COUNT = 50000;
// A host is given up after so many operations: what has been deleted and cleared makes it poorer all the
// time.
constexpr int STEPS_OF_A_HOST = 300;

} // namespace

TEST(Monkey, BreaksNothing)
{
    const long nCount = Setting("SPLITFRAME_MONKEY_COUNT", DEFAULT_COUNT);
    auto nSeed = static_cast<std::uint32_t>(Setting("SPLITFRAME_MONKEY_SEED", 1));
    std::printf("seed %u, %ld operations\n", nSeed, nCount);
    for (long nDone = 0; nDone < nCount; ++nSeed) {
        monkey::Monkey monkey(nSeed, Setting("SPLITFRAME_MONKEY_TRACE", 0) != 0);
        for (int i = 0; i < STEPS_OF_A_HOST && nDone + monkey.GetDone() < nCount; ++i) {
            const std::string strFault = monkey.Step();
            ASSERT_EQ(strFault, "") << "after " << monkey.GetDone()
                                    << " operations; again with SPLITFRAME_MONKEY_SEED=" << nSeed
                                    << " SPLITFRAME_MONKEY_COUNT=" << monkey.GetDone() << "\n"
                                    << monkey.Host().m_pMain->DumpState().ToUtf8();
        }
        nDone += monkey.GetDone();
        ASSERT_FALSE(testing::Test::HasFailure()) << "SPLITFRAME_MONKEY_SEED=" << nSeed;
    }
}
