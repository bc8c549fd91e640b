// SPDX-License-Identifier: GPL-3.0-or-later
#include "WriteUnit.h"

#include <algorithm>
#include <functional>

namespace chronomender {

WriteUnit::WriteUnit(std::vector<PatchJob> jobs, FileLayer &files) {
    m_files.reserve(jobs.size());
    for (PatchJob &job : jobs)
        m_files.emplace_back(std::move(job), files);
}

/// The first file that fails takes the others with it.
void WriteUnit::doForEach(bool (FileWrite::*step)()) {
    if (hasFailed())
        return;
    const auto failed = std::find_if(m_files.begin(), m_files.end(),
                                     [step](FileWrite &file) { return !(file.*step)(); });
    if (failed != m_files.end())
        followFailureOf(*failed);
}

void WriteUnit::followFailureOf(const FileWrite &failed) {
    for (FileWrite &file : m_files)
        if (&file != &failed)
            file.followFailureOf(failed);
}

void WriteUnit::prove() {
    const auto failed = std::find_if(m_files.rbegin(), m_files.rend(),
                                     [](FileWrite &file) { return !file.prove(); });
    if (failed != m_files.rend())
        followFailureOf(*failed);
}

void WriteUnit::write() {
    doForEach(&FileWrite::write);
}

bool WriteUnit::sendTo(XtController &tool) {
    if (hasFailed())
        return false;
    while (m_withTool < m_files.size())
        if (const FileWrite &file = m_files[m_withTool++]; file.needsTool()) {
            file.sendTo(tool);
            return true;
        }
    return false;
}

void WriteUnit::takeToolAnswer(const ToolOutcome &answer) {
    FileWrite &file = m_files[m_withTool - 1];
    if (!file.takeToolAnswer(answer) || !file.finish())
        followFailureOf(file);
}

void WriteUnit::finish() {
    doForEach(&FileWrite::finish);
}

void WriteUnit::sync() {
    if (!hasFailed())
        return doForEach(&FileWrite::sync);
    // What the tool has done to one file stays when it failed with the other.
    for (FileWrite &file : m_files)
        (void)file.sync();
}

void WriteUnit::addWrittenDevices(std::map<std::uint64_t, FileWrite *> &files) {
    for (FileWrite &file : m_files)
        if (const auto device = file.writtenDevice())
            files.emplace(*device, &file);
}

void WriteUnit::refuse(SaveErrorId id, const std::string &systemText) {
    if (hasFailed())
        return;
    m_files.back().refuse(id, systemText);
    followFailureOf(m_files.back());
}

void WriteUnit::close() {
    for (FileWrite &file : m_files)
        file.close();
}

UnitIntent WriteUnit::intent() const {
    UnitIntent intent;
    for (const FileWrite &file : m_files)
        if (file.hasWork())
            intent.files.push_back(file.intent());
    return intent;
}

bool WriteUnit::hasFailed() const {
    return std::any_of(m_files.begin(), m_files.end(),
                       [](const FileWrite &file) { return file.outcome().error.has_value(); });
}

bool WriteUnit::hasWork() const {
    return std::any_of(m_files.begin(), m_files.end(), std::mem_fn(&FileWrite::hasWork));
}

bool WriteUnit::needsTool() const {
    return std::any_of(m_files.begin(), m_files.end(), std::mem_fn(&FileWrite::needsTool));
}

bool WriteUnit::isLeftHalfWritten() const {
    return std::any_of(m_files.begin(), m_files.end(), std::mem_fn(&FileWrite::isLeftHalfWritten));
}

} // namespace chronomender
