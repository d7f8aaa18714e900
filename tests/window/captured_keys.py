"""What keys must bring into a cell: (keys pressed, groups in the cell as (names, bytes)), worked out by hand from the
tables of set 2 and of key names. The task keys of the desktop are locked while these are pressed."""

LETTERS_AND_SIGNS_US = [
    ("LeftCtrl+a", [("Ctrl Left+a", "14 1C F0 1C F0 14")]),
    ("y", [("y", "35 F0 35")]),
    ("z", [("z", "1A F0 1A")]),
    ("LeftShift+q", [("Shift Left+q", "12 15 F0 15 F0 12")]),
    ("1 0", [("1", "16 F0 16"), ("0", "45 F0 45")]),
    ("- =", [("-", "4E F0 4E"), ("=", "55 F0 55")]),
    ("[", [("Squared Bracket Open", "54 F0 54")]),
    ("]", [("Squared Bracket Close", "5B F0 5B")]),
    ("; ' `", [(";", "4C F0 4C"), ("'", "52 F0 52"), ("`", "0E F0 0E")]),
    ("\\ Iso", [("\\", "5D F0 5D"), ("<", "61 F0 61")]),
    (", . /", [(",", "41 F0 41"), (".", "49 F0 49"), ("/", "4A F0 4A")]),
    ("RightAlt", [("Alt Gr", "E0 11 E0 F0 11")]),
    ("Pad.", [("Del", "E0 71 E0 F0 71")]),
    ("NumLock Pad. NumLock", [("Num Lock", "77 F0 77"), ("Numpad .", "71 F0 71"), ("Num Lock", "77 F0 77")]),
]

LETTERS_AND_SIGNS_GERMAN = [
    ("LeftCtrl+a", [("Ctrl Left+a", "14 1C F0 1C F0 14")]),
    ("y", [("z", "35 F0 35")]),
    ("z", [("y", "1A F0 1A")]),
    ("[ ; '", [("\u00fc", "54 F0 54"), ("\u00f6", "4C F0 4C"), ("\u00e4", "52 F0 52")]),
    ("-", [("\u00df", "4E F0 4E")]),
    ("] \\", [("+", "5B F0 5B"), ("#", "5D F0 5D")]),
    ("Iso /", [("<", "61 F0 61"), ("-", "4A F0 4A")]),
    # Dead keys stand for themselves and change no key behind them.
    ("= e", [("\u00b4", "55 F0 55"), ("e", "24 F0 24")]),
    ("` o `", [("^", "0E F0 0E"), ("o", "44 F0 44"), ("^", "0E F0 0E")]),
    ("LeftShift+= a", [("Shift Left+\u00b4", "12 55 F0 55 F0 12"), ("a", "1C F0 1C")]),
    # Alt Gr without the left Ctrl that it reports ahead of itself.
    ("RightAlt", [("Alt Gr", "E0 11 E0 F0 11")]),
    ("RightAlt+q", [("Alt Gr+q", "E0 11 15 F0 15 E0 F0 11")]),
    ("RightAlt+8 RightAlt+9", [("Alt Gr+8", "E0 11 3E F0 3E E0 F0 11"), ("Alt Gr+9", "E0 11 46 F0 46 E0 F0 11")]),
    ("LeftCtrl+LeftAlt+Delete", [("Ctrl Left+Alt+Del", "14 11 E0 71 E0 F0 71 F0 11 F0 14")]),
    ("Pad.", [("Del", "E0 71 E0 F0 71")]),
    ("NumLock Pad. NumLock", [("Num Lock", "77 F0 77"), ("Numpad ,", "71 F0 71"), ("Num Lock", "77 F0 77")]),
]

