#!/usr/bin/env python3
"""Holds a tree against the rules of docs/architecture.md: includes run downward only and never in a circle, shipped code never
includes tests, a room takes from outside only what it is made for, what stands once stands once, every header compiles by itself.

usage: check.py ROOT BUILD VERDICTS: the tree, a build of it, whose compile_commands.json tells how each room is compiled, and a
folder that keeps which headers compile"""

import json
import os
import re
import shlex
import subprocess
import sys
import tempfile
from collections import namedtuple
from multiprocessing.pool import ThreadPool

from verdicts import Sources, Verdicts, version_of

# One row a room. A room knows itself and those of a lower level; one that stands in no folder is included by its own name. `foreign`: what it may include in angle brackets apart from the
# standard library. `known_by`: the only shipped rooms that may include it, None for any above.
Room = namedtuple("Room", "folder name level foreign known_by", defaults=("", None))
XKB, XCB, QT = r"xkbcommon/.*", r"xcb/.*", r"Q\w*|QtGui/\w+\.h"
WINDOWS = r"(windows|windowsx|commctrl|gdiplus|objidl|ole2|oleacc)\.h"
SYSTEM = (r"dlfcn\.h|fcntl\.h|poll\.h|unistd\.h|sys/mman\.h|sys/stat\.h|sys/file\.h|sys/xattr\.h|grp\.h|pwd\.h|windows\.h|aclapi\.h|direct\.h|io\.h"
          r"|share\.h")
