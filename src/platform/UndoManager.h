// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <typeindex>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace chronomender {

/// Undo by inverse operations. Every undoable command registers its inverse; performing the inverse
/// registers the forward form again, and so undo and redo are one thing. Main thread only.
///
/// Targets are held weakly: a record whose target is gone is passed over silently, and so is a step
/// that has only such records. Neither undo nor redo does anything inside an open group.
///
///     undo.beginGroup();
///     undo.registerUndo(item, [](MySinglePic &pic) { … });
///     undo.setActionName("dragInSingleMode");
///     undo.endGroup();
class UndoManager {
public:
    template<class Target, class Action>
    void registerUndo(const std::shared_ptr<Target> &target, Action action) {
        std::weak_ptr<Target> weak = target;
        add({target.get(), [weak, action = std::move(action)] {
                 const auto alive = weak.lock();
                 if (alive)
                     action(*alive);
                 return alive != nullptr;
             }});
    }

    void beginGroup();
    /// Closes the group; an empty group leaves no trace. Groups nest; the outermost is one undo
    /// step.
    void endGroup();

    bool canUndo() const { return !m_undo.empty(); }
    bool canRedo() const { return !m_redo.empty(); }
    void undo();
    void redo();
    bool isUndoing() const { return m_state == State::Undoing; }
    bool isRedoing() const { return m_state == State::Redoing; }

    /// Names the step being built, or the last one: a text key, shown in menus. What is done again
    /// by undo or redo keeps the name of its step.
    void setActionName(std::string key);
    std::string undoActionName() const;
    std::string redoActionName() const;
    /// "Undo Move Items in Time" in the loaded language; "Undo" without a step or a name.
    std::string undoMenuItemTitle() const;
    std::string redoMenuItemTitle() const;

    /// Called by an inverse: what it touched is what a window shows after the undo or redo. The
    /// last one of each kind counts, until the next undo or redo begins; outside both it is passed
    /// over.
    template<class Object>
    void recordAffected(const std::shared_ptr<Object> &object) {
        if (m_state != State::Idle)
            m_affected[typeid(Object)] = object;
    }
    /// Null when the last undo or redo touched no object of this kind, or the object is gone.
    template<class Object>
    std::shared_ptr<Object> lastAffectedObject() const {
        const auto found = m_affected.find(typeid(Object));
        return found == m_affected.end() ? nullptr
                                         : std::static_pointer_cast<Object>(found->second.lock());
    }

    /// Forgets all records of a target (an item that left, a folder that was saved). For many
    /// targets at once: the records are gone through once, however many targets there are.
    void removeAllActionsWithTarget(const void *target);
    void removeAllActionsWithTargets(const std::unordered_set<const void *> &targets);
    void removeAllActions();

private:
    struct Record {
        const void *target;
        std::function<bool()> perform; ///< false when the target is gone
    };
    struct Group {
        std::string actionName;
        std::vector<Record> records;
    };
    enum class State { Idle, Undoing, Redoing };

    void add(Record record);
    void perform(std::vector<Group> &from, State state);
    std::vector<Group> &currentStack();

    std::vector<Group> m_undo, m_redo;
    Group m_open;
    Group m_performing; ///< what is left of the step that is being undone or redone
    std::unordered_map<std::type_index, std::weak_ptr<void>> m_affected;
    int m_depth = 0;
    State m_state = State::Idle;
};

/// Holds a group open for a scope.
class UndoGroup {
public:
    explicit UndoGroup(UndoManager &manager) : m_manager(manager) { m_manager.beginGroup(); }
    ~UndoGroup() { m_manager.endGroup(); }
    UndoGroup(const UndoGroup &) = delete;
    UndoGroup &operator=(const UndoGroup &) = delete;

private:
    UndoManager &m_manager;
};

} // namespace chronomender
