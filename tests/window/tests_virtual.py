"""The virtual panel: its keys reach the program in front, and none stays down behind the editor."""

import os
import signal
from pathlib import Path

from desktop import Box, Desktop, Failed, PATIENCE, wait_for
from editor import Editor
from keys import KEYS, press
from project import write_empty_project

RECEIVER = "Receiver"
A, LEFT_CTRL = KEYS["a"], KEYS["LeftCtrl"]


ELEMENTS = """[ELEMENT F1]
ZoomFactor=int16 100
SizeX=int16 72
strLayer1PressScanCode=codes 2 FF1CFF*43
strLayer1ReleaseScanCode=codes 3 FFF01CFF*42

[ELEMENT F2]
ZoomFactor=int16 100
SizeX=int16 72
strLayer1PressScanCode=codes 2 FF14FF*43

"""


def write_project(file):
    """F1 sends a, and F2 leaves the left Ctrl key down."""
    write_empty_project(file, "Small")
    empty = file.read_bytes()
    file.write_bytes(empty.replace(b"Elements=0\n", b"Elements=2\n\n" + ELEMENTS.encode()))


class VirtualPanel:
    """The editor with its virtual panel, and another program in front."""

    def __init__(self, desktop, tools, project, language="English"):
        self.desktop = desktop
        self.editor = Editor(desktop, tools, project, language=language, settings={})
        title = self.editor.texts[21122].split("%1")[0]
        press(desktop, "LeftShift+F5")

        def shown():
            return next((one for one in desktop.windows() if one["title"].startswith(title)), None)

        self.window = wait_for("the virtual panel", shown)
        if self.window["active"]:
            raise Failed("the virtual panel takes the focus")
        desktop.do(f"open-window 20 20 300 200 {RECEIVER}")
        self.receiver = desktop.window(RECEIVER)
        self.place = self.still()

    def still(self):
        """Where the panel lies, once the window manager has put it."""
        seen = []

        def same():
            found = next(one for one in self.desktop.windows() if one["id"] == self.window["id"])
            seen.append(found["client"])
            self.editor.pause(0.1)
            return len(seen) > 1 and seen[-1] == seen[-2] and seen[-1]

        return wait_for("the place of the virtual panel", same)

    def middle(self, name):
        left, top, width, height = self.editor.panel.elements[name]
        return self.place[0] + round(left + width / 2), self.place[1] + round(top + height / 2)

    def wait_received(self, wanted):
        received = []

        def all_there():
            received.extend(self.desktop.do("received").split())
            return received == wanted

        try:
            wait_for("keys", all_there, 10)
        except Failed:
            raise Failed(f"received {received}, wanted {wanted}") from None

    def wait_held(self, keys):
        wanted = " ".join(str(key) for key in keys)
        wait_for(f"the held keys to be '{wanted}'", lambda: self.desktop.do("held") == wanted, 10)


def reaches_the_program_in_front(tools, folder):
    for language in ("English", "German"):
        with Desktop(tools, folder) as desktop:
            project = folder / "virtual.plexel"
            write_project(project)
            panel = VirtualPanel(desktop, tools, project, language)
            desktop.click(panel.middle("F1"))
            panel.wait_received([f"+{A}", f"-{A}"])
            desktop.click(panel.middle("F2"))
            panel.wait_held([LEFT_CTRL])
            desktop.window(RECEIVER)  # still in front
            desktop.picture(tools.pictures / f"virtual-panel-{language}.png", Box(*panel.place))
            desktop.do(f"close {panel.window['id']}")
            panel.wait_held([])
            desktop.do(f"activate {desktop.window_id('Plexel')}")
            panel.editor.quit()


def ended(tools, folder, how):
    with Desktop(tools, folder) as desktop:
        project = folder / "virtual.plexel"
        write_project(project)
        panel = VirtualPanel(desktop, tools, project)
        desktop.click(panel.middle("F2"))
        panel.wait_held([LEFT_CTRL])
        panel.editor.process.send_signal(how)
        panel.editor.process.wait(PATIENCE)
        panel.wait_held([])


def killed(tools, folder):
    ended(tools, folder, signal.SIGKILL)


def terminated(tools, folder):
    ended(tools, folder, signal.SIGTERM)


def guard_killed(tools, folder):
    """The program that sends the keys is killed alone: the editor lets go of what it left, and starts another."""
    with Desktop(tools, folder) as desktop:
        project = folder / "virtual.plexel"
        write_project(project)
        panel = VirtualPanel(desktop, tools, project)
        desktop.click(panel.middle("F2"))
        panel.wait_held([LEFT_CTRL])
        children = Path(f"/proc/{panel.editor.process.pid}/task/{panel.editor.process.pid}/children")
        for guard in children.read_text().split():
            os.kill(int(guard), signal.SIGKILL)
        panel.wait_held([])
        desktop.click(panel.middle("F1"))
        panel.wait_received([f"+{LEFT_CTRL}", f"-{LEFT_CTRL}", f"+{A}", f"-{A}"])
        desktop.do(f"activate {desktop.window_id('Plexel')}")
        panel.editor.quit()
