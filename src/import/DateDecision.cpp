// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateDecision.h"

#include "StampConversions.h"
#include "StampSyntax.h"
#include "XmpStampConversions.h"

#include <algorithm>
#include <array>
#include <string>

namespace chronomender {

namespace {

using EmptyTags = PerFolderImportOptions::EmptyTags;

/// The three stamps of a photo in the order in which they are preferred, and the types of an item
/// whose date comes from the stamp, or from elsewhere because the stamp is empty.
struct StampKind {
    std::optional<LocatedBytes> DatesData::*stamp;
    std::optional<LocatedBytes> DatesData::*zoneStamp;
    SpType readable, emptyFileDate, emptyFixedDate;
};

constexpr std::array<StampKind, 3> stampKinds{{
    {&DatesData::exifDateTimeOriginal, &DatesData::exifOffsetTimeOriginal, SpTypeExifOriginal,
     SpTypeEmptyOriginalFileDate, SpTypeEmptyOriginalFixedDate},
    {&DatesData::exifDateTimeDigitized, &DatesData::exifOffsetTimeDigitized, SpTypeExifDigitized,
     SpTypeEmptyDigitizedFileDate, SpTypeEmptyDigitizedFixedDate},
    {&DatesData::tiffDateTime, &DatesData::exifOffsetTiffTime, SpTypeTiffDateTime,
     SpTypeEmptyTiffFileDate, SpTypeEmptyTiffFixedDate},
}};

class Decision {
public:
    Decision(const FileRecord &record, EmptyTagAnswers &answers)
        : m_record(record), m_answers(answers) {}

    void takeStamps() {
        for (std::size_t i = 0; i < stampKinds.size(); ++i)
            if (const auto &found = m_record.dates.*stampKinds[i].stamp)
                m_stamps[i] = exifTimeStampFromData(found->data);
    }

    void takeOriginalStamp(const absl::TimeZone &systemZone) { takeStamp(0, systemZone); }

    void takeOtherStamps(const absl::TimeZone &systemZone) {
        for (std::size_t i = 1; i < stampKinds.size() && !m_date; ++i)
            takeStamp(i, systemZone);
    }

    void askAboutEmptyTags() {
        if (m_date || firstStampKind() == nullptr)
            return;
        m_emptyTags = m_answers.choice();
    }

    /// A modification date of XMP counts only where the file has no tag for it, not even an empty
    /// one.
    void takeXmpDate(const absl::TimeZone &systemZone) {
        const XmpDateInfos &xmp = m_record.xmpDates;
        const std::array<const XmpStamp *, stampKinds.size()> found{
            xmp.xmpCreaDict(), xmp.xmpDigiDict(), m_stamps.back() ? nullptr : xmp.xmpModDict()};
        for (std::size_t i = 0; i < found.size(); ++i) {
            const OptionalDate date = xmpDateFromStampInfos(found[i], systemZone);
            if (!date)
                continue;
            m_date = date;
            m_type = stampKinds[i].readable;
            return;
        }
    }

    void ignoreEmbeddedDates(EmbeddedData embedded) {
        if (embedded == EmbeddedData::Read)
            return;
        m_date = InfinitePast();
        m_type = SpTypeUnsupported;
    }

    void takeFileDate() {
        if (m_date || m_emptyTags == EmptyTags::FixedDate)
            return;
        const StampKind *kind = firstStampKind();
        m_type = kind != nullptr ? kind->emptyFileDate : SpTypeNoTagsFileDate;
        // There is no creation date that could be set here, so the modification date stands for it.
        m_date = m_record.attributes.modificationDate;
    }

    void takeFixedDate() {
        if (m_date || m_emptyTags != EmptyTags::FixedDate)
            return;
        m_type = firstStampKind()->emptyFixedDate;
        m_date = m_answers.nextFixedDate();
    }

    std::optional<DateDecision> result() const {
        if (!m_date)
            return std::nullopt;
        return DateDecision{m_type, *m_date, m_emptyTags.has_value(),
                            m_emptyTags == EmptyTags::LeaveAlone && isNullerFile(m_type)};
    }

private:
    void takeStamp(std::size_t kind, const absl::TimeZone &systemZone) {
        if (!m_stamps[kind] || isValidZeroStamp(*m_stamps[kind]))
            return;
        const auto &zone = m_record.dates.*stampKinds[kind].zoneStamp;
        m_date = dateFromEXIFTimeStampAndOffset(
            *m_stamps[kind], zone ? exifOffsetFromData(zone->data) : std::nullopt, systemZone);
        m_type = stampKinds[kind].readable;
    }

    /// The preferred stamp that exists, be it empty; null without any.
    const StampKind *firstStampKind() const {
        const auto found =
            std::ranges::find_if(m_stamps, [](const auto &stamp) { return stamp.has_value(); });
        return found == m_stamps.end()
                   ? nullptr
                   : &stampKinds[static_cast<std::size_t>(found - m_stamps.begin())];
    }

    const FileRecord &m_record;
    EmptyTagAnswers &m_answers;
    std::array<std::optional<std::string>, stampKinds.size()> m_stamps;
    std::optional<EmptyTags> m_emptyTags; ///< present once the folder's answer was needed
    SpType m_type{};
    OptionalDate m_date;
};

} // namespace

std::optional<DateDecision> decideDate(const FileRecord &record, EmbeddedData embedded,
                                       EmptyTagAnswers &answers, const absl::TimeZone &systemZone) {
    Decision decision(record, answers);
    decision.takeStamps();
    decision.takeOriginalStamp(systemZone);
    decision.takeOtherStamps(systemZone);
    decision.askAboutEmptyTags();
    decision.takeXmpDate(systemZone);
    decision.ignoreEmbeddedDates(embedded);
    decision.takeFileDate();
    decision.takeFixedDate();
    return decision.result();
}

} // namespace chronomender
