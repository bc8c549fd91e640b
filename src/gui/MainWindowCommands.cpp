// SPDX-License-Identifier: GPL-3.0-or-later
#include "ActionSet.h"
#include "AlignSheet.h"
#include "Controls.h"
#include "FilterBar.h"
#include "FilterSheet.h"
#include "FolderPanel.h"
#include "InspectorPanel.h"
#include "MainWindow.h"
#include "PreferencesSheet.h"
#include "PreviewPanel.h"
#include "RenameSheet.h"
#include "RunSheets.h"
#include "ShiftBar.h"
#include "StripArea.h"
#include "ZonesSheet.h"

#include <QAction>
#include <QDesktopServices>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMenu>
#include <QUrl>

#include <algorithm>

// What the commands of the window do.

namespace chronomender {
namespace {

using enum CommandId;

const std::vector<CommandId> folderMenu{
    FolderZones,   ResetShift,        TogetherMode,     SingleMode,    MovieClock,   Save,
    RenameCurrent, SelectFolderItems, OnlyTheseFolders, FolderToShelf, RemoveFolders};
const std::vector<CommandId> itemMenu{MoveWithArrows, ItemZones,      EarlierReading,
                                      AddMissingTags, OpenItem,       Keeper,
                                      Rejected,       NoMark,         ToShelf,
                                      FromShelf,      AlignSelected,  AlignMinimizingGaps,
                                      AlignFilename,  AlignReversing, AlignReversingAlt};

/// In the one that the desktop keeps for such files.
void openInAnotherProgram(const MySinglePicPtr &pic) {
    if (pic)
        QDesktopServices::openUrl(QUrl::fromLocalFile(qString(pic->spPath())));
}

} // namespace

void MainWindow::run(CommandId id) {
    if (!runInSession(id, *m_session))
        runInWindow(id);
    m_actions->refresh();
}

void MainWindow::connectMenus() {
    const auto menuOf = [this](const std::vector<CommandId> &ids) {
        return [this, &ids](const QPoint &place) {
            m_actions->refresh();
            m_actions->contextMenu(ids, this)->popup(place);
        };
    };
    connect(m_folders, &FolderPanel::menuWanted, this, menuOf(folderMenu));
    connect(m_preview, &PreviewPanel::addWanted, this, [this] { run(AddFolders); });
    connect(m_preview, &PreviewPanel::mainActivated, this, [this] { run(OpenItem); });
    connect(m_filter, &FilterBar::editorWanted, this, [this] { run(EditFilter); });
    connect(m_strips, &StripArea::menuWanted, this, menuOf(itemMenu));
    connect(m_strips, &StripArea::activated, this, [this] { run(OpenItem); });
    connect(m_inspector, &InspectorPanel::zonesWanted, this, [this] { run(ItemZones); });
    connect(m_inspector, &InspectorPanel::errorsWanted, this, [this] { run(CommandId::ErrorLog); });
}

struct MainWindow::WindowAction {
    CommandId id;
    void (*run)(MainWindow &);
};

void MainWindow::runInWindow(CommandId id) {
    static constexpr WindowAction actions[] = {
        {AddFolders, [](auto &window) { window.chooseFolders(false); }},
        {AddWithOptions, [](auto &window) { window.chooseFolders(true); }},
        {RenameCurrent, [](auto &window) { window.openRename(RenameSheetRequest::RenameCurrent); }},
        {RenameAll, [](auto &window) { window.openRename(RenameSheetRequest::RenameAll); }},
        {SaveAndRename, [](auto &window) { window.openRename(RenameSheetRequest::SaveAll); }},
        {CommandId::ErrorLog, [](auto &window) { openErrorLogSheet(&window); }},
        {Preferences, [](auto &window) { window.openPreferences(); }},
        {Quit, [](auto &window) { window.close(); }},
        {Find, [](auto &window) { window.m_filter->focusWords(); }},
        {EditFilter, [](auto &window) { window.openFilter(); }},
        {MoveWithArrows, [](auto &window) { window.m_strips->beginMoveWithArrows(); }},
        {OpenItem, [](auto &window) { openInAnotherProgram(window.m_session->mainPic()); }},
        {ItemZones, [](auto &window) { window.openZones(true); }},
        {FolderZones, [](auto &window) { window.openZones(false); }},
        {AlignSelected, [](auto &window) { (new AlignSheet(*window.m_session, &window))->open(); }},
        {OtherStrip, [](auto &window) { window.goToOtherStrip(); }},
        {LargerThumbs, [](auto &window) { window.m_strips->enlargeThumbs(1); }},
        {SmallerThumbs, [](auto &window) { window.m_strips->enlargeThumbs(-1); }},
        {FocusFolders,
         [](auto &window) { window.m_folders->list().setFocus(Qt::ShortcutFocusReason); }},
        {FocusStrip, [](auto &window) { window.m_strips->focusStrip(); }},
        {FocusInspector,
         [](auto &window) { window.m_inspector->setFocus(Qt::ShortcutFocusReason); }},
        {FocusShift, [](auto &window) { window.m_shift->focusFields(); }},
        {FullScreen,
         [](auto &window) { window.setWindowState(window.windowState() ^ Qt::WindowFullScreen); }},
        {Shortcuts, [](auto &window) { openShortcutsSheet(&window); }},
        {About, [](auto &window) { openAboutSheet(&window); }},
    };
    const auto found = std::ranges::find(actions, id, &WindowAction::id);
    if (found != std::end(actions))
        found->run(*this);
}

void MainWindow::chooseFolders(bool withOptions) {
    auto *dialog = new QFileDialog(this, qText("chooseFolders_title"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::Directory);
    connect(dialog, &QFileDialog::filesSelected, this, [this, withOptions](const QStringList &all) {
        std::vector<std::string> paths;
        for (const QString &path : all)
            paths.push_back(path.toStdString());
        if (withOptions)
            m_session->openPathsWithOptions(paths);
        else
            m_session->openPaths(paths);
    });
    dialog->open();
}

void MainWindow::goToOtherStrip() {
    m_session->select([](MyTimelinesController &timelines) {
        timelines.setMirrorFirstRespState(!timelines.mirrorFirstRespState());
    });
    m_strips->focusStrip();
}

void MainWindow::openFilter() {
    m_filter->finishTyping();
    (new FilterSheet(*m_session, this))->open();
}

void MainWindow::openZones(bool ofItems) {
    using enum ZonesSheet::Subject;
    (new ZonesSheet(*m_session, ofItems ? SelectedItems : SelectedFolders, this))->open();
}

void MainWindow::openPreferences() {
    auto *sheet = new PreferencesSheet(*m_session, this);
    connect(sheet, &PreferencesSheet::preferenceChanged, this, [this] {
        applyThumbnailPreferences();
        m_strips->refreshLook();
    });
    sheet->open();
}

void MainWindow::applyThumbnailPreferences() {
    const UserDefaults &defaults = m_session->defaults();
    ThumbnailSettings settings;
    // A screen of high density shows a cell with more pixels than the usual thumbnail has.
    settings.vqsFspUsesHigherResScrollingAtTheCostOfMuchRam =
        qGuiApp->devicePixelRatio() > 1 ||
        defaults.boolForKey("vqsFspUsesHigherResScrollingAtTheCostOfMuchRam");
    settings.rawJpgDisplayType =
        static_cast<RawJpgDisplayType>(defaults.integerForKey("groupDisplayRawJpgPreviewDefault"));
    settings.autoBGThumbGeneration = defaults.boolForKey("autoBGThumbGeneration");
    settings.autoThumbMode = defaults.boolForKey("autoThumbMode");
    m_session->setThumbnailSettings(settings);
}

void MainWindow::openRename(RenameSheetRequest request) {
    RenameSheet::openFor(request, *m_session, this);
}

} // namespace chronomender
