#include "support/FrameHost.h"

#include "definition/LayoutValues.h"
#include "definition/UnitInfo.h"
#include "layout/CheckTree.h"
#include "platform/window/WindowManager.h"

#include <algorithm>
#include <utility>

namespace test {

EventLog& Log()
{
    static EventLog log;
    return log;
}

LRESULT EventLog::Note(const std::string& strEvent, CBaseUnitWnd* pUnit)
{
    arrEvent.push_back(strEvent);
    if (const auto it = hooks.find(strEvent); it != hooks.end()) {
        const auto run = it->second; // the hook may change the table
        run(pUnit);
    }
    const auto it = answers.find(strEvent);
    return it == answers.end() ? 0 : it->second;
}

std::string EventLog::Take()
{
    return Take("");
}

std::string EventLog::Take(const std::string& strPart)
{
    std::string strAll;
    for (const std::string& strEvent : std::exchange(arrEvent, {})) {
        if (strEvent.find(strPart) != std::string::npos)
            strAll += (strAll.empty() ? "" : " ") + strEvent;
    }
    return strAll;
}

// --- units

IMPLEMENT_DYNCREATE(RecordingUnit, CBaseUnitWnd)
IMPLEMENT_DYNCREATE(ThrowingUnit, CBaseUnitWnd)

BEGIN_MESSAGE_MAP(RecordingUnit, CBaseUnitWnd)
ON_WM_SIZE()
ON_WM_SHOWWINDOW()
ON_WM_LBUTTONDOWN()
ON_MESSAGE(WM_LBUTTONDBLCLK, &RecordingUnit::OnDblClk)
ON_WM_RBUTTONDOWN()
ON_WM_KEYDOWN()
ON_WM_KEYUP()
ON_WM_SETFOCUS()
ON_WM_DESTROY()
END_MESSAGE_MAP()

RecordingUnit::RecordingUnit()
{
    ++Log().nUnits;
}

RecordingUnit::~RecordingUnit()
{
    --Log().nUnits;
}

LRESULT RecordingUnit::Note(const std::string& strWhat)
{
    return Log().Note(m_strName.ToUtf8() + "." + strWhat, this);
}

BOOL RecordingUnit::Create(CWnd* pParent, CBaseUnitInfo* pInfo)
{
    const splitframe::CSplitLineLink self(this);
    const BOOL bCreated = CBaseUnitWnd::Create(pParent, pInfo);
    if (self)
        Note("Create");
    return bCreated;
}

BOOL RecordingUnit::Init(const wchar_t* pszParam)
{
    const BOOL bResult = CBaseUnitWnd::Init(pszParam);
    Note("Init" + CString(pszParam).ToUtf8());
    return bResult;
}

BOOL RecordingUnit::ShowWindowEx(int nCmdShow)
{
    const splitframe::CSplitLineLink self(this);
    const BOOL bResult = CBaseUnitWnd::ShowWindowEx(nCmdShow);
    if (self)
        Note("Show" + std::to_string(nCmdShow));
    return bResult;
}

void RecordingUnit::HandleStyle(CString strStyle)
{
    Note("Handle" + strStyle.ToUtf8());
}

void RecordingUnit::OnStyleChange(bool b)
{
    Note(b ? "Style1" : "Style0");
}

void RecordingUnit::ProcessActivate2(bool bActivate)
{
    Note(bActivate ? "Use1" : "Use0");
}

LRESULT RecordingUnit::ProcessCommand(UINT nCmd, LPARAM lParam)
{
    return Note("Command" + std::to_string(nCmd) + "," + std::to_string(lParam));
}

void RecordingUnit::OnMDIActivate(BOOL bActivate, CWnd*, CWnd*)
{
    Note(bActivate ? "Active1" : "Active0");
}

GUID RecordingUnit::GetGUID()
{
    GUID guid;
    splitframe::TextToGuid(UNIT_GUID.c_str(), guid);
    return guid;
}

void RecordingUnit::CustomDraw(CPaintDC* pDC)
{
    CBaseUnitWnd::CustomDraw(pDC);
    Note("Draw");
}

void RecordingUnit::OnSize(UINT nType, int cx, int cy)
{
    CBaseUnitWnd::OnSize(nType, cx, cy);
    Note("Size");
}

void RecordingUnit::OnShowWindow(BOOL bShow, UINT nStatus)
{
    CBaseUnitWnd::OnShowWindow(bShow, nStatus);
    if (!bShow)
        Note("Hidden");
}

void RecordingUnit::OnLButtonDown(UINT, CPoint)
{
    Note("Click");
}

LRESULT RecordingUnit::OnDblClk(WPARAM, LPARAM lParam)
{
    return Note("DblClk" + std::to_string(GET_X_LPARAM(lParam)) + "," + std::to_string(GET_Y_LPARAM(lParam)));
}

void RecordingUnit::OnRButtonDown(UINT, CPoint pt)
{
    Note("RClick" + std::to_string(pt.x) + "," + std::to_string(pt.y));
}

void RecordingUnit::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    Note("Key" + std::to_string(nChar));
    CBaseUnitWnd::OnKeyDown(nChar, nRepCnt, nFlags);
}

