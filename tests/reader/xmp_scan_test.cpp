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

TEST(XmpScan, FindsEveryPropertyInEveryForm) {
    for (const int form : {0, 1, 2, 3}) {
        for (const XmpDateName &each : kXmpDateNames) {
            const std::string name(each.name.name);
            Xmp xmp;
            if (form == 3)
                xmp.element(name, kStamp);
            else
                xmp.attribute(name, kStamp, form == 1 ? '\'' : '"', form == 2 ? " \n= " : "=");
            EXPECT_THAT(scan(xmp.end().bytes()).dates.stamps,
                        ElementsAre(XmpStamp{
                            each.property, {xmp.at(name), 25, kStamp}, XmpStampType::Zoned, 0}))
                << xmp.bytes();
        }
    }
    EXPECT_TRUE(scan(xmpWith("xap:ModifyDate", kStamp)).dates.find(XmpProperty::XmpModifyDate));
}

TEST(XmpScan, PassesOverWhatOnlyLooksLikeAProperty) {
    const std::string stamp = kStamp;
    for (const std::string &text :
         {"<xmp:CreateDateFoo>" + stamp + "</a>", "<xmp:CreateDate a=\"x\">" + stamp + "</a>",
          "</xmp:CreateDate>" + stamp + "<", "<a>xmp:CreateDate is " + stamp + "</a>",
          "<crs:CreateDate>" + stamp + "</a>", "<myexif:DateTimeOriginal>" + stamp + "</a>"}) {
        const Scanned scanned = scan(Xmp().fillTo(0).raw(text).end().bytes());
        EXPECT_THAT(scanned.dates.stamps, IsEmpty()) << text;
        EXPECT_THAT(scanned.findings, IsEmpty()) << text;
    }
}

TEST(XmpScan, TakesTheFirstOfEachPropertyAcrossBlocksUpToThePacketsEnd) {
    constexpr std::size_t kBorder = FileWindow::kScanBlock, kOverlap = 512;
    for (const std::size_t border : {kBorder, kBorder - kOverlap}) {
        for (std::size_t before = border - 70; before < border + 10; ++before) {
            Xmp xmp;
            xmp.fillTo(before).element("xmp:CreateDate", kStamp);
            xmp.element("xmp:CreateDate", "2001-02-03T04:05:06Z");
            xmp.raw(before % 2 == 0 ? "</x:xmpmeta>" : "<?xpacket end='r'?>");
            const auto stamps = scan(xmp.element("tiff:DateTime", kStamp).bytes()).dates.stamps;
            ASSERT_EQ(stamps.size(), 1u) << before;
            ASSERT_EQ(stamps[0].value.data, kStamp);
        }
    }
}

TEST(XmpScan, TellsWhyAValueOrAPacketIsRefused) {
    const auto reasonOf = [](std::string_view packet) {
        return scan(packet).findings.at(0).reason;
    };
    for (const char *day : {"2024", "2024-05", "2024-05-06"})
        EXPECT_EQ(reasonOf(xmpWith("tiff:DateTime", day)), FindingReason::DateWithoutTime) << day;
    EXPECT_EQ(reasonOf(xmpWith("tiff:DateTime", "2007:09:11 13:53:33")), FindingReason::NotAStamp);
    for (const std::string &wide : {std::string("\xFE\xFF\0<", 4), std::string("<\0x\0", 4)})
        EXPECT_EQ(reasonOf(wide), FindingReason::PacketNotUtf8);
    // A zone that cannot be leaves a wall clock without a place to be written to.
    const std::string farEast = xmpWith("tiff:DateTime", "2024-05-06T07:08:09+19:00");
    EXPECT_EQ(reasonOf(farEast), FindingReason::ZoneOutOfRange);
    EXPECT_EQ(scan(farEast).dates.stamps.at(0).type, XmpStampType::Local);
    EXPECT_EQ(scan(farEast).dates.stamps.at(0).value.room, 0u);
}

TEST(XmpScan, APacketWithoutAnEndIsLookedAtUpToALimit) {
    const std::string begin = Xmp().element("xmp:CreateDate", kStamp).bytes();
    const Scanned scanned = scan(begin + std::string(kMostXmpBytes + FileWindow::kScanBlock, 'x'));
    EXPECT_EQ(scanned.dates.stamps.size(), 1u);
    EXPECT_EQ(scanned.findings.at(0).reason, FindingReason::ScanLimit);

    little::MemoryFile sparse(begin);
    ASSERT_TRUE(sparse.stretch(40LL << 30));
    FileWindow window(sparse.descriptor(), 40ULL << 30, true);
    std::vector<Finding> findings;
    EXPECT_EQ(scanXmpDates(window, {0, UINT64_MAX}, findings).stamps.size(), 1u);
    EXPECT_LE(window.readCount().bytes, 4 * FileWindow::kScanBlock);
}

TEST(XmpSidecar, TellsDatesPlaceAndTheFilesItBelongsTo) {
    const auto sidecarOf = [](std::string_view bytes) {
        const little::MemoryFile file(bytes);
        FileWindow window(file.descriptor(), bytes.size(), false);
        std::vector<Finding> findings;
        XmpSidecar sidecar = scanXmpSidecar(window, findings);
        EXPECT_EQ(little::firstUntruth(sidecar.location, bytes), std::nullopt);
        return sidecar;
    };
    Xmp xmp;
    xmp.attribute("photoshop:SidecarForExtension", "CR2").attribute("crs:RawFileName", "A.1.Jpg");
    xmp.attribute("xmpMM:DerivedFrom", "img.cr2").attribute("xmp:CreateDate", kStamp);
    xmp.attribute("exif:GPSLatitude", "33.45").attribute("exif:GPSLatitudeRef", "S");
    xmp.attribute("exif:GPSLongitude", "1,2N").element("exif:GPSHPositioningError", "4.7").end();
    const XmpSidecar sidecar = sidecarOf("<?xml?>" + std::string(140000, ' ') + xmp.bytes());
    EXPECT_THAT(sidecar.extensions, ElementsAre("cr2", "jpg"));
    EXPECT_EQ(sidecar.dates.stamps.size(), 1u);
    EXPECT_EQ(sidecar.location.gpsLatRef->data + sidecar.location.gpsLat->data, "S33.45");
    EXPECT_EQ(sidecar.location.gpsLon, std::nullopt) << "no letter of a longitude";
    for (const char *none : {"x", "a.", "../../etc/passwd", "a.b/c", "an.extensionthatislong"})
        EXPECT_THAT(sidecarOf(xmpWith("crs:RawFileName", none)).extensions, IsEmpty()) << none;
}

} // namespace
} // namespace chronomender::steps
