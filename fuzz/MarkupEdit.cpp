// Any edits of any text: the table keeps describing the text exactly, and nothing outside the text is touched
// where it can not. The first byte tells how many of the following bytes are edits, two for each; the rest is
// the text.
#include "../tests/xml/OpenMarkup.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <span>

namespace {

class Editor : public COpenMarkup
{
public:
    explicit Editor(const CString& strText) : COpenMarkup(strText)
    {
        // An element appended to a text that no parse accepts does not make a parse accept it; a tag named
        // ">" is closed by its own name; and a tag that ends with "//>" still ends with "/>" once it is open.
        m_bExact = (IsWellFormed() || strText.IsEmpty()) && Describe().find(" > ") == std::string::npos &&
                   strText.Find(L"//>") < 0;
    }

    void Step(unsigned nWhat, unsigned nHow)
    {
        static const wchar_t* const names[] = {L"a", L"b", L"c[1]", L"\U0001F600"};
        static const wchar_t* const values[] = {
            nullptr, L"", L"<&>'\"", L"x", L" \r\n", L"\U0001F600]]>", L"longer than any text that is short"};
        const wchar_t* pszName = names[nHow % std::size(names)];
        const wchar_t* pszValue = values[nHow / 4 % std::size(values)];
        switch (nWhat % 12) {
        case 0:
            AddElem(pszName, pszValue);
            break;
        case 1:
        case 2:
            AddChildElem(pszName, pszValue);
            break;
        case 3:
            x_AddElem(pszName, pszValue, true, nHow >= 128);
            break;
        case 4:
            NoteValueOutsideTag(m_iMainPos, pszName);
            SetAttrib(pszName, pszValue);
            break;
        case 5:
            NoteValueOutsideTag(m_iChildPos, pszName);
            SetChildAttrib(pszName, pszValue);
            break;
        case 6:
            FindElem(nHow % 2 != 0 ? pszName : nullptr);
            break;
        case 7:
            FindChildElem(nHow % 2 != 0 ? pszName : nullptr);
            break;
        case 8:
            IntoElem();
            break;
        case 9:
            OutOfElem();
            break;
        case 10:
            nHow % 2 != 0 ? ResetChildPos() : ResetPos();
            break;
        default:
            *this = Editor(*this);
        }
        GetChildData();
        GetAttrib(pszName);
    }

    void Check()
    {
        const std::string strTable = Describe(); // reads all of it, exact or not
        const COpenMarkup fresh(GetDoc());
        if (m_bExact && (strTable != fresh.Describe() || IsWellFormed() != fresh.IsWellFormed()))
            std::abort();
    }

private:
    // A value that goes on behind the tag's '>' takes the positions behind it along when it is replaced.
    void NoteValueOutsideTag(int iPos, const wchar_t* pszName)
    {
        if (iPos == 0 || m_aElemPos[iPos].nStartTagLeft < 0 ||
            m_aElemPos[iPos].nStartTagLeft >= m_strDoc.GetLength())
            return;
        TokenPos token(m_strDoc);
        token.nScanPos = m_aElemPos[iPos].nStartTagLeft + 1;
        if (x_FindAttrib(token, pszName) && token.nTokenEnd >= m_aElemPos[iPos].nStartTagRight)
            m_bExact = false;
    }

    bool m_bExact;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    const std::span<const std::uint8_t> bytes(pData, nSize);
    if (bytes.empty())
        return 0;
    const std::size_t nEdits = std::min<std::size_t>(bytes[0], bytes.size() - 1);
    const auto text = bytes.subspan(1 + nEdits);
    Editor editor(CString::FromUtf8({reinterpret_cast<const char*>(text.data()), text.size()}));
    for (std::size_t i = 1; i + 1 <= nEdits; i += 2)
        editor.Step(bytes[i], bytes[i + 1]);
    editor.Check();
    return 0;
}
