// Start and end of the program.
#include "Application.h"

#include "ClassTables.h"
#include "MainFrame.h"

#include <document/BaseFrameDoc.h>
#include <document/BaseFrameView.h>
#include <frame/BaseFrameChildWnd.h>
#include <platform/docview/DocTemplate.h>

#include <utility>

namespace {

constexpr UINT IDR_FRAME = 1; // resource numbers are only names
constexpr int BACKLOG = 601;  // samples: five minutes, both ends included

} // namespace

IMPLEMENT_DYNAMIC(CWorkbenchApp, CWinApp)

CWorkbenchApp::CWorkbenchApp(StartOptions options)
    : CWinApp(L"Pilot Plant Workbench"), m_options(std::move(options)), m_record(m_feed)
{
    SetSettings(m_settings);
}

CWorkbenchApp::~CWorkbenchApp()
{
    m_feed.Stop();
}

CWorkbenchApp& CWorkbenchApp::Get()
{
    return *static_cast<CWorkbenchApp*>(::AfxGetApp());
}

BOOL CWorkbenchApp::InitInstance()
{
    constexpr double dBacklog = (BACKLOG - 1) * CPlantFeed::STEP;
    if (m_options.bRepeatable)
        m_workTime.StartFixed(dBacklog);
    else
        m_workTime.StartNow(dBacklog);
    // The feed works while the windows are made; whoever subscribes later is told what it has missed.
    m_feed.Start(BACKLOG, !m_options.bRepeatable);

    // Which classes make up an open frame. The application owns the template.
    auto* pTemplate = new CMultiDocTemplate(IDR_FRAME, RUNTIME_CLASS(CBaseFrameDoc),
                                            RUNTIME_CLASS(CBaseFrameChildWnd), RUNTIME_CLASS(CBaseFrameView));
    AddDocTemplate(pTemplate);

    // The main frame must be the application's main window before units are made: they look for it there. It
    // deletes itself when its window goes.
    auto* pMainFrame = new CMainFrame;
    m_pMainWnd = pMainFrame;
    if (!pMainFrame->LoadFrame(IDR_FRAME))
        return FALSE;
    const ClassTable units = GetUnitClasses();
    const ClassTable helpers = GetHelperClasses();
    pMainFrame->InitializeByFile(pTemplate, CString(m_options.strLayout.c_str()), units.pGuid, units.ppClass,
                                 units.nCount, helpers.pGuid, helpers.ppClass, helpers.nCount);
    if (!pMainFrame->GetLoadResult().bParsed)
        return FALSE;
    pMainFrame->BuildMenus();
    pMainFrame->ActivateFrame(SW_SHOW);
    return TRUE;
}

int CWorkbenchApp::ExitInstance()
{
    m_feed.Stop();
    return CWinApp::ExitInstance();
}

void CWorkbenchApp::SetSettings(const Settings& settings)
{
    m_settings = settings;
    ShowFahrenheit(settings.bFahrenheit);
}

CMainFrame* CWorkbenchApp::GetMainFrame() const
{
    return static_cast<CMainFrame*>(m_pMainWnd);
}

void CWorkbenchApp::AddToJournal(Severity severity, const CString& strSource, const CString& strText)
{
    m_record.GetJournal().Add(m_workTime.GetRunTime(), severity, strSource, strText);
}
