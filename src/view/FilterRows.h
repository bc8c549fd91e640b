// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Predicate.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace chronomender {

enum class FilterRowKind : std::uint8_t {
    Filename,
    CamAndFolder,
    MediaType,
    State,
    SingleDate,
    DateRange
};

/// One kind of the rows that an editor of filters offers.
struct FilterRowTemplate {
    FilterRowKind kind;
    std::string_view shownKey;   ///< by which the row is known
    std::string_view runningKey; ///< by which it is asked of items
    std::string_view format;     ///< of a new row; `%@` stands for a value
};

inline constexpr std::array<FilterRowTemplate, 6> kFilterRowTemplates{{
    {FilterRowKind::Filename, "spName", "spDisplayName", "spName CONTAINS[cd] %@"},
    {FilterRowKind::CamAndFolder, "pivMakeModel", "filter_pivMakeModel",
     "pivMakeModel CONTAINS[cd] %@"},
    {FilterRowKind::MediaType, "filter_mediaType", "filter_mediaType",
     "filter_mediaType ==[cd] %@"},
    {FilterRowKind::State, "filter_miscState", "filter_miscState", "filter_miscState ==[cd] %@"},
    {FilterRowKind::SingleDate, "filter_dateTimeModified", "filter_dateTimeModified",
     "filter_dateTimeModified >= %@"},
    {FilterRowKind::DateRange, "filter_dateTimeModified", "filter_dateTimeModified",
     "(filter_dateTimeModified >= %@) AND (filter_dateTimeModified < %@)"},
}};

/// The predicate of a new row. The values suit the kind: a text, a number, a date, or the first
/// date of a range and the one behind its end.
Predicate rowPredicate(FilterRowKind kind, const std::vector<PredicateValue> &values);

/// A row while it is edited. When the user picks another key or operator, an editor empties the
/// row's value; the row puts the old one back.
class FilterEditorRow {
public:
    struct Edited {
        Predicate predicate;
        bool needsChangePredicateRefresh = false; ///< it is not what the editor shows
    };
    /// The row's predicate after an edit that left the editor showing `shown`.
    Edited edited(const Predicate &shown);

private:
    std::string m_oldPredicateFormat; ///< "" before the first edit
};

} // namespace chronomender
