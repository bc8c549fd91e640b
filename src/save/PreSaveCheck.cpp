// SPDX-License-Identifier: GPL-3.0-or-later
#include "PreSaveCheck.h"

#include "UnchangedProof.h"

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

} // namespace

std::optional<PreSaveProblem> checkFileUnchangedStateForSaveRenameErrors(const MySinglePic &pic) {
    const bool isGroup = pic.group.bundleDependentImage != nullptr;
    switch (bundleUnchangedState(pic)) {
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
    std::string ambiguous, zones, unreadable;
    for (std::size_t i = 0; i < plan.stamps.size(); ++i) {
        const StampPlan &stamp = plan.stamps[i];
        if (stamp.isAmbiguous)
            addDetail(ambiguous, description(stampSlots[i]).name);
        addDetail(zones, stamp.zoneChange);
        addDetail(unreadable, stamp.overwrittenUnreadable);
    }
    const auto report = [&](PreSaveProblem problem, std::string detail) {
        findings.push_back({pic, problem, std::move(detail)});
    };
    if (!ambiguous.empty())
        report(PreSaveProblem::error_01_ambiguousStamp, std::move(ambiguous));
    if (isBefore1970(calculated.slots.fileCreationDateNEW) ||
        isBefore1970(calculated.slots.fileModificationDateNEW))
        report(PreSaveProblem::error_03_pre1970, {});
    if (!zones.empty())
        report(PreSaveProblem::error_12_zoneStampRewritten, std::move(zones));
    if (!unreadable.empty())
        report(PreSaveProblem::error_13_unreadableStamp, std::move(unreadable));
}

} // namespace chronomender
