// SPDX-License-Identifier: GPL-3.0-or-later
#include "InPlacePatcher.h"

#include "Texts.h"
#include "UnchangedProof.h"

#include <absl/time/time.h>

#include <algorithm>
#include <array>
#include <memory>
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

/// One file through its three steps; each answers whether the next may follow.
class ItemPatcher {
public:
    ItemPatcher(const PatchJob &job, FileLayer &files)
        : m_pic(job.pic), m_path(job.path), m_plan(job.plan), m_files(files) {}

    /// Everything that can be known before the first write.
    bool prove() {
        if (m_pic.save.fileUnchangedState == FileUnchangedState::MustBeReadAgain)
            return fail(SaveErrorId::ChangedSinceImport, FileUnchangedState::MustBeReadAgain);
        if (auto problem = sidecarProblem(m_pic, m_files)) {
            m_outcome = *std::move(problem);
            return false;
        }
        if (!open())
            return false;
        const FileUnchangedState state = stateOfOpenFile(m_pic, *m_file);
        if (state != FileUnchangedState::Unchanged)
            return fail(SaveErrorId::ChangedSinceImport, state);
        // Only a file's owner may set its times. Asked first, so that a file whose date cannot be
        // set is not touched at all.
        if (!m_plan.isEmpty() &&
            !m_file->setModificationDate(m_pic.singlePicAttributes.fileModificationDate))
            return fail(SaveErrorId::SettingFileDatesFailed, state, m_file->lastError().text());
        return true;
    }

    /// False when nothing is left of what was written, or the outcome says otherwise.
    bool write() {
        if (m_plan.isEmpty())
            return true;
        for (const Patch &patch : m_plan.patches) {
            ++m_begun;
            if (!m_file->pwrite(patch.after(), patch.offset()))
                return takeBack(SaveErrorId::WriteFailed, m_file->lastError().text());
        }
        return finish();
    }

    /// After the other half failed: nothing of this one stays written.
    void followFailureOf(const ItemPatcher &other) {
        if (m_outcome.isWritten) {
            takeBack(SaveErrorId::WriteFailed, {});
            if (m_outcome.state != FileUnchangedState::Unchanged)
                return;
        }
        m_outcome.error = other.m_outcome.error;
        m_outcome.isOfOtherHalf = true;
    }

    PatchOutcome takeOutcome() { return std::move(m_outcome); }

private:
    bool fail(SaveErrorId id, FileUnchangedState state, std::string systemText = {}) {
        m_outcome = failed(id, state, std::move(systemText));
        return false;
    }

    bool open() {
        FileError error;
        const OpenMode mode = m_plan.isEmpty() ? OpenMode::Read : OpenMode::Update;
        m_file = m_files.open(m_path, mode, &error);
        if (!m_file && isAbsence(error))
            return fail(SaveErrorId::NotReachable, FileUnchangedState::NotFound);
        if (!m_file)
            return fail(SaveErrorId::CannotBeOpened, FileUnchangedState::CannotBeOpened,
                        error.text());
        return true;
    }

    bool finish() {
        if (!m_file->setModificationDate(*m_plan.modificationDate))
            return takeBack(SaveErrorId::SettingFileDatesFailed, m_file->lastError().text());
        m_outcome.attributes = m_file->attributes();
        if (!m_outcome.attributes)
            return takeBack(SaveErrorId::WriteFailed, m_file->lastError().text());
        // A file system that cannot keep the date stores another one without a word.
        if (distance(m_outcome.attributes->modificationDate, *m_plan.modificationDate) >
            kCoarsestFileTime)
            return takeBack(SaveErrorId::SettingFileDatesFailed,
                            text("saveObstacle_fileDateNotKept"));
        m_outcome.isWritten = true;
        return true;
    }

    /// Always false, with what became of the file in the outcome.
    bool takeBack(SaveErrorId id, std::string systemText) {
        bool isBack = true;
        for (std::size_t i = m_begun; i-- > 0;)
            isBack = putBack(*m_file, m_plan.patches[i]) && isBack;
        // Where even this date cannot be set there is nothing left to try.
        (void)m_file->setModificationDate(m_pic.singlePicAttributes.fileModificationDate);
        if (!isBack)
            systemText += (systemText.empty() ? "" : "; ") + text("saveObstacle_notPutBack");
        fail(id, isBack ? FileUnchangedState::Unchanged : FileUnchangedState::BytesDiffer,
             std::move(systemText));
        m_outcome.attributes = m_file->attributes();
        return false;
    }

    const MySinglePic &m_pic;
    const std::string &m_path;
    const PatchPlan &m_plan;
    FileLayer &m_files;
    std::unique_ptr<OpenFile> m_file;
    std::size_t m_begun = 0;
    PatchOutcome m_outcome;
};

} // namespace

PatchOutcome patchFile(const PatchJob &job, FileLayer &files) {
    ItemPatcher patcher(job, files);
    if (patcher.prove())
        patcher.write();
    return patcher.takeOutcome();
}

PairOutcome patchPair(const PatchJob &dependent, const PatchJob &master, FileLayer &files) {
    ItemPatcher first(dependent, files), second(master, files);
    if (!second.prove())
        first.followFailureOf(second);
    else if (!first.prove() || !first.write())
        second.followFailureOf(first);
    else if (!second.write())
        first.followFailureOf(second);
    return {first.takeOutcome(), second.takeOutcome()};
}

} // namespace chronomender
