#!/usr/bin/env python3
"""witness.py TRIP: judges a mended sample trip without asking the program that mended it.

TRIP holds photos/ (with plan.json, the truth), untouched/ (a copy from before), info.jsonl (where
the program said that values stand), planned.jsonl and mended.jsonl (its reports of the dry run and
of the run that saved and renamed), before.jsonl and after.jsonl (its lists), and the same two of
the night at home, whose clocks were right; before-drag/ is photos/ as it was before one picture was
dragged between two others. Exit code 1 when anything is not as it should be."""
import datetime
import json
import pathlib
import struct
import subprocess
import sys
import zlib

EXIF_TAGS = ["EXIF:DateTimeOriginal", "EXIF:CreateDate", "EXIF:ModifyDate", "EXIF:OffsetTime",
             "EXIF:OffsetTimeOriginal", "EXIF:OffsetTimeDigitized"]
TAGS = EXIF_TAGS + ["QuickTime:CreateDate", "QuickTime:ModifyDate", "QuickTime:CreationDate",
                    "RIFF:DateTimeOriginal", "XMP:DateCreated", "XMP:CreateDate", "XMP:ModifyDate"]
NAMING_TAGS = ["EXIF:DateTimeOriginal", "QuickTime:CreationDate", "QuickTime:CreateDate",
               "RIFF:DateTimeOriginal", "XMP:DateCreated"]


def json_lines(path):
    return [json.loads(line) for line in path.read_text().splitlines() if line.strip()]


def instant(file):
    return datetime.datetime.fromisoformat(file["taken"])


def tail(path):
    """Folder and name."""
    return "/".join(pathlib.PurePath(path).parts[-2:])


def new_names(report):
    """The new path of every file that a report names, by its old one."""
    return {tail(line["path"]): tail(line["newPath"]) for line in json_lines(report)
            if line.get("kind") == "rename"}


def read_with_exiftool(photos, paths):
    arguments = [f"-{tag}" for tag in TAGS]
    done = subprocess.run(["exiftool", "-json", "-G0", *arguments, *paths], cwd=photos,
                          capture_output=True, text=True, check=False)
    return {entry["SourceFile"]: entry for entry in json.loads(done.stdout or "[]")}


def difference(expected, read):
    """What is wrong in one file, "" when nothing is."""
    wrong = [f"{tag} {read.get(tag)} instead of {value}" for tag, value in expected.items()
             if read.get(tag) != value]
    wrong += [f"{tag} appeared" for tag in EXIF_TAGS if tag in read and tag not in expected]
    return "; ".join(wrong)


def judge_dates(photos, files):
    read = read_with_exiftool(photos, [file["now"] for file in files])
    print(f"\n{'file':<27} {'it was':<14} {'its clock said':<20} {'ExifTool reads now':<27}"
          f" {'really taken':<26}")
    faults = 0
    for file in sorted(files, key=instant):
        found = read.get(file["now"], {})
        wrong = difference(file["expected"], found)
        faults += bool(wrong)
        now = next((found[tag] for tag in NAMING_TAGS if tag in found), "no date")
        now += " " + found.get("EXIF:OffsetTimeOriginal", "")
        note = "edited later: kept" if file["isEdited"] else ""
        was = file["path"].split("/")[1]
        print(f"{file['now']:<27} {was:<14} {file['clock']:<20} {now:<27} {file['taken']:<26}"
              f" {'WRONG: ' + wrong if wrong else 'right'} {note}".rstrip())
    return faults


def true_order(files, name):
    """The given name of each shot, in the order in which they were taken."""
    shots = [file for file in files if not file["isDependent"]]
    return [file[name] for file in sorted(shots, key=instant)]


def differences(wanted, found):
    return sum(a != b for a, b in zip(wanted, found)) + abs(len(wanted) - len(found))


def order_faults(files, listed, name="path"):
    return differences(true_order(files, name), [tail(entry["path"]) for entry in listed])


