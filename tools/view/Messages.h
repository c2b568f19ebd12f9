// What splitframe-view tells on standard error: errors, warnings, progress. Knows the layout file's name and
// how positions in its text become lines and columns; knows no window.
#pragma once

#include "platform/base/Diagnostics.h"
#include "platform/base/String.h"

#include <functional>
#include <set>
#include <string>
#include <utility>

namespace viewer {

class Messages
{
public:
    /// @param strFile  the layout file as the user typed it
    explicit Messages(std::string strFile);
    Messages(const Messages&) = delete;
    Messages& operator=(const Messages&) = delete;
    /// Clears the progress line.
    ~Messages();

    /// Where a fault without a position of its own stands in the text; -1: nowhere.
    using Locator = std::function<int(const Diagnostic&)>;

    /// Sets the text that positions refer to, once it is known, and who finds things in it. Both are used
    /// until the next call. Warnings are counted, and told again, from here on.
    void SetText(const CString& strText, Locator locator);

    /// Who else is told of errors and failures, with what is printed; empty: nobody.
    void SetErrorListener(std::function<void(const std::string&)> listener)
    {
        m_errorListener = std::move(listener);
    }

    /// How many warnings the text has caused.
    int GetWarningCount() const { return static_cast<int>(m_setWarned.size()); }

    /// Prints FILE:LINE:COLUMN: error: MESSAGE. @param nPosition  index into the text; -1: the file as a
    /// whole
    void Error(const std::string& strMessage, int nPosition = -1);

    /// Prints FILE:LINE:COLUMN: warning: MESSAGE, each warning once.
    void Warning(const std::string& strMessage, int nPosition = -1);

    /// Prints an error that is not about the layout file.
    void Failure(const std::string& strMessage);

    /// Prints a remark.
    void Note(const std::string& strMessage);

    /// Prints a fault that the library tolerated as a warning.
    void Report(const Diagnostic& diagnostic);

    /// Shows how far long work has come, on a terminal only. Equal counts end the line.
    void Progress(int nDone, int nTotal, const std::string& strWhat);

private:
    void Print(const std::string& strLine);
    void PrintError(const std::string& strLine);
    void ClearProgress();
    std::string Place(int nPosition) const;

    std::string m_strFile;
    CString m_strText;
    Locator m_locator;
    std::function<void(const std::string&)> m_errorListener;
    std::set<std::string> m_setWarned;
    bool m_bTerminal;
    bool m_bProgress = false; // a progress line stands on the terminal
};

} // namespace viewer
