// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LittleItem.h"
#include "SourceBuilder.h"

#include <algorithm>
#include <map>
#include <sstream>

namespace chronomender::little {

/// Ten items "a" to "j" in this order, in two folders by turns, and the visible list of them.
class Timelines {
public:
    Timelines() {
        for (const MySingleFolderPtr &folder : {canon, nikon})
            folders.append(folder);
        for (int index = 0; index < 10; ++index)
            all.push_back(addItem(index % 2 ? nikon : canon, SpTypeExifOriginal,
                                  utc(2024, 5, 1, index),
                                  std::string(1, static_cast<char>('a' + index))));
        rebuild();
    }
    void rebuild() {
        builder.buildNewSourceWithNewSelectionOption(NewSelection::Choose, Refilter::FullBuild);
    }
    /// A filter hides the items of these names; "" for no filter.
    void hide(const std::string &names) {
        shown = names.empty() ? PicSet() : PicSet(all.begin(), all.end());
        for (const char name : names)
            shown.erase(pic(name));
        rebuild();
    }
    /// The item leaves the session.
    void remove(char name) {
        for (const MySingleFolderPtr &folder : {canon, nikon})
            std::erase(folder->sfPicDetails_fullArray, pic(name));
        rebuild();
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
    UndoManager undo;
    MyTimelinesController timelines{undo, [this] { rebuild(); }};

private:
    MyDroppedFolders folders;
    PicSet shown;
    SourceViews views;
    SourceBuilder builder{folders, timelines, views, [this] {
                              return SourceRestrictions{nullptr, &shown, {}, nullptr};
                          }};

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
