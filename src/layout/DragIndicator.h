// The outline that shows where a dragged split line would go: a line over all windows, drawn on the screen by
// exclusive or. Drawing it again removes it, so what is removed is always what was drawn, wherever the panes
// and their window are by then.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/Geometry.h"

namespace splitframe {

/// At most one line on the screen; none is left behind when it ends. A copy shows nothing.
class SPLITFRAME_API CDragIndicator
{
public:
    CDragIndicator() = default;
    CDragIndicator(const CDragIndicator&) {}
    CDragIndicator& operator=(const CDragIndicator&) { return *this; }
    ~CDragIndicator() { Hide(); }

    /// Shows the line between two points of the screen, in place of the one before.
    void Show(const CPoint& ptFrom, const CPoint& ptTo);
    void Hide();

private:
    void Draw() const;

    bool m_bShown = false;
    CPoint m_ptFrom;
    CPoint m_ptTo;
};

} // namespace splitframe
