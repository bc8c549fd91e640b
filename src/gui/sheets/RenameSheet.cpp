// SPDX-License-Identifier: GPL-3.0-or-later
#include "RenameSheet.h"

#include "Controls.h"
#include "RenameSheetOptions.h"
#include "RenameSheetRows.h"
#include "SaveBeforeRename.h"
#include "TemplateEditor.h"
#include "TemplateNames.h"
#include "TemplateStore.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTableView>
#include <QVBoxLayout>

#include <utility>

namespace chronomender {
namespace {

constexpr const char *highlightingKey = "rename_hideElementHighlighting";

const char *titleKey(RenameSheetType type) {
    switch (type) {
    case RenameSheetType::Current:
        return "rename_titleCurrent";
    case RenameSheetType::All:
        return "rename_titleAll";
    case RenameSheetType::SaveCurrent:
        return "rename_titleSaveCurrent";
    case RenameSheetType::SaveAll:
        break;
    }
    return "rename_titleSaveAll";
}

} // namespace

/// The dry run outlives a sheet that is closed meanwhile: then nobody takes what it found.
struct RenameSheet::PendingCheck {
    QPointer<RenameSheet> sheet;
    std::shared_ptr<Job> job;
    bool wasCancelled = false;
};

void RenameSheet::openFor(RenameSheetRequest request, WindowSession &session, QWidget *window) {
    const auto open = [&session, window = QPointer(window)](RenameSheetRequest wanted) {
        (new RenameSheet(wanted, session, window))->open();
    };
    const RenameSheetViews views = session.renameSheetViews();
    const auto type = renameSheetTypeOf(request);
    const bool isRename = type == RenameSheetType::Current || type == RenameSheetType::All;
    const auto question = isRename ? confirmSaveBeforeRename(request, views) : std::nullopt;
    if (!question)
        return open(request);
    session.questions().confirm(
        {*question, text("rename_saveFirstInformation"), text("rename_saveFirst")},
        [&session, request, views, open](Answer answer) {
            if (answer == Answer::Accepted)
                open(saveInPlaceOfRename(request, views, session.defaults()));
        });
}

RenameSheet::RenameSheet(RenameSheetRequest request, WindowSession &session, QWidget *parent)
    : QDialog(parent),
      m_session(session),
      m_controller(request, session.renameSheetViews(), session.defaults(), session.zones()) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(qText(titleKey(m_controller.items().renameSheetType())));
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(makeTemplateLine());
    auto *middle = new QHBoxLayout;
    middle->addWidget(makeOptions(), 2);
    middle->addWidget(makeRows(), 5);
    layout->addLayout(middle, 1);
    m_summary = new QLabel(this);
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    layout->addWidget(m_summary);
    layout->addLayout(makeButtons());
    const QFontMetrics metrics = fontMetrics();
    constexpr int characters = 130, lines = 32;
    resize(characters * metrics.averageCharWidth(), lines * metrics.lineSpacing());
    refreshTemplates();
    connect(m_options, &RenameSheetOptions::changed, this, &RenameSheet::choicesChanged);
    connect(&m_session.saveFlow(), &SaveFlow::stageChanged, this, &RenameSheet::refreshSummary);
    refreshSummary();
    m_templateMenu->setFocus();
}

RenameSheet::~RenameSheet() = default;

QLayout *RenameSheet::makeTemplateLine() {
    auto *layout = new QHBoxLayout;
    auto *label = new QLabel(qText("rename_template"), this);
    m_templateMenu = new QComboBox(this);
    named(m_templateMenu, "rename_templateName");
    m_templateMenu->setItemDelegate(new StyledNameDelegate(m_templateMenu));
    label->setBuddy(m_templateMenu);
    layout->addWidget(label);
    layout->addWidget(m_templateMenu, 1);
    const auto addButton = [&](const char *key, bool isNew) {
        auto *button = new QPushButton(qText(key), this);
        named(button, key);
        button->setAutoDefault(false);
        layout->addWidget(button);
        connect(button, &QPushButton::clicked, this, [this, isNew] { editTemplate(isNew); });
        return button;
    };
    m_edit = addButton("rename_templateEdit", false);
    addButton("rename_templateNew", true);
    connect(m_templateMenu, &QComboBox::activated, this, [this] { chooseTemplate(); });
    return layout;
}

