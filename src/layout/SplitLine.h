// A node of a split tree: a line that cuts its rectangle in two, or the leaf that stands for a unit window.
// Knows the unit windows that are its leaves (a leaf is a unit: CBaseUnitWnd derives from CSplitLine, so the
// two headers name each other) and moves them by their handles; knows no view, document or frame. Trees may
// be very deep and their links contradictory: everything here is iterative, follows a side only when that
// side's parent link leads back, and treats any other side as an empty one, which counts as collapsed.
#pragma once

#include "layout/DragIndicator.h"
#include "layout/SplitLineLink.h"
#include "platform/base/Export.h"
#include "platform/base/Geometry.h"
#include "platform/base/String.h"

#include <cstdint>
#include <vector>

class CBaseUnitWnd;
class CWnd;

namespace splitframe {
class CLayoutPass;
class CNodeTable;
} // namespace splitframe

/// A node of a split tree. User-interface thread only. All rectangles are in client coordinates of the window
/// that holds the units (the view), all sizes in pixels; sums beyond 32 bits stop at the largest or smallest
/// int.
class SPLITFRAME_API CSplitLine
{
public:
    enum NodeType : int
    {
        NT_HLINE = 0, ///< a horizontal line: first side above, second below
        NT_VLINE = 1, ///< a vertical line: first side left, second right
        NT_UNIT = 2   ///< the leaf of a unit window
    };

    /// A direction seen from a node. The values index the unit's flags.
    enum DIRECT_VALUE : int
    {
        DV_RIGHT = 0,
        DV_LEFT = 1,
        DV_TOP = 2,
        DV_BOTTOM = 3
    };

    /// @param pHostWnd  the window that holds the units; not owned, may be null
    CSplitLine(NodeType nType, bool bMobile, CWnd* pHostWnd);
    /// A shallow copy: it refers to the same sides, but never deletes them, and dies without touching them.
    CSplitLine(const CSplitLine& other);
    /// Becomes a shallow copy; lines below that only this node owned are deleted first.
    CSplitLine& operator=(const CSplitLine& other);
    /// Deletes the lines below it, and no unit window. Every link that named this node becomes null, the
    /// active root included.
    virtual ~CSplitLine();

    /// Takes the unit windows out of the subtree: the sides that were units are empty afterwards. The units
    /// are not touched and keep their parent links until the line they lead to dies.
    void ReleaseWnd();

    NodeType GetNodeType() const { return m_nType; }
    /// Has neither side.
    bool IsLeaf() const { return !m_pFirst.Get() && !m_pSecond.Get(); }
    /// The unit window whose leaf this is; null for a line, and for a leaf whose unit is not there (any
    /// more).
    CBaseUnitWnd* GetUnitWnd() const { return m_pUnit; }
    /// This side belongs to the tree: it is set, and its parent link leads back here.
    bool Holds(const CSplitLine* pSide) const;

    // What the subtree needs at least and takes at most. A collapsed node needs and takes nothing. Units
    // count by their records; without a record they are free between 0 and 10000. Only the least height
    // counts visibility: a unit whose window is hidden needs no height but still its width.
    int GetMinWidth() const;
    int GetMinHeight() const;
    int GetMaxWidth() const;
    int GetMaxHeight() const;
    /// Its least and largest size are the same.
    bool IsWidthFixed() const;
    bool IsHeightFixed() const;

    /// The rectangle that the subtree's windows cover now, collapsed parts left out; empty when there is
    /// none.
    CRect GetViewRect() const;

    // Laying out. Hooks of the units run in between (activation, size and move handlers) and may do anything;
    // a tree that is deleted meanwhile is left alone from then on. What a hook throws goes to the caller.

    /// Lays the subtree out again where it is.
    void ModifyWindow();
    /// Lays the subtree out in a new rectangle: first the new top and bottom between the old left and right,
    /// then the whole rectangle. Writes each unit's rectangle into its record, shows and moves its window,
    /// and tells units that were not activated yet (ProcessActivate2). The last side is moved first.
    void ModifyWindow(CRect rc);
    /// Sets the share of one line and lays its sides out again where they are.
    /// @param strName  compared exactly; the first match in pre-order, this node included, is taken
    /// @param dRate    share of the first (left or upper) side in the free space; ignored when not finite
    /// @return the share before, or -1.0 when no node has that name; then nothing has changed
    double ModifyWindow(CString strName, double dRate);
    /// Recomputes the shares of the movable lines of the subtree from where the windows are. A line whose
    /// share can't be told (its part has no area, or nothing is free to divide) keeps it.
    void ReCalRate();

    // Dragging, with the mouse at points of the host window's client area. A line with a missing side can't
    // be dragged.