def judge_names(trip, files):
    """How many files of the cameras there were; how many of them are not there exactly once under
    the new name, or are sidecars that changed; how many left their companions; how many shots do
    not sort by name as they were taken; and how many names the dry run foretold wrong."""
    names = new_names(trip / "mended.jsonl")
    folders = sorted({file["path"].split("/")[0] for file in files})
    old, new = ({tail(path) for folder in folders for path in (trip / state / folder).iterdir()}
                for state in ("untouched", "photos"))
    wanted = [names.get(path, "") for path in old]
    lost = len(set(wanted) ^ new) + len(wanted) - len(set(wanted))
    sidecars = old - {file["path"] for file in files}
    lost += sum(names[path] in new and not is_same_file(trip / "photos" / names[path],
                                                        trip / "untouched" / path)
                for path in sidecars if path in names)
    bases = {(base_of(path), base_of(names[path])) for path in old if path in names}
    parted = len(bases) - len({before for before, _ in bases})
    by_name = [name for name in sorted(new, key=lambda path: path.split("/")[1])
               if name in true_order(files, "now")]
    foretold = new_names(trip / "planned.jsonl")
    wrong = sum(foretold.get(path) != name for path, name in names.items())
    return len(old), lost, parted, differences(true_order(files, "now"), by_name), wrong


def base_of(path):
    """Folder and name without what stands behind the first dot."""
    folder, name = path.split("/")
    return folder, name.split(".")[0]


def png_checksums(data):
    """Each chunk of a PNG as (begin, place of its checksum), with every checksum proved."""
    at = 8
    while data[:4] == b"\x89PNG" and at + 12 <= len(data):
        crc = at + 8 + struct.unpack_from(">I", data, at)[0]
        if struct.unpack_from(">I", data, crc)[0] != zlib.crc32(data[at + 4:crc]):
            raise SystemExit(f"witness: a PNG chunk at {at} has a wrong checksum")
        yield at, crc
        at = crc + 4


def stray_places(places, values, new):
    """Changed places outside of values and of the checksums of PNG chunks with changed values."""
    inside = [at for at in places if any(begin <= at < end for begin, end in values)]
    sums = [crc for begin, crc in png_checksums(new) if any(begin <= at < crc for at in inside)]
    return [at for at in places if at not in inside and not any(0 <= at - crc < 4 for crc in sums)]


def picture_of(path):
    """A sum of all decoded pictures of a file."""
    done = subprocess.run(["ffmpeg", "-v", "error", "-i", path, "-map", "0:v", "-f", "md5", "-"],
                          capture_output=True, text=True, check=True)
    return done.stdout


def value_ranges(trip):
    """Begin and end of each value of each file, as the program said that they stand."""
    ranges = {}
    for entry in json_lines(trip / "info.jsonl"):
        ranges[tail(entry["path"])] = [(value["offset"], value["offset"] + value["room"])
                       for value in entry["values"]]
    return ranges


def judge_bytes(trip, files):
    """Counts files changed in place, bytes changed, bytes changed outside of the recorded values,
    files that changed in size though they need not, files that ExifTool had to write, and pictures
    among those that are others now."""
    ranges = value_ranges(trip)
    changed_files = changed_bytes = strays = resized = rewritten = spoilt = 0
    for file in files:
        old_path, new_path = trip / "untouched" / file["path"], trip / "photos" / file["now"]
        if file["isRewritten"]:
            rewritten += 1
            spoilt += picture_of(old_path) != picture_of(new_path)
            continue
        old, new = old_path.read_bytes(), new_path.read_bytes()
        resized += len(old) != len(new)
        places = [at for at, (a, b) in enumerate(zip(old, new)) if a != b] if old != new else []
        changed_files += bool(places)
        changed_bytes += len(places)
        strays += len(stray_places(places, ranges.get(file["path"], []), new))
    return changed_files, changed_bytes, strays, resized, rewritten, spoilt


def is_same_file(path, other):
    return (path.stat().st_mtime_ns == other.stat().st_mtime_ns
            and path.read_bytes() == other.read_bytes())


def right_ones_are_untouched(trip, files):
    """Files whose clock was right all the time: the phone's, and those of the night at home."""
    right = [file for file in files if file["isAtHome"] or file["path"].startswith("phone/")]
    return all(is_same_file(trip / "photos" / file["now"], trip / "untouched" / file["path"])
               for file in right)


