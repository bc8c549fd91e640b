#!/usr/bin/env python3
"""Shows on a little tree that scripts/check-layers finds each kind of fault, and nothing else."""
import pathlib
import subprocess
import sys
import tempfile

TOOL = pathlib.Path(__file__).resolve().parents[2] / "scripts" / "check-layers"
TABLE = """everywhere: | qt-core absl
platform:
reader: | only zlib
model: platform reader
item: model | exiv2
gui: item | qt-widgets
"""
GOOD = {
    "platform/Date.h": "#include <absl/time/time.h>\n#include <QString>\n#include <sys/stat.h>\n",
    "reader/Reader.h": "#include <zlib.h>\n#include <vector>\n",
    "model/Model.h": '#include "Date.h"\n#include "Reader.h"\n',
    "item/Item.cpp": '#include "Model.h"\n#include "Date.h"\n#include <exiv2/exiv2.hpp>\n',
    "item/CMakeLists.txt": "chronomender_room(item SOURCES Item.cpp USES model Qt6::Core)\n",
    "gui/Window.cpp": "#include <QWidget>\n",
}
# What is changed in the good tree, and a part of the one line that must come.
FAULTS = (
    ("platform/Date.h", '#include "Model.h"\n', "is of model, which platform may not use"),
    ("model/Model.cpp", '\n  #  include   "Item.h" // upwards\n', "src/model/Model.cpp:2"),
    ("reader/Reader.h", "#include <QString>\n", "qt-core, which is not for reader"),
    ("reader/Reader.h", "#include <absl/time/time.h>\n", "absl, which is not for reader"),
    ("model/Model.cpp", "#include <exiv2/exiv2.hpp>\n", "exiv2, which is not for model"),
    ("model/Model.cpp", "#include <QWidget>\n", "qt-widgets, which is not for model"),
    ("model/Model.cpp", "#include <QtWidgets/QWidget>\n", "qt-widgets, which is not for model"),
    ("model/Date.h", "", "platform has a header of that name"),
    ("model/Model.cpp", '#include "platform/Date.h"\n', "by their plain name"),
    ("model/Model.cpp", '#include "Nowhere.h"\n', "of no room"),
    ("model/Model.cpp", "#include <boost/any.hpp>\n", "of no library"),
    ("attic/Old.cpp", "", "stands in no line"),
    ("model/CMakeLists.txt", "chronomender_room(model SOURCES a.cpp\n USES item)\n", "may not use item"),
)


def faults_of(changes):
    with tempfile.TemporaryDirectory() as name:
        root = pathlib.Path(name)
        files = {"scripts/layers.txt": TABLE, "src/item/Item.h": ""}
        files |= {f"src/{path}": text for path, text in (GOOD | changes).items()}
        for path, text in files.items():
            (root / path).parent.mkdir(parents=True, exist_ok=True)
            (root / path).write_text(text)
        run = subprocess.run([TOOL, root], capture_output=True, text=True, check=False)
        return run.returncode, (run.stdout + run.stderr).splitlines()


def main():
    failures = []
    if faults_of({}) != (0, []):
        failures.append(f"the good tree: {faults_of({})}")
    for path, text, expected in FAULTS:
        code, lines = faults_of({path: text})
        if code != 1 or len(lines) != 1 or expected not in lines[0]:
            failures.append(f"{path} with {text!r}: {code} {lines}")
    print("\n".join(failures))
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
