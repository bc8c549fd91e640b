// SPDX-License-Identifier: GPL-3.0-or-later
#include "ZonesSheet.h"

#include "Controls.h"
#include "RowTexts.h"
#include "ZoneList.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <absl/time/clock.h>

#include <array>
#include <utility>

namespace chronomender {
namespace {

ZoneSubject subjectOf(const WindowSession &session, ZonesSheet::Subject subject) {
    ZoneSubject result{session.selectedFolders(), {}, session.mainPic()};
    if (subject == ZonesSheet::Subject::SelectedItems)
        result.items = session.selectedPics();
    return result;
}

std::string titleOf(const ZoneSubject &subject) {
    const std::size_t count = subject.isOfItems() ? subject.items.size() : subject.folders.size();
    if (subject.isOfItems())
        return count == 1 ? text("zones_forItem", {subject.items.front()->spName})
                          : text("zones_forItems", {numberText(count)});
    return count == 1 ? text("zones_forFolder", {subject.folders.front()->sfFolder})
                      : text("zones_forFolders", {numberText(count)});
}

QLabel *plainLabel(const QString &words, QWidget *parent) {
    auto *label = new QLabel(words, parent);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

ZonesSheet::ZonesSheet(WindowSession &session, Subject subject, QWidget *parent)
    : QDialog(parent),
      m_session(session),
      m_subject(subjectOf(session, subject)),
      m_items(clockItems(m_subject)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(qText("zones_title"));
    m_source.present = presentSource(m_subject);
    m_target.present = presentTarget(m_subject);
    auto *layout = new QVBoxLayout(this);
    QLabel *heading = plainLabel(qString(titleOf(m_subject)), this);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    layout->addWidget(heading);
    auto *sides = new QHBoxLayout;
    sides->addWidget(makeSide("zones_source", {System, Named}, m_source));
    sides->addWidget(makeSide("zones_target", {SameAsCamera, OwnStamps, System, Named}, m_target));
    layout->addLayout(sides, 1);
    layout->addWidget(makeClocks());
    auto *buttons = new QDialogButtonBox(this);
    m_apply = buttons->addButton(qText("zones_apply"), QDialogButtonBox::AcceptRole);
    m_apply->setDefault(true);
    buttons->addButton(qText("zones_cancel"), QDialogButtonBox::RejectRole)->setAutoDefault(false);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { apply(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    showPresent(m_source);
    showPresent(m_target);
    refresh();
    m_source.picker->searchField()->setFocus();
    m_worker.run([&zones = session.zones(),
                  at = m_items.date().value_or(absl::Now())] { return ZoneRows(zones, at); },
                 [this](ZoneRows rows) {
                     m_rows = std::move(rows);
                     m_source.picker->setRows(m_rows);
                     m_target.picker->setRows(m_rows);
                 });
}

QGroupBox *ZonesSheet::makeSide(const char *titleKey, const std::vector<Choice> &choices,
                                Side &side) {
    static constexpr std::array<const char *, 4> sourceKeys{"", "", "zones_sourceSystem",
                                                            "zones_sourceNamed"};
    static constexpr std::array<const char *, 4> targetKeys{
        "zones_targetSame", "zones_targetOwn", "zones_targetSystem", "zones_targetNamed"};
    const auto &keys = &side == &m_source ? sourceKeys : targetKeys;
    auto *box = new QGroupBox(qText(titleKey), this);
    auto *layout = new QVBoxLayout(box);
    side.choices = new QButtonGroup(this);
    for (const Choice choice : choices) {
        const QString words = qText(keys[choice], {m_session.zones().systemZone().name});
        auto *button = new QRadioButton(words, box);
        button->setAccessibleName(qText(titleKey) + QStringLiteral(": ") + words);
        side.choices->addButton(button, choice);
        layout->addWidget(button);
    }
    if (side.present.isMixed()) {
        QLabel *mixed = plainLabel(qText("zones_mixed"), box);
        mixed->setWordWrap(true);
        mixed->setForegroundRole(QPalette::PlaceholderText);
        layout->insertWidget(0, mixed);
    }
    side.picker = new ZonePicker(titleKey, box);
    layout->addWidget(side.picker, 1);
    connect(side.choices, &QButtonGroup::idToggled, this, [this](int, bool isOn) {
        if (isOn)
            refresh();
    });
    connect(side.picker, &ZonePicker::zoneChosen, this, [this, &side] {
        side.choices->button(Named)->setChecked(true);
        refresh();
    });
    return box;
}

void ZonesSheet::showPresent(Side &side) {
    if (!side.present.value)
        return;
    const ZoneChoice &present = *side.present.value;
    Choice choice = SameAsCamera;
    if (present.zone()) {
        side.picker->showZone(present.zone()->name);
        choice = Named;
    } else if (present.is(ZoneChoice::Kind::System)) {
        choice = System;
    } else if (present.is(ZoneChoice::Kind::Own)) {
        choice = OwnStamps;
    }
    if (QAbstractButton *button = side.choices->button(choice))
        button->setChecked(true);
}

std::optional<ZoneChoice> ZonesSheet::choiceOf(const Side &side) const {
    switch (side.choices->checkedId()) {
    case SameAsCamera:
        return sameAsCamera(m_subject);
    case OwnStamps:
        return ZoneChoice::marker(ZoneChoice::Kind::Own);
    case System:
        return ZoneChoice::system();
    case Named:
        if (const auto name = side.picker->zoneName())
            if (const auto zone = m_session.zones().zoneWithName(*name))
                return ZoneChoice::named(*zone);
        // Chosen before, and not in the list: a fixed offset.
        return side.present.value && side.present.value->zone() ? side.present.value : std::nullopt;
    default:
        return std::nullopt;
    }
}

std::optional<ZoneChoice> ZonesSheet::wishOf(const Side &side) const {
    std::optional<ZoneChoice> choice = choiceOf(side);
    return choice == side.present.value ? std::nullopt : choice;
}

ZoneWish ZonesSheet::wish() const {
    return {wishOf(m_source), wishOf(m_target)};
}

QGroupBox *ZonesSheet::makeClocks() {
    auto *box = new QGroupBox(qText("zones_worldClock"), this);
    m_clocks = new QGridLayout(box);
    m_clocks->setHorizontalSpacing(3 * fontMetrics().averageCharWidth());
    for (std::size_t item = 0; item < m_items.pics.size(); ++item) {
        const QString words = qText(m_items.titleKeys[item]) + QStringLiteral(": ") +
                              qString(m_items.pics[item]->spName);
        m_clocks->addWidget(plainLabel(words, box), 0, static_cast<int>(item) + 2);
    }
    const auto rows = worldClock(m_items, m_subject, {}, m_session.zones(), 0);
    for (std::size_t clock = 0; clock < rows.size(); ++clock) {
        const int row = static_cast<int>(clock) + 1;
        m_clocks->addWidget(plainLabel(qString(rows[clock].title), box), row, 0);
        m_zoneNames.push_back(plainLabel({}, box));
        m_zoneNames.back()->setForegroundRole(QPalette::PlaceholderText);
        m_clocks->addWidget(m_zoneNames.back(), row, 1);
        m_clock.emplace_back();
        for (std::size_t item = 0; item < m_items.pics.size(); ++item) {
            m_clock.back().push_back(plainLabel({}, box));
            m_clocks->addWidget(m_clock.back().back(), row, static_cast<int>(item) + 2);
        }
    }
    m_clocks->setColumnStretch(1, 1);
    box->setVisible(!m_items.pics.empty());
    return box;
}

void ZonesSheet::refresh() {
    if (!m_apply)
        return;
    const ZoneWish wanted = wish();
    m_apply->setEnabled(wanted.source.has_value() || wanted.target.has_value());
    const auto rows = worldClock(m_items, m_subject, wanted, m_session.zones(),
                                 m_session.defaults().integerForKey("dateComparisonThresold"));
    for (std::size_t clock = 0; clock < rows.size(); ++clock) {
        m_zoneNames[clock]->setText(qString(rows[clock].zoneName));
        for (std::size_t item = 0; item < rows[clock].cells.size(); ++item) {
            const ClockCell &cell = rows[clock].cells[item];
            QLabel *label = m_clock[clock][item];
            label->setText(qString(cell.words));
            QFont font = this->font();
            font.setBold(cell.isOther);
            label->setFont(font);
        }
    }
}

void ZonesSheet::apply() {
    // What was typed is not looked up yet.
    if (m_rows.rows().empty())
        return;
    const ZoneWish wanted = wish();
    const bool isDone = m_session.edit([&](AppController &controller) {
        if (m_subject.isOfItems())
            controller.setZones(m_subject.items, wanted);
        else
            controller.setZones(m_subject.folders, wanted);
    });
    if (isDone)
        accept();
}

} // namespace chronomender
