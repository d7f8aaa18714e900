"""A desktop of its own: an X server without a screen, a window manager that has no key bindings but those asked for,
and a typist on it."""

import json
import os
import select
import shutil
import struct
import subprocess
import sys
import time
import zlib
from pathlib import Path

from keys import KEYS, press

PATIENCE = 30  # seconds that anything may take before it counts as not happening


class Failed(Exception):
    """Something is not as it must be."""


def wait_for(what, condition, patience=PATIENCE):
    """Asks again and again until the condition is true, and gives what it gave."""
    deadline = time.monotonic() + patience
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > deadline:
            raise Failed(f"waited in vain for: {what}")
        time.sleep(0.02)


def need(program):
    found = shutil.which(program)
    if not found:
        raise Failed(f"{program} is not installed")
    return found


class Box:
    """A place on the screen, in pixels."""

    def __init__(self, left, top, width, height):
        self.left, self.top, self.width, self.height = (round(one) for one in (left, top, width, height))

    def centre(self):
        return self.left + self.width // 2, self.top + self.height // 2

    def inner(self, margin):
        return Box(self.left + margin, self.top + margin, self.width - 2 * margin, self.height - 2 * margin)

    def __str__(self):
        return f"{self.left} {self.top} {self.width} {self.height}"


class Window(Box):
    """A window of a program, without its frame."""

    def __init__(self, number, *box):
        super().__init__(*box)
        self.id = number


def window_manager_settings(bindings):
    keys = "".join(
        f'<keybind key="{key}"><action name="Execute"><command>touch {file}</command></action></keybind>'
        for key, file in bindings.items())
    return f"""<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew><followMouse>no</followMouse></focus>
  <placement><policy>Smart</policy></placement>
  <desktops><number>1</number></desktops>
  <keyboard>{keys}</keyboard>
  <mouse>
    <context name="Frame"/>
    <context name="Titlebar">
      <mousebind button="Left" action="Drag"><action name="Move"/></mousebind>
    </context>
  </mouse>
</openbox_config>
"""