QWidget *RenameSheet::makeOptions() {
    m_options = new RenameSheetOptions(m_session, m_controller, this);
    auto *area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(m_options);
    area->setMinimumWidth(m_options->minimumSizeHint().width() +
                          area->verticalScrollBar()->sizeHint().width());
    return area;
}

QWidget *RenameSheet::makeRows() {
    auto *box = new QWidget(this);
    auto *layout = new QVBoxLayout(box);
    layout->setContentsMargins({});
    m_rows = new RenameSheetRows(m_controller, this);
    m_table = named(new QTableView(box), "rename_rows");
    m_table->setModel(m_rows);
    m_delegate = new StyledNameDelegate(m_table);
    m_table->setItemDelegateForColumn(RenameSheetRows::New, m_delegate);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    m_table->setShowGrid(false);
    m_table->setAlternatingRowColors(true);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->horizontalHeader()->setHighlightSections(false);
    layout->addWidget(m_table, 1);
    auto *tints = named(new QCheckBox(qText("rename_tints"), box), "rename_tintsName");
    tints->setChecked(!m_session.defaults().boolForKey(highlightingKey));
    m_delegate->setTinted(tints->isChecked());
    connect(tints, &QCheckBox::toggled, this, [this](bool isOn) {
        m_session.defaults().set(highlightingKey, isOn ? "0" : "1");
        m_delegate->setTinted(isOn);
        m_table->viewport()->update();
    });
    layout->addWidget(tints);
    return box;
}

QLayout *RenameSheet::makeButtons() {
    auto *layout = new QHBoxLayout;
    const auto addButton = [&](const char *key, auto pressed) {
        auto *button = named(new QPushButton(qText(key), this), key);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, pressed);
        layout->addWidget(button);
        return button;
    };
    m_check = addButton("rename_check", [this] { startCheck(); });
    m_next = addButton("rename_next", [this] {
        if (const auto row = m_rows->nextMarked(m_table->currentIndex().row()))
            m_table->setCurrentIndex(m_rows->index(*row, RenameSheetRows::New));
    });
    m_checkResult = new QLabel(this);
    m_checkResult->setTextFormat(Qt::PlainText);
    m_checkResult->setWordWrap(true);
    layout->addWidget(m_checkResult, 1);
    addButton("rename_cancel", [this] { reject(); });
    m_start = addButton("rename_start", [this] { start(); });
    m_start->setDefault(true);
    return layout;
}

void RenameSheet::refreshTemplates() {
    const QSignalBlocker quiet(m_templateMenu);
    m_templates = updateTemplatePopup(m_session.defaults(), m_session.zones());
    m_templateMenu->clear();
    // The first entry stands for the closed menu, which a combo box shows by itself.
    for (std::size_t i = 1; i < m_templates.size(); ++i) {
        m_templateMenu->addItem(qString(m_templates[i].name));
        m_templateMenu->setItemData(static_cast<int>(i) - 1,
                                    QVariant::fromValue(m_templates[i].aName),
                                    StyledNameDelegate::role);
    }
    m_templateMenu->setCurrentIndex(
        m_session.defaults().integerForKey("sortedTemplatesSelectedIndex") - 1);
    m_edit->setEnabled(m_templateMenu->currentIndex() >= 0);
}

void RenameSheet::chooseTemplate() {
    templateSelected(m_templates, static_cast<std::size_t>(m_templateMenu->currentIndex() + 1),
                     m_session.defaults());
    choicesChanged();
}

void RenameSheet::editTemplate(bool isNew) {
    auto *editor = new TemplateEditor(m_session, m_controller, isNew, this);
    connect(editor, &TemplateEditor::templatesChanged, this, [this] {
        refreshTemplates();
        choicesChanged();
    });
    editor->open();
}