void RecordingUnit::OnKeyUp(UINT nChar, UINT, UINT)
{
    Note("KeyUp" + std::to_string(nChar));
}

void RecordingUnit::OnSetFocus(CWnd*)
{
    Note("Focus");
}

void RecordingUnit::OnDestroy()
{
    CBaseUnitWnd::OnDestroy();
    Note("Destroy");
}

// --- helper

IMPLEMENT_DYNCREATE(RecordingHelper, CBaseFrameHelper)

RecordingHelper::RecordingHelper()
{
    ++Log().nHelpers;
}

RecordingHelper::~RecordingHelper()
{
    --Log().nHelpers;
}

GUID RecordingHelper::GetGUID()
{
    GUID guid;
    splitframe::TextToGuid(HELPER_GUID.c_str(), guid);
    return guid;
}

void RecordingHelper::ProcessActivate2(bool bActivate)
{
    Log().Note(bActivate ? "helper.Use1" : "helper.Use0", nullptr);
}

LRESULT RecordingHelper::ProcessMessage(DWORD nMsg, WPARAM wParam, LPARAM lParam)
{
    const std::string strEvent = "helper.Message" + std::to_string(nMsg) + "," + std::to_string(wParam);
    const LRESULT nAnswer = Log().Note(strEvent, nullptr);
    return nAnswer ? nAnswer : CBaseFrameHelper::ProcessMessage(nMsg, wParam, lParam);
}

void RecordingHelper::OnStyleInitial()
{
    Log().Note("helper.StyleInitial", nullptr);
}

void RecordingHelper::OnCalcWindowRect(LPRECT lpRect)
{
    Log().Note("helper.CalcWindowRect", nullptr);
    CBaseFrameHelper::OnCalcWindowRect(lpRect);
}

void RecordingHelper::OnBaseUnitNotify(UINT nCode, LPARAM lParam)
{
    Log().Note("helper.Notify" + std::to_string(nCode) + "," + std::to_string(lParam), nullptr);
}

// --- the host

FrameHost::FrameHost(CRuntimeClass* pDocClass) : m_app(L"Host")
{
    Log() = EventLog();
    SetDiagnosticsHook([this](const Diagnostic& diagnostic) { m_arrDiagnostic.push_back(diagnostic); });
    auto pDisplay = std::make_unique<splitframe::HeadlessDisplay>(804, 703);
    m_pDisplay = pDisplay.get();
    splitframe::SetDisplay(std::move(pDisplay));
    m_pTemplate =
        new CMultiDocTemplate(1, pDocClass, RUNTIME_CLASS(CBaseFrameChildWnd), RUNTIME_CLASS(CBaseFrameView));
    m_app.AddDocTemplate(m_pTemplate);
    m_pMain = new CBaseFrameWnd;
    m_app.m_pMainWnd = m_pMain;
    EXPECT_TRUE(m_pMain->LoadFrame(1));
    m_pMain->ActivateFrame(SW_SHOW);
    Settle();
}

FrameHost::~FrameHost()
{
    Log().hooks.clear();
    Log().answers.clear();
    if (m_app.m_pMainWnd)
        m_pMain->DestroyWindow();
    splitframe::DrainMessages();
    EXPECT_EQ(m_pTemplate->GetDocumentCount(), 0);
    EXPECT_EQ(Log().nUnits, 0) << "units left";
    EXPECT_EQ(Log().nHelpers, 0) << "helpers left";
    EXPECT_EQ(CSplitLine::m_pRoot, nullptr);
    SetDiagnosticsHook({});
    splitframe::SetDisplay(nullptr);
}

void FrameHost::Load(const std::wstring& strXml)
{
    GUID arrUnit[2];
    splitframe::TextToGuid(UNIT_GUID.c_str(), arrUnit[0]);
    splitframe::TextToGuid(OTHER_UNIT_GUID.c_str(), arrUnit[1]);
    GUID guidHelper;
    splitframe::TextToGuid(HELPER_GUID.c_str(), guidHelper);
    CRuntimeClass* arrUnitClass[] = {RUNTIME_CLASS(RecordingUnit), RUNTIME_CLASS(ThrowingUnit)};
    CRuntimeClass* arrHelperClass[] = {RUNTIME_CLASS(RecordingHelper)};
    EXPECT_EQ(m_pMain->InitializeByDoc(m_pTemplate, strXml.c_str(), arrUnit, arrUnitClass, 2, &guidHelper,
                                       arrHelperClass, 1),
              1);
}

