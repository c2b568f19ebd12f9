// The workbench's command line.
#include "Application.h"
#include "MainFrame.h"
#include "Pictures.h"

#include <platform/display/Headless.h>

#include <charconv>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace {

constexpr const char* USAGE = "usage: workbench [--layout FILE] [--size WxH] --png DIR\n"
                              "\n"
                              "  --png DIR      save a picture of every frame and style in DIR\n"
                              "  --size WxH     size of the main window in pixels (1280x800)\n"
                              "  --layout FILE  layout definition (workbench.xml beside the program)\n"
                              "  --help         this text\n";
constexpr int WRONG_USAGE = 2;

struct CommandLine
{
    StartOptions start;
    std::optional<std::filesystem::path> pictures;
    SIZE size = {splitframe::HeadlessDisplay::DEFAULT_WIDTH, splitframe::HeadlessDisplay::DEFAULT_HEIGHT};
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

/// @return false for an option that is unknown or lacks its value
bool ReadCommandLine(int nArgs, char** ppArg, CommandLine& line)
{
    for (int n = 1; n < nArgs; ++n) {
        const std::string_view option = ppArg[n];
        if (option == "--help") {
            line.bHelp = true;
            continue;
        }
        if (n + 1 == nArgs)
            return false;
        const char* pszValue = ppArg[++n];
        if (option == "--png")
            line.pictures = pszValue;
        else if (option == "--layout")
            line.start.strLayout = pszValue;
        else if (option != "--size" || !ReadSize(pszValue, line.size))
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
void OpenPictureDisplay(SIZE size)
{
    auto pDisplay = std::make_unique<splitframe::HeadlessDisplay>(size.cx, size.cy);
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

int TakePictures(CommandLine& line)
{
    const char* pszDisplay = std::getenv("SPLITFRAME_DISPLAY");
    if (pszDisplay && std::strcmp(pszDisplay, "headless") != 0)
        return Fail("pictures are taken of the headless display; unset SPLITFRAME_DISPLAY");
    OpenPictureDisplay(line.size);
    line.start.bRepeatable = true;
    CWorkbenchApp app(line.start);
    if (!app.InitInstance()) {
        const std::string reason = WhyNotStarted(app, line.start.strLayout);
        if (app.m_pMainWnd)
            app.m_pMainWnd->DestroyWindow();
        return Fail(reason);
    }
    app.GetFeed().WaitForBacklog();
    const std::string reason = WritePictures(*app.GetMainFrame(), *line.pictures);
    app.GetMainFrame()->SendMessage(WM_CLOSE);
    app.ExitInstance();
    return reason.empty() ? 0 : Fail(reason);
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
    if (!line.pictures) {
        // A window on a screen comes with the display that shows one.
        std::cerr << "workbench: there is no screen to show a window on; --png DIR saves pictures\n\n"
                  << USAGE;
        return WRONG_USAGE;
    }
    return TakePictures(line);
}
