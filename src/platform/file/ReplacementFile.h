// CReplacementFile: saving over a file without ever losing the old one.
#pragma once

#include "platform/file/File.h"

#include <string>

/// The next version of a file. It is written beside the old one and takes its place in one step, Commit(),
/// once all of it is on the disk: a crash, a full disk or a failure in between leaves the old file as it was.
/// A symbolic link stays one: what it points to is replaced. The permissions of the old file carry over. What
/// is no plain file (a device, a pipe) is written directly.
class SPLITFRAME_PLATFORM_API CReplacementFile : public CFile
{
    DECLARE_DYNAMIC(CReplacementFile)

public:
    CReplacementFile() = default;
    /// Gives up a version that was not committed.
    ~CReplacementFile() override;

    /// Begins a new version. @return false when the folder can not be written; see CFile::Open for pError
    bool Open(const wchar_t* pszFileName, CFileException* pError = nullptr);
    bool Open(const wchar_t* pszFileName, UINT nOpenFlags, CFileException* pError) = delete;

    /// Puts the new version in the place of the old one and closes the file.
    /// @throw CFileException when it can not be done; then the old file is as it was, the new version is gone
    void Commit();

    /// Gives the new version up.
    void Close() override;

private:
    bool OpenBeside(const std::string& target);

    std::string m_target; // the file to replace, links followed
    std::string m_beside; // where the new version is; empty: written directly
};
