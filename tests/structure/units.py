"""Sources of a room that are looked at in one go: most of the time of a look goes into the headers that they share."""

import os
import re
import shlex

AT_ONCE = 12
ASIDE = {"-o": 2, "-c": 2, "-MF": 2, "-MT": 2, "-MD": 1}


def hidden_names(text):
    """The names that a source keeps to itself. Two sources with the same one cannot be looked at together."""
    names, inside = set(), False
    for line in text.split("\n"):
        if line == "namespace {":
            inside = True
        elif line.startswith("}  // namespace"):
            inside = False
        elif inside and re.match(r"[A-Za-z_]", line):
            names.update(re.findall(r"[A-Za-z_]\w+", re.split(r"[({=;]", line)[0])[-2:])
        elif not inside and line.startswith("using "):
            names.update(re.findall(r"\w+", line)[1:2])
    return names


def flags_of(command):
    """What the compiler is told of a source, without its name and what it makes."""
    words = shlex.split(command)
    while not re.search(r"(\+\+|g\+\+|clang|cc)(-\d+)?$", words[0]) or os.path.basename(words[0]) == "ccache":
        words = words[1:]
    flags, place = [], 1
    while place < len(words):
        if words[place] in ASIDE:
            place += ASIDE[words[place]]
        else:
            flags.append(words[place])
            place += 1
    return flags


def units_of(commands, text):
    """Groups sources: [(files, flags)]. `commands` are the compiler's by file, `text` reads a file."""
    groups = {}
    for file in sorted(commands):
        flags, names = flags_of(commands[file]), hidden_names(text(file))
        rows = groups.setdefault((os.path.dirname(file), tuple(flags)), [])
        free = next((row for row in rows if len(row[0]) < AT_ONCE and not row[1] & names), None)
        if free is None or os.path.basename(file) == "main.cpp":
            rows.append(([file], set(names)))
        else:
            free[0].append(file)
            free[1].update(names)
    return [(files, list(flags)) for (_, flags), rows in groups.items() for files, _ in rows]
