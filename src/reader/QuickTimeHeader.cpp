// SPDX-License-Identifier: GPL-3.0-or-later
#include "QuickTimeHeader.h"

namespace chronomender {

namespace {

std::uint64_t timeOf(std::string_view bytes, std::size_t width) {
    return width == 4 ? number32(bytes, ByteOrder::Motorola) : number64(bytes, ByteOrder::Motorola);
}

bool fitsRecordedTime(std::uint64_t time) {
    return time <= 0xFFFFFFFF;
}

/// All bits set means that nobody knows (8.2.2.3).
bool isKnown(std::uint64_t duration, std::size_t width) {
    return duration != (width == 4 ? 0xFFFFFFFF : ~std::uint64_t{0});
}

std::optional<MvhdLayout> layoutOf(const ByteRange &body) {
    const auto version = body.bytes(0, 1);
    if (!version || static_cast<unsigned char>(version->front()) > 1)
        return std::nullopt;
    const MvhdLayout &layout = version->front() == 0 ? kMvhdVersion0 : kMvhdVersion1;
    return body.length() >= layout.length ? std::optional(layout) : std::nullopt;
}

std::optional<MvhdData> dataOf(const ByteRange &body, const MvhdLayout &layout) {
    const auto bytes = body.bytes(0, layout.length);
    if (!bytes)
        return std::nullopt;
    const auto number = [&](std::size_t at) { return timeOf(bytes->substr(at), layout.timeWidth); };
    const auto located = [&](std::size_t at) {
        at += layout.timeWidth - kMvhdTimeLength;
        return LocatedBytes{body.absolute(at), kMvhdTimeLength,
                            Bytes(bytes->substr(at, kMvhdTimeLength))};
    };
    MvhdData data{located(layout.creation), located(layout.modification),
                  number32(bytes->substr(layout.timeScale), ByteOrder::Motorola)};
    if (data.timeScale == 0 || !fitsRecordedTime(number(layout.creation)) ||
        !fitsRecordedTime(number(layout.modification)))
        return std::nullopt;
    if (const std::uint64_t duration = number(layout.duration); isKnown(duration, layout.timeWidth))
        data.duration = static_cast<double>(duration) / data.timeScale;
    return data;
}

} // namespace

std::optional<Box> findBox(const ByteRange &range, std::uint32_t type, const ReadBudget &budget) {
    MovieBoxes boxes(range, budget);
    while (auto box = boxes.next())
        if (box->type == type)
            return box;
    return std::nullopt;
}

std::optional<ByteRange> findMovieBox(FileWindow &window, bool mustBeginWithFtyp,
                                      const ReadBudget &budget) {
    MovieBoxes boxes(ByteRange(window), budget, BoxLevel::TopLevel);
    bool isFirst = true;
    while (const auto box = boxes.next()) {
        if (isFirst && mustBeginWithFtyp && box->type != kBoxFtyp)
            return std::nullopt;
        if (box->type == kBoxMoov)
            return box->body;
        isFirst = false;
    }
    return std::nullopt;
}

std::optional<MvhdData> readMVHDData(const ByteRange &body, std::vector<Finding> &findings) {
    const auto layout = layoutOf(body);
    auto data = layout ? dataOf(body, *layout) : std::nullopt;
    if (!data)
        findings.push_back({"mvhd", body.absolute(0), FindingReason::BrokenStructure});
    return data;
}

} // namespace chronomender
