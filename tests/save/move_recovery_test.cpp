// SPDX-License-Identifier: GPL-3.0-or-later
#include "FailingFileLayer.h"
#include "MoveRecovery.h"
#include "TemporaryFolder.h"

#include <gmock/gmock.h>

#include <map>
#include <random>

namespace chronomender {
namespace {

using namespace little;
using enum RecoveryDirection;
using Result = RecoveredFile::Result;
using Names = std::map<std::string, std::string>; ///< contents by name
namespace fs = std::filesystem;

class MovingLayer : public FailingFileLayer {
public:
    std::uint64_t inodeShift = 0; ///< what a medium that is put in again does to inodes
    int renameError = 0;
    std::function<void(const std::string &to)> beforeRename;

    std::optional<FileAttributes> attributes(const std::string &path) override {
        auto found = FailingFileLayer::attributes(path);
        if (found)
            found->inode += inodeShift;
        return found;
    }
    bool renameExclusively(const std::string &from, const std::string &to,
                           FileError *error) override {
        if (beforeRename)
            beforeRename(to);
        if (renameError != 0)
            error->code = renameError;
        return renameError == 0 && FailingFileLayer::renameExclusively(from, to, error);
    }
};

/// A rename of the files of one folder, of which each holds its first name.
class MoveRecoveryTest : public testing::Test {
protected:
    std::string path(const std::string &name) const { return disk.path("photos/" + name); }
    void put(const std::string &name, const std::string &bytes) {
        disk.write("photos/" + name, bytes);
    }

    /// An item of which each file is called `from` and its extension, and is to be called `to`.
    UnitIntent item(const std::string &from, const std::string &to,
                    const std::vector<std::string> &extensions = {".jpg"}) {
        UnitIntent unit{{}, {}};
        for (const std::string &each : extensions) {
            MoveIntent move{disk.path("photos"), from + each, to + '_' + each, to + each, {}};
            put(move.oldName, contentOf(move.oldName));
            before[move.oldName] = after[move.finalName] = contentOf(move.oldName);
            move.before = *files.attributes(path(move.oldName));
            unit.moves.push_back(move);
        }
        return unit;
    }
    std::string contentOf(const std::string &name) const {
        return name + std::string(hasLookalikes ? 20 - name.size() : before.size() * 10, '#');
    }
    /// Records the units and carries out that many of their moves.
    void interrupt(std::vector<UnitIntent> units, std::size_t moves) {
        for (UnitIntent &unit : units)
            record.push_back({std::move(unit), {}});
        for (const bool isFirstWalk : {true, false})
            for (const RecordedUnit &each : record)
                for (const MoveIntent &move : each.unit.moves)
                    if (moves > 0 && move.oldName != move.finalName) {
                        fs::rename(path(isFirstWalk ? move.oldName : move.temporaryName),
                                   path(isFirstWalk ? move.temporaryName : move.finalName));
                        --moves;
                    }
    }
    std::vector<RecoveredFile> recover(RecoveryDirection direction) {
        const auto append = [this](std::span<const UnitIntent> units, FileError *) {
            for (const UnitIntent &unit : units)
                record.push_back({unit, {}});
            return true;
        };
        const std::vector<RecordedUnit> known = record;
        auto moves = recoverMoves(known, direction,
                                  {files, append, [this](int) { return hasLastingInodes; }});
        std::vector<RecordedUnit> left;
        for (const std::size_t index : moves.left)
            left.push_back(record.at(index));
        record = left;
        return moves.told;
    }
    static std::vector<Result> results(const std::vector<RecoveredFile> &told) {
        std::vector<Result> all;
        for (const RecoveredFile &each : told)
            all.push_back(each.result);
        return all;
    }
    Names present() const {
        Names names;
        for (const auto &each : fs::directory_iterator(path("")))
            names[each.path().filename()] = fileContent(each.path());
        return names;
    }
    /// Nothing of a rename before it.
    void startAgain() {
        fs::remove_all(path(""));
        before.clear();
        after.clear();
        record.clear();
    }

