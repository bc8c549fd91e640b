// SPDX-License-Identifier: GPL-3.0-or-later
#include "RenameProof.h"

#include "MainThread.h"
#include "Parallel.h"
#include "PreSaveCheck.h"
#include "UnchangedProof.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace chronomender {
namespace {

struct Proof {
    FileUnchangedState state{};
    OptionalDate checkedAt;
};
struct ItemProof {
    Proof item;
    std::optional<Proof> dependent;
    std::optional<PreSaveProblem> problem;
};

/// Works on copies: views may be looking at the items.
ItemProof prove(const MySinglePic &pic, const MySingleFolder &folder, const std::string &path,
                FileLayer &files) {
    const auto proofOf = [](const MySinglePic &copy) {
        return Proof{copy.save.fileUnchangedState, copy.save.lastCheckedAt};
    };
    const MySinglePicPtr copy = provedCopy(pic, folder, path, files);
    ItemProof proved{proofOf(*copy), {}, {}};
    if (const MySinglePicPtr &dependent = pic.group.bundleDependentImage) {
        copy->group.bundleDependentImage = provedCopy(*dependent, folder, path, files);
        proved.dependent = proofOf(*copy->group.bundleDependentImage);
    }
    proved.problem = checkFileUnchangedStateForSaveRenameErrors(*copy);
    return proved;
}

void store(const Proof &proof, MySinglePic &pic) {
    pic.save.fileUnchangedState = proof.state;
    pic.save.lastCheckedAt = proof.checkedAt;
}

} // namespace

std::vector<MySinglePicPtr> itemsToRename(const MySingleFolder &folder, const SaveRequest &request,
                                          const std::vector<MySinglePicPtr> &savedItems) {
    std::set<MySinglePicPtr> selected;
    if (request.onlyPics)
        selected.insert(request.onlyPics->begin(), request.onlyPics->end());
    const std::set<MySinglePicPtr> saved(savedItems.begin(), savedItems.end());
    std::vector<MySinglePicPtr> items;
    std::ranges::copy_if(
        folder.sfPicDetails_fullArray, std::back_inserter(items), [&](const MySinglePicPtr &pic) {
            return pic->positions.indexInSource_full >= 0 && !pic->isMovedToTrash &&
                   !saved.contains(pic) && (!request.onlyPics || selected.contains(pic));
        });
    return items;
}

bool proveForRename(const MySingleFolder &folder, const std::vector<MySinglePicPtr> &items,
                    const SaveServices &services, ProgressCounter &progress,
                    PreProcessResult &result) {
    const auto path = folder.unlockedSecUrl();
    if (!path) {
        for (const MySinglePicPtr &pic : items)
            result.problems.push_back({pic, PreSaveProblem::error_10_disconnected, {}});
        return true;
    }
    std::vector<ItemProof> proofs(items.size());
    const std::size_t done = parallelFor(
        items.size(),
        [&](std::size_t i) {
            proofs[i] = prove(*items[i], folder, *path, services.files);
            progress.oneDone();
        },
        [&] { return services.cancellation.isRequested(); });
    mainThread::callAndWait([&] {
        for (std::size_t i = 0; i < done; ++i) {
            store(proofs[i].item, *items[i]);
            if (proofs[i].dependent)
                store(*proofs[i].dependent, *items[i]->group.bundleDependentImage);
        }
    });
    for (std::size_t i = 0; i < done; ++i)
        if (proofs[i].problem)
            result.problems.push_back({items[i], *proofs[i].problem, {}});
    return done == items.size();
}

} // namespace chronomender
