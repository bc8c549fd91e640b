<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="dragInSingleMode">
        <translation>Move Items in Time</translation>
    </message>
    <message id="errorPanelDefaultButton">
        <translation>OK</translation>
    </message>
    <message id="errorPanelDescriptionText_ID0">
        <translation>The photo was saved, but the date of the file on disk could not be set. The disk or memory card may not allow it.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID1">
        <translation>The sidecar file could not be read. Its dates and its location were not taken over.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID10">
        <translation>The file could not be opened. Check whether you may read it.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID11">
        <translation>The file was changed by another program since it was read. It was left as it is.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID12">
        <translation>The file was not found. It may have been moved, renamed or deleted, or its disk is not connected.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID15">
        <translation>The sidecar file no longer exists. Only the photo itself was looked at.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID16">
        <translation>The sidecar file fits several photos of the same name, and none was chosen.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID17">
        <translation>There is no photo or movie to which the sidecar file belongs.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID18">
        <translation>The name begins with a dot, so file managers hide the file.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID2">
        <translation>The file could not be opened for writing. Check whether it is write-protected or in use by another program.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID3">
        <translation>The file was changed by another program since it was read. It was not touched. Read its folder again to work with it as it is now.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID4">
        <translation>The file or its folder could not be reached. It may have been moved or deleted, or its disk is not connected.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID6">
        <translation>The XMP data inside the file could not be brought into line with the new dates.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID7">
        <translation>The sidecar file could not be opened for writing. Check whether it is write-protected.</translation>
    </message>
    <message id="errorPanelDescriptionText_bundleAddOn">
        <translation>and the file that belongs to it</translation>
    </message>
    <message id="errorPanelInformativeText_back_multi">
        <translation>Their corrections are kept, so that you can remove the causes and save again.</translation>
    </message>
    <message id="errorPanelInformativeText_back_single">
        <translation>Its correction is kept, so that you can remove the cause and save again.</translation>
    </message>
    <message id="errorPanelInformativeText_front_multi">
        <translation>There were problems with %1 files:</translation>
    </message>
    <message id="errorPanelInformativeText_front_single">
        <translation>There was a problem with one file:</translation>
    </message>
    <message id="errorPanelMessageText">
        <translation>Not everything could be done.</translation>
    </message>
    <message id="preSaveSummary_error_01_ambiguousStamp">
        <translation>The new time falls into the hour that the change of clocks repeats or skips</translation>
    </message>
    <message id="preSaveSummary_error_01_ambiguousStamp_details">
        <translation>A photo stores the time of a wall clock. When clocks are turned back, one hour occurs twice, and when they are put forward, one hour is missing; a time in it does not tell the moment of the picture for certain. If you save anyway, the stored time may be read as one hour off. To avoid this, choose a target time zone without a change of clocks on that day, for example UTC.</translation>
    </message>
    <message id="preSaveSummary_error_02_pre1904">
        <translation>The new date of a movie lies before 1904</translation>
    </message>
    <message id="preSaveSummary_error_02_pre1904_details">
        <translation>A movie counts its time from the start of the year 1904 and cannot hold an earlier date. If you save anyway, that date of the movie is not written. Check the shift of the folder and of the movie.</translation>
    </message>
    <message id="preSaveSummary_error_03_pre1970">
        <translation>A new file date lies before 1970</translation>
    </message>
    <message id="preSaveSummary_error_03_pre1970_details">
        <translation>Some disks and memory cards cannot store a file date before 1970, and some programs show it wrongly. The date inside the photo is not affected. Saving is safe; only the date that the file manager shows may be lost.</translation>
    </message>
    <message id="preSaveSummary_error_04_livePhotoDriftingApart">
        <translation>Photo and movie of a live photo would drift apart</translation>
    </message>
    <message id="preSaveSummary_error_04_livePhotoDriftingApart_details">
        <translation>The two belong together because they were taken at the same moment. With the new dates they would no longer be recognised as a pair. Give both the same shift and the same time zone, or save anyway and lose the pair.</translation>
    </message>
    <message id="preSaveSummary_error_05_notFound">
        <translation>The file is no longer where it was</translation>
    </message>
    <message id="preSaveSummary_error_05_notFound_details">
        <translation>It was moved, renamed or deleted after it was read. It is left out of the save and keeps its correction, so you can put it back and save again.</translation>
    </message>
    <message id="preSaveSummary_error_06_modifiedAfterImport">
        <translation>The file was changed by another program</translation>
    </message>
    <message id="preSaveSummary_error_06_modifiedAfterImport_details">
        <translation>Since it was read, its size, its file date or the stored dates are no longer the same. Writing into it could damage it, so it is left out of the save and not touched. Read the folder again to work with the file as it is now.</translation>
    </message>
    <message id="preSaveSummary_error_07_notFound">
        <translation>One of two files that belong together is no longer where it was</translation>
    </message>
    <message id="preSaveSummary_error_07_notFound_details">
        <translation>One side of the pair was moved, renamed or deleted after it was read. The pair is left out of the save and keeps its correction, so you can put the file back and save again.</translation>
    </message>
    <message id="preSaveSummary_error_08_modifiedAfterImport">
        <translation>One of two files that belong together was changed by another program</translation>
    </message>
    <message id="preSaveSummary_error_08_modifiedAfterImport_details">
        <translation>Since the pair was read, one side of it is no longer the same. Writing into it could damage it, so the pair is left out of the save and not touched. Read the folder again to work with the files as they are now.</translation>
    </message>
    <message id="preSaveSummary_error_10_disconnected">
        <translation>A folder cannot be reached</translation>
    </message>
    <message id="preSaveSummary_error_10_disconnected_details">
        <translation>Its disk or memory card is not connected, or the folder was deleted. Its files are left out of the save and keep their corrections. Connect the disk again and save once more.</translation>
    </message>
    <message id="preSaveSummary_error_11_oldVersion_file">
        <translation>The file was read by an older version of this program</translation>
    </message>
    <message id="preSaveSummary_error_11_oldVersion_file_details">
        <translation>What is known of it is not complete enough to write into it safely. It is left out of the save. Read its folder again, and then save.</translation>
    </message>
    <message id="preSaveSummary_error_11_oldVersion_group">
        <translation>Two files that belong together were read by an older version of this program</translation>
    </message>
    <message id="preSaveSummary_error_11_oldVersion_group_details">
        <translation>What is known of the pair is not complete enough to write into it safely. It is left out of the save. Read its folder again, and then save.</translation>
    </message>
    <message id="preSaveSummary_error_12_zoneStampRewritten">
        <translation>The time zone stored in the photo would be replaced</translation>
    </message>
    <message id="preSaveSummary_error_12_zoneStampRewritten_details">
        <translation>The photo says in which time zone its clock was. You chose no target time zone, so saving would write the time of this computer’s zone and its offset instead. The moment stays the same, but the clock time that is shown changes. To keep each photo’s own zone, choose the target “own”; to change the zones on purpose, save anyway.</translation>
    </message>
    <message id="preSaveSummary_error_13_unreadableStamp">
        <translation>A date in the photo cannot be read and would be overwritten</translation>
    </message>
    <message id="preSaveSummary_error_13_unreadableStamp_details">
        <translation>The field of the date is not empty, but what stands in it is no date. Perhaps another program keeps something of its own there. If you save anyway, it is replaced by the corrected date and cannot be brought back. Otherwise leave these files out of the save.</translation>
    </message>
    <message id="preSaveSummary_error_groupDetail_modifiedAfterImport">
        <translation>changed since import</translation>
    </message>
    <message id="preSaveSummary_error_groupDetail_notFound">
        <translation>not found</translation>
    </message>
    <message id="preSaveSummary_header_multi">
        <translation>Before saving, %1 problems were found.</translation>
    </message>
    <message id="preSaveSummary_header_single">
        <translation>Before saving, one problem was found.</translation>
    </message>
    <message id="preSaveSummary_header_subline">
        <translation>Nothing has been written yet. Read what would happen to the files below, and then decide whether to save.</translation>
    </message>
    <message id="preSaveSummary_submit_save">
        <translation>Save</translation>
    </message>
    <message id="preSaveSummary_submit_save&amp;renamne">
        <translation>Save and Rename</translation>
    </message>
    <message id="resetAllInFolderMode">
        <translation>Take Back the Folder’s Shift</translation>
    </message>
    <message id="resetAllInSingleMode">
        <translation>Take Back All Single Shifts</translation>
    </message>
    <message id="skipReason_cancelled">
        <translation>The import was stopped before this file.</translation>
    </message>
    <message id="skipReason_empty">
        <translation>The file is empty.</translation>
    </message>
    <message id="skipReason_nameNotUtf8">
        <translation>The name is not valid UTF-8. Rename the file first.</translation>
    </message>
    <message id="skipReason_noDate">
        <translation>There is no date for the file.</translation>
    </message>
    <message id="skipReason_notAMedium">
        <translation>The file is neither a photo nor a movie.</translation>
    </message>
    <message id="skipReason_notYetSupported">
        <translation>This version does not read files of this format yet.</translation>
    </message>
    <message id="skipReason_sameFileTwice">
        <translation>The same file is there already under another name.</translation>
    </message>
    <message id="skipReason_symbolicLink">
        <translation>The entry is a link. Add the folder that holds the file itself.</translation>
    </message>
    <message id="skipReason_unreadable">
        <translation>It cannot be read. Check whether it exists and whether you may read it.</translation>
    </message>
    <message id="undoDateChangeText">
        <translation>Shift the Folder in Time</translation>
    </message>
    <message id="workPanelPreSave">
        <translation>Checking the files before saving…</translation>
    </message>
    <message id="workPanelSave">
        <translation>Saving the corrected dates…</translation>
    </message>
</context>
</TS>
