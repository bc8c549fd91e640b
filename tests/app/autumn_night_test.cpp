// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppSession.h"

#include "DateAlertTexts.h"
#include "Texts.h"

#include <algorithm>
#include <cstdlib>
#include <gmock/gmock.h>

namespace chronomender {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// The night of the sample trip in which Berlin's clocks go back at 1:00 UTC: the folder party, of
/// a camera without zone stamps, and a phone's with them. P0002 was taken at 02:30 the first time.
class AutumnNight : public AppSession {
protected:
    void openNight(const char *systemZone) {
        loadTexts("en");
        const std::string trip = disk().path("trip");
        ASSERT_EQ(std::system((std::string(MAKE_TRIP_PATH) + " '" + trip + "'").c_str()), 0);
        restart(systemZone);
        m_party = openAndImport(trip + "/party");
        openAndImport(trip + "/friend");
    }

    std::vector<std::string> order() {
        app().buildNewSource();
        std::vector<std::string> names;
        for (const MySinglePicPtr &pic : app().source_full())
            names.push_back(pic->spBaseName());
        return names;
    }

    MySinglePicPtr photo(const std::string &name) const {
        const auto &pics = m_party->sfPicDetails_fullArray;
        return *std::ranges::find(pics, name, [](const auto &pic) { return pic->spBaseName(); });
    }

    std::string alertsOf(const std::string &name) {
        std::string all;
        for (const DateAlert &alert : dateAlerts(*photo(name), *m_party, app().zones()))
            all += std::string(alertName(alert.kind)) + ": " + alertText(alert);
        return all;
    }

    void expectLaterReading() {
        EXPECT_EQ(photo("P0002")->spDateTimeModified(), utc(1, 30));
        EXPECT_THAT(order(), ElementsAre("P0001", "FP_0001", "FP_0002", "P0002", "P0003", "P0004"));
        EXPECT_EQ(alertsOf("P0002"), "repeatedTime: happens twice on 25 Oct 2026 in Europe/Berlin; "
                                     "read as the later one");
    }

    void expectEarlierReading() {
        EXPECT_EQ(photo("P0002")->spDateTimeModified(), utc(0, 30));
        EXPECT_THAT(order(), ElementsAre("P0001", "P0002", "FP_0001", "FP_0002", "P0003", "P0004"));
        EXPECT_THAT(alertsOf("P0002"), HasSubstr("read as the earlier one"));
    }

    static Date utc(int hour, int minute) {
        return absl::FromCivil(absl::CivilSecond(2026, 10, 25, hour, minute, 0),
                               absl::UTCTimeZone());
    }

    MySingleFolderPtr m_party;
};

TEST_F(AutumnNight, OtherReadingIsChosenUndoneAndRedone) {
    openNight("Europe/Berlin");
    expectLaterReading();
    EXPECT_EQ(app().useAlternative({photo("P0002")}, AlternativeTarget::Master, true), 1U);
    expectEarlierReading();
    UndoManager &undo = app().undoManager();
    EXPECT_EQ(undo.undoActionName(), "ambiguityCorrection_undoRedo");

    undo.undo();
    expectLaterReading();
    EXPECT_EQ(undo.redoActionName(), "ambiguityCorrection_undoRedo");
    EXPECT_FALSE(undo.canUndo());

    undo.redo();
    expectEarlierReading();
    EXPECT_EQ(undo.undoActionName(), "ambiguityCorrection_undoRedo");
    EXPECT_FALSE(undo.canRedo());
}

TEST_F(AutumnNight, SourceZonePutsTheOrderRightAndLeavesNothingUnsaved) {
    openNight("Asia/Tokyo");
    EXPECT_THAT(order(), ElementsAre("P0001", "P0002", "P0003", "P0004", "FP_0001", "FP_0002"));
    EXPECT_EQ(alertsOf("P0002"), "");
    const auto berlin = ZoneChoice::named(*app().zones().zoneWithName("Europe/Berlin"));
    EXPECT_EQ(app().setZones(*m_party, {.source = berlin, .target = {}}), 4U);
    expectLaterReading();
    EXPECT_THAT(alertsOf("P0003"), HasSubstr("happens twice"));
    EXPECT_EQ(alertsOf("P0004"), "");
    EXPECT_FALSE(m_party->isUnsavedFolder());
    app().useAlternative({photo("P0002")}, AlternativeTarget::Master, true);
    expectEarlierReading();

    UndoManager &undo = app().undoManager();
    undo.undo();
    EXPECT_EQ(undo.undoActionName(), "assignZones_undoRedo");
    undo.undo();
    EXPECT_TRUE(m_party->sourceTimeZones.isEmpty() && m_party->targetTimeZones.isEmpty());
    EXPECT_EQ(alertsOf("P0003"), "");
    undo.redo();
    EXPECT_THAT(alertsOf("P0003"), HasSubstr("happens twice"));
    expectLaterReading();
}

} // namespace
} // namespace chronomender
