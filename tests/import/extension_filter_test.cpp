// SPDX-License-Identifier: GPL-3.0-or-later
#include "ImportSteps.h"

namespace chronomender {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Kind = ExtensionFilter::Kind;

struct FilterCase {
    const char *text;
    Kind kind;
    std::vector<std::string> passing;
};

TEST(ExtensionFilterTest, WhatPasses) {
    const std::vector<FolderEntry> listed{{"a.MOV", FileAttributes::Kind::Regular},
                                          {"b.jpg", FileAttributes::Kind::Regular},
                                          {"c.xmp", FileAttributes::Kind::Regular},
                                          {"d", FileAttributes::Kind::Regular},
                                          {"day.1", FileAttributes::Kind::Directory}};
    const FilterCase cases[]{
        {" .mov, .mp4, .avi", Kind::Keep, {"a.MOV", "c.xmp", "day.1"}},
        {"JPG mov", Kind::Keep, {"a.MOV", "b.jpg", "c.xmp", "day.1"}},
        {"tar.mov", Kind::Keep, {"a.MOV", "c.xmp", "day.1"}},
        {"", Kind::Keep, {"c.xmp", "day.1"}},
        {".mov.xmp", Kind::Remove, {"b.jpg", "c.xmp", "d", "day.1"}},
        {"", Kind::Remove, {"a.MOV", "b.jpg", "c.xmp", "d", "day.1"}},
        {"1,x/jpg", Kind::Remove, {"a.MOV", "b.jpg", "c.xmp", "d"}},
    };
    for (const FilterCase &c : cases) {
        std::vector<std::string> passed;
        for (const FolderEntry &entry : filteredPaths(listed, {c.text, c.kind}))
            passed.push_back(entry.name);
        EXPECT_EQ(passed, c.passing) << '"' << c.text << '"';
    }
}

class FilteredImportTest : public ImportTest {};

TEST_F(FilteredImportTest, TheRestOfTheFolderCanComeLater) {
    for (const char *name : {"a.jpg", "b.tif", "c.jpg"})
        dated(name);
    keyStates.filter = ExtensionFilter{"jpg", Kind::Remove};
    const ImportOutcome first = importAndPublish();
    EXPECT_THAT(namesOf(first.items), ElementsAre("b.tif"));
    EXPECT_THAT(first.skipped, IsEmpty());
    keyStates.filter.reset();
    EXPECT_THAT(namesOf(importAndPublish().items), ElementsAre("a.jpg", "c.jpg"));
}

} // namespace
} // namespace chronomender
