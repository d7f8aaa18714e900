"""Runs programs for Windows with Wine, in a prefix of their own."""

import contextlib
import os
import pathlib
import shutil
import subprocess
import tempfile


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


class Wine:
    """A prefix of a bitness, made when it is missing. Its server ends with `close`.

    One program idles as long as others are run. Without one, Wine ends its services behind each program and starts them anew with
    the next, which shares its error stream with them, so that their troubles look like its own."""

    def __init__(self, prefix, bits="x64"):
        self.program = shutil.which("wine" if bits == "x86" else "wine64") or shutil.which("wine") or "/usr/lib/wine/wine64"
        self.environment = dict(os.environ, WINEPREFIX=str(pathlib.Path(prefix).resolve()), WINEDEBUG="-all",
                                WINEARCH="win32" if bits == "x86" else "win64",
                                WINEDLLOVERRIDES="mscoree=d;mshtml=d;winedbg.exe=d;winemenubuilder.exe=d")
        self.environment.pop("DISPLAY", None)
        self.idler = None
        if not pathlib.Path(prefix, "system.reg").exists():
            self.call("wineboot", "-i")
            self.wait()  # what it has started goes on behind it

    @contextlib.contextmanager
    def shown(self, layout):
        """What is run meanwhile is shown on a display of its own, with a keyboard layout. Wine draws the frames of windows by itself:
        there is no window manager to wait for."""
        self.call("wine", "reg", "add", r"HKCU\Software\Wine\X11 Driver", "/v", "Managed", "/d", "N", "/f")
        self.close()  # a desktop that is there knows no display
        with display(layout) as name:
            self.environment["DISPLAY"] = name
            try:
                yield
            finally:
                self.close()  # with the display, the desktop that it has shown goes
                del self.environment["DISPLAY"]

    def call(self, *words):
        subprocess.run(words, env=self.environment, check=True, capture_output=True, timeout=300)

    def run(self, program, *words, data=None, environment=None, **options):
        """Gives what subprocess.run gives. `data`: the folder of the data, as this system names it."""
        environment = dict(self.environment, **(environment or {}))
        self.idle(environment)
        if data:
            environment["PLEXEL_DATA"] = self.name(data)
        # Files, not pipes: services that the program has started hold its streams for longer than it lives.
        with tempfile.TemporaryFile() as out, tempfile.TemporaryFile() as err:
            run = subprocess.run([self.program, str(program), *words], env=environment, stdout=out, stderr=err, timeout=120, **options)
            for stream in (out, err):
                stream.seek(0)
            run.stdout, run.stderr = out.read(), err.read()
        return run

    def idle(self, environment):
        if self.idler is not None:
            return
        self.idler = subprocess.Popen([self.program, "cmd", "/q", "/k", "echo idle"], env=environment, stdin=subprocess.PIPE,
                                      stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        for line in self.idler.stdout:
            if line.strip() == b"idle":
                return
        raise RuntimeError("Wine does not start")

    def wait(self):
        """Until all that was started has ended."""
        self.end_idler()
        self.call(self.server(), "-w")

    def close(self):
        subprocess.run([self.server(), "-k"], env=self.environment, capture_output=True)
        self.end_idler()

    def end_idler(self):
        if self.idler is not None:
            self.idler.communicate()
            self.idler = None

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
