// SPDX-License-Identifier: GPL-3.0-or-later
#include "MendRun.h"

#include <gmock/gmock.h>

namespace chronomender {
namespace {

using ::testing::HasSubstr;

/// Two pictures of a camera whose clock is an hour fast, and two of one that is right.
class Drag : public MendTest {
protected:
    Drag() { writeAll(); }
    void writeAll() {
        writePhoto("cam/a.jpg", "2024:05:06 11:00:00");
        writePhoto("cam/b.jpg", "2024:05:06 11:30:00");
        writePhoto("right/c.jpg", "2024:05:06 10:10:00");
        writePhoto("right/d.jpg", "2024:05:06 10:10:09");
    }

    RunResult drag(const std::string &options) const {
        return mend(joined({"drag", "--json", "--system-zone", "UTC", path("right"), "--folder",
                            path("cam"), "--shift", "-1:00:00"},
                           words(options)));
    }
    /// Names in the order of their dates, each with its time of day.
    std::string order() const {
        std::string found;
        for (const Json &line :
             mend({"list", "--json", "--system-zone", "UTC", path("cam"), path("right")}).lines())
            found += line.at("name").get<std::string>().substr(0, 1) + ' ' +
                     line.at("date").get<std::string>().substr(11) + "  ";
        return found;
    }
};

TEST_F(Drag, GivesADateByOrderWhileTheRestOfTheFolderKeepsItsOwn) {
    const std::string before = order();
    EXPECT_EQ(drag("--pic a.jpg --onto c.jpg").lines().back().at("summary").at("planned"), 2);
    EXPECT_EQ(order(), before) << "nothing is written without --save";
    constexpr std::pair<const char *, const char *> cases[]{
        {"--pic a.jpg --between d.jpg c.jpg",
         "c 10:10:00Z  a 10:10:04Z  d 10:10:09Z  b 10:30:00Z  "},
        {"--pic b.jpg --between c.jpg d.jpg --pic cam/a.jpg",
         "c 10:10:00Z  a 10:10:03Z  b 10:10:06Z  d 10:10:09Z  "},
        {"--before c.jpg --pic a.jpg", "a 10:09:59Z  c 10:10:00Z  d 10:10:09Z  b 10:30:00Z  "},
        {"--pic b.jpg --after d.jpg", "a 10:00:00Z  c 10:10:00Z  d 10:10:09Z  b 10:10:10Z  "},
        {"--pic c.jpg --onto b.jpg", "a 10:00:00Z  d 10:10:09Z  b 10:30:00Z  c 10:30:00Z  "},
    };
    for (const auto &[options, expected] : cases) {
        writeAll();
        const RunResult run = drag(options + std::string(" --save"));
        EXPECT_EQ(run.exitCode, 0) << run.errors;
        EXPECT_EQ(order(), expected);
    }
}

TEST_F(Drag, MistakesAreNamedAndNothingIsWritten) {
    writePhoto("right/early.jpg", "0001:01:02 00:00:01");
    writePhoto("right/empty.jpg", "0000:00:00 00:00:00");
    const std::string before = order();
    constexpr std::pair<const char *, const char *> mistakes[]{
        {"--onto c.jpg", "--pic NAME"},
        {"--pic a.jpg", "Say where to drag"},
        {"--pic a.jpg --onto c.jpg --after d.jpg", "Only one target"},
        {"--pic a.jpg --onto c.jpg --onto d.jpg", "Only one target"},
        {"--pic a.jpg --between c.jpg", "needs two items"},
        {"--pic a.jpg --pic b.jpg --onto c.jpg", "Several items"},
        {"--pic a.jpg --onto a.jpg", "named already"},
        {"--pic a.jpg --between c.jpg c.jpg", "named already"},
        {"--pic x.jpg --onto c.jpg", "no item x.jpg"},
        {"--pic empty.jpg --onto c.jpg", "no date that could be corrected"},
        {"--pic a.jpg --shift 5 --onto c.jpg", "about a folder"},
        {"--pic a.jpg --before early.jpg", "out of the years 1 to 4999"},
    };
    for (const auto &[options, message] : mistakes) {
        const RunResult run = drag(options + std::string(" --save"));
        EXPECT_EQ(run.exitCode, 2) << options;
        EXPECT_THAT(run.errors, HasSubstr(message));
    }
    EXPECT_EQ(order(), before);
}

} // namespace
} // namespace chronomender
