// The viewer as an application: reads the layout, makes the main window, and does what the command line asks
// for. A display with a window can take over where this one ends: InitInstance then answers TRUE and the
// message loop runs.
#pragma once

#include "LayoutFile.h"
#include "Messages.h"
#include "Options.h"
#include "platform/docview/WinApp.h"

class CMultiDocTemplate;
class CViewerFrame;

class CViewerApp : public CWinApp
{
    DECLARE_DYNAMIC(CViewerApp)

public:
    CViewerApp(viewer::Options options, viewer::Messages& messages);
    ~CViewerApp() override;

    /// Does the work. @return FALSE: there is nothing to run
    BOOL InitInstance() override;

    /// Closes what is open. @return the exit status
    int ExitInstance() override;

private:
    bool DoWork();
    bool CreateMainFrame();
    void CloseMainFrame();
    bool PrintList(const std::vector<int>& frames);
    bool WritePictures(const std::vector<int>& frames);

    viewer::Options m_options;
    viewer::Messages& m_messages;
    viewer::LayoutFile m_layout;
    CViewerFrame* m_pFrame = nullptr; // deletes itself after its window
    bool m_bFailed = false;
};
