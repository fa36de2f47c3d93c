"""Finds what can be changed in a source: mutants, each a change at one place."""

import collections
import dataclasses
import re

# Operations of a visit; a statement that calls one, or a function named visit..., is what the record says of a member.
OPERATIONS = "field|value|attribute|constant|text|array|structure|group|record|rows|keyed|derive"
VISITS = re.compile(rf"(?:^|[.\s=(!])(?:{OPERATIONS}|(?:detail::)?visit\w*)\(")
ACTION = re.compile(r"(?!return\b|static_assert\b)(?:[\w:.*\[\]]+(?: \|?= |\()|\w[\w:]*[.(])")
DECLARED = re.compile(r"(?:const )?(?:bool|auto(?![^;]*\{)) \w+ = ")
ANSWER = re.compile(r" (?:\|\||&&|==|!=|<|>=?) |^std::(?:any|all|none)_of\(|(?:^|[.\s!])(?:exists|empty)\(\)$|^(?:true|false|any|found)$")
BODY = re.compile(r"\{[^{}]*\}")  # of a function without a name, whose answers are its own

GATE = re.compile(r"\.(?:readWhen|writeWhen|when)\((?!HLGSwitch)|\bderive\([\w.]+, (?=(?:notEmpty|haveEntries)\()")
CONDITION = re.compile(r"\bif \((?![^()]* = )")
CHOICE = re.compile(r"(?:\breturn|[^=!<>]=) ([^;{}?=]*?(?: == [^;{}?=]*?)?) \? ")
UNCLOSED = re.compile(r"^.*\((?=(?:[^()]|\((?:[^()]|\([^()]*\))*\))*$)", re.DOTALL)
ALWAYS = re.compile(r"\b(\w+)\.always\(\)")
OPERATORS = (" = ", "|| ", "&& ", " ||", " &&")  # around one of its letters
LOGICAL = re.compile(r" (\|\||&&) ")
STRING = r'(?:(?<!\w)R"\((?s:.*?)\)"|"(?:[^"\\\n]|\\.)*")'
LITERAL = re.compile(r'R?"[_\n]*"(?:\s+R?"[_\n]*")*')  # where letters are hidden; several beside each other are one
ATTRIBUTE = r"\[\[[^\[\]]*\]\]"
LETTER = r"(?<!\w)'(?:[^'\\\n]|\\.)+'"
HIDDEN = re.compile(rf"//[^\n]*|/\*(?s:.*?)\*/|(?m:^[ ]*#(?:[^\n]|\\\n)*)|{ATTRIBUTE}|{STRING}|{LETTER}")
TEXT_FOLLOWS = re.compile(r"""(?:[!=]= |\bconstant\("_*", |\b(?:one|none)Of\([^;()]*)$""")  # else it is the name of an element or an attribute
TYPE = re.compile(r"\btypes::(?!tableScale)\w+::\w+")  # a constant that is a text
ROOT_NAME = re.compile(r"(?<=[ (])(?:Record::)?rootElementName\b")
NUMBER = re.compile(r"(?<![\w.<\['])(?<!\de-)(?:0x[0-9A-F]+|\d[\d']*(?:\.\d+)?(?:e-?\d+)?)[uU]?(?![\w.\]>])")
LENGTH = re.compile(r"(?<=\.size\(\) [=>]= )[A-Za-z][\w:.]*(?:\(\))?")
ENTRIES = re.compile(r"(?:(?<=[=,] )\{\s*|\boneOf\(kind, )((?!with)[a-z][\w:]*(?:,\s+[a-z][\w:]*)*)\s*[})]")
CONSTANT = re.compile(r"constexpr (?!auto\b)")

ASSERTION = re.compile(r"\b(?:static_)?assert\([^;]*;")
COMPARISON = re.compile(r" (<=?|>=?) (?=[\w(*&-])")
CHARACTER = re.compile(r"(?<=[ (])'_+'")
LOOP = re.compile(r"\b(?:while \(|for \([^;()]*(?:\([^()]*\)[^;()]*)*; )")


@dataclasses.dataclass
class Mutant:
    """Code at one place, wrapped in `before` and `after`, where @ stands for whether it is changed in this run."""

    kind: str
    start: int
    end: int
    before: str
    after: str
    change: str  # what becomes of the code, for people
    number: int = 0
    path: str = ""
    key: str = ""  # names the mutant without its line, so that it stays the same when the file changes elsewhere
    line: int = 0
    last_line: int = 0


