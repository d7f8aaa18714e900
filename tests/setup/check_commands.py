#!/usr/bin/env python3
"""The two commands on systems of every kind: with apt or without, as root, as a user who may install, as a user who may not.
What they call is made up; each call is written into a file."""

import os
import pty
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
TOOLS = ["bash", "awk", "grep", "sed", "head", "tail", "xargs", "dirname", "mkdir", "rm", "env", "cat", "nproc", "echo"]
STUB = """#!/bin/bash
echo "{name}" "$@" >>"{calls}"
{does}
"""
NO_CMAKE_WORDS = """CMake Error at cmake/dependencies.cmake:1 (message):
  not found here:

    find_package(Qt6 COMPONENTS Svg)
"""
LISTED = [line for line in (ROOT / "packages").read_text(encoding="utf-8").splitlines() if not line.startswith("#")]
PACKAGES = LISTED[:LISTED.index("[test]")]
TEST_PACKAGES = LISTED[LISTED.index("[test]") + 1:LISTED.index("[check]")]


class System(unittest.TestCase):
    """A clone of the commands and a PATH of its own."""

    def setUp(self):
        self.folder = Path(tempfile.mkdtemp(prefix="plexel-setup-"))
        self.addCleanup(shutil.rmtree, self.folder)
        self.clone, self.path, self.calls = self.folder / "clone", self.folder / "path", self.folder / "calls"
        (self.clone / "cmake").mkdir(parents=True)
        self.path.mkdir()
        for name in ("run", "test", "packages", "cmake/setup.sh"):
            shutil.copy(ROOT / name, self.clone / name)
        for tool in TOOLS:
            (self.path / tool).symlink_to(shutil.which(tool))
        self.has("id", "echo 1000")
        self.has("cmake", 'if [ "$2" = release -o "$2" = test ]; then mkdir -p "build/$2"; fi')
        self.has("ctest")
        self.has("ninja")
        self.has("c++")

    def has(self, name, does=""):
        stub = self.path / name
        stub.write_text(STUB.format(name=name, calls=self.calls, does=does), encoding="utf-8")
        stub.chmod(0o755)

    def lacks(self, *names):
        for name in names:
            (self.path / name).unlink()

    def has_apt(self, missing=()):
        lacking = " ".join(missing)
        self.has("dpkg-query", f'for lacking in {lacking}; do [ "$3" = "$lacking" ] && exit 1; done; echo installed')
        self.has("apt-get")

    def start(self, *words, stdin=subprocess.DEVNULL, **environment):
        done = subprocess.run([str(self.clone / words[0]), *words[1:]], stdin=stdin, capture_output=True, text=True,
                              env={"PATH": str(self.path), **environment}, check=False)
        self.status, self.errors = done.returncode, done.stderr.splitlines()
        self.called = self.calls.read_text(encoding="utf-8").splitlines() if self.calls.exists() else []

    def calls_of(self, name):
        return [line for line in self.called if line.split()[0] == name]

    def nothing_was_begun(self):
        self.assertNotEqual(self.status, 0)
        self.assertFalse((self.clone / "build").exists())
        self.assertEqual(self.calls_of("apt-get") + self.calls_of("cmake"), [])


