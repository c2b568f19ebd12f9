// Processes and PNG files for the tests of the viewer.
#include "RunViewer.h"

#include <algorithm>
#include <cairo.h>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <sys/wait.h>
#include <unistd.h>

std::string ReadBytes(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

namespace {

void Redirect(int nDescriptor, const std::string& strFile)
{
    const int nFile = ::open(strFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (nFile < 0 || ::dup2(nFile, nDescriptor) < 0)
        ::_exit(126);
}

} // namespace

Workplace::Workplace()
{
    std::string strName = (std::filesystem::temp_directory_path() / "splitframe-view-XXXXXX").string();
    m_path = ::mkdtemp(strName.data());
}

Workplace::~Workplace()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::string Workplace::Write(const std::string& strName, std::string_view strBytes) const
{
    std::ofstream(Path(strName), std::ios::binary) << strBytes;
    return strName;
}

Outcome Workplace::Run(std::vector<std::string> args, const std::string& strOutFile) const
{
    const std::string strOut = strOutFile.empty() ? Path(".out").string() : strOutFile;
    const std::string strErr = Path(".err").string();
    args.insert(args.begin(), VIEWER);
    std::vector<char*> argv;
    for (std::string& strArg : args)
        argv.push_back(strArg.data());
    argv.push_back(nullptr);

    const pid_t nChild = ::fork();
    if (nChild == 0) {
        Redirect(STDOUT_FILENO, strOut);
        Redirect(STDERR_FILENO, strErr);
        if (::chdir(m_path.c_str()) == 0)
            ::execv(VIEWER, argv.data());
        ::_exit(126);
    }
    int nStatus = 0;
    ::waitpid(nChild, &nStatus, 0);
    return {WIFEXITED(nStatus) ? WEXITSTATUS(nStatus) : -1, strOutFile.empty() ? ReadBytes(strOut) : "",
            ReadBytes(strErr)};
}

bool Picture::Has(std::uint32_t color) const
{
    return std::ranges::find(pixels, color) != pixels.end();
}

Picture ReadPicture(const std::filesystem::path& file)
{
    Picture picture;
    cairo_surface_t* pSurface = cairo_image_surface_create_from_png(file.c_str());
    if (cairo_surface_status(pSurface) == CAIRO_STATUS_SUCCESS) {
        picture.cx = cairo_image_surface_get_width(pSurface);
        picture.cy = cairo_image_surface_get_height(pSurface);
        const unsigned char* pRow = cairo_image_surface_get_data(pSurface);
        for (int y = 0; y < picture.cy; ++y, pRow += cairo_image_surface_get_stride(pSurface))
            for (int x = 0; x < picture.cx; ++x)
                picture.pixels.push_back(reinterpret_cast<const std::uint32_t*>(pRow)[x] & 0xFFFFFF);
    }
    cairo_surface_destroy(pSurface);
    return picture;
}
