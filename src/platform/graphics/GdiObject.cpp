// Drawing objects: attaching C++ objects to handles, and the functions that make and delete pens and brushes.
#include "platform/graphics/GdiObject.h"

#include "platform/graphics/Brush.h"
#include "platform/graphics/Font.h"
#include "platform/graphics/ObjectTable.h"
#include "platform/graphics/Pen.h"
#include "platform/graphics/SystemColors.h"

#include <algorithm>

using splitframe::BrushData;
using splitframe::FindObject;
using splitframe::ObjectTable;
using splitframe::PenData;

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)

namespace {

ObjectTable::Entry* FindEntry(HGDIOBJ hObject)
{
    ObjectTable* pTable = ObjectTable::Instance();
    return pTable ? pTable->Find(hObject) : nullptr;
}

std::unique_ptr<CGdiObject> MakeWrapper(const ObjectTable::Data& data)
{
    if (std::holds_alternative<PenData>(data))
        return std::make_unique<CPen>();
    if (std::holds_alternative<BrushData>(data))
        return std::make_unique<CBrush>();
    return std::make_unique<CFont>();
}

} // namespace

HGDIOBJ GetStockObject(int nIndex)
{
    const ObjectTable* pTable = ObjectTable::Instance();
    return pTable ? pTable->Stock(nIndex) : nullptr;
}

HBRUSH GetSysColorBrush(int nIndex)
{
    const ObjectTable* pTable = ObjectTable::Instance();
    return pTable ? static_cast<HBRUSH>(pTable->SystemBrush(nIndex)) : nullptr;
}

BOOL DeleteObject(HGDIOBJ hObject)
{
    ObjectTable* pTable = ObjectTable::Instance();
    return pTable && pTable->Remove(hObject);
}

CGdiObject::~CGdiObject()
{
    ObjectTable::Entry* pEntry = FindEntry(m_hObject);
    if (!pEntry || pEntry->pOwner != this)
        return;
    pEntry->pOwner = nullptr;
    ::DeleteObject(m_hObject);
}

HGDIOBJ CGdiObject::GetSafeHandle() const
{
    return FindEntry(m_hObject) ? m_hObject : nullptr;
}

BOOL CGdiObject::Attach(HGDIOBJ hObject)
{
    ObjectTable::Entry* pEntry = FindEntry(hObject);
    if (!pEntry || pEntry->pOwner || GetSafeHandle() || !Accepts(hObject))
        return FALSE;
    pEntry->pOwner = this;
    m_hObject = hObject;
    return TRUE;
}

HGDIOBJ CGdiObject::Detach()
{
    const HGDIOBJ hObject = GetSafeHandle();
    if (ObjectTable::Entry* pEntry = FindEntry(hObject); pEntry && pEntry->pOwner == this)
        pEntry->pOwner = nullptr;
    m_hObject = nullptr;
    return hObject;
}

BOOL CGdiObject::DeleteObject()
{
    const HGDIOBJ hObject = Detach();
    if (!hObject)
        return FALSE;
    ::DeleteObject(hObject); // a borrowed object is gone now
    return TRUE;
}

CGdiObject* CGdiObject::FromHandle(HGDIOBJ hObject)
{
    ObjectTable::Entry* pEntry = FindEntry(hObject);
    if (!pEntry)
        return nullptr;
    if (pEntry->pOwner)
        return pEntry->pOwner;
    if (!pEntry->pBorrowed)
        pEntry->pBorrowed = MakeWrapper(pEntry->data);
    pEntry->pBorrowed->m_hObject = hObject;
    return pEntry->pBorrowed.get();
}

bool CGdiObject::Accepts(HGDIOBJ) const
{
    return true;
}

HPEN CreatePen(int nStyle, int nWidth, COLORREF color)
{
    ObjectTable* pTable = ObjectTable::Instance();
    const bool bKnown = nStyle == PS_DASH || nStyle == PS_DOT || nStyle == PS_NULL;
    const PenData pen{bKnown ? nStyle : PS_SOLID, std::clamp(nWidth, 1, 1000), color & 0xFFFFFF};
    return pTable ? static_cast<HPEN>(pTable->Add(pen)) : nullptr;
}

CPen::CPen(int nStyle, int nWidth, COLORREF color)
{
    CreatePen(nStyle, nWidth, color);
}

BOOL CPen::CreatePen(int nStyle, int nWidth, COLORREF color)
{
    return !GetSafeHandle() && Attach(::CreatePen(nStyle, nWidth, color));
}

CPen* CPen::FromHandle(HPEN hPen)
{
    return FindObject<PenData>(hPen) ? dynamic_cast<CPen*>(CGdiObject::FromHandle(hPen)) : nullptr;
}

bool CPen::Accepts(HGDIOBJ hObject) const
{
    return FindObject<PenData>(hObject) != nullptr;
}

HBRUSH CreateSolidBrush(COLORREF color)
{
    ObjectTable* pTable = ObjectTable::Instance();
    return pTable ? static_cast<HBRUSH>(pTable->Add(BrushData{false, color & 0xFFFFFF})) : nullptr;
}

CBrush::CBrush(COLORREF color)
{
    CreateSolidBrush(color);
}

BOOL CBrush::CreateSolidBrush(COLORREF color)
{
    return !GetSafeHandle() && Attach(::CreateSolidBrush(color));
}

CBrush* CBrush::FromHandle(HBRUSH hBrush)
{
    return FindObject<BrushData>(hBrush) ? dynamic_cast<CBrush*>(CGdiObject::FromHandle(hBrush)) : nullptr;
}

bool CBrush::Accepts(HGDIOBJ hObject) const
{
    return FindObject<BrushData>(hObject) != nullptr;
}

bool splitframe::GetBrushColor(HBRUSH hBrush, COLORREF& color)
{
    const auto nHandle = reinterpret_cast<std::uintptr_t>(hBrush);
    if (nHandle >= 1 && nHandle <= COLOR_MENUBAR + 1) {
        color = GetSysColor(static_cast<int>(nHandle) - 1);
        return true;
    }
    const auto* pBrush = FindObject<BrushData>(hBrush);
    if (!pBrush || pBrush->bNull)
        return false;
    color = pBrush->color;
    return true;
}
