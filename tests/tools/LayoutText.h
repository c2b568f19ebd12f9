// Layout files for the tests, written in short.
#pragma once

#include <string>

namespace layout_text {

inline std::string Unit(const std::string& strName, const std::string& strMore = {}, int nBorder = 2)
{
    return "<BaseUnit><NAME>" + strName +
           "</NAME><GUID>01234567-89ab-CDEF-0123-456789ABCDEF</GUID><LOCATION X='3' Y='4'/><SIZE CX='50' "
           "CY='40'/>"
           "<BORDERSTYLE>" +
           std::to_string(nBorder) +
           "</BORDERSTYLE><LEFTRATE>0</LEFTRATE><TOPRATE>0</TOPRATE><RIGHTRATE>1</RIGHTRATE>"
           "<BOTTOMRATE>1</BOTTOMRATE>" +
           strMore + "</BaseUnit>\n";
}

inline std::string Use(const std::string& strName, const std::string& strParam = {})
{
    return "<BaseUnit NAME='" + strName + "' PARAM='" + strParam + "'/>\n";
}

inline std::string Split(const std::string& strName, const std::string& strType, const std::string& strLeft,
                         const std::string& strRight, const std::string& strRate = "0.5")
{
    return "<SPLIT NAME='" + strName + "' TYPE='" + strType + "' MOBILE='1' LEFT='" + strLeft + "' RIGHT='" +
           strRight + "' LRATE='" + strRate + "'/>\n";
}

inline std::string Style(const std::string& strName, const std::string& strBody)
{
    return "<STYLE><NAME>" + strName + "</NAME>\n" + strBody + "</STYLE>\n";
}

inline std::string Frame(const std::string& strName, const std::string& strBody)
{
    return "<BaseFrame><NAME>" + strName +
           "</NAME><HELPER><GUID>11111111-2222-3333-4444-555555555555</GUID></HELPER>\n" + strBody +
           "</BaseFrame>\n";
}

inline std::string Layout(const std::string& strBody)
{
    return "<Layout>\n" + strBody + "</Layout>\n";
}

/// One frame F with one style S over units A and B side by side.
inline std::string Pair()
{
    return Layout(
        Frame("F", Unit("A") + Unit("B") +
                       Style("S", Use("A", "ID=1") + Use("B", "ID=2") + Split("m", "V_LINE", "A", "B"))));
}

} // namespace layout_text
