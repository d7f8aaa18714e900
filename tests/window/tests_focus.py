"""Who gets the keys: the desktop, another window, or the dialog."""

from capture import compare
from desktop import Desktop, Failed, wait_for
from editor import Editor
from keys import press
from project import write_empty_project

TASK_KEYS = {"A-Tab": "LeftAlt+Tab", "Super_L": "LeftWindows", "A-F4": "LeftAlt+F4"}


def the_desktop_acts(desktop, folder, binding):
    """Presses a task key of the desktop and tells whether it acted, once the keys have gone round."""
    (folder / binding).unlink(missing_ok=True)
    press(desktop, TASK_KEYS[binding])
    return wait_for(f"the desktop to act on {binding}", (folder / binding).exists)


def task_keys(tools, folder):
    project = folder / "tasks.plexel"
    write_empty_project(project, "Small")
    bindings = {binding: folder / binding for binding in TASK_KEYS}
    with Desktop(tools, folder, bindings=bindings) as desktop:
        editor = Editor(desktop, tools, project)
        dialog = editor.configure("F1")
        for binding in TASK_KEYS:
            the_desktop_acts(desktop, folder, binding)
        for file in bindings.values():
            file.unlink()
        desktop.window(dialog.title)
        dialog.start_capture()
        press(desktop, " ".join(TASK_KEYS.values()) + " b")
        desktop.double_click(dialog.cell(1).centre())
        dialog.wait_no_capture(1)
        acted = [binding for binding, file in bindings.items() if file.exists()]
        if acted:
            raise Failed(f"the desktop acted on {acted} while keys were recorded")
        for binding in TASK_KEYS:
            the_desktop_acts(desktop, folder, binding)
        desktop.window(dialog.title)
        dialog.ok()
        groups = [("Alt", "11 F0 11"), ("Alt+F4", "11 0C F0 0C F0 11"), ("b", "32 F0 32")]
        compare(editor.save(), {("F1", 1, True): [("the task keys and b", groups)]})
        editor.quit()


def unlocked_task_keys(tools, folder):
    """Without the lock the desktop acts, and what it leaves over is recorded."""
    project = folder / "unlocked.plexel"
    write_empty_project(project, "Small")
    bindings = {binding: folder / binding for binding in ("A-Tab", "A-F4")}
    with Desktop(tools, folder, bindings=bindings) as desktop:
        editor = Editor(desktop, tools, project, settings={"LockTaskKeys": 0})
        dialog = editor.configure("F1")
        dialog.start_capture()
        press(desktop, "LeftWindows RightWindows LeftWindows+e")
        dialog.move_capture(2, True)
        for binding in bindings:
            the_desktop_acts(desktop, folder, binding)
        desktop.window(dialog.title)
        dialog.ok()
        groups = [("Windows Left", "E0 1F E0 F0 1F"), ("Windows Right", "E0 27 E0 F0 27"),
                  ("Windows Left+e", "E0 1F 24 F0 24 E0 F0 1F")]
        compare(editor.save(), {("F1", 1, True): [("the Windows keys", groups)]})
        editor.quit()


def leave(desktop, elsewhere):
    """Gives the focus to the other window and waits until the dialog has let go of the keyboard."""
    if elsewhere is not None:
        desktop.do(f"activate {elsewhere.id}")
    elsewhere = desktop.window("Elsewhere")
    wait_for("the keyboard to be free", lambda: desktop.do("grabbed") == "false")
    return elsewhere


def lost_release(tools, folder, settings):
    """A key that is let go while another window has the focus ends its combination when the dialog is back."""
    project = folder / "release.plexel"
    write_empty_project(project, "Small")
    with Desktop(tools, folder) as desktop:
        editor = Editor(desktop, tools, project, settings=settings)
        dialog = editor.configure("F1")
        dialog.start_capture()
        press(desktop, "LeftAlt~ k~")
        desktop.do("open-window 20 700 300 200 Elsewhere")
        elsewhere = leave(desktop, None)
        press(desktop, "~k ~LeftAlt x")
        desktop.do(f"activate {dialog.window.id}")
        desktop.window(dialog.title)
        press(desktop, "m")
        # Let go at home, pressed elsewhere: no part of any combination.
        leave(desktop, elsewhere)
        press(desktop, "LeftCtrl~")
        desktop.do(f"activate {dialog.window.id}")
        desktop.window(dialog.title)
        press(desktop, "~LeftCtrl n")
        dialog.ok()
        groups = [("Alt+k", "11 42 F0 42 F0 11"), ("m", "3A F0 3A"), ("n", "31 F0 31")]
        compare(editor.save(), {("F1", 1, True): [("Alt+k elsewhere, m, n", groups)]})
        editor.quit()


def held_key(tools, folder):
    """A key that repeats is one key."""
    project = folder / "held.plexel"
    write_empty_project(project, "Small")
    with Desktop(tools, folder) as desktop:
        editor = Editor(desktop, tools, project)
        dialog = editor.configure("F1")
        dialog.turn_to_page(1)  # the page of LEDs is off
        dialog.click("sstScanCode", "txtButtonNotes")
        press(desktop, "h~")
        editor.pause(1.2)
        press(desktop, "~h")
        dialog.turn_to_page(0)
        dialog.start_capture()
        for key in ("h", "RightAlt", "Down"):
            press(desktop, f"{key}~")
            editor.pause(1.2)
            press(desktop, f"~{key}")
        press(desktop, "LeftCtrl~ j~")
        editor.pause(1.2)
        press(desktop, "~j ~LeftCtrl")
        dialog.ok()
        groups = [("h", "33 F0 33"), ("Alt Gr", "E0 11 E0 F0 11"), ("Cursor Down", "E0 72 E0 F0 72"),
                  ("Ctrl Left+j", "14 3B F0 3B F0 14")]
        elements = editor.save()
        note = elements["F1"].values.get("ButtonNotes", "")
        if len(note) < 5 or set(note) != {"h"}:
            raise Failed(f"the held key did not repeat: the note is {note!r}")
        compare(elements, {("F1", 1, True): [("held keys", groups)]})
        editor.quit()


def lost_release_with_lock(tools, folder):
    lost_release(tools, folder, {"LockTaskKeys": 1})


def lost_release_without_lock(tools, folder):
    lost_release(tools, folder, {"LockTaskKeys": 0})
