#!/usr/bin/env python3
"""check_tellings.py PROGRAM DATA [--rewrite]: what every dialog shows in memory is what is kept beside this file. With
--rewrite it is kept from now on; look at each change before you commit it."""

import difflib
import pathlib
import subprocess
import sys

FOLDER = pathlib.Path(__file__).parent
program, data, *words = sys.argv[1:]
differs = False
for language in ("English", "German"):
    told = subprocess.run([program, data, language], check=True, capture_output=True).stdout.decode("utf-8")
    file = FOLDER / (language + ".told")
    if words == ["--rewrite"]:
        file.write_text(told, encoding="utf-8")
        continue
    kept = file.read_text(encoding="utf-8")
    if told.count("\n[") + 1 != 14:
        sys.exit("the walk has missed a dialog")
    if told != kept:
        differs = True
        sys.stdout.writelines(difflib.unified_diff(kept.splitlines(True), told.splitlines(True), str(file), "told"))
sys.exit(differs)
