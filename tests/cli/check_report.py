#!/usr/bin/env python3
"""check_report.py PLEXEL: reports of a project, read by parsers that are not this program's."""

import csv
import html.parser
import io
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as xml

PLEXEL = str(pathlib.Path(sys.argv[1]).resolve())
ROOT = pathlib.Path(__file__).resolve().parents[2]
SAMPLE = ROOT / "data" / "projects" / "sample.plexel"
VOID = {"meta", "br"}
HEAD = "element,kind,layer,press,release,press bytes,release bytes,led,button number,LED number,note"


def run(*words, text=b""):
    return subprocess.run([PLEXEL, "report", *map(str, words)], input=text, capture_output=True, timeout=120,
                          env=dict(os.environ, PLEXEL_DATA=str(ROOT / "data")), check=False)


class Page(html.parser.HTMLParser):
    """The tags of a page, which must be closed in order, and its texts."""

    def __init__(self, text):
        super().__init__()
        self.open, self.tags, self.attributes, self.texts = [], [], [], []
        self.feed(text)
        self.close()

    def handle_starttag(self, tag, attrs):
        self.tags.append(tag)
        self.attributes += attrs
        if tag not in VOID:
            self.open.append(tag)

    def handle_startendtag(self, tag, attrs):
        self.tags.append(tag)
        self.attributes += attrs

    def handle_endtag(self, tag):
        if not self.open or self.open.pop() != tag:
            raise AssertionError("</%s> closes nothing" % tag)

    def handle_data(self, data):
        self.texts.append(data)


