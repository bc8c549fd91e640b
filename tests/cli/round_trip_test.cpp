// SPDX-License-Identifier: GPL-3.0-or-later
#include "Corpus.h"
#include "MendRun.h"
#include "StampConversions.h"
#include "Witness.h"

#include <algorithm>
#include <cstdio>
#include <gmock/gmock.h>
#include <map>
#include <numeric>
#include <set>

namespace chronomender {
namespace {

using ::testing::HasSubstr;

const Arguments allKinds{"jpeg", "tiff", "raw", "heif", "avif", "cr3",      "png",
                         "webp", "gif",  "mov", "mp4",  "avi",  "malformed"};
constexpr const char *zoneKeys[] = {"ExifOffsetTimeOriginal", "ExifOffsetTimeDigitized",
                                    "TIFFOffsetTime"};
const absl::Duration shift = absl::Hours(1) + absl::Seconds(123);

/// A recorded stamp, the tag under which the witness knows it, and the slot that it tells.
struct StampKey {
    const char *key, *witnessTag, *slot;
};
constexpr StampKey stampKeys[]{
    {"ExifDateTimeOriginal", "ExifIFD:DateTimeOriginal", "exifDateTimeOriginal"},
    {"ExifDateTimeDigitized", "ExifIFD:CreateDate", "exifDateTimeDigitized"},
    {"TIFFDateTime", "IFD0:ModifyDate", "tiffDateTime"},
    {"photoshop:DateCreated", "XMP-photoshop:DateCreated", "exifDateTimeOriginal"},
    {"exif:DateTimeOriginal", "XMP-exif:DateTimeOriginal", "exifDateTimeOriginal"},
    {"exif:DateTimeDigitized", "XMP-exif:DateTimeDigitized", "exifDateTimeDigitized"},
    {"xmp:CreateDate", "XMP-xmp:CreateDate", "exifDateTimeDigitized"},
    {"xmp:ModifyDate", "XMP-xmp:ModifyDate", "tiffDateTime"},
    {"QTMetaDate", "Keys:CreationDate", "exifDateTimeOriginal"},
    {"QTMvhdCreaDate", "QuickTime:CreateDate", "exifDateTimeOriginal"},
    {"QTMvhdModDate", "QuickTime:ModifyDate", "tiffDateTime"},
    {"riffCreaDate", "RIFF:DateTimeOriginal", "exifDateTimeOriginal"},
};

const Json *valueWithKey(const Json &info, const std::string &key) {
    for (const Json &value : info.at("values"))
        if (value.at("key") == key)
            return &value;
    return nullptr;
}

bool isExif(const std::string &key) {
    return key.starts_with("ExifDateTime") || key == "TIFFDateTime";
}
bool isXmp(const std::string &key) {
    return key.find(':') != std::string::npos;
}

/// Digits in all places, a date, and a zero byte behind it.
bool isCanonical(const Json &value) {
    const std::string text = value.at("text");
    return text.size() == 19 && text.find(' ') == 10 && text.rfind(' ') == 10 &&
           civilFromExifTimeStamp(text) && value.at("bytes").get<std::string>().ends_with("00");
}

/// A slot's date as found in the file; "" for none.
std::string oldDate(const Json &info, const char *slot) {
    return info.at("slots").value(slot, Json::object()).value("old", "");
}

/// Original, digitized, modification: each not before the one in front of it, as a shift keeps
/// dates apart only then.
bool areSlotsInOrder(const Json &info) {
    std::string last;
    for (const char *slot : {"exifDateTimeOriginal", "exifDateTimeDigitized", "tiffDateTime"}) {
        const std::string date = oldDate(info, slot);
        if (!date.empty() && date < last)
            return false;
        last = std::max(last, date);
    }
    return true;
}

/// The stamp tells another instant than the slot that it belongs to, which is written to both.
bool isOfAnotherInstant(const Json &value, const std::string &slotDate) {
    std::string stamp = value.at("text");
    if (const std::size_t bracket = stamp.find('('); bracket != std::string::npos)
        stamp = stamp.substr(bracket + 1, stamp.size() - bracket - 2);
    absl::Time own, ofSlot;
    return absl::ParseTime(absl::RFC3339_full, stamp, &own, nullptr) &&
           absl::ParseTime(absl::RFC3339_full, slotDate, &ofSlot, nullptr) &&
           absl::AbsDuration(own - ofSlot) >= absl::Seconds(1);
}

std::string reasonOfValue(const StampKey &stamp, const Json &value, const Json &info) {
    const std::string text = value.at("text");
    if (isExif(stamp.key) && !isCanonical(value))
        return "not a canonical stamp";
    if (isExif(stamp.key) && value.at("room") < 19)
        return "no room";
    if (isXmp(stamp.key) && std::count(text.begin(), text.begin() + 19, ':') < 2)
        return "short XMP stamp, to be made longer";
    if (!isExif(stamp.key) && isOfAnotherInstant(value, oldDate(info, stamp.slot)))
        return isXmp(stamp.key) ? "XMP tells another instant" : "header tells another instant";
    return "";
}

/// Why a file cannot be expected to come back byte by byte; "" when it must.
std::string reasonToLeaveOut(const Json &info) {
    const int type = info.at("spType");
    if (type >= 5 && type <= 10)
        return "empty tags";
    for (const StampKey &stamp : stampKeys)
        if (const Json *value = valueWithKey(info, stamp.key))
            if (const std::string reason = reasonOfValue(stamp, *value, info); !reason.empty())
                return reason;
    return areSlotsInOrder(info) ? "" : "slots out of order";
}

/// Copies of the corpus's files, a folder for each kind, each file an item by itself.
class CorpusCopies : public MendTest {
protected:
    explicit CorpusCopies(Arguments kinds = allKinds) : m_kinds(std::move(kinds)) {}

