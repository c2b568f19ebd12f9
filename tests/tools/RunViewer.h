// Running the viewer as its users do: a process, its exit status, what it prints, the files it leaves behind.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

struct Outcome
{
    int nStatus = -1; // -1: the process did not end by itself
    std::string strOut;
    std::string strErr;
};

/// A directory of its own in which the viewer runs; it goes with the object.
class Workplace
{
public:
    Workplace();
    ~Workplace();
    Workplace(const Workplace&) = delete;
    Workplace& operator=(const Workplace&) = delete;

    std::filesystem::path Path(const std::string& strName) const { return m_path / strName; }

    /// Writes a file. @return its name, for the command line
    std::string Write(const std::string& strName, std::string_view strBytes) const;

    /// Runs the viewer in this directory. Standard output goes to strOutFile where one is named.
    Outcome Run(std::vector<std::string> args, const std::string& strOutFile = {}) const;

private:
    std::filesystem::path m_path;
};

/// All bytes of a file.
std::string ReadBytes(const std::filesystem::path& file);

/// A picture read from a PNG file; 0 by 0 when there is none.
struct Picture
{
    int cx = 0;
    int cy = 0;
    std::vector<std::uint32_t> pixels; // 0xRRGGBB

    std::uint32_t At(int x, int y) const { return pixels[static_cast<std::size_t>(y * cx + x)]; }
    bool Has(std::uint32_t color) const;
};

Picture ReadPicture(const std::filesystem::path& file);
