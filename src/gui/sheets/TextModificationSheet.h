// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "TextModification.h"
#include "WindowSession.h"

#include <QDialog>

#include <string>

class QComboBox;
class QLabel;
class QVBoxLayout;

namespace chronomender {

/// The rows that change a folder's or a file's name before it becomes part of another: in their
/// order, each on or off, with an example. Every change is stored at once.
class TextModificationSheet : public QDialog {
    Q_OBJECT
public:
    /// `session` outlives the sheet, which deletes itself when it is closed.
    TextModificationSheet(WindowSession &session, ModificationTag tag, QWidget *parent);

Q_SIGNALS:
    void changed();

private:
    QLayout *makePresets();
    void buildRows();
    QWidget *makeRow(std::size_t index);
    void addButtons(std::size_t index, QWidget *row);
    void store();
    void showExample();
    void refreshPresets();
    void choosePreset();
    void keepPreset();
    void removePreset();

    WindowSession &m_session;
    ModificationTag m_tag;
    TextModifications m_rows;
    std::string m_example;
    QWidget *m_rowArea = nullptr;
    QVBoxLayout *m_rowLayout = nullptr;
    QLabel *m_exampleLabel = nullptr;
    QComboBox *m_presets = nullptr;
};

} // namespace chronomender
