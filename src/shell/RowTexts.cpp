// SPDX-License-Identifier: GPL-3.0-or-later
#include "RowTexts.h"

#include "Texts.h"

#include <QLocale>
#include <QString>

namespace chronomender {

std::string joinedWords(const std::vector<RowNote> &notes) {
    std::string joined;
    for (const RowNote &note : notes)
        joined += (joined.empty() ? "" : "; ") + note.words;
    return joined;
}

std::string asSentence(const std::string &words) {
    const QString all = QString::fromStdString(words);
    return (all.left(1).toUpper() + all.mid(1)).toStdString();
}

std::string numberText(std::int64_t number) {
    return QLocale().toString(static_cast<qlonglong>(number)).toStdString();
}

std::string countText(std::string_view key, std::int64_t number) {
    return number == 1 ? text(std::string(key) + "_one") : text(key, {numberText(number)});
}

FilterContext filterContext(const Zones &zones, const UserDefaults &defaults) {
    return {zones, defaults.boolForKey("highlightEmptyMetaTags")};
}

} // namespace chronomender
