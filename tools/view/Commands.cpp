// The table of commands, and what is made of it.
#include "Commands.h"

#include <cstring>

namespace viewer {
namespace {

struct Command
{
    const char* pszMenu;
    const char* pszLabel; // null: a separator
    UINT nID;
    WORD nKey;  // 0: none
    BYTE fHeld; // FCONTROL, FSHIFT
};

constexpr WORD FunctionKey(int nKey)
{
    return static_cast<WORD>(VK_F1 + static_cast<UINT>(nKey) - 1);
}

constexpr Command kCommands[] = {
    {"File", "&Reload", ID_RELOAD, FunctionKey(5), 0},
    {"File", "&Save lines", ID_SAVE, 'S', FCONTROL},
    {"File", nullptr, 0, 0, 0},
    {"File", "&Close frame", ID_CLOSE_FRAME, 'W', FCONTROL},
    {"File", "E&xit", ID_EXIT, 'Q', FCONTROL},
    {"Panes", "Hide or show what is on the &left", ID_HIDE_LEFT, VK_LEFT, FCONTROL},
    {"Panes", "Hide or show what is on the &right", ID_HIDE_RIGHT, VK_RIGHT, FCONTROL},
    {"Panes", "Hide or show what is &above", ID_HIDE_ABOVE, VK_UP, FCONTROL},
    {"Panes", "Hide or show what is &below", ID_HIDE_BELOW, VK_DOWN, FCONTROL},
    {"Panes", "&Show all panes", ID_SHOW_ALL, '0', FCONTROL},
    {"Panes", nullptr, 0, 0, 0},
    {"Panes", "Loc&k lines", ID_LOCK_LINES, 'L', FCONTROL},
    {"Help", "&Print state", ID_PRINT_STATE, FunctionKey(12), 0},
    {"Help", "&Keys", ID_SHOW_KEYS, FunctionKey(1), 0},
};

// Styles with a key of their own: Ctrl+1 and so on.
constexpr int kStyleKeys = 9;

std::string KeyName(WORD nKey)
{
    if (nKey >= VK_F1 && nKey <= VK_F12)
        return "F" + std::to_string(nKey - VK_F1 + 1);
    switch (nKey) {
    case VK_LEFT:
        return "Left";
    case VK_RIGHT:
        return "Right";
    case VK_UP:
        return "Up";
    case VK_DOWN:
        return "Down";
    default:
        return std::string(1, static_cast<char>(nKey));
    }
}

std::string KeyText(const Command& command)
{
    std::string strText = (command.fHeld & FCONTROL) != 0 ? "Ctrl+" : "";
    strText += (command.fHeld & FSHIFT) != 0 ? "Shift+" : "";
    return strText + KeyName(command.nKey);
}

std::string WithoutMnemonic(std::string strLabel)
{
    std::erase(strLabel, '&');
    return strLabel;
}

} // namespace

HMENU MakeCommandMenu(const char* pszMenu)
{
    HMENU hMenu = ::CreatePopupMenu();
    for (const Command& command : kCommands) {
        if (std::strcmp(command.pszMenu, pszMenu) != 0)
            continue;
        CString strLabel(command.pszLabel);
        if (command.nKey != 0)
            strLabel += CString::FromUtf8("\t" + KeyText(command));
        ::AppendMenuW(hMenu, command.pszLabel ? MF_STRING : MF_SEPARATOR, command.nID, strLabel);
    }
    return hMenu;
}

CString StyleLabel(const CString& strName, int nStyle)
{
    CString strLabel;
    for (const wchar_t ch : strName.ToWide()) {
        if (ch == L'&')
            strLabel += ch; // doubled, it is no mnemonic
        strLabel += ch;
    }
    if (nStyle < kStyleKeys)
        strLabel.AppendFormat(L"\tCtrl+%d", nStyle + 1);
    return strLabel;
}

HACCEL MakeCommandKeys()
{
    std::vector<ACCEL> keys;
    for (const Command& command : kCommands)
        if (command.nKey != 0)
            keys.push_back(
                {static_cast<BYTE>(FVIRTKEY | command.fHeld), command.nKey, static_cast<WORD>(command.nID)});
    for (int nStyle = 0; nStyle < kStyleKeys; ++nStyle)
        keys.push_back({FVIRTKEY | FCONTROL, static_cast<WORD>('1' + nStyle),
                        static_cast<WORD>(ID_STYLE_FIRST + static_cast<UINT>(nStyle))});
    return ::CreateAcceleratorTable(keys.data(), static_cast<int>(keys.size()));
}

std::vector<KeyHelp> ListKeys()
{
    std::vector<KeyHelp> keys;
    for (const Command& command : kCommands)
        if (command.nKey != 0)
            keys.push_back({KeyText(command), WithoutMnemonic(command.pszLabel)});
    keys.push_back({"Ctrl+1 to 9", "Show a style of the frame in front"});
    keys.push_back({"Ctrl+Tab", "Go to the next frame"});
    keys.push_back({"Tab", "Go to the next pane"});
    return keys;
}

} // namespace viewer
