"""Pictures of the editor and of every dialog, for looking at. What can be said of them without eyes is tested: each
window has the size of its form, lies on the screen whole, and shows something."""

from desktop import Desktop, Failed, Window, wait_for
from editor import MAIN, Dialog, Editor
from keys import KEYS, press
from project import write_empty_project

SIZE = {1: (1300, 1000), 2: (2400, 1800)}
KEY_WITH_LED = ["element A", "set ElementType 5", "set ParentWindow form", "set TargetSystem Extended"]
CONFIGURE = KEY_WITH_LED + ["call OpenConfigurationDialog"]
OPENED_MENU = CONFIGURE + ["mouse msgScanCodes 2 0 1500 400"]
WIZARD = KEY_WITH_LED + ["set WizardOn -1", "call OpenConfigurationDialog"]


class Album:
    """The pictures of one language at one scale."""

    def __init__(self, tools, folder, language, scale):
        self.tools, self.folder, self.language, self.scale = tools, folder, language, scale
        self.pictures = tools.pictures / f"{language.lower()}-{scale}"
        self.desktop = Desktop(tools, folder, size=SIZE[scale])
        self.editor = None

    def __enter__(self):
        self.desktop.__enter__()
        return self

    def __exit__(self, *failure):
        self.desktop.__exit__(*failure)

    def start(self, panel, settings):
        project = self.folder / f"{panel.lower()}.plexel"
        if not project.exists():
            write_empty_project(project, panel)
        self.editor = Editor(self.desktop, self.tools, project, panel, self.scale, self.language, settings)

    def take(self, name, window):
        """Keeps a picture of a window, which must lie on the screen and show something."""
        width, height = SIZE[self.scale]
        if window.left < 0 or window.top < 0 or window.left + window.width > width or \
                window.top + window.height > height:
            raise Failed(f"{name} does not lie on the screen: {window}")
        colours = self.desktop.picture(self.pictures / f"{name}.png", window)
        if colours < 10:
            raise Failed(f"{name} shows no more than {colours} colours")

    def take_dialog(self, name, dialog):
        form = dialog.plan.ask("form", "form")
        self.take(name, dialog.window)
        seen = (dialog.window.width, dialog.window.height)
        frame = (form["Width"] / 15 * self.scale - seen[0], form["Height"] / 15 * self.scale - seen[1])
        if not (0 <= frame[0] <= 10 * self.scale and 0 <= frame[1] <= 35 * self.scale):
            raise Failed(f"{name} has the size {seen}, which leaves a frame of {frame}")

    # ---- the scenes

    def main_window(self):
        self.take("main", self.desktop.window(MAIN))

    def menus(self):
        press(self.desktop, "LeftAlt Down")
        for number in range(6):
            self.desktop.popup()
            self.take(f"menu-{number + 1}", self.desktop.window(MAIN))
            press(self.desktop, "Right")
        press(self.desktop, "Esc Esc")
        self.desktop.no_popup()

    def configuration(self):
        dialog = self.editor.configure("F1")
        dialog.start_capture()
        press(self.desktop, "LeftCtrl+a [ F12")
        self.take_dialog("configuration-recording", dialog)
        dialog.choose("sstScanCode", "fraButton", "fraCodeType", "optCodeType(1)")
        dialog.turn_to_page(0)
        self.take_dialog("configuration-codes", dialog)
        self.desktop.click(dialog.cell(1).centre())
        self.desktop.click(dialog.cell(1).centre(), button=3)
        self.desktop.popup()
        self.take("configuration-menu", dialog.window_with_popup())
        for name, steps, entry in (("characters", 1, "MNU_POPUP_ASCII"), ("panel-functions", 2, "MNU_SPECIALKEY"),
                                   ("shortcuts", 3, "MNU_POPUP_WINDOWSKEY"),
                                   ("named-codes", 4, "MNU_POPUP_NONSTANDARDCODE")):
            if not self.desktop.has_popup():
                self.desktop.click(dialog.cell(1).centre(), button=3)
                self.desktop.popup()
            self.desktop.tap(*[KEYS["Down"]] * steps, KEYS["Return"])
            self.desktop.no_popup()
            child = Dialog(self.editor, OPENED_MENU + [f"menu {entry}"])
            if name == "characters":
                press(self.desktop, "Down Down Right Right Return")
            self.take_dialog(name, child)
            press(self.desktop, "Esc")
            child.wait_closed()
        dialog.turn_to_page(1)
        self.take_dialog("configuration-led", dialog)
        dialog.turn_to_page(2)
        dialog.click("sstScanCode", "txtButtonNotes")
        self.desktop.type("pump2")
        self.take_dialog("configuration-notes", dialog)
        dialog.ok()
        press(self.desktop, {"English": "LeftAlt+e y", "German": "LeftAlt+b a"}[self.language])
        self.own_window("layers", 20894)

    def properties(self):
        for name, element, kind in (("led", "L1", 1), ("key", "F1", 5), ("key-switch", "K1", 6)):
            self.desktop.click(self.editor.element(element).centre())
            press(self.desktop, "LeftAlt+Return")
            dialog = Dialog(self.editor, ["element A", f"set ElementType {kind}", "set ParentWindow form",
                                          "call OpenPropertiesDialog"])
            self.take_dialog(f"properties-{name}", dialog)
            self.desktop.do(f"close {dialog.window.id}")
            dialog.wait_closed()

    def led(self):
        dialog = self.editor.configure("L1")
        self.take_dialog("configuration-of-a-led", dialog)
        press(self.desktop, "Esc")
        dialog.wait_closed()

    def wizard(self):
        self.desktop.double_click(self.editor.element("F2").centre())
        pages = [Dialog(self.editor, WIZARD)]
        self.desktop.double_click(pages[0].box("txtScanCodes").centre())
        wait_for("recording", lambda: pages[0].captures("txtScanCodes"))
        press(self.desktop, "LeftAlt+F5")
        self.take_dialog("wizard-1", pages[0])
        for number in (2, 3):
            pages[-1].click("cmdForward")
            pages.append(Dialog(self.editor, WIZARD + ["click cmdForward"] * (number - 1), pages))
            self.take_dialog(f"wizard-{number}", pages[-1])
        press(self.desktop, "Esc")
        for page in pages:
            page.wait_closed()

    def questions(self):
        """The question ahead of the wizard on an element configured by hand, and that of a changed project."""
        self.desktop.double_click(self.editor.element("F1").centre())
        self.own_window("question-by-hand", 6002)
        press(self.desktop, "LeftCtrl+q")
        self.own_window("question-save", None)

    def parts(self):
        """What stands beside and below the picture, the virtual panel, and the saved versions."""
        for name, keys in (("overview", "LeftCtrl+f"), ("trial", "F5")):
            press(self.desktop, keys)
            self.take(name, self.desktop.window(MAIN))
        press(self.desktop, "Esc LeftShift+F5")
        title = self.editor.texts[21122].split("%1")[0]
        panel = wait_for("the virtual panel", lambda: next(
            (one for one in self.desktop.windows() if one["title"].startswith(title)), None))
        self.editor.pause(0.3)
        panel = next(one for one in self.desktop.windows() if one["id"] == panel["id"])
        self.take("virtual-panel", Window(panel["id"], *panel["client"]))
        self.desktop.do(f"close {panel['id']}")
        press(self.desktop, {"English": "LeftAlt+f v", "German": "LeftAlt+d v"}[self.language])
        versions = self.desktop.window(self.editor.texts[20821].split("%1")[0])
        self.take("versions", versions)
        press(self.desktop, "Esc")
        self.desktop.gone(versions)

    def own_dialogs(self):
        press(self.desktop, "LeftCtrl+n")
        self.own_window("new", 20200)
        press(self.desktop, "LeftCtrl+o")
        self.own_window("open", 20202)
        press(self.desktop, "LeftCtrl+LeftShift+s")
        self.own_window("save-as", 20203)
        press(self.desktop, "LeftAlt Right Right Right Right Down Return")
        self.own_window("settings", 20500)
        press(self.desktop, "F1")
        self.own_window("help", 20600)
        press(self.desktop, "LeftAlt Right Right Right Right Right Down Down Down Return")
        self.own_window("about", 20142)

    def own_window(self, name, text):
        """A window of the editor itself, by the number of its title."""
        main = self.desktop.window_id(MAIN)
        window = self.desktop.window(self.editor.texts[text] if text else "Plexel", [main])
        self.take(name, window)
        press(self.desktop, "Esc")
        self.desktop.gone(window)
        self.desktop.window(MAIN)  # has the keyboard again


def album(tools, folder, language, scale):
    with Album(tools, folder, language, scale) as pictures:
        pictures.start("Large", {"UseWizard": 0, "ShowX": 1})
        pictures.main_window()
        pictures.menus()
        pictures.configuration()
        pictures.led()
        pictures.properties()
        pictures.editor.save()
        pictures.own_dialogs()
        pictures.editor.quit()
        pictures.start("Large", {"UseWizard": 1})
        pictures.wizard()
        pictures.questions()
        pictures.parts()
        pictures.editor.leave_changed()


def english_pictures(tools, folder):
    for scale in (1, 2):
        (folder / str(scale)).mkdir()
        album(tools, folder / str(scale), "English", scale)


def german_pictures(tools, folder):
    for scale in (1, 2):
        (folder / str(scale)).mkdir()
        album(tools, folder / str(scale), "German", scale)