def judge_drag(trip, first, dragged, last):
    """The dates of three files as ExifTool reads them, in their order; bytes changed in the dragged
    one outside of its date values; and how many other files are not as they were, times included."""
    read = read_with_exiftool(trip / "photos", [first, dragged, last])
    dates = [read[path]["EXIF:DateTimeOriginal"] for path in (first, dragged, last)]
    old, new = ((trip / state / dragged).read_bytes() for state in ("before-drag", "photos"))
    places = [at for at, (a, b) in enumerate(zip(old, new)) if a != b]
    strays = len(stray_places(places, value_ranges(trip)[dragged], new)) + abs(len(old) - len(new))
    others = [path.relative_to(trip / "photos") for path in (trip / "photos").rglob("*")
              if path.is_file() and path != trip / "photos" / dragged]
    changed = sum(not is_same_file(trip / "photos" / path, trip / "before-drag" / path)
                  for path in others)
    return dates, strays, changed


def main():
    trip = pathlib.Path(sys.argv[1])
    files = json.loads((trip / "photos" / "plan.json").read_text())["files"]
    names = new_names(trip / "mended.jsonl")
    for file in files:
        file["now"] = names.get(file["path"], file["path"])
    date_faults = judge_dates(trip / "photos", files)
    trip_files = [file for file in files if not file["isAtHome"]]
    night_files = [file for file in files if file["isAtHome"]]
    shots = sum(not file["isDependent"] for file in trip_files)
    before = order_faults(trip_files, json_lines(trip / "before.jsonl"))
    after = order_faults(trip_files, json_lines(trip / "after.jsonl"), "now")
    night_before = order_faults(night_files, json_lines(trip / "night-before.jsonl"))
    night_after = order_faults(night_files, json_lines(trip / "night-after.jsonl"))
    changed_files, changed_bytes, strays, resized, rewritten, spoilt = judge_bytes(trip, files)
    dates, drag_strays, drag_changed = judge_drag(trip, names["nikon/DSC_0240.JPG"],
                                                  "lent/P0007.JPG", names["nikon/DSC_0241.JPG"])
    count, lost, parted, unsorted, wrong = judge_names(trip, trip_files)
    verdicts = [
        (date_faults == 0, f"dates: {len(files) - date_faults} of {len(files)} files hold the true "
                           "time in every stamp and zone stamp that they have"),
        (before > 0 and after == 0,
         f"order: {before} of {shots} shots stood out of place before, {after} do now"),
        (count > 0 and lost == parted == wrong == 0,
         f"names: {count} files were renamed, {lost} of them are not there exactly once, {parted} "
         f"left their shot, {wrong} names are others than the dry run said"),
        (unsorted == 0, f"sorting: {unsorted} of {shots} shots stand out of place when the names "
                        "of all cameras are sorted"),
        (night_before > 0 and night_after == 0,
         f"night: {night_before} of {len(night_files)} shots stood out of place when both times "
         f"were read as the later, {night_after} with the other reading of one"),
        (dates[0] < dates[1] < dates[2] and drag_strays == 0 and drag_changed == 0,
         f"drag: {dates[1][11:]} stands between {dates[0][11:]} and {dates[2][11:]}; {drag_strays} "
         f"bytes differ outside its dates, {drag_changed} other files changed"),
        (changed_files > 0 and strays == 0 and resized == 0,
         f"bytes: {changed_bytes} bytes differ in {changed_files} files, {strays} of them outside "
         f"the date values (and PNG checksums); {resized} files changed in size"),
        (rewritten > 0 and spoilt == 0,
         f"pictures: ExifTool had to write {rewritten} files; {spoilt} of their pictures changed"),
        (right_ones_are_untouched(trip, files),
         "care: the files of the phone and of the night are as they were, times included"),
    ]
    print()
    for is_good, text in verdicts:
        print(f"{'OK  ' if is_good else 'FAIL'} {text}")
    all_good = all(is_good for is_good, _ in verdicts)
    print("\nVerdict: " + ("the trip is mended." if all_good else "the trip is NOT mended."))
    return 0 if all_good else 1


if __name__ == "__main__":
    sys.exit(main())
