"""Runs programs for Windows with Wine, in a prefix of their own."""

import os
import pathlib
import shutil
import subprocess


class Wine:
    """A prefix of a bitness, made when it is missing. Its server ends with the object."""

    def __init__(self, prefix, bits="x64"):
        self.program = shutil.which("wine" if bits == "x86" else "wine64") or shutil.which("wine") or "/usr/lib/wine/wine64"
        self.environment = dict(os.environ, WINEPREFIX=str(pathlib.Path(prefix).resolve()), WINEDEBUG="-all",
                                WINEARCH="win32" if bits == "x86" else "win64",
                                WINEDLLOVERRIDES="mscoree=d;mshtml=d;winedbg.exe=d;winemenubuilder.exe=d")
        self.environment.pop("DISPLAY", None)
        if not pathlib.Path(prefix, "system.reg").exists():
            self.call("wineboot", "-i")
            self.call(self.server(), "-w")  # what it has started goes on behind it

    def call(self, *words):
        subprocess.run(words, env=self.environment, check=True, capture_output=True, timeout=300)

    def run(self, program, *words, data=None, environment=None, **options):
        """Gives what subprocess.run gives. `data`: the folder of the data, as this system names it."""
        environment = dict(self.environment, **(environment or {}))
        if data:
            environment["PLEXEL_DATA"] = self.name(data)
        return subprocess.run([self.program, str(program), *words], env=environment, capture_output=True, timeout=120, **options)

    def close(self):
        subprocess.run([self.server(), "-k"], env=self.environment, capture_output=True)

    @staticmethod
    def server():
        return shutil.which("wineserver") or "/usr/lib/wine/wineserver"

    @staticmethod
    def name(file):
        """A file of this system as programs for Windows name it."""
        return "Z:" + str(pathlib.Path(file).resolve()).replace("/", "\\")


def runs_32_bit():
    """Whether this system's Wine has the part for programs of 32 bit."""
    return pathlib.Path("/usr/lib/wine/wine").exists()
