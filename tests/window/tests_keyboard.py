"""Real keys of a US and of a German keyboard, from the key to the bytes in the project."""

from capture import compare, record, spread
from captured_keys import LETTERS_AND_SIGNS_GERMAN, LETTERS_AND_SIGNS_US, OTHER_KEYS
from desktop import Desktop
from editor import Editor
from project import write_empty_project

ELEMENTS = ["F1", "F2", "F3", "F4", "F5", "F6", "F7", "F8"]


def keyboard(tools, folder, layout, cases):
    project = folder / "keys.plexel"
    write_empty_project(project, "Small")
    with Desktop(tools, folder, layout) as desktop:
        editor = Editor(desktop, tools, project)
        plan = spread(cases, ELEMENTS)
        record(editor, plan)
        compare(editor.save(), plan)
        editor.quit()


def us_keyboard(tools, folder):
    keyboard(tools, folder, "us", LETTERS_AND_SIGNS_US + OTHER_KEYS)


def german_keyboard(tools, folder):
    keyboard(tools, folder, "de", LETTERS_AND_SIGNS_GERMAN + OTHER_KEYS)
