// What menu tracking asks of a menu bar: a row of titles that menus drop down from. The bar's window object
// is one; it is found by the window's handle each time, for it may be gone.
#pragma once

#include "platform/base/Geometry.h"
#include "platform/base/String.h"
#include "platform/window/Menu.h"

#include <vector>

namespace splitframe {

class MenuTitles
{
public:
    /// The menu whose items are the titles.
    virtual HMENU GetTitlesMenu() const = 0;
    /// Screen coordinates; empty when there is no such title.
    virtual CRect GetTitleRect(int nTitle) const = 0;
    /// Shows which title is marked, -1: none.
    virtual void MarkTitle(int nTitle) = 0;

protected:
    ~MenuTitles() = default;
};

/// The titles of a bar's window; null when it is gone, or no bar.
MenuTitles* TitlesOf(HWND hBar);
/// Whether there is such a title and it is enabled.
bool CanMarkTitle(HWND hBar, int nTitle);
/// The next one in a direction (1 or -1) that can be marked, going round; -1: none. nFrom may be -1.
int NextTitle(HWND hBar, int nFrom, int nStep);
/// -1: none.
int TitleAt(HWND hBar, CPoint ptScreen);
/// The labels, empty ones for titles that can not be marked.
std::vector<CString> TitleLabels(HWND hBar);

/// Starts menu tracking in a bar: marks a title and opens its menu. Nothing when a menu is tracked already.
SPLITFRAME_PLATFORM_API void TrackMenuBar(HWND hBar, int nTitle);
/// The same by key: 0 marks the first title, a letter chooses the title whose mnemonic it is.
/// @return whether a title was marked
SPLITFRAME_PLATFORM_API bool TrackMenuBarByKey(HWND hBar, wchar_t ch);

} // namespace splitframe