    void SetUp() override {
        const auto corpus = little::corpusFolder(CHRONOMENDER_SOURCE_TREE);
        if (!std::filesystem::exists(corpus / "jpeg"))
            GTEST_SKIP() << "no corpus at " << corpus;
        for (const std::string &kind : m_kinds)
            std::filesystem::copy(corpus / kind, path(kind));
        for (Json &line : told("info", {})) {
            const std::string file = line.at("path");
            m_before[file] = little::fileContent(file);
            m_info[file] = std::move(line);
        }
        ASSERT_GE(m_info.size(), 90U);
    }

    RunResult run(const std::string &command, const Arguments &forFolders,
                  const Arguments &forRun = {}) const {
        Arguments arguments = joined(
            {command, "--json", "--system-zone", "UTC", "--set", "createFileGroups=0"}, forRun);
        for (const std::string &kind : m_kinds)
            arguments = joined(joined(arguments, {"--folder", path(kind)}), forFolders);
        return mend(arguments);
    }
    std::vector<Json> told(const std::string &command, const Arguments &options) const {
        return run(command, options).lines();
    }
    RunResult save(const std::string &shiftText, const Arguments &forFolders,
                   const Arguments &forRun) const {
        return run("save", joined({"--shift", shiftText}, forFolders), forRun);
    }

    Arguments files() const {
        Arguments files;
        for (const auto &[file, info] : m_info)
            files.push_back(file);
        return files;
    }

    /// Offsets of all bytes that differ from the first state.
    std::vector<std::size_t> changedBytes(const std::string &file) const {
        const std::string &before = m_before.at(file);
        const std::string now = little::fileContent(file);
        EXPECT_EQ(now.size(), before.size()) << file;
        std::vector<std::size_t> changed;
        for (std::size_t i = 0; i < std::min(now.size(), before.size()); ++i)
            if (now[i] != before[i])
                changed.push_back(i);
        return changed;
    }

    void printLeftOut(const std::map<std::string, std::string> &reasons) const {
        std::map<std::string, std::pair<int, std::string>> formats;
        for (const auto &[file, info] : m_info) {
            auto &[count, list] = formats[info.at("format")];
            ++count;
            if (const auto reason = reasons.find(file); reason != reasons.end())
                list +=
                    "    " + file.substr(disk().path().size() + 1) + ": " + reason->second + '\n';
        }
        for (const auto &[format, entry] : formats)
            std::printf("  %-10s %3d files, left out: %td\n%s", format.c_str(), entry.first,
                        std::count(entry.second.begin(), entry.second.end(), '\n'),
                        entry.second.c_str());
        std::printf("  %zu files, %zu left out\n", m_info.size(), reasons.size());
    }

    Arguments m_kinds;
    std::map<std::string, Json> m_info;
    std::map<std::string, std::string> m_before;
};

/// The witness's "2024:05:06 07:08:09", with whatever stands behind it.
std::string shiftedStamp(const std::string &stamp) {
    const auto fields = civilFromExifTimeStamp(stamp.substr(0, 19));
    return fields ? exifDataFromDate(instantFromCivil(*fields, absl::UTCTimeZone()) + shift,
                                     absl::UTCTimeZone())
                            ->substr(0, 19) +
                        stamp.substr(19)
                  : stamp;
}

class RoundTrip : public CorpusCopies {
protected:
    using CorpusCopies::CorpusCopies;