    /// The movable line whose grab band holds the point, or null. The band is the gap between the line's two
    /// sides, at least 4 pixels across. The first one in pre-order is taken.
    CSplitLine* HitTest(CPoint pt) const;
    /// The ends of the line: along the upper or left edge of its second side. @return false, and nothing is
    /// set, for a unit
    bool GetSplitLinePos(CPoint& ptFrom, CPoint& ptTo) const;
    /// Moves the indicator of the line to a point, or removes it at (-1, -1). A point that would leave less
    /// than its least size to a side is ignored: the indicator stays where it was. Moves no pane. The
    /// indicator goes with the line.
    void DrawSplitLineByPos(CPoint pt);
    /// Ends a drag: removes the indicator and lays the two sides out as divided at the point, or as near to
    /// it as their least sizes allow (the second side's first of all). Shares stay: see ReCalRate.
    void ModifyWindow(CPoint pt);
    /// Makes the line directly above a unit or line movable, or fixes it.
    /// @param strName  of the unit or line, compared exactly; the first match in pre-order is taken
    /// @return false, and nothing has changed, when nothing below this node has the name
    bool EnableMove(CString strName, bool bEnable);
    /// The same with the name of the line itself, which must have the side asked for.
    bool EnableMove(CString strName, bool bFirst, bool bEnable);

    // Editing. Only units below this node are found and replaced; names are compared exactly, the first match
    // in pre-order is taken, and a line where a unit is asked for is passed by.

    /// Puts a unit in the place of the one with that name: the new one takes its place, rectangle and
    /// collapse flag, is shown and told (ProcessActivate, ProcessActivate2), and the old one is hidden and
    /// told. Lays nothing out. The old unit is kept, in no tree, by whoever owns it. A new unit that stands
    /// elsewhere in the same tree changes places with the old one instead; both stay as they are.
    /// @param pNew  a child of the same window as the old one; not owned
    /// @return true also when the unit stands there already; false, and nothing has changed, when there is no
    /// such unit, pNew is null, or is a child of another window; false as well when a hook took the place
    bool Replace(CString strName, CBaseUnitWnd* pNew);
    /// The same for the name of a unit; the old one is hidden and told before the new one comes.
    bool Replace(CBaseUnitWnd* pOld, CBaseUnitWnd* pNew);
    /// The same for the unit on one side of the line with that name.
    bool Replace(CString strSplitName, bool bFirst, CBaseUnitWnd* pNew);
    /// The unit on one side of the line with that name, or null.
    CBaseUnitWnd* FindBaseUnitWnd(CString strSplitName, bool bFirst);

    NodeType m_nType;
    /// Where the drag indicator of this line was last drawn; (-1, -1): nowhere.
    CPoint m_ptIndicator;
    /// The upper or left side, and the lower or right one. Lines on a side are owned, units are not.
    splitframe::CSplitLineLink m_pFirst;
    splitframe::CSplitLineLink m_pSecond;
    /// The line that holds this node; null at the root.
    splitframe::CSplitLineLink m_pParent;
    /// The first side's share of what is free to divide.
    double m_dLRate;
    /// False: collapsed, all sizes count as 0.
    bool m_bShow;
    /// The user may drag this line, and its share follows the panes.
    bool m_bMobile;
    /// The window that holds the units. Not owned.
    CWnd* m_pHostWnd;
    /// The line's name, or the unit's.
    CString m_strName;

    /// The root of the active tree, shared by all frames; null when there is none. Becomes null when that
    /// root is deleted.
    static CSplitLine* m_pRoot;

protected:
    /// The node across the nearest line in the direction; null when no line above separates that way.
    CSplitLine* GetSplitLine(DIRECT_VALUE d) const;
    /// The name of that nearest line; empty when there is none.
    CString GetSplitName(DIRECT_VALUE d) const;

private:
    friend class CBaseUnitWnd;
    friend class splitframe::CSplitLineLink;
    friend class splitframe::CLayoutPass;
    friend class splitframe::CNodeTable;

    double GetLRate() const { return m_dLRate; }
    // The least size whatever is visible: lines of kind nAlong add their sides up, others take the larger.
    int GetMinWidth(NodeType nAlong) const;
    int GetMinHeight(NodeType nAlong) const;
    int GetWidthFixed() const;
    int GetHeightFixed() const;
    double GetWidthRate() const;
    double GetHeightRate() const;

    bool GetSplitLineRect(CRect& rc) const;
    void DrawIndicator(CPoint ptFrom, CPoint ptTo);

    static CRect MergeRect(CRect a, CRect b);
    // The pass (0 the first, 1 the second) makes no difference.
    void ModifyWindow2(CRect rc, NodeType nPass);
    void ModifyWindow(CRect rc, NodeType nPass) { ModifyWindow2(rc, nPass); }
    void ReCalRate(CRect rc) { ReCalRate2(rc); }
    // The rectangle makes no difference.
    void ReCalRate2(CRect rc);

    CSplitLine* FindDivider(DIRECT_VALUE d) const;
    bool MayDelete(const CSplitLine* pSide) const;
    void DeleteLines();
    void TakeLines(std::vector<splitframe::CSplitLineLink>& arrTaken);
    void DropLinks();

    // Set while the unit that this leaf belongs to lives.
    CBaseUnitWnd* m_pUnit = nullptr;
    // What m_ptIndicator tells of, on the screen.
    splitframe::CDragIndicator m_indicator;
    // All links that name this node.
    splitframe::CSplitLineLink* m_pLinks = nullptr;
    // The layout pass that divided this line last: none divides a line twice, however hooks relink the tree.
    std::uint64_t m_nLayoutPass = 0;
    // A copy refers to sides that the original owns.
    bool m_bOwnsSides = true;
};
