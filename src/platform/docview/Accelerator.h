// Accelerator tables: which key, with which modifier keys held, is which command. Tables are built by code.
// Knows messages and windows; a frame window asks its table before a key is dispatched.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/Types.h"
#include "platform/window/Messages.h"

using HACCEL = struct HACCEL__*;

/// How an accelerator's key is meant; the bits are combined.
inline constexpr BYTE FVIRTKEY = 0x01; // key is a virtual-key code; without it, a character
inline constexpr BYTE FSHIFT = 0x04;
inline constexpr BYTE FCONTROL = 0x08;
inline constexpr BYTE FALT = 0x10;

/// One entry of an accelerator table.
struct ACCEL
{
    BYTE fVirt; // FVIRTKEY, and FSHIFT, FCONTROL, FALT for the keys that must be held; the others must be up
    WORD key;   // virtual-key code; without FVIRTKEY a character, for which the modifiers do not count
    WORD cmd;   // identifier of the command that is sent
};

/// Makes a table from a copy of nCount entries. Null when pEntries is null or nCount is less than 1. The
/// caller destroys it.
SPLITFRAME_PLATFORM_API HACCEL CreateAcceleratorTable(const ACCEL* pEntries, int nCount);

/// Destroys a table. FALSE for a handle that is null, stale or was never one.
SPLITFRAME_PLATFORM_API BOOL DestroyAcceleratorTable(HACCEL hAccel);

/// If pMsg is a key pressed that the table names, sends the command to hWnd as WM_COMMAND (notification code
/// 1, no control) and answers 1: the message is used up. Otherwise, and for a stale table and a window that
/// is gone or disabled, answers 0.
SPLITFRAME_PLATFORM_API int TranslateAcceleratorW(HWND hWnd, HACCEL hAccel, const MSG* pMsg);
