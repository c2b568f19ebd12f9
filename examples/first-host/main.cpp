// A first host: one unit class, one frame, two panes with a movable line between them.
#include <Splitframe.h>
#include <platform/display/Headless.h>

#include <memory>

const GUID GREETING = {0x2F0E61D4, 0x8C1B, 0x4F7A, {0x90, 0x3D, 0x11, 0x5C, 0x7E, 0xA2, 0x64, 0x01}};

const wchar_t LAYOUT[] = LR"(<Layout><BaseFrame><NAME>Hello</NAME>
    <HELPER><GUID>8B7ABE7C-D4E1-43B5-BC2E-A70713BCCAA9</GUID></HELPER>
    <BaseUnit><NAME>left</NAME><GUID>2F0E61D4-8C1B-4F7A-903D-115C7EA26401</GUID>
        <LOCATION X="0" Y="0"/><SIZE CX="9" CY="9"/><BORDERSTYLE>2</BORDERSTYLE>
        <LEFTRATE>0</LEFTRATE><TOPRATE>0</TOPRATE><RIGHTRATE>1</RIGHTRATE><BOTTOMRATE>1</BOTTOMRATE></BaseUnit>
    <BaseUnit><NAME>right</NAME><GUID>2F0E61D4-8C1B-4F7A-903D-115C7EA26401</GUID>
        <LOCATION X="0" Y="0"/><SIZE CX="9" CY="9"/><BORDERSTYLE>2</BORDERSTYLE>
        <LEFTRATE>0</LEFTRATE><TOPRATE>0</TOPRATE><RIGHTRATE>1</RIGHTRATE><BOTTOMRATE>1</BOTTOMRATE></BaseUnit>
    <STYLE><NAME>Two panes</NAME>
        <BaseUnit NAME="left" PARAM="Good morning"/><BaseUnit NAME="right" PARAM="Good night"/>
        <SPLIT NAME="middle" TYPE="V_LINE" MOBILE="1" LEFT="left" RIGHT="right" LRATE="0.6"/></STYLE>
</BaseFrame></Layout>)";

class CGreetingUnit : public CBaseUnitWnd // a pane that shows its parameter
{
    DECLARE_DYNCREATE(CGreetingUnit)
    GUID GetGUID() override { return GREETING; }
    void CustomDraw(CPaintDC* pDC) override
    {
        CRect rc;
        GetClientRect(rc);
        pDC->FillSolidRect(rc, RGB(255, 250, 235));
        pDC->DrawText(m_strParam, rc, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    }
};
IMPLEMENT_DYNCREATE(CGreetingUnit, CBaseUnitWnd)

int main(int argc, char** argv)
{
    CWinApp app(L"First host");
    auto* pTemplate = new CMultiDocTemplate(1, RUNTIME_CLASS(CBaseFrameDoc),
                                            RUNTIME_CLASS(CBaseFrameChildWnd), RUNTIME_CLASS(CBaseFrameView));
    app.AddDocTemplate(pTemplate);
    auto* pMainFrame = new CBaseFrameWnd; // deletes itself when its window is closed
    app.m_pMainWnd = pMainFrame;
    pMainFrame->LoadFrame(1);
    // Classes are registered by an object each: it says its GUID and its class.
    CBaseFrameDoc::RegisterBaseWnd(std::make_unique<CGreetingUnit>().get());
    CBaseFrameDoc::RegisterBaseHelper(std::make_unique<CBaseFrameHelper>().get());
    pMainFrame->InitializeByDoc(pTemplate, LAYOUT);
    pMainFrame->ActivateFrame(SW_SHOW);
    pMainFrame->OnBaseFrameOpen(L"Hello");
    if (argc < 2)
        return app.Run();
    splitframe::DrainMessages(); // a path is given: paint, and save the picture
    const splitframe::HeadlessDisplay* pDisplay = splitframe::CurrentHeadless();
    const bool bSaved = pDisplay && pDisplay->WritePng(argv[1]).empty();
    pMainFrame->SendMessage(WM_CLOSE);
    return bSaved ? 0 : 1;
}
