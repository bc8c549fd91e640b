// SPDX-License-Identifier: GPL-3.0-or-later
#include "ImportSteps.h"

#include <map>

namespace chronomender {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

constexpr const char *silentXmp = "<x:xmpmeta xmlns:x='adobe:ns:meta/'></x:xmpmeta>";

/// A sidecar that names the kind of file that it belongs to, and where the picture was taken.
std::string xmpFor(const std::string &extension) {
    return "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:Description "
           "photoshop:SidecarForExtension=\"" +
           extension +
           "\" exif:GPSLatitude=\"48,30.0N\" exif:GPSLongitude=\"11,15.0E\"/></x:xmpmeta>";
}

class SidecarsTest : public ImportTest {
protected:
    void raw(const std::string &name) {
        file(name, little::tiffPhoto({.original = "2024:05:06 07:08:09"}).bytes);
    }
    /// Items with sidecars: "a.jpg", {"xmp"}. Both halves of a group are listed.
    std::map<std::string, std::vector<std::string>> owners(const ImportOutcome &outcome) const {
        std::map<std::string, std::vector<std::string>> found;
        const auto add = [&](const std::vector<MySinglePicPtr> &items) {
            for (const MySinglePicPtr &pic : items)
                if (!pic->spSidecarExtensions.empty())
                    found[pic->spName] = pic->spSidecarExtensions;
        };
        add(outcome.items);
        add(folder->bundleDependentsRawAndJPG);
        return found;
    }
    static std::vector<std::string> errorsOf(const ImportOutcome &outcome) {
        std::vector<std::string> errors;
        for (const ImportError &error : outcome.importErrors)
            errors.push_back(error.path.substr(error.path.rfind('/') + 1) + ' ' +
                             std::to_string(static_cast<int>(error.id)));
        return errors;
    }
};

TEST_F(SidecarsTest, EachFindsItsItem) {
    keyStates.createFileGroups = false;
    for (const char *name :
         {"only.jpg", "both.jpg", "named.jpg", "two.jpg", "two.png", "same.jpg", "other.jpg"})
        dated(name);
    for (const char *name : {"both.CR2", "named.CR2", "same.CR2"})
        raw(name);
    file("only.XMP", silentXmp);
    file("both.xmp", silentXmp);         // the raw file before the JPEG
    file("named.xmp", xmpFor("JPG"));    // says whose it is
    file("two.xmp", silentXmp);          // no raw file among the two
    file("same.CR2.xmp", xmpFor("jpg")); // the whole name counts before all it says
    file("other.xmp", xmpFor("nef"));    // says that it is not the one that is there
    file("nobody.xmp", silentXmp);
    file("only.AAE", "text");
    file("two.aae", "text");
    file("nobody.aae", "text");

    const ImportOutcome outcome = import();

    EXPECT_THAT(owners(outcome),
                UnorderedElementsAre(Pair("only.jpg", UnorderedElementsAre("XMP", "AAE")),
                                     Pair("both.CR2", ElementsAre("xmp")),
                                     Pair("named.jpg", ElementsAre("xmp")),
                                     Pair("same.CR2", ElementsAre("CR2.xmp"))));
    EXPECT_THAT(errorsOf(outcome), UnorderedElementsAre("two.xmp 16", "two.aae 16", "other.xmp 16",
                                                        "nobody.xmp 17", "nobody.aae 17"));
    EXPECT_THAT(skippedOf(outcome), IsEmpty());
}

TEST_F(SidecarsTest, AGroupIsOneShot) {
    raw("a.CR2");
    dated("a.JPG");
    file("a.AAE", "text");
    file("a.xmp", xmpFor("jpg"));
    const ImportOutcome outcome = import();
    ASSERT_THAT(namesOf(outcome.items), ElementsAre("a.CR2"));
    EXPECT_THAT(owners(outcome),
                UnorderedElementsAre(Pair("a.CR2", UnorderedElementsAre("JPG", "AAE", "xmp")),
                                     Pair("a.JPG", ElementsAre("xmp"))));
    EXPECT_THAT(errorsOf(outcome), IsEmpty());
    EXPECT_TRUE(folder->bundleDependentsRawAndJPG.at(0)->hasLocation());
    EXPECT_FALSE(outcome.items[0]->hasLocation());
}

TEST_F(SidecarsTest, SingleFilesBringTheirSidecarsAndNothingIsSaidOfOthers) {
    for (const char *name : {"a.jpg", "b.jpg", "b.png"})
        dated(name);
    for (const char *name : {"a.xmp", "b.xmp", "c.xmp"})
        file(name, silentXmp);
    const ImportOutcome first = importAndPublish({"a.jpg"});
    EXPECT_THAT(owners(first), ElementsAre(Pair("a.jpg", ElementsAre("xmp"))));
    EXPECT_THAT(errorsOf(first), IsEmpty());

    const ImportOutcome second = importAndPublish({"b.jpg", "b.png", "b.xmp"});
    EXPECT_THAT(owners(second), IsEmpty());
    EXPECT_THAT(errorsOf(second), ElementsAre("b.xmp 16"));
    EXPECT_THAT(folder->sfPicDetails_fullArray.at(0)->spSidecarExtensions, ElementsAre("xmp"));
}

TEST_F(SidecarsTest, ASidecarThatCameLaterIsGivenToTheItemThatIsThere) {
    dated("a.jpg");
    importAndPublish();
    file("a.xmp", xmpFor("jpg"));
    const ImportOutcome second = importAndPublish();
    EXPECT_THAT(second.items, IsEmpty());
    const MySinglePic &pic = *folder->sfPicDetails_fullArray.at(0);
    EXPECT_THAT(pic.spSidecarExtensions, ElementsAre("xmp"));
    EXPECT_NEAR(pic.location.gpsLat.value_or(0), 48.5, 1e-9);
    EXPECT_NEAR(pic.location.gpsLong.value_or(0), 11.25, 1e-9);
}

} // namespace
} // namespace chronomender
