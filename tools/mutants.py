"""Finds what can be changed in a C++ source by a little: the mutants of tools/mutate.

Nothing here parses C++. The sources are formatted by clang-format, which puts blanks around what is a comparison and none
around what is a template's bracket; what is mistaken all the same does not compile and is replaced by the next.
"""

import re
from collections import namedtuple

# One change: the characters `start` to `end` of `file` become `new`. `line` and `column` count from 1.
Mutant = namedtuple("Mutant", "file line column start end old new kind")

# A place and what may stand there instead. `choices` are texts.
Site = namedtuple("Site", "start end choices kind")

SWAPPED_OPERATORS = [
    ("comparison", {"==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">"}),
    ("and/or", {"&&": "||", "||": "&&"}),
    ("plus/minus", {"+": "-", "-": "+", "+=": "-=", "-=": "+="}),
]
SPACED_OPERATOR = re.compile(r"(?<=\s)(==|!=|<=|>=|&&|\|\||\+=|-=|<|>|\+|-)(?=\s)")
STEP = re.compile(r"\+\+|--")
WORD = re.compile(r"\b(true|false)\b")
NUMBER = re.compile(r"(?<![\w.])(0[xX][0-9a-fA-F']+|\d[\d']*(?:\.\d+)?)([a-zA-Z]*)(?![\w.])")

# Before a statement: the heads of what it belongs to, and labels.
CONTROL_HEAD = re.compile(r"(?:(?:else\b|do\b|default\s*:|case\b[^;{}?]*?[^:]:(?!:)|(?:public|private|protected)\s*:)\s*)")
CONTROL_WITH_CONDITION = re.compile(r"(?:if(?:\s+constexpr)?|for|while|switch)\s*\(")
NO_STATEMENT = re.compile(
    r"(?:using|namespace|const|constexpr|static|inline|auto|struct|class|enum|return|template|friend|virtual|typedef|extern|"
    r"throw|explicit|operator|union|static_assert|concept|requires|unsigned|mutable)\b")
DECLARATION = re.compile(r"[\w:]+(?:<[^;=()]*>)?[\s*&]+[\w:]+")
EXPRESSION = re.compile(r"(?:\+\+|--|\*|\(|[A-Za-z_])")
JUMP = re.compile(r"(?:return|break|continue)$")


def masked(text):
    """The text with everything blanked that is no code: comments, lines of the preprocessor, static_asserts and what
    stands within literals; as long as before, line for line. And the literals: pairs of start and end of what is in them."""
    out = list(text)
    literals = []

    def blank(start, end):
        for at in range(start, end):
            if out[at] != "\n":
                out[at] = " "

    at = 0
    size = len(text)
    line_is_blank = True
    while at < size:
        char = text[at]
        if char == "\n":
            line_is_blank = True
            at += 1
        elif text.startswith("//", at):
            end = text.find("\n", at)
            end = size if end < 0 else end
            blank(at, end)
            at = end
        elif text.startswith("/*", at):
            end = text.find("*/", at)
            end = size if end < 0 else end + 2
            blank(at, end)
            at = end
        elif char == "#" and line_is_blank:
            end = at
            while True:
                end = text.find("\n", end)
                end = size if end < 0 else end
                if end == size or text[end - 1] != "\\":
                    break
                end += 1
            blank(at, end)
            at = end
        elif char == '"' and at > 0 and text[at - 1] == "R":
            opening = text.index("(", at)
            end = text.index(")" + text[at + 1:opening] + '"', opening)
            literals.append((opening + 1, end))
            blank(at + 1, end + len(text[at + 1:opening]) + 1)
            at = end + len(text[at + 1:opening]) + 2
            line_is_blank = False
        elif char == '"' or (char == "'" and not (at > 0 and text[at - 1].isalnum())):
            end = at + 1
            while end < size and text[end] != char:
                end += 2 if text[end] == "\\" else 1
            literals.append((at + 1, end))
            blank(at + 1, end)
            at = end + 1
            line_is_blank = False
        else:
            line_is_blank = line_is_blank and char.isspace()
            at += 1

    code = "".join(out)
    for found in re.finditer(r"\bstatic_assert\s*\(", code):
        end = code.find(";", found.end())
        blank(found.start(), end)
        literals = [span for span in literals if not found.start() <= span[0] < end]
    return "".join(out), literals


def changed_character(char):
    """Another character of the same kind; None where none should stand in its place."""
    for first, last in (("a", "z"), ("A", "Z"), ("0", "9")):
        if first <= char <= last:
            return first if char == last else chr(ord(char) + 1)
    if char == " ":
        return "_"
    if char in ".,:;!?-+/()*$%&<>=_|@":
        return "," if char != "," else "."
    return None


def literal_site(text, start, end):
    """The place of a literal: each choice is the literal with one character changed; escapes stay."""
    choices = []
    at = start
    while at < end:
        if text[at] == "\\":
            at += 2
            continue
        other = changed_character(text[at])
        if other is not None:
            choices.append(text[start:at] + other + text[at + 1:end])
        at += 1
    return Site(start, end, choices, "literal") if choices else None


def off_by_one(number, suffix):
    """The texts of the numbers one above and one below."""
    plain = number.replace("'", "")
    if "." in plain:
        values = [float(plain) + 1, float(plain) - 1]
    else:
        try:
            value = int(plain, 0)
        except ValueError:
            return []
        values = [value + 1, value - 1]
    return [f"{value}{suffix}" if value >= 0 else f"({value}{suffix})" for value in values]


def statement_spans(code):
    """Start and end of each statement, the semicolon not included, within blocks and lambdas alike."""
    spans = []
    stack = [["{", 0]]  # open brackets, and where the present statement began within each
    for at, char in enumerate(code):
        if char in "([":
            stack.append([char, at + 1])
        elif char in ")]":
            if len(stack) > 1 and stack[-1][0] in "([":
                stack.pop()
        elif char == "{":
            stack.append([char, at + 1])
        elif char == "}":
            if len(stack) > 1:
                stack.pop()
            following = code[at + 1:].lstrip()[:1]
            if stack[-1][0] == "{" and following not in (";", ",", ")", ".", "("):
                stack[-1][1] = at + 1
        elif char == ";" and stack[-1][0] == "{":
            spans.append((stack[-1][1], at))
            stack[-1][1] = at + 1
    return spans


def end_of_bracket(code, opening):
    """The place behind the bracket that closes the one at `opening`."""
    depth = 0
    for at in range(opening, len(code)):
        if code[at] == "(":
            depth += 1
        elif code[at] == ")":
            depth -= 1
            if depth == 0:
                return at + 1
    return len(code)


def droppable(code, start, end):
    """Where the statement that can be left out begins, within a span that may begin with heads; None if there is none."""
    at = start
    while True:
        while at < end and code[at].isspace():
            at += 1
        head = CONTROL_WITH_CONDITION.match(code, at, end)
        if head:
            at = end_of_bracket(code, head.end() - 1)
            if at >= end:
                return None
            continue
        head = CONTROL_HEAD.match(code, at, end)
        if not head:
            break
        at = head.end()
    statement = code[at:end].strip()
    if JUMP.match(statement):
        return at
    if not statement or NO_STATEMENT.match(statement) or DECLARATION.match(statement):
        return None
    if re.search(r"=\s*(?:default|delete|0)$", statement) and "(" in statement.split("=")[0]:
        return None
    return at if EXPRESSION.match(statement) else None


def sites(text):
    """Every place of a source that can be changed, in the order of the text."""
    code, literals = masked(text)
    found = []
    for match in SPACED_OPERATOR.finditer(code):
        for kind, swapped in SWAPPED_OPERATORS:
            if match[1] in swapped:
                found.append(Site(match.start(1), match.end(1), [swapped[match[1]]], kind))
    for match in STEP.finditer(code):
        found.append(Site(match.start(), match.end(), ["--" if match[0] == "++" else "++"], "plus/minus"))
    for match in WORD.finditer(code):
        found.append(Site(match.start(), match.end(), ["false" if match[0] == "true" else "true"], "true/false"))
    for match in NUMBER.finditer(code):
        choices = off_by_one(match[1], match[2])
        if choices:
            found.append(Site(match.start(), match.end(), choices, "constant"))
    for start, end in literals:
        site = literal_site(text, start, end)
        if site:
            found.append(site)
    for start, end in statement_spans(code):
        at = droppable(code, start, end)
        if at is not None:
            found.append(Site(at, end, [""], "statement"))
    return sorted(found)


def mutants(file, text, choose):
    """One mutant for each place of `text`; `choose` picks one of its choices. With `choose` None, one for each choice."""
    made = []
    for site in sites(text):
        before = text[:site.start]
        line = before.count("\n") + 1
        column = site.start - (before.rfind("\n") + 1) + 1
        for new in [choose(site.choices)] if choose else site.choices:
            made.append(Mutant(file, line, column, site.start, site.end, text[site.start:site.end], new, site.kind))
    return made


def applied(text, mutant):
    """The text with the mutant's change made."""
    return text[:mutant.start] + mutant.new + text[mutant.end:]


def described(mutant):
    """Where and what, in one line."""
    old = " ".join(mutant.old.split())
    old = old if len(old) <= 70 else old[:67] + "..."
    new = mutant.new if len(mutant.new) <= 70 else mutant.new[:67] + "..."
    change = f"without `{old}`" if mutant.kind == "statement" else f"`{old}` became `{new}`"
    return f"{mutant.file}:{mutant.line}:{mutant.column}: {change}"
