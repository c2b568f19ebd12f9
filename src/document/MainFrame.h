// Where documents, views and frames find the main frame: it is the application's main window.
#pragma once

class CBaseFrameWnd;

namespace splitframe {

/// Null while there is none, or when the application's main window is of another kind.
CBaseFrameWnd* FindMainFrame();

} // namespace splitframe
