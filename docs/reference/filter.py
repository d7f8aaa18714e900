#!/usr/bin/env python3
"""What doxygen reads of a header: filter.py HEADER. A comment holds for more than the next name in two cases, and is handed to
each: an overload stands behind its sibling, as the two of a property do, or a variable behind a variable; or the comment stands
at the head of a paragraph that has no other. Of several variables of one declaration each has its comment. Macros, events of
the toolkit, and what is defaulted, deleted or a destructor, need no words; what overrides has those of its base. Lines keep
their numbers."""

import re
import sys

COMMENT = re.compile(r"\s*///(?!<)\s?(.*)")
SILENT = re.compile(r"\s*(?:Q_OBJECT\b.*|Q_(?:PROPERTY|ENUM|DISABLE_COPY)\(.*\)|static_assert\(.*\);|"
                    r"(?:bool|void) \w*[eE]vent\(Q\w+\* \w+\) override;|"
                    r".*=\s*(?:default|delete);|(?:virtual )?~\w+\(\)(?: override)?;)\s*$")
SCOPE = re.compile(r"\s*(?:template <.*>\s*)?(?:inline )?(namespace|class|struct|enum)\b")
ACCESS = re.compile(r"\s*(public|protected|private)\b.*:$|\s*Q_SIGNALS:$")
PASSED_OVER = re.compile(r"\s*(?://|#|friend\b|using namespace|\}|namespace\b)")
VARIABLES = re.compile(r"(\s*(?:[\w:]+(?:<[\w:, ]+>)?[*&]? )+)(\w+(?: = [^,;(){}]+|\{\})?(?:, \w+(?: = [^,;(){}]+|\{\})?)+);\s*(?:///< (.*))?$")
VARIABLE = "a variable"
CALLED = re.compile(r"(?:\boperator\W+|\b([A-Za-z_]\w*))\s*\(")


def paragraphs(lines):
    """For each line the comment that holds for its paragraph, or None."""
    heads = [None] * len(lines)
    at = 0
    while at < len(lines):
        end = at
        while end < len(lines) and lines[end].strip() and not (end > at and opens_paragraph(lines[end - 1])):
            end += 1
        comments = [line for line in range(at, end) if COMMENT.match(lines[line])]
        if comments and comments == list(range(at, at + len(comments))):
            text = " ".join(COMMENT.match(lines[line]).group(1) for line in comments)
            heads[at:end] = [text] * (end - at)
        at = max(end, at + 1)
    return heads


def opens_paragraph(line):
    return ACCESS.match(line) or (SCOPE.match(line) and line.rstrip().endswith("{"))


def joined(lines):
    """The same lines with each declaration of variables on its first."""
    lines = list(lines)
    for at, line in enumerate(lines):
        if re.match(r"\s*[\w:<> ]+ \w+(?: = [^,;(){}]+)?,", line) and "(" not in line:
            end = at
            while end + 1 < len(lines) and ";" not in lines[end]:
                end += 1
            whole = " ".join([line.rstrip()] + [more.strip() for more in lines[at + 1:end + 1]])
            if end > at and VARIABLES.match(whole):
                lines[at:end + 1] = [whole] + ["//"] * (end - at)
    return lines


def each_variable(line, shared):
    """A declaration of several variables as one of each, with the comment of all."""
    found = VARIABLES.match(line)
    if not found:
        return None
    text = found.group(3) or shared
    comment = "/** %s */ " % text if text else ""
    return " ".join(comment + found.group(1).strip() + " " + one.strip() + ";" for one in found.group(2).split(", "))


def filtered(lines):
    lines = joined(lines)
    heads = paragraphs(lines)
    scopes, name, shared, comment, inside = [], None, None, [], False
    for line, head in zip(lines, heads):
        found = COMMENT.match(line)
        if found:
            comment.append(found.group(1))
            yield line
            continue
        begins = not inside and (not scopes or scopes[-1] in ("namespace", "class", "struct"))
        code = line.split("//")[0].rstrip()
        if not code.strip() or (begins and (ACCESS.match(code) or SILENT.match(line))):
            comment, name = [], None
            yield "" if code.strip() and not ACCESS.match(code) else line
            continue
        if begins and not PASSED_OVER.match(code):
            called = None if "(*" in code else CALLED.search(code)
            own = called.group(1) if called else VARIABLE
            if comment:
                shared = " ".join(comment)
            elif own != name:
                shared = head
            variables = None if called else each_variable(line, shared)
            if variables:
                line = variables
            elif shared and not comment and "///<" not in line and " override" not in code and not SCOPE.match(code):
                line = "/** %s */ %s" % (shared, line)
            name = own if shared else None
        comment = []
        opened = SCOPE.match(code)
        for sign in re.sub(r"\"[^\"]*\"", "", code):
            if sign == "{":
                scopes.append(opened.group(1) if opened and not inside else "body")
                opened = None
            elif sign == "}" and scopes:
                scopes.pop()
        inside = not re.search(r"[;{}:]$", code)
        yield line


if __name__ == "__main__":
    with open(sys.argv[1], encoding="utf-8") as file:
        text = file.read()
    print("\n".join(filtered(text.split("\n"))), end="")
