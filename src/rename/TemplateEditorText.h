// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RenameTemplate.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace chronomender {

/// Typed or pasted text (UTF-8) may stand in a template: no character that templates refuse, and no
/// sign that is neither letter, digit nor mark in a text without any punctuation, symbol or blank.
bool isAcceptedInTemplate(std::string_view replacement);

/// What a template editor shows: runs of text, and elements that stand as one character each.
/// Positions count UTF-16 units, as text fields do.
class TemplateEditorText {
public:
    using Parts = std::vector<TemplatePart>;
    struct Range {
        std::size_t begin = 0, end = 0;
    };
    /// The parts of a template that are parsed: text beyond them is not.
    static constexpr std::size_t mostParts = 2 * renameElementCount + 1;

    TemplateEditorText() = default;
    /// Runs without anything in them are left out.
    explicit TemplateEditorText(const Parts &runs);

    const Parts &runs() const { return m_runs; }
    std::size_t length() const;
    /// The parts that the template gets, and the elements among them.
    void parseTemplateTextAndWriteResultsTo(Parts &parts, std::vector<RenameElement> &ids) const;

    /// Puts text in place of a range; it joins the run that it touches.
    void replaceText(Range range, std::string_view text);
    void insertElement(std::size_t position, RenameElement element);
    /// What stands as one character at the position; none for text and beyond the end.
    std::optional<RenameElement> elementAt(std::size_t position) const;

private:
    /// Parts the runs at the position and takes out the range behind it; the index of the run
    /// where something can be inserted.
    std::size_t open(Range range);

    Parts m_runs;
};

} // namespace chronomender
