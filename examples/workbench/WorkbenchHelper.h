// The helper of every frame of the workbench: the place where the units of a frame meet without knowing each
// other. It passes a selection on from the unit that made it to those that show it, has the banner show what
// is being watched, writes down in the journal what the user does, says which split lines may be dragged, and
// keeps a frame open whose form has changes that are not applied.
//
// A helper lives as long as its frame's definition: it remembers the selection while its frame is closed.
#pragma once

#include <document/BaseFrameHelper.h>

#include <vector>

class CPaneUnit;

class CWorkbenchHelper : public CBaseFrameHelper
{
    DECLARE_DYNCREATE(CWorkbenchHelper)

public:
    CWorkbenchHelper() = default;
    GUID GetGUID() override;

    void OnStyleInitial() override;
    void OnCalcWindowRect(LPRECT lpRect) override;
    void OnBaseUnitNotify(UINT nCode, LPARAM lParam) override;
    LRESULT ProcessMessage(DWORD nMsg, WPARAM wParam, LPARAM lParam) override;

private:
    void SelectInstrument(int nInstrument);
    void WatchInstrument(int nInstrument);
    int AcknowledgeAlarms();
    bool MayClose();
    void MoveFocus(bool bBack);
    std::vector<CPaneUnit*> GetPanesInSight();
    void PrepareUnits();
    void NoteFolded();
    void UpdateMovable();
    void TellUnit(const wchar_t* pszName, UINT nCmd, LPARAM lParam);
    void TellAllUnits(UINT nCmd, LPARAM lParam);

    int m_nInstrument = -1;           // selected; -1: nothing yet, units show what their parameters say
    int m_nWatched = -1;              // shown in the banner; -1: none
    std::vector<CString> m_arrFolded; // parts of the current style that the user has hidden, by name
};
