// Layout definition text from anywhere: it is read, every frame and style is opened on the headless display
// and closed again. Units and helpers are registered under the zero GUID, too, so that damaged GUIDs still
// make windows.
#include "document/BaseFrameDoc.h"
#include "document/BaseFrameHelper.h"
#include "document/BaseFrameView.h"
#include "frame/BaseFrameChildWnd.h"
#include "frame/BaseFrameWnd.h"
#include "layout/CheckTree.h"
#include "layout/SplitLine.h"
#include "platform/base/Exception.h"
#include "platform/display/Headless.h"
#include "platform/docview/DocTemplate.h"
#include "platform/docview/WinApp.h"
#include "platform/window/MessageLoop.h"
#include "unit/BaseUnitWnd.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace {

// Frames and units a text may make before the rest is left out: a run is about structure, not about size.
constexpr int MOST_COMMANDS = 12;
constexpr int MOST_UNITS = 60;

void RegisterOnce()
{
    static const int nDone = [] {
        GUID arrGuid[2] = {{}, CBaseUnitWnd().GetGUID()};
        CRuntimeClass* arrClass[2] = {RUNTIME_CLASS(CBaseUnitWnd), RUNTIME_CLASS(CBaseUnitWnd)};
        return CBaseFrameDoc::Initialize(arrGuid, arrClass, 2, nullptr, nullptr, 0);
    }();
    static_cast<void>(nDone);
}

void CheckActive(CBaseFrameWnd& main)
{
    auto* pFrame = DynamicDownCast<CBaseFrameChildWnd>(main.GetActiveFrame());
    const CBaseFrameDoc* pDoc = pFrame ? pFrame->GetFrameDoc() : nullptr;
    if (pDoc && pDoc->m_pRoot && !splitframe::CheckTree(*pDoc->m_pRoot).empty())
        std::abort();
}

// Where two frames have one name, a command may ask the open one for a style that only the other has.
void Open(CBaseFrameWnd& main, UINT nID)
{
    try {
        main.OnBaseFrameOpen(nID);
    } catch (CInvalidArgException* pException) {
        pException->Delete();
    }
}

void OpenAll(CBaseFrameWnd& main)
{
    for (UINT nID = 500; nID < 500 + MOST_COMMANDS; ++nID) {
        Open(main, nID);
        splitframe::DrainMessages();
        CheckActive(main);
    }
    while (main.GetActiveFrame() != &main) {
        main.GetActiveFrame()->SendMessage(WM_CLOSE);
        splitframe::DrainMessages();
        CheckActive(main);
    }
}

bool IsSmall(const CBaseFrameWnd& main)
{
    int nUnits = main.m_arrGlobalBaseUnitInfo.GetSize();
    for (CBaseFrameDoc* pDoc : main.m_arrBaseFrameDoc)
        nUnits += pDoc->GetBaseUnitInfoCount();
    return nUnits <= MOST_UNITS;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    RegisterOnce();
    splitframe::SetDisplay(std::make_unique<splitframe::HeadlessDisplay>(200, 150));
    {
        CWinApp app(L"Fuzz");
        auto* pTemplate =
            new CMultiDocTemplate(1, RUNTIME_CLASS(CBaseFrameDoc), RUNTIME_CLASS(CBaseFrameChildWnd),
                                  RUNTIME_CLASS(CBaseFrameView));
        app.AddDocTemplate(pTemplate);
        auto* pMain = new CBaseFrameWnd;
        app.m_pMainWnd = pMain;
        pMain->LoadFrame(1);
        pMain->ActivateFrame(SW_SHOW);
        const CString strText = CString::FromUtf8({reinterpret_cast<const char*>(pData), nSize});
        pMain->InitializeByDoc(pTemplate, strText);
        if (IsSmall(*pMain))
            OpenAll(*pMain);
        pMain->DestroyWindow();
        splitframe::DrainMessages();
    }
    splitframe::SetDisplay(nullptr);
    return 0;
}
