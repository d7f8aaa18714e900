"""plexel-host, the small container: what it tries of the control, projects that it saves beside those of the command line, and its
window with real mouse and keys, run with Wine."""

import pathlib
import re
import shutil
import tempfile

from wine import Wine

# Definitions of every kind, on the sample project, by the command line's script.
DEFINITIONS = r"""
use F1
put {"strLayer1PressString":"[a‹›][Ctrl Left+Ω‹›]","strLayer1PressScanCode":{"Value":"FF 1C F0 1C FF","NextValue":4}}
put {"strLayer2ReleaseString":"[b›]","strLayer2ReleaseScanCode":{"Value":"FF F0 32 FF","NextValue":3}}
put {"strLayer3PressScanCode":{"Value":"FF E0 75 FF","NextValue":3},"strLayer3ReleaseScanCode":{"Value":"01 02","NextValue":1}}
put {"strLayer4PressString":"x","strLayer4ReleaseString":"y","strLayer4ReleaseScanCode":{"Value":"FF 00 FE FF","NextValue":88}}
put {"lngLEDTypeLayer1":5,"lngLEDTypeLayer2":14,"lngLEDTypeLayer3":-3,"lngLEDTypeLayer4":99,"enumWizardButtonType":2}
set ButtonNotes "notes: \u00e4\u00f6\u00fc \u20ac \u4e2d\ud834\udd1e \\ \" end "
use F2
set WizardOn -1
set ShowX 7
set ShowXPermanent -1
set FocusVisible 1
set FocusWidth 9
set FocusColor -2147483630
set XElementSize 2
set ElementType 5
use L2
put {"lngLEDTypeLayer1":7,"lngLedHardwareNumber":-12}
set TargetSystem ""
use F5
set HardwareNumberKey 5
set HardwareNumberKey7 2147483647
set HardwareNumberButton -2147483648
set SizeX 32767
set ZoomFactor 150
set OriginalPosX -1
set ShowDefined 1
set KeyDefinedColor 16777215
"""
# Values as other programs store them, ones that no element reads, and signs that are stored escaped.
FOREIGN = b"MyTool=string kept \\u{4E2D}\r\nWeight=double 0.5\r\n"
UNREAD = b"FocusColor=string no number\r\n"


