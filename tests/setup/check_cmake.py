#!/usr/bin/env python3
"""What CMake itself does with the tree: check_cmake.py CMAKE NINJA COMPILER. Warnings are errors in the test preset alone, and
everything that is missing is named at once."""

import json
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
CMAKE, NINJA, COMPILER = sys.argv[1:4]


def configure(folder, *words, **environment):
    return subprocess.run([CMAKE, "-S", str(ROOT), "-B", folder, "-G", "Ninja", f"-DCMAKE_MAKE_PROGRAM={NINJA}",
                           f"-DCMAKE_CXX_COMPILER={COMPILER}", *words],
                          capture_output=True, text=True, env={**os.environ, **environment}, check=False)


class Warnings(unittest.TestCase):
    def commands(self, *words):
        """What the compiler is called with for each source of the library."""
        with tempfile.TemporaryDirectory() as folder:
            done = configure(folder, "-DPLEXEL_BUILD_PROGRAMS=OFF", *words)
            self.assertEqual(done.returncode, 0, done.stderr)
            commands = json.loads((Path(folder) / "compile_commands.json").read_text(encoding="utf-8"))
        self.assertTrue(commands)
        return [command["command"] for command in commands]

    def test_a_plain_build_has_warnings_and_none_ends_it(self):
        for command in self.commands():
            self.assertIn("-Wall", command)
            self.assertNotIn("-Werror", command)

    def test_each_warning_is_an_error_where_a_preset_asks_for_it(self):
        for command in self.commands("-DPLEXEL_WERROR=ON"):
            self.assertIn("-Werror", command)

    def test_the_test_preset_alone_asks_for_it(self):
        presets = json.loads((ROOT / "CMakePresets.json").read_text(encoding="utf-8"))["configurePresets"]
        self.assertEqual([preset["name"] for preset in presets
                          if preset.get("cacheVariables", {}).get("PLEXEL_WERROR") == "ON"], ["test"])
        self.assertNotIn("-Werror", json.dumps(presets))


class Missing(unittest.TestCase):
    def test_all_that_is_missing_is_named_in_one_message(self):
        with tempfile.TemporaryDirectory() as folder:
            done = configure(folder, "-DPLEXEL_BUILD_TESTS=ON", "-DPLEXEL_BUILD_BENCH=ON",
                             "-DCMAKE_FIND_USE_SYSTEM_ENVIRONMENT_PATH=OFF", "-DCMAKE_FIND_USE_CMAKE_SYSTEM_PATH=OFF",
                             PKG_CONFIG_LIBDIR=folder)
        self.assertNotEqual(done.returncode, 0)
        self.assertEqual(done.stderr.count("CMake Error"), 1, done.stderr)
        named = [line.strip() for line in done.stderr.splitlines() if line.startswith("    ")]
        self.assertEqual(named, [
            "find_package(PkgConfig)", "pkg_check_modules(xkbcommon)", "find_package(nlohmann_json)",
            "find_package(Qt6 COMPONENTS Widgets)", "find_package(Qt6 COMPONENTS Svg)",
            "pkg_check_modules(xkbcommon-x11 xcb-xtest xcb)", "pkg_check_modules(fontconfig)", "find_program(doxygen)",
            "find_package(Python3 COMPONENTS Interpreter)", "python3: from jsonschema import Draft202012Validator", "find_package(GTest)",
            "find_package(Qt6 COMPONENTS Test)", "find_package(Qt6 COMPONENTS UiPlugin)", "find_package(Qt6 COMPONENTS UiTools)",
            "pkg_check_modules(xcb-xtest xcb)", "find_program(Xvfb)",
            "find_program(openbox)", "find_program(setxkbmap)", "find_package(benchmark)",
            "find_package(Qt6 COMPONENTS Core)", "pkg_check_modules(inih)"])

    def test_what_is_not_built_is_not_asked_for(self):
        with tempfile.TemporaryDirectory() as folder:
            done = configure(folder, "-DPLEXEL_BUILD_EDITOR=OFF", "-DCMAKE_FIND_USE_SYSTEM_ENVIRONMENT_PATH=OFF",
                             "-DCMAKE_FIND_USE_CMAKE_SYSTEM_PATH=OFF", PKG_CONFIG_LIBDIR=folder)
        named = [line.strip() for line in done.stderr.splitlines() if line.startswith("    ")]
        self.assertEqual(named, ["find_package(PkgConfig)", "pkg_check_modules(xkbcommon)", "find_package(nlohmann_json)"])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
