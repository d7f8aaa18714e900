#!/usr/bin/env python3
"""check_diff.py PLEXEL: what two projects differ in, as it is told to people and to programs."""

import json
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

PLEXEL = str(pathlib.Path(sys.argv[1]).resolve())
HEAD = "[PROJECT]\nFormat=1\nMarks=\x8b\x9b\nPanel={}\nElements={}\n"


def run(*words, text=b""):
    return subprocess.run([PLEXEL, "diff", *words], input=text, capture_output=True, timeout=120)


def project(panel, *elements):
    return (HEAD.format(panel, len(elements)) + "".join(f"[ELEMENT {one}\n" for one in elements) + "[END]\n").encode("latin1")


class Diff(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name

    def put(self, name, content):
        path = os.path.join(self.folder, name)
        pathlib.Path(path).write_bytes(content)
        return path

    def pair(self):
        one = self.put("a", project("Small", "F1]\nPressKeyDefLayer1=string [a\x8b\x9b]\n"
                                    "strLayer1PressScanCode=codes 2 FF1CFF*43\nx=int32 5", "F9]"))
        other = self.put("b", project("Large", "F1]\nSizeX=int16 72\nShowX=boolean -1\nx=int16 5"))
        return one, other

    def test_lines_for_programs(self):
        done = run("--json", *self.pair())
        self.assertEqual((done.returncode, done.stderr), (1, b""))
        self.assertEqual(done.stdout.decode().splitlines(), [
            '{"project":"Panel","from":"Small","to":"Large"}',
            '{"element":"F1","property":"SizeX","from":20,"to":72}',
            '{"element":"F1","property":"PressKeyDefLayer1","from":"[a‹›]","to":""}',
            '{"element":"F1","property":"ShowX","from":0,"to":-1}',
            '{"element":"F1","property":"x","from":5,"to":5,"fromType":"int32","toType":"int16"}',
            '{"element":"F1","property":"strLayer1PressScanCode","from":"FF 1C FF","to":"FF"}',
            '{"element":"F9","only":"A"}'])
        self.assertEqual(json.loads(run("--json", *reversed(self.pair())).stdout.splitlines()[-1]),
                         {"element": "F9", "only": "B"})

    def test_lines_for_people(self):
        one, other = self.pair()
        self.assertEqual(run(one, other).stdout.decode().splitlines(), [
            'Panel: "Small" -> "Large"', 'F1 SizeX: 20 -> 72', 'F1 PressKeyDefLayer1: "[a‹›]" -> ""',
            'F1 ShowX: 0 -> -1', 'F1 x: int32 5 -> int16 5', 'F1 strLayer1PressScanCode: "FF 1C FF" -> "FF"',
            f'F9: only in {one}'])

    def test_a_value_that_one_side_lacks_is_null(self):
        one, other = self.put("a", project("P", "A]\nx=string a")), self.put("b", project("P", "A]"))
        self.assertEqual(run("--json", one, other).stdout,
                         b'{"element":"A","property":"x","from":"a","to":null}\n')
        self.assertEqual(run(one, other).stdout, b'A x: "a" -> not stored\n')

    def test_projects_that_are_the_same_tell_nothing(self):
        one, _ = self.pair()
        for words in ((one, one), ("--json", one, "-"), ("-", one)):
            done = run(*words, text=pathlib.Path(one).read_bytes())
            self.assertEqual((done.returncode, done.stdout, done.stderr), (0, b"", b""))

    def test_a_file_that_cannot_be_read_is_status_2(self):
        one, other = self.pair()
        bad = self.put("bad", b"[PROJECT]\nFormat=7\n")
        for words, message in (((one, "/nowhere"), "/nowhere: "), ((bad, other), f"{bad}:2: ")):
            done = run(*words)
            self.assertEqual((done.returncode, done.stdout), (2, b""))
            self.assertTrue(done.stderr.decode().startswith(message), done.stderr)

    def test_wrong_calls_tell_the_usage_and_help_the_word(self):
        for words in ([], ["a"], ["a", "b", "c"], ["--wrong", "a", "b"]):
            done = run(*words)
            self.assertEqual((done.returncode, done.stdout), (2, b""), words)
            self.assertIn(b"usage: plexel diff", done.stderr, words)
        self.assertTrue(run("--help").stdout.startswith(b"usage: plexel diff"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
