// SPDX-License-Identifier: GPL-3.0-or-later
#include "PrefRenameController.h"

#include "TemplateStore.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>

namespace chronomender {
namespace {

using enum RenameElement;

constexpr std::string_view selectedKey = "templateSelectedIndex";
constexpr const char *dragName = "undoDragTemplatePart";
constexpr const char *pasteName = "undoPasteTemplatePart";
constexpr const char *configureName = "undoConfigureTemplateMenu";
constexpr const char *noName = "";

constexpr std::array paletteOrder{Year,   Month,   Day,        Hour,       Minute,
                                  Second, Counter, FolderName, SourceName, AddOn};

struct OptionMenu {
    RenameElement element;
    int TemplateOptions::*option;
};
constexpr std::array<OptionMenu, 3> optionMenus{{{Year, &TemplateOptions::yearHasFourDigits},
                                                 {Month, &TemplateOptions::monthHasTwoDigits},
                                                 {Counter, &TemplateOptions::counterDigits}}};

std::ptrdiff_t occurrences(const TemplateEditorText &text, RenameElement element) {
    return std::ranges::count(text.runs(), std::optional(element), &TemplatePart::element);
}

/// The place of the selected template; none beyond the end of the list.
std::optional<std::size_t> selectedIndex(const std::vector<RenameTemplate> &templates,
                                         const UserDefaults &defaults) {
    const auto index = static_cast<std::size_t>(defaults.integerForKey(selectedKey));
    return index < templates.size() ? std::optional(index) : std::nullopt;
}

} // namespace

PrefRenameController::PrefRenameController(UserDefaults &defaults, UndoManager &undo)
    : m_defaults(defaults), m_undo(undo) {}

PrefRenameController::~PrefRenameController() {
    close();
}

void PrefRenameController::open(SheetType type, const RenameTemplate &renameTemplate) {
    close();
    m_sheetType = type;
    *m_content = {TemplateEditorText(renameTemplate.stringParts), renameTemplate.options};
}

void PrefRenameController::close() {
    m_undo.removeAllActionsWithTarget(m_content.get());
    m_sheetType = SheetType::None;
}

void PrefRenameController::templateAdd() {
    open(SheetType::Add, {});
}

bool PrefRenameController::templateModify() {
    const auto selected = selectedTemplate(m_defaults);
    if (selected)
        open(SheetType::Modify, *selected);
    return selected.has_value();
}

void PrefRenameController::cancel() {
    close();
}

std::optional<UserDefaults::Outcome> PrefRenameController::save(bool asAddition) {
    if (m_sheetType == SheetType::None || !status().isSaveEnabled)
        return std::nullopt;
    auto templates = renameTemplatesRaw(m_defaults);
    const auto selected = selectedIndex(templates, m_defaults);
    const bool isAddition = asAddition || m_sheetType == SheetType::Add || !selected;
    if (isAddition)
        templates.push_back(currentSettings());
    else
        templates[*selected] = currentSettings();
    const auto outcome = storeRenameTemplates(templates, m_defaults);
    if (outcome == UserDefaults::Outcome::ValueNotAllowed)
        return outcome;
    if (isAddition)
        m_defaults.set(selectedKey, std::to_string(templates.size() - 1));
    close();
    return outcome;
}

std::optional<UserDefaults::Outcome> PrefRenameController::templateRemove() {
    auto templates = renameTemplatesRaw(m_defaults);
    const auto selected = selectedIndex(templates, m_defaults);
    if (!selected)
        return std::nullopt;
    templates.erase(templates.begin() + static_cast<std::ptrdiff_t>(*selected));
    const auto outcome = storeRenameTemplates(templates, m_defaults);
    if (*selected > 0 && *selected == templates.size())
        m_defaults.set(selectedKey, std::to_string(*selected - 1));
    return outcome;
}

RenameTemplate PrefRenameController::currentSettings() const {
    RenameTemplate settings;
    settings.options = m_content->options;
    std::vector<RenameElement> ids;
    m_content->text.parseTemplateTextAndWriteResultsTo(settings.stringParts, ids);
    return settings;
}

int PrefRenameController::currentlyUsedAddOns() const {
    const auto count = occurrences(m_content->text, AddOn);
    return count == 0 ? 0 : static_cast<int>(count) + 1;
}

std::vector<RenameElement> PrefRenameController::palette() const {
    std::vector<RenameElement> left;
    std::ranges::copy_if(paletteOrder, std::back_inserter(left), [this](RenameElement each) {
        return occurrences(m_content->text, each) < mostOccurrences(each);
    });
    return left;
}

TemplateStatusLine PrefRenameController::status() const {
    switch (statusOf(currentSettings())) {
    case TemplateStatus::OnlyOneName:
        return {false, "templateStatusText1", TemplateStatusLine::Color::Red};
    case TemplateStatus::NamesMayBeEqual:
        return {true, "templateStatusText2", TemplateStatusLine::Color::Orange};
    case TemplateStatus::Good:
        break;
    }
    return {};
}

void PrefRenameController::registerUndo(const std::shared_ptr<Content> &content,
                                        UndoManager &undo) {
    const std::weak_ptr<Content> weak = content;
    undo.registerUndo(content, [weak, former = *content, &undo](Content &present) {
        registerUndo(weak.lock(), undo);
        present = former;
    });
}

void PrefRenameController::willChange(const char *actionName) {
    const UndoGroup step(m_undo);
    registerUndo(m_content, m_undo);
    m_undo.setActionName(actionName);
}

bool PrefRenameController::replaceText(Range range, std::string_view replacement) {
    const std::size_t end = std::min(range.end, m_content->text.length());
    const bool isNothing = range.begin >= end && replacement.empty();
    if (isNothing || !isAcceptedInTemplate(replacement))
        return false;
    willChange(noName);
    m_content->text.replaceText({std::min(range.begin, end), end}, replacement);
    return true;
}

bool PrefRenameController::insertElement(std::size_t position, RenameElement element, Hand hand) {
    if (occurrences(m_content->text, element) >= mostOccurrences(element))
        return false;
    willChange(hand == Hand::Drag ? dragName : pasteName);
    m_content->text.insertElement(position, element);
    return true;
}

bool PrefRenameController::moveElement(std::size_t from, std::size_t to) {
    const auto element = m_content->text.elementAt(from);
    if (!element || to == from || to == from + 1)
        return false;
    willChange(dragName);
    m_content->text.replaceText({from, from + 1}, {});
    m_content->text.insertElement(to > from ? to - 1 : to, *element);
    return true;
}

bool PrefRenameController::removeElement(std::size_t position, Hand hand) {
    if (!m_content->text.elementAt(position))
        return false;
    willChange(hand == Hand::Drag ? dragName : pasteName);
    m_content->text.replaceText({position, position + 1}, {});
    return true;
}

bool PrefRenameController::configure(RenameElement element, int value) {
    const auto menu = std::ranges::find(optionMenus, element, &OptionMenu::element);
    if (menu == optionMenus.end() || value < 0 || m_content->options.*menu->option == value)
        return false;
    willChange(configureName);
    m_content->options.*menu->option = value;
    return true;
}

} // namespace chronomender
