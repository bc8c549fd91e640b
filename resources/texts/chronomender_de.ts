<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <message id="alert_cannotBeWritten">
        <translation>würde als %1 geschrieben, was am %2 in %3 zweimal vorkommt, und als die spätere Zeit gelesen</translation>
    </message>
    <message id="alert_day">
        <translation>%1. %2 %3</translation>
    </message>
    <message id="alert_gpsApart_earlier">
        <translation>%1 früher als die GPS-Zeit</translation>
    </message>
    <message id="alert_gpsApart_later">
        <translation>%1 später als die GPS-Zeit</translation>
    </message>
    <message id="alert_groupApart_earlier">
        <translation>die andere Datei des Paares liegt %1 früher</translation>
    </message>
    <message id="alert_groupApart_later">
        <translation>die andere Datei des Paares liegt %1 später</translation>
    </message>
    <message id="alert_otherThanInFile">
        <translation>in der Datei steht %1, gezeigt wird %2</translation>
    </message>
    <message id="alert_repeatedTime_earlier">
        <translation>kommt am %1 in %2 zweimal vor; gelesen als die frühere Zeit</translation>
    </message>
    <message id="alert_repeatedTime_later">
        <translation>kommt am %1 in %2 zweimal vor; gelesen als die spätere Zeit</translation>
    </message>
    <message id="alert_skippedTime">
        <translation>gibt es am %1 in %2 nicht; gelesen als %3</translation>
    </message>
    <message id="alert_zoneDisagrees">
        <translation>in der Datei steht %1, aber in %2 galt da %3 (%4 Unterschied)</translation>
    </message>
    <message id="alignByCopyingOtherFileDate">
        <translation>Anderes Datum der Datei übernehmen</translation>
    </message>
    <message id="alignByFileName">
        <translation>Nach Dateinamen ordnen</translation>
    </message>
    <message id="alignByMatchingGaps">
        <translation>Gleichmäßig verteilen</translation>
    </message>
    <message id="alignByMinimizingGaps">
        <translation>Dicht aneinanderreihen</translation>
    </message>
    <message id="alignByMinimizingGapsAlt">
        <translation>Gleiche Zeiten trennen</translation>
    </message>
    <message id="alignByReversing">
        <translation>Zeiten von Ende zu Ende tauschen</translation>
    </message>
    <message id="alignByReversingAlt">
        <translation>Umkehren und Abstände spiegeln</translation>
    </message>
    <message id="ambiguityCorrection_undoRedo">
        <translation>Deutung doppelter Zeiten</translation>
    </message>
    <message id="changeEditMode">
        <translation>Zwischen Ordner- und Einzelverschiebung wechseln</translation>
    </message>
    <message id="cli_align_isAlignedAlready">
        <translation>Die Auswahl steht schon so; nichts bewegt sich.</translation>
    </message>
    <message id="cli_align_noDateToCopy">
        <translation>Keine Aufnahme der Auswahl hat eine solche Zeit, die von ihrer eigenen abweicht; nichts bewegt sich.</translation>
    </message>
    <message id="cli_align_nothingWritten">
        <translation>Es wurde nichts geschrieben. --save schreibt dies.</translation>
    </message>
    <message id="cli_drag_standsAlready">
        <translation>Die Aufnahme steht schon dort; es bewegt sich nichts.</translation>
    </message>
    <message id="cli_emptyTagsLeftAlone">
        <translation>%1 Dateien haben leere Zeitfelder und bleiben, wie sie sind. --empty-tags sagt, was sie bedeuten sollen.</translation>
    </message>
    <message id="cli_error_alignOutOfBounds">
        <translation>Die Ausrichtung würde eine Zeit aus den Jahren 1 bis 4999 schieben. Es wurde nichts geschrieben.</translation>
    </message>
    <message id="cli_error_alignWithoutPics">
        <translation>Geben Sie an, was ausgerichtet wird: --pics NAME… oder --pics all.</translation>
    </message>
    <message id="cli_error_badAddOn">
        <translation>%1 kann nicht Teil eines Namens werden, denn es enthält einen Schrägstrich.</translation>
    </message>
    <message id="cli_error_badCounter">
        <translation>--counter %1: gib all (eine Nummer läuft durch alle Ordner) oder folder (jeder Ordner zählt von vorn) an.</translation>
    </message>
    <message id="cli_error_badDateSequence">
        <translation>%1 ist keine Folge von Daten. Angegeben werden das erste Datum und ein Schritt, etwa 2024-05-01T10:00+60.</translation>
    </message>
    <message id="cli_error_badDepth">
        <translation>%1 ist keine Anzahl von Ordnerebenen. Angegeben werden kann 0 bis 100.</translation>
    </message>
    <message id="cli_error_badEmptyTags">
        <translation>%1 sagt nichts über leere Zeitfelder. Möglich sind leave, file oder eine Zeit wie 2024-05-01T10:00+60.</translation>
    </message>
    <message id="cli_error_badFilter">
        <translation>--filter, Zeichen %1: %2.</translation>
    </message>
    <message id="cli_error_badMovieClock">
        <translation>%1 ist keine Filmuhr. Angegeben werden kann utc, oder local, wenn der Filmkopf die Uhr der Kamera enthält.</translation>
    </message>
    <message id="cli_error_badMovieDate">
        <translation>%1 ist kein Filmdatum. Angegeben werden kann mdta (das der Metadaten) oder mvhd (das des Filmkopfs).</translation>
    </message>
    <message id="cli_error_badRating">
        <translation>--rating %1: keepers oder not-rejected angeben.</translation>
    </message>
    <message id="cli_error_badSetting">
        <translation>--set erwartet KEY=VALUE, nicht %1.</translation>
    </message>
    <message id="cli_error_badShift">
        <translation>%1 ist keine Verschiebung. Möglich sind Sekunden wie -90 oder 0.5 oder Tage und Uhrzeit wie +1d, -1:00 oder +1d2:30:00.</translation>
    </message>
    <message id="cli_error_badSlot">
        <translation>%1 ist keine Zeit zum Übernehmen. Möglich sind %2.</translation>
    </message>
    <message id="cli_error_badTemplateText">
        <translation>--template-text, Zeichen %1: %2</translation>
    </message>
    <message id="cli_error_betweenNeedsTwo">
        <translation>--between braucht zwei Aufnahmen: --between NAME NAME.</translation>
    </message>
    <message id="cli_error_dragNoDate">
        <translation>%1 hat keine Zeit, nach der sich eine andere richten könnte.</translation>
    </message>
    <message id="cli_error_dragNotMovable">
        <translation>%1 hat keine Zeit, die korrigiert werden könnte.</translation>
    </message>
    <message id="cli_error_dragOutOfBounds">
        <translation>Das Ziehen würde eine Zeit aus den Jahren 1 bis 4999 schieben. Es wurde nichts geschrieben.</translation>
    </message>
    <message id="cli_error_dragTwice">
        <translation>%1 meint eine schon genannte Aufnahme: Was gezogen wird und seine Ziele sind verschiedene Aufnahmen.</translation>
    </message>
    <message id="cli_error_dragWithoutPic">
        <translation>Geben Sie an, was gezogen wird: --pic NAME.</translation>
    </message>
    <message id="cli_error_emptyPath">
        <translation>Ein leerer Text ist kein Pfad.</translation>
    </message>
    <message id="cli_error_fewPics">
        <translation>Diese Ausrichtung braucht mindestens %1 Aufnahmen. Es wurde nichts geschrieben.</translation>
    </message>
    <message id="cli_error_folderTwice">
        <translation>%1 ist zweimal angegeben; alles zu einem Ordner gehört hinter ein --folder.</translation>
    </message>
    <message id="cli_error_libraryOfAnotherProgram">
        <translation>%1 gehört zur Mediathek eines Programms und darf nicht hinter dessen Rücken geändert werden.</translation>
    </message>
    <message id="cli_error_mainNotSelected">
        <translation>%1 gehört nicht zu --pics.</translation>
    </message>
    <message id="cli_error_mainWithoutPack">
        <translation>--main gilt nur für --pack.</translation>
    </message>
    <message id="cli_error_nameNotUtf8">
        <translation>%1 ist kein gültiges UTF-8. Benennen Sie den Ordner zuerst um.</translation>
    </message>
    <message id="cli_error_noAccess">
        <translation>%1 lässt sich nicht öffnen: Sie dürfen es nicht lesen.</translation>
    </message>
    <message id="cli_error_noAlignment">
        <translation>Geben Sie an, wie ausgerichtet wird: --gaps, --pack, --by-name, --reverse, --mirror oder --copy SLOT.</translation>
    </message>
    <message id="cli_error_noDragTarget">
        <translation>Geben Sie an, wohin: --between NAME NAME, --before NAME, --after NAME oder --onto NAME.</translation>
    </message>
    <message id="cli_error_noPaths">
        <translation>Mindestens ein Ordner oder eine Datei muss angegeben sein.</translation>
    </message>
    <message id="cli_error_noSuchPic">
        <translation>Eine Aufnahme %1 gibt es in %2 nicht.</translation>
    </message>
    <message id="cli_error_noSuchPicAnywhere">
        <translation>Eine Aufnahme %1 gibt es in diesen Ordnern nicht.</translation>
    </message>
    <message id="cli_error_notAFolder">
        <translation>%1 ist kein Ordner.</translation>
    </message>
    <message id="cli_error_notAmbiguous">
        <translation>Die Zeit von %1 meint nur einen Zeitpunkt; es gibt keinen anderen zu wählen. Nichts wurde geschrieben.</translation>
    </message>
    <message id="cli_error_noTemplate">
        <translation>Es gibt keine Vorlage %1. Welche es gibt: %2</translation>
    </message>
    <message id="cli_error_notFound">
        <translation>%1 gibt es nicht.</translation>
    </message>
    <message id="cli_error_nothingWritten">
        <translation>Es wurde nichts geschrieben.</translation>
    </message>
    <message id="cli_error_onlyOnce">
        <translation>%1 kann nur einmal angegeben werden.</translation>
    </message>
    <message id="cli_error_optionTwice">
        <translation>%1 steht zweimal für %2.</translation>
    </message>
    <message id="cli_error_optionWithoutFolder">
        <translation>%1 gilt für einen Ordner: Es gehört hinter --folder PATH.</translation>
    </message>
    <message id="cli_error_outputFailed">
        <translation>Die Ausgabe ließ sich nicht schreiben.</translation>
    </message>
    <message id="cli_error_picTwice">
        <translation>--pic %1 steht zweimal.</translation>
    </message>
    <message id="cli_error_picWithoutCorrection">
        <translation>--pic %1 braucht ein --shift, --source-zone oder --target-zone dahinter.</translation>
    </message>
    <message id="cli_error_renameOfFile">
        <translation>%1 ist eine Datei: allein umbenannt, würde sie von dem getrennt, was zu ihr gehört. Bitte ihren Ordner angeben (und die Datei hinter --pics).</translation>
    </message>
    <message id="cli_error_renameOverUnsaved">
        <translation>Die Daten dieser Ordner sind andere als die in den Dateien, und Namen entstehen aus dem, was die Dateien enthalten. In einem Zug speichern und umbenennen: %1. Nichts wurde umbenannt.</translation>
    </message>
    <message id="cli_error_settingNotAllowed">
        <translation>Die Einstellung %1 kann nicht %2 sein; möglich ist %3.</translation>
    </message>
    <message id="cli_error_severalDragged">
        <translation>Mehrere Aufnahmen lassen sich nur zwischen zwei andere ziehen: --between NAME NAME.</translation>
    </message>
    <message id="cli_error_severalPics">
        <translation>%1 steht in mehreren Ordnern. Schreiben Sie %2.</translation>
    </message>
    <message id="cli_error_shiftOutOfBounds">
        <translation>Die Verschiebung würde %1 aus den Jahren 1 bis 4999 hinausführen.</translation>
    </message>
    <message id="cli_error_templatesWithPaths">
        <translation>--templates listet nur die Vorlagen auf; lass die Pfade weg.</translation>
    </message>
    <message id="cli_error_twoAlignments">
        <translation>Nur eine Ausrichtung auf einmal: eins von --gaps, --pack, --by-name, --reverse, --mirror und --copy.</translation>
    </message>
    <message id="cli_error_twoDragTargets">
        <translation>Nur ein Ziel auf einmal: eins von --between, --before, --after und --onto.</translation>
    </message>
    <message id="cli_error_twoFilters">
        <translation>%1 hat --filter-ext und --filter-ext-not. Nur eines davon kann angegeben werden.</translation>
    </message>
    <message id="cli_error_twoTemplates">
        <translation>Gib nur eins von --template und --template-text an.</translation>
    </message>
    <message id="cli_error_unknownProblem">
        <translation>Ein Bedenken %1 gibt es nicht. Bedenken werden genannt, wenn sie auftreten.</translation>
    </message>
    <message id="cli_error_unknownSetting">
        <translation>Eine Einstellung %1 gibt es nicht.</translation>
    </message>
    <message id="cli_error_unknownZone">
        <translation>Eine Zeitzone %1 gibt es nicht.</translation>
    </message>
    <message id="cli_error_unknownZoneNear">
        <translation>Eine Zeitzone %1 gibt es nicht. Ähnlich: %2.</translation>
    </message>
    <message id="cli_error_withoutRename">
        <translation>Optionen für Namen brauchen --rename. Nichts wurde geschrieben.</translation>
    </message>
    <message id="cli_filterKeys">
        <translation>Es gibt die Schlüssel %1.</translation>
    </message>
    <message id="cli_help_accept">
        <translation>Speichern, obwohl es dieses Bedenken gibt</translation>
    </message>
    <message id="cli_help_addOn">
        <translation>Der erste Zusatztext der Vorlage</translation>
    </message>
    <message id="cli_help_addOn2">
        <translation>Der zweite</translation>
    </message>
    <message id="cli_help_addOn3">
        <translation>Der dritte</translation>
    </message>
    <message id="cli_help_after">
        <translation>Eine Sekunde hinter diese Aufnahme</translation>
    </message>
    <message id="cli_help_align">
        <translation>Bringt eine Auswahl in Ordnung und zeigt, was gespeichert würde</translation>
    </message>
    <message id="cli_help_align_footer">
        <translation>Genau eins von --gaps, --pack, --by-name, --reverse, --mirror und --copy wird angegeben.
Beispiele:
  mend align --gaps --pics IMG_0001.JPG IMG_0002.JPG IMG_0003.JPG --folder canon
  mend align --copy file-modification --pics all --folder scans --save</translation>
    </message>
    <message id="cli_help_alignSave">
        <translation>Speichert dies mit allen anderen Korrekturen; sonst wird nichts geschrieben</translation>
    </message>
    <message id="cli_help_all">
        <translation>Auch Dateien ohne Korrektur schreiben</translation>
    </message>
    <message id="cli_help_alternative">
        <translation>Eine Datei des Ordners, deren Zeit zweimal vorkommt: Sie gilt als die frühere von beiden</translation>
    </message>
    <message id="cli_help_before">
        <translation>Eine Sekunde vor diese Aufnahme</translation>
    </message>
    <message id="cli_help_between">
        <translation>In die Mitte zweier Zeiten; mehrere Aufnahmen werden in gleichen Schritten dazwischen verteilt</translation>
    </message>
    <message id="cli_help_byName">
        <translation>Vergibt die Zeiten der Auswahl in der Folge der Namen</translation>
    </message>
    <message id="cli_help_copy">
        <translation>Datiert jede Aufnahme nach einer anderen ihrer eigenen Zeiten: digitized, modification, file-creation oder file-modification, wie in der Datei oder, mit -new dahinter, wie nach dem Speichern</translation>
    </message>
    <message id="cli_help_counter">
        <translation>Eine Nummer läuft durch alle Ordner (all), oder jeder Ordner zählt von vorn (folder)</translation>
    </message>
    <message id="cli_help_counterStart">
        <translation>Die erste Nummer (sonst 1)</translation>
    </message>
    <message id="cli_help_dateSequence">
        <translation>Gibt den Bildern aller Ordner ein Datum nach dem anderen, in der Folge ihrer Namen: das erste Datum und den Schritt STEP (Sekunden oder H:MM:SS) zum nächsten</translation>
    </message>
    <message id="cli_help_drag">
        <translation>Einer Aufnahme eine Zeit nach ihrem Platz zwischen anderen geben und zeigen, was ein Speichern schreiben würde</translation>
    </message>
    <message id="cli_help_drag_footer">
        <translation>Genau eins von --between, --before, --after und --onto wird angegeben.
