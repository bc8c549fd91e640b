// SPDX-License-Identifier: GPL-3.0-or-later
#include "Table.h"

#include "Utf8Text.h"

#include <algorithm>

namespace chronomender {
namespace {

std::vector<std::size_t> columnWidths(const std::vector<std::vector<std::string>> &rows) {
    std::vector<std::size_t> widths;
    for (const auto &row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], columnCount(row[i]));
    }
    return widths;
}

} // namespace

std::string Table::text() const {
    const auto widths = columnWidths(m_rows);
    std::string out;
    for (const auto &row : m_rows) {
        out += m_indent;
        for (std::size_t i = 0; i < row.size(); ++i) {
            out += row[i];
            // A column that is empty in every row takes no room.
            if (widths[i] > 0)
                out.append(widths[i] - columnCount(row[i]) + 2, ' ');
        }
        out.erase(out.find_last_not_of(' ') + 1);
        out += '\n';
    }
    return out;
}

} // namespace chronomender
