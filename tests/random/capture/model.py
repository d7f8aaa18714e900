"""A second telling of keyboard capture, from key events to definition text and code bytes.

It shares no code and no table with the component. `check.py` runs both on the same random streams.
"""

import copy

END = 0xFF
LIMIT = 10

PLAIN = {}
for row in """
01:76 02:16 03:1E 04:26 05:25 06:2E 07:36 08:3D 09:3E 0A:46 0B:45 0C:4E 0D:55 0E:66 0F:0D
10:15 11:1D 12:24 13:2D 14:2C 15:35 16:3C 17:43 18:44 19:4D 1A:54 1B:5B
1E:1C 1F:1B 20:23 21:2B 22:34 23:33 24:3B 25:42 26:4B 27:4C 28:52 29:0E 2A:12 2B:5D
2C:1A 2D:22 2E:21 2F:2A 30:32 31:31 32:3A 33:41 34:49 36:59 37:7C 39:29 3A:58
3B:05 3C:06 3D:04 3E:0C 3F:03 40:0B 41:83 42:0A 43:01 44:09 46:7E 4A:7B 4C:73 4E:79
56:61 57:78 58:07 64:08 65:10 66:18 67:20 68:28 69:30 6A:38 6B:40 6C:48 6D:50 6E:57 76:5F
""".split():
    scan, code = row.split(":")
    PLAIN[int(scan, 16)] = int(code, 16)

SIDED = {0x1C: 0x5A, 0x1D: 0x14, 0x38: 0x11}
ALWAYS_EXTENDED = {0x5B: 0x1F, 0x5C: 0x27, 0x5D: 0x2F}
CURSOR = {0x47: (0x24, 0x6C), 0x48: (0x26, 0x75), 0x49: (0x21, 0x7D), 0x4B: (0x25, 0x6B), 0x4D: (0x27, 0x74),
          0x4F: (0x23, 0x69), 0x50: (0x28, 0x72), 0x51: (0x22, 0x7A), 0x52: (0x2D, 0x70), 0x53: (0x2E, 0x71)}

NAMES = {0x08: "Backspace", 0x09: "Tab", 0x0C: "Numpad (off) 5", 0x13: "Pause", 0x14: "Caps Lock", 0x1B: "Esc",
         0x20: "Space", 0x21: "Page Up", 0x22: "Page down", 0x23: "End", 0x24: "Pos1", 0x25: "Cursor Left",
         0x26: "Cursor Up", 0x27: "Cursor Right", 0x28: "Cursor Down", 0x2C: "Print", 0x2D: "Insert", 0x2E: "Del",
         0x5B: "Windows Left", 0x5C: "Windows Right", 0x5D: "Context", 0x6A: "Numpad *", 0x6B: "Numpad +",
         0x6D: "Numpad -", 0x6F: "Numpad /", 0x90: "Num Lock", 0x91: "Scroll Lock"}
NAMES.update({0x60 + digit: "Numpad %d" % digit for digit in range(10)})
NAMES.update({0x70 + number: "F%d" % (number + 1) for number in range(24)})


class Sequence:
    """An array of 101 numbers with a length of its own; writing past the length is allowed."""

    def __init__(self):
        self.items = [0] * 101
        self.length = 0

    def put(self, values, length=None):
        self.items[0:len(values)] = values
        self.length = len(values) if length is None else length


def translate(scan, key, extended, down, make, brk):
    """`down` says which virtual keys are physically held at this moment."""

    def both(press, release):
        make.put(press)
        brk.put(release)

    if scan in PLAIN:
        both([PLAIN[scan]], [0xF0, PLAIN[scan]])
    elif scan in SIDED:
        code = SIDED[scan]
        if extended:
            both([0xE0, code], [0xE0, 0xF0, code])
        else:
            both([code], [0xF0, code])
    elif scan in ALWAYS_EXTENDED:
        both([0xE0, ALWAYS_EXTENDED[scan]], [0xE0, 0xF0, ALWAYS_EXTENDED[scan]])
    elif scan in CURSOR:
        navigation, code = CURSOR[scan]
        if key != navigation:
            both([code], [0xF0, code])
        elif 0x10 in down:
            both([0xE0, 0xF0, 0x12, 0x12 if scan == 0x4F else 0xE0] + ([0xE0, code] if scan == 0x4F else [code]),
                 [0xE0, 0xF0, code, 0xE0, 0x12])
        elif 0x90 in down:
            if scan == 0x52:
                make.put([0xE0, 0x12, 0x70])
            elif scan == 0x4B:
                make.put([0xE0, 0x12, 0xE0, code], make.length)
            else:
                make.put([0xE0, 0x12, 0xE0, code])
            brk.put([0xE0, 0xF0, code, 0x40 if scan == 0x50 else 0xE0, 0xF0, 0x12])
        else:
            both([0xE0, code], [0xE0, 0xF0, code])
    elif scan == 0x35:
        if key != 0x6F:
            both([0x4A], [0xF0, 0x4A])
        elif 0x10 in down:
            both([0xE0, 0xF0, 0x12, 0x4A], [0xE0, 0x12, 0xF0, 0x4A])
        else:
            both([0xE0, 0x4A], [0xE0, 0xF0, 0x4A])
    elif scan == 0x00:
        if 0x10 in down or 0x11 in down:
            both([0xE0, 0x7C], [0xE0, 0xF0, 0x7C])
        elif 0x12 in down:
            both([0x84], [0xF0, 0x84])
        else:
            both([0xE0, 0x12, 0xE0, 0x7C], [0xE0, 0xF0, 0x7C, 0xE0, 0xF0, 0x12])
    elif scan == 0x45:
        if key == 0x90:
            both([0x77], [0xF0, 0x77])
        elif 0x11 in down:
            make.put([0xE0, 0x7E, 0xE0, 0xF0, 0x7E], 4)
            brk.put([0x00], 1)
        else:
            make.put([0xE1, 0x14, 0x77, 0xE1, 0xF0, 0x14, 0xF0, 0x77])
            brk.put([0x00], 0)


