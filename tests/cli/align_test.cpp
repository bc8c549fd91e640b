// SPDX-License-Identifier: GPL-3.0-or-later
#include "MendRun.h"

#include <gmock/gmock.h>
#include <map>

namespace chronomender {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

using Dates = std::map<std::string, std::string>;

/// Three pictures at 0, 10 and 100 seconds after ten o'clock, not in the order of their names;
/// their other stamps say other times.
class Align : public MendTest {
protected:
    Align() {
        writeShot("cam/a.jpg", "10:01:40", "10:05:00", "11:06:00");
        writeShot("cam/b.jpg", "10:00:00", "09:30:00", "10:07:00");
        writeShot("cam/c.jpg", "10:00:10", "10:08:00", "11:00:00");
    }

    void writeShot(const std::string &name, const std::string &original,
                   const std::string &digitized, const std::string &modified) {
        const std::string day = "2024:05:06 ";
        little::PhotoFields fields;
        fields.original = day + original;
        fields.digitized = day + digitized;
        fields.modified = day + modified;
        m_photos.push_back(write(name, fields));
    }

    std::vector<std::string> bytes() const {
        std::vector<std::string> all;
        for (const std::string &photo : m_photos)
            all.push_back(little::fileContent(photo));
        return all;
    }

    RunResult align(const Arguments &options, const Arguments &ofFolder = {}) const {
        return mend(joined(joined({"align", "--json", "--system-zone", "UTC"}, options),
                           joined({"--folder", path("cam")}, ofFolder)));
    }

    /// Time of day of each file's date, as the run would leave it; "" for a file it leaves alone.
    static Dates datesOf(const RunResult &run) {
        Dates dates;
        for (const Json &line : run.lines())
            if (line.contains("path")) {
                const std::filesystem::path file(line.at("path").get<std::string>());
                const Json slot = line.at("slots").value("exifDateTimeOriginal", Json::object());
                dates[file.stem()] = slot.value("new", std::string("           ")).substr(11);
            }
        return dates;
    }

    void expectError(const Arguments &options, const std::string &words,
                     const Arguments &ofFolder = {}) {
        const auto before = bytes();
        const RunResult run = align(joined(options, {"--save"}), ofFolder);
        EXPECT_EQ(run.exitCode, 2) << ::testing::PrintToString(options);
        EXPECT_THAT(run.errors, HasSubstr(words));
        EXPECT_EQ(run.output, "");
        EXPECT_EQ(bytes(), before);
    }

