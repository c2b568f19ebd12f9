// Pictures of every frame in every style, as the headless display shows them.
#pragma once

#include <filesystem>
#include <string>

class CMainFrame;

/// Opens all frames, then brings each style of each frame to the front once and saves the whole main window
/// as "frame-style.png" in the directory, which is made if it is missing. Says on standard output which file
/// holds what.
/// @return empty, or why a picture could not be written
std::string WritePictures(CMainFrame& frame, const std::filesystem::path& directory);