COM = r"olectl\.h|ocidl\.h|servprov\.h|comcat\.h|PlexelBaseElement\.h"
ROOMS = [
    Room("src", "platform", 0),
    Room("src", "forms", 1),
    Room("src", "services", 2),
    Room("src", "element", 3),
    Room("src", "scancodes", 4),
    Room("src", "configdialog", 5),
    Room("src", "wizard", 5),
    Room("src", "specialdialogs", 5),
    Room("src", "component", 6),
    Room("adapters", "keyboard", 7, XKB + r"|fcntl\.h|unistd\.h|sys/ioctl\.h|linux/uinput\.h"),
    Room("adapters", "files", 8, SYSTEM),
    Room("adapters", "headless", 9, "", ("cli",)),
    Room("adapters", "x11", 9, XKB + "|" + XCB),
    Room("adapters", "win32", 9, WINDOWS),
    Room("adapters", "activex", 10, WINDOWS + "|" + COM),
    Room("adapters", "qt", 9, QT),
    Room("", "project", 10, r"nlohmann/json\.hpp"),
    Room("apps", "cli", 11, r"nlohmann/json\.hpp"),
    Room("apps", "editor", 11, QT + r"|fcntl\.h|unistd\.h|fontconfig/fontconfig\.h"),
    Room("apps", "host", 11, WINDOWS + "|" + COM + r"|commdlg\.h|oaidl\.h|wrl/client\.h"),
    Room("apps", "pictures", 12, QT),
    Room("apps", "layouts", 12, XKB),
]
BY_NAME = {room.name: room for room in ROOMS}
SHIPPED = ("src", "adapters", "project", "apps")
INCLUDED_FROM = ("src", "adapters", "apps", "")
PROOF = ("tests", "bench", "fuzz")

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)
STANDARD = re.compile(r"^[a-z_]+$")
# A message box that guesses whether its texts are mark-up; qt/plain_box.h has the one that does not.
GUESSING = re.compile(r"\bQMessageBox (\w+)[({;]|\bQMessageBox::(warning|critical|information|question|about)\(|new QMessageBox\b")
# The folder that all tests of a machine share; a name in it that is not made for one test is another test's as well.
SHARED_PLACE = re.compile(r"\btemp_directory_path\(|\bTempDir\(|QDir::temp(Path)?\(")
MAKES_PLACES = ("tests/world/temporary_directory.h", "tests/win32/", "tests/host/")
# One row a fact or a helper that stands once: what betrays a second one, and the shipped files where the first one is.
Once = namedtuple("Once", "what pattern homes")
SINGLE = [Once(what, re.compile(pattern), homes) for what, pattern, homes in (
    ("the name of a dialog", r'"frm[A-Z]\w*"', ("src/services/dialogs.h",)),
    ("a list of LED functions", r"\bTemperatureLed\b",
     ("src/services/element_types.h", "src/services/led_functions.h", "adapters/qt/element_widget.h")),
    ("the number of a setting", r"\b(Get)?(Option|Parameter|WindowPosition)\(\d", ()),
    ("a count kept by hand", r"\bconstexpr\b.*\b\w+Count = \d+;",
     ("src/services/element_types.h", "src/element/property_table.h", "src/element/name_index.h", "adapters/activex/members.cpp")),
    ("a shape of make and break codes", r"\b(struct|class) (\w*Codes?|\w*Sequence|CodeArray)\b[^;]*\{",
     ("src/scancodes/code_sequence.h", "adapters/files/project_file.h")),
    ("hexadecimal digits", r'"0123456789[aA]', ("src/forms/ascii.h",)),
    ("case of letters", r"'a' - 'A'|'A' \+ 'a'|'a' \+ 'A'", ("src/forms/ascii.h",)),
    ("a hash of names", r"\* 11U", ("src/element/name_index.h",)),
    ("case by the locale", r"\b(tolower|toupper|isxdigit|isalpha)\(", ()),
    ("decoding of UTF-8", r"<< 6U? \|", ("src/forms/characters.cpp",)),
    ("a byte order mark that is read", r"\\xEF\\xBB\\xBF", ("adapters/files/text_lines.cpp",)),
    ("the line of a place in a text", r"\bcount\(.*'\\n'", ("adapters/files/text_lines.cpp",)),
    ("the syntax of sections and keys", r"(front\(\) [=!]= |starts_with\()'\['",
     ("adapters/files/parameter_syntax.cpp", "adapters/files/ini_walk.cpp", "adapters/files/project_reader.h",
      "adapters/keyboard/layout_tables.cpp")),
    ("a value or a text of automation that is owned", r"\bSysAllocStringLen\(|\b(VariantClear|SysFreeString)\(&?\w+_\)",
     ("adapters/win32/bstr.h", "adapters/win32/variant.h")),
    ("a value of a bag as one of automation", r"\bV_VT\(.*\) = VT_UI1;", ("adapters/win32/bag_value.cpp",)),
    ("names in any case as the system compares them", r"\bCompareStringOrdinal\(", ("adapters/win32/wide_text.cpp",)),
    ("a list of files", r"\bdirectory_iterator\b", ("adapters/files/file_lists.cpp",)),
)]
# The same of tests: world/world.h has platform, surroundings, host and component, apart from tests of these themselves.
SINGLE_IN_TESTS = [Once("a world of a test's own", re.compile(r"\bHeadlessSurroundings \w+[{(;]"),
                        ("tests/world/world.h", "tests/component/component_test.cpp", "tests/component/dialogs_test.cpp",
                         "tests/headless/services_test.cpp", "tests/win32/component_test.cpp"))]
# Headers of the element's own, which no other room takes apart from those named.
INNER = {"element/name_index.h": ("activex",), "element/property_access.h": (), "element/property_rows.h": (), "element/packed_codes.h": ("project",)}
UNFINISHED = re.compile(r"\bTODO\b|\bFIXME\b|\bXXX\b|GTEST_SKIP|DISABLED_|QSKIP")


class Tree:
    """The sources of a tree, by their path from its root, with their texts."""

    def __init__(self, root):
        self.root = root
        self.texts = {}
        for folder in SHIPPED + PROOF:
            for path, _, names in os.walk(os.path.join(root, folder)):
                for name in names:
                    file = os.path.relpath(os.path.join(path, name), root)
                    if name.endswith((".h", ".cpp")):
                        with open(os.path.join(root, file), encoding="utf-8") as source:
                            self.texts[file] = source.read()

    def shipped(self):
        return sorted(file for file in self.texts if file.split("/")[0] in SHIPPED)

    def proof(self):
        return sorted(file for file in self.texts if file.split("/")[0] in PROOF)

    def includes(self, file):
        return INCLUDE.findall(self.texts[file])

    def find(self, target, folders):
        """The file that a quoted include means, or None."""
        for folder in folders:
            file = os.path.normpath(os.path.join(folder, target))
            if file in self.texts:
                return file
        return None


