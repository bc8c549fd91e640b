// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CaseInsensitiveFileLayer.h"
#include "FakeSession.h"
#include "RenameRun.h"

namespace chronomender::little {

/// A session whose items are renamed. A file tells what it was called at first: its content ends
/// with that name. Each item wishes for the name that it had at import, which a test replaces.
class RenameSession : public FakeSession {
public:
    explicit RenameSession(std::size_t folderCount = 1) : FakeSession(folderCount) {
        choices.names.renameTemplate.stringParts = {
            TemplatePart::ofElement(RenameElement::SourceName)};
    }

    RenameChoices choices;
    FileLayer *layer = &files; ///< a test may put another one here

    /// Photos, raw files and companions by their extensions.
    void add(const std::string &name) {
        const PhotoFields fields{.original = "2024:05:06 07:08:09"};
        const bool isSidecar = name.ends_with("xmp") || name.ends_with("XMP");
        write(name, (isSidecar               ? "<x:xmpmeta xmlns:x='adobe:ns:meta/'></x:xmpmeta>"
                     : name.ends_with("CR2") ? tiffPhoto(fields).bytes
                                             : jpegPhoto(fields).bytes) +
                        '\n' + name);
    }
    /// The items in the order of these wishes, "wanted" being a name without extension.
    void wish(const std::vector<std::pair<std::string, std::string>> &wishes) {
        for (std::size_t i = 0; i < wishes.size(); ++i) {
            item(wishes[i].first).spNameAtImport = wishes[i].second + ".wish";
            item(wishes[i].first).positions.indexInSource_full = static_cast<std::int64_t>(i);
        }
    }
    RenameRun renameRun(RunJournal &record) {
        const auto scope = [this](const SaveRequest &request) {
            std::vector<MySinglePicPtr> source;
            for (const MySingleFolderPtr &each : folders)
                source.insert(source.end(), each->sfPicDetails_fullArray.begin(),
                              each->sfPicDetails_fullArray.end());
            std::ranges::stable_sort(source, {}, [](const MySinglePicPtr &pic) {
                return pic->positions.indexInSource_full;
            });
            return renameScope(request, folders, source);
        };
        return RenameRun({[this] { return std::optional(choices); }, scope},
                         {*layer, zones, cancellation, record, progress});
    }
    /// As a program of its own would run it: its record ends with it.
    SaveRunResult rename(const SaveRequest &request = {SaveProcessType::Rename}) {
        RunJournal record(disk.path("support"));
        SaveRunResult result;
        renameRun(record).run(request, {}, result);
        return result;
    }
    std::vector<ItemRename> preview(const SaveRequest &request = {SaveProcessType::Rename}) {
        return renameRun(journal).renamePreview(request);
    }
    bool hasUnfinished() const { return RunJournal::hasUnfinished(disk.path("support")); }

    /// What stands in the folder: the present name and the first one of each file.
    std::map<std::string, std::string> onDisk(std::size_t index = 0) const {
        std::map<std::string, std::string> found;
        for (const auto &entry :
             std::filesystem::directory_iterator(folders.at(index)->sfFolderPath())) {
            const std::string content = fileContent(entry.path());
            found[entry.path().filename()] = content.substr(content.rfind('\n') + 1);
        }
        return found;
    }

    std::function<void(std::size_t done, std::size_t total)> progress;
};

/// Lists are texts: "a.jpg, b.jpg".
inline std::vector<std::string> split(const std::string &list, const std::string &by = ", ") {
    std::vector<std::string> parts;
    for (std::size_t at = 0, end = 0; end < list.size(); at = end + by.size()) {
        end = std::min(list.find(by, at), list.size());
        parts.push_back(list.substr(at, end - at));
    }
    return parts;
}
/// "x.jpg<a.jpg": the present name and the first one of each file.
inline std::vector<std::string> onDisk(const RenameSession &session) {
    std::vector<std::string> list;
    for (const auto &[present, first] : session.onDisk())
        list.push_back(present + '<' + first);
    return list;
}

/// "a.jpg" with its sidecar wishes for "x", and "b.jpg" for "y". Moves are counted from 1: three to
/// temporary names, then three to final ones.
class DisturbedSession : public RenameSession {
public:
    explicit DisturbedSession(bool isInsensitive) {
        if (isInsensitive)
            layer = &m_insensitive;
        for (const char *name : {"a.jpg", "a.xmp", "b.jpg"})
            add(name);
        import();
        wish({{"a.jpg", "x"}, {"b.jpg", "y"}});
    }
    FailingFileLayer &rig() { return layer == &files ? files : m_insensitive; }
    /// Right before a file is moved to the name `at`, somebody makes a file, or replaces one.
    void intrude(const std::string &at, const std::string &name) {
        rig().beforeRename = [=, this, isOver = false](const std::string &,
                                                       const std::string &to) mutable {
            if (isOver || !to.ends_with('/' + at))
                return;
            isOver = true;
            std::filesystem::remove(path(name));
            write(name, "\nsomebody");
        };
    }
    void failMoves(int first, int last) {
        rig().failingRenamesFrom = first;
        rig().lastFailingRename = last;
        rig().renameError = EROFS;
    }
    void recover() const { RunJournal::recover(disk.path("support"), *makeSystemFileLayer()); }

private:
    CaseInsensitiveFileLayer m_insensitive;
};

} // namespace chronomender::little
