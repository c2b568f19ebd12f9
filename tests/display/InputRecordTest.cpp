// Recorded input: what is written is read back, and a recording repeated shows the same picture.
#include "platform/display/InputRecord.h"
#include "platform/window/Menu.h"
#include "window/TestWindow.h"

#include <filesystem>
#include <fstream>

namespace {

using namespace splitframe;

TEST(InputRecordTest, WhatIsWrittenIsReadBack)
{
    for (const char* pszLine :
         {"0 resize 1280x800", "12 activate", "1200 move 299,200", "1201 move -5,-7",
          "1210 down 299,200 left", "1211 up 299,200 middle", "1212 down 0,0 right", "1213 wheel 9,8 -120",
          "1300 key 70", "1301 key 70 repeat", "1302 keyup 70", "1303 text x y gr\xC3\xBCn \xF0\x9F\x98\x80",
          "1304 minimize", "1305 restore", "1306 deactivate", "18446744073709551615 close"}) {
        SCOPED_TRACE(pszLine);
        const std::optional<TimedInput> input = ReadInput(pszLine);
        ASSERT_TRUE(input.has_value());
        EXPECT_EQ(InputAsText(*input), pszLine);
    }
    for (const char* pszLine :
         {"", "move 1,2", "5", "5 ", "5 fly 1,2", "5 move 1", "5 move 1,2,3", "5 move 1, 2", "5 down 1,2",
          "5 down 1,2 thumb", "5 key", "5 key x", "5 key 70 again", "-5 close", "5 close now"})
        EXPECT_FALSE(ReadInput(pszLine).has_value()) << pszLine;
    TimedInput lost;
    lost.event.kind = InputEvent::Kind::Expose;
    EXPECT_EQ(InputAsText(lost), "") << "another display loses its picture at other times";
}

class RepeatTest : public WindowTest
{
protected:
    // As a program does; the end of the recording ends it.
    static void Run()
    {
        for (MSG msg{}; GetMessage(&msg);)
            HandleMessage(&msg);
    }

    // A window that paints another colour after each of the inputs that it is told.
    void Play(const std::function<void(HeadlessDisplay&)>& user)
    {
        CLogWnd wnd("m", &m_log);
        wnd.Open(nullptr, {0, 0, 400, 300}, WS_VISIBLE, AfxRegisterWndClass(CS_DBLCLKS));
        wnd.SetFocus();
        wnd.m_on[WM_LBUTTONDBLCLK] = [&] {
            wnd.m_color = RGB(200, 0, 0);
            wnd.Invalidate();
        };
        Drain();
        Told();
        user(Screen());
        Drain();
    }
};

TEST_F(RepeatTest, ARecordingRepeatedTellsAndShowsTheSame)
{
    const auto file = std::filesystem::temp_directory_path() / "splitframe-recording-test.txt";
    ASSERT_EQ(Narrow(Screen().RecordInput(file)), "");
    Play([&](HeadlessDisplay& display) {
        for (const ULONGLONG nPause : {600, 100}) { // two presses, near enough for a double click
            display.AdvanceClock(nPause);
            display.MoveMouse(20, 30);
            display.PressButton(VK_LBUTTON);
            Drain();
            display.ReleaseButton(VK_LBUTTON);
            Drain();
        }
        display.TypeText(L"\xE9");
        display.PressKey(VK_DOWN, true);
        display.Resize(500, 350);
    });
    const std::string strFirst = Told();
    EXPECT_NE(strFirst.find("double"), std::string::npos);

    SetDisplay(std::make_unique<HeadlessDisplay>(400, 300));
    Screen().SetClock(0);
    Play([&](HeadlessDisplay& display) {
        std::ifstream lines(file);
        for (std::string strLine; std::getline(lines, strLine);)
            EXPECT_TRUE(display.Repeat(strLine)) << strLine;
        Run();
    });
    EXPECT_EQ(Told(), strFirst);
    EXPECT_EQ(Pixel(450, 320), RGB(200, 0, 0));
    std::filesystem::remove(file);
    EXPECT_NE(Narrow(Screen().RecordInput("/no/such/directory/x")), "");
}

// What the user answers stands in the recording behind what asks; submenus open while the pointer rests.
TEST_F(RepeatTest, MenusAndMessageBoxesWaitForTheirInput)
{
    CMenu inner, menu;
    inner.CreatePopupMenu();
    inner.AppendMenu(MF_STRING, 7, L"inner");
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(inner.Detach()), L"outer");
    CLogWnd wnd("m", &m_log);
    wnd.Open(nullptr, {0, 0, 400, 300});
    wnd.m_on[WM_KEYDOWN] = [&] {
        wnd.Log("chose " + std::to_string(menu.TrackPopupMenu(TPM_RETURNCMD, 10, 10, &wnd)));
        wnd.Log("said " + std::to_string(AfxMessageBox(L"Sure?", MB_YESNO)));
    };
    wnd.m_on[WM_TIMER] = [&] { wnd.KillTimer(5); };
    wnd.SetFocus();
    wnd.SetTimer(5, 800);
    Drain();
    Told();
    for (const char* pszLine :
         {"1100 key 70", "1200 move 20,20", "1700 key 40", "1700 key 13", "1900 text n"})
        EXPECT_TRUE(Screen().Repeat(pszLine));
    Run();
    EXPECT_EQ(
        Told(),
        "m:key 70 | m:chose 7 | m:paint | m:inactive | m:blur | m:timer 5 | m:active | m:focus | m:said 7 | "
        "m:paint");
    EXPECT_EQ(Screen().Now(), 1900U);

    EXPECT_TRUE(Screen().Repeat("2000 key 70"));
    Run();
    EXPECT_EQ(Told(), "m:key 70 | m:chose 0 | m:paint | m:said 6") << "nobody is left to answer";
}

} // namespace
