// SPDX-License-Identifier: GPL-3.0-or-later
#include "StripWords.h"

#include "Controls.h"
#include "ItemTexts.h"
#include "TimeTexts.h"

#include <QStringList>

#include <array>

namespace chronomender {
namespace {

struct MarkWord {
    CellMark mark;
    const char *textKey;
};
constexpr std::array<MarkWord, 10> markWords{{
    {MarkUnsaved, "strip_markUnsaved"},
    {MarkMissing, "strip_markMissing"},
    {MarkError, "strip_markError"},
    {MarkClockDanger, "strip_markClockDanger"},
    {MarkAlert, "strip_markAlert"},
    {MarkKeeper, "strip_markKeeper"},
    {MarkRejected, "strip_markRejected"},
    {MarkRawAndJpeg, "strip_markRawAndJpeg"},
    {MarkLivePhoto, "strip_markLivePhoto"},
    {MarkMovie, "strip_markMovie"},
}};

QStringList wordsOfMarks(CellMarks marks) {
    QStringList words;
    for (const MarkWord &each : markWords)
        if (marks & each.mark)
            words << qText(each.textKey);
    return words;
}

QString dateText(const WindowSession &session, Date date) {
    return qString(dayAndTimeText(date, session.zones().systemZone().rules));
}

} // namespace

QString spokenItem(const WindowSession &session, const MySinglePic &pic, Date date, bool isSelected,
                   CellMarks marks) {
    QStringList parts{qString(pic.spName)};
    if (const MySingleFolderPtr folder = pic.spSingleRealFolder())
        parts << qString(folder->sfFolder);
    parts << dateText(session, date);
    if (isSelected)
        parts << qText("strip_selected");
    parts << wordsOfMarks(marks);
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

QString itemToolTip(const WindowSession &session, const MySinglePic &pic, CellMarks marks,
                    std::string_view reasonKey) {
    QStringList lines{qString(nameWithCompanions(pic)),
                      dateText(session, pic.spDateTimeModified_sort()),
                      wordsOfMarks(marks).join(QStringLiteral(", "))};
    if (!reasonKey.empty())
        lines << qText(reasonKey);
    lines.removeAll(QString());
    return lines.join(QLatin1Char('\n'));
}

QString kindText(const MySinglePic &pic) {
    return qString(pic.extension()).toUpper();
}

QString emptyStripText(const WindowSession &session, const TimelineStrip &strip) {
    if (strip.isShelf() || !session.controller().source_full().empty())
        return qText("strip_filtered");
    const auto &folders = session.folders();
    if (folders.empty())
        return qText("strip_empty");
    for (const MySingleFolderPtr &folder : folders)
        if (session.isBeingRead(*folder))
            return qText("strip_reading");
    return qText("strip_noMedia");
}

} // namespace chronomender
