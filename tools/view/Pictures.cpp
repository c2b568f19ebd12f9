// Pictures are cut out of what the headless display shows: the view's client area and nothing around it.
#include "Pictures.h"

#include "Printable.h"
#include "ViewerFrame.h"
#include "definition/FrameStyle.h"
#include "document/BaseFrameDoc.h"
#include "document/BaseFrameView.h"
#include "platform/display/Headless.h"
#include "platform/graphics/Png.h"
#include "platform/window/MessageLoop.h"

#include <cstdio>
#include <string_view>
#include <utility>

namespace viewer {
namespace {

namespace fs = std::filesystem;

bool EndsInPng(const std::string& strPath)
{
    std::string strEnd = fs::path(strPath).extension().string();
    for (char& ch : strEnd)
        ch = static_cast<char>(ch >= 'A' && ch <= 'Z' ? ch - 'A' + 'a' : ch);
    return strEnd == ".png";
}

// In the current directory: the layout's own may belong to somebody else.
std::string DefaultDirectory(const std::string& strFile)
{
    const std::string strStem = fs::path(strFile).stem().string();
    return (strStem.empty() ? "layout" : strStem) + "-view";
}

std::optional<PicturePlace> MakeDirectory(const fs::path& path, Messages& messages)
{
    std::error_code error;
    fs::create_directories(path, error);
    if (!error && !fs::is_directory(path, error) && !error)
        error = std::make_error_code(std::errc::not_a_directory);
    if (error) {
        messages.Failure(path.string() + ": can't be made a directory for pictures: " + error.message());
        return std::nullopt;
    }
    return PicturePlace{path, true};
}

std::string TitleOf(const CBaseFrameDoc& definition, const CBaseFrameStyle& style)
{
    return Printable(definition.m_strName) + ", " + Printable(style.m_strName);
}

} // namespace

std::optional<PicturePlace> PreparePlace(const Options& options, Messages& messages)
{
    std::error_code ignored;
    if (!options.strPng) {
        const std::string strDirectory = DefaultDirectory(options.strFile);
        messages.Note("there is no screen: pictures go to the directory " + strDirectory +
                      " (--png names another place)");
        return MakeDirectory(strDirectory, messages);
    }
    if (options.bAll || !EndsInPng(*options.strPng) || fs::is_directory(*options.strPng, ignored))
        return MakeDirectory(*options.strPng, messages);
    return PicturePlace{*options.strPng, false};
}

Pictures::Pictures(CViewerFrame& frame, Messages& messages, PicturePlace place, CSize size)
    : m_frame(frame), m_messages(messages), m_place(std::move(place)), m_size(size)
{
}

bool Pictures::Write(const std::vector<StyleChoice>& choices)
{
    const int nTotal = static_cast<int>(choices.size());
    for (int nDone = 0; nDone < nTotal; ++nDone) {
        const StyleChoice& choice = choices[static_cast<std::size_t>(nDone)];
        m_messages.Progress(nDone, nTotal, Printable(m_frame.GetBaseFrameDocs()[choice.nFrame]->m_strName));
        if (!WriteOne(choice))
            return false;
    }
    m_messages.Progress(nTotal, nTotal, {});
    return true;
}

bool Pictures::WriteOne(const StyleChoice& choice)
{
    const CBaseFrameDoc& definition = *m_frame.GetBaseFrameDocs()[choice.nFrame];
    const CBaseFrameStyle& style = *definition.m_arrStyle[choice.nStyle];
    fs::path file = m_place.path;
    if (m_place.bDirectory)
        file /= m_names.Next(definition.m_strName, style.m_strName);
    const CBaseFrameDoc* pDocument = m_frame.OpenStyle(choice.nFrame, choice.nStyle);
    if (!pDocument || !pDocument->m_pView) {
        m_messages.Failure(TitleOf(definition, style) + ": the frame can't be opened");
        return false;
    }
    if (!WriteView(*pDocument, file))
        return false;
    std::printf("%s\n", file.string().c_str());
    return true;
}

bool Pictures::WriteView(const CBaseFrameDoc& document, const fs::path& file)
{
    const CBaseFrameView& view = *document.m_pView;
    const splitframe::HeadlessDisplay* pDisplay = splitframe::CurrentHeadless();
    if (!pDisplay || !m_frame.FitView(view, m_size)) {
        m_messages.Failure(Printable(document.m_strName) +
                           ": the view can't be given the size of the picture");
        return false;
    }
    splitframe::DrainMessages();
    splitframe::PaintNow();
    CRect rcView;
    view.GetWindowRect(rcView);
    splitframe::Surface picture(m_size.cx, m_size.cy, pDisplay->Scale());
    picture.Copy(pDisplay->Shown(), rcView, {0, 0});
    const std::string strReason = splitframe::WritePng(picture, file);
    if (!strReason.empty())
        m_messages.Failure(file.string() + ": can't be written: " + strReason);
    return strReason.empty();
}

} // namespace viewer
