#!/usr/bin/env python3
"""orders.py BUILD [TIMES]: runs every test of a build in another order each time, 20 times unless told: the tests of each program in one
process, shuffled by a seed, and then all that CTest knows, each in its own process, twice as many at once as there are processors. Tells
what failed, with the seed that shows it again."""

import glob
import json
import os
import subprocess
import sys
import time
from pathlib import Path

# What takes long and has no order to depend on: programs killed thousands of times, requests for memory that fail one after the other,
# examples that are built.
ASIDE = "^(Killed|EachRequestForMemoryFails|package)"
PROGRAMS_ASIDE = {"test_allocation"}


def of_preset():
    """What the preset of the tests sets for all programs that it runs."""
    presets = json.loads((Path(__file__).resolve().parents[2] / "CMakePresets.json").read_text(encoding="utf-8"))
    return next(preset["environment"] for preset in presets["configurePresets"] if preset["name"] == "test")


def fails(command, environment):
    done = subprocess.run(command, env={**os.environ, **environment}, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          errors="replace", check=False)
    return done.stdout.splitlines() if done.returncode != 0 else None


def tell(what, begin, said):
    print("%-40s %s, %.0f s" % (what, "good" if said is None else "FAILED", time.monotonic() - begin), flush=True)
    for line in said or []:
        if "FAILED" in line or "Failed" in line or "Timeout" in line:
            print("    " + line)
    return said is not None


def main():
    build, times = os.path.abspath(sys.argv[1]), int(sys.argv[2]) if len(sys.argv) > 2 else 20
    failed = 0
    os.environ.update(of_preset())
    for seed in range(1, times + 1):
        for program in sorted(glob.glob(os.path.join(build, "bin", "test_*"))):
            if os.path.basename(program) in PROGRAMS_ASIDE:
                continue
            begin = time.monotonic()
            said = fails([program, "--gtest_shuffle", "--gtest_random_seed=%d" % seed, "--gtest_brief=1", "--gtest_filter=-Killed.*"],
                         {"QT_QPA_PLATFORM": "offscreen"})
            failed += tell("%s, seed %d" % (os.path.basename(program), seed), begin, said)
    for number in range(1, times + 1):
        begin = time.monotonic()
        said = fails(["ctest", "--test-dir", build, "--schedule-random", "-j", str(2 * os.cpu_count()), "-E", ASIDE], {})
        failed += tell("every test by itself, %d" % number, begin, said)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
