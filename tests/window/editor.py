"""The editor under test, as its user meets it."""

import json
import subprocess
import time
from pathlib import Path

from desktop import Box, Failed, PATIENCE, wait_for
from keys import KEYS, press
from project import Panel, read_project, read_values

TWIPS = 15  # on a pixel at scale 1
PAGE_LEFT, PAGE_TOP = 2, 24  # pixels round the pages of a tab strip
MAIN = "\u2013 Plexel"  # ends the title of the editor's window


def in_both_languages(test):
    """A test of (tools, folder, language), run in each language with a folder of its own."""
    def both(tools, folder):
        for language in ("English", "German"):
            own = folder / f"{folder.name}-{language}"
            own.mkdir()
            test(tools, own, language)
    return both


class Tools:
    """What the tests work with."""

    def __init__(self, build, source, pictures):
        programs = Path(build).resolve() / "bin"
        self.editor, self.script, self.typist = (programs / name for name in ("plexel-editor", "plexel", "typist"))
        self.data, self.pictures = Path(source).resolve() / "data", Path(pictures).resolve()

    def texts(self, language):
        """The texts as windows show them, without the marks of the menus' letters."""
        return {int(number): text.replace("&", "")
                for number, text in read_values(self.data / "languages" / f"{language}.lang").items()}


class Plan:
    """Where the controls of a form lie, as the command line tells it for the same element.

    `setup` are commands of a script that bring the form to the front."""

    def __init__(self, tools, setup):
        self.tools, self.setup, self.known = tools, list(setup), {}

    def ask(self, command, answer):
        if command not in self.known:
            commands = "\n".join([*self.setup, command, "close", ""])
            told = subprocess.run([tools_path(self.tools.script), "script"], input=commands, capture_output=True,
                                  text=True, encoding="utf-8", timeout=PATIENCE).stdout
            answers = [json.loads(line) for line in told.splitlines()]
            found = [one[answer] for one in answers if one.get(answer)]
            if not found:
                raise Failed(f"{command}: {[one for one in answers if one.get('ok') is False]}")
            self.known[command] = found[0]
        return self.known[command]

    def title(self):
        return self.ask("form", "form")["Caption"]

    def control(self, name):
        return self.ask(f"control {name}", "control")

    def box(self, path):
        """In pixels at scale 1, from the form's corner. `path` names the control behind its containers."""
        left = top = 0.0
        for name in path:
            control = self.control(name)
            left += control["Left"] / TWIPS
            top += control["Top"] / TWIPS
            if control["Kind"] == "TabStrip" and name != path[-1]:
                left, top = left + PAGE_LEFT, top + PAGE_TOP
        return Box(left, top, control["Width"] / TWIPS, control["Height"] / TWIPS)


def tools_path(path):
    if not path.exists():
        raise Failed(f"{path} is missing")
    return str(path)


