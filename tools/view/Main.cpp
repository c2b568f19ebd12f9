// splitframe-view: shows the frames of a layout file with placeholders in their panes.
#include "Messages.h"
#include "Options.h"
#include "ViewerApp.h"
#include "platform/base/Diagnostics.h"
#include "platform/base/Exception.h"

#include <cstdio>
#include <exception>
#include <span>

namespace {

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

int RunViewer(const viewer::Options& options)
{
    viewer::Messages messages(options.strFile);
    SetDiagnosticsHook([&messages](const Diagnostic& diagnostic) { messages.Report(diagnostic); });
    int nStatus = kFailed;
    try {
        CViewerApp app(options, messages);
        nStatus = app.InitInstance() ? app.Run() : app.ExitInstance();
    } catch (CException* pException) {
        messages.Failure(pException->GetErrorMessage().ToUtf8());
        pException->Delete();
    } catch (const std::exception& exception) {
        messages.Failure(exception.what());
    }
    SetDiagnosticsHook({});
    return nStatus;
}

// What was printed counts only once it has arrived.
int FinishOutput(int nStatus)
{
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return nStatus;
    std::perror("splitframe-view: standard output can't be written");
    return kFailed;
}

} // namespace

int main(int argc, char** argv)
{
    const std::span<const char* const> args(argv + (argc > 0 ? 1 : 0),
                                            static_cast<std::size_t>(argc > 0 ? argc - 1 : 0));
    const auto parsed = viewer::ParseOptions(args);
    if (const auto* pError = std::get_if<viewer::UsageError>(&parsed)) {
        std::fprintf(stderr, "splitframe-view: %s\nTry 'splitframe-view --help'.\n", pError->strText.c_str());
        return kWrongUsage;
    }
    if (const auto* pAnswer = std::get_if<viewer::Answer>(&parsed)) {
        std::fputs(pAnswer->strText.c_str(), stdout);
        return FinishOutput(0);
    }
    return FinishOutput(RunViewer(std::get<viewer::Options>(parsed)));
}
