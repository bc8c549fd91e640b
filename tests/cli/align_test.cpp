// SPDX-License-Identifier: GPL-3.0-or-later
#include "MendRun.h"

#include <array>
#include <gmock/gmock.h>
#include <map>
#include <sys/stat.h>

namespace chronomender {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

using Dates = std::map<std::string, std::string>;

/// Three pictures at 0, 10 and 100 seconds after ten o'clock, not in the order of their names;
/// their other dates say other times.
class Align : public MendTest {
protected:
    Align() {
        writeShot("a", "10:01:40", "10:05:00", "11:06:00");
        writeShot("b", "10:00:00", "09:30:00", "10:07:00");
        writeShot("c", "10:00:10", "10:08:00", "11:00:00");
    }

    void writeShot(const std::string &name, const std::string &original,
                   const std::string &digitized, const std::string &modified) {
        const std::string day = "2024:05:06 ";
        write(
            "cam/" + name + ".jpg",
            {.original = day + original, .digitized = day + digitized, .modified = day + modified});
    }

    std::string bytes() const {
        return little::fileContent(path("cam/a.jpg")) + little::fileContent(path("cam/b.jpg")) +
               little::fileContent(path("cam/c.jpg"));
    }

    RunResult align(const std::string &options, const std::string &ofFolder = {}) const {
        return mend(joined(words("align --json --system-zone UTC " + options),
                           joined({"--folder", path("cam")}, words(ofFolder))));
    }

