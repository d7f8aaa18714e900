#!/usr/bin/env python3
"""Links of the Markdown documents: check_links.py ROOT. A relative link leads to a file, an anchor to a heading, and a document or
source that is named in backquotes is there."""

import re
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(sys.argv[1])
LINK = re.compile(r"\[[^\]]*\]\(([^)\s]+)\)")
NAMED = re.compile(r"`((?:docs|src|adapters|apps|tests|examples|cmake|data|bench|fuzz)/[\w./-]+|[A-Z]+\.md)`")


def anchors(document):
    """The anchors of the headings, as the usual renderers make them."""
    text = re.sub(r"^```.*?^```$", "", document.read_text(encoding="utf-8"), flags=re.DOTALL | re.MULTILINE)
    headings = re.findall(r"^#+ (.*)$", text, re.MULTILINE)
    return {re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-") for heading in headings}


def broken(root, document):
    """The links of a document that lead nowhere."""
    text = re.sub(r"^```.*?^```$", "", document.read_text(encoding="utf-8"), flags=re.DOTALL | re.MULTILINE)
    found = []
    for link in LINK.findall(text):
        if re.match(r"[a-z]+:", link):
            continue
        path, _, anchor = link.partition("#")
        target = document.parent / path if path else document
        if not target.exists() or (anchor and anchor not in anchors(target)):
            found.append(link)
    return found + [name for name in NAMED.findall(text) if not list(root.glob(name + "*"))]


class Links(unittest.TestCase):
    def test_every_link_leads_somewhere(self):
        documents = [*ROOT.glob("*.md"), *(ROOT / "docs").glob("*.md")]
        self.assertGreater(len(documents), 6)
        self.assertEqual({document.name: links for document in documents if (links := broken(ROOT, document))}, {})

    def test_a_broken_link_is_found(self):
        with tempfile.TemporaryDirectory() as folder:
            document = Path(folder) / "a.md"
            document.write_text("# One thing\n[a](a.md#one-thing) [b](b.md) [c](#two) `docs/none.md`\n```\n[d](d.md)\n```\n",
                                encoding="utf-8")
            self.assertEqual(broken(Path(folder), document), ["b.md", "#two", "docs/none.md"])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
