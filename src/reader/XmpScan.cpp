// SPDX-License-Identifier: GPL-3.0-or-later
#include "XmpScan.h"

#include "XmpTexts.h"

namespace chronomender {

namespace {

constexpr auto kNames = [] {
    std::array<XmpName, kXmpDateNames.size()> names{};
    std::ranges::transform(kXmpDateNames, names.begin(), &XmpDateName::name);
    return names;
}();

FindingReason refusalOf(std::string_view text) {
    return isXmpDateWithoutTime(text) ? FindingReason::DateWithoutTime : FindingReason::NotAStamp;
}

/// A stamp that the text is; none for another text, which is told unless it is empty.
std::optional<XmpStamp> stampOf(XmpText &&text, std::vector<Finding> &findings) {
    const XmpDateName &name = kXmpDateNames[text.name];
    const auto tell = [&](FindingReason reason) {
        findings.push_back({std::string(name.name.name), text.value.offset, reason});
    };
    XmpStamp stamp{name.property, {}, XmpStampType::Invalid, 0};
    stamp.type = verifiedXmpDateDataType(text.value.data, stamp.subtype);
    if (stamp.type == XmpStampType::Invalid) {
        if (!text.value.data.empty())
            tell(refusalOf(text.value.data));
        return std::nullopt;
    }
    stamp.value = std::move(text.value);
    if (!isXmpZoneInRange(stamp.value.data, stamp.type, stamp.subtype)) {
        // Such a zone counts as absent. It does not lose the date, which then has no place to be
        // written to: what stands behind it would go on telling the zone.
        tell(FindingReason::ZoneOutOfRange);
        stamp.type = XmpStampType::Local;
        stamp.subtype &= ~kXmpZoneWithoutColon;
        stamp.value.room = 0;
    }
    return stamp;
}

} // namespace

XmpDateInfos scanXmpDates(FileWindow &window, const ByteBlock &packet,
                          std::vector<Finding> &findings) {
    XmpDateInfos infos;
    if (!isXmpInUtf8(window, packet)) {
        findings.push_back({"XMP", packet.offset, FindingReason::PacketNotUtf8});
        return infos;
    }
    XmpTextScan scan = scanXmpTexts(window, packet, kNames);
    for (XmpText &text : scan.texts)
        if (auto stamp = stampOf(std::move(text), findings))
            infos.stamps.push_back(*std::move(stamp));
    if (scan.hasReachedLimit)
        findings.push_back({"XMP", packet.offset, FindingReason::ScanLimit});
    return infos;
}

} // namespace chronomender
