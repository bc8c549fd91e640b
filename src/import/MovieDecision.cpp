// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieDecision.h"

#include "MovieStampConversions.h"

namespace chronomender {

namespace {

using EmptyTags = PerFolderImportOptions::EmptyTags;

class Decision {
public:
    Decision(const FileRecord &record, const MovieContext &context)
        : m_record(record), m_context(context) {}

    void ignoreEmbeddedDates() {
        if (m_context.embedded == EmbeddedData::Ignored)
            take(SpTypeMovieIgnored, InfinitePast());
    }

    void askHowMoviesAreRead() {
        if (!m_decision && m_record.format != FileFormatOtherMovie)
            m_options = m_context.movies.options();
    }

    void takeRiffDate() {
        if (const LocatedBytes *text = value(&MovieHeader::riffCreaDate))
            take(SpTypeMovieRiff, dateFromRIFFTimeStamp(text->data, m_context.sourceZone));
    }

    void takePreferredMetadataDate() {
        const bool isOnlyDate = !value(&MovieHeader::creaDate) && !value(&MovieHeader::modDate);
        if (m_options.isMDTADateEnabled || isOnlyDate)
            takeMetadataDate();
    }

    void takeHeaderTime() {
        if (m_record.movieHeader && m_record.movieHeader->movieType == MovieType::Empty)
            return;
        takeTime(SpTypeMovieMvhdCreation, value(&MovieHeader::creaDate));
        takeTime(SpTypeMovieMvhdModification, value(&MovieHeader::modDate));
    }

    void takeAnswerForEmptyTimes() {
        if (m_decision || !m_record.movieHeader ||
            m_record.movieHeader->movieType != MovieType::Empty)
            return;
        const EmptyTags answer = m_context.emptyTags.choice();
        m_isUndatable = answer == EmptyTags::FixedDate;
        if (m_isUndatable)
            take(SpTypeMovieEmptyFixedDate, m_context.emptyTags.nextFixedDate());
        else
            take(SpTypeMovieEmptyFileDate, fileDate());
        if (!m_decision)
            return;
        m_decision->hasEmptyTags = true;
        m_decision->isLeftAlone = answer == EmptyTags::LeaveAlone;
    }

    void takeFileDate() {
        if (!m_isUndatable)
            take(SpTypeMovieFileDate, fileDate());
    }

    const std::optional<DateDecision> &result() const { return m_decision; }

private:
    /// There is no creation date that could be set here, so the modification date stands for it.
    Date fileDate() const { return m_record.attributes.modificationDate; }

    const LocatedBytes *value(std::optional<LocatedBytes> MovieHeader::*which) const {
        if (!m_record.movieHeader)
            return nullptr;
        const auto &found = *m_record.movieHeader.*which;
        return found ? &*found : nullptr;
    }

    /// What was decided first stays.
    void take(SpType type, const OptionalDate &date) {
        if (!m_decision && date)
            m_decision = DateDecision{type, *date};
    }

    void takeMetadataDate() {
        if (const LocatedBytes *stamp = value(&MovieHeader::qtCreationDate))
            take(SpTypeMovieMdta, dateFromMDTATimeStamp(stamp->data, m_context.sourceZone));
    }

    void takeTime(SpType type, const LocatedBytes *time) {
        if (time != nullptr)
            take(type, finalDateFromMVHDData(
                           time->data, MvhdCorrection{m_options.isMVHDTimezoneCorrectionEnabled},
                           m_context.sourceZone));
    }

    const FileRecord &m_record;
    const MovieContext &m_context;
    MovieOptions m_options;
    bool m_isUndatable = false; ///< by the folder's answer, whatever the file's date is
    std::optional<DateDecision> m_decision;
};

} // namespace

std::optional<DateDecision> decideMovieDate(const FileRecord &record, const MovieContext &context) {
    Decision decision(record, context);
    decision.ignoreEmbeddedDates();
    decision.askHowMoviesAreRead();
    decision.takeRiffDate();
    decision.takePreferredMetadataDate();
    decision.takeHeaderTime();
    decision.takeAnswerForEmptyTimes();
    decision.takeFileDate();
    return decision.result();
}

std::optional<DateDecision> decideForTheTimeBeing(const FileRecord &record,
                                                  const absl::TimeZone &sourceZone) {
    const auto &header = record.movieHeader;
    if (record.format != FileFormatQuickTime || !header ||
        header->movieType != MovieType::Creation || !header->qtCreationDate)
        return std::nullopt;
    const auto date = dateFromMDTATimeStamp(header->qtCreationDate->data, sourceZone);
    return date ? std::optional(DateDecision{SpTypeMovieMdta, *date}) : std::nullopt;
}

} // namespace chronomender
