// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a person waits for at the window, without a screen. Prints one line of JSON, in
// milliseconds:
//
//     window_bench start NANOSECONDS   from that time of the monotonic clock until an empty window
//                                      is painted and has nothing left to do
//     window_bench folder FOLDER       from the items of a folder being there until thumbnails are
//                                      on screen: one of them, and all in view
//     window_bench items [COUNT]       what commands on that many items take until all is painted

#include "Appearance.h"
#include "MainWindow.h"
#include "StripArea.h"
#include "Texts.h"
#include "Trip.h"

#include <QAbstractEventDispatcher>
#include <QApplication>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string_view>
#include <thread>
#include <vector>

namespace chronomender::bench {
namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

/// Panels show some changes a moment later, all of them sooner than this.
constexpr std::chrono::milliseconds quietTime{150}, pollTime{1};
constexpr int repetitions = 7;

double milliseconds(Clock::duration duration) {
    return Milliseconds(duration).count();
}

/// All that can be done now.
bool processPending() {
    bool hasProcessed = false;
    while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents))
        hasProcessed = true;
    return hasProcessed;
}

template<class Condition>
Clock::time_point waitUntil(Condition isMet) {
    while (!isMet())
        QAbstractEventDispatcher::instance()->processEvents(QEventLoop::WaitForMoreEvents);
    return Clock::now();
}

/// When the last of all that goes on was done.
Clock::time_point settled() {
    Clock::time_point last = Clock::now();
    while (Clock::now() - last < quietTime) {
        if (processPending())
            last = Clock::now();
        std::this_thread::sleep_for(pollTime);
    }
    return last;
}

class PaintWatch : public QObject {
public:
    explicit PaintWatch(QObject &watched) { watched.installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override {
        hasPainted |= event->type() == QEvent::Paint;
        return false;
    }
    bool hasPainted = false;
};

/// As the program itself does.
std::unique_ptr<MainWindow> shownWindow() {
    loadTexts("en");
    QApplication::setWindowIcon(applicationIcon());
    AppServices services = systemServices();
    applyAppearance(static_cast<Appearance>(services.defaults->integerForKey("appearance")));
    auto window = std::make_unique<MainWindow>(std::move(services));
    window->show();
    window->session().start();
    return window;
}

int measureStart(Clock::time_point begin) {
    const auto window = shownWindow();
    const PaintWatch watch(*window);
    waitUntil([&] { return watch.hasPainted; });
    processPending();
    std::printf("{\"usable\": %.1f}\n", milliseconds(Clock::now() - begin));
    return 0;
}

int measureFolder(const char *path) {
    const auto window = shownWindow();
    settled();
    WindowSession &session = window->session();
    StripArea &area = *window->findChild<StripArea *>();
    StripView &view = area.firstView();
    bool isReadyOnScreen = false;
    area.shared().thumbnail = [&](const MySinglePicPtr &pic, ThumbSide side) {
        const ThumbAnswer answer = session.thumbnails().spThumb(pic, side);
        isReadyOnScreen |= answer.state == ThumbState::Ready;
        return answer;
    };
    const auto areAllReady = [&] {
        const IndexRange range = view.visibleRange();
        for (auto i = range.begin; i < range.end; ++i)
            if (session.thumbnails()
                    .spThumb(view.strip()->shown()[static_cast<std::size_t>(i)])
                    .state != ThumbState::Ready)
                return false;
        return true;
    };
    const Clock::time_point begin = Clock::now();
    Clock::time_point there{};
    QObject::connect(&session, &WindowSession::listChanged, window.get(), [&] {
        if (there == Clock::time_point{} && view.strip()->count() > 0)
            there = Clock::now();
    });
    session.openPaths({path});
    const Clock::time_point first = waitUntil([&] { return isReadyOnScreen; });
    waitUntil(areAllReady);
    PaintWatch watch(view);
    view.update();
    const Clock::time_point all = waitUntil([&] { return watch.hasPainted; });
    const IndexRange range = view.visibleRange();
    std::printf(
        "{\"items\": %lld, \"import\": %.1f, \"first\": %.1f, \"all\": %.1f, \"inView\": %lld}\n",
        static_cast<long long>(view.strip()->count()), milliseconds(there - begin),
        milliseconds(first - there), milliseconds(all - there),
        static_cast<long long>(range.count()));
    return 0;
}

struct Step {
    const char *name;
    std::function<void(MainWindow &)> run;
    std::vector<double> times{}, blocked{};

    double median(std::vector<double> values) const {
        std::ranges::sort(values);
        return values[values.size() / 2];
    }
};

/// How long the call itself takes (nothing else is answered meanwhile), and until all is shown.
void measure(Step &step, MainWindow &window) {
    const Clock::time_point begin = Clock::now();
    step.run(window);
    processPending();
    step.blocked.push_back(milliseconds(Clock::now() - begin));
    step.times.push_back(milliseconds(settled() - begin));
}

int measureItems(std::size_t count) {
    const auto window = shownWindow();
    WindowSession &session = window->session();
    session.thumbnails().setIsAutoBGThumbsPaused(true);
    Zones zones;
    addTrip(session.controller().droppedFolders(), zones, count);
    session.edit([](AppController &) {});
    session.selectFolders({session.folders().front()});
    settled();
    CompoundFields anHour;
    anHour.dmHours = "1";
    Step steps[] = {
        {"selectAll", [](MainWindow &shown) { shown.run(CommandId::SelectAll); }},
        {"shift", [&](MainWindow &shown) { shown.session().shiftSelectedFolders(anHour); }},
        {"undo", [](MainWindow &shown) { shown.run(CommandId::Undo); }},
        {"deselect", [](MainWindow &shown) { shown.run(CommandId::Deselect); }},
    };
    for (int i = 0; i < repetitions; ++i)
        for (Step &step : steps)
            measure(step, *window);
    std::printf("{\"items\": %zu", session.controller().source_full().size());
    for (const Step &step : steps)
        std::printf(", \"%s\": %.1f, \"%sBlocked\": %.1f", step.name, step.median(step.times),
                    step.name, step.median(step.blocked));
    std::puts("}");
    return 0;
}

} // namespace
} // namespace chronomender::bench

int main(int argc, char **argv) {
    using namespace chronomender::bench;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const std::string_view mode = argc > 1 ? argv[1] : "";
    if (mode == "start" && argc == 3)
        return measureStart(
            Clock::time_point(std::chrono::nanoseconds(std::strtoll(argv[2], nullptr, 10))));
    if (mode == "folder" && argc == 3)
        return measureFolder(argv[2]);
    if (mode == "items")
        return measureItems(argc > 2 ? std::strtoul(argv[2], nullptr, 10) : 50'000);
    std::fputs("usage: window_bench start NANOSECONDS | folder FOLDER | items [COUNT]\n", stderr);
    return 2;
}
