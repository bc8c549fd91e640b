// SPDX-License-Identifier: GPL-3.0-or-later
#include "StripDates.h"

#include "Texts.h"
#include "TimeTexts.h"

#include <string>

namespace chronomender {

QString dayTitle(absl::CivilDay day) {
    CivilFields fields;
    fields.year = static_cast<int>(day.year());
    fields.month = day.month();
    fields.day = day.day();
    // absl counts from Monday, 0.
    const int weekday = static_cast<int>(absl::GetWeekday(day)) + 1;
    return QString::fromStdString(text(
        "strip_dayTitle", {text("weekday_short_" + std::to_string(weekday)), dayText(fields)}));
}

QString timeLabel(Date date, absl::TimeZone zone) {
    if (isMarker(date))
        return {};
    const absl::CivilSecond civil = absl::ToCivilSecond(date, zone);
    QString label(8, QLatin1Char(':'));
    const int parts[] = {civil.hour(), civil.minute(), civil.second()};
    for (int i = 0; i < 3; ++i) {
        label[3 * i] = QChar(u'0' + parts[i] / 10);
        label[3 * i + 1] = QChar(u'0' + parts[i] % 10);
    }
    return label;
}

} // namespace chronomender
