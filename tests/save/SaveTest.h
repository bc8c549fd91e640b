// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DateModifications.h"
#include "FakeSession.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tuple>

namespace chronomender::little {

/// What tests of a save say. The folder's one photo is "a.jpg" unless a test adds its own.
class SaveTest : public testing::Test {
protected:
    BuiltPhoto importPhoto(const PhotoFields &fields = fullPhotoFields()) {
        BuiltPhoto built = session.photo("a.jpg", fields);
        session.import();
        return built;
    }
    void shift(absl::Duration by, std::size_t folder = 0) {
        setSfDateModificationsFromTimeInterval(session.folder(folder), by, false);
    }
    void target(ZoneChoice choice) {
        session.folder().targetTimeZones.folderDefault = std::move(choice);
    }
    void targetZone(std::string_view name) {
        target(ZoneChoice::named(*session.zones.zoneWithName(name)));
    }
    void keepOwnZones() { target(ZoneChoice::marker(ZoneChoice::Kind::Own)); }
    /// All slots move alike.
    void shiftAllSlotsAlike() {
        for (const char *key : {"dateChangeEXIFEXIFDigiDate", "dateChangeEXIFEXIFModDate",
                                "dateChangeNoEXIFButTIFFMetaModDate"})
            EXPECT_EQ(session.defaults.setForThisRun(key, "3"), UserDefaults::Outcome::Done);
    }

    std::string content(const std::string &name = "a.jpg") const {
        return fileContent(session.path(name));
    }
    /// What stands at a place of the file.
    std::string at(const BuiltPhoto &built, const std::string &value, std::size_t length) const {
        return content().substr(built.offsets.at(value), length);
    }
    /// `before` with some values replaced.
    static std::string replaced(const BuiltPhoto &before,
                                std::map<std::string, std::string> values) {
        std::string bytes = before.bytes;
        for (const auto &[value, after] : values)
            bytes.replace(before.offsets.at(value), after.size(), after);
        return bytes;
    }
    /// One member of each element.
    template<class Element, class Value>
    static std::vector<Value> each(const std::vector<Element> &list, Value Element::*member) {
        std::vector<Value> values;
        for (const Element &element : list)
            values.push_back(element.*member);
        return values;
    }
    static auto kinds(const PreProcessResult &dry) {
        return each(dry.problems, &PreSaveFinding::problem);
    }
    static auto ids(const SaveRunResult &run) { return each(run.errors, &SaveError::id); }
    static auto results(const SaveRunResult &run) { return each(run.items, &ItemOutcome::result); }
    SaveRunResult goOn(const PreProcessResult &dry) {
        return session.driver.continueProcessThread({}, dry);
    }
    /// The second stage as a program of its own would run it: the record ends with it.
    SaveRunResult saveSynced(FileLayer &files, const PreProcessResult &dry) {
        RunJournal journal(session.disk.path("support"), RunJournal::Durability::Synced);
        SaveServices services{files,
                              session.zones,
                              session.defaults,
                              session.undo,
                              session.cancellation,
                              journal,
                              session.tool,
                              [this] { return session.now; },
                              {}};
        return SaveDriver(session.folders, services).continueProcessThread({}, dry);
    }
    /// All items are written, and the model knows it.
    void saves() {
        const SaveRunResult run = session.save();
        EXPECT_THAT(results(run), testing::Each(ItemResult::Saved));
        for (const ItemOutcome &item : run.items)
            for (std::size_t i = 0; i < item.slots.size(); ++i)
                if (item.slots[i].result == SlotResult::WrittenInPlace) {
                    EXPECT_EQ(item.slots[i].newDate, item.pic->slots.*slotDescriptions[i].oldDate)
                        << "told otherwise than it is, " << item.slots[i].slot;
                }
        expectModelIsWhatAFreshImportShows();
    }
    /// Nothing can be written to the item, for a reason of the reader's or the field's.
    void refuses(SaveErrorId id, std::string_view obstacle) {
        const SaveRunResult run = session.save();
        EXPECT_THAT(ids(run), testing::ElementsAre(id));
        EXPECT_EQ(run.errors.at(0).systemText, text(obstacle));
    }

    static SlotResult slotResult(const ItemOutcome &item, std::string_view name) {
        for (const SlotOutcome &slot : item.slots)
            if (slot.slot == name)
                return slot.result;
        throw std::out_of_range(std::string(name));
    }
    /// The model says what a session that starts now would read from the files.
    void expectModelIsWhatAFreshImportShows() {
        const auto fresh = session.freshImport();
        const auto &items = session.folder().sfPicDetails_fullArray;
        ASSERT_EQ(fresh.size(), items.size());
        for (std::size_t i = 0; i < fresh.size(); ++i) {
            expectSameAsFresh(*items[i], *fresh[i]);
            const auto &dependent = items[i]->group.bundleDependentImage;
            ASSERT_EQ(dependent != nullptr, fresh[i]->group.bundleDependentImage != nullptr);
            if (dependent)
                expectSameAsFresh(*dependent, *fresh[i]->group.bundleDependentImage);
        }
    }
    /// What is known against an item's dates.
    static auto doubts(const MySinglePic &item) {
        const ZoneFlags &flags = item.zones;
        return std::tuple(flags.dstDivergenceState, flags.dstAmbiguityAtImportState,
                          flags.usesAltTimeAtAmbiguityReason, flags.majorDateDifferenceType,
                          flags.hasMinorDateDifference);
    }
    static void expectSameAsFresh(const MySinglePic &item, const MySinglePic &fresh) {
        const std::string &name = item.spName;
        for (const SlotDescription &slot : slotDescriptions)
            EXPECT_EQ(item.slots.*slot.oldDate, fresh.slots.*slot.oldDate)
                << name << ' ' << slot.name;
        EXPECT_EQ(item.spDateTimeOriginal, fresh.spDateTimeOriginal) << name;
        EXPECT_EQ(item.spType, fresh.spType) << name;
        EXPECT_EQ(item.location.spGpsUTCDate, fresh.location.spGpsUTCDate) << name;
        EXPECT_EQ(doubts(item), doubts(fresh)) << name;
        for (const RecordedValue &kind : recordedValues()) {
            const LocatedBytes *mine = kind.find(item.singlePicAttributes);
            const LocatedBytes *its = kind.find(fresh.singlePicAttributes);
            ASSERT_EQ(mine != nullptr, its != nullptr) << name << ' ' << kind.key;
            EXPECT_TRUE(!mine || *mine == *its) << name << ' ' << kind.key;
        }
    }

    FakeSession session;
};

} // namespace chronomender::little
