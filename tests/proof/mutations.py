"""The mutants of a source: small changes, each of which a test should notice."""

import hashlib
import re
from dataclasses import dataclass

from cpp_text import Group, group, tokens

COMPARISONS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="}
LOGIC = {"&&": "||", "||": "&&"}
SUMS = {"+": "-", "-": "+", "+=": "-=", "-=": "+="}
ASSIGNMENTS = {"=", "+=", "-=", "*=", "/=", "%=", "&=", "|=", "^=", "<<=", ">>="}
LEAVING = {"return", "break", "continue"}
NO_STATEMENT = {"using", "typedef", "static_assert", "static", "constexpr", "const", "auto", "return", "case", "default",
                "public", "private", "protected", "friend", "template", "namespace", "goto", "extern", "struct", "enum", "class"}
HIGHEST = {0x7F, 0xFF, 0x7FFF, 0xFFFF, 0x7FFFFFFF, 0xFFFFFFFF}
BEFORE_CONDITION = {"=", "return", ",", ":", "?", ";", "<<", "+=", "|="}


@dataclass(frozen=True)
class Mutant:
    """A change of a file: what stands from start to end becomes another text. `before` and `after` are the lines concerned as one,
    with single spaces."""
    file: str
    line: int
    kind: str
    start: int
    end: int
    text: str
    before: str
    after: str
    turn: int  # how many mutants of the same words stand ahead of it in the file

    def applied(self, source):
        return source[:self.start] + self.text + source[self.end:]

    def rank(self, seed):
        """Where it stands in the draw of a seed. Changes elsewhere do not move it."""
        return hashlib.sha256(f"{seed}\n{self.file}\n{self.before}\n{self.after}\n{self.turn}".encode()).hexdigest()


