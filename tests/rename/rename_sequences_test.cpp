// SPDX-License-Identifier: GPL-3.0-or-later
//
// Random folders of photos, pairs and companions, renamed time after time to names that collide,
// swap and turn in circles, while other programs take names and the disk refuses. Every file has
// bytes of its own, and so its way can be told whatever it is called.
#include "FakeSession.h"
#include "LittlePhotos.h"
#include "RenameRun.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace chronomender {
namespace {

using namespace little;
namespace fs = std::filesystem;

constexpr int sequences = 150, runsOfEach = 4;

/// Another program that acts in the last moment before a file is moved.
class DisturbedFiles : public FailingFileLayer {
public:
    /// The error that the move fails with; none lets it through.
    std::function<std::optional<int>(const std::string &to)> beforeMove;

    bool renameExclusively(const std::string &from, const std::string &to,
                           FileError *error) override {
        const auto code = beforeMove ? beforeMove(to) : std::nullopt;
        if (!code)
            return FailingFileLayer::renameExclusively(from, to, error);
        if (error)
            error->code = *code;
        return false;
    }
};

class RenameSequence {
public:
    explicit RenameSequence(unsigned seed) : m_random(seed) {
        for (std::size_t folder = 0; folder < m_session.folders.size(); ++folder)
            fill(folder);
        m_session.import();
        for (const MySingleFolderPtr &folder : m_session.folders)
            for (const MySinglePicPtr &pic : folder->sfPicDetails_fullArray)
                m_visible.push_back(pic);
        for (const MySinglePicPtr &pic : m_visible)
            for (const MySinglePicPtr &half : {pic, pic->group.bundleDependentImage})
                if (half)
                    m_contentOf[half.get()] = fileContent(half->spPath());
    }

    void run() {
        for (int i = 0; i < runsOfEach && !testing::Test::HasFailure(); ++i)
            renameOnce(below(3) == 0);
        m_journal.reset();
        recoverWhatIsLeft();
    }

private:
    unsigned below(unsigned count) { return static_cast<unsigned>(m_random() % count); }
    template<class Element>
    const Element &anyOf(std::initializer_list<Element> elements) {
        return *(elements.begin() + below(static_cast<unsigned>(elements.size())));
    }

    /// A file with bytes that no other has; files of one base name are one shot.
    void write(std::size_t folder, const std::string &base, const std::string &extension,
               std::string bytes = "sidecar") {
        const std::string name = extension.empty() ? base : base + '.' + extension;
        if (fs::exists(m_session.path(name, folder)))
            return;
        bytes += " file " + std::to_string(m_shotOf.size());
        m_session.write(name, bytes, folder);
        m_shotOf[bytes] = std::to_string(folder) + '/' + base;
    }
    void fill(std::size_t folder) {
        for (unsigned i = 0, count = 3 + below(8); i < count; ++i) {
            const std::string base = anyOf<std::string>(
                {"1", "2", "3", "4", "1 2", "1_", "2_", "a", "a 2", "a_", "B", "05", "06"});
            PhotoFields fields;
            fields.original =
                "2024:05:0" + std::to_string(5 + below(2)) + " 07:08:0" + std::to_string(below(10));
            write(folder, base, anyOf<std::string>({"jpg", "JPG"}), jpegPhoto(fields).bytes);
            if (below(4) == 0)
                write(folder, base, "CR2", tiffPhoto(fields).bytes);
            for (const char *companion : {"xmp", "XMP", "aae", "jpg.xmp"})
                if (below(5) == 0)
                    write(folder, base, companion);
        }
        // A file of no photo, where one may be wanted.
        write(folder, anyOf<std::string>({"1", "2", "a", "a_", "05"}), "txt", "a note");
    }

    NameSettings names() {
        using enum RenameElement;
        const auto element = TemplatePart::ofElement;
        NameSettings settings;
        settings.renameTemplate.options.counterDigits = 0;
        settings.renameTemplate.stringParts =
            anyOf<std::vector<TemplatePart>>({{element(Counter)},
                                              {element(AddOn), element(Counter)},
                                              {element(Day)},
                                              {element(SourceName)},
                                              {element(SourceName), TemplatePart::ofText("_")},
                                              {element(AddOn)},
                                              {element(Month), element(Counter)}});
        settings.suffixChangeCase = static_cast<SuffixCase>(below(3));
        return settings;
    }
    RenameChoices choices() {
        RenameChoices chosen;
        chosen.names = names();
        chosen.additionalTexts = {anyOf<std::string>({"a", "1", "B", ""}), "", ""};
        chosen.counterType = static_cast<CounterType>(below(2));
        chosen.firstCounter = 1 + below(3);
        chosen.useNameAtImportAsSourceName = below(2) == 0;
        return chosen;
    }

