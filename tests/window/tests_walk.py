"""From a fresh machine to a configured key, and back to it."""

from capture import compare
from desktop import Desktop, Failed, wait_for
from editor import MAIN, Editor
from keys import KEYS, press
from project import read_project, read_values

KEY = "F1"
PLAN = {(KEY, 1, True): [("LeftCtrl+a", [("Ctrl Left+a", "14 1C F0 1C F0 14")])]}
TICK = "008000"


def tick(editor):
    """How much of the tick is to be seen on the key."""
    return editor.desktop.colour(editor.element(KEY), TICK)[0]


def save_under_a_name(desktop, folder, editor, name):
    """Ctrl+S on a project without a file asks for one."""
    desktop.chord(KEYS["LeftCtrl"], KEYS["s"])
    asked = desktop.window(editor.texts[20203])
    desktop.type(name)
    desktop.tap(KEYS["Return"])
    desktop.gone(asked)
    editor.wait_modified(False)
    return wait_for("the project file", lambda: next(folder.glob(f"{name}*"), None))


def first_walk(tools, folder):
    with Desktop(tools, folder) as desktop:
        editor = Editor(desktop, tools, panel="Large")
        if tick(editor):
            raise Failed("a key that was never configured has a tick")
        desktop.click(editor.element(KEY).centre())
        dialog = editor.configure(KEY)
        dialog.start_capture()
        press(desktop, "LeftCtrl+a")
        dialog.ok()
        wait_for("the tick on the key", lambda: tick(editor) > 5)
        project = save_under_a_name(desktop, folder, editor, "walk")
        editor.quit()
        if b"PressKeyDefLayer1=string [Ctrl Left+a\x8b\x9b]" not in project.read_bytes():
            raise Failed("the definition does not stand in the file in Windows-1252")
        compare(read_project(project), PLAN)

        editor = Editor(desktop, tools, project, panel="Large")
        wait_for("the tick on the key of the opened project", lambda: tick(editor) > 5)
        desktop.click(editor.element(KEY).centre())
        desktop.tap(KEYS["Return"])
        dialog = editor.configuration_dialog(KEY)
        if dialog.is_blank(1, True) or not dialog.is_blank(1, False):
            raise Failed("the grid does not show the saved definition")
        press(desktop, "Esc")
        dialog.wait_closed()
        press(desktop, "Return")  # a second group behind the first
        dialog = editor.configuration_dialog(KEY)
        press(desktop, "Return")
        dialog.wait_capture(1)
        press(desktop, "F2")
        # Shift and Ctrl together end recording and are no keys of it.
        press(desktop, "LeftShift~ LeftCtrl~ ~LeftCtrl ~LeftShift")
        dialog.wait_no_capture(1)
        dialog.ok()
        longer = {(KEY, 1, True): PLAN[KEY, 1, True] + [("F2", [("F2", "06 F0 06")])]}
        compare(editor.save(), longer)
        editor.quit()


def dialog_returns_to_its_place(tools, folder):
    with Desktop(tools, folder) as desktop:
        editor = Editor(desktop, tools)
        dialog = editor.configure("F1")
        first = dialog.window
        grip = (first.left + 100, first.top - 8)
        desktop.drag(grip, (grip[0] + 120, grip[1] + 60))
        moved = wait_for("the dialog to follow the mouse", lambda: follow(desktop, dialog, first))
        desktop.do(f"close {moved.id}")
        dialog.wait_closed()
        stored = read_values(editor.configuration / "registry.ini")
        wanted = {"ConfigDialogLeft", "ConfigDialogTop", "ConfigDialogMsFlexGridRow0Width"}
        if not wanted <= set(stored):
            raise Failed(f"positions are missing in {stored}")
        again = editor.configure("F1")
        if (again.window.left, again.window.top) != (moved.left, moved.top):
            raise Failed(f"the dialog was left at {moved} and opens at {again.window}")
        press(desktop, "Esc")
        again.wait_closed()
        editor.quit()


def follow(desktop, dialog, first):
    window = desktop.window(dialog.title)
    return window if (window.left, window.top) == (first.left + 120, first.top + 60) else None
