#!/usr/bin/env python3
"""check.py PLEXEL [RUNS] [SEED]: plays random acts into the configuration dialog, through plexel script, and into the
second telling of its grid (dialog_model.py)."""

import json
import os
import random
import subprocess
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import dialog_model  # noqa: E402

KEYS = [(0x41, 0x1E, 0), (0x42, 0x30, 0), (0x43, 0x2E, 0), (0x11, 0x1D, 0), (0x12, 0x38, 1), (0x10, 0x2A, 0),
        (0x25, 0x4B, 1), (0x23, 0x4F, 1), (0x13, 0x45, 0), (0x2C, 0x37, 1), (0xC1, 0x73, 0), (0x0D, 0x1C, 0),
        (0x2E, 0x53, 1), (0x1B, 0x01, 0), (0xDB, 0x1A, 0), (0x70, 0x3B, 0)]
CHARACTERS = {0x41: (1, "a"), 0x42: (1, "b"), 0x43: (1, "c"), 0xDB: (1, "[")}
ACTS = 150


class Run:
    """A script and what each of its questions must answer."""

    def __init__(self, seed):
        self.random = random.Random(seed)
        checks, interface = self.random.random() < 0.8, self.random.random() < 0.3
        self.dialog = dialog_model.Dialog(22 if interface else 43, checks, CHARACTERS)
        self.lines = ["layout us", "option 1 %d" % (-1 if checks else 0), "element A", "set ElementType 5",
                      "set VantaEnabled %d" % (-1 if interface else 0), "call OpenConfigurationDialog"]
        self.expected = {}
        for _ in range(ACTS):
            self.act()
            if self.random.random() < 0.3:
                self.look()
        self.look()
        self.lines.append("click cmdOK")

    def act(self):
        chance = self.random.random()
        row, col = self.random.choice([1, 1, 1, 2, 3, 4]), self.random.randint(1, 2)
        if chance < 0.08:
            self.do("click msgScanCodes %d %d" % (row, col), self.dialog.move, row, col)
        elif chance < 0.13:
            kind = self.random.randint(0, 2)
            self.do("click optCodeType(%d)" % kind, setattr, self.dialog, "choice", kind)
        elif chance < 0.17:
            self.do("dblclick msgScanCodes %d %d" % (row, col), self.dialog.move, row, col)
            self.dialog.toggle()
        elif chance < 0.19:
            self.do(self.random.choice(["click sstScanCode", "mouse msgScanCodes 2 0 1 1"]), self.dialog.end)
        elif self.dialog.capturing:
            self.press_or_release()
        elif chance < 0.5:
            self.edit()

    def press_or_release(self):
        held = [key for key in KEYS if key[0] in self.dialog.held]
        if held and self.random.random() < 0.5:
            key, up = self.random.choice(held), True
        else:
            key = self.random.choice(KEYS if self.random.random() < 0.6 else KEYS[:3])
            up = key[0] == 0x2C or self.random.random() < 0.05
        self.do("key %s %d %d %d" % (("up" if up else "down",) + key), self.dialog.key, *key, up)

    def edit(self):
        code = self.random.randint(1, 255)
        lines, what, *arguments = self.random.choice([
            ("keydown 46 0", self.dialog.delete_first),
            ("keydown 8 0", self.dialog.delete_last),
            ("keydown 67 2", self.dialog.copy),
            ("keydown 86 2", self.dialog.paste),
            ("keydown 121 1\nmenu MNU_POPUP_ASCII\nclick msgASCIICodes %d %d\nclick cmdOK" % divmod(code - 1, 15),
             self.dialog.insert_character, code),
            ("focus msgScanCodes\nkeydown 13 0", self.dialog.toggle)])
        self.do(lines, what, *arguments)

    def do(self, lines, what, *arguments):
        self.lines += lines.split("\n")
        what(*arguments)

    def look(self):
        dialog = self.dialog
        self.ask("control msgScanCodes", [dialog.cell(), dialog.cells()])
        self.ask("record", dialog.buffers())
        self.ask("state", [-1 if dialog.capturing else 0, dialog.slots[:dialog.count + 1],
                           -1 if dialog.clipboard else 0, dialog.copied_text])
        self.ask("control cmdCancel", -1 if dialog.escapes else 0)
        self.ask("control MNU_POPUP_PASTE", -1 if dialog.pastable else 0)

    def ask(self, line, answer):
        self.lines.append(line)
        self.expected[len(self.lines)] = json.loads(json.dumps(answer))


def told(line, answer):
    """The part of an answer that the second telling knows."""
    if line == "control msgScanCodes":
        grid = answer["control"]
        return [[grid["Row"], grid["Col"]], [[row[0]["Text"]] + [[cell["Text"], cell["BackColor"]] for cell in row[1:]]
                                             for row in grid["Cells"][1:]]]
    if line == "record":
        buffers = [answer["record"]["strLayer%d%sScanCode" % (layer, direction)]
                   for layer in range(1, 5) for direction in ("Press", "Release")]
        return [[buffer["Value"], buffer["NextValue"]] for buffer in buffers]
    if line == "state":
        state = answer["state"]
        clipboard = state["udtScanCodeClipboard"]
        return [state["bDirectInputActive"], state["lngPressedKeys"], clipboard["Valid"], clipboard["VisibleString"]]
    return answer["control"]["Cancel" if line.endswith("cmdCancel") else "Enabled"]


def differs(plexel, seed):
    run = Run(seed)
    process = subprocess.run([plexel, "script"], input="\n".join(run.lines).encode("utf-8"), capture_output=True,
                             timeout=60)
    answers = {}
    for text in process.stdout.decode("utf-8").splitlines():
        answer = json.loads(text)
        if "ok" in answer:
            answers[answer["line"]] = answer
    for number, line in enumerate(run.lines, 1):
        answer = answers.get(number)
        if answer is None or not answer["ok"]:
            return run, number, "success", answer
        if number in run.expected and told(line, answer) != run.expected[number]:
            return run, number, run.expected[number], told(line, answer)
    return None


def main():
    runs = int(sys.argv[2]) if len(sys.argv) > 2 else 200
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else int(time.time()) % 1000000
    print("seed %d, %d runs" % (seed, runs), flush=True)
    for number in range(runs):
        difference = differs(sys.argv[1], seed + number)
        if difference:
            run, line, expected, given = difference
            print("run with seed %d differs at line %d\n  model     %s\n  component %s" %
                  (seed + number, line, expected, given))
            print("\n".join(run.lines[:line]))
            return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