class Dialog:
    """A dialog on the screen. `setup` brings it to the front in a script; `below` are dialogs under it."""

    def __init__(self, editor, setup, below=()):
        self.editor = editor
        self.plan = Plan(editor.tools, [f"language {editor.language}", *setup])
        self.title = self.plan.title()
        self.window = editor.desktop.window(self.title, [one.window.id for one in below])

    def box(self, *path):
        scale, local = self.editor.scale, self.plan.box(path)
        return Box(self.window.left + local.left * scale, self.window.top + local.top * scale, local.width * scale,
                   local.height * scale)

    def click(self, *path, button=1):
        self.editor.desktop.click(self.box(*path).centre(), button)

    def choose(self, *path):
        """Clicks on the button of an option."""
        box = self.box(*path)
        self.editor.desktop.click((box.left + 8 * self.editor.scale, box.top + box.height // 2))

    def window_with_popup(self):
        """The place of the dialog together with an open menu."""
        popup, own = self.editor.desktop.popup(), self.window
        left, top = min(own.left, popup.left), min(own.top, popup.top)
        right = max(own.left + own.width, popup.left + popup.width)
        return Box(left, top, right - left, max(own.top + own.height, popup.top + popup.height) - top)

    def pick(self, path, entry, entries):
        """Unfolds a list and picks one of its entries, by the mouse."""
        self.click(*path)
        shown = self.editor.desktop.popup()
        height = shown.height / entries
        self.editor.desktop.click_away_popup((shown.left + shown.width // 2,
                                              round(shown.top + height * (entry + 0.5))))

    def captures(self, *path):
        """Whether a field has the colour of a recording one."""
        return self.editor.desktop.colour(self.box(*path).inner(3), "FFFF00")[0] > 100

    def wait_closed(self):
        self.editor.desktop.gone(self.window)


class ConfigurationDialog(Dialog):
    GRID = ("sstScanCode", "fraButton", "msgScanCodes")
    ROW_HEIGHT = 285  # twips

    def __init__(self, editor, kind):
        super().__init__(editor, ["element A", f"set ElementType {kind}", "set ParentWindow form",
                                  "call OpenConfigurationDialog"])

    def cell(self, layer, press=True):
        grid, scale = self.box(*self.GRID), self.editor.scale
        widths = [width / TWIPS * scale for width in self.plan.control("msgScanCodes")["ColWidth"]]
        height, column = self.ROW_HEIGHT / TWIPS * scale, 1 if press else 2
        return Box(grid.left + sum(widths[:column]), grid.top + layer * height, widths[column], height)

    def is_blank(self, layer, press):
        """Whether nothing stands in a cell."""
        box = self.cell(layer, press).inner(4)
        return self.editor.desktop.colour(box, "FFFFFF")[0] == box.width * box.height

    def turn_to_page(self, page):
        """Brings a page to the front, from the strip's first one."""
        strip = self.box("sstScanCode")
        self.editor.desktop.click((strip.left + 15 * self.editor.scale, strip.top + 12 * self.editor.scale))
        self.editor.desktop.tap(*[KEYS["Right"]] * page)

    def captures_in(self, layer, press=True):
        count, _ = self.editor.desktop.colour(self.cell(layer, press).inner(3), "FFFF00")
        return count > 100

    def start_capture(self, layer=1, press=True):
        self.editor.desktop.double_click(self.cell(layer, press).centre())
        self.wait_capture(layer, press)

    def move_capture(self, layer, press):
        self.editor.desktop.click(self.cell(layer, press).centre())
        self.wait_capture(layer, press)

    def wait_capture(self, layer, press=True):
        wait_for(f"recording in layer {layer}", lambda: self.captures_in(layer, press))

    def wait_no_capture(self, layer, press=True):
        wait_for(f"the end of recording in layer {layer}", lambda: not self.captures_in(layer, press))

    def ok(self):
        self.click("cmdOK")
        self.wait_closed()


class Editor:
    def __init__(self, desktop, tools, project=None, panel="Small", scale=1, language="English",
                 settings=None):
        self.desktop, self.tools, self.scale, self.project = desktop, tools, scale, project
        self.language, self.texts = language, tools.texts(language)
        self.panel = Panel(tools.data / "panels" / f"{panel}.panel")
        self.configuration = Path(desktop.environment["XDG_CONFIG_HOME"]) / "plexel"
        if settings is not None:
            self.configuration.mkdir(parents=True, exist_ok=True)
            lines = [f"Language={language}"] + [f"{name}={value}" for name, value in settings.items()]
            (self.configuration / "settings.ini").write_text("[SETTINGS]\n" + "\n".join(lines) + "\n", encoding="utf-8")
        self.log = desktop.folder / "plexel-editor.log"
        self.log.touch()
        # The desktop has no message bus, and with that no portal. Qt that asks for one in vain leaks the question.
        environment = {"QT_QPA_PLATFORM": "xcb", "QT_SCALE_FACTOR": str(scale), "DBUS_SESSION_BUS_ADDRESS": "disabled:",
                       "QT_NO_XDG_DESKTOP_PORTAL": "1"}
        command = [tools_path(tools.editor)] + ([str(project)] if project else [])
        self.process = desktop.start(command, environment)
        self.window = self.first_window()

    def first_window(self):
        return self.desktop.window(MAIN)

    # ---- the panel

    def element(self, name):
        """The place of an element on the screen, once the panel is drawn."""
        facts = self.panel

        seen = []

        def still():
            self.window = self.desktop.window(MAIN)
            count, box = self.desktop.colour(self.window, facts.screen_colour)
            seen.append((str(box), box, str(self.window)))
            time.sleep(0.05)
            return count > 1000 and len(seen) > 1 and seen[-1][::2] == seen[-2][::2]

        # A light falls on the left of the panel's screen: its colour ends at the other edges.
        wait_for("the picture of the panel", still)
        screen = seen[-1][1]
        right, top = facts.screen[0] + facts.screen[2], facts.screen[1]
        left = screen.left + screen.width - right * self.scale
        above = screen.top - top * self.scale
        box = facts.elements[name]
        return Box(left + box[0] * self.scale, above + box[1] * self.scale, box[2] * self.scale, box[3] * self.scale)

    def configure(self, name):
        """Opens the configuration dialog of an element by a double click."""
        self.desktop.double_click(self.element(name).centre())
        return self.configuration_dialog(name)

    def configuration_dialog(self, name):
        """The dialog of an element, once it is open."""
        return ConfigurationDialog(self, self.panel.kinds[name])

    # ---- the project

    def wait_modified(self, modified):
        wait_for("the mark of a changed project" if modified else "the end of the mark of a changed project",
                 lambda: any(MAIN in one["title"] and ("*" in one["title"]) == modified
                             for one in self.desktop.windows()))

    def save(self):
        """Saves by Ctrl+S and gives the elements of the saved project."""
        self.wait_modified(True)
        return self.save_typed()

    def save_typed(self):
        """The same for what is still being typed and so has not changed the project yet."""
        before = Path(self.project).stat().st_mtime_ns
        self.desktop.window(MAIN)
        press(self.desktop, "LeftCtrl+s")
        wait_for("the saved project", lambda: Path(self.project).stat().st_mtime_ns != before)
        self.wait_modified(False)
        return read_project(self.project)

    def ready_for_keys(self):
        """Waits until no menu takes the keys any more, and the window has them."""
        self.desktop.no_popup()
        return self.desktop.window(MAIN)

    def quit(self):
        """Leaves by Ctrl+Q and looks at what the editor left behind."""
        self.ready_for_keys()
        press(self.desktop, "LeftCtrl+q")
        self.wait_end()

    def leave_changed(self):
        """Leaves by Ctrl+Q without saving what has changed."""
        main = self.ready_for_keys()
        press(self.desktop, "LeftCtrl+q")
        self.desktop.window("Plexel", [main.id])
        press(self.desktop, "Tab Return")
        self.wait_end()

    def wait_end(self):
        try:
            status = self.process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            raise Failed("the editor does not end") from None
        said = self.log.read_text(encoding="utf-8", errors="replace")
        if status != 0 or "Sanitizer" in said or "runtime error" in said:
            raise Failed(f"the editor ended with status {status} and said:\n{said}")

    def pause(self, seconds):
        """Lets time pass where the passing of time is what is tested."""
        time.sleep(seconds)
