// The workbench's command line.
#include "Application.h"
#include "MainFrame.h"
#include "Pictures.h"

#include <platform/display/Headless.h>

#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace {

constexpr const char* USAGE =
    "usage: workbench [--layout FILE] [--size WxH] [--scale N] [--still] [--png DIR]\n"
    "\n"
    "Opens the workbench in a window.\n"
    "\n"
    "  --png DIR      save a picture of every frame and style in DIR instead\n"
    "  --size WxH     size of the main window in pixels (1280x800)\n"
    "  --scale N      draw each pixel as N by N of the screen's, 0.25 to 8 (1)\n"
    "  --still        the plant stands still: five minutes of samples and no more\n"
    "  --layout FILE  layout definition (workbench.xml beside the program)\n"
    "  --help         this text\n";
constexpr int WRONG_USAGE = 2;

struct CommandLine
{
    StartOptions start;
    std::optional<std::filesystem::path> pictures;
    std::optional<SIZE> size;
    double dScale = 1.0;
    bool bHelp = false;
};

/// "1280x800", both from 1 to 8192.
bool ReadSize(std::string_view text, SIZE& size)
{
    const char* pEnd = text.data() + text.size();
    const auto width = std::from_chars(text.data(), pEnd, size.cx);
    if (width.ec != std::errc() || width.ptr == pEnd || *width.ptr != 'x')
        return false;
    const auto height = std::from_chars(width.ptr + 1, pEnd, size.cy);
    return height.ec == std::errc() && height.ptr == pEnd && size.cx >= 1 && size.cx <= 8192 &&
           size.cy >= 1 && size.cy <= 8192;
}

bool ReadScale(std::string_view text, double& dScale)
{
    const char* pEnd = text.data() + text.size();
    const auto [pStop, error] = std::from_chars(text.data(), pEnd, dScale);
    return error == std::errc() && pStop == pEnd && dScale >= splitframe::Surface::MIN_SCALE &&
           dScale <= splitframe::Surface::MAX_SCALE;
}

/// @return false for an option that is unknown or lacks its value
bool ReadCommandLine(int nArgs, char** ppArg, CommandLine& line)
{
    for (int n = 1; n < nArgs; ++n) {
        const std::string_view option = ppArg[n];
        if (option == "--help" || option == "--still") {
            (option == "--help" ? line.bHelp : line.start.bRepeatable) = true;
            continue;
        }
        if (n + 1 == nArgs)
            return false;
        const char* pszValue = ppArg[++n];
        if (option == "--png")
            line.pictures = pszValue;
        else if (option == "--layout")
            line.start.strLayout = pszValue;
        else if (option == "--size" && ReadSize(pszValue, line.size.emplace()))
            continue;
        else if (option == "--scale" && ReadScale(pszValue, line.dScale))
            ::setenv("SPLITFRAME_SCALE", pszValue, 1); // where the display looks for it
        else
            return false;
    }
    return true;
}

std::string LayoutBesideProgram()
{
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    return (program.parent_path() / "workbench.xml").string();
}

/// Pictures are the same on every run: a display of the wanted size whose clock stands still.
void OpenPictureDisplay(const CommandLine& line)
{
    const SIZE size =
        line.size.value_or(SIZE{splitframe::Display::DEFAULT_WIDTH, splitframe::Display::DEFAULT_HEIGHT});
    auto pDisplay = std::make_unique<splitframe::HeadlessDisplay>(size.cx, size.cy, line.dScale);
    pDisplay->SetClock(0);
    splitframe::SetDisplay(std::move(pDisplay));
}

int Fail(const std::string& reason)
{
    std::cerr << "workbench: " << reason << '\n';
    return 1;
}

std::string WhyNotStarted(const CWorkbenchApp& app, const std::string& layout)
{
    if (!app.GetMainFrame())
        return "the main window could not be made";
    const CLayoutLoadResult& result = app.GetMainFrame()->GetLoadResult();
    return layout + ": " + (result.bOpened ? result.strError.ToUtf8() : "cannot be read");
}

/// @return empty, or why the program can not go on; then the main window is gone
std::string Start(CWorkbenchApp& app, const std::string& layout)
{
    if (app.InitInstance())
        return {};
    std::string reason = WhyNotStarted(app, layout);
    if (app.m_pMainWnd)
        app.m_pMainWnd->DestroyWindow();
    return reason;
}

int TakePictures(CommandLine& line)
{
    OpenPictureDisplay(line);
    line.start.bRepeatable = true;
    CWorkbenchApp app(line.start);
    std::string reason = Start(app, line.start.strLayout);
    if (!reason.empty())
        return Fail(reason);
    app.GetFeed().WaitForBacklog();
    reason = WritePictures(*app.GetMainFrame(), *line.pictures);
    app.GetMainFrame()->SendMessage(WM_CLOSE);
    app.ExitInstance();
    return reason.empty() ? 0 : Fail(reason);
}

int RunInWindow(const CommandLine& line)
{
    const CString strReason = splitframe::OpenDisplay();
    if (!strReason.IsEmpty())
        return Fail(strReason.ToUtf8());
    if (splitframe::CurrentHeadless()) {
        std::cerr << "workbench: there is no screen to show a window on; --png DIR saves pictures\n\n"
                  << USAGE;
        return WRONG_USAGE;
    }
    if (line.size)
        splitframe::CurrentDisplay().Resize(line.size->cx, line.size->cy);
    CWorkbenchApp app(line.start);
    const std::string reason = Start(app, line.start.strLayout);
    if (!reason.empty())
        return Fail(reason);
    if (line.start.bRepeatable)
        app.GetFeed().WaitForBacklog();
    app.GetMainFrame()->OnBaseFrameOpen(CBaseFrameWnd::ID_FRAME_FIRST);
    return app.Run();
}

} // namespace

int main(int nArgs, char** ppArg)
{
    CommandLine line;
    line.start.strLayout = LayoutBesideProgram();
    if (!ReadCommandLine(nArgs, ppArg, line)) {
        std::cerr << USAGE;
        return WRONG_USAGE;
    }
    if (line.bHelp) {
        std::cout << USAGE;
        return 0;
    }
    return line.pictures ? TakePictures(line) : RunInWindow(line);
}
