// Documents and their files: opening and saving through an archive.
#include "platform/docview/Document.h"

#include "platform/file/Archive.h"
#include "platform/file/ReplacementFile.h"
#include "platform/window/CallScope.h"
#include "platform/window/MessageLoop.h"

void CDocument::SetPathName(const wchar_t* pszPathName)
{
    m_strPathName = pszPathName;
    SetTitle(m_strPathName.Mid(m_strPathName.ReverseFind(L'/') + 1));
}

BOOL CDocument::OnOpenDocument(const wchar_t* pszPathName)
{
    const CCallScope scope;
    CFile file;
    CFileException failure;
    if (!file.Open(pszPathName, CFile::modeRead, &failure)) {
        ReportSaveLoadException(pszPathName, failure, FALSE);
        return FALSE;
    }
    DeleteContents();
    try {
        CArchive ar(&file, CArchive::load | CArchive::bNoFlushOnDelete);
        Serialize(ar);
    } catch (CException* pException) {
        DeleteContents();
        ReportSaveLoadException(pszPathName, *pException, FALSE);
        pException->Delete();
        return FALSE;
    } catch (...) {
        DeleteContents();
        throw;
    }
    SetModifiedFlag(FALSE);
    return TRUE;
}

BOOL CDocument::OnSaveDocument(const wchar_t* pszPathName)
{
    const CCallScope scope;
    CReplacementFile file;
    CFileException failure;
    if (!file.Open(pszPathName, &failure)) {
        ReportSaveLoadException(pszPathName, failure, TRUE);
        return FALSE;
    }
    try {
        CArchive ar(&file, CArchive::store);
        Serialize(ar);
        ar.Close();
        file.Commit();
    } catch (CException* pException) {
        file.Close();
        ReportSaveLoadException(pszPathName, *pException, TRUE);
        pException->Delete();
        return FALSE;
    }
    SetModifiedFlag(FALSE);
    return TRUE;
}

void CDocument::ReportSaveLoadException(const wchar_t* /*pszPathName*/, const CException& exception,
                                        BOOL bSaving)
{
    const wchar_t* pszWhat =
        bSaving ? L"The document could not be saved." : L"The document could not be opened.";
    AfxMessageBox(CString(pszWhat) + L"\n" + exception.GetErrorMessage());
}
