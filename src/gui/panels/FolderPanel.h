// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Coalesced.h"
#include "FolderListModel.h"

#include <QListView>
#include <QWidget>

#include <string>
#include <vector>

namespace chronomender {

/// The folders of the session at the left of a window: what they are, what was corrected, which are
/// selected. Takes dropped folders and files. Main thread.
class FolderPanel : public QWidget {
    Q_OBJECT
public:
    /// The session outlives the panel.
    explicit FolderPanel(WindowSession &session, QWidget *parent = nullptr);

    QListView &list() { return *m_list; }

Q_SIGNALS:
    /// A menu for the selected folders is asked for, by mouse or key.
    void menuWanted(const QPoint &globalPlace);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void connectSession();
    void refresh();
    void showSelection();
    void takeSelection();
    void showFirstItemOf(const MySingleFolderPtr &folder);
    void setDropTarget(bool isTarget);

    WindowSession &m_session;
    FolderListModel m_model;
    QListView *m_list = nullptr;
    Coalesced m_refresh;
    bool m_isDropTarget = false;
    bool m_isShowingSelection = false; ///< the list follows the session, and not the other way
};

} // namespace chronomender
