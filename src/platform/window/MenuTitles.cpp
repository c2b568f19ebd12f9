#include "platform/window/MenuTitles.h"

#include "platform/window/MenuTracking.h"
#include "platform/window/Wnd.h"

namespace splitframe {

namespace {

int TitleCount(HWND hBar)
{
    const MenuTitles* pTitles = TitlesOf(hBar);
    return pTitles ? GetMenuItemCount(pTitles->GetTitlesMenu()) : 0;
}

} // namespace

MenuTitles* TitlesOf(HWND hBar)
{
    return dynamic_cast<MenuTitles*>(CWnd::FromHandle(hBar));
}

bool CanMarkTitle(HWND hBar, int nTitle)
{
    const MenuTitles* pTitles = TitlesOf(hBar);
    if (!pTitles || nTitle < 0 || pTitles->GetTitleRect(nTitle).IsRectEmpty())
        return false;
    const UINT nState = GetMenuState(pTitles->GetTitlesMenu(), static_cast<UINT>(nTitle), MF_BYPOSITION);
    return nState != 0xFFFFFFFF && (nState & (MF_GRAYED | MF_DISABLED)) == 0;
}

int NextTitle(HWND hBar, int nFrom, int nStep)
{
    const int nCount = TitleCount(hBar);
    int nTitle = nFrom;
    for (int n = 0; n < nCount; ++n) {
        nTitle = (nTitle + nStep + nCount) % nCount;
        if (CanMarkTitle(hBar, nTitle))
            return nTitle;
    }
    return -1;
}

int TitleAt(HWND hBar, CPoint ptScreen)
{
    for (int n = 0; n < TitleCount(hBar); ++n) {
        if (TitlesOf(hBar)->GetTitleRect(n).PtInRect(ptScreen))
            return n;
    }
    return -1;
}

std::vector<CString> TitleLabels(HWND hBar)
{
    std::vector<CString> arrLabel;
    for (int n = 0; n < TitleCount(hBar); ++n) {
        const HMENU hMenu = TitlesOf(hBar)->GetTitlesMenu();
        arrLabel.push_back(CanMarkTitle(hBar, n) ? GetMenuString(hMenu, static_cast<UINT>(n), MF_BYPOSITION)
                                                 : CString());
    }
    return arrLabel;
}

void TrackMenuBar(HWND hBar, int nTitle)
{
    MenuTracking::The().EnterBar(hBar, nTitle, true);
}

bool TrackMenuBarByKey(HWND hBar, wchar_t ch)
{
    return MenuTracking::The().EnterBarByKey(hBar, ch);
}

} // namespace splitframe
