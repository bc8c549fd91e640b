// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AppController.h"
#include "DropPlan.h"
#include "Jobs.h"
#include "MyCompoundFolder.h"
#include "Previews.h"
#include "RenameSheetItems.h"
#include "SaveFlow.h"
#include "SourceViews.h"
#include "Thumbnails.h"
#include "WindowQuestions.h"
#include "WorkThread.h"

#include <QObject>

#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace chronomender {

/// What one window shows and does, without a widget: the session's controller, what is selected,
/// what is being read or written, and one road for every change, so that all views hear of it.
///
/// A view reads the session when a signal tells it to, and changes it through `edit` or `select`.
/// While a save runs nothing can be changed; a folder that is being read stands in the list, but
/// takes no part before it is there. Main thread.
class WindowSession : public QObject, private ImportQuestions, private SourceViews {
    Q_OBJECT
public:
    /// `questions` outlives the session.
    WindowSession(AppServices services, WindowQuestions &questions, QObject *parent = nullptr);
    ~WindowSession() override;

    AppController &controller() { return *m_controller; }
    const AppController &controller() const { return *m_controller; }
    const Zones &zones() const { return m_controller->zones(); }
    UserDefaults &defaults() { return m_controller->defaults(); }
    const UserDefaults &defaults() const { return controller().defaults(); }
    MyTimelinesController &timelines() { return m_controller->timelines(); }
    Thumbnails &thumbnails() { return *m_thumbnails; }
    Previews &previews() { return *m_previews; }
    /// Holds at once: thumbnails and previews that are others by it are made anew.
    void setThumbnailSettings(const ThumbnailSettings &settings);
    Jobs &jobs() { return m_jobs; }
    const Jobs &jobs() const { return m_jobs; }
    SaveFlow &saveFlow() { return *m_saveFlow; }
    const SaveFlow &saveFlow() const { return *m_saveFlow; }
    WindowQuestions &questions() { return m_questions; }

    /// Puts right what a killed run left, and watches the system's zone. Once, after the window is
    /// there.
    void start();

    // ---- folders and items
    const std::vector<MySingleFolderPtr> &folders() const;
    bool isBeingRead(const MySingleFolder &folder) const { return m_reading.contains(&folder); }
    /// In the order of the list; those that left are gone from it.
    const std::vector<MySingleFolderPtr> &selectedFolders() const { return m_selectedFolders; }
    MyCompoundFolder selectedCompound() const { return MyCompoundFolder(m_selectedFolders); }
    void selectFolders(std::vector<MySingleFolderPtr> folders);
    /// Of the strip that has the focus; null for none.
    MySinglePicPtr mainPic() const;
    /// In display order.
    std::vector<MySinglePicPtr> selectedPics() const;
    /// The one road for a change of what is selected on strips, or of the strips themselves. The
    /// list of folders follows the main item.
    void select(const std::function<void(MyTimelinesController &)> &change);

    // ---- media
    /// Folders and files, dropped or chosen: opens and reads what is new in them.
    void openPaths(const std::vector<std::string> &paths, const KeyStates &keyStates = {});
    /// The same after asking for the choices of this import.
    void openPathsWithOptions(const std::vector<std::string> &paths);
    /// Takes folders out of the session; asks first where changes would be lost. Nothing on disk
    /// changes.
    void removeFolders(const std::vector<MySingleFolderPtr> &folders);
    /// Looks whether the folders can still be reached; for when the window comes to the front.
    void checkFolders();

    // ---- changes
    /// The one road for every correction: refused (with a word in the status line) while a save
    /// runs, or a selected folder is being read. Afterwards the list is built anew and all views
    /// are told. True when it was carried out.
    bool edit(const std::function<void(AppController &)> &change);
    /// A change that was refused, as dates would leave their bounds, is told in the status line.
    void tellOutcome(DateChangeOutcome outcome);
    void undo();
    void redo();
    /// The shift of the selected folders, in together mode; absent parts stay each folder's own.
    void shiftSelectedFolders(const CompoundFields &fields);
    /// The selected folders show their original dates again, in their mode.
    void resetShift();

