// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SheetQuestions.h"
#include "WindowCommands.h"
#include "WindowSession.h"

#include <QMainWindow>
#include <QTimer>

#include <memory>
#include <string>
#include <vector>

class QSplitter;
class QToolBar;

namespace chronomender {

class ActionSet;
class FilterBar;
class FolderPanel;
class InspectorPanel;
class PreviewPanel;
class ShiftBar;
class StripArea;

/// The window: folders on the left, the main picture and its neighbours in the middle, what is
/// known of it on the right, the timeline below, and the shift at the bottom. It owns its session.
/// Main thread.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(AppServices services);
    ~MainWindow() override;

    WindowSession &session() { return *m_session; }
    /// Does a command as its menu entry would.
    void run(CommandId id);

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void layOut();
    QToolBar *makeToolBar();
    std::vector<QSplitter *> splitters() const;
    void keepLook();
    void connectSession();
    void connectMenus();
    void refresh();
    void showTitle();
    struct WindowAction;
    void runInWindow(CommandId id);
    void chooseFolders(bool withOptions);
    void goToOtherStrip();
    void openFilter();
    void openZones(bool ofItems);
    void openPreferences();
    void applyThumbnailPreferences();
    void openRename(RenameSheetRequest request);
    void askBeforeClosing();
    void closeAfterSave();

    SheetQuestions m_questions;
    std::unique_ptr<WindowSession> m_session;
    ActionSet *m_actions = nullptr;
    FolderPanel *m_folders = nullptr;
    PreviewPanel *m_preview = nullptr;
    InspectorPanel *m_inspector = nullptr;
    FilterBar *m_filter = nullptr;
    StripArea *m_strips = nullptr;
    ShiftBar *m_shift = nullptr;
    QTimer m_refresh; ///< many changes, one look
    bool m_mayClose = false, m_closesAfterSave = false;
};

} // namespace chronomender