def key_name(key, scan, extended, characters):
    """`characters` maps a virtual key to (count, character) as the layout answers; a missing one has none."""
    if key == 0x0D:
        return "Numpad Enter" if extended else "Return"
    if key == 0x10:
        return "Shift Left" if scan == 0x2A else "Shift Right"
    if key == 0x11:
        return "Ctrl Right" if extended else "Ctrl Left"
    if key == 0x12:
        return "Alt Gr" if extended else "Alt"
    if key in NAMES:
        return NAMES[key]
    count, character = characters.get(key, (0, ""))
    if key == 0x6E:
        if count == 0:
            return "Numpad ,"
        return "Numpad " + character if count > 0 else "UnknownKey"
    if count not in (1, -1):
        return "UnknownKey"
    return character.replace("[", "Squared Bracket Open").replace("]", "Squared Bracket Close")


class Buffer:
    def __init__(self, zero=False):
        self.bytes = [0] * 89 if zero else [END] * 45 + [0] * 44
        self.next = 0

    def append(self, value):
        if self.next + 1 > 88:
            raise IndexError
        self.next += 1
        self.bytes[self.next] = value

    def ends(self):
        return self.bytes[:self.next + 1].count(END)

    def add_group(self, make, brk, kind):
        if kind in (0, 1):
            for value in make.items[:make.length]:
                if value != END:
                    self.append(value)
        if kind == 1:
            self.append(END)
            return
        high = brk.length
        for k in range(high - 1, -1, -1):
            if brk.items[k] == END:
                for value in brk.items[k:high + 1]:
                    self.append(value)
                high = k
        for value in brk.items[0:high + 1]:
            self.append(value)
        self.bytes[self.next] = END


class Capture:
    """Capture into one cell (target 0) or into the wizard (target 2)."""

    def __init__(self, target, choice, column, limit, characters):
        self.target, self.choice, self.column, self.limit, self.characters = target, choice, column, limit, characters
        self.slots = [[0, 0, 0, 0] for _ in range(51)]
        self.slots[0][1] = 1
        self.count = 0
        self.text = ""
        self.press = [Buffer() for _ in range(4)]
        self.release = [Buffer() for _ in range(4)]
        self.layer = 0

    def event(self, key, scan, extended, up, down):
        self.track(key, scan, extended, up)
        if any(slot[1] == 1 for slot in self.slots[:self.count + 1]):
            return
        self.drop_false_control()
        self.finish(down)

    def track(self, key, scan, extended, up):
        if up:
            for i in range(self.count + 1):
                if self.slots[i][0] == key:
                    self.slots[i][1] = 0
                    return
                if key == 0x2C:
                    self.slots[self.count] = [key, 0, 0, extended]
                    if self.count < LIMIT:
                        self.count += 1
            return
        matches = [i for i in range(self.count + 1) if self.slots[i][0] == key]
        place = matches[-1] if matches else self.count
        self.slots[place] = [key, 1, scan, extended]
        if not matches and self.count < LIMIT:
            self.count += 1

    def drop_false_control(self):
        places = [i for i in range(self.count + 1)
                  if self.slots[i][2] == 0x38 and self.slots[i][0] == 0x12 and self.slots[i][3] == 1]
        if not places:
            return
        p = places[-1]
        if p >= 1 and self.slots[p - 1][2] == 0x1D and self.slots[p - 1][0] == 0x11 and self.slots[p - 1][3] == 0:
            for i in range(p, self.count + 1):
                self.slots[i - 1] = list(self.slots[i])
            self.count -= 1

    def finish(self, down):
        keys = [list(slot) for slot in self.slots[:self.count]]
        text = "["
        for number, (key, _, scan, extended) in enumerate(keys):
            name = key_name(key, scan, extended, self.characters)
            text += name
            if name and number != len(keys) - 1:
                text += "+"
        one, other = Sequence(), Sequence()
        make, brk = Sequence(), Sequence()
        for key, _, scan, extended in keys:
            translate(scan, key, extended, down, one, other)
            self.join(make, one)
        for key, _, scan, extended in reversed(keys):
            translate(scan, key, extended, down, one, other)
            self.join(brk, other)
        self.slots = [[0, 0, 0, 0] for _ in range(51)]
        self.count = 0
        if self.target == 0:
            self.store_cell(make, brk, text)
        else:
            self.store_wizard(make, brk)
            self.text = text[1:]

    @staticmethod
    def join(whole, part):
        for i in range(part.length):
            if whole.length + i <= 100:
                whole.items[whole.length + i] = part.items[i]
        whole.length += part.length

    def store_cell(self, make, brk, text):
        press, release = self.press[self.layer], self.release[self.layer]
        used = press.next + release.next + make.length + brk.length - press.ends() - release.ends()
        if not used < self.limit:
            return
        try:
            buffer = copy.deepcopy(press if self.column == 1 else release)
            buffer.add_group(make, brk, self.choice)
            (self.press if self.column == 1 else self.release)[self.layer] = buffer
        except IndexError:
            pass
        self.text += text + ["\u2039\u203a", "\u2039", "\u203a"][self.choice] + "]"

    def store_wizard(self, make, brk):
        press, release = Buffer(True), Buffer(True)
        try:
            if self.choice in (0, 2):
                press.add_group(make, brk, 0)
            else:
                press.add_group(make, brk, 1)
                release.add_group(make, brk, 2)
        except IndexError:
            return
        self.press, self.release = [press] * 4, [release] * 4
