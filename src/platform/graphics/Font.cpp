// Fonts as drawing objects: sizes and names made safe, equal fonts given one number. No font is opened here.
#include "platform/graphics/Font.h"

#include "platform/graphics/ObjectTable.h"
#include "platform/graphics/TextEngine.h"

#include <algorithm>

using splitframe::FindObject;
using splitframe::FontData;
using splitframe::ObjectTable;

IMPLEMENT_DYNAMIC(CFont, CGdiObject)

namespace {

constexpr int kDefaultHeight = 12;
constexpr int kMaxHeight = 500;
constexpr std::size_t kMaxFace = 200;

int CutHeight(int nHeight)
{
    const std::int64_t nSize = nHeight < 0 ? -std::int64_t{nHeight} : nHeight;
    return nSize == 0 ? kDefaultHeight : static_cast<int>(std::min<std::int64_t>(nSize, kMaxHeight));
}

} // namespace

HFONT CreateFont(int nHeight, LPCWSTR pszFace, int nWeight, bool bItalic, bool bUnderline)
{
    ObjectTable* pTable = ObjectTable::Instance();
    if (!pTable)
        return nullptr;
    FontData font;
    font.strFace = pszFace ? std::wstring(pszFace).substr(0, kMaxFace) : std::wstring();
    font.nHeight = CutHeight(nHeight);
    font.nWeight = nWeight <= 0 ? FW_NORMAL : std::clamp(nWeight, 100, 1000);
    font.bItalic = bItalic;
    font.bUnderline = bUnderline;
    font.nId = splitframe::InternFont(font);
    return static_cast<HFONT>(pTable->Add(std::move(font)));
}

BOOL CFont::CreateFont(int nHeight, LPCWSTR pszFace, int nWeight, bool bItalic, bool bUnderline)
{
    return !GetSafeHandle() && Attach(::CreateFont(nHeight, pszFace, nWeight, bItalic, bUnderline));
}

BOOL CFont::CreatePointFont(int nTenths, LPCWSTR pszFace)
{
    // 72 points and 96 pixels an inch.
    const std::int64_t nPixels = (std::int64_t{nTenths} * 96 + (nTenths < 0 ? -360 : 360)) / 720;
    return CreateFont(static_cast<int>(nPixels), pszFace);
}

CFont* CFont::FromHandle(HFONT hFont)
{
    return FindObject<FontData>(hFont) ? dynamic_cast<CFont*>(CGdiObject::FromHandle(hFont)) : nullptr;
}

bool CFont::Accepts(HGDIOBJ hObject) const
{
    return FindObject<FontData>(hObject) != nullptr;
}