    void renameOnce(bool isDisturbed) {
        std::shuffle(m_visible.begin(), m_visible.end(), m_random);
        for (std::size_t i = 0; i < m_visible.size(); ++i)
            m_visible[i]->positions.indexInSource_full = static_cast<std::int64_t>(i);
        SaveRequest request{.type = SaveProcessType::Rename};
        if (below(4) == 0)
            request.onlyPics.emplace(m_visible.begin(),
                                     m_visible.begin() +
                                         static_cast<std::ptrdiff_t>(
                                             1 + below(static_cast<unsigned>(m_visible.size()))));
        const RenameChoices chosen = choices();
        SaveRunResult result;
        std::vector<ItemRename> preview;
        const auto before = namesOnDisk();
        RenameRun rename({[&] { return chosen; },
                          [&](const SaveRequest &each) {
                              return renameScope(each, m_session.folders, m_visible);
                          }},
                         {m_files, m_session.zones, m_session.cancellation, *m_journal, {}});
        preview = rename.renamePreview(request);
        ASSERT_EQ(namesOnDisk(), before) << "a preview has moved something";
        m_files.beforeMove = isDisturbed ? disturbance() : nullptr;
        rename.run(request, {}, result);
        m_files.beforeMove = nullptr;
        expectNothingIsLost();
        expectTheModelIsTrue(result);
        if (!isDisturbed) {
            expectSame(preview, result.renames);
            expectFreeNames(before, result.renames);
        }
        noteWhatIsLeft(result);
    }

    /// Takes names, and fails.
    std::function<std::optional<int>(const std::string &)> disturbance() {
        const int errorCode = anyOf<int>({EIO, EROFS, EACCES, 0});
        return [this, errorCode,
                left = 1 + below(12)](const std::string &to) mutable -> std::optional<int> {
            if (--left > 0)
                return std::nullopt;
            if (errorCode == 0) {
                left = 1 + below(6);
                takeName(to);
                return std::nullopt;
            }
            left = errorCode == EROFS ? 1 : 1 + below(6);
            return errorCode;
        };
    }
    void takeName(const std::string &path) {
        if (fs::exists(path))
            return;
        const std::string bytes = "taken, file " + std::to_string(m_shotOf.size());
        std::ofstream(path) << bytes;
        m_shotOf[bytes] = "of somebody else";
    }

    std::set<std::string> namesOnDisk() const {
        std::set<std::string> names;
        for (const MySingleFolderPtr &folder : m_session.folders)
            for (const auto &entry : fs::directory_iterator(folder->sfFolderPath()))
                names.insert(entry.path());
        return names;
    }

    void expectNothingIsLost() const {
        std::multiset<std::string> expected, found;
        for (const auto &[bytes, shot] : m_shotOf)
            expected.insert(bytes);
        for (const std::string &path : namesOnDisk())
            found.insert(fileContent(path));
        ASSERT_EQ(found, expected);
    }

    /// What the model calls a file is that file, and the companions are those of its shot.
    void expectTheModelIsTrue(const SaveRunResult &result) const {
        for (const auto &[half, bytes] : m_contentOf) {
            ASSERT_EQ(fileContent(half->spPath()), bytes) << half->spPath();
            for (const std::string &path : half->spSidecarPaths())
                EXPECT_EQ(shotOf(path), m_shotOf.at(bytes)) << path;
        }
        for (const ItemRename &item : result.renames) {
            for (const RenamedFile &file : item.files)
                EXPECT_EQ(shotOf(item.folderPath + '/' + file.newName),
                          m_shotOf.at(m_contentOf.at(item.pic.get())))
                    << file.newName;
            const bool isLeft = item.result == RenameResult::LeftOnTheWay;
            EXPECT_EQ(item.pic->rename.hasRenameError != 0,
                      isLeft || item.result == RenameResult::Refused || item.addedNumber > 0);
        }
    }
    std::string shotOf(const std::string &path) const {
        const auto found = m_shotOf.find(fileContent(path));
        return found == m_shotOf.end() ? "nothing at " + path : found->second;
    }

    static void expectSame(const std::vector<ItemRename> &preview,
                           const std::vector<ItemRename> &done) {
        ASSERT_EQ(preview.size(), done.size());
        for (std::size_t i = 0; i < done.size(); ++i) {
            EXPECT_EQ(preview[i].pic, done[i].pic);
            EXPECT_EQ(preview[i].result, done[i].result) << done[i].wantedName;
            EXPECT_EQ(preview[i].addedNumber, done[i].addedNumber);
            ASSERT_EQ(preview[i].files.size(), done[i].files.size());
            for (std::size_t file = 0; file < done[i].files.size(); ++file)
                EXPECT_EQ(preview[i].files[file].newName, done[i].files[file].newName);
        }
    }

