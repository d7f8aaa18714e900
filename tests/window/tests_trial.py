"""The keys of a panel tried on its picture."""

from desktop import Box, Desktop, Failed, wait_for
from editor import MAIN, Editor
from keys import press
from tests_virtual import write_project

LEFT_DOWN = "D02020"  # the edge of a key that something is left down behind


def edge(editor, name):
    """So many pixels of the colour stand round an element."""
    box = editor.element(name)
    around = Box(box.left - 3, box.top - 3, box.width + 6, box.height + 6)
    return editor.desktop.colour(around, LEFT_DOWN)[0]


def tried(tools, folder):
    """F1 sends a key and F2 leaves one down: what stays down is marked until it is let go of, and nothing changes."""
    for language in ("English", "German"):
        own = folder / language
        own.mkdir()
        with Desktop(tools, own) as desktop:
            project = own / "trial.plexel"
            write_project(project)
            before = project.read_bytes()
            editor = Editor(desktop, tools, project, language=language, settings={})
            untried = editor.element("F1").centre()
            press(desktop, "F5")  # what the keys send stands below the picture, which moves
            wait_for("what the keys send", lambda: editor.element("F1").centre() != untried)
            for name in ("F1", "F2"):
                desktop.click(editor.element(name).centre())
            wait_for("the mark on what left a key down", lambda: edge(editor, "F2") > 20)
            if edge(editor, "F1") > 20:
                raise Failed("F1 is marked, which leaves nothing down")
            desktop.picture(tools.pictures / f"trial-{language}.png", desktop.window(MAIN))
            press(desktop, "Esc")
            wait_for("the end of the mark", lambda: edge(editor, "F2") == 0)
            editor.wait_modified(False)
            editor.quit()
            if project.read_bytes() != before:
                raise Failed("trying has changed the project")
