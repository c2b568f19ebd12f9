// The viewer as an application: reads the layout, makes the main window, and does what the command line asks
// for: lists, pictures, or a window to work in.
#pragma once

#include "LayoutSource.h"
#include "Messages.h"
#include "Options.h"
#include "Selection.h"
#include "platform/docview/WinApp.h"

#include <vector>

class CMultiDocTemplate;
class CViewerFrame;

class CViewerApp : public CWinApp
{
    DECLARE_DYNAMIC(CViewerApp)

public:
    CViewerApp(viewer::Options options, viewer::Messages& messages);
    ~CViewerApp() override;

    /// Does the work, or opens the window. @return FALSE: there is nothing to run
    BOOL InitInstance() override;

    // The steps towards the window, on whatever display there is: false after an error, which was told.
    bool ReadLayout() { return m_layout.Read(); }
    bool OpenWindow();

    /// Closes what is open. @return the exit status
    int ExitInstance() override;

private:
    bool OpenDisplay();
    bool PrintAndDraw();
    CMultiDocTemplate* MakeTemplate(CRuntimeClass* pViewClass);
    bool SaveCopy();
    bool CreateMainFrame(CViewerFrame* pFrame);
    void CloseMainFrame();
    std::vector<int> ChooseFrames();
    std::vector<viewer::StyleChoice> ChooseShown(const std::vector<int>& frames);
    bool PrintList(const std::vector<int>& frames);
    bool WritePictures(const std::vector<int>& frames);

    viewer::Options m_options;
    viewer::Messages& m_messages;
    viewer::LayoutSource m_layout;
    CViewerFrame* m_pFrame = nullptr; // deletes itself after its window
    bool m_bFailed = false;
};
