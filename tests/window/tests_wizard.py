"""The wizard for a key with an LED, in German, with the mouse and the keys of a German keyboard."""

from capture import BREAK, MAKE, shown
from desktop import Desktop, Failed, wait_for
from editor import Dialog, Editor
from keys import press
from project import write_empty_project

FIRST_PAGE = ["element A", "set ElementType 5", "set ParentWindow form", "set TargetSystem Compact",
              "capability * HasUserLed 1", "set WizardOn -1", "call OpenConfigurationDialog"]
NO_LED = 13


class Wizard:
    def __init__(self, editor, element):
        self.editor = editor
        editor.desktop.double_click(editor.element(element).centre())
        self.pages = [Dialog(editor, FIRST_PAGE)]

    def front(self):
        return self.pages[-1]

    def forward(self):
        self.front().click("cmdForward")
        self.pages.append(Dialog(self.editor, FIRST_PAGE + ["click cmdForward"] * len(self.pages), self.pages))

    def back(self):
        self.front().click("cmdBack")
        self.pages.pop().wait_closed()

    def wait_closed(self):
        for page in self.pages:
            page.wait_closed()

    def record(self, keys):
        page, field = self.front(), ("txtScanCodes",)
        self.editor.desktop.double_click(page.box(*field).centre())
        wait_for("recording", lambda: page.captures(*field))
        press(self.editor.desktop, keys)
        self.editor.desktop.double_click(page.box(*field).centre())
        wait_for("the end of recording", lambda: not page.captures(*field))


def expect(what, found, wanted):
    if found != wanted:
        raise Failed(f"{what} is {found!r}, not {wanted!r}")


def german_wizard(tools, folder):
    project = folder / "wizard.plexel"
    write_empty_project(project, "Small")
    with Desktop(tools, folder, "de") as desktop:
        editor = Editor(desktop, tools, project, language="German", settings={"UseWizard": 1})
        wizard = Wizard(editor, "F5")
        wizard.front().choose("optKeyType(1)")
        wizard.record("Esc z LeftCtrl+;")  # each stroke takes the place of the one before
        wizard.forward()
        wizard.front().pick(["cmbLEDTypes"], 0, 2)
        wizard.forward()
        wizard.back()
        wizard.forward()
        wizard.front().click("cmdOK")
        wizard.wait_closed()

        # A second one is given up on its second page and leaves no trace.
        given_up = Wizard(editor, "F6")
        given_up.record("q")
        given_up.forward()
        given_up.front().click("cmdCancel")
        given_up.wait_closed()

        elements = editor.save()
        configured, untouched = elements["F5"], elements["F6"]
        for layer in (1, 2, 3, 4):
            expect(f"the press text of layer {layer}", configured.text(layer), f"[Ctrl Left+\u00f6{MAKE}]")
            expect(f"the release text of layer {layer}", configured.text(layer, False), f"[Ctrl Left+\u00f6{BREAK}]")
            expect(f"the press codes of layer {layer}", shown(configured.bytes(layer)), "00 14 4C FF")
            expect(f"the release codes of layer {layer}", shown(configured.bytes(layer, False)), "00 F0 4C F0 14 FF")
            expect(f"the LED of layer {layer}", configured.values[f"LedType{layer}"], 1)
            expect(f"the press text of the other key in layer {layer}", untouched.text(layer), "")
            expect(f"the press codes of the other key in layer {layer}", shown(untouched.bytes(layer)), "FF")
            expect(f"the LED of the other key in layer {layer}", untouched.values.get(f"LedType{layer}", NO_LED), NO_LED)
        expect("the kind of key", configured.values["WizardOptions"], 1)
        editor.quit()
