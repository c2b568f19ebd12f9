// Talks to the server as another client: windows see no difference to a real user.
#include "Monitor.h"

#include "Wait.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <X11/extensions/Xfixes.h>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <unistd.h>

namespace {

// Windows may go at any moment; asking for one that is gone is no reason to end.
int IgnoreError(Display*, XErrorEvent*)
{
    return 0;
}

// The server chooses a free number and writes it when it is ready.
std::string ReadNumber(int nDescriptor)
{
    std::string strNumber;
    char ch = 0;
    while (read(nDescriptor, &ch, 1) == 1 && ch != '\n')
        strNumber += ch;
    return strNumber;
}

} // namespace

std::uint32_t Picture::At(int x, int y) const
{
    if (x < 0 || y < 0 || x >= m_cx || y >= m_cy)
        return 0xFFFFFFFF;
    return m_pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_cx) +
                    static_cast<std::size_t>(x)];
}

void Picture::Set(int x, int y, std::uint32_t nPixel)
{
    m_pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_cx) + static_cast<std::size_t>(x)] =
        nPixel;
}

std::size_t Picture::CountDifferences(const Picture& other) const
{
    if (m_cx != other.m_cx || m_cy != other.m_cy)
        return std::max(m_pixels.size(), other.m_pixels.size());
    std::size_t nCount = 0;
    for (std::size_t n = 0; n < m_pixels.size(); ++n)
        nCount += m_pixels[n] != other.m_pixels[n] ? 1 : 0;
    return nCount;
}

Monitor::Monitor()
{
    int ends[2] = {-1, -1};
    if (pipe(ends) != 0)
        throw std::runtime_error("no pipe");
    // It complains about the numbers that others use.
    m_pServer =
        std::make_unique<Child>(std::vector<std::string>{"/bin/sh", "-c", "exec \"$0\" \"$@\" 2>/dev/null",
                                                         XVFB_PROGRAM, "-displayfd", std::to_string(ends[1]),
                                                         "-screen", "0", "1600x1000x24", "-nolisten", "tcp"},
                                Child::Variables{}, ends[1]);
    close(ends[1]);
    m_strName = ":" + ReadNumber(ends[0]);
    close(ends[0]);
    m_pDisplay = XOpenDisplay(m_strName.c_str());
    if (!m_pDisplay)
        throw std::runtime_error("no connection to the screen " + m_strName);
    XSetErrorHandler(&IgnoreError);
}

Monitor::~Monitor()
{
    if (m_pDisplay)
        XCloseDisplay(m_pDisplay);
}

void Monitor::Flush() const
{
    XSync(m_pDisplay, False);
}

// --- windows

unsigned long Monitor::Find(unsigned long nParent, const std::string& strTitle) const
{
    Window root = 0, parent = 0, *pChildren = nullptr, found = 0;
    unsigned nCount = 0;
    if (XQueryTree(m_pDisplay, nParent, &root, &parent, &pChildren, &nCount) == 0)
        return 0;
    for (unsigned n = 0; n < nCount && found == 0; ++n) {
        char* pszName = nullptr;
        XWindowAttributes attributes{};
        if (XFetchName(m_pDisplay, pChildren[n], &pszName) != 0 && pszName &&
            std::string(pszName).starts_with(strTitle) &&
            XGetWindowAttributes(m_pDisplay, pChildren[n], &attributes) != 0 &&
            attributes.map_state == IsViewable)
            found = pChildren[n];
        XFree(pszName);
    }
    XFree(pChildren);
    return found;
}

bool Monitor::FindWindow(const std::string& strTitle)
{
    return WaitUntil([&] {
        m_nWindow = Find(DefaultRootWindow(m_pDisplay), strTitle);
        return m_nWindow != 0;
    });
}

std::string Monitor::Title() const
{
    char* pszName = nullptr;
    XFetchName(m_pDisplay, m_nWindow, &pszName);
    const std::string strTitle = pszName ? pszName : "";
    XFree(pszName);
    return strTitle;
}

