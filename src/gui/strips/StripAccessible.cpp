// SPDX-License-Identifier: GPL-3.0-or-later
#include "StripAccessible.h"

#include "Controls.h"
#include "StripView.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>

#include <algorithm>
#include <unordered_map>

namespace chronomender {
namespace {

/// One thumbnail. Valid while its item stands on the strip.
class ThumbAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    ThumbAccessible(StripView *view, const MySinglePicPtr &pic) : m_view(view), m_pic(pic) {}

    bool isValid() const override { return index().has_value(); }
    QObject *object() const override { return nullptr; }
    QAccessibleInterface *parent() const override {
        return QAccessible::queryAccessibleInterface(m_view);
    }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }

    QString text(QAccessible::Text kind) const override {
        const MySinglePicPtr pic = m_pic.lock();
        return kind == QAccessible::Name && pic && m_view ? m_view->spokenName(pic) : QString();
    }
    void setText(QAccessible::Text, const QString &) override {}
    QRect rect() const override {
        const auto place = index();
        if (!place)
            return {};
        const QRect inView = m_view->placeOf(*place);
        return {m_view->mapToGlobal(inView.topLeft()), inView.size()};
    }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override {
        QAccessible::State state;
        const MySinglePicPtr pic = m_pic.lock();
        const TimelineStrip *strip = m_view ? m_view->strip() : nullptr;
        state.invalid = !pic || !strip;
        if (state.invalid)
            return state;
        state.selectable = state.multiSelectable = state.focusable = true;
        state.selected = strip->selection.contains(pic);
        state.focused = m_view->hasFocus() && m_view->cursor() == pic;
        return state;
    }
    void *interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface
                   ? static_cast<QAccessibleActionInterface *>(this)
                   : nullptr;
    }

    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString &name) override {
        const MySinglePicPtr pic = m_pic.lock();
        TimelineStrip *strip = m_view ? m_view->strip() : nullptr;
        if (!pic || !strip || !actionNames().contains(name))
            return;
        m_view->session().select(
            [&](MyTimelinesController &strips) { strips.simpleSelectThumb(pic, *strip); });
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    std::optional<std::int64_t> index() const {
        const MySinglePicPtr pic = m_pic.lock();
        const TimelineStrip *strip = m_view ? m_view->strip() : nullptr;
        if (!pic || !strip)
            return std::nullopt;
        const auto &shown = strip->shown();
        const auto inList = strip->indexOf(*pic);
        if (!strip->tempSource)
            return inList;
        const auto found = std::ranges::find(shown, pic);
        return found == shown.end() ? std::nullopt : std::optional(found - shown.begin());
    }

    QPointer<StripView> m_view;
    std::weak_ptr<MySinglePic> m_pic;
};

/// The entries are made when they are asked for, and stay until the strip goes.
class StripAccessible : public QAccessibleWidget {
public:
    explicit StripAccessible(StripView *view)
        : QAccessibleWidget(view, QAccessible::List), m_view(view) {}
    ~StripAccessible() override {
        for (const auto &entry : m_entries)
            QAccessible::deleteAccessibleInterface(entry.second);
    }

    int childCount() const override { return static_cast<int>(m_view->visibleRange().count()); }
    QAccessibleInterface *child(int index) const override {
        const IndexRange range = m_view->visibleRange();
        const TimelineStrip *strip = m_view->strip();
        if (!strip || index < 0 || index >= range.count())
            return nullptr;
        return entry(strip->shown()[static_cast<std::size_t>(range.begin + index)]);
    }
    QAccessibleInterface *childAt(int x, int y) const override {
        const MySinglePicPtr pic = m_view->picAt(m_view->mapFromGlobal(QPoint(x, y)));
        return pic ? entry(pic) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *wanted) const override {
        for (int index = 0; index < childCount(); ++index)
            if (child(index) == wanted)
                return index;
        return -1;
    }
    QAccessibleInterface *focusChild() const override {
        const MySinglePicPtr pic = m_view->hasFocus() ? m_view->cursor() : nullptr;
        return pic ? entry(pic) : nullptr;
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.multiSelectable = true;
        return state;
    }

private:
    QAccessibleInterface *entry(const MySinglePicPtr &pic) const {
        const auto [place, isNew] = m_entries.try_emplace(pic->sessionUniqueId);
        if (isNew)
            place->second =
                QAccessible::registerAccessibleInterface(new ThumbAccessible(m_view, pic));
        return QAccessible::accessibleInterface(place->second);
    }

    StripView *m_view;
    mutable std::unordered_map<std::uint32_t, QAccessible::Id> m_entries;
};

QAccessibleInterface *makeInterface(const QString &, QObject *object) {
    auto *view = qobject_cast<StripView *>(object);
    return view ? new StripAccessible(view) : nullptr;
}

} // namespace

void installStripAccessibility() {
    static const bool isInstalled = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    static_cast<void>(isInstalled);
}

void tellItems(StripView &view) {
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(&view, QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&event);
}

void tellMainItem(StripView &view) {
    const TimelineStrip *strip = view.strip();
    const MySinglePicPtr pic = strip ? view.cursor() : nullptr;
    const auto index = pic ? strip->indexOf(*pic) : std::nullopt;
    if (!index || !view.hasFocus() || !QAccessible::isActive())
        return;
    QAccessibleEvent event(&view, QAccessible::Focus);
    event.setChild(static_cast<int>(*index - view.visibleRange().begin));
    QAccessible::updateAccessibility(&event);
}

} // namespace chronomender
