// The layout file of the window: read anew when it has changed, and saved with the lines as they were
// dragged.
#include "ViewerWindow.h"

#include "Commands.h"
#include "LayoutSaving.h"
#include "OpenFrames.h"
#include "document/BaseFrameDoc.h"
#include "platform/docview/ScopedFlag.h"
#include "platform/window/MessageLoop.h"
#include "platform/window/WindowManager.h"

#include <filesystem>

using namespace viewer;

namespace {

constexpr UINT_PTR kWatchTimer = 1;
constexpr UINT kWatchInterval = 250; // milliseconds

CString Count(int nCount, const wchar_t* pszOne)
{
    CString strText;
    strText.Format(nCount == 1 ? L"%d %s" : L"%d %ss", nCount, pszOne);
    return strText;
}

bool IsMouseHeld()
{
    return ::GetKeyState(static_cast<int>(VK_LBUTTON)) < 0;
}

} // namespace

// --- reading

void CViewerWindow::WatchFile()
{
    SetTimer(kWatchTimer, kWatchInterval);
}

// While a line is dragged, a menu is open, or a question waits for its answer, the file can wait.
void CViewerWindow::OnTimer(UINT_PTR nIDEvent)
{
    if (nIDEvent != kWatchTimer)
        return CViewerFrame::OnTimer(nIDEvent);
    if (!m_bAsking && !IsMouseHeld() && !IsMenuOpen() && m_watch.HasSettledChange())
        Reload(KeepDragged::Yes);
}

void CViewerWindow::OnReload()
{
    if (!m_bUnsaved || Ask(L"Reload the layout file? Lines that were dragged and not saved go back to where "
                           L"the file has them.",
                           MB_YESNO) == IDYES)
        Reload(KeepDragged::No);
}

void CViewerWindow::LoadSource()
{
    LoadLayout(m_pTemplate, m_source.Get().GetText(), m_source.Get().GetClasses());
    m_watch.SetKnown(m_source.GetStamp());
    m_rates.TakeAsFile(*this);
    BuildMenuBar();
}

// A file that is broken leaves everything as it is; the error shows in the status line.
void CViewerWindow::Reload(KeepDragged keep)
{
    const bool bRead = m_source.Read();
    m_watch.SetKnown(m_source.GetStamp());
    if (!bRead)
        return;
    const std::vector<OpenFrame> frames = ListOpenFrames(*this);
    const std::vector<LineRates::Carried> carried = m_rates.Carry(*this);
    ClearLayout();
    LoadSource();
    if (keep == KeepDragged::Yes)
        LineRates::Apply(carried, *this);
    SetUnsaved(m_bUnsaved && !m_rates.ListChanged(*this).empty());
    Reopen(*this, frames);
    LockLines();
    TellLoaded(L"Reloaded");
}

void CViewerWindow::TellLoaded(const wchar_t* pszWhat)
{
    CString strText = CString(pszWhat) + L" " + Count(m_arrBaseFrameDoc.GetSize(), L"frame");
    if (const int nWarnings = m_messages.GetWarningCount(); nWarnings > 0)
        strText += L", " + Count(nWarnings, L"warning") + L" on standard error";
    m_status.ShowText(strText, false);
}

// --- saving

void CViewerWindow::LinesMayHaveMoved(const CBaseFrameDoc& document)
{
    if (m_rates.Note(document))
        SetUnsaved(m_strSaveTo != m_source.GetFile() || !m_rates.ListChanged(*this).empty());
}

void CViewerWindow::SetUnsaved(bool bUnsaved)
{
    m_bUnsaved = bUnsaved;
    const std::string strName = std::filesystem::path(m_source.GetFile()).filename().string();
    SetTitle(CString::FromUtf8(strName + (bUnsaved ? "*" : "")));
}

int CViewerWindow::Ask(const CString& strQuestion, UINT nType)
{
    const splitframe::ScopedFlag asking(m_bAsking);
    return ::AfxMessageBox(strQuestion, nType | MB_ICONQUESTION);
}

void CViewerWindow::OnSave()
{
    Save();
}

bool CViewerWindow::Save()
{
    const std::vector<ChangedRate> changed = m_rates.ListChanged(*this);
    const bool bOwnFile = m_strSaveTo == m_source.GetFile();
    if (bOwnFile && changed.empty()) {
        m_status.ShowText(L"There is nothing to save", false);
        SetUnsaved(false);
        return true;
    }
    if (bOwnFile && IsOther(m_strSaveTo, m_source.Get()) &&
        Ask(L"The layout file has changed on disk. Replace it with the layout shown here?", MB_YESNO) !=
            IDYES)
        return false;
    if (!SaveLayout(m_source.Get(), changed, m_strSaveTo, m_messages))
        return false;
    if (bOwnFile)
        TakeSaved();
    SetUnsaved(false);
    m_status.ShowText(L"Saved " + Count(static_cast<int>(changed.size()), L"line") + L" to " +
                          CString::FromUtf8(m_strSaveTo),
                      false);
    return true;
}

// What is shown is what the file has now.
void CViewerWindow::TakeSaved()
{
    if (m_source.Read())
        m_watch.SetKnown(m_source.GetStamp());
    m_rates.TakeAsFile(*this);
}

void CViewerWindow::OnUpdateSave(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(m_bUnsaved);
}

void CViewerWindow::OnClose()
{
    if (m_bUnsaved) {
        const int nAnswer = Ask(L"Save the lines that were dragged?", MB_YESNOCANCEL);
        if (nAnswer == IDCANCEL || (nAnswer == IDYES && !Save()))
            return;
    }
    CViewerFrame::OnClose();
}
