// Writes layout definitions for tests from short notations.
#pragma once

#include <sstream>
#include <string>
#include <vector>

namespace test {

inline const std::wstring UNIT_GUID = L"11111111-0000-0000-0000-000000000001";
inline const std::wstring OTHER_UNIT_GUID = L"11111111-0000-0000-0000-000000000002";
inline const std::wstring HELPER_GUID = L"22222222-0000-0000-0000-000000000001";

/// A unit definition. strMore goes behind BOTTOMRATE.
inline std::wstring UnitXml(const std::wstring& strName, const std::wstring& strGuid = UNIT_GUID,
                            const std::wstring& strMore = L"", int nBorder = 0)
{
    return L"<BaseUnit><NAME>" + strName + L"</NAME><GUID>" + strGuid +
           L"</GUID><LOCATION X=\"1\" Y=\"2\"/><SIZE CX=\"30\" CY=\"40\"/><BORDERSTYLE>" +
           std::to_wstring(nBorder) +
           L"</BORDERSTYLE><LEFTRATE>0</LEFTRATE><TOPRATE>0</TOPRATE><RIGHTRATE>1</RIGHTRATE>"
           L"<BOTTOMRATE>1</BOTTOMRATE>" +
           strMore + L"</BaseUnit>\n";
}

inline std::vector<std::wstring> Words(const std::wstring& strText, wchar_t chBetween = L' ')
{
    std::vector<std::wstring> arrWord;
    std::wistringstream stream(strText);
    for (std::wstring strWord; std::getline(stream, strWord, chBetween);) {
        if (!strWord.empty())
            arrWord.push_back(strWord);
    }
    return arrWord;
}

/// A style. Units: "a b=PARAM"; lines: "name H|V left right [rate]", separated by ';' ("-" is an empty name).
struct StyleSpec
{
    std::wstring strName;
    std::wstring strUnits;
    std::wstring strLines;
};

inline std::wstring StyleXml(const StyleSpec& style)
{
    std::wstring strXml = L"<STYLE><NAME>" + style.strName + L"</NAME>\n";
    for (const std::wstring& strUnit : Words(style.strUnits)) {
        const auto nEqual = strUnit.find(L'=');
        const std::wstring strParam = nEqual == std::wstring::npos ? L"" : strUnit.substr(nEqual + 1);
        strXml += L"<BaseUnit NAME=\"" + strUnit.substr(0, nEqual) + L"\" PARAM=\"" + strParam + L"\"/>\n";
    }
    for (const std::wstring& strLine : Words(style.strLines, L';')) {
        auto arrWord = Words(strLine);
        arrWord.resize(5, L"0.5");
        for (std::wstring& strWord : arrWord)
            strWord = strWord == L"-" ? L"" : strWord;
        strXml += L"<SPLIT NAME=\"" + arrWord[0] + L"\" TYPE=\"" +
                  (arrWord[1] == L"H" ? L"H_LINE" : L"V_LINE") + L"\" MOBILE=\"1\" LEFT=\"" + arrWord[2] +
                  L"\" RIGHT=\"" + arrWord[3] + L"\" LRATE=\"" + arrWord[4] + L"\"/>\n";
    }
    return strXml + L"</STYLE>\n";
}

/// A frame of units that all have the same class.
inline std::wstring FrameXml(const std::wstring& strName, const std::wstring& strUnits,
                             const std::vector<StyleSpec>& arrStyle, const std::wstring& strMoreUnits = L"")
{
    std::wstring strXml =
        L"<BaseFrame><NAME>" + strName + L"</NAME><HELPER><GUID>" + HELPER_GUID + L"</GUID></HELPER>\n";
    for (const std::wstring& strUnit : Words(strUnits))
        strXml += UnitXml(strUnit);
    strXml += strMoreUnits;
    for (const StyleSpec& style : arrStyle)
        strXml += StyleXml(style);
    return strXml + L"</BaseFrame>\n";
}

inline std::wstring GlobalXml(const std::wstring& strUnits)
{
    std::wstring strXml = L"<GLOBAL>";
    for (const std::wstring& strUnit : Words(strUnits))
        strXml += UnitXml(strUnit);
    return strXml + L"</GLOBAL>\n";
}

inline std::wstring LayoutXml(const std::wstring& strContent)
{
    return L"<Layout>\n" + strContent + L"</Layout>\n";
}

} // namespace test
