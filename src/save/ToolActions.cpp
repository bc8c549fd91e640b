// SPDX-License-Identifier: GPL-3.0-or-later
#include "ToolActions.h"

#include "ExifFormat.h"
#include "StampConversions.h"
#include "ZoneLookup.h"

#include <algorithm>
#include <array>

namespace chronomender {
namespace {

/// A date tag and its zone stamp, by ExifTool's names.
struct TagNames {
    StampSlot slot;
    std::string_view date, offset;
};
constexpr std::array kTagNames{
    TagNames{StampSlot::Original, "ExifIFD:DateTimeOriginal", "ExifIFD:OffsetTimeOriginal"},
    TagNames{StampSlot::Digitized, "ExifIFD:CreateDate", "ExifIFD:OffsetTimeDigitized"},
    TagNames{StampSlot::Modification, "IFD0:ModifyDate", "ExifIFD:OffsetTime"},
};

struct XmpTagName {
    XmpProperty property;
    std::string_view name;
};
constexpr std::array kXmpTagNames{
    XmpTagName{XmpProperty::ExifDateTimeOriginal, "XMP-exif:DateTimeOriginal"},
    XmpTagName{XmpProperty::ExifDateTimeDigitized, "XMP-exif:DateTimeDigitized"},
    XmpTagName{XmpProperty::XmpCreateDate, "XMP-xmp:CreateDate"},
    XmpTagName{XmpProperty::XmpModifyDate, "XMP-xmp:ModifyDate"},
    XmpTagName{XmpProperty::XmpMetadataDate, "XMP-xmp:MetadataDate"},
    XmpTagName{XmpProperty::TiffDateTime, "XMP-tiff:DateTime"},
    XmpTagName{XmpProperty::PhotoshopDateCreated, "XMP-photoshop:DateCreated"},
    XmpTagName{XmpProperty::GpsTimeStamp, "XMP-exif:GPSDateTime"},
};

/// A modification date that came from the packet gets a tag of its own, where the file has none.
bool isToBeAdded(const MySinglePic &pic, StampSlot slot) {
    const bool isAsked = (pic.save.tagAddType & bit(slot)) != 0;
    const bool isFromPacket =
        slot == StampSlot::Modification && pic.xmp.isModiXmp && !pic.stamp(slot);
    return (isAsked || isFromPacket) && isCleanDate(pic.slots.*description(slot).newDate);
}

/// The file's own words, where our reader does not see them, are never overwritten: the tool leaves
/// the whole file alone then. Older PNG files, for example, keep Exif in chunks of text.
void appendCondition(const std::vector<std::string_view> &absentTags,
                     std::vector<std::string> &lines) {
    if (absentTags.empty())
        return;
    std::string anyOfThem;
    for (const std::string_view tag : absentTags)
        anyOfThem.append(anyOfThem.empty() ? "$" : " or $").append(tag);
    lines.insert(lines.begin(), {"-if", "not (" + anyOfThem + ')'});
}

std::string argument(std::string_view tag, std::string_view value) {
    std::string line("-");
    line.append(tag).append(1, '=').append(value);
    return line;
}

} // namespace

std::optional<ToolAction> completeFullExifDateTags(const MySinglePic &pic,
                                                   const PlanContext &context) {
    ToolAction action{ToolErrorType::CompleteDateTags, {}};
    std::vector<std::string_view> absentTags;
    for (const TagNames &names : kTagNames) {
        if (!isToBeAdded(pic, names.slot))
            continue;
        const Zone zone = targetZoneForSlot(pic, names.slot, context.folder, context.zones);
        const auto texts =
            exifWithOffsetDatasFromDate(*(pic.slots.*description(names.slot).newDate), zone.rules);
        if (!texts)
            return std::nullopt;
        if (!pic.stamp(names.slot))
            absentTags.push_back(names.date);
        action.lines.push_back(
            argument(names.date, '"' + texts->stamp.substr(0, kStampLength) + '"'));
        action.lines.push_back(argument(names.offset, texts->offset.c_str()));
    }
    appendCondition(absentTags, action.lines);
    return action.lines.empty() ? std::nullopt : std::optional(action);
}

ToolAction extendShortXmpDateTags(const std::vector<SupportStamp> &stamps) {
    ToolAction action{ToolErrorType::ExtendShortXmp, {}};
    for (const SupportStamp &stamp : stamps) {
        const auto name = std::ranges::find(kXmpTagNames, stamp.property, &XmpTagName::property);
        action.lines.push_back(argument(name->name, stamp.text));
    }
    return action;
}

} // namespace chronomender
