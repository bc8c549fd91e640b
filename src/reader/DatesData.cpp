// SPDX-License-Identifier: GPL-3.0-or-later
#include "DatesData.h"

namespace chronomender {

const char *findingText(FindingReason reason) {
    switch (reason) {
    case FindingReason::NotAStamp:
        return "not a date stamp";
    case FindingReason::NotAZoneStamp:
        return "not a zone stamp";
    case FindingReason::ZoneOutOfRange:
        return "the zone is beyond 18 hours or has more than 59 minutes";
    case FindingReason::NoRoom:
        return "the field is too short to be written in place";
    case FindingReason::OutsideFile:
        return "the file ends before the value does";
    case FindingReason::NotAGpsDate:
        return "not a GPS date";
    case FindingReason::CoordinateMissing:
        return "one of the four coordinate values is missing";
    case FindingReason::DirectoryLoop:
        return "the directory was already read";
    case FindingReason::ScanLimit:
        return "no header in the part of the file that is searched";
    case FindingReason::BrokenStructure:
        return "boxes, atoms or chunks that contradict themselves";
    case FindingReason::PacketNotUtf8:
        return "the XMP packet is not in UTF-8";
    case FindingReason::DateWithoutTime:
        return "a date without a time of day";
    case FindingReason::Compressed:
        return "a compressed block, which cannot be written in place";
    }
    return "";
}

} // namespace chronomender
