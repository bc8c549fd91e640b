<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="alert_cannotBeWritten">
        <translation>would be written as %1, which happens twice on %2 in %3, and be read as the later one</translation>
    </message>
    <message id="alert_day">
        <translation>%1 %2 %3</translation>
    </message>
    <message id="alert_gpsApart_earlier">
        <translation>%1 earlier than its GPS time</translation>
    </message>
    <message id="alert_gpsApart_later">
        <translation>%1 later than its GPS time</translation>
    </message>
    <message id="alert_groupApart_earlier">
        <translation>the other file of the pair is %1 earlier</translation>
    </message>
    <message id="alert_groupApart_later">
        <translation>the other file of the pair is %1 later</translation>
    </message>
    <message id="alert_otherThanInFile">
        <translation>the file says %1, but it is shown as %2</translation>
    </message>
    <message id="alert_repeatedTime_earlier">
        <translation>happens twice on %1 in %2; read as the earlier one</translation>
    </message>
    <message id="alert_repeatedTime_later">
        <translation>happens twice on %1 in %2; read as the later one</translation>
    </message>
    <message id="alert_skippedTime">
        <translation>does not exist on %1 in %2; read as %3</translation>
    </message>
    <message id="alert_zoneDisagrees">
        <translation>the file says %1, but %2 was %3 then (%4 apart)</translation>
    </message>
    <message id="alignByCopyingOtherFileDate">
        <translation>Take Over Another Date of the File</translation>
    </message>
    <message id="alignByFileName">
        <translation>Order by File Name</translation>
    </message>
    <message id="alignByMatchingGaps">
        <translation>Spread Evenly</translation>
    </message>
    <message id="alignByMinimizingGaps">
        <translation>Pack Tightly</translation>
    </message>
    <message id="alignByMinimizingGapsAlt">
        <translation>Separate Identical Times</translation>
    </message>
    <message id="alignByReversing">
        <translation>Swap Times End for End</translation>
    </message>
    <message id="alignByReversingAlt">
        <translation>Reverse and Mirror Gaps</translation>
    </message>
    <message id="ambiguityCorrection_undoRedo">
        <translation>Reading of Repeated Times</translation>
    </message>
    <message id="changeEditMode">
        <translation>Switch Between Folder and Single Shifts</translation>
    </message>
    <message id="cli_align_isAlignedAlready">
        <translation>The selection is aligned so already; nothing moves.</translation>
    </message>
    <message id="cli_align_noDateToCopy">
        <translation>No item of the selection has such a date, other than its own; nothing moves.</translation>
    </message>
    <message id="cli_align_nothingWritten">
        <translation>Nothing was written. --save writes this.</translation>
    </message>
    <message id="cli_drag_standsAlready">
        <translation>The item stands there already; nothing moves.</translation>
    </message>
    <message id="cli_emptyTagsLeftAlone">
        <translation>%1 files have empty date tags and are left alone. --empty-tags says what they are to mean.</translation>
    </message>
    <message id="cli_error_alignOutOfBounds">
        <translation>The alignment would move a date out of the years 1 to 4999. Nothing was written.</translation>
    </message>
    <message id="cli_error_alignWithoutPics">
        <translation>Say what to align: --pics NAME…, or --pics all.</translation>
    </message>
    <message id="cli_error_badAddOn">
        <translation>%1 cannot become part of a name, as it holds a slash.</translation>
    </message>
    <message id="cli_error_badCounter">
        <translation>--counter %1: give all (one number runs through all folders) or folder (each folder counts from the start).</translation>
    </message>
    <message id="cli_error_badDateSequence">
        <translation>%1 is no sequence of dates. Give the first date and a step, such as 2024-05-01T10:00+60.</translation>
    </message>
    <message id="cli_error_badDepth">
        <translation>%1 is no number of folder levels. Give 0 to 100.</translation>
    </message>
    <message id="cli_error_badEmptyTags">
        <translation>%1 says nothing about empty tags. Give leave, file, or a date such as 2024-05-01T10:00+60.</translation>
    </message>
    <message id="cli_error_badFilter">
        <translation>--filter, character %1: %2.</translation>
    </message>
    <message id="cli_error_badMovieClock">
        <translation>%1 is no movie clock. Give utc, or local for header times that hold the camera’s own clock.</translation>
    </message>
    <message id="cli_error_badMovieDate">
        <translation>%1 is no movie date. Give mdta (the metadata’s) or mvhd (the header’s).</translation>
    </message>
    <message id="cli_error_badRating">
        <translation>--rating %1: give keepers or not-rejected.</translation>
    </message>
    <message id="cli_error_badSetting">
        <translation>--set takes KEY=VALUE, not %1.</translation>
    </message>
    <message id="cli_error_badShift">
        <translation>%1 is no shift. Give seconds, such as -90 or 0.5, or days and a clock, such as +1d, -1:00 or +1d2:30:00.</translation>
    </message>
    <message id="cli_error_badSlot">
        <translation>%1 is no date to copy. Give one of %2.</translation>
    </message>
    <message id="cli_error_badTemplateText">
        <translation>--template-text, character %1: %2</translation>
    </message>
    <message id="cli_error_betweenNeedsTwo">
        <translation>--between needs two items: --between NAME NAME.</translation>
    </message>
    <message id="cli_error_dragNoDate">
        <translation>%1 has no date that another could be given by.</translation>
    </message>
    <message id="cli_error_dragNotMovable">
        <translation>%1 has no date that could be corrected.</translation>
    </message>
    <message id="cli_error_dragOutOfBounds">
        <translation>The drag would move a date out of the years 1 to 4999. Nothing was written.</translation>
    </message>
    <message id="cli_error_dragTwice">
        <translation>%1 means an item that is named already: what is dragged and its targets are different items.</translation>
    </message>
    <message id="cli_error_dragWithoutPic">
        <translation>Say what to drag: --pic NAME.</translation>
    </message>
    <message id="cli_error_emptyPath">
        <translation>An empty text is no path.</translation>
    </message>
    <message id="cli_error_fewPics">
        <translation>This alignment needs at least %1 items. Nothing was written.</translation>
    </message>
    <message id="cli_error_folderTwice">
        <translation>%1 is given twice; put all that is about one folder behind one --folder.</translation>
    </message>
    <message id="cli_error_libraryOfAnotherProgram">
        <translation>%1 belongs to the library of a program, which must not be changed behind its back.</translation>
    </message>
    <message id="cli_error_mainNotSelected">
        <translation>%1 is not one of --pics.</translation>
    </message>
    <message id="cli_error_mainWithoutPack">
        <translation>--main is about --pack only.</translation>
    </message>
    <message id="cli_error_nameNotUtf8">
        <translation>%1 is not valid UTF-8. Rename the folder first.</translation>
    </message>
    <message id="cli_error_noAccess">
        <translation>%1 cannot be opened: you may not read it.</translation>
    </message>
    <message id="cli_error_noAlignment">
        <translation>Say how to align: --gaps, --pack, --by-name, --reverse, --mirror or --copy SLOT.</translation>
    </message>
    <message id="cli_error_noDragTarget">
        <translation>Say where to drag it: --between NAME NAME, --before NAME, --after NAME or --onto NAME.</translation>
    </message>
    <message id="cli_error_noPaths">
        <translation>Name at least one folder or file.</translation>
    </message>
    <message id="cli_error_noSuchPic">
        <translation>There is no item %1 in %2.</translation>
    </message>
    <message id="cli_error_noSuchPicAnywhere">
        <translation>There is no item %1 in these folders.</translation>
    </message>
    <message id="cli_error_notAFolder">
        <translation>%1 is not a folder.</translation>
    </message>
    <message id="cli_error_notAmbiguous">
        <translation>The date of %1 means one instant only, so there is no other to choose. Nothing was written.</translation>
    </message>
    <message id="cli_error_noTemplate">
        <translation>There is no template %1. What there is: %2</translation>
    </message>
    <message id="cli_error_notFound">
        <translation>%1 does not exist.</translation>
    </message>
    <message id="cli_error_nothingWritten">
        <translation>Nothing was written.</translation>
    </message>
    <message id="cli_error_onlyOnce">
        <translation>%1 can be given once only.</translation>
    </message>
    <message id="cli_error_optionTwice">
        <translation>%1 is given twice for %2.</translation>
    </message>
    <message id="cli_error_optionWithoutFolder">
        <translation>%1 is about a folder: put it behind --folder PATH.</translation>
    </message>
    <message id="cli_error_outputFailed">
        <translation>The output could not be written.</translation>
    </message>
    <message id="cli_error_picTwice">
        <translation>--pic %1 is given twice.</translation>
    </message>
    <message id="cli_error_picWithoutCorrection">
        <translation>--pic %1 needs a --shift, a --source-zone or a --target-zone behind it.</translation>
    </message>
    <message id="cli_error_renameOfFile">
        <translation>%1 is a file: renamed alone, it would be parted from what belongs to it. Name its folder (and the file behind --pics).</translation>
    </message>
    <message id="cli_error_renameOverUnsaved">
        <translation>The dates of these folders differ from those in the files, and names are made of what the files hold. Save and rename in one pass: %1. Nothing was renamed.</translation>
    </message>
    <message id="cli_error_settingNotAllowed">
        <translation>The preference %1 cannot be %2; it accepts %3.</translation>
    </message>
    <message id="cli_error_severalDragged">
        <translation>Several items can only be dragged between two others: --between NAME NAME.</translation>
    </message>
    <message id="cli_error_severalPics">
        <translation>%1 stands in several folders. Write one of %2.</translation>
    </message>
    <message id="cli_error_shiftOutOfBounds">
        <translation>The shift would move %1 out of the years 1 to 4999.</translation>
    </message>
    <message id="cli_error_templatesWithPaths">
        <translation>--templates only lists the templates; leave the paths out.</translation>
    </message>
    <message id="cli_error_twoAlignments">
        <translation>Only one alignment at a time: one of --gaps, --pack, --by-name, --reverse, --mirror and --copy.</translation>
    </message>
    <message id="cli_error_twoDragTargets">
        <translation>Only one target at a time: one of --between, --before, --after and --onto.</translation>
    </message>
    <message id="cli_error_twoFilters">
        <translation>%1 has --filter-ext and --filter-ext-not. Give one of them.</translation>
    </message>
    <message id="cli_error_twoTemplates">
        <translation>Give one of --template and --template-text.</translation>
    </message>
    <message id="cli_error_unknownProblem">
        <translation>There is no problem %1 that could be accepted. Problems are named when they are found.</translation>
    </message>
    <message id="cli_error_unknownSetting">
        <translation>There is no preference %1.</translation>
    </message>
    <message id="cli_error_unknownZone">
        <translation>There is no time zone %1.</translation>
    </message>
    <message id="cli_error_unknownZoneNear">
        <translation>There is no time zone %1. Similar: %2.</translation>
    </message>
    <message id="cli_error_withoutRename">
        <translation>Options about names need --rename. Nothing was written.</translation>
    </message>
    <message id="cli_filterKeys">
        <translation>There are the keys %1.</translation>
    </message>
    <message id="cli_help_accept">
        <translation>Save although this problem was found</translation>
    </message>
    <message id="cli_help_addOn">
        <translation>The first add-on text of the template</translation>
    </message>
    <message id="cli_help_addOn2">
        <translation>The second one</translation>
    </message>
    <message id="cli_help_addOn3">
        <translation>The third one</translation>
    </message>
    <message id="cli_help_after">
        <translation>One second after this item</translation>
    </message>
    <message id="cli_help_align">
        <translation>Put a selection in order and show what a save would write</translation>
    </message>
    <message id="cli_help_align_footer">
        <translation>Exactly one of --gaps, --pack, --by-name, --reverse, --mirror and --copy is given.
Examples:
  mend align --gaps --pics IMG_0001.JPG IMG_0002.JPG IMG_0003.JPG --folder canon
  mend align --copy file-modification --pics all --folder scans --save</translation>
    </message>
    <message id="cli_help_alignSave">
        <translation>Save this with all other corrections; without it nothing is written</translation>
    </message>
    <message id="cli_help_all">
        <translation>Write files without a correction as well</translation>
    </message>
    <message id="cli_help_alternative">
        <translation>A file of the folder whose date happens twice: it is read as the earlier of the two</translation>
    </message>
    <message id="cli_help_before">
        <translation>One second before this item</translation>
    </message>
    <message id="cli_help_between">
        <translation>To the middle of two dates; several items are spread between them in equal steps</translation>
    </message>
    <message id="cli_help_byName">
        <translation>Give the dates of the selection out in the order of the names</translation>
    </message>
    <message id="cli_help_copy">
        <translation>Date each item by another of its own dates: digitized, modification, file-creation or file-modification, each as in the file or, with -new behind it, as a save would leave it</translation>
    </message>
    <message id="cli_help_counter">
        <translation>One number runs through all folders (all), or each folder counts from the start (folder)</translation>
    </message>
    <message id="cli_help_counterStart">
        <translation>The first number (else 1)</translation>
    </message>
    <message id="cli_help_dateSequence">
        <translation>Gives the items of all folders one date after the other, in the order of their names: the first date, and the STEP (seconds or H:MM:SS) to the next</translation>
    </message>
    <message id="cli_help_drag">
        <translation>Give an item a date by its place between others and show what a save would write</translation>
    </message>
    <message id="cli_help_drag_footer">
        <translation>Exactly one of --between, --before, --after and --onto is given.
