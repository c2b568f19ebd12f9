// The application: what exists once. It starts the feed, keeps the plant's record and the settings, and opens
// the main frame.
#pragma once

#include "Settings.h"
#include "WorkTime.h"
#include "plant/Record.h"

#include <platform/docview/WinApp.h>

#include <string>

class CMainFrame;

/// How the program was asked to start.
struct StartOptions
{
    std::string strLayout;    // path of the layout definition, UTF-8
    bool bRepeatable = false; // fixed time and a fixed number of samples, for pictures and tests
};

class CWorkbenchApp : public CWinApp
{
    DECLARE_DYNAMIC(CWorkbenchApp)

public:
    explicit CWorkbenchApp(StartOptions options);
    ~CWorkbenchApp() override;

    /// The application object. There must be one.
    static CWorkbenchApp& Get();

    BOOL InitInstance() override;
    int ExitInstance() override;

    CPlantFeed& GetFeed() { return m_feed; }
    CPlantRecord& GetRecord() { return m_record; }
    const CWorkTime& GetWorkTime() const { return m_workTime; }
    const Settings& GetSettings() const { return m_settings; }
    void SetSettings(const Settings& settings);
    /// While it is locked no split line can be dragged, in any frame.
    bool IsLayoutLocked() const { return m_bLocked; }
    void LockLayout(bool bLock) { m_bLocked = bLock; }

    CMainFrame* GetMainFrame() const;
    /// Writes into the journal, now.
    void AddToJournal(Severity severity, const CString& strSource, const CString& strText);

private:
    StartOptions m_options;
    CWorkTime m_workTime;
    Settings m_settings;
    bool m_bLocked = false;
    CPlantFeed m_feed;
    CPlantRecord m_record;
};
