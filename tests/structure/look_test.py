#!/usr/bin/env python3
"""Shows that what look.py keeps and groups is right, on small trees made up for it."""

import os
import re
import tempfile
import unittest

from look import Tidy
from units import AT_ONCE, flags_of, hidden_names, units_of
from verdicts import Sources, Verdicts


class Tree(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = folder.name

    def write(self, name, text):
        path = os.path.join(self.root, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)

    def key(self, *files):
        return Sources(self.root, ("src", "")).key(files, "words")


class Apart(Tidy):
    """A clang-tidy that takes one source at a time alone, and finds fault with those that are told."""

    def __init__(self, root, faults=()):
        self.sources, self.verdicts = Sources(root, ("src", "")), Verdicts(os.path.join(root, "kept"))
        self.folder, self.words, self.faults, self.runs = root, ["words"], faults, 0

    def run(self, unit, flags):
        self.runs += 1
        with open(unit, encoding="utf-8") as file:
            names = re.findall(r"[ab]\.cpp", file.read())
        found = {"%s:1: fault" % name for name in names if name in self.faults}
        return (set(), 1) if len(names) > 1 else (found, 1 if found else 0)


class NotTogether(Tree):
    def setUp(self):
        super().setUp()
        self.write("src/a.cpp", "int a;\n")
        self.write("src/b.cpp", "int b;\n")
        self.unit = (["src/a.cpp", "src/b.cpp"], ())

    def test_sources_that_are_good_alone_are_good_the_next_time(self):
        tidy = Apart(self.root)
        self.assertEqual(tidy.find(self.unit), set())
        self.assertEqual(tidy.runs, 3)
        self.assertTrue(tidy.verdicts.is_good(tidy.key(*self.unit)))

    def test_what_is_found_alone_is_told_and_looked_at_the_next_time(self):
        tidy = Apart(self.root, ("b.cpp",))
        self.assertEqual(tidy.find(self.unit), {"b.cpp:1: fault"})
        self.assertFalse(tidy.verdicts.is_good(tidy.key(*self.unit)))


class Kept(Tree):
    def setUp(self):
        super().setUp()
        self.write("src/room/a.cpp", '#include "room/a.h"\n#include <vector>\n')
        self.write("src/room/a.h", '#include "b.h"\n')
        self.write("src/room/b.h", "int b;\n")
        self.write("src/room/c.h", "int c;\n")
        self.before = self.key("src/room/a.cpp")

    def test_a_verdict_holds_while_nothing_changes(self):
        verdicts = Verdicts(os.path.join(self.root, "kept"))
        self.assertFalse(verdicts.is_good(self.before))
        verdicts.put_good(self.before)
        self.assertTrue(Verdicts(os.path.join(self.root, "kept")).is_good(self.key("src/room/a.cpp")))

    def test_it_ends_with_a_change_of_whatever_is_taken_in(self):
        for name in ("src/room/a.cpp", "src/room/a.h", "src/room/b.h"):
            with open(os.path.join(self.root, name), "a", encoding="utf-8") as file:
                file.write("// changed\n")
            after = self.key("src/room/a.cpp")
            self.assertNotEqual(after, self.before, name)
            self.before = after

    def test_it_outlives_a_change_of_something_else(self):
        self.write("src/room/c.h", "int d;\n")
        self.assertEqual(self.key("src/room/a.cpp"), self.before)

    def test_it_ends_with_other_words(self):
        self.assertNotEqual(Sources(self.root, ("src", "")).key(["src/room/a.cpp"], "others"), self.before)

    def test_those_that_nobody_asked_for_go(self):
        verdicts = Verdicts(os.path.join(self.root, "kept"))
        for key in ("one", "two"):
            verdicts.put_good(key)
        self.assertTrue(verdicts.is_good("one"))
        verdicts.drop_others()
        self.assertEqual(os.listdir(verdicts.folder), ["one"])


class Units(unittest.TestCase):
    def units(self, texts, command="c++ -O1 -c x"):
        return [files for files, _ in units_of(dict.fromkeys(texts, command), texts.get)]

    def test_sources_of_a_room_go_together(self):
        self.assertEqual(self.units({"a/x.cpp": "", "a/y.cpp": "", "b/z.cpp": ""}), [["a/x.cpp", "a/y.cpp"], ["b/z.cpp"]])

    def test_two_with_the_same_hidden_name_do_not(self):
        hidden = "namespace {\nint Count(int a) {\n  return a;\n}\n}  // namespace\n"
        self.assertEqual(self.units({"a/x.cpp": hidden, "a/y.cpp": hidden, "a/z.cpp": ""}), [["a/x.cpp", "a/z.cpp"], ["a/y.cpp"]])

    def test_no_more_than_so_many(self):
        self.assertEqual([len(files) for files in self.units({"a/%02d.cpp" % n: "" for n in range(AT_ONCE + 1)})], [AT_ONCE, 1])

    def test_those_with_other_flags_do_not(self):
        commands = {"a/x.cpp": "c++ -DA -c x", "a/y.cpp": "c++ -DB -c y"}
        self.assertEqual(len(units_of(commands, lambda file: "")), 2)

    def test_hidden_names_are_those_of_functions_variables_and_types(self):
        text = ("namespace {\nconstexpr int Most = 3;\nstruct Row {\n  int inner;\n};\nstd::string Told(int other) {\n}\n"
                "}  // namespace\nint Open() {\n}\n")
        names = hidden_names(text)
        self.assertLessEqual({"Most", "Row", "Told"}, names)
        self.assertFalse({"inner", "other", "Open"} & names)

    def test_flags_are_the_compilers_without_names_of_files(self):
        self.assertEqual(flags_of("/usr/bin/ccache /usr/bin/clang++-19 -DA -Isrc -MD -MT a.o -MF a.d -o a.o -c a.cpp -std=c++20"),
                         ["-DA", "-Isrc", "-std=c++20"])


if __name__ == "__main__":
    unittest.main()
