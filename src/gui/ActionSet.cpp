// SPDX-License-Identifier: GPL-3.0-or-later
#include "ActionSet.h"

#include "Controls.h"
#include "WindowSession.h"

#include <QAction>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <utility>

namespace chronomender {

ActionSet::ActionSet(QMainWindow &window, const WindowSession &session, Run run)
    : QObject(&window), m_session(session), m_run(std::move(run)) {
    std::map<CommandMenu, QMenu *> menus;
    for (const WindowCommand &command : commandTable()) {
        QMenu *&menu = menus[command.menu];
        if (!menu)
            menu = window.menuBar()->addMenu(qText(titleKey(command.menu)));
        if (command.beginsGroup)
            menu->addSeparator();
        QAction *action = makeAction(command);
        menu->addAction(action);
        window.addAction(action); // its keys work where the menu bar is hidden, too
    }
}

QAction *ActionSet::makeAction(const WindowCommand &command) {
    auto *action = new QAction(qText(command.textKey), this);
    action->setShortcut(QKeySequence(QLatin1String(command.shortcut)));
    action->setCheckable(command.isCheckable);
    connect(action, &QAction::triggered, this, [this, id = command.id] { m_run(id); });
    m_actions.emplace(command.id, action);
    return action;
}

QMenu *ActionSet::contextMenu(const std::vector<CommandId> &ids, QWidget *parent) const {
    auto *menu = new QMenu(parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    CommandMenu last = commandOf(ids.front()).menu;
    for (const CommandId id : ids) {
        if (std::exchange(last, commandOf(id).menu) != commandOf(id).menu)
            menu->addSeparator();
        menu->addAction(action(id));
    }
    return menu;
}

void ActionSet::refresh() {
    const CommandNeeds met = metNeeds(m_session);
    for (const WindowCommand &command : commandTable()) {
        QAction *action = m_actions.at(command.id);
        action->setEnabled(isAvailable(command, met));
        if (command.isCheckable && command.id != CommandId::FullScreen)
            action->setChecked(isChecked(command.id, m_session));
    }
    const UndoManager &undo = m_session.controller().undoManager();
    action(CommandId::Undo)->setText(qString(undo.undoMenuItemTitle()));
    action(CommandId::Redo)->setText(qString(undo.redoMenuItemTitle()));
}

} // namespace chronomender
