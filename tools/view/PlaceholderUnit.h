// The unit that stands in for every class of a layout file: it shows what the file says about it.
#pragma once

#include "PaneColors.h"
#include "PanePainter.h"
#include "unit/BaseUnitWnd.h"

#include <memory>

class CPlaceholderUnit : public CBaseUnitWnd
{
    DECLARE_DYNCREATE(CPlaceholderUnit)

public:
    CPlaceholderUnit();
    ~CPlaceholderUnit() override;

    /// The GUID of the unit's record, so that unit IDs work although all units are of one class.
    GUID GetGUID() override;
    BOOL Create(CWnd* pParent, CBaseUnitInfo* pInfo) override;
    /// Keeps the text as the file has it, too.
    BOOL Init(const wchar_t* pszParam) override;

    /// Hides the part of the frame beside this pane in a direction, or shows it again.
    /// @return whether there is a part
    bool ToggleSide(DIRECT_VALUE d);

protected:
    void CustomDraw(CPaintDC* pDC) override;
    void OnPaint();
    void OnSize(UINT nType, int cx, int cy);
    void OnMove(int x, int y);
    void OnSetFocus(CWnd* pOldWnd);
    void OnKillFocus(CWnd* pNewWnd);
    void OnLButtonDown(UINT nFlags, CPoint pt);

    DECLARE_MESSAGE_MAP()

private:
    viewer::PaneTexts Texts() const;
    bool ShowsFocus() const;

    std::shared_ptr<viewer::PanePainter> m_pPainter; // one for all units; it goes with the last of them
    viewer::PaneColors m_colors;
    CString m_strShownParam;
};
