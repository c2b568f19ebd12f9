// Drawing objects (pens, brushes, fonts) behind handles, and the stock objects. A handle is a number that is
// looked up at every use: one whose object was deleted is answered like null, and numbers are never used
// again. Drawing objects belong to the user-interface thread.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/Object.h"
#include "platform/base/Types.h"

using HPEN = struct HPEN__*;
using HFONT = struct HFONT__*;

inline constexpr int WHITE_BRUSH = 0;
inline constexpr int LTGRAY_BRUSH = 1;
inline constexpr int GRAY_BRUSH = 2;
inline constexpr int DKGRAY_BRUSH = 3;
inline constexpr int BLACK_BRUSH = 4;
inline constexpr int NULL_BRUSH = 5;
inline constexpr int WHITE_PEN = 6;
inline constexpr int BLACK_PEN = 7;
inline constexpr int NULL_PEN = 8;
inline constexpr int SYSTEM_FONT = 13;
inline constexpr int DEFAULT_GUI_FONT = 17;

/// The handle of a stock object, null for a number that names none. Stock objects live as long as the
/// library; deleting one does nothing.
SPLITFRAME_PLATFORM_API HGDIOBJ GetStockObject(int nIndex);

/// Deletes the object behind a handle; a C++ object attached to it becomes empty. A device context that still
/// has it selected draws nothing with it.
/// @return FALSE for null, a stale handle or a stock object
SPLITFRAME_PLATFORM_API BOOL DeleteObject(HGDIOBJ hObject);

/// Owner of one drawing object: deletes it when it is destroyed, unless it was detached or is a stock object.
class SPLITFRAME_PLATFORM_API CGdiObject : public CObject
{
    DECLARE_DYNAMIC(CGdiObject)

public:
    CGdiObject() = default;
    ~CGdiObject() override;
    CGdiObject(const CGdiObject&) = delete;
    CGdiObject& operator=(const CGdiObject&) = delete;

    /// The handle, null for an empty object or once the drawing object is gone.
    HGDIOBJ GetSafeHandle() const;

    /// Takes ownership of the object behind the handle.
    /// @return FALSE (and nothing changes) for null, a stale handle, an object of the wrong kind, a handle
    /// that another C++ object holds, or when this object is not empty
    BOOL Attach(HGDIOBJ hObject);
    /// Gives the handle up without deleting; the caller owns it. Null for an empty object.
    HGDIOBJ Detach();
    /// Deletes the drawing object now. FALSE for an empty object; a stock object is only let go.
    BOOL DeleteObject();

    /// The C++ object that is attached to a handle, else a borrowed one that lives until the handle is
    /// deleted: a CPen, CBrush or CFont by the handle's kind. Null for null and stale handles. Never owned by
    /// the caller.
    static CGdiObject* FromHandle(HGDIOBJ hObject);

protected:
    /// Whether objects of this class can hold the handle.
    virtual bool Accepts(HGDIOBJ hObject) const;

private:
    HGDIOBJ m_hObject = nullptr;
};