void RenameSheet::choicesChanged() {
    m_controller.settingsChanged();
    m_options->refresh();
    m_rows->refresh();
    refreshSummary();
}

bool RenameSheet::isRenaming() {
    const RenameSheetItems &items = m_controller.items();
    const auto type = items.renameSheetType();
    return type == RenameSheetType::Current || type == RenameSheetType::All ||
           items.renameAtSave() != RenameAtSave::Nothing;
}

void RenameSheet::refreshSummary() {
    const bool isRename = isRenaming();
    const bool hasNames = !isRename || m_controller.choices().has_value();
    const bool isIdle = m_session.saveFlow().isIdle() && !m_pending;
    const auto request = m_controller.items().saveRequest();
    const bool canStart = request.has_value() && hasNames && isIdle;
    m_table->setEnabled(isRename);
    m_summary->setText(!isRename   ? qText("rename_nothingRenamed")
                       : !hasNames ? qText("rename_noTemplate")
                       : request   ? qString(m_controller.renameSummaryString())
                                   : qText("rename_nothingToDo"));
    const bool isSaving = request && request->type != SaveProcessType::Rename;
    m_start->setText(qText(!isSaving  ? "rename_start"
                           : isRename ? "rename_startSaveRename"
                                      : "rename_startSave"));
    m_start->setEnabled(canStart);
    m_check->setEnabled(canStart && isRename);
    const auto &check = m_rows->check();
    m_next->setEnabled(check && check->numbered() + check->refused() > 0);
    m_checkResult->setText(m_pending ? qText("rename_checking")
                           : check   ? qString(check->summary())
                                     : QString());
}

void RenameSheet::startCheck() {
    const auto request = m_controller.items().saveRequest();
    if (!request || m_pending || !m_session.saveFlow().isIdle())
        return;
    AppController &app = m_session.controller();
    m_pending = std::make_shared<PendingCheck>();
    m_pending->sheet = this;
    const std::weak_ptr<PendingCheck> weak = m_pending;
    m_pending->job =
        m_session.jobs().begin(JobKind::RenamePreview, text("rename_checking"), [weak, &app] {
            if (const auto pending = weak.lock())
                pending->wasCancelled = true;
            app.cancellation().request();
        });
    app.setRenameChoices(m_controller.choices());
    app.startRenamePreview(
        *request,
        [job = std::weak_ptr(m_pending->job)](std::size_t done, std::size_t total) {
            if (const auto alive = job.lock())
                alive->report(done, total);
        },
        [pending = m_pending, &app](const std::vector<ItemRename> &outcomes) {
            app.setRenameChoices(std::nullopt);
            pending->job.reset();
            if (pending->wasCancelled)
                app.cancellation().clear();
            if (pending->sheet)
                pending->sheet->checked(pending->wasCancelled ? std::vector<ItemRename>()
                                                              : outcomes);
        });
    m_options->setEnabled(false);
    m_templateMenu->setEnabled(false);
    refreshSummary();
}

void RenameSheet::checked(const std::vector<ItemRename> &outcomes) {
    const bool wasCancelled = m_pending->wasCancelled;
    m_pending.reset();
    if (m_resultWaiting)
        return QDialog::done(*m_resultWaiting);
    m_options->setEnabled(true);
    m_templateMenu->setEnabled(true);
    if (!wasCancelled)
        m_rows->setCheck(RenameCheck(outcomes));
    refreshSummary();
}

void RenameSheet::start() {
    const auto request = m_controller.items().saveRequest();
    if (!request || m_pending)
        return;
    if (m_session.saveFlow().start(*request, isRenaming() ? m_controller.choices() : std::nullopt))
        accept();
}

void RenameSheet::done(int result) {
    if (!m_pending)
        return QDialog::done(result);
    // Nothing may change while the dry run reads: it is asked to stop, and the sheet stays so long.
    m_resultWaiting = result;
    setEnabled(false);
    m_session.jobs().cancel(JobKind::RenamePreview);
}

} // namespace chronomender