class Finder:
    def __init__(self, source):
        self.source = source
        self.found = []  # (start, end, text, kind)

    def add(self, kind, start, end, text):
        self.found.append((start, end, text, kind))

    def text_of(self, first, last):
        return self.source[first.start:last.end]

    def stands_apart(self, token):
        """Formatted code has spaces around operators of two sides, and none around those of types."""
        return self.source[token.start - 1].isspace() and self.source[token.end:token.end + 1].isspace()

    def walk(self, holder, depth=0):
        parts = without_untouched(holder.parts)
        for index, part in enumerate(parts):
            ahead = parts[index - 1] if index else None
            behind = parts[index + 1] if index + 1 < len(parts) else None
            if isinstance(part, Group) and ahead is not None and ahead.text == "reserve":
                continue  # how much room is asked for ahead decides nothing
            if isinstance(part, Group):
                self.walk(part, depth + 1 if part.role == "values" else 0 if part.role == "block" else depth)
            else:
                self.token(part, ahead, behind, "table" if depth > 1 else None)
        if holder.role == "block":
            self.statements(parts)
        self.conditions(parts)
        if holder.role == "values":
            self.table(parts)

    def token(self, part, ahead, behind, table):
        text = part.text
        if part.kind == "number":
            if ahead is not None and ahead.text == "=" and behind is not None and behind.text == ";" and is_pure(ahead, self.source):
                return
            if behind is not None and behind.text in (">", ">>") and behind.start == part.end:
                return  # a size in a type
            self.add(table or "constant", part.start, part.end, other_number(text))
        elif part.kind == "char":
            self.add(table or "constant", part.start, part.end, other_char(text))
        elif part.kind == "string":
            if ahead is None or ahead.text not in ("operator", "extern"):
                self.add("string", part.start, part.end, other_string(text))
        elif text in ("true", "false"):
            self.add(table or "constant", part.start, part.end, "false" if text == "true" else "true")
        elif ahead is not None and ahead.text == "operator":
            return
        elif text == "!" and behind is not None:
            self.add("condition", part.start, part.end, "")
        elif self.stands_apart(part):
            for kind, others in (("comparison", COMPARISONS), ("condition", LOGIC)):
                if text in others:
                    self.add(kind, part.start, part.end, others[text])
            if text in SUMS and "string" not in (getattr(ahead, "kind", ""), getattr(behind, "kind", "")):
                self.add("sum", part.start, part.end, SUMS[text])

    def statements(self, parts):
        """Statements that are left out, and conditions of branches that are turned round."""
        first = 0
        for index, part in enumerate(parts):
            if isinstance(part, Group) and part.role == "block":
                self.branches(parts[first:index])
                if not assigns(parts[first:index]):
                    first = index + 1
            elif part.text == ";" and not isinstance(part, Group):
                core = self.branches(parts[first:index])
                if core and can_be_dropped(core, self.source) and not ends_switch(parts, first, index):
                    self.add("statement", core[0].start, core[-1].end, "")
                first = index + 1

    def branches(self, parts):
        """Turns the conditions at the head round, and gives what stands behind them."""
        while parts:
            word = parts[0].text
            if word in ("if", "while", "for", "switch"):
                at = 2 if len(parts) > 1 and parts[1].text == "constexpr" else 1
                if at >= len(parts):
                    return []
                inside = parts[at].parts
                if word == "if" and inside and not {"=", ";"}.intersection(one.text for one in inside):
                    start, end = inside[0].start, inside[-1].end
                    self.add("condition", start, end, f"!({self.source[start:end]})")
                parts = parts[at + 1:]
            elif word in ("else", "do"):
                parts = parts[1:]
            elif word in ("case", "default"):
                colons = [index for index, one in enumerate(parts) if one.text == ":"]
                if not colons:
                    return []
                parts = parts[colons[0] + 1:]
            else:
                return parts
        return []

    def conditions(self, parts):
        for index, part in enumerate(parts):
            if part.text != "?" or isinstance(part, Group):
                continue
            first = index
            while first > 0 and parts[first - 1].text not in BEFORE_CONDITION and getattr(parts[first - 1], "role", "") != "block":
                first -= 1
            if first < index:
                start, end = parts[first].start, parts[index - 1].end
                self.add("condition", start, end, f"!({self.source[start:end]})")

    def table(self, parts):
        """A value of a row becomes that of the same column in the next row, the last one's that of the row ahead."""
        rows = [cells(part) for part in parts if isinstance(part, Group) and part.role == "values"]
        if len(rows) < 2 or len(parts) < 2 * len(rows) - 1 or len({len(row) for row in rows}) != 1:
            return
        for index, row in enumerate(rows):
            other = rows[index + 1] if index + 1 < len(rows) else rows[index - 1]
            for cell, changed in zip(row, other):
                if len(cell) == 1 and cell[0].kind in ("number", "string", "char") or not cell or not changed:
                    continue
                text = self.source[changed[0].start:changed[-1].end]
                if text != self.source[cell[0].start:cell[-1].end] and "{" not in text and "[" not in text:
                    self.add("table", cell[0].start, cell[-1].end, text)


def cells(row):
    found = [[]]
    for part in row.parts:
        if part.text == "," and not isinstance(part, Group):
            found.append([])
        else:
            found[-1].append(part)
    return found


def without_untouched(parts):
    """Without what says nothing at run time: assertions of the compiler, names that are brought in, parameters of templates."""
    kept, index = [], 0
    while index < len(parts):
        part = parts[index]
        if part.text in ("static_assert", "using", "typedef", "requires") and not isinstance(part, Group):
            while index < len(parts) and parts[index].text != ";":
                index += 1
        elif part.text == "template":
            depth, index = 0, index + 1
            while index < len(parts):
                depth += {"<": 1, ">": -1, ">>": -2}.get(parts[index].text, 0)
                index += 1
                if depth == 0:
                    break
        else:
            kept.append(part)
            index += 1
    return kept


def assigns(parts):
    return any(part.text in ("=", "return") for part in parts)


def is_pure(equals, source):
    return re.search(r"[)\w]\s*$", source[:equals.start]) is not None and re.match(r"=\s*0\s*;", source[equals.start:]) and \
        re.search(r"(\)|const|noexcept|override)\s*$", source[:equals.start]) is not None


def ends_switch(parts, first, index):
    """Whether the statement from first to index is a `break` behind which, in its switch, nothing stands but others. It goes where the
    way leads anyhow."""
    words = [part.text for part in parts]
    if words[index - 1] != "break" or not {"case", "default"}.intersection(words) or {"while", "for", "do"}.intersection(words[first:index]):
        return False
    rest = words[index + 1:]
    while rest:
        if rest[0] in ("case", "default") and ":" in rest:
            rest = rest[rest.index(":") + 1:]
        elif rest[:2] == ["break", ";"]:
            rest = rest[2:]
        else:
            return False
    return True


