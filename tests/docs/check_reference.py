#!/usr/bin/env python3
"""The reference of the public headers: check_reference.py DOXYGEN DOXYFILE [WORD...], where words go to unittest. Every public name
has a comment, and one without is refused."""

import os
import subprocess
import sys
import tempfile
import unittest

DOXYGEN, DOXYFILE = sys.argv[1:3]

HEADER = """#pragma once
namespace plexel {
/// A key of a drum.
class Drum {
 public:
  Drum() = default;
  /// How loud it is, percent.
  int Volume() const;
  void Volume(int value);

  /// The place of the drum.
  int Left() const;
  int Top() const;

  /// What it is made of, and since when.
  int wood = 0, year = 0;

%s};
}  // namespace plexel
"""


def read(folder, *settings):
    """What doxygen says, which writes nothing but that."""
    with open(DOXYFILE, encoding="utf-8") as file:
        words = [file.read(), "GENERATE_HTML = NO", "GENERATE_XML = YES", 'OUTPUT_DIRECTORY = "%s"' % folder, *settings]
    return subprocess.run([DOXYGEN, "-"], input="\n".join(words), capture_output=True, text=True, check=False)


class Reference(unittest.TestCase):
    def made_up(self, more):
        """What doxygen says of a header with some lines more."""
        with tempfile.TemporaryDirectory() as folder:
            header = os.path.join(folder, "drum.h")
            with open(header, "w", encoding="utf-8") as file:
                file.write(HEADER % more)
            return read(folder, 'INPUT = "%s"' % header)

    def test_every_public_name_is_documented(self):
        with tempfile.TemporaryDirectory() as folder:
            done = read(folder)
            self.assertEqual((done.returncode, done.stderr), (0, ""))
            # It has really read them.
            with open(os.path.join(folder, "xml", "index.xml"), encoding="utf-8") as file:
                index = file.read()
        for name in ["plexel::Component", "plexel::HeadlessUser", "plexel::FlatBag", "plexel::ElementWidget"]:
            self.assertIn("<name>%s</name>" % name, index)

    def test_comments_hold_for_overloads_paragraphs_and_variables(self):
        done = self.made_up("")
        self.assertEqual((done.returncode, done.stderr), (0, ""))

    def test_a_name_without_a_comment_is_refused(self):
        for line, name in [("  void Beat();\n", "Beat"), ("  int skin = 0;\n", "skin"), ("  struct Stick {\n    /// Inches.\n    int length = 0;\n  };\n", "Stick"),
                           ("  /// One.\n  int A();\n  int Tuned();\n  /// Two.\n  int B();\n", "Tuned")]:
            done = self.made_up(line)
            self.assertNotEqual(done.returncode, 0, line)
            self.assertIn(name, done.stderr)
            self.assertIn("is not documented", done.stderr)
            self.assertEqual(len(done.stderr.splitlines()), 1, done.stderr)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[3:])
