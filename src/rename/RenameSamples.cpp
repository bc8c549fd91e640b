// SPDX-License-Identifier: GPL-3.0-or-later
#include "RenameSamples.h"

namespace chronomender {

const std::vector<MySampleNameSingleFolder> &sampleFolders() {
    using enum SpType;
    using absl::CivilSecond;
    static const std::vector<MySampleNameSingleFolder> folders = {
        {"Lisbon",
         {{SpTypeExifOriginal, CivilSecond(2025, 10, 12, 8, 5, 9), "IMG_4127.JPG"},
          {SpTypeMovieMvhdCreation, CivilSecond(2025, 10, 12, 8, 6, 41), "IMG_4128.MOV"},
          {SpTypeExifOriginal, CivilSecond(2025, 10, 12, 19, 30, 2), "IMG_4129.JPG"}}},
        {"Kyoto",
         {{SpTypeExifOriginal, CivilSecond(2026, 4, 11, 9, 2, 40), "DSC00318.JPG"},
          {SpTypeExifOriginal, CivilSecond(2026, 4, 11, 9, 2, 43), "DSC00319.JPG"},
          {SpTypeExifOriginal, CivilSecond(2026, 12, 1, 16, 48, 17), "DSC00320.JPG"}}},
    };
    return folders;
}

NameFacts sampleFacts(const MySampleNameSinglePic &pic, const MySampleNameSingleFolder &folder,
                      const Zones &zones) {
    const absl::TimeZone &zone = zones.systemZone().rules;
    return {absl::FromCivil(pic.spDateTimeModified, zone),
            zone,
            folder.sfFolder,
            pic.spName,
            pic.spName,
            {}};
}

StyledName sampleTextWithSettings(const RenameTemplate &renameTemplate, const AddOnTexts &addOns,
                                  const Zones &zones) {
    const MySampleNameSingleFolder &folder = sampleFolders().back();
    NameSettings settings;
    settings.renameTemplate = renameTemplate;
    settings.sheetMode = SheetMode::TemplateSample;
    return styledNameString(sampleFacts(folder.pics.front(), folder, zones), 1, addOns, settings);
}

StyledName sampleBlock(std::span<const NameFacts> items, const AddOnTexts &addOns,
                       NameSettings settings) {
    settings.sheetMode = SheetMode::SampleBlock;
    StyledName block;
    std::int64_t counter = 0;
    for (const NameFacts &facts : items) {
        if (counter > 0)
            block.push_back({.text = "\r"});
        const StyledName name = styledNameString(facts, ++counter, addOns, settings);
        block.insert(block.end(), name.begin(), name.end());
    }
    return block;
}

std::string plainText(const StyledName &name) {
    std::string plain;
    for (const StyledRun &run : name)
        plain += run.text;
    return plain;
}

} // namespace chronomender
