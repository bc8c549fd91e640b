// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SaveDriver.h"

#include <string_view>

namespace chronomender {

/// One step of a run's second stage. The driver carries its steps out one after the other: the
/// save, the XMP sync, and whatever a later room appends.
class RunStep {
public:
    virtual ~RunStep() = default;
    virtual bool isPartOf(const SaveRequest &request) const = 0;
    /// Text key of what the progress bar says meanwhile, for example "workPanelSave".
    virtual std::string_view titleKey() const = 0;
    /// On the run's worker thread. Appends its errors to the result.
    virtual void run(const SaveRequest &request, const PreProcessResult &preProcess,
                     SaveRunResult &result) = 0;
};

} // namespace chronomender
