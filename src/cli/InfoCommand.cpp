// SPDX-License-Identifier: GPL-3.0-or-later
#include "Commands.h"

#include "DateTexts.h"
#include "DisplayZone.h"
#include "ItemJson.h"
#include "ItemTexts.h"
#include "JsonLine.h"
#include "MendSession.h"
#include "NewDates.h"
#include "Output.h"
#include "SlotTexts.h"
#include "Table.h"
#include "Texts.h"
#include "Utf8Text.h"
#include "ValueTexts.h"
#include "ZoneLookup.h"

#include <array>
#include <cstdio>

namespace chronomender {
namespace {

/// "12.5 s", or "" for an item without a duration.
std::string durationText(double seconds) {
    if (seconds < 0)
        return {};
    std::array<char, 32> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%.1f", seconds);
    return text("cli_info_seconds", {buffer.data()});
}

/// Every item of a folder, each master with its other half behind it.
std::vector<MySinglePicPtr> itemsWithDependents(const MySingleFolder &folder) {
    std::vector<MySinglePicPtr> items;
    for (const MySinglePicPtr &pic : folder.sfPicDetails_fullArray) {
        items.push_back(pic);
        if (pic->group.bundleDependentImage)
            items.push_back(pic->group.bundleDependentImage);
    }
    return items;
}

/// The other half of a group tells its alerts itself.
std::vector<DateAlert> ownAlerts(const MySinglePic &pic, const MySingleFolder &folder,
                                 const Zones &zones) {
    std::vector<DateAlert> alerts = dateAlerts(pic, folder, zones);
    std::erase_if(alerts, [](const DateAlert &alert) { return alert.isOfDependent; });
    return alerts;
}

/// One item and what is said about it.
class Info {
public:
    Info(const MySinglePic &pic, const MySingleFolder &folder, const FolderPaths &paths,
         const Zones &zones)
        : m_pic(pic),
          m_path(paths.path(folder, pic)),
          m_slots(slotViews(pic, folder, zones)),
          m_sourceZone(sourceTimeZoneForPic(pic, folder, zones).name),
          m_targetZone(targetTimeZoneForPic(pic, folder, zones).name),
          m_displayZone(displayZone(pic, folder, zones)),
          m_alerts(ownAlerts(pic, folder, zones)) {}

    void appendJson(std::string &buffer) const {
        JsonLine line(buffer);
        line.field("path", m_path)
            .field("spType", static_cast<std::int64_t>(m_pic.spType))
            .field("format", formatName(m_pic.fileFormatType))
            .fieldIfAny("date", utcText(m_pic.spDateTimeModified()));
        appendValues(line);
        appendRefused(line);
        appendSlots(line, m_slots);
        line.fieldIfAny("camera", m_pic.camera.pivMakeModel);
        if (m_pic.location.gpsLat && m_pic.location.gpsLong)
            line.beginObject("location")
                .field("lat", *m_pic.location.gpsLat)
                .field("lon", *m_pic.location.gpsLong)
                .end();
        appendMovie(line);
        appendCompanions(line, m_pic);
        if (const MySinglePicPtr master = m_pic.bundleMasterImage())
            line.field("master", master->spName);
        line.beginObject("zones").field("source", m_sourceZone).field("target", m_targetZone).end();
        appendAlerts(line, m_alerts, m_pic);
        line.finish();
    }

    void appendText(std::string &buffer) const {
        buffer += printable(m_path) + '\n';
        Table facts("  ");
        for (auto &[key, value] : factRows())
            if (!value.empty())
                facts.add({text(key), printable(value)});
        buffer += facts.text();
        Table slots("    ");
        addSlotRows(slots, m_slots);
        appendSection(buffer, "cli_info_dates", slots);
        appendSection(buffer, "cli_info_values", valueTable());
        appendSection(buffer, "cli_info_refused", refusedTable());
    }

private:
    void appendValues(JsonLine &line) const {
        line.beginArray("values");
        forEachRecordedValue(
            m_pic.singlePicAttributes, [&](std::string_view key, const LocatedBytes &value) {
                line.beginElement()
                    .field("key", key)
                    .field("offset", static_cast<std::int64_t>(value.offset))
                    .field("room", static_cast<std::int64_t>(value.room))
                    .field("bytes", hexText(value.data))
                    .field("text", valueText(key, value.data, m_pic.singlePicAttributes))
                    .end();
            });
        line.end();
    }

