// Surfaces: edges at every scale, copies that overlap and leave, PNG files and their faults.
#include "Picture.h"

#include "platform/graphics/Png.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <random>
#include <unistd.h>

using splitframe::Surface;

TEST(Surface, SizesThatMakeNoSenseGiveAnEmptySurface)
{
    for (const auto& [cx, cy] : {std::pair{0, 5}, {5, 0}, {-1, 5}, {INT_MIN, INT_MIN}}) {
        Surface surface(cx, cy);
        EXPECT_TRUE(surface.IsEmpty());
        surface.Fill({INT_MIN, INT_MIN, INT_MAX, INT_MAX}, kRed);
        EXPECT_EQ(surface.GetPixel(0, 0), 0xFFFFFFFFU);
    }
    EXPECT_EQ(Surface(3, 3, std::nan("")).Scale(), 1.0);
    EXPECT_EQ(Surface(3, 3, 1e300).DeviceWidth(), 24);
    const Surface large(INT_MAX, 1);
    EXPECT_EQ(large.DeviceWidth(), Surface::kMaxSide);
    EXPECT_EQ(large.Width(), Surface::kMaxSide);
}

TEST(Surface, NeighboursMeetExactlyAtEveryScale)
{
    for (const double dScale : {0.5, 1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        SCOPED_TRACE(dScale);
        Surface surface(41, 3, dScale, kWhite);
        for (int x = 0; x < 41; ++x)
            surface.Xor({x, 0, x + 1, 3}, kRed);
        for (int y = 0; y < surface.DeviceHeight(); ++y)
            for (int x = 0; x < surface.DeviceWidth(); ++x)
                ASSERT_EQ(splitframe::ColorFromPixel(surface.Row(y)[x]), RGB(0, 255, 255)) << x << "," << y;
    }
}

TEST(Surface, CopiesWithinItselfAndAcrossItsEdges)
{
    std::mt19937 random(3);
    const auto pick = [&] { return std::uniform_int_distribution<int>(-6, 14)(random); };
    for (int nRound = 0; nRound < 500; ++nRound) {
        Surface surface(12, 9);
        for (int y = 0; y < 9; ++y)
            for (int x = 0; x < 12; ++x)
                surface.Fill({x, y, x + 1, y + 1}, RGB(x, y, 9));
        const RECT rc{pick(), pick(), pick(), pick()};
        const POINT pt{pick(), pick()};
        surface.Copy(surface, rc, pt);
        for (int y = 0; y < 9; ++y)
            for (int x = 0; x < 12; ++x) {
                const int xFrom = x - pt.x + rc.left;
                const int yFrom = y - pt.y + rc.top;
                const bool bCopied =
                    CRect(rc).PtInRect({xFrom, yFrom}) && CRect(surface.Bounds()).PtInRect({xFrom, yFrom});
                ASSERT_EQ(surface.GetPixel(x, y), bCopied ? RGB(xFrom, yFrom, 9) : RGB(x, y, 9))
                    << "round " << nRound << " at " << x << "," << y;
            }
    }
}

TEST(Surface, CopiesBetweenScales)
{
    for (const double dFrom : {1.0, 1.5, 2.0})
        for (const double dTo : {1.0, 1.25, 2.0}) {
            Surface from(10, 10, dFrom, kWhite);
            from.Fill({2, 2, 5, 5}, kRed);
            Surface to(10, 10, dTo, kBlue);
            to.Copy(from, {2, 2, 5, 5}, {6, 6});
            to.Copy(from, {INT_MIN, INT_MIN, INT_MAX, INT_MAX}, {INT_MAX, INT_MAX});
            EXPECT_EQ(to.GetPixel(5, 5), kBlue);
            EXPECT_EQ(to.GetPixel(6, 6), kRed);
            EXPECT_EQ(to.GetPixel(8, 8), kRed);
            EXPECT_EQ(to.GetPixel(9, 9), kBlue);
        }
}

TEST(Png, WritesOrSaysWhyNot)
{
    const auto folder = std::filesystem::temp_directory_path() / ("png-test-" + std::to_string(::getpid()));
    std::filesystem::create_directory(folder);
    const Picture picture(20, 10, 2.0);
    EXPECT_EQ(splitframe::WritePng(picture.surface, folder / "a.png"), "");
    std::ifstream file(folder / "a.png", std::ios::binary);
    std::string head(24, '\0');
    file.read(head.data(), 24);
    EXPECT_EQ(head.substr(1, 3), "PNG");
    EXPECT_EQ(head[19], 40); // device pixels
    EXPECT_EQ(head[23], 20);

    EXPECT_EQ(splitframe::WritePng(picture.surface, folder / "no" / "a.png"), "No such file or directory");
    EXPECT_EQ(splitframe::WritePng(picture.surface, folder), "Is a directory");
    EXPECT_NE(splitframe::WritePng(Surface(0, 0), folder / "b.png"), "");
    EXPECT_FALSE(std::filesystem::exists(folder / "b.png"));
    if (std::filesystem::exists("/dev/full")) {
        EXPECT_EQ(splitframe::WritePng(picture.surface, "/dev/full"), "No space left on device");
    }
    std::filesystem::remove_all(folder);
}
