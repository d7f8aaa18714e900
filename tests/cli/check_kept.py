#!/usr/bin/env python3
"""check_kept.py PLEXEL [--rewrite]: what people and programs get of two projects is, to the letter, what is kept in kept/: of the
sample, and of one with every problem there is. With --rewrite it is kept from now on; look at each change before you commit it."""

import difflib
import os
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
KEPT = pathlib.Path(__file__).resolve().parent / "kept"
SAMPLE, TROUBLED = "data/projects/sample.plexel", "tests/cli/kept/troubled.plexel"
PLACES = ("F1", "F2", "F3", "F4", "F7", "F8", "K1", "R1", "R2")

# What is kept as a file: its name, and the words.
FILES = [("sample.html", "report", SAMPLE, "--html", "-"),
         ("sample.csv", "report", SAMPLE, "--csv", "-"),
         ("sample.json", "export", SAMPLE),
         ("troubled.html", "report", TROUBLED, "--html", "-"),
         ("troubled.German.html", "report", TROUBLED, "--html", "-", "--language", "German"),
         ("troubled.csv", "report", TROUBLED, "--csv", "-"),
         ("troubled.German.csv", "report", TROUBLED, "--csv", "-", "--language", "German"),
         ("troubled.svg", "report", TROUBLED, "--svg", "-"),
         ("troubled.json", "export", TROUBLED)]
# What is kept in one file, `told`, one below the other: the words, and the status.
ANSWERS = [(("check", TROUBLED), 1), (("check", "--json", TROUBLED), 1),
           (("diff", TROUBLED, SAMPLE), 1), (("diff", "--json", TROUBLED, SAMPLE), 1)]
ANSWERS += [(("press", TROUBLED, place, *more), 0) for place in PLACES for more in ((), ("--json",))]
ANSWERS += [(("press", TROUBLED, place, "--layer", layer), 0) for place, layer in (("F2", "4"), ("F3", "3"), ("F3", "4"))]


def answer(program, words, status=0):
    done = subprocess.run([program, *words], cwd=ROOT, env=dict(os.environ, PLEXEL_DATA=str(ROOT / "data")),
                          capture_output=True, timeout=120, check=False)
    if (done.returncode, done.stderr) != (status, b""):
        sys.exit(f"{' '.join(words)}: status {done.returncode}, {done.stderr.decode()}")
    return done.stdout.decode("utf-8")


def main(program, rewrite):
    files = {name: answer(program, words) for name, *words in FILES}
    files["told"] = "".join(f"$ plexel {' '.join(words)}\n" + answer(program, words, status) for words, status in ANSWERS)
    differs = False
    for name, text in files.items():
        file = KEPT / name
        if rewrite:
            file.write_bytes(text.encode("utf-8"))
            continue
        kept = file.read_bytes().decode("utf-8")
        if kept != text:
            differs = True
            sys.stdout.writelines(difflib.unified_diff(kept.splitlines(True), text.splitlines(True), str(file), "now"))
    return 1 if differs else 0


if __name__ == "__main__":
    sys.exit(main(str(pathlib.Path(sys.argv[1]).resolve()), sys.argv[2:] == ["--rewrite"]))
