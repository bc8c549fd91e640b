// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RunStep.h"

#include <vector>

namespace chronomender {

/// Makes the XMP dates of every item that the run has saved tell what the file's own tags tell now,
/// in its packet or in its sidecar. Items whose dates come from XMP need none: their save wrote it.
/// A file keeps its own dates; a sidecar takes the time of its writing.
class XmpSyncStep : public RunStep {
public:
    explicit XmpSyncStep(const SaveServices &services) : m_services(services) {}
    bool isPartOf(const SaveRequest &request) const override;
    std::string_view titleKey() const override { return "workPanelSyncXMP"; }
    void run(const SaveRequest &request, const PreProcessResult &preProcess,
             SaveRunResult &result) override;

    struct SyncedItem;

private:
    void plan(std::vector<SyncedItem> &items) const;
    void write(std::vector<SyncedItem> &items) const;

    const SaveServices &m_services;
};

} // namespace chronomender
