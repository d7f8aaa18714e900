"""Records keys in the cells of the configuration dialog and compares what a saved project holds."""

from desktop import Failed
from keys import press

MAKE, BREAK = "\u2039", "\u203a"
ROOM = 44  # code bytes of press and release together that a layer takes
CELLS = [(layer, pressed) for layer in (1, 2, 3, 4) for pressed in (True, False)]


def text_of(groups):
    return "".join(f"[{names}{MAKE}{BREAK}]" for names, _ in groups)


def bytes_of(groups):
    row = [0xFF]
    for _, codes in groups:
        row += [int(code, 16) for code in codes.split()] + [0xFF]
    return row


def size_of(groups):
    return sum(len(codes.split()) for _, codes in groups)


def spread(cases, elements):
    """Deals the cases out to cells, as many as fit: {(element, layer, press): [case, ...]}."""
    plan, places = {}, ((element, *cell) for element in elements for cell in CELLS)
    place, layer_size = next(places), 0
    for case in cases:
        size = size_of(case[1])
        # Half a layer for each of its cells, so that both are used.
        if plan.get(place) and layer_size + size > (ROOM // 2 if place[2] else ROOM):
            before, place = place, next(places)
            layer_size = 0 if place[:2] != before[:2] else layer_size
            if layer_size + size > ROOM:
                place, layer_size = next(places), 0
        plan.setdefault(place, []).append(case)
        layer_size += size
    return plan


def record(editor, plan):
    """Opens one element after the other, records every cell, and closes by OK."""
    for element in dict.fromkeys(place[0] for place in plan):
        dialog, running = editor.configure(element), False
        for (_, layer, pressed), cases in ((place, cases) for place, cases in plan.items() if place[0] == element):
            if running:
                dialog.move_capture(layer, pressed)
            else:
                dialog.start_capture(layer, pressed)
            running = True
            for keys, _ in cases:
                press(editor.desktop, keys)
        dialog.ok()


def shown(row):
    return " ".join(f"{code:02X}" for code in row)


def compare(elements, plan):
    """Fails with every difference between the saved elements and the plan."""
    differences = []
    for (name, layer, pressed), cases in plan.items():
        groups = [group for _, groups in cases for group in groups]
        saved, where = elements[name], f"{name}, layer {layer}, {'press' if pressed else 'release'}"
        pairs = [(saved.text(layer, pressed), text_of(groups)), (shown(saved.bytes(layer, pressed)),
                                                                 shown(bytes_of(groups)))]
        for found, wanted in pairs:
            if found != wanted:
                keys = " | ".join(keys for keys, _ in cases)
                differences.append(f"{where}, keys {keys}\n    found  {found}\n    wanted {wanted}")
    if differences:
        raise Failed("recorded keys differ:\n" + "\n".join(differences))
