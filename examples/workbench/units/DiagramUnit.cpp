// The drawing of the plant.
#include "units/DiagramUnit.h"

#include "Application.h"
#include "ClassTables.h"
#include "Commands.h"

#include <algorithm>
#include <initializer_list>
#include <vector>

namespace {

constexpr int DRAWING_WIDTH = 760;
constexpr int DRAWING_HEIGHT = 380;

constexpr CRect FEED_TANK = {30, 60, 130, 220};
constexpr CRect REACTOR = {290, 70, 450, 300};
constexpr CRect HARVEST_TANK = {630, 170, 740, 330};
constexpr int LABEL_WIDTH = 92; // pixels of the pane: labels keep their size
constexpr int LABEL_HEIGHT = 20;
constexpr int STREAM_WIDTH = 100;

/// Where a value stands: the middle of its label, and the point where it is measured if a line leads there.
struct Label
{
    int nInstrument;
    int x;
    int y;
    int xTo = 0; // 0: the label stands on the spot
    int yTo = 0;
    const wchar_t* pszOf = L""; // what is measured, where place and unit do not tell
};

constexpr Label LABELS[] = {
    {7, 222, 122},                // feed flow
    {8, 80, 140},                 // feed tank level
    {0, 370, 176},                // reactor temperature
    {3, 370, 206},                // pH
    {4, 370, 236, 0, 0, L"O₂ "},  // oxygen
    {2, 540, 100, 440, 100},      // pressure
    {11, 600, 40, 0, 0, L"CO₂ "}, // carbon dioxide
    {5, 370, 20},                 // stirrer
    {10, 150, 356},               // air
    {12, 150, 298},               // cooling water flow
    {1, 222, 210, 284, 210},      // jacket
    {14, 540, 238},               // cooling water out
    {16, 685, 292},               // harvest level
};

/// What flows in a pipe: a text above it that begins or ends at a point.
struct Stream
{
    const wchar_t* pszName;
    int x;
    int y;
    UINT nAlign;
};

constexpr Stream STREAMS[] = {
    {L"Air", 30, 356, DT_LEFT},
    {L"Cooling water", 30, 298, DT_LEFT},
    {L"Exhaust gas", 740, 40, DT_RIGHT},
};

void DrawPipe(CDC& dc, std::initializer_list<CPoint> points)
{
    const std::vector<POINT> arrPoint(points.begin(), points.end());
    const auto nCount = static_cast<int>(arrPoint.size());
    {
        const theme::CPenScope pen(dc, theme::METAL, 5);
        dc.Polyline(arrPoint.data(), nCount);
    }
    const theme::CPenScope pen(dc, theme::Mix(theme::LIQUID, theme::PANEL, 0.6), 3);
    dc.Polyline(arrPoint.data(), nCount);
}

/// Liquid up to a level in percent, and the vessel's wall around it.
void DrawVessel(CDC& dc, const CRect& rc, double dLevel, COLORREF liquid)
{
    const int nCorner = std::max<int>(rc.Width() / 4, 2);
    theme::DrawBox(dc, rc, theme::PANEL, theme::METAL, nCorner);
    dc.SaveDC();
    const int y = rc.bottom - static_cast<int>(rc.Height() * std::clamp(dLevel, 0.0, 100.0) / 100.0);
    dc.IntersectClipRect(CRect(rc.left, y, rc.right, rc.bottom));
    theme::DrawBox(dc, rc, liquid, theme::METAL, nCorner);
    dc.FillSolidRect(rc.left + 1, y, rc.Width() - 2, 1, theme::METAL);
    dc.RestoreDC(-1);
}

} // namespace

IMPLEMENT_DYNCREATE(CDiagramUnit, CPaneUnit)

BEGIN_MESSAGE_MAP(CDiagramUnit, CPaneUnit)
ON_WM_LBUTTONDOWN()
ON_WM_RBUTTONDOWN()
END_MESSAGE_MAP()

GUID CDiagramUnit::GetGUID()
{
    return GUID_DIAGRAM_UNIT;
}

void CDiagramUnit::OnShowInstrument(int nInstrument)
{
    m_nSelected = nInstrument;
    Invalidate(FALSE);
}

void CDiagramUnit::SelectAt(CPoint pt)
{
    for (const Label& label : LABELS) {
        if (GetLabelRect(label.nInstrument).PtInRect(pt))
            Notify(NOTIFY_INSTRUMENT_SELECTED, label.nInstrument);
    }
}

void CDiagramUnit::OnLButtonDown(UINT nFlags, CPoint pt)
{
    SelectAt(pt);
    CPaneUnit::OnLButtonDown(nFlags, pt);
}

/// What the context menu is about is selected first.
void CDiagramUnit::OnRButtonDown(UINT nFlags, CPoint pt)
{
    SelectAt(pt);
    CPaneUnit::OnRButtonDown(nFlags, pt);
}

CDiagramUnit::Fit CDiagramUnit::MakeFit() const
{
    CRect rc = GetContentRect();
    rc.DeflateRect(8, 8);
    Fit fit;
    fit.dScale =
        std::max(std::min(rc.Width() / double{DRAWING_WIDTH}, rc.Height() / double{DRAWING_HEIGHT}), 0.0);
    fit.ptOrigin = {rc.left + (rc.Width() - static_cast<int>(DRAWING_WIDTH * fit.dScale)) / 2,
                    rc.top + (rc.Height() - static_cast<int>(DRAWING_HEIGHT * fit.dScale)) / 2};
    return fit;
}

