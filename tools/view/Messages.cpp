// The forms of messages, and the one line that progress lives in.
#include "Messages.h"

#include "Printable.h"
#include "xml/TextPlace.h"

#include <cstdio>
#include <unistd.h>
#include <utility>

namespace viewer {

Messages::Messages(std::string strFile)
    : m_strFile(std::move(strFile)), m_bTerminal(::isatty(STDERR_FILENO) == 1)
{
}

Messages::~Messages()
{
    ClearProgress();
}

void Messages::SetText(const CString& strText, Locator locator)
{
    m_strText = strText;
    m_locator = std::move(locator);
    m_setWarned.clear();
}

void Messages::Error(const std::string& strMessage, int nPosition)
{
    PrintError(Place(nPosition) + "error: " + strMessage);
}

void Messages::Warning(const std::string& strMessage, int nPosition)
{
    const std::string strLine = Place(nPosition) + "warning: " + strMessage;
    if (m_setWarned.insert(strLine).second)
        Print(strLine);
}

void Messages::Failure(const std::string& strMessage)
{
    PrintError("splitframe-view: " + strMessage);
}

void Messages::Note(const std::string& strMessage)
{
    Print("splitframe-view: " + strMessage);
}

// The names say where, so far as the message does not.
void Messages::Report(const Diagnostic& diagnostic)
{
    std::string strWhere;
    const auto add = [&](const char* pszKind, const CString& strName) {
        if (!strName.IsEmpty())
            strWhere +=
                (strWhere.empty() ? " (" : ", ") + std::string(pszKind) + "'" + Printable(strName) + "'";
    };
    add("", diagnostic.strName);
    add("style ", diagnostic.strStyle);
    add("frame ", diagnostic.strFrame);
    const int nPosition =
        diagnostic.nPosition < 0 && m_locator ? m_locator(diagnostic) : diagnostic.nPosition;
    Warning(Printable(diagnostic.strMessage) + strWhere + (strWhere.empty() ? "" : ")"), nPosition);
}

void Messages::Progress(int nDone, int nTotal, const std::string& strWhat)
{
    if (!m_bTerminal || nTotal < 2)
        return;
    if (nDone >= nTotal)
        return ClearProgress();
    std::fprintf(stderr, "\r\x1B[K[%d/%d] %.60s", nDone + 1, nTotal, strWhat.c_str());
    std::fflush(stderr);
    m_bProgress = true;
}

void Messages::Print(const std::string& strLine)
{
    ClearProgress();
    std::fprintf(stderr, "%s\n", strLine.c_str());
}

void Messages::PrintError(const std::string& strLine)
{
    Print(strLine);
    if (m_errorListener)
        m_errorListener(strLine);
}

void Messages::ClearProgress()
{
    if (m_bProgress)
        std::fputs("\r\x1B[K", stderr);
    m_bProgress = false;
}

std::string Messages::Place(int nPosition) const
{
    if (nPosition < 0)
        return m_strFile + ": ";
    const TextPlace place = FindTextPlace(m_strText, nPosition);
    return m_strFile + ":" + std::to_string(place.nLine) + ":" + std::to_string(place.nColumn) + ": ";
}

} // namespace viewer
