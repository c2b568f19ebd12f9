// The main window: the menus and what their commands do. Frames, units and the frames menu come with the base
// class.
#pragma once

#include "Settings.h"

#include <frame/BaseFrameWnd.h>

class CSettingsUnit;

class CMainFrame : public CBaseFrameWnd
{
    DECLARE_DYNAMIC(CMainFrame)

public:
    CMainFrame() = default;
    ~CMainFrame() override;

    /// Builds the menu bar. After the layout definition is loaded, whose frames it shows.
    void BuildMenus();
    /// The settings form, wherever it stands; null without one.
    CSettingsUnit* GetForm();

    using CBaseFrameWnd::OnBaseFrameOpen;
    /// A new or changed frame is laid out with the lines that may be dragged now.
    void OnOpenStyle(UINT nID);

    /// The pane with the keyboard comes first, so that menus, keys and context menus reach it all alike.
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    void OnFileCloseFrame();
    void OnFileExit();
    void OnViewNextFrame();
    void OnViewPreviousFrame();
    void OnViewGrid();
    void OnViewLimits();
    void OnViewLock();
    void OnViewFahrenheit();
    void OnViewSettings();
    void OnPlantPause();
    void OnPlantAcknowledge();
    void OnHelpKeys();
    void OnHelpAbout();
    void OnClose();

    void OnUpdateStyle(CCmdUI* pCmdUI);
    void OnUpdateNoPane(CCmdUI* pCmdUI);
    void OnUpdateHasFrame(CCmdUI* pCmdUI);
    void OnUpdateGrid(CCmdUI* pCmdUI);
    void OnUpdateLimits(CCmdUI* pCmdUI);
    void OnUpdateLock(CCmdUI* pCmdUI);
    void OnUpdateFahrenheit(CCmdUI* pCmdUI);
    void OnUpdatePause(CCmdUI* pCmdUI);
    void OnUpdateAcknowledge(CCmdUI* pCmdUI);

    DECLARE_MESSAGE_MAP()

private:
    void Toggle(bool Settings::*pFlag);
    void BuildAccelerators();

    HACCEL m_hKeys = nullptr; // owned
};