CRect CDiagramUnit::GetLabelRect(int nInstrument) const
{
    const Fit fit = MakeFit();
    for (const Label& label : LABELS) {
        if (label.nInstrument != nInstrument)
            continue;
        const CPoint pt = fit.At(label.x, label.y);
        return {pt.x - LABEL_WIDTH / 2, pt.y - LABEL_HEIGHT / 2, pt.x + LABEL_WIDTH / 2,
                pt.y + LABEL_HEIGHT / 2};
    }
    return {};
}

void CDiagramUnit::Draw(CDC& dc, const CRect&)
{
    const Fit fit = MakeFit();
    if (fit.dScale < 0.15)
        return;
    DrawPipes(dc, fit);
    DrawVessel(dc, fit.At(FEED_TANK), App().GetRecord().GetValue(8), theme::LIQUID);
    DrawVessel(dc, fit.At(HARVEST_TANK), App().GetRecord().GetValue(16), theme::LIQUID);
    DrawReactor(dc, fit);
    if (fit.dScale < 0.5)
        return; // names and labels would cover each other
    DrawNames(dc, fit);
    for (const Label& label : LABELS) {
        if (label.xTo != 0)
            theme::DrawStroke(dc, fit.At(label.x, label.y), fit.At(label.xTo, label.yTo), theme::METAL);
        DrawLabel(dc, label.nInstrument, label.pszOf);
    }
}

void CDiagramUnit::DrawPipes(CDC& dc, const Fit& fit) const
{
    DrawPipe(dc, {fit.At(80, 200), fit.At(80, 250), fit.At(158, 250), fit.At(158, 122), fit.At(320, 122)});
    DrawPipe(dc, {fit.At(420, 90), fit.At(420, 40), fit.At(740, 40)});                      // exhaust
    DrawPipe(dc, {fit.At(30, 298), fit.At(284, 298)});                                      // cooling in
    DrawPipe(dc, {fit.At(458, 180), fit.At(492, 180), fit.At(492, 238), fit.At(584, 238)}); // and out
    DrawPipe(dc, {fit.At(30, 356), fit.At(346, 356), fit.At(346, 290)});                    // air
    DrawPipe(dc, {fit.At(394, 290), fit.At(394, 356), fit.At(606, 356), fit.At(606, 150), fit.At(685, 150),
                  fit.At(685, 174)}); // harvest
}

void CDiagramUnit::DrawNames(CDC& dc, const Fit& fit) const
{
    const auto drawInside = [&](const CRect& rc, const wchar_t* pszName) {
        const CRect rcVessel = fit.At(rc);
        const CRect rcName(rcVessel.left, rcVessel.top + 6, rcVessel.right, rcVessel.top + 24);
        theme::DrawLine(dc, pszName, rcName, theme::Font::Bold, theme::TEXT, DT_CENTER);
    };
    drawInside(FEED_TANK, L"Feed");
    drawInside(HARVEST_TANK, L"Harvest");
    const CPoint ptReactor = fit.At(282, 74);
    const CRect rcReactor(ptReactor.x - 140, ptReactor.y - 10, ptReactor.x, ptReactor.y + 10);
    theme::DrawLine(dc, L"Reactor R-100", rcReactor, theme::Font::Bold, theme::TEXT, DT_RIGHT);
    if (fit.dScale < 0.7)
        return; // streams come close to each other
    for (const Stream& stream : STREAMS) {
        const CPoint pt = fit.At(stream.x, stream.y);
        const int nLeft = stream.nAlign == DT_RIGHT ? pt.x - STREAM_WIDTH : pt.x;
        const CRect rcName(nLeft, pt.y - 26, nLeft + STREAM_WIDTH, pt.y - 11);
        theme::DrawLine(dc, stream.pszName, rcName, theme::Font::Small, theme::MUTED, stream.nAlign);
    }
}

/// Jacket, vessel, shaft and blades.
void CDiagramUnit::DrawReactor(CDC& dc, const Fit& fit) const
{
    CRect rcJacket(REACTOR);
    rcJacket.InflateRect(12, -60, 12, 10);
    theme::DrawBox(dc, fit.At(rcJacket), theme::Mix(theme::ACCENT, theme::PANEL, 0.12), theme::METAL,
                   std::max(fit.X(44) - fit.X(0), 2));
    DrawVessel(dc, fit.At(REACTOR), App().GetRecord().GetValue(6),
               theme::Mix(theme::WARNING, theme::PANEL, 0.22));
    const int nShaft = std::max(fit.X(5) - fit.X(0), 1);
    theme::DrawStroke(dc, fit.At(370, 40), fit.At(370, 272), theme::METAL, nShaft);
    theme::DrawStroke(dc, fit.At(334, 270), fit.At(406, 270), theme::METAL, nShaft + 2);
    theme::DrawBox(dc, fit.At(CRect(350, 36, 390, 62)), theme::METAL, theme::METAL, 4);
}

void CDiagramUnit::DrawLabel(CDC& dc, int nInstrument, const wchar_t* pszOf) const
{
    const Instrument& instrument = GetInstrument(nInstrument);
    const AlarmState state = App().GetRecord().GetState(nInstrument);
    const bool bAlarm = state != AlarmState::Normal;
    const CRect rc = GetLabelRect(nInstrument);
    const COLORREF edge = nInstrument == m_nSelected ? theme::ACCENT
                          : bAlarm                   ? theme::StateColor(state)
                                                     : theme::LINE;
    theme::DrawBox(dc, rc, nInstrument == m_nSelected ? theme::SELECTION : theme::StateBackground(state),
                   edge, 6);
    const CString strValue = FormatValueAndUnit(instrument, App().GetRecord().GetValue(nInstrument));
    theme::DrawLine(dc, pszOf + strValue, rc, bAlarm ? theme::Font::Bold : theme::Font::Normal,
                    theme::StateColor(state), DT_CENTER);
}
