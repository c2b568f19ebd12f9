// The headless display: pixels in memory, input by calls, a clock that can be set, PNG out. Needs no screen,
// no graphics device and no library. What tests and machines without a screen use.
#pragma once

#include "platform/display/Display.h"
#include "platform/display/InputRecord.h"

#include <condition_variable>
#include <deque>
#include <filesystem>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace splitframe {

class SPLITFRAME_PLATFORM_API HeadlessDisplay : public Display
{
public:
    explicit HeadlessDisplay(int cx = DEFAULT_WIDTH, int cy = DEFAULT_HEIGHT, double dScale = 1.0);

    // --- what the user does: queued like real input, handled by the message loop

    void MoveMouse(int x, int y);
    /// At the last position; VK_LBUTTON, VK_RBUTTON or VK_MBUTTON.
    void PressButton(UINT nButton);
    void ReleaseButton(UINT nButton);
    /// Move, press, release.
    void Click(int x, int y, UINT nButton = 0x01);
    void TurnWheel(int nDelta);
    void PressKey(UINT nKey, bool bRepeat = false);
    void ReleaseKey(UINT nKey);
    void TypeText(const wchar_t* pszText);
    void Activate(bool bActive);
    void RequestClose();
    void Queue(const InputEvent& event);
    /// Lets the user do once more what a display recorded, one line after the other: the loop that would wait
    /// takes the next one with the clock at its time, after the timers that are due before. So menus and
    /// message boxes, which are shown then, wait for what follows; with the last line they end.
    /// @return false: no such line
    bool Repeat(std::string_view line);

    // --- the clock: real until it is set for the first time

    void SetClock(ULONGLONG nMilliseconds);
    void AdvanceClock(ULONGLONG nMilliseconds);

    // --- what the user would see

    /// The pixels as last presented; never null.
    const Surface& Shown() const { return *m_pShown; }
    /// @return empty, or the reason in words
    std::string WritePng(const std::filesystem::path& file) const;
    unsigned long PresentCount() const { return m_nPresents; }
    /// What the last Present changed.
    const Region& LastPresented() const { return m_lastPresented; }
    UINT ShownCursor() const { return m_nCursor; }
    const CString& Title() const { return m_strTitle; }
    /// All message boxes so far.
    const std::vector<MessageBoxRequest>& MessageBoxes() const { return m_boxes; }
    /// Answers message boxes; without it the answer is OK or Yes, or what the input says that is repeated.
    /// The answer 0 has the real box shown, for input.
    void SetMessageBoxAnswer(std::function<int(const MessageBoxRequest&)> answer);

    // --- Display

    SIZE Size() const override { return m_size; }
    double Scale() const override { return m_dScale; }
    void Present(const Surface& surface, const Region& damage) override;
    void Resize(int cx, int cy) override;
    /// With a set clock: true when a wake-up or input is there or something is left to repeat, else false at
    /// once, for time does not pass.
    bool Wait(DWORD nMilliseconds) override;
    void Wake() override;
    ULONGLONG Now() const override;
    UINT DoubleClickTime() const override { return 500; }
    void ShowCursor(UINT nCursor) override { m_nCursor = nCursor; }
    void SetTitle(const CString& strTitle) override { m_strTitle = strTitle; }
    int ShowMessageBox(const MessageBoxRequest& request) override;

protected:
    bool TakeInput(InputEvent& event) override;

private:
    bool RepeatNext(DWORD nMilliseconds);

    SIZE m_size;
    double m_dScale;
    std::unique_ptr<Surface> m_pShown;
    std::deque<InputEvent> m_input;
    std::deque<TimedInput> m_toRepeat;
    POINT m_ptMouse{};
    std::optional<ULONGLONG> m_clock;
    unsigned long m_nPresents = 0;
    Region m_lastPresented;
    UINT m_nCursor = 0;
    CString m_strTitle;
    std::vector<MessageBoxRequest> m_boxes;
    std::function<int(const MessageBoxRequest&)> m_answer;
    std::mutex m_mutex; // guards m_bWoken
    std::condition_variable m_wakeUp;
    bool m_bWoken = false;
};

/// The display in use if it is headless, else null.
SPLITFRAME_PLATFORM_API HeadlessDisplay* CurrentHeadless();

} // namespace splitframe
