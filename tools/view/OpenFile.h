// Files of the operating system: open ones, and their names as wide text.
#pragma once

#include "platform/base/String.h"

#include <string>
#include <unistd.h>

namespace viewer {

/// An open file, closed at the end.
class Descriptor
{
public:
    explicit Descriptor(int nDescriptor) : m_nDescriptor(nDescriptor) {}
    ~Descriptor()
    {
        if (m_nDescriptor >= 0)
            ::close(m_nDescriptor);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int Get() const { return m_nDescriptor; }

private:
    int m_nDescriptor; // -1: none
};

/// Opens a file for reading, also one that would block. What came of it is in the descriptor and in errno.
int OpenToRead(const std::string& strFile);

/// A path as wide text. Paths are bytes; those that are not UTF-8 can't be said in it, but the open file has
/// a name that can.
CString WidePath(const std::string& strFile, int nDescriptor);

} // namespace viewer
