// The window tree as text, and the check of its rules.
#include "platform/window/WindowClass.h"
#include "platform/window/WindowManager.h"
#include "platform/window/WindowTree.h"
#include "platform/window/Wnd.h"

namespace splitframe {

namespace {

CString ClassNameOf(const WindowRecord& record)
{
    if (!record.pWnd)
        return CString(L"(no object)");
    return CString(record.pWnd->GetRuntimeClass()->m_lpszClassName);
}

void AppendIf(CString& strLine, bool bHolds, const wchar_t* pszWord)
{
    if (bHolds)
        strLine += pszWord;
}

CString Describe(const WindowRecord& record)
{
    CString strLine = ClassNameOf(record);
    if (!record.strText.IsEmpty())
        strLine += CString(L" \"") + record.strText + L"\"";
    CString strPlace;
    strPlace.Format(L" %d,%d %dx%d", record.rc.left, record.rc.top, record.rc.right - record.rc.left,
                    record.rc.bottom - record.rc.top);
    strLine += strPlace;
    const HWND hWnd = record.Handle();
    AppendIf(strLine, !record.IsShown(), L" hidden");
    AppendIf(strLine, (record.dwStyle & WS_DISABLED) != 0, L" disabled");
    AppendIf(strLine, GetActiveWindow() == hWnd, L" active");
    AppendIf(strLine, GetFocus() == hWnd, L" focus");
    AppendIf(strLine, GetCapture() == hWnd, L" capture");
    AppendIf(strLine, !IsEmptyRect(record.rcOwn) || !IsEmptyRect(record.rcTree), L" marked");
    return strLine;
}

CString Fault(const WindowRecord& record, const wchar_t* pszRule)
{
    return Describe(record) + L": " + pszRule;
}

CString CheckLinks(const WindowRecord& parent)
{
    const WindowRecord* pBefore = nullptr;
    for (const WindowRecord* pEach = parent.pFirst; pEach; pEach = pEach->pBelow) {
        if (pEach->pParent != &parent)
            return Fault(*pEach, L"names another parent");
        if (pEach->pAbove != pBefore)
            return Fault(*pEach, L"names another window above");
        if (FindWindowRecord(pEach->Handle()) != pEach)
            return Fault(*pEach, L"is not found by its handle");
        if (pEach->rc.right < pEach->rc.left || pEach->rc.bottom < pEach->rc.top)
            return Fault(*pEach, L"has a negative size");
        if (pEach->pWnd && pEach->pWnd->GetSafeHwnd() != pEach->Handle())
            return Fault(*pEach, L"its object names another window");
        pBefore = pEach;
    }
    return parent.pLast != pBefore ? CString(L"a parent names another last child") : CString();
}

// Nothing that can be seen may be marked without its ancestors knowing.
CString CheckMarks(const WindowRecord& record)
{
    if (!record.IsMarked() || VisibleFrame(record).IsEmpty())
        return {};
    for (const WindowRecord* pEach = record.pParent; pEach; pEach = pEach->pParent) {
        const bool bCoveredByMark = !IsEmptyRect(pEach->rcTree) || pEach->bRestacked;
        if (bCoveredByMark)
            return {};
    }
    const bool bSeenMark = !IsEmptyRect(record.rcOwn) || !IsEmptyRect(record.rcTree);
    for (const WindowRecord* pEach = record.pParent; bSeenMark && pEach; pEach = pEach->pParent) {
        if (!pEach->bBelow)
            return Fault(record, L"is marked, and an ancestor does not know");
    }
    return {};
}

} // namespace

CString DumpWindowTree(HWND hRoot)
{
    const WindowRecord* pRoot = hRoot ? FindWindowRecord(hRoot) : &Desktop();
    CString strDump;
    for (const WindowRecord* pEach = pRoot; pEach; pEach = NextInTree(pEach, pRoot)) {
        if (pEach == &Desktop())
            continue;
        const int nIndent = DepthOf(*pEach) - 1;
        strDump += CString(L' ', 2 * nIndent) + Describe(*pEach) + L"\n";
    }
    return strDump;
}

CString CheckWindowTree()
{
    UINT nCount = 0;
    for (const WindowRecord* pEach = &Desktop(); pEach; pEach = NextInTree(pEach, &Desktop())) {
        CString strFault = CheckLinks(*pEach);
        if (strFault.IsEmpty() && pEach != &Desktop())
            strFault = CheckMarks(*pEach);
        if (!strFault.IsEmpty())
            return strFault;
        nCount += pEach != &Desktop() ? 1U : 0U;
    }
    if (nCount != g_windows.LiveCount())
        return CString(L"windows outside the tree");
    for (const HWND hHolder : {GetFocus(), GetCapture(), GetActiveWindow()}) {
        if (hHolder && !IsWindow(hHolder))
            return CString(L"focus, capture or activation names a window that is gone");
    }
    return {};
}

} // namespace splitframe
