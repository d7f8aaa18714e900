"""What becomes of work that was not saved, and of a file that somebody else changes."""

import signal
import threading

from capture import compare
from desktop import Desktop, Failed, Window, wait_for
from editor import MAIN, Editor, in_both_languages
from keys import press
from project import read_project, write_empty_project
from session import SessionManager

KEY = "F1"
PLAN = {(KEY, 1, True): [("a", [("a", "1C F0 1C")])]}
MENU_STEPS = {"English": ("LeftAlt+e u", "LeftAlt+e r"), "German": ("LeftAlt+b r", "LeftAlt+b w")}
PATIENCE = 12  # seconds; unsaved work is on the disk after ten


def recovery_files(desktop):
    return list((desktop.folder / "home" / ".local" / "state" / "plexel" / "recovery").glob("*.recovery"))


def recorded(desktop, tools, folder, **how):
    """An editor with a key that was recorded and not saved yet, on a project that was empty."""
    project = folder / "a.plexel"
    write_empty_project(project, "Small")
    editor = Editor(desktop, tools, project, **how)
    dialog = editor.configure(KEY)
    dialog.start_capture()
    press(desktop, "a")
    dialog.ok()
    editor.wait_modified(True)
    return editor


@in_both_languages
def undo_and_redo(tools, folder, language):
    """By keys, and by the entries of the menu."""
    with Desktop(tools, folder) as desktop:
        editor = recorded(desktop, tools, folder, language=language, settings={})
        compare(editor.save(), PLAN)
        press(desktop, "LeftCtrl+z")
        compare(editor.save(), {})
        press(desktop, "LeftCtrl+y")
        compare(editor.save(), PLAN)
        for entry, plan in zip(MENU_STEPS[language], ({}, PLAN)):
            press(desktop, entry)
            compare(editor.save(), plan)
        editor.quit()


@in_both_languages
def killed(tools, folder, language):
    with Desktop(tools, folder) as desktop:
        editor = recorded(desktop, tools, folder, language=language, settings={})
        wait_for("the recovery file", lambda: recovery_files(desktop), PATIENCE)
        editor.process.send_signal(signal.SIGKILL)
        editor.process.wait()
        compare(read_project(editor.project), {})

        editor = StartedEditor(desktop, tools, editor.project, language=language)
        compare(editor.save(), PLAN)
        wait_for("the recovery file to go", lambda: not recovery_files(desktop), PATIENCE)
        editor.quit()


def versions(tools, folder):
    """The empty project that was saved over is looked at, brought back in one step, and taken back."""
    for language, menu in (("English", "LeftAlt+f v"), ("German", "LeftAlt+d v")):
        own = folder / language
        own.mkdir()
        with Desktop(tools, own) as desktop:
            editor = recorded(desktop, tools, own, language=language, settings={})
            compare(editor.save(), PLAN)
            press(desktop, menu)
            dialog = desktop.window(editor.texts[20821].split("%1")[0])
            press(desktop, "Down")
            desktop.picture(tools.pictures / f"versions-{language}.png", dialog)
            press(desktop, "Return")
            desktop.gone(dialog)
            compare(editor.save(), {})
            press(desktop, "LeftCtrl+z")
            compare(editor.save(), PLAN)
            editor.quit()


def kept_and_brought_back(desktop, tools, editor):
    """Unsaved work of an editor that is gone stands on the disk, and the next one brings it back."""
    compare(read_project(editor.project), {})
    if len(recovery_files(desktop)) != 1:
        raise Failed("work that was not saved is not kept")
    editor = StartedEditor(desktop, tools, editor.project, language="German", settings={})
    compare(editor.save(), PLAN)
    editor.quit()


def ended_by(how):
    def test(tools, folder):
        with Desktop(tools, folder) as desktop:
            editor = recorded(desktop, tools, folder)
            editor.process.send_signal(how)
            editor.wait_end()
            kept_and_brought_back(desktop, tools, editor)
    return test


terminated, interrupted, hung_up = ended_by(signal.SIGTERM), ended_by(signal.SIGINT), ended_by(signal.SIGHUP)


def session_ended(tools, folder):
    with Desktop(tools, folder) as desktop, SessionManager(desktop) as session:
        welcoming = threading.Thread(target=session.welcome, daemon=True)
        welcoming.start()
        editor = recorded(desktop, tools, folder)
        welcoming.join()
        session.end()
        if len(recovery_files(desktop)) != 1:
            raise Failed("work that was not saved is not kept when the session ends")
        session.die()
        editor.wait_end()
        del desktop.environment["SESSION_MANAGER"]
        kept_and_brought_back(desktop, tools, editor)


class StartedEditor(Editor):
    """An editor that asks about lost work before it shows a project; it is brought back."""

    def first_window(self):
        def question():
            return next((one for one in self.desktop.windows() if one["title"] == "Plexel" and one["active"]), None)

        found = wait_for("the question about lost work", question)
        asked = Window(found["id"], *found["client"])
        self.desktop.picture(self.tools.pictures / f"lost-work-{self.language}.png", asked)
        press(self.desktop, "Return")
        self.desktop.gone(asked)
        return super().first_window()


def changed_by_another(tools, folder):
    for language, take in (("English", "LeftAlt+t"), ("German", "LeftAlt+r")):
        with Desktop(tools, folder) as desktop:
            editor = recorded(desktop, tools, folder, language=language, settings={})
            empty = editor.project.read_bytes()
            compare(editor.save(), PLAN)
            editor.project.write_bytes(empty)
            editor.pause(2)  # nothing that can be waited for tells that nothing more comes
            desktop.picture(tools.pictures / f"file-changed-{language}.png", desktop.window(MAIN))
            press(desktop, take)
            editor.pause(1)  # a button that is pressed by its letter acts a little later
            press(desktop, "LeftCtrl+z")
            compare(editor.save(), PLAN)
            editor.quit()
