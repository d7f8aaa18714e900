"""The dialogs as native windows, and the platform below them: the programs of tests/win32, run with Wine on displays of their own."""

import pathlib
import re

from wine import Wine

TELLINGS = pathlib.Path(__file__).resolve().parents[1] / "dialogs"


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
        with self.wine.shown(layout):
            run = self.wine.run(self.build / ("build-" + self.bits) / "bin" / "test_win32.exe", *words, data=self.data,
                                environment={"PLEXEL_LAYOUT": layout, "PLEXEL_PICTURES": self.wine.name(self.pictures),
                                             "PLEXEL_TELLINGS": self.wine.name(TELLINGS)})
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
