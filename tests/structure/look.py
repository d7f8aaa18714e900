#!/usr/bin/env python3
"""Looks at a tree without running what it builds, one line a look: format, shell checks, spelling, links of the documents, the schema,
the tree's rules, clang-tidy.

usage: look.py BUILD [LOOK...]: a configured build of the preset "coverage", whose precompiled headers are there"""

import json
import os
import re
import subprocess
import sys
import time
from multiprocessing.pool import ThreadPool

from units import units_of
from verdicts import Sources, Verdicts, version_of

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
SHIPPED = ("src", "adapters", "project", "apps")
FORMAT, TIDY = "clang-format-19", "clang-tidy-19"
FINDING = re.compile(r"^(\S+?):(\d+):\d+: (warning|error): (.*)$", re.MULTILINE)
# Words of other languages and of the system's own that a list of misspellings takes for others, and names of several words.
OWN_WORDS, JOINED = "tests/structure/words", r"\b\w*[a-z][A-Z]\w*\b"


def tracked(*endings):
    """The files of the tree with one of these endings, those that are new among them."""
    names = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard"], cwd=ROOT, capture_output=True, text=True,
                           check=True).stdout.splitlines()
    return sorted({name for name in names if name.endswith(endings) and os.path.isfile(os.path.join(ROOT, name))})


def said(command):
    """What a program says when it fails, line by line."""
    done = subprocess.run(command, cwd=ROOT, capture_output=True, text=True, check=False)
    words = (done.stdout + done.stderr).strip().splitlines()
    return [] if done.returncode == 0 else words or ["%s has failed with status %d" % (command[0], done.returncode)]


def look_at_format(_):
    files = tracked(".cpp", ".h")
    return "%d files" % len(files), said([FORMAT, "--dry-run", "--Werror", *files])


class Tidy:
    """clang-tidy over all that is shipped here, several sources of a room in one go. What was found good is kept by what the sources
    take in."""

    def __init__(self, build):
        with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as file:
            entries = json.load(file)
        commands = {}
        for entry in entries:
            file = os.path.relpath(os.path.join(entry["directory"], entry["file"]), ROOT)
            if file.startswith(tuple(folder + "/" for folder in SHIPPED)):
                commands.setdefault(file, entry["command"])
        self.sources = Sources(ROOT, ("src", "adapters", "apps", ""))
        self.units = units_of(commands, self.sources.text)
        self.verdicts = Verdicts(os.path.join(build, "tidy"))
        self.folder = os.path.join(build, "tidy-units")
        os.makedirs(self.folder, exist_ok=True)
        with open(os.path.join(ROOT, ".clang-tidy"), encoding="utf-8") as file:
            self.words = [version_of(TIDY), file.read()]

    def key(self, files, flags):
        return self.sources.key(files, *self.words, *flags)

    def run(self, unit, flags):
        done = subprocess.run([TIDY, "--quiet", "--config-file=%s/.clang-tidy" % ROOT, unit, "--", *flags], cwd=ROOT,
                              capture_output=True, text=True, check=False)
        return {"%s:%s: %s" % (os.path.relpath(os.path.join(ROOT, file), ROOT), line, text)
                for file, line, _, text in FINDING.findall(done.stdout)}, done.returncode

    def find(self, unit):
        """What is found in the sources of a unit. Where they do not go together after all, one by one."""
        files, flags = unit
        name = os.path.join(self.folder, self.key(files, flags) + ".cpp")
        with open(name, "w", encoding="utf-8") as file:
            file.write("".join('#include "%s"\n' % os.path.join(ROOT, source) for source in files))
        found, status = self.run(name, flags)
        os.remove(name)
        if status != 0 and len(files) > 1:
            found = set().union(*(self.find(([file], flags)) for file in files))
        elif not found and status != 0:
            found = {"%s: %s ends with status %d" % (", ".join(files), TIDY, status)}
        if not found:
            self.verdicts.put_good(self.key(files, flags))
        return found


def look_at_defects(build):
    tidy = Tidy(build)
    asked = [unit for unit in tidy.units if not tidy.verdicts.is_good(tidy.key(*unit))]
    found = set()
    with ThreadPool(os.cpu_count()) as pool:
        for number, of_unit in enumerate(pool.imap_unordered(tidy.find, asked, chunksize=1), start=1):
            found |= of_unit
            if sys.stderr.isatty():
                print("\rtidy: %d of %d, %d to mend" % (number, len(asked), len(found)), end="\n" if number == len(asked) else "",
                      file=sys.stderr, flush=True)
    if not found:
        tidy.verdicts.drop_others()
    return "%d sources, %d of %d units looked at" % (sum(len(files) for files, _ in tidy.units), len(asked), len(tidy.units)), sorted(found)


def look_at_shell(_):
    def is_shell(name):
        with open(os.path.join(ROOT, name), "rb") as file:
            return re.match(rb"#!.*\b(ba|da)?sh\n", file.readline()) is not None
    files = [name for name in tracked("") if is_shell(name)] + tracked(".sh")
    return "%d files" % len(files), said(["shellcheck", "--shell=bash", "--external-sources", "--format=gcc", *files])


def look_at_rules(build):
    here = os.path.join(ROOT, "tests", "structure")
    return "", (said([sys.executable, os.path.join(here, "check_units.py"), ROOT]) +
                said([sys.executable, os.path.join(here, "check.py"), ROOT, build, os.path.join(build, "headers")]))


def look_at_links(_):
    here = os.path.join(ROOT, "tests", "docs")
    return "", (said([sys.executable, os.path.join(here, "check_links.py"), ROOT]) +
                said([sys.executable, os.path.join(here, "check_guides.py"), ROOT]))


def look_at_spelling(_):
    files = [name for name in tracked(".md", ".h", ".cpp", ".py", ".sh", ".txt", ".cmake", ".html") if "German" not in name]
    return "%d files" % len(files), said(["codespell", "--ignore-words", OWN_WORDS, "--ignore-regex", JOINED, *files])


def look_at_schema(_):
    from jsonschema import Draft202012Validator  # of a package that the others can do without
    from jsonschema.exceptions import SchemaError
    problems = []
    with open(os.path.join(ROOT, "data", "schema", "project.schema.json"), encoding="utf-8") as file:
        schema = json.load(file)
    try:
        Draft202012Validator.check_schema(schema)
    except SchemaError as error:
        problems.append("data/schema/project.schema.json: " + error.message)
    with open(os.path.join(ROOT, "docs", "json.md"), encoding="utf-8") as file:
        examples = [json.loads(text) for text in re.findall(r"^```json\n(.*?)^```$", file.read(), re.MULTILINE | re.DOTALL)]
    if not examples:
        problems.append("docs/json.md shows no document")
    for number, example in enumerate(examples, start=1):
        problems += ["docs/json.md, document %d: %s" % (number, error.message)
                     for error in Draft202012Validator(schema).iter_errors(example)]
    return "%d documents" % len(examples), problems


LOOKS = {"format": look_at_format, "shell": look_at_shell, "spelling": look_at_spelling, "links": look_at_links, "schema": look_at_schema,
         "rules": look_at_rules, "tidy": look_at_defects}


def main():
    build, names = os.path.abspath(sys.argv[1]), sys.argv[2:] or list(LOOKS)
    failed = False
    for name in names:
        start = time.monotonic()
        told, problems = LOOKS[name](build)
        failed = failed or bool(problems)
        print("\n".join(problems + ["%-8s %s, %.1f s%s" % (name, "%d to mend" % len(problems) if problems else "good",
                                                       time.monotonic() - start, ", " + told if told else "")]), flush=True)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
