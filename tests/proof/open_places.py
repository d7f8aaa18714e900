"""What the tests of a build that counts do not reach in a file, line by line."""

import os


def lines_without(segments):
    """The lines on which something stands that never ran. A segment is (line, column, count, counted, starts, gap): what stands from
    there to the next one ran so often."""
    found = set()
    for (line, column, count, counted, _, gap), following in zip(segments, segments[1:]):
        if counted and not gap and count == 0:
            last = following[0] if following[1] > 1 else following[0] - 1
            found.update(range(line, max(line, last) + 1))
    return found


def text_of(lines, place):
    """What stands at (line, column, last line, last column), on one line."""
    first, column, last, end = place
    if first == last:
        return lines[first - 1][column - 1:end - 1]
    parts = [lines[first - 1][column - 1:], *lines[first:last - 1], lines[last - 1][:end - 1]]
    return " ".join(part.strip() for part in parts)


def branch_places(branches, lines):
    """Conditions that were never true, or never false. A branch is (line, column, last line, last column, times true, times false,
    ...); one that the compiler decides counts nothing of either and is left out, as are those on lines that never ran."""
    reached = {}
    for branch in branches:
        true, false = reached.get(tuple(branch[:4]), (0, 0))
        reached[tuple(branch[:4])] = (true + branch[4], false + branch[5])
    return [(place[0], "never %s: %s" % ("true" if true == 0 else "false", text_of(lines, place)))
            for place, (true, false) in sorted(reached.items()) if (true == 0) != (false == 0)]


def condition_places(records, lines):
    """Decisions with a condition that is not shown to matter by itself. A record is (line, column, last line, last column, ...,
    whether each condition was shown); one that is made several times is as good as the best of them."""
    shown = {}
    for record in records:
        place, parts = tuple(record[:4]), record[-1]
        shown[place] = [a or b for a, b in zip(shown.get(place, [False] * len(parts)), parts)]
    return [(place[0], "condition %s of: %s" % (", ".join(str(number) for number, good in enumerate(parts, 1) if not good),
                                                text_of(lines, place)))
            for place, parts in sorted(shown.items()) if not all(parts)]


def open_places(file, root):
    """One line for each place of a file of the tool's export."""
    name = os.path.relpath(file["filename"], root)
    with open(file["filename"], encoding="utf-8") as source:
        lines = source.read().split("\n")
    never = lines_without(file["segments"])
    places = [(line, "never run: " + lines[line - 1].strip()) for line in never if lines[line - 1].strip() not in ("", "}", "};")]
    places += [place for place in branch_places(file["branches"], lines) + condition_places(file["mcdc_records"], lines)
               if place[0] not in never]
    return ["%s:%d: %s" % (name, line, told) for line, told in sorted(places)]
