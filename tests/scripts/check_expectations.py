#!/usr/bin/env python3
"""How broken answers stand in files of expected ones: nothing of them is lost, and a change is seen in its line."""

import json
import random
import re
import unittest

from expectations import HERE, WIDTH, broken, compact, settle

SEED = random.SystemRandom().randrange(2**32)


def joined(lines):
    """The compact form that broken lines tell: breaks and blanks ahead of a line go, pieces of a text come together."""
    text = ""
    for line in lines:
        part = line.lstrip(" ")
        text = text[:-1] + part[1:] if text.endswith('"') and part.startswith('"') else text + part
    return text


def any_value(source, depth=0):
    kind = source.randrange(6 if depth < 4 else 4)
    if kind == 0:
        return source.choice([0, -1, 1.5, 65535, True, False, None])
    if kind <= 3:
        words = [source.choice(["FF", "[Ctrl Left+a\u2039\u203a]", '"', "\\", "  ", "x" * 150, "{", "},", ""])
                 for _ in range(source.randrange(40))]
        return source.choice(["", " "]).join(words)
    entries = [any_value(source, depth + 1) for _ in range(source.randrange(6))]
    return entries if kind == 4 else {"%d %s" % (place, "name"): entry for place, entry in enumerate(entries)}


class Breaking(unittest.TestCase):
    def test_a_short_answer_stays_one_line(self):
        self.assertEqual(settle('{"line":1,"ok":true}'), ['{"line":1,"ok":true}'])

    def test_a_long_answer_has_a_member_a_line_and_a_long_text_in_pieces(self):
        row = " ".join(["FF"] * 60)
        self.assertEqual(settle(compact({"line": 7, "code": {"Value": row, "NextValue": 4}})),
                         ["{", ' "line":7,', ' "code":{', '  "Value":', '   "' + "FF " * 38 + '"', '   "' + "FF " * 21 + 'FF",',
                          '  "NextValue":4', " }", "}"])

    def test_nothing_is_lost(self):
        source = random.Random(SEED)
        for _ in range(3000):
            value = any_value(source)
            self.assertEqual(joined(broken(value)), compact(value), "seed %d" % SEED)

    def test_no_line_is_longer_than_its_longest_word(self):
        source = random.Random(SEED)
        for _ in range(500):
            for line in broken(any_value(source)):
                longest = max(len(word) for word in re.split(" +", line))
                self.assertLessEqual(len(line), max(WIDTH, longest + 20), "seed %d" % SEED)

    def test_a_changed_byte_changes_one_line(self):
        row = ["FF"] * 89
        before = broken({"Value": " ".join(row), "NextValue": 88})
        for place in range(len(row)):
            changed = broken({"Value": " ".join(row[:place] + ["FE"] + row[place + 1:]), "NextValue": 88})
            self.assertEqual(sum(one != other for one, other in zip(before, changed)), 1)
            self.assertEqual(len(before), len(changed))

    def test_every_file_of_expected_answers_is_broken(self):
        files = sorted(HERE.glob("*.expected"))
        self.assertTrue(files)
        for file in files:
            for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
                self.assertLessEqual(len(line), WIDTH, "%s:%d" % (file.name, number))


if __name__ == "__main__":
    unittest.main()
