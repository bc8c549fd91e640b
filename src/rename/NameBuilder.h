// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"
#include "RenameTemplate.h"
#include "TextModification.h"
#include "Zones.h"

#include <array>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace chronomender {

enum class FrontDotMode : int { Leave = 0, Remove = 1, Report = 2 };
enum class SuffixVisibility : int { Leave = 0, Show = 1, Hide = 2 };
enum class SuffixCase : int { Leave = 0, Upper = 1, Lower = 2 };
/// What a name is built for.
enum class SheetMode : int {
    Name = 0,           ///< the disk, or a live row
    SampleBlock = 1,    ///< the sample of the editor
    TemplateSample = 2, ///< the title of a template
};

/// How names are built; the same for all items of a run.
struct NameSettings {
    RenameTemplate renameTemplate;
    FrontDotMode frontDotHandlingMode = FrontDotMode::Remove;
    SuffixVisibility suffixVisibility = SuffixVisibility::Leave;
    SuffixCase suffixChangeCase = SuffixCase::Leave;
    SheetMode sheetMode = SheetMode::Name;
    /// Applied to the folder's and the file's name in the mode Name.
    TextModifications folderModifications, fileModifications;
};

/// What of an item its name is made of. Of real items, and of samples that show a template.
struct NameFacts {
    Date date;           ///< `spDateTimeModified_sort`; InfinitePast for none
    absl::TimeZone zone; ///< the item's target zone
    std::string folderName;
    std::string sourceName; ///< with its extension
    std::string spName;     ///< the present name, for the extension
    /// With the companions told behind it, for styled names; "" without companions.
    std::string spNameComplete;
};

/// The names of folders, each asked of the system once, which takes longer than the rest of a name.
/// For one thread's work on many items, while their folders live.
class KnownFolderNames {
public:
    const std::string &nameOf(const MySingleFolder &folder);

private:
    std::unordered_map<const MySingleFolder *, std::string> m_names;
};

/// None when the item stands in no folder. With `useNameAtImport` the source is the name at import,
/// else the name that the user wanted last, else the present one. Any thread while nothing changes
/// the item.
std::optional<NameFacts> nameFactsOf(const MySinglePic &pic, bool useNameAtImport,
                                     const Zones &zones, KnownFolderNames &folderNames);
/// The same for one item.
std::optional<NameFacts> nameFactsOf(const MySinglePic &pic, bool useNameAtImport,
                                     const Zones &zones);

/// Up to three add-on texts.
using AddOnTexts = std::array<std::string, 3>;

/// The name with extension, never without a base: "_" stands for an empty one. Any thread.
std::string nameString(const NameFacts &facts, std::int64_t counter, const AddOnTexts &addOns,
                       const NameSettings &settings);

/// A run of a styled name.
struct StyledRun {
    enum class Kind : std::uint8_t {
        Text,     ///< of the template
        Value,    ///< of the slot
        Marker,   ///< "_" for an empty name
        FrontDot, ///< a dot that is reported
        Extension,
        HiddenExtension,
        Companions, ///< what moves with the item
    };
    std::string text;
    Kind kind = Kind::Text;
    int slot = -1;          ///< of a value: 0 to 11
    bool isReduced = false; ///< it follows a value of the same colour
};
using StyledName = std::vector<StyledRun>;
/// The same name for display, in runs; a ":" of folder and source name is shown as "/".
StyledName styledNameString(const NameFacts &facts, std::int64_t counter, const AddOnTexts &addOns,
                            const NameSettings &settings);

/// An extension in the case that the setting says.
std::string correctedExtension(const std::string &extension, SuffixCase suffixChangeCase);
/// The name with what moves along: "a.CR2 (+.JPG, .xmp)", "a.HEIC (+.MOV, [.xmp, .aae])".
std::string spNameComplete(const MySinglePic &pic);

} // namespace chronomender
