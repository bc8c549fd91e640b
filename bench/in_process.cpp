// SPDX-License-Identifier: GPL-3.0-or-later
//
// The figures that need no other program: limits, import, save, sort, zones, names, timelines.
// Expects in CHRONOMENDER_BENCH_FILES a folder with `many` (JPEGs with bodies of 200 KB), `mixed`
// (three in ten of other formats), `companions` (small JPEGs with an XMP file each), `short` and
// `long` (fewer JPEGs, bodies of 200 KB and 4 MB) and `small` (folders of the smallest files), as
// scripts/bench makes them. Every benchmark leaves the files as it found them or one hour away.

#include "Limits.h"
#include "Names.h"
#include "Session.h"
#include "Texts.h"
#include "Timelines.h"
#include "ZoneChanges.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>

#include <array>
#include <chrono>
#include <cstdlib>
#include <filesystem>

namespace chronomender::bench {

namespace {

using Clock = std::chrono::steady_clock;
using enum RunJournal::Durability;

std::string folderNamed(const std::string &name) {
    const char *root = std::getenv("CHRONOMENDER_BENCH_FILES");
    return std::string(root ? root : ".") + "/" + name;
}

double secondsSince(Clock::time_point begin) {
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

using LimitFunction = std::chrono::duration<double> (*)(const std::vector<std::string> &);

void limit(benchmark::State &state, LimitFunction function, const std::string &folder) {
    const auto paths = filesOf(folderNamed(folder));
    for (auto _ : state) {
        const auto time = function(paths).count();
        if (time < 0)
            state.SkipWithError("a file could not be read or written");
        state.SetIterationTime(time);
    }
    state.counters["files"] = static_cast<double>(paths.size());
}

void importToDates(benchmark::State &state, const std::string &folder) {
    const auto count = filesOf(folderNamed(folder)).size();
    for (auto _ : state) {
        Session session;
        const auto begin = Clock::now();
        const auto imported = session.import(folderNamed(folder));
        state.SetIterationTime(secondsSince(begin));
        if (imported != count)
            state.SkipWithError("not every file gave an item with dates");
    }
    state.counters["files"] = static_cast<double>(count);
}

/// Both stages, from the first proof to the model's update; the shift goes to and fro.
void saveStage(benchmark::State &state, const std::string &folder,
               RunJournal::Durability durability) {
    Session session(durability);
    const auto count = session.import(folderNamed(folder));
    session.controller().buildNewSource(); // only what is listed is saved
    static auto shift = absl::Hours(1);
    double firstStage = 0, bytes = 0;
    for (auto _ : state) {
        session.shift(shift);
        shift = -shift;
        const auto writtenBefore = session.bytesWritten();
        const auto begin = Clock::now();
        const auto proved = session.preProcess();
        firstStage = secondsSince(begin);
        const auto saved = session.save();
        state.SetIterationTime(secondsSince(begin));
        bytes = static_cast<double>(session.bytesWritten() - writtenBefore);
        state.counters["planned"] = static_cast<double>(session.bytesPlanned());
        if (count == 0 || proved != count || saved != count)
            state.SkipWithError(("of " + std::to_string(count) + " items " +
                                 std::to_string(proved) + " were proved and " +
                                 std::to_string(saved) + " saved")
                                    .c_str());
    }
    state.counters["files"] = static_cast<double>(count);
    state.counters["bytes"] = bytes;
    state.counters["firstStage"] = firstStage;
}

/// A whole run, from the names to the model's update; the names change from run to run.
void renameRun(benchmark::State &state, RunJournal::Durability durability) {
    const std::string folder = folderNamed("companions");
    Session session(durability);
    const auto count = session.import(folder);
    session.controller().buildNewSource(); // only what is listed is renamed
    static bool isOther = false;
    for (auto _ : state) {
        isOther = !isOther;
        RenameTemplate named{{}, {TemplatePart::ofText(isOther ? "TRIP" : "IMG")}};
        for (const auto element : {RenameElement::Month, RenameElement::Counter})
            named.stringParts.push_back(TemplatePart::ofElement(element));
        const auto begin = Clock::now();
        const auto renamed = session.rename(named);
        state.SetIterationTime(secondsSince(begin));
        if (count == 0 || renamed != count)
            state.SkipWithError("not every item was renamed");
    }
    state.counters["files"] = static_cast<double>(filesOf(folder).size());
}

void sortAll(benchmark::State &state) {
    static Session session;
    auto &controller = session.controller();
    if (controller.droppedFolders().droppedFolders().empty())
        for (const auto &entry : std::filesystem::directory_iterator(folderNamed("small")))
            session.import(entry.path());
    for (auto _ : state) {
        const auto begin = Clock::now();
        controller.buildNewSource();
        state.SetIterationTime(secondsSince(begin));
    }
    state.counters["files"] = static_cast<double>(controller.source_full().size());
}

/// Work that tells how long it took, and how many of something it made.
template<class Work>
void counted(benchmark::State &state, Work work) {
    std::size_t count = 0;
    for (auto _ : state) {
        const auto done = work();
        count = done.count;
        state.SetIterationTime(done.time.count());
        if (count == 0)
            state.SkipWithError("a stamp or a name came out wrong");
    }
    state.counters["files"] = static_cast<double>(count);
}

constexpr std::array<std::pair<const char *, Timelines::Figure (Timelines::*)()>, 6> timelineRows{{
    {"first", &Timelines::firstBuild},
    {"full", &Timelines::fullRebuild},
    {"text", &Timelines::refilterByText},
    {"state", &Timelines::refilterByState},
    {"drag", &Timelines::dragStep},
    {"range", &Timelines::visibleRange},
}};

void timelines(benchmark::State &state, std::size_t itemCount,
               Timelines::Figure (Timelines::*work)()) {
    Timelines &trip = Timelines::ofSize(itemCount);
    for (auto _ : state) {
        const Timelines::Figure figure = (trip.*work)();
        state.SetIterationTime(figure.time.count());
        state.counters["files"] = static_cast<double>(figure.count);
        if (figure.count == 0)
            state.SkipWithError("the list was built wrongly");
    }
}

void registerAll() {
    const auto add = [](const char *name, auto &&...rest) {
        benchmark::RegisterBenchmark(name, rest...)
            ->Iterations(1)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    };
    add("readLimit/many", limit, readLimit, "many");
    add("import/many", importToDates, "many");
    add("readLimit/mixed", limit, readLimit, "mixed");
    add("import/mixed", importToDates, "mixed");
    for (const std::string folder : {"many", "mixed"}) {
        add(("patchLimit/" + folder).c_str(), limit, patchLimit, folder);
        add(("syncedPatchLimit/" + folder).c_str(), limit, syncedPatchLimit, folder);
        add(("save/" + folder).c_str(), saveStage, folder, Unsynced);
        add(("syncedSave/" + folder).c_str(), saveStage, folder, Synced);
    }
    for (const std::string folder : {"short", "long"}) {
        add(("import/" + folder).c_str(), importToDates, folder);
        add(("save/" + folder).c_str(), saveStage, folder, Unsynced);
    }
    add("renameLimit", limit, renameLimit, "companions");
    add("rename", renameRun, Unsynced);
    add("syncedRename", renameRun, Synced);
    add("zones/reread", [](benchmark::State &state) { counted(state, rereadAfterZoneChange); });
    for (const std::size_t threads : {1, 2})
        add(("zones/threads" + std::to_string(threads)).c_str(), [threads](auto &state) {
            counted(state, [threads] { return parallelConversions(threads); });
        });
    add("names", [](benchmark::State &state) {
        counted(state, [] { return buildNames(folderNamed("short")); });
    });
    for (const std::size_t itemCount : {5'000, 50'000})
        for (const auto &[row, work] : timelineRows)
            add(("timelines/" + std::string(row) + '/' + std::to_string(itemCount)).c_str(),
                timelines, itemCount, work);
    add("sort/small", [](benchmark::State &state) { sortAll(state); });
}

} // namespace

} // namespace chronomender::bench

int main(int argc, char **argv) {
    QCoreApplication application(argc, argv);
    chronomender::loadTexts("en");
    chronomender::bench::registerAll();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
