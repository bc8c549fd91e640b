// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateFields.h"

#include "Controls.h"
#include "StampConversions.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QSpinBox>

#include <utility>

namespace chronomender {
namespace {

constexpr int mostSteps = 86'400;

} // namespace

DateSequenceFields::DateSequenceFields(Zone zone, QWidget *parent)
    : QWidget(parent),
      m_zone(std::move(zone)),
      m_date(named(new QDateTimeEdit, "dateSequence_first")),
      m_step(named(new QSpinBox, "dateSequence_step")),
      m_unit(named(new QComboBox, "dateSequence_unit")) {
    m_date->setDisplayFormat(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    m_date->setCalendarPopup(true);
    m_date->setDateTime(QDateTime::currentDateTime());
    m_step->setRange(0, mostSteps);
    m_step->setValue(1);
    for (const char *key : {"dateSequence_seconds", "dateSequence_minutes", "dateSequence_hours"})
        m_unit->addItem(qText(key));
    auto *form = new QFormLayout(this);
    form->addRow(qText("dateSequence_first"), m_date);
    auto *step = new QHBoxLayout;
    step->addWidget(m_step);
    step->addWidget(m_unit);
    form->addRow(qText("dateSequence_step"), step);
}

DateSequence DateSequenceFields::sequence() const {
    const QString stamp = m_date->dateTime().toString(QStringLiteral("yyyy:MM:dd HH:mm:ss"));
    return {dateFromEXIFTimeStamp(stamp.toStdString(), m_zone.rules), m_step->value(),
            static_cast<DateSequence::StepperKind>(m_unit->currentIndex())};
}

} // namespace chronomender
