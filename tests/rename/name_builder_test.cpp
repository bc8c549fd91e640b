// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleItem.h"
#include "NameBuilder.h"
#include "TemplateText.h"
#include "Texts.h"
#include "ZoneLookup.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using little::utc;

/// A photo of 31 October 2024, 23:05:09 UTC, whose name is to be built.
struct Naming {
    NameFacts facts{
        utc(2024, 10, 31, 23, 5, 9), absl::UTCTimeZone(), "Tr:p", "Old.b.jpg", "IMG_1.JPG", {}};
    NameSettings settings;
    AddOnTexts addOns{"one", "two", "three"};
    std::int64_t counter = 7;

    explicit Naming(const std::string &text) {
        settings.renameTemplate = std::get<RenameTemplate>(templateFromText(text));
    }
    std::string name() const { return nameString(facts, counter, addOns, settings); }
    /// Runs as "text", "[slot:value]", with "~" where it is reduced, "<kind:text>" for the others.
    std::string styled() const {
        std::string told;
        for (const StyledRun &run : styledNameString(facts, counter, addOns, settings)) {
            const auto [kind, slot] =
                std::pair(static_cast<int>(run.kind), std::to_string(run.slot));
            told += run.kind == StyledRun::Kind::Text ? run.text
                    : run.kind == StyledRun::Kind::Value
                        ? '[' + slot + (run.isReduced ? "~" : ":") + run.text + ']'
                        : '<' + std::to_string(kind) + ':' + run.text + '>';
        }
        return told;
    }
};

TEST(NameBuilderTest, PlacesTheDateInTheItemsZone) {
    const struct {
        Date date;
        const char *zone, *text, *name;
    } cases[] = {
        {utc(2024, 10, 31, 23, 5, 9), "UTC", "{year}{month}{day}{hour}{minute}{second}",
         "20241031230509"},
        {utc(2024, 10, 31, 23, 5, 9), "Asia/Tokyo", "{year2}{month1}{day}{hour}", "24B0108"},
        {utc(2024, 12, 31, 23), "Europe/Berlin", "{year}{month1}{day}", "2025101"},
        {utc(2024, 12, 31, 23), "America/New_York", "{year2}{month1}{day}{hour}", "24C3118"},
        {utc(2024, 9, 30) - absl::Milliseconds(1), "UTC", "{month1}{day}{second}", "92959"},
        {utc(805, 1, 2), "UTC", "{year}", "0805"},
        {InfinitePast(), "Asia/Tokyo", "{year}{month1}{day}{hour}{minute}{second}",
         "0000000000000"},
        {InfiniteFuture(), "UTC", "{year2}{month}", "0000"},
        {utc(10000, 1, 1), "UTC", "{year}{month}{day}{hour}{minute}{second}", "20010325105558"},
        {utc(0, 5, 1), "UTC", "{year}", "2001"}};
    for (const auto &each : cases) {
        Naming naming(each.text);
        naming.facts.date = each.date;
        naming.facts.zone = little::zone(each.zone).rules;
        EXPECT_EQ(naming.name(), std::string(each.name) + ".JPG") << each.text << each.zone;
    }
}

TEST(NameBuilderTest, PlacesNamesCounterAndAddOns) {
    const struct {
        const char *text, *spName;
        std::int64_t counter;
        const char *base, *extension;
    } cases[] = {{"P{month1}{day}{counter:4}", "a.JPG", 7, "PA310007", ".JPG"},
                 {"{counter:3}", "a.JPG", 12345, "12345", ".JPG"},
                 {"{counter}", "a", INT64_MIN, "-9223372036854775808", ""},
                 {"{folder}-{name}", "x.y.CR3", 1, "Tr:p-Old.b", ".CR3"},
                 {"{addon1}_{addon2}{addon3}", "a.JPG", 1, "one_twothree", ".JPG"},
                 {"", "a.jpg", 1, "_", ".jpg"},
                 {"", ".jpg", 1, "_", ""},
                 {"B.jpg", "a.JPG", 1, "B.jpg", ".JPG"},
                 {"v1.2", "a.", 1, "v1.2", ""},
                 {"..x", "a.JPG", 1, "x", ".JPG"},
                 {"...", "a.JPG", 1, ".", ".JPG"},
                 {".x", "a.JPG", 1, ".x", ".JPG"},
                 {".\u00E9", "a", 1, ".\u00E9", ""}};
    for (const auto &each : cases) {
        Naming naming(each.text);
        naming.facts.spName = each.spName;
        naming.counter = each.counter;
        EXPECT_EQ(naming.name(), std::string(each.base) + each.extension) << each.text;
    }
    Naming four("{addon1}{addon2}{addon3}");
    for (const int number : {9, 11})
        four.settings.renameTemplate.stringParts.push_back(
            {"text", static_cast<RenameElement>(number)});
    EXPECT_EQ(four.name(), "onetwothreethree.JPG");
    four.addOns = {};
    EXPECT_EQ(four.name(), "_.JPG");
}

TEST(NameBuilderTest, FollowsTheSettings) {
    Naming naming("{folder}{name}");
    naming.settings.folderModifications = {ChangeCase{true, 2}};
    naming.settings.fileModifications = {CharCount{true, 0, 0, 2}, ChangeCase{false, 2}};
    naming.settings.suffixChangeCase = SuffixCase::Lower;
    EXPECT_EQ(naming.name(), "TR:Pd.b.jpg");
    naming.settings.sheetMode = SheetMode::SampleBlock;
    EXPECT_EQ(naming.name(), "Tr:pOld.b.jpg");
    naming.settings.suffixChangeCase = SuffixCase::Upper;
    naming.facts.spName = "a.\u00E9x";
    EXPECT_EQ(naming.name(), "Tr:pOld.b.\u00C9X");

    naming.settings.renameTemplate.stringParts.front() = TemplatePart::ofText("..");
    for (const auto mode : {FrontDotMode::Leave, FrontDotMode::Report}) {
        naming.settings.frontDotHandlingMode = mode;
        EXPECT_EQ(naming.name(), "..Old.b.\u00C9X");
    }
}