    std::vector<std::string> m_photos;
};

TEST_F(Align, ShowsWhatEachCommandWouldDoAndWritesNothing) {
    struct Case {
        Arguments options;
        Dates dates;
    };
    const Case cases[]{
        {{"--gaps"}, {{"a", ""}, {"b", ""}, {"c", "10:00:50Z"}}},
        {{"--pack"}, {{"a", "10:00:02Z"}, {"b", ""}, {"c", "10:00:01Z"}}},
        {{"--pack", "--main", "c.jpg"}, {{"a", "10:00:11Z"}, {"b", "10:00:09Z"}, {"c", ""}}},
        {{"--by-name"}, {{"a", "10:00:00Z"}, {"b", "10:00:10Z"}, {"c", "10:01:40Z"}}},
        {{"--reverse"}, {{"a", "10:00:00Z"}, {"b", "10:01:40Z"}, {"c", ""}}},
        {{"--mirror"}, {{"a", "10:00:00Z"}, {"b", "10:01:40Z"}, {"c", "10:01:30Z"}}},
    };
    const auto before = bytes();
    for (const Case &one : cases) {
        const RunResult run = align(joined(one.options, {"--pics", "all"}));
        EXPECT_EQ(run.exitCode, 0) << run.errors;
        EXPECT_EQ(datesOf(run), one.dates) << one.options.front();
        EXPECT_EQ(run.lines().back().at("summary").at("dryRun"), true);
        EXPECT_EQ(bytes(), before) << one.options.front();
    }
}

TEST_F(Align, CopiesEachDateOfAFileAsItIsAndAsASaveWouldLeaveIt) {
    struct Case {
        const char *word, *slot, *state;
    };
    constexpr Case cases[]{
        {"digitized", "exifDateTimeDigitized", "old"},
        {"digitized-new", "exifDateTimeDigitized", "new"},
        {"modification", "tiffDateTime", "old"},
        {"modification-new", "tiffDateTime", "new"},
        {"file-creation", "fileCreationDate", "old"},
        {"file-modification", "fileModificationDate", "old"},
        {"file-modification-new", "fileModificationDate", "new"},
    };
    const Arguments shift{"--shift", "3:00:00",
                          "--set",   "dateChangeEXIFEXIFDigiDate=1",
                          "--set",   "dateChangeEXIFFinderModDate=1"};
    Dates wanted;
    for (const Case &one : cases) {
        for (const Json &info :
             mend(
                 joined({"info", "--json", "--system-zone", "UTC", "--folder", path("cam")}, shift))
                 .lines()) {
            const std::filesystem::path file(info.at("path").get<std::string>());
            wanted[file.stem()] = info.at("slots").at(one.slot).at(one.state);
        }
        const RunResult run = align({"--copy", one.word, "--pics", "all"}, shift);
        EXPECT_EQ(run.exitCode, 0) << run.errors;
        for (const auto &[name, time] : datesOf(run)) {
            EXPECT_EQ(time.substr(0, 8), wanted[name].substr(11, 8)) << one.word << ' ' << name;
        }
    }
}

TEST_F(Align, SavesWithTheConsentOfASave) {
    const std::string zoned = writeZonedPhoto("cam/d.jpg", "2024:05:06 12:03:20", "+02:00");
    const Arguments gaps{"--gaps", "--pics", "b.jpg", "c.jpg", path("cam/d.jpg"), "--save"};
    const Arguments shift{"--pic", "d.jpg", "--shift", "60"};
    const auto before = bytes();
    EXPECT_EQ(align(gaps, shift).exitCode, 3); // its zone stamp would be rewritten
    EXPECT_EQ(bytes(), before);
    const RunResult run = align(joined(gaps, {"--accept", "error_12_zoneStampRewritten"}), shift);
    EXPECT_EQ(run.exitCode, 0) << run.errors;
    EXPECT_THAT(little::fileContent(path("cam/c.jpg")), HasSubstr("2024:05:06 10:02:10"));
    EXPECT_THAT(little::fileContent(zoned), AllOf(HasSubstr("10:04:20"), HasSubstr("+00:00")));
    EXPECT_EQ(little::fileContent(path("cam/a.jpg")), before.front());
}

TEST_F(Align, MistakesAreNamedAndNothingIsWritten) {
    expectError({"--pics", "all"}, "Say how to align");
    expectError({"--gaps"}, "Say what to align");
    expectError({"--gaps", "--mirror", "--pics", "all"}, "Only one alignment");
    expectError({"--copy", "now", "--pics", "all"}, "file-modification-new");
    expectError({"--gaps", "--pics", "a.jpg", "b.jpg"}, "at least 3");
    expectError({"--mirror", "--pics", "a.jpg", "a.jpg"}, "at least 2");
    expectError({"--reverse", "--pics", "a.jpg", "x.jpg"}, "no item x.jpg");
    expectError({"--reverse", "--main", "a.jpg", "--pics", "all"}, "about --pack");
    expectError({"--pack", "--main", "a.jpg", "--pics", "b.jpg", "c.jpg"}, "not one of --pics");
    writePhoto("cam/old.jpg", "0001:01:01 10:00:00");
    expectError({"--reverse", "--pics", "all"}, "out of the years 1 to 4999");
    const RunResult idle = align({"--by-name", "--pics", "b.jpg", "c.jpg", "--save"});
    EXPECT_EQ(idle.exitCode, 0);
    EXPECT_THAT(idle.errors, HasSubstr("nothing moves"));
}

TEST_F(Align, NamesOfSeveralFoldersNeedTheFolder) {
    writePhoto("more/cam/b.jpg", "2024:05:06 12:00:00");
    writePhoto("phone/b.jpg", "2024:05:06 11:00:00");
    const auto reverse = [&](const Arguments &names, const std::string &folder) {
        return align(joined({"--reverse", "--pics"}, names), {path(folder)});
    };
    EXPECT_THAT(reverse({"a.jpg", "b.jpg"}, "phone").errors, HasSubstr("cam/b.jpg, phone/b.jpg"));
    EXPECT_EQ(reverse({"a.jpg", "phone/b.jpg"}, "phone").exitCode, 0);
    EXPECT_THAT(reverse({"a.jpg", "cam/b.jpg"}, "more/cam").errors,
                AllOf(HasSubstr(path("cam/b.jpg")), HasSubstr(path("more/cam/b.jpg"))));
    const RunResult run = reverse({"a.jpg", path("more/cam/b.jpg")}, "more/cam");
    EXPECT_EQ(run.lines().back().at("summary").at("planned"), 2) << run.errors;
}

} // namespace
} // namespace chronomender
