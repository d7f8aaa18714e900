"""Runs a script through plexel and shows its answers as they are kept beside it.

Places and sizes on forms are a matter of taste and stand as "any"; the exit status is the last line."""

import json
import os
import pathlib
import subprocess

HERE = pathlib.Path(__file__).resolve().parent
DATA = HERE / "data"
PLACES = {"Left", "Top", "Width", "Height", "TabIndex"}


def any_place(members):
    return {name: "any" if name in PLACES else value for name, value in members.items()}


def settle(line):
    answer = json.loads(line)
    if "control" in answer:
        answer["control"] = any_place(answer["control"])
    if "popup" in answer:
        answer = {name: "any" if name in ("x", "y") else value for name, value in answer.items()}
    return json.dumps(answer, ensure_ascii=False, separators=(",", ":"))


def answers(plexel, script):
    environment = dict(os.environ, PLEXEL_DATA=str(DATA))
    run = subprocess.run([pathlib.Path(plexel).resolve(), "script", script.resolve()], capture_output=True,
                         env=environment, cwd=HERE, timeout=60)
    lines = [settle(line) for line in run.stdout.decode("utf-8").splitlines()]
    return lines + run.stderr.decode("utf-8").splitlines() + [f"exit status {run.returncode}"]


def scripts(names):
    return [pathlib.Path(name) for name in names] or sorted(HERE.glob("*.script"))


def expected_file(script):
    return script.with_suffix(".expected")
