"""What is picked from a menu by the mouse instead of being pressed, and one cell copied to another by the keyboard."""

from capture import compare
from desktop import Desktop, Failed
from editor import Dialog, Editor
from keys import press
from project import write_empty_project

OPENED = ["element A", "set ElementType 4", "set ParentWindow form", "call OpenConfigurationDialog",
          "mouse msgScanCodes 2 0 1500 400"]
SEPARATOR = 9  # pixels, about
ENTRIES = 6


def pick_from_menu(desktop, place, entry):
    """Goes to a cell, opens its menu by the right button and picks an entry above the separator."""
    desktop.click(place)
    desktop.click(place, button=3)
    menu = desktop.popup()
    height = (menu.height - SEPARATOR) / ENTRIES
    desktop.click_away_popup((menu.left + menu.width // 2, round(menu.top + height * (entry + 0.5))))


def cell_of(dialog, grid, text):
    """The cell of a grid of even rows that shows a text."""
    control, box = dialog.plan.control(grid), dialog.box(grid)
    for row, cells in enumerate(control["Cells"]):
        for col, cell in enumerate(cells):
            if cell["Text"] == text:
                left = sum(control["ColWidth"][:col]) + control["ColWidth"][col] / 2
                return (round(box.left + left / 15), round(box.top + (row + 0.5) * box.height / control["Rows"]))
    raise Failed(f"no cell of {grid} shows {text!r}")


def special_kinds(tools, folder):
    project = folder / "special.plexel"
    write_empty_project(project, "Small")
    with Desktop(tools, folder) as desktop:
        editor = Editor(desktop, tools, project)
        dialog = editor.configure("F1")

        pick_from_menu(desktop, dialog.cell(1).centre(), 0)
        table = Dialog(editor, OPENED + ["menu MNU_POPUP_ASCII"])
        desktop.click(cell_of(table, "msgASCIICodes", "A"))
        table.click("cmdOK")
        table.wait_closed()

        pick_from_menu(desktop, dialog.cell(2).centre(), 1)
        functions = Dialog(editor, OPENED + ["menu MNU_SPECIALKEY"])
        functions.pick(["cmbSpecialFunction"], 1, 3)
        functions.click("cmdOK")
        functions.wait_closed()

        pick_from_menu(desktop, dialog.cell(3).centre(), 2)
        shortcuts = Dialog(editor, OPENED + ["menu MNU_POPUP_WINDOWSKEY"])
        shortcuts.click("cmdOK")
        shortcuts.wait_closed()

        pick_from_menu(desktop, dialog.cell(4).centre(), 3)
        named = Dialog(editor, OPENED + ["menu MNU_POPUP_NONSTANDARDCODE"])
        named.click("cmdOK")
        named.wait_closed()

        # The panel function goes into the release cell of layer 1, by the keyboard alone.
        desktop.click(dialog.cell(2).centre())
        press(desktop, "LeftCtrl+c Up Right LeftCtrl+v")
        # The shortcut goes into the release cell of layer 4, by the menu of the keyboard.
        press(desktop, "Down Down Left LeftShift+F10")
        desktop.popup()
        press(desktop, "Down Down Down Down Down Return")
        desktop.no_popup()
        press(desktop, "Down Right LeftShift+F10")
        desktop.popup()
        press(desktop, "Up Return")
        desktop.no_popup()
        dialog.ok()

        function = [("Contrast higher", "F4")]
        shortcut = [("Ctrl+Alt+Del", "14 11 E0 71 E0 F0 71 F0 11 F0 14")]
        wanted = {(1, True): [("ASCII:65", "11 74 F0 74 73 F0 73 F0 11")], (2, True): function, (3, True): shortcut,
                  (4, True): [("Play/Pause", "E0 34 E0 F0 34")], (1, False): function, (4, False): shortcut}
        compare(editor.save(), {("F1", *place): [("the menu", groups)] for place, groups in wanted.items()})
        editor.quit()
