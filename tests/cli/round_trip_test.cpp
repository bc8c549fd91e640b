// SPDX-License-Identifier: GPL-3.0-or-later
#include "Corpus.h"
#include "MendRun.h"
#include "StampConversions.h"
#include "Witness.h"

#include <algorithm>
#include <cstdio>
#include <gmock/gmock.h>
#include <map>
#include <set>

namespace chronomender {
namespace {

using ::testing::HasSubstr;

constexpr const char *kinds[] = {"jpeg", "tiff", "raw"};
constexpr const char *zoneKeys[] = {"ExifOffsetTimeOriginal", "ExifOffsetTimeDigitized",
                                    "TIFFOffsetTime"};
const absl::Duration shift = absl::Hours(1) + absl::Seconds(123);

/// A recorded stamp, and the tag under which the witness knows it.
struct StampKey {
    const char *key, *witnessTag, *slot;
};
constexpr StampKey stampKeys[]{
    {"ExifDateTimeOriginal", "ExifIFD:DateTimeOriginal", "exifDateTimeOriginal"},
    {"ExifDateTimeDigitized", "ExifIFD:CreateDate", "exifDateTimeDigitized"},
    {"TIFFDateTime", "IFD0:ModifyDate", "tiffDateTime"},
};

const Json *valueWithKey(const Json &info, const std::string &key) {
    for (const Json &value : info.at("values"))
        if (value.at("key") == key)
            return &value;
    return nullptr;
}

/// Digits in all places, a date, and a zero byte behind it.
bool isCanonical(const Json &value) {
    const std::string text = value.at("text");
    return text.size() == 19 && text.find(' ') == 10 && text.rfind(' ') == 10 &&
           civilFromExifTimeStamp(text) && value.at("bytes").get<std::string>().ends_with("00");
}

/// Original, digitized, modification: each not before the one in front of it, as a shift keeps
/// dates apart only then.
bool areSlotsInOrder(const Json &info) {
    std::string last;
    for (const StampKey &stamp : stampKeys) {
        const auto slot = info.at("slots").find(stamp.slot);
        if (slot == info.at("slots").end() || !slot->contains("old"))
            continue;
        const std::string date = slot->at("old");
        if (date < last)
            return false;
        last = date;
    }
    return true;
}

/// Why a file cannot be expected to come back byte by byte; "" when it must.
std::string reasonToLeaveOut(const Json &info) {
    const int type = info.at("spType");
    if (type >= 5 && type <= 10)
        return "empty tags";
    for (const StampKey &stamp : stampKeys)
        if (const Json *value = valueWithKey(info, stamp.key)) {
            if (!isCanonical(*value))
                return "not a canonical stamp";
            if (value->at("room") < 19)
                return "no room";
        }
    return areSlotsInOrder(info) ? "" : "slots out of order";
}

/// The date stands in an XMP packet, which is not written in place yet.
bool hasXmpDate(const Json &info) {
    const Json &values = info.at("values");
    return std::any_of(values.begin(), values.end(), [](const Json &value) {
        const std::string key = value.at("key");
        return key.find(':') != std::string::npos && key.find("GPS") == std::string::npos;
    });
}

/// Copies of the corpus's photos, a folder for each kind.
class CorpusCopies : public MendTest {
protected:
    void SetUp() override {
        const auto corpus = little::corpusFolder(CHRONOMENDER_SOURCE_TREE);
        if (!std::filesystem::exists(corpus / "jpeg"))
            GTEST_SKIP() << "no corpus at " << corpus;
        for (const char *kind : kinds)
            std::filesystem::copy(corpus / kind, path(kind));
        for (Json &line : mend({"info", "--json", "--system-zone", "UTC", path("jpeg"),
                                path("tiff"), path("raw")})
                              .lines()) {
            const std::string file = line.at("path");
            if (hasXmpDate(line)) {
                std::filesystem::remove(file);
                continue;
            }
            m_before[file] = little::fileContent(file);
            m_info[file] = std::move(line);
        }
        ASSERT_GE(m_info.size(), 90U);
    }

