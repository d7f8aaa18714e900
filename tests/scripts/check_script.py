#!/usr/bin/env python3
"""check_script.py PLEXEL [SCRIPT...]: compares the answers of scripts with those kept beside them."""

import difflib
import sys

from expectations import answers, expected_file, scripts


def main():
    failed = False
    for script in scripts(sys.argv[2:]):
        kept = expected_file(script)
        expected = kept.read_text(encoding="utf-8").splitlines() if kept.exists() else []
        given = answers(sys.argv[1], script)
        if given != expected:
            failed = True
            name = script.name
            print("\n".join(difflib.unified_diff(expected, given, f"{name}, expected", f"{name}, given", lineterm="")))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