class WithApt(System):
    def test_where_nothing_is_missing_a_user_needs_no_rights(self):
        self.has_apt()
        self.has("sudo", "exit 1")
        self.start("run", "--build")
        self.assertEqual((self.status, self.errors), (0, []))
        self.assertEqual(self.calls_of("sudo") + self.calls_of("apt-get"), [])
        self.assertEqual(self.calls_of("cmake"), ["cmake --preset release", "cmake --build --preset release"])

    def test_root_installs_what_is_missing_and_no_more(self):
        self.has_apt(missing=["cmake", "qt6-svg-dev", "xvfb"])
        self.has("id", "echo 0")
        self.start("run", "--build")
        self.assertEqual(self.status, 0)
        self.assertEqual(self.calls_of("apt-get"), [
            "apt-get update -qq", "apt-get install -y -qq --no-install-recommends cmake qt6-svg-dev"])

    def test_the_tests_need_packages_of_their_own(self):
        self.has_apt(missing=PACKAGES[:1] + TEST_PACKAGES[-1:])
        self.has("id", "echo 0")
        self.start("test")
        self.assertEqual(self.status, 0)
        self.assertEqual(self.calls_of("apt-get")[1:], [
            f"apt-get install -y -qq --no-install-recommends {PACKAGES[0]} {TEST_PACKAGES[-1]}"])

    def test_a_user_who_may_installs_by_sudo(self):
        self.has_apt(missing=["cmake"])
        self.has("sudo", 'if [ "$1" != -n ]; then exec "$@"; fi')
        self.start("run", "--build")
        self.assertEqual(self.status, 0)
        self.assertEqual(self.calls_of("apt-get"), [
            "apt-get update -qq", "apt-get install -y -qq --no-install-recommends cmake"])

    def refuses(self):
        self.assertEqual(self.errors[-1:], ["packages are missing, and only root can install them: "
                                            "apt-get install --no-install-recommends cmake qt6-svg-dev"])
        self.nothing_was_begun()

    def test_a_user_without_sudo_is_told_in_one_line_what_to_install(self):
        self.has_apt(missing=["cmake", "qt6-svg-dev"])
        self.start("run", "--build")
        self.assertEqual(len(self.errors), 1)
        self.refuses()

    def test_without_a_terminal_sudo_that_wants_a_password_is_not_asked(self):
        self.has_apt(missing=["cmake", "qt6-svg-dev"])
        self.has("sudo", 'echo "a password is required" >&2; exit 1')
        for command in ("run", "test"):
            self.calls.unlink(missing_ok=True)
            self.start(command)
            self.assertEqual(self.calls_of("sudo"), ["sudo -n true"])
            if command == "run":
                self.assertEqual(len(self.errors), 1)
                self.refuses()
            self.nothing_was_begun()

    def test_at_a_terminal_sudo_asks_and_may_refuse(self):
        self.has_apt(missing=["cmake", "qt6-svg-dev"])
        self.has("sudo", 'echo "you are not in the list" >&2; exit 1')
        outer, terminal = pty.openpty()
        try:
            self.start("run", "--build", stdin=terminal)
        finally:
            os.close(outer)
            os.close(terminal)
        self.assertEqual(self.calls_of("sudo"), ["sudo -v"])
        self.refuses()


class WithoutApt(System):
    def test_what_is_there_is_built(self):
        self.start("run", "--build")
        self.assertEqual((self.status, self.errors), (0, []))
        self.assertEqual(self.calls_of("cmake"), ["cmake --preset release", "cmake --build --preset release"])

    def test_missing_programs_are_named_together(self):
        self.lacks("cmake", "ninja", "c++")
        self.start("run", "--build")
        self.assertEqual(self.errors, ["programs are missing: cmake ninja c++"])
        self.nothing_was_begun()

    def test_a_chosen_compiler_that_is_missing_is_named(self):
        self.start("run", "--build", CXX="clang++-99")
        self.assertEqual(self.errors, ["programs are missing: clang++-99"])
        self.nothing_was_begun()

    def test_cmakes_list_is_shown_and_no_half_made_folder_stays(self):
        self.has("cmake", f"mkdir -p build/release; echo '-- many words'; echo '{NO_CMAKE_WORDS}' >&2; exit 1")
        self.start("run", "--build")
        self.assertEqual(self.status, 1)
        self.assertEqual(self.errors[:4], NO_CMAKE_WORDS.splitlines()[:4])
        self.assertEqual(self.errors[-1], "CMake cannot build this here; all that it says is in build/release.log")
        self.assertFalse((self.clone / "build/release").exists())

    def test_a_folder_that_was_built_before_stays_when_cmake_fails(self):
        self.start("run", "--build")
        self.has("cmake", "exit 1")
        self.start("run", "--build")
        self.assertEqual(self.status, 1)
        self.assertTrue((self.clone / "build/release").exists())

    def test_another_compiler_begins_anew_and_the_same_one_does_not(self):
        self.has("clang++")
        self.has("cmake", 'mkdir -p build/release; '
                          '[ "$1" = --preset ] && echo "CMAKE_CXX_COMPILER:STRING=$CXX" >build/release/CMakeCache.txt')
        first, second = str(self.path / "c++"), str(self.path / "clang++")
        for compiler in (first, first, second, second):
            self.start("run", "--build", CXX=compiler)
        self.assertEqual([line for line in self.calls_of("cmake") if "--build" not in line],
                         ["cmake --preset release", "cmake --preset release", "cmake --preset release --fresh",
                          "cmake --preset release"])

    def test_clang_19_compiles_the_tests_where_it_is_and_no_other_is_chosen(self):
        self.has("cmake", f'echo "compiler $CXX" >>"{self.calls}"')
        for there, chosen, taken in (("g++", "", ""), ("clang++-19", "", "clang++-19"), ("clang++-19", "g++", "g++")):
            self.calls.unlink(missing_ok=True)
            self.has(there)
            self.start("test", **({"CXX": chosen} if chosen else {}))
            self.assertEqual((self.status, self.calls_of("compiler")), (0, [f"compiler {taken}"] * 2))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
