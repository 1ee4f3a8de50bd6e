"""C++ as a row of tokens, with the brackets that they stand in."""

import re
from dataclasses import dataclass

PATTERN = re.compile(r"""
    (?P<space>\s+)
  | (?P<comment>//[^\n]*|/\*.*?\*/)
  | (?P<directive>\#(?:[^\n\\]|\\.)*)
  | (?P<raw>(?:u8|[uUL])?R"(?P<delimiter>[^()\s]*)\(.*?\)(?P=delimiter)")
  | (?P<string>(?:u8|[uUL])?"(?:[^"\\\n]|\\.)*")
  | (?P<character>(?:u8|[uUL])?'(?:[^'\\\n]|\\.)+')
  | (?P<number>\.?\d(?:[eEpP][+-]|'?[\w.])*)
  | (?P<word>[A-Za-z_]\w*)
  | (?P<operator><<=|>>=|<=>|\.\.\.|::|->|\+\+|--|&&|\|\||[-+*/%&|^=!<>]=|<<|>>|[^\s\w])
""", re.VERBOSE | re.DOTALL)

CLOSING = {"(": ")", "[": "]", "{": "}"}
HEADS = {"if", "for", "while", "switch", "catch"}
STATEMENT_OF_ITS_OWN = {"else", "do", "try"}


@dataclass
class Token:
    kind: str
    text: str
    start: int  # its first character in the source
    end: int  # the one behind its last
    spaced: bool = False  # blanks on both sides, as the formatter sets binary operators and no brackets
    partner: int = -1  # of a bracket: the index of the other one


@dataclass(frozen=True)
class Statement:
    """One that ends with a semicolon, in the body of a function; by the indices of its tokens."""

    first: int
    last: int  # its semicolon
    controlled: bool  # by an "if", "else" or loop, without braces


def tokens_of(source: str) -> list[Token]:
    """What counts in the source: no blanks, comments or preprocessor's lines."""
    tokens = []
    for match in PATTERN.finditer(source):
        kind = match.lastgroup if match.lastgroup != "delimiter" else "raw"
        if kind in ("space", "comment", "directive"):
            continue
        token = Token(kind, match[0], match.start(), match.end())
        token.spaced = source[token.start - 1:token.start].isspace() and source[token.end:token.end + 1].isspace()
        tokens.append(token)
    _pair_brackets(tokens)
    return tokens


def _pair_brackets(tokens: list[Token]) -> None:
    opened: list[int] = []
    for index, token in enumerate(tokens):
        if token.kind != "operator":
            continue
        if token.text in CLOSING:
            opened.append(index)
        elif token.text in CLOSING.values():
            token.partner = opened.pop()
            tokens[token.partner].partner = index
            if CLOSING[tokens[token.partner].text] != token.text:
                raise ValueError(f"the bracket at {token.start} closes another kind")
    if opened:
        raise ValueError(f"the bracket at {tokens[opened[-1]].start} is never closed")


def _begins_code(source: str, tokens: list[Token], brace: int) -> bool:
    """Whether a brace begins a body of statements, and not a class, a namespace or a list of values."""
    if brace == 0:
        return False
    before = tokens[brace - 1]
    if before.text in (")", "]", "const", "noexcept", "mutable", "override") or before.text in STATEMENT_OF_ITS_OWN:
        return True
    line = source.rfind("\n", 0, tokens[brace].start)
    alone = not source[line + 1:tokens[brace].start].strip()
    boundary = brace - 1
    while boundary >= 0 and tokens[boundary].text not in (";", "{", "}"):
        boundary -= 1
    words = {token.text for token in tokens[boundary + 1:brace]}
    return alone and not words & {"namespace", "class", "struct", "enum", "union", "="}


def statements_of(source: str, tokens: list[Token]) -> list[Statement]:
    statements = []
    bodies: list[tuple[int, int | None, bool]] = []  # brace, first token of the open statement, controlled
    index = 0
    while index < len(tokens):
        text = tokens[index].text
        if text == "{" and _begins_code(source, tokens, index):
            bodies.append((index, None, False))
        elif bodies and text == "}" and tokens[index].partner == bodies[-1][0]:
            bodies.pop()
            if bodies and bodies[-1][1] is None:
                bodies[-1] = (bodies[-1][0], None, False)
        elif bodies:
            brace, first, controlled = bodies[-1]
            if text in CLOSING and not _holds_code(source, tokens, index):
                index = tokens[index].partner  # nothing in there ends a statement
                if first is not None and tokens[first].text in HEADS and tokens[index].text == ")" \
                        and tokens[tokens[index].partner - 1].text in HEADS | {"constexpr"}:
                    bodies[-1] = (brace, None, True)
                elif first is None:
                    bodies[-1] = (brace, tokens[index].partner, controlled)
            elif text in STATEMENT_OF_ITS_OWN and first is None:
                bodies[-1] = (brace, None, True)
            elif text == ":" and first is not None and tokens[first].text in ("case", "default"):
                bodies[-1] = (brace, None, False)
            elif text == ";" and _is_directly_in(tokens, index, brace):
                if first is not None:
                    statements.append(Statement(first, index, controlled))
                bodies[-1] = (brace, None, False)
            elif first is None:
                bodies[-1] = (brace, index, controlled)
        index += 1
    return statements


def _holds_code(source: str, tokens: list[Token], bracket: int) -> bool:
    """Whether a function's body stands within the brackets: a lambda's, as an argument."""
    return any(tokens[index].text == "{" and _begins_code(source, tokens, index)
               for index in range(bracket, tokens[bracket].partner))


def _is_directly_in(tokens: list[Token], index: int, brace: int) -> bool:
    depth = 0
    for token in tokens[brace + 1:index]:
        if token.kind == "operator":
            depth += (token.text in CLOSING) - (token.text in CLOSING.values())
    return depth == 0