class Desktop:
    """`bindings` makes keys of the window manager touch a file each: {"A-Tab": path}."""

    def __init__(self, tools, folder, layout="us", size=(1600, 1200), bindings=None):
        self.folder, self.last_picture = Path(folder), tools.pictures / f"failed-{Path(folder).name}.png"
        self.processes = []
        self.environment = {
            "PATH": os.environ.get("PATH", "/usr/bin:/bin"),
            "HOME": str(self.folder / "home"),
            "XDG_CONFIG_HOME": str(self.folder / "home" / ".config"),
            "XDG_CACHE_HOME": str(self.folder / "cache"),
            "XDG_RUNTIME_DIR": str(self.folder / "run"),
            "LANG": "C.UTF-8",
        }
        for name in ("HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"):
            Path(self.environment[name]).mkdir(parents=True, exist_ok=True)
        os.chmod(self.environment["XDG_RUNTIME_DIR"], 0o700)
        try:
            self._start_server(size)
            self._run([need("setxkbmap"), "-rules", "evdev", "-model", "pc105", "-layout", layout])
            self._start_window_manager(bindings or {})
            self.typist = self.start([str(tools.typist)], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True,
                                     encoding="utf-8")
            wait_for("the window manager's answer", lambda: self.do("answered") == "true")
        except BaseException:
            self.close()
            raise

    def __enter__(self):
        return self

    def __exit__(self, failure, *_):
        try:
            if failure is not None:
                self._tell_state()
        finally:
            self.close()

    def _tell_state(self):
        """What may explain a failure: a picture of the screen, and which programs have ended."""
        self.keep_picture(self.last_picture)
        print(f"the screen at the failure: {self.last_picture}", file=sys.stderr)
        for process in self.processes:
            if process.poll() is not None:
                print(f"{process.args[0]} has ended with status {process.returncode}", file=sys.stderr)

    def start(self, command, environment=None, **how):
        log = open(self.folder / f"{Path(command[0]).name}.log", "ab")
        how.setdefault("stdout", log)
        how.setdefault("stderr", log)
        how.setdefault("stdin", subprocess.DEVNULL)
        process = subprocess.Popen(command, env={**self.environment, **(environment or {})}, cwd=self.folder, **how)
        log.close()
        self.processes.append(process)
        return process

    def _run(self, command):
        result = subprocess.run(command, env=self.environment, cwd=self.folder, capture_output=True, text=True,
                                timeout=PATIENCE)
        if result.returncode != 0:
            raise Failed(f"{' '.join(command)} failed: {result.stderr.strip()}")

    def _start_server(self, size):
        ours, theirs = os.pipe()
        server = self.start([need("Xvfb"), "-displayfd", str(theirs), "-screen", "0", f"{size[0]}x{size[1]}x24", "-dpi",
                             "96", "-noreset", "-nolisten", "tcp"], pass_fds=[theirs])
        os.close(theirs)
        with os.fdopen(ours) as answers:
            ready, _, _ = select.select([answers], [], [], PATIENCE)
            number = answers.readline().strip() if ready else ""
        if not number or server.poll() is not None:
            raise Failed("the X server does not start")
        self.environment["DISPLAY"] = f":{number}"

    def _start_window_manager(self, bindings):
        settings, ready = self.folder / "openbox.xml", self.folder / "openbox.ready"
        settings.write_text(window_manager_settings(bindings), encoding="utf-8")
        self.start([need("openbox"), "--config-file", str(settings), "--startup", f"touch {ready}"])
        wait_for("the window manager", ready.exists)

    def close(self):
        """Ends what is still running, the youngest first, the server last."""
        for process in reversed(self.processes):
            if process.poll() is None:
                process.terminate()
                try:
                    process.wait(10)
                except subprocess.TimeoutExpired:
                    process.kill()
                    process.wait()
            for pipe in (process.stdin, process.stdout):
                if pipe is not None:
                    pipe.close()
        self.processes.clear()

    # ---- what a user does

    def do(self, command):
        """One command of the typist, and its answer."""
        self.typist.stdin.write(command + "\n")
        self.typist.stdin.flush()
        answer = self.typist.stdout.readline()
        if not answer.startswith("ok"):
            raise Failed(f"{command}: {answer.strip() or 'the typist is gone'}")
        return answer[2:].strip()

    def tap(self, *keys):
        self.do("tap " + " ".join(map(str, keys)))

    def chord(self, *keys):
        self.do("chord " + " ".join(map(str, keys)))

    def hold(self, *keys):
        self.do("key down " + " ".join(map(str, keys)))

    def free(self, *keys):
        self.do("key up " + " ".join(map(str, keys)))

    def drag(self, start, end, button=1):
        self.do(f"move {start[0]} {start[1]}")
        self.do(f"button down {button}")
        self.do(f"move {(start[0] + end[0]) // 2} {(start[1] + end[1]) // 2}")
        self.do(f"move {end[0]} {end[1]}")
        self.do(f"button up {button}")

    def drop_file(self, file, window, place):
        """Draws a file from a window of another program and drops it at a place of a window."""
        self.do("open-window 0 0 60 40 Files")
        files = self.window("Files")
        self.do(f"move {files.left + 20} {files.top + 20}")
        self.do("button down 1")
        self.do(f"drop {window.id} {place[0]} {place[1]} {Path(file).as_uri()}")
        self.do("button up 1")
        self.do(f"activate {window.id}")

    def wheel(self, place, steps):
        """Turns the wheel over a place, away from the user for more than nothing."""
        self.do(f"move {place[0]} {place[1]}")
        for _ in range(abs(steps)):
            self.do(f"click {4 if steps > 0 else 5}")

    def type(self, text):
        """Types small letters and digits of a US keyboard."""
        self.tap(*(KEYS[character] for character in text))

    def click(self, place, button=1):
        self.do(f"move {place[0]} {place[1]}")
        self.do(f"click {button}")

    def double_click(self, place):
        self.do(f"move {place[0]} {place[1]}")
        self.do("dblclick 1")

    # ---- what a user sees

    def windows(self):
        return json.loads(self.do("windows"))

    def window(self, title, besides=()):
        """Waits for the newest window with these words in its title to have the focus. `besides` are older ones."""
        def find():
            found = [one for one in self.windows() if title in one["title"] and one["id"] not in besides]
            return found[-1] if found and found[-1]["active"] else None
        found = wait_for(f"the window {title!r}", find)
        return Window(found["id"], *found["client"])

    def window_id(self, title):
        """The number of a window, whether it has the focus or not."""
        return next(one["id"] for one in self.windows() if title in one["title"])

    def gone(self, window):
        wait_for("the end of a window", lambda: all(one["id"] != window.id for one in self.windows()))

    def popup(self):
        """Waits for an open menu or list."""
        def find():
            return [one for one in self.windows() if one["popup"]]
        return Box(*wait_for("a menu or list", find)[-1]["client"])

    def open_menu(self, words):
        """Opens a menu by its keys, and menus in it. Each stands still before the next key: the first of them gets the
        keyboard from the server a moment after it has come up, and takes it from the one in it if that is there by then."""
        for count, word in enumerate(words.split(), start=1):
            press(self, word)
            wait_for(f"{count} menus", lambda: len([one for one in self.windows() if one["popup"]]) == count)
            self.still(self.popup())

    def no_popup(self):
        wait_for("the end of a menu or list", lambda: not self.has_popup())

    def has_popup(self):
        return any(one["popup"] for one in self.windows())

    def click_away_popup(self, place):
        """Picks an entry of an open menu or list, which takes no click in the time of a double click."""
        def click():
            if not self.has_popup():
                return True
            self.click(place)
            time.sleep(0.1)
            return not self.has_popup()
        wait_for("a menu or list to take a click", click)

    def colour(self, box, colour):
        """How many pixels of the box have the colour RRGGBB, and the box round them."""
        answer = json.loads(self.do(f"colour {box} {colour}"))
        return answer["count"], Box(*answer["box"])

    def picture(self, file, box):
        """Keeps a picture of the box once nothing moves there any more, and tells how many colours a part of its
        pixels has."""
        ppm = self.still(box)
        keep(file, ppm)
        pixels = ppm.split(b"\n", 3)[3]
        return len({pixels[place:place + 3] for place in range(0, len(pixels), 3 * 7)})

    def still(self, box):
        """What a box looks like once nothing moves there any more."""
        raw = self.folder / "picture.ppm"
        last = []

        def look():
            self.do(f"picture {box} {raw}")
            last.append(raw.read_bytes())
            time.sleep(0.1)
            return len(last) > 1 and last[-1] == last[-2]

        wait_for("a picture that stands still", look)
        return last[-1]

    def keep_picture(self, file):
        """Keeps a picture of the whole screen as it is now."""
        raw = self.folder / "picture.ppm"
        self.do(f"picture {Box(*json.loads(self.do('screen')))} {raw}")
        keep(file, raw.read_bytes())


def keep(file, ppm):
    Path(file).parent.mkdir(parents=True, exist_ok=True)
    Path(file).write_bytes(png_of(ppm))


def png_of(ppm):
    head, size, depth, pixels = ppm.split(b"\n", 3)
    if head != b"P6" or depth != b"255":
        raise Failed("no picture")
    width, height = map(int, size.split())
    rows = b"".join(b"\0" + pixels[row * 3 * width:(row + 1) * 3 * width] for row in range(height))

    def part(kind, content):
        return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))

    return (b"\x89PNG\r\n\x1a\n" + part(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)) +
            part(b"IDAT", zlib.compress(rows, 3)) + part(b"IEND", b""))
