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

std::string argument(std::string_view tag, std::string_view value) {
    std::string line("-");
    line.append(tag).append(1, '=').append(value);
    return line;
}

/// "Unless there is one": a tag that our reader does not see is never overwritten. Older PNG files,
/// for example, keep Exif in chunks of text. The file then does not read back as planned.
std::string unlessPresent(std::string_view tag) {
    return '-' + std::string(tag) + "-=";
}

} // namespace

std::optional<ToolAction> completeFullExifDateTags(const MySinglePic &pic,
                                                   const PlanContext &context) {
    ToolAction action{ToolErrorType::CompleteDateTags, {}};
    for (const TagNames &names : kTagNames) {
        if (!isToBeAdded(pic, names.slot))
            continue;
        const Zone zone = targetZoneForSlot(pic, names.slot, context.folder, context.zones);
        const auto texts =
            exifWithOffsetDatasFromDate(*(pic.slots.*description(names.slot).newDate), zone.rules);
        if (!texts)
            return std::nullopt;
        if (!pic.stamp(names.slot))
            action.lines.push_back(unlessPresent(names.date));
        action.lines.push_back(
            argument(names.date, '"' + texts->stamp.substr(0, kStampLength) + '"'));
        action.lines.push_back(argument(names.offset, texts->offset.c_str()));
    }
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
