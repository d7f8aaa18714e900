#!/usr/bin/env python3
"""check_exchange.py PLEXEL SCHEMA: projects as JSON documents, with a validator of JSON Schema that knows nothing of this
program. Whatever the schema refuses, the import refuses; what the program writes, the schema takes."""

import copy
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest
from multiprocessing.pool import ThreadPool

from jsonschema import Draft202012Validator

PLEXEL, SCHEMA = (str(pathlib.Path(word).resolve()) for word in sys.argv[1:3])
ROOT = pathlib.Path(__file__).resolve().parents[2]
SAMPLE = ROOT / "data" / "projects" / "sample.plexel"


def run(*words, text=b""):
    return subprocess.run([PLEXEL, *map(str, words)], input=text, capture_output=True, timeout=120)


def schema():
    return json.loads(pathlib.Path(SCHEMA).read_text(encoding="utf-8"))


def document():
    return {"format": 1, "panel": {"name": "Small"}, "elements": [
        {"place": "F1",
         "properties": {"SizeX": {"int16": 72}, "ZoomFactor": {"int32": 1}, "FocusWidth": {"uint8": 3},
                        "WizardOn": {"boolean": -1}, "Foreign": {"double": 0.5}, "ButtonNotes": {"string": "ä"}},
         "codes": [{"buffer": "strLayer1PressScanCode", "next": 2, "bytes": "FF 1C FF"}]}]}


def spots(value, way=()):
    """The ways to all values of a document."""
    yield way
    for name, inner in value.items() if isinstance(value, dict) else enumerate(value) if isinstance(value, list) else ():
        yield from spots(inner, way + (name,))


def changed(way, act):
    whole = [copy.deepcopy(document())]
    target, last = whole, 0
    for name in way:
        target, last = target[last], name
    act(target, last)
    return whole[0]


def put(value):
    def act(target, name):
        target[name] = value
    return act


def take(target, name):
    del target[name]


def rename(target, name):
    if isinstance(target, dict) and isinstance(name, str):
        target[name + "x"] = target.pop(name)


VALUES = [None, True, False, 0, 1, -1, 2, 88, 89, 0.5, 1.0, 255, 256, 32767, 32768, -32768, -32769, 2147483647, 2147483648,
          -2147483649, 1e300, "", "x", "inf", "nan", "1", "FF", "FF 1c", "F", "FF  FF", "GG", " ".join(["00"] * 89),
          " ".join(["00"] * 90), "\ufffd", "\ufffd41", "\ufffd4", "\ufffdxx", "a\ufffd", [], {}, [1], {"int16": 1},
          {"string": ""}, {"string": "a", "int16": 1}, {"name": "P"}, {"place": "A", "properties": {}},
          {"buffer": "strLayer4ReleaseScanCode", "next": 0, "bytes": ""}]


def documents():
    """Documents that differ from a good one at one place each."""
    for way in list(spots(document())):
        for value in VALUES:
            yield changed(way, put(value))
        if way:
            yield changed(way, take)
            yield changed(way, rename)


class Schema(unittest.TestCase):
    def test_the_schema_is_one(self):
        Draft202012Validator.check_schema(schema())
        self.assertIn("2020-12", schema()["$schema"])

    def test_it_takes_what_the_program_writes(self):
        done = run("export", SAMPLE)
        self.assertEqual(done.returncode, 0, done.stderr)
        Draft202012Validator(schema()).validate(json.loads(done.stdout))

    def test_the_import_refuses_what_it_refuses_and_takes_what_it_takes(self):
        validator = Draft202012Validator(schema())
        validator.validate(document())
        counts = {True: 0, False: 0}
        with tempfile.TemporaryDirectory() as folder, ThreadPool() as pool:
            def taken(numbered):
                number, one = numbered
                target = os.path.join(folder, str(number))
                done = run("import", "-", target, text=json.dumps(one).encode())
                return one, done, os.path.exists(target)

            for one, done, written in pool.imap(taken, enumerate(documents())):
                good = validator.is_valid(one)
                counts[good] += 1
                self.assertEqual(done.returncode, 0 if good else 2, (one, done.stderr))
                self.assertEqual(written, good)
                self.assertEqual(done.stderr.startswith(b"standard input: "), not good, done.stderr)
        self.assertGreater(counts[True], 50)
        self.assertGreater(counts[False], 500)


class Files(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)

    def path(self, name):
        return os.path.join(self.folder.name, name)

    def put(self, name, content):
        pathlib.Path(self.path(name)).write_bytes(content)
        return self.path(name)

    def test_a_project_comes_back_byte_for_byte(self):
        self.assertEqual(run("export", SAMPLE, self.path("a.json")).returncode, 0)
        self.assertEqual(run("import", self.path("a.json"), self.path("a.plexel")).returncode, 0)
        self.assertEqual(pathlib.Path(self.path("a.plexel")).read_bytes(), SAMPLE.read_bytes())
        self.assertEqual(run("export", self.path("a.plexel")).stdout, pathlib.Path(self.path("a.json")).read_bytes())

    def test_standard_input_and_output_stand_for_files(self):
        document = run("export", "-", "-", text=SAMPLE.read_bytes()).stdout
        self.assertEqual(document, run("export", SAMPLE).stdout)
        self.assertEqual(run("import", "-", "-", text=document).stdout, SAMPLE.read_bytes())

    def test_a_refused_document_leaves_the_project_as_it_was(self):
        target = self.put("p.plexel", b"as it was")
        source = self.put("bad.json", b'{"format": 1,\n"panel": {"name": "P"}, "elements": [3]}')
        done = run("import", source, target)
        self.assertEqual(done.returncode, 2)
        self.assertEqual(done.stderr.decode(), f"{source}: /elements/0: must be an object\n")
        self.assertEqual(pathlib.Path(target).read_bytes(), b"as it was")
        source = self.put("worse.json", b'{"format": 1,\nnothing}')
        self.assertIn(f"{source}:2: ".encode(), run("import", source, target).stderr)

    def test_files_that_cannot_be_read_or_written_are_status_2(self):
        for words in (("export", "/nowhere.plexel"), ("import", "/nowhere.json", self.path("p")),
                      ("export", SAMPLE, "/nowhere/at/all.json"), ("export", SAMPLE, self.folder.name)):
            done = run(*words)
            self.assertEqual(done.returncode, 2, words)
            self.assertEqual(done.stdout, b"", words)
            self.assertTrue(done.stderr, words)
        damaged = self.put("damaged.plexel", SAMPLE.read_bytes()[:-20])
        self.assertEqual(run("export", damaged, self.path("d.json")).returncode, 2)
        self.assertFalse(os.path.exists(self.path("d.json")))
        with open("/dev/full", "wb") as full:
            self.assertEqual(subprocess.run([PLEXEL, "export", str(SAMPLE)], stdout=full, stderr=subprocess.DEVNULL,
                                            check=False).returncode, 2)

    def test_wrong_calls_tell_the_usage_and_help_the_word(self):
        for words in (["export"], ["export", "a", "b", "c"], ["import"], ["import", "a"], ["export", "--wrong", "a"]):
            done = run(*words)
            self.assertEqual((done.returncode, done.stdout), (2, b""), words)
            self.assertTrue(done.stderr.startswith(b"usage: plexel " + words[0].encode()), words)
        for word in ("export", "import"):
            done = run(word, "--help")
            self.assertEqual((done.returncode, done.stderr), (0, b""))
            self.assertTrue(done.stdout.startswith(b"usage: plexel " + word.encode()))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
