// The program, its twin, and comparing them.
#include "Session.h"

#include "platform/docking/MenuBar.h"
#include "platform/window/MessageLoop.h"
#include "platform/window/PopupMenu.h"

#include <unistd.h>

using splitframe::CMenuBar;
using splitframe::CPopupMenu;

namespace {

// A label without the mark of its mnemonic and without its shortcut.
CString Plain(const CString& strLabel)
{
    std::wstring text(strLabel.View().substr(0, strLabel.View().find(L'\t')));
    std::erase(text, L'&');
    return CString(text.c_str());
}

CMenuBar* FindMenuBar(CWnd& frame)
{
    for (HWND hEach = ::GetTopWindow(frame.m_hWnd); hEach; hEach = ::GetWindow(hEach, GW_HWNDNEXT)) {
        if (auto* pBar = dynamic_cast<CMenuBar*>(CWnd::FromHandle(hEach)))
            return pBar;
    }
    return nullptr;
}

// The innermost menu that is open, or null.
CPopupMenu* OpenMenu()
{
    return dynamic_cast<CPopupMenu*>(CWnd::FromHandle(::GetTopWindow(nullptr)));
}

} // namespace

Session::Session(std::vector<std::string> options)
    : m_recording(std::filesystem::temp_directory_path() /
                  ("splitframe-session-" + std::to_string(getpid()) + ".txt"))
{
    Frame().OnBaseFrameOpen(CBaseFrameWnd::ID_FRAME_FIRST);
    splitframe::DrainMessages();
    options.insert(options.begin(), {WORKBENCH_PROGRAM, "--still"});
    m_pProgram =
        std::make_unique<Child>(options, Child::Variables{{"DISPLAY", m_screen.Name()},
                                                          {"WAYLAND_DISPLAY", ""},
                                                          {"SPLITFRAME_DISPLAY", "sdl"},
                                                          {"SPLITFRAME_RECORD", m_recording.string()}});
    if (!m_screen.FindWindow("Pilot Plant Workbench"))
        throw std::runtime_error("the workbench shows no window");
    m_lines.open(m_recording);
    EXPECT_TRUE(Until([&] { return WasTold(" activate"); }));
}

Session::~Session()
{
    m_pProgram.reset();
    std::filesystem::remove(m_recording);
}

void Session::RepeatInput()
{
    m_lines.clear(); // the end that was met before may have moved
    for (int ch = m_lines.get(); ch != std::char_traits<char>::eof(); ch = m_lines.get()) {
        if (ch != '\n') {
            m_strLine += static_cast<char>(ch);
            continue;
        }
        EXPECT_TRUE(Display().Repeat(m_strLine)) << m_strLine;
        for (MSG msg{}; ::GetMessage(&msg);)
            splitframe::HandleMessage(&msg);
        m_strTold += m_strLine + '\n';
        m_strLine.clear();
    }
}

Picture Session::TwinPicture()
{
    const splitframe::Surface& shown = Display().Shown();
    Picture picture(shown.DeviceWidth(), shown.DeviceHeight());
    for (int y = 0; y < shown.DeviceHeight(); ++y) {
        for (int x = 0; x < shown.DeviceWidth(); ++x)
            picture.Set(x, y, shown.Row(y)[x] & 0xFFFFFFU);
    }
    return picture;
}

testing::AssertionResult Session::ShowsTheSame()
{
    std::size_t nDifferent = 0;
    if (Until([&] { return (nDifferent = m_screen.Take().CountDifferences(TwinPicture())) == 0; }))
        return testing::AssertionSuccess();
    Display().WritePng(m_recording.string() + ".png");
    return testing::AssertionFailure() << nDifferent << " pixels differ after\n"
                                       << m_strTold << "expected picture: " << m_recording << ".png";
}

CRect Session::RectOf(const CWnd& wnd)
{
    CRect rc;
    wnd.GetWindowRect(rc);
    return rc;
}

CPoint Session::MenuTitle(const wchar_t* pszText)
{
    const CMenuBar* pBar = FindMenuBar(Frame());
    for (int n = 0; pBar && n < pBar->GetItemCount(); ++n) {
        if (Plain(pBar->GetItemText(n)) != pszText)
            continue;
        CPoint pt = pBar->GetItemRect(n).CenterPoint();
        pBar->ClientToScreen(&pt);
        return pt;
    }
    throw std::runtime_error("no such menu: " + CString(pszText).ToUtf8());
}

void Session::GoToMenuLine(const wchar_t* pszText)
{
    MenuLine(pszText);
    const CPopupMenu* pMenu = OpenMenu();
    const std::vector<CString> labels = pMenu->GetLabels();
    const auto isThere = [&](int nLine) {
        return nLine >= 0 && Plain(labels[static_cast<std::size_t>(nLine)]) == pszText;
    };
    for (std::size_t n = 0; n < labels.size() && !isThere(pMenu->GetSelection()); ++n) {
        const int nBefore = pMenu->GetSelection();
        m_screen.Press("Down");
        ASSERT_TRUE(Until([&] { return pMenu->GetSelection() != nBefore; }));
    }
}

CPoint Session::MenuLine(const wchar_t* pszText)
{
    CPoint ptFound;
    const bool bFound = Until([&] {
        const CPopupMenu* pMenu = OpenMenu();
        const std::vector<CString> labels = pMenu ? pMenu->GetLabels() : std::vector<CString>();
        for (std::size_t n = 0; n < labels.size(); ++n) {
            if (Plain(labels[n]) != pszText)
                continue;
            ptFound = pMenu->GetLineRect(static_cast<int>(n)).CenterPoint();
            return true;
        }
        return false;
    });
    if (!bFound)
        throw std::runtime_error("no such line in a menu: " + CString(pszText).ToUtf8());
    return ptFound;
}

void Session::OpenInstruments()
{
    m_screen.Click(MenuTitle(L"Frames"));
    m_screen.Click(MenuLine(L"Instruments"));
    m_screen.Click(MenuLine(L"Table and details"));
    ASSERT_TRUE(Until([&] { return ActiveName() == L"Instruments"; }));
}