    TemporaryFolder disk;
    MovingLayer files;
    std::vector<RecordedUnit> record;
    Names before, after;
    bool hasLastingInodes = true, hasLookalikes = false;
};

/// Swaps, circles and chains, killed among their moves; then the recovery dies, and is done again.
TEST_F(MoveRecoveryTest, AllFilesGetWhereTheyAreToGoFromWhereverTheyAre) {
    const struct {
        const char *medium;
        bool hasLastingInodes, hasLookalikes;
        std::uint64_t inodeShift;
        bool hasCircles;
    } table[] = {
        {"disk", true, false, 0, true},
        {"card", false, true, 0, true},
        {"card that was put in again", false, false, 7, true},
        {"the same, with files that look alike", false, true, 1'000'000, false},
    };
    const std::vector<std::vector<std::string>> kinds{
        {".jpg"}, {".CR2", ".CR2.xmp", ".JPG"}, {".HEIC", ".xmp"}};
    std::mt19937 random(20240506);
    const auto upTo = [&](std::size_t most) {
        return std::uniform_int_distribution<std::size_t>(0, most)(random);
    };
    for (const auto &row : table)
        for (int round = 0; round < 80; ++round) {
            SCOPED_TRACE(std::string(row.medium) + ' ' + std::to_string(round));
            startAgain();
            hasLastingInodes = row.hasLastingInodes;
            hasLookalikes = row.hasLookalikes;
            std::vector<std::string> from{"a", "b", "c", "d", "e", "f"}, to = from;
            if (row.hasCircles)
                std::ranges::shuffle(to, random);
            else
                std::ranges::rotate(to, to.begin() + 1), to.back() = "g";
            std::vector<UnitIntent> units;
            for (std::size_t i = 0; i < from.size(); ++i)
                units.push_back(item(from[i], to[i], kinds[row.hasCircles ? upTo(2) : 1]));
            std::ranges::shuffle(units, random);
            interrupt(units, upTo(2 * before.size()));
            files.inodeShift = row.inodeShift;
            const RecoveryDirection direction = upTo(1) == 0 ? Finish : TakeBack;
            files.calls = 0;
            files.diesAtCall = static_cast<int>(1 + upTo(8 * before.size()));
            recover(direction);
            files.diesAtCall = 0;
            if (!record.empty())
                recover(direction);
            files.inodeShift = 0;
            EXPECT_TRUE(record.empty());
            EXPECT_EQ(present(), direction == Finish ? after : before);
            if (HasFailure())
                return;
        }
}

TEST_F(MoveRecoveryTest, ItemsStayWholeWhateverStandsInTheirWay) {
    using enum RecoveredFile::Result;
    const std::vector<std::string> pair{".CR2", ".CR2.xmp"};
    const struct {
        const char *what;
        std::size_t moves;
        std::map<std::string, std::string> strangers;
        RecoveryDirection direction;
        std::vector<std::string> names; ///< that the pair has in the end
        std::vector<Result> results;
    } table[] = {
        {"new name taken",
         2,
         {{"b.CR2.xmp", "?"}},
         Finish,
         {"a.CR2", "a.CR2.xmp"},
         {TakenBack, TakenBack}},
        {"new name taken before the first move",
         0,
         {{"b.CR2", "?"}},
         Finish,
         {"a.CR2", "a.CR2.xmp"},
         {TakenBack, TakenBack}},
        {"both taken",
         2,
         {{"b.CR2.xmp", "?"}, {"a.CR2", "?"}},
         Finish,
         {"b 2.CR2", "b 2.CR2.xmp"},
         {Completed, Completed}},
        {"number taken",
         3,
         {{"b.CR2.xmp", "?"}, {"a.CR2", "?"}, {"b 2.CR2.xmp", "?"}},
         Finish,
         {"b 3.CR2", "b 3.CR2.xmp"},
         {Completed, Completed}},
        {"old name taken",
         3,
         {{"a.CR2.xmp", "?"}},
         TakeBack,
         {"b.CR2", "b.CR2.xmp"},
         {Completed, Completed}},
        {"temporary name taken",
         1,
         {{"b_.CR2.xmp", "?"}},
         Finish,
         {"b.CR2", "b.CR2.xmp"},
         {Completed, Completed}},
        {"done", 4, {}, Finish, {"b.CR2", "b.CR2.xmp"}, {Nothing, Nothing}},
        {"not begun", 0, {}, TakeBack, {"a.CR2", "a.CR2.xmp"}, {Nothing, Nothing}},
    };
    for (const auto &row : table) {
        SCOPED_TRACE(row.what);
        startAgain();
        const std::vector<UnitIntent> units{item("a", "b", pair)};
        interrupt(units, row.moves);
        Names expected = row.strangers;
        for (std::size_t i = 0; i < pair.size(); ++i)
            expected[row.names[i]] = before.at('a' + pair[i]);
        for (const auto &[name, bytes] : row.strangers)
            put(name, bytes);
        const auto told = recover(row.direction);
        EXPECT_EQ(present(), expected);
        EXPECT_EQ(results(told), row.results);
        EXPECT_EQ(told[1].path, path(row.names[1]));
        EXPECT_EQ(told[1].oldPath, path("a.CR2.xmp"));
        EXPECT_TRUE(record.empty());
    }
}

TEST_F(MoveRecoveryTest, NameThatIsTakenMeanwhileIsNotOverwritten) {
    interrupt({item("a", "b", {".CR2", ".xmp"}), item("b", "a", {".CR2"})}, 3);
    files.beforeRename = [this](const std::string &to) {
        if (to == path("b.xmp"))
            put("b.xmp", "?");
    };
    recover(Finish);
    EXPECT_EQ(present(), (Names{{"b.xmp", "?"},
                                {"b 2.CR2", before.at("a.CR2")},
                                {"b 2.xmp", before.at("a.xmp")},
                                {"a.CR2", before.at("b.CR2")}}));
}

TEST_F(MoveRecoveryTest, WhatCannotBeMovedStaysRecordedAndWhatIsGoneIsForgotten) {
    using enum RecoveredFile::Result;
    const auto break_ = [this] {
        startAgain();
        interrupt({item("a", "b", {".CR2", ".xmp"}), item("b", "a")}, 2);
    };
    break_();
    fs::rename(path(""), disk.path("elsewhere"));
    EXPECT_THAT(results(recover(Finish)), testing::Each(Unreachable));
    fs::create_directory(path("")); // where nothing is mounted
    EXPECT_THAT(results(recover(Finish)), testing::Each(Unreachable));
    fs::remove(path(""));
    fs::rename(disk.path("elsewhere"), path(""));
    const Names broken = present();
    files.renameError = EROFS;
    EXPECT_THAT(results(recover(TakeBack)),
                testing::ElementsAre(WriteFailed, WriteFailed, Nothing));
    EXPECT_EQ(present(), broken);
    files.renameError = 0;
    EXPECT_THAT(results(recover(Finish)), testing::ElementsAre(Completed, Completed));
    EXPECT_TRUE(record.empty());

    break_();
    fs::remove(path("b_.CR2"));
    EXPECT_THAT(results(recover(Finish)), testing::ElementsAre(Changed, Completed, Completed));
    EXPECT_EQ(present(), (Names{{"b.xmp", before.at("a.xmp")}, {"a.jpg", before.at("b.jpg")}}));
}

TEST_F(MoveRecoveryTest, FileHasOneNameInTheEndAndItsLastRecordHolds) {
    UnitIntent first = item("a", "b", {".CR2", ".xmp"});
    UnitIntent again = first;
    again.moves.erase(again.moves.begin());
    again.moves[0].temporaryName = "b__.xmp";
    again.moves[0].finalName = "c.xmp";
    interrupt({first}, 2);
    UnitIntent later = first; // a run of its own, from where the first one has stopped
    later.moves.pop_back();
    later.moves[0].oldName = "b_.CR2";
    later.moves[0].temporaryName = "d_.CR2";
    later.moves[0].finalName = "d.CR2";
    interrupt({again, later}, 0);
    fs::create_hard_link(path("b_.CR2"), path("d_.CR2"));
    recover(Finish);
    EXPECT_EQ(present(), (Names{{"d.CR2", before.at("a.CR2")}, {"c.xmp", before.at("a.xmp")}}));
}

} // namespace
} // namespace chronomender
