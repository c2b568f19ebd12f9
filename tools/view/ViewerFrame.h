// The viewer's main window: loads a layout with placeholders for all classes, opens frames of it in any
// style, and gives their views the size that is asked for.
#pragma once

#include "frame/BaseFrameWnd.h"
#include "platform/base/Geometry.h"

#include <span>

class CBaseFrameDoc;
class CBaseFrameView;

class CViewerFrame : public CBaseFrameWnd
{
    DECLARE_DYNAMIC(CViewerFrame)

public:
    CViewerFrame();
    ~CViewerFrame() override;

    /// Loads a layout. Called after the window is created; before another time, ClearLayout.
    /// @param pTemplate  makes documents, child frames and views; not owned
    /// @param strText    the layout itself
    /// @param classes    every class GUID in it, of units and of helpers
    void LoadLayout(CMultiDocTemplate* pTemplate, const CString& strText, std::span<const GUID> classes);

    /// Opens a frame in a style, or switches the frame to it and brings it to the front. Positions count as
    /// in the layout.
    void ShowStyle(int nFrame, int nStyle);

    /// The same with a new document. Frames that are open are closed before, so that the panes are new and
    /// stand where the style puts them.
    /// @return the opened document, or null when the frame could not be made
    CBaseFrameDoc* OpenStyle(int nFrame, int nStyle);

    /// The document of the frame in front, or null.
    CBaseFrameDoc* FrontDocument() const;

    /// Closes every open frame.
    void CloseFrames();

    /// Makes this window and the display as large as it takes for the view to have this size.
    /// @return whether the view has it now
    bool FitView(const CBaseFrameView& view, CSize size);
};