Beispiele:
  mend drag canon nikon --pic DSC_0007.JPG --between IMG_0010.JPG IMG_0011.JPG
  mend drag canon scans --pic scans/01.tif --after canon/IMG_0010.JPG --save</translation>
    </message>
    <message id="cli_help_dragPic">
        <translation>Die Aufnahme, die gezogen wird: ein Name, oder ORDNER/NAME oder ein Pfad, wo ein Name in mehreren Ordnern steht; mit --between mehrmals möglich</translation>
    </message>
    <message id="cli_help_dryRun">
        <translation>Alle Daten oder Namen alt und neu zeigen und nichts schreiben</translation>
    </message>
    <message id="cli_help_emptyTags">
        <translation>Was leere Zeitfelder bedeuten: die Datei in Ruhe lassen (sonst üblich), das Datum der Datei nehmen, oder eine Zeit, von der STEP (Sekunden oder H:MM:SS) zur nächsten führt</translation>
    </message>
    <message id="cli_help_file">
        <translation>Dateien, die gezeigt werden; ein Ordner steht für alle darin</translation>
    </message>
    <message id="cli_help_filter">
        <translation>Nur Aufnahmen auflisten, für die dies gilt, etwa 'spName CONTAINS[c] "IMG" AND filter_miscState_6 == 1'</translation>
    </message>
    <message id="cli_help_filterExt">
        <translation>Liest nur Dateien mit diesen Endungen, etwa jpg,cr3; Begleitdateien kommen immer mit</translation>
    </message>
    <message id="cli_help_filterExtNot">
        <translation>Lässt Dateien mit diesen Endungen weg, etwa mov,mp4</translation>
    </message>
    <message id="cli_help_folder">
        <translation>Ein Ordner; die Angaben dahinter gelten für ihn</translation>
    </message>
    <message id="cli_help_folderOptions">
        <translation>Angaben zu einem Ordner (hinter seinem --folder)</translation>
    </message>
    <message id="cli_help_footer">
        <translation>Ergebnis: 0 erledigt, 1 bei manchen Dateien misslungen, 2 Aufruf falsch, 3 Bedenken vor dem Speichern und nichts geschrieben, 130 unterbrochen.</translation>
    </message>
    <message id="cli_help_forget">
        <translation>Gibt Dateien auf, die nicht in Ordnung zu bringen waren</translation>
    </message>
    <message id="cli_help_gaps">
        <translation>Verteilt die Auswahl gleichmäßig zwischen ihrer ersten und letzten Aufnahme</translation>
    </message>
    <message id="cli_help_help">
        <translation>Diese Hilfe ausgeben</translation>
    </message>
    <message id="cli_help_info">
        <translation>Alles zeigen, was in Dateien gelesen wurde, mit Stellen und Bytes</translation>
    </message>
    <message id="cli_help_info_footer">
        <translation>Beispiel:
  mend info IMG_0001.JPG</translation>
    </message>
    <message id="cli_help_json">
        <translation>Ein JSON-Objekt je Zeile ausgeben</translation>
    </message>
    <message id="cli_help_language">
        <translation>Sprache aller Meldungen (sonst die des Systems)</translation>
    </message>
    <message id="cli_help_list">
        <translation>Die Aufnahmen aller Ordner in einer Reihenfolge auflisten</translation>
    </message>
    <message id="cli_help_list_footer">
        <translation>Beispiel:
  mend list --folder canon --shift -1:00:00 --folder nikon --source-zone America/New_York phone</translation>
    </message>
    <message id="cli_help_main">
        <translation>Die Hauptaufnahme für --pack, die stehen bleibt (sonst die erste der Auswahl)</translation>
    </message>
    <message id="cli_help_mend">
        <translation>Bringt Fotos mehrerer Kameras in eine Reihenfolge und korrigiert ihre Zeiten in den Dateien.</translation>
    </message>
    <message id="cli_help_mirror">
        <translation>Kehrt die Folge der Auswahl um; jede Aufnahme behält die Abstände zu ihren Nachbarn</translation>
    </message>
    <message id="cli_help_movieClock">
        <translation>Was die Zeiten im Filmkopf bedeuten: utc, wie es das Format verlangt (Voreinstellung), oder local, die Uhr der Kamera</translation>
    </message>
    <message id="cli_help_movieDate">
        <translation>Welches Datum eines Films zählt: mdta, das seiner Metadaten, wo es eines gibt (Voreinstellung), oder mvhd, das seines Kopfs</translation>
    </message>
    <message id="cli_help_onto">
        <translation>Auf die Zeit dieser Aufnahme</translation>
    </message>
    <message id="cli_help_pack">
        <translation>Rückt die Auswahl um ihre Hauptaufnahme zusammen, je eine Sekunde auseinander</translation>
    </message>
    <message id="cli_help_path">
        <translation>Ordner oder Dateien ohne eigene Angaben</translation>
    </message>
    <message id="cli_help_pic">
        <translation>Eine Aufnahme des Ordners; --shift (kommt zu dem des Ordners dazu), --source-zone und --target-zone dahinter gelten nur für sie</translation>
    </message>
    <message id="cli_help_pics">
        <translation>Die Auswahl: Namen bis zur nächsten Option, ORDNER/NAME oder Pfade, wo ein Name in mehreren Ordnern steht; oder all</translation>
    </message>
    <message id="cli_help_rating">
        <translation>Nur als Favorit markierte Aufnahmen auflisten, oder alle nicht verworfenen</translation>
    </message>
    <message id="cli_help_rename">
        <translation>Den Dateien Namen nach einer Vorlage geben</translation>
    </message>
    <message id="cli_help_rename_footer">
        <translation>Nie wird eine Datei überschrieben: Wo ein Name vergeben ist, kommt eine Nummer hinzu. Alle Dateien einer Aufnahme behalten einen Namen.
