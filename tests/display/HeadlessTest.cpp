// The memory display: waiting, odd sizes, and the choice of a display by name.
#include "platform/display/Headless.h"
#include "platform/window/Messages.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

using namespace splitframe;

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
}

// Sets environment variables for as long as it lives.
class Environment
{
public:
    Environment(const std::vector<std::pair<const char*, const char*>>& values)
    {
        for (const auto& [pszName, pszValue] : values) {
            const char* pszBefore = std::getenv(pszName);
            m_before.emplace_back(pszName, pszBefore ? std::optional<std::string>(pszBefore) : std::nullopt);
            setenv(pszName, pszValue, 1);
        }
    }
    ~Environment()
    {
        for (const auto& [strName, strValue] : m_before)
            strValue ? setenv(strName.c_str(), strValue->c_str(), 1) : unsetenv(strName.c_str());
    }

private:
    std::vector<std::pair<std::string, std::optional<std::string>>> m_before;
};

TEST(DisplayChoiceTest, ByEnvironment)
{
    struct Case
    {
        const char* name;
        const char* screen;
        const char* scale;
        bool bUsable;
        double dScale;
        bool bTold; // on standard error
    };
    const char* const DEAD = ":7654321";
    const Case cases[] = {
        {"headless", DEAD, "", true, 1.0, false},    {"", "", "", true, 1.0, false},
        {"", DEAD, "1.25", true, 1.25, true},        {"sdl", DEAD, "", false, 1.0, false},
        {"sdl", "", "", false, 1.0, false},          {"teletype", "", "", false, 1.0, false},
        {"headless", "", "2", true, 2.0, false},     {"headless", "", "9", false, 1.0, false},
        {"headless", "", "1.5x", false, 1.0, false}, {"headless", "", "nan", false, 1.0, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.name << ' ' << c.screen << ' ' << c.scale);
        const Environment environment({{"SPLITFRAME_DISPLAY", c.name},
                                       {"SPLITFRAME_SCALE", c.scale},
                                       {"DISPLAY", c.screen},
                                       {"WAYLAND_DISPLAY", ""}});
        SetDisplay(nullptr);
        testing::internal::CaptureStderr();
        EXPECT_EQ(OpenDisplay().IsEmpty(), c.bUsable);
        EXPECT_EQ(IsDisplayUsable(), c.bUsable);
        EXPECT_GT(CurrentDisplay().Size().cx, 0) << "clock and queue work in any case";
        EXPECT_EQ(CurrentDisplay().Scale(), c.dScale);
        EXPECT_EQ(!testing::internal::GetCapturedStderr().empty(), c.bTold);
    }
    SetDisplay(nullptr);
}

} // namespace