Examples:
  mend drag canon nikon --pic DSC_0007.JPG --between IMG_0010.JPG IMG_0011.JPG
  mend drag canon scans --pic scans/01.tif --after canon/IMG_0010.JPG --save</translation>
    </message>
    <message id="cli_help_dragPic">
        <translation>The item to be dragged: a name, or FOLDER/NAME or a path where a name stands in several folders; with --between it may be repeated</translation>
    </message>
    <message id="cli_help_dryRun">
        <translation>Show every date, or name, old and new, and write nothing</translation>
    </message>
    <message id="cli_help_emptyTags">
        <translation>What empty date tags mean: leave the file alone (default), take the file’s date, or a date from which STEP (seconds or H:MM:SS) leads to the next</translation>
    </message>
    <message id="cli_help_file">
        <translation>Files to tell about; a folder stands for all in it</translation>
    </message>
    <message id="cli_help_filter">
        <translation>List only items for which this holds, such as 'spName CONTAINS[c] "IMG" AND filter_miscState_6 == 1'</translation>
    </message>
    <message id="cli_help_filterExt">
        <translation>Reads only files with these extensions, such as jpg,cr3; sidecars always come along</translation>
    </message>
    <message id="cli_help_filterExtNot">
        <translation>Leaves out files with these extensions, such as mov,mp4</translation>
    </message>
    <message id="cli_help_folder">
        <translation>A folder; the options behind it are about it</translation>
    </message>
    <message id="cli_help_folderOptions">
        <translation>Options of a folder (behind its --folder)</translation>
    </message>
    <message id="cli_help_footer">
        <translation>Exit codes: 0 done, 1 some item failed, 2 usage, 3 problems before the save and nothing written, 130 interrupted.</translation>
    </message>
    <message id="cli_help_forget">
        <translation>Gives up files that could not be put right</translation>
    </message>
    <message id="cli_help_gaps">
        <translation>Spread the selection evenly between its first and its last item</translation>
    </message>
    <message id="cli_help_help">
        <translation>Print this help and end</translation>
    </message>
    <message id="cli_help_info">
        <translation>Tell all that was read from files, with offsets and bytes</translation>
    </message>
    <message id="cli_help_info_footer">
        <translation>Example:
  mend info IMG_0001.JPG</translation>
    </message>
    <message id="cli_help_json">
        <translation>Print one JSON object a line</translation>
    </message>
    <message id="cli_help_language">
        <translation>Language of all messages (else the system’s)</translation>
    </message>
    <message id="cli_help_list">
        <translation>List the items of all folders in one order</translation>
    </message>
    <message id="cli_help_list_footer">
        <translation>Example:
  mend list --folder canon --shift -1:00:00 --folder nikon --source-zone America/New_York phone</translation>
    </message>
    <message id="cli_help_main">
        <translation>The main item for --pack, which stays (default: the first of the selection)</translation>
    </message>
    <message id="cli_help_mend">
        <translation>Puts photos of several cameras in one order and corrects their dates inside the files.</translation>
    </message>
    <message id="cli_help_mirror">
        <translation>Reverse the order of the selection; each item keeps its gaps to its neighbours</translation>
    </message>
    <message id="cli_help_movieClock">
        <translation>What the times in a movie’s header tell: utc, as the format says (default), or local, the clock of the camera</translation>
    </message>
    <message id="cli_help_movieDate">
        <translation>Which of a movie’s dates counts: mdta, that of its metadata where there is one (default), or mvhd, that of its header</translation>
    </message>
    <message id="cli_help_onto">
        <translation>To the very date of this item</translation>
    </message>
    <message id="cli_help_pack">
        <translation>Pack the selection around its main item, one second apart</translation>
    </message>
    <message id="cli_help_path">
        <translation>Folders or files without options of their own</translation>
    </message>
    <message id="cli_help_pic">
        <translation>An item of the folder; the --shift (added to the folder’s), --source-zone and --target-zone behind it are for it alone</translation>
    </message>
    <message id="cli_help_pics">
        <translation>The selection: names up to the next option, FOLDER/NAME or paths where a name stands in several folders; or all</translation>
    </message>
    <message id="cli_help_rating">
        <translation>List only items marked as keepers, or those not rejected</translation>
    </message>
    <message id="cli_help_rename">
        <translation>Give the files names by a template</translation>
    </message>
    <message id="cli_help_rename_footer">
        <translation>No file is ever overwritten: where a name is taken, a number is added. All files of a shot keep one name.
