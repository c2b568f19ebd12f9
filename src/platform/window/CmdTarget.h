// Command targets and message maps: how a class says which member function handles which message or command.
// A map is a constant table of small functions, each of which casts the target to its class and calls the
// handler; a cache beside each map remembers the entry for a message, or that there is none. Knows no
// windows.
#pragma once

#include "platform/base/Object.h"
#include "platform/base/String.h"
#include "platform/window/Messages.h"

class CCmdTarget;
class CCmdUI;
class CDC;
class CMenu;
class CWnd;

#define afx_msg

/// Command notifications: a chosen command, and the question how its menu item looks.
inline constexpr int CN_COMMAND = 0;
inline constexpr int CN_UPDATE_COMMAND_UI = -1;

/// Calls one handler. For window messages the parameters are those of the message; for commands nMessage is
/// the command's number, and lParam the address of the CCmdUI when its look is asked for.
using AFX_MESSAGE_THUNK = LRESULT (*)(CCmdTarget* pTarget, UINT nMessage, WPARAM wParam, LPARAM lParam);

/// One line of a message map. The last line has no function.
struct AFX_MSGMAP_ENTRY
{
    UINT nMessage;         ///< message number; WM_COMMAND for commands
    int nCode;             ///< CN_COMMAND or CN_UPDATE_COMMAND_UI for commands, else 0
    UINT nID;              ///< first command number of the range
    UINT nLastID;          ///< last command number of the range
    AFX_MESSAGE_THUNK pfn; ///< null in the last line only
};

struct AFX_MSGMAP;

namespace splitframe {

/// Remembers for one class which entry handles a message. Lives beside its map and dies with the module that
/// holds the class, so nothing outlives a library that is unloaded.
struct MessageMapCache
{
    static constexpr UINT SLOTS = 64;
    struct Slot
    {
        UINT nMessage = 0;
        bool bKnown = false;
        const AFX_MSGMAP_ENTRY* pEntry = nullptr;
    };
    Slot slots[SLOTS];
};

SPLITFRAME_PLATFORM_API const AFX_MSGMAP_ENTRY* SearchMessageMap(const AFX_MSGMAP* pMap, UINT nMessage);

} // namespace splitframe

/// The map of one class, linked to that of its base class.
struct AFX_MSGMAP
{
    const AFX_MSGMAP* (*pfnGetBaseMap)(); ///< null for the root class
    const AFX_MSGMAP_ENTRY* lpEntries;    ///< ends with an entry without function
    splitframe::MessageMapCache* pCache;  ///< not owned; beside the map
};

namespace splitframe {

/// The entry for a window message in a map or the maps of its base classes, or null.
inline const AFX_MSGMAP_ENTRY* FindMessageEntry(const AFX_MSGMAP* pMap, UINT nMessage)
{
    const MessageMapCache::Slot& slot = pMap->pCache->slots[nMessage % MessageMapCache::SLOTS];
    if (slot.bKnown && slot.nMessage == nMessage)
        return slot.pEntry;
    return SearchMessageMap(pMap, nMessage);
}

} // namespace splitframe

/// Who would handle a command: filled instead of calling the handler.
struct AFX_CMDHANDLERINFO
{
    CCmdTarget* pTarget = nullptr;
    const AFX_MSGMAP_ENTRY* pEntry = nullptr;
};

/// An object that can handle commands; the base of windows, documents, templates and the application.
class SPLITFRAME_PLATFORM_API CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)
public:
    CCmdTarget() = default;
    ~CCmdTarget() override = default;

    /// Offers a command to this object and to whatever it passes commands on to.
    /// @param nID           the command's number
    /// @param nCode         CN_COMMAND, or CN_UPDATE_COMMAND_UI to ask how its item looks
    /// @param pExtra        with CN_UPDATE_COMMAND_UI the CCmdUI to set, else null
    /// @param pHandlerInfo  when not null: no handler is called, the one found is noted here
    /// @return whether a handler was found
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

protected:
    virtual const AFX_MSGMAP* GetMessageMap() const;
    static const AFX_MSGMAP* GetThisMessageMap();
    friend class CWnd;
};

/// The look of one command's item in a menu or bar, as its ON_UPDATE_COMMAND_UI handler sets it.
class SPLITFRAME_PLATFORM_API CCmdUI
{
public:
    CCmdUI() = default;
    virtual ~CCmdUI() = default;

    UINT m_nID = 0;                ///< command number
    UINT m_nIndex = 0;             ///< position of the item in the menu
    CMenu* m_pMenu = nullptr;      ///< menu that holds the item, not owned; null for other bars
    bool m_bEnableChanged = false; ///< a handler has called Enable

    /// Enables or grays the item.
    virtual void Enable(BOOL bOn = TRUE);
    /// Sets (1) or clears (0) the item's check mark.
    virtual void SetCheck(int nCheck = 1);
    /// Sets the item's label; null does nothing.
    virtual void SetText(LPCWSTR pszText);

    /// Asks the target how the item looks.
    /// @param bDisableIfNoHandler  gray the item when no command handler is found and no update handler
    /// enabled it
    /// @return whether an update handler was found
    BOOL DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHandler);
};

/// In a class that has a message map.
#define DECLARE_MESSAGE_MAP()                                                                                \
protected:                                                                                                   \
    static const AFX_MSGMAP* GetThisMessageMap();                                                            \
    const AFX_MSGMAP* GetMessageMap() const override;

/// Opens the map in the source file. The base class needs a map of its own or inherits one.
#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                               \
    const AFX_MSGMAP* theClass::GetMessageMap() const                                                        \
    {                                                                                                        \
        return GetThisMessageMap();                                                                          \
    }                                                                                                        \
    const AFX_MSGMAP* theClass::GetThisMessageMap()                                                          \
    {                                                                                                        \
        using ThisClass [[maybe_unused]] = theClass;                                                         \
        using TheBaseClass = baseClass;                                                                      \
        static constexpr AFX_MSGMAP_ENTRY entries[] = {

#define END_MESSAGE_MAP()                                                                                    \
    {                                                                                                        \
        0, 0, 0, 0, nullptr                                                                                  \
    }                                                                                                        \
    }                                                                                                        \
    ;                                                                                                        \
    static constinit splitframe::MessageMapCache cache;                                                      \
    static constinit AFX_MSGMAP map = {&TheBaseClass::GetThisMessageMap, entries, &cache};                   \
    return &map;                                                                                             \
    }

#include "platform/window/MessageMap.h"
