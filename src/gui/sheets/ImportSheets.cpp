// SPDX-License-Identifier: GPL-3.0-or-later
#include "ImportSheets.h"

#include "Controls.h"
#include "DateFields.h"
#include "QuestionSheet.h"
#include "RowTexts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <memory>

namespace chronomender {
namespace {

using EmptyTags = PerFolderImportOptions::EmptyTags;

QRadioButton *radio(const char *key, QuestionSheet *sheet, bool isOn = false) {
    auto *button = named(new QRadioButton(qText(key), sheet), key);
    button->setChecked(isOn);
    sheet->body()->addWidget(button);
    return button;
}

QCheckBox *check(const char *key, bool isOn, QFormLayout *form) {
    auto *box = named(new QCheckBox(qText(key)), key);
    box->setChecked(isOn);
    form->addRow(box);
    return box;
}

/// A kept preference: the sheet is not shown again.
QCheckBox *dontAskAgain(QuestionSheet *sheet) {
    auto *box = named(new QCheckBox(qText("sheet_dontAskAgain"), sheet), "sheet_dontAskAgain");
    sheet->body()->addWidget(box);
    return box;
}

void keep(UserDefaults &defaults, std::string_view key, bool value) {
    defaults.set(key, value ? "1" : "0");
}

} // namespace

void openEmptyTagsSheet(const MySingleFolderPtr &folder, WindowSession &session, QWidget *parent,
                        const std::function<void(PerFolderImportOptions)> &answer) {
    auto *sheet =
        new QuestionSheet(text("emptyTags_message", {folder ? folder->sfFolder : std::string()}),
                          text("emptyTags_information"), parent);
    QRadioButton *fileDate = radio("emptyTags_fileDate", sheet, true);
    QRadioButton *fixedDate = radio("emptyTags_fixedDate", sheet);
    auto *sequence = new DateSequenceFields(session.zones().systemZone(), sheet);
    sequence->setEnabled(false);
    sheet->body()->addWidget(sequence);
    QRadioButton *leaveAlone = radio("emptyTags_leaveAlone", sheet);
    QObject::connect(fixedDate, &QRadioButton::toggled, sequence, &QWidget::setEnabled);
    QCheckBox *dontAsk = dontAskAgain(sheet);
    sheet->addButton("sheet_continue", QDialogButtonBox::AcceptRole, [=, &session] {
        PerFolderImportOptions options;
        options.withEmptyExifFixDate = fixedDate->isChecked()    ? EmptyTags::FixedDate
                                       : leaveAlone->isChecked() ? EmptyTags::LeaveAlone
                                                                 : EmptyTags::FileDate;
        if (fixedDate->isChecked()) {
            options.prefFixDateDate = sequence->sequence().date;
            options.step = sequence->sequence().step();
        }
        if (dontAsk->isChecked() && fileDate->isChecked())
            keep(session.defaults(), "skipEmptyTagImportOptions", true);
        answer(options);
    });
    sheet->setDismissed([answer] {
        PerFolderImportOptions options;
        options.withEmptyExifFixDate = EmptyTags::LeaveAlone;
        answer(options);
    });
    sheet->open();
}

void openMovieOptionsSheet(const MySingleFolderPtr &folder, WindowSession &session, QWidget *parent,
                           const std::function<void(MovieOptions)> &answer) {
    UserDefaults &defaults = session.defaults();
    const MovieOptions stored{defaults.boolForKey("isMDTADateEnabled"),
                              defaults.boolForKey("isMVHDTimezoneCorrectionEnabled")};
    auto *sheet =
        new QuestionSheet(text("movieOptions_message", {folder ? folder->sfFolder : std::string()}),
                          text("movieOptions_information"), parent);
    QRadioButton *utc = radio("movieOptions_utc", sheet, !stored.isMVHDTimezoneCorrectionEnabled);
    QRadioButton *local =
        radio("movieOptions_local", sheet, stored.isMVHDTimezoneCorrectionEnabled);
    auto *metadata =
        named(new QCheckBox(qText("movieOptions_metadata"), sheet), "movieOptions_metadata");
    metadata->setChecked(stored.isMDTADateEnabled);
    sheet->body()->addWidget(metadata);
    QCheckBox *dontAsk = dontAskAgain(sheet);
    (stored.isMVHDTimezoneCorrectionEnabled ? local : utc)->setFocus();
    sheet->addButton("sheet_continue", QDialogButtonBox::AcceptRole, [=, &defaults] {
        if (dontAsk->isChecked()) {
            keep(defaults, "useMovieOptionsQTValuesWithoutShowingSheet", true);
            keep(defaults, "isMDTADateEnabled", metadata->isChecked());
            keep(defaults, "isMVHDTimezoneCorrectionEnabled", local->isChecked());
        }
        answer({metadata->isChecked(), local->isChecked()});
    });
    sheet->setDismissed([answer, stored] { answer(stored); });
    sheet->open();
}

namespace {

/// The fields of the options of one import, and what they say.
class ImportOptionsFields {
public:
    ImportOptionsFields(QuestionSheet *sheet, const WindowSession &session)
        : m_defaults(session.defaults()) {
        auto *form = new QFormLayout;
        sheet->body()->addLayout(form);
        m_subfolders = check("importOptions_subfolders",
                             m_defaults.boolForKey("isSubFolderAutoImportEnabled"), form);
        m_depth = named(new QSpinBox, "importOptions_depth");
        m_depth->setRange(1, mostDepth);
        m_depth->setValue(std::max(1, m_defaults.integerForKey("subFolderAutoImportMaxDepth")));
        form->addRow(qText("importOptions_depth"), m_depth);
        m_groups = check("importOptions_groups", m_defaults.boolForKey("createFileGroups"), form);
        m_ignore = check("importOptions_ignoreDates", false, form);
        m_single = check("importOptions_single", m_defaults.boolForKey("folderMode"), form);
        addFilter(form);
        addZone(form, session.zones());
        m_hasSequence = check("importOptions_sequence", false, form);
        m_sequence = new DateSequenceFields(session.zones().systemZone(), sheet);
        m_sequence->setEnabled(false);
        form->addRow(m_sequence);
        QObject::connect(m_hasSequence, &QCheckBox::toggled, m_sequence, &QWidget::setEnabled);
    }

