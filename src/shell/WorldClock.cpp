// SPDX-License-Identifier: GPL-3.0-or-later
#include "WorldClock.h"

#include "DateTexts.h"
#include "DisplayZone.h"
#include "SourceSlot.h"
#include "Texts.h"
#include "ZoneLookup.h"

#include <algorithm>
#include <array>
#include <functional>
#include <utility>

namespace chronomender {
namespace {

using Kind = ZoneChoice::Kind;

MySinglePicPtr masterOf(const MySinglePicPtr &pic) {
    const MySinglePicPtr master = pic->bundleMasterImage();
    return master ? master : pic;
}

MySinglePicPtr copyInto(const MySingleFolderPtr &folder, const MySinglePic &pic) {
    auto copy = std::make_shared<MySinglePic>(pic);
    copy->setFolder(folder);
    return copy;
}

/// An item with its other half, in a folder of its own that says what the real one says.
struct Copy {
    MySingleFolderPtr folder;
    MySinglePicPtr pic;

    explicit Copy(const MySinglePic &original) {
        const MySingleFolderPtr real = original.spSingleRealFolder();
        if (!real)
            return;
        folder = MySingleFolder::initWithFolder(real->sfFolderPath(), nullptr, real->sfEditMode);
        folder->sfDateModificationsTimeInterval = real->sfDateModificationsTimeInterval;
        folder->isEXIFIgnored = real->isEXIFIgnored;
        folder->isQuicktimeMDTADateEnabled = real->isQuicktimeMDTADateEnabled;
        folder->isQuicktimeMVHDTimezoneCorrectionEnabled =
            real->isQuicktimeMVHDTimezoneCorrectionEnabled;
        folder->sortFolderLPsByMov = real->sortFolderLPsByMov;
        folder->harmonizingRawJpgsType = real->harmonizingRawJpgsType;
        folder->sourceTimeZones = real->sourceTimeZones;
        folder->targetTimeZones = real->targetTimeZones;
        pic = copyInto(folder, original);
        folder->sfPicDetails_fullArray = {pic};
        if (pic->group.bundleDependentImage) {
            const auto dependent = copyInto(folder, *pic->group.bundleDependentImage);
            dependent->group.bundleMasterImage = pic;
            pic->group.bundleDependentImage = dependent;
        }
    }
};

enum Clock : std::size_t { Camera, File, Computer, Universal };
constexpr std::array<const char *, 4> clockTitles{"zones_clockCamera", "zones_clockFile",
                                                  "zones_clockComputer", "zones_clockUtc"};
using ClockZones = std::array<Zone, clockTitles.size()>;

struct Told {
    ClockZones zones;
    Date date;
};

Told told(const Copy &copy, const Zones &zones) {
    const auto slot = sourceSlot(copy.pic->spType);
    return {{slot ? sourceZoneForSlot(*copy.pic, *slot, *copy.folder, zones)
                  : sourceTimeZoneForPic(*copy.pic, *copy.folder, zones),
             slot ? targetZoneForSlot(*copy.pic, *slot, *copy.folder, zones)
                  : targetTimeZoneForPic(*copy.pic, *copy.folder, zones),
             zones.systemZone(), Zones::utc()},
            copy.pic->spDateTimeModified()};
}

/// What one folder or item says of the two sides; null where nothing was chosen.
using TakeChoices = std::function<void(const ZoneChoice *source, const ZoneChoice *target)>;

void forEachChoice(const ZoneSubject &subject, const TakeChoices &take) {
    if (!subject.isOfItems())
        for (const MySingleFolderPtr &folder : subject.folders)
            take(ZoneSide(folder->sourceTimeZones).folderDefault(),
                 ZoneSide(folder->targetTimeZones).folderDefault());
    for (const MySinglePicPtr &pic : subject.items)
        if (const MySingleFolderPtr folder = pic->spSingleRealFolder())
            take(choiceForPic(*pic, ZoneSide(folder->sourceTimeZones)),
                 choiceForPic(*pic, ZoneSide(folder->targetTimeZones)));
}

bool isSystem(const ZoneChoice *choice) {
    return !choice || choice->is(Kind::System);
}

bool isSameAsCamera(const ZoneChoice *source, const ZoneChoice *target) {
    if (!target)
        return isSystem(source);
    return target->is(Kind::Unchanged) || target->is(Kind::UnchangedLeft) ||
           target->is(Kind::UnchangedLeftFolder);
}

} // namespace

std::vector<MySinglePicPtr> ZoneSubject::allPics() const {
    return isOfItems() ? items : MyCompoundFolder(folders).sfPicDetails_fullArray();
}

ZoneChoice sameAsCamera(const ZoneSubject &subject) {
    return ZoneChoice::marker(subject.isOfItems() ? Kind::UnchangedLeft
                                                  : Kind::UnchangedLeftFolder);
}

Combined<ZoneChoice> presentSource(const ZoneSubject &subject) {
    Combined<ZoneChoice> all;
    forEachChoice(subject, [&](const ZoneChoice *source, const ZoneChoice *) {
        all.add(source ? *source : ZoneChoice::system());
    });
    return all;
}

Combined<ZoneChoice> presentTarget(const ZoneSubject &subject) {
    Combined<ZoneChoice> all;
    forEachChoice(subject, [&](const ZoneChoice *source, const ZoneChoice *target) {
        if (isSameAsCamera(source, target))
            all.add(sameAsCamera(subject));
        else
            all.add(target ? *target : ZoneChoice::system());
    });
    return all;
}

OptionalDate ClockItems::date() const {
    return pics.empty() ? std::nullopt : OptionalDate(pics.front()->spDateTimeModified());
}

ClockItems clockItems(const ZoneSubject &subject) {
    MySinglePicPtr first, last, main;
    for (const MySinglePicPtr &pic : subject.allPics()) {
        const Date date = pic->spDateTimeModified();
        if (!pic->hasCorrectableDate() || !isCleanDate(date))
            continue;
        if (!first || date < first->spDateTimeModified())
            first = pic;
        if (!last || date >= last->spDateTimeModified())
            last = pic;
        if (pic == subject.mainPic)
            main = pic;
    }
    ClockItems items;
    const std::array<std::pair<MySinglePicPtr, const char *>, 3> candidates{
        {{first, "zones_firstItem"}, {main, "zones_mainItem"}, {last, "zones_lastItem"}}};
    for (const auto &[pic, key] : candidates)
        if (pic && std::ranges::find(items.pics, masterOf(pic)) == items.pics.end()) {
            items.pics.push_back(masterOf(pic));
            items.titleKeys.push_back(key);
        }
    return items;
}

std::vector<ClockRow> worldClock(const ClockItems &items, const ZoneSubject &subject,
                                 const ZoneWish &wish, const Zones &zones,
                                 int dateComparisonThresold) {
    std::vector<ClockRow> rows(clockTitles.size());
    for (std::size_t clock = 0; clock < rows.size(); ++clock)
        rows[clock].title = text(clockTitles[clock]);
    for (const MySinglePicPtr &pic : items.pics) {
        const Copy copy(*pic);
        if (!copy.pic)
            continue;
        const Told before = told(copy, zones);
        if (subject.isOfItems())
            assignZones({copy.pic}, wish, zones, dateComparisonThresold);
        else
            assignZones(*copy.folder, wish, zones, dateComparisonThresold);
        const Told after = told(copy, zones);
        for (std::size_t clock = 0; clock < rows.size(); ++clock) {
            ClockRow &row = rows[clock];
            const std::string words = readableText(after.date, after.zones[clock].rules);
            const std::string &name = after.zones[clock].name;
            row.zoneName = row.cells.empty() || row.zoneName == name ? name : std::string();
            row.cells.push_back(
                {words, words != readableText(before.date, before.zones[clock].rules)});
        }
    }
    return rows;
}

} // namespace chronomender
