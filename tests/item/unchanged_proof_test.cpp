// SPDX-License-Identifier: GPL-3.0-or-later
#include "FakeSession.h"
#include "UnchangedProof.h"

#include <gtest/gtest.h>

#include <unistd.h>

namespace chronomender {
namespace {

using namespace little;
using enum FileUnchangedState;

class UnchangedProof : public testing::Test {
protected:
    void SetUp() override { session.import(); }
    /// Puts bytes into the file and gives it its old modification date back.
    void overwrite(std::size_t offset, std::string_view bytes) {
        const int descriptor = ::open(session.path("a.jpg").c_str(), O_WRONLY);
        EXPECT_EQ(::pwrite(descriptor, bytes.data(), bytes.size(), static_cast<off_t>(offset)),
                  static_cast<ssize_t>(bytes.size()));
        ::close(descriptor);
        setFileDate(session.path("a.jpg"), session.fileDate);
    }
    FileUnchangedState state() {
        session.item("a.jpg").save.lastCheckedAt.reset();
        return updatedUnchangedFileState(session.item("a.jpg"), session.folder(), session.files);
    }

    FakeSession session;
    const BuiltPhoto built = session.photo("a.jpg", fullPhotoFields());
};

TEST_F(UnchangedProof, SeesEachByteOfEachRecordedValueAndNoOther) {
    const auto &attributes = session.item("a.jpg").singlePicAttributes;
    std::vector<bool> isRecorded(built.bytes.size());
    forEachRecordedValue(attributes, [&](std::string_view, const LocatedBytes &value) {
        for (std::size_t i = 0; i < bytesInFile(attributes, value).size(); ++i)
            isRecorded[value.offset + i] = true;
    });
    EXPECT_GT(std::count(isRecorded.begin(), isRecorded.end(), true), 3 * 19 + 3 * 7 + 24 + 11);
    for (std::size_t i = 0; i < built.bytes.size(); ++i) {
        overwrite(i, std::string(1, static_cast<char>(built.bytes[i] ^ 1)));
        EXPECT_EQ(state(), isRecorded[i] ? BytesDiffer : Unchanged) << "byte " << i;
        overwrite(i, built.bytes.substr(i, 1));
    }
}

TEST_F(UnchangedProof, ReadsValuesThatLieFarApart) {
    PhotoFields fields = fullPhotoFields();
    Tiff tiff = photoEntries(fields);
    tiff.value(Directory::Exif, 37500, 7, 200'000, std::string(200'000, 'm')); // a maker's note
    const std::string bytes = tiff.build().bytes;
    session.write("far.tif", bytes);
    session.import();
    session.files.reads = 0;
    MySinglePic &pic = session.item("far.tif");
    EXPECT_EQ(updatedUnchangedFileState(pic, session.folder(), session.files), Unchanged);
    EXPECT_GT(session.files.reads, 1);
    pic.singlePicAttributes.gpsDateStamp->data[9] ^= 1;
    pic.save.lastCheckedAt.reset();
    EXPECT_EQ(updatedUnchangedFileState(pic, session.folder(), session.files), BytesDiffer);
}

TEST_F(UnchangedProof, AllowsFileDatesLessThanASecondAway) {
    for (const std::int64_t difference :
         {999'999'999, -999'999'999, 1'000'000'000, -1'000'000'000}) {
        setFileDate(session.path("a.jpg"), session.fileDate + absl::Nanoseconds(difference));
        EXPECT_EQ(state(), difference % 1'000'000'000 == 0 ? AttributesDiffer : Unchanged)
            << difference;
    }
}

TEST_F(UnchangedProof, TellsWhatBecameOfTheFile) {
    const std::string path = session.path("a.jpg");
    std::filesystem::copy(path, session.disk.path("copy"));
    std::filesystem::remove(path);
    EXPECT_EQ(state(), NotFound);
    std::filesystem::create_symlink(session.disk.path("copy"), path);
    EXPECT_EQ(state(), CannotBeOpened);
    std::filesystem::rename(session.disk.path("copy"), path);
    setFileDate(path, session.fileDate);
    EXPECT_EQ(state(), AttributesDiffer) << "the same bytes and date, but another file";
}

TEST_F(UnchangedProof, MissesASidecarThatWasThere) {
    session.item("a.jpg").spSidecarExtensions = {"xmp"};
    EXPECT_EQ(state(), BytesDiffer);
    session.write("a.xmp", "sidecar");
    EXPECT_EQ(state(), Unchanged);
}

TEST_F(UnchangedProof, ExcusesAFileSystemThatLosesDatesBefore1970) {
    SinglePicAttributes recorded;
    recorded.fileSize = 5;
    recorded.fileModificationDate = utc(1965, 1, 1);
    FileAttributes now{.size = 5, .modificationDate = absl::UnixEpoch(), .birthDate = {}};
    EXPECT_TRUE(areTheFileAttributesUnchanged(recorded, now));
    now.modificationDate += absl::Seconds(1);
    EXPECT_FALSE(areTheFileAttributesUnchanged(recorded, now));
    recorded.fileModificationDate = utc(1975, 1, 1);
    now.modificationDate = absl::UnixEpoch();
    EXPECT_FALSE(areTheFileAttributesUnchanged(recorded, now));
}

TEST_F(UnchangedProof, KeepsTheStateThatAsksForReadingAgain) {
    session.item("a.jpg").save.fileUnchangedState = MustBeReadAgain;
    const int touches = session.files.touches();
    EXPECT_EQ(state(), MustBeReadAgain);
    EXPECT_EQ(session.files.touches(), touches);
}

TEST_F(UnchangedProof, IsFreeWithinTheSameLocalChange) {
    MySinglePic &pic = session.item("a.jpg");
    session.folder().lastLocalChange = absl::UnixEpoch();
    pic.save.fileUnchangedState = updatedUnchangedFileState(pic, session.folder(), session.files);
    const int touches = session.files.touches();
    EXPECT_GT(touches, 0);
    std::filesystem::remove(session.path("a.jpg"));
    EXPECT_EQ(updatedUnchangedFileState(pic, session.folder(), session.files), Unchanged);
    EXPECT_EQ(session.files.touches(), touches);
    session.folder().lastLocalChange = *pic.save.lastCheckedAt + absl::Nanoseconds(1);
    EXPECT_EQ(updatedUnchangedFileState(pic, session.folder(), session.files), NotFound);
}

TEST(BundleUnchangedState, LetsTheSideThatChangedDecide) {
    const auto master = MySinglePic::create("a.cr2", nullptr, SpTypeExifOriginal, {});
    EXPECT_EQ(master->bundleUnchangedState(), Unchanged);
    const auto dependent = MySinglePic::create("a.jpg", nullptr, SpTypeExifOriginal, {});
    master->group.bundleDependentImage = dependent;
    dependent->save.fileUnchangedState = NotFound;
    EXPECT_EQ(master->bundleUnchangedState(), NotFound);
    master->save.fileUnchangedState = BytesDiffer;
    EXPECT_EQ(master->bundleUnchangedState(), BytesDiffer);
}

} // namespace
} // namespace chronomender
