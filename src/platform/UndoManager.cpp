// SPDX-License-Identifier: GPL-3.0-or-later
#include "UndoManager.h"

#include "Texts.h"

#include <algorithm>
#include <utility>

namespace chronomender {
namespace {

std::string menuItemTitle(const std::string &key, const std::string &actionName) {
    return actionName.empty() ? text(key) : text(key + "_named", {text(actionName)});
}

} // namespace

// What an inverse registers is the way back from it: an undo fills the redo stack and a redo the
// undo stack. Only a command of the user, outside both, forgets what could be redone.
std::vector<UndoManager::Group> &UndoManager::currentStack() {
    return m_state == State::Undoing ? m_redo : m_undo;
}

void UndoManager::add(Record record) {
    const UndoGroup group(*this);
    if (m_state == State::Idle)
        m_redo.clear();
    m_open.records.push_back(std::move(record));
}

void UndoManager::beginGroup() {
    ++m_depth;
}

void UndoManager::endGroup() {
    if (m_depth == 0 || --m_depth > 0)
        return;
    Group finished = std::exchange(m_open, {});
    if (!finished.records.empty())
        currentStack().push_back(std::move(finished));
}

void UndoManager::undo() {
    perform(m_undo, State::Undoing);
}
void UndoManager::redo() {
    perform(m_redo, State::Redoing);
}

void UndoManager::perform(std::vector<Group> &from, State state) {
    if (m_state != State::Idle || m_depth > 0)
        return;
    m_state = state;
    m_affected.clear();
    bool isDone = false;
    while (!isDone && !from.empty()) { // a step whose targets are all gone is passed over
        m_performing = std::move(from.back());
        from.pop_back();
        const UndoGroup inverse(*this);
        m_open.actionName = m_performing.actionName;
        while (!m_performing.records.empty()) {
            const Record record = std::move(m_performing.records.back());
            m_performing.records.pop_back();
            isDone = record.perform() || isDone;
        }
    }
    m_state = State::Idle;
}

void UndoManager::setActionName(std::string key) {
    if (m_state != State::Idle)
        return;
    if (m_depth > 0)
        m_open.actionName = std::move(key);
    else if (!m_undo.empty())
        m_undo.back().actionName = std::move(key);
}

std::string UndoManager::undoActionName() const {
    return m_undo.empty() ? std::string() : m_undo.back().actionName;
}

std::string UndoManager::redoActionName() const {
    return m_redo.empty() ? std::string() : m_redo.back().actionName;
}

std::string UndoManager::undoMenuItemTitle() const {
    return menuItemTitle("menu_undo", undoActionName());
}

std::string UndoManager::redoMenuItemTitle() const {
    return menuItemTitle("menu_redo", redoActionName());
}

void UndoManager::removeAllActionsWithTarget(const void *target) {
    removeAllActionsWithTargets({target});
}

void UndoManager::removeAllActionsWithTargets(const std::unordered_set<const void *> &targets) {
    const auto strip = [&targets](Group &group) {
        std::erase_if(group.records,
                      [&targets](const Record &record) { return targets.contains(record.target); });
    };
    for (auto *stack : {&m_undo, &m_redo}) {
        std::for_each(stack->begin(), stack->end(), strip);
        std::erase_if(*stack, [](const Group &group) { return group.records.empty(); });
    }
    strip(m_open);
    strip(m_performing);
}

void UndoManager::removeAllActions() {
    m_undo.clear();
    m_redo.clear();
    m_open.records.clear();
    m_performing.records.clear();
}

} // namespace chronomender
