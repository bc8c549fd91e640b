// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Coalesced.h"
#include "FilterRowWidget.h"

#include <QDialog>

#include <optional>
#include <vector>

class QComboBox;
class QLabel;
class QPlainTextEdit;
class QScrollArea;
class QStackedWidget;
class QVBoxLayout;

namespace chronomender {

class FilterTemplateBar;
class WindowSession;

/// The editor of the filter: conditions in rows, of which all or any must hold, and saved filters.
/// The list behind it is filtered while a person edits, a moment after each change, and what is
/// filtered is kept. A filter that rows cannot say is shown as its text.
class FilterSheet : public QDialog {
    Q_OBJECT
public:
    /// `session` outlives the sheet, which deletes itself when it is closed.
    FilterSheet(WindowSession &session, QWidget *parent);

    void done(int result) override;

private:
    QWidget *makeRowsPage();
    QWidget *makeTextPage();
    QWidget *makeButtons();
    void showPredicate(const std::optional<Predicate> &predicate);
    FilterRowWidget *insertRow(std::size_t index, const FilterCondition &condition);
    void dropRow(FilterRowWidget *row);
    void addRowBelow(FilterRowWidget *row);
    void removeRow(FilterRowWidget *row);
    void placeRows();
    FilterConditions conditions() const;
    void apply();
    void filterByPredicate(const std::optional<Predicate> &predicate);
    void clear();
    void refresh();

    WindowSession &m_session;
    FilterRowWidget::Setting m_setting;
    QStackedWidget *m_pages;
    QComboBox *m_match;
    QScrollArea *m_scroll;
    QVBoxLayout *m_rowLayout;
    std::vector<FilterRowWidget *> m_rows; ///< none while the text is shown
    QPlainTextEdit *m_text;
    QLabel *m_counts;
    FilterTemplateBar *m_templates;
    Coalesced m_editing;
};

} // namespace chronomender
