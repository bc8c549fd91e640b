// SPDX-License-Identifier: GPL-3.0-or-later
#include "NameCheck.h"

#include <gtest/gtest.h>

#include <string>

namespace chronomender {
namespace {

TEST(NameCheckTest, RefusesWhatNoFileShouldBeCalled) {
    const struct {
        std::string name;
        std::string_view problem;
    } cases[] = {
        {"Zü, 東.CR2.xmp", ""},
        {".hidden", ""},
        {"a .jpg", ""},
        {std::string(14, 'n') + "é", ""}, // 16 bytes
        {std::string(15, 'n') + "é", "tooLong"},
        {"a/b", "separator"},
        {std::string("a\0b", 3), "control"},
        {"a\nb", "control"},
        {"a\x7F", "control"},
        {"a\u0085", "control"},
        {"a\u00A0", ""},
        {"a.", "ending"},
        {"a ", "ending"},
        {"", "ending"},
        {"a\x80", "notUtf8"},
        {"a\xC2", "notUtf8"},
        {"con", "reserved"},
        {"Lpt9.tar.gz", "reserved"},
        {"NUL .jpg", "reserved"},
        {"com0.jpg", ""},
        {"con 2.jpg", ""},
        {"conn.jpg", ""},
        {"a\u202Egpj.b", "direction"},
        {"a\u2069", "direction"},
        {"a\u061C", "direction"},
        {"a\u202F", ""}, // a blank, behind the last of these signs
    };
    for (const auto &[name, problem] : cases)
        EXPECT_EQ(nameProblem(name, "old", 16),
                  problem.empty() ? "" : "nameCheck_" + std::string(problem))
            << name;
    EXPECT_EQ(nameProblem("a\u202E", "b\u202E", 16), "") << "it had the sign before";
}

} // namespace
} // namespace chronomender
