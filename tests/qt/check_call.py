#!/usr/bin/env python3
"""check_call.py EDITOR: what the editor answers without a display, and its exit statuses."""

import os
import subprocess
import sys
import unittest

EDITOR = sys.argv.pop(1)


def run(*words):
    environment = {name: value for name, value in os.environ.items()
                   if name not in ("DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR") and not name.startswith("QT_")}
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

    def test_an_option_of_the_toolkit_is_no_wrong_call(self):
        done = run("-platform", "offscreen", "--version")
        self.assertEqual((done.returncode, done.stderr), (0, ""))


unittest.main()
