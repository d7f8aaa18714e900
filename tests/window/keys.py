"""The keys of a keyboard by the legends of a US one, as codes of the kernel's input layer."""

ROWS = [(1, "Esc 1 2 3 4 5 6 7 8 9 0 - = Backspace Tab q w e r t y u i o p [ ] Return LeftCtrl a s d f g h j k l ; ' ` "
            "LeftShift \\ z x c v b n m , . / RightShift Pad* LeftAlt Space CapsLock F1 F2 F3 F4 F5 F6 F7 F8 F9 F10 "
            "NumLock ScrollLock Pad7 Pad8 Pad9 Pad- Pad4 Pad5 Pad6 Pad+ Pad1 Pad2 Pad3 Pad0 Pad."),
        (86, "Iso F11 F12"),
        (96, "PadEnter RightCtrl Pad/ Print RightAlt"),
        (102, "Home Up PageUp Left Right End Down PageDown Insert Delete"),
        (119, "Pause"),
        (125, "LeftWindows RightWindows Menu"),
        (183, "F13 F14 F15 F16 F17 F18 F19 F20 F21 F22 F23 F24")]

KEYS = {name: first + place for first, names in ROWS for place, name in enumerate(names.split())}


def press(desktop, words):
    """Presses keys: "a" is a tap, "LeftCtrl+a" a chord, "LeftShift~" holds and "~LeftShift" lets go."""
    for word in words.split():
        if word.startswith("~"):
            desktop.free(KEYS[word[1:]])
        elif word.endswith("~"):
            desktop.hold(KEYS[word[:-1]])
        elif len(word) > 1 and "+" in word and word not in KEYS:
            desktop.chord(*(KEYS[name] for name in word.split("+")))
        else:
            desktop.tap(KEYS[word])