    /// Every slot of a file moves by the same.
    RunResult saveAlike(const std::string &shiftText,
                        const Arguments &forFolders = {"--target-zone", "own"}) const {
        return save(shiftText, forFolders,
                    {"--accept", "all", "--set", "dateChangeEXIFEXIFDigiDate=3", "--set",
                     "dateChangeEXIFEXIFModDate=3", "--set",
                     "dateChangeNoEXIFButTIFFMetaModDate=3"});
    }

    /// Only files that are left out anyway may have failed.
    void expectSaved(const RunResult &run,
                     const std::map<std::string, std::string> &leftOut) const {
        for (const Json &line : run.lines())
            if (const std::string result = line.value("result", "saved");
                result != "saved" && result != "unchanged") {
                EXPECT_TRUE(leftOut.contains(line.at("path"))) << line << run.errors;
            }
    }

    std::map<std::string, std::string> leftOut() const {
        std::map<std::string, std::string> reasons;
        for (const auto &[file, info] : m_info)
            if (const std::string reason = reasonToLeaveOut(info); !reason.empty())
                reasons[file] = reason;
        return reasons;
    }

    /// The number of stamps that both know.
    int expectWitnessed(const std::string &file, const Witness &before, const Witness &now) const {
        int known = 0;
        for (const StampKey &stamp : stampKeys) {
            const Json *value = valueWithKey(m_info.at(file), stamp.key);
            const std::string seen = before.value(file, stamp.witnessTag);
            if (!value || seen.size() < 19 || seen.starts_with("0000") ||
                (isExif(stamp.key) && seen != value->at("text")))
                continue;
            ++known;
            EXPECT_EQ(now.value(file, stamp.witnessTag), shiftedStamp(seen))
                << file << ' ' << stamp.key;
        }
        return known;
    }
};

TEST_F(RoundTrip, ThereAndBackGivesTheSameBytes) {
    const auto excluded = leftOut();
    printLeftOut(excluded);
    EXPECT_LE(excluded.size() * 10, m_info.size());
    const bool hasWitness = Witness::isAvailable();
    const std::optional<Witness> before =
        hasWitness ? std::optional<Witness>(std::in_place, files()) : std::nullopt;
    expectSaved(saveAlike("+1:02:03"), excluded);
    if (hasWitness) {
        const Witness now(files());
        int known = 0;
        for (const auto &[file, info] : m_info)
            known += excluded.contains(file) ? 0 : expectWitnessed(file, *before, now);
        std::printf("  %d stamps were seen shifted by the witness\n", known);
        EXPECT_GE(known, 350);
    }
    expectSaved(saveAlike("-1:02:03"), excluded);
    for (const auto &[file, info] : m_info)
        if (!excluded.contains(file)) {
            EXPECT_EQ(changedBytes(file), std::vector<std::size_t>()) << file;
        }
    if (!hasWitness)
        GTEST_SKIP() << "exiftool is not installed: the stamps in between had no witness";
}

/// Only files whose dates stand in Exif: the others tell an offset of their own, or UTC.
class ZoneRoundTrip : public RoundTrip {
protected:
    ZoneRoundTrip() : RoundTrip({"jpeg", "tiff", "raw"}) {}

    void SetUp() override {
        RoundTrip::SetUp();
        std::erase_if(m_info, [](const auto &entry) {
            const bool hasXmp = std::ranges::any_of(stampKeys, [&](const StampKey &stamp) {
                return isXmp(stamp.key) && valueWithKey(entry.second, stamp.key);
            });
            return hasXmp && std::filesystem::remove(entry.first);
        });
    }

    /// Writes every stamp in another zone, and notes files with a stamp in an hour that one of the
    /// two zones has twice or not at all.
    void move(const std::string &from, const std::string &to) {
        const Arguments zones{"--source-zone", from, "--target-zone", to};
        for (const Json &line : told("list", zones))
            for (const Json &alert : line.value("alerts", Json::array()))
                if (alert.at("name") == "repeatedTime" || alert.at("name") == "skippedTime" ||
                    alert.at("name") == "cannotBeWritten")
                    m_doubtful[line.at("path")] = alert.at("text");
        const RunResult run = saveAlike("0", zones);
        ASSERT_EQ(run.exitCode, 0) << run.errors;
    }

    /// The instants that the stamps of each file mean: a zone stamp that does not go with its date
    /// changes them.
    std::map<std::string, Json> instants(const std::string &sourceZone) const {
        std::map<std::string, Json> all;
        for (const Json &info : told("info", {"--source-zone", sourceZone}))
            for (const StampKey &stamp : stampKeys)
                all[info.at("path")][stamp.slot] =
                    info.at("slots").value(stamp.slot, Json::object()).value("old", "");
        return all;
    }

