"""Runs a script through plexel and shows its answers as they are kept beside it.

Places and sizes on forms are a matter of taste and stand as "any"; the exit status is the last line. An answer that is
longer than a line is broken: a member or an entry a line, and a long text in pieces one below the other, which belong
together like the pieces of a text in C. Without the breaks and the blanks ahead of each line it is the answer itself."""

import json
import os
import pathlib
import re
import subprocess

HERE = pathlib.Path(__file__).resolve().parent
DATA = HERE / "data"
WIDTH = 120
PLACES = {"Left", "Top", "Width", "Height", "TabIndex"}


def any_place(members):
    return {name: "any" if name in PLACES else value for name, value in members.items()}


def compact(value):
    return json.dumps(value, ensure_ascii=False, separators=(",", ":"))


def pieces(text, width):
    """A text in pieces that end behind a blank, where it has blanks."""
    parts, part = [], ""
    for word in re.findall(r"[^ ]* |[^ ]+", text):
        if part and len(compact(part + word)) > width:
            parts.append(part)
            part = ""
        part += word
    return parts + [part]


def broken(value, indent="", head="", tail=""):
    """The lines of a value between a head and a tail."""
    line = indent + head + compact(value) + tail
    inner = indent + " "
    if len(line) <= WIDTH or not value or not isinstance(value, (dict, list, str)):
        return [line]
    if isinstance(value, str):
        parts = [compact(part) for part in pieces(value, WIDTH - len(inner) - len(tail))]
        return ([indent + head] if head else []) + [inner + part for part in parts[:-1]] + [inner + parts[-1] + tail]
    entries = list(value.items()) if isinstance(value, dict) else [(None, entry) for entry in value]
    opening, closing = "{}" if isinstance(value, dict) else "[]"
    lines = [indent + head + opening]
    for place, (name, entry) in enumerate(entries):
        lines += broken(entry, inner, "" if name is None else compact(name) + ":", "," * (place < len(entries) - 1))
    return lines + [indent + closing + tail]


def settle(line):
    answer = json.loads(line)
    if "control" in answer:
        answer["control"] = any_place(answer["control"])
    if "popup" in answer:
        answer = {name: "any" if name in ("x", "y") else value for name, value in answer.items()}
    return broken(answer)


def answers(plexel, script):
    environment = dict(os.environ, PLEXEL_DATA=str(DATA))
    return told(subprocess.run([pathlib.Path(plexel).resolve(), "script", script.resolve()], capture_output=True,
                               env=environment, cwd=HERE, timeout=60))


def told(run):
    """What a run through a script told, in the lines that are kept."""
    lines = [part for line in run.stdout.decode("utf-8").splitlines() for part in settle(line)]
    return lines + run.stderr.decode("utf-8").splitlines() + [f"exit status {run.returncode}"]


def scripts(names):
    return [pathlib.Path(name) for name in names] or sorted(HERE.glob("*.script"))


def expected_file(script):
    return script.with_suffix(".expected")
