// SPDX-License-Identifier: GPL-3.0-or-later
#include "UnchangedProof.h"

#include "ExifFormat.h"

#include <absl/time/clock.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <span>
#include <vector>

namespace chronomender {
namespace {

/// Values that lie within this many bytes of each other are fetched by one read.
constexpr std::uint64_t kReachOfOneRead = 65536;
/// File systems round times; a difference from here on is a change.
constexpr absl::Duration kLeastChange = absl::Seconds(1);

struct Expected {
    std::uint64_t offset;
    std::string_view bytes;
    std::uint64_t end() const { return offset + bytes.size(); }
};

std::vector<Expected> expectedInOrderOfPlace(const SinglePicAttributes &recorded) {
    std::vector<Expected> expected;
    expected.reserve(recordedValues().size());
    forEachRecordedValue(recorded, [&](std::string_view, const LocatedBytes &value) {
        expected.push_back({value.offset, bytesInFile(recorded, value)});
    });
    std::ranges::sort(expected, {}, &Expected::offset);
    return expected;
}

/// Compares neighbours that one read can fetch; `values` is not empty.
bool areNeighboursUnchanged(std::span<const Expected> values, OpenFile &file) {
    const std::uint64_t start = values.front().offset;
    std::uint64_t end = start;
    for (const Expected &value : values)
        end = std::max(end, value.end());
    std::array<char, kReachOfOneRead> room;
    const std::span<char> wanted(room.data(), static_cast<std::size_t>(end - start));
    if (file.pread(wanted, start) != wanted.size())
        return false;
    return std::all_of(values.begin(), values.end(), [&](const Expected &value) {
        const auto at = static_cast<std::size_t>(value.offset - start);
        return std::string_view(room.data() + at, value.bytes.size()) == value.bytes;
    });
}

bool isWithinASecond(Date a, Date b) {
    return distance(a, b) < kLeastChange;
}

/// Some file systems cannot keep a time before 1970 and answer with 1970 itself.
bool isLostBefore1970(Date recorded, Date now) {
    return recorded < absl::UnixEpoch() && now == absl::UnixEpoch();
}

bool isBirthDateUnchanged(const OptionalDate &recorded, const OptionalDate &now) {
    return !recorded || !now || isWithinASecond(*recorded, *now);
}

bool isSameFile(const SinglePicAttributes &recorded, const FileAttributes &now) {
    return recorded.fileInode == 0 ||
           (recorded.fileDevice == now.device && recorded.fileInode == now.inode);
}

FileUnchangedState stateOfFile(const MySinglePic &pic, const std::string &path, FileLayer &files) {
    FileError error;
    const auto file = files.open(path, OpenMode::Read, &error);
    if (!file)
        return isAbsence(error) ? FileUnchangedState::NotFound : FileUnchangedState::CannotBeOpened;
    if (!areSidecarsPresent(pic, files))
        return FileUnchangedState::BytesDiffer;
    return stateOfOpenFile(pic, *file);
}

} // namespace

MySinglePicPtr provedCopy(const MySinglePic &pic, const MySingleFolder &folder,
                          const std::string &folderPath, FileLayer &files) {
    auto copy = std::make_shared<MySinglePic>(pic);
    copy->save.fileUnchangedState =
        updatedUnchangedFileState(*copy, folder, folderPath + '/' + copy->spName, files);
    return copy;
}

bool areSidecarsPresent(const MySinglePic &pic, FileLayer &files) {
    if (pic.spSidecarExtensions.empty())
        return true;
    const auto paths = pic.spSidecarPaths();
    return std::all_of(paths.begin(), paths.end(),
                       [&](const std::string &path) { return files.attributes(path).has_value(); });
}

bool isAbsence(const FileError &error) {
    return error.code == ENOENT || error.code == ENOTDIR;
}

std::string_view bytesInFile(const SinglePicAttributes &recorded, const LocatedBytes &value) {
    const std::string_view data = value.data;
    const auto is = [&](const std::optional<LocatedBytes> &stamp) {
        return stamp && &*stamp == &value;
    };
    const bool isStamp = is(recorded.exifDateTimeOriginal) || is(recorded.exifDateTimeDigitized) ||
                         is(recorded.tiffDateTime);
    return isStamp ? data.substr(0, kStampLength) : data;
}

bool areTheFileAttributesUnchanged(const SinglePicAttributes &recorded, const FileAttributes &now) {
    return recorded.fileSize == now.size && isSameFile(recorded, now) &&
           isBirthDateUnchanged(recorded.fileBirthDate, now.birthDate) &&
           (isWithinASecond(recorded.fileModificationDate, now.modificationDate) ||
            isLostBefore1970(recorded.fileModificationDate, now.modificationDate));
}

bool areRecordedValuesUnchanged(const SinglePicAttributes &recorded, OpenFile &file) {
    const std::vector<Expected> expected = expectedInOrderOfPlace(recorded);
    std::span<const Expected> left(expected);
    while (!left.empty()) {
        const std::uint64_t start = left.front().offset;
        const auto isTooFar = [start](const Expected &value) {
            return value.end() - start > kReachOfOneRead;
        };
        const auto next = std::find_if(left.begin() + 1, left.end(), isTooFar);
        const auto count = static_cast<std::size_t>(next - left.begin());
        if (!areNeighboursUnchanged(left.first(count), file))
            return false;
        left = left.subspan(count);
    }
    return true;
}

FileUnchangedState stateOfOpenFile(const MySinglePic &pic, OpenFile &file) {
    const auto attributes = file.attributes();
    if (!attributes || !areTheFileAttributesUnchanged(pic.singlePicAttributes, *attributes))
        return FileUnchangedState::AttributesDiffer;
    if (pic.hasCorrectableDate() && !areRecordedValuesUnchanged(pic.singlePicAttributes, file))
        return FileUnchangedState::BytesDiffer;
    return FileUnchangedState::Unchanged;
}

FileUnchangedState updatedUnchangedFileState(MySinglePic &pic, const MySingleFolder &folder,
                                             FileLayer &files) {
    return updatedUnchangedFileState(pic, folder, folder.sfFolderPath() + '/' + pic.spName, files);
}

FileUnchangedState updatedUnchangedFileState(MySinglePic &pic, const MySingleFolder &folder,
                                             const std::string &path, FileLayer &files) {
    const OptionalDate &checked = pic.save.lastCheckedAt;
    const bool isCached =
        checked && (!folder.lastLocalChange || *checked >= *folder.lastLocalChange);
    if (isCached)
        return pic.save.fileUnchangedState;
    pic.save.lastCheckedAt = absl::Now();
    if (pic.save.fileUnchangedState == FileUnchangedState::MustBeReadAgain)
        return FileUnchangedState::MustBeReadAgain;
    return stateOfFile(pic, path, files);
}

} // namespace chronomender