def masked(text):
    """The text, of the same length, with comments and preprocessor lines blank and letters in quotes hidden."""

    def hidden(match):
        found = match.group()
        if found.endswith(("'", '"')) and not found.startswith(("//", "/*", "#", " ")):
            start = found.index(found[-1]) + 1
            return found[:start] + re.sub(r"[^\n]", "_", found[start:-1]) + found[-1]
        return re.sub(r"[^\n]", " ", found)

    return HIDDEN.sub(hidden, text)


def closing(code, position):
    """Where the bracket that was opened just before the position is closed."""
    depth = 1
    while depth:
        depth += {"(": 1, "{": 1, "[": 1, ")": -1, "}": -1, "]": -1}.get(code[position], 0)
        position += 1
    return position - 1


def skip_space(code, start, end):
    return end - len(code[start:end].lstrip())


def statements(code):
    """Yields (start, end) of each statement that ends with a semicolon, which is not part of it."""
    stack, start = [], 0
    for position, letter in enumerate(code):
        if letter in "({":
            is_block = letter == "{" and not code[:position].endswith("= ")
            stack.append((is_block, start))
            start = position + 1 if is_block else start
        elif letter in ")}":
            was_block, outer = stack.pop()
            is_inner = not was_block or (stack and not stack[-1][0])  # of a statement that goes on behind it
            start = outer if is_inner else position + 1
        elif letter == ";" and (not stack or stack[-1][0]):
            yield skip_space(code, start, position), position
            start = position + 1


def removed(kind, start, end):
    return Mutant(kind, start, end + 1, "if (!@) { ", " }", "removed")


def inverted(kind, start, end):
    return Mutant(kind, start, end, "(@ != (", "))", "inverted")


def in_statement(code, start, end):
    """Visits and other statements that are removed, and answers that are inverted."""
    statement = code[start:end]
    declared = DECLARED.match(statement)
    if ACTION.match(statement) and not statement.endswith((" = delete", " = default")):
        yield removed("visit" if VISITS.search(statement) else "statement", start, end)
    elif declared:
        yield from answer(code, start + declared.end(), end)
    elif statement.startswith("return "):
        yield from answer(code, start + len("return "), end)


def answer(code, start, end):
    expression = code[start:end]
    if VISITS.search(expression):
        yield Mutant("visit", start, end, "mutation::unless(@, [&] { return ", "; })", "removed")
    elif ANSWER.search(BODY.sub("", expression)) and " ? " not in expression:
        yield Mutant("condition", start, end, "mutation::opposite(@, ", ")", "inverted")


def operand(code, position, step):
    """Where the operand ends that lies left (step -1) or right (1) of a logical operator at the position."""
    opening, depth = ("([{" if step > 0 else ")]}"), 0
    while True:
        letter, pair = code[position], code[position - 1 : position + 2]
        if letter in "()[]{}":
            if depth == 0 and letter not in opening:
                break
            depth += 1 if letter in opening else -1
        elif depth == 0 and (letter in ";,?" or pair in OPERATORS or code.startswith("return ", position - 6)):
            break
        position += step
    return position


def operands(code):
    """Each operand of || and && is left out once."""
    seen = set()
    code = code.replace("\n", " ")
    for match in LOGICAL.finditer(code):
        neutral = "(!@ && (" if match.group(1) == "||" else "(@ || ("
        left = operand(code, match.start() - 1, -1) + 1
        right = operand(code, match.end(), 1)
        for start, end in ((left, match.start()), (match.end(), right)):
            start, end = skip_space(code, start, end), start + len(code[start:end].rstrip())
            is_fold = "..." in (code[start:end], code[match.end() : match.end() + 3])
            if (start, end) not in seen and not is_fold:
                seen.add((start, end))
                yield Mutant("operand", start, end, neutral, "))", "left out")


def gates(code):
    for match in GATE.finditer(code):
        yield Mutant("gate", match.end(), closing(code, match.end()), "mutation::inverted(@, ", ")", "inverted")
    for match in CONDITION.finditer(code):
        yield inverted("condition", match.end(), closing(code, match.end()))
    for match in CHOICE.finditer(code):
        start = match.end(1) - len(UNCLOSED.sub("", match.group(1)))
        yield inverted("condition", start, match.end(1))
    for match in ALWAYS.finditer(code):
        io = match.group(1)
        before = f"mutation::pick<std::decay_t<decltype({io})>>(@, {io}, "
        yield Mutant("gate", match.start(), match.end(), before, ")", "without always()")


