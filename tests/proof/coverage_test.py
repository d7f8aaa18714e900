#!/usr/bin/env python3
"""Shows that places which the tests leave out are told, and shares are summed by room, on an export made up for it."""

import tempfile
import unittest
from pathlib import Path

from coverage import ROOT, Share, shares, table
from open_places import branch_places, condition_places, lines_without, open_places, text_of

SOURCE = """int Sign(int a, bool b) {
  if (a > 0 && b) return 1;
  if (a < 0) {
    return -1;
  }
  return 0;
}
""".split("\n")


class OpenPlaces(unittest.TestCase):
    def test_lines_that_never_ran(self):
        segments = [(1, 25, 3, True, True, False), (3, 14, 0, True, True, False), (5, 4, 3, True, False, False), (7, 2, 0, False, False, False)]
        self.assertEqual(lines_without(segments), {3, 4, 5})

    def test_a_gap_and_what_is_not_counted_say_nothing(self):
        self.assertEqual(lines_without([(1, 1, 0, True, False, True), (2, 1, 0, False, False, False), (3, 1, 1, True, True, False)]), set())

    def test_a_branch_that_was_one_thing_alone(self):
        branches = [[2, 7, 2, 12, 0, 5, 0, 0, 4], [2, 16, 2, 17, 2, 2, 0, 0, 4], [3, 7, 3, 12, 4, 0, 0, 0, 4]]
        self.assertEqual(branch_places(branches, SOURCE), [(2, "never true: a > 0"), (3, "never false: a < 0")])

    def test_a_branch_of_several_instances_is_the_sum_of_them(self):
        self.assertEqual(branch_places([[2, 7, 2, 12, 0, 5], [2, 7, 2, 12, 1, 0]], SOURCE), [])

    def test_what_never_ran_and_what_the_compiler_decides_is_no_branch(self):
        self.assertEqual(branch_places([[2, 7, 2, 12, 0, 0]], SOURCE), [])

    def test_a_condition_that_is_not_shown_to_matter(self):
        self.assertEqual(condition_places([[2, 7, 2, 17, 0, 5, [True, False]]], SOURCE), [(2, "condition 2 of: a > 0 && b")])
        self.assertEqual(condition_places([[2, 7, 2, 17, 0, 5, [True, False]], [2, 7, 2, 17, 0, 5, [False, True]]], SOURCE), [])

    def test_a_condition_over_several_lines_is_told_on_one(self):
        self.assertEqual(text_of(["if (a &&", "    b) c();"], (1, 5, 2, 6)), "a && b")

    def test_a_place_is_told_once(self):
        with tempfile.TemporaryDirectory() as folder:
            file = Path(folder) / "a.cpp"
            file.write_text("\n".join(SOURCE), encoding="utf-8")
            told = open_places({"filename": str(file), "segments": [(1, 25, 3, True, True, False), (4, 5, 0, True, True, False),
                                                                    (4, 15, 3, True, False, False), (7, 2, 0, False, False, False)],
                                "branches": [[3, 7, 3, 12, 0, 4], [4, 5, 4, 9, 0, 3]], "mcdc_records": []}, folder)
        self.assertEqual(told, ["a.cpp:3: never true: a < 0", "a.cpp:4: never run: return -1;"])


class Shares(unittest.TestCase):
    def file(self, name, count, covered):
        return {"filename": str(ROOT / name), "summary": {kind: {"count": count, "covered": covered}
                                                          for kind in ("lines", "branches", "mcdc")}}

    def test_rooms_are_summed_and_so_is_the_component(self):
        rooms = shares([self.file("src/forms/a.cpp", 10, 5), self.file("src/forms/b.h", 10, 10), self.file("src/wizard/c.cpp", 20, 0),
                        self.file("tests/forms/a_test.cpp", 7, 7)])
        self.assertEqual({room: kinds["lines"] for room, kinds in rooms.items()},
                         {"src/forms": Share(20, 15), "src/wizard": Share(20, 0), "src": Share(40, 15)})

    def test_the_table_stands_in_the_order_of_the_tree(self):
        told = table(shares([self.file("project/a.cpp", 0, 0), self.file("src/forms/a.cpp", 8, 7)])).splitlines()
        self.assertEqual(told[2:], ["| src | 87.5 % of 8 | 87.5 % of 8 | 87.5 % of 8 |",
                                    "| src/forms | 87.5 % of 8 | 87.5 % of 8 | 87.5 % of 8 |", "| project | – | – | – |"])


if __name__ == "__main__":
    unittest.main()
