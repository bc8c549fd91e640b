// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RenameCheck.h"
#include "RenameSheetController.h"

#include <QAbstractTableModel>

#include <optional>
#include <unordered_set>

namespace chronomender {

/// The items of a rename sheet: present name, new name, and what the disk would make of it. Names
/// are built when a row is asked for, so that only rows in sight cost anything. The controller
/// outlives the model.
class RenameSheetRows : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { Present, New, Note, columnCountOfAll };

    RenameSheetRows(RenameSheetController &controller, QObject *parent);

    /// After the choices or the list of the controller changed; a check is over then.
    void refresh();
    void setCheck(std::optional<RenameCheck> check);
    const std::optional<RenameCheck> &check() const { return m_check; }
    /// The next row behind `row` whose name is not what was wanted, from the top again; none
    /// without such a row.
    std::optional<int> nextMarked(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const MySinglePic &pic(int row) const;
    const CheckedName *checkedName(int row) const;
    QVariant newName(int row, int role) const;
    bool isRenamed(int row) const;

    RenameSheetController &m_controller;
    std::vector<MySinglePicPtr> m_pics;
    /// Where all items are shown, those that are renamed; none where all of them are.
    std::optional<std::unordered_set<const MySinglePic *>> m_renamed;
    std::optional<RenameCheck> m_check;
};

} // namespace chronomender
