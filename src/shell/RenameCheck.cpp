// SPDX-License-Identifier: GPL-3.0-or-later
#include "RenameCheck.h"

#include "RowTexts.h"
#include "Texts.h"

namespace chronomender {
namespace {

std::string reasonsOf(const ItemRename &rename) {
    std::string reasons;
    for (const SaveError &error : rename.errors) {
        if (error.id == SaveErrorId::NumberAdded)
            continue;
        const std::string key =
            "errorPanelDescriptionText_ID" + std::to_string(static_cast<int>(error.id));
        reasons += (reasons.empty() ? "" : " ") + text(key);
    }
    return reasons;
}

CheckedName checkedName(const ItemRename &rename) {
    CheckedName checked;
    checked.name = rename.files.empty() ? rename.wantedName : rename.files.front().newName;
    checked.note = reasonsOf(rename);
    if (rename.result == RenameResult::Refused) {
        checked.mark = CheckedName::Mark::Refused;
    } else if (rename.addedNumber > 0) {
        checked.mark = CheckedName::Mark::Numbered;
        checked.note = text("rename_noteNumber", {rename.wantedName}) +
                       (checked.note.empty() ? "" : " ") + checked.note;
    }
    return checked;
}

} // namespace

RenameCheck::RenameCheck(const std::vector<ItemRename> &outcomes) {
    m_names.reserve(outcomes.size());
    for (const ItemRename &rename : outcomes) {
        const CheckedName checked = checkedName(rename);
        m_numbered += checked.mark == CheckedName::Mark::Numbered ? 1 : 0;
        m_refused += checked.mark == CheckedName::Mark::Refused ? 1 : 0;
        m_names.insert_or_assign(rename.pic.get(), checked);
    }
}

const CheckedName *RenameCheck::nameOf(const MySinglePic &pic) const {
    const auto found = m_names.find(&pic);
    return found == m_names.end() ? nullptr : &found->second;
}

std::string RenameCheck::summary() const {
    const std::size_t free = m_names.size() - m_numbered - m_refused;
    std::string words = text("rename_checkFree", {numberText(free)});
    if (m_numbered > 0)
        words += ' ' + text("rename_checkNumbered", {numberText(m_numbered)});
    if (m_refused > 0)
        words += ' ' + text("rename_checkRefused", {numberText(m_refused)});
    return words;
}

} // namespace chronomender
