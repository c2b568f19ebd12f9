// What panes cost on a screen of 1920 by 1080 pixels: switching the style of a frame, painting text panes
// after a change of size, and typing into one of them.
#include "FrameHost.h"
#include "platform/graphics/Font.h"
#include "platform/window/PaintDC.h"

#include <benchmark/benchmark.h>

using namespace bench;

namespace {

// A pane of text lines under a caption, as hosts write them: every other line on a soft ground, a fixed font
// for the times, and a last line that is typed into.
class TextPane : public CBaseUnitWnd
{
    DECLARE_DYNCREATE(TextPane)
public:
    GUID GetGUID() override { return CBaseUnitWnd().GetGUID(); }
    static int s_nPaintings;

protected:
    void CustomDraw(CPaintDC* pDC) override
    {
        ++s_nPaintings;
        static CFont fontText;
        static CFont fontFixed;
        if (!fontText.GetSafeHandle()) {
            fontText.CreateFont(13, L"DejaVu Sans", FW_NORMAL);
            fontFixed.CreateFont(12, L"DejaVu Sans Mono", FW_NORMAL);
        }
        CRect rc;
        GetClientRect(rc);
        pDC->FillSolidRect(rc, RGB(255, 255, 255));
        pDC->FillSolidRect(0, 0, rc.Width(), CAPTION, RGB(240, 243, 247));
        pDC->SetBkMode(TRANSPARENT);
        Line(*pDC, fontText, CSplitLine::m_strName + L": " + m_strTyped,
             CRect(10, 0, rc.right - 10, CAPTION));
        for (int i = 0, y = CAPTION; y < rc.bottom; ++i, y += ROW) {
            if (i % 2 == 1)
                pDC->FillSolidRect(0, y, rc.Width(), ROW, RGB(247, 249, 251));
            CString strTime;
            strTime.Format(L"%02d:%02d:%02d", i % 24, i * 7 % 60, i * 13 % 60);
            Line(*pDC, fontFixed, strTime, CRect(10, y, 78, y + ROW));
            Line(*pDC, fontText, ENTRIES[i % 4], CRect(78, y, rc.right - 10, y + ROW));
        }
    }
    void OnChar(UINT nChar, UINT, UINT)
    {
        m_strTyped = m_strTyped.Right(20) + CString(static_cast<wchar_t>(nChar));
        Invalidate(FALSE);
    }
    DECLARE_MESSAGE_MAP()

private:
    static constexpr int CAPTION = 26;
    static constexpr int ROW = 22;
    static constexpr const wchar_t* ENTRIES[] = {L"Pump 3 started", L"Level above the upper limit",
                                                 L"Valve V12 closed by the operator",
                                                 L"Temperature back to normal"};

    static void Line(CDC& dc, CFont& font, const CString& strText, CRect rc)
    {
        CFont* pOld = dc.SelectObject(&font);
        dc.SetTextColor(RGB(32, 41, 54));
        dc.DrawText(strText, rc, DT_SINGLELINE | DT_VCENTER | DT_LEFT | DT_END_ELLIPSIS);
        dc.SelectObject(pOld);
    }

    CString m_strTyped;
};

int TextPane::s_nPaintings = 0;

IMPLEMENT_DYNCREATE(TextPane, CBaseUnitWnd)

BEGIN_MESSAGE_MAP(TextPane, CBaseUnitWnd)
ON_WM_CHAR()
END_MESSAGE_MAP()

void SwitchStyle(benchmark::State& state)
{
    FrameHost host;
    host.Load(RUNTIME_CLASS(TextPane), LayoutXml(1, static_cast<int>(state.range(0)), 2));
    host.Open(0);
    int nStyle = 0;
    for (auto _ : state) {
        nStyle = 1 - nStyle;
        host.ActiveDoc()->ChangeStyle(nStyle, false);
        splitframe::DrainMessages();
    }
}

void PaintAfterResize(benchmark::State& state)
{
    FrameHost host;
    host.Load(RUNTIME_CLASS(TextPane), LayoutXml(1, static_cast<int>(state.range(0))));
    host.Open(0);
    int nLess = 0;
    TextPane::s_nPaintings = 0;
    for (auto _ : state) {
        nLess = 2 - nLess;
        host.Display().Resize(1920 - nLess, 1080 - nLess);
        splitframe::DrainMessages();
    }
    state.counters["paintings"] =
        static_cast<double>(TextPane::s_nPaintings) / static_cast<double>(state.iterations());
}

void TypeInOnePane(benchmark::State& state)
{
    FrameHost host;
    host.Load(RUNTIME_CLASS(TextPane), LayoutXml(1, static_cast<int>(state.range(0))));
    host.Open(0);
    TextPane::s_nPaintings = 0;
    for (auto _ : state) {
        host.Display().TypeText(L"x");
        splitframe::DrainMessages();
    }
    state.counters["paintings"] =
        static_cast<double>(TextPane::s_nPaintings) / static_cast<double>(state.iterations());
}

} // namespace

BENCHMARK(SwitchStyle)->Arg(20)->Arg(200)->Unit(benchmark::kMillisecond);
BENCHMARK(PaintAfterResize)->Arg(50)->Unit(benchmark::kMillisecond);
BENCHMARK(TypeInOnePane)->Arg(50)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