def room_of(file):
    """The row of a shipped file; None for one that stands in no room of the list."""
    parts = file.split("/")
    if len(parts) == 2:
        parts.insert(0, "")
    room = BY_NAME.get(parts[1])
    return room if room and room.folder == parts[0] else None


def check_foreign(file, room, target, problems):
    if not STANDARD.match(target) and not re.fullmatch(room.foreign, target):
        problems.append("%s includes <%s>, which %s is not made for" % (file, target, os.path.join(room.folder, room.name)))


def check_shipped(tree, problems):
    """Returns the graph of includes among shipped files."""
    graph = {}
    for file in tree.shipped():
        graph[file] = []
        room = room_of(file)
        if room is None:
            problems.append("%s stands in no room of the list" % file)
            continue
        for kind, target in tree.includes(file):
            if kind == "<":
                check_foreign(file, room, target, problems)
                continue
            found = tree.find(target, INCLUDED_FROM)
            other = found and room_of(found)
            if other is None:
                problems.append('%s includes "%s", which is no file of shipped code' % (file, target))
                continue
            graph[file].append(found)
            if other is not room and other.level >= room.level:
                problems.append('%s includes "%s": includes run downward only' % (file, target))
            if other.known_by is not None and room is not other and room.name not in other.known_by:
                problems.append('%s includes "%s": %s/%s is for %s and tests alone'
                                % (file, target, other.folder, other.name, ", ".join(other.known_by)))
    return graph


def test_level(file):
    """Helpers of a test room are known to rooms above. What belongs to no room is for all of them."""
    parts = file.split("/")
    room = BY_NAME.get(parts[1]) if len(parts) > 2 else None
    return room.level if room else -1


def check_proof(tree, problems):
    """Tests include shipped code, helpers of their own room and helpers of rooms below. Returns their graph of includes."""
    graph = {}
    for file in tree.proof():
        graph[file] = []
        for kind, target in tree.includes(file):
            if kind == "<":
                continue
            found = tree.find(target, (os.path.dirname(file), "tests") + INCLUDED_FROM)
            if found is None:
                problems.append('%s includes "%s", which is no file of the tree' % (file, target))
                continue
            graph[file].append(found)
            beside = os.path.dirname(found) == os.path.dirname(file)
            if file.startswith("tests/") and found in tree.proof() and not beside and test_level(found) >= test_level(file):
                if test_level(found) >= 0:
                    problems.append('%s includes "%s": helpers of tests are known to rooms above alone' % (file, target))
    return graph


def check_cycles(graph, problems):
    state = {}

    def visit(file, road):
        if state.get(file) == "done":
            return
        if state.get(file) == "open":
            problems.append("a circle of includes: " + " -> ".join(road[road.index(file):] + [file]))
            return
        state[file] = "open"
        for target in graph.get(file, ()):
            visit(target, road + [file])
        state[file] = "done"

    for file in sorted(graph):
        visit(file, [])


def flags_of(command):
    """Of a compiler's command: itself, the language, include paths and definitions. A precompiled header is left out, as it would
    hide what a header lacks."""
    words = shlex.split(command)
    while os.path.basename(words[0]) == "ccache":
        words = words[1:]
    flags = words[:1]
    for place, word in enumerate(words):
        if word.startswith(("-std=", "-D")) or (word.startswith("-I") and "/CMakeFiles/" not in word) or word == "-fPIC":
            flags.append(word)
        if word == "-isystem":
            flags += words[place:place + 2]
    return flags


def flags_by_folder(root, build):
    with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as file:
        commands = json.load(file)
    flags = {}
    for entry in commands:
        file = os.path.relpath(os.path.join(entry["directory"], entry["file"]), root)
        if room_of(file) is not None:
            flags.setdefault(os.path.dirname(file), flags_of(entry["command"]))
    return flags


