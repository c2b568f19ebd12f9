// Drawing the outline.
#include "layout/DragIndicator.h"

#include "platform/graphics/DC.h"
#include "platform/graphics/Pen.h"
#include "platform/window/PaintDC.h"

namespace splitframe {

namespace {

constexpr int LINE_WIDTH = 3;
constexpr COLORREF LINE_COLOR = RGB(92, 92, 92);

} // namespace

void CDragIndicator::Show(const CPoint& ptFrom, const CPoint& ptTo)
{
    if (m_bShown && ptFrom == m_ptFrom && ptTo == m_ptTo)
        return;
    Hide();
    m_ptFrom = ptFrom;
    m_ptTo = ptTo;
    m_bShown = true;
    Draw();
}

void CDragIndicator::Hide()
{
    if (!m_bShown)
        return;
    m_bShown = false;
    Draw();
}

void CDragIndicator::Draw() const
{
    const HDC hScreen = ::GetDC(nullptr);
    CDC* pDC = CDC::FromHandle(hScreen);
    CPen pen(PS_SOLID, LINE_WIDTH, LINE_COLOR);
    CPen* pOldPen = pDC->SelectObject(&pen);
    const int nOldMode = pDC->GetROP2();
    pDC->SetROP2(R2_XORPEN);
    pDC->MoveTo(m_ptFrom);
    pDC->LineTo(m_ptTo);
    pDC->SetROP2(nOldMode);
    pDC->SelectObject(pOldPen);
    ::ReleaseDC(nullptr, hScreen);
}

} // namespace splitframe
