"""How a project comes into the window: from the recent ones, carried there, and when it cannot."""

import shutil

from desktop import Box, Desktop, Failed, Window, wait_for
from editor import MAIN, Editor
from keys import press
from project import read_values, write_empty_project
from tests_work import F2_HOLDS_CTRL, write_project

SCREEN = {1: (1300, 1000), 2: (2400, 1800)}
NOTICE = "FFFFDC"


def views(folder):
    """A language and a scale at a time, with a folder of their own."""
    for language, scale in (("English", 1), ("German", 2)):
        own = folder / f"{folder.name}-{language}"
        own.mkdir()
        yield language, scale, own


def wait_open(desktop, name, modified=False):
    title = f"{name}{'*' if modified else ''} {MAIN}"
    wait_for(f"the title {title!r}", lambda: any(one["title"] == title for one in desktop.windows()))


def box_of(desktop, besides=()):
    """A message of the editor, once it has the keyboard."""
    def find():
        return next((one for one in desktop.windows()
                     if one["title"] == "Plexel" and one["active"] and one["id"] not in besides), None)
    found = wait_for("a message", find)
    return Window(found["id"], *found["client"])


class ToldEditor(Editor):
    """An editor that cannot open its project, says so, and goes on with an empty one. `picture` is what is kept of that."""

    def __init__(self, *words, picture, **named):
        self.picture = picture
        super().__init__(*words, **named)

    def first_window(self):
        asked = box_of(self.desktop)
        self.desktop.picture(self.tools.pictures / f"{self.picture}-{self.language}-{self.scale}.png", asked)
        press(self.desktop, "Return")
        self.desktop.gone(asked)
        return super().first_window()

    def told(self):
        return self.log.read_text(encoding="utf-8")


def recent(tools, folder):
    """The projects of earlier runs are found again; one that is gone leaves the list, which can be emptied."""
    for language, scale, own in views(folder):
        menu, empty = {"English": ("LeftAlt+f r", "c"), "German": ("LeftAlt+d z", "l")}[language]
        with Desktop(tools, own, size=SCREEN[scale]) as desktop:
            for name in ("first", "second", "third"):
                project = own / f"{name}.plexel"
                write_empty_project(project, "Small")
                editor = Editor(desktop, tools, project, scale=scale, language=language, settings={})
                if name != "third":
                    editor.quit()
            desktop.open_menu(menu)
            desktop.picture(tools.pictures / f"recent-{language}-{scale}.png", editor.window)
            press(desktop, "3")
            wait_open(desktop, "first.plexel")
            (own / "third.plexel").unlink()
            desktop.open_menu(menu)
            press(desktop, "2")
            asked = box_of(desktop)
            press(desktop, "Return")
            desktop.gone(asked)
            wait_open(desktop, "first.plexel")
            editor.quit()
            expect_recent(editor, f"{own}/first.plexel {own}/second.plexel")
            editor = Editor(desktop, tools, scale=scale, language=language)
            desktop.open_menu(menu)
            press(desktop, empty)
            editor.quit()
            expect_recent(editor, "")


def expect_recent(editor, files):
    kept = read_values(editor.configuration / "editor.ini")["Recent"]
    if kept != files:
        raise Failed(f"the recent projects are {kept!r}, not {files!r}")


