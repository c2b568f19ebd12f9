// Choosing by name, and what is said when a name leads nowhere.
#include "Selection.h"

#include "Printable.h"
#include "definition/FrameStyle.h"
#include "document/BaseFrameDoc.h"
#include "frame/BaseFrameWnd.h"

#include <algorithm>
#include <string>

namespace viewer {
namespace {

std::string Quote(const CString& strName)
{
    return "'" + Printable(strName) + "'";
}

// The known names, each once, as the end of a sentence.
std::string KnownNames(const std::vector<CString>& names)
{
    constexpr std::size_t kMost = 20;
    std::vector<std::string> quoted;
    for (const CString& strName : names)
        if (std::ranges::find(quoted, Quote(strName)) == quoted.end() && quoted.size() <= kMost)
            quoted.push_back(Quote(strName));
    if (quoted.empty())
        return "there is none";
    std::string strText = "there are: ";
    for (std::size_t nName = 0; nName < quoted.size(); ++nName)
        strText += (nName == 0 ? "" : ", ") + (nName < kMost ? quoted[nName] : "...");
    return strText;
}

bool IsWanted(const std::optional<std::string>& strWanted, const CString& strName)
{
    return !strWanted || CString::FromUtf8(*strWanted) == strName;
}

} // namespace

std::vector<int> ChooseFrames(const CBaseFrameWnd& frame, const Options& options, Messages& messages)
{
    const auto& documents = frame.GetBaseFrameDocs();
    std::vector<int> chosen;
    std::vector<CString> names;
    for (int nFrame = 0; nFrame < documents.GetSize(); ++nFrame) {
        names.push_back(documents[nFrame]->m_strName);
        if (IsWanted(options.strFrame, names.back()))
            chosen.push_back(nFrame);
    }
    if (chosen.empty() && options.strFrame)
        messages.Error("no frame " + Quote(CString::FromUtf8(*options.strFrame)) + "; " + KnownNames(names));
    return chosen;
}

std::vector<StyleChoice> ChooseStyles(const CBaseFrameWnd& frame, const std::vector<int>& frames,
                                      const Options& options, Messages& messages)
{
    std::vector<StyleChoice> chosen;
    std::vector<CString> names;
    for (const int nFrame : frames) {
        const CBaseFrameDoc& document = *frame.GetBaseFrameDocs()[nFrame];
        if (document.m_arrStyle.IsEmpty())
            messages.Warning("frame " + Quote(document.m_strName) + " has no style and can't be opened");
        for (int nStyle = 0; nStyle < document.m_arrStyle.GetSize(); ++nStyle) {
            names.push_back(document.m_arrStyle[nStyle]->m_strName);
            if (IsWanted(options.strStyle, names.back()))
                chosen.push_back({nFrame, nStyle});
        }
    }
    if (chosen.empty() && options.strStyle)
        messages.Error("no style " + Quote(CString::FromUtf8(*options.strStyle)) + "; " + KnownNames(names));
    return chosen;
}

} // namespace viewer
