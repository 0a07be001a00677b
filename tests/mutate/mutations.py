"""The small changes that a mutation run makes to C++ source, one at a time.

find() reads the text as clang-format leaves it: an operator between two blanks is a binary one,
angle brackets without blanks belong to a template. What does not compile is for the compiler to
say. Comments, preprocessor lines, #include lines and assertions about types are left alone.
"""

import re
from dataclasses import dataclass

OPERATORS = {
    "==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">",
    "&&": "||", "||": "&&", "+": "-", "-": "+", "*": "/", "/": "*", "%": "/",
    "<<": ">>", ">>": "<<", "&": "|", "|": "&", "^": "&",
    "+=": "-=", "-=": "+=", "*=": "/=", "/=": "*=", "<<=": ">>=", ">>=": "<<=",
    "&=": "|=", "|=": "&=",
}

TOKEN = re.compile(r"""
    (?P<skip> //[^\n]* | /\*.*?\*/ | ^[ ]*\#[^\n]*(?:\\\n[^\n]*)* | static_assert\b[^;]*; )
  | (?P<string> "(?:\\.|[^"\\\n])*" )
  | (?P<char> '(?:\\.|[^'\\\n])+' )
  | (?P<number> (?<![\w.])(?:0[xX][0-9a-fA-F']+ | \d[\d']*(?:\.\d+)?(?:[eE][-+]?\d+)?)[uUlLfF]* )
  | (?P<word> [A-Za-z_]\w* )
  | (?P<step> \+\+ | -- )
  | (?P<operator> (?<=[ ])(?:<<=|>>=|[-+*/&|]=|<<|>>|==|!=|<=|>=|&&|\|\||[-+*/%<>&|^])(?=[ \n]) )
  | (?P<not> !(?!=) )
  | (?P<other> \S )
""", re.VERBOSE | re.DOTALL | re.MULTILINE)

CALL = re.compile(r"(?:\*?this->|\*)?[A-Za-z_]\w*(?:(?:::|\.|->)[A-Za-z_]\w*|\[[^][\n]*\])*\(")
KEYWORDS = {"if", "while", "for", "switch", "return", "throw", "catch", "do", "else", "case",
            "sizeof", "using", "static_assert", "default", "new", "delete", "const", "constexpr"}


@dataclass(frozen=True)
class Mutation:
    """Characters `start` to `end` of a file replaced by `text`."""

    path: str
    start: int
    end: int
    text: str
    kind: str
    line: int
    column: int

    @property
    def name(self):
        return f"{self.path}:{self.line}:{self.column}:{self.kind}"

    def apply(self, source):
        return source[:self.start] + self.text + source[self.end:]


def _number(token):
    digits = token.rstrip("uUlLfF") if not token.lower().startswith("0x") else token.rstrip("uUlL")
    suffix = token[len(digits):]
    plain = digits.replace("'", "")
    if plain.lower().startswith("0x"):
        return hex(int(plain, 16) + 1) + suffix
    if "." in plain or "e" in plain.lower():
        return repr(float(plain) * 2 + (float(plain) == 0)) + suffix
    return str(int(plain) + 1) + suffix


def _closing(source, opening):
    """Where the bracket that opens at `opening` is closed."""
    depth = 0
    for token in TOKEN.finditer(source, opening):
        if token.lastgroup != "other":
            continue
        depth += {"(": 1, ")": -1}.get(token.group(), 0)
        if depth == 0:
            return token.start()
    return None


def _conditions_and_calls(source, tokens):
    """Conditions that may be turned round, statements of one call that may go."""
    previous = None
    for token in tokens:
        text = token.group()
        if text in ("if", "while") and previous != "}":
            opening = source.find("(", token.end())
            closing = _closing(source, opening)
            inside = source[opening + 1:closing] if closing else ""
            declares = re.match(r"(const )?(auto|\w+\*)\b.* = ", inside)
            if closing and ";" not in inside and not declares:
                yield opening + 1, closing, f"!({inside})", "condition"
        if previous in (None, ";", "{", "}", ")", "else", "do") and text not in KEYWORDS:
            call = CALL.match(source, token.start())
            closing = _closing(source, call.end() - 1) if call else None
            makes_room = call and call.group().endswith("reserve(")  # changes no result
            alone = closing and source[closing + 1:closing + 2] == ";"
            if alone and not makes_room and _at_line_start(source, token):
                yield token.start(), closing + 2, ";", "call"
        previous = text


def _at_line_start(source, token):
    before = source[source.rfind("\n", 0, token.start()) + 1:token.start()]
    return before.strip() == "" or before.rstrip().endswith((")", "else", "do", "{"))


def _changes(source):
    tokens = [token for token in TOKEN.finditer(source) if token.lastgroup != "skip"]
    for token in tokens:
        text, kind = token.group(), token.lastgroup
        where = token.start(), token.end()
        if kind == "operator":
            yield *where, OPERATORS[text], "operator"
        elif kind == "step":
            yield *where, "--" if text == "++" else "++", "step"
        elif kind == "not":
            yield *where, "", "not"
        elif kind == "number":
            yield *where, _number(text), "constant"
        elif kind == "word" and text in ("true", "false"):
            yield *where, "false" if text == "true" else "true", "constant"
        elif kind == "string":
            yield *where, '"~"' if text == '""' else text[:-1] + '~"', "text"
        elif kind == "char":
            yield *where, "'~'" if text != "'~'" else "'.'", "text"
    yield from _conditions_and_calls(source, tokens)


def find(path, source):
    """Every mutation of one file, in the order of its text."""
    found = []
    for start, end, text, kind in _changes(source):
        line = source.count("\n", 0, start) + 1
        column = start - source.rfind("\n", 0, start)
        found.append(Mutation(path, start, end, text, kind, line, column))
    return sorted(found, key=lambda mutation: (mutation.start, mutation.kind))


def choose(mutations_by_room, count, least, random):
    """`count` mutations: of every room at least `least`, the rest by the rooms' share.

    Returns (chosen, spare) by room; the spare ones stand in for what does not compile.
    """
    total = sum(len(mutations) for mutations in mutations_by_room.values())
    chosen, spare = {}, {}
    for room in sorted(mutations_by_room):
        mutations = list(mutations_by_room[room])
        random.shuffle(mutations)
        share = round((count - least * len(mutations_by_room)) * len(mutations) / total)
        wanted = max(0, share) + least
        chosen[room], spare[room] = mutations[:wanted], mutations[wanted:]
    return chosen, spare
