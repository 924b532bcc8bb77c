"""Grammars in EBNF that have no recursion, as regular expressions."""

import re

TOKEN = re.compile(r'\s*("[^"]*"|\?[^?]*\?|[a-zA-Z]+|[=;,|{}\[\]])')
SPECIAL = {"any byte but LF": "[^\n]", "one line feed, 0x0A": "\n"}
SIGNS = {",": "", "|": "|", "{": "(?:", "}": ")*", "[": "(?:", "]": ")?"}


def pattern_of(block):
    """The expression for the first rule of a grammar."""
    rules = {}
    for rule in filter(str.strip, block.text.split(";\n")):
        tokens = TOKEN.findall(rule)
        if "".join(tokens).split() != "".join(TOKEN.sub(r"\1", rule).split("\n")).split() or tokens[1:2] != ["="]:
            raise block.error(f"this is no rule of a grammar: {rule}")
        rules.setdefault(tokens[0], tokens[2:])

    def expression(name):
        if name not in rules:
            raise block.error(f"no rule says what {name!r} is")
        return "(?:" + "".join(part(token) for token in rules[name]) + ")"

    def part(token):
        if token in SIGNS:
            return SIGNS[token]
        if token.startswith("?"):
            return SPECIAL[token.strip("? ")]
        return re.escape(token[1:-1]) if token.startswith('"') else expression(token)

    return re.compile(expression(next(iter(rules))))
