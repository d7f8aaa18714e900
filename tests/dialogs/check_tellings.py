#!/usr/bin/env python3
"""check_tellings.py PROGRAM DATA [--rewrite]: what every dialog is designed as, and what it shows in memory, is what is kept beside
this file. With --rewrite it is kept from now on; look at each change before you commit it."""

import difflib
import pathlib
import subprocess
import sys

FOLDER = pathlib.Path(__file__).parent
program, data, *words = sys.argv[1:]
differs = False
for name, call, heads in (("English", [data, "English"], 14), ("German", [data, "German"], 14), ("Design", ["design"], 9)):
    told = subprocess.run([program, *call], check=True, capture_output=True).stdout.decode("utf-8")
    file = FOLDER / (name + ".told")
    if words == ["--rewrite"]:
        file.write_text(told, encoding="utf-8")
        continue
    kept = file.read_text(encoding="utf-8")
    if told.count("\n[") + 1 != heads:
        sys.exit("the walk has missed a dialog")
    if told != kept:
        differs = True
        sys.stdout.writelines(difflib.unified_diff(kept.splitlines(True), told.splitlines(True), str(file), "told"))
sys.exit(differs)
