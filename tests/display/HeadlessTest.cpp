// The memory display: clock, waiting, presenting, and the choice of a display by name.
#include "platform/display/Headless.h"
#include "platform/window/Messages.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <thread>

namespace {

using namespace splitframe;

TEST(HeadlessTest, TheClockRunsUntilItIsSet)
{
    HeadlessDisplay display;
    EXPECT_GT(display.Now(), 0U);
    display.SetClock(500);
    EXPECT_EQ(display.Now(), 500U);
    display.AdvanceClock(40);
    EXPECT_EQ(display.Now(), 540U);
}

TEST(HeadlessTest, Waiting)
{
    HeadlessDisplay display;
    EXPECT_TRUE(display.Wait(1)) << "time has passed";
    {
        std::jthread thread([&] { display.Wake(); });
        EXPECT_TRUE(display.Wait(Display::INFINITE_WAIT));
    }
    display.SetClock(0);
    EXPECT_FALSE(display.Wait(Display::INFINITE_WAIT)) << "time stands still";
    display.Wake();
    EXPECT_TRUE(display.Wait(0)) << "a wake-up before the wait counts";
    EXPECT_FALSE(display.Wait(0));
    display.MoveMouse(1, 1);
    EXPECT_TRUE(display.Wait(0));
}

TEST(HeadlessTest, OnlyTheDamageIsTaken)
{
    HeadlessDisplay display(20, 10);
    Surface surface(20, 10, 1.0, RGB(9, 9, 9));
    display.Present(surface, Region(RECT{2, 2, 5, 5}));
    EXPECT_EQ(display.Shown().GetPixel(2, 2), RGB(9, 9, 9));
    EXPECT_NE(display.Shown().GetPixel(5, 5), RGB(9, 9, 9));
    EXPECT_EQ(display.PresentCount(), 1U);
    EXPECT_EQ(display.LastPresented(), Region(RECT{2, 2, 5, 5}));
}

TEST(HeadlessTest, OddSizesAndScales)
{
    for (const SIZE& size : {SIZE{0, 0}, SIZE{-5, 10}, SIZE{1, 1}}) {
        HeadlessDisplay display(size.cx, size.cy, 2.0);
        EXPECT_GE(display.Size().cx, 0);
        display.Resize(size.cy, size.cx);
        InputEvent event;
        EXPECT_TRUE(display.NextInput(event));
        EXPECT_EQ(event.kind, InputEvent::Kind::Resize);
    }
    HeadlessDisplay display(30, 20, 2.0);
    EXPECT_EQ(display.Shown().DeviceWidth(), 60);
    const auto file = std::filesystem::temp_directory_path() / "splitframe-headless-test.png";
    EXPECT_EQ(display.WritePng(file), "");
    EXPECT_GT(std::filesystem::file_size(file), 50U);
    std::filesystem::remove(file);
    EXPECT_NE(display.WritePng("/no/such/directory/x.png"), "");
}

TEST(DisplayChoiceTest, ByName)
{
    struct Case
    {
        const char* name;
        bool bUsable;
    };
    const Case cases[] = {{"headless", true}, {"", true}, {"sdl", false}, {"teletype", false}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        SetDisplay(nullptr);
        setenv("SPLITFRAME_DISPLAY", c.name, 1);
        EXPECT_EQ(OpenDisplay().IsEmpty(), c.bUsable);
        EXPECT_EQ(IsDisplayUsable(), c.bUsable);
        EXPECT_GT(CurrentDisplay().Size().cx, 0) << "clock and queue work in any case";
    }
    unsetenv("SPLITFRAME_DISPLAY");
    SetDisplay(nullptr);
}

} // namespace