CBaseFrameDoc* FrameHost::Open(const wchar_t* pszName)
{
    if (m_app.m_pMainWnd) // a hook may have closed it
        m_pMain->OnBaseFrameOpen(pszName);
    Settle();
    return ActiveDoc();
}

void FrameHost::Settle()
{
    splitframe::DrainMessages();
}

CBaseFrameChildWnd* FrameHost::ActiveFrame()
{
    return m_app.m_pMainWnd ? DynamicDownCast<CBaseFrameChildWnd>(m_pMain->GetActiveFrame()) : nullptr;
}

CBaseFrameDoc* FrameHost::ActiveDoc()
{
    CBaseFrameChildWnd* pFrame = ActiveFrame();
    return pFrame ? pFrame->GetFrameDoc() : nullptr;
}

CBaseFrameView* FrameHost::ActiveView()
{
    CBaseFrameDoc* pDoc = ActiveDoc();
    return pDoc ? pDoc->m_pView : nullptr;
}

CBaseUnitWnd* FrameHost::Unit(const wchar_t* pszName)
{
    CBaseFrameDoc* pDoc = ActiveDoc();
    return pDoc ? pDoc->GetBaseUnitWnd(pszName) : nullptr;
}

std::string FrameHost::Panes()
{
    std::vector<std::string> arrPane;
    const CBaseFrameView* pView = ActiveView();
    for (CWnd* pWnd = pView ? pView->GetTopWindow() : nullptr; pWnd; pWnd = pWnd->GetNextWindow()) {
        const auto* pUnit = DynamicDownCast<CBaseUnitWnd>(pWnd);
        if (!pUnit || !pUnit->IsWindowVisible())
            continue;
        CRect rc;
        pUnit->GetWindowRect(&rc);
        pView->ScreenToClient(&rc);
        CString strPane;
        strPane.Format(L"%s %d,%d %dx%d", pUnit->m_strName, rc.left, rc.top, rc.Width(), rc.Height());
        arrPane.push_back(strPane.ToUtf8());
    }
    std::sort(arrPane.begin(), arrPane.end());
    std::string strAll;
    for (const std::string& strPane : arrPane)
        strAll += (strAll.empty() ? "" : "; ") + strPane;
    return strAll;
}

std::string FrameHost::OpenFrames()
{
    std::string strAll;
    for (int i = 0; i < m_pTemplate->GetDocumentCount(); ++i) {
        const auto* pDoc = DynamicDownCast<CBaseFrameDoc>(m_pTemplate->GetDocument(i));
        if (pDoc)
            strAll += (strAll.empty() ? "" : " ") + pDoc->m_strName.ToUtf8();
    }
    return strAll;
}

void FrameHost::CloseActive()
{
    if (CBaseFrameChildWnd* pFrame = ActiveFrame())
        pFrame->SendMessage(WM_CLOSE);
    Settle();
}

void FrameHost::ExpectSound()
{
    CBaseFrameDoc* pDoc = ActiveDoc();
    if (pDoc && pDoc->m_pRoot) {
        EXPECT_EQ(splitframe::CheckTree(*pDoc->m_pRoot), "");
        EXPECT_EQ(CSplitLine::m_pRoot, pDoc->m_pRoot);
    }
    for (int i = 0; i < m_pTemplate->GetDocumentCount(); ++i) {
        auto* pEach = DynamicDownCast<CBaseFrameDoc>(m_pTemplate->GetDocument(i));
        EXPECT_EQ(pEach->m_arrBaseUnitWnd.GetSize(), pEach->m_arrBaseUnitWndID.GetSize());
        EXPECT_EQ(pEach->m_arrWndCache.GetSize(), pEach->m_arrWndCacheID.GetSize());
        for (const CBaseUnitWnd* pUnit : pEach->m_arrWndCache)
            EXPECT_FALSE(pUnit->IsWindowVisible()) << pUnit->CSplitLine::m_strName.ToUtf8();
    }
    EXPECT_EQ(splitframe::CheckWindowTree(), CString());
}

std::string Told(const std::vector<Diagnostic>& arrDiagnostic)
{
    std::string strAll;
    for (const Diagnostic& diagnostic : arrDiagnostic)
        strAll += diagnostic.strMessage.ToUtf8() + " [" + diagnostic.strFrame.ToUtf8() + "/" +
                  diagnostic.strStyle.ToUtf8() + "/" + diagnostic.strName.ToUtf8() + "]\n";
    return strAll;
}

} // namespace test
