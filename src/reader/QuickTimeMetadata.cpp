// SPDX-License-Identifier: GPL-3.0-or-later
#include "QuickTimeMetadata.h"

#include <algorithm>
#include <array>

namespace chronomender {

namespace {

constexpr std::array kUsedKeys{kKeyCreationDate, kKeyLocation, kKeyAccuracy,
                               kKeyMake,         kKeyModel,    kKeyContentIdentifier};

/// A key of the table and its number, by which an item names it.
struct NumberedKey {
    std::uint32_t number;
    std::string_view name;
};

std::optional<Bytes> shortBytes(const ByteRange &range) {
    if (range.length() > kLongestMovieText)
        return std::nullopt;
    const auto bytes = range.bytes(0, static_cast<std::size_t>(range.length()));
    return bytes ? std::optional(Bytes(*bytes)) : std::nullopt;
}

std::vector<NumberedKey> usedKeys(const ByteRange &keys, const ReadBudget &budget) {
    std::vector<NumberedKey> used;
    MovieBoxes entries(keys.part(kCountedBoxStart, keys.length()), budget);
    for (std::uint32_t number = 1; const auto entry = entries.next(); ++number) {
        const auto name = shortBytes(entry->body);
        const auto known = name ? std::ranges::find(kUsedKeys, *name) : kUsedKeys.end();
        if (known != kUsedKeys.end())
            used.push_back({number, *known});
    }
    return used;
}

/// The value of an item of `ilst`, from its `data`.
std::optional<LocatedBytes> readItemValue(const ByteRange &item, const ReadBudget &budget) {
    const auto data = findBox(item, kBoxData, budget);
    if (!data || !data->isComplete || data->body.length() < kDataValueAt)
        return std::nullopt;
    const ByteRange value = data->body.part(kDataValueAt, data->body.length());
    auto bytes = shortBytes(value);
    if (!bytes)
        return std::nullopt;
    const auto room = static_cast<std::uint32_t>(bytes->size());
    return LocatedBytes{value.absolute(0), room, *std::move(bytes)};
}

} // namespace

std::vector<MetadataItem> readMetadataItems(const Box &meta, const ReadBudget &budget) {
    std::vector<MetadataItem> items;
    const ByteRange children = metaChildren(meta);
    const auto keys = findBox(children, kBoxKeys, budget);
    const auto list = keys ? findBox(children, kBoxIlst, budget) : std::nullopt;
    if (!list)
        return items;
    const std::vector<NumberedKey> used = usedKeys(keys->body, budget);
    MovieBoxes entries(list->body, budget);
    while (const auto entry = entries.next()) {
        const auto key = std::ranges::find(used, entry->type, &NumberedKey::number);
        if (key == used.end() || find(items, key->name))
            continue;
        if (auto value = readItemValue(entry->body, budget))
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

std::optional<LocatedBytes> readItemOfType(const Box &meta, std::uint32_t type,
                                           const ReadBudget &budget) {
    const auto list = findBox(metaChildren(meta), kBoxIlst, budget);
    const auto item = list ? findBox(list->body, type, budget) : std::nullopt;
    return item ? readItemValue(item->body, budget) : std::nullopt;
}

std::string textOf(const LocatedBytes *value) {
    return value ? value->data.substr(0, value->data.find('\0')) : std::string();
}

} // namespace chronomender
