"""Every small change that could be a slip of its author's, in one source file of C++."""

import re
from collections.abc import Iterator
from dataclasses import dataclass

from cpptokens import Statement, Token, statements_of, tokens_of

BINARY = {
    "==": ["!="], "!=": ["=="],
    "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"],
    "&&": ["||"], "||": ["&&"],
    "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["*"],
    "+=": ["-="], "-=": ["+="],
    "&": ["|"], "|": ["&"], "<<": [">>"], ">>": ["<<"],
}
STEPS = {"++": "--", "--": "++"}

# What "return {}" gives as well, and what is changed as a constant.
DEFAULTS = {"", "{}", "std::nullopt", "nullptr", "0", '""', "true", "false"}

DECLARATION = re.compile(r"(?:const|constexpr|static|auto|using|extern|struct|class|typedef)\b"
                         r"|(?!(?:emit|throw|return|break|continue)\b)[\w:]+(?:<[^;=]*>)?\s+[*&]*\w+\s*[=;({\[]")


@dataclass(frozen=True)
class Mutation:
    """The characters from `start` up to `end` replaced."""

    what: str
    start: int
    end: int
    replacement: str

    def of(self, source: str) -> str:
        return source[:self.start] + self.replacement + source[self.end:]


def mutations_of(source: str) -> list[Mutation]:
    """In the order of the source. It is taken to be formatted: blanks tell a comparison from a bracket."""
    tokens = tokens_of(source)
    statements = statements_of(source, tokens)
    found = [mutation for index in range(len(tokens)) for mutation in _of_token(source, tokens, index)]
    found += [mutation for statement in statements for mutation in _of_statement(source, tokens, statement)]
    return sorted(found, key=lambda mutation: (mutation.start, mutation.end, mutation.replacement))


def _of_token(source: str, tokens: list[Token], index: int) -> Iterator[Mutation]:
    token = tokens[index]

    def instead(what: str, replacement: str) -> Mutation:
        return Mutation(what, token.start, token.end, replacement)

    if token.kind == "number":
        for value in _other_numbers(token.text):
            yield instead("constant", value)
    elif token.kind in ("string", "raw"):
        if not _is_asserted(tokens, index):
            yield instead("text", _longer(token))
    elif token.kind == "character":
        yield instead("character", _other_character(token.text))
    elif token.text in ("true", "false"):
        yield instead("constant", "false" if token.text == "true" else "true")
    elif token.text in ("if", "while"):
        yield from _negated(source, tokens, index)
    elif token.kind == "operator":
        if token.spaced:
            for other in BINARY.get(token.text, []):
                yield instead("operator", other)
        elif token.text in STEPS:
            yield instead("operator", STEPS[token.text])
        elif token.text in ("!", "-"):
            yield instead("operator removed", "")


def _is_asserted(tokens: list[Token], index: int) -> bool:
    """Whether it is the message of a static_assert."""
    opening = next((i for i in range(index, -1, -1) if tokens[i].text == "(" and tokens[i].partner > index), 0)
    return opening > 0 and tokens[opening - 1].text == "static_assert"


def _other_numbers(text: str) -> list[str]:
    digits = text.replace("'", "")
    if re.fullmatch(r"\d+[uUlL]*", digits):
        value = int(digits.rstrip("uUlL"))
        return [str(value + 1), str(value - 1)]
    if re.fullmatch(r"0[xX][\da-fA-F]+[uUlL]*", digits):
        value = int(digits.rstrip("uUlL"), 16)
        return [hex(value + 1), hex(value - 1)]
    return [repr(2 * float(digits)), repr(float(digits) / 2)]


def _longer(token: Token) -> str:
    """The text with a letter more."""
    end = token.text.rindex(")") if token.kind == "raw" else len(token.text) - 1
    return token.text[:end] + "x" + token.text[end:]


def _other_character(text: str) -> str:
    prefix, inner = text[:text.index("'")], text[text.index("'") + 1:-1]
    return f"{prefix}'{'x' if len(inner) > 1 else 'y' if inner != 'y' else 'z'}'"


def _negated(source: str, tokens: list[Token], index: int) -> Iterator[Mutation]:
    """A condition that has no operator of its own."""
    if tokens[index + 1].text != "(":
        return
    last = tokens[index + 1].partner
    first = index + 2
    for inner in range(first, last):
        if tokens[inner].text == ";":
            first = inner + 1
    condition = tokens[first:last]
    if any(token.text in BINARY and token.spaced or token.text in ("!", "=") for token in condition):
        return
    start, end = condition[0].start, condition[-1].end
    yield Mutation("condition", start, end, f"!({source[start:end]})")


def _of_statement(source: str, tokens: list[Token], statement: Statement) -> Iterator[Mutation]:
    start, end = tokens[statement.first].start, tokens[statement.last].end
    text = source[start:end]
    first = tokens[statement.first].text
    if first == "return":
        value = text.removeprefix("return").removesuffix(";").strip()
        if value not in DEFAULTS:
            yield Mutation("result", start, end, "return {};")
        # Without its last "return" a function would have no result at all.
        if not value or statement.controlled:
            yield Mutation("statement removed", start, end, ";")
    elif not DECLARATION.match(text):
        yield Mutation("statement removed", start, end, ";")
