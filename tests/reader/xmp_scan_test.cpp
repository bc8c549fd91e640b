// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleXmp.h"
#include "ReaderSteps.h"
#include "XmpScan.h"
#include "XmpTexts.h"

namespace chronomender::steps {
namespace {

using little::Xmp;
using little::xmpWith;

constexpr const char *kStamp = "2024-05-06T07:08:09+02:00";
constexpr const char *kOther = "2001-02-03T04:05:06Z";

struct Scanned {
    XmpDateInfos dates;
    std::vector<Finding> findings;
};

Scanned scan(std::string_view packet) {
    const little::MemoryFile file(packet);
    FileWindow window(file.descriptor(), packet.size(), false);
    Scanned scanned;
    scanned.dates = scanXmpDates(window, {0, packet.size()}, scanned.findings);
    EXPECT_EQ(little::firstUntruth(scanned.dates, packet), std::nullopt);
    return scanned;
}

std::string textOf(const XmpDateInfos &dates, XmpProperty property) {
    const XmpStamp *stamp = dates.find(property);
    return stamp ? stamp->value.data : "absent";
}

TEST(XmpScan, FindsEveryPropertyInEveryForm) {
    const auto forms = std::to_array<std::function<void(Xmp &, const std::string &)>>({
        [](Xmp &xmp, const auto &name) { xmp.attribute(name, kStamp); },
        [](Xmp &xmp, const auto &name) { xmp.attribute(name, kStamp, '\''); },
        [](Xmp &xmp, const auto &name) { xmp.attribute(name, kStamp, '"', " \n= "); },
        [](Xmp &xmp, const auto &name) { xmp.element(name, kStamp); },
    });
    for (const auto &form : forms) {
        for (const XmpDateName &each : kXmpDateNames) {
            const std::string name(each.name.name);
            Xmp xmp;
            form(xmp, name);
            const XmpDateInfos dates = scan(xmp.end().bytes()).dates;
            const XmpStamp expected{
                each.property, {xmp.at(name), 25, kStamp}, XmpStampType::Zoned, 0};
            EXPECT_THAT(dates.stamps, ElementsAre(expected)) << xmp.bytes();
        }
    }
    EXPECT_EQ(textOf(scan(xmpWith("xap:ModifyDate", kStamp)).dates, XmpProperty::XmpModifyDate),
              kStamp);
}

TEST(XmpScan, PassesOverWhatOnlyLooksLikeAProperty) {
    const std::string stamp = kStamp;
    for (const std::string &text : {
             "<xmp:CreateDateFoo>" + stamp + "</xmp:CreateDateFoo>",
             "<xmp:CreateDate rdf:datatype=\"x\">" + stamp + "</xmp:CreateDate>",
             "</xmp:CreateDate>" + stamp + "<",
             "<a>xmp:CreateDate is " + stamp + "</a>",
             "<a xmlnsxmp:CreateDate\"" + stamp + "\"/>",
             "<crs:CreateDate>" + stamp + "</crs:CreateDate>",
             "<myexif:DateTimeOriginal>" + stamp + "</myexif:DateTimeOriginal>",
             "<xmp:CreateDate/>" + stamp + "<",
         }) {
        const Scanned scanned = scan(Xmp().fillTo(0).raw(text).end().bytes());
        EXPECT_THAT(scanned.dates.stamps, IsEmpty()) << text;
        EXPECT_THAT(scanned.findings, IsEmpty()) << text;
    }
}

TEST(XmpScan, TakesTheFirstOfEachPropertyUpToThePacketsEnd) {
    for (const std::string end : {"</x:xmpmeta>", "<?xpacket end='r'?>"}) {
        const auto dates = scan(Xmp()
                                    .element("tiff:DateTime", kOther)
                                    .element("xmp:CreateDate", kStamp)
                                    .element("xmp:CreateDate", kOther)
                                    .raw(end)
                                    .element("xmp:ModifyDate", kStamp)
                                    .bytes())
                               .dates;
        EXPECT_THAT(valuesByName(dates).size(), 2u) << end;
        EXPECT_EQ(dates.stamps[0].property, XmpProperty::TiffDateTime);
        EXPECT_EQ(textOf(dates, XmpProperty::XmpCreateDate), kStamp);
    }
}

TEST(XmpScan, FindsAPropertyWhereverItLiesAcrossTwoBlocks) {
    for (const std::size_t border : {FileWindow::kScanBlock, FileWindow::kScanBlock - 512}) {
        for (std::size_t before = border - 70; before < border + 10; ++before) {
            Xmp xmp;
            xmp.fillTo(before).element("photoshop:DateCreated", kStamp).end();
            const XmpStamp *stamp = nullptr;
            const XmpDateInfos dates = scan(xmp.bytes()).dates;
            stamp = dates.find(XmpProperty::PhotoshopDateCreated);
            ASSERT_TRUE(stamp) << before;
            EXPECT_EQ(stamp->value.offset, xmp.at("photoshop:DateCreated"));
        }
    }
}

TEST(XmpScan, TellsWhyAValueIsRefused) {
    const struct {
        const char *text;
        FindingReason reason;
    } rows[] = {
        {"2024", FindingReason::DateWithoutTime},
        {"2024-05", FindingReason::DateWithoutTime},
        {"2024-05-06", FindingReason::DateWithoutTime},
        {"2007:09:11 13:53:33.180", FindingReason::NotAStamp},
    };
    for (const auto &row : rows) {
        Xmp xmp;
        xmp.attribute("photoshop:DateCreated", row.text).end();
        const Scanned scanned = scan(xmp.bytes());
        EXPECT_THAT(scanned.dates.stamps, IsEmpty());
        EXPECT_THAT(scanned.findings,
                    ElementsAre(Finding{"photoshop:DateCreated", xmp.at("photoshop:DateCreated"),
                                        row.reason}));
    }
    EXPECT_EQ(scan(std::string("\xFE\xFF\0<\0?", 6)).findings.at(0).reason,
              FindingReason::PacketNotUtf8);
    EXPECT_EQ(scan(std::string("<\0x\0", 4)).findings.at(0).reason, FindingReason::PacketNotUtf8);
}

TEST(XmpScan, AZoneOutOfRangeLeavesAWallClockThatCannotBeWritten) {
    const Scanned scanned = scan(xmpWith("xmp:CreateDate", "2024-05-06T07:08:09+19:00"));
    ASSERT_EQ(scanned.dates.stamps.size(), 1u);
    EXPECT_EQ(scanned.dates.stamps[0].type, XmpStampType::Local);
    EXPECT_EQ(scanned.dates.stamps[0].value.room, 0u);
    EXPECT_EQ(scanned.findings.at(0).reason, FindingReason::ZoneOutOfRange);
}

TEST(XmpScan, APacketWithoutAnEndIsLookedAtUpToALimit) {
    const std::string begin = Xmp().element("xmp:CreateDate", kStamp).bytes();
    // Data without any hole, then a file that is hardly more than a hole.
    const std::string dense =
        begin + std::string(kMostXmpBytes + FileWindow::kScanBlock, 'x') + begin;
    const Scanned scanned = scan(dense);
    EXPECT_EQ(scanned.dates.stamps.size(), 1u);
    EXPECT_EQ(scanned.findings.at(0).reason, FindingReason::ScanLimit);

    constexpr std::uint64_t kLength = 40ULL << 30;
    little::MemoryFile sparse(begin);
    ASSERT_TRUE(sparse.stretch(static_cast<off_t>(kLength)));
    FileWindow window(sparse.descriptor(), kLength, true);
    std::vector<Finding> findings;
    EXPECT_EQ(scanXmpDates(window, {0, UINT64_MAX}, findings).stamps.size(), 1u);
    EXPECT_THAT(findings, IsEmpty());
    EXPECT_LE(window.readCount().bytes, 4 * FileWindow::kScanBlock);
}

TEST(XmpScan, FindsALocationAndItsPlaces) {
    Xmp xmp;
    xmp.attribute("exif:GPSLatitude", "33.45")
        .attribute("exif:GPSLatitudeRef", "S")
        .element("exif:GPSLongitude", "70,39.5W")
        .element("exif:GPSHPositioningError", "4.78")
        .element("exif:GPSLongitudeRef", "N")
        .end();
    const little::MemoryFile file(xmp.bytes());
    FileWindow window(file.descriptor(), xmp.bytes().size(), false);
    const XmpLocation location = scanXmpLocation(window, {0, xmp.bytes().size()});
    EXPECT_EQ(little::firstUntruth(location, xmp.bytes()), std::nullopt);
    EXPECT_EQ(location.gpsLat, (LocatedBytes{xmp.at("exif:GPSLatitude"), 5, "33.45"}));
    EXPECT_EQ(location.gpsLatRef->data, "S");
    EXPECT_EQ(location.gpsLon->data, "70,39.5W");
    EXPECT_EQ(location.gpsPosError->data, "4.78");
    EXPECT_EQ(location.gpsLonRef, std::nullopt) << "no letter of a longitude";
}

TEST(XmpSidecar, TellsDatesPlaceAndTheFilesItBelongsTo) {
    const auto sidecarOf = [](std::string_view bytes) {
        const little::MemoryFile file(bytes);
        FileWindow window(file.descriptor(), bytes.size(), false);
        std::vector<Finding> findings;
        return scanXmpSidecar(window, findings);
    };
    const XmpSidecar sidecar = sidecarOf("<?xml version=\"1.0\"?>" + std::string(140000, ' ') +
                                         Xmp()
                                             .attribute("photoshop:SidecarForExtension", "CR2")
                                             .attribute("crs:RawFileName", "IMG.1.Jpg")
                                             .attribute("xmpMM:DerivedFrom", "img.cr2")
                                             .attribute("xmp:CreateDate", kStamp)
                                             .attribute("exif:GPSLatitude", "1,2N")
                                             .end()
                                             .bytes());
    EXPECT_THAT(sidecar.extensions, ElementsAre("cr2", "jpg"));
    EXPECT_EQ(textOf(sidecar.dates, XmpProperty::XmpCreateDate), kStamp);
    EXPECT_TRUE(sidecar.location.gpsLat);
    for (const char *none : {"x", "a.", "../../etc/passwd", "a.b/c", "an.extensionthatislong"})
        EXPECT_THAT(sidecarOf(xmpWith("crs:RawFileName", none)).extensions, IsEmpty()) << none;
    EXPECT_TRUE(sidecarOf("<rdf:RDF xmp:CreateDate=\"2024-05-06T07:08:09\"/>").dates.isEmpty());
}

} // namespace
} // namespace chronomender::steps
