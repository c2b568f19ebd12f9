// A person's session: the workbench in a real window, and its twin on the headless display in this process,
// which repeats whatever input the window had. The twin knows where things are; both must show the same.
#pragma once

#include "Monitor.h"
#include "Wait.h"
#include "examples/Workbench.h"

#include <filesystem>
#include <fstream>

class Session : public WorkbenchTest
{
protected:
    /// @param options  further arguments of the program
    explicit Session(std::vector<std::string> options = {});
    ~Session() override;

    /// Waits until the window shows what the twin does after the same input.
    testing::AssertionResult ShowsTheSame();
    /// Waits until something holds; the twin has had all input that the program has whenever it is asked.
    template <class Condition> bool Until(Condition&& condition)
    {
        return WaitUntil([&] {
            RepeatInput();
            return condition();
        });
    }
    /// Where something of the twin is in the window.
    CRect RectOf(const CWnd& wnd);
    CRect RectOf(const wchar_t* pszUnit) { return RectOf(Unit<CBaseUnitWnd>(pszUnit)); }
    /// The middle of a title of the menu bar, and of a line of the menu that is open; waits for it.
    CPoint MenuTitle(const wchar_t* pszText);
    CPoint MenuLine(const wchar_t* pszText);
    /// Goes down in the open menu to a line, by keys.
    void GoToMenuLine(const wchar_t* pszText);
    /// Opens the frame of the tests by its menu.
    void OpenInstruments();
    bool WasTold(const std::string& strInput) const { return m_strTold.find(strInput) != std::string::npos; }

    Monitor m_screen;
    std::filesystem::path m_recording;
    std::unique_ptr<Child> m_pProgram;

private:
    void RepeatInput();
    Picture TwinPicture();

    std::ifstream m_lines;
    std::string m_strLine; // read so far
    std::string m_strTold; // all lines
};
