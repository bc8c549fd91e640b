// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "TemplateEditorText.h"
#include "UndoManager.h"
#include "UserDefaults.h"

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace chronomender {

/// What is shown below the template, and whether it can be saved.
struct TemplateStatusLine {
    enum class Color : std::uint8_t { None, Orange, Red };
    bool isSaveEnabled = true;
    std::string_view textKey = {}; ///< empty: nothing is shown
    Color color = Color::None;
};

/// The template editor without its drawing: the text that is edited, the palette of elements that
/// are left, and the list of templates that it changes. Every change of the text is undoable until
/// it is saved. Main thread.
class PrefRenameController {
public:
    enum class SheetType : int { None = 0, Modify = 1, Add = 2 };
    /// What of the text is moved by which hand.
    enum class Hand : std::uint8_t { Drag, Paste };
    using Range = TemplateEditorText::Range;

    PrefRenameController(UserDefaults &defaults, UndoManager &undo);
    ~PrefRenameController();
    PrefRenameController(const PrefRenameController &) = delete;
    PrefRenameController &operator=(const PrefRenameController &) = delete;

    // ---- the list
    /// Opens an empty editor with the options of a new template.
    void templateAdd();
    /// Opens the selected template; false without one.
    bool templateModify();
    SheetType sheetType() const { return m_sheetType; }
    void cancel();
    /// Puts the template into the list and closes the editor. The change of a template can be
    /// turned into an addition. None where no editor is open or the template cannot be used, and
    /// ValueNotAllowed where the list is full; the editor stays open then.
    std::optional<UserDefaults::Outcome> save(bool asAddition = false);
    /// Takes the selected template out of the list; the question before is
    /// "confirmRemoveTemplateMessageText". None without one.
    std::optional<UserDefaults::Outcome> templateRemove();

    // ---- the text
    const TemplateEditorText &text() const { return m_content->text; }
    RenameTemplate currentSettings() const;
    const TemplateOptions &currentMenuOptions() const { return m_content->options; }
    /// 0 for no add-on, else one more than there are.
    int currentlyUsedAddOns() const;
    /// The elements that can still be placed, in the order of the palette.
    std::vector<RenameElement> palette() const;
    TemplateStatusLine status() const;

    // Each answers whether the text changed.
    bool replaceText(Range range, std::string_view replacement);
    /// Only elements that the palette offers.
    bool insertElement(std::size_t position, RenameElement element, Hand hand);
    /// Takes the element at one place and puts it in front of another.
    bool moveElement(std::size_t from, std::size_t to);
    bool removeElement(std::size_t position, Hand hand);
    /// An entry of the menu of an element: year, month or counter.
    bool configure(RenameElement element, int value);

private:
    struct Content {
        TemplateEditorText text;
        TemplateOptions options;
    };
    void open(SheetType type, const RenameTemplate &renameTemplate);
    void close();
    /// Registers what is there now as what an undo brings back.
    static void registerUndo(const std::shared_ptr<Content> &content, UndoManager &undo);
    void willChange(const char *actionName);

    UserDefaults &m_defaults;
    UndoManager &m_undo;
    SheetType m_sheetType = SheetType::None;
    std::shared_ptr<Content> m_content = std::make_shared<Content>();
};

} // namespace chronomender
