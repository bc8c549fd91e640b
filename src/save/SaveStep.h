// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RunStep.h"

namespace chronomender {

/// Patches the files of a run's items, folder by folder, and brings the model up to date.
class SaveStep : public RunStep {
public:
    explicit SaveStep(const SaveServices &services) : m_services(services) {}
    bool isPartOf(const SaveRequest &request) const override;
    std::string_view titleKey() const override { return "workPanelSave"; }
    void run(const SaveRequest &request, const PreProcessResult &preProcess,
             SaveRunResult &result) override;

private:
    const SaveServices &m_services;
};

} // namespace chronomender
