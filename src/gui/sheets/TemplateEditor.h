// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RenameSheetController.h"
#include "TemplateField.h"
#include "WindowSession.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QSpinBox;

namespace chronomender {

/// Writes a template: the field, the palette of elements, how year, month and counter are written,
/// an example, and what is wrong with it. Undo of its own, until it is saved.
class TemplateEditor : public QDialog {
    Q_OBJECT
public:
    /// For a new template, or the selected one. The references outlive the editor, which deletes
    /// itself when it is closed.
    TemplateEditor(WindowSession &session, RenameSheetController &samples, bool isNew,
                   QWidget *parent);

Q_SIGNALS:
    /// The list of templates, or which one is selected, is another one.
    void templatesChanged();

private:
    QLayout *makePalette();
    QLayout *makeOptions();
    QLayout *makeButtons();
    void insertFromPalette();
    void refresh();
    void refreshPalette();
    void showStatus(const char *key, TemplateStatusLine::Color color);
    void showElementMenu(RenameElement element, const QPoint &globalPosition);
    void configure(RenameElement element, int value);
    void save(bool asAddition);
    void remove();

    WindowSession &m_session;
    RenameSheetController &m_samples;
    UndoManager m_undo;
    PrefRenameController m_controller;
    TemplateField *m_field;
    QListWidget *m_palette = nullptr;
    QComboBox *m_year = nullptr, *m_month = nullptr;
    QSpinBox *m_counter = nullptr;
    QLabel *m_status = nullptr, *m_sample = nullptr;
    QPushButton *m_undoButton = nullptr, *m_redoButton = nullptr, *m_save = nullptr,
                *m_saveAsNew = nullptr;
};

} // namespace chronomender
