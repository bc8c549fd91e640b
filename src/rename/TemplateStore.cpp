// SPDX-License-Identifier: GPL-3.0-or-later
#include "TemplateStore.h"

namespace chronomender {

const std::vector<RenameTemplate> &factoryTemplates() {
    static const std::vector<RenameTemplate> templates;
    return templates;
}

std::vector<RenameTemplate> renameTemplatesRaw(const UserDefaults &) {
    return factoryTemplates();
}

UserDefaults::Outcome storeRenameTemplates(const std::vector<RenameTemplate> &, UserDefaults &) {
    return UserDefaults::Outcome::NotStored;
}

std::optional<RenameTemplate> selectedTemplate(const UserDefaults &) {
    return std::nullopt;
}

} // namespace chronomender
