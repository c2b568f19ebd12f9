// Buttons, keys and the modal loop of message boxes.
#include "platform/window/MessageBox.h"

#include "platform/graphics/SystemColors.h"
#include "platform/window/Focus.h"
#include "platform/window/Look.h"
#include "platform/window/MenuText.h"
#include "platform/window/MessageBoxIcon.h"
#include "platform/window/PaintDC.h"
#include "platform/window/WindowTree.h"

#include <algorithm>
#include <utility>

namespace splitframe {

IMPLEMENT_DYNAMIC(CMessageBox, CWnd)

BEGIN_MESSAGE_MAP(CMessageBox, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_CLOSE()
ON_WM_KEYDOWN()
ON_WM_CHAR()
ON_WM_SYSCHAR()
ON_WM_MOUSEMOVE()
ON_WM_MOUSELEAVE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
END_MESSAGE_MAP()

namespace {

constexpr int CAPTION_HEIGHT = 32;
constexpr int PADDING = 20;
constexpr int ICON_GAP = 14;
constexpr int MAX_TEXT_WIDTH = 420;
constexpr int MIN_WIDTH = 280;
constexpr int BUTTON_WIDTH = 88;
constexpr int BUTTON_HEIGHT = 28;
constexpr int BUTTON_GAP = 8;
constexpr int FOOTER_HEIGHT = 52;

struct ButtonKind
{
    int nID;
    const wchar_t* pszLabel;
};

std::vector<ButtonKind> ButtonsOf(UINT nType)
{
    switch (nType & MB_TYPEMASK) {
    case MB_OKCANCEL:
        return {{IDOK, L"OK"}, {IDCANCEL, L"Cancel"}};
    case MB_ABORTRETRYIGNORE:
        return {{IDABORT, L"&Abort"}, {IDRETRY, L"&Retry"}, {IDIGNORE, L"&Ignore"}};
    case MB_YESNOCANCEL:
        return {{IDYES, L"&Yes"}, {IDNO, L"&No"}, {IDCANCEL, L"Cancel"}};
    case MB_YESNO:
        return {{IDYES, L"&Yes"}, {IDNO, L"&No"}};
    case MB_RETRYCANCEL:
        return {{IDRETRY, L"&Retry"}, {IDCANCEL, L"Cancel"}};
    default:
        return {{IDOK, L"OK"}};
    }
}

int TextHeight(const CString& strText, int nWidth)
{
    CDC dc;
    SelectLookFont(dc);
    CRect rc(0, 0, nWidth, 0);
    dc.DrawText(strText, &rc, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
    return rc.Height();
}

// As wide as the longest line needs, up to the limit at which lines are broken.
int TextWidth(const CString& strText, int nMost)
{
    CDC dc;
    SelectLookFont(dc);
    CRect rc(0, 0, nMost, 0);
    dc.DrawText(strText, &rc, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
    return std::min(rc.Width(), nMost);
}

CRect CentredOver(const CRect& rcOwner, CSize size, const CRect& rcRoom)
{
    const CPoint ptCentre = (rcOwner.IsRectEmpty() ? rcRoom : rcOwner).CenterPoint();
    const auto inside = [](int n, int nLength, int nFrom, int nTo) {
        return std::max(nFrom, std::min(n, nTo - nLength));
    };
    return {CPoint(inside(ptCentre.x - size.cx / 2, size.cx, rcRoom.left, rcRoom.right),
                   inside(ptCentre.y - size.cy / 2, size.cy, rcRoom.top, rcRoom.bottom)),
            size};
}

// Disables a window for a while, and gives focus and activation back to where they were.
class ModalScope
{
public:
    explicit ModalScope(HWND hOwner)
        : m_hOwner(hOwner), m_hFocus(::GetFocus()), m_hActive(::GetActiveWindow())
    {
        m_bDisabled = IsWindowEnabled(hOwner) != FALSE;
        if (m_bDisabled)
            EnableWindow(hOwner, FALSE);
    }
    // Before the box goes: activation moves on to an owner that is enabled.
    void EnableOwner()
    {
        if (m_bDisabled)
            EnableWindow(m_hOwner, TRUE);
        m_bDisabled = false;
    }
    ~ModalScope()
    {
        EnableOwner();
        if (!::GetActiveWindow())
            return; // the application was left meanwhile; it has noted the focus itself
        if (IsWindow(m_hActive))
            SetActiveWindow(m_hActive);
        if (IsWindow(m_hFocus))
            SetFocus(m_hFocus);
    }
    ModalScope(const ModalScope&) = delete;
    ModalScope& operator=(const ModalScope&) = delete;

private:
    HWND m_hOwner;
    HWND m_hFocus;
    HWND m_hActive;
    bool m_bDisabled = false;
};

} // namespace

CMessageBox::CMessageBox(MessageBoxRequest request) : m_request(std::move(request))
{
    for (const ButtonKind& kind : ButtonsOf(m_request.nType))
        m_arrButton.push_back({kind.nID, CString(kind.pszLabel), CRect()});
    const UINT nDefault = (m_request.nType & MB_DEFMASK) / MB_DEFBUTTON2;
    m_nCurrent = nDefault < m_arrButton.size() ? static_cast<int>(nDefault) : 0;
}

CMessageBox::~CMessageBox() = default;

int CMessageBox::Run(HWND hOwner)
{
    const CCallScope scope;
    const bool bOwned = IsWindow(hOwner) != FALSE;
    ModalScope modal(hOwner);
    if (Open(hOwner)) {
        const HWND hBox = GetSafeHwnd();
        RunLoopWhile([&] { return m_nAnswer == 0 && IsWindow(hBox) && (!bOwned || IsWindow(hOwner)); });
        modal.EnableOwner();
        DestroyWindow();
    }
    return m_nAnswer != 0 ? m_nAnswer : IDWhenClosed() != 0 ? IDWhenClosed() : m_arrButton.back().nID;
}

BOOL CMessageBox::Open(HWND hOwner)
{
    const CRect rcRoom(Desktop().rc);
    CRect rcOwner;
    ::GetWindowRect(hOwner, &rcOwner);
    const CRect rc = CentredOver(rcOwner, Layout(rcRoom), rcRoom);
    const LPCWSTR pszClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW));
    if (!CreateEx(0, pszClass, m_request.strCaption, WS_POPUP, rc.left, rc.top, rc.Width(), rc.Height(),
                  hOwner, nullptr))
        return FALSE;
    ShowWindow(SW_SHOW);
    SetActiveWindow();
    SetFocus();
    return GetSafeHwnd() != nullptr;
}

CSize CMessageBox::Layout(const CRect& rcRoom)
{
    const int nIcon = HasBoxIcon(m_request.nType) ? BOX_ICON_SIZE + ICON_GAP : 0;
    const int nButtons = GetButtonCount() * (BUTTON_WIDTH + BUTTON_GAP) - BUTTON_GAP;
    const int nAround = 2 * PADDING + nIcon;
    const int nMost = std::max(1, std::min(MAX_TEXT_WIDTH, rcRoom.Width() - nAround));
    const int nText = TextWidth(m_request.strText, nMost);
    const int nCaption = MeasureLabel(m_request.strCaption, DT_NOPREFIX) + 2 * PADDING;
    const int nWidth =
        std::max({nText + nAround, nButtons + 2 * PADDING, std::min(nCaption, MAX_TEXT_WIDTH), MIN_WIDTH});
    const int nTextHeight = TextHeight(m_request.strText, nMost);
    const int nBody = std::max(nTextHeight, nIcon > 0 ? BOX_ICON_SIZE : 0) + 2 * PADDING;
    // A text that is too long for the display is cut: the buttons are always in sight.
    const int nHeight = std::min(CAPTION_HEIGHT + nBody + FOOTER_HEIGHT,
                                 std::max(rcRoom.Height(), CAPTION_HEIGHT + FOOTER_HEIGHT));
    const int nFooter = nHeight - FOOTER_HEIGHT;
    m_rcText = CRect(PADDING + nIcon, CAPTION_HEIGHT + PADDING, nWidth - PADDING, nFooter);
    if (nTextHeight < BOX_ICON_SIZE && nIcon > 0)
        m_rcText.top += (BOX_ICON_SIZE - nTextHeight) / 2;
    int nLeft = nWidth - PADDING - nButtons;
    for (Button& button : m_arrButton) {
        button.rc = CRect(CPoint(nLeft, nFooter + (FOOTER_HEIGHT - BUTTON_HEIGHT) / 2),
                          CSize(BUTTON_WIDTH, BUTTON_HEIGHT));
        nLeft += BUTTON_WIDTH + BUTTON_GAP;
    }
    return {nWidth, nHeight};
}

// --- buttons

int CMessageBox::GetButtonID(int nButton) const
{
    return nButton >= 0 && nButton < GetButtonCount() ? m_arrButton[static_cast<std::size_t>(nButton)].nID
                                                      : 0;
}

CRect CMessageBox::GetButtonRect(int nButton) const
{
    return nButton >= 0 && nButton < GetButtonCount() ? m_arrButton[static_cast<std::size_t>(nButton)].rc
                                                      : CRect();
}

int CMessageBox::ButtonAt(CPoint pt) const
{
    for (int n = 0; n < GetButtonCount(); ++n) {
        if (GetButtonRect(n).PtInRect(pt))
            return n;
    }
    return -1;
}

// Escape and the close request: cancel, or the only button there is; 0 when the user has to decide.
int CMessageBox::IDWhenClosed() const
{
    const bool bCancel = std::ranges::find(m_arrButton, IDCANCEL, &Button::nID) != m_arrButton.end();
    return bCancel ? IDCANCEL : m_arrButton.size() == 1 ? m_arrButton.front().nID : 0;
}

void CMessageBox::MoveOn(int nStep)
{
    m_nCurrent = (m_nCurrent + nStep + GetButtonCount()) % GetButtonCount();
    Invalidate();
}

void CMessageBox::Press(int nButton)
{
    if (m_nAnswer == 0)
        m_nAnswer = GetButtonID(nButton);
}

// --- input

void CMessageBox::OnClose()
{
    if (m_nAnswer == 0)
        m_nAnswer = IDWhenClosed();
}

void CMessageBox::OnKeyDown(UINT nChar, UINT /*nRepCnt*/, UINT /*nFlags*/)
{
    switch (nChar) {
    case VK_RETURN:
    case VK_SPACE:
        return Press(m_nCurrent);
    case VK_ESCAPE:
        return OnClose();
    case VK_TAB:
        return MoveOn(::GetKeyState(VK_SHIFT) < 0 ? -1 : 1);
    case VK_LEFT:
    case VK_UP:
        return MoveOn(-1);
    case VK_RIGHT:
    case VK_DOWN:
        return MoveOn(1);
    default:
        return;
    }
}

void CMessageBox::OnChar(UINT nChar, UINT /*nRepCnt*/, UINT /*nFlags*/)
{
    TypeLetter(nChar);
}

void CMessageBox::OnSysChar(UINT nChar, UINT /*nRepCnt*/, UINT /*nFlags*/)
{
    TypeLetter(nChar);
}

void CMessageBox::TypeLetter(UINT nChar)
{
    std::vector<CString> arrLabel;
    for (const Button& button : m_arrButton)
        arrLabel.push_back(button.strLabel);
    Press(FindByLetter(arrLabel, -1, static_cast<wchar_t>(nChar)).nItem);
}

void CMessageBox::OnMouseMove(UINT /*nFlags*/, CPoint pt)
{
    SetHot(ButtonAt(pt));
}

void CMessageBox::OnMouseLeave()
{
    SetHot(-1);
}

void CMessageBox::SetHot(int nButton)
{
    if (nButton != m_nHot)
        Invalidate();
    m_nHot = nButton;
}

void CMessageBox::OnLButtonDown(UINT /*nFlags*/, CPoint pt)
{
    m_nPressed = ButtonAt(pt);
    if (m_nPressed < 0)
        return;
    m_nCurrent = m_nPressed;
    Invalidate();
}

void CMessageBox::OnLButtonUp(UINT /*nFlags*/, CPoint pt)
{
    const int nPressed = std::exchange(m_nPressed, -1);
    if (nPressed >= 0 && nPressed == ButtonAt(pt))
        Press(nPressed);
    Invalidate();
}

// --- painting

BOOL CMessageBox::OnEraseBkgnd(CDC* /*pDC*/)
{
    return TRUE; // OnPaint covers all of it
}

void CMessageBox::OnPaint()
{
    CPaintDC dc(this);
    CRect rc;
    GetClientRect(&rc);
    dc.FillSolidRect(&rc, ::GetSysColor(COLOR_WINDOW));
    dc.FillSolidRect(0, 0, rc.right, CAPTION_HEIGHT, ::GetSysColor(COLOR_ACTIVECAPTION));
    dc.FillSolidRect(0, rc.bottom - FOOTER_HEIGHT, rc.right, FOOTER_HEIGHT, ::GetSysColor(COLOR_BTNFACE));
    dc.FillSolidRect(0, rc.bottom - FOOTER_HEIGHT, rc.right, 1, ::GetSysColor(COLOR_3DLIGHT));
    CBrush brushFrame(::GetSysColor(COLOR_ACTIVEBORDER));
    dc.FrameRect(&rc, &brushFrame);
    SelectLookFont(dc);
    dc.SetTextColor(::GetSysColor(COLOR_CAPTIONTEXT));
    CRect rcCaption(PADDING, 0, rc.right - PADDING, CAPTION_HEIGHT);
    dc.DrawText(m_request.strCaption, &rcCaption, DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
    dc.SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
    CRect rcText = m_rcText;
    dc.DrawText(m_request.strText, &rcText, DT_WORDBREAK | DT_NOPREFIX);
    DrawBoxIcon(dc, m_request.nType, {PADDING, CAPTION_HEIGHT + PADDING});
    for (int n = 0; n < GetButtonCount(); ++n)
        DrawButton(dc, n);
}

// The button that Enter presses has a frame in the colour of what is active.
void CMessageBox::DrawButton(CDC& dc, int nButton) const
{
    const Button& button = m_arrButton[static_cast<std::size_t>(nButton)];
    const bool bCurrent = nButton == m_nCurrent;
    const bool bDown = nButton == m_nPressed && nButton == m_nHot;
    const int nFace = bDown ? COLOR_ACTIVECAPTION : nButton == m_nHot ? COLOR_MENUHILIGHT : COLOR_WINDOW;
    CBrush brush(::GetSysColor(nFace));
    CPen pen(PS_SOLID, 1, ::GetSysColor(bCurrent ? COLOR_HIGHLIGHT : COLOR_WINDOWFRAME));
    CBrush* pBrushBefore = dc.SelectObject(&brush);
    CPen* pPenBefore = dc.SelectObject(&pen);
    dc.RoundRect(button.rc, {6, 6});
    if (bCurrent) {
        CRect rcInner = button.rc;
        rcInner.DeflateRect(1, 1);
        dc.RoundRect(rcInner, {4, 4});
    }
    dc.SelectObject(pBrushBefore);
    dc.SelectObject(pPenBefore);
    dc.SetTextColor(::GetSysColor(COLOR_BTNTEXT));
    CRect rcText = button.rc;
    dc.DrawText(button.strLabel, &rcText, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

int ShowMessageBox(HWND hOwner, const MessageBoxRequest& request)
{
    const CCallScope scope;
    ReleaseCapture(); // the box has the mouse from now on
    PaintNow();
    if (const int nAnswer = CurrentDisplay().ShowMessageBox(request))
        return nAnswer;
    WindowRecord* pOwner = FindWindowRecord(hOwner);
    CMessageBox box(request);
    return box.Run(pOwner ? TopLevelOf(*pOwner).Handle() : nullptr);
}

} // namespace splitframe

using namespace splitframe;

int AfxMessageBox(LPCWSTR pszText, UINT nType, UINT)
{
    const HWND hOwner = GetActiveWindow() ? GetActiveWindow() : MainTopLevel();
    const CWnd* pOwner = CWnd::FromHandle(hOwner);
    return ShowMessageBox(hOwner, {CString(pszText), pOwner ? pOwner->GetWindowText() : CString(), nType});
}

int MessageBoxW(HWND hWnd, LPCWSTR pszText, LPCWSTR pszCaption, UINT nType)
{
    return ShowMessageBox(hWnd, {CString(pszText), CString(pszCaption), nType});
}

int CWnd::MessageBox(LPCWSTR pszText, LPCWSTR pszCaption, UINT nType)
{
    return MessageBoxW(m_hWnd, pszText, pszCaption, nType);
}
