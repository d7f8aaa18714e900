"""Reads what the editor writes, without any of the editor's own code: projects, settings, panels, language texts."""

import re
from pathlib import Path

INITIAL_BYTES = [0xFF] * 45 + [0] * 44


def text_of(raw):
    """A text of a project file: Windows-1252 with escapes \\u{...} and \\\\."""
    def undo(match):
        return "\\" if match.group(1) is None else chr(int(match.group(1), 16))

    return re.sub(r"\\(?:u\{([0-9a-f]+)\}|\\)", undo, raw.decode("windows-1252"))


def bytes_of(words):
    """The bytes of a code buffer from 0 to the last one in use."""
    last, values = int(words[0]), []
    for word in words[1:]:
        run, _, count = word.partition("*")
        row = [int(run[place:place + 2], 16) for place in range(0, len(run), 2)]
        values += row * int(count or 1)
    return (values + [0] * 89)[:last + 1]


def write_empty_project(file, panel):
    """A project in which nothing is configured yet."""
    lines = ["[PROJECT]", "Format=1", "Marks=\u2039\u203a", f"Panel={panel}", "Elements=0", "[END]", ""]
    Path(file).write_bytes("\n".join(lines).encode("windows-1252"))


class Element:
    """One element of a saved project."""

    def __init__(self):
        self.values = {}
        self.codes = {}

    def text(self, layer, press=True):
        return self.values.get(f"{'Press' if press else 'Release'}KeyDefLayer{layer}", "")

    def bytes(self, layer, press=True):
        return self.codes.get(f"strLayer{layer}{'Press' if press else 'Release'}ScanCode", INITIAL_BYTES[:1])


def read_project(file):
    """The elements of a saved project by their places."""
    elements, current = {}, None
    for raw in Path(file).read_bytes().split(b"\n"):
        line = raw.rstrip(b"\r")
        if line.startswith(b"[ELEMENT "):
            current = elements[text_of(line[len(b"[ELEMENT "):-1])] = Element()
        elif line.startswith(b"["):
            current = None
        elif current is not None and b"=" in line:
            key, value = line.split(b"=", 1)
            kind, _, rest = value.partition(b" ")
            if kind == b"codes":
                current.codes[key.decode()] = bytes_of(rest.decode().split())
            else:
                current.values[key.decode()] = text_of(rest) if kind == b"string" else float(rest)
    return elements


def read_values(file):
    """The lines NAME=TEXT of a settings, position or language file."""
    values = {}
    for line in Path(file).read_text(encoding="utf-8").splitlines():
        name, equals, text = line.partition("=")
        if equals and not line.startswith(("#", ";", "[")):
            values[name.strip()] = text.replace("\\s", " ").replace("\\n", "\n")
    return values


class Panel:
    """Where things lie on a panel, in its own pixels, as boxes (left, top, width, height)."""

    def __init__(self, file):
        self.elements, self.kinds, self.screen, self.screen_colour, self.size = {}, {}, None, None, [0, 0]
        section = box = element = None
        for line in Path(file).read_text(encoding="utf-8").splitlines():
            name, _, value = line.partition("=")
            if line.startswith("["):
                section = line
            elif section == "[PANEL]" and name in ("Width", "Height"):
                self.size[name == "Height"] = int(value)
            elif name == "Place":
                box = tuple(map(int, value.split()))
                self.screen = box if section == "[SCREEN]" else self.screen
            elif name == "Element":
                element = value
                self.elements[element] = box
            elif name == "ElementType":
                self.kinds[element] = int(value)
            elif name == "Fill" and section == "[STYLE SCREEN]":
                self.screen_colour = value.lstrip("#")