Examples:
  mend rename --templates
  mend rename canon phone --template-text '{year}_{month}_{day}_{counter:4}' --dry-run
  mend rename canon --template 2 --counter-start 100</translation>
    </message>
    <message id="cli_help_renameAtSave">
        <translation>Then give all files of the folders names by a template, in the same pass</translation>
    </message>
    <message id="cli_help_resume">
        <translation>Puts right what interrupted saves and renames left</translation>
    </message>
    <message id="cli_help_resume_footer">
        <translation>Each file becomes entirely old or entirely new, and gets its new name or its old one. The other commands do the same when they start. Exit code 1: some file could not be put right.</translation>
    </message>
    <message id="cli_help_reverse">
        <translation>Swap the dates of the selection end for end</translation>
    </message>
    <message id="cli_help_runOptions">
        <translation>Options of the whole run</translation>
    </message>
    <message id="cli_help_save">
        <translation>Write the corrections into the files</translation>
    </message>
    <message id="cli_help_save_footer">
        <translation>Examples:
  mend save --folder canon --shift -1:00:00 --dry-run
  mend save --folder canon --shift -1:00:00
  mend save --folder canon --target-zone own --pic IMG_0007.JPG --shift +0:05
  mend save --folder canon --shift -1:00:00 phone --rename --template-text '{year}_{month}_{day}_{counter:4}'</translation>
    </message>
    <message id="cli_help_set">
        <translation>Set a preference for this run</translation>
    </message>
    <message id="cli_help_shift">
        <translation>Move its dates: seconds, or [+-][Nd][H:MM[:SS]]; behind --pic, that item’s alone</translation>
    </message>
    <message id="cli_help_sourceZone">
        <translation>Time zone in which the camera’s clock was meant</translation>
    </message>
    <message id="cli_help_subfolders">
        <translation>Reads the folders inside as well, this many levels down</translation>
    </message>
    <message id="cli_help_syncXmp">
        <translation>Brings XMP data in the files and beside them into line with the new dates</translation>
    </message>
    <message id="cli_help_systemZone">
        <translation>Stands in for the system’s time zone</translation>
    </message>
    <message id="cli_help_tagMissing">
        <translation>Adds the date tags that files lack, where ExifTool can</translation>
    </message>
    <message id="cli_help_takeBack">
        <translation>Goes back to the old dates and names instead of finishing what was begun</translation>
    </message>
    <message id="cli_help_targetZone">
        <translation>Time zone in which dates are to be written; own keeps each file’s own</translation>
    </message>
    <message id="cli_help_template">
        <translation>The number of a template, as --templates lists them (else the one chosen in the preferences)</translation>
    </message>
    <message id="cli_help_templates">
        <translation>List the templates and end</translation>
    </message>
    <message id="cli_help_templateText">
        <translation>A template as text, such as '{year}_{month}_{day}_{counter:4}'</translation>
    </message>
    <message id="cli_help_version">
        <translation>Print the version and end</translation>
    </message>
    <message id="cli_importInterrupted">
        <translation>interrupted: %2 files of %1 were not read</translation>
    </message>
    <message id="cli_info_alerts">
        <translation>alerts</translation>
    </message>
    <message id="cli_info_camera">
        <translation>camera</translation>
    </message>
    <message id="cli_info_contentIdentifier">
        <translation>Content identifier</translation>
    </message>
    <message id="cli_info_date">
        <translation>date</translation>
    </message>
    <message id="cli_info_dates">
        <translation>dates</translation>
    </message>
    <message id="cli_info_duration">
        <translation>Duration</translation>
    </message>
    <message id="cli_info_follows">
        <translation>follows %1</translation>
    </message>
    <message id="cli_info_format">
        <translation>format</translation>
    </message>
    <message id="cli_info_group">
        <translation>Group</translation>
    </message>
    <message id="cli_info_leads">
        <translation>leads %1</translation>
    </message>
    <message id="cli_info_lens">
        <translation>lens</translation>
    </message>
    <message id="cli_info_location">
        <translation>location</translation>
    </message>
    <message id="cli_info_note">
        <translation>note</translation>
    </message>
    <message id="cli_info_refused">
        <translation>refused or tolerated</translation>
    </message>
    <message id="cli_info_room">
        <translation>%1 bytes</translation>
    </message>
    <message id="cli_info_seconds">
        <translation>%1 s</translation>
    </message>
    <message id="cli_info_sidecars">
        <translation>Sidecars</translation>
    </message>
    <message id="cli_info_size">
        <translation>size</translation>
    </message>
    <message id="cli_info_source">
        <translation>date from</translation>
    </message>
    <message id="cli_info_sourceZone">
        <translation>source zone</translation>
    </message>
    <message id="cli_info_targetZone">
        <translation>target zone</translation>
    </message>
    <message id="cli_info_values">
        <translation>values in the file</translation>
    </message>
    <message id="cli_interruptedRunWaits">
        <translation>An interrupted run waits to be put right, which a dry run leaves alone: %1</translation>
    </message>
    <message id="cli_list_hidden">
        <translation>, hidden by the filter: %1</translation>
    </message>
    <message id="cli_list_summary">
        <translation>items: %1, folders: %2, unsaved: %3</translation>
    </message>
    <message id="cli_missingTags">
        <translation>missing date tags asked for in files: %1</translation>
    </message>
    <message id="cli_note_emptyTags">
        <translation>date tags are empty, left alone</translation>
    </message>
    <message id="cli_note_filledTags">
        <translation>date tags are empty</translation>
    </message>
    <message id="cli_note_hardLinks">
        <translation>several names on disk</translation>
    </message>
    <message id="cli_note_noTags">
        <translation>no date inside, dated by the file</translation>
    </message>
    <message id="cli_note_unsaved">
        <translation>unsaved</translation>
    </message>
    <message id="cli_note_youngerThanFile">
        <translation>date inside is younger than the file, dated by the file</translation>
    </message>
    <message id="cli_progress_reading">
        <translation>Reading %1</translation>
    </message>
    <message id="cli_rename_interrupted">
        <translation>Interrupted. Files that are not named above as renamed kept their names.</translation>
    </message>
    <message id="cli_rename_leftOnTheWay">
        <translation>%1 left at a temporary name</translation>
    </message>
    <message id="cli_rename_leftOnTheWayNote">
        <translation>left on the way to %1</translation>
    </message>
    <message id="cli_rename_noteCompanion">
        <translation>%1 is missing or could not come along</translation>
    </message>
    <message id="cli_rename_noteDot">
        <translation>the name begins with a dot</translation>
    </message>
    <message id="cli_rename_noteNotRenamed">
        <translation>it could not be renamed</translation>
    </message>
    <message id="cli_rename_noteNotWritable">
        <translation>%1 cannot be written</translation>
    </message>
    <message id="cli_rename_nothingRenamed">
        <translation>Dry run: nothing was renamed.</translation>
    </message>
    <message id="cli_rename_notReached">
        <translation>%1 not reached</translation>
    </message>
    <message id="cli_rename_notReachedNote">
        <translation>not reached</translation>
    </message>
    <message id="cli_rename_numbered">
        <translation>%1 with a number behind a name that is taken</translation>
    </message>
    <message id="cli_rename_numberNote">
        <translation>number %1, as %2 is taken</translation>
    </message>
    <message id="cli_rename_planned">
        <translation>%1 to be renamed</translation>
    </message>
    <message id="cli_rename_refused">
        <translation>%1 refused</translation>
    </message>
    <message id="cli_rename_refusedNote">
        <translation>refused: it would be %1</translation>
    </message>
    <message id="cli_rename_renamed">
        <translation>%1 renamed</translation>
    </message>
    <message id="cli_rename_unchanged">
        <translation>%1 named so already</translation>
    </message>
    <message id="cli_rename_unchangedNote">
        <translation>is named so already</translation>
    </message>
    <message id="cli_result_failed">
        <translation>%1 failed</translation>
    </message>
    <message id="cli_result_notReached">
        <translation>%1 not reached</translation>
    </message>
    <message id="cli_result_planned">
        <translation>%1 to be saved</translation>
    </message>
    <message id="cli_result_refused">
        <translation>%1 refused</translation>
    </message>
    <message id="cli_result_saved">
        <translation>%1 saved</translation>
    </message>
    <message id="cli_result_unchanged">
        <translation>%1 unchanged</translation>
    </message>
    <message id="cli_resume_forgotten">
        <translation>%1 given up</translation>
    </message>
    <message id="cli_resume_left">
        <translation>%1 not put right; they stay noted for the next time. Those that are gone for good: mend resume --forget</translation>
    </message>
    <message id="cli_resume_nothing">
        <translation>No run was interrupted.</translation>
    </message>
    <message id="cli_save_acceptWith">
        <translation>To save anyway: %1</translation>
    </message>
    <message id="cli_save_accepted">
        <translation>accepted</translation>
    </message>
    <message id="cli_save_andMore">
        <translation>and %1 more; --dry-run and --json name them all</translation>
    </message>
    <message id="cli_save_dryRunNothingWritten">
        <translation>Dry run: nothing was written.</translation>
    </message>
    <message id="cli_save_hardLinks">
        <translation>the file has several names on disk; the change shows under all of them</translation>
    </message>
    <message id="cli_save_interrupted">
        <translation>Interrupted. The files above were not saved; all others are whole.</translation>
    </message>
    <message id="cli_save_interruptedBefore">
        <translation>Interrupted before the save. Nothing was written.</translation>
    </message>
    <message id="cli_save_keepOwnZones">
        <translation>To keep each file’s own zone: --target-zone own</translation>
    </message>
    <message id="cli_save_notReached">
        <translation>Not saved, as the run was interrupted:</translation>
    </message>
    <message id="cli_save_nothingToSave">
        <translation>No file has a correction. Nothing was written.</translation>
    </message>
    <message id="cli_save_problemsNothingWritten">
        <translation>Nothing was written, as problems were found that are not accepted.</translation>
    </message>
    <message id="cli_skipped">
        <translation>skipped: %1: %2</translation>
    </message>
    <message id="cli_slot_atSave">
        <translation>at save</translation>
    </message>
    <message id="cli_slot_notStorable">
        <translation>cannot be stored on this system</translation>
    </message>
    <message id="cli_slot_refused">
        <translation>refused</translation>
    </message>
    <message id="cli_slot_stays">
        <translation>stays</translation>
    </message>
    <message id="dateSource_1">
        <translation>date taken</translation>
    </message>
    <message id="dateSource_2">
        <translation>date digitised</translation>
    </message>
    <message id="dateSource_3">
        <translation>date modified</translation>
    </message>
    <message id="dateSource_4">
        <translation>file date, as the date modified is later than the file</translation>
    </message>
    <message id="dateSource_5">
        <translation>file date, as the date taken is empty</translation>
    </message>
    <message id="dateSource_6">
        <translation>file date, as the date digitised is empty</translation>
    </message>
    <message id="dateSource_7">
        <translation>file date, as the date modified is empty</translation>
    </message>
    <message id="dateSource_8">
        <translation>given at import, as the date taken is empty</translation>
    </message>
    <message id="dateSource_9">
        <translation>given at import, as the date digitised is empty</translation>
    </message>
    <message id="dateSource_10">
        <translation>given at import, as the date modified is empty</translation>
    </message>
    <message id="dateSource_11">
        <translation>file date, as there is no date tag</translation>
    </message>
    <message id="dateSource_12">
        <translation>given at import, as there is no date tag</translation>
    </message>
    <message id="dateSource_13">
        <translation>none, as dates of this file are not read</translation>
    </message>
    <message id="dateSource_14">
        <translation>file date, as there is no date in the movie</translation>
    </message>
    <message id="dateSource_15">
        <translation>date text of the AVI</translation>
    </message>
    <message id="dateSource_16">
        <translation>creation time of the movie header</translation>
    </message>
    <message id="dateSource_17">
        <translation>modification time of the movie header</translation>
    </message>
    <message id="dateSource_18">
        <translation>file date, as the modification time of the movie header is later than the file</translation>
    </message>
    <message id="dateSource_19">
        <translation>file date, as the times of the movie header are empty</translation>
    </message>
    <message id="dateSource_20">
        <translation>given at import, as the times of the movie header are empty</translation>
    </message>
    <message id="dateSource_21">
        <translation>creation date of the movie metadata</translation>
    </message>
    <message id="dateSource_22">
        <translation>none, as dates inside the files are ignored</translation>
    </message>
    <message id="dragInSingleMode">
        <translation>Move Items in Time</translation>
    </message>
    <message id="errorPanelDefaultButton">
        <translation>OK</translation>
    </message>
    <message id="errorPanelDescriptionText_ID0">
        <translation>The date of the file on disk could not be set, so nothing was changed in it. You may not own the file, or the disk or memory card does not allow it.</translation>
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
    <message id="errorPanelDescriptionText_ID14">
        <translation>These accompanying files are missing or could not be renamed with their photo or movie:</translation>
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
        <translation>These names begin with a dot, so many programs do not show the files:</translation>
    </message>
    <message id="errorPanelDescriptionText_ID2">
        <translation>The file could not be opened for writing. Check whether it is write-protected or in use by another program.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID21">
        <translation>A corrected date could not be written in the place that the file has for it. The file was not touched.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID23">
        <translation>The system refused to write. What had been written to the file was taken back.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID25">
        <translation>ExifTool did not write these files. They are as they were; ExifTool's own words stand behind each.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID26">
        <translation>These files need ExifTool, which was not found. Install the package “libimage-exiftool-perl”, or name the program in the preference “exifToolPath”.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID27">
        <translation>Another program is writing these files just now. Save again when it is done.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID28">
        <translation>The note that a recovery needs could not be written, so these files were not touched. Make room in the home folder.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID29">
        <translation>Another file took the place of these files while they were being saved. Import the folder again.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID3">
        <translation>The file was changed by another program since it was read. It was not touched. Read its folder again to work with it as it is now.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID4">
        <translation>The file or its folder could not be reached. It may have been moved or deleted, or its disk is not connected.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID5">
        <translation>These files could not be renamed:</translation>
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
        <translation>There were problems with %1 files.</translation>
    </message>
    <message id="errorPanelInformativeText_front_single">
        <translation>There was a problem with one file.</translation>
    </message>
    <message id="errorPanelMessageText">
        <translation>Not everything could be done.</translation>
    </message>
    <message id="mark_keeper">
        <translation>Mark as Keeper</translation>
    </message>
    <message id="mark_none">
        <translation>Remove Mark</translation>
    </message>
    <message id="mark_rejected">
        <translation>Mark as Rejected</translation>
    </message>
    <message id="menu_align">
        <translation>&amp;Align</translation>
    </message>
    <message id="menu_copyOtherFileDate_selection">
        <translation>Take Over Another Date of Each File</translation>
    </message>
    <message id="menu_copyOtherFileDate_single">
        <translation>Take Over Another Date of the File</translation>
    </message>
    <message id="menu_edit">
        <translation>&amp;Edit</translation>
    </message>
    <message id="menu_file">
        <translation>&amp;File</translation>
    </message>
    <message id="menu_folders">
        <translation>F&amp;olders</translation>
    </message>
    <message id="menu_help">
        <translation>&amp;Help</translation>
    </message>
    <message id="menu_items">
        <translation>&amp;Photos</translation>
    </message>
    <message id="menu_redo">
        <translation>Redo</translation>
    </message>
    <message id="menu_redo_named">
        <translation>Redo %1</translation>
    </message>
    <message id="menu_timeline">
        <translation>&amp;Timeline</translation>
    </message>
    <message id="menu_undo">
        <translation>Undo</translation>
    </message>
    <message id="menu_undo_named">
        <translation>Undo %1</translation>
    </message>
    <message id="month_short_1">
        <translation>Jan</translation>
    </message>
    <message id="month_short_2">
        <translation>Feb</translation>
    </message>
    <message id="month_short_3">
        <translation>Mar</translation>
    </message>
    <message id="month_short_4">
        <translation>Apr</translation>
    </message>
    <message id="month_short_5">
        <translation>May</translation>
    </message>
    <message id="month_short_6">
        <translation>Jun</translation>
    </message>
    <message id="month_short_7">
        <translation>Jul</translation>
    </message>
    <message id="month_short_8">
        <translation>Aug</translation>
    </message>
    <message id="month_short_9">
        <translation>Sep</translation>
    </message>
    <message id="month_short_10">
        <translation>Oct</translation>
    </message>
    <message id="month_short_11">
        <translation>Nov</translation>
    </message>
    <message id="month_short_12">
        <translation>Dec</translation>
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
        <translation>A movie counts its time from the start of the year 1904 and cannot hold an earlier date. If you save anyway, that movie is left as it is. Check the shift of the folder and of the movie.</translation>
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
        <translation>The photo says in which time zone its clock was. You chose no target time zone, so saving would write the time of this computer’s zone and its offset instead. The moment stays the same, but the clock time that is shown changes. To let each photo keep its zone, choose its own zone as the target; to change the zones on purpose, save anyway.</translation>
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
    <message id="recovery_changed">
        <translation>another program has changed it, or the file that belongs with it, after a run was interrupted; it is left alone, please check its dates</translation>
    </message>
    <message id="recovery_completed">
        <translation>was being written when a run was interrupted; it has all its new values now</translation>
    </message>
    <message id="recovery_inUse">
        <translation>it, or the file that belongs with it, is in use by another program and may be written only in part; close that program, it is tried again at the next start</translation>
    </message>
    <message id="recovery_message">
        <translation>An earlier run was interrupted, and has been put right</translation>
    </message>
    <message id="recovery_nothing">
        <translation>whole; an interrupted run had not begun with it, or was done with it, and nothing had to be written</translation>
    </message>
    <message id="recovery_renameChanged">
        <translation>was being renamed when a run was interrupted, and somebody has moved, replaced or removed it since; please look where it is</translation>
    </message>
    <message id="recovery_renameCompleted">
        <translation>was being renamed when a run was interrupted; it has a new name now</translation>
    </message>
    <message id="recovery_renameFailed">
        <translation>was being renamed when a run was interrupted and may have a temporary name; it, or a file that belongs with it, cannot be renamed now, please make the folder writable; it is tried again at the next start</translation>
    </message>
    <message id="recovery_renameNothing">
        <translation>an interrupted run was to rename it; it already has the name that it is to have</translation>
    </message>
    <message id="recovery_renameTakenBack">
        <translation>was being renamed when a run was interrupted; it has its old name</translation>
    </message>
    <message id="recovery_renameUnreachable">
        <translation>was being renamed when a run was interrupted and may have a temporary name; its folder cannot be reached, please connect its volume; it is tried again at the next start</translation>
    </message>
    <message id="recovery_takenBack">
        <translation>was being written when a run was interrupted; it has all its old values again, please save it once more</translation>
    </message>
    <message id="recovery_unreachable">
        <translation>it, or the file that belongs with it, cannot be found and may be written only in part; connect its volume or put it back, it is tried again at the next start</translation>
    </message>
    <message id="recovery_writeFailed">
        <translation>it, or the file that belongs with it, may be written only in part and cannot be written now; make it writable, it is tried again at the next start</translation>
    </message>
    <message id="resetAllInFolderMode">
        <translation>Take Back the Folder’s Shift</translation>
    </message>
    <message id="resetAllInSingleMode">
        <translation>Take Back All Single Shifts</translation>
    </message>
    <message id="saveObstacle_copyInTheWay">
        <translation>A copy of the file that ExifTool left behind stands beside it: “…_exiftool_tmp”</translation>
    </message>
    <message id="saveObstacle_fileDateNotKept">
        <translation>the disk cannot keep this date</translation>
    </message>
    <message id="saveObstacle_noChunk">
        <translation>a value stands in no part of the PNG file whose checksum could be renewed</translation>
    </message>
    <message id="saveObstacle_noRoom">
        <translation>the field of the date is too short</translation>
    </message>
    <message id="saveObstacle_notAccepted">
        <translation>a problem of this file was not accepted</translation>
    </message>
    <message id="saveObstacle_notPutBack">
        <translation>some of the file’s old dates could not be put back</translation>
    </message>
    <message id="saveObstacle_outOfRange">
        <translation>the movie's header cannot hold this date (1904 to 2040)</translation>
    </message>
    <message id="saveObstacle_toolFoundTags">
        <translation>ExifTool finds date tags in it that cannot be read here, or had nothing to write</translation>
    </message>
    <message id="saveObstacle_toolWroteOtherwise">
        <translation>ExifTool wrote the file, but not the wanted dates</translation>
    </message>
    <message id="saveObstacle_unreadableBack">
        <translation>the new date cannot be written so that it reads back as the same moment</translation>
    </message>
    <message id="saveObstacle_valuesCollide">
        <translation>two values of the file share the same bytes</translation>
    </message>
    <message id="shelfMove_closeShelf">
        <translation>Close Shelf</translation>
    </message>
    <message id="shelfMove_folderFromShelf">
        <translation>Move Folder Back to Timeline</translation>
    </message>
    <message id="shelfMove_folderToShelf">
        <translation>Move Folder to Shelf</translation>
    </message>
    <message id="shelfMove_fromShelf">
        <translation>Move Back to Timeline</translation>
    </message>
    <message id="shelfMove_toShelf">
        <translation>Move to Shelf</translation>
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
    <message id="dateSource_xmp">
        <translation>%1, from XMP</translation>
    </message>
    <message id="alertString_TZC_majorChangesWarning_defButton">
        <translation>OK</translation>
    </message>
    <message id="alertString_TZC_majorChangesWarning_infoText">
        <translation>Times without a zone of their own are now read in %1. Items that show another date now: %2. No file was changed. Look at the dates before you save. If the camera's clock did not move with this computer, give the folder the time zone in which that clock ran.</translation>
    </message>
    <message id="alertString_TZC_majorChangesWarning_messageText">
        <translation>The time zone of this computer has changed</translation>
    </message>
    <message id="toolAnswer_ended">
        <translation>ExifTool ended before it answered: “%1”</translation>
    </message>
    <message id="toolAnswer_notStarted">
        <translation>ExifTool could not be started: %1</translation>
    </message>
    <message id="toolAnswer_oddPath">
        <translation>ExifTool cannot be told of a name with these characters.</translation>
    </message>
    <message id="toolAnswer_timeOut">
        <translation>ExifTool did not answer in time and was ended.</translation>
    </message>
    <message id="xTError_ID_1">
        <translation>The location could not be written:</translation>
    </message>
    <message id="xTError_ID_2">
        <translation>The location could not be written to the sidecar:</translation>
    </message>
    <message id="xTError_ID_3">
        <translation>The location could not be completed:</translation>
    </message>
    <message id="xTError_ID_5">
        <translation>There was already a sidecar:</translation>
    </message>
    <message id="xTError_ID_6">
        <translation>Missing date tags could not be added:</translation>
    </message>
    <message id="xTError_ID_7">
        <translation>Short XMP dates could not be extended:</translation>
    </message>
    <message id="cli_slot_toBeWritten">
        <translation>to be written in place</translation>
    </message>
    <message id="cli_slot_toBeWrittenByTool">
        <translation>to be written by ExifTool</translation>
    </message>
    <message id="cli_slot_unchanged">
        <translation>unchanged</translation>
    </message>
    <message id="cli_slot_written">
        <translation>written in place</translation>
    </message>
    <message id="cli_slot_writtenByTool">
        <translation>written by ExifTool</translation>
    </message>
    <message id="workPanelSyncXMP">
        <translation>Bringing XMP dates into line</translation>
    </message>
    <message id="predicate_error_badDate">
        <translation>this is no date; a date is written such as "2024-05-06 07:08"</translation>
    </message>
    <message id="predicate_error_expectedJoin">
        <translation>AND, OR or the end is expected before “%1”</translation>
    </message>
    <message id="predicate_error_expectedKey">
        <translation>a key is expected</translation>
    </message>
    <message id="predicate_error_expectedOperator">
        <translation>an operator is expected: ==, !=, &lt;, &lt;=, >, >=, CONTAINS, BEGINSWITH, ENDSWITH</translation>
    </message>
    <message id="predicate_error_expectedValue">
        <translation>a value is expected: a text in quotes, a number or a date</translation>
    </message>
    <message id="predicate_error_missingParenthesis">
        <translation>a closing parenthesis is missing</translation>
    </message>
    <message id="predicate_error_notUtf8">
        <translation>the condition is not UTF-8</translation>
    </message>
    <message id="predicate_error_openText">
        <translation>the closing quote is missing</translation>
    </message>
    <message id="predicate_error_operatorNotForKey">
        <translation>“%1” does not suit the key</translation>
    </message>
    <message id="predicate_error_tooDeep">
        <translation>the condition is nested too deep</translation>
    </message>
    <message id="predicate_error_tooLong">
        <translation>the condition is too long</translation>
    </message>
    <message id="predicate_error_unknownEscape">
        <translation>“%1” has no meaning in a text</translation>
    </message>
    <message id="predicate_error_unknownFlags">
        <translation>“%1” is unknown; there are [c], [d], [cd]</translation>
    </message>
    <message id="predicate_error_unknownKey">
        <translation>“%1” is no key</translation>
    </message>
    <message id="predicate_error_valueNotForKey">
        <translation>the value does not suit the key</translation>
    </message>
    <message id="renameModTemplate_unnamed">
        <translation>Unnamed</translation>
    </message>
    <message id="errorPanelDescriptionText_ID8">
        <translation>The wanted name was taken, so a number was added:</translation>
    </message>
    <message id="errorPanelDescriptionText_ID9">
        <translation>A file that belongs to these cannot be written, so they were not renamed:</translation>
    </message>
    <message id="workPanelRename">
        <translation>Renaming files</translation>
    </message>
    <message id="renameStringPartGraphic_1">
        <translation>Year</translation>
    </message>
    <message id="renameStringPartGraphic_10">
        <translation>File name</translation>
    </message>
    <message id="renameStringPartGraphic_2">
        <translation>Month</translation>
    </message>
    <message id="renameStringPartGraphic_3">
        <translation>Day</translation>
    </message>
    <message id="renameStringPartGraphic_4">
        <translation>Hour</translation>
    </message>
    <message id="renameStringPartGraphic_5">
        <translation>Minute</translation>
    </message>
    <message id="renameStringPartGraphic_6">
        <translation>Second</translation>
    </message>
    <message id="renameStringPartGraphic_7">
        <translation>Counter</translation>
    </message>
    <message id="renameStringPartGraphic_8">
        <translation>Folder name</translation>
    </message>
    <message id="renameStringPartGraphic_9">
        <translation>Text 1</translation>
    </message>
    <message id="renameStringPartGraphic_9b">
        <translation>Text 2</translation>
    </message>
    <message id="renameStringPartGraphic_9c">
        <translation>Text 3</translation>
    </message>
    <message id="templateTextError_addOnOrder">
        <translation>“{%1}” comes too early: {addon1}, {addon2} and {addon3} stand in this order, without gaps.</translation>
    </message>
    <message id="templateTextError_braceWithoutBegin">
        <translation>A “}” without “{” before it. A brace that is to stand in the name is doubled: “}}”.</translation>
    </message>
    <message id="templateTextError_braceWithoutEnd">
        <translation>A “{” without “}” behind it. A brace that is to stand in the name is doubled: “{{”.</translation>
    </message>
    <message id="templateTextError_counterDigits">
        <translation>“{%1}”: a counter has at least 1 to 9 digits, as in {counter:4}.</translation>
    </message>
    <message id="templateTextError_notUtf8">
        <translation>The template is not written in UTF-8.</translation>
    </message>
    <message id="templateTextError_refusedCharacter">
        <translation>A name cannot hold colons, slashes, backslashes, control characters or characters that change the direction of writing.</translation>
    </message>
    <message id="templateTextError_twice">
        <translation>A template can hold “{%1}” only once.</translation>
    </message>
    <message id="templateTextError_unknownElement">
        <translation>There is no element “{%1}”. There are: {year} {year2} {month} {month1} {day} {hour} {minute} {second} {counter} {counter:4} {folder} {name} {addon1} {addon2} {addon3}.</translation>
    </message>
    <message id="nameCheck_control">
        <translation>the name holds a control character</translation>
    </message>
    <message id="nameCheck_direction">
        <translation>the name holds a character that turns the direction of writing</translation>
    </message>
    <message id="nameCheck_ending">
        <translation>the name ends with a dot or a blank</translation>
    </message>
    <message id="nameCheck_notUtf8">
        <translation>the name is not valid UTF-8</translation>
    </message>
    <message id="nameCheck_reserved">
        <translation>the name is reserved for a device on Windows</translation>
    </message>
    <message id="nameCheck_separator">
        <translation>the name holds a "/"</translation>
    </message>
    <message id="nameCheck_tooLong">
        <translation>the name is too long for the file system</translation>
    </message>
    <message id="confirmRemoveTemplateMessageText">
        <translation>Remove the selected template?</translation>
    </message>
    <message id="renameSummary_noGroups_multi">
        <translation>%1 files are renamed.</translation>
    </message>
    <message id="renameSummary_noGroups_single">
        <translation>%1 file is renamed.</translation>
    </message>
    <message id="renameSummary_noSingles_multi">
        <translation>%1 groups with %2 files together are renamed.</translation>
    </message>
    <message id="renameSummary_noSingles_single">
        <translation>%1 group with %2 files is renamed.</translation>
    </message>
    <message id="renameSummary_singlesAndGroups_multiMulti">
        <translation>%1 single files and %2 groups are renamed, %3 files together.</translation>
    </message>
    <message id="renameSummary_singlesAndGroups_multiSingle">
        <translation>%1 single files and %2 group are renamed, %3 files together.</translation>
    </message>
    <message id="renameSummary_singlesAndGroups_singleMulti">
        <translation>%1 single file and %2 groups are renamed, %3 files together.</translation>
    </message>
    <message id="renameSummary_singlesAndGroups_singleSingle">
        <translation>%1 single file and %2 group are renamed, %3 files together.</translation>
    </message>
    <message id="undoConfigureTemplateMenu">
        <translation>Change Name Element</translation>
    </message>
    <message id="undoDragTemplatePart">
        <translation>Move Name Element</translation>
    </message>
    <message id="undoPasteTemplatePart">
        <translation>Paste Name Element</translation>
    </message>
    <message id="confirmSaveBeforeRenameMessageTextAll_multi">
        <translation>%1 folders have changes that are not saved. Save them before all files are renamed?</translation>
    </message>
    <message id="confirmSaveBeforeRenameMessageTextAll_single">
        <translation>One folder has changes that are not saved. Save them before all files are renamed?</translation>
    </message>
    <message id="confirmSaveBeforeRenameMessageTextCurrent_multi">
        <translation>%1 of the selected folders have changes that are not saved. Save them before their files are renamed?</translation>
    </message>
    <message id="confirmSaveBeforeRenameMessageTextCurrent_single">
        <translation>The folder has changes that are not saved. Save them before its files are renamed?</translation>
    </message>
    <message id="templateStatusText1">
        <translation>This template gives all files one name. Add a date, the counter or the file’s own name.</translation>
    </message>
    <message id="templateStatusText2">
        <translation>Several files may get one name; then a number is added. A counter or the file’s own name prevents that.</translation>
    </message>
    <message id="dropRefusal_gpsTrack">
        <translation>is a GPS track; tracks cannot be linked yet</translation>
    </message>
    <message id="dropRefusal_libraryOfAnotherProgram">
        <translation>belongs to the library of another program</translation>
    </message>
    <message id="dropRefusal_nameNotUtf8">
        <translation>has a name that is no valid text</translation>
    </message>
    <message id="dropRefusal_noAccess">
        <translation>cannot be read: you have no access to it</translation>
    </message>
    <message id="dropRefusal_notAMedium">
        <translation>is neither a photo nor a movie</translation>
    </message>
    <message id="dropRefusal_notFound">
        <translation>is not there any more</translation>
    </message>
    <message id="addMissingTags_undoRedo">
        <translation>Add Missing Date Tags</translation>
    </message>
    <message id="assignZones_undoRedo">
        <translation>Set Time Zones</translation>
    </message>
    <message id="movieClock_undoRedo">
        <translation>Change Movie Clock</translation>
    </message>
    <message id="time_earlier">
        <translation>%1 earlier</translation>
    </message>
    <message id="time_later">
        <translation>%1 later</translation>
    </message>
    <message id="job_completing">
        <translation>Reading cameras and places of %1</translation>
    </message>
    <message id="job_reading">
        <translation>Reading %1</translation>
    </message>
    <message id="job_thumbnails">
        <translation>Thumbnails</translation>
    </message>
    <message id="reading_message">
        <translation>Not everything could be taken in</translation>
    </message>
    <message id="removeFolders_accept">
        <translation>Remove</translation>
    </message>
    <message id="removeFolders_information">
        <translation>Their corrections are lost. The files stay where they are, unchanged.</translation>
    </message>
    <message id="removeFolders_message">
        <translation>Remove folders with unsaved changes?</translation>
    </message>
    <message id="status_hiddenByFilter">
        <translation>%1 items are hidden by filters</translation>
    </message>
    <message id="status_nothingToAlign">
        <translation>Nothing to align</translation>
    </message>
    <message id="status_nothingToSave">
        <translation>Nothing waits for a save</translation>
    </message>
    <message id="status_nothingWritten">
        <translation>Nothing was written</translation>
    </message>
    <message id="status_outOfBounds">
        <translation>Refused: dates must stay between the years 1 and 4999</translation>
    </message>
    <message id="status_read">
        <translation>%1 items read from %2</translation>
    </message>
    <message id="status_read_one">
        <translation>1 item read from %1</translation>
    </message>
    <message id="status_renamed">
        <translation>%1 files renamed</translation>
    </message>
    <message id="status_saved">
        <translation>%1 files saved</translation>
    </message>
    <message id="status_savedAndRenamed">
        <translation>%1 files saved, %2 renamed</translation>
    </message>
    <message id="status_thumbnailsStopped">
        <translation>From now on thumbnails are made only for what is on screen</translation>
    </message>
    <message id="status_waitForReading">
        <translation>Please wait until all folders are read</translation>
    </message>
    <message id="status_waitForSave">
        <translation>Please wait until the save has ended</translation>
    </message>
    <message id="command_about">
        <translation>&amp;About chronoMender</translation>
    </message>
    <message id="command_addFolders">
        <translation>&amp;Add Folders…</translation>
    </message>
    <message id="command_addMissingTags">
        <translation>Add Missing &amp;Date Tags</translation>
    </message>
    <message id="command_addWithOptions">
        <translation>Add with &amp;Options…</translation>
    </message>
    <message id="command_alignSelected">
        <translation>&amp;Align…</translation>
    </message>
    <message id="command_clearFilters">
        <translation>&amp;Clear Filters</translation>
    </message>
    <message id="command_copyDigitizedNew">
        <translation>Take the Digitised Date (as It Will Be)</translation>
    </message>
    <message id="command_copyDigitizedOld">
        <translation>Take the Digitised Date (in the File)</translation>
    </message>
    <message id="command_copyFileCreationNew">
        <translation>Take the File’s Creation Date (as It Will Be)</translation>
    </message>
    <message id="command_copyFileCreationOld">
        <translation>Take the File’s Creation Date (as It Is)</translation>
    </message>
    <message id="command_copyFileModificationNew">
        <translation>Take the File’s Modification Date (as It Will Be)</translation>
    </message>
    <message id="command_copyFileModificationOld">
        <translation>Take the File’s Modification Date (as It Is)</translation>
    </message>
    <message id="command_copyTiffNew">
        <translation>Take the Modification Tag (as It Will Be)</translation>
    </message>
    <message id="command_copyTiffOld">
        <translation>Take the Modification Tag (in the File)</translation>
    </message>
    <message id="command_deselect">
        <translation>&amp;Select Nothing</translation>
    </message>
    <message id="command_earlierReading">
        <translation>Read as the &amp;Earlier Time</translation>
    </message>
    <message id="command_errorLog">
        <translation>Error &amp;Log</translation>
    </message>
    <message id="command_filter">
        <translation>Fi&amp;lter…</translation>
    </message>
    <message id="command_find">
        <translation>&amp;Find…</translation>
    </message>
    <message id="command_focusFolders">
        <translation>Go to &amp;Folders</translation>
    </message>
    <message id="command_focusInspector">
        <translation>Go to &amp;Details</translation>
    </message>
    <message id="command_focusShift">
        <translation>Go to &amp;Shift</translation>
    </message>
    <message id="command_focusStrip">
        <translation>Go to &amp;Timeline</translation>
    </message>
    <message id="command_folderToShelf">
        <translation>Put Folder on the &amp;Shelf</translation>
    </message>
    <message id="command_folderZones">
        <translation>Time &amp;Zones…</translation>
    </message>
    <message id="command_fromShelf">
        <translation>&amp;Take from the Shelf</translation>
    </message>
    <message id="command_fullScreen">
        <translation>F&amp;ull Screen</translation>
    </message>
    <message id="command_invertSelection">
        <translation>&amp;Invert Selection</translation>
    </message>
    <message id="command_itemZones">
        <translation>Time &amp;Zones of Selection…</translation>
    </message>
    <message id="command_keeper">
        <translation>&amp;Keeper</translation>
    </message>
    <message id="command_labels">
        <translation>&amp;Dates below Thumbnails</translation>
    </message>
    <message id="command_largerThumbs">
        <translation>&amp;Larger Thumbnails</translation>
    </message>
    <message id="command_mirrorStrip">
        <translation>&amp;Second View of the Timeline</translation>
    </message>
    <message id="command_moveWithArrows">
        <translation>&amp;Move in Time with Arrow Keys</translation>
    </message>
    <message id="command_movieClock">
        <translation>Movies Tell the Camera’s &amp;Own Clock</translation>
    </message>
    <message id="command_nextChapter">
        <translation>&amp;Next Day</translation>
    </message>
    <message id="command_nextKeeper">
        <translation>Ne&amp;xt Keeper</translation>
    </message>
    <message id="command_noMark">
        <translation>&amp;No Mark</translation>
    </message>
    <message id="command_oneStrip">
        <translation>&amp;One Timeline</translation>
    </message>
    <message id="command_onlyTheseFolders">
        <translation>Show &amp;Only These Folders</translation>
    </message>
    <message id="command_openItem">
        <translation>&amp;Open in Another Program</translation>
    </message>
    <message id="command_otherStrip">
        <translation>Go to the O&amp;ther Timeline</translation>
    </message>
    <message id="command_preferences">
        <translation>&amp;Preferences…</translation>
    </message>
    <message id="command_previousChapter">
        <translation>&amp;Previous Day</translation>
    </message>
    <message id="command_previousKeeper">
        <translation>&amp;Previous Keeper</translation>
    </message>
    <message id="command_quit">
        <translation>&amp;Quit</translation>
    </message>
    <message id="command_recolor">
        <translation>&amp;Colours in Order of Folders</translation>
    </message>
    <message id="command_rejected">
        <translation>&amp;Rejected</translation>
    </message>
    <message id="command_removeFolders">
        <translation>Re&amp;move Folders</translation>
    </message>
    <message id="command_renameAll">
        <translation>Rename &amp;All Files…</translation>
    </message>
    <message id="command_renameCurrent">
        <translation>&amp;Rename Folder’s Files…</translation>
    </message>
    <message id="command_resetShift">
        <translation>&amp;Reset Shift</translation>
    </message>
    <message id="command_save">
        <translation>&amp;Save Folder</translation>
    </message>
    <message id="command_saveAll">
        <translation>Sa&amp;ve All</translation>
    </message>
    <message id="command_saveAndRename">
        <translation>Save All and Re&amp;name…</translation>
    </message>
    <message id="command_saveWithoutChanges">
        <translation>Save Folder, Even If &amp;Unchanged</translation>
    </message>
    <message id="command_selectAll">
        <translation>Select &amp;All</translation>
    </message>
    <message id="command_selectFolderItems">
        <translation>Select All of the &amp;Folder</translation>
    </message>
    <message id="command_shortcuts">
        <translation>&amp;Keyboard Shortcuts</translation>
    </message>
    <message id="command_singleMode">
        <translation>Shift Each by &amp;Itself</translation>
    </message>
    <message id="command_smallerThumbs">
        <translation>S&amp;maller Thumbnails</translation>
    </message>
    <message id="command_togetherMode">
        <translation>Shift All &amp;Together</translation>
    </message>
    <message id="command_toShelf">
        <translation>Put on the &amp;Shelf</translation>
    </message>
    <message id="menu_view">
        <translation>&amp;View</translation>
    </message>
    <message id="prefs_appearance">
        <translation>&amp;Window</translation>
    </message>
    <message id="prefs_appearanceDark">
        <translation>dark</translation>
    </message>
    <message id="prefs_appearanceLight">
        <translation>light</translation>
    </message>
    <message id="prefs_appearanceSystem">
        <translation>as the system</translation>
    </message>
    <message id="prefs_backgroundThumbs">
        <translation>Make thumbnails &amp;ahead</translation>
    </message>
    <message id="prefs_choiceApart1">
        <translation>where they lie more than 1 second apart</translation>
    </message>
    <message id="prefs_choiceApart300">
        <translation>where they lie more than 5 minutes apart</translation>
    </message>
    <message id="prefs_choiceAsDigitized">
        <translation>takes the digitised date</translation>
    </message>
    <message id="prefs_choiceAsProgram">
        <translation>as chosen above</translation>
    </message>
    <message id="prefs_choiceAsTiff">
        <translation>takes the change date in the photo</translation>
    </message>
    <message id="prefs_choiceByMovie">
        <translation>at the time of the movie</translation>
    </message>
    <message id="prefs_choiceByStill">
        <translation>at the time of the still</translation>
    </message>
    <message id="prefs_choiceGpsDate">
        <translation>to the corrected date</translation>
    </message>
    <message id="prefs_choiceGpsShift">
        <translation>by the same shift</translation>
    </message>
    <message id="prefs_choiceKeep">
        <translation>stays, but is never earlier than the corrected date</translation>
    </message>
    <message id="prefs_choiceNever">
        <translation>never</translation>
    </message>
    <message id="prefs_choiceNewDate">
        <translation>takes the corrected date</translation>
    </message>
    <message id="prefs_choiceNow">
        <translation>takes the moment of saving</translation>
    </message>
    <message id="prefs_choiceSameShift">
        <translation>is shifted by the same time</translation>
    </message>
    <message id="prefs_close">
        <translation>Close</translation>
    </message>
    <message id="prefs_creationDate">
        <translation>Ea&amp;rliest modification date</translation>
    </message>
    <message id="prefs_digitized">
        <translation>&amp;Digitised date</translation>
    </message>
    <message id="prefs_digitizedFollows">
        <translation>Moves along where it equals the recording date</translation>
    </message>
    <message id="prefs_embeddedThumbs">
        <translation>Only &amp;thumbnails that the files hold</translation>
    </message>
    <message id="prefs_fileDate">
        <translation>File’s &amp;modification date</translation>
    </message>
    <message id="prefs_fileDateFollows">
        <translation>Moves along where it equals a date that moves</translation>
    </message>
    <message id="prefs_fileDatesToo">
        <translation>Change the &amp;file’s own dates, too</translation>
    </message>
    <message id="prefs_fileDateWithoutTiff">
        <translation>The same &amp;without a change date in the photo</translation>
    </message>
    <message id="prefs_fileGroups">
        <translation>Treat raw with JPEG, and photo with movie, as &amp;one</translation>
    </message>
    <message id="prefs_folderColor">
        <translation>Folder colour %1</translation>
    </message>
    <message id="prefs_folderColors">
        <translation>Folder colours</translation>
    </message>
    <message id="prefs_gap">
        <translation>Items dragged beyond the ends keep a &amp;distance of</translation>
    </message>
    <message id="prefs_gap1">
        <translation>1 second</translation>
    </message>
    <message id="prefs_gap10">
        <translation>10 seconds</translation>
    </message>
    <message id="prefs_gap3600">
        <translation>1 hour</translation>
    </message>
    <message id="prefs_gap60">
        <translation>1 minute</translation>
    </message>
    <message id="prefs_gap600">
        <translation>10 minutes</translation>
    </message>
    <message id="prefs_gap86400">
        <translation>1 day</translation>
    </message>
    <message id="prefs_groupAll">
        <translation>All files</translation>
    </message>
    <message id="prefs_groupExif">
        <translation>Photos and movies with a recording date</translation>
    </message>
    <message id="prefs_groupFiles">
        <translation>Files</translation>
    </message>
    <message id="prefs_groupInside">
        <translation>What is saved along</translation>
    </message>
    <message id="prefs_groupMovies">
        <translation>Movies</translation>
    </message>
    <message id="prefs_groupNoExif">
        <translation>Files without a date inside</translation>
    </message>
    <message id="prefs_groupPairs">
        <translation>Pairs</translation>
    </message>
    <message id="prefs_groupStrips">
        <translation>Timeline</translation>
    </message>
    <message id="prefs_groupThumbs">
        <translation>Thumbnails</translation>
    </message>
    <message id="prefs_groupTiff">
        <translation>Photos with nothing but a change date</translation>
    </message>
    <message id="prefs_groupTool">
        <translation>ExifTool</translation>
    </message>
    <message id="prefs_harmonizing">
        <translation>Give &amp;raw and JPEG one date</translation>
    </message>
    <message id="prefs_highlightEmpty">
        <translation>Mark items with &amp;empty dates</translation>
    </message>
    <message id="prefs_labels">
        <translation>&amp;Labels below thumbnails</translation>
    </message>
    <message id="prefs_largeThumbs">
        <translation>Keep &amp;large thumbnails (needs much memory)</translation>
    </message>
    <message id="prefs_livePhotosByMovie">
        <translation>&amp;Live photos stand at the time of their movie</translation>
    </message>
    <message id="prefs_livePhotosOfFolder">
        <translation>Live photos of a &amp;new folder stand</translation>
    </message>
    <message id="prefs_movieClock">
        <translation>Header times are the camera’s &amp;local time</translation>
    </message>
    <message id="prefs_movieMetaDate">
        <translation>Prefer the date that the &amp;phone recorded</translation>
    </message>
    <message id="prefs_notStored">
        <translation>The preference holds for now, but could not be stored.</translation>
    </message>
    <message id="prefs_overlapping">
        <translation>Join live photos whose movies &amp;overlap</translation>
    </message>
    <message id="prefs_pageAppearance">
        <translation>Appearance</translation>
    </message>
    <message id="prefs_pageDates">
        <translation>Dates</translation>
    </message>
    <message id="prefs_pageImport">
        <translation>Import</translation>
    </message>
    <message id="prefs_pageNames">
        <translation>Names</translation>
    </message>
    <message id="prefs_pages">
        <translation>Pages</translation>
    </message>
    <message id="prefs_pageSaving">
        <translation>Saving</translation>
    </message>
    <message id="prefs_previewJpeg">
        <translation>of the JPEG</translation>
    </message>
    <message id="prefs_previewRaw">
        <translation>of the raw file</translation>
    </message>
    <message id="prefs_rawJpgPreview">
        <translation>&amp;Picture of a raw with its JPEG</translation>
    </message>
    <message id="prefs_reset">
        <translation>Reset</translation>
    </message>
    <message id="prefs_resetOf">
        <translation>Reset: %1</translation>
    </message>
    <message id="prefs_skipEmptyTags">
        <translation>Do not ask about &amp;empty dates: take the file’s date</translation>
    </message>
    <message id="prefs_skipMovies">
        <translation>Do not &amp;ask about movies</translation>
    </message>
    <message id="prefs_subfolderDepth">
        <translation>Subfolders up to this &amp;depth</translation>
    </message>
    <message id="prefs_subfolders">
        <translation>Read &amp;subfolders, too</translation>
    </message>
    <message id="prefs_syncGps">
        <translation>Correct the &amp;GPS time, too</translation>
    </message>
    <message id="prefs_syncGpsType">
        <translation>GPS &amp;time is moved</translation>
    </message>
    <message id="prefs_syncXmp">
        <translation>Bring &amp;XMP dates into line with the saved ones</translation>
    </message>
    <message id="prefs_threshold">
        <translation>Dates are equal up to so many &amp;seconds</translation>
    </message>
    <message id="prefs_tiff">
        <translation>&amp;Change date in the photo</translation>
    </message>
    <message id="prefs_tiffFollows">
        <translation>Moves along where it equals the digitised date</translation>
    </message>
    <message id="prefs_title">
        <translation>Preferences</translation>
    </message>
    <message id="prefs_tool">
        <translation>&amp;Program</translation>
    </message>
    <message id="prefs_toolBrowse">
        <translation>Choose…</translation>
    </message>
    <message id="prefs_toolBrowseTitle">
        <translation>ExifTool</translation>
    </message>
    <message id="prefs_toolChecking">
        <translation>Being tried…</translation>
    </message>
    <message id="prefs_toolHint">
        <translation>exiftool on the search path</translation>
    </message>
    <message id="prefs_toolMissing">
        <translation>Not found. Dates that need more room in a file cannot be saved without it.</translation>
    </message>
    <message id="prefs_toolName">
        <translation>Path of ExifTool</translation>
    </message>
    <message id="prefs_toolOther">
        <translation>This program is not ExifTool.</translation>
    </message>
    <message id="prefs_toolRuns">
        <translation>ExifTool %1 works.</translation>
    </message>
    <message id="prefs_toolSilent">
        <translation>The program does not answer.</translation>
    </message>
    <message id="prefs_widenXmp">
        <translation>Write XMP dates that need &amp;more room through ExifTool</translation>
    </message>
    <message id="rename_addOn1">
        <translation>Text &amp;1</translation>
    </message>
    <message id="rename_addOn2">
        <translation>Text &amp;2</translation>
    </message>
    <message id="rename_addOn3">
        <translation>Text &amp;3</translation>
    </message>
    <message id="rename_atSave">
        <translation>&amp;When saving</translation>
    </message>
    <message id="rename_atSaveAll">
        <translation>rename all folders</translation>
    </message>
    <message id="rename_atSaveCompound">
        <translation>rename the selected folders</translation>
    </message>
    <message id="rename_atSaveCurrent">
        <translation>rename what is saved</translation>
    </message>
    <message id="rename_atSaveNothing">
        <translation>rename nothing</translation>
    </message>
    <message id="rename_cancel">
        <translation>Cancel</translation>
    </message>
    <message id="rename_caseLeave">
        <translation>as they are</translation>
    </message>
    <message id="rename_caseLower">
        <translation>lower case: jpg</translation>
    </message>
    <message id="rename_caseUpper">
        <translation>upper case: JPG</translation>
    </message>
    <message id="rename_changeFile">
        <translation>Change the or&amp;iginal name</translation>
    </message>
    <message id="rename_changeFolder">
        <translation>Change the &amp;folder’s name</translation>
    </message>
    <message id="rename_changeHow">
        <translation>How…</translation>
    </message>
    <message id="rename_check">
        <translation>C&amp;heck Names</translation>
    </message>
    <message id="rename_checkFree">
        <translation>%1 names are free.</translation>
    </message>
    <message id="rename_checking">
        <translation>Names are being checked…</translation>
    </message>
    <message id="rename_checkNumbered">
        <translation>%1 are taken and get a number.</translation>
    </message>
    <message id="rename_checkRefused">
        <translation>%1 cannot be renamed.</translation>
    </message>
    <message id="rename_columnNew">
        <translation>New name</translation>
    </message>
    <message id="rename_columnNote">
        <translation>Remark</translation>
    </message>
    <message id="rename_columnPresent">
        <translation>Now</translation>
    </message>
    <message id="rename_counter">
        <translation>&amp;Counter runs</translation>
    </message>
    <message id="rename_counterCompound">
        <translation>through the selected folders</translation>
    </message>
    <message id="rename_counterPerFolder">
        <translation>in each folder anew</translation>
    </message>
    <message id="rename_counterRunning">
        <translation>through all folders</translation>
    </message>
    <message id="rename_counterStart">
        <translation>and &amp;begins with</translation>
    </message>
    <message id="rename_digits">
        <translation>&amp;Digits of the counter:</translation>
    </message>
    <message id="rename_digitsName">
        <translation>Digits of the counter</translation>
    </message>
    <message id="rename_dotsLeave">
        <translation>stay</translation>
    </message>
    <message id="rename_dotsRemove">
        <translation>are removed</translation>
    </message>
    <message id="rename_dotsReport">
        <translation>stay, and are reported</translation>
    </message>
    <message id="rename_editorChange">
        <translation>Change Template</translation>
    </message>
    <message id="rename_editorField">
        <translation>Template: text and elements</translation>
    </message>
    <message id="rename_editorLabel">
        <translation>&amp;Name of a file:</translation>
    </message>
    <message id="rename_editorNew">
        <translation>New Template</translation>
    </message>
    <message id="rename_frontDots">
        <translation>&amp;Dots at the start of names</translation>
    </message>
    <message id="rename_keepAddOn">
        <translation>Keep the texts that files have already</translation>
    </message>
    <message id="rename_listFull">
        <translation>There are too many templates.</translation>
    </message>
    <message id="rename_month">
        <translation>&amp;Month:</translation>
    </message>
    <message id="rename_monthHint">
        <translation>One character: 1 to 9, A, B, C</translation>
    </message>
    <message id="rename_monthName">
        <translation>Month</translation>
    </message>
    <message id="rename_nameAtImport">
        <translation>as it was at import</translation>
    </message>
    <message id="rename_namePresent">
        <translation>as it is now</translation>
    </message>
    <message id="rename_next">
        <translation>Ne&amp;xt Remark</translation>
    </message>
    <message id="rename_noTemplate">
        <translation>Choose a template, or write a new one.</translation>
    </message>
    <message id="rename_noteNumber">
        <translation>“%1” is taken.</translation>
    </message>
    <message id="rename_nothingRenamed">
        <translation>Nothing is renamed.</translation>
    </message>
    <message id="rename_nothingToDo">
        <translation>There is nothing to rename.</translation>
    </message>
    <message id="rename_palette">
        <translation>&amp;Elements (Enter or double click inserts, Alt+arrows move):</translation>
    </message>
    <message id="rename_paletteName">
        <translation>Elements to insert</translation>
    </message>
    <message id="rename_presetKeep">
        <translation>Keep</translation>
    </message>
    <message id="rename_presetName">
        <translation>Name of these changes</translation>
    </message>
    <message id="rename_presetRemove">
        <translation>Remove</translation>
    </message>
    <message id="rename_presets">
        <translation>&amp;Kept as:</translation>
    </message>
    <message id="rename_redo">
        <translation>Redo</translation>
    </message>
    <message id="rename_refusedCharacter">
        <translation>A name cannot hold this character.</translation>
    </message>
    <message id="rename_restrictCounter">
        <translation>Count only what is rena&amp;med</translation>
    </message>
    <message id="rename_restrictFirst">
        <translation>what is selected on the timeline</translation>
    </message>
    <message id="rename_restriction">
        <translation>O&amp;nly</translation>
    </message>
    <message id="rename_restrictNone">
        <translation>all items of the folder</translation>
    </message>
    <message id="rename_restrictSecond">
        <translation>what is selected on the second timeline</translation>
    </message>
    <message id="rename_rowAdd">
        <translation>Add a Change</translation>
    </message>
    <message id="rename_rowAll">
        <translation>all</translation>
    </message>
    <message id="rename_rowBefore">
        <translation>what stands before this text, number:</translation>
    </message>
    <message id="rename_rowBehind">
        <translation>what stands behind this text, number:</translation>
    </message>
    <message id="rename_rowBy">
        <translation>by</translation>
    </message>
    <message id="rename_rowCapitalised">
        <translation>Each Word</translation>
    </message>
    <message id="rename_rowChangeCase">
        <translation>Letters</translation>
    </message>
    <message id="rename_rowCharacters">
        <translation>characters</translation>
    </message>
    <message id="rename_rowCharCount">
        <translation>Characters</translation>
    </message>
    <message id="rename_rowDelete">
        <translation>Remove this change</translation>
    </message>
    <message id="rename_rowDown">
        <translation>Move down</translation>
    </message>
    <message id="rename_rowEnd">
        <translation>at the end</translation>
    </message>
    <message id="rename_rowExample">
        <translation>Example: %1 → %2</translation>
    </message>
    <message id="rename_rowFromEnd">
        <translation>from the end</translation>
    </message>
    <message id="rename_rowFromFront">
        <translation>from the front</translation>
    </message>
    <message id="rename_rowFront">
        <translation>at the front</translation>
    </message>
    <message id="rename_rowHowMany">
        <translation>how many</translation>
    </message>
    <message id="rename_rowKeep">
        <translation>keep</translation>
    </message>
    <message id="rename_rowLower">
        <translation>lower case</translation>
    </message>
    <message id="rename_rowRemove">
        <translation>remove</translation>
    </message>
    <message id="rename_rowReplacement">
        <translation>replacement</translation>
    </message>
    <message id="rename_rowReplaceWith">
        <translation>Replace</translation>
    </message>
    <message id="rename_rows">
        <translation>Files and their new names</translation>
    </message>
    <message id="rename_rowsFile">
        <translation>Changes to the Original Name</translation>
    </message>
    <message id="rename_rowsFolder">
        <translation>Changes to the Folder’s Name</translation>
    </message>
    <message id="rename_rowText">
        <translation>text</translation>
    </message>
    <message id="rename_rowUp">
        <translation>Move up</translation>
    </message>
    <message id="rename_rowUpper">
        <translation>UPPER CASE</translation>
    </message>
    <message id="rename_rowUpToString">
        <translation>Part of the name</translation>
    </message>
    <message id="rename_rowWhich">
        <translation>which occurrence</translation>
    </message>
    <message id="rename_saveFirst">
        <translation>Save and Rename…</translation>
    </message>
    <message id="rename_saveFirstInformation">
        <translation>Names are made of the corrected dates.</translation>
    </message>
    <message id="rename_showAll">
        <translation>Show the &amp;other items, too</translation>
    </message>
    <message id="rename_sourceName">
        <translation>&amp;Original name</translation>
    </message>
    <message id="rename_start">
        <translation>&amp;Rename</translation>
    </message>
    <message id="rename_startSave">
        <translation>&amp;Save</translation>
    </message>
    <message id="rename_startSaveRename">
        <translation>&amp;Save and Rename</translation>
    </message>
    <message id="rename_suffixCase">
        <translation>&amp;Letters of the extension</translation>
    </message>
    <message id="rename_suffixHide">
        <translation>hidden</translation>
    </message>
    <message id="rename_suffixLeave">
        <translation>shown or hidden as it is</translation>
    </message>
    <message id="rename_suffixShow">
        <translation>shown</translation>
    </message>
    <message id="rename_suffixVisibility">
        <translation>&amp;Extension</translation>
    </message>
    <message id="zones_apply">
        <translation>&amp;Apply</translation>
    </message>
    <message id="zones_cancel">
        <translation>Cancel</translation>
    </message>
    <message id="zones_clockCamera">
        <translation>Camera’s clock</translation>
    </message>
    <message id="zones_clockComputer">
        <translation>This computer</translation>
    </message>
    <message id="zones_clockFile">
        <translation>In the files</translation>
    </message>
    <message id="zones_clockUtc">
        <translation>UTC</translation>
    </message>
    <message id="zones_firstItem">
        <translation>First</translation>
    </message>
    <message id="zones_forFolder">
        <translation>Time zones of “%1”</translation>
    </message>
    <message id="zones_forFolders">
        <translation>Time zones of %1 folders</translation>
    </message>
    <message id="zones_forItem">
        <translation>Time zones of “%1” alone</translation>
    </message>
    <message id="zones_forItems">
        <translation>Time zones of the %1 selected items alone</translation>
    </message>
    <message id="zones_lastItem">
        <translation>Last</translation>
    </message>
    <message id="zones_mainItem">
        <translation>Selected</translation>
    </message>
    <message id="zones_mixed">
        <translation>They differ, and stay so until something is chosen.</translation>
    </message>
    <message id="zones_noteOtherOffset">
        <translation>other offset from %1</translation>
    </message>
    <message id="zones_noteSummerFrom">
        <translation>summer time from %1</translation>
    </message>
    <message id="zones_noteSummerUntil">
        <translation>summer time until %1</translation>
    </message>
    <message id="strip_cannotMove">
        <translation>The date of %1 cannot be moved by dragging</translation>
    </message>
    <message id="strip_dayTitle">
        <translation>%1, %2</translation>
    </message>
    <message id="strip_empty">
        <translation>Here all photos and movies stand in one order, whatever camera they are from</translation>
    </message>
    <message id="strip_filtered">
        <translation>Everything is hidden by a filter or lies on the shelf</translation>
    </message>
    <message id="weekday_short_1">
        <translation>Mon</translation>
    </message>
    <message id="weekday_short_2">
        <translation>Tue</translation>
    </message>
    <message id="weekday_short_3">
        <translation>Wed</translation>
    </message>
    <message id="weekday_short_4">
        <translation>Thu</translation>
    </message>
    <message id="weekday_short_5">
        <translation>Fri</translation>
    </message>
    <message id="weekday_short_6">
        <translation>Sat</translation>
    </message>
    <message id="weekday_short_7">
        <translation>Sun</translation>
    </message>
    <message id="filter_all">
        <translation>All</translation>
    </message>
    <message id="filter_anyValue">
        <translation>any</translation>
    </message>
    <message id="filter_asText">
        <translation>This filter cannot be shown as rows. It runs as it is written here.</translation>
    </message>
    <message id="filter_beginsWith">
        <translation>begins with</translation>
    </message>
    <message id="filter_clear">
        <translation>C&amp;lear</translation>
    </message>
    <message id="filter_contains">
        <translation>contains</translation>
    </message>
    <message id="filter_counts">
        <translation>%1, %2</translation>
    </message>
    <message id="filter_dateAfter">
        <translation>after</translation>
    </message>
    <message id="filter_dateBefore">
        <translation>before</translation>
    </message>
    <message id="filter_dateFrom">
        <translation>at or after</translation>
    </message>
    <message id="filter_dateIs">
        <translation>exactly</translation>
    </message>
    <message id="filter_dateIsNot">
        <translation>not exactly</translation>
    </message>
    <message id="filter_dateUpTo">
        <translation>at or before</translation>
    </message>
    <message id="filter_endsWith">
        <translation>ends with</translation>
    </message>
    <message id="filter_hidden">
        <translation>%1 hidden</translation>
    </message>
    <message id="filter_hidden_one">
        <translation>1 hidden</translation>
    </message>
    <message id="filter_is">
        <translation>is</translation>
    </message>
    <message id="filter_isNot">
        <translation>is not</translation>
    </message>
    <message id="filter_keepers">
        <translation>Keepers</translation>
    </message>
    <message id="filter_kindCamera">
        <translation>Camera</translation>
    </message>
    <message id="filter_kindDate">
        <translation>Date</translation>
    </message>
    <message id="filter_kindMedia">
        <translation>Kind of media</translation>
    </message>
    <message id="filter_kindName">
        <translation>File name</translation>
    </message>
    <message id="filter_kindRange">
        <translation>Date range</translation>
    </message>
    <message id="filter_kindState">
        <translation>State</translation>
    </message>
    <message id="filter_match">
        <translation>Items mat&amp;ch</translation>
    </message>
    <message id="filter_matchAll">
        <translation>all</translation>
    </message>
    <message id="filter_matchAny">
        <translation>any</translation>
    </message>
    <message id="filter_matchEnd">
        <translation>of these conditions:</translation>
    </message>
    <message id="filter_matchName">
        <translation>How many conditions must hold</translation>
    </message>
    <message id="filter_mediaLivePhoto">
        <translation>Live photo</translation>
    </message>
    <message id="filter_mediaLivePhotosInARow">
        <translation>Live photo joined with the next</translation>
    </message>
    <message id="filter_mediaMovie">
        <translation>Movie</translation>
    </message>
    <message id="filter_mediaPhoto">
        <translation>Photo</translation>
    </message>
    <message id="filter_mediaRawAndJpeg">
        <translation>Raw with JPEG</translation>
    </message>
    <message id="filter_more">
        <translation>More…</translation>
    </message>
    <message id="filter_moreName">
        <translation>Filter by more than words</translation>
    </message>
    <message id="filter_notRejected">
        <translation>Not rejected</translation>
    </message>
    <message id="filter_other">
        <translation>A filter of its own is on</translation>
    </message>
    <message id="filter_rangeFrom">
        <translation>from</translation>
    </message>
    <message id="filter_rangeTill">
        <translation>through</translation>
    </message>
    <message id="filter_rating">
        <translation>Sho&amp;w</translation>
    </message>
    <message id="filter_reset">
        <translation>C&amp;lear</translation>
    </message>
    <message id="filter_row">
        <translation>Condition %1: %2</translation>
    </message>
    <message id="filter_rowAdd">
        <translation>add a condition below</translation>
    </message>
    <message id="filter_rowFrom">
        <translation>first day</translation>
    </message>
    <message id="filter_rowKind">
        <translation>what is asked</translation>
    </message>
    <message id="filter_rowOperator">
        <translation>comparison</translation>
    </message>
    <message id="filter_rowRemove">
        <translation>remove</translation>
    </message>
    <message id="filter_rowTill">
        <translation>last day</translation>
    </message>
    <message id="filter_rowValue">
        <translation>value</translation>
    </message>
    <message id="filter_shown">
        <translation>%1 items shown</translation>
    </message>
    <message id="filter_shown_one">
        <translation>1 item shown</translation>
    </message>
    <message id="filter_startAnew">
        <translation>Start A&amp;new</translation>
    </message>
    <message id="filter_stateAlert">
        <translation>Deserves a look</translation>
    </message>
    <message id="filter_stateChanged">
        <translation>Changed by another program</translation>
    </message>
    <message id="filter_stateError">
        <translation>Error of a save or rename</translation>
    </message>
    <message id="filter_stateLocation">
        <translation>With a location</translation>
    </message>
    <message id="filter_stateMissing">
        <translation>File not found</translation>
    </message>
    <message id="filter_stateReadAgain">
        <translation>Must be read again</translation>
    </message>
    <message id="filter_stateUnsaved">
        <translation>Not saved</translation>
    </message>
    <message id="filter_stateZone">
        <translation>In another zone than this computer</translation>
    </message>
    <message id="filter_templateKeepNow">
        <translation>Save</translation>
    </message>
    <message id="filter_templateName">
        <translation>Name of the template</translation>
    </message>
    <message id="filter_templateRemove">
        <translation>&amp;Delete…</translation>
    </message>
    <message id="filter_templateRemoveNow">
        <translation>Delete</translation>
    </message>
    <message id="filter_templateRemoveTitle">
        <translation>Delete the template “%1”?</translation>
    </message>
    <message id="filter_templateRename">
        <translation>&amp;Rename…</translation>
    </message>
    <message id="filter_templateRenameNow">
        <translation>Rename</translation>
    </message>
    <message id="filter_templateRenameTitle">
        <translation>Rename the template “%1”</translation>
    </message>
    <message id="filter_templateReplaces">
        <translation>Replaces the template of this name</translation>
    </message>
    <message id="filter_templates">
        <translation>&amp;Template:</translation>
    </message>
    <message id="filter_templateSave">
        <translation>&amp;Save as Template…</translation>
    </message>
    <message id="filter_templateSaveTitle">
        <translation>Save this filter as a template</translation>
    </message>
    <message id="filter_templatesName">
        <translation>Template</translation>
    </message>
    <message id="filter_templatesNone">
        <translation>none</translation>
    </message>
    <message id="filter_templateTooLong">
        <translation>This filter is too long for a template</translation>
    </message>
    <message id="filter_templateUnreadable">
        <translation>This template cannot be read</translation>
    </message>
    <message id="filter_textName">
        <translation>The running filter as text</translation>
    </message>
    <message id="filter_title">
        <translation>Filter</translation>
    </message>
    <message id="filter_words">
        <translation>Filter by name or camera</translation>
    </message>
    <message id="folders_add">
        <translation>Add Folders…</translation>
    </message>
    <message id="folders_alerts">
        <translation>%1 alerts</translation>
    </message>
    <message id="folders_alerts_one">
        <translation>1 alert</translation>
    </message>
    <message id="folders_beingRead">
        <translation>being read…</translation>
    </message>
    <message id="folders_datesIgnored">
        <translation>dates inside ignored</translation>
    </message>
    <message id="folders_empty">
        <translation>Drop folders or photos here</translation>
    </message>
    <message id="folders_emptyHint">
        <translation>Nothing is changed in your files before you save.</translation>
    </message>
    <message id="folders_items">
        <translation>%1 items</translation>
    </message>
    <message id="folders_items_one">
        <translation>1 item</translation>
    </message>
    <message id="folders_itemsShifted">
        <translation>%1 items shifted</translation>
    </message>
    <message id="folders_itemsShifted_one">
        <translation>1 item shifted</translation>
    </message>
    <message id="folders_list">
        <translation>Folders</translation>
    </message>
    <message id="folders_missing">
        <translation>cannot be reached</translation>
    </message>
    <message id="folders_movieClockLocal">
        <translation>movies in camera time</translation>
    </message>
    <message id="folders_renameErrors">
        <translation>%1 not renamed</translation>
    </message>
    <message id="folders_renameErrors_one">
        <translation>1 not renamed</translation>
    </message>
    <message id="folders_saveErrors">
        <translation>%1 not saved</translation>
    </message>
    <message id="folders_saveErrors_one">
        <translation>1 not saved</translation>
    </message>
    <message id="folders_single">
        <translation>shifted one by one</translation>
    </message>
    <message id="folders_together">
        <translation>shifted together</translation>
    </message>
    <message id="folders_unsaved">
        <translation>%1 unsaved</translation>
    </message>
    <message id="folders_unsaved_one">
        <translation>1 unsaved</translation>
    </message>
    <message id="folders_zoneExceptions">
        <translation>%1 with zones of their own</translation>
    </message>
    <message id="folders_zoneExceptions_one">
        <translation>1 with zones of its own</translation>
    </message>
    <message id="folders_zonesOfFiles">
        <translation>each file’s own</translation>
    </message>
    <message id="inspector_actionFor">
        <translation>%1: %2</translation>
    </message>
    <message id="inspector_addMissingTags">
        <translation>Add Missing Dates</translation>
    </message>
    <message id="inspector_before1970">
        <translation>The date is that of the file and lies before 1970</translation>
    </message>
    <message id="inspector_before1970_of">
        <translation>%1 file dates lie before 1970</translation>
    </message>
    <message id="inspector_before1970_of_one">
        <translation>1 file date lies before 1970</translation>
    </message>
    <message id="inspector_camera">
        <translation>Camera</translation>
    </message>
    <message id="inspector_cannotBeWritten">
        <translation>%1 new dates would be read as another time</translation>
    </message>
    <message id="inspector_cannotBeWritten_one">
        <translation>1 new date would be read as another time</translation>
    </message>
    <message id="inspector_changedSinceRead">
        <translation>The file was changed since it was read</translation>
    </message>
    <message id="inspector_changedSinceRead_of">
        <translation>%1 files were changed since they were read</translation>
    </message>
    <message id="inspector_changedSinceRead_of_one">
        <translation>1 file was changed since it was read</translation>
    </message>
    <message id="inspector_dateFrom">
        <translation>Date from</translation>
    </message>
    <message id="inspector_duration">
        <translation>Duration</translation>
    </message>
    <message id="inspector_emptyTags">
        <translation>The dates inside the file are empty</translation>
    </message>
    <message id="inspector_emptyTags_of">
        <translation>%1 items with empty dates inside</translation>
    </message>
    <message id="inspector_emptyTags_of_one">
        <translation>1 item with empty dates inside</translation>
    </message>
    <message id="inspector_folders">
        <translation>several folders</translation>
    </message>
    <message id="inspector_gpsApart">
        <translation>%1 items differ from their GPS time</translation>
    </message>
    <message id="inspector_gpsApart_one">
        <translation>1 item differs from its GPS time</translation>
    </message>
    <message id="inspector_groupsApart">
        <translation>%1 pairs whose files lie apart</translation>
    </message>
    <message id="inspector_groupsApart_one">
        <translation>1 pair whose files lie apart</translation>
    </message>
    <message id="inspector_hardLinks">
        <translation>several names on disk</translation>
    </message>
    <message id="inspector_items">
        <translation>%1 items</translation>
    </message>
    <message id="inspector_items_one">
        <translation>1 item</translation>
    </message>
    <message id="inspector_leaveTagsOut">
        <translation>Don’t Add</translation>
    </message>
    <message id="inspector_leftAlone">
        <translation>left alone</translation>
    </message>
    <message id="inspector_lens">
        <translation>Lens</translation>
    </message>
    <message id="inspector_location">
        <translation>Location</translation>
    </message>
    <message id="inspector_mixed">
        <translation>mixed</translation>
    </message>
    <message id="inspector_noTags">
        <translation>There is no date inside the file</translation>
    </message>
    <message id="inspector_noTags_of">
        <translation>%1 items without a date inside</translation>
    </message>
    <message id="inspector_noTags_of_one">
        <translation>1 item without a date inside</translation>
    </message>
    <message id="inspector_notFound">
        <translation>The file is no longer there</translation>
    </message>
    <message id="inspector_notFound_of">
        <translation>%1 files are no longer there</translation>
    </message>
    <message id="inspector_notFound_of_one">
        <translation>1 file is no longer there</translation>
    </message>
    <message id="inspector_nothing">
        <translation>Nothing selected</translation>
    </message>
    <message id="inspector_otherThanInFile">
        <translation>%1 items are shown at another time than the file says</translation>
    </message>
    <message id="inspector_otherThanInFile_one">
        <translation>1 item is shown at another time than the file says</translation>
    </message>
    <message id="inspector_readAsEarlier">
        <translation>Read as the Earlier</translation>
    </message>
    <message id="inspector_readAsLater">
        <translation>Read as the Later</translation>
    </message>
    <message id="inspector_renameError">
        <translation>The last rename did not succeed</translation>
    </message>
    <message id="inspector_renameError_of">
        <translation>%1 items could not be renamed</translation>
    </message>
    <message id="inspector_renameError_of_one">
        <translation>1 item could not be renamed</translation>
    </message>
    <message id="inspector_repeatedTimes">
        <translation>%1 items with a time that happens twice</translation>
    </message>
    <message id="inspector_repeatedTimes_one">
        <translation>1 item with a time that happens twice</translation>
    </message>
    <message id="inspector_saveError">
        <translation>The last save did not succeed</translation>
    </message>
    <message id="inspector_saveError_of">
        <translation>%1 items could not be saved</translation>
    </message>
    <message id="inspector_saveError_of_one">
        <translation>1 item could not be saved</translation>
    </message>
    <message id="inspector_setZones">
        <translation>Set Zones…</translation>
    </message>
    <message id="inspector_shift">
        <translation>Shift</translation>
    </message>
    <message id="inspector_showErrors">
        <translation>Show the Errors…</translation>
    </message>
    <message id="inspector_size">
        <translation>Size</translation>
    </message>
    <message id="inspector_sourceSlot">
        <translation>The item’s date</translation>
    </message>
    <message id="inspector_tagsMissing">
        <translation>Some dates are missing in the file</translation>
    </message>
    <message id="inspector_tagsMissing_of">
        <translation>%1 items with missing dates</translation>
    </message>
    <message id="inspector_tagsMissing_of_one">
        <translation>1 item with missing dates</translation>
    </message>
    <message id="inspector_tagsWillBeAdded">
        <translation>Missing dates will be added when you save</translation>
    </message>
    <message id="inspector_tagsWillBeAdded_of">
        <translation>Missing dates of %1 items will be added when you save</translation>
    </message>
    <message id="inspector_tagsWillBeAdded_of_one">
        <translation>Missing dates of 1 item will be added when you save</translation>
    </message>
    <message id="inspector_title">
        <translation>Inspector</translation>
    </message>
    <message id="inspector_unsaved">
        <translation>unsaved</translation>
    </message>
    <message id="inspector_unsavedItems">
        <translation>%1 unsaved</translation>
    </message>
    <message id="inspector_unsavedItems_one">
        <translation>1 unsaved</translation>
    </message>
    <message id="inspector_youngerThanFile">
        <translation>The date inside is later than the file’s, which is shown instead</translation>
    </message>
    <message id="inspector_youngerThanFile_of">
        <translation>%1 items with a date inside that is later than the file’s</translation>
    </message>
    <message id="inspector_youngerThanFile_of_one">
        <translation>1 item with a date inside that is later than the file’s</translation>
    </message>
    <message id="inspector_zones">
        <translation>Zone</translation>
    </message>
    <message id="inspector_zonesDisagree">
        <translation>%1 items whose zones disagree</translation>
    </message>
    <message id="inspector_zonesDisagree_one">
        <translation>1 item whose zones disagree</translation>
    </message>
    <message id="jobs_cancel">
        <translation>Cancel</translation>
    </message>
    <message id="jobs_cancelling">
        <translation>stopping…</translation>
    </message>
    <message id="jobs_cancelNamed">
        <translation>Cancel: %1</translation>
    </message>
    <message id="jobs_doneOf">
        <translation>%1 of %2</translation>
    </message>
    <message id="jobs_items">
        <translation>%1 items</translation>
    </message>
    <message id="jobs_items_one">
        <translation>1 item</translation>
    </message>
    <message id="jobs_perSecond">
        <translation>%1 per second</translation>
    </message>
    <message id="jobs_remaining">
        <translation>%1 left</translation>
    </message>
    <message id="jobs_selected">
        <translation>%1 selected</translation>
    </message>
    <message id="jobs_selected_one">
        <translation>1 selected</translation>
    </message>
    <message id="jobs_unsaved">
        <translation>%1 unsaved</translation>
    </message>
    <message id="jobs_unsaved_one">
        <translation>1 unsaved</translation>
    </message>
    <message id="preview_after">
        <translation>Shot after</translation>
    </message>
    <message id="preview_before">
        <translation>Shot before</translation>
    </message>
    <message id="preview_main">
        <translation>Preview</translation>
    </message>
    <message id="preview_none">
        <translation>No other shot</translation>
    </message>
    <message id="preview_nothing">
        <translation>Select an item to see it here</translation>
    </message>
    <message id="preview_pending">
        <translation>Making the preview…</translation>
    </message>
    <message id="preview_sameTime">
        <translation>at the same time</translation>
    </message>
    <message id="shift_days">
        <translation>&amp;days</translation>
    </message>
    <message id="shift_direction">
        <translation>&amp;Shift</translation>
    </message>
    <message id="shift_earlier">
        <translation>earlier</translation>
    </message>
    <message id="shift_hint">
        <translation>%1: %2 → %3</translation>
    </message>
    <message id="shift_hintUnchanged">
        <translation>%1: %2</translation>
    </message>
    <message id="shift_hours">
        <translation>ho&amp;urs</translation>
    </message>
    <message id="shift_later">
        <translation>later</translation>
    </message>
    <message id="shift_minutes">
        <translation>&amp;minutes</translation>
    </message>
    <message id="shift_mixedModes">
        <translation>The selected folders are in different modes</translation>
    </message>
    <message id="shift_noFolder">
        <translation>Select a folder to shift its dates</translation>
    </message>
    <message id="shift_noItem">
        <translation>Select the items to shift</translation>
    </message>
    <message id="shift_nothingToShift">
        <translation>No date here can be shifted</translation>
    </message>
    <message id="shift_own">
        <translation>each its own</translation>
    </message>
    <message id="shift_reset">
        <translation>&amp;Reset</translation>
    </message>
    <message id="shift_resetTip">
        <translation>Show the original dates again</translation>
    </message>
    <message id="shift_saving">
        <translation>A save is running</translation>
    </message>
    <message id="shift_seconds">
        <translation>se&amp;conds</translation>
    </message>
    <message id="shift_single">
        <translation>One &amp;by one</translation>
    </message>
    <message id="shift_singleTip">
        <translation>Each item has a shift of its own</translation>
    </message>
    <message id="shift_together">
        <translation>To&amp;gether</translation>
    </message>
    <message id="shift_togetherTip">
        <translation>One shift for the whole folder</translation>
    </message>
    <message id="slot_exifDateTimeDigitized">
        <translation>Digitised</translation>
    </message>
    <message id="slot_exifDateTimeOriginal">
        <translation>Taken</translation>
    </message>
    <message id="slot_fileCreationDate">
        <translation>File created</translation>
    </message>
    <message id="slot_fileModificationDate">
        <translation>File modified</translation>
    </message>
    <message id="slot_movie_exifDateTimeDigitized">
        <translation>Digitised</translation>
    </message>
    <message id="slot_movie_exifDateTimeOriginal">
        <translation>Created</translation>
    </message>
    <message id="slot_movie_tiffDateTime">
        <translation>Modified</translation>
    </message>
    <message id="slot_tiffDateTime">
        <translation>Modified</translation>
    </message>
    <message id="about_information">
        <translation>Mends the dates of photos and movies from cameras whose clocks disagree. Files are never rewritten: only the bytes of their dates change.</translation>
    </message>
    <message id="about_message">
        <translation>chronoMender %1</translation>
    </message>
    <message id="dateSequence_first">
        <translation>First date</translation>
    </message>
    <message id="dateSequence_hours">
        <translation>hours</translation>
    </message>
    <message id="dateSequence_minutes">
        <translation>minutes</translation>
    </message>
    <message id="dateSequence_seconds">
        <translation>seconds</translation>
    </message>
    <message id="dateSequence_step">
        <translation>Step</translation>
    </message>
    <message id="dateSequence_unit">
        <translation>Unit of the step</translation>
    </message>
    <message id="emptyTags_fileDate">
        <translation>The date of the file on disk</translation>
    </message>
    <message id="emptyTags_fixedDate">
        <translation>A date of your own, rising from file to file</translation>
    </message>
    <message id="emptyTags_information">
        <translation>The tags are there, but nobody has set the camera’s clock. Which dates are these files to have?</translation>
    </message>
    <message id="emptyTags_leaveAlone">
        <translation>None: show them, and never save them</translation>
    </message>
    <message id="emptyTags_message">
        <translation>Some files of “%1” have empty date tags</translation>
    </message>
    <message id="errorLog_delete">
        <translation>Delete Log</translation>
    </message>
    <message id="errorLog_empty">
        <translation>There are none.</translation>
    </message>
    <message id="errorLog_information">
        <translation>The newest stand at the end.</translation>
    </message>
    <message id="errorLog_message">
        <translation>Errors of the last runs</translation>
    </message>
    <message id="errorLog_text">
        <translation>Error log</translation>
    </message>
    <message id="errors_text">
        <translation>Errors and their files</translation>
    </message>
    <message id="importOptions_accept">
        <translation>Read</translation>
    </message>
    <message id="importOptions_allFiles">
        <translation>All</translation>
    </message>
    <message id="importOptions_depth">
        <translation>Levels of folders</translation>
    </message>
    <message id="importOptions_extensions">
        <translation>Extensions</translation>
    </message>
    <message id="importOptions_filterKind">
        <translation>Files</translation>
    </message>
    <message id="importOptions_groups">
        <translation>Take raw with JPEG, and photo with movie, as one</translation>
    </message>
    <message id="importOptions_ignoreDates">
        <translation>Ignore the dates inside the files</translation>
    </message>
    <message id="importOptions_information">
        <translation>These choices hold for this time only.</translation>
    </message>
    <message id="importOptions_messageMany">
        <translation>How are these %1 to be read?</translation>
    </message>
    <message id="importOptions_messageOne">
        <translation>How is this folder to be read?</translation>
    </message>
    <message id="importOptions_notExtensions">
        <translation>All but these extensions</translation>
    </message>
    <message id="importOptions_onlyExtensions">
        <translation>Only with these extensions</translation>
    </message>
    <message id="importOptions_sequence">
        <translation>Give dates one after the other</translation>
    </message>
    <message id="importOptions_single">
        <translation>Shift each by itself</translation>
    </message>
    <message id="importOptions_subfolders">
        <translation>Read folders inside folders</translation>
    </message>
    <message id="importOptions_systemZone">
        <translation>As this computer</translation>
    </message>
    <message id="importOptions_zone">
        <translation>Time zone of the camera’s clock</translation>
    </message>
    <message id="movieOptions_information">
        <translation>A movie’s header is to hold universal time. Many cameras write their own clock there.</translation>
    </message>
    <message id="movieOptions_local">
        <translation>The camera’s own clock</translation>
    </message>
    <message id="movieOptions_message">
        <translation>What do the movies of “%1” tell?</translation>
    </message>
    <message id="movieOptions_metadata">
        <translation>Where a movie also has a date with its zone, take that</translation>
    </message>
    <message id="movieOptions_utc">
        <translation>Universal time, as phones do</translation>
    </message>
    <message id="notice_text">
        <translation>Details</translation>
    </message>
    <message id="preSave_detail">
        <translation>Detail</translation>
    </message>
    <message id="preSave_file">
        <translation>File</translation>
    </message>
    <message id="preSave_folder">
        <translation>Folder</translation>
    </message>
    <message id="preSave_keepZones">
        <translation>Keep Their Zones</translation>
    </message>
    <message id="preSave_list">
        <translation>Problems and their files</translation>
    </message>
    <message id="sheet_cancel">
        <translation>Cancel</translation>
    </message>
    <message id="sheet_close">
        <translation>Close</translation>
    </message>
    <message id="sheet_continue">
        <translation>Continue</translation>
    </message>
    <message id="sheet_dontAskAgain">
        <translation>Do not ask again</translation>
    </message>
    <message id="shortcuts_command">
        <translation>Command</translation>
    </message>
    <message id="shortcuts_information">
        <translation>Arrow keys walk along the timeline; Space selects, Enter drops what is being moved, Esc lets go.</translation>
    </message>
    <message id="shortcuts_keys">
        <translation>Keys</translation>
    </message>
    <message id="shortcuts_list">
        <translation>Commands and their keys</translation>
    </message>
    <message id="shortcuts_message">
        <translation>Keyboard shortcuts</translation>
    </message>
    <message id="thumb_cannotBeOpened">
        <translation>The file cannot be opened</translation>
    </message>
    <message id="thumb_damagedOrUnknown">
        <translation>The picture is damaged or of an unknown kind</translation>
    </message>
    <message id="thumb_noneInFile">
        <translation>The file holds no thumbnail; select it to make one</translation>
    </message>
    <message id="thumb_noPicture">
        <translation>There is no picture in the file</translation>
    </message>
    <message id="thumb_tooLarge">
        <translation>The picture is too large to be shown</translation>
    </message>
    <message id="zones_search">
        <translation>search</translation>
    </message>
    <message id="zones_searchHint">
        <translation>City, country or offset (+9)</translation>
    </message>
    <message id="zones_source">
        <translation>The camera’s clock meant</translation>
    </message>
    <message id="zones_sourceNamed">
        <translation>&amp;A zone:</translation>
    </message>
    <message id="zones_sourceSystem">
        <translation>&amp;This computer’s zone (%1)</translation>
    </message>
    <message id="zones_target">
        <translation>The files are to say</translation>
    </message>
    <message id="zones_targetNamed">
        <translation>A &amp;zone:</translation>
    </message>
    <message id="zones_targetOwn">
        <translation>Each photo’s &amp;own stored zone</translation>
    </message>
    <message id="zones_targetSame">
        <translation>The &amp;same as the camera’s clock</translation>
    </message>
    <message id="zones_targetSystem">
        <translation>This &amp;computer’s zone (%1)</translation>
    </message>
    <message id="zones_title">
        <translation>Time Zones</translation>
    </message>
    <message id="zones_worldClock">
        <translation>What the clocks say</translation>
    </message>
    <message id="strip_markAlert">
        <translation>date needs a look</translation>
    </message>
    <message id="strip_markClockDanger">
        <translation>date in doubt as the clocks changed</translation>
    </message>
    <message id="strip_markError">
        <translation>error</translation>
    </message>
    <message id="strip_markKeeper">
        <translation>keeper</translation>
    </message>
    <message id="strip_markLivePhoto">
        <translation>live photo</translation>
    </message>
    <message id="strip_markMissing">
        <translation>file not found</translation>
    </message>
    <message id="strip_markMovie">
        <translation>movie</translation>
    </message>
    <message id="strip_markRawAndJpeg">
        <translation>raw with JPEG</translation>
    </message>
    <message id="strip_markRejected">
        <translation>rejected</translation>
    </message>
    <message id="strip_markUnsaved">
        <translation>unsaved</translation>
    </message>
    <message id="strip_mirror">
        <translation>Second view</translation>
    </message>
    <message id="strip_moving">
        <translation>Moving %1. Arrow keys choose the place, Enter keeps it, Esc gives up</translation>
    </message>
    <message id="strip_noMedia">
        <translation>There are no photos or movies in these folders</translation>
    </message>
    <message id="strip_reading">
        <translation>Reading photos and movies…</translation>
    </message>
    <message id="strip_selected">
        <translation>selected</translation>
    </message>
    <message id="strip_shelf">
        <translation>Shelf</translation>
    </message>
    <message id="strip_targetBehind">
        <translation>after %1</translation>
    </message>
    <message id="strip_targetInFront">
        <translation>before %1</translation>
    </message>
    <message id="strip_targetOnto">
        <translation>same time as %1</translation>
    </message>
    <message id="strip_targetSecondAfter">
        <translation>one second after %1</translation>
    </message>
    <message id="strip_targetSecondBefore">
        <translation>one second before %1</translation>
    </message>
    <message id="strip_timeline">
        <translation>Timeline</translation>
    </message>
    <message id="chooseFolders_title">
        <translation>Choose a folder of photos and movies</translation>
    </message>
    <message id="closing_discard">
        <translation>Discard</translation>
    </message>
    <message id="closing_information">
        <translation>What is not saved is lost. The files themselves are unchanged so far.</translation>
    </message>
    <message id="closing_message">
        <translation>Save your corrections before closing?</translation>
    </message>
    <message id="closing_save">
        <translation>Save All</translation>
    </message>
    <message id="window_help">
        <translation>chronomender [--language en|de] [folder or file]…</translation>
    </message>
    <message id="rename_template">
        <translation>&amp;Template:</translation>
    </message>
    <message id="rename_templateEdit">
        <translation>Chan&amp;ge…</translation>
    </message>
    <message id="rename_templateName">
        <translation>Template</translation>
    </message>
    <message id="rename_templateNew">
        <translation>&amp;New…</translation>
    </message>
    <message id="rename_templateRemove">
        <translation>Remove…</translation>
    </message>
    <message id="rename_templateRemoveNow">
        <translation>Remove</translation>
    </message>
    <message id="rename_templateSave">
        <translation>Save</translation>
    </message>
    <message id="rename_templateSaveAsNew">
        <translation>Save as New</translation>
    </message>
    <message id="rename_tints">
        <translation>Sho&amp;w the elements in colour</translation>
    </message>
    <message id="rename_tintsName">
        <translation>Show the elements in colour</translation>
    </message>
    <message id="rename_titleAll">
        <translation>Rename All Files</translation>
    </message>
    <message id="rename_titleCurrent">
        <translation>Rename the Files of the Folder</translation>
    </message>
    <message id="rename_titleSaveAll">
        <translation>Save All and Rename</translation>
    </message>
    <message id="rename_titleSaveCurrent">
        <translation>Save the Folder and Rename</translation>
    </message>
    <message id="rename_undo">
        <translation>Undo</translation>
    </message>
    <message id="rename_year">
        <translation>&amp;Year:</translation>
    </message>
    <message id="rename_yearName">
        <translation>Year</translation>
    </message>
    <message id="toolBar_title">
        <translation>Tools</translation>
    </message>
    <message id="align_apply">
        <translation>Apply</translation>
    </message>
    <message id="align_choices">
        <translation>Ways to put the selection in order</translation>
    </message>
    <message id="align_columnName">
        <translation>Photo</translation>
    </message>
    <message id="align_columnNow">
        <translation>Now</translation>
    </message>
    <message id="align_columnThen">
        <translation>Then</translation>
    </message>
    <message id="align_copyNew">
        <translation>Each photo takes over another date as a save would write it.</translation>
    </message>
    <message id="align_copyOld">
        <translation>Each photo takes over another date that its file holds.</translation>
    </message>
    <message id="align_filename">
        <translation>The same times are given out in the order of the file names.</translation>
    </message>
    <message id="align_matchingGaps">
        <translation>The first and the last photo stay; the others are spread evenly between them.</translation>
    </message>
    <message id="align_minimizingGaps">
        <translation>The main photo stays; the others stand around it, one second apart.</translation>
    </message>
    <message id="align_reversing">
        <translation>The times are swapped end for end.</translation>
    </message>
    <message id="align_reversingAlt">
        <translation>The order is reversed, and so are the gaps.</translation>
    </message>
    <message id="align_rows">
        <translation>What becomes of each photo</translation>
    </message>
    <message id="align_title">
        <translation>Put %1 photos in order</translation>
    </message>
</context>
</TS>
