// Handles of drawing objects: ownership, stale handles, stock objects.
#include "Picture.h"

#include <gtest/gtest.h>

TEST(GdiObject, AttachedObjectOwnsItsHandle)
{
    const HPEN hPen = CreatePen(PS_SOLID, 3, kRed);
    {
        CPen pen;
        EXPECT_EQ(pen.GetSafeHandle(), nullptr);
        EXPECT_TRUE(pen.Attach(hPen));
        EXPECT_EQ(CPen::FromHandle(hPen), &pen);
        CPen second;
        EXPECT_FALSE(second.Attach(hPen)) << "one owner";
        EXPECT_FALSE(pen.Attach(CreatePen(PS_SOLID, 1, 0))) << "not empty";
    }
    EXPECT_EQ(CPen::FromHandle(hPen), nullptr);
    EXPECT_FALSE(DeleteObject(hPen)) << "deleted twice";
}

TEST(GdiObject, DetachedHandleLivesOn)
{
    HBRUSH hBrush = nullptr;
    {
        CBrush brush(kRed);
        hBrush = static_cast<HBRUSH>(brush.Detach());
        EXPECT_EQ(brush.GetSafeHandle(), nullptr);
        EXPECT_FALSE(brush.DeleteObject());
    }
    COLORREF color = 0;
    EXPECT_TRUE(splitframe::GetBrushColor(hBrush, color));
    EXPECT_EQ(color, kRed);
    CBrush* pBorrowed = CBrush::FromHandle(hBrush);
    ASSERT_NE(pBorrowed, nullptr);
    EXPECT_EQ(CBrush::FromHandle(hBrush), pBorrowed);
    EXPECT_TRUE(pBorrowed->DeleteObject());
    EXPECT_FALSE(splitframe::GetBrushColor(hBrush, color));
}

TEST(GdiObject, KindsDoNotMix)
{
    CPen pen(PS_SOLID, 1, kRed);
    CBrush brush;
    EXPECT_FALSE(brush.Attach(GetStockObject(BLACK_PEN)));
    EXPECT_FALSE(brush.Attach(nullptr));
    EXPECT_FALSE(brush.Attach(reinterpret_cast<HGDIOBJ>(0x1234567)));
    EXPECT_EQ(CBrush::FromHandle(reinterpret_cast<HBRUSH>(pen.GetSafeHandle())), nullptr);
    EXPECT_TRUE(CGdiObject::FromHandle(pen.GetSafeHandle())->IsKindOf(RUNTIME_CLASS(CPen)));
}

TEST(GdiObject, StockObjectsOutliveEverything)
{
    const HGDIOBJ hBrush = GetStockObject(DKGRAY_BRUSH);
    EXPECT_FALSE(DeleteObject(hBrush));
    {
        CBrush brush;
        EXPECT_TRUE(brush.Attach(hBrush));
    }
    COLORREF color = 0;
    EXPECT_TRUE(splitframe::GetBrushColor(static_cast<HBRUSH>(hBrush), color));
    EXPECT_EQ(color, RGB(64, 64, 64));
    EXPECT_FALSE(splitframe::GetBrushColor(static_cast<HBRUSH>(GetStockObject(NULL_BRUSH)), color));
    for (const int nIndex : {-1, 9, 12, 18, 1000})
        EXPECT_EQ(GetStockObject(nIndex), nullptr) << nIndex;
    EXPECT_TRUE(splitframe::GetBrushColor(reinterpret_cast<HBRUSH>(std::uintptr_t{COLOR_WINDOW} + 1), color));
    EXPECT_EQ(color, GetSysColor(COLOR_WINDOW));
}

TEST(GdiObject, DeletedWhileSelectedDrawsNothing)
{
    Picture picture;
    auto pPen = std::make_unique<CPen>(PS_SOLID, 1, kRed);
    CPen* pOld = picture.dc.SelectObject(pPen.get());
    ASSERT_NE(pOld, nullptr);
    pPen.reset();
    picture.dc.LineTo(10, 0);
    EXPECT_TRUE(picture.Inked().IsRectEmpty());
    EXPECT_EQ(picture.dc.SelectObject(pOld), nullptr) << "what was selected is gone";
    picture.dc.LineTo(20, 0);
    EXPECT_EQ(picture.Inked(), CRect(10, 0, 20, 1));
}

TEST(GdiObject, ContextHandlesAreChecked)
{
    HDC hDC = nullptr;
    {
        Picture picture;
        hDC = picture.dc.GetSafeHdc();
        EXPECT_EQ(CDC::FromHandle(hDC), &picture.dc);
        const RECT rc{1, 1, 3, 3};
        EXPECT_EQ(FillRect(hDC, &rc, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH))), 1);
        EXPECT_EQ(picture.Inked(), CRect(1, 1, 3, 3));
    }
    const RECT rc{0, 0, 1, 1};
    EXPECT_EQ(CDC::FromHandle(hDC), nullptr);
    EXPECT_EQ(FillRect(hDC, &rc, nullptr), 0);
}
