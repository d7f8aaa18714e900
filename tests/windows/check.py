#!/usr/bin/env python3
"""check.py BUILD [NAME...]: what was built for Windows, looked at, and run with Wine as far as that can. BUILD has the folders
x64 and x86. Names of tests choose among them, as unittest understands them."""

import pathlib
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest
import zipfile

from control import Control
from host import Host
from native import Native
from wine import Wine, runs_32_bit

ROOT = pathlib.Path(__file__).resolve().parents[2]
SCRIPTS = ROOT / "tests" / "scripts"
sys.path.insert(0, str(SCRIPTS))
import expectations  # noqa: E402

BUILD = pathlib.Path(sys.argv.pop(1)).resolve()
BITS = {"x64": ("pei-x86-64", "x86_64-w64-mingw32-objdump"), "x86": ("pei-i386", "i686-w64-mingw32-objdump")}
# Libraries that every Windows has had since its tenth version.
SYSTEM = {"advapi32.dll", "comctl32.dll", "comdlg32.dll", "gdi32.dll", "gdiplus.dll", "kernel32.dll", "msvcrt.dll", "ole32.dll", "oleacc.dll",
          "oleaut32.dll", "shell32.dll", "user32.dll"}
FILES = ("plexel.exe", "plexel-host.exe", "PlexelBaseElement.ocx")
EXPORTS = ["DllCanUnloadNow", "DllGetClassObject", "DllInstall", "DllRegisterServer", "DllUnregisterServer"]


class Built(unittest.TestCase):
    """Both bitnesses, without running anything."""

    def test_the_programs_are_of_their_bitness(self):
        for bits, (kind, objdump) in BITS.items():
            for file in FILES:
                header = subprocess.run([objdump, "-f", BUILD / bits / file], capture_output=True, text=True, check=True)
                self.assertIn(kind, header.stdout, bits)

    def test_they_need_the_systems_own_libraries_alone(self):
        for bits, (_, objdump) in BITS.items():
            for file in FILES:
                shown = subprocess.run([objdump, "-p", BUILD / bits / file], capture_output=True, text=True, check=True)
                needed = {name.lower() for name in re.findall(r"DLL Name: (\S+)", shown.stdout)}
                self.assertIn("kernel32.dll", needed, bits)
                self.assertEqual(needed - SYSTEM, set(), bits)

    def test_the_control_exports_what_the_system_calls_and_nothing_else(self):
        for bits, (_, objdump) in BITS.items():
            shown = subprocess.run([objdump, "-p", BUILD / bits / "PlexelBaseElement.ocx"], capture_output=True, text=True,
                                   check=True)
            names = shown.stdout.split("[Ordinal/Name Pointer] Table")[1].split("\n\n")[0]
            self.assertEqual(re.findall(r"\[ *\d+\] (?:\+base\[ *\d+\] +[0-9a-f]+ )?(\w+)$", names, re.MULTILINE), EXPORTS, bits)

    def test_the_data_stand_beside_them(self):
        for bits in BITS:
            data = BUILD / bits / "data"
            for file in (ROOT / "data").rglob("*"):
                self.assertTrue((data / file.relative_to(ROOT / "data")).exists(), file)
            layouts = (data / "keyboard.layouts").read_text(encoding="utf-8")
            for name in ("us", "de", "de(nodeadkeys)", "fr", "us(dvorak)"):
                self.assertIn(f"\n[{name}]\n", "\n" + layouts, bits)


class Help(unittest.TestCase):
    """The help files, taken apart again."""

    def test_every_topic_stands_under_its_number(self):
        for bits in BITS:
            for topics in sorted((ROOT / "data" / "Help").iterdir()):
                with self.subTest(bits=bits, topics=topics.name), tempfile.TemporaryDirectory() as folder:
                    subprocess.run(["extract_chmLib", BUILD / bits / "data" / "Help" / (topics.name + ".chm"), folder],
                                   capture_output=True, check=True)
                    folder = pathlib.Path(folder)
                    numbers, names = (folder / "#IVB").read_bytes(), (folder / "#STRINGS").read_bytes()
                    told = {}
                    for number, place in struct.iter_unpack("<II", numbers[4:]):
                        told[number] = names[place:names.index(b"\0", place)].decode("ascii")
                    wanted = {int(file.stem): file.read_bytes() for file in topics.glob("*.html")}
                    self.assertGreater(len(wanted), 15)
                    self.assertEqual(told, {number: f"/{number}.html" for number in wanted})
                    self.assertEqual({number: (folder / name[1:]).read_bytes() for number, name in told.items()}, wanted)


