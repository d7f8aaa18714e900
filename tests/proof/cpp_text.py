"""The C++ of the tree as tokens, and its brackets with what they hold. It knows the language as far as formatted code needs it."""

import re
from dataclasses import dataclass, field

OPERATORS = ("<=>", "<<=", ">>=", "->*", "...", "::", "->", "++", "--", "<<", ">>", "<=", ">=", "==", "!=", "&&", "||", "+=",
             "-=", "*=", "/=", "%=", "&=", "|=", "^=", ".*")
PATTERN = re.compile(
    r'(?P<space>\s+|//(?:\\\n|[^\n])*|/\*.*?\*/)'
    r'|(?P<directive>^[ \t]*\#(?:\\\n|[^\n])*)'
    r'|(?P<string>(?:u8|[uUL])?R"(?P<mark>[^()\\\s]*)\(.*?\)(?P=mark)"|(?:u8|[uUL])?"(?:\\.|[^"\\\n])*")'
    r"|(?P<char>(?:u8|[uUL])?'(?:\\.|[^'\\\n])+')"
    r"|(?P<number>\.?\d(?:[eEpP][+-]|'?[\w.])*)"
    r"|(?P<word>[A-Za-z_]\w*)"
    r"|(?P<operator>" + "|".join(map(re.escape, OPERATORS)) + r"|[^\s\w])", re.MULTILINE | re.DOTALL)
TYPE_WORDS = {"class", "struct", "union", "enum"}
BEHIND_BLOCK_HEAD = {")", "]", "}", "else", "do", "try", "const", "override", "final", "noexcept", "mutable"}


@dataclass
class Token:
    kind: str
    text: str
    start: int

    @property
    def end(self):
        return self.start + len(self.text)


@dataclass
class Group:
    """A pair of brackets. `role`: what braces hold (block, type, namespace, values), or the bracket itself. `parts`: what stands
    directly in it, tokens and groups."""
    role: str
    start: int
    end: int = -1
    parts: list = field(default_factory=list)
    text: str = ""
    kind: str = "group"


def tokens(text):
    """All tokens without comments, directives and attributes; a directive is ended at its line, lines continued by a backslash
    included. ValueError where the text is no C++."""
    found, place = [], 0
    while place < len(text):
        match = PATTERN.match(text, place)
        if not match:
            raise ValueError(f"no token at {text[place:place + 20]!r}")
        place = match.end()
        if match.lastgroup not in ("space", "directive"):
            kind = "string" if match.lastgroup == "mark" else match.lastgroup
            found.append(Token(kind, match.group(), match.start()))
    return without_attributes(found)


def without_attributes(found):
    kept, index = [], 0
    while index < len(found):
        if [token.text for token in found[index:index + 2]] == ["[", "["] and found[index].end == found[index + 1].start:
            while [token.text for token in found[index:index + 2]] != ["]", "]"]:
                index += 1
            index += 2
            continue
        kept.append(found[index])
        index += 1
    return kept


def role_of_brace(around, head):
    """What a brace holds, by what stands ahead of it since the last statement of the brackets around it."""
    texts = [part.text for part in head]
    last = texts[-1] if texts else ""
    if "namespace" in texts or texts[:1] == ["extern"]:
        return "namespace"
    if around.role in ("namespace", "type", "block"):
        plain = [text for text in texts if text not in ("inline", "constexpr", "const", "static")]
        begin = plain[2:] if plain[:1] == ["template"] else plain
        if TYPE_WORDS.intersection(plain) and ")" not in plain and "=" not in plain and (
                begin[:1] and begin[0] in TYPE_WORDS or plain[:1] == ["template"]):
            return "type"
        if not head:
            return "block" if around.role == "block" else "values"
        if texts[0] in ("case", "default") and last == ":":
            return "block"
    if last in BEHIND_BLOCK_HEAD:
        return "block"
    if "->" in texts:
        behind = texts[len(texts) - texts[::-1].index("->"):]
        ahead = texts[len(texts) - texts[::-1].index("->") - 2]
        if ahead in (")", "mutable", "const") and ")" not in behind and "." not in behind:
            return "block"
    return "values"


def group(found):
    """The tokens as a tree of groups."""
    top = Group("namespace", 0)
    stack, heads = [top], [[]]
    closing = {"(": ")", "[": "]", "{": "}"}
    for token in found:
        if token.kind == "operator" and token.text in "([{":
            role = token.text if token.text != "{" else role_of_brace(stack[-1], heads[-1])
            inner = Group(role, token.start, text=closing[token.text])
            stack[-1].parts.append(inner)
            heads[-1].append(inner)
            stack.append(inner)
            heads.append([])
        elif token.kind == "operator" and token.text in ")]}":
            stack[-1].end = token.end
            closed = stack.pop()
            heads.pop()
            if closed.role in ("block", "namespace") and not {"=", "return"}.intersection(part.text for part in heads[-1]):
                heads[-1].clear()
        else:
            stack[-1].parts.append(token)
            heads[-1].append(token)
            if token.text == ";" or (token.text == ":" and heads[-1][0].text in ("public", "private", "protected")):
                heads[-1].clear()
    top.end = found[-1].end if found else 0
    return top
