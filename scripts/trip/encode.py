#!/usr/bin/env python3
"""encode.py PHOTOS: finishes a sample trip with encoders that share nothing with the program.

PHOTOS is what make_trip made. Each file of its plan.json that names an encoder is made of the JPEG
beside it (NAME.base.jpg), which is then removed; file times are those of the JPEG."""
import json
import os
import pathlib
import shutil
import subprocess
import sys


def run(*command):
    done = subprocess.run(list(map(str, command)), capture_output=True, text=True, check=False)
    if done.returncode:
        sys.exit(f"encode: {command[0]} failed: {done.stderr.strip()[-400:]}")


def tag(target, *arguments):
    run("exiftool", "-quiet", "-overwrite_original", "-api", "QuickTimeUTC=0", *arguments, target)


def heic(base, target, _file):
    run("heif-enc", "-q", "60", "-o", target, base)
    tag(target, "-all=", "-tagsFromFile", base, "-EXIF:all")


def png(base, target, file):
    run("ffmpeg", "-v", "error", "-y", "-i", base, "-map_metadata", "-1", target)
    tag(target, "-all=", f"-XMP-photoshop:DateCreated={file['stamp']}")


def exif_png(base, target, _file):
    run("ffmpeg", "-v", "error", "-y", "-i", base, "-map_metadata", "-1", target)
    tag(target, "-all=", "-tagsFromFile", base, "-EXIF:all")


def exif_webp(base, target, _file):
    run("cwebp", "-quiet", "-metadata", "exif", base, "-o", target)


def xmp_jpeg(base, target, file):
    untagged(base, target, file)
    tag(target, *(f"-XMP-{name}={file['stamp']}"
                  for name in ("photoshop:DateCreated", "xmp:CreateDate", "xmp:ModifyDate")))


def typed_date(base, target, file):
    untagged(base, target, file)
    minute, zone = file["stamp"][:16], file["stamp"][19:]
    tag(target, f"-XMP-photoshop:DateCreated={minute}{zone}")


def untagged(base, target, _file):
    shutil.copyfile(base, target)
    tag(target, "-all=")


def webp(base, target, _file):
    run("cwebp", "-quiet", "-metadata", "none", base, "-o", target)


def movie(base, target, file):
    run("ffmpeg", "-v", "error", "-y", "-loop", "1", "-framerate", "10", "-i", base, "-t", "1.5",
        "-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p", "-map_metadata", "-1",
        "-metadata", f"creation_time={file['headerTime']}Z", target)


def live_movie(base, target, file):
    movie(base, target, file)
    tag(target, f"-Keys:Make={file['make']}", f"-Keys:Model={file['model']}",
        f"-Keys:CreationDate={file['stamp']}")


ENCODERS = {"heic": heic, "png": png, "exif-png": exif_png, "webp": webp, "exif-webp": exif_webp,
            "xmp-jpeg": xmp_jpeg, "typed-date": typed_date, "untagged": untagged,
            "mov": live_movie, "mp4": movie}


def main():
    photos = pathlib.Path(sys.argv[1])
    for file in json.loads((photos / "plan.json").read_text())["files"]:
        if "encoder" not in file:
            continue
        target = photos / file["path"]
        base = target.with_name(target.name + ".base.jpg")
        times = base.stat()
        ENCODERS[file["encoder"]](base, target, file)
        base.unlink()
        os.utime(target, ns=(times.st_atime_ns, times.st_mtime_ns))


if __name__ == "__main__":
    main()
