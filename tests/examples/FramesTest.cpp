// All frames and styles of the workbench: panes that fill their frame without gaps, fixed sizes, border lines
// where the panes end, something to see in every pane, at every size.
#include "Theme.h"
#include "Workbench.h"

#include "definition/FrameStyle.h"
#include "definition/UnitInfo.h"
#include "document/BaseFrameView.h"
#include "platform/window/MessageLoop.h"

#include <vector>

namespace {

struct Pane
{
    CBaseUnitWnd* pUnit;
    CRect rc; // view client coordinates
};

} // namespace

class FramesTest : public WorkbenchTest
{
protected:
    /// Shows a style freshly, whatever was open.
    CBaseFrameStyle* OpenStyle(int nFrame, int nStyle)
    {
        CBaseFrameStyle* pStyle = Frame().m_arrBaseFrameDoc[nFrame]->m_arrStyle[nStyle];
        if (ActiveDoc())
            ActiveDoc()->Close();
        Open(pStyle->m_strName);
        return pStyle;
    }

    std::vector<Pane> PanesOf(const CBaseFrameStyle& style)
    {
        std::vector<Pane> arrPane;
        for (const CBaseUnitInfo* pInfo : style.m_arrBaseUnitInfo) {
            CBaseUnitWnd* pUnit = FindUnit(pInfo->m_strName);
            if (!pUnit) {
                ADD_FAILURE() << "no unit " << pInfo->m_strName.ToUtf8();
                continue;
            }
            if (pUnit->CSplitLine::m_strName == L"History") { // waits to be swapped in
                EXPECT_FALSE(pUnit->IsWindowVisible());
                continue;
            }
            CRect rc;
            pUnit->GetWindowRect(rc);
            ActiveDoc()->m_pView->ScreenToClient(rc);
            arrPane.push_back({pUnit, rc});
        }
        return arrPane;
    }

    template <class Check> void ForEachStyle(Check check)
    {
        for (int nFrame = 0; nFrame < Frame().m_arrBaseFrameDoc.GetSize(); ++nFrame) {
            for (int nStyle = 0; nStyle < Frame().m_arrBaseFrameDoc[nFrame]->m_arrStyle.GetSize(); ++nStyle) {
                const CBaseFrameStyle* pStyle = OpenStyle(nFrame, nStyle);
                SCOPED_TRACE(pStyle->m_strName.ToUtf8());
                check(*pStyle);
            }
        }
    }
};

TEST_F(FramesTest, PanesOfSplitStylesFillTheViewWithoutGaps)
{
    ForEachStyle([this](const CBaseFrameStyle& style) {
        if (style.m_arrSplitInfo.IsEmpty())
            return;
        CRect rcView;
        ActiveDoc()->m_pView->GetClientRect(rcView);
        rcView.DeflateRect(0, 0, 2, 3); // the library leaves that free
        long long nArea = 0;
        CRect rcAll;
        for (const Pane& pane : PanesOf(style)) {
            nArea += static_cast<long long>(pane.rc.Width()) * pane.rc.Height();
            rcAll.UnionRect(CRect(rcAll), pane.rc);
        }
        EXPECT_EQ(rcAll, rcView);
        EXPECT_EQ(nArea, static_cast<long long>(rcView.Width()) * rcView.Height());
    });
}

TEST_F(FramesTest, FixedPanesKeepTheirSizes)
{
    ForEachStyle([this](const CBaseFrameStyle& style) {
        for (const Pane& pane : PanesOf(style)) {
            const CBaseUnitInfo& info = *pane.pUnit->m_pBaseUnitInfo;
            if (info.m_nMinHeight == info.m_nMaxHeight) {
                EXPECT_EQ(pane.rc.Height(), info.m_nMaxHeight) << info.m_strName.ToUtf8();
            }
            if (info.m_nMinWidth == info.m_nMaxWidth) {
                EXPECT_EQ(pane.rc.Width(), info.m_nMaxWidth) << info.m_strName.ToUtf8();
            }
        }
    });
}

TEST_F(FramesTest, BorderLinesStandOnPaneEdgesAndEveryPaneShowsSomething)
{
    ForEachStyle([this](const CBaseFrameStyle& style) {
        for (const Pane& pane : PanesOf(style)) {
            SCOPED_TRACE(pane.pUnit->m_pBaseUnitInfo->m_strName.ToUtf8());
            EXPECT_TRUE(pane.pUnit->IsWindowVisible());
            EXPECT_GE(CountColors(*pane.pUnit), 8);
            if (pane.pUnit->m_pBaseUnitInfo->m_nBorderStyle == 0)
                continue;
            const int nMiddle = pane.rc.Height() / 2, nRight = pane.rc.Width() - 1;
            EXPECT_EQ(Pixel(*pane.pUnit, {0, nMiddle}), theme::LINE);
            EXPECT_EQ(Pixel(*pane.pUnit, {nRight, nMiddle}), theme::LINE);
            EXPECT_EQ(Pixel(*pane.pUnit, {nRight / 2, 0}), theme::LINE);
            EXPECT_NE(Pixel(*pane.pUnit, {1, nMiddle}), theme::LINE);
        }
    });
}

TEST_F(FramesTest, AnySizeIsPainted)
{
    const SIZE sizes[] = {{640, 480}, {200, 900}, {1900, 160}, {90, 60}, {3, 3}, {0, 0}, {1280, 800}};
    ForEachStyle([this, &sizes](const CBaseFrameStyle&) {
        for (const SIZE& size : sizes) {
            Frame().MoveWindow(0, 0, size.cx, size.cy);
            splitframe::DrainMessages();
        }
    });
}
