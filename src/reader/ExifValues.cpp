// SPDX-License-Identifier: GPL-3.0-or-later
#include "ExifValues.h"

#include "ExifFormat.h"
#include "StampSyntax.h"

#include <algorithm>

namespace chronomender {

namespace {

/// How far behind a shortened stamp its field is looked at; no writer makes a longer one.
constexpr std::size_t kLongestStampField = 64;

/// At most `most` bytes at the entry's offset, or none when there are fewer than `least`.
std::optional<std::string_view> bytesElsewhere(const TiffBlock &block, const TiffEntry &entry,
                                               std::size_t least, std::size_t most) {
    const std::uint64_t left = block.range().left(entry.value);
    if (left < least)
        return std::nullopt;
    return block.range().bytes(entry.value,
                               static_cast<std::size_t>(std::min<std::uint64_t>(left, most)));
}

/// The bytes of a stamp as they will be reported, or none when they are no stamp.
std::optional<Bytes> stampIn(std::string_view bytes, std::uint32_t room) {
    const std::string_view full = bytes.substr(0, kStampLength);
    if (full.size() == kStampLength && full.find('\0') == full.npos && verifyDateData(full)) {
        Bytes data(full);
        data.push_back('\0');
        return data;
    }
    // A shortened stamp: behind its text, all that the field declares must be zero.
    const std::string_view field =
        bytes.substr(0, std::max<std::size_t>(room, kShortestStampLength));
    const std::string_view rest = field.substr(std::min(field.find('\0'), field.size()));
    if (!verifyDateData(field) || rest.find_first_not_of('\0') != std::string_view::npos)
        return std::nullopt;
    Bytes data(field.substr(0, kStampLength));
    if (data.size() == kStampLength)
        data.push_back('\0');
    return data;
}

} // namespace

void readStamp(const TiffBlock &block, const TiffEntry &entry, const char *name,
               std::optional<LocatedBytes> &slot, Findings &findings) {
    const std::uint64_t offset = block.range().absolute(entry.value);
    const std::uint32_t room = block.roomElsewhere(entry);
    const auto bytes = bytesElsewhere(block, entry, kShortestStampLength, kLongestStampField);
    const auto data = bytes ? stampIn(*bytes, room) : std::nullopt;
    if (!data) {
        findings.push_back(
            {name, offset, bytes ? FindingReason::NotAStamp : FindingReason::OutsideFile});
        return;
    }
    if (room < kStampLength)
        findings.push_back({name, offset, FindingReason::NoRoom});
    slot = LocatedBytes{offset, room, *data};
}

void readZoneStamp(const TiffBlock &block, const TiffEntry &entry, const char *name,
                   std::optional<LocatedBytes> &slot, Findings &findings) {
    const std::uint64_t offset = block.range().absolute(entry.value);
    const std::uint32_t room = block.roomElsewhere(entry);
    const std::size_t most = room == kZoneStampLength ? kZoneStampLength : kStoredZoneStampLength;
    const auto bytes = bytesElsewhere(block, entry, kZoneStampLength, most);
    if (!bytes || !verifyOffsetData(*bytes)) {
        findings.push_back(
            {name, offset, bytes ? FindingReason::NotAZoneStamp : FindingReason::OutsideFile});
        return;
    }
    if (!secondsFromExifOffset(bytes->substr(0, kZoneStampLength))) {
        findings.push_back({name, offset, FindingReason::ZoneOutOfRange});
        return;
    }
    if (room < kZoneStampLength)
        findings.push_back({name, offset, FindingReason::NoRoom});
    slot = LocatedBytes{offset, room, Bytes(*bytes)};
}

std::optional<LocatedBytes> readElsewhere(const TiffBlock &block, const TiffEntry &entry,
                                          std::size_t length, const char *name,
                                          Findings &findings) {
    const std::uint64_t offset = block.range().absolute(entry.value);
    const auto bytes = block.range().bytes(entry.value, length);
    if (!bytes) {
        findings.push_back({name, offset, FindingReason::OutsideFile});
        return std::nullopt;
    }
    const std::uint32_t room = block.roomElsewhere(entry);
    if (room < length)
        findings.push_back({name, offset, FindingReason::NoRoom});
    return LocatedBytes{offset, room, Bytes(*bytes)};
}

std::optional<LocatedBytes> readInline(const TiffBlock &block, const TiffEntry &entry,
                                       std::size_t length, const char *name, Findings &findings) {
    const std::uint64_t offset = block.range().absolute(entry.inlineAt);
    const auto bytes = block.range().bytes(entry.inlineAt, length);
    if (!bytes)
        return std::nullopt;
    const std::uint32_t room = block.roomInline(entry);
    if (room < length)
        findings.push_back({name, offset, FindingReason::NoRoom});
    return LocatedBytes{offset, room, Bytes(*bytes)};
}

std::string readText(const TiffBlock &block, const TiffEntry &entry, std::size_t longest) {
    const bool isInline = entry.declared <= kTiffInlineRoom;
    const std::uint64_t at = isInline ? entry.inlineAt : entry.value;
    const std::uint64_t length =
        std::min({entry.declared, std::uint64_t{longest}, block.range().left(at)});
    const auto bytes = block.range().bytes(at, static_cast<std::size_t>(length));
    return bytes ? std::string(bytes->substr(0, bytes->find('\0'))) : std::string();
}

} // namespace chronomender