    RunResult save(const std::string &shiftText, const Arguments &forFolders,
                   const Arguments &forRun) const {
        Arguments arguments = joined({"save", "--json", "--system-zone", "UTC"}, forRun);
        for (const char *kind : kinds)
            arguments = joined(joined(arguments, {"--folder", path(kind), "--shift", shiftText}),
                               forFolders);
        return mend(arguments);
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

    std::map<std::string, Json> m_info;
    std::map<std::string, std::string> m_before;
};

std::string shiftedStamp(const std::string &stamp) {
    const auto fields = civilFromExifTimeStamp(stamp);
    return fields ? exifDataFromDate(instantFromCivil(*fields, absl::UTCTimeZone()) + shift,
                                     absl::UTCTimeZone())
                        ->substr(0, 19)
                  : stamp;
}

class RoundTrip : public CorpusCopies {
protected:
    /// Every slot of a file moves by the same.
    RunResult saveAlike(const std::string &shiftText,
                        const Arguments &forFolders = {"--target-zone", "own"},
                        const std::string &accepted = "error_13_unreadableStamp") const {
        return save(shiftText, forFolders,
                    {"--accept", accepted, "--set", "dateChangeEXIFEXIFDigiDate=3", "--set",
                     "dateChangeEXIFEXIFModDate=3", "--set",
                     "dateChangeNoEXIFButTIFFMetaModDate=3"});
    }

    std::map<std::string, std::string> leftOut() const {
        std::map<std::string, std::string> reasons;
        for (const auto &[file, info] : m_info)
            if (const std::string reason = reasonToLeaveOut(info); !reason.empty())
                reasons[file] = reason;
        return reasons;
    }

    void expectWitnessed(const std::string &file, const Witness &before, const Witness &now) const {
        for (const StampKey &stamp : stampKeys) {
            const Json *value = valueWithKey(m_info.at(file), stamp.key);
            const std::string seen = before.value(file, stamp.witnessTag);
            if (value && seen == value->at("text")) {
                EXPECT_EQ(now.value(file, stamp.witnessTag), shiftedStamp(seen))
                    << file << ' ' << stamp.key;
            }
        }
    }
};

TEST_F(RoundTrip, ThereAndBackGivesTheSameBytes) {
    const auto excluded = leftOut();
    const bool hasWitness = Witness::isAvailable();
    const std::optional<Witness> before =
        hasWitness ? std::optional<Witness>(std::in_place, files()) : std::nullopt;
    const RunResult there = saveAlike("+1:02:03");
    ASSERT_EQ(there.exitCode, 0) << there.errors;
    if (hasWitness) {
        const Witness now(files());
        for (const auto &[file, info] : m_info)
            if (!excluded.contains(file))
                expectWitnessed(file, *before, now);
    }
    const RunResult back = saveAlike("-1:02:03");
    ASSERT_EQ(back.exitCode, 0) << back.errors;
    for (const auto &[file, info] : m_info)
        if (!excluded.contains(file)) {
            EXPECT_EQ(changedBytes(file), std::vector<std::size_t>()) << file;
        }

    std::printf("%zu files, %zu left out:\n", m_info.size(), excluded.size());
    for (const auto &[file, reason] : excluded)
        std::printf("  %s: %s\n", file.substr(disk().path().size() + 1).c_str(), reason.c_str());
    EXPECT_LE(excluded.size() * 10, m_info.size());
    if (!hasWitness)
        GTEST_SKIP() << "exiftool is not installed: the stamps in between had no witness";
}

class ZoneRoundTrip : public RoundTrip {
protected:
    /// Writes every stamp in another zone, and notes files with a stamp in an hour that one of the
    /// two zones has twice or not at all.
    void move(const std::string &from, const std::string &to) {
        const Arguments zones{"--source-zone", from, "--target-zone", to};
        for (const Json &line : told("list", zones))
            for (const Json &alert : line.value("alerts", Json::array()))
                if (alert.at("name") == "repeatedTime" || alert.at("name") == "skippedTime" ||
                    alert.at("name") == "cannotBeWritten")
                    m_doubtful[line.at("path")] = alert.at("text");
        const RunResult run = saveAlike("0", zones, "all");
        ASSERT_EQ(run.exitCode, 0) << run.errors;
    }

    std::vector<Json> told(const std::string &command, const Arguments &options) const {
        Arguments arguments{command, "--json", "--system-zone", "UTC"};
        for (const char *kind : kinds)
            arguments = joined(joined(arguments, {"--folder", path(kind)}), options);
        return mend(arguments).lines();
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
    EXPECT_EQ(accepted.exitCode, 0) << accepted.errors;
    std::size_t written = 0;
    for (const auto &[file, info] : m_info) {
        const auto changed = changedBytes(file);
        written += changed.empty() ? 0 : 1;
        for (const std::size_t offset : changed) {
            EXPECT_TRUE(isRecorded(file, offset)) << file << " @" << offset;
            EXPECT_TRUE(!isOfZoneStamp(file, offset) || withZoneProblem.contains(file))
                << file << " @" << offset;
        }
    }
    EXPECT_GE(written, m_info.size() / 2);
}

} // namespace
} // namespace chronomender
