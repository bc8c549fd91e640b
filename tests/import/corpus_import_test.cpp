// SPDX-License-Identifier: GPL-3.0-or-later
#include "Corpus.h"
#include "FolderNames.h"
#include "ImportSteps.h"
#include "PropertyDictionary.h"

#include <filesystem>
#include <set>

namespace chronomender {
namespace {

/// Real and broken files are imported where they lie; import writes nothing.
class CorpusImportTest : public ImportTest {
protected:
    void SetUp() override {
        if (!std::filesystem::is_directory(corpus))
            GTEST_SKIP() << "no corpus at " << corpus;
    }
    ImportOutcome importFolder(const std::string &name) {
        const std::string path = corpus / name;
        folder =
            MySingleFolder::initWithFolder(path, FolderReference::open(path), EditMode::Together);
        return import();
    }
    const std::filesystem::path corpus = little::corpusFolder(CHRONOMENDER_SOURCE_TREE);
};

TEST_F(CorpusImportTest, BrokenFilesImportOrAreSkipped) {
    initialiseImaging();
    const ImportOutcome outcome = importFolder("malformed");
    std::set<std::string> answered;
    for (const MySinglePicPtr &pic : outcome.items) {
        answered.insert(pic->spName);
        EXPECT_NE(pic->spDateTimeOriginal, InfinitePast()) << pic->spName;
        forEachRecordedValue(pic->singlePicAttributes, [&](auto key, const LocatedBytes &value) {
            EXPECT_LE(value.offset, pic->singlePicAttributes.fileSize) << pic->spName << ' ' << key;
        });
        readPropertyDictionary(pic->spPath());
    }
    for (const SkippedEntry &entry : outcome.skipped)
        answered.insert(std::filesystem::path(entry.path).filename());
    for (const auto &entry : std::filesystem::directory_iterator(corpus / "malformed")) {
        const std::string name = entry.path().filename();
        if (fileFormatTypeForExtension(extensionOfName(name)) != FileFormatNone) {
            EXPECT_TRUE(answered.contains(name)) << name;
        }
    }
}

TEST_F(CorpusImportTest, RealPhotosBecomeItems) {
    for (const char *kind : {"jpeg", "tiff", "raw"}) {
        const ImportOutcome outcome = importFolder(kind);
        EXPECT_FALSE(outcome.items.empty()) << kind;
        EXPECT_THAT(skippedOf(outcome), testing::IsEmpty()) << kind;
    }
}

} // namespace
} // namespace chronomender
