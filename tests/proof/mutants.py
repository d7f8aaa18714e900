#!/usr/bin/env python3
"""mutants.py [ROOM] [--seed N] [--count N] [--again]: changes the sources a little, one change at a time, and tells which changes
no test notices.

A room is a folder of src/, `src` for all of these, `project`, `files`, or a single source; without one all are taken. What is drawn depends on the
seed and on the lines themselves, so that a change of the tree leaves the rest of the draw as it is. --again takes those that
survived the last time. The build folder is that of the preset `mutants`, built; the tree is not touched.

Ends with 1 when less than 99 % of the mutants of src/ and project/ die, those that `equivalents` names left out."""

import argparse
import os
import queue
import re
import shutil
import sys
import threading
import time
from collections import Counter
from pathlib import Path

from built import Built, Workplace, limit, timed
from mutations import mutants_of

TREE = Path(__file__).resolve().parents[2]
FOLDER = TREE / "build/mutants"
EQUIVALENTS = Path(__file__).with_name("equivalents")
ROOTS = ("src", "project", "adapters/files")
BAR = 99.0
HIGH = 600  # seconds that a step may take when nothing is wrong


def room_of(file):
    parts = file.split("/")
    return {"src": parts[1], "project": "project", "adapters": "files"}[parts[0]]


def chosen(file, room):
    return room in (None, file, room_of(file)) or (room == "src" and file.startswith("src/"))


def all_mutants(tree, files):
    return [mutant for file in sorted(files) for mutant in mutants_of(file, (tree / file).read_text(encoding="utf-8"))]


def read_equivalents(text):
    """(file, before, after) and the reason of each paragraph: the file, `- ` the lines, `+ ` the same changed, and why no test can
    tell. Behind a file with several such lines stands which it is, as `, 2 of 3`. ValueError when a paragraph is anything else."""
    found = {}
    for paragraph in re.split(r"\n\s*\n", text.strip()):
        lines = [line for line in paragraph.splitlines() if not line.startswith("#")]
        if not lines:
            continue
        if len(lines) < 4 or not lines[1].startswith("- ") or not lines[2].startswith("+ "):
            raise ValueError(f"an equivalent is a file, a line, its change and a reason, not:\n{paragraph}")
        found[(lines[0].strip(), lines[1][2:].strip(), lines[2][2:].strip())] = " ".join(lines[3:])
    return found


def key(mutant):
    return (mutant.file, mutant.before, mutant.after)


def keys_of_equivalents(mutants):
    """What a paragraph of an equivalent begins with, for each mutant."""
    alike = Counter(map(key, mutants))
    return {mutant: (mutant.file + (f", {mutant.turn + 1} of {alike[key(mutant)]}" if alike[key(mutant)] > 1 else ""),
                     mutant.before, mutant.after) for mutant in mutants}


def survivors_of(result):
    """(file, before, after) of those that a result tells."""
    return set(re.findall(r"^survived (\S+):\d+ .*\n  - (.*)\n  \+ (.*)$", result, re.MULTILINE))


class Trial:
    """The proof of one build: the steps, nearest first, and what each mutant comes to."""

    def __init__(self, built, steps):
        self.built, self.steps = built, steps
        self.programs = {step.name: built.programs_of(step) for step in steps}

    def measure(self, place):
        """Looks at what the steps take when nothing is wrong, and gives the names of those that fail all the same."""
        failed = []
        for step in self.steps:
            seconds = timed(place, step, HIGH)
            if seconds is None:
                failed.append(step.name)
            step.seconds = seconds or 0.0
        self.steps.sort(key=lambda step: step.seconds)
        return failed

    def order(self, file):
        """The steps for a source: its own room's first, then the others, but long ones of its own room alone."""
        own = "test_" + room_of(file)
        return sorted((step for step in self.steps if not step.long or step.name.startswith(own)),
                      key=lambda step: step.name != own)

    def outcome(self, place, mutant, source):
        """`refused` by the compiler, `survived`, or the name of the step that notices it."""
        changed = set(self.built.users.get(mutant.file, []))
        place.put(mutant.file, mutant.applied(source))
        first = True
        for step in self.order(mutant.file):
            programs = self.programs[step.name]
            if not any(changed & self.built.objects_of(program) for program in programs):
                continue
            if not place.build(programs, changed):
                return "refused" if first else step.name
            first = False
            if not place.passes(step, 5 + 5 * step.seconds):
                return step.name
        return "survived"


