#!/usr/bin/env python3
"""soak.py BUILD SOURCE [DIALOGS]: a long day in the editor under an X server of its own. The configuration dialog is opened
and closed again and again; between that, keys are defined, taken back, copied, searched for and saved. Tells along the way
what the editor holds of memory and handles and how long it works for a dialog with what lies between, and fails when one of them goes on growing."""

import os
import shutil
import statistics
import sys
import tempfile
from pathlib import Path

from desktop import Desktop
from editor import MAIN, ConfigurationDialog, Editor, Tools
from keys import press
from project import write_empty_project

LOOKS = 20  # at what the editor holds
KEY, OTHER = "F1", "F2"
GROWTH = 1.05  # what the last looks may have more than those behind the first quarter; of time twice as much


def megabytes(process):
    """Of memory that is the editor's own."""
    told = Path(f"/proc/{process.pid}/smaps_rollup").read_text(encoding="ascii")
    return sum(int(line.split()[1]) for line in told.splitlines() if line.startswith("Private_")) / 1024


def handles(process):
    return len(os.listdir(f"/proc/{process.pid}/fd"))


def processor_time(process):
    """Milliseconds that the editor has worked so far."""
    words = Path(f"/proc/{process.pid}/stat").read_text(encoding="ascii").rsplit(")", 1)[1].split()
    return (int(words[11]) + int(words[12])) * 1000 / os.sysconf("SC_CLK_TCK")


class Day:
    """Each round opens one dialog. Some do more."""

    def __init__(self, desktop, editor):
        self.desktop, self.editor, self.acts = desktop, editor, 0
        self.key, self.other = (editor.element(name).centre() for name in (KEY, OTHER))
        desktop.click(self.key)
        press(desktop, "Return")
        self.dialog = ConfigurationDialog(editor, editor.panel.kinds[KEY])
        press(desktop, "Esc")
        self.dialog.wait_closed()

    def do(self, words):
        press(self.desktop, words)
        self.acts += len(words.split())

    def round(self, number):
        self.do("Return")
        self.dialog.window = self.desktop.window(self.dialog.title)
        if number % 20 == 0:
            self.define()
        else:
            self.do("Esc")
            self.dialog.wait_closed()
        self.desktop.window(MAIN)
        if number % 50 == 0:
            self.copy()
        if number % 200 == 0:
            self.look_around()

    def define(self):
        """Records a key, keeps it in the file, and takes it back."""
        self.dialog.start_capture()
        self.do("F13")
        self.dialog.ok()
        self.editor.save()
        self.do("LeftCtrl+z")
        self.editor.save()
        self.acts += 4

    def copy(self):
        self.do("LeftCtrl+c")
        self.desktop.click(self.other)
        self.do("LeftCtrl+v LeftCtrl+z")
        self.desktop.click(self.key)
        self.acts += 2

    def look_around(self):
        """Searches in the overview, changes what the picture shows, and comes back to the key."""
        self.do("LeftCtrl+f f 1 Esc")
        for steps in (3, -3):
            self.desktop.wheel(self.key, steps)
        self.desktop.click(self.key)
        self.acts += 7


def grown(values, factor):
    """Whether the last quarter holds more than the second one."""
    quarter = len(values) // 4
    before, after = (statistics.median(part) for part in (values[quarter:2 * quarter], values[-quarter:]))
    return after > before * factor


def main(build, source, dialogs="10000"):
    tools = Tools(build, source, Path(build) / "pictures" / "soak")
    home = Path(tempfile.mkdtemp(prefix="plexel-soak-"))
    project = home / "soak.plexel"
    write_empty_project(project, "Large")
    looks, portion = [], max(int(dialogs) // LOOKS, 1)
    print("dialogs   acts  memory MB  handles  work ms", flush=True)
    with Desktop(tools, home) as desktop:
        editor = Editor(desktop, tools, project, panel="Large")
        day = Day(desktop, editor)
        worked = processor_time(editor.process)
        for number in range(1, portion * LOOKS + 1):
            day.round(number)
            if number % portion == 0:
                before, worked = worked, processor_time(editor.process)
                look = (megabytes(editor.process), handles(editor.process), (worked - before) / portion)
                looks.append(look)
                print("%7d %6d %10.1f %8d %8.1f" % (number, day.acts, *look), flush=True)
        editor.quit()
    shutil.rmtree(home)
    names = ("memory", "handles", "time")
    growing = [name for name, values, factor in zip(names, zip(*looks), (GROWTH, 1, 1 + 2 * (GROWTH - 1)))
               if grown(values, factor)]
    print(f"{', '.join(growing)} keep growing" if growing else "nothing keeps growing")
    return 1 if growing else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
