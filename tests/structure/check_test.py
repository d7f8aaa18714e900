#!/usr/bin/env python3
"""Shows that check.py finds what it looks for, on small trees made up for it.

usage: check_test.py COMPILER"""

import json
import os
import sys
import tempfile
import unittest
from unittest import mock

import check
from verdicts import Verdicts

COMPILER = "c++"


class Trees(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.root = self.folder.name

    def write(self, file, text=""):
        path = os.path.join(self.root, file)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as made:
            made.write(text)

    def include(self, file, *targets):
        """A file with these includes; each one that stands in quotes is made when it is missing."""
        def quoted(target):
            return '"%s"' % (target if target.startswith("project/") else target.split("/", 1)[1])

        self.write(file, "".join("#include %s\n" % (t if t[0] == "<" else quoted(t)) for t in targets))
        for target in targets:
            if target[0] != "<" and not os.path.exists(os.path.join(self.root, target)):
                self.write(target)

    def problems(self):
        return check.check_text(self.root)[1]

    def assert_fails(self, words):
        problems = self.problems()
        self.assertEqual(len(problems), 1, problems)
        self.assertIn(words, problems[0])


class Includes(Trees):
    def test_downward_ones_are_taken(self):
        self.include("src/element/a.cpp", "src/element/a.h", "src/platform/p.h", "<string>")
        self.include("adapters/headless/h.h", "adapters/keyboard/k.h", "adapters/files/f.h", "src/component/c.h")
        self.include("adapters/files/g.cpp", "adapters/keyboard/k.h", "<unistd.h>")
        self.include("apps/cli/c.cpp", "adapters/headless/h.h", "<nlohmann/json.hpp>")
        self.include("project/p.cpp", "project/p.h", "adapters/files/f.h", "<nlohmann/json.hpp>")
        self.include("apps/pictures/p.cpp", "apps/editor/e.h", "adapters/qt/q.h", "<QWidget>", "project/p.h")
        self.assertEqual(self.problems(), [])

    def test_upward_in_the_component_fails(self):
        self.include("src/forms/a.cpp", "src/element/e.h")
        self.assert_fails('src/forms/a.cpp includes "element/e.h": includes run downward only')

    def test_between_dialog_rooms_fails(self):
        self.include("src/wizard/a.cpp", "src/configdialog/c.h")
        self.assert_fails("includes run downward only")

    def test_from_the_component_to_an_adapter_fails(self):
        self.include("src/component/a.cpp", "adapters/keyboard/k.h")
        self.assert_fails("includes run downward only")

    def test_from_the_renderer_to_the_doubles_fails(self):
        self.include("adapters/qt/a.h", "adapters/headless/h.h")
        problems = self.problems()
        self.assertIn('adapters/qt/a.h includes "headless/h.h": includes run downward only', problems)

    def test_from_the_renderer_to_the_x_server_fails(self):
        self.include("adapters/qt/a.cpp", "adapters/x11/x.h")
        self.assert_fails("includes run downward only")

    def test_from_the_project_to_the_toolkit_or_the_doubles_fails(self):
        self.include("project/a.cpp", "adapters/headless/h.h")
        self.assertIn("project/a.cpp includes \"headless/h.h\": adapters/headless is for cli and tests alone", self.problems())
        self.include("project/b.cpp", "<QWidget>")
        self.assertIn("project/b.cpp includes <QWidget>, which project is not made for", self.problems())

    def test_from_the_keyboard_to_files_fails(self):
        self.include("adapters/keyboard/a.cpp", "adapters/files/f.h")
        self.assert_fails("includes run downward only")

    def test_from_an_adapter_to_a_program_fails(self):
        self.include("adapters/files/a.cpp", "apps/cli/c.h")
        self.assert_fails("includes run downward only")

    def test_from_one_program_to_another_fails(self):
        self.include("apps/editor/a.cpp", "apps/cli/c.h")
        self.assert_fails("includes run downward only")

    def test_from_the_editor_to_the_doubles_fails(self):
        self.include("apps/editor/a.cpp", "adapters/headless/h.h")
        self.assert_fails("adapters/headless is for cli and tests alone")

    def test_from_shipped_code_to_tests_fails(self):
        self.include("apps/cli/a.cpp", "tests/forms/t.h")
        self.assert_fails('apps/cli/a.cpp includes "forms/t.h", which is no file of shipped code')

    def test_of_a_foreign_library_in_the_component_fails(self):
        self.include("src/forms/a.h", "<QString>")
        self.assert_fails("src/forms/a.h includes <QString>, which src/forms is not made for")

    def test_of_the_x_server_in_the_renderer_fails(self):
        self.include("adapters/qt/a.h", "<xcb/xcb.h>")
        self.assert_fails("which adapters/qt is not made for")

    def test_of_a_file_outside_every_room_fails(self):
        self.include("adapters/fresh/a.h")
        self.assert_fails("adapters/fresh/a.h stands in no room of the list")

    def test_of_a_file_that_is_missing_fails(self):
        self.write("src/forms/a.h", '#include "forms/b.h"\n')
        self.assert_fails('src/forms/a.h includes "forms/b.h", which is no file of shipped code')


class Circles(Trees):
    def test_of_two_headers_fail(self):
        self.include("adapters/qt/a.h", "adapters/qt/b.h")
        self.include("adapters/qt/b.h", "adapters/qt/a.h")
        self.assert_fails("a circle of includes: adapters/qt/a.h -> adapters/qt/b.h -> adapters/qt/a.h")

    def test_of_three_headers_of_tests_fail(self):
        self.include("tests/qt/a.h", "tests/qt/b.h")
        self.include("tests/qt/b.h", "tests/qt/c.h")
        self.include("tests/qt/c.h", "tests/qt/a.h")
        self.assert_fails("a circle of includes")


class Tests(Trees):
    def test_may_include_shipped_code_their_own_helpers_and_those_below(self):
        self.include("tests/wizard/t.cpp", "adapters/headless/h.h", "tests/wizard/s.h", "tests/scancodes/s.h", "tests/world/w.h")
        self.assertEqual(self.problems(), [])

    def test_may_not_include_helpers_of_rooms_above(self):
        self.include("tests/forms/t.cpp", "tests/scancodes/s.h")
        self.assert_fails("helpers of tests are known to rooms above alone")

    def test_may_not_include_what_is_missing(self):
        self.write("tests/forms/t.cpp", '#include "helper.h"\n')
        self.assert_fails("which is no file of the tree")


class Texts(Trees):
    def test_with_work_left_over_fail(self):
        self.write("src/forms/a.cpp", "int a;\n// TO" "DO: the rest\n")
        self.assert_fails("src/forms/a.cpp:2:")

    def test_of_tests_that_do_not_run_fail(self):
        self.write("tests/files/a_test.cpp", "int a;\nGTEST_" "SKIP();\n")
        self.assert_fails("tests/files/a_test.cpp:2:")

    def test_with_a_message_box_that_guesses_mark_up_fail(self):
        self.write("apps/editor/a.cpp", "PlainBox fine(this);\nQMessageBox box(this);\n")
        self.assert_fails("apps/editor/a.cpp:2:")
        self.write("apps/editor/a.cpp", "\nQMessageBox::warning(this, title, text);\n")
        self.assert_fails("apps/editor/a.cpp:2:")


class Facts(Trees):
    def test_stand_where_they_belong(self):
        self.write("src/services/dialogs.h", '#pragma once\nFormName a{"frmConfigurationDialog"};\n')
        self.write("src/services/led_functions.h", "{TemperatureLed, 10402},\n")
        self.write("src/forms/ascii.h", 'digits = "0123456789ABCDEF";\n')
        self.write("src/forms/a.cpp", 'Show(dialogs::frmConfigurationDialog); Option(OptionShowX); letters = "0123456789";\n')
        self.assertEqual(self.problems(), [])

    def test_that_stand_twice_fail(self):
        for what, line in (("the name of a dialog", 'Show("frmConfigurationDialog");'),
                           ("a list of LED functions", "enum { HarddiskLed, UserLed, TemperatureLed };"),
                           ("the number of a setting", "if (IsTrue(GetOption(9))) Lock();"),
                           ("the number of a setting", 'service.Parameter(3, "65535");'),
                           ("a count kept by hand", "constexpr std::size_t capabilityCount = 26;"),
                           ("a shape of make and break codes", "struct StoredSequence {"),
                           ("hexadecimal digits", 'static const char* digits = "0123456789abcdef";'),
                           ("case of letters", "return letter + ('a' - 'A');"),
                           ("a hash of names", "return (size * 5U + first * 11U) % 128;"),
                           ("case by the locale", "c = static_cast<char>(std::tolower(c));"),
                           ("decoding of UTF-8", "code = code << 6 | (byte & 0x3F);"),
                           ("a byte order mark that is read", r'text.starts_with("\xEF\xBB\xBF")'),
                           ("the line of a place in a text", r"1 + std::count(text.begin(), place, '\n');"),
                           ("the syntax of sections and keys", "if (line.front() == '[') section = line;"),
                           ("a value or a text of automation that is owned", "~Text() { SysFreeString(text_); }"),
                           ("a value or a text of automation that is owned", "~Value() { VariantClear(&value_); }"),
                           ("a value or a text of automation that is owned", "return SysAllocStringLen(text.data(), size);"),
                           ("a value of a bag as one of automation", "V_VT(&given) = VT_UI1;"),
                           ("names in any case as the system compares them", "return CompareStringOrdinal(a, 1, b, 1, TRUE) == CSTR_EQUAL;"),
                           ("a list of files", "for (const auto& entry : std::filesystem::directory_iterator(folder)) {")):
            self.write("adapters/files/a.cpp", "\n" + line + "\n")
            self.assert_fails("adapters/files/a.cpp:2: %s stands elsewhere" % what)

    def test_of_a_tests_world_stand_in_one_header(self):
        self.write("tests/world/world.h", "HeadlessSurroundings surroundings{platform};\n")
        self.assertEqual(self.problems(), [])
        self.write("tests/wizard/a.h", "HeadlessSurroundings surroundings{platform};\n")
        self.assert_fails("tests/wizard/a.h:1: a world of a test's own stands elsewhere")

    def test_of_the_elements_own_headers_stay_there(self):
        self.include("src/element/a.cpp", "src/element/property_rows.h")
        self.include("project/a.cpp", "src/element/packed_codes.h")
        self.assertEqual(self.problems(), [])
        self.include("adapters/files/a.h", "src/element/property_rows.h")
        self.assert_fails('adapters/files/a.h includes "element/property_rows.h", which is the element\'s own')


class Places(Trees):
    def test_a_test_has_places_of_its_own(self):
        self.write("tests/files/a_test.cpp", "TemporaryDirectory directory;")
        self.write("tests/world/temporary_directory.h", "std::filesystem::temp_directory_path() / pattern")
        self.write("bench/a.cpp", "std::filesystem::temp_directory_path()")
        self.assertEqual(self.problems(), [])

    def test_a_name_in_the_folder_of_all_fails(self):
        for words in ("testing::TempDir() / name", "std::filesystem::temp_directory_path()", "QDir::tempPath()"):
            self.write("tests/files/a_test.cpp", words)
            self.assert_fails("a place that other tests share")


class HeadersAlone(Trees):
    def build(self, room_source, flags):
        command = "%s %s -I%s/src -I%s/adapters -include %s/src/all.h -c x.cpp" % (COMPILER, flags, self.root, self.root,
                                                                                  self.root)
        with open(os.path.join(self.root, "compile_commands.json"), "w", encoding="utf-8") as file:
            json.dump([{"directory": self.root, "file": os.path.join(self.root, room_source), "command": command}], file)

    def compiled(self):
        problems = []
        count = check.check_headers_alone(check.Tree(self.root), self.root, Verdicts(os.path.join(self.root, "kept")), problems)
        return count, problems

    def test_that_are_whole_pass(self):
        self.write("adapters/files/a.h", "#pragma once\n#include <string>\nstd::string Name();\n")
        self.build("adapters/files/a.cpp", "-std=c++20")
        self.assertEqual(self.compiled(), (1, []))

    def test_that_lack_an_include_fail_although_a_precompiled_header_has_it(self):
        self.write("src/all.h", "#include <string>\n")
        self.write("adapters/files/a.h", "#pragma once\nstd::string Name();\n")
        self.build("adapters/files/a.cpp", "-std=c++20")
        count, problems = self.compiled()
        self.assertEqual((count, len(problems)), (1, 1))
        self.assertIn("adapters/files/a.h does not compile alone", problems[0])

    def test_are_compiled_with_the_definitions_of_their_room(self):
        self.write("adapters/files/a.h", '#pragma once\n#ifndef PLACE\n#error "no place"\n#endif\n')
        self.build("adapters/files/a.cpp", "-std=c++20 -DPLACE=1")
        self.assertEqual(self.compiled(), (1, []))

    def test_of_a_folder_that_the_build_leaves_out_are_left_out(self):
        self.write("adapters/qt/a.h", "#pragma once\n")
        self.write("adapters/qt/designer/b.h", "#pragma once\n#include <QDesigner>\n")
        self.build("adapters/qt/a.cpp", "-std=c++20")
        self.assertEqual(self.compiled(), (1, []))

    def test_are_not_compiled_again_until_something_that_they_take_in_changes(self):
        self.write("src/forms/b.h", "#pragma once\nstruct B {};\n")
        self.write("adapters/files/a.h", '#pragma once\n#include "forms/b.h"\nB Name();\n')
        self.build("adapters/files/a.cpp", "-std=c++20")
        self.assertEqual(self.compiled(), (1, []))
        with mock.patch.object(check.subprocess, "run", side_effect=self.only_versions(check.subprocess.run)):
            self.assertEqual(self.compiled(), (1, []))
        self.write("src/forms/b.h", "#pragma once\n")
        self.assertEqual(len(self.compiled()[1]), 1)
        self.assertEqual(len(self.compiled()[1]), 1)

    def only_versions(self, run):
        def call(command, **how):
            self.assertIn("--version", command)
            return run(command, **how)
        return call


if __name__ == "__main__":
    COMPILER = sys.argv.pop(1)
    unittest.main()