CSize Monitor::Size() const
{
    XWindowAttributes attributes{};
    XGetWindowAttributes(m_pDisplay, m_nWindow, &attributes);
    return {attributes.width, attributes.height};
}

Picture Monitor::Take() const
{
    const CSize size = Size();
    Picture picture(size.cx, size.cy);
    XImage* pImage = XGetImage(m_pDisplay, m_nWindow, 0, 0, static_cast<unsigned>(size.cx),
                               static_cast<unsigned>(size.cy), AllPlanes, ZPixmap);
    if (!pImage)
        return {}; // a part of it is outside the screen
    for (int y = 0; y < size.cy; ++y) {
        for (int x = 0; x < size.cx; ++x)
            picture.Set(x, y, static_cast<std::uint32_t>(XGetPixel(pImage, x, y)) & 0xFFFFFFU);
    }
    XDestroyImage(pImage);
    return picture;
}

void Monitor::Resize(CSize size)
{
    XMoveResizeWindow(m_pDisplay, m_nWindow, 0, 0, static_cast<unsigned>(size.cx),
                      static_cast<unsigned>(size.cy));
    Flush();
}

void Monitor::Focus(bool bWindow)
{
    XSetInputFocus(m_pDisplay, bWindow ? m_nWindow : None, RevertToNone, CurrentTime);
    Flush();
}

void Monitor::AskToClose()
{
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = m_nWindow;
    event.xclient.message_type = XInternAtom(m_pDisplay, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(m_pDisplay, "WM_DELETE_WINDOW", False));
    XSendEvent(m_pDisplay, m_nWindow, False, NoEventMask, &event);
    Flush();
}

void Monitor::CutOff()
{
    XKillClient(m_pDisplay, m_nWindow);
    Flush();
}

// --- hands

void Monitor::MoveMouse(CPoint pt)
{
    Window child = 0;
    int x = 0, y = 0;
    XTranslateCoordinates(m_pDisplay, m_nWindow, DefaultRootWindow(m_pDisplay), pt.x, pt.y, &x, &y, &child);
    XTestFakeMotionEvent(m_pDisplay, -1, x, y, CurrentTime);
    Flush();
}

void Monitor::Button(bool bDown, unsigned nButton)
{
    XTestFakeButtonEvent(m_pDisplay, nButton, bDown ? True : False, CurrentTime);
    Flush();
}

void Monitor::Click(CPoint pt, unsigned nButton)
{
    MoveMouse(pt);
    Button(true, nButton);
    Button(false, nButton);
}

void Monitor::Key(const char* pszName, bool bDown)
{
    const KeyCode code = XKeysymToKeycode(m_pDisplay, XStringToKeysym(pszName));
    XTestFakeKeyEvent(m_pDisplay, code, bDown ? True : False, CurrentTime);
    Flush();
}

void Monitor::Press(const char* pszName)
{
    Key(pszName, true);
    Key(pszName, false);
}

void Monitor::TypeComposed(unsigned nKeysym)
{
    int nFirst = 0, nLast = 0;
    XDisplayKeycodes(m_pDisplay, &nFirst, &nLast);
    m_nSpareKey = static_cast<unsigned>(nLast);
    std::array<KeySym, 2> symbols{nKeysym, nKeysym};
    XChangeKeyboardMapping(m_pDisplay, nLast, 2, symbols.data(), 1);
    Flush();
    XTestFakeKeyEvent(m_pDisplay, m_nSpareKey, True, CurrentTime);
    XTestFakeKeyEvent(m_pDisplay, m_nSpareKey, False, CurrentTime);
    Flush();
}

std::uint64_t Monitor::CursorHash() const
{
    XFixesCursorImage* pImage = XFixesGetCursorImage(m_pDisplay);
    std::uint64_t nHash = 0;
    for (int n = 0; pImage && n < pImage->width * pImage->height; ++n)
        nHash = nHash * 31 + pImage->pixels[n];
    XFree(pImage);
    return nHash;
}
