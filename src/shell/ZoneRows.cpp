// SPDX-License-Identifier: GPL-3.0-or-later
#include "ZoneRows.h"

#include "Texts.h"
#include "ZonePlaces.h"

#include <QRegularExpression>

#include <absl/time/clock.h>

#include <algorithm>
#include <utility>

namespace chronomender {
namespace {

constexpr int secondsOfMinute = 60, secondsOfHour = 3600;
constexpr absl::Duration yearAhead = absl::Hours(24 * 366);

/// Letters as they are compared: lower case, without accents, names in words.
QString folded(const QString &text) {
    QString result;
    for (const QChar each : text.normalized(QString::NormalizationForm_D).toLower())
        if (!each.isMark())
            result += each == u'_' || each == u'/' || each == u'-' ? QChar(u' ') : each;
    return result.simplified();
}
QString folded(const std::string &text) {
    return folded(QString::fromStdString(text));
}

std::string placeOf(const std::string &name) {
    std::string place = name.substr(name.rfind('/') + 1);
    std::ranges::replace(place, '_', ' ');
    return place;
}

/// What the next change of the clock within a year is.
std::string clockNote(const absl::TimeZone &zone, Date at) {
    absl::TimeZone::CivilTransition change;
    Date from = at;
    // Steps of a rule that leave the offset as it is are no change for a person.
    while (zone.NextTransition(from, &change)) {
        const Date when = zone.At(change.to).trans;
        if (when - at > yearAhead)
            return {};
        const auto before = zone.At(when - absl::Seconds(1)), after = zone.At(when);
        const std::string day = absl::FormatCivilTime(absl::CivilDay(change.to));
        if (before.offset != after.offset) {
            if (before.is_dst == after.is_dst)
                return text("zones_noteOtherOffset", {day});
            return before.offset < after.offset ? text("zones_noteSummerFrom", {day})
                                                : text("zones_noteSummerUntil", {day});
        }
        from = when;
    }
    return {};
}

/// Seconds of "+9", "utc+9", "-3:30", "+0530"; none for what is no offset.
std::optional<int> offsetIn(const std::string &typed) {
    static const QRegularExpression form(
        QStringLiteral("^(?:utc|gmt)?\\s*([+\\-\u2212])\\s*(\\d{1,2})(?::?(\\d{2}))?$"),
        QRegularExpression::CaseInsensitiveOption);
    const auto match = form.match(QString::fromStdString(typed).trimmed());
    if (!match.hasMatch())
        return std::nullopt;
    const int seconds =
        match.captured(2).toInt() * secondsOfHour + match.captured(3).toInt() * secondsOfMinute;
    return match.captured(1) == QLatin1String("+") ? seconds : -seconds;
}

} // namespace

std::string offsetText(const ZoneRow &row) {
    return zoneDatabase::offsetName(row.offsetSeconds / secondsOfMinute * secondsOfMinute);
}

ZoneRow zoneRow(const Zone &zone, Date at) {
    const Date shown =
        at == absl::InfinitePast() || at == absl::InfiniteFuture() ? absl::Now() : at;
    const ZoneCountry *country = countryOfZone(zone.name);
    return {zone.name, placeOf(zone.name), country ? country->name : std::string(),
            zone.rules.At(shown).offset, clockNote(zone.rules, shown)};
}

ZoneRows::ZoneRows(const Zones &zones, Date at) : m_zones(&zones), m_at(at) {
    std::vector<std::pair<ZoneRow, Searched>> all;
    for (const std::string &name : zones.zoneNames()) {
        const auto zone = zones.zoneWithName(name);
        if (!zone)
            continue;
        ZoneRow row = zoneRow(*zone, at);
        const ZoneCountry *country = countryOfZone(name);
        const QString abbreviation = QString::fromLatin1(zone->rules.At(at).zone_abbr);
        const QString words = folded(name) + u' ' + folded(row.country) + u' ' +
                              (country ? folded(country->nativeName) : QString()) + u' ' +
                              folded(abbreviation);
        Searched searched{folded(row.place), words.split(u' ', Qt::SkipEmptyParts),
                          country != nullptr || name == "UTC"};
        all.emplace_back(std::move(row), std::move(searched));
    }
    std::stable_partition(all.begin(), all.end(),
                          [](const auto &each) { return each.second.isCurrent; });
    for (auto &[row, searched] : all) {
        m_rows.push_back(std::move(row));
        m_searched.push_back(std::move(searched));
    }
}

std::optional<int> ZoneRows::rank(const Searched &searched, const QString &folded) {
    constexpr int behindCurrentZones = 4;
    const int base = searched.isCurrent ? 0 : behindCurrentZones;
    if (searched.place == folded)
        return base;
    if (searched.place.startsWith(folded))
        return base + 1;
    const QStringList typed = folded.split(u' ');
    const auto everyWord = [&](const auto &fits) {
        return std::ranges::all_of(typed, [&](const QString &word) {
            return std::ranges::any_of(searched.words,
                                       [&](const QString &own) { return fits(own, word); });
        });
    };
    if (everyWord([](const QString &own, const QString &word) { return own.startsWith(word); }))
        return base + 2;
    if (everyWord([](const QString &own, const QString &word) { return own.contains(word); }))
        return base + 3;
    return std::nullopt;
}

std::vector<ZoneRow> ZoneRows::matching(const std::string &typed) const {
    std::vector<ZoneRow> found;
    if (const auto offset = offsetIn(typed); offset && m_zones) {
        if (const auto fixed = m_zones->zoneWithName(zoneDatabase::offsetName(*offset)))
            found.push_back(zoneRow(*fixed, m_at));
        std::ranges::copy_if(m_rows, std::back_inserter(found),
                             [&](const ZoneRow &row) { return row.offsetSeconds == *offset; });
        return found;
    }
    const QString wanted = folded(typed);
    if (wanted.isEmpty())
        return m_rows;
    std::vector<std::pair<int, std::size_t>> ranked;
    for (std::size_t i = 0; i < m_rows.size(); ++i)
        if (const auto place = rank(m_searched[i], wanted))
            ranked.emplace_back(*place, i);
    std::ranges::sort(ranked);
    for (const auto &[place, index] : ranked)
        found.push_back(m_rows[index]);
    return found;
}

} // namespace chronomender
