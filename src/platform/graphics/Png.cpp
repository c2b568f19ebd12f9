// PNG files: the picture is made in memory first, so that only the writing itself can fail half-way.
#include "platform/graphics/Png.h"

#include <cairo.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <system_error>
#include <vector>

namespace splitframe {

namespace {

cairo_status_t Append(void* pTarget, const unsigned char* pBytes, unsigned int nCount)
{
    try {
        auto& bytes = *static_cast<std::vector<unsigned char>*>(pTarget);
        bytes.insert(bytes.end(), pBytes, pBytes + nCount);
        return CAIRO_STATUS_SUCCESS;
    } catch (const std::bad_alloc&) {
        return CAIRO_STATUS_NO_MEMORY;
    }
}

std::string Encode(const Surface& surface, std::vector<unsigned char>& bytes)
{
    // The library only reads the pixels here, though its interface takes them as writable.
    auto* pData = const_cast<unsigned char*>(reinterpret_cast<const unsigned char*>(surface.Row(0)));
    const std::unique_ptr<cairo_surface_t, void (*)(cairo_surface_t*)> pImage(
        cairo_image_surface_create_for_data(pData, CAIRO_FORMAT_RGB24, surface.DeviceWidth(),
                                            surface.DeviceHeight(), surface.DeviceWidth() * 4),
        &cairo_surface_destroy);
    const cairo_status_t status = cairo_surface_write_to_png_stream(pImage.get(), &Append, &bytes);
    return status == CAIRO_STATUS_SUCCESS ? std::string() : cairo_status_to_string(status);
}

std::string WriteBytes(std::FILE* pFile, const std::vector<unsigned char>& bytes)
{
    errno = 0;
    const bool bWritten = std::fwrite(bytes.data(), 1, bytes.size(), pFile) == bytes.size();
    int nError = bWritten ? 0 : errno;
    if (std::fclose(pFile) != 0 && nError == 0) // a full disk may show only here
        nError = errno;
    return bWritten && nError == 0 ? std::string() : std::strerror(nError);
}

} // namespace

std::string WritePng(const Surface& surface, const std::filesystem::path& file)
{
    if (surface.IsEmpty())
        return "the picture has no pixels";
    std::vector<unsigned char> bytes;
    if (std::string strReason = Encode(surface, bytes); !strReason.empty())
        return strReason;
    std::FILE* pFile = std::fopen(file.c_str(), "wb");
    if (!pFile)
        return std::strerror(errno);
    std::string strReason = WriteBytes(pFile, bytes);
    std::error_code error;
    if (!strReason.empty() && std::filesystem::is_regular_file(file, error))
        std::filesystem::remove(file, error);
    return strReason;
}

} // namespace splitframe