class Packages(unittest.TestCase):
    """The archive and the set-up program of each bitness."""

    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp(prefix="plexel-packages-"))
        for bits, name in (("64", "x64"), ("32", "x86")):
            subprocess.run([sys.executable, ROOT / "cmake" / "windows" / "package.py", BUILD / name, bits, "1.2.3",
                            cls.folder], check=True)

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.folder)

    @staticmethod
    def files(folder):
        return {file.relative_to(folder).as_posix(): file.read_bytes() for file in folder.rglob("*") if file.is_file()}

    def test_the_archive_holds_all_that_was_built(self):
        for bits in BITS:
            name = f"plexel-1.2.3-{bits}"
            with zipfile.ZipFile(self.folder / f"{name}.zip") as archive:
                held = {entry.filename: archive.read(entry) for entry in archive.infolist()}
            self.assertEqual(held, {f"{name}/{file}": content for file, content in self.files(BUILD / bits).items()})

    def test_the_set_up_program_puts_all_of_it_up_and_takes_it_away_again(self):
        control = r"HKCR\PlexelBaseElement.ctlPlexelBaseElement"
        key = r"HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall\Plexel64"
        wine = Wine(BUILD / "prefix-packages")
        self.addCleanup(wine.close)
        for _ in range(2):  # the second time over the first
            self.assertEqual(wine.run(self.folder / "plexel-1.2.3-x64.exe", "/S").returncode, 0)
        place = BUILD / "prefix-packages" / "drive_c" / "Program Files" / "Plexel"
        put = self.files(place)
        self.assertIn("uninstall.exe", put)
        del put["uninstall.exe"]
        self.assertEqual(put, self.files(BUILD / "x64"))
        told = wine.run("reg", "query", key).stdout.decode()
        self.assertIn("1.2.3", told)
        self.assertEqual(wine.run("reg", "query", control).returncode, 0)
        (place / "data" / "mine.txt").write_text("the user's own")
        self.assertEqual(wine.run(r"C:\Program Files\Plexel\uninstall.exe", "/S").returncode, 0)
        wine.wait()  # a copy of it goes on behind it
        self.assertEqual(self.files(place), {"data/mine.txt": b"the user's own"})
        self.assertNotEqual(wine.run("reg", "query", key).returncode, 0)
        self.assertNotEqual(wine.run("reg", "query", control).returncode, 0)
        shutil.rmtree(place)


