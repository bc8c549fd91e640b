// SPDX-License-Identifier: GPL-3.0-or-later
//
// window_tour TRIP MANY FOLDER [--language CODE] [--dark] [STEP…]: opens the real window over a
// copy of the sample trip (and MANY, a folder of many pictures), leads it through the states that
// the documentation shows, and writes a picture of the screen for each to FOLDER/STEP.png. Needs a
// screen: see scripts/screenshots.
#include "Appearance.h"
#include "Controls.h"
#include "FilterEditor.h"
#include "MainWindow.h"
#include "StripView.h"
#include "ZonesSheet.h"

#include <QApplication>
#include <QCursor>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QScreen>
#include <QTest>

#include <cstdio>
#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <vector>

using namespace chronomender;

namespace {

constexpr int settleMilliseconds = 400, movingMilliseconds = 250, patienceMilliseconds = 60'000;

class Tour {
public:
    Tour(std::string trip, std::string many, std::string folder, std::set<std::string> wanted)
        : m_trip(std::move(trip)),
          m_many(std::move(many)),
          m_folder(std::move(folder)),
          m_wanted(std::move(wanted)) {}

    int run() {
        const struct {
            const char *name;
            void (Tour::*show)();
            const char *zone = "Asia/Tokyo"; ///< of the computer
            bool isMoving = false;           ///< gone in a moment: shown as it is
        } steps[] = {
            {"empty", &Tour::showEmpty},
            {"importing", &Tour::showImporting, "Europe/Berlin", true},
            {"out-of-order", &Tour::showTrip},
            {"drag", &Tour::showDrag},
            {"alert", &Tour::showAlert, "Europe/Berlin"},
            {"zones", &Tour::showZones, "Europe/Berlin"},
            {"pre-save", &Tour::showPreSave, "Europe/Berlin"},
            {"saving", &Tour::showSaving, "Europe/Berlin", true},
            {"errors", &Tour::showErrors, "Europe/Berlin"},
            {"rename", &Tour::showRename},
            {"filter", &Tour::showFilter},
            {"preferences", &Tour::showPreferences},
        };
        for (const auto &step : steps) {
            if (!m_wanted.empty() && !m_wanted.contains(step.name))
                continue;
            openWindow(step.zone);
            (this->*step.show)();
            QTest::qWait(step.isMoving ? movingMilliseconds : settleMilliseconds);
            keepPicture(step.name);
            closeWindow();
        }
        return m_failures == 0 ? 0 : 1;
    }

private:
    WindowSession &session() { return m_window->session(); }

    void openWindow(const char *zone) {
        AppServices services = systemServices();
        services.defaults = std::make_unique<UserDefaults>();
        services.defaults->setForThisRun("useMovieOptionsQTValuesWithoutShowingSheet", "1");
        services.defaults->setForThisRun("isMVHDTimezoneCorrectionEnabled", "1");
        services.zones->setSystemZone(*services.zones->zoneWithName(zone));
        m_window = std::make_unique<MainWindow>(std::move(services));
        m_window->showMaximized();
        m_window->session().start();
        QCursor::setPos(0, 0);
        QTest::qWait(settleMilliseconds);
    }
    void closeWindow() {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *each : windows)
            if (each != m_window.get() && each->isVisible())
                each->close();
        m_window.reset();
    }
    void waitUntil(const std::function<bool()> &isDone) {
        if (!QTest::qWaitFor(isDone, patienceMilliseconds)) {
            std::fprintf(stderr, "window_tour: waited in vain\n");
            ++m_failures;
        }
    }
    void open(const std::vector<std::string> &folders) {
        std::vector<std::string> paths;
        for (const std::string &each : folders)
            paths.push_back(m_trip + '/' + each);
        session().openPaths(paths);
        waitUntil([this] { return !session().jobs().isRunning(JobKind::Import); });
        waitUntil([this] { return !session().jobs().isRunning(JobKind::Thumbnails); });
    }
    void keepPicture(const char *name) {
        const QPixmap picture = QGuiApplication::primaryScreen()->grabWindow(0);
        const std::string path = m_folder + '/' + name + ".png";
        if (picture.isNull() || !picture.save(qString(path)))
            ++m_failures;
    }
    MySinglePicPtr pic(std::string_view baseName) {
        for (const MySinglePicPtr &each : session().timelines().source_filtered())
            if (each->spBaseName() == baseName)
                return each;
        std::fprintf(stderr, "window_tour: %s is not there\n", std::string(baseName).c_str());
        ++m_failures;
        return nullptr;
    }
    void selectPic(std::string_view baseName) {
        session().select([each = pic(baseName)](MyTimelinesController &timelines) {
            timelines.simpleSelectThumb(each, timelines.mainTimeline());
        });
        QTest::qWait(settleMilliseconds);
    }
    StripView &strip() { return *m_window->findChild<StripView *>(); }
    QPoint placeOf(const MySinglePicPtr &each) {
        return strip().placeOf(*strip().strip()->indexOf(*each)).center();
    }

