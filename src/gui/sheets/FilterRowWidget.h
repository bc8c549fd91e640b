// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FilterEditor.h"

#include <QWidget>

#include <vector>

class QComboBox;
class QDateEdit;
class QDateTimeEdit;
class QLineEdit;
class QStackedWidget;
class QToolButton;

namespace chronomender {

/// One condition of a filter as a sentence of controls: what is asked, how it is compared, and the
/// value, then the buttons that add a row below and remove this one. Main thread.
class FilterRowWidget : public QWidget {
    Q_OBJECT
public:
    /// What dates are told by, and what a new condition about dates begins with.
    struct Setting {
        absl::TimeZone zone;
        FilterDates dates;
    };
    FilterRowWidget(FilterCondition row, const Setting &setting, QWidget *parent);

    const FilterCondition &condition() const { return m_row; }
    /// The row's number, counted from 1, is part of the names of its controls.
    void setPlace(std::size_t number, bool canAdd, bool canRemove);
    /// In the order of the keyboard; some are hidden.
    std::vector<QWidget *> controls() const;
    void focusKind();

Q_SIGNALS:
    void edited();
    void addWanted();
    void removeWanted();

private:
    void makeOperators();
    void makeValues();
    QWidget *makeRange();
    void makeButtons();
    void connectControls();
    void showCondition();
    void showOperators();
    void showValue();
    void chooseKind();
    void takeDate();
    void takeRange();

    FilterCondition m_row;
    Setting m_setting;
    QComboBox *m_kind, *m_operator, *m_choice;
    QStackedWidget *m_operators, *m_values; ///< by the kind
    QLineEdit *m_text;
    QDateTimeEdit *m_date;
    QDateEdit *m_from, *m_till; ///< days, both part of the range
    QToolButton *m_remove, *m_add;
};

} // namespace chronomender