def run_all(trial, mutants, workers, tell):
    """The outcome of each mutant."""
    waiting, outcomes = queue.SimpleQueue(), {}
    for mutant in mutants:
        waiting.put(mutant)

    def work(number):
        place = Workplace(trial.built, trial.built.folder / "work" / str(number))
        while True:
            try:
                mutant = waiting.get_nowait()
            except queue.Empty:
                return
            begin = time.monotonic()
            source = (trial.built.tree / mutant.file).read_text(encoding="utf-8")
            outcomes[mutant] = trial.outcome(place, mutant, source)
            tell(mutant, outcomes[mutant], time.monotonic() - begin)

    threads = [threading.Thread(target=work, args=(number,)) for number in range(workers)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    return outcomes


def percent(died, survived):
    return 100.0 if died + survived == 0 else 100.0 * died / (died + survived)


def table(outcomes):
    """The figures by room."""
    rows = {}
    for mutant, outcome in outcomes.items():
        row = rows.setdefault(room_of(mutant.file), {"refused": 0, "died": 0, "equivalent": 0, "survived": 0})
        row[outcome if outcome in row else "died"] += 1
    total = {name: sum(row[name] for row in rows.values()) for name in ("refused", "died", "equivalent", "survived")}
    lines = [f"{'room':16}{'mutants':>9}{'refused':>9}{'died':>9}{'equivalent':>12}{'survived':>10}{'% died':>9}"]
    for name, row in [*sorted(rows.items()), ("all", total)]:
        lines.append(f"{name:16}{sum(row.values()):9}{row['refused']:9}{row['died']:9}{row['equivalent']:12}{row['survived']:10}"
                     f"{percent(row['died'], row['survived']):9.1f}")
    return "\n".join(lines)


def told(outcomes):
    """Those that survived, in the order of the tree."""
    return "\n".join(f"survived {mutant.file}:{mutant.line} [{mutant.kind}]\n  - {mutant.before}\n  + {mutant.after}"
                     for mutant, outcome in sorted(outcomes.items(), key=lambda one: (one[0].file, one[0].line))
                     if outcome == "survived")


def share_that_died(outcomes):
    counted = [outcome for mutant, outcome in outcomes.items() if not mutant.file.startswith("adapters/")]
    survived = counted.count("survived")
    return percent(len(counted) - counted.count("refused") - counted.count("equivalent") - survived, survived)


def arguments(words):
    parser = argparse.ArgumentParser(prog="./check mutants")
    parser.add_argument("room", nargs="?")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--count", type=int, default=300)
    parser.add_argument("--again", action="store_true", help="only those that survived the last time")
    return parser.parse_args(words)


def main(words):
    wanted = arguments(words)
    limit()
    built = Built(TREE, FOLDER)
    files = [file for file in built.users if file.startswith(tuple(root + "/" for root in ROOTS))]
    if not any(chosen(file, wanted.room) for file in files):
        print(f"there is no room {wanted.room}", file=sys.stderr)
        return 2
    mutants = all_mutants(TREE, files)
    equivalents = read_equivalents(EQUIVALENTS.read_text(encoding="utf-8"))
    keys = keys_of_equivalents(mutants)
    lost = set(equivalents) - set(keys.values())
    for file, before, after in sorted(lost):
        print(f"{file}: no line, or more than one, can be changed so:\n  - {before}\n  + {after}", file=sys.stderr)
    if lost:
        return 2
    result = FOLDER / "result.txt"
    drawn = sorted((mutant for mutant in mutants if chosen(mutant.file, wanted.room)), key=lambda one: one.rank(wanted.seed))
    if wanted.again:
        again = survivors_of(result.read_text(encoding="utf-8"))
        drawn = [mutant for mutant in drawn if key(mutant) in again]
    else:
        drawn = drawn[:wanted.count]

    trial = Trial(built, built.steps())
    failed = trial.measure(Workplace(built, FOLDER / "work/0"))
    if failed:
        print("these fail though nothing is changed: " + ", ".join(failed), file=sys.stderr)
        return 2
    for step in trial.steps:
        print(f"{step.seconds:7.1f} s {step.name}", flush=True)
    outcomes = {mutant: "equivalent" for mutant in drawn if keys[mutant] in equivalents}
    left = [mutant for mutant in drawn if mutant not in outcomes]
    begin = time.monotonic()

    def tell(mutant, outcome, seconds):
        print(f"{seconds:6.1f} s {outcome:32} {mutant.file}:{mutant.line} [{mutant.kind}] {mutant.after[:80]}", flush=True)

    outcomes |= run_all(trial, left, os.cpu_count() or 1, tell)
    shutil.rmtree(FOLDER / "work", ignore_errors=True)
    text = f"{told(outcomes)}\n\nseed {wanted.seed}, {len(drawn)} of {len(mutants)} mutants, {time.monotonic() - begin:.0f} s\n" \
           f"{table(outcomes)}\n"
    result.write_text(text, encoding="utf-8")
    print("\n" + text)
    return 0 if share_that_died(outcomes) >= BAR else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
