// Reading of the command line, and the texts of --help and --version.
#include "Options.h"

#include "Commands.h"
#include "platform/graphics/Surface.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace viewer {
namespace {

std::string KeyTable()
{
    constexpr std::size_t kWidth = 14;
    std::string strText;
    for (const KeyHelp& key : ListKeys())
        strText += "  " + key.strKey + std::string(kWidth - std::min(kWidth - 1, key.strKey.size()), ' ') +
                   key.strEffect + "\n";
    return strText;
}

std::string HelpText()
{
    return std::string(R"(usage: splitframe-view [OPTION]... LAYOUT.xml

Shows the frames of a layout file in a window. Every pane holds a placeholder: its
name, its size, its parameter string, in a colour that belongs to its name.

What to show
  --list         print frames, units, styles and split lines, as tables and trees
  --frame NAME   only the frame of that name
  --style NAME   only styles of that name
  --all          every frame in every style, in the window every frame in its first;
                 else the first one that fits

  --size WxH     size of the frame's view in pixels, 1x1 to 8192x8192; a picture has
                 1024x768 otherwise
  --scale N      draw each pixel as N by N of the screen's or the picture's, 0.25 to 8

Pictures, without a window
  --png PATH     write PNG files: PATH ends in ".png" for one picture, else it is
                 a directory, made if need be, that gets FRAME-STYLE.png files

Saving
  --save-as FILE write the layout with the shares of its lines to FILE instead of
                 LAYOUT.xml: when saving in the window, else at the end

  --help         print this text
  --version      print the version

The window reads the layout file again when it changes, keeping the frames and
styles that are open. While the file is broken it shows the error and the frames
as they were. Lines that were dragged are saved into the file on demand: their LRATE
values change, and no other byte. Its keys:

)") + KeyTable() +
           R"(
A picture is the client area of the frame's view, so the layout's rectangles are
the picture's pixels. The panes leave 2 pixels free at its right and 3 at its
bottom. Without --png and --list, and without a screen, pictures go to the
directory LAYOUT-view in the current directory. The names of the files that were
written go to standard output.

Exit status: 0 done; 1 a file can't be read or written, or a name is unknown;
2 wrong usage. What is wrong in a layout file is told on standard error as
FILE:LINE:COLUMN: error: (or warning:) and a message.
)";
}

bool ParseNumber(std::string_view strText, int& nValue)
{
    const char* pEnd = strText.data() + strText.size();
    const auto [pStop, error] = std::from_chars(strText.data(), pEnd, nValue);
    return error == std::errc() && pStop == pEnd;
}

bool ParseSize(std::string_view strText, CSize& size)
{
    const std::size_t nCross = strText.find_first_of("xX");
    if (nCross == std::string_view::npos)
        return false;
    int cx = 0, cy = 0;
    if (!ParseNumber(strText.substr(0, nCross), cx) || !ParseNumber(strText.substr(nCross + 1), cy))
        return false;
    size = CSize(cx, cy);
    return cx >= 1 && cy >= 1 && cx <= kMaxSide && cy <= kMaxSide;
}

bool ParseScale(std::string_view strText, double& dScale)
{
    const char* pEnd = strText.data() + strText.size();
    const auto [pStop, error] = std::from_chars(strText.data(), pEnd, dScale);
    return error == std::errc() && pStop == pEnd && dScale >= splitframe::Surface::MIN_SCALE &&
           dScale <= splitframe::Surface::MAX_SCALE;
}

// Walks the arguments once; the first thing wrong ends the walk.
class Parser
{
public:
    explicit Parser(std::span<const char* const> args) : m_args(args) {}

