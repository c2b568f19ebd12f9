// A folder of its own for a test that needs files; it is gone when the test ends.
#pragma once

#include "platform/base/String.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <string_view>

namespace test {

class TempFolder
{
public:
    TempFolder()
    {
        std::string name = std::filesystem::temp_directory_path() / "splitframe-test-XXXXXX";
        m_folder = mkdtemp(name.data());
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() { std::filesystem::remove_all(m_folder); }

    CString Path(const char* pszName) const { return CString((m_folder / pszName).c_str()); }
    void Write(const char* pszName, std::string_view bytes) const
    {
        std::ofstream(m_folder / pszName, std::ios::binary)
            .write(bytes.data(), static_cast<long>(bytes.size()));
    }
    std::string Read(const char* pszName) const
    {
        std::ifstream file(m_folder / pszName, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    /// "a b ": what the folder holds, hidden files included, in the order of the names.
    std::string Names() const
    {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_folder))
            names.insert(entry.path().filename());
        std::string all;
        for (const std::string& name : names)
            all += name + " ";
        return all;
    }

    std::filesystem::path m_folder;
};

} // namespace test
