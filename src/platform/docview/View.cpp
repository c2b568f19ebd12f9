// The view's ties: to its document, from creation to the end of its destructor; to its frame, which it leaves
// when it is deleted.
#include "platform/docview/View.h"

#include "platform/base/Diagnostics.h"
#include "platform/base/Exception.h"
#include "platform/docview/Document.h"
#include "platform/docview/FrameWnd.h"
#include "platform/graphics/SystemColors.h"
#include "platform/window/CallScope.h"
#include "platform/window/PaintDC.h"

IMPLEMENT_DYNAMIC(CView, CWnd)

BEGIN_MESSAGE_MAP(CView, CWnd)
ON_WM_CREATE()
ON_WM_PAINT()
END_MESSAGE_MAP()

CView::CView() = default;

CView::~CView()
{
    CancelDeleteLater(this); // a host that deletes a view which waits for its turn
    const CCallScope scope;
    DestroyWindow();
    if (m_pActiveIn)
        m_pActiveIn->LinkActiveView(nullptr);
    LeaveDocument();
}

// Host code runs when the last view goes (OnChangedViewList, OnCloseDocument), and this is a destructor.
void CView::LeaveDocument() noexcept
{
    CDocument* const pDocument = m_pDocument;
    if (!pDocument)
        return;
    Diagnostic diagnostic;
    try {
        pDocument->RemoveView(this);
        return;
    } catch (CException* pException) {
        diagnostic.strMessage = pException->GetErrorMessage();
        pException->Delete();
    } catch (...) {
        diagnostic.strMessage = L"A document threw an exception when its view left it";
    }
    ReportDiagnostic(diagnostic);
    if (pDocument->m_bAutoDelete && pDocument->m_arrView.IsEmpty())
        DeleteLater(pDocument);
}

void CView::OnInitialUpdate()
{
    OnUpdate(nullptr, 0, nullptr);
}

void CView::OnUpdate(CView* /*pSender*/, LPARAM /*lHint*/, CObject* /*pHint*/)
{
    Invalidate();
}

void CView::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType)
{
    CWnd::CalcWindowRect(lpClientRect, nAdjustType);
}

void CView::OnActivateView(BOOL /*bActivate*/, CView* /*pActivateView*/, CView* /*pDeactiveView*/) {}

BOOL CView::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    const CCallScope scope;
    return CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo) ||
           (m_pDocument && m_pDocument->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo));
}

BOOL CView::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!cs.lpszClass)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                           ::GetSysColorBrush(COLOR_BTNFACE));
    cs.style |= static_cast<LONG>(WS_CLIPCHILDREN | WS_CLIPSIBLINGS);
    return CWnd::PreCreateWindow(cs);
}

int CView::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    const auto* pContext = static_cast<const CCreateContext*>(lpCreateStruct->lpCreateParams);
    if (pContext && pContext->m_pCurrentDoc)
        pContext->m_pCurrentDoc->AddView(this);
    return 0;
}

void CView::OnPaint()
{
    CPaintDC dc(this);
    OnDraw(&dc);
}

void CView::PostNcDestroy()
{
    DeleteLater(this);
}
