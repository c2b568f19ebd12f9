// What frames cost, on the headless display: reading a definition of 100 frames with 20 units, opening a
// frame of many units with its first painting, and switching between two of 20 open frames.
#include "document/BaseFrameDoc.h"
#include "document/BaseFrameView.h"
#include "frame/BaseFrameChildWnd.h"
#include "frame/BaseFrameWnd.h"
#include "platform/display/Headless.h"
#include "platform/docview/DocTemplate.h"
#include "platform/docview/WinApp.h"
#include "platform/window/MessageLoop.h"
#include "unit/BaseUnitWnd.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <string>

namespace {

const wchar_t* const UNIT_CLASS = L"6863074A-E996-4D17-A3AF-7FA2D093541B";
const wchar_t* const HELPER_CLASS = L"8B7ABE7C-D4E1-43B5-BC2E-A70713BCCAA9";

// One frame; its units stand in a balanced tree.
std::wstring FrameXml(int nFrame, int nUnits)
{
    const std::wstring strFrame = std::to_wstring(nFrame);
    std::wstring strXml = L"<BaseFrame><NAME>Frame" + strFrame + L"</NAME><HELPER><GUID>" + HELPER_CLASS +
                          L"</GUID></HELPER>\n";
    std::wstring strStyle = L"<STYLE><NAME>Style" + strFrame + L"</NAME>\n";
    std::wstring strLines;
    for (int i = 0; i < nUnits; ++i) {
        const std::wstring strName = L"Unit" + std::to_wstring(i);
        strXml +=
            L"<BaseUnit><NAME>" + strName + L"</NAME><GUID>" + UNIT_CLASS +
            L"</GUID><LOCATION X=\"0\" Y=\"0\"/><SIZE CX=\"100\" CY=\"100\"/><BORDERSTYLE>2</BORDERSTYLE>"
            L"<LEFTRATE>0</LEFTRATE><TOPRATE>0</TOPRATE><RIGHTRATE>0</RIGHTRATE><BOTTOMRATE>0</BOTTOMRATE>"
            L"<HEIGHT MIN=\"10\" MAX=\"10000\"/></BaseUnit>\n";
        strStyle += L"<BaseUnit NAME=\"" + strName + L"\" PARAM=\"ID=" + std::to_wstring(i) + L"\"/>\n";
    }
    // A heap: line i over 2i + 1 and 2i + 2, of which those behind the last line are units.
    const auto side = [nUnits](int n) {
        return n < nUnits - 1 ? L"line" + std::to_wstring(n) : L"Unit" + std::to_wstring(n - (nUnits - 1));
    };
    for (int i = 0; i < nUnits - 1; ++i) {
        strLines += L"<SPLIT NAME=\"line" + std::to_wstring(i) + L"\" TYPE=\"" +
                    (i % 2 == 0 ? L"H_LINE" : L"V_LINE") + L"\" MOBILE=\"1\" LEFT=\"" + side(2 * i + 1) +
                    L"\" RIGHT=\"" + side(2 * i + 2) + L"\" LRATE=\"0.5\"/>\n";
    }
    return strXml + strStyle + strLines + L"</STYLE></BaseFrame>\n";
}

std::wstring LayoutXml(int nFrames, int nUnits)
{
    std::wstring strXml = L"<Layout>\n";
    for (int i = 0; i < nFrames; ++i)
        strXml += FrameXml(i, nUnits);
    return strXml + L"</Layout>\n";
}

class Host
{
public:
    Host()
    {
        splitframe::SetDisplay(std::make_unique<splitframe::HeadlessDisplay>(1920, 1080));
        m_pTemplate = new CMultiDocTemplate(1, RUNTIME_CLASS(CBaseFrameDoc),
                                            RUNTIME_CLASS(CBaseFrameChildWnd), RUNTIME_CLASS(CBaseFrameView));
        m_app.AddDocTemplate(m_pTemplate);
        m_pMain = new CBaseFrameWnd;
        m_app.m_pMainWnd = m_pMain;
        m_pMain->LoadFrame(1);
        m_pMain->ActivateFrame(SW_SHOW);
        splitframe::DrainMessages();
    }
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;
    ~Host()
    {
        m_pMain->DestroyWindow();
        splitframe::DrainMessages();
    }

    void Load(const std::wstring& strXml)
    {
        CBaseUnitWnd unit;
        GUID guid = unit.GetGUID();
        CRuntimeClass* pClass = RUNTIME_CLASS(CBaseUnitWnd);
        m_pMain->InitializeByDoc(m_pTemplate, strXml.c_str(), &guid, &pClass, 1, nullptr, nullptr, 0);
    }
    void Open(int nFrame)
    {
        m_pMain->OnBaseFrameOpen(static_cast<UINT>(500 + nFrame));
        splitframe::DrainMessages();
    }
    void CloseActive()
    {
        m_pMain->GetActiveFrame()->SendMessage(WM_CLOSE);
        splitframe::DrainMessages();
    }

private:
    CWinApp m_app;
    CMultiDocTemplate* m_pTemplate = nullptr;
    CBaseFrameWnd* m_pMain = nullptr;
};

void LoadDefinition(benchmark::State& state)
{
    const std::wstring strXml = LayoutXml(100, 20);
    for (auto _ : state) {
        Host host;
        host.Load(strXml);
    }
    state.counters["characters"] = static_cast<double>(strXml.size());
}

void OpenFrame(benchmark::State& state)
{
    Host host;
    host.Load(LayoutXml(1, static_cast<int>(state.range(0))));
    for (auto _ : state) {
        host.Open(0);
        state.PauseTiming();
        host.CloseActive();
        state.ResumeTiming();
    }
}

void SwitchFrames(benchmark::State& state)
{
    Host host;
    host.Load(LayoutXml(20, static_cast<int>(state.range(0))));
    for (int i = 0; i < 20; ++i)
        host.Open(i);
    int nNext = 0;
    for (auto _ : state) {
        host.Open(nNext);
        nNext = nNext == 0 ? 10 : 0;
    }
}

} // namespace

BENCHMARK(LoadDefinition)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenFrame)->Arg(20)->Arg(200)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(SwitchFrames)->Arg(20)->Arg(200)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
