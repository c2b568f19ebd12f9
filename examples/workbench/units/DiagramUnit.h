// The process as a drawing: tanks with their levels, pipes, and the newest value of each instrument where it
// is measured. A click on a value selects its instrument.
//
// The drawing has fixed coordinates of its own and is fitted into the pane.
#pragma once

#include "units/PaneUnit.h"

class CDiagramUnit : public CPaneUnit
{
    DECLARE_DYNCREATE(CDiagramUnit)

public:
    CDiagramUnit() = default;
    GUID GetGUID() override;

    /// Where an instrument's value stands, client coordinates; empty when it is not in the drawing.
    CRect GetLabelRect(int nInstrument) const;

protected:
    void Draw(CDC& dc, const CRect& rc) override;
    void OnShowInstrument(int nInstrument) override;
    int GetSelectedInstrument() const override { return m_nSelected; }
    void OnLButtonDown(UINT nFlags, CPoint pt);
    void OnRButtonDown(UINT nFlags, CPoint pt);

    DECLARE_MESSAGE_MAP()

private:
    void SelectAt(CPoint pt);
    /// From the drawing's coordinates to the pane's.
    struct Fit
    {
        double dScale = 1.0;
        CPoint ptOrigin;

        int X(int x) const { return ptOrigin.x + static_cast<int>(x * dScale); }
        int Y(int y) const { return ptOrigin.y + static_cast<int>(y * dScale); }
        CPoint At(int x, int y) const { return {X(x), Y(y)}; }
        CRect At(const CRect& rc) const { return {X(rc.left), Y(rc.top), X(rc.right), Y(rc.bottom)}; }
    };

    Fit MakeFit() const;
    void DrawPipes(CDC& dc, const Fit& fit) const;
    void DrawReactor(CDC& dc, const Fit& fit) const;
    void DrawNames(CDC& dc, const Fit& fit) const;
    void DrawLabel(CDC& dc, int nInstrument, const wchar_t* pszOf) const;

    int m_nSelected = -1;
};