TEST(StyledNameTest, TellsRunsBySlot) {
    const struct {
        const char *text;
        FrontDotMode dots;
        SheetMode mode;
        const char *runs;
    } cases[] = {
        {"A{year}{month1}{folder}_{name}{counter:1}", FrontDotMode::Leave, SheetMode::Name,
         "A[0:2024][1:A][7:Tr/p]_[9:Old.b][6:7]<4:.JPG><6: (+.CR2)>"},
        {"", FrontDotMode::Remove, SheetMode::Name, "<2:_><4:.JPG><6: (+.CR2)>"},
        {".x", FrontDotMode::Remove, SheetMode::Name, "x<4:.JPG><6: (+.CR2)>"},
        {"..{}.{counter:1}", FrontDotMode::Remove, SheetMode::SampleBlock, "[6:7]<4:.JPG>"},
        {"..x", FrontDotMode::Report, SheetMode::TemplateSample, "<3:.>.x<4:.JPG>"},
        {".", FrontDotMode::Report, SheetMode::SampleBlock, "<3:.><4:.JPG>"},
    };
    for (const auto &each : cases) {
        Naming naming(each.text);
        naming.facts.spNameComplete = "IMG_1.JPG (+.CR2)";
        naming.settings.frontDotHandlingMode = each.dots;
        naming.settings.sheetMode = each.mode;
        EXPECT_EQ(naming.styled(), each.runs) << each.text;
    }
}

TEST(StyledNameTest, ShowsLabelsReducedColoursAndHiddenExtensions) {
    Naming naming("{addon1}{addon2}{addon3}");
    naming.addOns = {"one", "", ""};
    naming.settings.suffixVisibility = SuffixVisibility::Hide;
    naming.settings.suffixChangeCase = SuffixCase::Lower;
    naming.facts.spNameComplete = "IMG_1.JPG (+.CR2)";
    EXPECT_EQ(naming.styled(), "[8:one]<5:.jpg><6: (+.cr2)>");
    naming.settings.sheetMode = SheetMode::SampleBlock;
    EXPECT_EQ(naming.styled(), "[8:one][10:<" + text("renameStringPartGraphic_9b") + ">][11:<" +
                                   text("renameStringPartGraphic_9c") + ">]<5:.jpg>");
    naming.addOns = {"", "", "x"};
    for (int i = 0; i < 2; ++i)
        naming.settings.renameTemplate.stringParts.push_back(
            TemplatePart::ofElement(RenameElement::AddOn));
    naming.settings.sheetMode = SheetMode::Name;
    EXPECT_EQ(naming.styled(), "[11:x][11~x][11:x]<5:.jpg><6: (+.cr2)>");
}

TEST(StyledNameTest, TellsWhatMovesAlong) {
    const struct {
        const char *partner;
        std::vector<std::string> sidecars;
        const char *name;
    } cases[] = {
        {"", {}, "a.CR2"},
        {"", {"XMP"}, "a.CR2 (+.XMP)"},
        {"JPG", {"CR2.xmp", "JPG"}, "a.CR2 (+.JPG, .CR2.xmp)"},
        {"", {"AAE", "xmp"}, "a.CR2 (+[.xmp, .AAE])"},
        {"JPG", {"JPG", "aae", "xmp", "JPG.xmp"}, "a.CR2 (+.JPG, .JPG.xmp, [.xmp, .aae])"},
    };
    for (const auto &each : cases) {
        const auto folder = little::makeFolder();
        const auto pic = little::addItem(folder, SpTypeExifOriginal, utc(2024, 1, 1), "a.CR2");
        pic->spSidecarExtensions = each.sidecars;
        const std::string partner = each.partner;
        if (!partner.empty())
            little::makeDependent(
                little::addItem(folder, SpTypeExifOriginal, utc(2024, 1, 1), "a." + partner), pic);
        EXPECT_EQ(spNameComplete(*pic), each.name);
    }
}

TEST(NameFactsTest, TakesTheItemsDateZoneAndSourceName) {
    Zones zones;
    zones.setSystemZone(little::zone("Europe/Berlin"));
    const auto folder = little::makeFolder();
    const auto pic = little::addItem(folder, SpTypeExifOriginal, utc(2024, 12, 31, 22), "now.JPG");
    pic->spNameAtImport = "first.JPG";
    folder->sfDateModificationsTimeInterval = absl::Hours(2);
    Naming naming("{year}{month}{day}{hour}{folder}{name}");
    const auto name = [&](bool useNameAtImport) {
        naming.facts = nameFactsOf(*pic, useNameAtImport, zones).value();
        return naming.name();
    };
    EXPECT_EQ(name(true), "2025010101canonfirst.JPG");
    EXPECT_EQ(name(false), "2025010101canonnow.JPG");
    pic->rename.wantedName = "wanted.JPG";
    addPicWithZone(*pic, ZoneChoice::named(little::zone("Asia/Tokyo")), folder->targetTimeZones);
    EXPECT_EQ(name(false), "2025010109canonwanted.JPG");
    pic->setFolder(nullptr);
    EXPECT_FALSE(nameFactsOf(*pic, true, zones));
}

} // namespace
} // namespace chronomender