    /// Time of day of each file's date, as the run would leave it; "" for a file it leaves alone.
    static Dates datesOf(const RunResult &run) {
        Dates dates;
        for (const Json &line : run.lines())
            if (line.contains("path")) {
                const std::filesystem::path file(line.at("path").get<std::string>());
                const Json slot = line.at("slots").value("exifDateTimeOriginal", Json::object());
                dates[file.stem()] = slot.value("new", "           ").substr(11);
            }
        return dates;
    }
};

TEST_F(Align, ShowsWhatEachCommandWouldDoAndWritesNothing) {
    struct Case {
        const char *options, *a, *b, *c;
    };
    constexpr Case cases[]{
        {"--gaps", "", "", "10:00:50Z"},
        {"--pack", "10:00:02Z", "", "10:00:01Z"},
        {"--pack --main c.jpg", "10:00:11Z", "10:00:09Z", ""},
        {"--by-name", "10:00:00Z", "10:00:10Z", "10:01:40Z"},
        {"--reverse", "10:00:00Z", "10:01:40Z", ""},
        {"--mirror", "10:00:00Z", "10:01:40Z", "10:01:30Z"},
        {"--copy digitized", "10:05:00Z", "09:30:00Z", "10:08:00Z"},
    };
    const std::string before = bytes();
    for (const auto &[options, a, b, c] : cases) {
        const RunResult run = align(std::string(options) + " --pics all");
        EXPECT_EQ(run.exitCode, 0) << run.errors;
        EXPECT_EQ(datesOf(run), (Dates{{"a", a}, {"b", b}, {"c", c}})) << options;
        EXPECT_EQ(bytes(), before);
    }
}

TEST_F(Align, CopiesEachDateOfAFileAsItIsAndAsASaveWouldLeaveIt) {
    const std::array times{timespec{0, UTIME_OMIT}, timespec{1715083200, 0}}; // at 12:00
    ASSERT_EQ(::utimensat(AT_FDCWD, path("cam/a.jpg").c_str(), times.data(), 0), 0);
    constexpr std::pair<const char *, const char *> slots[]{
        {"digitized", "10:05:00Z"},         {"digitized-new", "11:05:00Z"},
        {"modification", "11:06:00Z"},      {"modification-new", "12:06:00Z"},
        {"file-modification", "12:00:00Z"}, {"file-modification-new", "12:06:00Z"},
        {"file-creation", "12:00:00Z"},     {"file-creation-new", "11:01:40Z"}};
    for (const auto &[slot, date] : slots)
        EXPECT_EQ(datesOf(align("--set dateChangeEXIFEXIFDigiDate=3 --set "
                                "dateChangeEXIFEXIFModDate=3 --pics a.jpg --copy " +
                                    std::string(slot),
                                "--shift 1:00:00"))["a"],
                  date)
            << slot;
}

TEST_F(Align, SavesWithTheConsentOfASave) {
    const std::string zoned = writeZonedPhoto("cam/d.jpg", "2024:05:06 12:03:20", "+02:00");
    const std::string gaps = "--gaps --save --pics b.jpg c.jpg " + path("cam/d.jpg");
    const std::string shift = "--pic d.jpg --shift 60";
    const std::string before = bytes();
    EXPECT_EQ(align(gaps, shift).exitCode, 3); // its zone stamp would be rewritten
    EXPECT_EQ(bytes(), before);
    const RunResult run = align(gaps + " --accept error_12_zoneStampRewritten", shift);
    EXPECT_EQ(run.exitCode, 0) << run.errors;
    EXPECT_THAT(little::fileContent(path("cam/c.jpg")), HasSubstr("2024:05:06 10:02:10"));
    EXPECT_THAT(little::fileContent(zoned), AllOf(HasSubstr("10:04:20"), HasSubstr("+00:00")));
}

TEST_F(Align, MistakesAreNamedAndNothingIsWritten) {
    writePhoto("cam/old.jpg", "0001:01:01 10:00:00");
    constexpr std::pair<const char *, const char *> mistakes[]{
        {"--pics all", "Say how to align"},
        {"--gaps", "Say what to align"},
        {"--gaps --mirror --pics all", "Only one alignment"},
        {"--copy now --pics all", "file-modification-new"},
        {"--gaps --pics a.jpg b.jpg", "at least 3"},
        {"--mirror --pics a.jpg a.jpg", "at least 2"},
        {"--reverse --pics a.jpg x.jpg", "no item x.jpg"},
        {"--reverse --main a.jpg --pics all", "about --pack"},
        {"--pack --main a.jpg --pics b.jpg c.jpg", "not one of --pics"},
        {"--reverse --pics all", "out of the years 1 to 4999"},
    };
    const std::string before = bytes();
    for (const auto &[options, message] : mistakes) {
        const RunResult run = align(std::string("--save ") + options);
        EXPECT_EQ(run.exitCode, 2) << message;
        EXPECT_THAT(run.errors, HasSubstr(message));
        EXPECT_EQ(bytes(), before) << message;
    }
    const RunResult idle = align("--save --by-name --pics b.jpg c.jpg");
    EXPECT_EQ(idle.exitCode, 0);
    EXPECT_THAT(idle.errors, HasSubstr("nothing moves"));
}

TEST_F(Align, NamesOfSeveralFoldersNeedTheFolder) {
    writePhoto("more/cam/b.jpg", "2024:05:06 12:00:00");
    writePhoto("phone/b.jpg", "2024:05:06 11:00:00");
    const auto reverse = [&](const std::string &names, const std::string &folder) {
        return align("--reverse --pics a.jpg " + names, path(folder));
    };
    EXPECT_THAT(reverse("b.jpg", "phone").errors, HasSubstr("cam/b.jpg, phone/b.jpg"));
    EXPECT_EQ(reverse("phone/b.jpg", "phone").exitCode, 0);
    EXPECT_THAT(reverse("cam/b.jpg", "more/cam").errors,
                AllOf(HasSubstr(path("cam/b.jpg")), HasSubstr(path("more/cam/b.jpg"))));
    const RunResult run = reverse(path("more/cam/b.jpg"), "more/cam");
    EXPECT_EQ(run.lines().back().at("summary").at("planned"), 2) << run.errors;
}

} // namespace
} // namespace chronomender