    KeyStates keyStates(const Zones &zones, UserDefaults &defaults) const {
        KeyStates states;
        states.isEXIFIgnored = m_ignore->isChecked();
        states.sfEditMode = m_single->isChecked() ? EditMode::Single : EditMode::Together;
        states.isSubFolderAutoImportEnabled = m_subfolders->isChecked();
        states.subFolderAutoImportMaxDepth = m_depth->value();
        states.createFileGroups = m_groups->isChecked();
        if (m_filterKind->currentIndex() > 0) {
            const std::string words = m_filter->text().toStdString();
            defaults.set("tioFilterValues", words);
            states.filter = ExtensionFilter{words, m_filterKind->currentIndex() == 1
                                                       ? ExtensionFilter::Kind::Keep
                                                       : ExtensionFilter::Kind::Remove};
        }
        if (m_hasSequence->isChecked())
            states.dateSequence = m_sequence->sequence();
        if (const auto zone = zones.zoneWithName(m_zone->currentText().toStdString()))
            states.adaptedZone.source = ZoneChoice::named(*zone);
        return states;
    }

private:
    static constexpr int mostDepth = 100;

    void addFilter(QFormLayout *form) {
        m_filterKind = named(new QComboBox, "importOptions_filterKind");
        for (const char *key : {"importOptions_allFiles", "importOptions_onlyExtensions",
                                "importOptions_notExtensions"})
            m_filterKind->addItem(qText(key));
        m_filter = named(new QLineEdit(qString(m_defaults.stringForKey("tioFilterValues"))),
                         "importOptions_extensions");
        m_filter->setEnabled(false);
        QObject::connect(m_filterKind, &QComboBox::currentIndexChanged, m_filter,
                         [field = m_filter](int index) { field->setEnabled(index > 0); });
        form->addRow(qText("importOptions_filterKind"), m_filterKind);
        form->addRow(qText("importOptions_extensions"), m_filter);
    }

    void addZone(QFormLayout *form, const Zones &zones) {
        m_zone = named(new QComboBox, "importOptions_zone");
        m_zone->setEditable(true);
        m_zone->addItem(QString());
        for (const std::string &name : zones.zoneNames())
            m_zone->addItem(qString(name));
        m_zone->lineEdit()->setAccessibleName(m_zone->accessibleName());
        m_zone->lineEdit()->setPlaceholderText(qText("importOptions_systemZone"));
        form->addRow(qText("importOptions_zone"), m_zone);
    }

    const UserDefaults &m_defaults;
    QCheckBox *m_subfolders, *m_groups, *m_ignore, *m_single, *m_hasSequence;
    QSpinBox *m_depth;
    QComboBox *m_filterKind, *m_zone;
    QLineEdit *m_filter;
    DateSequenceFields *m_sequence;
};

} // namespace

void openImportOptionsSheet(const std::vector<std::string> &paths, WindowSession &session,
                            QWidget *parent,
                            const std::function<void(std::optional<KeyStates>)> &answer) {
    const std::string message = paths.size() == 1
                                    ? text("importOptions_messageOne")
                                    : text("importOptions_messageMany", {numberText(paths.size())});
    auto *sheet = new QuestionSheet(message, text("importOptions_information"), parent);
    const auto fields = std::make_shared<ImportOptionsFields>(sheet, session);
    sheet->addButton("importOptions_accept", QDialogButtonBox::AcceptRole, [=, &session] {
        answer(fields->keyStates(session.zones(), session.defaults()));
    });
    sheet->addButton("sheet_cancel", QDialogButtonBox::RejectRole,
                     [answer] { answer(std::nullopt); });
    sheet->setDismissed([answer] { answer(std::nullopt); });
    sheet->open();
}

} // namespace chronomender
