// SPDX-License-Identifier: GPL-3.0-or-later
#include "IntentRecord.h"

#include <QCborArray>
#include <QCborStreamWriter>
#include <QCborValue>

#include <zlib.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <map>

namespace chronomender {
namespace {

enum class FrameKind : int { Batch = 1, Left = 2, Resumed = 3, BatchWithMoves = 4 };

constexpr std::string_view frameMark = "cMj1";
constexpr std::size_t headerSize = 12;

// ---- writing

std::string framed(const QByteArray &payload) {
    const std::string_view bytes(payload.constData(), static_cast<std::size_t>(payload.size()));
    const auto crc = static_cast<std::uint32_t>(
        crc32(0, reinterpret_cast<const Bytef *>(bytes.data()), static_cast<uInt>(bytes.size())));
    std::string frame(frameMark);
    frame.reserve(headerSize + bytes.size());
    for (const std::uint32_t number : {static_cast<std::uint32_t>(bytes.size()), crc})
        for (int shift = 0; shift < 32; shift += 8)
            frame += static_cast<char>((number >> shift) & 0xFF);
    return frame.append(bytes);
}

void put(QCborStreamWriter &writer, std::string_view bytes) {
    writer.appendByteString(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

/// Seconds and nanoseconds: nanoseconds alone would end in 2262. No date: two nulls.
void put(QCborStreamWriter &writer, const OptionalDate &date) {
    if (!isCleanDate(date)) {
        writer.append(nullptr);
        writer.append(nullptr);
        return;
    }
    const timespec time = absl::ToTimespec(*date);
    writer.append(static_cast<qint64>(time.tv_sec));
    writer.append(static_cast<qint64>(time.tv_nsec));
}

void put(QCborStreamWriter &writer, const FileIntent &file) {
    writer.startArray(9 + 3 * file.patches.size());
    put(writer, file.path);
    put(writer, file.toolCopy);
    for (const std::uint64_t number : {file.before.size, file.before.device, file.before.inode})
        writer.append(static_cast<quint64>(number));
    put(writer, OptionalDate(file.before.modificationDate));
    put(writer, file.modificationDate);
    for (const Patch &patch : file.patches) {
        writer.append(static_cast<quint64>(patch.offset()));
        put(writer, patch.before());
        put(writer, patch.after());
    }
    writer.endArray();
}

void put(QCborStreamWriter &writer, const std::vector<FileIntent> &files) {
    writer.startArray(files.size());
    for (const FileIntent &file : files)
        put(writer, file);
    writer.endArray();
}

/// The folder is told by its place in the frame's list.
void put(QCborStreamWriter &writer, const MoveIntent &move, std::size_t folder) {
    writer.startArray(9);
    writer.append(static_cast<quint64>(folder));
    for (const std::string *name : {&move.oldName, &move.temporaryName, &move.finalName})
        put(writer, *name);
    for (const std::uint64_t number : {move.before.size, move.before.device, move.before.inode})
        writer.append(static_cast<quint64>(number));
    put(writer, OptionalDate(move.before.modificationDate));
    writer.endArray();
}

/// The folders of all moves, each once, with its place.
std::map<std::string_view, std::size_t> foldersOf(std::span<const UnitIntent> units) {
    std::map<std::string_view, std::size_t> folders;
    for (const UnitIntent &unit : units)
        for (const MoveIntent &move : unit.moves)
            folders.emplace(move.folder, 0);
    std::size_t place = 0;
    for (auto &[folder, each] : folders)
        each = place++;
    return folders;
}

void putWithMoves(QCborStreamWriter &writer, std::span<const UnitIntent> units,
                  const std::map<std::string_view, std::size_t> &folders) {
    writer.startArray(folders.size());
    for (const auto &[folder, place] : folders)
        put(writer, folder);
    writer.endArray();
    writer.startArray(units.size());
    for (const UnitIntent &unit : units) {
        writer.startArray(2);
        put(writer, unit.files);
        writer.startArray(unit.moves.size());
        for (const MoveIntent &move : unit.moves)
            put(writer, move, folders.at(move.folder));
        writer.endArray();
        writer.endArray();
    }
    writer.endArray();
}

template<class PutRest>
std::string frameOf(FrameKind kind, PutRest putRest) {
    QByteArray payload;
    QCborStreamWriter writer(&payload);
    writer.startArray();
    writer.append(static_cast<int>(kind));
    putRest(writer);
    writer.endArray();
    return framed(payload);
}

// ---- reading

/// The elements of an array one after the other. The first that is not what is asked for makes the
/// cursor bad, and everything behind it empty.
class Cursor {
public:
    explicit Cursor(const QCborArray &array) : m_array(array) {}

    bool isGood() const { return m_isGood; }
    bool isAtEnd() const { return !m_isGood || m_at >= m_array.size(); }

    QCborArray array() { return next(&QCborValue::isArray).toArray(); }
    /// Zero or positive. What the file layer can address fits.
    std::uint64_t number() {
        const qint64 value = next(&QCborValue::isInteger).toInteger();
        m_isGood = m_isGood && value >= 0;
        return static_cast<std::uint64_t>(value);
    }
    std::string bytes() { return next(&QCborValue::isByteArray).toByteArray().toStdString(); }
    OptionalDate date() {
        if (!isAtEnd() && m_array.at(m_at).isNull()) {
            next(&QCborValue::isNull);
            next(&QCborValue::isNull);
            return std::nullopt;
        }
        const qint64 seconds = next(&QCborValue::isInteger).toInteger();
        return absl::FromUnixSeconds(seconds) +
               absl::Nanoseconds(next(&QCborValue::isInteger).toInteger());
    }
    Date certainDate() {
        const OptionalDate found = date();
        m_isGood = m_isGood && isCleanDate(found);
        return found.value_or(InfinitePast());
    }

private:
    QCborValue next(bool (QCborValue::*isWanted)() const) {
        const QCborValue value = isAtEnd() ? QCborValue() : m_array.at(m_at++);
        m_isGood = m_isGood && (value.*isWanted)();
        return m_isGood ? value : QCborValue();
    }

    QCborArray m_array;
    qsizetype m_at = 0;
    bool m_isGood = true;
};

std::optional<Patch> readPatch(Cursor &from, std::uint64_t fileSize) {
    const std::uint64_t offset = from.number();
    const std::string before = from.bytes(), after = from.bytes();
    const bool isSound = from.isGood() && before.size() == after.size() &&
                         before.size() <= Patch::mostBytes && before.size() <= fileSize &&
                         offset <= fileSize - before.size();
    return isSound ? std::optional(Patch(offset, before, after)) : std::nullopt;
}

std::optional<FileIntent> readFile(const QCborArray &array) {
    Cursor from(array);
    FileIntent file;
    file.path = from.bytes();
    file.toolCopy = from.bytes();
    file.before.size = from.number();
    file.before.device = from.number();
    file.before.inode = from.number();
    file.before.modificationDate = from.certainDate();
    file.modificationDate = from.date();
    const bool hasNames = file.path.starts_with('/') &&
                          (file.toolCopy.empty() || file.toolCopy.starts_with('/')) &&
                          file.toolCopy != file.path;
    if (!from.isGood() || !hasNames)
        return std::nullopt;
    while (!from.isAtEnd()) {
        const auto patch = readPatch(from, file.before.size);
        if (!patch)
            return std::nullopt;
        file.patches.push_back(*patch);
    }
    return from.isGood() ? std::optional(std::move(file)) : std::nullopt;
}

std::optional<MoveIntent> readMove(const QCborArray &array,
                                   const std::vector<std::string> &folders) {
    Cursor from(array);
    const std::uint64_t folder = from.number();
    MoveIntent move;
    for (std::string *name : {&move.oldName, &move.temporaryName, &move.finalName})
        *name = from.bytes();
    move.before.size = from.number();
    move.before.device = from.number();
    move.before.inode = from.number();
    move.before.modificationDate = from.certainDate();
    if (!from.isGood() || folder >= folders.size())
        return std::nullopt;
    move.folder = folders[static_cast<std::size_t>(folder)];
    return isSound(move) ? std::optional(std::move(move)) : std::nullopt;
}

/// All elements by `read`; false when one makes no sense.
template<class Element, class Read>
bool readAll(Cursor from, std::vector<Element> &elements, Read read) {
    while (!from.isAtEnd()) {
        auto element = read(from.array());
        if (!from.isGood() || !element)
            return false;
        elements.push_back(*std::move(element));
    }
    return from.isGood();
}

bool readMixedUnit(const QCborArray &array, const std::vector<std::string> &folders,
                   UnitIntent &unit) {
    Cursor from(array);
    return readAll(Cursor(from.array()), unit.files, readFile) &&
           readAll(Cursor(from.array()), unit.moves,
                   [&](const QCborArray &each) { return readMove(each, folders); }) &&
           from.isGood();
}

bool readBatch(Cursor &from, bool hasMoves, Record &record) {
    const Date begun = from.certainDate();
    std::vector<std::string> folders;
    for (Cursor names(hasMoves ? from.array() : QCborArray()); !names.isAtEnd();)
        folders.push_back(names.bytes());
    std::vector<RecordedUnit> units;
    for (Cursor unit(from.array()); !unit.isAtEnd();) {
        units.push_back({{}, begun});
        UnitIntent &read = units.back().unit;
        const QCborArray parts = unit.array();
        if (!(hasMoves ? readMixedUnit(parts, folders, read)
                       : readAll(Cursor(parts), read.files, readFile)))
            return false;
    }
    if (!from.isGood())
        return false;
    std::move(units.begin(), units.end(), std::back_inserter(record.unsettled));
    return true;
}

bool readLeft(Cursor &from, Record &record) {
    std::vector<RecordedUnit> left;
    std::size_t next = 0; // the indices rise
    for (Cursor indices(from.array()); !indices.isAtEnd();) {
        const std::uint64_t index = indices.number();
        if (!indices.isGood() || index < next || index >= record.unsettled.size())
            return false;
        next = static_cast<std::size_t>(index) + 1;
        left.push_back(std::move(record.unsettled[static_cast<std::size_t>(index)]));
    }
    record.unsettled = std::move(left);
    return from.isGood();
}

bool readPayload(std::string_view payload, Record &record) {
    Cursor from(
        QCborValue::fromCbor(payload.data(), static_cast<qsizetype>(payload.size())).toArray());
    const auto kind = static_cast<FrameKind>(from.number());
    switch (kind) {
    case FrameKind::Batch:
    case FrameKind::BatchWithMoves:
        return readBatch(from, kind == FrameKind::BatchWithMoves, record);
    case FrameKind::Left:
        return readLeft(from, record);
    case FrameKind::Resumed:
        record.resumed.push_back(from.certainDate());
        return from.isGood();
    }
    return false;
}

std::uint32_t numberAt(std::string_view bytes, std::size_t at) {
    std::uint32_t number = 0;
    for (std::size_t i = 4; i-- > 0;)
        number = number << 8 | static_cast<unsigned char>(bytes[at + i]);
    return number;
}

/// The payload of the frame that `bytes` begin with; none when it is not whole.
std::optional<std::string_view> payloadOf(std::string_view bytes) {
    if (bytes.size() < headerSize || !bytes.starts_with(frameMark))
        return std::nullopt;
    const std::uint32_t length = numberAt(bytes, 4);
    if (length > bytes.size() - headerSize || length > largestFrame)
        return std::nullopt;
    const std::string_view payload = bytes.substr(headerSize, length);
    const auto crc = crc32(0, reinterpret_cast<const Bytef *>(payload.data()), length);
    return crc == numberAt(bytes, 8) ? std::optional(payload) : std::nullopt;
}

} // namespace

bool isSound(const MoveIntent &move) {
    constexpr std::string_view zero("\0", 1);
    const auto isName = [&](const std::string &name) {
        return !name.empty() && name != "." && name != ".." &&
               name.find('/') == std::string::npos && name.find(zero) == std::string::npos;
    };
    return move.folder.starts_with('/') && move.folder.find(zero) == std::string::npos &&
           isName(move.oldName) && isName(move.temporaryName) && isName(move.finalName);
}

std::string batchFrame(std::span<const UnitIntent> units, Date begun) {
    const auto folders = foldersOf(units);
    const FrameKind kind = folders.empty() ? FrameKind::Batch : FrameKind::BatchWithMoves;
    return frameOf(kind, [&](QCborStreamWriter &writer) {
        put(writer, OptionalDate(begun));
        if (kind == FrameKind::BatchWithMoves) {
            putWithMoves(writer, units, folders);
            return;
        }
        writer.startArray(units.size());
        for (const UnitIntent &unit : units)
            put(writer, unit.files);
        writer.endArray();
    });
}

std::optional<std::string> batchFrames(std::span<const UnitIntent> units, Date begun) {
    constexpr std::size_t mostUnits = 256;
    std::string frames;
    for (; !units.empty(); units = units.subspan(std::min(units.size(), mostUnits))) {
        const std::string frame = batchFrame(units.first(std::min(units.size(), mostUnits)), begun);
        if (frame.size() > largestFrame || frame.size() > largestRecord - frames.size())
            return std::nullopt;
        frames += frame;
    }
    return frames;
}

std::string leftFrame(std::span<const std::size_t> indices) {
    return frameOf(FrameKind::Left, [&](QCborStreamWriter &writer) {
        writer.startArray(indices.size());
        for (const std::size_t index : indices)
            writer.append(static_cast<quint64>(index));
        writer.endArray();
    });
}

std::string resumedFrame(Date begun) {
    return frameOf(FrameKind::Resumed,
                   [&](QCborStreamWriter &writer) { put(writer, OptionalDate(begun)); });
}

Record readRecord(std::string_view bytes) {
    Record record;
    while (const auto payload = payloadOf(bytes.substr(record.end))) {
        if (!readPayload(*payload, record))
            break;
        record.end += headerSize + payload->size();
    }
    return record;
}

} // namespace chronomender
