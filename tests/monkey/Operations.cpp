// What the monkey can do.
#include "definition/UnitInfo.h"
#include "layout/SplitLine.h"
#include "monkey/Monkey.h"
#include "platform/window/WindowManager.h"
#include "unit/UnitMessages.h"

namespace monkey {

namespace {

template <class TYPE, std::size_t N> const TYPE& OneOf(Monkey& monkey, const TYPE (&arr)[N])
{
    return arr[monkey.Below(static_cast<unsigned>(N))];
}

void OpenByCommand(Monkey& monkey)
{
    monkey.Host().m_pMain->SendMessage(WM_COMMAND, 500 + monkey.Below(8));
}

void OpenByName(Monkey& monkey)
{
    monkey.Host().m_pMain->OnBaseFrameOpen(monkey.AnyName());
}

void OpenFromUnit(Monkey& monkey)
{
    if (CBaseUnitWnd* pUnit = monkey.AnyUnit())
        pUnit->OpenBaseFrame(monkey.AnyName());
}

void Close(Monkey& monkey)
{
    if (CBaseFrameDoc* pDoc = monkey.AnyDoc())
        pDoc->Close();
}

void DestroyFrame(Monkey& monkey)
{
    const CBaseFrameDoc* pDoc = monkey.AnyDoc();
    CFrameWnd* pFrame =
        pDoc && pDoc->m_pView && pDoc->m_pView->GetSafeHwnd() ? pDoc->m_pView->GetParentFrame() : nullptr;
    if (pFrame && pFrame != monkey.Host().m_pMain)
        pFrame->DestroyWindow();
}

void NextFrame(Monkey& monkey)
{
    monkey.Host().m_pMain->MDINext(monkey.Below(2) == 0);
}

void SwitchByIndex(Monkey& monkey)
{
    CBaseFrameDoc* pDoc = monkey.AnyDoc();
    const int nStyle = static_cast<int>(monkey.Below(3));
    if (pDoc && pDoc->m_pView && nStyle < pDoc->m_arrStyle.GetSize())
        pDoc->ChangeStyle(nStyle, monkey.Below(2) == 0);
}

void SwitchByName(Monkey& monkey)
{
    CBaseFrameDoc* pDoc = monkey.AnyDoc();
    if (pDoc && pDoc->m_pView)
        pDoc->ChangeStyle(monkey.AnyName());
}

void SelectUnit(Monkey& monkey)
{
    CBaseFrameDoc* pDoc = monkey.AnyDoc();
    if (pDoc && pDoc->GetBaseUnitWndCount() > 0)
        pDoc->SetCurrentBaseUnitWnd(
            static_cast<int>(monkey.Below(static_cast<unsigned>(pDoc->GetBaseUnitWndCount()))));
}

void PressKey(Monkey& monkey)
{
    static const UINT KEYS[] = {VK_TAB,  VK_TAB,     VK_ESCAPE, 'A',      VK_F10,
                                VK_MENU, VK_CONTROL, VK_LEFT,   VK_RETURN};
    const UINT nKey = OneOf(monkey, KEYS);
    monkey.Host().m_pDisplay->PressKey(nKey);
    if (monkey.Below(4) != 0)
        monkey.Host().m_pDisplay->ReleaseKey(nKey);
}

void TabInView(Monkey& monkey)
{
    if (CBaseFrameView* pView = monkey.Host().ActiveView())
        pView->SendMessage(WM_KEYDOWN, VK_TAB);
}

void MoveMouse(Monkey& monkey)
{
    const CPoint pt = monkey.AnyPoint();
    monkey.Host().m_pDisplay->MoveMouse(pt.x, pt.y);
}

void PressButton(Monkey& monkey)
{
    monkey.Host().m_pDisplay->AdvanceClock(monkey.Below(1000));
    monkey.Host().m_pDisplay->PressButton(monkey.Below(4) == 0 ? VK_RBUTTON : VK_LBUTTON);
}

void ReleaseButton(Monkey& monkey)
{
    monkey.Host().m_pDisplay->ReleaseButton(monkey.Below(4) == 0 ? VK_RBUTTON : VK_LBUTTON);
}

void Drag(Monkey& monkey)
{
    splitframe::HeadlessDisplay& display = *monkey.Host().m_pDisplay;
    const CPoint ptFrom = monkey.AnyPoint();
    display.MoveMouse(ptFrom.x, ptFrom.y);
    monkey.Host().Settle();
    display.PressButton(VK_LBUTTON);
    for (unsigned n = monkey.Below(4); n > 0; --n) {
        display.MoveMouse(static_cast<int>(monkey.Below(320)), static_cast<int>(monkey.Below(260)));
        monkey.Host().Settle();
    }
    if (monkey.Below(4) != 0)
        display.ReleaseButton(VK_LBUTTON);
    monkey.Host().Settle();
}

void Resize(Monkey& monkey)
{
    static const CSize SIZES[] = {{1, 1}, {300, 240}, {40, 400}, {500, 60}};
    CSize size = OneOf(monkey, SIZES);
    if (monkey.Below(3) == 0)
        size = CSize(static_cast<int>(monkey.Below(400)), static_cast<int>(monkey.Below(300)));
    if (monkey.Below(2) == 0)
        monkey.Host().m_pDisplay->Resize(size.cx + 1, size.cy + 1);
    else
        monkey.Host().m_pMain->MoveWindow(0, 0, size.cx, size.cy);
}

void ShowMain(Monkey& monkey)
{
    static const int COMMANDS[] = {SW_SHOW, SW_SHOW, SW_HIDE, SW_SHOWMINIMIZED, SW_RESTORE, SW_SHOWMAXIMIZED};
    monkey.Host().m_pMain->ShowWindow(OneOf(monkey, COMMANDS));
}

void ActivateApplication(Monkey& monkey)
{
    monkey.Host().m_pDisplay->Activate(monkey.Below(2) == 0);
}

void Post(Monkey& monkey)
{
    static const UINT MESSAGES[] = {UNIT_MSG_ENGINE_DATA, WM_PAINT,   WM_LBUTTONDOWN,
                                    WM_LBUTTONUP,         WM_KEYDOWN, WM_KEYUP,
                                    WM_MOUSEMOVE,         WM_SIZE,    WM_CLOSE};
    const CBaseUnitWnd* pUnit = monkey.AnyUnit();
    const UINT nMessage = OneOf(monkey, MESSAGES);
    if (pUnit)
        ::PostMessage(pUnit->GetSafeHwnd(), nMessage, monkey.Below(80),
                      static_cast<LPARAM>(monkey.Below(1U << 24)));
}

void Settle(Monkey& monkey)
{
    monkey.Host().Settle();
}

void LayOut(Monkey& monkey)
{
    CBaseFrameDoc* pDoc = monkey.AnyDoc();
    if (CBaseFrameChildWnd* pFrame = monkey.Host().ActiveFrame(); pFrame && monkey.Below(2) == 0)
        pFrame->RecalcLayout();
    else if (pDoc && pDoc->m_pRoot)
        pDoc->m_pRoot->ModifyWindow();
}

void SetShare(Monkey& monkey)
{
    if (CSplitLine::m_pRoot)
        CSplitLine::m_pRoot->ModifyWindow(monkey.AnyName(), monkey.Below(11) / 10.0);
}

void ReadShares(Monkey& monkey)
{
    if (CSplitLine::m_pRoot && monkey.Below(2) == 0)
        CSplitLine::m_pRoot->ReCalRate();
}

void Fix(Monkey& monkey)
{
    CBaseUnitWnd* pUnit = monkey.AnyUnit();
    if (pUnit && monkey.Below(2) == 0)
        pUnit->SetWidthFixed(monkey.Below(2) == 0);
    else if (pUnit)
        pUnit->SetHeightFixed(monkey.Below(2) == 0);
}

void Command(Monkey& monkey)
{
    static const UINT COMMANDS[] = {10, 16, 18, 40};
    const UINT nCommand = OneOf(monkey, COMMANDS);
    CBaseUnitWnd* pUnit = monkey.AnyUnit();
    if (pUnit && monkey.Below(2) == 0)
        pUnit->OnProcessCommand(nCommand, monkey.Below(2));
    else
        CBaseUnitWnd::BroadcastCommand(nCommand, monkey.Below(2));
}

void MakeBefore(Monkey& monkey)
{
    if (CBaseFrameDoc* pDefinition =
            monkey.Host().m_pMain->FindBaseFrameDoc(monkey.Below(2) == 0 ? L"A" : L"B"))
        pDefinition->CreateBaseUnitWnd(monkey.AnyName());
}

void DestroyUnitWindow(Monkey& monkey)
{
    if (CBaseUnitWnd* pUnit = monkey.AnyUnit())
        pUnit->DestroyWindow();
}

// A unit may be deleted at any time but while one of its own hooks runs.
void DeleteUnit(Monkey& monkey)
{
    CBaseUnitWnd* pUnit = monkey.AnyUnit();
    if (pUnit && !monkey.IsBusy(pUnit) && !monkey.Host().m_pMain->ListsGlobalUnit(pUnit))
        delete pUnit;
}

CSplitLine::DIRECT_VALUE AnyDirection(Monkey& monkey)
{
    return static_cast<CSplitLine::DIRECT_VALUE>(monkey.Below(4));
}

void HideOrShow(Monkey& monkey)
{
    CBaseUnitWnd* pUnit = monkey.AnyUnit();
    if (pUnit && monkey.Below(2) == 0)
        pUnit->HideShow(AnyDirection(monkey));
    else if (pUnit)
        pUnit->ProcessModifyWindow(AnyDirection(monkey), monkey.Below(3) != 0);
}

void ShareOfNeighbour(Monkey& monkey)
{
    if (CBaseUnitWnd* pUnit = monkey.AnyUnit())
        pUnit->ProcessModifyWindow(AnyDirection(monkey), monkey.Below(11) / 10.0);
}

void Replace(Monkey& monkey)
{
    CBaseUnitWnd* pUnit = monkey.AnyUnit();
    const CString strNew = monkey.AnyName();
    const CString strOld = monkey.AnyName();
    if (pUnit && monkey.Below(2) == 0)
        pUnit->ReplaceBaseUnit(strNew, strOld);
    else if (pUnit)
        pUnit->ReplaceBaseUnit(strNew, strOld, monkey.Below(2) == 0);
}

void EnableMove(Monkey& monkey)
{
    if (CSplitLine::m_pRoot)
        CSplitLine::m_pRoot->EnableMove(monkey.AnyName(), monkey.Below(3) != 0);
}

void Deactivate(Monkey& monkey)
{
    if (CBaseFrameDoc* pDoc = monkey.AnyDoc())
        pDoc->UnActive();
}

void ClearDefinition(Monkey& monkey)
{
    if (monkey.Below(40) == 0)
        monkey.Host().m_pMain->FindBaseFrameDoc(monkey.Below(2) == 0 ? L"A" : L"B")->Clear();
}

} // namespace

const std::vector<Operation>& Operations()
{
    static const std::vector<Operation> arrOperation = {
        {"open by command", 8, OpenByCommand},
        {"open by name", 5, OpenByName},
        {"open from a unit", 2, OpenFromUnit},
        {"close", 5, Close},
        {"destroy a frame", 2, DestroyFrame},
        {"next frame", 4, NextFrame},
        {"switch by index", 8, SwitchByIndex},
        {"switch by name", 4, SwitchByName},
        {"select a unit", 3, SelectUnit},
        {"press a key", 4, PressKey},
        {"Tab in the view", 4, TabInView},
        {"move the mouse", 4, MoveMouse},
        {"press a button", 3, PressButton},
        {"release a button", 3, ReleaseButton},
        {"drag", 8, Drag},
        {"resize", 3, Resize},
        {"show the main window", 2, ShowMain},
        {"activate the application", 2, ActivateApplication},
        {"post", 6, Post},
        {"settle", 6, Settle},
        {"lay out", 4, LayOut},
        {"set a share", 4, SetShare},
        {"read the shares", 2, ReadShares},
        {"fix a size", 2, Fix},
        {"hide or show", 5, HideOrShow},
        {"set a neighbour's share", 2, ShareOfNeighbour},
        {"replace", 5, Replace},
        {"let lines move", 3, EnableMove},
        {"command", 4, Command},
        {"make a unit before", 3, MakeBefore},
        {"destroy a unit's window", 2, DestroyUnitWindow},
        {"delete a unit", 2, DeleteUnit},
        {"deactivate", 2, Deactivate},
        {"clear a definition", 1, ClearDefinition},
    };
    return arrOperation;
}

} // namespace monkey
