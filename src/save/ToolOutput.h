// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace chronomender {

/// What the tool said of one action.
struct ToolAnswer {
    bool didChange = false; ///< it updated or created a file
    std::string error;      ///< its last line that begins with "Error"; "" for none
};

/// The tool's output, in whatever pieces it arrives, cut into answers: each ends with "{ready}" at
/// the start of a line.
class ToolOutput {
public:
    void add(std::string_view piece) { m_text += piece; }
    /// Takes the oldest answer out; none before its end has arrived.
    std::optional<ToolAnswer> take();
    /// The last line with a text that belongs to no whole answer.
    std::string lastWords() const;
    void clear() { m_text.clear(); }

private:
    std::string m_text;
};

} // namespace chronomender
