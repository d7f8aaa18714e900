"""A day's work on a project: problems, overview, inspector, copying, each by mouse and keys."""

from capture import compare
from desktop import Box, Desktop, Failed, wait_for
from editor import MAIN, Editor, in_both_languages
from keys import KEYS, press
from project import write_empty_project

ERROR, WARNING, FOUND, LINK = "C8281E", "F5B21D", "E08A00", "0000FF"

F2_HOLDS_CTRL = """[ELEMENT F2]
ZoomFactor=int16 100
SizeX=int16 72
PressKeyDefLayer1=string [Ctrl Left\u2039]
strLayer1PressScanCode=codes 2 FF14FF*43

"""
F3_RELEASES_A = """[ELEMENT F3]
ZoomFactor=int16 100
SizeX=int16 72
ReleaseKeyDefLayer1=string [a\u203a]
strLayer1ReleaseScanCode=codes 3 FFF01CFF*42

"""
F7_SENDS_F13 = """[ELEMENT F7]
ZoomFactor=int16 100
SizeX=int16 70
PressKeyDefLayer2=string [called otherwise\u2039\u203a]
strLayer2PressScanCode=codes 4 FF08F008FF*41

"""


def write_project(file, *elements):
    write_empty_project(file, "Small")
    content = file.read_text(encoding="windows-1252").replace("Elements=0\n", f"Elements={len(elements)}\n\n")
    file.write_text(content.replace("[END]", "".join(elements) + "[END]"), encoding="windows-1252")


def is_open(editor, name):
    """Waits for a dialog of the element, and closes it."""
    dialog = editor.desktop.window(name)
    editor.desktop.do(f"close {dialog.id}")
    editor.desktop.gone(dialog)


