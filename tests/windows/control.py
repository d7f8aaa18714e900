"""The control: registered, made by scripts, and in the test container of tests/activex, run with Wine."""

import pathlib
import re
import shutil
import tempfile

from wine import Wine

ROOT = pathlib.Path(__file__).resolve().parents[2]
SCRIPTS = ROOT / "tests" / "activex" / "scripts"
DESK = "{0C4B1F2E-6D0B-4C1B-9C37-5A1B2E6F7D10}"
PROG_ID = "PlexelBaseElement.ctlPlexelBaseElement"


class Control:
    """One bitness. Subclasses tell which, and the folder of what was built."""

    bits = None

    @classmethod
    def setUpClass(cls):
        cls.wine = Wine(cls.build / ("prefix-control-" + cls.bits), cls.bits)

    @classmethod
    def tearDownClass(cls):
        cls.wine.close()

    def control(self):
        return self.build / self.bits / "PlexelBaseElement.ocx"

    def regsvr32(self, *words):
        run = self.wine.run("regsvr32", "/s", *words, self.wine.name(self.control()))
        self.assertEqual(run.returncode, 0, run)

    def registry(self):
        """All that stands below Software\\Classes, but for times. The system keeps it in files when its last program has ended."""
        self.wine.close()
        found = set()
        for name in ("system.reg", "user.reg"):
            text = (self.build / ("prefix-control-" + self.bits) / name).read_text(encoding="utf-8", errors="replace")
            for key in re.split(r"\n(?=\[)", text):
                head, _, values = key.partition("\n")
                if head.startswith(r"[Software\\Classes"):
                    found.add((name, head.rsplit("]", 1)[0], re.sub(r"^#.*$", "", values, flags=re.MULTILINE).strip()))
        return found

    def test_registering_leaves_no_trace_when_it_is_undone(self):
        self.wine.call("wine", "reg", "add", r"HKCU\Software\Classes", "/f")  # which every user of Windows has
        for words in ([], ["/n", "/i:user"]):
            with self.subTest(words=words):
                before = self.registry()
                self.regsvr32(*words)
                self.assertTrue([line for line in self.registry() if PROG_ID in line[1]])
                self.regsvr32("/u", *words)
                self.assertEqual(self.registry(), before)

    def test_scripts_of_both_languages(self):
        desk = self.wine.name(self.build / ("build-" + self.bits) / "bin" / "plexel-desk.dll")
        for key, value in ((r"PlexelTests.Desk\CLSID", DESK), (r"CLSID\%s\InprocServer32" % DESK, desk)):
            self.wine.call("wine", "reg", "add", r"HKLM\Software\Classes" + "\\" + key, "/ve", "/d", value, "/f")
        self.regsvr32()
        self.addCleanup(self.wine.call, "wine", "reg", "delete", r"HKLM\Software\Classes\PlexelTests.Desk", "/f")
        self.addCleanup(self.regsvr32, "/u")
        values = (SCRIPTS / "control.expected").read_text(encoding="utf-8").splitlines()
        heard = "MouseClicked|2:1|2:0|4:15|4:30"
        for script, language, source in (("control.vbs", str, " " + PROG_ID), ("control.js", str.lower, "")):
            with self.subTest(script=script):
                with self.wine.shown("us"):
                    run = self.wine.run("cscript", self.wine.name(SCRIPTS / script), data=self.data)
                told = run.stdout.decode("utf-8", "replace").splitlines()
                expected = [line.replace(" True", " " + language("True")) for line in values]
                self.assertEqual(told, expected + [heard, "crossed [a] 77 [a]", "error 6 XElementSize:" + source, "DONE"])

    def test_the_code_of_the_page_does_what_the_page_says(self):
        page = (ROOT / "docs" / "windows.md").read_text(encoding="utf-8")
        code = {language: block for language, block in re.findall(r"^```(\w+)\n(.*?)^```$", page, re.MULTILINE | re.DOTALL)}
        self.assertEqual(code["cpp"], (ROOT / "examples" / "control" / "main.cpp").read_text(encoding="utf-8"))
        self.regsvr32()
        self.addCleanup(self.regsvr32, "/u")
        folder = pathlib.Path(tempfile.mkdtemp(prefix="plexel-page-"))
        self.addCleanup(shutil.rmtree, folder)
        examples = []
        if self.bits == "x64":
            examples.append(([self.build / ("build-" + self.bits) / "bin" / "control_example.exe"], ["[Ctrl Left+a]"]))
        for language in ("vbs", "js"):
            (folder / ("page." + language)).write_text(code[language], encoding="ascii")
        for words, told in (*examples,
                            (["cscript", self.wine.name(folder / "page.vbs")], ["[a] Pump 2"]),
                            (["cscript", self.wine.name(folder / "page.js")], ["6 in XElementSize", "ShowX is true"])):
            with self.subTest(words=words):
                with self.wine.shown("us"):
                    run = self.wine.run(*words, data=self.data)
                self.assertEqual(run.stdout.decode("utf-8", "replace").splitlines(), told, run)
                self.assertEqual(run.returncode, 0, run)
                for line in told:
                    self.assertIn("`" + line + "`", page)

    def test_the_container_of_the_tests(self):
        with self.wine.shown("us"):
            run = self.wine.run(self.build / ("build-" + self.bits) / "bin" / "test_activex.exe", data=self.data)
        told = run.stdout.decode("utf-8", "replace")
        self.assertEqual(run.returncode, 0, told[-6000:])
        self.assertGreater(int(re.search(r"\[  PASSED  \] (\d+) test", told).group(1)), 30)
