// SPDX-License-Identifier: GPL-3.0-or-later
#include "NewDates.h"

namespace chronomender {
namespace {

unsigned missingTags(const DateSlots &slots) {
    unsigned tags = 0;
    for (StampSlot slot : stampSlots)
        if (!(slots.*description(slot).oldDate))
            tags |= bit(slot);
    return tags;
}

/// Lends dates to the slots named in a set of tags; slots that the file has are never touched.
class Lender {
public:
    Lender(DateSlots &slots, unsigned tags) : m_slots(slots), m_tags(tags) {}

    bool isMissing(StampSlot slot) const { return m_tags & bit(slot); }
    void lend(StampSlot slot, const OptionalDate &date) const {
        if (isMissing(slot))
            m_slots.*description(slot).oldDate = date;
    }

private:
    DateSlots &m_slots;
    unsigned m_tags;
};

void lendByOtherStamps(const DateSlots &slots, const Lender &lender) {
    const bool isOriginalMissing = lender.isMissing(StampSlot::Original);
    const bool isDigitizedMissing = lender.isMissing(StampSlot::Digitized);
    if (isOriginalMissing && !isDigitizedMissing)
        lender.lend(StampSlot::Original, slots.exifDateTimeDigitizedOLD);
    else if (isDigitizedMissing && !isOriginalMissing)
        lender.lend(StampSlot::Digitized, slots.exifDateTimeOriginalOLD);
    lender.lend(StampSlot::Modification, cleanDate(slots.fileModificationDateOLD));
}

} // namespace

bool prepareExifDateTimeAddition(MySinglePic &pic) {
    if (!pic.save.shouldAddExifDateTimeTags)
        return false;
    DateSlots &slots = pic.slots;
    if (pic.save.tagAddType == 0)
        pic.save.tagAddType = missingTags(slots);
    if (pic.save.tagAddType == 0)
        return false;

    const Lender lender(slots, pic.save.tagAddType);
    switch (pic.spType) {
    case SpTypeNoTagsFileDate:
        lender.lend(StampSlot::Original, cleanDate(slots.fileCreationDateOLD));
        lender.lend(StampSlot::Digitized, cleanDate(slots.fileCreationDateOLD));
        lender.lend(StampSlot::Modification, cleanDate(slots.fileModificationDateOLD));
        break;
    case SpTypeTiffYoungerThanFile:
        lender.lend(StampSlot::Original, cleanDate(slots.fileCreationDateOLD));
        lender.lend(StampSlot::Digitized, cleanDate(slots.fileCreationDateOLD));
        break;
    case SpTypeTiffDateTime:
        lender.lend(StampSlot::Original, slots.tiffDateTimeOLD);
        lender.lend(StampSlot::Digitized, slots.tiffDateTimeOLD);
        break;
    default:
        lendByOtherStamps(slots, lender);
        break;
    }
    return true;
}

void cleanupExifDateTimeAddition(MySinglePic &pic) {
    for (StampSlot slot : stampSlots)
        if (pic.save.tagAddType & bit(slot))
            pic.slots.*description(slot).oldDate = InfinitePast();
}

} // namespace chronomender
