// SPDX-License-Identifier: GPL-3.0-or-later
#include "TextModification.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

const std::string accented = "e\u0301", thumb = "\U0001F44D\U0001F3FD",
                  family = "\U0001F468\u200D\U0001F469\u200D\U0001F467",
                  german = "\U0001F1E9\U0001F1EA", french = "\U0001F1EB\U0001F1F7";
constexpr int removes = 0, keeps = 1, front = 0, back = 1;

/// Texts and what a row makes of them.
struct Case {
    TextModification row;
    std::vector<std::pair<std::string, std::string>> texts;
};
void expectAll(const std::vector<Case> &cases) {
    for (const Case &each : cases)
        for (const auto &[text, changed] : each.texts)
            EXPECT_EQ(modifiedStringFromString(text, each.row), changed)
                << text << ", row " << &each - cases.data();
}

TEST(TextModificationTest, CountsComposedCharacters) {
    const auto row = [](int type, int direction, int count) {
        return CharCount{true, type, direction, count};
    };
    const std::string pictures = thumb + family + german + french;
    expectAll({{row(removes, front, 1),
                {{"abc", "bc"}, {"\uFEFF\u00E9t", "\u00E9t"}, {accented + "t", "t"}, {"", ""}}},
               {row(removes, front, 5), {{"abc", ""}, {"\xFF\u00E9", "\xFF\u00E9"}}},
               {row(removes, back, 1), {{"abc", "ab"}, {pictures, thumb + family + german}}},
               {row(removes, back, 0), {{"abc", "abc"}}},
               {row(keeps, front, 2), {{"abc", "ab"}, {pictures, thumb + family}, {"a", "a"}}},
               {row(keeps, 7, 1),
                {{"abc", "c"}, {"a" + family, family}, {german + "\U0001F1EB", "\U0001F1EB"}}},
               {row(keeps, front, -1), {{"abc", "abc"}}}});
}

TEST(TextModificationTest, CutsAtAnOccurrence) {
    const auto row = [](int type, int direction, int number, const char *text) {
        return UpToString{true, type, direction, number, text};
    };
    expectAll({{row(removes, front, 2, "-"), {{"a-b-c", "-c"}, {"a-b", "a-b"}}},
               {row(keeps, front, 2, "-"), {{"a-b-c", "a-b"}}},
               {row(removes, back, 2, "-"), {{"a-b-c", "a-"}, {"-b", "-b"}}},
               {row(keeps, back, 2, "-"), {{"a-b-c", "b-c"}}},
               {row(removes, front, 0, "-"), {{"a-b-c", "a-b-c"}}},
               {row(removes, front, 1, ""), {{"a-b-c", "a-b-c"}}},
               {row(removes, front, 2, "aa"), {{"xaaa", "aa"}}},
               {row(removes, back, 2, "aa"), {{"aaax", "aa"}}},
               {row(removes, front, 1, "A"), {{"abAB", "AB"}}},
               {row(removes, front, 1, "\u00E9"), {{"x" + accented, "x" + accented}}}});
}

TEST(TextModificationTest, ReplacesOccurrences) {
    const auto row = [](std::string text, std::string by, int number, int direction = front) {
        return ReplaceWith{true, direction, std::move(text), std::move(by), number};
    };
    expectAll({{row("-", "\u00FC", 0), {{"a-b-", "a\u00FCb\u00FC"}, {accented, accented}}},
               {row("-", "", 2), {{"a-b-c", "a-bc"}, {"a-b", "a-b"}}},
               {row("-", "+", 1, back), {{"a-b-c", "a-b+c"}}},
               {row("-", "+", -1), {{"a-b-c", "a-b-c"}}},
               {row("", "+", 0), {{"a-b-c", "a-b-c"}}},
               {row("\xC3", "+", 0), {{"\u00E9\uFFFD", "\u00E9\uFFFD"}}},
               {row("aa", "x", 0), {{"aaa", "xa"}, {"a", "a"}, {"AA", "AA"}}},
               {row("aa", "x", 2), {{"aaa", "ax"}}},
               {row("aa", "x", 2, back), {{"aaa", "xa"}}},
               {row("\u00E9", "e", 2), {{accented + "t" + accented, accented + "te"}}},
               {row(accented, "E", 0), {{"\u00E9t" + accented, "EtE"}}},
               {row("e", "x", 0), {{accented + "e", accented + "x"}}},
               {row("\U0001F44D", "x", 0), {{"\U0001F44D" + thumb, "x" + thumb}}}});
}

