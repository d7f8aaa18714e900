#!/usr/bin/env python3
"""What the documents for the author of a host and for new users must tell: check_guides.py ROOT. Ports, services, events and settings
are compared with the headers that declare them."""

import re
import sys
import unittest
from pathlib import Path

ROOT = Path(sys.argv[1])
CHAPTERS_OF_HOST = ["Life cycle", "What you implement, and what stands ready", "Threads", "Events", "Failures", "Texts", "Ownership"]
NOT_OF_THE_KEYBOARD = ["Alt+Tab", "Alt+Escape", "Ctrl+Escape", "Windows keys", "Print", "Ctrl+Alt+Delete", "Ctrl+Alt+F1", "Wayland"]
TRIED = ["Debian 12: GCC 12", "Debian 12: Clang 19", "Debian 13: GCC 14", "Debian 13: Clang 19"]
VIRTUAL = re.compile(r"virtual [\w:]+&? (\w+)\(")


def read(name):
    return (ROOT / name).read_text(encoding="utf-8")


def chapters(document):
    """The chapters of a document by their headings, with their texts."""
    parts = re.split(r"^## (.*)$", read(document), flags=re.MULTILINE)
    return dict(zip(parts[1::2], parts[2::2]))


def first_cells(text):
    """The code words in the first column of the tables of a text, without headings."""
    return re.findall(r"^\| `(\w+)` \|.*$(?!\n\|-)", text, re.MULTILINE)


def declared(header, name):
    """The virtual functions of a class."""
    body = re.search(r"^class %s \{$(.*?)^\};$" % name, read(header), re.DOTALL | re.MULTILINE).group(1)
    return VIRTUAL.findall(body)


class HostGuide(unittest.TestCase):
    def test_has_its_chapters_and_pictures(self):
        there = chapters("docs/host.md")
        for chapter in CHAPTERS_OF_HOST:
            self.assertGreater(len(there.get(chapter, "").split()), 20, chapter)
        self.assertGreaterEqual(len(re.findall(r"^!\[", read("docs/host.md"), re.MULTILINE)), 3)

    def test_tells_every_port_and_every_service(self):
        told = first_cells(chapters("docs/host.md")["What you implement, and what stands ready"])
        asked = declared("src/platform/platform.h", "Platform") + declared("src/services/surroundings.h", "Surroundings")
        self.assertGreater(len(asked), 10)
        self.assertEqual(told, asked)

    def test_tells_every_event_and_the_one_question(self):
        heard = declared("src/element/element_host.h", "ElementHost")
        self.assertEqual(heard[0], "CheckIfLedIsAlreadyDefined")
        self.assertEqual(sorted(first_cells(chapters("docs/host.md")["Events"])), sorted(heard[1:]))
        self.assertIn("`CheckIfLedIsAlreadyDefined`", chapters("docs/host.md")["What you implement, and what stands ready"])

    def test_tells_the_number_of_every_setting(self):
        rows = re.findall(r"^\|([\d, ]+)\|[^|]+\|([\d, ]*)\|", chapters("docs/host.md")["What you implement, and what stands ready"],
                          re.MULTILINE)
        for place, kind in enumerate(["Option", "Parameter"]):
            told = [int(number) for row in rows for number in re.findall(r"\d+", row[place])]
            asked = re.findall(r"^  %s\w+ = (\d+)" % kind, read("src/services/setting_table.h"), re.MULTILINE)
            self.assertEqual(sorted(told), sorted(map(int, asked)), kind)


class Readme(unittest.TestCase):
    def test_tells_what_the_keyboard_cannot_give(self):
        text = chapters("README.md").get("What the keyboard cannot give", "")
        for words in NOT_OF_THE_KEYBOARD:
            self.assertIn(words, text)

    def test_tells_which_systems_were_tried(self):
        rows = re.findall(r"^\| ([^|]+), Qt [\d.]+ \|", chapters("README.md").get("The two commands", ""), re.MULTILINE)
        self.assertEqual(rows, TRIED)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
