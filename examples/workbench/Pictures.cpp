// Going through all frames and styles, the way that a user does: by the commands of the frames menu.
#include "Pictures.h"

#include "MainFrame.h"

#include <definition/FrameStyle.h>
#include <document/BaseFrameDoc.h>
#include <platform/display/Headless.h>
#include <platform/window/MessageLoop.h>

#include <iostream>
#include <system_error>

namespace {

/// "Figures and trend" becomes "figures-and-trend": letters and digits, a dash for each gap.
std::string FileNamePart(const CString& strName)
{
    std::string part;
    for (const char c : CString(strName).MakeLower().ToUtf8()) {
        const bool bKeep = (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
        if (bKeep)
            part += c;
        else if (!part.empty() && part.back() != '-')
            part += '-';
    }
    return part;
}

/// The menu command of a style: they are numbered through all frames.
UINT CommandOf(CMainFrame& frame, int nFrame, int nStyle)
{
    UINT nID = CBaseFrameWnd::ID_FRAME_FIRST;
    for (int n = 0; n < nFrame; ++n)
        nID += static_cast<UINT>(frame.GetBaseFrameDocs()[n]->m_arrStyle.GetSize());
    return nID + static_cast<UINT>(nStyle);
}

/// All frames are open in their first style, so that the tabs stand in the order of the layout definition.
void OpenAllFrames(CMainFrame& frame)
{
    for (int n = 0; n < frame.GetBaseFrameDocs().GetSize(); ++n)
        frame.OnOpenStyle(CommandOf(frame, n, 0));
}

} // namespace

std::string WritePictures(CMainFrame& frame, const std::filesystem::path& directory)
{
    std::error_code error;
    std::filesystem::create_directories(directory, error);
    if (error)
        return directory.string() + ": " + error.message();
    const splitframe::HeadlessDisplay* pDisplay = splitframe::CurrentHeadless();
    if (!pDisplay)
        return "pictures are taken of the headless display only";

    OpenAllFrames(frame);
    for (int nFrame = 0; nFrame < frame.GetBaseFrameDocs().GetSize(); ++nFrame) {
        const CBaseFrameDoc& doc = *frame.GetBaseFrameDocs()[nFrame];
        for (int nStyle = 0; nStyle < doc.m_arrStyle.GetSize(); ++nStyle) {
            const CString& strStyle = doc.m_arrStyle[nStyle]->m_strName;
            frame.OnOpenStyle(CommandOf(frame, nFrame, nStyle));
            splitframe::DrainMessages();
            const std::filesystem::path file =
                directory / (FileNamePart(doc.m_strName) + "-" + FileNamePart(strStyle) + ".png");
            const std::string reason = pDisplay->WritePng(file);
            if (!reason.empty())
                return file.string() + ": " + reason;
            std::cout << file.string() << "  " << doc.m_strName.ToUtf8() << " / " << strStyle.ToUtf8()
                      << std::endl;
        }
    }
    return {};
}