OTHER_KEYS = [
    ("Esc Return Tab", [("Esc", "76 F0 76"), ("Return", "5A F0 5A"), ("Tab", "0D F0 0D")]),
    ("Space Backspace", [("Space", "29 F0 29"), ("Backspace", "66 F0 66")]),
    ("CapsLock b CapsLock", [("Caps Lock", "58 F0 58"), ("b", "32 F0 32"), ("Caps Lock", "58 F0 58")]),
    ("LeftShift", [("Shift Left", "12 F0 12")]),
    ("RightShift", [("Shift Right", "59 F0 59")]),
    ("LeftCtrl RightCtrl", [("Ctrl Left", "14 F0 14"), ("Ctrl Right", "E0 14 E0 F0 14")]),
    ("LeftAlt", [("Alt", "11 F0 11")]),
    ("RightCtrl+c", [("Ctrl Right+c", "E0 14 21 F0 21 E0 F0 14")]),
    ("Print", [("Print", "E0 12 E0 7C E0 F0 7C E0 F0 12")]),
    ("LeftAlt+Print", [("Alt+Print", "11 E0 12 E0 7C E0 F0 7C E0 F0 12 F0 11")]),
    ("Pause", [("Pause", "E1 14 77 E1 F0 14 F0 77")]),
    ("LeftCtrl+Pause", [("Ctrl Left+UnknownKey", "14 7E F0 7E F0 14")]),
    ("ScrollLock", [("Scroll Lock", "7E F0 7E")]),
    ("Menu", [("Context", "E0 2F E0 F0 2F")]),
    # The cursor block and the pad, which share their codes.
    ("Home Up PageUp", [("Pos1", "E0 6C E0 F0 6C"), ("Cursor Up", "E0 75 E0 F0 75"), ("Page Up", "E0 7D E0 F0 7D")]),
    ("Left Right", [("Cursor Left", "E0 6B E0 F0 6B"), ("Cursor Right", "E0 74 E0 F0 74")]),
    ("End Down PageDown", [("End", "E0 69 E0 F0 69"), ("Cursor Down", "E0 72 E0 F0 72"),
                           ("Page down", "E0 7A E0 F0 7A")]),
    ("Insert Delete", [("Insert", "E0 70 E0 F0 70"), ("Del", "E0 71 E0 F0 71")]),
    ("Pad7 Pad5 Pad0", [("Pos1", "E0 6C E0 F0 6C"), ("Numpad (off) 5", "73 F0 73"), ("Insert", "E0 70 E0 F0 70")]),
    ("LeftShift+Pad4", [("Shift Left+Cursor Left", "12 E0 6B E0 F0 6B F0 12")]),
    ("Pad/ Pad* Pad- Pad+", [("Numpad /", "E0 4A E0 F0 4A"), ("Numpad *", "7C F0 7C"), ("Numpad -", "7B F0 7B"),
                             ("Numpad +", "79 F0 79")]),
    ("PadEnter", [("Numpad Enter", "E0 5A E0 F0 5A")]),
    ("NumLock", [("Num Lock", "77 F0 77")]),
    ("Pad7 Pad5 Pad0", [("Numpad 7", "6C F0 6C"), ("Numpad 5", "73 F0 73"), ("Numpad 0", "70 F0 70")]),
    ("Pad1 Pad9", [("Numpad 1", "69 F0 69"), ("Numpad 9", "7D F0 7D")]),
    # Shift makes the pad a cursor block for the moment, by a false release and press of its own.
    ("LeftShift+Pad7", [("Shift Left", "12 F0 12"), ("Pos1", "E0 6C E0 F0 6C"), ("Shift Left", "12 F0 12")]),
    ("NumLock", [("Num Lock", "77 F0 77")]),
    ("F1 F12", [("F1", "05 F0 05"), ("F12", "07 F0 07")]),
    ("F13 F14 F15 F16", [("F13", "08 F0 08"), ("F14", "10 F0 10"), ("F15", "18 F0 18"), ("F16", "20 F0 20")]),
    ("F17 F18 F19 F20", [("F17", "28 F0 28"), ("F18", "30 F0 30"), ("F19", "38 F0 38"), ("F20", "40 F0 40")]),
    ("F21 F22 F23 F24", [("F21", "48 F0 48"), ("F22", "50 F0 50"), ("F23", "57 F0 57"), ("F24", "5F F0 5F")]),
    # Of two Shifts or Ctrls only one is told; the second Ctrl's release ends an empty combination.
    ("LeftShift~ RightShift~ ~RightShift ~LeftShift", [("Shift Right", "59 F0 59")]),
    ("LeftCtrl~ RightCtrl~ ~RightCtrl ~LeftCtrl", [("Ctrl Right", "E0 14 E0 F0 14"), ("", "")]),
    # The desktop's own keys, which reach nobody.
    ("LeftWindows RightWindows", []),
    ("LeftWindows+r", [("r", "2D F0 2D")]),
    ("LeftAlt+Tab", [("Alt", "11 F0 11")]),
    ("LeftAlt+Esc", [("Alt", "11 F0 11")]),
    ("LeftCtrl+Esc", [("Ctrl Left", "14 F0 14")]),
    ("LeftAlt+F4", [("Alt+F4", "11 0C F0 0C F0 11")]),
]
