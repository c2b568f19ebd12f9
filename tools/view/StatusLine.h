// The line at the bottom of the viewer's window: what was done last, or what is wrong with the layout file.
#pragma once

#include "platform/base/String.h"
#include "platform/graphics/Font.h"
#include "platform/window/Wnd.h"

class CStatusLine : public CWnd
{
    DECLARE_DYNAMIC(CStatusLine)

public:
    CStatusLine();
    ~CStatusLine() override;

    /// Creates the line as a hidden child of the main frame, without a size.
    BOOL CreateLine(CWnd* pMainFrame);

    /// Height in pixels.
    static constexpr int kHeight = 24;

    /// Shows a text; an error stands out.
    void ShowText(const CString& strText, bool bError);

    const CString& GetText() const { return m_strText; }
    bool IsError() const { return m_bError; }

protected:
    void OnPaint();
    BOOL OnEraseBkgnd(CDC* pDC);

    DECLARE_MESSAGE_MAP()

private:
    CFont m_font;
    CString m_strText;
    bool m_bError = false;
};
