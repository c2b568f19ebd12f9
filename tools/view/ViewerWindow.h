// The viewer's main window as a person uses it: menus, keys, a status line, and the layout file, which is
// read anew when it changes.
#pragma once

#include "FileWatch.h"
#include "LayoutSource.h"
#include "LineRates.h"
#include "Messages.h"
#include "Selection.h"
#include "StatusLine.h"
#include "ViewerFrame.h"

#include <string>
#include <vector>

class CPlaceholderUnit;

class CViewerWindow : public CViewerFrame
{
    DECLARE_DYNAMIC(CViewerWindow)

public:
    /// @param source     has read its file; outlives the window, as the messages do
    /// @param strSaveTo  the file that is saved to
    CViewerWindow(viewer::LayoutSource& source, std::string strSaveTo, viewer::Messages& messages);
    ~CViewerWindow() override;

    /// Loads the layout and makes the menus. After LoadFrame, once.
    void Start(CMultiDocTemplate* pTemplate);

    /// Opens styles, the first one in front, and looks after the file from then on.
    void Open(const std::vector<viewer::StyleChoice>& choices);

    /// Makes the window as large as it takes for the view of the frame in front to have a size.
    void FitFront(CSize size);

    /// Told when the shares of a frame's lines were computed from where the panes are.
    void LinesMayHaveMoved(const CBaseFrameDoc& document);

    /// Lines were dragged since they were saved.
    bool IsUnsaved() const { return m_bUnsaved; }

    const CStatusLine& GetStatusLine() const { return m_status; }

    BOOL OnCreateClient(CREATESTRUCT* lpcs, CCreateContext* pContext) override;
    void OnChildFramesChanged() override;

protected:
    void LayoutBars(CRect& rcRoom) override;

    void OnTimer(UINT_PTR nIDEvent);
    /// Asks what to do with lines that are not saved.
    void OnClose();
    void OnReload();
    void OnSave();
    void OnCloseFrame();
    void OnExit();
    void OnHide(UINT nID);
    void OnShowAll();
    void OnLockLines();
    void OnPrintState();
    void OnShowKeys();
    void OnStyle(UINT nID);
    void OnFrameCommand(UINT nID);
    void OnUpdateSave(CCmdUI* pCmdUI);
    void OnUpdateHasFrame(CCmdUI* pCmdUI);
    void OnUpdateLockLines(CCmdUI* pCmdUI);
    void OnUpdateStyle(CCmdUI* pCmdUI);

    DECLARE_MESSAGE_MAP()

private:
    CPlaceholderUnit* FocusedPane() const;
    int PositionOf(const CBaseFrameDoc& document) const;
    void BuildMenuBar();
    bool IsMenuOpen() const;
    void FillStyleMenu();
    void LockLines();

    enum class KeepDragged
    {
        No,
        Yes
    };
    void WatchFile();
    void LoadSource();
    void Reload(KeepDragged keep);
    void TellLoaded(const wchar_t* pszWhat);
    bool Save();
    void TakeSaved();
    void SetUnsaved(bool bUnsaved);
    int Ask(const CString& strQuestion, UINT nType);

    viewer::LayoutSource& m_source;
    std::string m_strSaveTo;
    viewer::Messages& m_messages;
    viewer::FileWatch m_watch;
    viewer::LineRates m_rates;
    CStatusLine m_status;
    CMultiDocTemplate* m_pTemplate = nullptr; // not owned
    HMENU m_hStyleMenu = nullptr;             // the menu bar's
    HACCEL m_hKeys = nullptr;                 // owned
    bool m_bLinesLocked = false;
    bool m_bUnsaved = false;
    bool m_bAsking = false; // a message box waits for its answer
};
