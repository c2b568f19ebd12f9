// The docking toolkit's MDI main frame: an MDI main frame with a menu bar at the top, and below it a strip of
// tabs that names the open child frames and switches between them. Both bars are children of the main frame;
// the MDI client gets the rest. Each bar takes room only while it has something to show.
#pragma once

#include "platform/docview/MDIFrameWnd.h"

#include <memory>

class CMenu;
namespace splitframe {
class CMenuBar;
class CTabStrip;
} // namespace splitframe

class SPLITFRAME_PLATFORM_API CBCGPMDIFrameWnd : public CMDIFrameWnd
{
    DECLARE_DYNCREATE(CBCGPMDIFrameWnd)

public:
    CBCGPMDIFrameWnd();
    ~CBCGPMDIFrameWnd() override;

    /// Gives the menu bar its menu, before or after the window is created. The bar shows the menu's items and
    /// owns the menu: it is destroyed with the frame or when another one takes its place. Null: no menu bar.
    void SetMenuBar(HMENU hMenu);

    /// The same with a menu object, which loses its handle to the bar. Null: no menu bar.
    void SetMenuBar(CMenu* pMenu);

    /// Appends a popup menu to the menu bar, making the bar when there is none. The popup belongs to the
    /// bar's menu from then on: destroying it elsewhere removes the item.
    /// @param pszLabel  its text; "&" comes before the letter that is underlined, "&&" is an ampersand
    /// @return FALSE when hPopup is no menu
    BOOL AppendMenuBarPopup(HMENU hPopup, const wchar_t* pszLabel);

    /// The menu that the bar shows, or null. It stays the bar's.
    HMENU GetMenuBar() const;

    /// Lays the bars out and paints the menu bar anew after the host has changed items of its menu.
    void UpdateMenuBar();

    /// The bars, for hosts that place or test them; null before the window is created.
    CWnd* GetMenuBarWnd() const;
    CWnd* GetTabStripWnd() const;

    BOOL OnCreateClient(CREATESTRUCT* lpcs, CCreateContext* pContext) override;
    void OnChildFramesChanged() override;

protected:
    void LayoutBars(CRect& rcRoom) override;

    /// Hands Tab on to the active view, so that it moves between panes whichever window has the focus. No
    /// other key: those were offered to the view on their way here.
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    /// Alt, F10 and Alt with a letter lead into the menu bar.
    LRESULT OnSysCommand(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    HMENU m_hMenuBar = nullptr; // owned
    std::unique_ptr<splitframe::CMenuBar> m_pMenuBar;
    std::unique_ptr<splitframe::CTabStrip> m_pTabStrip;
};