    void showEmpty() {}
    void showImporting() {
        session().openPaths({m_many});
        waitUntil([this] {
            const auto statuses = session().jobs().statuses();
            return statuses.empty() || (statuses.front().total > 0 &&
                                        statuses.front().done * 5 > statuses.front().total);
        });
    }
    void showTrip() {
        open({"canon", "gopro", "phone"});
        selectPic("PXL_0004");
    }
    void showDrag() {
        showTrip();
        const QPoint from = placeOf(pic("IMG_4103")), to = placeOf(pic("PXL_0004"));
        QTest::mousePress(&strip(), Qt::LeftButton, {}, from);
        for (int part = 1; part <= 4; ++part)
            QTest::mouseMove(&strip(), from + (to - from) * part / 4, 30);
        QTest::qWait(settleMilliseconds);
    }
    void showAlert() {
        open({"party", "friend"});
        selectPic("P0002");
    }
    void showZones() {
        open({"nikon", "canon", "phone"});
        selectPic("DSC_0235");
        m_window->run(CommandId::FolderZones);
        const auto *sheet = m_window->findChild<ZonesSheet *>();
        QTest::keyClicks(sheet->findChildren<QLineEdit *>().back(), QStringLiteral("japan"));
    }
    void showPreSave() {
        open({"canon", "phone"});
        session().selectFolders({session().folders().front()});
        CompoundFields hour;
        hour.dmDirection = "-";
        hour.dmHours = "1";
        session().shiftSelectedFolders(hour);
        m_window->run(CommandId::SaveAll);
        waitUntil([this] { return session().saveFlow().stage() == SaveFlow::Stage::Asking; });
    }
    void showSaving() {
        session().openPaths({m_many});
        waitUntil([this] { return !session().jobs().isRunning(JobKind::Import); });
        CompoundFields minutes;
        minutes.dmMinutes = "5";
        session().selectFolders({session().folders().front()});
        session().shiftSelectedFolders(minutes);
        m_window->run(CommandId::SaveAll);
        waitUntil([this] {
            const auto statuses = session().jobs().statuses();
            return session().saveFlow().isIdle() ||
                   (session().saveFlow().stage() == SaveFlow::Stage::Writing &&
                    statuses.front().done > 0);
        });
    }
    void showErrors() {
        showPreSave();
        for (const auto &file : std::filesystem::directory_iterator(m_trip + "/canon"))
            if (file.path().extension() == ".JPG")
                std::filesystem::last_write_time(file.path(),
                                                 std::filesystem::file_time_type::clock::now());
        for (QWidget *each : QApplication::topLevelWidgets())
            for (QPushButton *button : each->findChildren<QPushButton *>())
                if (button->text() == qText("preSaveSummary_submit_save"))
                    button->click();
        waitUntil([this] { return session().saveFlow().isIdle(); });
    }
    void showRename() {
        open({"canon", "nikon", "phone"});
        m_window->run(CommandId::RenameAll);
    }
    void showFilter() {
        open({"canon", "nikon", "phone"});
        FilterCondition camera{FilterRowKind::CamAndFolder};
        camera.text = "canon";
        FilterCondition photos{FilterRowKind::MediaType, PredicateOperator::Equal};
        filterBy(predicateOf({FilterConditions::Match::All, {camera, photos}}),
                 session().controller().filters(), session().defaults());
        m_window->run(CommandId::EditFilter);
    }
    void showPreferences() { m_window->run(CommandId::Preferences); }

    std::string m_trip, m_many, m_folder;
    std::set<std::string> m_wanted;
    std::unique_ptr<MainWindow> m_window;
    int m_failures = 0;
};

} // namespace

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationDisplayName(QStringLiteral("chronoMender"));
    std::string language = "en";
    bool isDark = false;
    std::vector<std::string> words;
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        if (word == "--language" && i + 1 < argc)
            language = argv[++i];
        else if (word == "--dark")
            isDark = true;
        else
            words.push_back(word);
    }
    if (words.size() < 3) {
        std::fprintf(stderr, "usage: window_tour TRIP MANY FOLDER [OPTION…] [STEP…]\n");
        return 2;
    }
    loadTexts(language);
    applyAppearance(isDark ? Appearance::Dark : Appearance::Light);
    QApplication::setWindowIcon(applicationIcon());
    return Tour(words[0], words[1], words[2], {words.begin() + 3, words.end()}).run();
}