def dropped(tools, folder):
    """A project that is dropped onto the window is opened in place of the open one, which is asked for when it has
    changed."""
    for language, scale, own in views(folder):
        with Desktop(tools, own, size=SCREEN[scale]) as desktop:
            first, second, newer = (own / f"{name}.plexel" for name in ("first", "\u00e4 & 100% #2", "newer"))
            write_project(first, F2_HOLDS_CTRL)
            write_empty_project(second, "Small")
            write_newer_project(newer)
            before = first.read_bytes()
            editor = Editor(desktop, tools, first, scale=scale, language=language, settings={})
            picture = editor.element("F2").centre()
            side = (editor.window.left + editor.window.width - 40, editor.window.top + editor.window.height // 3)
            desktop.click(picture)
            press(desktop, "Delete")
            editor.wait_modified(True)
            for place, answer in ((picture, "Esc"), (side, "Tab Return")):
                wait_open(desktop, first.name, True)
                desktop.drop_file(second, editor.window, place)
                asked = box_of(desktop)
                press(desktop, answer)
                desktop.gone(asked)
            wait_open(desktop, second.name)
            desktop.drop_file(newer, editor.window, picture)
            asked = box_of(desktop)
            press(desktop, "Return")
            desktop.gone(asked)
            wait_open(desktop, second.name)
            desktop.drop_file(first, editor.window, picture)
            wait_open(desktop, first.name)
            if first.read_bytes() != before:
                raise Failed("a project has changed that was not saved")
            editor.quit()


def write_newer_project(file):
    file.write_bytes(b"[PROJECT]\nFormat=9\nMarks=\x8b\x9b\nPanel=Small\nWhatever=1\n")


def newer_format(tools, folder):
    """A project of a format that only later versions know is refused and stays as it is."""
    for language, scale, own in views(folder):
        with Desktop(tools, own, size=SCREEN[scale]) as desktop:
            project = own / "newer.plexel"
            write_newer_project(project)
            before = (project.read_bytes(), project.stat().st_mtime_ns, sorted(own.glob("*.plexel*")))
            editor = ToldEditor(desktop, tools, project, scale=scale, language=language, settings={},
                                picture="newer-format")
            expect_told(editor, 20217, project.name, 9)
            wait_open(desktop, editor.texts[20210])
            editor.quit()
            if (project.read_bytes(), project.stat().st_mtime_ns, sorted(own.glob("*.plexel*"))) != before:
                raise Failed("a project that was refused has been touched")


def expect_told(editor, number, *values):
    words = editor.texts[number]
    for place, value in enumerate(values, 1):
        words = words.replace(f"%{place}", str(value))
    for wanted in (editor.texts[20207], words):
        if wanted not in editor.told():
            raise Failed(f"{wanted!r} is not told, but:\n{editor.told()}")


def panel_missing(tools, folder):
    """A project opens where its panel is missing when it carries it, and is refused in words when it does not."""
    for language, scale, own in views(folder):
        with Desktop(tools, own, size=SCREEN[scale]) as desktop:
            project = own / "project.plexel"
            write_project(project, F2_HOLDS_CTRL)
            alone = project.read_bytes()
            editor = Editor(desktop, tools, project, scale=scale, language=language, settings={})
            desktop.click(editor.element("F2").centre())
            press(desktop, "Delete")
            editor.save()
            editor.quit()
            data = own / "data"
            shutil.copytree(tools.data, data)
            (data / "panels" / "Small.panel").unlink()
            desktop.environment["PLEXEL_DATA"] = str(data)
            editor = Editor(desktop, tools, project, scale=scale, language=language)
            desktop.click(editor.element("F2").centre())
            press(desktop, "LeftCtrl+z")
            editor.wait_modified(False)  # it is there, with nothing to take back
            editor.quit()
            project.write_bytes(alone)
            editor = ToldEditor(desktop, tools, project, scale=scale, language=language, picture="panel-missing")
            expect_told(editor, 20215, "Small")
            wait_open(desktop, editor.texts[20210])
            editor.quit()
            if project.read_bytes() != alone:
                raise Failed("a project that was refused has been touched")


class SecondEditor(Editor):
    """An editor beside another one."""

    def __init__(self, first, *words, **named):
        self.first = first
        super().__init__(*words, **named)

    def first_window(self):
        return self.desktop.window(MAIN, [self.first.window.id])


def notice(desktop, number):
    """How much of the line above the picture is to be seen in a window, which is brought to the front."""
    def in_front():
        return next((one for one in desktop.windows() if one["id"] == number and one["active"]), None)

    if not in_front():
        desktop.do(f"activate {number}")
    window = Box(*wait_for("the window to come to the front", in_front)["client"])
    return desktop.colour(Box(window.left, window.top, window.width, window.height // 3), NOTICE)[0]


def two_editors(tools, folder):
    """Both of two editors on one file say so, until one of them goes; what one saves is told by the other."""
    for language, scale, own in views(folder):
        with Desktop(tools, own, size=SCREEN[scale]) as desktop:
            project = own / "shared.plexel"
            write_project(project, F2_HOLDS_CTRL)
            mine = Editor(desktop, tools, project, scale=scale, language=language, settings={})
            if notice(desktop, mine.window.id):
                raise Failed("a lone editor warns of others")
            theirs = SecondEditor(mine, desktop, tools, project, scale=scale, language=language)
            for one in (mine, theirs):
                wait_for("the warning", lambda: notice(desktop, one.window.id) > 2000 * scale)
            desktop.picture(tools.pictures / f"two-editors-{language}-{scale}.png", desktop.window(MAIN))
            theirs.quit()
            wait_for("the end of the warning", lambda: notice(desktop, mine.window.id) == 0)
            mine.quit()
