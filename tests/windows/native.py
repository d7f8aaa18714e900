"""The dialogs as native windows, and the platform below them: the programs of tests/win32, run with Wine on displays of their own."""

import contextlib
import os
import pathlib
import re
import subprocess

from wine import Wine

TELLINGS = pathlib.Path(__file__).resolve().parents[1] / "dialogs"


@contextlib.contextmanager
def display(layout):
    """An X server with a keyboard layout; gives its name."""
    read, write = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x1024x24", "-noreset"],
                              pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(write)
    try:
        with os.fdopen(read) as told:
            name = ":" + told.readline().strip()
        subprocess.run(["setxkbmap", "-display", name, layout], check=True)
        yield name
    finally:
        server.terminate()
        server.wait()


class Native:
    """One bitness. Subclasses tell which, and the folder of what was built."""

    bits = None

    @classmethod
    def setUpClass(cls):
        cls.wine = Wine(cls.build / ("prefix-native-" + cls.bits), cls.bits)
        cls.pictures = cls.build / ("pictures-" + cls.bits)
        cls.pictures.mkdir(exist_ok=True)

    @classmethod
    def tearDownClass(cls):
        cls.wine.close()

    def set(self, key, name, kind, value):
        self.wine.call("wine", "reg", "add", key, "/v", name, "/t", kind, "/d", value, "/f")

    def run_on(self, layout, *words):
        """Wine draws the frames of windows by itself: there is no window manager to wait for."""
        self.set(r"HKCU\Software\Wine\X11 Driver", "Managed", "REG_SZ", "N")
        with display(layout) as name:
            run = self.wine.run(self.build / ("build-" + self.bits) / "bin" / "test_win32.exe", *words, data=self.data,
                                environment={"DISPLAY": name, "PLEXEL_LAYOUT": layout,
                                             "PLEXEL_PICTURES": self.wine.name(self.pictures),
                                             "PLEXEL_TELLINGS": self.wine.name(TELLINGS)})
            self.wine.close()  # with the display, the desktop that it has shown goes
        told = run.stdout.decode("utf-8", "replace")
        self.assertEqual(run.returncode, 0, told[-6000:])
        return int(re.search(r"\[  PASSED  \] (\d+) test", told).group(1))

    def test_native_dialogs_and_the_platform(self):
        self.assertGreater(self.run_on("us"), 20)
        self.assertGreaterEqual(len(list(self.pictures.glob("*.png"))), 28)

    def test_real_keys_of_a_german_keyboard(self):
        self.assertGreater(self.run_on("de", "--gtest_filter=RealKeys*"), 5)

    def test_dialogs_on_a_fine_screen(self):
        screen = (r"HKCU\Control Panel\Desktop", "LogPixels", "REG_DWORD")
        self.set(*screen, "144")
        self.wine.close()  # a server that runs keeps the old one
        try:
            self.assertGreater(self.run_on("us", "--gtest_filter=Languages*:Screen*:Accessible*:Modal*"), 10)
        finally:
            self.set(*screen, "96")
            self.wine.close()
