// Names of the picture files: which characters stay, where long names are cut, what makes names differ.
#include "FileNames.h"

#include "platform/base/Unicode.h"

#include <string_view>

namespace viewer {
namespace {

// Two parts, a number and the ending stay below the 255 bytes that file systems allow.
constexpr std::size_t kMaxPartBytes = 100;

bool IsSafe(wchar_t ch)
{
    constexpr std::wstring_view kUnsafe = L"/\\:*?\"<>|'`$&;!#%~(){}[]^=+,@";
    const auto nCode = static_cast<char32_t>(ch);
    const bool bControl = nCode <= 0x20 || (nCode >= 0x7F && nCode <= 0xA0);
    const bool bSeparator = (nCode >= 0x2000 && nCode <= 0x206F) || nCode == 0x3000 || nCode == 0xFEFF;
    const bool bLoneSurrogate = nCode >= 0xD800 && nCode <= 0xDFFF;
    return !bControl && !bSeparator && !bLoneSurrogate && kUnsafe.find(ch) == std::wstring_view::npos;
}

std::string LowerAscii(std::string strText)
{
    for (char& ch : strText)
        if (ch >= 'A' && ch <= 'Z')
            ch = static_cast<char>(ch - 'A' + 'a');
    return strText;
}

} // namespace

std::string FileNamePart(const CString& strName)
{
    std::string strPart;
    for (const wchar_t ch : strName.ToWide()) {
        const std::string strChar = IsSafe(ch) ? splitframe::EncodeUtf8({&ch, 1}) : "_";
        if (strPart.size() + strChar.size() > kMaxPartBytes)
            break;
        strPart += strChar;
    }
    if (strPart.empty())
        return "unnamed";
    // A leading dot hides a file, a leading dash looks like an option.
    if (strPart.front() == '.' || strPart.front() == '-')
        strPart.front() = '_';
    return strPart;
}

std::string PictureNames::Next(const CString& strFrame, const CString& strStyle)
{
    const std::string strStem = FileNamePart(strFrame) + "-" + FileNamePart(strStyle);
    std::string strName = strStem + ".png";
    for (int nTry = 2; !m_setTaken.insert(LowerAscii(strName)).second; ++nTry)
        strName = strStem + "-" + std::to_string(nTry) + ".png";
    return strName;
}

} // namespace viewer