    std::variant<Options, Answer, UsageError> Run()
    {
        while (m_strError.empty() && m_strAnswer.empty() && m_nNext < m_args.size())
            TakeArgument(m_args[m_nNext++]);
        if (!m_strError.empty())
            return UsageError{m_strError};
        if (!m_strAnswer.empty())
            return Answer{m_strAnswer};
        if (!m_bFile)
            return UsageError{"no layout file given"};
        return m_options;
    }

private:
    void TakeArgument(std::string_view strArgument)
    {
        if (m_bOnlyFiles || strArgument == "-" || !strArgument.starts_with("-"))
            return TakeFile(strArgument);
        if (strArgument == "--") {
            m_bOnlyFiles = true;
            return;
        }
        const std::size_t nEquals = strArgument.find('=');
        m_strName = strArgument.substr(0, nEquals);
        m_strInline = nEquals == std::string_view::npos
                          ? std::nullopt
                          : std::optional<std::string_view>(strArgument.substr(nEquals + 1));
        TakeOption();
    }

    void TakeFile(std::string_view strFile)
    {
        if (m_bFile)
            return Fail("more than one layout file: " + Quote(strFile));
        m_options.strFile = strFile;
        m_bFile = true;
    }

    void TakeOption()
    {
        if (m_strName == "--list")
            TakeFlag(m_options.bList);
        else if (m_strName == "--all")
            TakeFlag(m_options.bAll);
        else if (m_strName == "--frame")
            TakeText(m_options.strFrame);
        else if (m_strName == "--style")
            TakeText(m_options.strStyle);
        else if (m_strName == "--png")
            TakePath(m_options.strPng);
        else if (m_strName == "--save-as")
            TakePath(m_options.strSaveAs);
        else if (m_strName == "--size")
            TakeSize();
        else if (m_strName == "--scale")
            TakeScale();
        else if (m_strName == "--help" || m_strName == "-h")
            m_strAnswer = HelpText();
        else if (m_strName == "--version")
            m_strAnswer = "splitframe-view " SPLITFRAME_VERSION "\n";
        else
            Fail("unknown option " + Quote(m_strName));
    }

    void TakeFlag(bool& bFlag)
    {
        if (m_strInline)
            return Fail("option " + m_strName + " takes no value");
        bFlag = true;
    }

    void TakeText(std::optional<std::string>& strValue)
    {
        if (strValue)
            return Fail("option " + m_strName + " is given twice");
        if (m_strInline)
            strValue = *m_strInline;
        else if (m_nNext < m_args.size())
            strValue = m_args[m_nNext++];
        else
            Fail("option " + m_strName + " needs a value");
    }

    void TakePath(std::optional<std::string>& strValue)
    {
        TakeText(strValue);
        if (strValue && strValue->empty())
            Fail("option " + m_strName + " needs a file or directory");
    }

    void TakeSize()
    {
        TakeText(m_strSize);
        if (m_strError.empty() && !ParseSize(*m_strSize, m_options.size.emplace()))
            Fail("size " + Quote(*m_strSize) + " is not WIDTHxHEIGHT from 1x1 to " +
                 std::to_string(kMaxSide) + "x" + std::to_string(kMaxSide));
    }

    void TakeScale()
    {
        TakeText(m_strScale);
        if (m_strError.empty() && !ParseScale(*m_strScale, m_options.scale.emplace()))
            Fail("scale " + Quote(*m_strScale) + " is not a number from 0.25 to 8");
    }

    static std::string Quote(std::string_view strText) { return "'" + std::string(strText) + "'"; }

    void Fail(const std::string& strText) { m_strError = strText; }

    std::span<const char* const> m_args;
    std::size_t m_nNext = 0;
    Options m_options;
    bool m_bFile = false;
    bool m_bOnlyFiles = false;
    std::string m_strName;
    std::optional<std::string_view> m_strInline; // what stands after "=" in the argument
    std::optional<std::string> m_strSize;
    std::optional<std::string> m_strScale;
    std::string m_strAnswer;
    std::string m_strError;
};

} // namespace

std::variant<Options, Answer, UsageError> ParseOptions(std::span<const char* const> args)
{
    return Parser(args).Run();
}

} // namespace viewer
