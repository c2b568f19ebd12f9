// The main window: the menus and what their commands do. Frames, units and the frames menu come with the base
// class.
#pragma once

#include <frame/BaseFrameWnd.h>

class CMainFrame : public CBaseFrameWnd
{
    DECLARE_DYNAMIC(CMainFrame)

public:
    CMainFrame() = default;
    ~CMainFrame() override;

    /// Builds the menu bar. After the layout definition is loaded, whose frames it shows.
    void BuildMenus();

protected:
    void OnFileCloseFrame();
    void OnFileExit();
    void OnViewNextFrame();
    void OnViewPreviousFrame();
    void OnViewGrid();
    void OnViewLimits();
    void OnPlantPause();
    void OnPlantAcknowledge();
    void OnHelpAbout();

    void OnUpdateHasFrame(CCmdUI* pCmdUI);
    void OnUpdateGrid(CCmdUI* pCmdUI);
    void OnUpdateLimits(CCmdUI* pCmdUI);
    void OnUpdatePause(CCmdUI* pCmdUI);

    DECLARE_MESSAGE_MAP()

private:
    void ApplySettings(bool bGrid, bool bLimits);
    void BuildAccelerators();

    HACCEL m_hKeys = nullptr; // owned
};
