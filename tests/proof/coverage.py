#!/usr/bin/env python3
"""Runs the tests of a build that counts, and tells what they leave out: a table by room, and a list with a line for each
condition. What needs an X server, and what builds or kills other programs, is left out.

usage: coverage.py BUILD: makes BUILD/report/index.html, table.md and open.txt there"""

import json
import os
import shutil
import subprocess
import sys
from collections import namedtuple
from pathlib import Path

from open_places import open_places

ROOT = Path(__file__).resolve().parents[2]
ROOMS = ("src/platform", "src/forms", "src/services", "src/element", "src/scancodes", "src/configdialog", "src/wizard",
         "src/specialdialogs", "src/component", "project", "adapters/files", "adapters/headless", "adapters/keyboard", "adapters/qt",
         "apps/cli", "apps/editor")
LEFT_OUT = r"^(window|package|setup|structure|docs|proof|Killed)\."
KINDS = ("lines", "branches", "mcdc")
Share = namedtuple("Share", "count covered")


def room_of(file):
    """The room of a file of the tree, or None."""
    return next((room for room in ROOMS if file.startswith(room + "/")), None)


def shares(files):
    """Of each room, and of all that stands in src, what there is of each kind and what of it was reached. `files` are those of the
    tool's export."""
    rooms = {}
    for file in files:
        name = os.path.relpath(file["filename"], ROOT)
        for room in (room_of(name), "src" if name.startswith("src/") else None):
            if room is not None:
                sums = rooms.setdefault(room, {kind: Share(0, 0) for kind in KINDS})
                for kind in KINDS:
                    part = file["summary"][kind]
                    sums[kind] = Share(sums[kind].count + part["count"], sums[kind].covered + part["covered"])
    return rooms


def table(rooms):
    """The shares as a table, rooms in the order of the tree."""
    def cell(share):
        return "–" if share.count == 0 else "%.1f %% of %d" % (100 * share.covered / share.count, share.count)
    rows = ["| room | lines | branches | conditions (MC/DC) |", "|---|---|---|---|"]
    rows += ["| %s | %s |" % (room, " | ".join(cell(rooms[room][kind]) for kind in KINDS))
             for room in ("src", *ROOMS) if room in rooms]
    return "\n".join(rows) + "\n"


def objects(build):
    """What was built to run, programs and libraries."""
    found = [path for path in sorted((build / "bin").iterdir()) if path.is_file() and os.access(path, os.X_OK)]
    return found + sorted(path for path in build.rglob("*.so") if "package" not in path.parts)


def run_tests(build):
    profiles = build / "profiles"
    shutil.rmtree(profiles, ignore_errors=True)
    # Each program and library adds to files of its own, so that the many runs stay few files.
    environment = {**os.environ, "LLVM_PROFILE_FILE": str(profiles / "%2m.profraw")}
    tests = subprocess.run(["ctest", "--test-dir", build, "-E", LEFT_OUT, "-j", str(os.cpu_count()), "--output-on-failure", "-Q",
                            "-O", build / "tests.log"], env=environment, check=False)
    return tests.returncode, sorted(profiles.glob("*.profraw"))


def main():
    build = Path(sys.argv[1]).resolve()
    report = build / "report"
    status, profiles = run_tests(build)
    if status != 0:
        sys.exit("tests have failed: %s" % (build / "tests.log"))
    merged = build / "tests.profdata"
    subprocess.run(["llvm-profdata-19", "merge", "-sparse", "-o", merged, *profiles], check=True)
    built = objects(build)
    asked = ["-instr-profile", merged, built[0], *(word for one in built[1:] for word in ("-object", one)),
             "-sources", *(ROOT / folder for folder in ("src", "project", "adapters", "apps"))]
    exported = subprocess.run(["llvm-cov-19", "export", *asked], capture_output=True, check=True).stdout
    files = json.loads(exported)["data"][0]["files"]
    shutil.rmtree(report, ignore_errors=True)
    subprocess.run(["llvm-cov-19", "show", "-format=html", "-output-dir", report, "-show-mcdc", "-show-branches=count", *asked],
                   check=True, capture_output=True)
    (report / "table.md").write_text(table(shares(files)), encoding="utf-8")
    places = [place for file in files if room_of(os.path.relpath(file["filename"], ROOT)) for place in open_places(file, ROOT)]
    (report / "open.txt").write_text("".join(place + "\n" for place in places), encoding="utf-8")
    print(table(shares(files)))
    print("%d places are not reached: %s; with the sources beside: %s" % (len(places), report / "open.txt", report / "index.html"))


if __name__ == "__main__":
    main()
