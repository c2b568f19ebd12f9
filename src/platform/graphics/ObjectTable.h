// The drawing objects behind the handles, for the sources of this folder only: what a pen, brush or font is,
// and the table that handles are looked up in. Process-wide state of the user-interface thread.
#pragma once

#include "platform/graphics/GdiObject.h"

#include <memory>
#include <string>
#include <unordered_map>
#include <variant>

namespace splitframe {

struct PenData
{
    int nStyle;
    int nWidth;
    COLORREF color;
};

struct BrushData
{
    bool bNull;
    COLORREF color;
};

struct FontData
{
    std::wstring strFace;
    int nHeight = 12;
    int nWeight = 400;
    bool bItalic = false;
    bool bUnderline = false;
    int nId = 0; // equal fonts have equal numbers: the key of the text cache
};

class ObjectTable
{
public:
    using Data = std::variant<PenData, BrushData, FontData>;

    struct Entry
    {
        Data data;
        bool bStock = false;
        CGdiObject* pOwner = nullptr;          // the attached C++ object; it clears this when it goes
        std::unique_ptr<CGdiObject> pBorrowed; // what FromHandle answers while nothing is attached
    };

    /// Null once the library is being unloaded: drawing objects in statics of a host may live longer.
    static ObjectTable* Instance();
    ~ObjectTable();

    HGDIOBJ Add(Data data, bool bStock = false);
    /// Null for null and stale handles.
    Entry* Find(HGDIOBJ hObject);
    /// @return false for null, stale handles and stock objects
    bool Remove(HGDIOBJ hObject);

    HGDIOBJ Stock(int nIndex) const;
    HGDIOBJ SystemBrush(int nIndex) const;

private:
    ObjectTable();

    std::unordered_map<std::uintptr_t, Entry> m_mapEntries;
    std::uintptr_t m_nLast;
    HGDIOBJ m_arrStock[DEFAULT_GUI_FONT + 1] = {};
    HGDIOBJ m_arrSystemBrush[31] = {};
};

/// What is behind a handle; null for null and stale handles and for objects of another kind.
template <class T> const T* FindObject(HGDIOBJ hObject)
{
    ObjectTable* pTable = ObjectTable::Instance();
    const ObjectTable::Entry* pEntry = pTable ? pTable->Find(hObject) : nullptr;
    return pEntry ? std::get_if<T>(&pEntry->data) : nullptr;
}

} // namespace splitframe
