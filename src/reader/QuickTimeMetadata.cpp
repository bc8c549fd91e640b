// SPDX-License-Identifier: GPL-3.0-or-later
#include "QuickTimeMetadata.h"

#include <algorithm>
#include <array>

namespace chronomender {

namespace {

constexpr std::array kUsedKeys{kKeyCreationDate, kKeyLocation, kKeyAccuracy,
                               kKeyMake,         kKeyModel,    kKeyContentIdentifier};
constexpr std::array kKnownChildren{kBoxHdlr, kBoxKeys, kBoxIlst, kBoxFree};

/// A key of the table and its number, by which an item names it.
struct NumberedKey {
    std::uint32_t number;
    std::string_view name;
};

/// Children of a `meta`. It is a full box in ISO files and a plain one in QuickTime files, so they
/// begin behind four more bytes or at once, wherever a child that is known can be seen.
ByteRange childrenOf(const ByteRange &meta) {
    for (const std::uint64_t start : {std::uint64_t{0}, std::uint64_t{kFullBoxStart}}) {
        const auto type = meta.bytes(start + 4, 4);
        const std::uint32_t number = type ? number32(*type, ByteOrder::Motorola) : 0;
        if (std::ranges::find(kKnownChildren, number) != kKnownChildren.end())
            return meta.part(start, meta.length());
    }
    return meta.part(0, 0);
}

std::optional<Bytes> shortBytes(const ByteRange &range) {
    if (range.length() > kLongestMovieText)
        return std::nullopt;
    const auto bytes = range.bytes(0, static_cast<std::size_t>(range.length()));
    return bytes ? std::optional(Bytes(*bytes)) : std::nullopt;
}

std::vector<NumberedKey> usedKeys(const ByteRange &keys) {
    std::vector<NumberedKey> used;
    BoxCursor entries(keys.part(kCountedBoxStart, keys.length()), BoxLevel::Inside,
                      kMostBoxesInside);
    for (std::uint32_t number = 1; const auto entry = entries.next(); ++number) {
        const auto name = shortBytes(entry->body);
        const auto known = name ? std::ranges::find(kUsedKeys, *name) : kUsedKeys.end();
        if (known != kUsedKeys.end())
            used.push_back({number, *known});
    }
    return used;
}

} // namespace

std::optional<LocatedBytes> readItemValue(const ByteRange &item) {
    const auto data = findBox(item, kBoxData);
    if (!data || !data->isComplete || data->body.length() < kDataValueAt)
        return std::nullopt;
    const ByteRange value = data->body.part(kDataValueAt, data->body.length());
    auto bytes = shortBytes(value);
    if (!bytes)
        return std::nullopt;
    const auto room = static_cast<std::uint32_t>(bytes->size());
    return LocatedBytes{value.absolute(0), room, *std::move(bytes)};
}

std::vector<MetadataItem> readMetadataItems(const ByteRange &meta) {
    std::vector<MetadataItem> items;
    const ByteRange children = childrenOf(meta);
    const auto keys = findBox(children, kBoxKeys);
    const auto list = keys ? findBox(children, kBoxIlst) : std::nullopt;
    if (!list)
        return items;
    const std::vector<NumberedKey> used = usedKeys(keys->body);
    BoxCursor entries(list->body, BoxLevel::Inside, kMostBoxesInside);
    while (const auto entry = entries.next()) {
        const auto key = std::ranges::find(used, entry->type, &NumberedKey::number);
        if (key == used.end() || find(items, key->name))
            continue;
        if (auto value = readItemValue(entry->body))
            items.push_back({key->name, *std::move(value)});
    }
    return items;
}

const LocatedBytes *find(const std::vector<MetadataItem> &items, std::string_view key) {
    const auto found = std::ranges::find(items, key, &MetadataItem::key);
    return found == items.end() ? nullptr : &found->value;
}

std::optional<LocatedBytes> readUserDataText(const ByteRange &body) {
    const auto start = body.bytes(0, kUserTextAt);
    if (!start)
        return std::nullopt;
    const std::uint32_t declared = number16(*start, ByteOrder::Motorola);
    const std::uint64_t left = body.left(kUserTextAt);
    const bool isDeclared = declared > 0 && declared <= left;
    const ByteRange text = body.part(kUserTextAt, isDeclared ? declared : left);
    auto bytes = shortBytes(text);
    if (!bytes)
        return std::nullopt;
    while (!bytes->empty() && bytes->back() == '\0')
        bytes->pop_back();
    return LocatedBytes{text.absolute(0), isDeclared ? declared : 0, *std::move(bytes)};
}

std::optional<LocatedBytes> readItemOfType(const ByteRange &meta, std::uint32_t type) {
    const auto list = findBox(childrenOf(meta), kBoxIlst);
    const auto item = list ? findBox(list->body, type) : std::nullopt;
    return item ? readItemValue(item->body) : std::nullopt;
}

std::string textOf(const LocatedBytes *value) {
    return value ? value->data.substr(0, value->data.find('\0')) : std::string();
}

} // namespace chronomender
