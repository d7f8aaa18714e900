#!/usr/bin/env python3
"""Holds the tree against its own rules: includes run downward only, no file-level cycle, src/ needs the standard library alone,
every public header compiles by itself, every form keeps its design apart from its behaviour."""

import os
import re
import subprocess
import sys
import tempfile

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
ROOMS = [["platform"], ["forms"], ["services"], ["element"], ["scancodes"],
         ["configdialog", "wizard", "specialdialogs"], ["component"]]
LEVEL = {room: level for level, rooms in enumerate(ROOMS) for room in rooms}
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)
STANDARD = re.compile(r"^[a-z_]+$")


def sources(folder, endings=(".h", ".cpp")):
    for path, _, names in os.walk(os.path.join(ROOT, folder)):
        for name in sorted(names):
            if name.endswith(endings):
                yield os.path.relpath(os.path.join(path, name), os.path.join(ROOT, folder))


def check_includes(problems):
    graph = {}
    for name in sources("src"):
        room = name.split(os.sep)[0]
        with open(os.path.join(ROOT, "src", name), encoding="utf-8") as file:
            text = file.read()
        graph[name] = []
        for kind, target in INCLUDE.findall(text):
            if kind == "<":
                if not STANDARD.match(target):
                    problems.append("src/%s includes <%s>, which is not of the standard library" % (name, target))
                continue
            graph[name].append(target)
            other = target.split("/")[0]
            if other not in LEVEL:
                problems.append('src/%s includes "%s", which is no room of src/' % (name, target))
            elif LEVEL[other] > LEVEL[room] or (LEVEL[other] == LEVEL[room] and other != room):
                problems.append('src/%s includes "%s": includes run downward only' % (name, target))
    return graph


def check_cycles(graph, problems):
    state = {}

    def visit(name, road):
        if state.get(name) == "done" or name not in graph:
            return
        if state.get(name) == "open":
            problems.append("a cycle of includes: " + " -> ".join(road[road.index(name):] + [name]))
            return
        state[name] = "open"
        for target in graph[name]:
            visit(target, road + [name])
        state[name] = "done"

    for name in graph:
        visit(name, [])


def check_headers_alone(compiler, problems):
    headers = [name for name in sources("src", (".h",))]
    with tempfile.TemporaryDirectory() as folder:
        for header in headers:
            unit = os.path.join(folder, "unit.cpp")
            with open(unit, "w", encoding="utf-8") as file:
                file.write('#include "%s"\n' % header)
            result = subprocess.run([compiler, "-std=c++20", "-fsyntax-only", "-I", os.path.join(ROOT, "src"), unit],
                                    capture_output=True, text=True, check=False)
            if result.returncode != 0:
                problems.append("src/%s does not compile alone:\n%s" % (header, result.stderr))
    return len(headers)


def check_forms(problems):
    """A form's constructor and whatever else makes its design state stand in NAME_design.cpp, its behaviour in NAME.cpp."""
    forms = [name[:-len(".h")] for name in sources("src", (".h",)) if os.path.basename(name).startswith("frm")]
    for form in forms:
        maker = "%s::%s(" % ((os.path.basename(form),) * 2)
        for ending, makes in ((".cpp", False), ("_design.cpp", True)):
            path = os.path.join(ROOT, "src", form + ending)
            if not os.path.exists(path):
                problems.append("src/%s%s is missing" % (form, ending))
                continue
            with open(path, encoding="utf-8") as file:
                if (maker in file.read()) != makes:
                    problems.append("src/%s_design.cpp and no other source makes the form" % form)
    if not forms:
        problems.append("no form was found")


def check_words(problems):
    """The tree's own texts speak of the system, not of how it came about."""
    forbidden = re.compile(r"\bTODO\b|\bFIXME\b|\bXXX\b|GTEST_SKIP|DISABLED_|QSKIP")
    for folder in ("src", "adapters", "apps"):
        for name in sources(folder):
            with open(os.path.join(ROOT, folder, name), encoding="utf-8") as file:
                for number, line in enumerate(file, 1):
                    if forbidden.search(line):
                        problems.append("%s/%s:%d: %s" % (folder, name, number, line.strip()))


def main():
    problems = []
    graph = check_includes(problems)
    check_cycles(graph, problems)
    headers = check_headers_alone(sys.argv[1], problems)
    check_forms(problems)
    check_words(problems)
    print("\n".join(problems))
    print("%d files, %d headers, %d problems" % (len(graph), headers, len(problems)))
    return 1 if problems or not graph else 0


if __name__ == "__main__":
    sys.exit(main())
