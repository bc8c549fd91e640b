// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppSession.h"
#include "Texts.h"

#include <QElapsedTimer>

#include <gmock/gmock.h>

#include <filesystem>
#include <vector>

namespace chronomender {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// A session on a computer in Tokyo that can be moved to another zone.
class SystemZone : public AppSession {
protected:
    SystemZone() {
        loadTexts("en");
        moveTo("Asia/Tokyo");
        zoneDatabase::SystemPlaces places;
        places.link = disk().path("etc/localtime");
        places.textFile = disk().path("etc/timezone");
        restart(std::make_unique<Zones>(places), [this] { return now; });
        app().systemZoneChange().setCallbacks(
            {[this] { told.emplace_back("abort"); }, [this] { told.emplace_back("formatters"); },
             [this](const SystemZoneAlert &alert) { told.push_back(alert.infoText); },
             [this] { told.emplace_back("change"); }});
    }

    void moveTo(const std::string &zone) {
        std::filesystem::create_directories(disk().path("etc"));
        std::filesystem::create_symlink("/usr/share/zoneinfo/" + zone, disk().path("etc/next"));
        std::filesystem::rename(disk().path("etc/next"), disk().path("etc/localtime"));
    }
    void notice() { app().systemZoneChange().systemTimeZoneDidChange(); }
    std::string zone() { return app().zones().systemZone().name; }
    /// Serves events until the computer's zone arrived; false after a long time.
    bool arrivesIn(const std::string &name) {
        QElapsedTimer sinceBegin;
        sinceBegin.start();
        while (zone() != name && sinceBegin.elapsed() < 10'000)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        return zone() == name;
    }
    MySingleFolderPtr importPhotoOf(const std::string &name, const KeyStates &keyStates = {}) {
        writePhoto(name + "/IMG_1.JPG"); // 07:08:09 of its wall clock
        return openAndImport(disk().path(name), keyStates);
    }
    static std::string dateOf(const MySingleFolderPtr &folder) {
        return absl::FormatTime("%H:%M", folder->sfPicDetails_fullArray.at(0)->spDateTimeOriginal,
                                absl::UTCTimeZone());
    }

    Date now = absl::FromUnixSeconds(1'700'000'000);
    std::vector<std::string> told;
};

TEST_F(SystemZone, AChangeOfTheLinkReadsAgainWhatWasReadInTheSystemsZone) {
    KeyStates assigned, ignored;
    assigned.adaptedZone.source = ZoneChoice::named(Zones::utc());
    ignored.isEXIFIgnored = true;
    const auto plain = importPhotoOf("plain"), fixed = importPhotoOf("fixed", assigned),
               unread = importPhotoOf("unread", ignored);
    const std::string fileDate = dateOf(unread);
    EXPECT_EQ(dateOf(plain), "22:08");
    app().startWatchingSystemZone();
    moveTo("America/Lima");
    ASSERT_TRUE(arrivesIn("America/Lima"));
    EXPECT_THAT(told, ElementsAre("abort", "formatters",
                                  testing::AllOf(HasSubstr("America/Lima"), HasSubstr(": 1.")),
                                  "change"));
    EXPECT_EQ(dateOf(plain), "12:08");
    EXPECT_EQ(plain->sfFrom, plain->sfPicDetails_fullArray.at(0)->spDateTimeOriginal);
    EXPECT_EQ(dateOf(fixed), "07:08");
    EXPECT_EQ(dateOf(unread), fileDate);
}

TEST_F(SystemZone, AChangeDuringAnImportOrASaveIsMadeUpForBehindIt) {
    writePhoto("plain/IMG_1.JPG");
    MySingleFolderPtr folder;
    ASSERT_EQ(open(disk().path("plain"), &folder), OpenFolderResult::Opened);
    ImportRequest request;
    request.folder = folder;
    waitFor<ImportOutcome>([&](auto finished) {
        app().startImport(request, [&, finished](const ImportOutcome &outcome) {
            EXPECT_EQ(zone(), "Asia/Tokyo");
            EXPECT_EQ(dateOf(folder), "22:08");
            finished(outcome);
        });
        moveTo("America/Lima");
        notice();
    });
    EXPECT_TRUE(arrivesIn("America/Lima"));
    EXPECT_EQ(dateOf(folder), "12:08");

    app().buildNewSource();
    app().shiftFolder(*folder, absl::Hours(1));
    {
        const PreProcessResult plan = preProcess();
        moveTo("UTC");
        notice();
        EXPECT_EQ(goOn(plan).items.size(), 1U);
        QCoreApplication::processEvents();
        EXPECT_EQ(zone(), "America/Lima"); // the plan could still be gone on with
    }
    EXPECT_TRUE(arrivesIn("UTC"));
    EXPECT_EQ(dateOf(folder), "08:08"); // what the file says now
}

TEST_F(SystemZone, SeveralNotificationsOfOneChangeRaiseOneAlert) {
    const auto folder = importPhotoOf("plain");
    const std::tuple<const char *, absl::Duration, bool> rows[] = {
        {"America/Lima", absl::ZeroDuration(), true},
        {"UTC", absl::Seconds(1), false},
        {"Asia/Tokyo", absl::Milliseconds(1001), true},
        {"Asia/Seoul", absl::Seconds(5), false}, // the same offset: no item shows another date
        {"UTC", -absl::Hours(9), true},          // the clock was set as well
    };
    for (const auto &[place, passed, isAlerted] : rows) {
        SCOPED_TRACE(place);
        now += passed;
        told.clear();
        moveTo(place);
        notice();
        ASSERT_TRUE(arrivesIn(place)); // at once, or when the import's thread has let go
        EXPECT_EQ(told.size(), isAlerted ? 4U : 3U);
        EXPECT_EQ(told.back(), "change");
    }
    EXPECT_EQ(dateOf(folder), "07:08");
    told.clear();
    notice(); // nothing changed
    EXPECT_THAT(told, ElementsAre("abort"));
}

} // namespace
} // namespace chronomender
