// SPDX-License-Identifier: GPL-3.0-or-later
#include "Corrections.h"

#include "DaylightSavingChecks.h"
#include "Texts.h"
#include "Utf8Text.h"

#include <algorithm>
#include <set>

namespace chronomender {
namespace {

std::optional<Complaint> complaintOf(DateChangeOutcome outcome, const std::string &what) {
    if (outcome != DateChangeOutcome::RefusedOutOfBounds)
        return std::nullopt;
    return Complaint{2, text("cli_error_shiftOutOfBounds", {printable(what)})};
}

/// The corrections of one folder.
class FolderCorrection {
public:
    FolderCorrection(AppController &controller, const FolderPlan &plan, MySingleFolder &folder)
        : m_controller(controller), m_plan(plan), m_folder(folder) {}

    std::optional<Complaint> run() {
        auto complaint = findPics();
        if (!complaint)
            setZones();
        if (!complaint && m_plan.block.tagsMissing)
            m_controller.addMissingDateTags(m_folder.sfPicDetails_fullArray);
        if (!complaint)
            complaint = shiftFolder();
        for (std::size_t i = 0; i < m_pics.size() && !complaint; ++i)
            complaint = shiftPic(m_plan.pics[i], m_pics[i]);
        for (const std::string &name : m_plan.block.alternatives)
            if (!complaint)
                complaint = useAlternative(name);
        return complaint;
    }

private:
    std::optional<Complaint> findPics() {
        std::set<MySinglePicPtr> found;
        for (const PicPlan &pic : m_plan.pics) {
            m_pics.push_back(itemWithFile(m_folder, pic.name));
            if (!m_pics.back())
                return noSuchPic(pic.name);
            // Both files of a group named one by one: the item would move twice.
            if (!found.insert(m_pics.back()).second)
                return Complaint{2, text("cli_error_picTwice", {printable(pic.name)})};
        }
        return std::nullopt;
    }

    Complaint noSuchPic(const std::string &name) const {
        return {2, text("cli_error_noSuchPic", {printable(name), printable(m_plan.path)})};
    }

    void setZones() {
        for (std::size_t i = 0; i < m_pics.size(); ++i)
            if (m_plan.pics[i].zones.source || m_plan.pics[i].zones.target)
                m_controller.setZones({m_pics[i]}, m_plan.pics[i].zones);
    }

    /// In single mode the folder's shift is given to each item as its own, and an item's is added.
    std::optional<Complaint> shiftFolder() {
        const auto &shift = m_plan.block.shift;
        if (!shift)
            return std::nullopt;
        const bool isSingle = m_folder.sfEditMode == EditMode::Single;
        return complaintOf(isSingle
                               ? m_controller.shiftItems(m_folder.sfPicDetails_fullArray, *shift)
                               : m_controller.shiftFolder(m_folder, *shift),
                           m_plan.path);
    }

    std::optional<Complaint> shiftPic(const PicPlan &plan, const MySinglePicPtr &pic) {
        return plan.shift ? complaintOf(m_controller.shiftItems({pic}, *plan.shift), plan.name)
                          : std::nullopt;
    }

    /// An item is one shot: both its files take the reading. The other half named by itself takes
    /// it alone.
    std::optional<Complaint> useAlternative(const std::string &name) {
        const MySinglePicPtr pic = itemWithFile(m_folder, name);
        if (!pic)
            return noSuchPic(name);
        const MySinglePicPtr &dependent = pic->group.bundleDependentImage;
        const bool isMaster = isDateSourceAmbiguousAtImport(*pic);
        const bool isDependent = dependent && isDateSourceAmbiguousAtImport(*dependent);
        const bool isDependentNamed = pic->spName != name;
        if (isDependentNamed ? !isDependent : !isMaster && !isDependent)
            return Complaint{2, text("cli_error_notAmbiguous", {printable(name)})};
        const auto target = !isMaster || !isDependent ? AlternativeTarget::Master
                            : isDependentNamed        ? AlternativeTarget::Dependent
                                                      : AlternativeTarget::Both;
        m_controller.useAlternative({pic}, target, true);
        return std::nullopt;
    }

    AppController &m_controller;
    const FolderPlan &m_plan;
    MySingleFolder &m_folder;
    std::vector<MySinglePicPtr> m_pics; ///< of the plan's pics, one for one
};

} // namespace

std::optional<Complaint> correct(AppController &controller, const FolderPlan &plan,
                                 MySingleFolder &folder) {
    return FolderCorrection(controller, plan, folder).run();
}

MySinglePicPtr itemWithFile(const MySingleFolder &folder, const std::string &name) {
    const auto &items = folder.sfPicDetails_fullArray;
    const auto found = std::find_if(items.begin(), items.end(), [&](const auto &pic) {
        const MySinglePicPtr &dependent = pic->group.bundleDependentImage;
        return pic->spName == name || (dependent && dependent->spName == name);
    });
    return found == items.end() ? nullptr : *found;
}

} // namespace chronomender