Beispiele:
  mend rename --templates
  mend rename canon phone --template-text '{year}_{month}_{day}_{counter:4}' --dry-run
  mend rename canon --template 2 --counter-start 100</translation>
    </message>
    <message id="cli_help_renameAtSave">
        <translation>Danach im selben Zug allen Dateien der Ordner Namen nach einer Vorlage geben</translation>
    </message>
    <message id="cli_help_resume">
        <translation>Bringt in Ordnung, was unterbrochenes Sichern und Umbenennen hinterließ</translation>
    </message>
    <message id="cli_help_resume_footer">
        <translation>Jede Datei wird ganz alt oder ganz neu und bekommt ihren neuen oder ihren alten Namen. Die anderen Befehle tun das ebenfalls, wenn sie beginnen. Rückgabewert 1: Eine Datei war nicht in Ordnung zu bringen.</translation>
    </message>
    <message id="cli_help_reverse">
        <translation>Kehrt die Zeiten der Auswahl um: Die erste bekommt die der letzten</translation>
    </message>
    <message id="cli_help_runOptions">
        <translation>Angaben zum ganzen Lauf</translation>
    </message>
    <message id="cli_help_save">
        <translation>Die Korrekturen in die Dateien schreiben</translation>
    </message>
    <message id="cli_help_save_footer">
        <translation>Beispiele:
  mend save --folder canon --shift -1:00:00 --dry-run
  mend save --folder canon --shift -1:00:00
  mend save --folder canon --target-zone own --pic IMG_0007.JPG --shift +0:05
  mend save --folder canon --shift -1:00:00 phone --rename --template-text '{year}_{month}_{day}_{counter:4}'</translation>
    </message>
    <message id="cli_help_set">
        <translation>Eine Einstellung für diesen Lauf setzen</translation>
    </message>
    <message id="cli_help_shift">
        <translation>Seine Zeiten verschieben: Sekunden oder [+-][Nd][H:MM[:SS]]; hinter --pic nur die dieser Aufnahme</translation>
    </message>
    <message id="cli_help_sourceZone">
        <translation>Zeitzone, in der die Uhr der Kamera ging</translation>
    </message>
    <message id="cli_help_subfolders">
        <translation>Liest auch die Ordner darin, so viele Ebenen tief</translation>
    </message>
    <message id="cli_help_syncXmp">
        <translation>Gleicht XMP-Daten in und neben den Dateien an die neuen Daten an</translation>
    </message>
    <message id="cli_help_systemZone">
        <translation>Steht anstelle der Zeitzone des Systems</translation>
    </message>
    <message id="cli_help_tagMissing">
        <translation>Ergänzt fehlende Datumsfelder, wo ExifTool das kann</translation>
    </message>
    <message id="cli_help_takeBack">
        <translation>Kehrt zu den alten Daten und Namen zurück, statt Begonnenes zu beenden</translation>
    </message>
    <message id="cli_help_targetZone">
        <translation>Zeitzone, in der die Zeiten stehen sollen; own lässt jeder Datei ihre eigene</translation>
    </message>
    <message id="cli_help_template">
        <translation>Die Nummer einer Vorlage, wie --templates sie auflistet (sonst die in den Einstellungen gewählte)</translation>
    </message>
    <message id="cli_help_templates">
        <translation>Die Vorlagen auflisten und enden</translation>
    </message>
    <message id="cli_help_templateText">
        <translation>Eine Vorlage als Text, etwa '{year}_{month}_{day}_{counter:4}'</translation>
    </message>
    <message id="cli_help_version">
        <translation>Die Version ausgeben</translation>
    </message>
    <message id="cli_importInterrupted">
        <translation>unterbrochen: %2 Dateien von %1 wurden nicht gelesen</translation>
    </message>
    <message id="cli_info_alerts">
        <translation>Bedenken</translation>
    </message>
    <message id="cli_info_camera">
        <translation>Kamera</translation>
    </message>
    <message id="cli_info_contentIdentifier">
        <translation>Inhaltskennung</translation>
    </message>
    <message id="cli_info_date">
        <translation>Zeit</translation>
    </message>
    <message id="cli_info_dates">
        <translation>Zeiten</translation>
    </message>
    <message id="cli_info_duration">
        <translation>Dauer</translation>
    </message>
    <message id="cli_info_follows">
        <translation>folgt %1</translation>
    </message>
    <message id="cli_info_format">
        <translation>Format</translation>
    </message>
    <message id="cli_info_group">
        <translation>Gruppe</translation>
    </message>
    <message id="cli_info_leads">
        <translation>führt %1 an</translation>
    </message>
    <message id="cli_info_lens">
        <translation>Objektiv</translation>
    </message>
    <message id="cli_info_location">
        <translation>Ort</translation>
    </message>
    <message id="cli_info_note">
        <translation>Hinweis</translation>
    </message>
    <message id="cli_info_refused">
        <translation>abgelehnt oder geduldet</translation>
    </message>
    <message id="cli_info_room">
        <translation>%1 Bytes</translation>
    </message>
    <message id="cli_info_seconds">
        <translation>%1 s</translation>
    </message>
    <message id="cli_info_sidecars">
        <translation>Begleitdateien</translation>
    </message>
    <message id="cli_info_size">
        <translation>Größe</translation>
    </message>
    <message id="cli_info_source">
        <translation>Datum aus</translation>
    </message>
    <message id="cli_info_sourceZone">
        <translation>Quellzone</translation>
    </message>
    <message id="cli_info_targetZone">
        <translation>Zielzone</translation>
    </message>
    <message id="cli_info_values">
        <translation>Werte in der Datei</translation>
    </message>
    <message id="cli_interruptedRunWaits">
        <translation>Ein unterbrochener Lauf ist noch in Ordnung zu bringen, was ein Probelauf nicht tut: %1</translation>
    </message>
    <message id="cli_list_hidden">
        <translation>, vom Filter verborgen: %1</translation>
    </message>
    <message id="cli_list_summary">
        <translation>Aufnahmen: %1, Ordner: %2, ungespeichert: %3</translation>
    </message>
    <message id="cli_missingTags">
        <translation>fehlende Datumsfelder erbeten in Dateien: %1</translation>
    </message>
    <message id="cli_note_emptyTags">
        <translation>Zeitfelder sind leer, bleibt wie sie ist</translation>
    </message>
    <message id="cli_note_filledTags">
        <translation>Zeitfelder sind leer</translation>
    </message>
    <message id="cli_note_hardLinks">
        <translation>mehrere Namen auf dem Datenträger</translation>
    </message>
    <message id="cli_note_noTags">
        <translation>keine Zeit darin, Datum der Datei</translation>
    </message>
    <message id="cli_note_unsaved">
        <translation>ungespeichert</translation>
    </message>
    <message id="cli_note_youngerThanFile">
        <translation>Zeit darin ist jünger als die Datei, Datum der Datei</translation>
    </message>
    <message id="cli_progress_reading">
        <translation>Lesen von %1</translation>
    </message>
    <message id="cli_rename_interrupted">
        <translation>Unterbrochen. Dateien, die oben nicht als umbenannt stehen, behielten ihre Namen.</translation>
    </message>
    <message id="cli_rename_leftOnTheWay">
        <translation>%1 unter einem vorläufigen Namen geblieben</translation>
    </message>
    <message id="cli_rename_leftOnTheWayNote">
        <translation>auf dem Weg zu %1 stehen geblieben</translation>
    </message>
    <message id="cli_rename_noteCompanion">
        <translation>%1 fehlt oder konnte nicht mitkommen</translation>
    </message>
    <message id="cli_rename_noteDot">
        <translation>der Name beginnt mit einem Punkt</translation>
    </message>
    <message id="cli_rename_noteNotRenamed">
        <translation>sie konnte nicht umbenannt werden</translation>
    </message>
    <message id="cli_rename_noteNotWritable">
        <translation>%1 ist nicht beschreibbar</translation>
    </message>
    <message id="cli_rename_nothingRenamed">
        <translation>Probelauf: Nichts wurde umbenannt.</translation>
    </message>
    <message id="cli_rename_notReached">
        <translation>%1 nicht erreicht</translation>
    </message>
    <message id="cli_rename_notReachedNote">
        <translation>nicht erreicht</translation>
    </message>
    <message id="cli_rename_numbered">
        <translation>%1 mit einer Nummer hinter einem vergebenen Namen</translation>
    </message>
    <message id="cli_rename_numberNote">
        <translation>Nummer %1, denn %2 ist vergeben</translation>
    </message>
    <message id="cli_rename_planned">
        <translation>%1 werden umbenannt</translation>
    </message>
    <message id="cli_rename_refused">
        <translation>%1 abgelehnt</translation>
    </message>
    <message id="cli_rename_refusedNote">
        <translation>abgelehnt: Es wäre %1</translation>
    </message>
    <message id="cli_rename_renamed">
        <translation>%1 umbenannt</translation>
    </message>
    <message id="cli_rename_unchanged">
        <translation>%1 heißen schon so</translation>
    </message>
    <message id="cli_rename_unchangedNote">
        <translation>heißt schon so</translation>
    </message>
    <message id="cli_result_failed">
        <translation>%1 misslungen</translation>
    </message>
    <message id="cli_result_notReached">
        <translation>%1 nicht erreicht</translation>
    </message>
    <message id="cli_result_planned">
        <translation>%1 zu speichern</translation>
    </message>
    <message id="cli_result_refused">
        <translation>%1 abgelehnt</translation>
    </message>
    <message id="cli_result_saved">
        <translation>%1 gespeichert</translation>
    </message>
    <message id="cli_result_unchanged">
        <translation>%1 unverändert</translation>
    </message>
    <message id="cli_resume_forgotten">
        <translation>%1 aufgegeben</translation>
    </message>
    <message id="cli_resume_left">
        <translation>%1 nicht in Ordnung gebracht; sie bleiben für das nächste Mal vermerkt. Sind sie für immer fort: mend resume --forget</translation>
    </message>
    <message id="cli_resume_nothing">
        <translation>Kein Lauf wurde unterbrochen.</translation>
    </message>
    <message id="cli_save_acceptWith">
        <translation>Trotzdem speichern: %1</translation>
    </message>
    <message id="cli_save_accepted">
        <translation>hingenommen</translation>
    </message>
    <message id="cli_save_andMore">
        <translation>und %1 weitere; --dry-run und --json nennen alle</translation>
    </message>
    <message id="cli_save_dryRunNothingWritten">
        <translation>Probelauf: Es wurde nichts geschrieben.</translation>
    </message>
    <message id="cli_save_hardLinks">
        <translation>die Datei hat mehrere Namen auf dem Datenträger; die Änderung zeigt sich unter allen</translation>
    </message>
    <message id="cli_save_interrupted">
        <translation>Unterbrochen. Die Dateien oben wurden nicht gespeichert; alle anderen sind vollständig.</translation>
    </message>
    <message id="cli_save_interruptedBefore">
        <translation>Vor dem Speichern unterbrochen. Es wurde nichts geschrieben.</translation>
    </message>
    <message id="cli_save_keepOwnZones">
        <translation>Jeder Datei ihre Zone lassen: --target-zone own</translation>
    </message>
    <message id="cli_save_notReached">
        <translation>Nicht gespeichert, da der Lauf unterbrochen wurde:</translation>
    </message>
    <message id="cli_save_nothingToSave">
        <translation>Keine Datei hat eine Korrektur. Es wurde nichts geschrieben.</translation>
    </message>
    <message id="cli_save_problemsNothingWritten">
        <translation>Es wurde nichts geschrieben, da es Bedenken gibt, die nicht hingenommen sind.</translation>
    </message>
    <message id="cli_skipped">
        <translation>übergangen: %1: %2</translation>
    </message>
    <message id="cli_slot_atSave">
        <translation>beim Speichern</translation>
    </message>
    <message id="cli_slot_notStorable">
        <translation>lässt sich auf diesem System nicht speichern</translation>
    </message>
    <message id="cli_slot_refused">
        <translation>abgelehnt</translation>
    </message>
    <message id="cli_slot_stays">
        <translation>bleibt</translation>
    </message>
    <message id="dateSource_1">
        <translation>Aufnahmedatum</translation>
    </message>
    <message id="dateSource_2">
        <translation>Digitalisierungsdatum</translation>
    </message>
    <message id="dateSource_3">
        <translation>Änderungsdatum</translation>
    </message>
    <message id="dateSource_4">
        <translation>Dateidatum, da das Änderungsdatum nach der Datei liegt</translation>
    </message>
    <message id="dateSource_5">
        <translation>Dateidatum, da das Aufnahmedatum leer ist</translation>
    </message>
    <message id="dateSource_6">
        <translation>Dateidatum, da das Digitalisierungsdatum leer ist</translation>
    </message>
    <message id="dateSource_7">
        <translation>Dateidatum, da das Änderungsdatum leer ist</translation>
    </message>
    <message id="dateSource_8">
        <translation>beim Einlesen vorgegeben, da das Aufnahmedatum leer ist</translation>
    </message>
    <message id="dateSource_9">
        <translation>beim Einlesen vorgegeben, da das Digitalisierungsdatum leer ist</translation>
    </message>
    <message id="dateSource_10">
        <translation>beim Einlesen vorgegeben, da das Änderungsdatum leer ist</translation>
    </message>
    <message id="dateSource_11">
        <translation>Dateidatum, da kein Datum in der Datei steht</translation>
    </message>
    <message id="dateSource_12">
        <translation>beim Einlesen vorgegeben, da kein Datum in der Datei steht</translation>
    </message>
    <message id="dateSource_13">
        <translation>keine, da die Daten dieser Datei nicht gelesen werden</translation>
    </message>
    <message id="dateSource_14">
        <translation>Dateidatum, da kein Datum im Film steht</translation>
    </message>
    <message id="dateSource_15">
        <translation>Datumstext der AVI-Datei</translation>
    </message>
    <message id="dateSource_16">
        <translation>Erstellungszeit im Filmkopf</translation>
    </message>
    <message id="dateSource_17">
        <translation>Änderungszeit im Filmkopf</translation>
    </message>
    <message id="dateSource_18">
        <translation>Dateidatum, da die Änderungszeit im Filmkopf nach der Datei liegt</translation>
    </message>
    <message id="dateSource_19">
        <translation>Dateidatum, da die Zeiten im Filmkopf leer sind</translation>
    </message>
    <message id="dateSource_20">
        <translation>beim Einlesen vorgegeben, da die Zeiten im Filmkopf leer sind</translation>
    </message>
    <message id="dateSource_21">
        <translation>Erstellungsdatum in den Metadaten des Films</translation>
    </message>
    <message id="dateSource_22">
        <translation>keine, da Daten in den Dateien nicht beachtet werden</translation>
    </message>
    <message id="dragInSingleMode">
        <translation>Aufnahmen zeitlich verschieben</translation>
    </message>
    <message id="errorPanelDefaultButton">
        <translation>OK</translation>
    </message>
    <message id="errorPanelDescriptionText_ID0">
        <translation>Das Dateidatum ließ sich nicht setzen, deshalb wurde an der Datei nichts geändert. Vielleicht gehört sie Ihnen nicht, oder der Datenträger lässt es nicht zu.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID1">
        <translation>Die Begleitdatei konnte nicht gelesen werden. Ihre Zeiten und ihr Ort wurden nicht übernommen.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID10">
        <translation>Die Datei ließ sich nicht öffnen. Prüfen Sie, ob Sie sie lesen dürfen.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID11">
        <translation>Die Datei wurde seit dem Einlesen von einem anderen Programm geändert. Sie blieb, wie sie ist.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID12">
        <translation>Die Datei wurde nicht gefunden. Vielleicht wurde sie verschoben, umbenannt oder gelöscht, oder der Datenträger ist nicht angeschlossen.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID14">
        <translation>Diese Begleitdateien fehlen oder konnten nicht mit ihrem Foto oder Film umbenannt werden:</translation>
    </message>
    <message id="errorPanelDescriptionText_ID15">
        <translation>Die Begleitdatei gibt es nicht mehr. Nur das Foto selbst wurde berücksichtigt.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID16">
        <translation>Die Begleitdatei passt zu mehreren Fotos desselben Namens; es wurde keines ausgewählt.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID17">
        <translation>Es gibt kein Foto und keinen Film, zu dem die Begleitdatei gehört.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID18">
        <translation>Diese Namen beginnen mit einem Punkt, daher zeigen viele Programme die Dateien nicht:</translation>
    </message>
    <message id="errorPanelDescriptionText_ID2">
        <translation>Die Datei ließ sich nicht zum Schreiben öffnen. Prüfen Sie, ob sie schreibgeschützt ist oder von einem anderen Programm benutzt wird.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID21">
        <translation>Eine korrigierte Zeit ließ sich an ihrer Stelle in der Datei nicht schreiben. Die Datei blieb, wie sie ist.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID23">
        <translation>Das System hat das Schreiben verweigert. Was schon in der Datei stand, wurde zurückgenommen.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID25">
        <translation>ExifTool hat diese Dateien nicht geschrieben. Sie sind, wie sie waren; ExifTools eigene Worte stehen dahinter.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID26">
        <translation>Diese Dateien brauchen ExifTool, das nicht gefunden wurde. Installiere das Paket „libimage-exiftool-perl“ oder nenne das Programm in der Einstellung „exifToolPath“.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID27">
        <translation>Ein anderes Programm schreibt gerade in diese Dateien. Sichere noch einmal, wenn es fertig ist.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID28">
        <translation>Die Notiz, die eine Wiederherstellung braucht, ließ sich nicht schreiben; darum blieben diese Dateien unberührt. Schaffe Platz im persönlichen Ordner.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID29">
        <translation>Eine andere Datei hat während des Sicherns den Platz dieser Dateien eingenommen. Importiere den Ordner neu.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID3">
        <translation>Die Datei wurde seit dem Einlesen von einem anderen Programm geändert. Sie wurde nicht angerührt. Lesen Sie ihren Ordner neu ein, um mit ihrem jetzigen Zustand zu arbeiten.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID4">
        <translation>Die Datei oder ihr Ordner war nicht erreichbar. Vielleicht wurde sie verschoben oder gelöscht, oder der Datenträger ist nicht angeschlossen.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID5">
        <translation>Diese Dateien konnten nicht umbenannt werden:</translation>
    </message>
    <message id="errorPanelDescriptionText_ID6">
        <translation>Die XMP-Angaben in der Datei ließen sich nicht an die neuen Zeiten angleichen.</translation>
    </message>
    <message id="errorPanelDescriptionText_ID7">
        <translation>Die Begleitdatei ließ sich nicht zum Schreiben öffnen. Prüfen Sie, ob sie schreibgeschützt ist.</translation>
    </message>
    <message id="errorPanelDescriptionText_bundleAddOn">
        <translation>und die zugehörige Datei</translation>
    </message>
    <message id="errorPanelInformativeText_back_multi">
        <translation>Ihre Korrekturen bleiben erhalten; Sie können die Ursachen beheben und erneut speichern.</translation>
    </message>
    <message id="errorPanelInformativeText_back_single">
        <translation>Ihre Korrektur bleibt erhalten; Sie können die Ursache beheben und erneut speichern.</translation>
    </message>
    <message id="errorPanelInformativeText_front_multi">
        <translation>Bei %1 Dateien gab es Probleme.</translation>
    </message>
    <message id="errorPanelInformativeText_front_single">
        <translation>Bei einer Datei gab es ein Problem.</translation>
    </message>
    <message id="errorPanelMessageText">
        <translation>Es konnte nicht alles ausgeführt werden.</translation>
    </message>
    <message id="mark_keeper">
        <translation>Als Behalten markieren</translation>
    </message>
    <message id="mark_none">
        <translation>Markierung entfernen</translation>
    </message>
    <message id="mark_rejected">
        <translation>Als Ausschuss markieren</translation>
    </message>
    <message id="menu_align">
        <translation>A&amp;nordnen</translation>
    </message>
    <message id="menu_copyOtherFileDate_selection">
        <translation>Anderes Datum jeder Datei übernehmen</translation>
    </message>
    <message id="menu_copyOtherFileDate_single">
        <translation>Anderes Datum der Datei übernehmen</translation>
    </message>
    <message id="menu_edit">
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message id="menu_file">
        <translation>&amp;Datei</translation>
    </message>
    <message id="menu_folders">
        <translation>&amp;Ordner</translation>
    </message>
    <message id="menu_help">
        <translation>&amp;Hilfe</translation>
    </message>
    <message id="menu_items">
        <translation>&amp;Fotos</translation>
    </message>
    <message id="menu_redo">
        <translation>Wiederholen</translation>
    </message>
    <message id="menu_redo_named">
        <translation>Wiederholen: %1</translation>
    </message>
    <message id="menu_timeline">
        <translation>&amp;Zeitleiste</translation>
    </message>
    <message id="menu_undo">
        <translation>Rückgängig</translation>
    </message>
    <message id="menu_undo_named">
        <translation>Rückgängig: %1</translation>
    </message>
    <message id="month_short_1">
        <translation>Jan.</translation>
    </message>
    <message id="month_short_2">
        <translation>Feb.</translation>
    </message>
    <message id="month_short_3">
        <translation>März</translation>
    </message>
    <message id="month_short_4">
        <translation>Apr.</translation>
    </message>
    <message id="month_short_5">
        <translation>Mai</translation>
    </message>
    <message id="month_short_6">
        <translation>Juni</translation>
    </message>
    <message id="month_short_7">
        <translation>Juli</translation>
    </message>
    <message id="month_short_8">
        <translation>Aug.</translation>
    </message>
    <message id="month_short_9">
        <translation>Sept.</translation>
    </message>
    <message id="month_short_10">
        <translation>Okt.</translation>
    </message>
    <message id="month_short_11">
        <translation>Nov.</translation>
    </message>
    <message id="month_short_12">
        <translation>Dez.</translation>
    </message>
    <message id="preSaveSummary_error_01_ambiguousStamp">
        <translation>Die neue Zeit liegt in der Stunde, die durch die Zeitumstellung doppelt vorkommt oder ausfällt</translation>
    </message>
    <message id="preSaveSummary_error_01_ambiguousStamp_details">
        <translation>Ein Foto speichert die Zeit einer Wanduhr. Wird die Uhr zurückgestellt, gibt es eine Stunde zweimal; wird sie vorgestellt, fehlt eine Stunde. Eine Zeit darin sagt nicht sicher, wann das Bild entstand. Wenn Sie trotzdem speichern, kann die gespeicherte Zeit um eine Stunde anders gelesen werden. Das lässt sich vermeiden, indem Sie eine Zielzeitzone ohne Zeitumstellung an diesem Tag wählen, zum Beispiel UTC.</translation>
    </message>
    <message id="preSaveSummary_error_02_pre1904">
        <translation>Das neue Datum eines Films liegt vor 1904</translation>
    </message>
    <message id="preSaveSummary_error_02_pre1904_details">
        <translation>Ein Film zählt seine Zeit ab dem Beginn des Jahres 1904 und kann kein früheres Datum aufnehmen. Wenn Sie trotzdem speichern, bleibt dieser Film, wie er ist. Prüfen Sie die Zeitverschiebung des Ordners und des Films.</translation>
    </message>
    <message id="preSaveSummary_error_03_pre1970">
        <translation>Ein neues Dateidatum liegt vor 1970</translation>
    </message>
    <message id="preSaveSummary_error_03_pre1970_details">
        <translation>Manche Festplatten und Speicherkarten können kein Dateidatum vor 1970 aufnehmen, und manche Programme zeigen es falsch an. Das Datum im Foto selbst ist nicht betroffen. Das Speichern ist gefahrlos; nur das Datum, das die Dateiverwaltung zeigt, kann verloren gehen.</translation>
    </message>
    <message id="preSaveSummary_error_04_livePhotoDriftingApart">
        <translation>Foto und Film eines Live-Fotos würden auseinanderlaufen</translation>
    </message>
    <message id="preSaveSummary_error_04_livePhotoDriftingApart_details">
        <translation>Beide gehören zusammen, weil sie im selben Augenblick entstanden sind. Mit den neuen Zeiten würden sie nicht mehr als Paar erkannt. Geben Sie beiden dieselbe Zeitverschiebung und dieselbe Zeitzone, oder speichern Sie trotzdem und verlieren das Paar.</translation>
    </message>
    <message id="preSaveSummary_error_05_notFound">
        <translation>Die Datei ist nicht mehr an ihrem Ort</translation>
    </message>
    <message id="preSaveSummary_error_05_notFound_details">
        <translation>Sie wurde nach dem Einlesen verschoben, umbenannt oder gelöscht. Sie wird beim Speichern ausgelassen und behält ihre Korrektur; Sie können sie zurücklegen und erneut speichern.</translation>
    </message>
    <message id="preSaveSummary_error_06_modifiedAfterImport">
        <translation>Die Datei wurde von einem anderen Programm geändert</translation>
    </message>
    <message id="preSaveSummary_error_06_modifiedAfterImport_details">
        <translation>Seit dem Einlesen stimmen ihre Größe, ihr Dateidatum oder die gespeicherten Zeiten nicht mehr überein. In sie zu schreiben könnte sie beschädigen; sie wird deshalb ausgelassen und nicht angerührt. Lesen Sie den Ordner neu ein, um mit der Datei in ihrem jetzigen Zustand zu arbeiten.</translation>
    </message>
    <message id="preSaveSummary_error_07_notFound">
        <translation>Eine von zwei zusammengehörigen Dateien ist nicht mehr an ihrem Ort</translation>
    </message>
    <message id="preSaveSummary_error_07_notFound_details">
        <translation>Eine Hälfte des Paares wurde nach dem Einlesen verschoben, umbenannt oder gelöscht. Das Paar wird beim Speichern ausgelassen und behält seine Korrektur; Sie können die Datei zurücklegen und erneut speichern.</translation>
    </message>
    <message id="preSaveSummary_error_08_modifiedAfterImport">
        <translation>Eine von zwei zusammengehörigen Dateien wurde von einem anderen Programm geändert</translation>
    </message>
    <message id="preSaveSummary_error_08_modifiedAfterImport_details">
        <translation>Seit dem Einlesen ist eine Hälfte des Paares nicht mehr dieselbe. In sie zu schreiben könnte sie beschädigen; das Paar wird deshalb ausgelassen und nicht angerührt. Lesen Sie den Ordner neu ein, um mit den Dateien in ihrem jetzigen Zustand zu arbeiten.</translation>
    </message>
    <message id="preSaveSummary_error_10_disconnected">
        <translation>Ein Ordner ist nicht erreichbar</translation>
    </message>
    <message id="preSaveSummary_error_10_disconnected_details">
        <translation>Die Festplatte oder Speicherkarte ist nicht angeschlossen, oder der Ordner wurde gelöscht. Seine Dateien werden beim Speichern ausgelassen und behalten ihre Korrekturen. Schließen Sie den Datenträger wieder an und speichern Sie noch einmal.</translation>
    </message>
    <message id="preSaveSummary_error_11_oldVersion_file">
        <translation>Die Datei wurde von einer älteren Version dieses Programms eingelesen</translation>
    </message>
    <message id="preSaveSummary_error_11_oldVersion_file_details">
        <translation>Was über sie bekannt ist, reicht nicht aus, um gefahrlos in sie zu schreiben. Sie wird beim Speichern ausgelassen. Lesen Sie ihren Ordner neu ein und speichern Sie dann.</translation>
    </message>
    <message id="preSaveSummary_error_11_oldVersion_group">
        <translation>Zwei zusammengehörige Dateien wurden von einer älteren Version dieses Programms eingelesen</translation>
    </message>
    <message id="preSaveSummary_error_11_oldVersion_group_details">
        <translation>Was über das Paar bekannt ist, reicht nicht aus, um gefahrlos hineinzuschreiben. Es wird beim Speichern ausgelassen. Lesen Sie seinen Ordner neu ein und speichern Sie dann.</translation>
    </message>
    <message id="preSaveSummary_error_12_zoneStampRewritten">
        <translation>Die im Foto gespeicherte Zeitzone würde ersetzt</translation>
    </message>
    <message id="preSaveSummary_error_12_zoneStampRewritten_details">
        <translation>Das Foto sagt, in welcher Zeitzone seine Uhr ging. Sie haben keine Zielzeitzone gewählt; beim Speichern würden daher die Uhrzeit und der Zeitunterschied der Zone dieses Rechners geschrieben. Der Augenblick bleibt derselbe, aber die angezeigte Uhrzeit ändert sich. Um die Zone jedes Fotos zu behalten, wählen Sie sie selbst als Ziel; um die Zonen absichtlich zu ändern, speichern Sie trotzdem.</translation>
    </message>
    <message id="preSaveSummary_error_13_unreadableStamp">
        <translation>Eine Zeitangabe im Foto ist nicht lesbar und würde überschrieben</translation>
    </message>
    <message id="preSaveSummary_error_13_unreadableStamp_details">
        <translation>Das Feld ist nicht leer, aber was darin steht, ist keine Zeitangabe. Vielleicht bewahrt ein anderes Programm dort etwas Eigenes auf. Wenn Sie trotzdem speichern, wird es durch die korrigierte Zeit ersetzt und lässt sich nicht zurückholen. Lassen Sie diese Dateien sonst beim Speichern aus.</translation>
    </message>
    <message id="preSaveSummary_error_groupDetail_modifiedAfterImport">
        <translation>seit dem Einlesen geändert</translation>
    </message>
    <message id="preSaveSummary_error_groupDetail_notFound">
        <translation>nicht gefunden</translation>
    </message>
    <message id="preSaveSummary_header_multi">
        <translation>Vor dem Speichern wurden %1 Probleme gefunden.</translation>
    </message>
    <message id="preSaveSummary_header_single">
        <translation>Vor dem Speichern wurde ein Problem gefunden.</translation>
    </message>
    <message id="preSaveSummary_header_subline">
        <translation>Es wurde noch nichts geschrieben. Lesen Sie, was mit den folgenden Dateien geschähe, und entscheiden Sie dann, ob gespeichert wird.</translation>
    </message>
    <message id="preSaveSummary_submit_save">
        <translation>Speichern</translation>
    </message>
    <message id="preSaveSummary_submit_save&amp;renamne">
        <translation>Speichern und umbenennen</translation>
    </message>
    <message id="recovery_changed">
        <translation>ein anderes Programm hat diese oder die zugehörige Datei verändert, nachdem ein Lauf unterbrochen worden war; sie bleibt, wie sie ist, bitte die Daten prüfen</translation>
    </message>
    <message id="recovery_completed">
        <translation>wurde gerade geschrieben, als ein Lauf unterbrochen wurde; die Datei hat jetzt alle neuen Werte</translation>
    </message>
    <message id="recovery_inUse">
        <translation>diese oder die zugehörige Datei wird von einem anderen Programm benutzt und ist vielleicht nur zum Teil geschrieben; bitte dieses Programm schließen, beim nächsten Start wird es wieder versucht</translation>
    </message>
    <message id="recovery_message">
        <translation>Ein früherer Lauf wurde unterbrochen und ist bereinigt</translation>
    </message>
    <message id="recovery_nothing">
        <translation>unversehrt; ein unterbrochener Lauf hatte noch nicht begonnen oder war schon fertig, und es musste nichts geschrieben werden</translation>
    </message>
    <message id="recovery_renameChanged">
        <translation>wurde gerade umbenannt, als ein Lauf unterbrochen wurde, und ist seither verschoben, ersetzt oder entfernt worden; bitte nachsehen, wo sie ist</translation>
    </message>
    <message id="recovery_renameCompleted">
        <translation>wurde gerade umbenannt, als ein Lauf unterbrochen wurde; die Datei hat jetzt einen neuen Namen</translation>
    </message>
    <message id="recovery_renameFailed">
        <translation>wurde gerade umbenannt, als ein Lauf unterbrochen wurde, und hat vielleicht einen vorläufigen Namen; sie oder eine zugehörige Datei lässt sich jetzt nicht umbenennen, bitte den Ordner beschreibbar machen; beim nächsten Start wird es wieder versucht</translation>
    </message>
    <message id="recovery_renameNothing">
        <translation>ein unterbrochener Lauf sollte sie umbenennen; sie hat schon den Namen, den sie haben soll</translation>
    </message>
    <message id="recovery_renameTakenBack">
        <translation>wurde gerade umbenannt, als ein Lauf unterbrochen wurde; die Datei hat ihren alten Namen</translation>
    </message>
    <message id="recovery_renameUnreachable">
        <translation>wurde gerade umbenannt, als ein Lauf unterbrochen wurde, und hat vielleicht einen vorläufigen Namen; ihr Ordner ist nicht zu erreichen, bitte das Volume verbinden; beim nächsten Start wird es wieder versucht</translation>
    </message>
    <message id="recovery_takenBack">
        <translation>wurde gerade geschrieben, als ein Lauf unterbrochen wurde; die Datei hat wieder alle alten Werte, bitte noch einmal sichern</translation>
    </message>
    <message id="recovery_unreachable">
        <translation>diese oder die zugehörige Datei ist nicht zu finden und vielleicht nur zum Teil geschrieben; bitte das Volume verbinden oder die Datei zurücklegen, beim nächsten Start wird es wieder versucht</translation>
    </message>
    <message id="recovery_writeFailed">
        <translation>diese oder die zugehörige Datei ist vielleicht nur zum Teil geschrieben und lässt sich jetzt nicht schreiben; bitte beschreibbar machen, beim nächsten Start wird es wieder versucht</translation>
    </message>
    <message id="resetAllInFolderMode">
        <translation>Zeitverschiebung des Ordners zurücknehmen</translation>
    </message>
    <message id="resetAllInSingleMode">
        <translation>Alle einzelnen Zeitverschiebungen zurücknehmen</translation>
    </message>
    <message id="saveObstacle_copyInTheWay">
        <translation>Eine liegen gebliebene Kopie von ExifTool steht daneben: „…_exiftool_tmp“</translation>
    </message>
    <message id="saveObstacle_fileDateNotKept">
        <translation>der Datenträger kann diese Zeit nicht aufnehmen</translation>
    </message>
    <message id="saveObstacle_noChunk">
        <translation>ein Wert steht in keinem Teil der PNG-Datei, dessen Prüfsumme sich erneuern ließe</translation>
    </message>
    <message id="saveObstacle_noRoom">
        <translation>das Feld der Zeit ist zu kurz</translation>
    </message>
    <message id="saveObstacle_notAccepted">
        <translation>ein Problem dieser Datei wurde nicht angenommen</translation>
    </message>
    <message id="saveObstacle_notPutBack">
        <translation>einige der alten Zeiten ließen sich nicht zurückschreiben</translation>
    </message>
    <message id="saveObstacle_outOfRange">
        <translation>der Kopf des Films kann dieses Datum nicht aufnehmen (1904 bis 2040)</translation>
    </message>
    <message id="saveObstacle_toolFoundTags">
        <translation>ExifTool findet darin Datumsangaben, die sich hier nicht lesen lassen, oder hatte nichts zu schreiben</translation>
    </message>
    <message id="saveObstacle_toolWroteOtherwise">
        <translation>ExifTool hat die Datei geschrieben, aber nicht mit den gewünschten Zeiten</translation>
    </message>
    <message id="saveObstacle_unreadableBack">
        <translation>die neue Zeit lässt sich nicht so schreiben, dass sie wieder denselben Zeitpunkt ergibt</translation>
    </message>
    <message id="saveObstacle_valuesCollide">
        <translation>zwei Werte der Datei teilen sich dieselben Bytes</translation>
    </message>
    <message id="shelfMove_closeShelf">
        <translation>Ablage schließen</translation>
    </message>
    <message id="shelfMove_folderFromShelf">
        <translation>Ordner zurück auf die Zeitleiste verschieben</translation>
    </message>
    <message id="shelfMove_folderToShelf">
        <translation>Ordner in die Ablage verschieben</translation>
    </message>
    <message id="shelfMove_fromShelf">
        <translation>Zurück auf die Zeitleiste verschieben</translation>
    </message>
    <message id="shelfMove_toShelf">
        <translation>In die Ablage verschieben</translation>
    </message>
    <message id="skipReason_cancelled">
        <translation>Der Import wurde vor dieser Datei angehalten.</translation>
    </message>
    <message id="skipReason_empty">
        <translation>Die Datei ist leer.</translation>
    </message>
    <message id="skipReason_nameNotUtf8">
        <translation>Der Name ist kein gültiges UTF-8. Benennen Sie die Datei zuerst um.</translation>
    </message>
    <message id="skipReason_noDate">
        <translation>Es gibt kein Datum für die Datei.</translation>
    </message>
    <message id="skipReason_notAMedium">
        <translation>Die Datei ist weder ein Foto noch ein Film.</translation>
    </message>
    <message id="skipReason_sameFileTwice">
        <translation>Dieselbe Datei ist unter einem anderen Namen schon vorhanden.</translation>
    </message>
    <message id="skipReason_symbolicLink">
        <translation>Der Eintrag ist ein Verweis. Fügen Sie den Ordner hinzu, in dem die Datei selbst liegt.</translation>
    </message>
    <message id="skipReason_unreadable">
        <translation>Das Lesen ist nicht möglich. Prüfen Sie, ob die Datei vorhanden ist und ob Sie sie lesen dürfen.</translation>
    </message>
    <message id="undoDateChangeText">
        <translation>Ordner zeitlich verschieben</translation>
    </message>
    <message id="workPanelPreSave">
        <translation>Dateien werden vor dem Speichern geprüft…</translation>
    </message>
    <message id="workPanelSave">
        <translation>Die korrigierten Zeiten werden gespeichert…</translation>
    </message>
    <message id="dateSource_xmp">
        <translation>%1, aus XMP</translation>
    </message>
    <message id="alertString_TZC_majorChangesWarning_defButton">
        <translation>OK</translation>
    </message>
    <message id="alertString_TZC_majorChangesWarning_infoText">
        <translation>Zeiten ohne eigene Zeitzone werden jetzt in %1 gelesen. Bilder, die dadurch ein anderes Datum zeigen: %2. Keine Datei wurde geändert. Sehen Sie die Zeiten vor dem Speichern an. Ging die Uhr der Kamera nicht mit diesem Computer, dann geben Sie dem Ordner die Zeitzone, in der sie ging.</translation>
    </message>
    <message id="alertString_TZC_majorChangesWarning_messageText">
        <translation>Die Zeitzone dieses Computers hat sich geändert</translation>
    </message>
    <message id="toolAnswer_ended">
        <translation>ExifTool endete, bevor es antwortete: „%1“</translation>
    </message>
    <message id="toolAnswer_notStarted">
        <translation>ExifTool konnte nicht gestartet werden: %1</translation>
    </message>
    <message id="toolAnswer_oddPath">
        <translation>ExifTool kann ein Name mit diesen Zeichen nicht übergeben werden.</translation>
    </message>
    <message id="toolAnswer_timeOut">
        <translation>ExifTool hat nicht rechtzeitig geantwortet und wurde beendet.</translation>
    </message>
    <message id="xTError_ID_1">
        <translation>Der Ort konnte nicht geschrieben werden:</translation>
    </message>
    <message id="xTError_ID_2">
        <translation>Der Ort konnte nicht in die Begleitdatei geschrieben werden:</translation>
    </message>
    <message id="xTError_ID_3">
        <translation>Der Ort konnte nicht ergänzt werden:</translation>
    </message>
    <message id="xTError_ID_5">
        <translation>Es gab schon eine Begleitdatei:</translation>
    </message>
    <message id="xTError_ID_6">
        <translation>Fehlende Datumsfelder konnten nicht ergänzt werden:</translation>
    </message>
    <message id="xTError_ID_7">
        <translation>Kurze XMP-Daten konnten nicht verlängert werden:</translation>
    </message>
    <message id="cli_slot_toBeWritten">
        <translation>wird an Ort und Stelle geschrieben</translation>
    </message>
    <message id="cli_slot_toBeWrittenByTool">
        <translation>wird von ExifTool geschrieben</translation>
    </message>
    <message id="cli_slot_unchanged">
        <translation>unverändert</translation>
    </message>
    <message id="cli_slot_written">
        <translation>an Ort und Stelle geschrieben</translation>
    </message>
    <message id="cli_slot_writtenByTool">
        <translation>von ExifTool geschrieben</translation>
    </message>
    <message id="workPanelSyncXMP">
        <translation>XMP-Daten werden angeglichen</translation>
    </message>
    <message id="predicate_error_badDate">
        <translation>das ist kein Datum; ein Datum wird etwa so geschrieben: "2024-05-06 07:08"</translation>
    </message>
    <message id="predicate_error_expectedJoin">
        <translation>vor „%1“ wird AND, OR oder das Ende erwartet</translation>
    </message>
    <message id="predicate_error_expectedKey">
        <translation>hier wird ein Schlüssel erwartet</translation>
    </message>
    <message id="predicate_error_expectedOperator">
        <translation>hier wird ein Operator erwartet: ==, !=, &lt;, &lt;=, >, >=, CONTAINS, BEGINSWITH, ENDSWITH</translation>
    </message>
    <message id="predicate_error_expectedValue">
        <translation>hier wird ein Wert erwartet: ein Text in Anführungszeichen, eine Zahl oder ein Datum</translation>
    </message>
    <message id="predicate_error_missingParenthesis">
        <translation>eine schließende Klammer fehlt</translation>
    </message>
    <message id="predicate_error_notUtf8">
        <translation>die Bedingung ist nicht in UTF-8</translation>
    </message>
    <message id="predicate_error_openText">
        <translation>das schließende Anführungszeichen fehlt</translation>
    </message>
    <message id="predicate_error_operatorNotForKey">
        <translation>„%1“ passt nicht zum Schlüssel</translation>
    </message>
    <message id="predicate_error_tooDeep">
        <translation>die Bedingung ist zu tief geschachtelt</translation>
    </message>
    <message id="predicate_error_tooLong">
        <translation>die Bedingung ist zu lang</translation>
    </message>
    <message id="predicate_error_unknownEscape">
        <translation>„%1“ hat in einem Text keine Bedeutung</translation>
    </message>
    <message id="predicate_error_unknownFlags">
        <translation>„%1“ ist unbekannt; es gibt [c], [d], [cd]</translation>
    </message>
    <message id="predicate_error_unknownKey">
        <translation>„%1“ ist kein Schlüssel</translation>
    </message>
    <message id="predicate_error_valueNotForKey">
        <translation>der Wert passt nicht zum Schlüssel</translation>
    </message>
    <message id="renameModTemplate_unnamed">
        <translation>Unbenannt</translation>
    </message>
    <message id="errorPanelDescriptionText_ID8">
        <translation>Der gewünschte Name war vergeben, daher kam eine Nummer hinzu:</translation>
    </message>
    <message id="errorPanelDescriptionText_ID9">
        <translation>Eine zugehörige Datei lässt sich nicht beschreiben, daher wurden diese nicht umbenannt:</translation>
    </message>
    <message id="workPanelRename">
        <translation>Dateien werden umbenannt</translation>
    </message>
    <message id="renameStringPartGraphic_1">
        <translation>Jahr</translation>
    </message>
    <message id="renameStringPartGraphic_10">
        <translation>Dateiname</translation>
    </message>
    <message id="renameStringPartGraphic_2">
        <translation>Monat</translation>
    </message>
    <message id="renameStringPartGraphic_3">
        <translation>Tag</translation>
    </message>
    <message id="renameStringPartGraphic_4">
        <translation>Stunde</translation>
    </message>
    <message id="renameStringPartGraphic_5">
        <translation>Minute</translation>
    </message>
    <message id="renameStringPartGraphic_6">
        <translation>Sekunde</translation>
    </message>
    <message id="renameStringPartGraphic_7">
        <translation>Zähler</translation>
    </message>
    <message id="renameStringPartGraphic_8">
        <translation>Ordnername</translation>
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
        <translation>„{%1}“ kommt zu früh: {addon1}, {addon2} und {addon3} stehen in dieser Reihenfolge, ohne Lücken.</translation>
    </message>
    <message id="templateTextError_braceWithoutBegin">
        <translation>Ein „}“ ohne „{“ davor. Eine Klammer, die im Namen stehen soll, wird verdoppelt: „}}“.</translation>
    </message>
    <message id="templateTextError_braceWithoutEnd">
        <translation>Ein „{“ ohne „}“ dahinter. Eine Klammer, die im Namen stehen soll, wird verdoppelt: „{{“.</translation>
    </message>
    <message id="templateTextError_counterDigits">
        <translation>„{%1}“: ein Zähler hat mindestens 1 bis 9 Stellen, wie in {counter:4}.</translation>
    </message>
    <message id="templateTextError_notUtf8">
        <translation>Die Vorlage ist nicht in UTF-8 geschrieben.</translation>
    </message>
    <message id="templateTextError_refusedCharacter">
        <translation>Ein Name kann keine Doppelpunkte, Schrägstriche, Steuerzeichen und keine Zeichen enthalten, die die Schreibrichtung ändern.</translation>
    </message>
    <message id="templateTextError_twice">
        <translation>Eine Vorlage kann „{%1}“ nur einmal enthalten.</translation>
    </message>
    <message id="templateTextError_unknownElement">
        <translation>Ein Element „{%1}“ gibt es nicht. Es gibt: {year} {year2} {month} {month1} {day} {hour} {minute} {second} {counter} {counter:4} {folder} {name} {addon1} {addon2} {addon3}.</translation>
    </message>
    <message id="nameCheck_control">
        <translation>der Name enthält ein Steuerzeichen</translation>
    </message>
    <message id="nameCheck_direction">
        <translation>der Name enthält ein Zeichen, das die Schreibrichtung umkehrt</translation>
    </message>
    <message id="nameCheck_ending">
        <translation>der Name endet mit einem Punkt oder Leerzeichen</translation>
    </message>
    <message id="nameCheck_notUtf8">
        <translation>der Name ist kein gültiges UTF-8</translation>
    </message>
    <message id="nameCheck_reserved">
        <translation>der Name steht unter Windows für ein Gerät</translation>
    </message>
    <message id="nameCheck_separator">
        <translation>der Name enthält ein „/“</translation>
    </message>
    <message id="nameCheck_tooLong">
        <translation>der Name ist zu lang für das Dateisystem</translation>
    </message>
    <message id="confirmRemoveTemplateMessageText">
        <translation>Die gewählte Vorlage entfernen?</translation>
    </message>
    <message id="renameSummary_noGroups_multi">
        <translation>%1 Dateien werden umbenannt.</translation>
    </message>
    <message id="renameSummary_noGroups_single">
        <translation>%1 Datei wird umbenannt.</translation>
    </message>
    <message id="renameSummary_noSingles_multi">
        <translation>%1 Gruppen mit zusammen %2 Dateien werden umbenannt.</translation>
    </message>
    <message id="renameSummary_noSingles_single">
        <translation>%1 Gruppe mit %2 Dateien wird umbenannt.</translation>
    </message>
    <message id="renameSummary_singlesAndGroups_multiMulti">
        <translation>%1 einzelne Dateien und %2 Gruppen werden umbenannt, zusammen %3 Dateien.</translation>
    </message>
    <message id="renameSummary_singlesAndGroups_multiSingle">
        <translation>%1 einzelne Dateien und %2 Gruppe werden umbenannt, zusammen %3 Dateien.</translation>
    </message>
    <message id="renameSummary_singlesAndGroups_singleMulti">
        <translation>%1 einzelne Datei und %2 Gruppen werden umbenannt, zusammen %3 Dateien.</translation>
    </message>
    <message id="renameSummary_singlesAndGroups_singleSingle">
        <translation>%1 einzelne Datei und %2 Gruppe werden umbenannt, zusammen %3 Dateien.</translation>
    </message>
    <message id="undoConfigureTemplateMenu">
        <translation>Namensbaustein ändern</translation>
    </message>
    <message id="undoDragTemplatePart">
        <translation>Namensbaustein bewegen</translation>
    </message>
    <message id="undoPasteTemplatePart">
        <translation>Namensbaustein einsetzen</translation>
    </message>
    <message id="confirmSaveBeforeRenameMessageTextAll_multi">
        <translation>%1 Ordner haben ungesicherte Änderungen. Vor dem Umbenennen aller Dateien sichern?</translation>
    </message>
    <message id="confirmSaveBeforeRenameMessageTextAll_single">
        <translation>Ein Ordner hat ungesicherte Änderungen. Vor dem Umbenennen aller Dateien sichern?</translation>
    </message>
    <message id="confirmSaveBeforeRenameMessageTextCurrent_multi">
        <translation>%1 der gewählten Ordner haben ungesicherte Änderungen. Vor dem Umbenennen der Dateien sichern?</translation>
    </message>
    <message id="confirmSaveBeforeRenameMessageTextCurrent_single">
        <translation>Der Ordner hat ungesicherte Änderungen. Vor dem Umbenennen der Dateien sichern?</translation>
    </message>
    <message id="templateStatusText1">
        <translation>Diese Vorlage gibt allen Dateien denselben Namen. Füge ein Datum, den Zähler oder den Dateinamen hinzu.</translation>
    </message>
    <message id="templateStatusText2">
        <translation>Mehrere Dateien können denselben Namen bekommen; dann kommt eine Nummer hinzu. Ein Zähler oder der Dateiname verhindert das.</translation>
    </message>
    <message id="dropRefusal_gpsTrack">
        <translation>ist ein GPS-Track; Tracks können noch nicht verknüpft werden</translation>
    </message>
    <message id="dropRefusal_libraryOfAnotherProgram">
        <translation>gehört zur Mediathek eines anderen Programms</translation>
    </message>
    <message id="dropRefusal_nameNotUtf8">
        <translation>hat einen Namen, der kein gültiger Text ist</translation>
    </message>
    <message id="dropRefusal_noAccess">
        <translation>kann nicht gelesen werden: kein Zugriff</translation>
    </message>
    <message id="dropRefusal_notAMedium">
        <translation>ist weder Foto noch Film</translation>
    </message>
    <message id="dropRefusal_notFound">
        <translation>ist nicht mehr da</translation>
    </message>
    <message id="addMissingTags_undoRedo">
        <translation>Fehlende Datumsfelder ergänzen</translation>
    </message>
    <message id="assignZones_undoRedo">
        <translation>Zeitzonen setzen</translation>
    </message>
    <message id="movieClock_undoRedo">
        <translation>Filmuhr ändern</translation>
    </message>
    <message id="time_earlier">
        <translation>%1 früher</translation>
    </message>
    <message id="time_later">
        <translation>%1 später</translation>
    </message>
    <message id="job_completing">
        <translation>Kameras und Orte von %1 lesen</translation>
    </message>
    <message id="job_reading">
        <translation>%1 wird gelesen</translation>
    </message>
    <message id="job_thumbnails">
        <translation>Vorschaubilder</translation>
    </message>
    <message id="reading_message">
        <translation>Nicht alles konnte aufgenommen werden</translation>
    </message>
    <message id="removeFolders_accept">
        <translation>Entfernen</translation>
    </message>
    <message id="removeFolders_information">
        <translation>Ihre Korrekturen gehen verloren. Die Dateien bleiben unverändert, wo sie sind.</translation>
    </message>
    <message id="removeFolders_message">
        <translation>Ordner mit ungesicherten Änderungen entfernen?</translation>
    </message>
    <message id="status_hiddenByFilter">
        <translation>%1 Medien sind durch Filter verborgen</translation>
    </message>
    <message id="status_nothingToAlign">
        <translation>Nichts anzuordnen</translation>
    </message>
    <message id="status_nothingToSave">
        <translation>Nichts zu sichern</translation>
    </message>
    <message id="status_nothingWritten">
        <translation>Es wurde nichts geschrieben</translation>
    </message>
    <message id="status_outOfBounds">
        <translation>Abgelehnt: Daten müssen zwischen den Jahren 1 und 4999 bleiben</translation>
    </message>
    <message id="status_read">
        <translation>%1 Medien aus %2 gelesen</translation>
    </message>
    <message id="status_read_one">
        <translation>1 Medium aus %1 gelesen</translation>
    </message>
    <message id="status_renamed">
        <translation>%1 Dateien umbenannt</translation>
    </message>
    <message id="status_saved">
        <translation>%1 Dateien gesichert</translation>
    </message>
    <message id="status_savedAndRenamed">
        <translation>%1 Dateien gesichert, %2 umbenannt</translation>
    </message>
    <message id="status_thumbnailsStopped">
        <translation>Ab jetzt gibt es Vorschaubilder nur für das, was zu sehen ist</translation>
    </message>
    <message id="status_waitForReading">
        <translation>Bitte warten, bis alle Ordner gelesen sind</translation>
    </message>
    <message id="status_waitForSave">
        <translation>Bitte warten, bis das Sichern beendet ist</translation>
    </message>
    <message id="command_about">
        <translation>&amp;Über chronoMender</translation>
    </message>
    <message id="command_addFolders">
        <translation>Ordner &amp;hinzufügen …</translation>
    </message>
    <message id="command_addMissingTags">
        <translation>Fehlende &amp;Datumsfelder ergänzen</translation>
    </message>
    <message id="command_addWithOptions">
        <translation>Mit &amp;Optionen hinzufügen …</translation>
    </message>
    <message id="command_alignSelected">
        <translation>&amp;Anordnen …</translation>
    </message>
    <message id="command_clearFilters">
        <translation>&amp;Filter aufheben</translation>
    </message>
    <message id="command_copyDigitizedNew">
        <translation>Digitalisierungsdatum (wie es wird) übernehmen</translation>
    </message>
    <message id="command_copyDigitizedOld">
        <translation>Digitalisierungsdatum (in der Datei) übernehmen</translation>
    </message>
    <message id="command_copyFileCreationNew">
        <translation>Erstelldatum der Datei (wie es wird) übernehmen</translation>
    </message>
    <message id="command_copyFileCreationOld">
        <translation>Erstelldatum der Datei (wie es ist) übernehmen</translation>
    </message>
    <message id="command_copyFileModificationNew">
        <translation>Änderungsdatum der Datei (wie es wird) übernehmen</translation>
    </message>
    <message id="command_copyFileModificationOld">
        <translation>Änderungsdatum der Datei (wie es ist) übernehmen</translation>
    </message>
    <message id="command_copyTiffNew">
        <translation>Änderungsfeld (wie es wird) übernehmen</translation>
    </message>
    <message id="command_copyTiffOld">
        <translation>Änderungsfeld (in der Datei) übernehmen</translation>
    </message>
    <message id="command_deselect">
        <translation>&amp;Nichts auswählen</translation>
    </message>
    <message id="command_earlierReading">
        <translation>Als &amp;frühere Zeit lesen</translation>
    </message>
    <message id="command_errorLog">
        <translation>Fehler&amp;protokoll</translation>
    </message>
    <message id="command_filter">
        <translation>Fi&amp;ltern …</translation>
    </message>
    <message id="command_find">
        <translation>&amp;Suchen …</translation>
    </message>
    <message id="command_focusFolders">
        <translation>Zu den &amp;Ordnern</translation>
    </message>
    <message id="command_focusInspector">
        <translation>Zu den &amp;Details</translation>
    </message>
    <message id="command_focusShift">
        <translation>Zur &amp;Verschiebung</translation>
    </message>
    <message id="command_focusStrip">
        <translation>Zur &amp;Zeitleiste</translation>
    </message>
    <message id="command_folderToShelf">
        <translation>Ordner auf die A&amp;blage legen</translation>
    </message>
    <message id="command_folderZones">
        <translation>&amp;Zeitzonen …</translation>
    </message>
    <message id="command_fromShelf">
        <translation>&amp;Von der Ablage nehmen</translation>
    </message>
    <message id="command_fullScreen">
        <translation>Voll&amp;bild</translation>
    </message>
    <message id="command_invertSelection">
        <translation>Auswahl &amp;umkehren</translation>
    </message>
    <message id="command_itemZones">
        <translation>&amp;Zeitzonen der Auswahl …</translation>
    </message>
    <message id="command_keeper">
        <translation>&amp;Behalten</translation>
    </message>
    <message id="command_labels">
        <translation>&amp;Daten unter Vorschaubildern</translation>
    </message>
    <message id="command_largerThumbs">
        <translation>&amp;Größere Vorschaubilder</translation>
    </message>
    <message id="command_mirrorStrip">
        <translation>&amp;Zweite Ansicht der Zeitleiste</translation>
    </message>
    <message id="command_moveWithArrows">
        <translation>Mit &amp;Pfeiltasten in der Zeit bewegen</translation>
    </message>
    <message id="command_movieClock">
        <translation>Filme nennen die &amp;Uhr der Kamera</translation>
    </message>
    <message id="command_nextChapter">
        <translation>&amp;Nächster Tag</translation>
    </message>
    <message id="command_nextKeeper">
        <translation>N&amp;ächstes behaltene</translation>
    </message>
    <message id="command_noMark">
        <translation>&amp;Keine Markierung</translation>
    </message>
    <message id="command_oneStrip">
        <translation>&amp;Eine Zeitleiste</translation>
    </message>
    <message id="command_onlyTheseFolders">
        <translation>&amp;Nur diese Ordner zeigen</translation>
    </message>
    <message id="command_openItem">
        <translation>In anderem Programm &amp;öffnen</translation>
    </message>
    <message id="command_otherStrip">
        <translation>Zur &amp;anderen Zeitleiste</translation>
    </message>
    <message id="command_preferences">
        <translation>Ein&amp;stellungen …</translation>
    </message>
    <message id="command_previousChapter">
        <translation>&amp;Voriger Tag</translation>
    </message>
    <message id="command_previousKeeper">
        <translation>&amp;Voriges behaltene</translation>
    </message>
    <message id="command_quit">
        <translation>&amp;Beenden</translation>
    </message>
    <message id="command_recolor">
        <translation>&amp;Farben nach Reihenfolge der Ordner</translation>
    </message>
    <message id="command_rejected">
        <translation>&amp;Ausschuss</translation>
    </message>
    <message id="command_removeFolders">
        <translation>Ordner &amp;entfernen</translation>
    </message>
    <message id="command_renameAll">
        <translation>Alle &amp;Dateien umbenennen …</translation>
    </message>
    <message id="command_renameCurrent">
        <translation>Dateien des Ordners &amp;umbenennen …</translation>
    </message>
    <message id="command_resetShift">
        <translation>Verschiebung &amp;zurücksetzen</translation>
    </message>
    <message id="command_save">
        <translation>Ordner &amp;sichern</translation>
    </message>
    <message id="command_saveAll">
        <translation>&amp;Alles sichern</translation>
    </message>
    <message id="command_saveAndRename">
        <translation>Alles sichern und umbe&amp;nennen …</translation>
    </message>
    <message id="command_saveWithoutChanges">
        <translation>Ordner sichern, auch &amp;unverändert</translation>
    </message>
    <message id="command_selectAll">
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message id="command_selectFolderItems">
        <translation>Alles im &amp;Ordner auswählen</translation>
    </message>
    <message id="command_shortcuts">
        <translation>&amp;Tastaturkürzel</translation>
    </message>
    <message id="command_singleMode">
        <translation>Jedes &amp;einzeln verschieben</translation>
    </message>
    <message id="command_smallerThumbs">
        <translation>&amp;Kleinere Vorschaubilder</translation>
    </message>
    <message id="command_togetherMode">
        <translation>Alle &amp;gemeinsam verschieben</translation>
    </message>
    <message id="command_toShelf">
        <translation>Auf die A&amp;blage legen</translation>
    </message>
    <message id="menu_view">
        <translation>&amp;Ansicht</translation>
    </message>
    <message id="prefs_appearance">
        <translation>&amp;Fenster</translation>
    </message>
    <message id="prefs_appearanceDark">
        <translation>dunkel</translation>
    </message>
    <message id="prefs_appearanceLight">
        <translation>hell</translation>
    </message>
    <message id="prefs_appearanceSystem">
        <translation>wie das System</translation>
    </message>
    <message id="prefs_backgroundThumbs">
        <translation>Vorschaubilder im &amp;Voraus erzeugen</translation>
    </message>
    <message id="prefs_choiceApart1">
        <translation>wenn sie mehr als 1 Sekunde auseinanderliegen</translation>
    </message>
    <message id="prefs_choiceApart300">
        <translation>wenn sie mehr als 5 Minuten auseinanderliegen</translation>
    </message>
    <message id="prefs_choiceAsDigitized">
        <translation>nimmt das Digitalisierungsdatum</translation>
    </message>
    <message id="prefs_choiceAsProgram">
        <translation>wie oben gewählt</translation>
    </message>
    <message id="prefs_choiceAsTiff">
        <translation>nimmt das Änderungsdatum im Foto</translation>
    </message>
    <message id="prefs_choiceByMovie">
        <translation>zur Zeit des Films</translation>
    </message>
    <message id="prefs_choiceByStill">
        <translation>zur Zeit des Fotos</translation>
    </message>
    <message id="prefs_choiceGpsDate">
        <translation>auf das korrigierte Datum</translation>
    </message>
    <message id="prefs_choiceGpsShift">
        <translation>um dieselbe Zeit</translation>
    </message>
    <message id="prefs_choiceKeep">
        <translation>bleibt, aber nie früher als das korrigierte Datum</translation>
    </message>
    <message id="prefs_choiceNever">
        <translation>nie</translation>
    </message>
    <message id="prefs_choiceNewDate">
        <translation>nimmt das korrigierte Datum</translation>
    </message>
    <message id="prefs_choiceNow">
        <translation>nimmt den Augenblick des Sicherns</translation>
    </message>
    <message id="prefs_choiceSameShift">
        <translation>wird um dieselbe Zeit verschoben</translation>
    </message>
    <message id="prefs_close">
        <translation>Schließen</translation>
    </message>
    <message id="prefs_creationDate">
        <translation>F&amp;rühestes Änderungsdatum der Datei</translation>
    </message>
    <message id="prefs_digitized">
        <translation>&amp;Digitalisierungsdatum</translation>
    </message>
    <message id="prefs_digitizedFollows">
        <translation>Zieht mit, wo es dem Aufnahmedatum gleicht</translation>
    </message>
    <message id="prefs_embeddedThumbs">
        <translation>Nur in &amp;Dateien enthaltene Vorschaubilder</translation>
    </message>
    <message id="prefs_fileDate">
        <translation>Änderungsdatum der Da&amp;tei</translation>
    </message>
    <message id="prefs_fileDateFollows">
        <translation>Zieht mit, wo es einem verschobenen Datum gleicht</translation>
    </message>
    <message id="prefs_fileDatesToo">
        <translation>Auch die Daten der D&amp;atei ändern</translation>
    </message>
    <message id="prefs_fileDateWithoutTiff">
        <translation>Dasselbe &amp;ohne Änderungsdatum im Foto</translation>
    </message>
    <message id="prefs_fileGroups">
        <translation>Raw mit JPEG und Foto mit Film als &amp;eines behandeln</translation>
    </message>
    <message id="prefs_folderColor">
        <translation>Ordnerfarbe %1</translation>
    </message>
    <message id="prefs_folderColors">
        <translation>Ordnerfarben</translation>
    </message>
    <message id="prefs_gap">
        <translation>Über die Enden gezogene Medien halten &amp;Abstand</translation>
    </message>
    <message id="prefs_gap1">
        <translation>1 Sekunde</translation>
    </message>
    <message id="prefs_gap10">
        <translation>10 Sekunden</translation>
    </message>
    <message id="prefs_gap3600">
        <translation>1 Stunde</translation>
    </message>
    <message id="prefs_gap60">
        <translation>1 Minute</translation>
    </message>
    <message id="prefs_gap600">
        <translation>10 Minuten</translation>
    </message>
    <message id="prefs_gap86400">
        <translation>1 Tag</translation>
    </message>
    <message id="prefs_groupAll">
        <translation>Alle Dateien</translation>
    </message>
    <message id="prefs_groupExif">
        <translation>Fotos und Filme mit Aufnahmedatum</translation>
    </message>
    <message id="prefs_groupFiles">
        <translation>Dateien</translation>
    </message>
    <message id="prefs_groupInside">
        <translation>Was mitgesichert wird</translation>
    </message>
    <message id="prefs_groupMovies">
        <translation>Filme</translation>
    </message>
    <message id="prefs_groupNoExif">
        <translation>Dateien ohne Datum im Inneren</translation>
    </message>
    <message id="prefs_groupPairs">
        <translation>Paare</translation>
    </message>
    <message id="prefs_groupStrips">
        <translation>Zeitachse</translation>
    </message>
    <message id="prefs_groupThumbs">
        <translation>Vorschaubilder</translation>
    </message>
    <message id="prefs_groupTiff">
        <translation>Fotos, die nur ein Änderungsdatum haben</translation>
    </message>
    <message id="prefs_groupTool">
        <translation>ExifTool</translation>
    </message>
    <message id="prefs_harmonizing">
        <translation>&amp;Raw und JPEG ein Datum geben</translation>
    </message>
    <message id="prefs_highlightEmpty">
        <translation>Medien mit &amp;leeren Daten markieren</translation>
    </message>
    <message id="prefs_labels">
        <translation>&amp;Beschriftung unter Vorschaubildern</translation>
    </message>
    <message id="prefs_largeThumbs">
        <translation>&amp;Große Vorschaubilder behalten (braucht viel Speicher)</translation>
    </message>
    <message id="prefs_livePhotosByMovie">
        <translation>&amp;Live-Fotos stehen zur Zeit ihres Films</translation>
    </message>
    <message id="prefs_livePhotosOfFolder">
        <translation>Live-Fotos eines &amp;neuen Ordners stehen</translation>
    </message>
    <message id="prefs_movieClock">
        <translation>Die Zeit im Kopf des Films ist die &amp;Ortszeit der Kamera</translation>
    </message>
    <message id="prefs_movieMetaDate">
        <translation>Das Datum bevorzugen, das das &amp;Telefon notiert hat</translation>
    </message>
    <message id="prefs_notStored">
        <translation>Die Einstellung gilt jetzt, konnte aber nicht gespeichert werden.</translation>
    </message>
    <message id="prefs_overlapping">
        <translation>Live-Fotos mit überlappenden Filmen &amp;verbinden</translation>
    </message>
    <message id="prefs_pageAppearance">
        <translation>Darstellung</translation>
    </message>
    <message id="prefs_pageDates">
        <translation>Daten</translation>
    </message>
    <message id="prefs_pageImport">
        <translation>Import</translation>
    </message>
    <message id="prefs_pageNames">
        <translation>Namen</translation>
    </message>
    <message id="prefs_pages">
        <translation>Seiten</translation>
    </message>
    <message id="prefs_pageSaving">
        <translation>Sichern</translation>
    </message>
    <message id="prefs_previewJpeg">
        <translation>aus dem JPEG</translation>
    </message>
    <message id="prefs_previewRaw">
        <translation>aus der Raw-Datei</translation>
    </message>
    <message id="prefs_rawJpgPreview">
        <translation>&amp;Bild eines Raw mit seinem JPEG</translation>
    </message>
    <message id="prefs_reset">
        <translation>Zurücksetzen</translation>
    </message>
    <message id="prefs_resetOf">
        <translation>Zurücksetzen: %1</translation>
    </message>
    <message id="prefs_skipEmptyTags">
        <translation>Bei &amp;leeren Daten nicht fragen: Datum der Datei nehmen</translation>
    </message>
    <message id="prefs_skipMovies">
        <translation>Bei Filmen nicht &amp;fragen</translation>
    </message>
    <message id="prefs_subfolderDepth">
        <translation>Unterordner bis zu dieser &amp;Tiefe</translation>
    </message>
    <message id="prefs_subfolders">
        <translation>Auch &amp;Unterordner einlesen</translation>
    </message>
    <message id="prefs_syncGps">
        <translation>Auch die &amp;GPS-Zeit berichtigen</translation>
    </message>
    <message id="prefs_syncGpsType">
        <translation>GPS-&amp;Zeit wird verschoben</translation>
    </message>
    <message id="prefs_syncXmp">
        <translation>&amp;XMP-Daten den gesicherten angleichen</translation>
    </message>
    <message id="prefs_threshold">
        <translation>Daten gleichen sich bis zu so vielen &amp;Sekunden</translation>
    </message>
    <message id="prefs_tiff">
        <translation>&amp;Änderungsdatum im Foto</translation>
    </message>
    <message id="prefs_tiffFollows">
        <translation>Zieht mit, wo es dem Digitalisierungsdatum gleicht</translation>
    </message>
    <message id="prefs_title">
        <translation>Einstellungen</translation>
    </message>
    <message id="prefs_tool">
        <translation>&amp;Programm</translation>
    </message>
    <message id="prefs_toolBrowse">
        <translation>Wählen …</translation>
    </message>
    <message id="prefs_toolBrowseTitle">
        <translation>ExifTool</translation>
    </message>
    <message id="prefs_toolChecking">
        <translation>Wird ausprobiert …</translation>
    </message>
    <message id="prefs_toolHint">
        <translation>exiftool im Suchpfad</translation>
    </message>
    <message id="prefs_toolMissing">
        <translation>Nicht gefunden. Daten, die mehr Platz in einer Datei brauchen, lassen sich ohne es nicht sichern.</translation>
    </message>
    <message id="prefs_toolName">
        <translation>Pfad von ExifTool</translation>
    </message>
    <message id="prefs_toolOther">
        <translation>Dieses Programm ist nicht ExifTool.</translation>
    </message>
    <message id="prefs_toolRuns">
        <translation>ExifTool %1 läuft.</translation>
    </message>
    <message id="prefs_toolSilent">
        <translation>Das Programm antwortet nicht.</translation>
    </message>
    <message id="prefs_widenXmp">
        <translation>XMP-Daten, die &amp;mehr Platz brauchen, mit ExifTool schreiben</translation>
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
        <translation>&amp;Beim Sichern</translation>
    </message>
    <message id="rename_atSaveAll">
        <translation>alle Ordner umbenennen</translation>
    </message>
    <message id="rename_atSaveCompound">
        <translation>die gewählten Ordner umbenennen</translation>
    </message>
    <message id="rename_atSaveCurrent">
        <translation>umbenennen, was gesichert wird</translation>
    </message>
    <message id="rename_atSaveNothing">
        <translation>nichts umbenennen</translation>
    </message>
    <message id="rename_cancel">
        <translation>Abbrechen</translation>
    </message>
    <message id="rename_caseLeave">
        <translation>wie sie ist</translation>
    </message>
    <message id="rename_caseLower">
        <translation>klein: jpg</translation>
    </message>
    <message id="rename_caseUpper">
        <translation>groß: JPG</translation>
    </message>
    <message id="rename_changeFile">
        <translation>Ursprünglichen Namen ab&amp;wandeln</translation>
    </message>
    <message id="rename_changeFolder">
        <translation>Ordnernamen abwan&amp;deln</translation>
    </message>
    <message id="rename_changeHow">
        <translation>Wie …</translation>
    </message>
    <message id="rename_check">
        <translation>Namen &amp;prüfen</translation>
    </message>
    <message id="rename_checkFree">
        <translation>%1 Namen sind frei.</translation>
    </message>
    <message id="rename_checking">
        <translation>Namen werden geprüft …</translation>
    </message>
    <message id="rename_checkNumbered">
        <translation>%1 sind vergeben und bekommen eine Nummer.</translation>
    </message>
    <message id="rename_checkRefused">
        <translation>%1 lassen sich nicht umbenennen.</translation>
    </message>
    <message id="rename_columnNew">
        <translation>Neuer Name</translation>
    </message>
    <message id="rename_columnNote">
        <translation>Bemerkung</translation>
    </message>
    <message id="rename_columnPresent">
        <translation>Jetzt</translation>
    </message>
    <message id="rename_counter">
        <translation>&amp;Zähler läuft</translation>
    </message>
    <message id="rename_counterCompound">
        <translation>durch die gewählten Ordner</translation>
    </message>
    <message id="rename_counterPerFolder">
        <translation>in jedem Ordner neu</translation>
    </message>
    <message id="rename_counterRunning">
        <translation>durch alle Ordner</translation>
    </message>
    <message id="rename_counterStart">
        <translation>und be&amp;ginnt mit</translation>
    </message>
    <message id="rename_digits">
        <translation>&amp;Stellen des Zählers:</translation>
    </message>
    <message id="rename_digitsName">
        <translation>Stellen des Zählers</translation>
    </message>
    <message id="rename_dotsLeave">
        <translation>bleiben</translation>
    </message>
    <message id="rename_dotsRemove">
        <translation>werden entfernt</translation>
    </message>
    <message id="rename_dotsReport">
        <translation>bleiben und werden gemeldet</translation>
    </message>
    <message id="rename_editorChange">
        <translation>Vorlage ändern</translation>
    </message>
    <message id="rename_editorField">
        <translation>Vorlage: Text und Bausteine</translation>
    </message>
    <message id="rename_editorLabel">
        <translation>&amp;Name einer Datei:</translation>
    </message>
    <message id="rename_editorNew">
        <translation>Neue Vorlage</translation>
    </message>
    <message id="rename_frontDots">
        <translation>&amp;Punkte am Namensanfang</translation>
    </message>
    <message id="rename_keepAddOn">
        <translation>Texte behalten, die Dateien schon haben</translation>
    </message>
    <message id="rename_listFull">
        <translation>Es gibt zu viele Vorlagen.</translation>
    </message>
    <message id="rename_month">
        <translation>&amp;Monat:</translation>
    </message>
    <message id="rename_monthHint">
        <translation>Ein Zeichen: 1 bis 9, A, B, C</translation>
    </message>
    <message id="rename_monthName">
        <translation>Monat</translation>
    </message>
    <message id="rename_nameAtImport">
        <translation>wie beim Import</translation>
    </message>
    <message id="rename_namePresent">
        <translation>wie er jetzt ist</translation>
    </message>
    <message id="rename_next">
        <translation>Nä&amp;chste Bemerkung</translation>
    </message>
    <message id="rename_noTemplate">
        <translation>Wähle eine Vorlage oder schreibe eine neue.</translation>
    </message>
    <message id="rename_noteNumber">
        <translation>„%1“ ist vergeben.</translation>
    </message>
    <message id="rename_nothingRenamed">
        <translation>Es wird nichts umbenannt.</translation>
    </message>
    <message id="rename_nothingToDo">
        <translation>Es gibt nichts umzubenennen.</translation>
    </message>
    <message id="rename_palette">
        <translation>&amp;Bausteine (Eingabe oder Doppelklick setzt ein, Alt+Pfeile bewegen):</translation>
    </message>
    <message id="rename_paletteName">
        <translation>Bausteine zum Einsetzen</translation>
    </message>
    <message id="rename_presetKeep">
        <translation>Ablegen</translation>
    </message>
    <message id="rename_presetName">
        <translation>Name dieser Abwandlungen</translation>
    </message>
    <message id="rename_presetRemove">
        <translation>Entfernen</translation>
    </message>
    <message id="rename_presets">
        <translation>&amp;Abgelegt als:</translation>
    </message>
    <message id="rename_redo">
        <translation>Wiederholen</translation>
    </message>
    <message id="rename_refusedCharacter">
        <translation>Ein Name kann dieses Zeichen nicht enthalten.</translation>
    </message>
    <message id="rename_restrictCounter">
        <translation>Nur zählen, was umbenannt &amp;wird</translation>
    </message>
    <message id="rename_restrictFirst">
        <translation>die Auswahl auf der Zeitachse</translation>
    </message>
    <message id="rename_restriction">
        <translation>N&amp;ur</translation>
    </message>
    <message id="rename_restrictNone">
        <translation>alle Medien des Ordners</translation>
    </message>
    <message id="rename_restrictSecond">
        <translation>die Auswahl auf der zweiten Zeitachse</translation>
    </message>
    <message id="rename_rowAdd">
        <translation>Abwandlung hinzufügen</translation>
    </message>
    <message id="rename_rowAll">
        <translation>alle</translation>
    </message>
    <message id="rename_rowBefore">
        <translation>was vor diesem Text steht, Nummer:</translation>
    </message>
    <message id="rename_rowBehind">
        <translation>was hinter diesem Text steht, Nummer:</translation>
    </message>
    <message id="rename_rowBy">
        <translation>durch</translation>
    </message>
    <message id="rename_rowCapitalised">
        <translation>Jedes Wort Groß</translation>
    </message>
    <message id="rename_rowChangeCase">
        <translation>Schreibung</translation>
    </message>
    <message id="rename_rowCharacters">
        <translation>Zeichen</translation>
    </message>
    <message id="rename_rowCharCount">
        <translation>Zeichen</translation>
    </message>
    <message id="rename_rowDelete">
        <translation>Diese Abwandlung entfernen</translation>
    </message>
    <message id="rename_rowDown">
        <translation>Nach unten</translation>
    </message>
    <message id="rename_rowEnd">
        <translation>am Ende</translation>
    </message>
    <message id="rename_rowExample">
        <translation>Beispiel: %1 → %2</translation>
    </message>
    <message id="rename_rowFromEnd">
        <translation>von hinten</translation>
    </message>
    <message id="rename_rowFromFront">
        <translation>von vorn</translation>
    </message>
    <message id="rename_rowFront">
        <translation>am Anfang</translation>
    </message>
    <message id="rename_rowHowMany">
        <translation>wie viele</translation>
    </message>
    <message id="rename_rowKeep">
        <translation>behalten</translation>
    </message>
    <message id="rename_rowLower">
        <translation>klein</translation>
    </message>
    <message id="rename_rowRemove">
        <translation>entfernen</translation>
    </message>
    <message id="rename_rowReplacement">
        <translation>Ersatz</translation>
    </message>
    <message id="rename_rowReplaceWith">
        <translation>Ersetzen</translation>
    </message>
    <message id="rename_rows">
        <translation>Dateien und ihre neuen Namen</translation>
    </message>
    <message id="rename_rowsFile">
        <translation>Abwandlungen des ursprünglichen Namens</translation>
    </message>
    <message id="rename_rowsFolder">
        <translation>Abwandlungen des Ordnernamens</translation>
    </message>
    <message id="rename_rowText">
        <translation>Text</translation>
    </message>
    <message id="rename_rowUp">
        <translation>Nach oben</translation>
    </message>
    <message id="rename_rowUpper">
        <translation>GROSS</translation>
    </message>
    <message id="rename_rowUpToString">
        <translation>Teil des Namens</translation>
    </message>
    <message id="rename_rowWhich">
        <translation>welches Vorkommen</translation>
    </message>
    <message id="rename_saveFirst">
        <translation>Sichern und umbenennen …</translation>
    </message>
    <message id="rename_saveFirstInformation">
        <translation>Namen werden aus den korrigierten Daten gebildet.</translation>
    </message>
    <message id="rename_showAll">
        <translation>Auch die &amp;anderen Medien zeigen</translation>
    </message>
    <message id="rename_sourceName">
        <translation>&amp;Ursprünglicher Name</translation>
    </message>
    <message id="rename_start">
        <translation>&amp;Umbenennen</translation>
    </message>
    <message id="rename_startSave">
        <translation>&amp;Sichern</translation>
    </message>
    <message id="rename_startSaveRename">
        <translation>&amp;Sichern und umbenennen</translation>
    </message>
    <message id="rename_suffixCase">
        <translation>&amp;Schreibung der Endung</translation>
    </message>
    <message id="rename_suffixHide">
        <translation>verborgen</translation>
    </message>
    <message id="rename_suffixLeave">
        <translation>sichtbar oder verborgen wie bisher</translation>
    </message>
    <message id="rename_suffixShow">
        <translation>sichtbar</translation>
    </message>
    <message id="rename_suffixVisibility">
        <translation>&amp;Endung</translation>
    </message>
    <message id="zones_apply">
        <translation>An&amp;wenden</translation>
    </message>
    <message id="zones_cancel">
        <translation>Abbrechen</translation>
    </message>
    <message id="zones_clockCamera">
        <translation>Uhr der Kamera</translation>
    </message>
    <message id="zones_clockComputer">
        <translation>Dieser Computer</translation>
    </message>
    <message id="zones_clockFile">
        <translation>In den Dateien</translation>
    </message>
    <message id="zones_clockUtc">
        <translation>UTC</translation>
    </message>
    <message id="zones_firstItem">
        <translation>Erstes</translation>
    </message>
    <message id="zones_forFolder">
        <translation>Zeitzonen von „%1“</translation>
    </message>
    <message id="zones_forFolders">
        <translation>Zeitzonen von %1 Ordnern</translation>
    </message>
    <message id="zones_forItem">
        <translation>Zeitzonen nur von „%1“</translation>
    </message>
    <message id="zones_forItems">
        <translation>Zeitzonen nur der %1 gewählten Medien</translation>
    </message>
    <message id="zones_lastItem">
        <translation>Letztes</translation>
    </message>
    <message id="zones_mainItem">
        <translation>Gewähltes</translation>
    </message>
    <message id="zones_mixed">
        <translation>Sie sind verschieden und bleiben es, bis etwas gewählt wird.</translation>
    </message>
    <message id="zones_noteOtherOffset">
        <translation>anderer Abstand ab %1</translation>
    </message>
    <message id="zones_noteSummerFrom">
        <translation>Sommerzeit ab %1</translation>
    </message>
    <message id="zones_noteSummerUntil">
        <translation>Sommerzeit bis %1</translation>
    </message>
    <message id="strip_cannotMove">
        <translation>Das Datum von %1 lässt sich nicht durch Ziehen verschieben</translation>
    </message>
    <message id="strip_dayTitle">
        <translation>%1, %2</translation>
    </message>
    <message id="strip_empty">
        <translation>Hier stehen alle Fotos und Filme in einer Reihenfolge, gleich aus welcher Kamera</translation>
    </message>
    <message id="strip_filtered">
        <translation>Alles ist durch einen Filter ausgeblendet oder liegt auf der Ablage</translation>
    </message>
    <message id="weekday_short_1">
        <translation>Mo</translation>
    </message>
    <message id="weekday_short_2">
        <translation>Di</translation>
    </message>
    <message id="weekday_short_3">
        <translation>Mi</translation>
    </message>
    <message id="weekday_short_4">
        <translation>Do</translation>
    </message>
    <message id="weekday_short_5">
        <translation>Fr</translation>
    </message>
    <message id="weekday_short_6">
        <translation>Sa</translation>
    </message>
    <message id="weekday_short_7">
        <translation>So</translation>
    </message>
    <message id="filter_all">
        <translation>Alle</translation>
    </message>
    <message id="filter_anyValue">
        <translation>beliebig</translation>
    </message>
    <message id="filter_asText">
        <translation>Dieser Filter lässt sich nicht in Zeilen zeigen. Er gilt so, wie er hier steht.</translation>
    </message>
    <message id="filter_beginsWith">
        <translation>beginnt mit</translation>
    </message>
    <message id="filter_clear">
        <translation>A&amp;ufheben</translation>
    </message>
    <message id="filter_contains">
        <translation>enthält</translation>
    </message>
    <message id="filter_counts">
        <translation>%1, %2</translation>
    </message>
    <message id="filter_dateAfter">
        <translation>nach</translation>
    </message>
    <message id="filter_dateBefore">
        <translation>vor</translation>
    </message>
    <message id="filter_dateFrom">
        <translation>ab</translation>
    </message>
    <message id="filter_dateIs">
        <translation>genau</translation>
    </message>
    <message id="filter_dateIsNot">
        <translation>nicht genau</translation>
    </message>
    <message id="filter_dateUpTo">
        <translation>bis</translation>
    </message>
    <message id="filter_endsWith">
        <translation>endet auf</translation>
    </message>
    <message id="filter_hidden">
        <translation>%1 ausgeblendet</translation>
    </message>
    <message id="filter_hidden_one">
        <translation>1 ausgeblendet</translation>
    </message>
    <message id="filter_is">
        <translation>ist</translation>
    </message>
    <message id="filter_isNot">
        <translation>ist nicht</translation>
    </message>
    <message id="filter_keepers">
        <translation>Behaltene</translation>
    </message>
    <message id="filter_kindCamera">
        <translation>Kamera</translation>
    </message>
    <message id="filter_kindDate">
        <translation>Datum</translation>
    </message>
    <message id="filter_kindMedia">
        <translation>Art des Mediums</translation>
    </message>
    <message id="filter_kindName">
        <translation>Dateiname</translation>
    </message>
    <message id="filter_kindRange">
        <translation>Zeitraum</translation>
    </message>
    <message id="filter_kindState">
        <translation>Zustand</translation>
    </message>
    <message id="filter_match">
        <translation>Medien er&amp;füllen</translation>
    </message>
    <message id="filter_matchAll">
        <translation>alle</translation>
    </message>
    <message id="filter_matchAny">
        <translation>mindestens eine</translation>
    </message>
    <message id="filter_matchEnd">
        <translation>dieser Bedingungen:</translation>
    </message>
    <message id="filter_matchName">
        <translation>Wie viele Bedingungen gelten müssen</translation>
    </message>
    <message id="filter_mediaLivePhoto">
        <translation>Live Photo</translation>
    </message>
    <message id="filter_mediaLivePhotosInARow">
        <translation>Live Photo, mit dem nächsten verbunden</translation>
    </message>
    <message id="filter_mediaMovie">
        <translation>Film</translation>
    </message>
    <message id="filter_mediaPhoto">
        <translation>Foto</translation>
    </message>
    <message id="filter_mediaRawAndJpeg">
        <translation>Raw mit JPEG</translation>
    </message>
    <message id="filter_more">
        <translation>Mehr …</translation>
    </message>
    <message id="filter_moreName">
        <translation>Nach mehr als Wörtern filtern</translation>
    </message>
    <message id="filter_notRejected">
        <translation>Ohne Ausschuss</translation>
    </message>
    <message id="filter_other">
        <translation>Ein eigener Filter ist aktiv</translation>
    </message>
    <message id="filter_rangeFrom">
        <translation>von</translation>
    </message>
    <message id="filter_rangeTill">
        <translation>bis</translation>
    </message>
    <message id="filter_rating">
        <translation>Z&amp;eigen</translation>
    </message>
    <message id="filter_reset">
        <translation>&amp;Leeren</translation>
    </message>
    <message id="filter_row">
        <translation>Bedingung %1: %2</translation>
    </message>
    <message id="filter_rowAdd">
        <translation>Bedingung darunter hinzufügen</translation>
    </message>
    <message id="filter_rowFrom">
        <translation>erster Tag</translation>
    </message>
    <message id="filter_rowKind">
        <translation>wonach gefragt wird</translation>
    </message>
    <message id="filter_rowOperator">
        <translation>Vergleich</translation>
    </message>
    <message id="filter_rowRemove">
        <translation>entfernen</translation>
    </message>
    <message id="filter_rowTill">
        <translation>letzter Tag</translation>
    </message>
    <message id="filter_rowValue">
        <translation>Wert</translation>
    </message>
    <message id="filter_shown">
        <translation>%1 Medien gezeigt</translation>
    </message>
    <message id="filter_shown_one">
        <translation>1 Medium gezeigt</translation>
    </message>
    <message id="filter_startAnew">
        <translation>&amp;Neu beginnen</translation>
    </message>
    <message id="filter_stateAlert">
        <translation>Bedarf eines Blicks</translation>
    </message>
    <message id="filter_stateChanged">
        <translation>Von anderem Programm geändert</translation>
    </message>
    <message id="filter_stateError">
        <translation>Fehler beim Sichern oder Umbenennen</translation>
    </message>
    <message id="filter_stateLocation">
        <translation>Mit Ort</translation>
    </message>
    <message id="filter_stateMissing">
        <translation>Datei nicht gefunden</translation>
    </message>
    <message id="filter_stateReadAgain">
        <translation>Muss neu gelesen werden</translation>
    </message>
    <message id="filter_stateUnsaved">
        <translation>Nicht gesichert</translation>
    </message>
    <message id="filter_stateZone">
        <translation>In anderer Zeitzone als dieser Computer</translation>
    </message>
    <message id="filter_templateKeepNow">
        <translation>Sichern</translation>
    </message>
    <message id="filter_templateName">
        <translation>Name der Vorlage</translation>
    </message>
    <message id="filter_templateRemove">
        <translation>&amp;Entfernen …</translation>
    </message>
    <message id="filter_templateRemoveNow">
        <translation>Entfernen</translation>
    </message>
    <message id="filter_templateRemoveTitle">
        <translation>Die Vorlage „%1“ entfernen?</translation>
    </message>
    <message id="filter_templateRename">
        <translation>&amp;Umbenennen …</translation>
    </message>
    <message id="filter_templateRenameNow">
        <translation>Umbenennen</translation>
    </message>
    <message id="filter_templateRenameTitle">
        <translation>Die Vorlage „%1“ umbenennen</translation>
    </message>
    <message id="filter_templateReplaces">
        <translation>Ersetzt die Vorlage dieses Namens</translation>
    </message>
    <message id="filter_templates">
        <translation>&amp;Vorlage:</translation>
    </message>
    <message id="filter_templateSave">
        <translation>Als Vorlage &amp;sichern …</translation>
    </message>
    <message id="filter_templateSaveTitle">
        <translation>Diesen Filter als Vorlage sichern</translation>
    </message>
    <message id="filter_templatesName">
        <translation>Vorlage</translation>
    </message>
    <message id="filter_templatesNone">
        <translation>keine</translation>
    </message>
    <message id="filter_templateTooLong">
        <translation>Dieser Filter ist für eine Vorlage zu lang</translation>
    </message>
    <message id="filter_templateUnreadable">
        <translation>Diese Vorlage ist nicht lesbar</translation>
    </message>
    <message id="filter_textName">
        <translation>Der geltende Filter als Text</translation>
    </message>
    <message id="filter_title">
        <translation>Filter</translation>
    </message>
    <message id="filter_words">
        <translation>Nach Name oder Kamera filtern</translation>
    </message>
    <message id="folders_add">
        <translation>Ordner hinzufügen…</translation>
    </message>
    <message id="folders_alerts">
        <translation>%1 Warnungen</translation>
    </message>
    <message id="folders_alerts_one">
        <translation>1 Warnung</translation>
    </message>
    <message id="folders_beingRead">
        <translation>wird gelesen…</translation>
    </message>
    <message id="folders_datesIgnored">
        <translation>Daten in den Dateien ignoriert</translation>
    </message>
    <message id="folders_empty">
        <translation>Ordner oder Fotos hierher ziehen</translation>
    </message>
    <message id="folders_emptyHint">
        <translation>Ihre Dateien werden erst beim Sichern geändert.</translation>
    </message>
    <message id="folders_items">
        <translation>%1 Medien</translation>
    </message>
    <message id="folders_items_one">
        <translation>1 Medium</translation>
    </message>
    <message id="folders_itemsShifted">
        <translation>%1 Medien verschoben</translation>
    </message>
    <message id="folders_itemsShifted_one">
        <translation>1 Medium verschoben</translation>
    </message>
    <message id="folders_list">
        <translation>Ordner</translation>
    </message>
    <message id="folders_missing">
        <translation>nicht erreichbar</translation>
    </message>
    <message id="folders_movieClockLocal">
        <translation>Filme in Kamerazeit</translation>
    </message>
    <message id="folders_renameErrors">
        <translation>%1 nicht umbenannt</translation>
    </message>
    <message id="folders_renameErrors_one">
        <translation>1 nicht umbenannt</translation>
    </message>
    <message id="folders_saveErrors">
        <translation>%1 nicht gesichert</translation>
    </message>
    <message id="folders_saveErrors_one">
        <translation>1 nicht gesichert</translation>
    </message>
    <message id="folders_single">
        <translation>einzeln verschoben</translation>
    </message>
    <message id="folders_together">
        <translation>gemeinsam verschoben</translation>
    </message>
    <message id="folders_unsaved">
        <translation>%1 ungesichert</translation>
    </message>
    <message id="folders_unsaved_one">
        <translation>1 ungesichert</translation>
    </message>
    <message id="folders_zoneExceptions">
        <translation>%1 mit eigenen Zonen</translation>
    </message>
    <message id="folders_zoneExceptions_one">
        <translation>1 mit eigenen Zonen</translation>
    </message>
    <message id="folders_zonesOfFiles">
        <translation>jeweils wie in der Datei</translation>
    </message>
    <message id="inspector_actionFor">
        <translation>%1: %2</translation>
    </message>
    <message id="inspector_addMissingTags">
        <translation>Fehlende Daten ergänzen</translation>
    </message>
    <message id="inspector_before1970">
        <translation>Das Datum ist das der Datei und liegt vor 1970</translation>
    </message>
    <message id="inspector_before1970_of">
        <translation>%1 Dateidaten liegen vor 1970</translation>
    </message>
    <message id="inspector_before1970_of_one">
        <translation>1 Dateidatum liegt vor 1970</translation>
    </message>
    <message id="inspector_camera">
        <translation>Kamera</translation>
    </message>
    <message id="inspector_cannotBeWritten">
        <translation>%1 neue Daten würden als andere Zeit gelesen</translation>
    </message>
    <message id="inspector_cannotBeWritten_one">
        <translation>1 neues Datum würde als andere Zeit gelesen</translation>
    </message>
    <message id="inspector_changedSinceRead">
        <translation>Die Datei wurde seit dem Lesen geändert</translation>
    </message>
    <message id="inspector_changedSinceRead_of">
        <translation>%1 Dateien wurden seit dem Lesen geändert</translation>
    </message>
    <message id="inspector_changedSinceRead_of_one">
        <translation>1 Datei wurde seit dem Lesen geändert</translation>
    </message>
    <message id="inspector_dateFrom">
        <translation>Datum aus</translation>
    </message>
    <message id="inspector_duration">
        <translation>Dauer</translation>
    </message>
    <message id="inspector_emptyTags">
        <translation>Die Daten in der Datei sind leer</translation>
    </message>
    <message id="inspector_emptyTags_of">
        <translation>%1 Medien mit leeren Daten</translation>
    </message>
    <message id="inspector_emptyTags_of_one">
        <translation>1 Medium mit leeren Daten</translation>
    </message>
    <message id="inspector_folders">
        <translation>mehrere Ordner</translation>
    </message>
    <message id="inspector_gpsApart">
        <translation>%1 Medien weichen von ihrer GPS-Zeit ab</translation>
    </message>
    <message id="inspector_gpsApart_one">
        <translation>1 Medium weicht von seiner GPS-Zeit ab</translation>
    </message>
    <message id="inspector_groupsApart">
        <translation>%1 Paare, deren Dateien auseinander liegen</translation>
    </message>
    <message id="inspector_groupsApart_one">
        <translation>1 Paar, dessen Dateien auseinander liegen</translation>
    </message>
    <message id="inspector_hardLinks">
        <translation>mehrere Namen auf der Platte</translation>
    </message>
    <message id="inspector_items">
        <translation>%1 Medien</translation>
    </message>
    <message id="inspector_items_one">
        <translation>1 Medium</translation>
    </message>
    <message id="inspector_leaveTagsOut">
        <translation>Nicht ergänzen</translation>
    </message>
    <message id="inspector_leftAlone">
        <translation>bleibt unverändert</translation>
    </message>
    <message id="inspector_lens">
        <translation>Objektiv</translation>
    </message>
    <message id="inspector_location">
        <translation>Ort</translation>
    </message>
    <message id="inspector_mixed">
        <translation>verschieden</translation>
    </message>
    <message id="inspector_noTags">
        <translation>In der Datei steht kein Datum</translation>
    </message>
    <message id="inspector_noTags_of">
        <translation>%1 Medien ohne Datum in der Datei</translation>
    </message>
    <message id="inspector_noTags_of_one">
        <translation>1 Medium ohne Datum in der Datei</translation>
    </message>
    <message id="inspector_notFound">
        <translation>Die Datei ist nicht mehr da</translation>
    </message>
    <message id="inspector_notFound_of">
        <translation>%1 Dateien sind nicht mehr da</translation>
    </message>
    <message id="inspector_notFound_of_one">
        <translation>1 Datei ist nicht mehr da</translation>
    </message>
    <message id="inspector_nothing">
        <translation>Nichts ausgewählt</translation>
    </message>
    <message id="inspector_otherThanInFile">
        <translation>%1 Medien zeigen eine andere Zeit als die Datei</translation>
    </message>
    <message id="inspector_otherThanInFile_one">
        <translation>1 Medium zeigt eine andere Zeit als die Datei</translation>
    </message>
    <message id="inspector_readAsEarlier">
        <translation>Als frühere lesen</translation>
    </message>
    <message id="inspector_readAsLater">
        <translation>Als spätere lesen</translation>
    </message>
    <message id="inspector_renameError">
        <translation>Das letzte Umbenennen ist nicht gelungen</translation>
    </message>
    <message id="inspector_renameError_of">
        <translation>%1 Medien konnten nicht umbenannt werden</translation>
    </message>
    <message id="inspector_renameError_of_one">
        <translation>1 Medium konnte nicht umbenannt werden</translation>
    </message>
    <message id="inspector_repeatedTimes">
        <translation>%1 Medien mit einer Zeit, die es zweimal gibt</translation>
    </message>
    <message id="inspector_repeatedTimes_one">
        <translation>1 Medium mit einer Zeit, die es zweimal gibt</translation>
    </message>
    <message id="inspector_saveError">
        <translation>Das letzte Sichern ist nicht gelungen</translation>
    </message>
    <message id="inspector_saveError_of">
        <translation>%1 Medien konnten nicht gesichert werden</translation>
    </message>
    <message id="inspector_saveError_of_one">
        <translation>1 Medium konnte nicht gesichert werden</translation>
    </message>
    <message id="inspector_setZones">
        <translation>Zonen festlegen…</translation>
    </message>
    <message id="inspector_shift">
        <translation>Verschiebung</translation>
    </message>
    <message id="inspector_showErrors">
        <translation>Fehler anzeigen…</translation>
    </message>
    <message id="inspector_size">
        <translation>Größe</translation>
    </message>
    <message id="inspector_sourceSlot">
        <translation>Das Datum des Mediums</translation>
    </message>
    <message id="inspector_tagsMissing">
        <translation>In der Datei fehlen Daten</translation>
    </message>
    <message id="inspector_tagsMissing_of">
        <translation>%1 Medien mit fehlenden Daten</translation>
    </message>
    <message id="inspector_tagsMissing_of_one">
        <translation>1 Medium mit fehlenden Daten</translation>
    </message>
    <message id="inspector_tagsWillBeAdded">
        <translation>Fehlende Daten werden beim Sichern ergänzt</translation>
    </message>
    <message id="inspector_tagsWillBeAdded_of">
        <translation>Fehlende Daten von %1 Medien werden beim Sichern ergänzt</translation>
    </message>
    <message id="inspector_tagsWillBeAdded_of_one">
        <translation>Fehlende Daten von 1 Medium werden beim Sichern ergänzt</translation>
    </message>
    <message id="inspector_title">
        <translation>Info</translation>
    </message>
    <message id="inspector_unsaved">
        <translation>ungesichert</translation>
    </message>
    <message id="inspector_unsavedItems">
        <translation>%1 ungesichert</translation>
    </message>
    <message id="inspector_unsavedItems_one">
        <translation>1 ungesichert</translation>
    </message>
    <message id="inspector_youngerThanFile">
        <translation>Das Datum in der Datei ist später als ihr Dateidatum, das stattdessen gezeigt wird</translation>
    </message>
    <message id="inspector_youngerThanFile_of">
        <translation>%1 Medien, deren Datum später ist als ihr Dateidatum</translation>
    </message>
    <message id="inspector_youngerThanFile_of_one">
        <translation>1 Medium, dessen Datum später ist als sein Dateidatum</translation>
    </message>
    <message id="inspector_zones">
        <translation>Zone</translation>
    </message>
    <message id="inspector_zonesDisagree">
        <translation>%1 Medien mit widersprüchlichen Zonen</translation>
    </message>
    <message id="inspector_zonesDisagree_one">
        <translation>1 Medium mit widersprüchlichen Zonen</translation>
    </message>
    <message id="jobs_cancel">
        <translation>Abbrechen</translation>
    </message>
    <message id="jobs_cancelling">
        <translation>wird angehalten…</translation>
    </message>
    <message id="jobs_cancelNamed">
        <translation>Abbrechen: %1</translation>
    </message>
    <message id="jobs_doneOf">
        <translation>%1 von %2</translation>
    </message>
    <message id="jobs_items">
        <translation>%1 Medien</translation>
    </message>
    <message id="jobs_items_one">
        <translation>1 Medium</translation>
    </message>
    <message id="jobs_perSecond">
        <translation>%1 pro Sekunde</translation>
    </message>
    <message id="jobs_remaining">
        <translation>noch %1</translation>
    </message>
    <message id="jobs_selected">
        <translation>%1 ausgewählt</translation>
    </message>
    <message id="jobs_selected_one">
        <translation>1 ausgewählt</translation>
    </message>
    <message id="jobs_unsaved">
        <translation>%1 ungesichert</translation>
    </message>
    <message id="jobs_unsaved_one">
        <translation>1 ungesichert</translation>
    </message>
    <message id="preview_after">
        <translation>Aufnahme danach</translation>
    </message>
    <message id="preview_before">
        <translation>Aufnahme davor</translation>
    </message>
    <message id="preview_main">
        <translation>Vorschau</translation>
    </message>
    <message id="preview_none">
        <translation>Keine weitere Aufnahme</translation>
    </message>
    <message id="preview_nothing">
        <translation>Ein Medium auswählen, um es hier zu sehen</translation>
    </message>
    <message id="preview_pending">
        <translation>Vorschau wird erstellt…</translation>
    </message>
    <message id="preview_sameTime">
        <translation>gleichzeitig</translation>
    </message>
    <message id="shift_days">
        <translation>Ta&amp;ge</translation>
    </message>
    <message id="shift_direction">
        <translation>&amp;Verschieben</translation>
    </message>
    <message id="shift_earlier">
        <translation>früher</translation>
    </message>
    <message id="shift_hint">
        <translation>%1: %2 → %3</translation>
    </message>
    <message id="shift_hintUnchanged">
        <translation>%1: %2</translation>
    </message>
    <message id="shift_hours">
        <translation>&amp;Stunden</translation>
    </message>
    <message id="shift_later">
        <translation>später</translation>
    </message>
    <message id="shift_minutes">
        <translation>&amp;Minuten</translation>
    </message>
    <message id="shift_mixedModes">
        <translation>Die ausgewählten Ordner haben verschiedene Modi</translation>
    </message>
    <message id="shift_noFolder">
        <translation>Einen Ordner auswählen, um seine Daten zu verschieben</translation>
    </message>
    <message id="shift_noItem">
        <translation>Die zu verschiebenden Medien auswählen</translation>
    </message>
    <message id="shift_nothingToShift">
        <translation>Hier lässt sich kein Datum verschieben</translation>
    </message>
    <message id="shift_own">
        <translation>jeweils eigene</translation>
    </message>
    <message id="shift_reset">
        <translation>Zu&amp;rücksetzen</translation>
    </message>
    <message id="shift_resetTip">
        <translation>Wieder die ursprünglichen Daten zeigen</translation>
    </message>
    <message id="shift_saving">
        <translation>Es wird gesichert</translation>
    </message>
    <message id="shift_seconds">
        <translation>Se&amp;kunden</translation>
    </message>
    <message id="shift_single">
        <translation>E&amp;inzeln</translation>
    </message>
    <message id="shift_singleTip">
        <translation>Jedes Medium hat eine eigene Verschiebung</translation>
    </message>
    <message id="shift_together">
        <translation>Gemei&amp;nsam</translation>
    </message>
    <message id="shift_togetherTip">
        <translation>Eine Verschiebung für den ganzen Ordner</translation>
    </message>
    <message id="slot_exifDateTimeDigitized">
        <translation>Digitalisiert</translation>
    </message>
    <message id="slot_exifDateTimeOriginal">
        <translation>Aufgenommen</translation>
    </message>
    <message id="slot_fileCreationDate">
        <translation>Datei erstellt</translation>
    </message>
    <message id="slot_fileModificationDate">
        <translation>Datei geändert</translation>
    </message>
    <message id="slot_movie_exifDateTimeDigitized">
        <translation>Digitalisiert</translation>
    </message>
    <message id="slot_movie_exifDateTimeOriginal">
        <translation>Erstellt</translation>
    </message>
    <message id="slot_movie_tiffDateTime">
        <translation>Geändert</translation>
    </message>
    <message id="slot_tiffDateTime">
        <translation>Geändert</translation>
    </message>
    <message id="about_information">
        <translation>Berichtigt die Daten von Fotos und Filmen aus Kameras, deren Uhren sich widersprechen. Dateien werden nie neu geschrieben: nur die Bytes ihrer Daten ändern sich.</translation>
    </message>
    <message id="about_message">
        <translation>chronoMender %1</translation>
    </message>
    <message id="dateSequence_first">
        <translation>Erstes Datum</translation>
    </message>
    <message id="dateSequence_hours">
        <translation>Stunden</translation>
    </message>
    <message id="dateSequence_minutes">
        <translation>Minuten</translation>
    </message>
    <message id="dateSequence_seconds">
        <translation>Sekunden</translation>
    </message>
    <message id="dateSequence_step">
        <translation>Schritt</translation>
    </message>
    <message id="dateSequence_unit">
        <translation>Einheit des Schritts</translation>
    </message>
    <message id="emptyTags_fileDate">
        <translation>Das Datum der Datei auf der Platte</translation>
    </message>
    <message id="emptyTags_fixedDate">
        <translation>Ein eigenes Datum, von Datei zu Datei fortlaufend</translation>
    </message>
    <message id="emptyTags_information">
        <translation>Die Felder sind da, aber niemand hat die Uhr der Kamera gestellt. Welche Daten sollen diese Dateien haben?</translation>
    </message>
    <message id="emptyTags_leaveAlone">
        <translation>Keines: nur zeigen, nie sichern</translation>
    </message>
    <message id="emptyTags_message">
        <translation>Einige Dateien von „%1“ haben leere Datumsfelder</translation>
    </message>
    <message id="errorLog_delete">
        <translation>Protokoll löschen</translation>
    </message>
    <message id="errorLog_empty">
        <translation>Es gibt keine.</translation>
    </message>
    <message id="errorLog_information">
        <translation>Die neuesten stehen am Ende.</translation>
    </message>
    <message id="errorLog_message">
        <translation>Fehler der letzten Läufe</translation>
    </message>
    <message id="errorLog_text">
        <translation>Fehlerprotokoll</translation>
    </message>
    <message id="errors_text">
        <translation>Fehler und ihre Dateien</translation>
    </message>
    <message id="importOptions_accept">
        <translation>Lesen</translation>
    </message>
    <message id="importOptions_allFiles">
        <translation>Alle</translation>
    </message>
    <message id="importOptions_depth">
        <translation>Ebenen von Ordnern</translation>
    </message>
    <message id="importOptions_extensions">
        <translation>Endungen</translation>
    </message>
    <message id="importOptions_filterKind">
        <translation>Dateien</translation>
    </message>
    <message id="importOptions_groups">
        <translation>Raw mit JPEG und Foto mit Film als eines nehmen</translation>
    </message>
    <message id="importOptions_ignoreDates">
        <translation>Die Daten in den Dateien nicht beachten</translation>
    </message>
    <message id="importOptions_information">
        <translation>Diese Angaben gelten nur für dieses Mal.</translation>
    </message>
    <message id="importOptions_messageMany">
        <translation>Wie sollen diese %1 gelesen werden?</translation>
    </message>
    <message id="importOptions_messageOne">
        <translation>Wie soll dieser Ordner gelesen werden?</translation>
    </message>
    <message id="importOptions_notExtensions">
        <translation>Alle außer diesen Endungen</translation>
    </message>
    <message id="importOptions_onlyExtensions">
        <translation>Nur mit diesen Endungen</translation>
    </message>
    <message id="importOptions_sequence">
        <translation>Daten der Reihe nach vergeben</translation>
    </message>
    <message id="importOptions_single">
        <translation>Jedes einzeln verschieben</translation>
    </message>
    <message id="importOptions_subfolders">
        <translation>Ordner in Ordnern lesen</translation>
    </message>
    <message id="importOptions_systemZone">
        <translation>Wie dieser Rechner</translation>
    </message>
    <message id="importOptions_zone">
        <translation>Zeitzone der Kamerauhr</translation>
    </message>
    <message id="movieOptions_information">
        <translation>Der Kopf eines Films soll Weltzeit enthalten. Viele Kameras schreiben ihre eigene Uhr hinein.</translation>
    </message>
    <message id="movieOptions_local">
        <translation>Die Uhr der Kamera</translation>
    </message>
    <message id="movieOptions_message">
        <translation>Was sagen die Filme von „%1“?</translation>
    </message>
    <message id="movieOptions_metadata">
        <translation>Hat ein Film auch ein Datum mit Zeitzone, dieses nehmen</translation>
    </message>
    <message id="movieOptions_utc">
        <translation>Weltzeit, wie Telefone</translation>
    </message>
    <message id="notice_text">
        <translation>Einzelheiten</translation>
    </message>
    <message id="preSave_detail">
        <translation>Einzelheit</translation>
    </message>
    <message id="preSave_file">
        <translation>Datei</translation>
    </message>
    <message id="preSave_folder">
        <translation>Ordner</translation>
    </message>
    <message id="preSave_keepZones">
        <translation>Ihre Zonen behalten</translation>
    </message>
    <message id="preSave_list">
        <translation>Probleme und ihre Dateien</translation>
    </message>
    <message id="sheet_cancel">
        <translation>Abbrechen</translation>
    </message>
    <message id="sheet_close">
        <translation>Schließen</translation>
    </message>
    <message id="sheet_continue">
        <translation>Weiter</translation>
    </message>
    <message id="sheet_dontAskAgain">
        <translation>Nicht wieder fragen</translation>
    </message>
    <message id="shortcuts_command">
        <translation>Befehl</translation>
    </message>
    <message id="shortcuts_information">
        <translation>Pfeiltasten gehen die Zeitleiste entlang; Leertaste wählt aus, Enter legt ab, was bewegt wird, Esc lässt los.</translation>
    </message>
    <message id="shortcuts_keys">
        <translation>Tasten</translation>
    </message>
    <message id="shortcuts_list">
        <translation>Befehle und ihre Tasten</translation>
    </message>
    <message id="shortcuts_message">
        <translation>Tastaturkürzel</translation>
    </message>
    <message id="thumb_cannotBeOpened">
        <translation>Die Datei lässt sich nicht öffnen</translation>
    </message>
    <message id="thumb_damagedOrUnknown">
        <translation>Das Bild ist beschädigt oder von unbekannter Art</translation>
    </message>
    <message id="thumb_noneInFile">
        <translation>Die Datei enthält kein Vorschaubild; zum Erzeugen auswählen</translation>
    </message>
    <message id="thumb_noPicture">
        <translation>Die Datei enthält kein Bild</translation>
    </message>
    <message id="thumb_tooLarge">
        <translation>Das Bild ist zu groß, um gezeigt zu werden</translation>
    </message>
    <message id="zones_search">
        <translation>Suche</translation>
    </message>
    <message id="zones_searchHint">
        <translation>Stadt, Land oder Abstand (+9)</translation>
    </message>
    <message id="zones_source">
        <translation>Die Uhr der Kamera meinte</translation>
    </message>
    <message id="zones_sourceNamed">
        <translation>&amp;Eine Zone:</translation>
    </message>
    <message id="zones_sourceSystem">
        <translation>Die &amp;Zone dieses Computers (%1)</translation>
    </message>
    <message id="zones_target">
        <translation>Die Dateien sollen sagen</translation>
    </message>
    <message id="zones_targetNamed">
        <translation>Eine Zo&amp;ne:</translation>
    </message>
    <message id="zones_targetOwn">
        <translation>Die im Foto gespeicherte Z&amp;one</translation>
    </message>
    <message id="zones_targetSame">
        <translation>&amp;Dasselbe wie die Uhr der Kamera</translation>
    </message>
    <message id="zones_targetSystem">
        <translation>Die Zone dieses &amp;Computers (%1)</translation>
    </message>
    <message id="zones_title">
        <translation>Zeitzonen</translation>
    </message>
    <message id="zones_worldClock">
        <translation>Was die Uhren sagen</translation>
    </message>
    <message id="strip_markAlert">
        <translation>Datum bitte prüfen</translation>
    </message>
    <message id="strip_markClockDanger">
        <translation>Datum wegen der Zeitumstellung unsicher</translation>
    </message>
    <message id="strip_markError">
        <translation>Fehler</translation>
    </message>
    <message id="strip_markKeeper">
        <translation>behalten</translation>
    </message>
    <message id="strip_markLivePhoto">
        <translation>Live Photo</translation>
    </message>
    <message id="strip_markMissing">
        <translation>Datei nicht gefunden</translation>
    </message>
    <message id="strip_markMovie">
        <translation>Film</translation>
    </message>
    <message id="strip_markRawAndJpeg">
        <translation>Raw mit JPEG</translation>
    </message>
    <message id="strip_markRejected">
        <translation>Ausschuss</translation>
    </message>
    <message id="strip_markUnsaved">
        <translation>nicht gespeichert</translation>
    </message>
    <message id="strip_mirror">
        <translation>Zweite Ansicht</translation>
    </message>
    <message id="strip_moving">
        <translation>%1 wird verschoben. Pfeiltasten wählen den Platz, Eingabe behält ihn, Esc bricht ab</translation>
    </message>
    <message id="strip_noMedia">
        <translation>In diesen Ordnern sind keine Fotos oder Filme</translation>
    </message>
    <message id="strip_reading">
        <translation>Fotos und Filme werden gelesen…</translation>
    </message>
    <message id="strip_selected">
        <translation>ausgewählt</translation>
    </message>
    <message id="strip_shelf">
        <translation>Ablage</translation>
    </message>
    <message id="strip_targetBehind">
        <translation>nach %1</translation>
    </message>
    <message id="strip_targetInFront">
        <translation>vor %1</translation>
    </message>
    <message id="strip_targetOnto">
        <translation>gleiche Zeit wie %1</translation>
    </message>
    <message id="strip_targetSecondAfter">
        <translation>eine Sekunde nach %1</translation>
    </message>
    <message id="strip_targetSecondBefore">
        <translation>eine Sekunde vor %1</translation>
    </message>
    <message id="strip_timeline">
        <translation>Zeitleiste</translation>
    </message>
    <message id="chooseFolders_title">
        <translation>Ordner mit Fotos und Filmen wählen</translation>
    </message>
    <message id="closing_discard">
        <translation>Verwerfen</translation>
    </message>
    <message id="closing_information">
        <translation>Was nicht gesichert ist, geht verloren. Die Dateien selbst sind bisher unverändert.</translation>
    </message>
    <message id="closing_message">
        <translation>Korrekturen vor dem Schließen sichern?</translation>
    </message>
    <message id="closing_save">
        <translation>Alles sichern</translation>
    </message>
    <message id="window_help">
        <translation>chronomender [--language en|de] [Ordner oder Datei] …</translation>
    </message>
    <message id="rename_template">
        <translation>&amp;Vorlage:</translation>
    </message>
    <message id="rename_templateEdit">
        <translation>Ä&amp;ndern …</translation>
    </message>
    <message id="rename_templateName">
        <translation>Vorlage</translation>
    </message>
    <message id="rename_templateNew">
        <translation>Ne&amp;u …</translation>
    </message>
    <message id="rename_templateRemove">
        <translation>Entfernen …</translation>
    </message>
    <message id="rename_templateRemoveNow">
        <translation>Entfernen</translation>
    </message>
    <message id="rename_templateSave">
        <translation>Sichern</translation>
    </message>
    <message id="rename_templateSaveAsNew">
        <translation>Als neue sichern</translation>
    </message>
    <message id="rename_tints">
        <translation>&amp;Bausteine farbig zeigen</translation>
    </message>
    <message id="rename_tintsName">
        <translation>Bausteine farbig zeigen</translation>
    </message>
    <message id="rename_titleAll">
        <translation>Alle Dateien umbenennen</translation>
    </message>
    <message id="rename_titleCurrent">
        <translation>Dateien des Ordners umbenennen</translation>
    </message>
    <message id="rename_titleSaveAll">
        <translation>Alles sichern und umbenennen</translation>
    </message>
    <message id="rename_titleSaveCurrent">
        <translation>Ordner sichern und umbenennen</translation>
    </message>
    <message id="rename_undo">
        <translation>Widerrufen</translation>
    </message>
    <message id="rename_year">
        <translation>&amp;Jahr:</translation>
    </message>
    <message id="rename_yearName">
        <translation>Jahr</translation>
    </message>
    <message id="toolBar_title">
        <translation>Werkzeuge</translation>
    </message>
    <message id="align_apply">
        <translation>Anwenden</translation>
    </message>
    <message id="align_choices">
        <translation>Arten, die Auswahl zu ordnen</translation>
    </message>
    <message id="align_columnName">
        <translation>Foto</translation>
    </message>
    <message id="align_columnNow">
        <translation>Jetzt</translation>
    </message>
    <message id="align_columnThen">
        <translation>Dann</translation>
    </message>
    <message id="align_copyNew">
        <translation>Jedes Foto übernimmt ein anderes Datum, wie es beim Sichern geschrieben würde.</translation>
    </message>
    <message id="align_copyOld">
        <translation>Jedes Foto übernimmt ein anderes Datum, das seine Datei enthält.</translation>
    </message>
    <message id="align_filename">
        <translation>Dieselben Zeiten werden in der Reihenfolge der Dateinamen vergeben.</translation>
    </message>
    <message id="align_matchingGaps">
        <translation>Das erste und das letzte Foto bleiben; die anderen werden gleichmäßig dazwischen verteilt.</translation>
    </message>
    <message id="align_minimizingGaps">
        <translation>Das Hauptfoto bleibt; die anderen stehen im Abstand einer Sekunde darum herum.</translation>
    </message>
    <message id="align_reversing">
        <translation>Die Zeiten werden vom Ende her vertauscht.</translation>
    </message>
    <message id="align_reversingAlt">
        <translation>Die Reihenfolge kehrt sich um, und die Abstände mit ihr.</translation>
    </message>
    <message id="align_rows">
        <translation>Was aus jedem Foto wird</translation>
    </message>
    <message id="align_title">
        <translation>%1 Fotos ordnen</translation>
    </message>
</context>
</TS>
