// Setting of tables: widths are those on a terminal, not numbers of bytes.
#include "TextTable.h"

#include "Printable.h"

#include <algorithm>
#include <utility>

namespace viewer {
namespace {

std::size_t WidthOf(const std::string& strText)
{
    return static_cast<std::size_t>(TerminalWidth(strText));
}

} // namespace

TextTable::TextTable(std::vector<std::string> head) : m_head(std::move(head))
{
    for (std::string& strTitle : m_head) {
        m_bRight.push_back(strTitle.starts_with('>'));
        if (m_bRight.back())
            strTitle.erase(0, 1);
    }
}

void TextTable::AddRow(std::vector<std::string> row)
{
    m_rows.push_back(std::move(row));
}

std::vector<std::size_t> TextTable::ColumnWidths() const
{
    std::vector<std::size_t> widths;
    for (std::size_t nColumn = 0; nColumn < m_head.size(); ++nColumn) {
        std::size_t nWidth = WidthOf(m_head[nColumn]);
        for (const auto& row : m_rows)
            nWidth = std::max(nWidth, WidthOf(row[nColumn]));
        widths.push_back(nWidth);
    }
    return widths;
}

std::string TextTable::RowText(const std::vector<std::string>& row,
                               const std::vector<std::size_t>& widths) const
{
    std::string strLine;
    for (std::size_t nColumn = 0; nColumn < row.size(); ++nColumn) {
        const std::string strGap(widths[nColumn] - WidthOf(row[nColumn]), ' ');
        strLine += m_bRight[nColumn] ? strGap + row[nColumn] : row[nColumn] + strGap;
        strLine += "  ";
    }
    strLine.erase(strLine.find_last_not_of(' ') + 1);
    return strLine;
}

std::string TextTable::ToText(std::size_t nIndent) const
{
    const std::vector<std::size_t> widths = ColumnWidths();
    const std::string strIndent(nIndent, ' ');
    std::string strText = strIndent + RowText(m_head, widths) + "\n";
    for (const auto& row : m_rows)
        strText += strIndent + RowText(row, widths) + "\n";
    return strText;
}

} // namespace viewer
