"""The picture and the window themselves: zoom, what of the definitions is shown, and what a restart brings back."""

import time

from desktop import Box, Desktop, Failed, wait_for
from editor import MAIN, Editor
from keys import KEYS, press
from tests_files import SCREEN, views
from tests_work import ERROR, F2_HOLDS_CTRL, F7_SENDS_F13, write_project

TICK = "008000"


def picture_box(editor):
    """The inner part of the window where nothing but the picture lies."""
    window = editor.window
    return Box(window.left, window.top + 60 * editor.scale, window.width * 7 // 10,
               window.height * 13 // 20 - 60 * editor.scale)


def badge(editor):
    """The middle of the mark on the only element that has an error."""
    last = []

    def still():
        count, box = editor.desktop.colour(picture_box(editor), ERROR)
        last.append(box.centre() if count > 20 else None)
        editor.pause(0.1)
        return len(last) > 1 and last[-1] == last[-2] and last[-1]

    return wait_for("the mark of the error on the picture", still)


def near(place, wanted, distance):
    return max(abs(one - other) for one, other in zip(place, wanted)) <= distance


def expect_near(what, place, wanted, distance):
    if not near(place, wanted, distance):
        raise Failed(f"{what}: {place}, not {wanted}")


def zoom(tools, folder):
    for language, scale, own in views(folder):
        with Desktop(tools, own, size=SCREEN[scale]) as desktop:
            project = own / "zoom.plexel"
            write_project(project, F2_HOLDS_CTRL)
            editor = Editor(desktop, tools, project, scale=scale, language=language, settings={})
            normal = badge(editor)
            # The keys zoom about the middle of what is to be seen, and the wheel about the pointer.
            press(desktop, " ".join(["LeftCtrl+="] * 5))
            large = wait_for("the larger picture", lambda: elsewhere(editor, normal))
            for steps in (2, -1, -1):
                turn(desktop, large, steps)
                editor.pause(0.2)  # the picture must not be elsewhere now
                expect_near("what lies under the pointer", badge(editor), large, 8 * scale)
            turn(desktop, large, 1)
            desktop.picture(tools.pictures / f"zoom-{language}-{scale}.png", editor.window)
            # The picture is drawn along by the middle button, and by the left one while Space is down.
            way = (-70 * scale, 40 * scale)
            for button, key in ((2, None), (1, "Space")):
                before = badge(editor)
                if key:
                    desktop.hold(KEYS[key])
                desktop.drag(before, (before[0] + way[0], before[1] + way[1]), button)
                if key:
                    desktop.free(KEYS[key])
                way = tuple(-one for one in way)
                wait_for("the picture to follow the mouse",
                         lambda: near(badge(editor), (before[0] - way[0], before[1] - way[1]), 1))
            # A click on the figure of the zoom brings the natural size back.
            window = editor.window
            desktop.click((window.left + window.width - 20 * scale, window.top + window.height - 13 * scale))
            wait_for("the natural size", lambda: badge(editor) == normal)
            # Fitted, the panel is as large as the window can show it whole.
            press(desktop, "LeftCtrl+9")
            wait_for("the fitted picture", lambda: elsewhere(editor, normal))
            desktop.picture(tools.pictures / f"zoom-fit-{language}-{scale}.png", editor.window)
            expect_whole(editor)
            press(desktop, "LeftCtrl+0")
            wait_for("the natural size", lambda: badge(editor) == normal)
            editor.wait_modified(False)
            editor.quit()


def elsewhere(editor, place):
    now = badge(editor)
    return now if not near(now, place, 4) else None


def turn(desktop, place, steps):
    """Turns the wheel with Ctrl down."""
    desktop.hold(KEYS["LeftCtrl"])
    desktop.wheel(place, steps)
    desktop.free(KEYS["LeftCtrl"])


def expect_whole(editor):
    """Fails unless the panel is larger than at its natural size, and nothing of it hides."""
    panel, window = editor.panel, editor.window
    _, screen = editor.desktop.colour(window, panel.screen_colour)
    left, top, width, height = panel.screen
    # A light falls on the left of the screen: its colour ends at the other edges.
    factor = screen.height / height
    whole = Box(screen.left + screen.width - (left + width) * factor, screen.top - top * factor,
                panel.size[0] * factor, panel.size[1] * factor)
    inside = (whole.left >= window.left and whole.top >= window.top + 60 * editor.scale and
              whole.left + whole.width <= window.left + window.width * 0.8 and
              whole.top + whole.height <= window.top + window.height * 0.85)
    if factor < 1.3 * editor.scale or not inside:
        raise Failed(f"fitted, the panel is drawn {factor} times at {whole} in the window {window}")


class Keys:
    """Two keys on a picture that stays where it is."""

    def __init__(self, editor):
        self.desktop = editor.desktop
        self.boxes = {name: editor.element(name) for name in ("F2", "F7")}
        self.margin = 6 * editor.scale

    def ticks(self):
        """Which of them have a tick."""
        return {name: self.desktop.colour(box, TICK)[0] > 5 for name, box in self.boxes.items()}

    def look(self, name):
        """What the middle of one looks like."""
        raw = self.desktop.folder / "look.ppm"
        self.desktop.do(f"picture {self.boxes[name].inner(self.margin)} {raw}")
        return raw.read_bytes()


def layer_shown(tools, folder):
    """The ticks and the labels are those of the layer that is chosen; labels come back with the next start."""
    for language, scale, own in views(folder):
        view, labels = {"English": ("LeftAlt+v l", "LeftAlt+v d"), "German": ("LeftAlt+a b", "LeftAlt+a d")}[language]
        with Desktop(tools, own, size=SCREEN[scale]) as desktop:
            project = own / "layers.plexel"
            write_project(project, F2_HOLDS_CTRL, F7_SENDS_F13)
            editor = Editor(desktop, tools, project, scale=scale, language=language, settings={})
            keys = Keys(editor)
            for letter, layers in (("1", (1,)), ("2", (2,)), ("3", (3,)), ("a", (1, 2))):
                desktop.open_menu(view)
                press(desktop, letter)
                desktop.no_popup()
                wanted = {"F2": 1 in layers, "F7": 2 in layers}
                wait_for(f"the ticks of layer {letter}", lambda: keys.ticks() == wanted)
            # From the box of the tool bar: the third of its entries.
            box = (editor.window.left + 460 * scale, editor.window.top + 37 * scale)
            desktop.click(box)
            popup = desktop.popup()
            desktop.picture(tools.pictures / f"layer-box-{language}-{scale}.png", editor.window)
            desktop.click_away_popup((popup.left + 20 * scale, popup.top + popup.height // 2))
            wait_for("the ticks of layer 2", lambda: keys.ticks() == {"F2": False, "F7": True})
            plain = {name: keys.look(name) for name in ("F2", "F7")}
            press(desktop, labels)
            wait_for("the label of F7", lambda: keys.look("F7") != plain["F7"])
            if keys.look("F2") != plain["F2"]:
                raise Failed("F2 has a label, and nothing is defined of it on the layer that is shown")
            desktop.picture(tools.pictures / f"labels-{language}-{scale}.png", editor.window)
            editor.wait_modified(False)
            editor.quit()
            editor = Editor(desktop, tools, project, scale=scale, language=language)
            keys = Keys(editor)
            if keys.ticks() != {"F2": True, "F7": True} or keys.look("F7") == plain["F7"]:
                raise Failed("the next start shows one layer, or no labels")
            desktop.picture(tools.pictures / f"labels-all-{language}-{scale}.png", editor.window)
            editor.quit()


def places(tools, folder):
    """The window and what lies in it come back as they were left, also after everything has been shown once."""
    for language, scale, own in views(folder):
        with Desktop(tools, own, size=SCREEN[scale]) as desktop:
            project = own / "places.plexel"
            write_project(project, F2_HOLDS_CTRL)
            editor = Editor(desktop, tools, project, scale=scale, language=language, settings={})
            first = editor.window
            grip = (first.left + 300 * scale, first.top - 8)

            def moved():
                """A window manager that is busy lets a drag pass."""
                if desktop.window(MAIN).left == first.left:
                    desktop.drag(grip, (grip[0] + 24, grip[1] + 30))
                    time.sleep(0.5)
                return desktop.window(MAIN).left == first.left + 24
            wait_for("the window to follow the mouse", moved)
            press(desktop, "LeftCtrl+f F5 Esc LeftShift+F5")
            panel = wait_for("the virtual panel", lambda: next(
                (one for one in desktop.windows() if one["title"].startswith(editor.texts[21122].split("%1")[0])), None))
            desktop.do(f"close {panel['id']}")
            desktop.do(f"activate {editor.window.id}")
            left = arrangement(editor)
            for start in range(2):
                editor.quit()
                editor = Editor(desktop, tools, project, scale=scale, language=language)
                found = arrangement(editor)
                if found != left:
                    desktop.picture(tools.pictures / f"places-{language}-{scale}.png", editor.window)
                    raise Failed(f"at start {start + 2} the window is arranged as {found}, and was left as {left}")
            desktop.picture(tools.pictures / f"places-{language}-{scale}.png", editor.window)
            editor.quit()


def arrangement(editor):
    """Where the window lies, and where the picture of the panel in it, which all that is shown beside it moves, once
    nothing moves any more."""
    def now():
        return str(editor.desktop.window(MAIN)), str(editor.element("F1"))

    def still():
        first = now()
        for _ in range(4):
            time.sleep(0.15)
            if now() != first:
                return None
        return first
    return wait_for("the window to come to rest", still)