    /// Each item has the first free name, by the plainest reckoning: names that the run gives up
    /// are free.
    static void expectFreeNames(std::set<std::string> taken,
                                const std::vector<ItemRename> &renames) {
        for (const ItemRename &item : renames)
            for (const RenamedFile &file : item.files)
                taken.erase(item.folderPath + '/' + file.oldName);
        std::string compareName;
        std::int64_t number = 0;
        for (const ItemRename &item : renames) {
            ASSERT_TRUE(item.result == RenameResult::Renamed ||
                        item.result == RenameResult::Unchanged);
            if (compareName != item.folderPath + item.wantedName)
                number = 0;
            compareName = item.folderPath + item.wantedName;
            const std::size_t extensionLength = item.pic->extension().size();
            const std::string base =
                item.wantedName.substr(0, item.wantedName.size() - extensionLength - 1);
            std::vector<std::string> extensions = item.pic->spSidecarExtensions;
            extensions.push_back(item.wantedName.substr(base.size() + 1));
            std::set<std::string> wanted;
            do {
                wanted.clear();
                const std::string numbered =
                    number < 2 ? base : base + ' ' + std::to_string(number);
                for (const std::string &extension : extensions)
                    wanted.insert(item.folderPath + '/' + numbered + '.' + extension);
                EXPECT_EQ(wanted.size(), extensions.size());
                number = number == 0 ? 2 : number + 1;
            } while (std::ranges::any_of(
                wanted, [&](const std::string &path) { return taken.contains(path); }));
            std::set<std::string> given;
            for (const RenamedFile &file : item.files)
                given.insert(item.folderPath + '/' + file.newName);
            EXPECT_EQ(given, wanted) << item.wantedName;
            taken.merge(wanted);
        }
    }

    /// The item has not got its name, or one of its companions was left between the two.
    static bool hasFileOnTheWay(const ItemRename &item) {
        const std::string base = item.pic->spBaseName() + '.';
        return item.result == RenameResult::LeftOnTheWay ||
               std::ranges::any_of(item.files, [&](const RenamedFile &file) {
                   return file.newName != file.oldName && !file.newName.starts_with(base);
               });
    }

    /// A later run that moves the item settles what an earlier one has left of it.
    void noteWhatIsLeft(const SaveRunResult &result) {
        for (const ItemRename &item : result.renames)
            if (hasFileOnTheWay(item))
                m_onTheWay.insert(item.pic.get());
            else if (item.result == RenameResult::Renamed)
                m_onTheWay.erase(item.pic.get());
    }

    /// Only what stands at a temporary name is still recorded, and can be brought to one name.
    void recoverWhatIsLeft() {
        const auto before = namesOnDisk();
        EXPECT_EQ(RunJournal::hasUnfinished(m_support), !m_onTheWay.empty());
        const auto direction = static_cast<RecoveryDirection>(below(2));
        for (const RecoveredFile &file : RunJournal::recover(m_support, m_files, direction))
            EXPECT_FALSE(isLeft(file.result)) << file.path << ' ' << file.systemText;
        EXPECT_FALSE(RunJournal::hasUnfinished(m_support));
        expectNothingIsLost();
        if (m_onTheWay.empty()) {
            EXPECT_EQ(namesOnDisk(), before);
        }
        // What no run has left on its way stands where the model says.
        for (const auto &[half, bytes] : m_contentOf) {
            const MySinglePicPtr master = half->bundleMasterImage();
            if (!m_onTheWay.contains(half) && !m_onTheWay.contains(master.get())) {
                EXPECT_EQ(fileContent(half->spPath()), bytes) << half->spPath();
            }
        }
    }

    std::mt19937 m_random;
    FakeSession m_session{2};
    DisturbedFiles m_files;
    std::string m_support = m_session.disk.path("support of renames");
    std::vector<MySinglePicPtr> m_visible;
    std::map<std::string, std::string> m_shotOf; ///< by the bytes of each file
    std::map<const MySinglePic *, std::string> m_contentOf;
    std::set<const MySinglePic *> m_onTheWay; ///< some file of it stands at a temporary name
    std::optional<RunJournal> m_journal{std::in_place, m_support, RunJournal::Durability::Unsynced};
};

TEST(RenameSequences, NeverLoseNorOverwriteAFile) {
    for (unsigned seed = 0; seed < sequences && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        RenameSequence(seed).run();
    }
}

} // namespace
} // namespace chronomender
