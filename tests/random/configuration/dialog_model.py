"""A second telling of the configuration dialog's grid: capture modes, editing, copy and paste, characters by code.

It shares no code and no table with the component; capture itself is told in ../capture/model.py."""

import copy
import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), "capture"))
import model  # noqa: E402

END = model.END
WHITE, CAPTURE_COLOUR = 0xFFFFFF, 0xFFFF
MARKS = ["\u2039\u203a", "\u2039", "\u203a"]
PAD_DIGITS = [0x70, 0x69, 0x72, 0x7A, 0x6B, 0x73, 0x74, 0x6C, 0x75, 0x7D]


def remove_first(buffer):
    ends = [i for i in range(1, buffer.next + 1) if buffer.bytes[i] == END]
    if not ends:
        return
    first = ends[0]
    if first == buffer.next:
        buffer.bytes, buffer.next = [END] * 89, 0
        return
    rest = buffer.bytes[first:buffer.next + 1]
    last = len(rest) - 1
    buffer.bytes[:len(rest)] = rest
    buffer.bytes[last:last + first + 1] = [END] * (first + 1)
    buffer.next = last


def remove_last(buffer):
    for i in range(buffer.next - 1, -1, -1):
        if buffer.bytes[i] == END:
            buffer.next = i
            return
        buffer.bytes[i] = END


class Dialog(model.Capture):
    def __init__(self, limit, checks, characters):
        super().__init__(0, 0, 1, limit, characters)
        self.slots[0][1] = 0
        self.checks, self.capturing, self.escapes, self.coloured = checks, False, True, None
        self.texts = {(row, col): "" for row in range(1, 5) for col in (1, 2)}
        self.marks = ["1", "2", "3", "4"]
        self.clipboard, self.pastable = None, False
        self.copied_text = ""
        self.held = set()

    # The current cell.
    def cell(self):
        return self.layer + 1, self.column

    def move(self, row, col):
        self.layer, self.column = row - 1, col
        if self.capturing:
            self.coloured = (row, col)

    def buffer(self):
        return (self.press if self.column == 1 else self.release)[self.layer]

    def update_marks(self):
        if not self.checks:
            return
        for row in range(1, 5):
            both = self.texts[row, 1] + self.texts[row, 2]
            self.marks[row - 1] = str(row) if both.count(MARKS[1]) == both.count(MARKS[2]) else "X"

    # Capture.
    def toggle(self):
        if self.capturing:
            self.end()
            self.escapes = True
        else:
            self.capturing, self.escapes, self.coloured = True, False, self.cell()
            self.slots[0][1] = 1

    def end(self):
        if self.capturing:
            self.slots = [[0, 0, 0, slot[3]] for slot in self.slots]
            self.count = 0
        self.capturing, self.coloured = False, None

    def key(self, key, scan, extended, up):
        (self.held.discard if up else self.held.add)(key)
        if not self.capturing:
            return
        self.event(key, scan, extended, up, self.held)
        if not up and {0x10, 0x11} <= self.held:
            self.toggle()

    def store_cell(self, make, brk, text):
        self.text = self.texts[self.cell()]
        before = self.text
        super().store_cell(make, brk, text)
        if self.text != before:
            self.texts[self.cell()] = self.text
            self.update_marks()

    # Editing.
    def delete_first(self):
        text = self.texts[self.cell()]
        self.texts[self.cell()] = text[text.find("]") + 1:] if "]" in text else ""
        remove_first(self.buffer())
        self.update_marks()

    def delete_last(self):
        text = self.texts[self.cell()]
        self.texts[self.cell()] = text[:text.rfind("[")] if "[" in text else ""
        remove_last(self.buffer())
        self.update_marks()

    def copy(self):
        if not self.texts[self.cell()]:
            self.clipboard = None
            return
        self.copied_text, self.clipboard, self.pastable = self.texts[self.cell()], copy.deepcopy(self.buffer()), True

    def paste(self):
        if self.clipboard is None:
            return
        length = self.clipboard.next - self.clipboard.ends()
        other = (self.release if self.column == 1 else self.press)[self.layer]
        if self.release[0].next >= length or other.next + length - self.buffer().ends() < self.limit:
            self.texts[self.cell()] = self.copied_text
            (self.press if self.column == 1 else self.release)[self.layer] = copy.deepcopy(self.clipboard)
        self.update_marks()

    def insert_character(self, code):
        codes = [0x11]
        for digit in str(code):
            codes += [PAD_DIGITS[int(digit)], 0xF0, PAD_DIGITS[int(digit)]]
        codes += [0xF0, 0x11]
        press, release = self.press[self.layer], self.release[self.layer]
        if not press.next + release.next + len(codes) - press.ends() - release.ends() < self.limit:
            return
        sequence, changed = model.Sequence(), copy.deepcopy(self.buffer())
        sequence.put(codes)
        try:
            changed.add_group(sequence, model.Sequence(), 1)
        except IndexError:
            return
        (self.press if self.column == 1 else self.release)[self.layer] = changed
        self.texts[self.cell()] += "[ASCII:%d%s]" % (code, MARKS[0])

    # What a script can see.
    def cells(self):
        def colour(row, col):
            return CAPTURE_COLOUR if self.coloured == (row, col) else WHITE

        return [[self.marks[row - 1]] + [(self.texts[row, col], colour(row, col)) for col in (1, 2)]
                for row in range(1, 5)]

    def buffers(self):
        return [(" ".join("%02X" % value for value in buffer.bytes), buffer.next)
                for pair in zip(self.press, self.release) for buffer in pair]
