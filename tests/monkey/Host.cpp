// The host that the monkey plays with: units and helpers whose every hook gives the monkey a chance.
#include "definition/LayoutValues.h"
#include "monkey/Monkey.h"
#include "platform/window/PaintDC.h"

namespace monkey {

namespace {

void Chance(const CBaseUnitWnd* pUnit)
{
    if (Monkey* pMonkey = Current())
        pMonkey->Hook(pUnit);
}

GUID GuidOf(const std::wstring& strText)
{
    GUID guid;
    splitframe::TextToGuid(strText.c_str(), guid);
    return guid;
}

class MonkeyUnit : public CBaseUnitWnd
{
    DECLARE_DYNCREATE(MonkeyUnit)
public:
    BOOL Create(CWnd* pParent, CBaseUnitInfo* pInfo) override
    {
        const BOOL bCreated = CBaseUnitWnd::Create(pParent, pInfo);
        Chance(this);
        return bCreated;
    }
    BOOL Init(const wchar_t* pszParam) override
    {
        const BOOL bDone = CBaseUnitWnd::Init(pszParam);
        Chance(this);
        return bDone;
    }
    BOOL ShowWindowEx(int nCmdShow) override
    {
        const BOOL bShown = CBaseUnitWnd::ShowWindowEx(nCmdShow);
        Chance(this);
        return bShown;
    }
    void ProcessActivate(bool bActivate) override
    {
        CBaseUnitWnd::ProcessActivate(bActivate);
        Chance(this);
    }
    void ProcessActivate2(bool) override { Chance(this); }
    void HandleStyle(CString) override { Chance(this); }
    void OnStyleChange(bool) override { Chance(this); }
    void OnMDIActivate(BOOL, CWnd*, CWnd*) override { Chance(this); }
    LRESULT ProcessCommand(UINT, LPARAM) override
    {
        Chance(this);
        return 0;
    }
    LRESULT OnEngineData(WPARAM, LPARAM) override
    {
        Chance(this);
        return 0;
    }
    GUID GetGUID() override { return GuidOf(test::UNIT_GUID); }
    using CBaseUnitWnd::Notify;

protected:
    void CustomDraw(CPaintDC* pDC) override
    {
        CBaseUnitWnd::CustomDraw(pDC);
        Chance(this);
    }
    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override
    {
        Chance(this);
        if (!m_hWnd)
            return 0;
        const splitframe::CSplitLineLink self(this);
        const LRESULT nResult = CBaseUnitWnd::WindowProc(nMessage, wParam, lParam);
        if (self && nMessage != WM_NCDESTROY)
            Chance(this);
        return nResult;
    }
};

IMPLEMENT_DYNCREATE(MonkeyUnit, CBaseUnitWnd)

class MonkeyHelper : public CBaseFrameHelper
{
    DECLARE_DYNCREATE(MonkeyHelper)
public:
    GUID GetGUID() override { return GuidOf(test::HELPER_GUID); }
    void ProcessActivate2(bool) override { Chance(nullptr); }
    void OnStyleInitial() override { Chance(nullptr); }
    void OnBaseUnitNotify(UINT, LPARAM) override { Chance(nullptr); }
    void OnCalcWindowRect(LPRECT lpRect) override
    {
        Chance(nullptr);
        CBaseFrameHelper::OnCalcWindowRect(lpRect);
        Chance(nullptr);
    }
    LRESULT ProcessMessage(DWORD nMsg, WPARAM wParam, LPARAM lParam) override
    {
        Chance(nullptr);
        if (nMsg == WM_CLOSE && Current() && Current()->Refuses())
            return 1;
        return CBaseFrameHelper::ProcessMessage(nMsg, wParam, lParam);
    }
};

IMPLEMENT_DYNCREATE(MonkeyHelper, CBaseFrameHelper)

} // namespace

void LoadFrames(test::FrameHost& host)
{
    using namespace test;
    const std::wstring strNarrow = L"<WIDTH MIN=\"40\" MAX=\"60\"/><HEIGHT MIN=\"20\" MAX=\"10000\"/>";
    const std::wstring strOdd = L"<WIDTH MIN=\"90\" MAX=\"30\"/><HEIGHT MIN=\"500\" MAX=\"400\"/>";
    // A carries by ID, under other names too; B has many units and no IDs; C is all global.
    const std::wstring strXml =
        LayoutXml(GlobalXml(L"g h") +
                  FrameXml(L"A", L"a b c",
                           {{L"S1", L"a=ID=1 b=ID=2 c g", L"m V a r;r H b q 0.25;q V c g"},
                            {L"S2", L"b=ID=2 d g h a=ID=1 b=ID=2", L"m H b r 0.25;r V d q;q H g s;s V h a"},
                            {L"S3", L"d=ID=2 c=ID=3 h n=ID=1", L""}},
                           UnitXml(L"d", UNIT_GUID, strNarrow) + UnitXml(L"n", UNIT_GUID, strOdd, 1)) +
                  FrameXml(L"B", L"a e f i j k",
                           {{L"T1", L"a e f i j k h", L"m V r s;r H a e;s H q f;q V t u;t H i j;u V k h"},
                            {L"T2", L"k=ID=9 g e=ID=8", L"m H k r;r V e none"}}) +
                  FrameXml(L"C", L"", {{L"W1", L"g h x", L"m V g h"}}));
    const GUID arrUnit[] = {GuidOf(UNIT_GUID)};
    const GUID arrHelper[] = {GuidOf(HELPER_GUID)};
    CRuntimeClass* arrUnitClass[] = {RUNTIME_CLASS(MonkeyUnit)};
    CRuntimeClass* arrHelperClass[] = {RUNTIME_CLASS(MonkeyHelper)};
    host.m_pMain->InitializeByDoc(host.m_pTemplate, strXml.c_str(), arrUnit, arrUnitClass, 1, arrHelper,
                                  arrHelperClass, 1);
}

} // namespace monkey
