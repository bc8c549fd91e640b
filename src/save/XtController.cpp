// SPDX-License-Identifier: GPL-3.0-or-later
#include "XtController.h"

namespace chronomender {

XtController::XtController(ToolSettings settings) : m_settings(std::move(settings)) {}
XtController::~XtController() = default;

std::optional<std::string> XtController::program() const {
    return std::nullopt;
}

void XtController::send(const ToolAction &, const std::string &, bool) {}

ToolOutcome XtController::postAction() {
    return {false, {}, true};
}

void XtController::cleanup() {}

std::string XtController::copyPath(const std::string &path) {
    return path + "_exiftool_tmp";
}

std::size_t XtController::errorCollectorCount() const {
    return m_errorCollector.size();
}

std::string XtController::errorsSummaryString() const {
    return {};
}

void XtController::addError(const std::string &line, ToolErrorType type) {
    m_errorCollector[type].push_back(line);
}

void XtController::clearErrors() {
    m_errorCollector.clear();
}

} // namespace chronomender
