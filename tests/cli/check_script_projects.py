#!/usr/bin/env python3
"""check_script_projects.py PLEXEL: scripts that open and save projects."""

import json
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

PLEXEL = str(pathlib.Path(sys.argv[1]).resolve())
ROOT = pathlib.Path(__file__).resolve().parents[2]
SAMPLE = ROOT / "data" / "projects" / "sample.plexel"


class Projects(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.file = os.path.join(folder.name, "a project.plexel")
        self.copy = os.path.join(folder.name, "copy.plexel")
        pathlib.Path(self.file).write_bytes(SAMPLE.read_bytes())

    def run_script(self, *lines):
        done = subprocess.run([PLEXEL, "script"], input="\n".join(lines).encode(), capture_output=True, timeout=120,
                              env=dict(os.environ, PLEXEL_DATA=str(ROOT / "data")), check=False)
        return [json.loads(line) for line in done.stdout.splitlines()]

    def content(self, path):
        return pathlib.Path(path).read_bytes()

    def test_opened_and_saved_unchanged_is_the_same_bytes(self):
        answers = self.run_script("option 0 -1", "option 1 -1", "parameter 5 7", f'open "{self.file}"',
                                  f'save "{self.copy}"', "save")
        self.assertTrue(all(answer["ok"] for answer in answers), answers)
        self.assertEqual(self.content(self.copy), SAMPLE.read_bytes())
        self.assertEqual(self.content(self.file), SAMPLE.read_bytes())

    def test_all_elements_are_there_and_the_first_is_selected(self):
        answers = self.run_script(f'open "{self.file}"', "get HardwareNumberLed")
        self.assertEqual(len(answers[0]["elements"]), 46)
        self.assertEqual(answers[0]["elements"][0], "L1")
        self.assertEqual(answers[1]["value"], 2)

    def test_what_is_put_is_saved_and_nothing_else(self):
        put = json.dumps({"strLayer2PressString": "[b]", "strLayer2PressScanCode": {"Value": "FF 32 FF", "NextValue": 2}})
        answers = self.run_script(f'open "{self.file}"', "use F3", f"put {put}", "save")
        self.assertTrue(all(answer["ok"] for answer in answers if "ok" in answer), answers)
        done = subprocess.run([PLEXEL, "diff", "--json", str(SAMPLE), self.file], capture_output=True, check=False)
        found = [json.loads(line) for line in done.stdout.splitlines()]
        self.assertEqual([(one["element"], one["property"], one["to"]) for one in found],
                         [("F3", "PressKeyDefLayer2", "[b]"), ("F3", "strLayer2PressScanCode", "FF 32 FF")])

    def test_a_name_that_is_taken_is_refused_before_anything_is_made(self):
        answers = self.run_script("element F3", f'open "{self.file}"', "use L1", "save")
        self.assertEqual([answer["ok"] for answer in answers], [True, False, False, False])
        self.assertIn("F3", answers[1]["error"])

    def test_a_save_that_fails_leaves_the_file(self):
        answers = self.run_script(f'open "{self.file}"', "use F3", "set ButtonNotes changed", "drop F4", "save")
        self.assertEqual(answers[-1], {"line": 5, "ok": False, "error": "the element F4 of the project was dropped"})
        self.assertEqual(self.content(self.file), SAMPLE.read_bytes())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
