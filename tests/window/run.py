#!/usr/bin/env python3
"""Runs one test of the editor's windows under an X server of its own: run.py BUILD SOURCE PICTURES TEST."""

import shutil
import sys
import tempfile
import traceback
from pathlib import Path

import tests_files
import tests_focus
import tests_keyboard
import tests_pictures
import tests_safekeeping
import tests_special
import tests_trial
import tests_view
import tests_virtual
import tests_walk
import tests_wizard
import tests_work
from desktop import Failed
from editor import Tools

TESTS = {
    "us-keyboard": tests_keyboard.us_keyboard,
    "german-keyboard": tests_keyboard.german_keyboard,
    "first-walk": tests_walk.first_walk,
    "dialog-place": tests_walk.dialog_returns_to_its_place,
    "task-keys": tests_focus.task_keys,
    "unlocked-task-keys": tests_focus.unlocked_task_keys,
    "lost-release": tests_focus.lost_release_with_lock,
    "lost-release-unlocked": tests_focus.lost_release_without_lock,
    "held-key": tests_focus.held_key,
    "german-wizard": tests_wizard.german_wizard,
    "special-kinds": tests_special.special_kinds,
    "undo": tests_safekeeping.undo_and_redo,
    "killed": tests_safekeeping.killed,
    "terminated": tests_safekeeping.terminated,
    "interrupted": tests_safekeeping.interrupted,
    "hung-up": tests_safekeeping.hung_up,
    "session-ended": tests_safekeeping.session_ended,
    "versions": tests_safekeeping.versions,
    "changed-by-another": tests_safekeeping.changed_by_another,
    "recent": tests_files.recent,
    "dropped": tests_files.dropped,
    "newer-format": tests_files.newer_format,
    "panel-missing": tests_files.panel_missing,
    "two-editors": tests_files.two_editors,
    "zoom": tests_view.zoom,
    "layer-shown": tests_view.layer_shown,
    "places": tests_view.places,
    "problems": tests_work.problems,
    "overview": tests_work.overview,
    "inspector": tests_work.inspector,
    "many-keys": tests_work.many_keys,
    "copying": tests_work.copying,
    "trial": tests_trial.tried,
    "virtual-panel": tests_virtual.reaches_the_program_in_front,
    "virtual-panel-killed": tests_virtual.killed,
    "virtual-panel-terminated": tests_virtual.terminated,
    "key-guard-killed": tests_virtual.guard_killed,
    "english-pictures": tests_pictures.english_pictures,
    "german-pictures": tests_pictures.german_pictures,
}


def main(build, source, pictures, name):
    tools = Tools(build, source, Path(pictures))
    home = Path(tempfile.mkdtemp(prefix="plexel-window-"))
    folder = home / name
    folder.mkdir()
    try:
        return run(TESTS[name], tools, folder)
    finally:
        shutil.rmtree(home)


def run(test, tools, folder):
    try:
        test(tools, folder)
        return 0
    except Failed as failure:
        print(f"{folder.name}: {failure}", file=sys.stderr)
    except Exception:
        traceback.print_exc()
    for log in sorted(folder.glob("*.log")):
        print(f"--- {log.name}\n{log.read_text(encoding='utf-8', errors='replace')}", file=sys.stderr)
    return 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