    std::map<std::string, std::string> m_doubtful;
};

TEST_F(ZoneRoundTrip, IntoAnotherZoneAndBackGivesTheSameBytes) {
    const std::string here = "America/New_York", there = "Asia/Tokyo";
    move("UTC", here);
    for (auto &[file, bytes] : m_before)
        bytes = little::fileContent(file);
    const auto before = instants(here);

    move(here, there);
    auto after = instants(there);
    const auto isSameOrDoubtful = [&](const std::string &file, bool isSame) {
        EXPECT_TRUE(isSame || m_doubtful.contains(file)) << file;
    };
    std::size_t changed = 0;
    for (const auto &[file, info] : m_info) {
        isSameOrDoubtful(file, after[file] == before.at(file));
        changed += changedBytes(file).empty() ? 0 : 1;
    }
    EXPECT_GE(changed, m_info.size() / 2);

    move(there, here);
    for (const auto &[file, info] : m_info)
        isSameOrDoubtful(file, changedBytes(file).empty());
    std::printf("%zu files, %zu changed, %zu doubtful:\n", m_info.size(), changed,
                m_doubtful.size());
    for (const auto &[file, reason] : m_doubtful)
        std::printf("  %s: %s\n", file.substr(disk().path().size() + 1).c_str(), reason.c_str());
    EXPECT_LE(m_doubtful.size() * 20, m_info.size());
}

class DefaultSave : public CorpusCopies {
protected:
    bool isInside(std::size_t offset, const Json &value) const {
        const std::size_t start = value.at("offset");
        const std::size_t room = value.at("room");
        return offset >= start && offset < start + room;
    }

    bool isRecorded(const std::string &file, std::size_t offset) const {
        const Json &values = m_info.at(file).at("values");
        return std::any_of(values.begin(), values.end(),
                           [&](const Json &value) { return isInside(offset, value); });
    }

    /// Places of the checksums of those chunks of a PNG that have one of the changed places
    /// inside.
    std::set<std::size_t> checksumPlaces(const std::string &file,
                                         const std::vector<std::size_t> &changed) const {
        const std::string &bytes = m_before.at(file);
        std::set<std::size_t> places;
        const auto numberAt = [&](std::size_t at) {
            return std::accumulate(bytes.begin() + static_cast<std::ptrdiff_t>(at),
                                   bytes.begin() + static_cast<std::ptrdiff_t>(at) + 4,
                                   std::size_t{0}, [](std::size_t sum, char byte) {
                                       return sum * 256 + static_cast<unsigned char>(byte);
                                   });
        };
        for (std::size_t at = 8, end = 0; bytes.starts_with("\x89PNG") && at + 12 <= bytes.size();
             at = end + 4) {
            end = at + 8 + numberAt(at);
            const bool isTouched = std::ranges::any_of(changed, [&](std::size_t place) {
                return place >= at && place < end && isRecorded(file, place);
            });
            for (std::size_t i = 0; i < 4 && isTouched; ++i)
                places.insert(end + i);
        }
        return places;
    }

    bool isOfZoneStamp(const std::string &file, std::size_t offset) const {
        return std::any_of(std::begin(zoneKeys), std::end(zoneKeys), [&](const char *key) {
            const Json *value = valueWithKey(m_info.at(file), key);
            return value && isInside(offset, *value);
        });
    }
};

TEST_F(DefaultSave, ChangesNothingButRecordedValues) {
    const RunResult refused = save("+1:02:03", {}, {});
    EXPECT_EQ(refused.exitCode, 3);
    std::set<std::string> withZoneProblem;
    for (const Json &line : refused.lines())
        for (const Json &problem : line.value("problems", Json::array()))
            if (problem.at("key") == "error_12_zoneStampRewritten")
                withZoneProblem.insert(line.at("path"));
    EXPECT_FALSE(withZoneProblem.empty());
    for (const auto &[file, info] : m_info)
        ASSERT_EQ(changedBytes(file), std::vector<std::size_t>()) << file;

    const RunResult accepted = save("+1:02:03", {}, {"--accept", "all"});
    std::size_t written = 0;
    for (const auto &[file, info] : m_info) {
        if (reasonToLeaveOut(info).starts_with("short XMP"))
            continue; // ExifTool writes it anew
        const auto changed = changedBytes(file);
        written += changed.empty() ? 0 : 1;
        const auto checksums = checksumPlaces(file, changed);
        for (const std::size_t offset : changed) {
            EXPECT_TRUE(isRecorded(file, offset) || checksums.contains(offset))
                << file << " @" << offset;
            EXPECT_TRUE(!isOfZoneStamp(file, offset) || withZoneProblem.contains(file))
                << file << " @" << offset;
        }
    }
    EXPECT_GE(written, m_info.size() / 2);
}

} // namespace
} // namespace chronomender
