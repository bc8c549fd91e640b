// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LittleItem.h"
#include "MyTimelinesController.h"

#include <algorithm>
#include <map>
#include <sstream>

namespace chronomender::little {

/// Ten items "a" to "j" in this order, in two folders by turns, and a list that is built of them in
/// the plainest way.
class Timelines {
public:
    Timelines() {
        for (std::int64_t index = 0; index < 10; ++index) {
            const std::string name(1, static_cast<char>('a' + index));
            all.push_back(addItem(index % 2 ? nikon : canon, SpTypeExifOriginal,
                                  utc(2024, 5, 1) + absl::Hours(index), name));
            all.back()->positions.indexInSource_full = index;
        }
        rebuild();
    }
    void rebuild() {
        std::vector<MySinglePicPtr> list, shelf;
        for (const MySinglePicPtr &pic : all)
            if (hidden.find(pic->spName) == std::string::npos)
                (timelines.source_allShelfs().contains(pic) ? shelf : list).push_back(pic);
        timelines.refreshShelfsAfterSourceUpdate(shelf, [this](const MySinglePic &pic) {
            return std::ranges::any_of(all, [&](const auto &each) { return each.get() == &pic; });
        });
        timelines.setSource_filtered(list, false);
    }
    MySinglePicPtr pic(char name) const {
        const auto found = std::ranges::find(all, std::string(1, name), &MySinglePic::spName);
        return found == all.end() ? nullptr : *found;
    }
    /// Each word is a sign and a name: "c" clicks, "+c" adds, "-c" removes, ">c" selects the run
    /// to it, "=c" makes it the main item. A sign alone: "!" inverts, "*" selects all, "0" none.
    void act(const std::string &words, TimelineStrip &strip) {
        std::istringstream stream(words);
        for (std::string word; stream >> word;)
            act(word.front(), pic(word.back()), strip);
    }
    void act(const std::string &words) { act(words, timelines.mainTimeline()); }

    /// The selected items in order, the main one in upper case.
    static std::string selected(const TimelineStrip &strip) {
        std::string names;
        for (const MySinglePicPtr &each : sortedThumbsArray(strip.selection.pics()))
            names += each == strip.selection.picSelection
                         ? static_cast<char>(std::toupper(each->spName[0]))
                         : each->spName[0];
        return names;
    }
    std::string selected() { return selected(timelines.mainTimeline()); }
    static std::string names(const std::vector<MySinglePicPtr> &list) {
        std::string names;
        for (const MySinglePicPtr &each : list)
            names += each->spName;
        return names;
    }
    /// "main list selection|second list selection", the strip with the focus in brackets.
    std::string state() {
        std::string text;
        for (TimelineStrip *strip : timelines.visibleTimelines()) {
            const bool hasFocus = strip == &timelines.focusedTimeline();
            const std::string kind = strip->kind == TimelineKind::Mirror ? "mirror " : "";
            text += (text.empty() ? "" : "|") + kind + names(strip->theSource) + ' ' +
                    (hasFocus ? '[' + selected(*strip) + ']' : selected(*strip));
        }
        return text;
    }

    const MySingleFolderPtr canon = makeFolder(), nikon = makeFolder();
    std::vector<MySinglePicPtr> all;
    std::string hidden;
    UndoManager undo;
    MyTimelinesController timelines{undo, [this] { rebuild(); }};

private:
    void act(char sign, const MySinglePicPtr &pic, TimelineStrip &strip) {
        using Controller = MyTimelinesController;
        static const std::map<char, void (Controller::*)(TimelineStrip &)> ofAll{
            {'!', &Controller::invertSelection},
            {'*', &Controller::selectAll},
            {'0', &Controller::deselectAll}};
        static const std::map<char, void (Controller::*)(const MySinglePicPtr &, TimelineStrip &)>
            ofOne{{'+', &Controller::multiSelectionAdd},
                  {'-', &Controller::multiSelectionRemove},
                  {'>', &Controller::multiSelectAllFrom},
                  {'=', &Controller::changeMainSelectionTo}};
        if (ofAll.contains(sign))
            (timelines.*ofAll.at(sign))(strip);
        else if (ofOne.contains(sign))
            (timelines.*ofOne.at(sign))(pic, strip);
        else
            timelines.simpleSelectThumb(pic, strip);
    }
};

} // namespace chronomender::little
