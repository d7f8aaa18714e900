#!/usr/bin/env python3
"""A unit is a header with the sources of its name: hand.h, hand.cpp and hand_keys.cpp. Its sources begin with its header
and define what that declares, and no two units need each other. Of a form, NAME_design.cpp makes the design state.

usage: check_units.py ROOT"""

import os
import re
import sys

DEFINITION = re.compile(r"^(?!namespace|class|struct|enum|union|using|typedef|template|static_assert|extern|static|inline|constexpr)"
                        r"(?:[A-Za-z_\[][^(]*[\s*&])?((?:[A-Za-z_]\w*(?:<[^()]*>)?::)*(?:~?[A-Za-z_]\w*|operator\S+))\(")
INCLUDE = re.compile(r'^#include "([^"]+)\.h"', re.MULTILINE)
# The classes of the form model know each other, and so do the element and the table of its properties.
KNOTS = [{"forms/control", "forms/controls", "forms/form", "forms/grid"},
         {"element/ctlPlexelBaseElement", "element/defined_marker", "element/element_access", "element/property_access",
          "element/property_row", "element/property_rows", "element/property_table"}]
# What one room asks for and another gives.
SEAMS = {"x11/server_keyboard.cpp": "keyboard/desktop_keyboard", "x11/server_key_sender.cpp": "keyboard/key_sender",
         "win32/named_layout.cpp": "keyboard/named_layout"}


def definitions(text):
    """The functions that a source defines for others, by their names as they stand there."""
    found, hidden = [], False
    for line in text.split("\n"):
        if line == "namespace {":
            hidden = True
        elif line == "}  // namespace":
            hidden = False
        elif not hidden and not line.endswith(";"):
            match = DEFINITION.match(line)
            if match:
                found.append(match.group(1))
    return found


def declares(header, name, aliases):
    parts = name.split("::")
    if len(parts) == 1:
        return re.search(r"\b%s\(" % re.escape(name), header) is not None
    owner = aliases.get(parts[0], parts[0])
    return re.search(r"\b(class|struct) %s\b[^;]*\{" % re.escape(owner), header) is not None


def header_of(source, headers):
    """The header of a source's name, without its ending."""
    stem = source[:-len(".cpp")]
    return max((header for header in headers if stem == header or stem.startswith(header + "_")), key=len, default=None)


def check_sources(files, problems):
    """`files` are names below one folder with their texts."""
    headers = {name[:-len(".h")] for name in files if name.endswith(".h")}
    count = 0
    for name, text in files.items():
        if not name.endswith(".cpp") or os.path.basename(name) == "main.cpp":
            continue
        unit = SEAMS.get(name) or header_of(name, headers)
        if unit is None:
            problems.append("%s has no header of its name" % name)
            continue
        if name not in SEAMS and next(iter(INCLUDE.findall(text)), None) != unit:
            problems.append("%s does not begin with its own header" % name)
        aliases = dict(re.findall(r"^using (\w+) = (\w+);", text, re.MULTILINE))
        for definition in definitions(text):
            count += 1
            if not declares(files[unit + ".h"], definition, aliases):
                problems.append("%s defines %s, which %s.h does not declare" % (name, definition, unit))
    return count


def circles(files):
    """Sets of units that need each other."""
    headers = {name[:-len(".h")] for name in files if name.endswith(".h")}
    needs = {header: set() for header in headers}
    for name, text in files.items():
        unit = name[:-len(".h")] if name.endswith(".h") else header_of(name, headers)
        needs.setdefault(unit, set()).update(set(INCLUDE.findall(text)) & headers - {unit})

    def reach(start):
        seen, left = set(), [start]
        while left:
            for other in needs[left.pop()] - seen:
                seen.add(other)
                left.append(other)
        return seen

    reached = {unit: reach(unit) for unit in needs}
    found = []
    for unit in sorted(needs, key=str):
        if unit in reached[unit] and not any(unit in circle for circle in found):
            found.append({other for other in reached[unit] if unit in reached[other]})
    return found


def check_forms(files, problems):
    """A form's constructor stands in NAME_design.cpp, its behaviour in NAME.cpp."""
    forms = [name[:-len(".h")] for name in files if os.path.basename(name).startswith("frm") and name.endswith(".h")]
    for form in forms:
        maker = "%s::%s(" % ((os.path.basename(form),) * 2)
        if maker in files.get(form + ".cpp", maker) or maker not in files.get(form + "_design.cpp", ""):
            problems.append("%s_design.cpp alone makes the form, and %s.cpp holds its behaviour" % (form, form))
    return len(forms)


def read(folder, base):
    """The sources below a folder with their texts, by their names from `base`."""
    files = {}
    for path, _, names in os.walk(folder):
        for name in sorted(names):
            if name.endswith((".h", ".cpp")):
                with open(os.path.join(path, name), encoding="utf-8") as file:
                    files[os.path.relpath(os.path.join(path, name), base)] = file.read()
    return files


def main():
    problems, definitions_found = [], 0
    for folder in ("src", "adapters", "project", "apps"):
        # The room that stands in no folder is included by its own name.
        path = os.path.join(sys.argv[1], folder)
        files = read(path, sys.argv[1] if folder == "project" else path)
        definitions_found += check_sources(files, problems)
        if folder == "src":
            forms = check_forms(files, problems)
            problems += ["these need each other: " + ", ".join(sorted(circle)) for circle in circles(files)
                         if not any(circle <= knot for knot in KNOTS)]
    print("\n".join(problems))
    print("%d definitions, %d forms, %d problems" % (definitions_found, forms, len(problems)))
    return 1 if problems or not definitions_found or not forms else 0


if __name__ == "__main__":
    sys.exit(main())
