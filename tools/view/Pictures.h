// Pictures of frames: where the files go, and the drawing of one frame after the other.
#pragma once

#include "FileNames.h"
#include "Messages.h"
#include "Options.h"
#include "Selection.h"

#include <filesystem>
#include <optional>
#include <vector>

class CBaseFrameDoc;
class CViewerFrame;

namespace viewer {

/// One file for the only picture, or a directory that gets named files.
struct PicturePlace
{
    std::filesystem::path path;
    bool bDirectory;
};

/// Where the pictures go by the command line; makes the directory.
/// @return nothing when that is impossible, which is told as an error
std::optional<PicturePlace> PreparePlace(const Options& options, Messages& messages);

class Pictures
{
public:
    Pictures(CViewerFrame& frame, Messages& messages, PicturePlace place, CSize size);

    /// Opens each style, writes its picture and prints the file's name; stops at a file that can't be
    /// written.
    /// @return false when anything failed, which is told as an error
    bool Write(const std::vector<StyleChoice>& choices);

private:
    bool WriteOne(const StyleChoice& choice);
    bool WriteView(const CBaseFrameDoc& document, const std::filesystem::path& file);

    CViewerFrame& m_frame;
    Messages& m_messages;
    PicturePlace m_place;
    CSize m_size;
    PictureNames m_names;
};

} // namespace viewer
