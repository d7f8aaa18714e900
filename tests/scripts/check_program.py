#!/usr/bin/env python3
"""check_program.py PLEXEL: the program's words, its exit statuses, and how it answers through pipes."""

import json
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

PLEXEL = str(pathlib.Path(sys.argv.pop(1)).resolve())
HERE = pathlib.Path(__file__).resolve().parent
ENVIRONMENT = dict(os.environ, PLEXEL_DATA=str(HERE / "data"))


def run(*words, text=b""):
    return subprocess.run([PLEXEL, *words], input=text, capture_output=True, env=ENVIRONMENT, timeout=120)


def answers(*words, text=b""):
    return [json.loads(line) for line in run(*words, text=text).stdout.splitlines()]


class Program(unittest.TestCase):
    def test_help_goes_to_standard_output(self):
        done = run("--help")
        self.assertEqual(done.returncode, 0)
        self.assertIn(b"script", done.stdout)

    def test_version_names_the_program(self):
        done = run("--version")
        self.assertEqual(done.returncode, 0)
        self.assertRegex(done.stdout, rb"^plexel \d+\.\d+\.\d+\n$")

    def test_wrong_words_tell_the_usage_on_standard_error(self):
        for words in ([], ["scripts"], ["--nothing"], ["script", "a", "b"], ["script", "--base"],
                      ["script", "--wrong"], ["check"], ["check", "a", "b"]):
            done = run(*words)
            self.assertEqual(done.returncode, 2, words)
            self.assertEqual(done.stdout, b"", words)
            self.assertIn(b"usage: plexel", done.stderr, words)

    def test_a_script_that_cannot_be_read_is_status_2(self):
        for name in ("/nowhere/at/all.script", str(HERE)):
            done = run("script", name)
            self.assertEqual(done.returncode, 2, name)
            self.assertEqual(done.stdout, b"", name)
            self.assertIn(name.encode(), done.stderr, name)

    def test_the_base_path_can_be_given(self):
        self.assertEqual(answers("script", "--base", "/opt/x", text=b"fn GetBasePath\n")[0]["result"], "/opt/x")

    def test_the_base_path_is_the_data_directory_unless_given(self):
        self.assertEqual(answers("script", text=b"fn GetBasePath\n")[0]["result"], str(HERE / "data"))

    def test_status_tells_whether_a_command_failed(self):
        self.assertEqual(run("script", text=b"element A\n").returncode, 0)
        self.assertEqual(run("script", text=b"element A\nnothing\nelement B\n").returncode, 1)
        self.assertEqual(run("script", text=b"").returncode, 0)

    def test_the_check_names_file_and_line(self):
        entry = "[SCANCODE1]\nREMARK001=x\nREMARK049=x\nMAKECODE={}\nBREAKCODE=F0:1C\n"
        with tempfile.NamedTemporaryFile(suffix=".cfg", mode="w") as good, \
                tempfile.NamedTemporaryFile(suffix=".cfg", mode="w") as bad:
            good.write(entry.format("1C"))
            bad.write(entry.format("ZZ"))
            good.flush()
            bad.flush()
            done = run("check", bad.name)
            self.assertEqual(done.returncode, 1)
            self.assertIn(f"{bad.name}:4: ".encode(), done.stdout)
            self.assertEqual(run("check", good.name).returncode, 0)
        self.assertEqual(run("check", "/nowhere.cfg").returncode, 2)

    def test_a_missing_language_file_is_a_failed_command(self):
        done = subprocess.run([PLEXEL, "script"], input=b"fn GetText 100\nelement A\n", capture_output=True,
                              env=dict(os.environ, PLEXEL_DATA="/nowhere"), timeout=60)
        given = [json.loads(line) for line in done.stdout.splitlines()]
        self.assertEqual([answer["ok"] for answer in given], [False, True])


class Pipes(unittest.TestCase):
    def talk(self, lines):
        """Sends each line only when the one before has been answered."""
        process = subprocess.Popen([PLEXEL, "script"], stdin=subprocess.PIPE, stdout=subprocess.PIPE, env=ENVIRONMENT)
        given = []
        for number, line in enumerate(lines, 1):
            process.stdin.write(line.encode() + b"\n")
            process.stdin.flush()
            while True:
                answer = json.loads(process.stdout.readline())
                given.append(answer)
                if answer["line"] == number and ("ok" in answer or "shown" in answer):
                    break
        process.stdin.close()
        rest = [json.loads(line) for line in process.stdout]
        process.stdout.close()
        return given, rest, process.wait(timeout=60)

    def test_each_command_is_answered_at_once(self):
        given, rest, status = self.talk(["element A", "set ElementType 2", "call OpenConfigurationDialog"]
                                        + ["cell 1 2"] * 50 + ["close"])
        self.assertTrue(all(answer["ok"] for answer in given + rest if "ok" in answer))
        self.assertEqual(status, 0)

    def test_a_peer_that_leaves_inside_a_form_fails_the_command_that_waits(self):
        given, rest, status = self.talk(["element A", "set ElementType 2", "call OpenConfigurationDialog", "form"])
        self.assertTrue(given[-1]["ok"])
        self.assertEqual([(answer["line"], answer["ok"]) for answer in rest], [(3, False)])
        self.assertEqual(status, 1)

    def test_a_script_through_a_pipe_answers_as_from_a_file(self):
        for script in sorted(HERE.glob("*.script")):
            there = subprocess.run([PLEXEL, "script", str(script)], capture_output=True, env=ENVIRONMENT, cwd=HERE)
            here = subprocess.run([PLEXEL, "script"], input=script.read_bytes(), capture_output=True, env=ENVIRONMENT,
                                  cwd=HERE)
            self.assertEqual(here.stdout, there.stdout, script.name)
            self.assertEqual(here.returncode, there.returncode, script.name)


if __name__ == "__main__":
    unittest.main()
