// What the benchmarks of frames share: a host on the headless display, and layouts of many units.
#pragma once

#include "document/BaseFrameDoc.h"
#include "document/BaseFrameView.h"
#include "frame/BaseFrameChildWnd.h"
#include "frame/BaseFrameWnd.h"
#include "platform/display/Headless.h"
#include "platform/docview/DocTemplate.h"
#include "platform/docview/WinApp.h"
#include "platform/window/MessageLoop.h"
#include "unit/BaseUnitWnd.h"

#include <memory>
#include <string>
#include <utility>

namespace bench {

inline const wchar_t* const UNIT_CLASS = L"6863074A-E996-4D17-A3AF-7FA2D093541B";
inline const wchar_t* const HELPER_CLASS = L"8B7ABE7C-D4E1-43B5-BC2E-A70713BCCAA9";

// A style of all units, in a balanced tree.
inline std::wstring StyleXml(const std::wstring& strName, int nUnits, bool bFirstHorizontal)
{
    std::wstring strXml = L"<STYLE><NAME>" + strName + L"</NAME>\n";
    for (int i = 0; i < nUnits; ++i)
        strXml += L"<BaseUnit NAME=\"Unit" + std::to_wstring(i) + L"\" PARAM=\"ID=" + std::to_wstring(i) +
                  L"\"/>\n";
    // A heap: line i over 2i + 1 and 2i + 2, of which those behind the last line are units.
    const auto side = [nUnits](int n) {
        return n < nUnits - 1 ? L"line" + std::to_wstring(n) : L"Unit" + std::to_wstring(n - (nUnits - 1));
    };
    for (int i = 0; i < nUnits - 1; ++i) {
        strXml += L"<SPLIT NAME=\"line" + std::to_wstring(i) + L"\" TYPE=\"" +
                  ((i % 2 == 0) == bFirstHorizontal ? L"H_LINE" : L"V_LINE") + L"\" MOBILE=\"1\" LEFT=\"" +
                  side(2 * i + 1) + L"\" RIGHT=\"" + side(2 * i + 2) + L"\" LRATE=\"0.5\"/>\n";
    }
    return strXml + L"</STYLE>\n";
}

// One frame with one or two styles.
inline std::wstring FrameXml(int nFrame, int nUnits, int nStyles = 1)
{
    const std::wstring strFrame = std::to_wstring(nFrame);
    std::wstring strXml = L"<BaseFrame><NAME>Frame" + strFrame + L"</NAME><HELPER><GUID>" + HELPER_CLASS +
                          L"</GUID></HELPER>\n";
    for (int i = 0; i < nUnits; ++i) {
        strXml +=
            L"<BaseUnit><NAME>Unit" + std::to_wstring(i) + L"</NAME><GUID>" + UNIT_CLASS +
            L"</GUID><LOCATION X=\"0\" Y=\"0\"/><SIZE CX=\"100\" CY=\"100\"/><BORDERSTYLE>2</BORDERSTYLE>"
            L"<LEFTRATE>0</LEFTRATE><TOPRATE>0</TOPRATE><RIGHTRATE>0</RIGHTRATE><BOTTOMRATE>0</BOTTOMRATE>"
            L"<HEIGHT MIN=\"10\" MAX=\"10000\"/></BaseUnit>\n";
    }
    for (int i = 0; i < nStyles; ++i)
        strXml += StyleXml(L"Style" + strFrame + L"-" + std::to_wstring(i), nUnits, i % 2 == 0);
    return strXml + L"</BaseFrame>\n";
}

inline std::wstring LayoutXml(int nFrames, int nUnits, int nStyles = 1)
{
    std::wstring strXml = L"<Layout>\n";
    for (int i = 0; i < nFrames; ++i)
        strXml += FrameXml(i, nUnits, nStyles);
    return strXml + L"</Layout>\n";
}

// One application with a main frame on a headless display of 1920 by 1080 pixels.
class FrameHost
{
public:
    FrameHost()
    {
        auto pDisplay = std::make_unique<splitframe::HeadlessDisplay>(1920, 1080);
        m_pDisplay = pDisplay.get();
        splitframe::SetDisplay(std::move(pDisplay));
        m_pTemplate = new CMultiDocTemplate(1, RUNTIME_CLASS(CBaseFrameDoc),
                                            RUNTIME_CLASS(CBaseFrameChildWnd), RUNTIME_CLASS(CBaseFrameView));
        m_app.AddDocTemplate(m_pTemplate);
        m_pMain = new CBaseFrameWnd;
        m_app.m_pMainWnd = m_pMain;
        m_pMain->LoadFrame(1);
        m_pMain->ActivateFrame(SW_SHOW);
        splitframe::DrainMessages();
    }
    FrameHost(const FrameHost&) = delete;
    FrameHost& operator=(const FrameHost&) = delete;
    ~FrameHost()
    {
        m_pMain->DestroyWindow();
        splitframe::DrainMessages();
    }

    /// Reads a layout whose units are of one class.
    void Load(CRuntimeClass* pClass, const std::wstring& strXml)
    {
        GUID guid = CBaseUnitWnd().GetGUID();
        m_pMain->InitializeByDoc(m_pTemplate, strXml.c_str(), &guid, &pClass, 1, nullptr, nullptr, 0);
    }
    /// Opens by the number of the menu command, and lets everything settle.
    void Open(int nCommand)
    {
        m_pMain->OnBaseFrameOpen(static_cast<UINT>(500 + nCommand));
        splitframe::DrainMessages();
    }
    void CloseActive()
    {
        m_pMain->GetActiveFrame()->SendMessage(WM_CLOSE);
        splitframe::DrainMessages();
    }

    CBaseFrameDoc* ActiveDoc()
    {
        return DynamicDownCast<CBaseFrameDoc>(m_pMain->GetActiveFrame()->GetActiveDocument());
    }
    splitframe::HeadlessDisplay& Display() { return *m_pDisplay; }

private:
    splitframe::HeadlessDisplay* m_pDisplay = nullptr;
    CWinApp m_app;
    CMultiDocTemplate* m_pTemplate = nullptr;
    CBaseFrameWnd* m_pMain = nullptr;
};

} // namespace bench
