// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieWalk.h"

#include "MovieStampSyntax.h"
#include "QuickTimeHeader.h"
#include "QuickTimeMetadata.h"

#include <algorithm>

namespace chronomender {

namespace {

using Place = QtLocation::Place;

bool isZero(const LocatedBytes &time) {
    return time.data.find_first_not_of('\0') == Bytes::npos;
}

class HeaderWalk {
public:
    explicit HeaderWalk(const ReadBudget &budget) : m_budget(budget) {}

    void visit(const Box &box) {
        if (box.type == kBoxMvhd && !m_hasSeenMvhd)
            takeMvhd(box.body);
        else if (box.type == kBoxMeta && !m_hasSeenMeta)
            takeMeta(box);
        else if (box.type == kBoxUdta && !m_hasSeenUdta)
            takeUserData(box.body);
    }
    bool isDone() const { return m_hasSeenMvhd && m_hasSeenMeta && m_hasSeenUdta; }

    std::optional<MovieHeader> result() {
        const auto type = movieType();
        if (!type)
            return std::nullopt;
        m_header.movieType = *type;
        std::ranges::sort(m_header.qtLocations, {}, &QtLocation::place);
        return std::move(m_header);
    }

private:
    void takeMvhd(const ByteRange &body) {
        m_hasSeenMvhd = true;
        m_mvhd = readMVHDData(body, m_header.findings);
    }

    void takeMeta(const Box &meta) {
        const auto items = readMetadataItems(meta, m_budget);
        m_hasSeenMeta = !items.empty();
        if (const LocatedBytes *date = find(items, kKeyCreationDate)) {
            if (isValidQtCreationDateData(date->data))
                m_header.qtCreationDate = *date;
            else
                refuse("QTMetaDate", *date);
        }
        const LocatedBytes *accuracy = find(items, kKeyAccuracy);
        if (const LocatedBytes *location = find(items, kKeyLocation);
            location && takeLocation(Place::MetadataKeys, *location) && accuracy)
            m_header.qtLocations.back().hAccuracy = *accuracy;
    }

    void takeUserData(const ByteRange &body) {
        m_hasSeenUdta = true;
        if (const auto xyz = findBox(body, kBoxXyz, m_budget); xyz && xyz->isComplete)
            if (const auto text = readUserDataText(xyz->body))
                takeLocation(Place::UserData, *text);
        if (const auto meta = findBox(body, kBoxMeta, m_budget))
            if (const auto text = readItemOfType(*meta, kBoxXyz, m_budget))
                takeLocation(Place::UserDataItems, *text);
    }

    bool takeLocation(Place place, const LocatedBytes &value) {
        if (isValidQtLocationData(value.data)) {
            m_header.qtLocations.push_back({place, value, std::nullopt});
            return true;
        }
        refuse("location", value);
        return false;
    }

    void refuse(const char *what, const LocatedBytes &value) {
        m_header.findings.push_back({what, value.offset, FindingReason::NotAStamp});
    }

    /// Decides the type and which of the header's times are of use: one that is zero beside one
    /// that is not says nothing, while two zeros are empty tags that a save can fill. A movie whose
    /// date stands in its metadata leaves empty times as they are.
    std::optional<MovieType> movieType() {
        const bool hasMetaDate = m_header.qtCreationDate.has_value();
        if (!m_mvhd)
            return hasMetaDate ? std::optional(MovieType::Creation) : std::nullopt;
        const bool hasCreation = !isZero(m_mvhd->creation);
        const bool hasModification = !isZero(m_mvhd->modification);
        const bool isEmpty = !hasCreation && !hasModification;
        if (hasCreation || (isEmpty && !hasMetaDate))
            m_header.creaDate = m_mvhd->creation;
        if (hasModification || (isEmpty && !hasMetaDate))
            m_header.modDate = m_mvhd->modification;
        if (hasCreation || hasMetaDate)
            return MovieType::Creation;
        return hasModification ? MovieType::ModificationOnly : MovieType::Empty;
    }

    const ReadBudget &m_budget;
    bool m_hasSeenMvhd = false, m_hasSeenMeta = false, m_hasSeenUdta = false;
    std::optional<MvhdData> m_mvhd;
    MovieHeader m_header;
};

} // namespace

std::optional<MovieHeader> readQuicktimeHeader(FileWindow &window, bool mustBeginWithFtyp) {
    const ReadBudget budget(window);
    const auto movie = findMovieBox(window, mustBeginWithFtyp, budget);
    if (!movie)
        return std::nullopt;
    HeaderWalk walk(budget);
    MovieBoxes boxes(*movie, budget);
    for (auto box = boxes.next(); box && !walk.isDone(); box = boxes.next())
        walk.visit(*box);
    return walk.result();
}

} // namespace chronomender
