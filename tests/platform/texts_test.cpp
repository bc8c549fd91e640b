// SPDX-License-Identifier: GPL-3.0-or-later
#include "TemporaryFolder.h"
#include "Texts.h"

#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <ranges>
#include <set>

namespace chronomender {
namespace {

namespace fs = std::filesystem;
const fs::path sourceFolder = CHRONOMENDER_SOURCE_FOLDER;
using Texts = std::map<std::string, std::string>;

std::set<std::string> matches(const std::string &text, const char *pattern, int group = 0) {
    std::set<std::string> found;
    const QRegularExpression expression{QString::fromUtf8(pattern)};
    for (auto match = expression.globalMatch(QString::fromStdString(text)); match.hasNext();)
        found.insert(match.next().captured(group).toStdString());
    return found;
}

/// The messages as they stand in the source, read without the program's own loader.
Texts messagesOf(const std::string &language) {
    Texts texts;
    QFile file(QString::fromStdString(
        (sourceFolder / "resources/texts" / ("chronomender_" + language + ".ts")).string()));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << language;
    QXmlStreamReader xml(&file);
    std::string id;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == QLatin1String("message"))
            id = xml.attributes().value(QLatin1String("id")).toString().toStdString();
        if (xml.isStartElement() && xml.name() == QLatin1String("translation")) {
            EXPECT_FALSE(texts.contains(id)) << language << " has two texts for " << id;
            texts[id] = xml.readElementText().toStdString();
        }
    }
    EXPECT_FALSE(xml.hasError()) << language << ": " << xml.errorString().toStdString();
    return texts;
}

TEST(TextsTest, BothLanguagesAreCompleteAndTakeTheSameArguments) {
    const Texts english = messagesOf("en"), german = messagesOf("de");
    ASSERT_FALSE(english.empty());
    ASSERT_TRUE(std::ranges::equal(std::views::keys(english), std::views::keys(german)));
    const char *const place = "%[1-9]";
    for (const auto &[key, words] : english) {
        EXPECT_FALSE(words.empty() || german.at(key).empty()) << key;
        EXPECT_EQ(matches(words, place), matches(german.at(key), place)) << key;
    }
}

TEST(TextsTest, EveryKeyThatTheSourcesNameHasAText) {
    const Texts english = messagesOf("en");
    // As a text, or as the name of a step that can be undone.
    const char *const use = "\\b(?:text|setActionName)\\(\\s*\"([^\"]+)\"\\s*[,)]";
    std::set<std::string> missing;
    std::size_t files = 0;
    for (const auto &entry : fs::recursive_directory_iterator(sourceFolder / "src")) {
        if (entry.path().extension() != ".cpp" && entry.path().extension() != ".h")
            continue;
        ++files;
        for (const std::string &key : matches(little::fileContent(entry.path()), use, 1))
            if (!english.contains(key))
                missing.insert(key + " in " + entry.path().filename().string());
    }
    EXPECT_GT(files, 10U);
    EXPECT_THAT(missing, testing::IsEmpty());
    for (int type = 1; type <= 22; ++type) // all sources of a date
        EXPECT_TRUE(english.contains("dateSource_" + std::to_string(type))) << type;
}

TEST(TextsTest, LoadsTheChosenLanguageAndFillsInArguments) {
    for (const std::string language : {"en", "de", "de_AT"}) {
        loadTexts(language);
        for (const auto &[key, words] : messagesOf(language.substr(0, 2)))
            EXPECT_EQ(text(key), words) << language;
    }
    EXPECT_EQ(text("preSaveSummary_header_multi", {"7"}),
              "Vor dem Speichern wurden 7 Probleme gefunden.");
    loadTexts("en");
    EXPECT_EQ(text("errorPanelInformativeText_front_multi", {"%1%2"}),
              "There were problems with %1%2 files.")
        << "what an argument holds is never taken for a place";
    EXPECT_EQ(text("no such key, %1 and %2", {"one"}), "no such key, one and %2");
}

} // namespace
} // namespace chronomender