TEST(TextModificationTest, ChangesTheCase) {
    const auto row = [](int value) { return ChangeCase{true, value}; };
    expectAll({{row(0),
                {{"iMG_o'NEIL 3RD", "Img_O'neil 3rd"},
                 {accented + "T\u00C9 \u00C9T", "E\u0301t\u00E9 \u00C9t"}}},
               {row(1), {{"B{Z\u00C4", "b{z\u00E4"}, {"aB[z{1", "ab[z{1"}}},
               {row(2), {{"aB[z{1", "AB[Z{1"}, {"stra\u00DFe", "STRASSE"}}},
               {row(3), {{"aB", "aB"}}}});
}

TEST(TextModificationTest, AppliesRowsInTheirOrder) {
    const TextModifications rows{ReplaceWith{true, 0, "B", "x", 0}, ChangeCase{true, 2},
                                 ReplaceWith{true, 0, "B", "", 0}, CharCount{false, 0, 0, 9}};
    EXPECT_EQ(modifiedStringFromString("bBa", rows), "XA");
    EXPECT_EQ(modifiedStringFromString("b", rows), "");
    EXPECT_TRUE(changesAnything(rows));
    EXPECT_EQ(modifiedStringFromString("bBa", factoryModifications()), "bBa");
    EXPECT_FALSE(changesAnything(factoryModifications()));
}

/// Rows as text, to compare them.
std::string told(const TextModifications &rows) {
    UserDefaults defaults;
    storeModifications(ModificationTag::File, rows, defaults);
    return defaults.stringForKey("modAtRenameSettings_2_7");
}

TEST(TextModificationStoreTest, KeepsRowsAndTemplates) {
    const TextModifications rows{ChangeCase{true, 2}, ReplaceWith{true, 1, "\u00E9\"", "\n", -3},
                                 UpToString{true, 1, 1, 4, "="}, CharCount{true, 1, 1, 9},
                                 ChangeCase{false, 1}};
    UserDefaults defaults;
    EXPECT_EQ(storeModifications(ModificationTag::Folder, rows, defaults),
              UserDefaults::Outcome::Done);
    const auto read = modificationsForTag(ModificationTag::Folder, defaults);
    EXPECT_EQ(told(read), told(rows));
    EXPECT_EQ(std::get<ReplaceWith>(read.at(1)).value2, "\n");
    EXPECT_EQ(std::get<UpToString>(read.at(2)).value, 4);
    EXPECT_EQ(told(modificationsForTag(ModificationTag::File, defaults)),
              told(factoryModifications()));

    storeTextModTemplates({{10, "ten", rows}, {2, "two", {}}}, defaults);
    const auto templates = textModTemplates(defaults);
    ASSERT_EQ(templates.size(), 2U);
    EXPECT_EQ(templates[0].name, "two");
    chooseModificationTemplate(ModificationTag::File, 10, defaults);
    EXPECT_EQ(told(modificationsForTag(ModificationTag::File, defaults)), told(rows));
    chooseModificationTemplate(ModificationTag::File, 3, defaults);
    EXPECT_EQ(told(modificationsForTag(ModificationTag::File, defaults)),
              told(factoryModifications()));
}

TEST(TextModificationStoreTest, ReadsWhatOthersWrote) {
    const auto one = [](TextModification row) { return told({std::move(row)}); };
    const std::string factory = told(factoryModifications());
    const std::pair<std::string, std::string> cases[] = {
        {R"([{"id":"CharCount","defaults":{"isEnabled":"1","value":"12","type":true}}])",
         one(CharCount{true, 1, 0, 12})},
        {R"([{"id":"CharCount","defaults":{"value":1e99,"direction":[],"type":null}}])",
         one(CharCount())},
        {R"([{"id":"UpToString","defaults":{"isEnabled":true,"value2":7}}])",
         one(UpToString{true, 0, 0, 1, ""})},
        {R"([{"id":"ChangeCase"}])", one(ChangeCase())},
        {"[]", "[]"},
        {R"([{"id":"Other"}])", factory},
        {"[7]", factory},
        {"{}", factory},
        {"", factory},
        {"99999999999999999999", factory}};
    for (const auto &[stored, rows] : cases) {
        UserDefaults defaults;
        defaults.set("modAtRenameSettings_1_7", stored);
        EXPECT_EQ(told(modificationsForTag(ModificationTag::Folder, defaults)), rows) << stored;
    }
}

} // namespace
} // namespace chronomender
