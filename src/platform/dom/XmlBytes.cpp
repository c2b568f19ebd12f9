// Finding out the encoding of an XML file, and converting from it by iconv.
#include "platform/dom/internal/XmlBytes.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <iconv.h>
#include <string_view>

namespace splitframe {
namespace {

struct Signature
{
    std::string_view bytes; // at the beginning of the file
    std::size_t nMark;      // how many of them are a byte-order mark, not text
    const char* pszEncoding;
};

// The marks, and how "<?" begins without one. The longer ones stand first where one begins like another.
constexpr std::string_view operator""_bytes(const char* psz, std::size_t nCount)
{
    return {psz, nCount};
}
constexpr Signature SIGNATURES[] = {
    {"\xFF\xFE\0\0"_bytes, 4, "UTF-32LE"}, {"\0\0\xFE\xFF"_bytes, 4, "UTF-32BE"},
    {"\xEF\xBB\xBF"_bytes, 3, "UTF-8"},    {"\xFF\xFE"_bytes, 2, "UTF-16LE"},
    {"\xFE\xFF"_bytes, 2, "UTF-16BE"},     {"<\0\0\0"_bytes, 0, "UTF-32LE"},
    {"\0\0\0<"_bytes, 0, "UTF-32BE"},      {"<\0"_bytes, 0, "UTF-16LE"},
    {"\0<"_bytes, 0, "UTF-16BE"},
};

bool IsBlank(char ch)
{
    return ch == ' ' || ch == '\t' || ch == '\r' || ch == '\n';
}

// The quoted value behind "name=" in a declaration; empty when there is none.
std::string_view ValueIn(std::string_view declaration, std::string_view name)
{
    std::size_t nAt = declaration.find(name);
    if (nAt == std::string_view::npos || nAt == 0 || !IsBlank(declaration[nAt - 1]))
        return {};
    nAt += name.size();
    const auto skipBlanks = [&] {
        while (nAt < declaration.size() && IsBlank(declaration[nAt]))
            ++nAt;
    };
    skipBlanks();
    if (nAt >= declaration.size() || declaration[nAt] != '=')
        return {};
    ++nAt;
    skipBlanks();
    if (nAt >= declaration.size() || (declaration[nAt] != '"' && declaration[nAt] != '\''))
        return {};
    const std::size_t nEnd = declaration.find(declaration[nAt], nAt + 1);
    return nEnd == std::string_view::npos ? std::string_view() : declaration.substr(nAt + 1, nEnd - nAt - 1);
}

// What the XML declaration at the beginning names, in capitals; empty when it names nothing.
std::string DeclaredEncoding(std::string_view text)
{
    constexpr std::size_t LONGEST_DECLARATION = 1024;
    text = text.substr(0, LONGEST_DECLARATION);
    if (!text.starts_with("<?xml") || text.size() < 6 || !IsBlank(text[5]))
        return {};
    std::string name(ValueIn(text.substr(0, text.find("?>")), "encoding"));
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char ch) { return static_cast<char>(std::toupper(ch)); });
    return name;
}

// Letters, digits, dots, dashes: nothing that the converter would take for an option or a path.
bool IsEncodingName(std::string_view name)
{
    return !name.empty() && std::all_of(name.begin(), name.end(), [](unsigned char ch) {
        return std::isalnum(ch) || ch == '-' || ch == '_' || ch == '.';
    });
}

class Converter
{
public:
    explicit Converter(const std::string& encoding) : m_handle(::iconv_open("UTF-8", encoding.c_str())) {}
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;
    ~Converter()
    {
        if (IsOpen())
            ::iconv_close(m_handle);
    }
    bool IsOpen() const { return m_handle != reinterpret_cast<iconv_t>(-1); }

    // @return whether all bytes were of the encoding
    bool Convert(std::string_view bytes, std::string& text)
    {
        char* pFrom = const_cast<char*>(bytes.data()); // read only, whatever the interface says
        std::size_t nLeft = bytes.size();
        std::size_t nWritten = 0;
        bool bDone = false;
        while (!bDone) {
            text.resize(std::max(nWritten + nLeft + SPARE, nWritten * 3 / 2));
            char* pTo = text.data() + nWritten;
            std::size_t nRoom = text.size() - nWritten;
            // The last call gives out what the converter still keeps.
            const bool bLast = nLeft == 0;
            const std::size_t nResult = bLast ? ::iconv(m_handle, nullptr, nullptr, &pTo, &nRoom)
                                              : ::iconv(m_handle, &pFrom, &nLeft, &pTo, &nRoom);
            nWritten = text.size() - nRoom;
            if (nResult == static_cast<std::size_t>(-1) && errno != E2BIG)
                return false;
            bDone = bLast && nResult != static_cast<std::size_t>(-1);
        }
        text.resize(nWritten);
        return true;
    }

private:
    static constexpr std::size_t SPARE = 64;
    iconv_t m_handle;
};

} // namespace

std::optional<std::string> XmlBytesToUtf8(std::string&& bytes)
{
    std::string encoding;
    std::size_t nMark = 0;
    const auto* const pSignature =
        std::find_if(std::begin(SIGNATURES), std::end(SIGNATURES),
                     [&](const Signature& s) { return bytes.starts_with(s.bytes); });
    if (pSignature != std::end(SIGNATURES)) {
        encoding = pSignature->pszEncoding;
        nMark = pSignature->nMark;
    } else {
        encoding = DeclaredEncoding(bytes);
        // A file that is read as bytes can not be UTF-16, whatever it says.
        if (encoding.empty() || encoding.starts_with("UTF-16") || encoding == "UTF8")
            encoding = "UTF-8";
    }
    if (encoding == "UTF-8" || encoding == "US-ASCII") {
        bytes.erase(0, nMark);
        return std::move(bytes);
    }
    if (!IsEncodingName(encoding))
        return std::nullopt;
    Converter converter(encoding);
    std::string text;
    if (!converter.IsOpen() || !converter.Convert(std::string_view(bytes).substr(nMark), text))
        return std::nullopt;
    return text;
}

} // namespace splitframe
