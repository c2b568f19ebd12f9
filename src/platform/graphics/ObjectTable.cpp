// The table of drawing objects, and the stock objects that fill its first places.
#include "platform/graphics/ObjectTable.h"

#include "platform/graphics/SystemColors.h"
#include "platform/graphics/TextEngine.h"

#include <iterator>

namespace splitframe {

namespace {

// Handle values start high and step by 4, so that none is taken for a small number such as a system colour.
constexpr std::uintptr_t kFirst = 0x10000;
constexpr std::uintptr_t kStep = 4;

bool bGone = false; // the table's destructor has run

} // namespace

ObjectTable* ObjectTable::Instance()
{
    static ObjectTable table;
    return bGone ? nullptr : &table;
}

ObjectTable::ObjectTable() : m_nLast(kFirst)
{
    const COLORREF brushes[] = {RGB(255, 255, 255), RGB(192, 192, 192), RGB(128, 128, 128), RGB(64, 64, 64),
                                RGB(0, 0, 0)};
    for (int i = WHITE_BRUSH; i <= BLACK_BRUSH; ++i)
        m_arrStock[i] = Add(BrushData{false, brushes[i]}, true);
    m_arrStock[NULL_BRUSH] = Add(BrushData{true, 0}, true);
    m_arrStock[WHITE_PEN] = Add(PenData{0, 1, RGB(255, 255, 255)}, true);
    m_arrStock[BLACK_PEN] = Add(PenData{0, 1, RGB(0, 0, 0)}, true);
    m_arrStock[NULL_PEN] = Add(PenData{5, 1, 0}, true);
    FontData font;
    font.nId = InternFont(font);
    m_arrStock[SYSTEM_FONT] = Add(font, true);
    m_arrStock[DEFAULT_GUI_FONT] = Add(font, true);
    for (int i = 0; i < static_cast<int>(std::size(m_arrSystemBrush)); ++i)
        m_arrSystemBrush[i] = Add(BrushData{false, GetSysColor(i)}, true);
}

ObjectTable::~ObjectTable()
{
    bGone = true;
}

HGDIOBJ ObjectTable::Add(Data data, bool bStock)
{
    m_nLast += kStep;
    Entry entry{std::move(data), bStock, nullptr, nullptr};
    m_mapEntries.emplace(m_nLast, std::move(entry));
    return reinterpret_cast<HGDIOBJ>(m_nLast);
}

ObjectTable::Entry* ObjectTable::Find(HGDIOBJ hObject)
{
    const auto found = m_mapEntries.find(reinterpret_cast<std::uintptr_t>(hObject));
    return found == m_mapEntries.end() ? nullptr : &found->second;
}

bool ObjectTable::Remove(HGDIOBJ hObject)
{
    const auto found = m_mapEntries.find(reinterpret_cast<std::uintptr_t>(hObject));
    if (found == m_mapEntries.end() || found->second.bStock)
        return false;
    const auto node =
        m_mapEntries.extract(found); // a borrowed object dies with the node, after its entry is gone
    return true;
}

HGDIOBJ ObjectTable::Stock(int nIndex) const
{
    return nIndex < 0 || nIndex > DEFAULT_GUI_FONT ? nullptr : m_arrStock[nIndex];
}

HGDIOBJ ObjectTable::SystemBrush(int nIndex) const
{
    return nIndex < 0 || nIndex >= static_cast<int>(std::size(m_arrSystemBrush)) ? nullptr
                                                                                 : m_arrSystemBrush[nIndex];
}

} // namespace splitframe
