// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FolderRows.h"

#include <QAbstractListModel>

#include <vector>

namespace chronomender {

class WindowSession;

/// The folders of the session in their order, each with what is said of it. Main thread.
class FolderListModel : public QAbstractListModel {
    Q_OBJECT
public:
    /// The session outlives the model.
    explicit FolderListModel(WindowSession &session, QObject *parent = nullptr);

    /// Asks the session again. True when the folders are others now: views start anew.
    bool refresh();
    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

    const FolderRow &row(int index) const { return m_rows[static_cast<std::size_t>(index)]; }
    const MySingleFolderPtr &folder(int index) const {
        return m_folders[static_cast<std::size_t>(index)];
    }

private:
    std::vector<FolderRow> rowsOf(const std::vector<MySingleFolderPtr> &folders) const;

    WindowSession &m_session;
    std::vector<MySingleFolderPtr> m_folders;
    std::vector<FolderRow> m_rows;
};

} // namespace chronomender
