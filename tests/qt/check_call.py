#!/usr/bin/env python3
"""check_call.py EDITOR: what the editor answers without a display, and its exit statuses."""

import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

EDITOR = sys.argv.pop(1)
SAMPLE = pathlib.Path(__file__).resolve().parents[2] / "data" / "projects" / "sample.plexel"


def run(*words, **added):
    environment = {name: value for name, value in os.environ.items()
                   if name not in ("DISPLAY", "WAYLAND_DISPLAY") and not name.startswith(("QT_", "XDG_"))}
    environment.update(added)
    return subprocess.run([EDITOR, *words], capture_output=True, text=True, env=environment, timeout=60)


class CallWithoutADisplay(unittest.TestCase):
    def test_help_is_answered(self):
        for word in ("--help", "-h"):
            done = run(word)
            self.assertEqual((done.returncode, done.stderr), (0, ""))
            self.assertIn("[PROJECT]", done.stdout)
            self.assertIn("--version", done.stdout)
            self.assertNotIn("platform", done.stdout)

    def test_version_is_answered(self):
        for word in ("--version", "-v"):
            done = run(word)
            self.assertEqual((done.returncode, done.stderr), (0, ""))
            self.assertRegex(done.stdout, r"\APlexel \d+(\.\d+)+\n\Z")

    def test_a_wrong_call_is_told_in_one_line(self):
        for words in (("--nonsense",), ("-x",), ("a.plexel", "b.plexel"), ("--help=me",), ("-platform",)):
            done = run(*words)
            self.assertEqual((words, done.returncode, done.stdout), (words, 2, ""))
            self.assertRegex(done.stderr, r"\Aplexel-editor: [^\n]+\n\Z")

    def test_a_report_is_written_without_a_window(self):
        with tempfile.TemporaryDirectory() as folder:
            target = pathlib.Path(folder, "report.pdf")
            done = run("--pdf", str(target), str(SAMPLE), HOME=folder, XDG_RUNTIME_DIR=folder)
            self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""))
            content = target.read_bytes()
            self.assertTrue(content.startswith(b"%PDF-") and content.rstrip().endswith(b"%%EOF"))
            self.assertGreater(content.count(b"/Type /Page\n"), 1)
            self.assertEqual([one.name for one in pathlib.Path(folder).iterdir() if one.suffix], ["report.pdf"])

    def test_a_report_that_cannot_be_written_is_told(self):
        with tempfile.TemporaryDirectory() as folder:
            target = pathlib.Path(folder, "report.pdf")
            for words in (("--pdf", str(target), folder + "/missing.plexel"),
                          ("--pdf", folder + "/missing/report.pdf", str(SAMPLE))):
                done = run(*words, HOME=folder, XDG_RUNTIME_DIR=folder)
                self.assertEqual((done.returncode, done.stdout), (2, ""))
                self.assertRegex(done.stderr, r"\Aplexel-editor: [^\n]*missing[^\n]*\n\Z")
                self.assertFalse(target.exists())
            for words in (("--pdf",), ("--pdf", str(target)), ("--pdf=", str(SAMPLE))):
                self.assertEqual(run(*words, HOME=folder, XDG_RUNTIME_DIR=folder).returncode, 2)

    def test_an_option_of_the_toolkit_is_no_wrong_call(self):
        done = run("-platform", "offscreen", "--version")
        self.assertEqual((done.returncode, done.stderr), (0, ""))


unittest.main()
