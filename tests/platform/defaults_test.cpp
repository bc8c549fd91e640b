// SPDX-License-Identifier: GPL-3.0-or-later
#include "SupportFolders.h"
#include "TemporaryFolder.h"
#include "UserDefaults.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <set>

namespace chronomender {
namespace {

using little::TemporaryFolder;
using enum UserDefaults::Outcome;

TEST(DefaultsTest, EveryRegisteredValueIsOneThatItsKeyAccepts) {
    UserDefaults defaults;
    for (const DefaultEntry &entry : defaultEntries()) {
        EXPECT_EQ(findDefaultEntry(entry.key), &entry);
        EXPECT_EQ(defaults.setForThisRun(entry.key, entry.registeredValue), Done) << entry.key;
        EXPECT_EQ(defaults.stringForKey(entry.key), entry.registeredValue);
        EXPECT_EQ(entry.allowed.size() == 0, entry.kind == DefaultEntry::Kind::Text) << entry.key;
    }
}

/// The date rules write into people's files: their defaults and their values are held here once
/// more.
const std::tuple<const char *, int, std::set<int>> dateRules[] = {
    {"dateChangeEXIFEXIFDigiDate", 1, {0, 1, 3}},
    {"dateChangeEXIFEXIFDigiDateUnchangedOption", 1, {0, 1}},
    {"dateChangeEXIFEXIFModDate", 1, {0, 1, 2, 3}},
    {"dateChangeEXIFEXIFModDateUnchangedOption", 1, {0, 1}},
    {"dateChangeEXIFChangeFinderWhenChangingEXIF", 1, {0, 1}},
    {"dateChangeEXIFFinderCreaDate2", 0, {0, 1, 2}},
    {"dateChangeEXIFFinderModDate", 0, {0, 1, 2}},
    {"dateChangeEXIFFinderModDateUnchangedOption", 1, {0, 1}},
    {"dateChangeEXIFFinderModDateEXIFModDateOptions", 1, {0, 1, 2}},
    {"dateChangeEXIFFinderModDateEXIFModDateUnchangedOption", 1, {0, 1}},
    {"dateChangeNoEXIFFinderModDate", 2, {0, 1, 2, 3}},
    {"dateChangeNoEXIFFinderModDateUnchangedOption", 1, {0, 1}},
    {"dateChangeNoEXIFButTIFFMetaModDate", 2, {0, 1, 2, 3}},
    {"dateChangeNoEXIFButTIFFFinderModDate", 2, {0, 1, 2}},
    {"dateChangeNoEXIFButTIFFFinderModDateUnchangedOption", 1, {0, 1}},
    {"dateChangeTypeAtLocationOnlyChanges", 1, {0, 1, 2, 3}},
    {"withEmptyExifFixDate", 2, {2, 3}},
};

TEST(DefaultsTest, DateRulesAcceptTheirOwnNumbersOnly) {
    UserDefaults defaults;
    for (const auto &[key, registered, allowed] : dateRules) {
        EXPECT_EQ(defaults.integerForKey(key), registered) << key;
        for (int value = -1; value <= 5; ++value)
            EXPECT_EQ(defaults.setForThisRun(key, std::to_string(value)),
                      allowed.contains(value) ? Done : ValueNotAllowed)
                << key << " = " << value;
    }
}

TEST(DefaultsTest, RefusesWhatIsNoNumberOrOutOfRangeOrUnknown) {
    UserDefaults defaults;
    for (const char *value : {"", "x", "3x", " 3", "3 ", "+3", "3.0", "-1", "86401", "99999999999"})
        EXPECT_EQ(defaults.setForThisRun("dateComparisonThresold", value), ValueNotAllowed)
            << value;
    EXPECT_EQ(defaults.integerForKey("dateComparisonThresold"), 3);
    EXPECT_EQ(defaults.setForThisRun("dateComparisonThresold", "86400"), Done);
    EXPECT_EQ(defaults.integerForKey("dateComparisonThresold"), 86400);
    EXPECT_EQ(defaults.setForThisRun("dateComparisonThreshold", "3"), UnknownKey);
}

TEST(DefaultsTest, SaysInWordsWhatAKeyAccepts) {
    for (const auto &[key, words] : {std::pair("dateChangeEXIFEXIFDigiDate", "0, 1, 3"),
                                     std::pair("dateComparisonThresold", "0 to 86400")})
        EXPECT_EQ(UserDefaults::allowedText(*findDefaultEntry(key)), words);
}

class StoredDefaultsTest : public testing::Test {
protected:
    TemporaryFolder folder;
    const std::string store = folder.path("not/yet/made/chronoMender.conf");
};

TEST_F(StoredDefaultsTest, StoredValuesComeBackByteForByteUnderTheValuesOfARun) {
    const std::string awkward = " a=b\\n\n#c\\ ";
    {
        UserDefaults defaults(store);
        EXPECT_EQ(defaults.set("tioFilterValues", awkward), Done);
        EXPECT_EQ(defaults.set("folderType", "2"), Done);
        EXPECT_EQ(defaults.set("folderType", "9"), ValueNotAllowed);
        EXPECT_EQ(defaults.setForThisRun("folderType", "1"), Done);
        EXPECT_EQ(defaults.integerForKey("folderType"), 1);
    }
    UserDefaults again(store);
    EXPECT_EQ(again.stringForKey("tioFilterValues"), awkward);
    EXPECT_EQ(again.integerForKey("folderType"), 2);
    again.setForThisRun("folderType", "1");
    again.set("folderType", "0");
    EXPECT_EQ(again.integerForKey("folderType"), 0) << "a new setting ends the run's own value";
}

TEST_F(StoredDefaultsTest, IgnoresBadLinesAndKeepsThemForTheProgramThatWroteThem) {
    const std::string path = folder.write("chronoMender.conf", "folderType=7\nkeyOfTomorrow=5\n"
                                                               "no equals\n=\nfolderMode=1\n");
    UserDefaults defaults(path);
    EXPECT_EQ(defaults.integerForKey("folderType"), 0);
    EXPECT_EQ(defaults.integerForKey("folderMode"), 1);
    EXPECT_EQ(defaults.set("createFileGroups", "0"), Done);
    const std::string content = little::fileContent(path);
    EXPECT_NE(content.find("keyOfTomorrow=5\n"), std::string::npos);
    EXPECT_NE(content.find("createFileGroups=0\n"), std::string::npos);
}

TEST_F(StoredDefaultsTest, AStoreThatCannotBeWrittenIsSaidAndTheValueStillHolds) {
    UserDefaults defaults(folder.write("file", "") + "/below.conf");
    EXPECT_EQ(defaults.set("folderMode", "1"), NotStored);
    EXPECT_TRUE(defaults.boolForKey("folderMode"));
}

TEST(SupportFoldersTest, OneVariableMovesBothAndTheBaseFoldersAreHonoured) {
    const auto with = [](const char *name, const char *value) {
        value != nullptr ? setenv(name, value, 1) : unsetenv(name);
    };
    with("CHRONOMENDER_HOME", "/somewhere");
    EXPECT_EQ(supportFolder(), "/somewhere/chronoMender");
    EXPECT_EQ(userDefaultsPath(), "/somewhere/chronoMender.conf");
    with("CHRONOMENDER_HOME", nullptr);
    with("HOME", "/home/somebody");
    with("XDG_DATA_HOME", "/data");
    with("XDG_CONFIG_HOME", "relative is not allowed");
    EXPECT_EQ(supportFolder(), "/data/chronoMender");
    EXPECT_EQ(userDefaultsPath(), "/home/somebody/.config/chronoMender.conf");
}

} // namespace
} // namespace chronomender
