// A plain visible top-level window for tests that need a parent for units, and nothing else.
#pragma once

#include "platform/window/Wnd.h"

namespace testing_support {

class HostWindow : public CWnd
{
public:
    explicit HostWindow(const CRect& rc = CRect(0, 0, 1000, 700), bool bVisible = true)
    {
        CreateEx(0, AfxRegisterWndClass(0), L"host", WS_POPUP | (bVisible ? WS_VISIBLE : 0), rc, nullptr, 0);
    }
};

} // namespace testing_support
