// SPDX-License-Identifier: GPL-3.0-or-later
#include "PreSaveCheck.h"

#include "LivePhotoTimes.h"
#include "SourceSlot.h"
#include "UnchangedProof.h"
#include "WallClocks.h"

namespace chronomender {
namespace {

bool isBefore1970(const OptionalDate &date) {
    return isCleanDate(date) && *date < absl::UnixEpoch();
}

/// Adds what one more slot has to say, once.
void addDetail(std::string &details, std::string_view detail) {
    if (detail.empty() || details.find(detail) != std::string::npos)
        return;
    if (!details.empty())
        details += ", ";
    details += detail;
}

/// The value's bytes as the plan leaves them in the file.
Bytes bytesAfter(const LocatedBytes &value, const PatchPlan &plan) {
    for (const Patch &patch : plan.patches)
        if (patch.offset() == value.offset)
            return Bytes(patch.after());
    return value.data;
}

} // namespace

std::optional<PreSaveProblem> checkFileUnchangedStateForSaveRenameErrors(const MySinglePic &pic) {
    const bool isGroup = pic.group.bundleDependentImage != nullptr;
    switch (pic.bundleUnchangedState()) {
    case FileUnchangedState::Unchanged:
        return std::nullopt;
    case FileUnchangedState::NotFound:
        return isGroup ? PreSaveProblem::error_07_notFound : PreSaveProblem::error_05_notFound;
    case FileUnchangedState::MustBeReadAgain:
        return isGroup ? PreSaveProblem::error_11_oldVersion_group
                       : PreSaveProblem::error_11_oldVersion_file;
    case FileUnchangedState::CannotBeOpened:
    case FileUnchangedState::AttributesDiffer:
    case FileUnchangedState::BytesDiffer:
        break;
    }
    return isGroup ? PreSaveProblem::error_08_modifiedAfterImport
                   : PreSaveProblem::error_06_modifiedAfterImport;
}

void checkCalculatedValuesForSaveErrors(const MySinglePicPtr &pic, const MySinglePic &calculated,
                                        const PatchPlan &plan,
                                        std::vector<PreSaveFinding> &findings) {
    std::string ambiguous, tooEarly, zones, unreadable;
    for (std::size_t i = 0; i < plan.stamps.size(); ++i) {
        const StampPlan &stamp = plan.stamps[i];
        if (stamp.isAmbiguous)
            addDetail(ambiguous, description(stampSlots[i]).name);
        if (stamp.isPre1904)
            addDetail(tooEarly, description(stampSlots[i]).name);
        addDetail(zones, stamp.zoneChange);
        addDetail(unreadable, stamp.overwrittenUnreadable);
    }
    const auto report = [&](PreSaveProblem problem, std::string detail) {
        findings.push_back({pic, problem, std::move(detail)});
    };
    if (!ambiguous.empty())
        report(PreSaveProblem::error_01_ambiguousStamp, std::move(ambiguous));
    if (!tooEarly.empty())
        report(PreSaveProblem::error_02_pre1904, std::move(tooEarly));
    if (isBefore1970(calculated.slots.fileCreationDateNEW) ||
        isBefore1970(calculated.slots.fileModificationDateNEW))
        report(PreSaveProblem::error_03_pre1970, {});
    if (!zones.empty())
        report(PreSaveProblem::error_12_zoneStampRewritten, std::move(zones));
    if (!unreadable.empty())
        report(PreSaveProblem::error_13_unreadableStamp, std::move(unreadable));
}

bool isDriftingApart(const MySinglePic &still, const PatchPlan &stillPlan, const MySinglePic &movie,
                     const PatchPlan &moviePlan) {
    const auto &stillStamp = still.singlePicAttributes.exifDateTimeOriginal;
    const auto &movieStamp = movie.singlePicAttributes.qtMetaDate;
    // The content identifier joins them for good, and a still with its own zone stamp cannot be
    // taken for another moment.
    const bool isJoinedByClocks =
        movie.spType == SpTypeMovieMdta && sourceSlot(still.spType) == StampSlot::Original &&
        !still.zoneStamp(StampSlot::Original) && !lateValidateLivePhoto(still);
    return isJoinedByClocks && stillStamp && movieStamp &&
           areStampsOfOneMoment(stillStamp->data, movieStamp->data) &&
           !areStampsOfOneMoment(bytesAfter(*stillStamp, stillPlan),
                                 bytesAfter(*movieStamp, moviePlan));
}

} // namespace chronomender
