// The shares of all lines of a layout: those that its file has, and those that dragging has made of them
// since. A style's records hold the present ones, so that a frame that is opened again, or goes back to a
// style, has them, too.
#pragma once

#include "platform/base/String.h"

#include <unordered_map>
#include <vector>

class CBaseFrameDoc;
class CBaseFrameWnd;
struct _SPLIT_INFO;

namespace viewer {

/// A line that has another share than in the file, by the positions of its frame and style in the layout. The
/// record says which line it is and holds the share.
struct ChangedRate
{
    int nFrame;
    int nStyle;
    const _SPLIT_INFO* pLine; // not owned
};

class LineRates
{
public:
    /// Takes the shares of a layout that has just been loaded, or saved, as those of its file.
    void TakeAsFile(const CBaseFrameWnd& main);

    /// Writes the shares of a frame's lines, which were computed from where the panes are, into the records,
    /// and into the lines what is in the records. A line that has not moved keeps its share to the last
    /// digit; one that has gets the plainest share that puts it at its pixel.
    /// @return whether any has moved
    bool Note(const CBaseFrameDoc& document);

    /// The lines that have another share than in the file, in the layout's order.
    std::vector<ChangedRate> ListChanged(const CBaseFrameWnd& main) const;

    // For a layout that takes another's place: a line that still has the name and the share that it had in
    // the file before keeps what dragging made of it.
    struct Carried
    {
        CString strFrame;
        CString strStyle;
        CString strLine;
        double dInFile;
        double dNow;
    };
    std::vector<Carried> Carry(const CBaseFrameWnd& main) const;
    static void Apply(const std::vector<Carried>& carried, CBaseFrameWnd& main);

private:
    std::unordered_map<const _SPLIT_INFO*, double> m_mapInFile;
};

} // namespace viewer
