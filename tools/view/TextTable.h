// A table in plain text: columns as wide as their widest entry, two spaces apart.
#pragma once

#include <string>
#include <vector>

namespace viewer {

class TextTable
{
public:
    /// @param head  the titles; one that starts with ">" belongs to a column of numbers, set flush right
    explicit TextTable(std::vector<std::string> head);

    /// Appends a row; it has as many cells as there are titles.
    void AddRow(std::vector<std::string> row);

    bool IsEmpty() const { return m_rows.empty(); }

    /// The titles and rows, a line each, indented by that many spaces. No line ends in spaces.
    std::string ToText(std::size_t nIndent) const;

private:
    std::vector<std::size_t> ColumnWidths() const;
    std::string RowText(const std::vector<std::string>& row, const std::vector<std::size_t>& widths) const;

    std::vector<std::string> m_head;
    std::vector<bool> m_bRight;
    std::vector<std::vector<std::string>> m_rows;
};

} // namespace viewer
