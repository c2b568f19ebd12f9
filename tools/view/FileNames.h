// Names of the picture files. Frames and styles may be called anything; file names may not.
#pragma once

#include "platform/base/String.h"

#include <set>
#include <string>

namespace viewer {

/// A name as a part of a file name: separators, characters that file systems or shells take for something
/// else, white space and control characters become "_"; long names are cut; an empty name is "unnamed".
std::string FileNamePart(const CString& strName);

/// Hands out "FRAME-STYLE.png" names, never the same twice, also where a file system ignores case.
class PictureNames
{
public:
    std::string Next(const CString& strFrame, const CString& strStyle);

private:
    std::set<std::string> m_setTaken; // in lower case
};

} // namespace viewer
