// The device context's state: what it draws on, with what, and inside which clip.
#include "platform/graphics/DC.h"

#include "platform/graphics/DCPainter.h"
#include "platform/graphics/RegionWalk.h"

#include <unordered_map>
#include <utility>

using splitframe::BrushData;
using splitframe::FindObject;
using splitframe::FontData;
using splitframe::PenData;

IMPLEMENT_DYNAMIC(CDC, CObject)

namespace {

// Contexts by handle; user-interface thread. Numbers are never used again.
struct HandleList
{
    std::unordered_map<HDC, CDC*> mapContexts;
    std::uintptr_t nLast = 0x10000;
    ~HandleList() { bGone = true; }
    static bool bGone;
};

bool HandleList::bGone = false;

// Null once the library is being unloaded: contexts in statics of a host may live longer.
HandleList* Handles()
{
    static HandleList list;
    return HandleList::bGone ? nullptr : &list;
}

// Exchanges a handle of the state for that of an object and answers the C++ object of the old one.
template <class Object, class Handle> Object* Exchange(Handle& hSelected, Object* pObject)
{
    const HGDIOBJ hNew = pObject ? pObject->GetSafeHandle() : nullptr;
    if (!hNew)
        return nullptr;
    const Handle hOld = hSelected;
    hSelected = static_cast<Handle>(hNew);
    return Object::FromHandle(hOld);
}

} // namespace

CDC::CDC()
    : m_state{static_cast<HPEN>(GetStockObject(BLACK_PEN)), static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)),
              static_cast<HFONT>(GetStockObject(SYSTEM_FONT))}
{
}

CDC::~CDC()
{
    if (HandleList* pList = m_hDC ? Handles() : nullptr)
        pList->mapContexts.erase(m_hDC);
}

void CDC::AttachCanvas(splitframe::Canvas canvas)
{
    m_canvas = std::move(canvas);
    m_saved.clear();
    m_state.ptViewport = {};
    m_state.ptPosition = {};
    m_state.clip = m_canvas.clip;
    if (m_canvas.pSurface)
        m_state.clip.Intersect(m_canvas.pSurface->Bounds());
    else
        m_state.clip.Clear();
}

void CDC::DetachCanvas()
{
    AttachCanvas({});
}

HDC CDC::GetSafeHdc() const
{
    if (HandleList* pList = m_hDC ? nullptr : Handles()) {
        pList->nLast += 4;
        m_hDC = reinterpret_cast<HDC>(pList->nLast);
        pList->mapContexts[m_hDC] = const_cast<CDC*>(this);
    }
    return m_hDC;
}

CDC* CDC::FromHandle(HDC hDC)
{
    const HandleList* pList = hDC ? Handles() : nullptr;
    if (!pList)
        return nullptr;
    const auto found = pList->mapContexts.find(hDC);
    return found == pList->mapContexts.end() ? nullptr : found->second;
}

CPen* CDC::SelectObject(CPen* pPen)
{
    return Exchange(m_state.hPen, pPen);
}

CBrush* CDC::SelectObject(CBrush* pBrush)
{
    return Exchange(m_state.hBrush, pBrush);
}

CFont* CDC::SelectObject(CFont* pFont)
{
    return Exchange(m_state.hFont, pFont);
}

HGDIOBJ CDC::SelectObject(HGDIOBJ hObject)
{
    if (FindObject<PenData>(hObject))
        return std::exchange(m_state.hPen, static_cast<HPEN>(hObject));
    if (FindObject<BrushData>(hObject))
        return std::exchange(m_state.hBrush, static_cast<HBRUSH>(hObject));
    if (FindObject<FontData>(hObject))
        return std::exchange(m_state.hFont, static_cast<HFONT>(hObject));
    return nullptr;
}

CGdiObject* CDC::SelectStockObject(int nIndex)
{
    return CGdiObject::FromHandle(SelectObject(GetStockObject(nIndex)));
}

COLORREF CDC::SetTextColor(COLORREF color)
{
    return std::exchange(m_state.colText, color & 0xFFFFFF);
}

COLORREF CDC::GetTextColor() const
{
    return m_state.colText;
}

COLORREF CDC::SetBkColor(COLORREF color)
{
    return std::exchange(m_state.colBack, color & 0xFFFFFF);
}

COLORREF CDC::GetBkColor() const
{
    return m_state.colBack;
}

int CDC::SetBkMode(int nMode)
{
    return nMode == TRANSPARENT || nMode == OPAQUE ? std::exchange(m_state.nBkMode, nMode) : 0;
}

int CDC::GetBkMode() const
{
    return m_state.nBkMode;
}

int CDC::SetROP2(int nMode)
{
    return nMode == R2_XORPEN || nMode == R2_COPYPEN ? std::exchange(m_state.nRop, nMode) : 0;
}

int CDC::GetROP2() const
{
    return m_state.nRop;
}

int CDC::SaveDC()
{
    m_saved.push_back(m_state);
    return static_cast<int>(m_saved.size());
}

BOOL CDC::RestoreDC(int nSaved)
{
    const int nCount = static_cast<int>(m_saved.size());
    const int nWanted = nSaved == -1 ? nCount : nSaved;
    if (nWanted < 1 || nWanted > nCount)
        return FALSE;
    m_state = std::move(m_saved[static_cast<std::size_t>(nWanted) - 1]);
    m_saved.resize(static_cast<std::size_t>(nWanted) - 1);
    return TRUE;
}

CPoint CDC::SetViewportOrg(int x, int y)
{
    return std::exchange(m_state.ptViewport, POINT{x, y});
}

CPoint CDC::GetViewportOrg() const
{
    return m_state.ptViewport;
}

void CDC::IntersectClipRect(LPCRECT pRect)
{
    m_state.clip.Intersect(Painter(*this).Place(*pRect));
}

void CDC::ExcludeClipRect(LPCRECT pRect)
{
    m_state.clip.Subtract(Painter(*this).Place(*pRect));
}

CRect CDC::GetClipBox() const
{
    if (m_state.clip.IsEmpty())
        return {};
    const RECT& rc = m_state.clip.Bounds();
    const Painter painter(*this);
    return CRect(Painter::MakeRect(rc.left - painter.X(0), rc.top - painter.Y(0), rc.right - painter.X(0),
                                   rc.bottom - painter.Y(0)));
}

bool CDC::RectVisible(LPCRECT pRect) const
{
    return m_state.clip.Intersects(Painter(*this).Place(*pRect));
}