    void appendRefused(JsonLine &line) const {
        line.beginArray("refused");
        for (const Finding &finding : m_pic.findings)
            line.beginElement()
                .field("what", finding.what)
                .field("offset", static_cast<std::int64_t>(finding.offset))
                .field("reason", findingText(finding.reason))
                .end();
        line.end();
    }

    void appendMovie(JsonLine &line) const {
        if (m_pic.movie.movDuration >= 0)
            line.field("duration", m_pic.movie.movDuration);
        if (m_pic.movie.livePhotoStillImageTime)
            line.field("stillImageTime", *m_pic.movie.livePhotoStillImageTime);
        line.fieldIfAny("contentIdentifier", m_pic.livePhoto.UUID);
    }

    std::string groupText() const {
        if (const MySinglePicPtr master = m_pic.bundleMasterImage())
            return text("cli_info_follows", {printable(master->spName)});
        const MySinglePicPtr &dependent = m_pic.group.bundleDependentImage;
        return dependent ? text("cli_info_leads", {printable(dependent->spName)}) : std::string();
    }

    std::string sidecarText() const {
        std::string joined;
        for (const std::string &name : sidecarNames(m_pic))
            joined += (joined.empty() ? "" : ", ") + name;
        return joined;
    }

    std::vector<std::pair<const char *, std::string>> factRows() const {
        const CameraInfo &camera = m_pic.camera;
        const std::string size = camera.pivImageWidth > 0
                                     ? std::to_string(camera.pivImageWidth) + " × " +
                                           std::to_string(camera.pivImageHeight)
                                     : std::string();
        return {{"cli_info_date", readableText(m_pic.spDateTimeModified(), m_displayZone)},
                {"cli_info_source", sourceText(m_pic)},
                {"cli_info_format", std::string(formatName(m_pic.fileFormatType))},
                {"cli_info_camera", camera.pivMakeModel},
                {"cli_info_lens", camera.lens},
                {"cli_info_size", size},
                {"cli_info_duration", durationText(m_pic.movie.movDuration)},
                {"cli_info_location", locationText(m_pic)},
                {"cli_info_group", groupText()},
                {"cli_info_contentIdentifier", m_pic.livePhoto.UUID},
                {"cli_info_sidecars", sidecarText()},
                {"cli_info_sourceZone", m_sourceZone},
                {"cli_info_targetZone", m_targetZone},
                {"cli_info_note", noteText(m_pic)},
                {"cli_info_alerts", alertsText(m_alerts, m_pic)}};
    }

    Table valueTable() const {
        Table table("    ");
        forEachRecordedValue(
            m_pic.singlePicAttributes, [&](std::string_view key, const LocatedBytes &value) {
                table.add({std::string(key), '@' + std::to_string(value.offset),
                           text("cli_info_room", {std::to_string(value.room)}),
                           printable(valueText(key, value.data, m_pic.singlePicAttributes))});
            });
        return table;
    }

    Table refusedTable() const {
        Table table("    ");
        for (const Finding &finding : m_pic.findings)
            table.add({printable(finding.what), '@' + std::to_string(finding.offset),
                       findingText(finding.reason)});
        return table;
    }

    static void appendSection(std::string &buffer, const char *key, const Table &table) {
        const std::string rows = table.text();
        if (!rows.empty())
            buffer += "  " + text(key) + '\n' + rows;
    }

    const MySinglePic &m_pic;
    std::string m_path;
    std::vector<SlotView> m_slots;
    std::string m_sourceZone, m_targetZone;
    absl::TimeZone m_displayZone;
    std::vector<DateAlert> m_alerts;
};

} // namespace

int runInfo(const CommandLine &line) {
    MendSession session(line);
    if (const auto code = session.open({BadPath::GoOn, CompletionScope::All}))
        return *code;
    const NewDateContext context = session.controller().liveContext();
    const FolderPaths paths(session.folders());
    std::string buffer;
    for (const MySingleFolderPtr &folder : session.folders())
        for (const MySinglePicPtr &pic : itemsWithDependents(*folder)) {
            calculateNewDates(*pic, context);
            const Info info(*pic, *folder, paths, session.controller().zones());
            if (line.isJson)
                info.appendJson(buffer);
            else
                info.appendText(buffer);
        }
    const WriteResult written = writeOutput(buffer);
    return codeAfterWriting(written, settledCode(session, exitDone));
}

} // namespace chronomender
