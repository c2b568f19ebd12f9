// The commands of the viewer's window. One table says for each where it stands in the menus, what it is
// called and which key it has; menus, accelerators and the list of keys are made from it, so that they agree.
#pragma once

#include "platform/docview/Accelerator.h"
#include "platform/window/Menu.h"

#include <string>
#include <vector>

namespace viewer {

enum CommandID : UINT
{
    ID_RELOAD = 2000,
    ID_SAVE,
    ID_CLOSE_FRAME,
    ID_EXIT,
    // In the order of CSplitLine::DIRECT_VALUE.
    ID_HIDE_RIGHT,
    ID_HIDE_LEFT,
    ID_HIDE_ABOVE,
    ID_HIDE_BELOW,
    ID_SHOW_ALL,
    ID_LOCK_LINES,
    ID_PRINT_STATE,
    ID_SHOW_KEYS,
    // One for each style of the frame in front, as they stand in the layout.
    ID_STYLE_FIRST = 3000,
    ID_STYLE_LAST = 3999
};

/// A menu with the commands of that name in the table, in its order. The caller owns it.
HMENU MakeCommandMenu(const char* pszMenu);

/// The label of a style in the style menu: its name and, for the first ones, its key.
CString StyleLabel(const CString& strName, int nStyle);

/// The keys of all commands. The caller destroys it.
HACCEL MakeCommandKeys();

/// Each key, and what it does.
struct KeyHelp
{
    std::string strKey;
    std::string strEffect;
};
std::vector<KeyHelp> ListKeys();

} // namespace viewer
