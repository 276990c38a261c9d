"""The small changes of a C++ source that tests should notice: one token of one line each."""
import re
from dataclasses import dataclass

# What a token may become. A `<` or `>` between blanks compares; elsewhere it belongs to a template or an arrow.
SWAPS = {"==": "!=", "!=": "==", " < ": " <= ", " > ": " >= ", "<=": "<", ">=": ">", "&&": "||", "||": "&&",
         "true": "false", "false": "true", " + ": " - ", " - ": " + ", "++": "--", "--": "++"}
TOKENS = re.compile(r"==|!=|<=|>=| < | > |&&|\|\||\+\+|--| \+ | - |\btrue\b|\bfalse\b|\b\d+\b|(?<=[(\s&|])!(?=[\w(])")
CALL = re.compile(r"\s+[\w.>:\-]+\(.*\);\s*")
QUOTED = re.compile(r'"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])+\'')
LAYOUT = re.compile(r'\s*\{.+, ".*", \{\w+(, \w+){3}\}\},')  # a row of layOut(), in twips
TWIPS_PER_PIXEL = 15
NO_CODE = re.compile(r"\s*(//|#|static_assert|namespace|using|Q_)")


@dataclass(frozen=True)
class Mutation:
    """One changed line of a file; number counts from 1."""
    path: str
    number: int
    before: str
    after: str

    def __str__(self):
        return f"{self.path}:{self.number}\n    - {self.before.strip()}\n    + {self.after.strip() or '(removed)'}"


def changed(token, line):
    if token == "!":
        return ""
    if token in SWAPS:
        return SWAPS[token]
    return str(int(token) + (TWIPS_PER_PIXEL if LAYOUT.match(line) else 1))


def code_of(line):
    """The line with its comment gone and the insides of its quotes blanked, of the same length up to the comment."""
    blanked = QUOTED.sub(lambda quoted: "\0" * len(quoted.group()), line)
    return blanked.split("//")[0]


def mutations_of(path, text):
    """All changes of one source file, in the order of its lines."""
    found, in_comment = [], False
    for number, line in enumerate(text.splitlines(), 1):
        in_comment = in_comment or line.lstrip().startswith("/*")
        if not in_comment and not NO_CODE.match(line):
            code = code_of(line)
            for token in TOKENS.finditer(code):
                after = line[:token.start()] + changed(token.group(), line) + line[token.end():]
                found.append(Mutation(path, number, line, after))
            if CALL.fullmatch(line):
                found.append(Mutation(path, number, line, ""))
        if "*/" in line:
            in_comment = False
    return found
