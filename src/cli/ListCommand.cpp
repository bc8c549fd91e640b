// SPDX-License-Identifier: GPL-3.0-or-later
#include "Commands.h"

#include "DateTexts.h"
#include "DisplayZone.h"
#include "ItemJson.h"
#include "ItemTexts.h"
#include "JsonLine.h"
#include "MendSession.h"
#include "Output.h"
#include "Table.h"
#include "Texts.h"
#include "Utf8Text.h"

#include <algorithm>
#include <optional>

namespace chronomender {
namespace {

class List {
public:
    explicit List(MendSession &session)
        : m_items(session.controller().timelines().source_filtered()),
          m_hidden(session.line().filter.isAnything()
                       ? std::optional(session.controller().sourceBuilder().filteredImagesCount())
                       : std::nullopt),
          m_zones(session.controller().zones()),
          m_paths(session.folders()),
          m_folderCount(session.folders().size()) {}

    std::vector<std::string> jsonLines() const {
        return buildPieces(m_items.size(), [this](std::size_t i, std::string &buffer) {
            appendJson(*m_items[i], buffer);
        });
    }

    std::string table() const {
        Table table;
        for (const MySinglePicPtr &pic : m_items)
            if (const MySingleFolderPtr folder = pic->spSingleRealFolder())
                table.add(
                    {readableText(pic->spDateTimeModified(), displayZone(*pic, *folder, m_zones)),
                     printable(folder->sfFolder), printable(nameWithCompanions(*pic)),
                     printable(pic->camera.pivMakeModel), noteText(*pic),
                     printable(alertsText(dateAlerts(*pic, *folder, m_zones), *pic))});
        const auto unsaved = std::count_if(m_items.begin(), m_items.end(),
                                           [](const auto &pic) { return isUnsaved(*pic); });
        return table.text() +
               text("cli_list_summary", {std::to_string(m_items.size()),
                                         std::to_string(m_folderCount), std::to_string(unsaved)}) +
               (m_hidden ? text("cli_list_hidden", {std::to_string(*m_hidden)}) : "") + '\n';
    }

private:
    void appendJson(const MySinglePic &pic, std::string &buffer) const {
        const MySingleFolderPtr folder = pic.spSingleRealFolder();
        if (!folder)
            return;
        const Date date = pic.spDateTimeModified();
        JsonLine line(buffer);
        line.field("path", m_paths.path(*folder, pic))
            .field("folder", m_paths.path(*folder))
            .field("name", pic.spName)
            .fieldIfAny("date", utcText(date))
            .fieldIfAny("local", localText(date, displayZone(pic, *folder, m_zones)))
            .field("spType", static_cast<std::int64_t>(pic.spType))
            .field("format", formatName(pic.fileFormatType))
            .fieldIfAny("camera", pic.camera.pivMakeModel);
        if (pic.location.gpsLat && pic.location.gpsLong)
            line.beginObject("location")
                .field("lat", *pic.location.gpsLat)
                .field("lon", *pic.location.gpsLong)
                .end();
        appendCompanions(line, pic);
        line.flag("unsaved", isUnsaved(pic));
        appendAlerts(line, dateAlerts(pic, *folder, m_zones), pic);
        line.finish();
    }

    const std::vector<MySinglePicPtr> &m_items;
    std::optional<std::size_t> m_hidden; ///< items; none without a filter
    const Zones &m_zones;
    FolderPaths m_paths;
    std::size_t m_folderCount;
};

/// Cameras are shown; a filter can ask more that takes longer to read.
CompletionScope scopeFor(const FilterWish &filter) {
    return filter.predicate && needsLateValues(*filter.predicate)
               ? CompletionScope::All
               : CompletionScope::WhereCameraIsMissing;
}

} // namespace

int runList(const CommandLine &line) {
    MendSession session(line);
    if (const auto code = session.open({BadPath::GoOn, scopeFor(line.filter)}))
        return *code;
    const List list(session);
    const WriteResult written =
        line.isJson ? writeOutput(list.jsonLines()) : writeOutput(list.table());
    return codeAfterWriting(written, settledCode(session, exitDone));
}

} // namespace chronomender
