// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace chronomender {

/// Rows of cells in aligned columns, two blanks between them and none at the end of a line. Cells
/// must be printable.
class Table {
public:
    explicit Table(std::string indent = {}) : m_indent(std::move(indent)) {}

    void add(std::vector<std::string> row) { m_rows.push_back(std::move(row)); }
    std::string text() const;

private:
    std::string m_indent;
    std::vector<std::vector<std::string>> m_rows;
};

} // namespace chronomender
