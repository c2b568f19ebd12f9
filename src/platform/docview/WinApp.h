// The application object: start, message loop with translation before dispatch and idle work, end. It knows
// the application's main window and owns the document templates. A process may well have none (a tool, a test
// of single windows): then the three functions at the end answer null and everything that asks them does
// without.
#pragma once

#include "platform/base/Array.h"
#include "platform/base/String.h"
#include "platform/window/CmdTarget.h"
#include "platform/window/Messages.h"

class CDocTemplate;
class CWnd;

/// The user-interface thread: its message loop and its main window. There is one in a process; the object
/// made first is the one that AfxGetThread() answers, until it is destroyed.
class SPLITFRAME_PLATFORM_API CWinThread : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread();
    ~CWinThread() override;
    CWinThread(const CWinThread&) = delete;
    CWinThread& operator=(const CWinThread&) = delete;

    /// The application's main window. Not owned; set by the host, usually in InitInstance. A frame window
    /// that is destroyed takes itself out, which ends Run().
    CWnd* m_pMainWnd = nullptr;

    /// The application's main window, or null.
    virtual CWnd* GetMainWnd();

    /// Start: the host makes its windows here. @return FALSE to end the program without running. The base's
    /// version answers TRUE.
    virtual BOOL InitInstance();

    /// Runs the message loop until a quit message arrives or the main window is gone, then ExitInstance().
    /// Without a main window it ends at once. @return what ExitInstance() answers
    virtual int Run();

    /// End: the last call before the program ends. @return the exit code; the base's version answers the quit
    /// message's parameter
    virtual int ExitInstance();

    /// Asked before a queued message is translated and dispatched. TRUE: it is used up. The base's version
    /// asks the windows from the message's own up to the main window, each once.
    virtual BOOL PreTranslateMessage(MSG* pMsg);

    /// Work for times without messages. @param lCount how often it was called since the last message, from 0
    /// @return TRUE to be called again before the next message. The base's version has nothing to do.
    virtual BOOL OnIdle(LONG lCount);

    /// Waits for one message and handles it. @return FALSE for the quit message, which ends Run()
    virtual BOOL PumpMessage();

private:
    friend class CFrameWnd;
    void ForgetMainWnd(const CWnd* pWnd);

    int m_nExitCode = 0;
    bool m_bRunning = false;
};

/// The application. The host derives from it and makes one object, which lives as long as the program.
class SPLITFRAME_PLATFORM_API CWinApp : public CWinThread
{
    DECLARE_DYNAMIC(CWinApp)

public:
    /// @param pszAppName  the name that titles show; null or empty: none
    explicit CWinApp(const wchar_t* pszAppName = nullptr);

    /// Deletes the templates.
    ~CWinApp() override;

    /// The application's name as titles show it.
    const CString& GetAppName() const { return m_strAppName; }

    /// Gives a document template to the application, which deletes it at its end. Null and a template that it
    /// already has are ignored.
    void AddDocTemplate(CDocTemplate* pTemplate);

    /// The first template that was added, or null.
    CDocTemplate* GetDocTemplate() const;

private:
    CString m_strAppName;
    CArray<CDocTemplate*, CDocTemplate*> m_arrTemplate; // owned
};

/// The object of the user-interface thread, or null while there is none.
SPLITFRAME_PLATFORM_API CWinThread* AfxGetThread();

/// The application object, or null while there is none.
SPLITFRAME_PLATFORM_API CWinApp* AfxGetApp();

/// The application's main window, or null while there is none or no application.
SPLITFRAME_PLATFORM_API CWnd* AfxGetMainWnd();
