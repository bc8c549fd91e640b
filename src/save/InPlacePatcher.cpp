// SPDX-License-Identifier: GPL-3.0-or-later
#include "InPlacePatcher.h"

#include "Texts.h"
#include "UnchangedProof.h"

#include <absl/time/time.h>

#include <algorithm>
#include <array>
#include <span>

namespace chronomender {
namespace {

/// The coarsest file system in use keeps file times to two seconds.
constexpr absl::Duration kCoarsestFileTime = absl::Seconds(2);

PatchOutcome failed(SaveErrorId id, FileUnchangedState state, std::string systemText = {}) {
    return {id, std::move(systemText), state, std::nullopt, false};
}

/// A value may go back when every byte of it is either the old one or the one that we wrote.
bool isOurs(std::string_view present, const Patch &patch) {
    for (std::size_t i = 0; i < present.size(); ++i)
        if (present[i] != patch.before()[i] && present[i] != patch.after()[i])
            return false;
    return true;
}

bool putBack(OpenFile &file, const Patch &patch) {
    std::array<char, Patch::mostBytes> room;
    const std::span<char> wanted(room.data(), patch.before().size());
    if (file.pread(wanted, patch.offset()) != wanted.size())
        return false;
    const std::string_view present(room.data(), wanted.size());
    if (present == patch.before())
        return true;
    return isOurs(present, patch) && file.pwrite(patch.before(), patch.offset());
}

class ItemPatcher {
public:
    ItemPatcher(OpenFile &file, const MySinglePic &pic, const PatchPlan &plan)
        : m_file(file), m_pic(pic), m_plan(plan) {}

    PatchOutcome run() {
        const FileUnchangedState state = stateOfOpenFile(m_pic, m_file);
        if (state != FileUnchangedState::Unchanged)
            return failed(SaveErrorId::ChangedSinceImport, state);
        if (m_plan.isEmpty())
            return {};
        // Only a file's owner may set its times. Asked first, so that a file whose date cannot be
        // set is not touched at all.
        if (!m_file.setModificationDate(m_pic.singlePicAttributes.fileModificationDate))
            return failed(SaveErrorId::SettingFileDatesFailed, state, m_file.lastError().text());
        for (const Patch &patch : m_plan.patches) {
            ++m_begun;
            if (!m_file.pwrite(patch.after(), patch.offset()))
                return takenBack(SaveErrorId::WriteFailed, m_file.lastError().text());
        }
        return finished();
    }

private:
    PatchOutcome finished() {
        if (!m_file.setModificationDate(*m_plan.modificationDate))
            return takenBack(SaveErrorId::SettingFileDatesFailed, m_file.lastError().text());
        PatchOutcome outcome;
        outcome.attributes = m_file.attributes();
        if (!outcome.attributes)
            return takenBack(SaveErrorId::WriteFailed, m_file.lastError().text());
        // A file system that cannot keep the date stores another one without a word.
        if (distance(outcome.attributes->modificationDate, *m_plan.modificationDate) >
            kCoarsestFileTime)
            return takenBack(SaveErrorId::SettingFileDatesFailed,
                             text("saveObstacle_fileDateNotKept"));
        outcome.isWritten = true;
        return outcome;
    }

    PatchOutcome takenBack(SaveErrorId id, std::string systemText) {
        bool isBack = true;
        for (std::size_t i = m_begun; i-- > 0;)
            isBack = putBack(m_file, m_plan.patches[i]) && isBack;
        // Where even this date cannot be set there is nothing left to try.
        (void)m_file.setModificationDate(m_pic.singlePicAttributes.fileModificationDate);
        if (!isBack)
            systemText += "; " + text("saveObstacle_notPutBack");
        PatchOutcome outcome = failed(id, FileUnchangedState::Unchanged, std::move(systemText));
        outcome.state = isBack ? FileUnchangedState::Unchanged : FileUnchangedState::BytesDiffer;
        outcome.attributes = m_file.attributes();
        return outcome;
    }

    OpenFile &m_file;
    const MySinglePic &m_pic;
    const PatchPlan &m_plan;
    std::size_t m_begun = 0;
};

bool areSidecarsThere(const MySinglePic &pic, FileLayer &files) {
    const auto paths = pic.spSidecarPaths();
    return std::all_of(paths.begin(), paths.end(),
                       [&](const std::string &path) { return files.attributes(path).has_value(); });
}

/// An XMP sidecar goes with its item: it must be there and writable before the item is touched.
std::optional<PatchOutcome> sidecarProblem(const MySinglePic &pic, FileLayer &files) {
    if (pic.spSidecarExtensions.empty())
        return std::nullopt;
    if (pic.hasXMPSidecar()) {
        FileError error;
        const auto sidecar = files.open(pic.spXMPPath(), OpenMode::Update, &error);
        if (!sidecar && isAbsence(error))
            return failed(SaveErrorId::SidecarMissing, FileUnchangedState::BytesDiffer);
        if (!sidecar)
            return failed(SaveErrorId::SidecarCannotBeOpened, FileUnchangedState::Unchanged,
                          error.text());
    }
    if (!areSidecarsThere(pic, files))
        return failed(SaveErrorId::ChangedSinceImport, FileUnchangedState::BytesDiffer);
    return std::nullopt;
}

} // namespace

PatchOutcome patchFile(const MySinglePic &pic, const std::string &path, const PatchPlan &plan,
                       FileLayer &files) {
    if (pic.save.fileUnchangedState == FileUnchangedState::MustBeReadAgain)
        return failed(SaveErrorId::ChangedSinceImport, FileUnchangedState::MustBeReadAgain);
    if (auto problem = sidecarProblem(pic, files))
        return *std::move(problem);
    FileError error;
    const OpenMode mode = plan.isEmpty() ? OpenMode::Read : OpenMode::Update;
    const auto file = files.open(path, mode, &error);
    if (!file && isAbsence(error))
        return failed(SaveErrorId::NotReachable, FileUnchangedState::NotFound);
    if (!file)
        return failed(SaveErrorId::CannotBeOpened, FileUnchangedState::CannotBeOpened,
                      error.text());
    return ItemPatcher(*file, pic, plan).run();
}

} // namespace chronomender
