// The helper of every frame of the workbench: the place where the units of a frame meet without knowing each
// other. It passes a selection on from the unit that made it to those that show it, and writes down in the
// journal what the user does.
//
// A helper lives as long as its frame's definition: it remembers the selection while its frame is closed.
#pragma once

#include <document/BaseFrameHelper.h>

class CWorkbenchHelper : public CBaseFrameHelper
{
    DECLARE_DYNCREATE(CWorkbenchHelper)

public:
    CWorkbenchHelper() = default;
    GUID GetGUID() override;

    void OnStyleInitial() override;
    void OnBaseUnitNotify(UINT nCode, LPARAM lParam) override;
    LRESULT ProcessMessage(DWORD nMsg, WPARAM wParam, LPARAM lParam) override;

private:
    void SelectInstrument(int nInstrument);
    int AcknowledgeAlarms();
    void TellUnit(const wchar_t* pszName, UINT nCmd, LPARAM lParam);
    void TellAllUnits(UINT nCmd, LPARAM lParam);

    int m_nInstrument = -1; // selected; -1: nothing yet, units show what their parameters say
};
