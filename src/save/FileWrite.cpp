// SPDX-License-Identifier: GPL-3.0-or-later
#include "FileWrite.h"

#include "PngChecksums.h"
#include "SystemFiles.h"
#include "Texts.h"
#include "UnchangedProof.h"

#include <absl/time/time.h>

#include <algorithm>
#include <array>
#include <span>
#include <utility>

namespace chronomender {
namespace {

/// The coarsest file system in use keeps file times to two seconds.
constexpr absl::Duration kCoarsestFileTime = absl::Seconds(2);

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

/// A place inside the chunk that holds the file's dates, where one is known.
std::uint64_t chunkHint(const SinglePicAttributes &recorded) {
    return recorded.tiffHeaderStartOffset.value_or(recorded.xmpHeaderStartOffset.value_or(0));
}

} // namespace

FileWrite::FileWrite(PatchJob job, FileLayer &files) : m_job(std::move(job)), m_files(&files) {}

bool FileWrite::fail(SaveErrorId id, FileUnchangedState state, std::string systemText) {
    m_outcome = {id, std::move(systemText), state, std::nullopt, false, false, {}};
    return false;
}

void FileWrite::refuse(SaveErrorId id, std::string systemText) {
    fail(id, FileUnchangedState::Unchanged, std::move(systemText));
}

bool FileWrite::prove() {
    const MySinglePic &pic = m_job.pic;
    if (pic.save.fileUnchangedState == FileUnchangedState::MustBeReadAgain)
        return fail(SaveErrorId::ChangedSinceImport, FileUnchangedState::MustBeReadAgain);
    std::string systemText;
    if (const auto problem = sidecarProblem(systemText))
        return fail(*problem,
                    *problem == SaveErrorId::SidecarCannotBeOpened
                        ? FileUnchangedState::Unchanged
                        : FileUnchangedState::BytesDiffer,
                    std::move(systemText));
    if (!open() || !takeLock())
        return false;
    const auto attributes = m_file->attributes();
    const FileUnchangedState state =
        attributes ? stateOfOpenFile(pic, *m_file) : FileUnchangedState::CannotBeOpened;
    if (state != FileUnchangedState::Unchanged)
        return fail(SaveErrorId::ChangedSinceImport, state);
    m_proved = *attributes;
    if (!hasWork())
        return true;
    // The tool would not write, and what stands there may be all that is left of somebody's file.
    if (needsTool() && m_files->attributes(XtController::copyPath(m_job.path)))
        return fail(SaveErrorId::ToolFailed, state, text("saveObstacle_copyInTheWay"));
    // Only a file's owner may set its times. Asked first, so that a file whose date cannot be set
    // is not touched at all.
    if (!m_file->setModificationDate(m_proved.modificationDate))
        return fail(SaveErrorId::SettingFileDatesFailed, state, m_file->lastError().text());
    return planChecksums();
}

/// An XMP sidecar goes with its item: it must be there and writable before the item is touched.
std::optional<SaveErrorId> FileWrite::sidecarProblem(std::string &systemText) const {
    const MySinglePic &pic = m_job.pic;
    if (pic.spSidecarExtensions.empty())
        return std::nullopt;
    if (pic.hasXMPSidecar()) {
        FileError error;
        const auto sidecar = m_files->open(pic.spXMPPath(), OpenMode::Update, &error);
        if (!sidecar && isAbsence(error))
            return SaveErrorId::SidecarMissing;
        if (!sidecar) {
            systemText = error.text();
            return SaveErrorId::SidecarCannotBeOpened;
        }
    }
    return areSidecarsPresent(pic, *m_files) ? std::nullopt
                                             : std::optional(SaveErrorId::ChangedSinceImport);
}

bool FileWrite::open() {
    FileError error;
    m_file = m_files->open(m_job.path, hasWork() ? OpenMode::Update : OpenMode::Read, &error);
    if (!m_file && isAbsence(error))
        return fail(SaveErrorId::NotReachable, FileUnchangedState::NotFound);
    if (!m_file)
        return fail(SaveErrorId::CannotBeOpened, FileUnchangedState::CannotBeOpened, error.text());
    return true;
}

/// Held from the proof to the last write. A file system without locks has nobody to keep away.
bool FileWrite::takeLock() {
    return !hasWork() || m_file->lockExclusively() != LockResult::HeldByAnother ||
           fail(SaveErrorId::InUse, FileUnchangedState::Unchanged);
}

bool FileWrite::planChecksums() {
    if (m_job.pic.fileFormatType != FileFormatPng || m_job.plan.patches.empty())
        return true;
    auto checksums =
        checksumPatches(*m_file, m_job.plan.patches, chunkHint(m_job.pic.singlePicAttributes));
    if (!checksums)
        return fail(SaveErrorId::NotWrittenUnreadableBack, FileUnchangedState::Unchanged,
                    text("saveObstacle_noChunk"));
    m_checksums = *std::move(checksums);
    return true;
}

FileIntent FileWrite::intent() const {
    FileIntent intent{m_job.path, m_proved, m_job.plan.patches, m_job.plan.modificationDate, {}};
    intent.patches.insert(intent.patches.end(), m_checksums.begin(), m_checksums.end());
    if (needsTool())
        intent.toolCopy = XtController::copyPath(m_job.path);
    return intent;
}

/// Another program may have put a file of its own in the place of the one that is open: what is
/// written would be lost with the old one.
bool FileWrite::isAtItsPath() {
    const auto there = m_files->attributes(m_job.path);
    return there && there->isSameFile(m_proved);
}

bool FileWrite::write() {
    if (!hasWork())
        return true;
    if (!isAtItsPath())
        return fail(SaveErrorId::ReplacedMeanwhile, FileUnchangedState::AttributesDiffer);
    const FileUnchangedState state = stateOfOpenFile(m_job.pic, *m_file);
    if (state != FileUnchangedState::Unchanged)
        return fail(SaveErrorId::ChangedSinceImport, state);
    for (const std::vector<Patch> *patches : {&m_job.plan.patches, &std::as_const(m_checksums)})
        for (const Patch &patch : *patches) {
            ++m_begun;
            if (!m_file->pwrite(patch.after(), patch.offset()))
                return takeBack(SaveErrorId::WriteFailed, m_file->lastError().text());
        }
    return true;
}

void FileWrite::sendTo(XtController &tool) const {
    tool.send(*m_job.plan.toolAction, m_job.path, m_job.pic.fileFormatType == FileFormatPng);
}

bool FileWrite::takeToolAnswer(const ToolOutcome &answer) {
    const auto there = m_files->attributes(m_job.path);
    if (!there)
        return fail(SaveErrorId::ToolFailed, FileUnchangedState::NotFound, answer.error);
    // A tool that died may have replaced the file and not have said so.
    if (!answer.didChange && there->isSameFile(m_proved))
        return takeBack(answer.isMissing ? SaveErrorId::ToolMissing : SaveErrorId::ToolFailed,
                        answer.isMissing || !answer.error.empty()
                            ? answer.error
                            : text("saveObstacle_toolFoundTags"));
    if (openReplacement())
        return true;
    return putOriginalBack();
}

/// The file that the tool has replaced is open still, though without its name.
bool FileWrite::putOriginalBack() {
    takeBack(SaveErrorId::NotWrittenUnreadableBack, text("saveObstacle_toolWroteOtherwise"));
    const bool isBack = !isLeftHalfWritten() &&
                        (isAtItsPath() || systemFiles::restoreAt(m_job.path, m_file->descriptor()));
    if (!isBack) {
        m_outcome.systemText += "; " + text("saveObstacle_notPutBack");
        m_outcome.state = FileUnchangedState::BytesDiffer;
        m_outcome.attributes.reset();
        return false;
    }
    m_outcome.attributes = m_files->attributes(m_job.path);
    return false;
}

bool FileWrite::openReplacement() {
    std::unique_ptr<OpenFile> replacement = m_files->open(m_job.path, OpenMode::Update);
    m_outcome.readAgain = replacement ? m_job.readAgain(*replacement) : nullptr;
    if (!m_outcome.readAgain)
        return false;
    systemFiles::copyExtendedAttributes(m_file->descriptor(), replacement->descriptor());
    m_file = std::move(replacement);
    m_begun = 0;
    m_isReplaced = true;
    return true;
}

bool FileWrite::finish() {
    if (!hasWork() || m_outcome.isWritten)
        return true;
    const OptionalDate &wanted = m_job.plan.modificationDate;
    if (wanted && !m_file->setModificationDate(*wanted))
        return takeBack(SaveErrorId::SettingFileDatesFailed, m_file->lastError().text());
    m_outcome.attributes = m_file->attributes();
    if (!m_outcome.attributes)
        return takeBack(SaveErrorId::WriteFailed, m_file->lastError().text());
    // A file system that cannot keep the date stores another one without a word.
    if (wanted && distance(m_outcome.attributes->modificationDate, *wanted) > kCoarsestFileTime)
        return takeBack(SaveErrorId::SettingFileDatesFailed, text("saveObstacle_fileDateNotKept"));
    m_outcome.isWritten = true;
    return true;
}

bool FileWrite::sync() {
    return !m_outcome.isWritten || m_file->sync() ||
           takeBack(SaveErrorId::WriteFailed, m_file->lastError().text());
}

std::optional<std::uint64_t> FileWrite::writtenDevice() const {
    return m_outcome.isWritten ? std::optional(m_proved.device) : std::nullopt;
}

/// Always false, with what became of the file in the outcome.
bool FileWrite::takeBack(SaveErrorId id, std::string systemText) {
    bool isBack = true;
    while (m_begun > 0) {
        const std::size_t i = --m_begun, planned = m_job.plan.patches.size();
        const Patch &patch = i < planned ? m_job.plan.patches[i] : m_checksums[i - planned];
        isBack = putBack(*m_file, patch) && isBack;
    }
    // Where even this date cannot be set there is nothing left to try.
    (void)m_file->setModificationDate(m_proved.modificationDate);
    if (!isBack)
        systemText += (systemText.empty() ? "" : "; ") + text("saveObstacle_notPutBack");
    m_isLeftHalfWritten = !isBack;
    const bool isAsRead = isBack && !m_isReplaced;
    fail(id, isAsRead ? FileUnchangedState::Unchanged : FileUnchangedState::BytesDiffer,
         std::move(systemText));
    m_outcome.attributes = m_file->attributes();
    return false;
}

void FileWrite::followFailureOf(const FileWrite &other) {
    if (m_outcome.error || m_isReplaced)
        return;
    if (m_begun > 0 || m_outcome.isWritten) {
        takeBack(SaveErrorId::WriteFailed, {});
        if (isLeftHalfWritten())
            return;
    }
    m_outcome.error = other.m_outcome.error;
    m_outcome.systemText.clear();
    m_outcome.isOfOtherHalf = true;
}

} // namespace chronomender