    /// The drag under way, for all that tells of the dates that it would give; null for none.
    const DateDrag *dateDrag() const { return m_dateDrag; }
    /// By who leads it: at its start, with each step, and null before it is gone.
    void setDateDrag(const DateDrag *drag);

    // ---- save and rename
    bool hasUnsavedChanges() const;
    /// The selected folders, or all.
    void save(bool ofAll, bool withoutChanges = false);
    /// What a rename sheet goes by.
    RenameSheetViews renameSheetViews() const;

    /// A word for the status line.
    void tell(const std::string &words) { Q_EMIT statusTold(QString::fromStdString(words)); }

Q_SIGNALS:
    void foldersChanged();   ///< they came, went, or say something else of themselves
    void listChanged();      ///< the order or the values of items
    void selectionChanged(); ///< of items or of folders
    void stripsChanged();    ///< a second strip came or went
    void scrolled();         ///< a strip is to be drawn elsewhere: its `scrollX` was set
    void thumbsChanged();
    void previewsChanged();
    void undoChanged();
    void dateDragMoved(); ///< it would give other dates now, or has ended
    /// The system's zone changed: whoever holds a drag gives it up before dates move.
    void dateChangeAborted();
    void statusTold(const QString &words);

private:
    // ImportQuestions, on the import thread
    PerFolderImportOptions emptyTagOptions(const MySingleFolder &folder) override;
    MovieOptions movieOptions(const MySingleFolder &folder) override;
    // SourceViews
    std::optional<FocusPlace> focusPlace(const MySinglePic &pic) const override;
    MySinglePicPtr picToKeepFocusedDuringFilterAction() const override;
    void sourceChanged() override;
    void addDateTimeLayers() override;
    void focusPic(const MySinglePicPtr &pic, std::optional<FocusPlace> keepingInPlaceAt) override;
    void selectionIndexChanged() override;
    void showFilterStatus(std::size_t hidden) override;
    bool isOneFolderSelected() const override;

    void connectParts();
    void openJob(const DropJob &job, const KeyStates &keyStates);
    void read(const MySingleFolderPtr &folder, const std::vector<std::string> &names,
              const KeyStates &keyStates);
    void itemsReady(const MySingleFolderPtr &folder, const std::vector<MySinglePicPtr> &items);
    void readingEnded(const MySingleFolderPtr &folder, const ImportOutcome &outcome);
    void completeForFilter();
    void complete(const MySingleFolderPtr &folder);
    void readEnded();
    void noteReading(const ImportOutcome &outcome);
    void tellReadingNotes();
    void dropFolders(const std::vector<MySingleFolderPtr> &folders);
    void followMainPic();
    void markSelectedFolder();
    void tellEverything();
    void saveEnded(const SaveRunResult *result);
    void afterUndo();
    bool isChangeRefused(const std::vector<MySingleFolderPtr> &folders);
    void thumbnailsProgressed();

    WindowQuestions &m_questions;
    Jobs m_jobs;
    std::unique_ptr<Thumbnails> m_thumbnails;
    std::unique_ptr<Previews> m_previews;
    std::vector<MySingleFolderPtr> m_selectedFolders;
    /// Folders that are being read, each with the one whose reading found it.
    std::unordered_map<const MySingleFolder *, const MySingleFolder *> m_reading;
    /// Of which everything was read that a filter can ask.
    std::unordered_set<const MySingleFolder *> m_completeFolders;
    std::size_t m_runningReads = 0;
    const DateDrag *m_dateDrag = nullptr;
    std::vector<std::string> m_readingNotes; ///< told when the last reading has ended
    std::shared_ptr<Job> m_thumbnailsJob;
    std::unique_ptr<AppController> m_controller;
    std::unique_ptr<SaveFlow> m_saveFlow;
    WorkThread m_folderCheck;
};

} // namespace chronomender