class Host:
    """One bitness. Subclasses tell which, and the folders of what was built and of the data."""

    bits = None

    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp(prefix="plexel-host-"))
        cls.pictures = cls.build / ("pictures-" + cls.bits)
        cls.pictures.mkdir(exist_ok=True)
        cls.wine = Wine(cls.build / ("prefix-host-" + cls.bits), cls.bits)
        cls.register()

    @classmethod
    def tearDownClass(cls):
        cls.wine.close()
        shutil.rmtree(cls.folder)

    @classmethod
    def register(cls, *words):
        cls.wine.call("wine", "regsvr32", "/s", *words, cls.wine.name(cls.build / cls.bits / "PlexelBaseElement.ocx"))

    def program(self, name):
        return self.build / self.bits / name

    def host(self, *words, **options):
        return self.wine.run(self.program("plexel-host.exe"), *words, data=self.data, **options)

    def saved_by_the_host(self, project):
        target = self.folder / "host ☂.plexel"
        target.unlink(missing_ok=True)
        run = self.host(self.wine.name(project), "--save-as", self.wine.name(target))
        self.assertEqual(run.returncode, 0, run)
        return target.read_bytes(), run.stderr.decode("utf-8")

    def saved_by_the_command_line(self, project, commands=""):
        target = self.folder / "editor.plexel"
        target.unlink(missing_ok=True)
        script = f"open {self.wine.name(project)}\n{commands}\nsave {self.wine.name(target)}\n"
        run = self.wine.run(self.program("plexel.exe"), "script", data=self.data, input=script.encode())
        self.assertEqual(run.returncode, 0, run.stdout.decode("utf-8", "replace")[-3000:])
        return target.read_bytes()

    def project(self, name, content):
        file = self.folder / name
        file.write_bytes(content)
        return file

    def assert_saved_alike(self, project):
        """The host saves what the editor would, and each of them what the other has saved, byte for byte."""
        by_host, told = self.saved_by_the_host(project)
        by_command = self.saved_by_the_command_line(project)
        self.assertEqual(by_host, by_command)
        again = self.project("again.plexel", by_host)
        self.assertEqual(self.saved_by_the_command_line(again), by_host)
        self.assertEqual(self.saved_by_the_host(again)[0], by_host)
        return told

    def sample(self):
        return self.data / "projects" / "sample.plexel"

    def all_definitions(self):
        return self.saved_by_the_command_line(self.sample(), DEFINITIONS)

    def test_the_sample_project_keeps_every_byte(self):
        self.assertEqual(self.assert_saved_alike(self.sample()), "")
        self.assertEqual(self.saved_by_the_host(self.sample())[0], self.sample().read_bytes())

    def test_definitions_of_every_kind_are_saved_as_by_the_editor(self):
        content = self.all_definitions()
        self.assertNotEqual(content, self.sample().read_bytes())
        self.assertEqual(self.assert_saved_alike(self.project("all.plexel", content)), "")

    def test_a_panel_that_is_carried_stays_with_the_project(self):
        panel = (self.data / "panels" / "Large.panel").read_text(encoding="utf-8")
        panel = panel.replace("24 function keys", "carried along")
        escaped = panel.replace("\\", "\\\\").encode("ascii").splitlines()
        lines = b"[PANEL]\r\n" + b"".join(b"Line=" + line + b"\r\n" for line in escaped) + b"\r\n"
        content = self.sample().read_bytes().replace(b"\r\n", b"\n").replace(b"\n", b"\r\n")
        content = content.replace(b"Format=1", b"Format=2").replace(b"[ELEMENT", lines + b"[ELEMENT", 1)
        project = self.project("carried.plexel", content)
        self.assertEqual(self.assert_saved_alike(project), "")
        self.assertIn(b"carried along", self.saved_by_the_host(project)[0])

    def test_foreign_values_are_kept_and_unread_ones_told(self):
        content = self.all_definitions().replace(b"[ELEMENT F3]\n", b"[ELEMENT F3]\n" + FOREIGN)
        self.assertIn(FOREIGN, content)
        kept = self.project("foreign.plexel", content)
        self.assertEqual(self.assert_saved_alike(kept), "")
        self.assertIn(b"MyTool=string kept", self.saved_by_the_host(kept)[0])
        content = content.replace(b"[ELEMENT F4]\n", b"[ELEMENT F4]\n" + UNREAD)
        self.assertIn("F4: FocusColor", self.assert_saved_alike(self.project("unread.plexel", content)))

    def test_elements_that_the_project_lacks_are_new(self):
        content = self.sample().read_bytes()
        content = re.sub(rb"Elements=\d+", b"Elements=1", content)
        first = content.index(b"[ELEMENT")
        content = content[:content.index(b"[ELEMENT", first + 1)] + b"[END]\n"
        self.assertEqual(self.assert_saved_alike(self.project("one.plexel", content)), "")

    def test_what_cannot_be_read_or_written_is_told_with_its_place(self):
        missing = self.host(self.wine.name(self.folder / "missing ☂.plexel"), "--save-as", "x.plexel")
        self.assertEqual(missing.returncode, 2)
        self.assertIn("missing ☂.plexel: cannot be read", missing.stderr.decode("utf-8"))
        damaged = self.project("damaged.plexel", self.sample().read_bytes().replace(b"SizeX=int16", b"SizeX=int17", 1))
        target = self.project("kept.plexel", b"kept")
        run = self.host(self.wine.name(damaged), "--save-as", self.wine.name(target))
        self.assertEqual(run.returncode, 2)
        self.assertRegex(run.stderr.decode("utf-8"), r"damaged\.plexel:\d+: ")
        self.assertEqual(target.read_bytes(), b"kept")
        target.chmod(0o444)
        run = self.host(self.wine.name(self.sample()), "--save-as", self.wine.name(target))
        self.assertEqual(run.returncode, 2)
        self.assertIn("kept.plexel: cannot be written", run.stderr.decode("utf-8"))
        self.assertEqual(target.read_bytes(), b"kept")

    def test_words_that_mean_nothing_are_refused(self):
        run = self.host("--nothing")
        self.assertEqual((run.returncode, run.stdout), (2, b""))
        self.assertTrue(run.stderr.startswith(b"usage: plexel-host"))

    def test_a_control_that_is_not_registered_is_told(self):
        self.register("/u")
        try:
            run = self.host(self.wine.name(self.sample()), "--save-as", self.wine.name(self.folder / "none.plexel"))
        finally:
            self.register()
        self.assertEqual(run.returncode, 2)
        self.assertIn(b"CLSIDFromProgID", run.stderr)
        self.assertFalse((self.folder / "none.plexel").exists())

    def on_screen(self, program, *words):
        with self.wine.shown("us"):
            run = self.wine.run(program, *words, data=self.data,
                                environment={"PLEXEL_PICTURES": self.wine.name(self.pictures)})
        return run, run.stdout.decode("utf-8", "replace")

    def test_the_control_holds_what_containers_count_on(self):
        run, told = self.on_screen(self.program("plexel-host.exe"), "--check")
        lines = told.splitlines()
        self.assertEqual([line for line in lines if not line.startswith("ok: ")], [], run)
        self.assertEqual(run.returncode, 0, run)
        self.assertGreater(len(lines), 20)

    def test_the_window_by_mouse_and_keys(self):
        run, told = self.on_screen(self.build / ("build-" + self.bits) / "bin" / "test_host.exe")
        self.assertEqual(run.returncode, 0, told[-6000:])
        self.assertGreater(int(re.search(r"\[  PASSED  \] (\d+) test", told).group(1)), 23)
        self.assertGreaterEqual(len(list(self.pictures.glob("host-*.png"))), 6)
