// The window of one open menu: its lines one below the other, scrolled when there are more than the display
// can show. Draws, measures and finds lines; what the user does is menu tracking's business. Reads the menu
// once, when it is opened.
#pragma once

#include "platform/window/Wnd.h"

#include <vector>

namespace splitframe {

/// Where a menu opens beside its anchor when there is room; else on the other side, else as near as it goes.
enum class PopupSide
{
    Below,  ///< under a title, left edges in line
    Beside, ///< at the right of an item, upper edges in line
    AtPoint ///< right and below
};

class SPLITFRAME_PLATFORM_API CPopupMenu : public CWnd
{
    DECLARE_DYNAMIC(CPopupMenu)

public:
    CPopupMenu();
    ~CPopupMenu() override;

    /// Shows the menu above all windows, inside the display. Activates nothing.
    /// @param rcAnchor  what it opens beside, screen coordinates
    /// @param nAlign    TPM_ bits: how the menu stands to a point
    /// @return FALSE, and nothing is shown, for an empty menu
    BOOL Open(HWND hOwner, HMENU hShown, const CRect& rcAnchor, PopupSide side, UINT nAlign);

    HMENU GetShownMenu() const { return m_hShown; }
    int GetLineCount() const { return static_cast<int>(m_arrLine.size()); }
    /// Screen coordinates; of a line that is scrolled out only what can be seen of it.
    CRect GetLineRect(int nLine) const;
    /// The line at a point of the screen, also a separator or a disabled one; -1 if there is none.
    int LineAt(CPoint ptScreen) const;
    /// The labels of the lines that can be chosen, empty ones for the others.
    std::vector<CString> GetLabels() const;
    UINT GetCommand(int nLine) const;

    /// Neither a separator nor disabled; no for a line that is out of range.
    bool CanChoose(int nLine) const;
    int GetSelection() const { return m_nSelection; }
    /// Marks a line and scrolls it into view; one that can not be chosen, and -1: none is marked.
    void Select(int nLine);
    /// The next line in a direction (1 or -1) that can be chosen, going round; -1 when there is none.
    int Next(int nFrom, int nStep) const;

    /// The direction in which the menu scrolls while the pointer is there: -1 up, 1 down, 0 not at all.
    int ScrollDirection(CPoint ptScreen) const;
    /// Scrolls by lines, down when positive.
    void Scroll(int nLines);

protected:
    void OnPaint();
    BOOL OnEraseBkgnd(CDC* pDC);

    DECLARE_MESSAGE_MAP()

private:
    struct Line
    {
        CString strLabel;
        CString strShortcut;
        UINT nFlags;
        UINT nID;
        bool bSeparator;
        int nTop; // from the first line's top
        int nHeight;
    };

    void ReadLines();
    CSize WantedSize() const;
    int ContentHeight() const;
    bool IsScrolled() const;
    CRect LinesRect() const;
    CRect RectOf(const Line& line) const;
    void ScrollTo(int nTop);
    void DrawLine(CDC& dc, const Line& line, bool bSelected) const;
    void DrawScrollMarks(CDC& dc) const;

    HMENU m_hShown = nullptr; // not owned
    std::vector<Line> m_arrLine;
    int m_nSelection = -1;
    int m_nScroll = 0; // pixels of the lines above the upper edge
};

} // namespace splitframe
