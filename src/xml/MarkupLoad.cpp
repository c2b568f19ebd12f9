// Loading a document from a file.
#include "xml/Markup.h"

#include "platform/base/Exception.h"
#include "xml/FileText.h"

#include <utility>

int CMarkup::Load(const wchar_t* pszFileName)
{
    CString strText;
    try {
        const FileText file(pszFileName);
        if (!file.IsText())
            return x_RefuseFile(Failure::TextCut,
                                L"The file is neither narrow text nor UTF-16 with a byte-order mark");
        strText = file.GetText();
    } catch (CFileException* pException) {
        const CString strWhy = pException->GetErrorMessage();
        pException->Delete();
        return x_RefuseFile(Failure::CannotRead, strWhy);
    }
    return x_SetText(std::move(strText)) ? 1 : 0;
}

int CMarkup::x_RefuseFile(Failure failure, const CString& strWhy)
{
    m_failure = failure;
    m_strFailure = strWhy;
    m_nFailurePos = -1;
    return 0;
}