class Report(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name

    def made(self, kind, project=SAMPLE):
        target = os.path.join(self.folder, "report." + kind)
        done = run(project, "--" + kind, target)
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, b"", b""))
        return pathlib.Path(target).read_bytes()

    def hostile(self):
        """The sample with a note and a text that would like to be more."""
        text = SAMPLE.read_bytes()
        note = b"ButtonNotes=string =cmd</td><script>alert(1)</script>\",x\n"
        at = text.index(b"[ELEMENT S1]\n") + len(b"[ELEMENT S1]\n")
        section = text[at:text.index(b"[ELEMENT", at)]
        changed = b"".join(line for line in section.splitlines(True) if not line.startswith(b"ButtonNotes="))
        path = os.path.join(self.folder, "<b>hostile.plexel")
        pathlib.Path(path).write_bytes(text[:at] + note + changed + text[at + len(section):])
        return path

    def test_the_table_is_csv(self):
        content = self.made("csv")
        self.assertTrue(content.startswith(b"\xef\xbb\xbf"))
        self.assertEqual(content.count(b"\r\n"), content.count(b"\n"))
        rows = list(csv.reader(io.StringIO(content.decode("utf-8-sig"), newline=""), strict=True))
        self.assertEqual(rows[0], HEAD.split(","))
        self.assertEqual(len(rows), 1 + 46 * 4)
        self.assertTrue(all(len(row) == len(rows[0]) for row in rows))
        first = next(row for row in rows if row[0] == "S1")
        self.assertEqual(first[1:8], ["key", "1", "[Ctrl Left+a‹›]", "", "FF 14 1C F0 1C F0 14 FF", "", ""])

    def test_a_field_is_no_formula(self):
        rows = list(csv.reader(io.StringIO(self.made("csv", self.hostile()).decode("utf-8-sig"), newline="")))
        self.assertEqual(next(row for row in rows if row[0] == "S1")[-1], "'=cmd</td><script>alert(1)</script>\",x")

    def test_the_picture_is_svg(self):
        root = xml.fromstring(self.made("svg"))
        self.assertEqual(root.tag, "{http://www.w3.org/2000/svg}svg")
        self.assertEqual(root.get("viewBox"), "0 0 960 650")
        texts = [text.text for text in root.iter("{http://www.w3.org/2000/svg}text")]
        self.assertIn("F24", texts)
        self.assertEqual(sum(1 for _ in root.iter("{http://www.w3.org/2000/svg}g")), 46)
        names = [element.get("id") for element in root.iter() if element.get("id")]
        self.assertEqual(len(names), len(set(names)))
        for element in root.iter():
            for value in element.attrib.values():
                if value.startswith("url("):
                    self.assertIn(value[5:-1], names)

    def test_the_page_needs_and_runs_nothing(self):
        for project in (SAMPLE, self.hostile()):
            text = self.made("html", project).decode()
            page = Page(text)
            self.assertEqual(page.open, [])
            self.assertFalse({"script", "link", "img", "iframe", "object", "base", "form"} & set(page.tags))
            for name, value in page.attributes:
                self.assertFalse(name.startswith("on") or name in ("src", "href", "style"), name)
                self.assertNotIn("://", (value or "").replace("http://www.w3.org/2000/svg", ""))
            self.assertNotIn("@import", text)
            self.assertNotIn("url(h", text)

    def test_the_page_has_picture_legend_table_and_problems_in_this_order(self):
        text = self.made("html", self.hostile()).decode()
        places = [text.index(mark) for mark in ("<svg", "<dl>", "<table>", "<h2>Problems</h2>")]
        self.assertEqual(places, sorted(places))
        self.assertIn("=cmd</td><script>alert(1)</script>\",x", "".join(Page(text).texts))
        self.assertIn("<h1>&lt;b&gt;hostile.plexel</h1>", text)
        self.assertIn("size: A4", text)

    def test_reports_are_the_same_each_time_and_through_pipes(self):
        for kind in ("html", "csv", "svg"):
            self.assertEqual(self.made(kind), run(SAMPLE, "--" + kind, "-").stdout)
        self.assertEqual(self.made("csv"), run("-", "--csv", "-", text=SAMPLE.read_bytes()).stdout)

    def test_a_report_speaks_the_language_that_is_asked_for(self):
        project = self.hostile()
        for kind, words in (("html", ("<html lang=\"de\">", "Was jede Taste tut", "Taste mit LED", "<th>Notiz</th>")),
                            ("csv", ("Element,Art,Ebene,Drücken,", "Taste mit LED", "Schlüsselschalter"))):
            english = run(project, "--" + kind, "-").stdout
            self.assertEqual(run(project, "--" + kind, "-", "--language", "English").stdout, english)
            german = run(project, "--language", "German", "--" + kind, "-").stdout.decode()
            for word in words:
                self.assertIn(word, german)
                self.assertNotIn(word, english.decode())
        done = run(SAMPLE, "--csv", "-", "--language", "Nonsense")
        self.assertEqual((done.returncode, done.stdout), (2, b""))
        self.assertIn(b"Nonsense", done.stderr)

    def test_what_cannot_be_read_or_written_is_status_2(self):
        target = os.path.join(self.folder, "t")
        bad = os.path.join(self.folder, "bad")
        pathlib.Path(bad).write_bytes(SAMPLE.read_bytes().replace(b"Panel=Large", b"Panel=Small"))
        for words in ((SAMPLE, "--csv", "/nowhere/t"), ("/nowhere", "--csv", target), (bad, "--html", target),
                      (SAMPLE, "--svg", self.folder)):
            done = run(*words)
            self.assertEqual((done.returncode, done.stdout), (2, b""), words)
            self.assertTrue(done.stderr, words)
            self.assertFalse(os.path.exists(target))

    def test_wrong_calls_are_status_2_and_help_tells_the_word(self):
        for words in ((), (SAMPLE,), ("--csv", "-"), (SAMPLE, "--csv"), (SAMPLE, "--csv", "-", "--svg", "-"),
                      (SAMPLE, SAMPLE, "--csv", "-"), (SAMPLE, "--pdf", "-")):
            done = run(*words)
            self.assertEqual((done.returncode, done.stdout), (2, b""), words)
            self.assertIn(b"usage: plexel report", done.stderr, words)
        self.assertTrue(run("--help").stdout.startswith(b"usage: plexel report"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