def list_box(editor):
    """Where the list of problems has its pictures: at the left below the picture."""
    window = editor.desktop.window(MAIN)
    return Box(window.left, window.top + window.height * 2 // 3, 100, window.height // 3)


def row(editor, colour):
    """The place of a line of the list of problems, by the colour of the picture of its level."""
    def find():
        count, box = editor.desktop.colour(list_box(editor), colour)
        return box.centre() if count else None
    return wait_for(f"a problem in the list, {colour}", find)


def problems(tools, folder):
    for language in ("English", "German"):
        with Desktop(tools, folder) as desktop:
            project = folder / "problems.plexel"
            write_project(project, F2_HOLDS_CTRL, F3_RELEASES_A)
            editor = Editor(desktop, tools, project, language=language, settings={})
            desktop.click(row(editor, ERROR))
            press(desktop, "LeftAlt+Return")
            is_open(editor, "F2")
            desktop.picture(tools.pictures / f"problems-{language}.png", desktop.window(MAIN))
            desktop.double_click(row(editor, WARNING))
            is_open(editor, "F3")
            press(desktop, "Up Return")  # the list has the keyboard
            is_open(editor, "F2")
            second = row(editor, WARNING)
            press(desktop, "Delete")
            wait_for("the first problem to go", lambda: row(editor, WARNING)[1] < second[1])
            press(desktop, "LeftCtrl+z")
            wait_for("the first problem to come back", lambda: row(editor, WARNING) == second)
            editor.wait_modified(False)
            editor.quit()


def overview(tools, folder):
    for language in ("English", "German"):
        with Desktop(tools, folder) as desktop:
            project = folder / "overview.plexel"
            write_project(project, F3_RELEASES_A, F7_SENDS_F13)
            editor = Editor(desktop, tools, project, language=language, settings={})
            press(desktop, "LeftCtrl+f f 3 Return")
            desktop.picture(tools.pictures / f"find-{language}.png", desktop.window(MAIN))
            press(desktop, "LeftAlt+Return")
            is_open(editor, "F3")
            press(desktop, "Down Right Right Right Right Right Right F2 p u m p 2 Return")
            elements = editor.save()
            if elements["F3"].values.get("ButtonNotes") != "pump2":
                raise Failed(f"the note of F3 is {elements['F3'].values.get('ButtonNotes')!r}")
            press(desktop, "LeftCtrl+z")
            if editor.save()["F3"].values.get("ButtonNotes"):
                raise Failed("the note of F3 is not taken back")
            press(desktop, "LeftCtrl+LeftShift+f F13")
            key = editor.element("F7")
            around = Box(key.left - 4, key.top - 4, key.width + 8, key.height + 8)
            wait_for("the mark on what sends F13", lambda: desktop.colour(around, FOUND)[0])
            desktop.picture(tools.pictures / f"find-by-pressing-{language}.png", desktop.window(MAIN))
            press(desktop, "LeftCtrl+f Return LeftAlt+Return")
            is_open(editor, "F7")
            editor.quit()


def inspector(tools, folder):
    for language in ("English", "German"):
        with Desktop(tools, folder) as desktop:
            project = folder / "inspector.plexel"
            write_project(project, F2_HOLDS_CTRL)
            editor = Editor(desktop, tools, project, language=language, settings={})
            desktop.click(editor.element("F2").centre())
            window = desktop.window(MAIN)
            side = Box(window.left + window.width * 3 // 4, window.top, window.width // 4, window.height)
            _, links = wait_for("the lines that can be clicked", lambda: link_box(desktop, side))
            desktop.click((links.left + 4, links.top + 4))
            is_open(editor, "F2")
            press(desktop, "F6 Tab Space")
            is_open(editor, "F2")
            press(desktop, "Tab Tab Tab Tab Space")  # over the other layers to the problem
            is_open(editor, "F2")
            press(desktop, "Tab p u m p 2")
            desktop.picture(tools.pictures / f"inspector-{language}.png", window)
            elements = editor.save_typed()
            if elements["F2"].values.get("ButtonNotes") != "pump2":
                raise Failed(f"the note of F2 is {elements['F2'].values.get('ButtonNotes')!r}")
            editor.quit()


def link_box(desktop, side):
    count, box = desktop.colour(side, LINK)
    return (count, box) if count else None


A = [("a", [("a", "1C F0 1C")])]


def recorded(editor, name, keys="a"):
    dialog = editor.configure(name)
    dialog.start_capture()
    press(editor.desktop, keys)
    dialog.ok()


def choose(editor, *names):
    """Clicks the first one, and the others with Ctrl."""
    for name in names:
        place = editor.element(name).centre()
        if name == names[0]:
            editor.desktop.click(place)
            continue
        editor.desktop.hold(KEYS["LeftCtrl"])
        editor.desktop.click(place)
        editor.desktop.free(KEYS["LeftCtrl"])


@in_both_languages
def many_keys(tools, folder, language):
    """One key is configured, and 23 others become like it by two strokes; none of it opens a dialog."""
    with Desktop(tools, folder) as desktop:
        project = folder / "many.plexel"
        write_empty_project(project, "Large")
        editor = Editor(desktop, tools, project, panel="Large", language=language, settings={})
        recorded(editor, "F1")
        press(desktop, "LeftCtrl+c")
        keys = [f"F{number}" for number in range(1, 25)]
        for first, last, more in (("F1", "F12", False), ("F13", "F24", True)):
            boxes = [editor.element(first), editor.element(last)]
            corners = ((boxes[0].left - 6, boxes[0].top - 6),
                       (boxes[1].left + boxes[1].width + 6, boxes[1].top + boxes[1].height + 6))
            if more:
                desktop.hold(KEYS["LeftCtrl"])
            desktop.drag(*corners)
            if more:
                desktop.free(KEYS["LeftCtrl"])
        desktop.picture(tools.pictures / f"many-selected-{language}.png", desktop.window(MAIN))
        press(desktop, "LeftCtrl+v")
        compare(editor.save(), {(key, 1, True): A for key in keys})
        press(desktop, "LeftCtrl+z")
        elements = editor.save()
        compare(elements, {("F1", 1, True): A})
        if any(elements[key].text(1) for key in keys[1:] if key in elements):
            raise Failed("one stroke does not take all of it back")
        editor.quit()


@in_both_languages
def copying(tools, folder, language):
    edit, swap, layers = {"English": ("LeftAlt+e", "s", "y"), "German": ("LeftAlt+b", "t", "a")}[language]
    with Desktop(tools, folder) as desktop:
        project = folder / "copy.plexel"
        write_empty_project(project, "Small")
        editor = Editor(desktop, tools, project, language=language, settings={})
        recorded(editor, "F1")
        recorded(editor, "F2", "b")
        b = [("b", [("b", "32 F0 32")])]
        f1, f2, f3, f4 = ((f"F{number}", 1, True) for number in range(1, 5))
        # Drawn onto another: copied; with Shift: swapped.
        desktop.drag(editor.element("F1").centre(), editor.element("F3").centre())
        editor.pause(1)  # nothing on the screen tells that the drop has been done
        compare(editor.save(), {f1: A, f2: b, f3: A})
        desktop.hold(KEYS["LeftShift"])
        desktop.drag(editor.element("F2").centre(), editor.element("F3").centre())
        desktop.free(KEYS["LeftShift"])
        editor.pause(1)
        compare(editor.save(), {f1: A, f2: A, f3: b})
        # The menu's entry swaps the two that are selected, and Delete empties.
        choose(editor, "F1", "F3")
        press(desktop, edit)
        desktop.popup()
        press(desktop, swap)
        desktop.no_popup()
        compare(editor.save(), {f1: b, f2: A, f3: A})
        choose(editor, "F2", "F3")
        press(desktop, "Delete")
        elements = editor.save()
        compare(elements, {f1: b})
        if elements["F2"].text(1) or elements["F3"].text(1):
            raise Failed("what was cleared is still there")
        # One layer onto the others.
        desktop.click(editor.element("F1").centre())
        press(desktop, f"{edit} {layers}")
        asked = desktop.window(editor.texts[20894])
        desktop.picture(tools.pictures / f"layers-{language}.png", asked)
        press(desktop, "Return")
        desktop.gone(asked)
        compare(editor.save(), {("F1", layer, True): b for layer in (1, 2, 3, 4)})
        # An LED takes no keys: it is asked about, and Cancel changes nothing.
        press(desktop, "LeftCtrl+c")
        main = desktop.window(MAIN)
        desktop.click(editor.element("L1").centre())
        press(desktop, "LeftCtrl+v")
        asked = desktop.window("Plexel", [main.id])
        desktop.picture(tools.pictures / f"misfit-{language}.png", asked)
        press(desktop, "Esc")
        desktop.gone(asked)
        editor.wait_modified(False)
        editor.quit()
