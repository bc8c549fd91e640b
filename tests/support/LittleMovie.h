// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LittleBoxes.h"

#include <optional>
#include <vector>

// Little QuickTime movies, built byte by byte.
namespace chronomender::little {

/// 2020-04-17 16:03:47 UTC in seconds since 1904.
inline constexpr std::uint64_t kMovieTime = 0xDABF83E3;

/// What a movie shall hold. Absent texts are left out. Values are named "creation",
/// "modification", "date", "location", "accuracy", "userLocation" and "itemLocation".
struct MovieFields {
    std::uint64_t creation = kMovieTime, modification = kMovieTime + 2;
    std::uint8_t version = 0; ///< of `mvhd`
    std::uint32_t timeScale = 600;
    std::uint64_t duration = 1800;
    std::optional<std::string> date = {}, location = {}, accuracy = {};
    std::optional<std::string> make = {}, model = {}, contentIdentifier = {};
    std::optional<std::string> userLocation = {}, userMake = {}, userModel = {}; ///< `udta`
    std::optional<std::string> itemLocation = {}, itemMake = {}; ///< `udta/meta/ilst`
    bool isFullMeta = false; ///< `meta` in `moov` with version and flags, as in ISO files
    std::vector<Part> tracks = {};
};

inline Part mvhd(const MovieFields &fields) {
    const std::size_t width = fields.version == 0 ? 4 : 8;
    const auto time = [&](const char *name, std::uint64_t value) {
        return Part(width == 8 ? big(value >> 32) : "") + named(name, big(value & 0xFFFFFFFF));
    };
    return box("mvhd", Part(std::string(1, static_cast<char>(fields.version)) + zeros(3)) +
                           time("creation", fields.creation) +
                           time("modification", fields.modification) + big(fields.timeScale) +
                           big(fields.duration, width) + zeros(80));
}

inline Part dataBox(const std::string &name, const std::string &text) {
    return box("data", Part(big(1) + zeros(4)) + named(name, text));
}

/// One key of `keys` and its value.
struct KeyedText {
    std::string name, key, text;
};

inline Part keyedMeta(const std::vector<KeyedText> &items, bool isFull) {
    Part keys = zeros(4) + big(items.size());
    Part values;
    for (std::size_t i = 0; i < items.size(); ++i) {
        keys = keys + box("mdta", items[i].key);
        values = values + box(big(i + 1), dataBox(items[i].name, items[i].text));
    }
    const Part handler = box("hdlr", zeros(8) + "mdta" + zeros(14));
    return box("meta",
               Part(isFull ? zeros(4) : "") + handler + box("keys", keys) + box("ilst", values));
}

/// A text of user data: its own length and language in front.
inline Part userText(const std::string &type, const std::string &name, const std::string &text,
                     std::optional<std::size_t> declared = {}) {
    return box(type,
               Part(big(declared.value_or(text.size()), 2) + big(0x15C7, 2)) + named(name, text));
}

inline Part userData(const MovieFields &fields) {
    Part texts, items;
    if (fields.userLocation)
        texts = texts + userText("\xA9xyz", "userLocation", *fields.userLocation);
    if (fields.userMake)
        texts = texts + userText("\xA9mak", "userMake", *fields.userMake);
    if (fields.userModel)
        texts = texts + userText("\xA9mod", "userModel", *fields.userModel);
    if (fields.itemLocation)
        items = items + box("\xA9xyz", dataBox("itemLocation", *fields.itemLocation));
    if (fields.itemMake)
        items = items + box("\xA9mak", dataBox("itemMake", *fields.itemMake));
    if (!items.bytes.empty())
        texts = texts + box("meta", Part(zeros(4)) + box("hdlr", zeros(8) + "mdir" + zeros(13)) +
                                        box("ilst", items));
    return texts.bytes.empty() ? Part() : box("udta", texts);
}

inline Part metadata(const MovieFields &fields) {
    const std::string prefix = "com.apple.quicktime.";
    std::vector<KeyedText> items;
    const auto add = [&](const char *name, const char *key,
                         const std::optional<std::string> &text) {
        if (text)
            items.push_back({name, prefix + key, *text});
    };
    add("contentIdentifier", "content.identifier", fields.contentIdentifier);
    add("accuracy", "location.accuracy.horizontal", fields.accuracy);
    add("location", "location.ISO6709", fields.location);
    add("make", "make", fields.make);
    add("model", "model", fields.model);
    add("date", "creationdate", fields.date);
    return items.empty() ? Part() : keyedMeta(items, fields.isFullMeta);
}

inline Part moov(const MovieFields &fields) {
    Part content = mvhd(fields);
    for (const Part &track : fields.tracks)
        content = content + track;
    return box("moov", content + userData(fields) + metadata(fields));
}

inline Part ftyp() {
    return box("ftyp", "qt  " + zeros(4) + "qt  ");
}

/// A whole movie, its media in front of the movie box or behind it.
enum class MoovPlace { Last, First };
inline Part movie(const MovieFields &fields = {}, MoovPlace place = MoovPlace::Last) {
    const Part media = box("mdat", std::string(40, '\x55'));
    return ftyp() + (place == MoovPlace::First ? moov(fields) + media : media + moov(fields));
}

inline Part handlerBox(const std::string &type) {
    return box("hdlr", zeros(4) + "mhlr" + type + zeros(13));
}

inline Part videoTrack(std::uint32_t width, std::uint32_t height) {
    const Part header = box("tkhd", zeros(76) + big(width << 16) + big(height << 16));
    return box("trak", header + box("mdia", handlerBox("vide")));
}

/// An edit of `elst`: units of the movie, and where in the media it begins; -1 shows nothing.
struct LittleEdit {
    std::uint64_t duration;
    std::int64_t mediaTime;
};

/// A timed metadata track whose samples hold the value of one key.
inline Part metadataTrack(const std::string &key, const std::vector<LittleEdit> &edits = {},
                          std::uint8_t editVersion = 0, std::uint32_t keyNumber = 1) {
    const Part keys =
        box("keys", box(big(keyNumber), box("keyd", "mdta" + key) + box("dtyp", zeros(8))));
    const Part description =
        box("stsd", Part(zeros(4) + big(1)) + box("mebx", Part(zeros(6) + big(1, 2)) + keys));
    const std::size_t width = editVersion == 0 ? 4 : 8;
    std::string list =
        std::string(1, static_cast<char>(editVersion)) + zeros(3) + big(edits.size());
    for (const LittleEdit &edit : edits)
        list += big(edit.duration, width) + big(static_cast<std::uint64_t>(edit.mediaTime), width) +
                big(0x10000);
    const Part media = box("mdia", handlerBox("meta") + box("minf", box("stbl", description)));
    return box("trak", box("tkhd", zeros(84)) +
                           (edits.empty() ? Part() : box("edts", box("elst", list))) + media);
}

} // namespace chronomender::little
