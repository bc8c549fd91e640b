// SPDX-License-Identifier: GPL-3.0-or-later
#include "MainWindow.h"

#include "ActionSet.h"
#include "Controls.h"
#include "DroppedPaths.h"
#include "FilterBar.h"
#include "FolderPanel.h"
#include "InspectorPanel.h"
#include "JobBar.h"
#include "PreviewPanel.h"
#include "ShiftBar.h"
#include "StripArea.h"
#include "WindowMemory.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

#include <utility>

namespace chronomender {
namespace {

/// How a splitter shares its room between its parts, in shares.
void share(QSplitter *splitter, std::initializer_list<int> shares) {
    int part = 0;
    QList<int> sizes;
    for (const int each : shares) {
        splitter->setStretchFactor(part++, each);
        sizes.append(each * 100);
    }
    splitter->setSizes(sizes);
    splitter->setChildrenCollapsible(false);
}

} // namespace

MainWindow::MainWindow(AppServices services)
    : m_session(std::make_unique<WindowSession>(std::move(services), m_questions)) {
    applyThumbnailPreferences();
    m_questions.setWindow(this, m_session.get());
    setAcceptDrops(true);
    m_actions = new ActionSet(*this, *m_session, [this](CommandId id) { run(id); });
    layOut();
    connectSession();
    connectMenus();
    m_refresh.setSingleShot(true);
    connect(&m_refresh, &QTimer::timeout, this, &MainWindow::refresh);
    refresh();
}

/// Panels and sheets look at the session until their end, so they go first.
MainWindow::~MainWindow() {
    qDeleteAll(findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly));
}

void MainWindow::layOut() {
    WindowSession &session = *m_session;
    auto *panels = new QSplitter(Qt::Horizontal);
    panels->addWidget(m_folders = new FolderPanel(session));
    panels->addWidget(m_preview = new PreviewPanel(session));
    panels->addWidget(m_inspector = new InspectorPanel(session));
    share(panels, {3, 7, 4});

    auto *timeline = new QWidget;
    auto *below = new QVBoxLayout(timeline);
    below->setContentsMargins({});
    below->addWidget(m_filter = new FilterBar(session));
    below->addWidget(m_strips = new StripArea(session), 1);
    below->addWidget(m_shift = new ShiftBar(session));

    auto *all = new QSplitter(Qt::Vertical);
    all->addWidget(panels);
    all->addWidget(timeline);
    share(all, {1, 0});
    all->setSizes({timeline->sizeHint().height() * 2, timeline->sizeHint().height()});
    setCentralWidget(all);
    statusBar()->addWidget(new JobBar(session), 1);
    addToolBar(makeToolBar());
    WindowMemory(session.defaults()).restore(*this, splitters());
    m_strips->setThumbSize(session.defaults().integerForKey("timelineThumbSize"));
    const QFontMetrics metrics = fontMetrics();
    resize(metrics.averageCharWidth() * 190, metrics.lineSpacing() * 52);
}

/// The steps of a trip, from left to right.
QToolBar *MainWindow::makeToolBar() {
    auto *bar = new QToolBar(qText("toolBar_title"));
    bar->setObjectName(QStringLiteral("toolBar"));
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    using enum CommandId;
    const std::vector<std::vector<CommandId>> groups{
        {AddFolders}, {Undo, Redo}, {FolderZones, ResetShift}, {SaveAll, RenameAll}};
    for (const auto &group : groups) {
        if (!bar->actions().isEmpty())
            bar->addSeparator();
        for (const CommandId id : group)
            bar->addAction(m_actions->action(id));
    }
    bar->toggleViewAction()->setVisible(false);
    return bar;
}

std::vector<QSplitter *> MainWindow::splitters() const {
    const auto found = centralWidget()->findChildren<QSplitter *>();
    std::vector<QSplitter *> all{qobject_cast<QSplitter *>(centralWidget())};
    all.insert(all.end(), found.begin(), found.end());
    return all;
}

void MainWindow::connectSession() {
    const auto soon = [this] {
        if (!m_refresh.isActive())
            m_refresh.start(0);
    };
    connect(m_session.get(), &WindowSession::foldersChanged, this, soon);
    connect(m_session.get(), &WindowSession::listChanged, this, soon);
    connect(m_session.get(), &WindowSession::selectionChanged, this, soon);
    connect(m_session.get(), &WindowSession::stripsChanged, this, soon);
    connect(m_session.get(), &WindowSession::undoChanged, this, soon);
    connect(&m_session->jobs(), &Jobs::changed, this, soon);
    connect(&m_session->saveFlow(), &SaveFlow::ended, this, [this] { closeAfterSave(); });
}

void MainWindow::refresh() {
    m_actions->refresh();
    showTitle();
}

void MainWindow::showTitle() {
    QStringList names;
    for (const MySingleFolderPtr &folder : m_session->selectedFolders())
        names.append(qString(folder->sfFolder));
    setWindowTitle(names.isEmpty() ? QStringLiteral("[*]")
                                   : names.join(QStringLiteral(", ")) + QStringLiteral("[*]"));
    setWindowModified(m_session->hasUnsavedChanges());
}

void MainWindow::changeEvent(QEvent *event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        m_session->checkFolders();
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event) {
    if (!draggedPaths(event->mimeData()).empty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent *event) {
    openDropped(*event, *m_session);
}

/// Until sessions are kept, closing loses what was not saved: so it asks.
void MainWindow::closeEvent(QCloseEvent *event) {
    const bool isBusy = !m_session->saveFlow().isIdle();
    if (m_mayClose || (!isBusy && !m_session->hasUnsavedChanges())) {
        m_session->jobs().cancelAll();
        keepLook();
        event->accept();
        return;
    }
    event->ignore();
    if (isBusy)
        m_session->tell(text("status_waitForSave"));
    else
        askBeforeClosing();
}

/// For the next start.
void MainWindow::keepLook() {
    WindowMemory(m_session->defaults()).keep(*this, splitters());
    m_session->defaults().set("timelineThumbSize", std::to_string(m_strips->thumbSize()));
}

void MainWindow::askBeforeClosing() {
    const Confirmation question{text("closing_message"), text("closing_information"),
                                text("closing_save"), text("closing_discard")};
    m_session->questions().confirm(question, [this](Answer answer) {
        if (answer == Answer::Cancelled)
            return;
        m_mayClose = answer == Answer::Discarded;
        m_closesAfterSave = answer == Answer::Accepted;
        if (m_mayClose)
            close();
        else
            m_session->save(true);
        // Refused, it must not close the window at some later time.
        m_closesAfterSave = m_closesAfterSave && !m_session->saveFlow().isIdle();
    });
}

/// Only when all was written: what failed is still to be seen.
void MainWindow::closeAfterSave() {
    if (std::exchange(m_closesAfterSave, false) && !m_session->hasUnsavedChanges())
        QTimer::singleShot(0, this, [this] { close(); });
}

} // namespace chronomender
