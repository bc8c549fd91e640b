// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>

#include <optional>
#include <string>

namespace chronomender::storedValues {

// Lists that are kept as JSON in a text value of the preferences. Somebody else may have written
// them: nothing is believed, and everything is bounded.

/// The longest text that is read, in bytes of UTF-8.
inline constexpr std::size_t longestText = 4096;

/// None for a text that is no JSON array, or one of more entries.
std::optional<QJsonArray> arrayFrom(const std::string &stored, qsizetype mostEntries);
std::string storedText(const QJsonArray &array);

/// A whole number, or a text that is one; none for everything else.
std::optional<int> integerFrom(const QJsonValue &value);
/// None for what is no text, or too long.
std::optional<std::string> textFrom(const QJsonValue &value);
QJsonValue valueOf(const std::string &text);

} // namespace chronomender::storedValues
