// SPDX-License-Identifier: GPL-3.0-or-later
//
// How long a frame of a scrolled strip takes, with layout, signs and pictures, from the change of
// its place to the last pixel; without a screen. Prints one line of JSON, in milliseconds:
//
//     strip_frames [items [width]]

#include "StripArea.h"
#include "Texts.h"
#include "Trip.h"

#include <QApplication>

#include <absl/time/clock.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>

#include <time.h>

namespace chronomender::bench {
namespace {

constexpr int pictureCount = 64, framesOfEach = 400;

/// Nothing is asked of a trip in memory.
class NoQuestions : public WindowQuestions {
    void emptyTagOptions(const MySingleFolderPtr &,
                         std::function<void(PerFolderImportOptions)>) override {}
    void movieOptions(const MySingleFolderPtr &, std::function<void(MovieOptions)>) override {}
    void importOptions(const std::vector<std::string> &,
                       std::function<void(std::optional<KeyStates>)>) override {}
    void preSaveProblems(const PreProcessResult &, std::function<void(bool)>) override {}
    void runErrors(const SaveRunResult &) override {}
    void confirm(const Confirmation &, std::function<void(Answer)>) override {}
    void notice(const std::string &, const std::vector<std::string> &) override {}
};

/// Pictures of noise in the size of a thumbnail, upright and lying.
std::vector<QImage> pictures(ThumbSide side) {
    std::mt19937 random(1);
    std::vector<QImage> made;
    for (int i = 0; i < pictureCount; ++i) {
        const int longer = static_cast<int>(side), shorter = longer * 2 / 3;
        QImage image(i % 3 ? longer : shorter, i % 3 ? shorter : longer, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                image.setPixel(x, y, static_cast<QRgb>(random()) | 0xFF000000U);
        made.push_back(std::move(image));
    }
    return made;
}

double now(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

struct Clock {
    clockid_t id;
    double begin = 0;
    std::vector<double> times{};

    double share(double part) {
        std::ranges::sort(times);
        return times[static_cast<std::size_t>(part * static_cast<double>(times.size() - 1))];
    }
};

class Frames {
public:
    explicit Frames(StripView &view) : m_view(view) {}

    /// Steps of so many pixels, from a place on.
    void scroll(double from, double step) {
        m_view.scrollTo(from);
        m_view.repaint();
        for (int frame = 0; frame < framesOfEach; ++frame) {
            for (Clock *clock : {&wall, &processor})
                clock->begin = now(clock->id);
            m_view.scrollTo(m_view.strip()->scrollX + step);
            m_view.repaint();
            for (Clock *clock : {&wall, &processor})
                clock->times.push_back(now(clock->id) - clock->begin);
        }
    }

    Clock wall{CLOCK_MONOTONIC}, processor{CLOCK_PROCESS_CPUTIME_ID};

private:
    StripView &m_view;
};

int measure(std::size_t itemCount, int width, int thumbSize) {
    NoQuestions questions;
    WindowSession session(AppServices{makeSystemFileLayer(), std::make_unique<UserDefaults>(),
                                      std::make_unique<Zones>(), [] { return absl::Now(); }},
                          questions);
    Zones zones;
    addTrip(session.controller().droppedFolders(), zones, itemCount);
    session.controller().buildNewSource();
    session.thumbnails().setIsAutoBGThumbsPaused(true);
    StripArea area(session);
    const auto normal = pictures(ThumbSide::Normal), maxi = pictures(ThumbSide::Maxi);
    area.shared().thumbnail = [&](const MySinglePicPtr &pic, ThumbSide side) {
        const auto &made = side == ThumbSide::Maxi ? maxi : normal;
        return ThumbAnswer{ThumbState::Ready, made[pic->sessionUniqueId % pictureCount]};
    };
    area.setThumbSize(thumbSize);
    area.resize(width, area.sizeHint().height());
    area.show();
    QApplication::processEvents();
    StripView &view = area.firstView();
    if (view.strip()->theSource.size() != itemCount)
        return 1;
    const double length = view.strip()->geometry.totalWidth(view.strip()->count());
    Frames frames(view);
    frames.scroll(0, 12);                    // along
    frames.scroll(length / 2, 150);          // with a wheel
    frames.scroll(0, length / framesOfEach); // at the handle of the scroll bar
    std::printf("{\"items\": %zu, \"median\": %.3f, \"worst\": %.3f, \"processor_median\": %.3f, "
                "\"processor_worst\": %.3f}\n",
                itemCount, frames.wall.share(0.5), frames.wall.share(1),
                frames.processor.share(0.5), frames.processor.share(1));
    return 0;
}

} // namespace
} // namespace chronomender::bench

int main(int argc, char **argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    chronomender::loadTexts("en");
    return chronomender::bench::measure(argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 50'000,
                                        argc > 2 ? std::atoi(argv[2]) : 1920,
                                        argc > 3 ? std::atoi(argv[3]) : chronomender::usualThumb);
}
