// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Date.h"
#include "Zones.h"

#include <QString>
#include <QStringList>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace chronomender {

/// A zone as a list shows it, at one date.
struct ZoneRow {
    std::string name;    ///< "Asia/Tokyo", or "+09:00" for a fixed offset
    std::string place;   ///< "Tokyo", "Buenos Aires"
    std::string country; ///< "Japan"; "" where the zone stands for none
    int offsetSeconds = 0;
    std::string note; ///< of daylight saving: "summer time until 2024-10-27"; "" without any
};
/// "+09:00"; seconds of an offset, as they were in use before standard time, are left away.
std::string offsetText(const ZoneRow &row);
/// The row of one zone at a date; markers show today's rules.
ZoneRow zoneRow(const Zone &zone, Date at);

/// All zones that can be chosen, with their offsets at one date, and the search among them. Zones
/// that stand for a country come first; older names of zones come last. A value; making one reads
/// the file of each zone that the program has not used yet, which is no work for the main thread.
class ZoneRows {
public:
    ZoneRows() = default; ///< no rows
    /// `zones` outlives the rows. Safe on all threads.
    ZoneRows(const Zones &zones, Date at);

    const std::vector<ZoneRow> &rows() const { return m_rows; }
    /// The rows that a person may mean by some letters, best first: a place, a country in English
    /// or in its own language, an abbreviation ("JST"), or an offset ("+9", "utc-3:30"), for which
    /// the fixed offset itself comes first. All rows for an empty text.
    std::vector<ZoneRow> matching(const std::string &typed) const;

private:
    struct Searched {
        QString place;
        QStringList words; ///< of place, region, country and abbreviation
        bool isCurrent = false;
    };
    static std::optional<int> rank(const Searched &searched, const QString &folded);

    const Zones *m_zones = nullptr;
    Date m_at;
    std::vector<ZoneRow> m_rows;
    std::vector<Searched> m_searched; ///< one for each row
};

} // namespace chronomender