def texts(code, text):
    for match in LITERAL.finditer(code):
        original = text[match.start() : match.end()]
        end = ')"' if re.search(r'R"[_\n]*"$', match.group()) else '"'
        changed = original.removesuffix(end) + "X" + end
        kind = "text" if TEXT_FOLLOWS.search(code[: match.start()]) else "name"
        yield Mutant(kind, *match.span(), f"mutation::pick<const char*>(@, {changed}, ", ")", f"becomes {changed}")
    for match in TYPE.finditer(code):
        yield Mutant("text", *match.span(), 'mutation::pick<const char*>(@, "X", ', ")", "becomes another")
    for match in ROOT_NAME.finditer(code):
        before = 'mutation::pick<const char*>(@, "X", '
        yield Mutant("name", *match.span(), before, ")", "becomes another")


def changed_number(original):
    """What a number becomes: something near, and a factor another power of ten, too."""
    is_factor = "." in original or "e" in original
    if not is_factor or float(original.replace("'", "")) + 1 != float(original.replace("'", "")):
        yield f"{original} + 1"
    if is_factor and float(original.replace("'", "")) != 0:
        yield f"{original} * 10"


def numbers(code):
    enums = [(match.start(), closing(code, match.end())) for match in re.finditer(r"\benum [^{;]*\{", code)]
    for match in NUMBER.finditer(code):
        if any(start < match.start() < end for start, end in enums):
            continue
        original = match.group()
        kind = "factor" if "." in original or "e" in original else "number"
        for changed in changed_number(original):
            yield Mutant(kind, *match.span(), f"mutation::pick(@, {changed}, ", ")", f"becomes {changed}")


def lengths(code):
    """What lengths are compared with where that has a name."""
    for match in LENGTH.finditer(code):
        changed = f"{match.group()} + 1"
        before = f"mutation::pick<std::size_t>(@, {changed}, "
        yield Mutant("number", *match.span(), before, ")", f"becomes {changed}")


def entries(code):
    """The constants in lists such as {schedule::once} and oneOf(kind, schedule::once)."""
    for match in ENTRIES.finditer(code):
        for entry in re.finditer(r"[\w:]+", match.group(1)):
            start, end = (match.start(1) + offset for offset in entry.span())
            before = f"mutation::pick<decltype(+{entry.group()})>(@, 0xFFFF, "
            yield Mutant("entry", start, end, before, ")", "left out")


def comparisons(code):
    """Comparisons that are off by one."""
    opposite = {"<": "<=", "<=": "<", ">": ">=", ">=": ">"}
    for match in COMPARISON.finditer(code):
        operator = match.group(1)
        if "template" not in code[code.rfind("\n", 0, match.start()) : match.start()]:
            after = f" mutation::OffByOne{{@}} {operator}"
            yield Mutant("comparison", *match.span(1), "", after, f"becomes {opposite[operator]}")


def characters(code, text):
    """Characters that are the next ones."""
    for match in CHARACTER.finditer(code):
        before = f"mutation::pick<char>(@, {text[match.start() : match.end()]} + 1, "
        yield Mutant("character", *match.span(), before, ")", "becomes the next character")


def loops(code):
    """Loops that end at once."""
    for match in LOOP.finditer(code):
        end = code.index(";", match.end()) if match.group().startswith("for") else closing(code, match.end())
        if code[match.end() : end].strip():
            yield Mutant("loop", match.end(), end, "!@ && (", ")", "does not run")


def find(path, text):
    """The mutants of a source, outer ones first; `path` names it in their keys. Assertions stay as they are: each has a
    test that sees the program end."""
    code = masked(text)
    code = ASSERTION.sub(lambda match: "".join(letter if letter in "\n(){};" else " " for letter in match.group()), code)
    found = [mutant for start, end in statements(code) for mutant in in_statement(code, start, end)]
    found += [*gates(code), *operands(code), *texts(code, text), *numbers(code), *lengths(code), *entries(code)]
    found += [*comparisons(code), *characters(code, text), *loops(code)]
    return named(path, text, code, found)


def named(path, text, code, found):
    """Sorts the mutants and gives them their lines and keys."""
    found.sort(key=lambda mutant: (mutant.start, -mutant.end))
    times = collections.Counter()
    for mutant in found:
        mutant.path = str(path)
        mutant.line = text.count("\n", 0, mutant.start) + 1
        mutant.last_line = text.count("\n", 0, mutant.end) + 1
        key = f"{path}: {mutant.kind}: {described(text, code, mutant)}"
        times[key] += 1
        mutant.key = key if times[key] == 1 else f"{key} ({times[key]})"
    return found


def described(text, code, mutant):
    """What is changed in which line, on one line and without comments."""
    place = " ".join(text[mutant.start : mutant.end].split())
    length = len(code.split("\n")[mutant.line - 1].rstrip())
    line = " ".join(text.split("\n")[mutant.line - 1][:length].split())
    where = "" if line.rstrip(";") == place.rstrip(";") else f" in {line}"
    return f"{place} {' '.join(mutant.change.split())}{where}"
