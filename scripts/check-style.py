#!/usr/bin/env python3
"""Fails where the body of a statement has no braces, and where a constant begins with a capital.

clang-tidy knows both rules as well, and more of them, but has to compile each file for it: minutes
instead of a second. This reads the words of the sources alone, so it does not see into macros.
"""

import bisect
import pathlib
import re
import sys

root = pathlib.Path(__file__).resolve().parent.parent

# What is not code: comments, directives with their continued lines, texts and characters. An
# apostrophe between digits separates them.
not_code = re.compile(
    r"""//[^\n]* | /\*.*?\*/
      | ^[ \t]*\#(?:\\\n|/\*.*?\*/|[^\n])*
      | \bR"(?P<end>[^()\\ ]*)\(.*?\)(?P=end)"
      | "(?:\\.|[^"\\\n])*"
      | (?<![0-9a-fA-F])'(?:\\.|[^'\\\n])+'""",
    re.DOTALL | re.MULTILINE | re.VERBOSE)
control = re.compile(r"\b(?:(?:if(?:\s+constexpr)?|for|while|switch)\s*(?=\()|else\b|do\b)")
constant = re.compile(r"\bconstexpr\b[^=;(){}]*?[\s*&>]([A-Z]\w*)\s*(?:\[[^\]]*\]\s*)*[={;(]")


def code_of(text):
    """The text with spaces instead of what is no code; each place stays where it is."""
    return not_code.sub(lambda m: re.sub(r"[^\n]", " ", m.group()), text)


def behind_bracket(code, place):
    """Behind the bracket that closes the one at the place."""
    depth = 0
    for i in range(place, len(code)):
        depth += (code[i] == "(") - (code[i] == ")")
        if depth == 0:
            return i + 1
    return len(code)


def bare_bodies(code):
    """Where statements stand whose body has no braces."""
    for match in control.finditer(code):
        end = match.end()
        if end < len(code) and code[end] == "(":
            end = behind_bracket(code, end)
        rest = code[end:].lstrip()
        ends_do = match.group().startswith("while") and rest.startswith(";") \
            and code[:match.start()].rstrip().endswith("}")
        is_chain = match.group() == "else" and re.match(r"if\b", rest)
        if not (rest.startswith("{") or ends_do or is_chain):
            yield match.start()


def findings(text):
    code = code_of(text)
    for place in bare_bodies(code):
        yield place, "the body of this statement needs braces"
    for match in constant.finditer(code):
        yield match.start(1), f"the constant {match.group(1)} is to begin with a small letter"


def main():
    files = sorted(path for suffix in ("*.cpp", "*.h") for path in root.rglob(suffix)
                   if not re.match(r"build|out/|\.git/", str(path.relative_to(root))))
    if len(files) < 500:
        sys.exit(f"Only {len(files)} sources were found.")
    failed = False
    for path in files:
        text = path.read_text(encoding="utf-8")
        line_starts = [match.end() for match in re.finditer("^", text, re.MULTILINE)]
        for place, what in findings(text):
            line = bisect.bisect_right(line_starts, place)
            print(f"{path.relative_to(root)}:{line}: {what}", file=sys.stderr)
            failed = True
    sys.exit(failed)


if __name__ == "__main__":
    main()
