// SPDX-License-Identifier: GPL-3.0-or-later
#include "TextModification.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

const std::string accented = "e\u0301", thumb = "\U0001F44D\U0001F3FD",
                  family = "\U0001F468\u200D\U0001F469\u200D\U0001F467",
                  flags = "\U0001F1E9\U0001F1EA\U0001F1EB\U0001F1F7";
constexpr int removes = 0, keeps = 1, front = 0, back = 1;

struct Case {
    std::string text;
    TextModification row;
    std::string changed;
};
void expectAll(const std::vector<Case> &cases) {
    for (const Case &each : cases)
        EXPECT_EQ(modifiedStringFromString(each.text, each.row), each.changed)
            << "row " << &each - cases.data();
}

TEST(TextModificationTest, CountsComposedCharacters) {
    const auto row = [](int type, int direction, int count) {
        return CharCount{true, type, direction, count};
    };
    expectAll({
        {"abc", row(removes, front, 1), "bc"},
        {"abc", row(removes, back, 1), "ab"},
        {"abc", row(removes, 7, 5), ""},
        {"abc", row(removes, front, 3), ""},
        {"abc", row(removes, front, 0), "abc"},
        {"abc", row(removes, back, -1), "abc"},
        {"abc", row(keeps, front, 2), "ab"},
        {"abc", row(7, back, 2), "bc"},
        {"abc", row(keeps, front, 5), "abc"},
        {"abc", row(keeps, back, 3), "abc"},
        {"abc", row(keeps, front, 0), "abc"},
        {"", row(removes, front, 1), ""},
        {accented + "t\u00E9", row(removes, front, 1), "t\u00E9"},
        {"t" + accented, row(removes, back, 1), "t"},
        {thumb + family + flags, row(keeps, front, 2), thumb + family},
        {thumb + family + flags, row(removes, back, 1), thumb + family + "\U0001F1E9\U0001F1EA"},
        {flags + "\U0001F1E9x", row(removes, front, 2), "\U0001F1E9x"},
        {"a" + family, row(keeps, back, 1), family},
        {"\xFF\u00E9", row(removes, front, 1), "\xFF\u00E9"},
    });
}

TEST(TextModificationTest, CutsAtAnOccurrence) {
    const auto row = [](int type, int direction, int number, const char *text) {
        return UpToString{true, type, direction, number, text};
    };
    expectAll({
        {"a-b-c", row(removes, front, 1, "-"), "-b-c"},
        {"a-b-c", row(removes, front, 2, "-"), "-c"},
        {"a-b-c", row(keeps, front, 2, "-"), "a-b"},
        {"a-b-c", row(removes, back, 1, "-"), "a-b-"},
        {"a-b-c", row(removes, back, 2, "-"), "a-"},
        {"a-b-c", row(keeps, back, 1, "-"), "c"},
        {"a-b-c", row(keeps, back, 2, "-"), "b-c"},
        {"a-b-c", row(removes, front, 3, "-"), "a-b-c"},
        {"-b-c", row(removes, back, 3, "-"), "-b-c"},
        {"a-b-c", row(removes, front, 0, "-"), "a-b-c"},
        {"a-b-c", row(removes, front, 1, ""), "a-b-c"},
        {"xaaa", row(removes, front, 2, "aa"), "aa"},
        {"aaax", row(removes, back, 2, "aa"), "aa"},
        {"abAB", row(removes, front, 1, "A"), "AB"},
        {"x" + accented, row(removes, front, 1, "\u00E9"), "x" + accented},
    });
}

TEST(TextModificationTest, ReplacesOccurrences) {
    const auto row = [](std::string text, std::string by, int number, int direction = front) {
        return ReplaceWith{true, direction, std::move(text), std::move(by), number};
    };
    expectAll({
        {"a-b-c", row("-", "_", 0), "a_b_c"},
        {"a-b-c", row("-", "", 2), "a-bc"},
        {"a-b-c", row("-", "+", 1, back), "a-b+c"},
        {"a-b-c", row("-", "+", 3), "a-b-c"},
        {"a-b-c", row("-", "+", -1), "a-b-c"},
        {"a-b-c", row("", "+", 0), "a-b-c"},
        {"a-b-c", row("a-b-c-d", "+", 0), "a-b-c"},
        {"aaa", row("aa", "x", 0), "xa"},
        {"aaa", row("aa", "x", 2), "ax"},
        {"aaa", row("aa", "x", 1, back), "ax"},
        {"aaa", row("aa", "x", 2, back), "xa"},
        {"aaa", row("aa", "x", 3), "aaa"},
        {"aA", row("a", "b", 0), "bA"},
        {accented + "t" + accented, row("\u00E9", "e", 0), "ete"},
        {"\u00E9t" + accented, row(accented, "E", 2), "\u00E9tE"},
        {accented + "e", row("e", "x", 0), accented + "x"},
        {"\U0001F44D" + thumb, row("\U0001F44D", "x", 0), "x" + thumb},
        {accented + "-a", row("-", "\u00FC", 0), accented + "\u00FCa"},
    });
}

TEST(TextModificationTest, ChangesTheCase) {
    const auto row = [](int value) { return ChangeCase{true, value}; };
    expectAll({
        {"iMG_o'NEIL 3RD", row(0), "Img_O'neil 3rd"},
        {accented + "T\u00C9 \u00C9T\u00C9", row(0), "E\u0301t\u00E9 \u00C9t\u00E9"},
        {"aB{Z\u00C4", row(1), "ab{z\u00E4"},
        {"aB[z{1", row(1), "ab[z{1"},
        {"aB[z{1", row(2), "AB[Z{1"},
        {"stra\u00DFe", row(2), "STRASSE"},
        {"aB", row(3), "aB"},
    });
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
        {"99999999999999999999", factory},
    };
    for (const auto &[stored, rows] : cases) {
        UserDefaults defaults;
        defaults.set("modAtRenameSettings_1_7", stored);
        EXPECT_EQ(told(modificationsForTag(ModificationTag::Folder, defaults)), rows) << stored;
    }
}

} // namespace
} // namespace chronomender