def can_be_dropped(core, source):
    """Whether it is a statement that only acts: a call, an assignment, a step, a way out. Not what declares or gives a value, and not
    one that only asks for room ahead, without which the same happens."""
    if len(core) > 1 and core[-2].text == "reserve":
        return False
    if core[0].text in LEAVING:
        return len(core) == 1
    if core[0].text in ("throw", "delete"):
        return True
    if core[0].text in NO_STATEMENT:
        return False
    index = 0
    while index < len(core) and core[index].text in ("++", "--", "*", "::"):
        index += 1
    steps = index > 0 and core[0].text in ("++", "--")
    index = behind_name(core, index, source)
    if index is None:
        return False
    if index == len(core):
        return steps or (isinstance(core[-1], Group) and core[-1].role == "(") or core[-1].text in ("++", "--")
    return core[index].text in ASSIGNMENTS or core[index].text in ("<<", "++", "--")


def behind_name(core, index, source):
    """Where the name or call that begins there ends: `a::b<c>(d).e[f]`. None when there is none."""
    expects = True
    while index < len(core):
        part = core[index]
        if expects:
            if part.kind != "word" and not (isinstance(part, Group) and part.role == "("):
                return None
            expects = False
        elif part.text in (".", "->", "::"):
            expects = True
        elif part.text == "<" and part.start == core[index - 1].end and not source[part.end].isspace():
            depth = 0
            while index < len(core):
                depth += {"<": 1, ">": -1, ">>": -2}.get(core[index].text, 0)
                if depth <= 0:
                    break
                index += 1
        elif not (isinstance(part, Group) and part.role in ("(", "[", "values") and part.start == core[index - 1].end):
            return index
        index += 1
    return None if expects else index


def other_number(text):
    body = re.sub(r"(?<=[0-9a-fA-F.])[uUlLzZ]*$", "", text)
    suffix = text[len(body):]
    digits = body.replace("'", "")
    if re.fullmatch(r"0[xX][0-9a-fA-F]+", digits):
        value = int(digits, 16)
        return f"0x{value + (-1 if value in HIGHEST else 1):0{len(digits) - 2}X}{suffix}"
    if re.fullmatch(r"0[bB][01]+", digits):
        return f"{int(digits, 2) + 1:#b}{suffix}"
    if re.fullmatch(r"\d+", digits):
        value = int(digits)
        return f"{value + (-1 if value in HIGHEST else 1)}{suffix}"
    return f"1 + {text}"


def other_char(text):
    prefix, body = re.fullmatch(r"(\w*)'(.*)'", text, re.DOTALL).groups()
    other = chr(ord(body) + 1) if len(body) == 1 and 32 <= ord(body) < 126 else "~"
    return f"{prefix}'{'~' if other in ''.join(chr(92)) + chr(39) else other}'"


def other_string(text):
    quote = text.index('"')
    raw = text[:quote].endswith("R")
    prefix = text[:quote].removesuffix("R")
    empty = re.fullmatch(r'[^"]*"[^()]*\(\)[^"]*"', text) if raw else text[quote:] == '""'
    return f'{prefix}"~"' if empty else f'{prefix}""'


def mutants_of(file, source):
    """All mutants of a source, in the order of the text."""
    finder = Finder(source)
    finder.walk(group(tokens(source)))
    made, seen = [], {}
    for start, end, text, kind in sorted(set(finder.found)):
        line_start = source.rfind("\n", 0, start) + 1
        line_end = source.find("\n", end)
        line_end = len(source) if line_end < 0 else line_end
        before = " ".join(source[line_start:line_end].split())
        after = " ".join((source[line_start:start] + text + source[end:line_end]).split())
        if before == after:
            continue
        turn = seen.get((before, after), 0)
        seen[(before, after)] = turn + 1
        made.append(Mutant(file, source.count("\n", 0, start) + 1, kind, start, end, text, before, after, turn))
    return made
