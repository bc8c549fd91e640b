// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "WindowCommands.h"

#include <QObject>

#include <functional>
#include <map>
#include <vector>

class QAction;
class QMainWindow;
class QMenu;

namespace chronomender {

/// The commands as actions of a window: its menu bar, their keys, and whether they can be used now.
class ActionSet : public QObject {
    Q_OBJECT
public:
    using Run = std::function<void(CommandId)>;

    /// Fills the window's menu bar; `run` is called for each command that is chosen.
    ActionSet(QMainWindow &window, const WindowSession &session, Run run);

    QAction *action(CommandId id) const { return m_actions.at(id); }
    /// A menu of these commands, for a place in the window.
    QMenu *contextMenu(const std::vector<CommandId> &ids, QWidget *parent) const;
    /// Asks the session what can be done now.
    void refresh();

private:
    QAction *makeAction(const WindowCommand &command);

    const WindowSession &m_session;
    Run m_run;
    std::map<CommandId, QAction *> m_actions;
};

} // namespace chronomender
