// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "KeyStates.h"
#include "Zones.h"

#include <QWidget>

class QComboBox;
class QDateTimeEdit;
class QSpinBox;

namespace chronomender {

/// A first date, and what is added from file to file. Dates are told in the given zone.
class DateSequenceFields : public QWidget {
    Q_OBJECT
public:
    DateSequenceFields(Zone zone, QWidget *parent);

    DateSequence sequence() const;

private:
    Zone m_zone;
    QDateTimeEdit *m_date;
    QSpinBox *m_step;
    QComboBox *m_unit;
};

} // namespace chronomender