class Run:
    """What runs with Wine, for one bitness. Subclasses tell which."""

    bits = None

    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp(prefix="plexel-windows-"))
        cls.wine = Wine(BUILD / ("prefix-" + cls.bits), cls.bits)
        cls.program = BUILD / cls.bits / "plexel.exe"
        cls.data = cls.folder / "data"
        shutil.copytree(expectations.DATA, cls.data)
        shutil.copy(BUILD / cls.bits / "data" / "keyboard.layouts", cls.data)

    @classmethod
    def tearDownClass(cls):
        cls.wine.close()
        shutil.rmtree(cls.folder)

    def plexel(self, *words, data=None, **options):
        return self.wine.run(self.program, *words, data=data, **options)

    def test_every_script_answers_as_elsewhere(self):
        scripts = expectations.scripts([])
        self.assertGreater(len(scripts), 40)
        for script in scripts:
            with self.subTest(script=script.name):
                run = self.plexel("script", self.wine.name(script), data=self.data, cwd=SCRIPTS)
                self.assertEqual(expectations.told(run),
                                 expectations.expected_file(script).read_text(encoding="utf-8").splitlines())

    def test_the_data_beside_the_program_are_found(self):
        run = self.plexel("script", input=b"layout de(nodeadkeys)\nfn GetText 100\nlayout atlantis\n")
        given = run.stdout.splitlines()
        self.assertEqual(len(given), 3, run)
        self.assertIn(b'"ok":true', given[0])
        self.assertIn(b'"ok":true', given[1])
        self.assertIn(b"unknown keyboard layout", given[2])
        self.assertEqual(run.returncode, 1)

    def test_names_outside_the_code_page_are_read_written_and_told(self):
        folder = self.folder / "größer 操作盤 Ω"
        folder.mkdir()
        project = folder / "Anlage № 7.plexel"
        shutil.copy(ROOT / "data" / "projects" / "sample.plexel", project)
        check = self.plexel("check", self.wine.name(project))
        self.assertIn("Anlage № 7.plexel", check.stdout.decode("utf-8"))
        self.assertLess(check.returncode, 2, check)
        written = folder / "übertragen Ж.json"
        run = self.plexel("export", self.wine.name(project), self.wine.name(written))
        self.assertEqual(run.returncode, 0, run)
        self.assertEqual(self.plexel("export", self.wine.name(project)).stdout, written.read_bytes())
        missing = self.plexel("check", self.wine.name(folder / "fehlt 無.plexel"))
        self.assertEqual(missing.returncode, 2)
        self.assertIn("fehlt 無.plexel", missing.stderr.decode("utf-8"))
        self.assertEqual(sorted(file.name for file in folder.iterdir()), sorted([project.name, written.name]))

    def test_long_names_are_read_written_and_told(self):
        folder = self.folder / "/".join(["a folder with quite a long name in which panels of machines are kept"] * 6)
        folder.mkdir(parents=True)
        project = folder / "sample.plexel"
        shutil.copy(ROOT / "data" / "projects" / "sample.plexel", project)
        self.assertGreater(len(str(project)), 400)
        for _ in range(2):  # the second time it is replaced
            run = self.plexel("export", self.wine.name(project), self.wine.name(folder / "out.json"))
            self.assertEqual(run.returncode, 0, run)
        self.assertEqual(self.plexel("export", self.wine.name(project)).stdout, (folder / "out.json").read_bytes())
        self.assertEqual(len(list(folder.iterdir())), 2)
        missing = self.plexel("check", self.wine.name(folder / "missing.plexel"))
        self.assertIn((self.wine.name(folder / "missing.plexel") + ": cannot be read").encode(), missing.stderr)

    def test_a_project_comes_back_as_on_this_system(self):
        script = (f"open {self.wine.name(ROOT / 'data' / 'projects' / 'sample.plexel')}\n"
                  f"save {self.wine.name(self.folder / 'saved.plexel')}\n")
        run = self.plexel("script", input=script.encode())
        self.assertEqual(run.returncode, 0, run)
        self.assertEqual((self.folder / "saved.plexel").read_bytes(),
                         (ROOT / "data" / "projects" / "sample.plexel").read_bytes())

    def test_a_file_that_may_not_be_written_stays_and_the_reason_is_told(self):
        project = ROOT / "data" / "projects" / "sample.plexel"
        target = self.folder / "kept.json"
        target.write_bytes(b"kept")
        target.chmod(0o444)
        run = self.plexel("export", self.wine.name(project), self.wine.name(target))
        self.assertEqual(run.returncode, 2)
        self.assertIn(b"kept.json: cannot be written: it is marked as read-only", run.stderr)
        self.assertEqual(target.read_bytes(), b"kept")
        directory = self.plexel("export", self.wine.name(project), self.wine.name(self.folder))
        self.assertEqual(directory.returncode, 2)
        self.assertIn(b"it is no regular file", directory.stderr)

    def test_bytes_pass_through_the_standard_streams_as_they_are(self):
        project = (ROOT / "data" / "projects" / "sample.plexel").read_bytes()
        given = self.plexel("export", "-", input=project)
        self.assertEqual(given.returncode, 0, given)
        self.assertNotIn(b"\r", given.stdout)


class X64:
    bits = "x64"
    build = BUILD
    data = ROOT / "data"


@unittest.skipUnless(runs_32_bit(), "this system's Wine has no part for programs of 32 bit")
class X86:
    bits = "x86"
    build = BUILD
    data = ROOT / "data"


class Run64(X64, Run, unittest.TestCase):
    pass


class Run32(X86, Run, unittest.TestCase):
    pass


class Native64(X64, Native, unittest.TestCase):
    pass


class Native32(X86, Native, unittest.TestCase):
    pass


class Control64(X64, Control, unittest.TestCase):
    pass


class Control32(X86, Control, unittest.TestCase):
    pass


class Host64(X64, Host, unittest.TestCase):
    pass


class Host32(X86, Host, unittest.TestCase):
    pass


if __name__ == "__main__":
    unittest.main(verbosity=2)