def check_headers_alone(tree, build, verdicts, problems):
    """Returns the number of headers that were looked at. Folders that the build leaves out are left out, and headers that
    compiled before are not compiled again."""
    flags = flags_by_folder(tree.root, build)
    headers = [file for file in tree.shipped() if file.endswith(".h") and os.path.dirname(file) in flags]
    sources = Sources(tree.root, INCLUDED_FROM)
    versions = {words[0]: version_of(words[0]) for words in flags.values()}
    keys = {header: sources.key([header], versions[words[0]], *words)
            for header in headers for words in [flags[os.path.dirname(header)]]}
    asked = [header for header in headers if not verdicts.is_good(keys[header])]

    def compile_alone(folder, header):
        unit = os.path.join(folder, header.replace("/", "_") + ".cpp")
        with open(unit, "w", encoding="utf-8") as file:
            file.write('#include "%s"\n' % (header.split("/", 1)[1] if room_of(header).folder else header))
        return subprocess.run(flags[os.path.dirname(header)] + ["-fsyntax-only", unit], capture_output=True, text=True,
                              check=False)

    with tempfile.TemporaryDirectory() as folder, ThreadPool(os.cpu_count()) as pool:
        results = pool.map(lambda header: compile_alone(folder, header), asked)
    for header, result in zip(asked, results):
        if result.returncode == 0:
            verdicts.put_good(keys[header])
        else:
            problems.append("%s does not compile alone:\n%s" % (header, result.stderr))
    verdicts.drop_others()
    return len(headers)


def check_unfinished(tree, problems):
    for file in tree.shipped() + tree.proof():
        shipped = file.split("/")[0] in SHIPPED
        for number, line in enumerate(tree.texts[file].splitlines(), 1):
            if UNFINISHED.search(line) or (shipped and GUESSING.search(line)):
                problems.append("%s:%d: %s" % (file, number, line.strip()))


def check_once(tree, problems):
    tests = [file for file in tree.proof() if file.startswith("tests/")]
    for files, facts in ((tree.shipped(), SINGLE), (tests, SINGLE_IN_TESTS)):
        for file in files:
            for number, line in enumerate(tree.texts[file].splitlines(), 1):
                problems += ["%s:%d: %s stands elsewhere: %s" % (file, number, once.what, line.strip())
                             for once in facts if file not in once.homes and once.pattern.search(line)]


def check_inner(tree, problems):
    for file in tree.shipped():
        for kind, target in tree.includes(file):
            rooms = INNER.get(target, (room_of(file).name,) if room_of(file) else ())
            if kind == '"' and room_of(file) and room_of(file).name not in rooms + ("element",):
                problems.append('%s includes "%s", which is the element\'s own' % (file, target))


def check_places(tree, problems):
    for file in tree.proof():
        if file.startswith("tests/") and not file.startswith(MAKES_PLACES):
            for number, line in enumerate(tree.texts[file].splitlines(), 1):
                if SHARED_PLACE.search(line):
                    problems.append("%s:%d: a place that other tests share: %s" % (file, number, line.strip()))


def check_text(root):
    """All that the texts of a tree tell, without a compiler."""
    tree = Tree(root)
    problems = []
    graph = check_shipped(tree, problems)
    graph.update(check_proof(tree, problems))
    check_cycles(graph, problems)
    check_unfinished(tree, problems)
    check_once(tree, problems)
    check_inner(tree, problems)
    check_places(tree, problems)
    return tree, problems


def main():
    root, build, kept = (os.path.abspath(word) for word in sys.argv[1:])
    tree, problems = check_text(root)
    headers = check_headers_alone(tree, build, Verdicts(kept), problems)
    print("\n".join(problems))
    print("%d files, %d headers alone, %d problems" % (len(tree.texts), headers, len(problems)))
    return 1 if problems or not tree.shipped() or not headers else 0


if __name__ == "__main__":
    sys.exit(main())
