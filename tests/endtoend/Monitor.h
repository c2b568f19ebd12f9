// A screen without a monitor: its server, the hands of its user, and what is to be seen in one window.
#pragma once

#include "Child.h"
#include "platform/base/Geometry.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

struct _XDisplay;

/// What a window shows, copied.
class Picture
{
public:
    Picture() = default;
    Picture(int cx, int cy)
        : m_cx(cx), m_cy(cy), m_pixels(static_cast<std::size_t>(cx) * static_cast<std::size_t>(cy))
    {
    }
    int Width() const { return m_cx; }
    int Height() const { return m_cy; }
    /// 0x00RRGGBB; 0xFFFFFFFF outside.
    std::uint32_t At(int x, int y) const;
    void Set(int x, int y, std::uint32_t nPixel);
    /// @return the pixels that differ; all when the sizes do
    std::size_t CountDifferences(const Picture& other) const;

private:
    int m_cx = 0;
    int m_cy = 0;
    std::vector<std::uint32_t> m_pixels;
};

/// All points are pixels of the window.
class Monitor
{
public:
    Monitor();
    ~Monitor();
    Monitor(const Monitor&) = delete;
    Monitor& operator=(const Monitor&) = delete;

    /// What DISPLAY must be for a program to come here.
    const std::string& Name() const { return m_strName; }
    /// Waits until a window whose title begins so is to be seen; points are its own from now on.
    bool FindWindow(const std::string& strTitle);
    std::string Title() const;
    Picture Take() const;
    CSize Size() const;

    void MoveMouse(CPoint pt);
    void Button(bool bDown, unsigned nButton = 1);
    void Click(CPoint pt, unsigned nButton = 1);
    /// A key by its name on the keyboard ("Tab", "f", "F10").
    void Key(const char* pszName, bool bDown);
    void Press(const char* pszName);
    /// Types a character that is on no key, as a compose key does.
    void TypeComposed(unsigned nKeysym);
    void Resize(CSize size);
    /// Gives the keyboard to the window, or to nobody.
    void Focus(bool bWindow);
    /// What a window manager's close button does.
    void AskToClose();
    /// Ends the program's connection, as the end of a person's session does.
    void CutOff();
    /// Another number for each picture of the pointer.
    std::uint64_t CursorHash() const;

private:
    void Flush() const;
    unsigned long Find(unsigned long nParent, const std::string& strTitle) const;

    std::unique_ptr<Child> m_pServer;
    std::string m_strName;
    _XDisplay* m_pDisplay = nullptr;
    unsigned long m_nWindow = 0;
    unsigned m_nSpareKey = 0; // a key code that the keyboard does not use
};
